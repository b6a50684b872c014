// libFuzzer target: PCurveColl::ReadFromFile and PMCurveColl::ReadFromFile on arbitrary curve
// collection files (*.pcc, *.pmc).
//
// A file that is refused leaves the collection as it was (empty here). A file that is read
// must write and read back to the same bytes and the same number of curves. The seeds in
// corpus/fuzz_read_curves are collections as WriteToFile writes them (function curves and
// polylines, with names, unit kinds and marked points), a truncated one and an empty file.

#include "ScratchFiles.h"

#include "host/CurveColl.h"

#include <fstream>
#include <iterator>

namespace {

std::vector<char> Contents(const std::string& path) {
    std::ifstream in(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
}

[[noreturn]] void Fail(const char* what) {
    std::fprintf(stderr, "fuzz_read_curves: %s\n", what);
    std::abort();
}

template <class Collection, class Count>
void Check(const std::string& input, const std::string& first, const std::string& second,
           Count count) {
    Collection read;
    if (read.ReadFromFile(input.c_str()) != 0) {
        if (count(read) != 0) {
            Fail("a refused file left curves in the collection");
        }
        return;
    }
    Collection again;
    if (read.WriteToFile(first.c_str()) != 0 || again.ReadFromFile(first.c_str()) != 0 ||
        again.WriteToFile(second.c_str()) != 0) {
        Fail("a collection that was read could not be written and read back");
    }
    if (count(again) != count(read)) {
        Fail("the curve count changed in a write and read");
    }
    if (Contents(first) != Contents(second)) {
        Fail("writing a collection read back from its own file gave other bytes");
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, size_t size) {
    static const std::vector<std::string> paths =
        seisplot::fuzz::Prepare("curves", {".pcc", "-1.pcc", "-2.pcc"});
    seisplot::fuzz::WriteInput(paths[0], data, size);
    Check<PCurveColl>(paths[0], paths[1], paths[2],
                      [](const PCurveColl& c) { return c.GetPCurveNum(); });
    Check<PMCurveColl>(paths[0], paths[1], paths[2],
                       [](const PMCurveColl& c) { return c.GetPMCurveNum(); });
    return 0;
}
