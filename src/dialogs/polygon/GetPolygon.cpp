#include "dialogs/polygon/GetPolygon.h"

#include "dialogs/polygon/GetSpecialPoly_p.h"
#include "dialogs/polygon/PolygonVertices.h"
#include "dialogs/polygon/SideCrossing.h"
#include "draw/gdi/Areas.h"
#include "draw/gdi/DeviceConventions.h"
#include "host/dialogs/CoordinateDialogs.h"
#include "platform/ui/DataExchange.h"

namespace {

constexpr UINT kTemplate = 14501;
constexpr int kPreview = 14602;
constexpr int kDxDy = 14603;
constexpr int kAnDi = 14604;
constexpr int kAnDx = 14605;
constexpr int kAnDy = 14606;
constexpr int kFirstPoint = 14607;
constexpr int kRemove = 14608;
constexpr int kModify = 14609;
constexpr int kNext = 14610;
constexpr int kPrevious = 14611;
constexpr int kFieldX = 14612;
constexpr int kFieldY = 14613;
constexpr int kSpecial = 14614;
constexpr int kArc = 14624;

constexpr COLORREF kBackground = 0xF0F0F0;
constexpr COLORREF kFrame = 0xA0A0A0;
constexpr COLORREF kRed = 0x0000FF;
constexpr COLORREF kGreen = 0x00FF00;
constexpr int kDiscRadius = 100; // 1 mm

// A circle or half circle needs two points or more, a regular polygon three sides; beyond
// this many, the crossing test on OK would keep the user waiting.
constexpr double kMostPresetPoints = 10000;

void Disc(CDC* dc, CPoint centre, COLORREF colour) {
    ellipse(dc, CPoint(centre.x - kDiscRadius, centre.y - kDiscRadius),
            CPoint(centre.x + kDiscRadius, centre.y + kDiscRadius), colour, 2);
}

} // namespace

GetPolygon::GetPolygon(CWnd* parent) : CDialog(kTemplate, parent) {
    On(kFirstPoint, BN_CLICKED, &GetPolygon::OnXxfirstpoint);
    On(kDxDy, BN_CLICKED, &GetPolygon::OnXxdxdy);
    On(kAnDi, BN_CLICKED, &GetPolygon::OnXxandi);
    On(kAnDx, BN_CLICKED, &GetPolygon::OnXxandx);
    On(kAnDy, BN_CLICKED, &GetPolygon::OnXxandy);
    On(kArc, BN_CLICKED, &GetPolygon::OnXxarc1);
    On(kPrevious, BN_CLICKED, &GetPolygon::OnXxprev);
    On(kNext, BN_CLICKED, &GetPolygon::OnXxnext);
    On(kModify, BN_CLICKED, &GetPolygon::OnXxeditside);
    On(kRemove, BN_CLICKED, &GetPolygon::OnXxremoveside);
    On(kSpecial, BN_CLICKED, &GetPolygon::OnXxspecialpoly);
}

void GetPolygon::DoDataExchange(CDataExchange* pDX) {
    DDX_Control(pDX, kPreview, m_preview);
    DDX_Text(pDX, kFieldX, X);
    DDX_Text(pDX, kFieldY, Y);
    DDX_Control(pDX, kArc, m_arc1);
    DDX_Control(pDX, kAnDy, m_andy);
    DDX_Control(pDX, kAnDx, m_andx);
    DDX_Control(pDX, kAnDi, m_andi);
    DDX_Control(pDX, kDxDy, m_dxdy);
}

BOOL GetPolygon::OnInitDialog() {
    Selected = Poly.GetNPoint() > 0 ? 1 : 0;
    CDialog::OnInitDialog();
    m_arc1.LoadBitmaps("XXARC1U", "XXARC1D");
    m_andy.LoadBitmaps("XXANDYU", "XXANDYD");
    m_andx.LoadBitmaps("XXANDXU", "XXANDXD");
    m_andi.LoadBitmaps("XXANDIU", "XXANDID");
    m_dxdy.LoadBitmaps("XXDXDYU", "XXDXDYD");
    Changed();
    return TRUE;
}

void GetPolygon::Changed() {
    const RPoint2D shown = Selected > 0 ? Poly.GetPoint(Selected) : RPoint2D();
    X = shown.GetX();
    Y = shown.GetY();
    UpdateData(FALSE);
    m_preview.Invalidate();
}

bool GetPolygon::HasFirstPoint() {
    if (Poly.GetNPoint() > 0) {
        return true;
    }
    AfxMessageBox("Enter first point coordinates");
    return false;
}

void GetPolygon::AddVertex(const RPoint2D& vertex) {
    Poly.AddPoint(vertex);
    Changed();
}

void GetPolygon::OnXxfirstpoint() {
    if (Poly.GetNPoint() > 0) {
        AfxMessageBox("First point already given");
        return;
    }
    GetXY point(nullptr);
    if (point.DoModal() == IDOK) {
        Poly.AddPoint(point.X, point.Y);
        Selected = 1;
        Changed();
    }
}

void GetPolygon::OnXxdxdy() {
    if (!HasFirstPoint()) {
        return;
    }
    GetDxDy side(nullptr);
    if (side.DoModal() == IDOK) {
        AddVertex(seisplot::SideByProjections(Poly.GetLastPoint(), side.DX, side.DY));
    }
}

