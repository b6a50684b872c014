#include "draw/font/SFont.h"

#include "platform/core/Exceptions.h"
#include "platform/core/UserInterface.h"

#include <cstring>

CRuntimeClass SFont::classSFont{"SFont", sizeof(SFont), 0, &seisplot::CreateObjectOf<SFont>,
                                RUNTIME_CLASS(CObject)};

CRuntimeClass* SFont::GetRuntimeClass() const {
    return &classSFont;
}

namespace {

// Copies a face name as a string: at most LF_FACESIZE - 1 characters, the rest of the buffer
// zeros, so that a stored record never carries stale bytes after the name.
void CopyFace(char (&to)[LF_FACESIZE], const char (&from)[LF_FACESIZE]) {
    const size_t length = strnlen(from, LF_FACESIZE - 1);
    char face[LF_FACESIZE] = {};
    std::memcpy(face, from, length);
    std::memcpy(to, face, LF_FACESIZE);
}

} // namespace

SFont::SFont() : SFont(12, 0x0000FF) {}

SFont::SFont(int height, unsigned long colour)
    : lfHeight(height), lfWidth(0), lfEscapement(0), lfOrientation(0), lfWeight(FW_NORMAL),
      lfItalic(0), lfUnderline(0), lfStrikeOut(0), lfCharSet(0), lfOutPrecision(0),
      lfClipPrecision(0), lfQuality(0), lfPitchAndFamily(0), lfFaceName{}, Color(colour) {}

SFont::SFont(const SFont& other)
    : CObject(other), lfHeight(other.lfHeight), lfWidth(other.lfWidth),
      lfEscapement(other.lfEscapement), lfOrientation(other.lfOrientation),
      lfWeight(other.lfWeight), lfItalic(other.lfItalic), lfUnderline(other.lfUnderline),
      lfStrikeOut(other.lfStrikeOut), lfCharSet(other.lfCharSet),
      lfOutPrecision(other.lfOutPrecision), lfClipPrecision(other.lfClipPrecision),
      lfQuality(other.lfQuality), lfPitchAndFamily(other.lfPitchAndFamily), lfFaceName{},
      Color(other.Color) {
    CopyFace(lfFaceName, other.lfFaceName);
}

SFont SFont::operator=(const SFont& other) {
    if (this != &other) {
        SetFont(other.GetFont());
        Color = other.Color;
    }
    return *this;
}

SFont::~SFont() = default;

LOGFONTA SFont::GetFont() const {
    LOGFONTA font;
    font.lfHeight = lfHeight;
    font.lfWidth = lfWidth;
    font.lfEscapement = lfEscapement;
    font.lfOrientation = lfOrientation;
    font.lfWeight = lfWeight;
    font.lfItalic = lfItalic;
    font.lfUnderline = lfUnderline;
    font.lfStrikeOut = lfStrikeOut;
    font.lfCharSet = lfCharSet;
    font.lfOutPrecision = lfOutPrecision;
    font.lfClipPrecision = lfClipPrecision;
    font.lfQuality = lfQuality;
    font.lfPitchAndFamily = lfPitchAndFamily;
    CopyFace(font.lfFaceName, lfFaceName);
    return font;
}

void SFont::SetFont(const LOGFONTA& font) {
    lfHeight = font.lfHeight;
    lfWidth = font.lfWidth;
    lfEscapement = font.lfEscapement;
    lfOrientation = font.lfOrientation;
    lfWeight = font.lfWeight;
    lfItalic = font.lfItalic;
    lfUnderline = font.lfUnderline;
    lfStrikeOut = font.lfStrikeOut;
    lfCharSet = font.lfCharSet;
    lfOutPrecision = font.lfOutPrecision;
    lfClipPrecision = font.lfClipPrecision;
    lfQuality = font.lfQuality;
    lfPitchAndFamily = font.lfPitchAndFamily;
    CopyFace(lfFaceName, font.lfFaceName);
}

void SFont::Serialize(CArchive& ar) {
    // A fixed 64-byte record with no version of its own: the schema number is its version.
    if (ar.IsStoring()) {
        ar << lfHeight << lfWidth << lfEscapement << lfOrientation << lfWeight;
        ar << lfItalic << lfUnderline << lfStrikeOut << lfCharSet << lfOutPrecision
           << lfClipPrecision << lfQuality << lfPitchAndFamily;
        // The host may have copied a shorter name over a longer one: store zeros after it.
        char face[LF_FACESIZE];
        CopyFace(face, lfFaceName);
        ar.Write(face, LF_FACESIZE);
        ar << static_cast<DWORD>(Color);
    } else {
        ar >> lfHeight >> lfWidth >> lfEscapement >> lfOrientation >> lfWeight;
        ar >> lfItalic >> lfUnderline >> lfStrikeOut >> lfCharSet >> lfOutPrecision >>
            lfClipPrecision >> lfQuality >> lfPitchAndFamily;
        char face[LF_FACESIZE] = {};
        if (ar.Read(face, LF_FACESIZE) != LF_FACESIZE) {
            AfxThrowArchiveException(CArchiveException::endOfFile, ar.m_strFileName);
        }
        CopyFace(lfFaceName, face);
        DWORD colour = 0;
        ar >> colour;
        Color = colour;
    }
}

int SFont::Get(CWnd* /*parent*/, LOGFONTA initial, unsigned long colour) {
    seisplot::FontChoice choice;
    choice.font = initial;
    CopyFace(choice.font.lfFaceName, initial.lfFaceName);
    choice.colour = static_cast<COLORREF>(colour);
    if (!seisplot::CurrentUserInterface().ChooseFont(choice)) {
        return 0;
    }
    SetFont(choice.font);
    Color = choice.colour;
    return 1;
}
