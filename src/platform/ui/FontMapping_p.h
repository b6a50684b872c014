#pragma once
// Fonts and colours between the framework's forms and Qt's (private to the Qt user interface).

#include "platform/core/LogFont.h"

#include <QColor>
#include <QFont>

namespace seisplot {

// The font a chooser opens on: the installed face that draws lfFaceName (the default face
// when there is none), |lfHeight| as the point size (Qt's default when 0), the weight and the
// italic, underline and strike-out flags.
QFont QFontOfLogFont(const LOGFONTA& font);
// `base` with the face, size, weight and effects of `font`. The height keeps the sign of
// base's; a face the user left as it was opened keeps base's name (an empty one stays empty).
LOGFONTA LogFontOfQFont(const QFont& font, const LOGFONTA& base);

QColor QColorOfColorRef(COLORREF colour);
COLORREF ColorRefOfQColor(const QColor& colour);

} // namespace seisplot
