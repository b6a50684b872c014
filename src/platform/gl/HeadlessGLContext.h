#pragma once
// An OpenGL rendering context with a picture of its own and no display: Mesa's software
// renderer, so that a drawing comes out the same on every machine. Legacy immediate mode
// (compatibility profile), as the OpenGL twins of the drawing primitives draw.

#include "platform/core/CString.h"
#include "platform/gl/GLDeviceDC.h"

#include <memory>
#include <vector>

namespace seisplot {

class HeadlessGLContext {
public:
    // A picture `width` by `height` pixels at `dpi`; throws std::runtime_error when no
    // software OpenGL is to be had.
    HeadlessGLContext(int width, int height, int dpi = 96);
    ~HeadlessGLContext();
    HeadlessGLContext(const HeadlessGLContext&) = delete;
    HeadlessGLContext& operator=(const HeadlessGLContext&) = delete;

    // Makes the context current on the calling thread, its device what wglGetCurrentDC
    // answers; DoneCurrent leaves the thread without either.
    void MakeCurrent();
    void DoneCurrent();

    int Width() const { return m_width; }
    int Height() const { return m_height; }
    CDC& Device() { return m_device; }

    // Viewport on the whole picture and a projection in hundredths of a millimetre at the
    // device's resolution, y up from the bottom-left corner; the model-view is reset.
    void UseHimetric();
    // The colour of a pixel, counted from the top-left corner as images are; the context must
    // be current.
    COLORREF Pixel(int x, int y) const;
    // Every pixel, rows from the top.
    std::vector<COLORREF> Pixels() const;
    // Writes the picture to an image file: `format` "PNG", ..., or by the name's extension.
    bool Save(const CString& path, const char* format = nullptr) const;

private:
    struct Egl;
    int m_width;
    int m_height;
    int m_dpi;
    GLDeviceDC m_device;
    std::unique_ptr<Egl> m_egl;
};

} // namespace seisplot
