#include "StructureWindow.h"

#include "PlotView.h"
#include "StructureDrawing.h"

#include "platform/gl/CurrentDevice.h"

#include <GL/gl.h>

#include <QGuiApplication>
#include <QHBoxLayout>
#include <QScreen>
#include <QSurfaceFormat>

namespace seisplot::studio {
namespace {

// The device of the screen the studio shows on: its size and resolution.
QSize ScreenPixels() {
    const QScreen* screen = QGuiApplication::primaryScreen();
    return screen != nullptr ? screen->size() : QSize(1280, 1024);
}

int ScreenDpi() {
    const QScreen* screen = QGuiApplication::primaryScreen();
    return screen != nullptr ? static_cast<int>(screen->logicalDotsPerInchX() + 0.5) : 96;
}

// Makes `device` the current OpenGL device for the life of the scope.
class CurrentDevice {
public:
    explicit CurrentDevice(HDC device) : m_previous(wglGetCurrentDC()) {
        MakeGLDeviceCurrent(device);
    }
    ~CurrentDevice() { MakeGLDeviceCurrent(m_previous); }
    CurrentDevice(const CurrentDevice&) = delete;
    CurrentDevice& operator=(const CurrentDevice&) = delete;

private:
    HDC m_previous;
};

} // namespace

GdiStructureView::GdiStructureView(const RPoly& polygon, QWidget* parent)
    : QWidget(parent), m_polygon(polygon) {
    setMinimumSize(240, 240);
}

void GdiStructureView::paintEvent(QPaintEvent*) {
    PaintWindowPicture(this, m_window);
}

void GdiStructureView::resizeEvent(QResizeEvent*) {
    Redraw();
}

void GdiStructureView::Redraw() {
    m_window.SetClientSize(width(), height());
    DrawStructure(m_window, m_polygon, "GDI primitives");
    update();
}

GLStructureView::GLStructureView(const RPoly& polygon, QWidget* parent)
    : QOpenGLWidget(parent), m_polygon(polygon), m_dpi(ScreenDpi()),
      m_device(ScreenPixels().width(), ScreenPixels().height(), m_dpi) {
    QSurfaceFormat format;
    format.setVersion(2, 1);
    format.setProfile(QSurfaceFormat::CompatibilityProfile);
    setFormat(format);
    setMinimumSize(240, 240);
}

GLStructureView::~GLStructureView() {
    if (m_fonts) {
        makeCurrent();
        const CurrentDevice device(&m_device);
        m_fonts.reset();
        doneCurrent();
    }
}

void GLStructureView::initializeGL() {
    const CurrentDevice device(&m_device);
    m_fonts = std::make_unique<StructureFonts>();
}

void GLStructureView::paintGL() {
    const CurrentDevice device(&m_device);
    const int w = width();
    const int h = height();
    const qreal ratio = devicePixelRatioF();
    glViewport(0, 0, static_cast<GLsizei>(w * ratio), static_cast<GLsizei>(h * ratio));
    glClearColor(1.0F, 1.0F, 1.0F, 1.0F);
    glClear(GL_COLOR_BUFFER_BIT);
    // Hundredths of a millimetre at the screen's resolution, y up from the lower-left corner.
    const int logicalWidth = w * 2540 / m_dpi;
    const int logicalHeight = h * 2540 / m_dpi;
    glMatrixMode(GL_PROJECTION);
    glLoadIdentity();
    glOrtho(0.0, logicalWidth, 0.0, logicalHeight, -1.0, 1.0);
    glMatrixMode(GL_MODELVIEW);
    glLoadIdentity();
    DrawStructureGL(logicalWidth, logicalHeight, m_polygon, *m_fonts, "OpenGL twins");
}

StructureWindow::StructureWindow(const RPoly& polygon, QWidget* parent)
    : QWidget(parent), m_gdi(new GdiStructureView(polygon)), m_gl(new GLStructureView(polygon)) {
    setWindowTitle(tr("Structure: GDI and OpenGL"));
    auto* layout = new QHBoxLayout(this);
    layout->addWidget(m_gdi);
    layout->addWidget(m_gl);
}

void StructureWindow::Redraw() {
    m_gdi->Redraw();
    m_gl->update();
}

} // namespace seisplot::studio
