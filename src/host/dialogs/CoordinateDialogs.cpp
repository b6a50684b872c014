#include "host/dialogs/CoordinateDialogs.h"

#include "platform/ui/DataExchange.h"

namespace {

constexpr int kField1 = seisplot::kFirstCoordinateField;
constexpr int kField2 = kField1 + 1;
constexpr int kMostSegments = 360;

} // namespace

GetXY::GetXY(CWnd* parent) : CDialog(seisplot::kGetXYTemplate, parent) {}

void GetXY::DoDataExchange(CDataExchange* pDX) {
    DDX_Text(pDX, kField1, X);
    DDX_Text(pDX, kField2, Y);
}

GetDxDy::GetDxDy(CWnd* parent) : CDialog(seisplot::kGetDxDyTemplate, parent) {}

void GetDxDy::DoDataExchange(CDataExchange* pDX) {
    DDX_Text(pDX, kField1, DX);
    DDX_Text(pDX, kField2, DY);
}

GetAnDi::GetAnDi(CWnd* parent) : CDialog(seisplot::kGetAnDiTemplate, parent) {}

void GetAnDi::DoDataExchange(CDataExchange* pDX) {
    DDX_Text(pDX, kField1, Angle);
    DDX_Text(pDX, kField2, Distance);
}

GetAnDx::GetAnDx(CWnd* parent) : CDialog(seisplot::kGetAnDxTemplate, parent) {}

void GetAnDx::DoDataExchange(CDataExchange* pDX) {
    DDX_Text(pDX, kField1, Angle);
    DDX_Text(pDX, kField2, DX);
}

GetAnDy::GetAnDy(CWnd* parent) : CDialog(seisplot::kGetAnDyTemplate, parent) {}

void GetAnDy::DoDataExchange(CDataExchange* pDX) {
    DDX_Text(pDX, kField1, Angle);
    DDX_Text(pDX, kField2, DY);
}

GetArc1::GetArc1(CWnd* parent) : CDialog(seisplot::kGetArc1Template, parent) {}

void GetArc1::DoDataExchange(CDataExchange* pDX) {
    DDX_Text(pDX, kField1, CX);
    DDX_Text(pDX, kField2, CY);
    DDX_Text(pDX, kField1 + 2, Radius);
    DDX_Text(pDX, kField1 + 3, Angle1);
    DDX_Text(pDX, kField1 + 4, Angle2);
    DDX_Text(pDX, kField1 + 5, Segments);
    DDV_MinMaxInt(pDX, Segments, 1, kMostSegments);
}
