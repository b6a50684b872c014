#pragma once
// The studio's central view: a window of the drawing layer, shown by this widget, with the
// selected record, spectrum, curve or the polygon drawn in it by the library's plot engine
// and primitives.

#include "draw/font/SFont.h"
#include "host/PCurve.h"
#include "host/RPoly.h"
#include "host/Units.h"
#include "platform/gdi/CWnd.h"

#include <QWidget>

#include <variant>

namespace seisplot::studio {

// Paints the picture of a window of the drawing layer at the top-left corner of `widget`.
void PaintWindowPicture(QWidget* widget, const CWnd& window);

class PlotView : public QWidget {
public:
    explicit PlotView(QWidget* parent = nullptr);

    // What to show: a function curve, a free polyline, the polygon, or nothing.
    using Shown = std::variant<std::monostate, const PCurve*, const PMCurve*, const RPoly*>;
    void Show(Shown shown, Units* units);

    // The three plot fonts, changed through the font chooser.
    SFont titleFont{22, 0};
    SFont axisFont{18, 0};
    SFont labelFont{14, 0};

    void Redraw();
    // The picture as shown, for screenshots of the view alone.
    bool SavePicture(const QString& path) const;

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    QSize sizeHint() const override { return {640, 480}; }

private:
    CButton m_window; // a button, as DrawPoly wants one
    Shown m_shown;
    Units* m_units = nullptr;
};

} // namespace seisplot::studio
