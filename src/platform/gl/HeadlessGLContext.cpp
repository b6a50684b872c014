// The headless context on EGL: the software device that Mesa lists among the EGL devices
// (llvmpipe), whatever graphics hardware the machine has, with a pixel buffer as its picture.

#include "platform/gl/HeadlessGLContext.h"

#include "platform/gl/CurrentDevice.h"

#include <EGL/egl.h>
#include <EGL/eglext.h>
#include <GL/gl.h>

#include <QImage>

#include <cstring>
#include <stdexcept>

namespace seisplot {
namespace {

template <typename Function> Function Extension(const char* name) {
    return reinterpret_cast<Function>(eglGetProcAddress(name));
}

EGLDeviceEXT SoftwareDevice() {
    const auto queryDevices = Extension<PFNEGLQUERYDEVICESEXTPROC>("eglQueryDevicesEXT");
    const auto queryString = Extension<PFNEGLQUERYDEVICESTRINGEXTPROC>("eglQueryDeviceStringEXT");
    if (queryDevices == nullptr || queryString == nullptr) {
        return EGL_NO_DEVICE_EXT;
    }
    EGLDeviceEXT devices[16];
    EGLint count = 0;
    if (queryDevices(16, devices, &count) != EGL_TRUE) {
        return EGL_NO_DEVICE_EXT;
    }
    for (EGLint i = 0; i < count; ++i) {
        const char* extensions = queryString(devices[i], EGL_EXTENSIONS);
        if (extensions != nullptr && std::strstr(extensions, "EGL_MESA_device_software")) {
            return devices[i];
        }
    }
    return EGL_NO_DEVICE_EXT;
}

// The display of the software device, initialised once for the life of the process: contexts
// come and go, and terminating the display would end every one of them.
EGLDisplay SoftwareDisplay() {
    static const EGLDisplay display = [] {
        const EGLDeviceEXT device = SoftwareDevice();
        const auto platformDisplay =
            Extension<PFNEGLGETPLATFORMDISPLAYEXTPROC>("eglGetPlatformDisplayEXT");
        if (device == EGL_NO_DEVICE_EXT || platformDisplay == nullptr) {
            return EGL_NO_DISPLAY;
        }
        EGLDisplay d = platformDisplay(EGL_PLATFORM_DEVICE_EXT, device, nullptr);
        return d != EGL_NO_DISPLAY && eglInitialize(d, nullptr, nullptr) == EGL_TRUE
                   ? d
                   : EGL_NO_DISPLAY;
    }();
    return display;
}

[[noreturn]] void Fail(const char* what) {
    throw std::runtime_error(std::string("headless OpenGL: ") + what);
}

// Rows of RGBA bytes from the bottom, as OpenGL reads them, into colours from the top.
std::vector<COLORREF> Colours(const std::vector<unsigned char>& rgba, int width, int height) {
    std::vector<COLORREF> out(static_cast<std::size_t>(width) * height);
    for (int y = 0; y < height; ++y) {
        const unsigned char* row = &rgba[static_cast<std::size_t>(height - 1 - y) * width * 4];
        for (int x = 0; x < width; ++x) {
            out[static_cast<std::size_t>(y) * width + x] =
                RGB(row[4 * x], row[4 * x + 1], row[4 * x + 2]);
        }
    }
    return out;
}

// Reads a block of the picture with plain packing, whatever the caller set.
std::vector<unsigned char> ReadRgba(int x, int y, int width, int height) {
    std::vector<unsigned char> rgba(static_cast<std::size_t>(width) * height * 4);
    glPushClientAttrib(GL_CLIENT_PIXEL_STORE_BIT);
    glPixelStorei(GL_PACK_ALIGNMENT, 1);
    glPixelStorei(GL_PACK_ROW_LENGTH, 0);
    glPixelStorei(GL_PACK_SKIP_ROWS, 0);
    glPixelStorei(GL_PACK_SKIP_PIXELS, 0);
    glReadPixels(x, y, width, height, GL_RGBA, GL_UNSIGNED_BYTE, rgba.data());
    glPopClientAttrib();
    return rgba;
}

} // namespace

struct HeadlessGLContext::Egl {
    EGLDisplay display = EGL_NO_DISPLAY;
    EGLContext context = EGL_NO_CONTEXT;
    EGLSurface surface = EGL_NO_SURFACE;

