// libFuzzer target: SFont's stored record read from arbitrary bytes. A record that is too short
// raises the framework's exception; one that is read must hold a face name that ends within
// its buffer and must store and read back to the same record.

#include "ScratchFiles.h"

#include "draw/font/SFont.h"
#include "platform/core/CFile.h"
#include "platform/core/Exceptions.h"

#include <cstring>

namespace {

std::vector<BYTE> Stored(SFont& font) {
    CMemFile file;
    CArchive ar(&file, CArchive::store);
    font.Serialize(ar);
    ar.Close();
    return file.Data();
}

SFont Loaded(const BYTE* bytes, size_t size) {
    CMemFile file(bytes, static_cast<UINT>(size));
    CArchive ar(&file, CArchive::load);
    SFont font;
    font.Serialize(ar);
    return font;
}

[[noreturn]] void Fail(const char* what) {
    std::fprintf(stderr, "fuzz_read_font: %s\n", what);
    std::abort();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, size_t size) {
    static const bool prepared = (seisplot::fuzz::Prepare("font", {}), true);
    (void)prepared;
    SFont font;
    try {
        font = Loaded(data, size);
    } catch (CException* e) {
        e->Delete();
        return 0;
    }
    if (strnlen(font.lfFaceName, LF_FACESIZE) >= LF_FACESIZE) {
        Fail("a face name read without its terminating zero");
    }
    std::vector<BYTE> first = Stored(font);
    SFont again;
    try {
        again = Loaded(first.data(), first.size());
    } catch (CException* e) {
        e->Delete();
        Fail("a stored record could not be read back");
    }
    if (Stored(again) != first) {
        Fail("a record read back from its own bytes stored other bytes");
    }
    return 0;
}
