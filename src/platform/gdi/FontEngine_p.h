#pragma once
// Fonts on Qt: the one place where a logical font becomes a Qt font, with the face that
// stands in for a face of the other platform, and where text is measured as Qt draws it
// (private to the drawing layers).

#include "platform/core/CString.h"
#include "platform/gdi/GdiTypes.h"

#include <QFont>
#include <QString>

namespace seisplot {

// The installed face that draws `face` (a face of the other platform has its stand-in;
// an unknown one the default face).
QString InstalledFace(const char* face);
// The Qt font for a logical font `pixelHeight` pixels high: negative, the character height
// (em); positive, the character cell (ascent and descent).
QFont QtFontOf(const LOGFONTA& font, int pixelHeight);
bool IsSymbolFace(const LOGFONTA& font);
// What the letters of `text` show in the "Symbol" face.
QString SymbolFaceText(const CString& text);
// The text as the font shows it: the "Symbol" face turns letters into Greek letters.
QString QtTextOf(const LOGFONTA& font, const CString& text);

} // namespace seisplot
