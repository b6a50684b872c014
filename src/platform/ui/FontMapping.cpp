#include "platform/ui/FontMapping_p.h"

#include "platform/gdi/FontEngine_p.h"

#include <QFontDatabase>
#include <QFontInfo>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdlib>
#include <cstring>

namespace seisplot {
namespace {

// The name under which `family` has the style of this weight and slant. Font choosers pick a
// style by its name, and names vary from family to family ("Book" for regular, "Oblique"
// for italic); without the family's own name a chooser may open on another style.
QString InstalledStyle(const QString& family, int weight, bool italic) {
    static const std::array<QStringList, 4> kNames{
        QStringList{"Regular", "Book", "Normal", "Roman"},
        QStringList{"Italic", "Oblique"},
        QStringList{"Bold"},
        QStringList{"Bold Italic", "Bold Oblique"},
    };
    if (weight != QFont::Normal && weight != QFont::Bold) {
        return {};
    }
    const QStringList styles = QFontDatabase::styles(family);
    for (const QString& name : kNames[(weight == QFont::Bold ? 2 : 0) + (italic ? 1 : 0)]) {
        if (styles.contains(name)) {
            return name;
        }
    }
    return {};
}

} // namespace

QFont QFontOfLogFont(const LOGFONTA& font) {
    // Open on the face that really draws the text: the one the device contexts map the
    // logical face to.
    char face[LF_FACESIZE + 1] = {};
    std::memcpy(face, font.lfFaceName, LF_FACESIZE);
    QFont qfont(InstalledFace(face));
    if (font.lfHeight != 0) {
        qfont.setPointSize(std::abs(font.lfHeight));
    }
    if (font.lfWeight != 0) {
        qfont.setWeight(static_cast<QFont::Weight>(std::clamp<LONG>(font.lfWeight, 1, 1000)));
    }
    qfont.setItalic(font.lfItalic != 0);
    qfont.setUnderline(font.lfUnderline != 0);
    qfont.setStrikeOut(font.lfStrikeOut != 0);
    const QString family = QFontInfo(qfont).family();
    qfont.setFamily(family);
    const QString style = InstalledStyle(family, qfont.weight(), qfont.italic());
    if (!style.isEmpty()) {
        qfont.setStyleName(style);
    }
    return qfont;
}

LOGFONTA LogFontOfQFont(const QFont& font, const LOGFONTA& base) {
    LOGFONTA result = base;
    // The chooser opened on the face that stands in for base's: keeping it is no change.
    const QString family = font.family();
    if (family != QFontOfLogFont(base).family()) {
        std::memset(result.lfFaceName, 0, LF_FACESIZE);
        const QByteArray name = family.toLatin1().left(LF_FACESIZE - 1);
        std::memcpy(result.lfFaceName, name.constData(), static_cast<size_t>(name.size()));
    }
    if (font.pointSizeF() > 0) {
        const LONG points = static_cast<LONG>(std::lround(font.pointSizeF()));
        result.lfHeight = base.lfHeight < 0 ? -points : points;
    }
    result.lfWeight = font.weight();
    result.lfItalic = font.italic() ? 1 : 0;
    result.lfUnderline = font.underline() ? 1 : 0;
    result.lfStrikeOut = font.strikeOut() ? 1 : 0;
    return result;
}

QColor QColorOfColorRef(COLORREF colour) {
    return QColor(static_cast<int>(colour & 0xFF), static_cast<int>((colour >> 8) & 0xFF),
                  static_cast<int>((colour >> 16) & 0xFF));
}

COLORREF ColorRefOfQColor(const QColor& colour) {
    const QColor rgb = colour.toRgb();
    return static_cast<COLORREF>(rgb.red()) | (static_cast<COLORREF>(rgb.green()) << 8) |
           (static_cast<COLORREF>(rgb.blue()) << 16);
}

} // namespace seisplot
