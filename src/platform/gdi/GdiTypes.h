#pragma once
// The drawing framework's constants and plain structures, as host code spells them.

#include "platform/core/CPoint.h"
#include "platform/core/LogFont.h"

using LPPOINT = POINT*;
using LPRECT = RECT*;
using LPCRECT = const RECT*;
using LPSIZE = SIZE*;

class CDC;
// A device-context handle: the context itself.
using HDC = CDC*;

constexpr COLORREF RGB(int r, int g, int b) {
    return static_cast<COLORREF>((r & 0xFF) | ((g & 0xFF) << 8) | ((b & 0xFF) << 16));
}
constexpr BYTE GetRValue(COLORREF c) {
    return static_cast<BYTE>(c & 0xFF);
}
constexpr BYTE GetGValue(COLORREF c) {
    return static_cast<BYTE>((c >> 8) & 0xFF);
}
constexpr BYTE GetBValue(COLORREF c) {
    return static_cast<BYTE>((c >> 16) & 0xFF);
}
inline constexpr COLORREF CLR_INVALID = 0xFFFFFFFF;

// Mapping modes
inline constexpr int MM_TEXT = 1;
inline constexpr int MM_LOMETRIC = 2;
inline constexpr int MM_HIMETRIC = 3;

// Pen styles
inline constexpr int PS_SOLID = 0;
inline constexpr int PS_DASH = 1;
inline constexpr int PS_DOT = 2;
inline constexpr int PS_NULL = 5;

// Brush styles and hatches
inline constexpr int BS_SOLID = 0;
inline constexpr int BS_NULL = 1;
inline constexpr int BS_HATCHED = 2;
inline constexpr int BS_PATTERN = 3;
inline constexpr int HS_HORIZONTAL = 0;
inline constexpr int HS_VERTICAL = 1;
inline constexpr int HS_FDIAGONAL = 2;
inline constexpr int HS_BDIAGONAL = 3;
inline constexpr int HS_CROSS = 4;
inline constexpr int HS_DIAGCROSS = 5;

// Stock objects
inline constexpr int WHITE_BRUSH = 0;
inline constexpr int BLACK_BRUSH = 4;
inline constexpr int NULL_BRUSH = 5;
inline constexpr int WHITE_PEN = 6;
inline constexpr int BLACK_PEN = 7;
inline constexpr int NULL_PEN = 8;
inline constexpr int SYSTEM_FONT = 13;

// Raster operations of lines and fills
inline constexpr int R2_BLACK = 1;
inline constexpr int R2_NOT = 6;
inline constexpr int R2_XORPEN = 7;
inline constexpr int R2_NOTXORPEN = 10;
inline constexpr int R2_COPYPEN = 13;
inline constexpr int R2_WHITE = 16;

// Raster operations of block transfers
inline constexpr DWORD SRCCOPY = 0x00CC0020;
inline constexpr DWORD SRCINVERT = 0x00660046;

// Background modes
inline constexpr int TRANSPARENT = 1;
inline constexpr int OPAQUE = 2;

// Text alignment
inline constexpr UINT TA_NOUPDATECP = 0;
inline constexpr UINT TA_UPDATECP = 1;
inline constexpr UINT TA_LEFT = 0;
inline constexpr UINT TA_RIGHT = 2;
inline constexpr UINT TA_CENTER = 6;
inline constexpr UINT TA_TOP = 0;
inline constexpr UINT TA_BOTTOM = 8;
inline constexpr UINT TA_BASELINE = 24;
inline constexpr UINT GDI_ERROR = 0xFFFFFFFF;

// Device capabilities
inline constexpr int TECHNOLOGY = 2;
inline constexpr int HORZSIZE = 4;
inline constexpr int VERTSIZE = 6;
inline constexpr int HORZRES = 8;
inline constexpr int VERTRES = 10;
inline constexpr int BITSPIXEL = 12;
inline constexpr int NUMCOLORS = 24;
inline constexpr int LOGPIXELSX = 88;
inline constexpr int LOGPIXELSY = 90;
inline constexpr int DT_PLOTTER = 0;
inline constexpr int DT_RASDISPLAY = 1;
inline constexpr int DT_RASPRINTER = 2;

// Region results and combination
inline constexpr int ERROR = 0;
inline constexpr int NULLREGION = 1;
inline constexpr int SIMPLEREGION = 2;
inline constexpr int COMPLEXREGION = 3;

// Font weights and character sets
inline constexpr LONG FW_NORMAL = 400;
inline constexpr LONG FW_BOLD = 700;
inline constexpr BYTE ANSI_CHARSET = 0;
inline constexpr BYTE SYMBOL_CHARSET = 2;

struct TEXTMETRICA {
    LONG tmHeight = 0;
    LONG tmAscent = 0;
    LONG tmDescent = 0;
    LONG tmInternalLeading = 0;
    LONG tmExternalLeading = 0;
    LONG tmAveCharWidth = 0;
    LONG tmMaxCharWidth = 0;
    LONG tmWeight = 0;
    BYTE tmItalic = 0;
    BYTE tmUnderlined = 0;
    BYTE tmStruckOut = 0;
    BYTE tmCharSet = 0;
};
using TEXTMETRIC = TEXTMETRICA;
