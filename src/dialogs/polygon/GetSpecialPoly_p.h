#pragma once
// GetSpecialPoly: asks for the numbers A to E of a preset shape; each of its four shape
// buttons reads them and ends the dialog with the shape's code (PresetShape), Cancel with
// IDCANCEL. Opened by GetPolygon's "Special polygons..." (private to the polygon dialogs).

#include "platform/ui/CDialog.h"

class GetSpecialPoly : public CDialog {
public:
    explicit GetSpecialPoly(CWnd* parent = nullptr);
    double A = 0.0;
    double B = 0.0;
    double C = 0.0;
    double D = 0.0;
    double E = 0.0;

protected:
    void DoDataExchange(CDataExchange* pDX) override;

private:
    void OnXxrectangle();
    void OnXxcircle();
    void OnXxhalfcircle();
    void OnXxregularpoly();
    void EndWith(int code);
};
