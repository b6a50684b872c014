// libFuzzer target: SpectrumColl::ReadFromFile on arbitrary spectra archive files.
//
// A file that cannot be read raises the framework's exception, which is released here; the
// collection must then be empty. A file that is read must round-trip: writing the collection,
// reading that file back and writing it again gives the same bytes and the same count. The
// files are the same for every run of this process, overwritten each time. The seeds in
// corpus/fuzz_read_spc are archives of two, one and no spectra, a truncated copy and an empty
// file.

#include "ScratchFiles.h"

#include "platform/core/Exceptions.h"
#include "spectra/SpectrumColl.h"

#include <fstream>
#include <iterator>

namespace {

std::vector<char> Contents(const std::string& path) {
    std::ifstream in(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
}

[[noreturn]] void Fail(const char* what) {
    std::fprintf(stderr, "fuzz_read_spc: %s\n", what);
    std::abort();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, size_t size) {
    static const std::vector<std::string> paths =
        seisplot::fuzz::Prepare("spc", {".spc", "-1.spc", "-2.spc"});
    seisplot::fuzz::WriteInput(paths[0], data, size);

    SpectrumColl spectra;
    CString input(paths[0].c_str());
    try {
        spectra.ReadFromFile(input);
    } catch (CException* e) {
        e->Delete();
        if (spectra.GetSpectrumNum() != 0) {
            Fail("a failed read left spectra in the collection");
        }
        return 0;
    }

    CString first(paths[1].c_str());
    CString second(paths[2].c_str());
    SpectrumColl again;
    try {
        spectra.WriteToFile(first);
        again.ReadFromFile(first);
        again.WriteToFile(second);
    } catch (CException* e) {
        e->Delete();
        Fail("a collection that was read could not be written and read back");
    }
    if (again.GetSpectrumNum() != spectra.GetSpectrumNum()) {
        Fail("the spectrum count changed in a write and read");
    }
    if (Contents(paths[1]) != Contents(paths[2])) {
        Fail("writing a collection read back from its own file gave other bytes");
    }
    return 0;
}
