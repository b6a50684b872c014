#pragma once
// Fonts on Qt (private to the device-context layer).

#include "platform/core/CString.h"
#include "platform/gdi/GdiTypes.h"

#include <QString>

namespace seisplot {

// Fonts and painting need a Qt application; without a display it runs offscreen.
void EnsureGuiApplication();
bool IsSymbolFace(const LOGFONTA& font);
// What the letters of `text` show in the "Symbol" face.
QString SymbolFaceText(const CString& text);

} // namespace seisplot
