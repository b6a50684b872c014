#pragma once
// What the record and spectrum dialogs do with their previews: a curve drawn small in an
// owner-drawn button, and the same curve shown enlarged in the curve display dialog.

#include "host/PCurve.h"
#include "platform/ui/CDialog.h"

class Units;

namespace seisplot {

// Draws `curve` with the plot engine over `control`'s whole area (white first; the dialog's
// units, default fonts, current point 1, no marks, no tick values, line width 1, automatic
// ticks) in `colour`; without a curve, a white area, outlined in black when `outline`. A
// missing context is reported ("Error getting DC. Too many commands?").
void DrawCurvePreview(CDC* dc, CWnd& control, PCurve* curve, Units* units, unsigned long colour,
                      bool outline);

// Opens the curve display dialog on a collection holding a copy of `curve`, titled `title`.
void ShowCurveEnlarged(CWnd* parent, const PCurve& curve, const CString& title, Units* units);

} // namespace seisplot
