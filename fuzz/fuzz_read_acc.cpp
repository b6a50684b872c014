// libFuzzer target: AccelerogramColl::ReadFromFile on arbitrary record archive files (*.acc).
//
// A file that cannot be read raises the framework's exception, which is released here. A file
// that is read is also checked for a stable round trip: writing the collection, reading that
// file back and writing it again must give the same bytes and the same number of records.
// The files are the same for every run of this process (their names carry the process id),
// overwritten each time. The seeds in corpus/fuzz_read_acc are collections of two, one and no
// synthetic records as WriteToFile writes them, a truncated copy and an empty file.

#include "ScratchFiles.h"

#include "platform/core/Exceptions.h"
#include "records/AccelerogramColl.h"

#include <fstream>
#include <iterator>

namespace {

std::vector<char> Contents(const std::string& path) {
    std::ifstream in(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
}

[[noreturn]] void Fail(const char* what) {
    std::fprintf(stderr, "fuzz_read_acc: %s\n", what);
    std::abort();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, size_t size) {
    static const std::vector<std::string> paths =
        seisplot::fuzz::Prepare("acc", {".acc", "-1.acc", "-2.acc"});
    const std::string& inputPath = paths[0];
    const std::string& firstPath = paths[1];
    const std::string& secondPath = paths[2];
    seisplot::fuzz::WriteInput(inputPath, data, size);

    AccelerogramColl records;
    CString input(inputPath.c_str());
    try {
        records.ReadFromFile(input);
    } catch (CException* e) {
        e->Delete();
        if (records.GetAccelerogramNum() != 0) {
            Fail("a failed read left records in the collection");
        }
        return 0;
    }

    // Read: what is written must read back to the same collection.
    CString first(firstPath.c_str());
    CString second(secondPath.c_str());
    AccelerogramColl again;
    try {
        records.WriteToFile(first);
        again.ReadFromFile(first);
        again.WriteToFile(second);
    } catch (CException* e) {
        e->Delete();
        Fail("a collection that was read could not be written and read back");
    }
    if (again.GetAccelerogramNum() != records.GetAccelerogramNum()) {
        Fail("the record count changed in a write and read");
    }
    if (Contents(firstPath) != Contents(secondPath)) {
        Fail("writing a collection read back from its own file gave other bytes");
    }
    return 0;
}
