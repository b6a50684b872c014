// libFuzzer target: Accelerogram::ReadTXTPLT (the form that is given its units) on arbitrary
// file contents. The file is the same for every run of this process, overwritten each time.

#include "ScratchFiles.h"

#include "host/Units.h"
#include "records/Accelerogram.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, size_t size) {
    static const std::string path = seisplot::fuzz::Prepare("txtplt", {".txt"}).front();
    seisplot::fuzz::WriteInput(path, data, size);
    Units units;
    Accelerogram record;
    record.ReadTXTPLT(1, CString("input.txt"), CString(path.c_str()), units);
    return 0;
}