    ~Egl() {
        if (eglGetCurrentContext() == context) {
            eglMakeCurrent(display, EGL_NO_SURFACE, EGL_NO_SURFACE, EGL_NO_CONTEXT);
        }
        if (surface != EGL_NO_SURFACE) {
            eglDestroySurface(display, surface);
        }
        if (context != EGL_NO_CONTEXT) {
            eglDestroyContext(display, context);
        }
    }
};

HeadlessGLContext::HeadlessGLContext(int width, int height, int dpi)
    : m_width(width), m_height(height), m_dpi(dpi), m_device(width, height, dpi),
      m_egl(std::make_unique<Egl>()) {
    m_egl->display = SoftwareDisplay();
    if (m_egl->display == EGL_NO_DISPLAY) {
        Fail("Mesa's software EGL device is missing");
    }
    const EGLint configAttributes[] = {EGL_SURFACE_TYPE,
                                       EGL_PBUFFER_BIT,
                                       EGL_RENDERABLE_TYPE,
                                       EGL_OPENGL_BIT,
                                       EGL_RED_SIZE,
                                       8,
                                       EGL_GREEN_SIZE,
                                       8,
                                       EGL_BLUE_SIZE,
                                       8,
                                       EGL_ALPHA_SIZE,
                                       8,
                                       EGL_NONE};
    EGLConfig config = nullptr;
    EGLint configs = 0;
    if (eglChooseConfig(m_egl->display, configAttributes, &config, 1, &configs) != EGL_TRUE ||
        configs == 0) {
        Fail("no RGBA pixel-buffer configuration");
    }
    const EGLint surfaceAttributes[] = {EGL_WIDTH, width, EGL_HEIGHT, height, EGL_NONE};
    m_egl->surface = eglCreatePbufferSurface(m_egl->display, config, surfaceAttributes);
    if (m_egl->surface == EGL_NO_SURFACE) {
        Fail("cannot make a pixel buffer of that size");
    }
    eglBindAPI(EGL_OPENGL_API);
    const EGLint contextAttributes[] = {EGL_CONTEXT_OPENGL_PROFILE_MASK,
                                        EGL_CONTEXT_OPENGL_COMPATIBILITY_PROFILE_BIT, EGL_NONE};
    m_egl->context = eglCreateContext(m_egl->display, config, EGL_NO_CONTEXT, contextAttributes);
    if (m_egl->context == EGL_NO_CONTEXT) {
        Fail("cannot create a compatibility-profile context");
    }
    MakeCurrent();
    // A white picture, as a fresh bitmap is; the clear colour goes back to OpenGL's default.
    glClearColor(1.0F, 1.0F, 1.0F, 1.0F);
    glClear(GL_COLOR_BUFFER_BIT);
    glClearColor(0.0F, 0.0F, 0.0F, 0.0F);
}

HeadlessGLContext::~HeadlessGLContext() {
    if (wglGetCurrentDC() == &m_device) {
        MakeGLDeviceCurrent(nullptr);
    }
}

void HeadlessGLContext::MakeCurrent() {
    eglBindAPI(EGL_OPENGL_API);
    if (eglMakeCurrent(m_egl->display, m_egl->surface, m_egl->surface, m_egl->context) !=
        EGL_TRUE) {
        Fail("cannot make the context current");
    }
    MakeGLDeviceCurrent(&m_device);
}

void HeadlessGLContext::DoneCurrent() {
    eglMakeCurrent(m_egl->display, EGL_NO_SURFACE, EGL_NO_SURFACE, EGL_NO_CONTEXT);
    MakeGLDeviceCurrent(nullptr);
}

void HeadlessGLContext::UseHimetric() {
    glViewport(0, 0, m_width, m_height);
    glMatrixMode(GL_PROJECTION);
    glLoadIdentity();
    glOrtho(0.0, m_width * 2540.0 / m_dpi, 0.0, m_height * 2540.0 / m_dpi, -1.0, 1.0);
    glMatrixMode(GL_MODELVIEW);
    glLoadIdentity();
}

COLORREF HeadlessGLContext::Pixel(int x, int y) const {
    if (x < 0 || y < 0 || x >= m_width || y >= m_height) {
        return CLR_INVALID;
    }
    const std::vector<unsigned char> rgba = ReadRgba(x, m_height - 1 - y, 1, 1);
    return RGB(rgba[0], rgba[1], rgba[2]);
}

std::vector<COLORREF> HeadlessGLContext::Pixels() const {
    return Colours(ReadRgba(0, 0, m_width, m_height), m_width, m_height);
}

bool HeadlessGLContext::Save(const CString& path, const char* format) const {
    const std::vector<unsigned char> rgba = ReadRgba(0, 0, m_width, m_height);
    const QImage picture(rgba.data(), m_width, m_height, m_width * 4, QImage::Format_RGBX8888);
    return picture.mirrored().save(QString::fromLocal8Bit(path.GetString()), format);
}

} // namespace seisplot
