#include "PlotView.h"

#include "draw/gdi/Areas.h"
#include "plot/CurvePlot.h"

#include <QImage>
#include <QPainter>

namespace seisplot::studio {
namespace {

constexpr unsigned long kCurveColour = 0x00800000; // dark blue
constexpr int kCurveWidth = 25;                    // 0.25 mm

} // namespace

PlotView::PlotView(QWidget* parent) : QWidget(parent) {
    setMinimumSize(320, 240);
}

void PlotView::Show(Shown shown, Units* units) {
    m_shown = shown;
    m_units = units;
    Redraw();
}

void PlotView::Redraw() {
    m_window.SetClientSize(width(), height());
    CDC* dc = m_window.GetDC();
    CRect client;
    m_window.GetClientRect(&client);
    dc->FillSolidRect(&client, 0xFFFFFF);
    if (const auto* curve = std::get_if<const PCurve*>(&m_shown)) {
        DrawCurve(const_cast<PCurve*>(*curve), &m_window, dc, 1, m_units, titleFont, axisFont,
                  labelFont, 0, 0, 0, 1, kCurveColour, kCurveWidth, 0, 0, 0.0, 0.0);
    } else if (const auto* polyline = std::get_if<const PMCurve*>(&m_shown)) {
        DrawCurve(const_cast<PMCurve*>(*polyline), &m_window, dc, 1, m_units, titleFont, axisFont,
                  labelFont, 0, 0, 0, 1, kCurveColour, kCurveWidth, 0, 0, 0.0, 0.0);
    }
    m_window.ReleaseDC(dc);
    if (const auto* polygon = std::get_if<const RPoly*>(&m_shown)) {
        DrawPoly(m_window, const_cast<RPoly*>(*polygon), 0x000000, 0xC0FFC0, 1);
    }
    update();
}

bool PlotView::SavePicture(const QString& path) const {
    return m_window.SavePicture(path.toLocal8Bit().constData(), "PNG");
}

void PaintWindowPicture(QWidget* widget, const CWnd& window) {
    const PictureBits bits = window.Bits();
    const QImage picture(bits.data, bits.width, bits.height, bits.bytesPerLine,
                         QImage::Format_RGB32);
    QPainter painter(widget);
    painter.drawImage(0, 0, picture);
}

void PlotView::paintEvent(QPaintEvent*) {
    PaintWindowPicture(this, m_window);
}

void PlotView::resizeEvent(QResizeEvent*) {
    Redraw();
}

} // namespace seisplot::studio