void GetPolygon::OnXxandi() {
    if (!HasFirstPoint()) {
        return;
    }
    GetAnDi side(nullptr);
    if (side.DoModal() == IDOK) {
        AddVertex(seisplot::SideByAngleAndLength(Poly.GetLastPoint(), side.Angle, side.Distance));
    }
}

void GetPolygon::OnXxandx() {
    if (!HasFirstPoint()) {
        return;
    }
    GetAnDx side(nullptr);
    if (side.DoModal() != IDOK) {
        return;
    }
    if (!seisplot::AngleAllowsDx(side.Angle)) {
        AfxMessageBox("The angle gives a vertical side, which has no dx");
        return;
    }
    AddVertex(seisplot::SideByAngleAndDx(Poly.GetLastPoint(), side.Angle, side.DX));
}

void GetPolygon::OnXxandy() {
    if (!HasFirstPoint()) {
        return;
    }
    GetAnDy side(nullptr);
    if (side.DoModal() != IDOK) {
        return;
    }
    if (!seisplot::AngleAllowsDy(side.Angle)) {
        AfxMessageBox("The angle gives a horizontal side, which has no dy");
        return;
    }
    AddVertex(seisplot::SideByAngleAndDy(Poly.GetLastPoint(), side.Angle, side.DY));
}

void GetPolygon::OnXxarc1() {
    if (!HasFirstPoint()) {
        return;
    }
    GetArc1 arc(nullptr);
    if (arc.DoModal() == IDOK) {
        seisplot::AppendArc(Poly, arc.CX, arc.CY, arc.Radius, arc.Angle1, arc.Angle2, arc.Segments);
        Changed();
    }
}

void GetPolygon::OnXxprev() {
    const int count = Poly.GetNPoint();
    if (count > 0) {
        Selected = Selected <= 1 ? count : Selected - 1;
        Changed();
    }
}

void GetPolygon::OnXxnext() {
    const int count = Poly.GetNPoint();
    if (count > 0) {
        Selected = Selected >= count ? 1 : Selected + 1;
        Changed();
    }
}

void GetPolygon::OnXxeditside() {
    RPoint2D* vertex = Poly.GetPPoint(Selected);
    if (vertex == nullptr) {
        return;
    }
    GetXY point(nullptr);
    point.X = vertex->GetX();
    point.Y = vertex->GetY();
    if (point.DoModal() == IDOK) {
        vertex->SetX(point.X);
        vertex->SetY(point.Y);
        Changed();
    }
}

void GetPolygon::OnXxremoveside() {
    if (Selected < 1 || Selected > Poly.GetNPoint()) {
        return;
    }
    Poly.Remove(Selected);
    --Selected;
    if (Selected == 0) {
        Selected = Poly.GetNPoint();
    }
    Changed();
}

void GetPolygon::OnXxspecialpoly() {
    GetSpecialPoly numbers(this);
    const auto shape = static_cast<seisplot::PresetShape>(numbers.DoModal());
    using enum seisplot::PresetShape;
    if (shape != Rectangle && shape != Circle && shape != HalfCircle && shape != RegularPolygon) {
        return;
    }
    if (numbers.C == 0.0 || numbers.D == 0.0) {
        return;
    }
    if ((shape == Circle || shape == HalfCircle) &&
        !(numbers.D >= 2.0 && numbers.D <= kMostPresetPoints)) {
        AfxMessageBox("D must be between 2 and 10000");
        return;
    }
    if (shape == RegularPolygon && !(numbers.D >= 3.0 && numbers.D <= kMostPresetPoints)) {
        AfxMessageBox("D must be between 3 and 10000");
        return;
    }
    seisplot::AppendPresetShape(Poly, shape, numbers.A, numbers.B, numbers.C, numbers.D, numbers.E);
    Selected = 1;
    Changed();
}

void GetPolygon::OnOK() {
    if (Poly.GetNPoint() <= 2) {
        return;
    }
    if (seisplot::SidesCross(Poly)) {
        AfxMessageBox("Sides must not intersect");
        return;
    }
    EndDialog(IDOK);
}

void GetPolygon::OnDrawItem(int id, LPDRAWITEMSTRUCT drawItem) {
    if (id != kPreview) {
        return;
    }
    CDC* dc = drawItem->hDC;
    const RECT& area = drawItem->rcItem;
    dc->FillSolidRect(&area, kFrame);
    const CRect inside(area.left + 1, area.top + 1, area.right - 1, area.bottom - 1);
    dc->FillSolidRect(&inside, kBackground);
    DrawPolygon();
}

void GetPolygon::DrawPolygon() {
    DrawPoly(m_preview, &Poly, 0x000000, 0xFFFFFF, 1);
    if (Poly.GetNPoint() == 0) {
        return;
    }
    CDC* dc = m_preview.GetDC();
    const CRect client = seisplot::SetUpClientArea(&m_preview, dc);
    seisplot::PolygonPlacement placement;
    seisplot::PlacePolygon(Poly, client.right, client.top, true, placement);
    Disc(dc, placement.Map(Poly.GetLastPoint()), kRed);
    if (Selected >= 1 && Selected <= Poly.GetNPoint()) {
        Disc(dc, placement.Map(Poly.GetPoint(Selected)), kGreen);
    }
    m_preview.ReleaseDC(dc);
}
