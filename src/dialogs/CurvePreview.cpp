#include "dialogs/CurvePreview.h"

#include "dialogs/curves/CurveDisplay.h"
#include "draw/gdi/Areas.h"
#include "plot/CurvePlot.h"

namespace seisplot {

void DrawCurvePreview(CDC* dc, CWnd& control, PCurve* curve, Units* units, unsigned long colour,
                      bool outline) {
    if (dc == nullptr) {
        AfxMessageBox("Error getting DC. Too many commands?");
        return;
    }
    if (curve == nullptr) {
        CRect area;
        control.GetClientRect(&area);
        rectangle(dc, 0xFFFFFF, 2, area.left, area.top, area.right, area.bottom);
        if (outline) {
            rectangle(dc, 0, 1, area.left, area.top, area.right, area.bottom);
        }
        return;
    }
    SFont title;
    SFont axis;
    SFont labels;
    DrawCurve(curve, &control, dc, 1, units, title, axis, labels, 1, 0, 0, 0, colour, 1, 0, 0, 0.0,
              0.0);
}

void ShowCurveEnlarged(CWnd* parent, const PCurve& curve, const CString& title, Units* units) {
    PrintPCurve display(parent);
    display.UnitSystem = units;
    display.Coll.AddPCurve(curve);
    display.Path = title;
    display.DoModal();
}

} // namespace seisplot
