#pragma once
// The framework's logical font: what a font is asked for by, in the form host code fills in.
// It lives here, below the drawing layer, because the user-interface services choose fonts.

#include "platform/core/Types.h"

inline constexpr int LF_FACESIZE = 32;

struct LOGFONTA {
    LONG lfHeight = 0;
    LONG lfWidth = 0;
    LONG lfEscapement = 0;
    LONG lfOrientation = 0;
    LONG lfWeight = 0;
    BYTE lfItalic = 0;
    BYTE lfUnderline = 0;
    BYTE lfStrikeOut = 0;
    BYTE lfCharSet = 0;
    BYTE lfOutPrecision = 0;
    BYTE lfClipPrecision = 0;
    BYTE lfQuality = 0;
    BYTE lfPitchAndFamily = 0;
    char lfFaceName[LF_FACESIZE] = {};
};
using LOGFONT = LOGFONTA;
