#pragma once
// A window with the studio's structural drawing twice, side by side: through the GDI
// primitives on the left and through their OpenGL twins in an OpenGL view on the right.

#include "host/RPoly.h"
#include "platform/gdi/CWnd.h"
#include "platform/gl/GLDeviceDC.h"

#include <QOpenGLWidget>
#include <QWidget>

#include <memory>

namespace seisplot::studio {

class StructureFonts;

// The drawing through the GDI primitives, on a window's picture.
class GdiStructureView : public QWidget {
public:
    explicit GdiStructureView(const RPoly& polygon, QWidget* parent = nullptr);
    void Redraw();

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    QSize sizeHint() const override { return {480, 480}; }

private:
    const RPoly& m_polygon;
    CWnd m_window;
};

// The drawing through the OpenGL twins, in a compatibility-profile context; while it draws,
// its device is the current OpenGL device, the size and resolution of the screen, as a
// window's device context reports them.
class GLStructureView : public QOpenGLWidget {
public:
    explicit GLStructureView(const RPoly& polygon, QWidget* parent = nullptr);
    ~GLStructureView() override;

protected:
    void initializeGL() override;
    void paintGL() override;
    QSize sizeHint() const override { return {480, 480}; }

private:
    const RPoly& m_polygon;
    int m_dpi;
    GLDeviceDC m_device;
    std::unique_ptr<StructureFonts> m_fonts;
};

class StructureWindow : public QWidget {
    Q_OBJECT

public:
    explicit StructureWindow(const RPoly& polygon, QWidget* parent = nullptr);
    // Draws both views again, after the polygon changed.
    void Redraw();

private:
    GdiStructureView* m_gdi;
    GLStructureView* m_gl;
};

} // namespace seisplot::studio
