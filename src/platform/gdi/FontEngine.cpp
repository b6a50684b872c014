// Fonts on Qt: the face a logical font names (or the nearest installed one), its size in
// pixels, and the letters of the "Symbol" face.

#include "platform/gdi/FontEngine_p.h"

#include "platform/gdi/GuiApplication_p.h"
#include "platform/gdi/Surface_p.h"

#include <QFontDatabase>
#include <QFontMetricsF>

#include <algorithm>
#include <array>
#include <cctype>
#include <cmath>
#include <cstring>

namespace seisplot {

namespace {

bool SameFace(const char* a, const char* b) {
    for (; *a != '\0' && *b != '\0'; ++a, ++b) {
        if (std::tolower(static_cast<unsigned char>(*a)) !=
            std::tolower(static_cast<unsigned char>(*b))) {
            return false;
        }
    }
    return *a == *b;
}

} // namespace

QString InstalledFace(const char* face) {
    struct Substitute {
        const char* face;
        const char* installed;
    };
    static constexpr std::array substitutes{
        Substitute{"Arial", "Liberation Sans"},
        Substitute{"Helvetica", "Liberation Sans"},
        Substitute{"MS Sans Serif", "Liberation Sans"},
        Substitute{"MS Shell Dlg", "Liberation Sans"},
        Substitute{"Tahoma", "DejaVu Sans"},
        Substitute{"Verdana", "DejaVu Sans"},
        Substitute{"Segoe UI", "DejaVu Sans"},
        Substitute{"Times New Roman", "Liberation Serif"},
        Substitute{"Times", "Liberation Serif"},
        Substitute{"Courier New", "Liberation Mono"},
        Substitute{"Courier", "Liberation Mono"},
        Substitute{"Symbol", "DejaVu Sans"},
    };
    for (const auto& s : substitutes) {
        if (SameFace(face, s.face)) {
            return QString::fromLatin1(s.installed);
        }
    }
    const QString name = QString::fromLatin1(face);
    if (!name.isEmpty() && QFontDatabase::hasFamily(name)) {
        return name;
    }
    return QStringLiteral("DejaVu Sans");
}

bool IsSymbolFace(const LOGFONTA& font) {
    return SameFace(font.lfFaceName, "Symbol");
}

QFont QtFontOf(const LOGFONTA& font, int pixelHeight) {
    EnsureGuiApplication();
    char face[LF_FACESIZE + 1] = {};
    std::memcpy(face, font.lfFaceName, LF_FACESIZE);
    QFont f(InstalledFace(face));
    f.setPixelSize(std::max(1, std::abs(pixelHeight)));
    const int weight = font.lfWeight == 0 ? FW_NORMAL : std::clamp<int>(font.lfWeight, 1, 1000);
    f.setWeight(static_cast<QFont::Weight>(weight));
    f.setItalic(font.lfItalic != 0);
    f.setUnderline(font.lfUnderline != 0);
    f.setStrikeOut(font.lfStrikeOut != 0);
    f.setKerning(false);
    if (pixelHeight > 0) {
        // A positive height is the character cell (ascent and descent), not the em square.
        const QFontMetricsF m(f);
        const double cell = m.ascent() + m.descent();
        if (cell > 0) {
            f.setPixelSize(
                std::max(1, static_cast<int>(std::lround(pixelHeight * pixelHeight / cell))));
        }
    }
    return f;
}

QString SymbolFaceText(const CString& text) {
    // The Symbol face's letters: its Latin positions hold the Greek alphabet, some
    // punctuation positions and the upper half hold mathematical signs.
    static const char16_t lower[] = u"αβχδεφγηιϕκλμνοπθρστυϖωξψζ";
    static const char16_t upper[] = u"ΑΒΧΔΕΦΓΗΙϑΚΛΜΝΟΠΘΡΣΤΥςΩΞΨΖ";
    QString out;
    out.reserve(text.GetLength());
    for (int i = 0; i < text.GetLength(); ++i) {
        const auto c = static_cast<unsigned char>(text[i]);
        char16_t u = c;
        if (c >= 'a' && c <= 'z') {
            u = lower[c - 'a'];
        } else if (c >= 'A' && c <= 'Z') {
            u = upper[c - 'A'];
        } else {
            switch (c) {
            case '"':
                u = u'∀';
                break;
            case '$':
                u = u'∃';
                break;
            case '\'':
                u = u'∋';
                break;
            case '*':
                u = u'∗';
                break;
            case '-':
                u = u'−';
                break;
            case '@':
                u = u'≅';
                break;
            case '\\':
                u = u'∴';
                break;
            case '^':
                u = u'⊥';
                break;
            case '~':
                u = u'∼';
                break;
            case 0xA1:
                u = u'ϒ';
                break;
            case 0xA2:
                u = u'′';
                break;
            case 0xA3:
                u = u'≤';
                break;
            case 0xA5:
                u = u'∞';
                break;
            case 0xAB:
                u = u'↔';
                break;
            case 0xAC:
                u = u'←';
                break;
            case 0xAD:
                u = u'↑';
                break;
            case 0xAE:
                u = u'→';
                break;
            case 0xAF:
                u = u'↓';
                break;
            case 0xB0:
                u = u'°';
                break;
            case 0xB1:
                u = u'±';
                break;
            case 0xB2:
                u = u'″';
                break;
            case 0xB3:
                u = u'≥';
                break;
            case 0xB4:
                u = u'×';
                break;
            case 0xB5:
                u = u'∝';
                break;
            case 0xB6:
                u = u'∂';
                break;
            case 0xB7:
                u = u'•';
                break;
            case 0xB8:
                u = u'÷';
                break;
            case 0xB9:
                u = u'≠';
                break;
            case 0xBA:
                u = u'≡';
                break;
            case 0xBB:
                u = u'≈';
                break;
            case 0xC6:
                u = u'∅';
                break;
            case 0xD0:
                u = u'∠';
                break;
            case 0xD1:
                u = u'∇';
                break;
            case 0xD6:
                u = u'√';
                break;
            case 0xD7:
                u = u'⋅';
                break;
            case 0xE5:
                u = u'∑';
                break;
            case 0xF2:
                u = u'∫';
                break;
            default:
                break;
            }
        }
        out.append(QChar(u));
    }
    return out;
}

QString QtTextOf(const LOGFONTA& font, const CString& text) {
    return IsSymbolFace(font) ? SymbolFaceText(text)
                              : QString::fromLatin1(text.GetString(), text.GetLength());
}

FontMeasure Surface::MeasureFont(const LOGFONTA& font, int pixelHeight) const {
    const QFont qfont = QtFontOf(font, pixelHeight);
    const QFontMetricsF metrics(qfont);
    return {metrics.ascent(),           metrics.descent(),  metrics.leading(),
            metrics.averageCharWidth(), metrics.maxWidth(), qfont.pixelSize()};
}

double Surface::TextAdvance(const LOGFONTA& font, int pixelHeight, const CString& text) const {
    return QFontMetricsF(QtFontOf(font, pixelHeight)).horizontalAdvance(QtTextOf(font, text));
}

} // namespace seisplot
