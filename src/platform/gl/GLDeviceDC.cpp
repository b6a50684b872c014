#include "platform/gl/GLDeviceDC.h"

#include "platform/gdi/Surface_p.h"
#include "platform/gl/BitmapGlyphs_p.h"

namespace seisplot {
namespace {

// A display's capabilities; text is measured as the bitmap font lists draw it, whole pixels
// a character.
class GLDeviceSurface final : public Surface {
public:
    GLDeviceSurface(int width, int height, int dpi) : m_caps{width, height, dpi, dpi} {}
    DeviceCaps Caps() const override { return m_caps; }
    double TextAdvance(const LOGFONTA& font, int pixelHeight, const CString& text) const override {
        const QFont qfont = BitmapFont(font, pixelHeight);
        double advance = 0.0;
        for (int i = 0; i < text.GetLength(); ++i) {
            advance += BitmapAdvance(qfont, font, static_cast<unsigned char>(text[i]));
        }
        return advance;
    }
    void Draw(const DrawCall&, const DeviceClip&) override {}

private:
    DeviceCaps m_caps;
};

} // namespace

GLDeviceDC::GLDeviceDC(int width, int height, int dpi)
    : CDC(std::make_shared<GLDeviceSurface>(width, height, dpi)) {}

} // namespace seisplot
