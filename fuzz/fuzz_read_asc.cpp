// libFuzzer target: Accelerogram::ReadASC on arbitrary file contents. The input is written to
// one of six files whose names end as the record file classes do (.ASC, .RA, .TR, .UP, .SEW,
// .SNS), chosen by the input's size, so every class is exercised. The files are the same for
// every run of this process, overwritten each time.

#include "ScratchFiles.h"

#include "records/Accelerogram.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, size_t size) {
    static const std::vector<std::string> paths =
        seisplot::fuzz::Prepare("asc", {".ASC", ".RA", ".TR", ".UP", ".SEW", ".SNS"});
    const std::string& path = paths[size % paths.size()];
    seisplot::fuzz::WriteInput(path, data, size);
    const std::string name = std::filesystem::path(path).filename().string();
    Accelerogram record;
    record.ReadASC(1, CString(name.c_str()), CString(path.c_str()));
    return 0;
}
