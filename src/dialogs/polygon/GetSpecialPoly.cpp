#include "dialogs/polygon/GetSpecialPoly_p.h"

#include "dialogs/polygon/PolygonVertices.h"
#include "platform/ui/DataExchange.h"

namespace {

constexpr UINT kTemplate = 14502;
constexpr int kFieldA = 14615;
constexpr int kFieldB = 14616;
constexpr int kFieldC = 14617;
constexpr int kFieldD = 14618;
constexpr int kFieldE = 14623;
constexpr int kRectangle = 14619;
constexpr int kCircle = 14620;
constexpr int kHalfCircle = 14621;
constexpr int kRegularPolygon = 14622;

} // namespace

GetSpecialPoly::GetSpecialPoly(CWnd* parent) : CDialog(kTemplate, parent) {
    On(kRectangle, BN_CLICKED, &GetSpecialPoly::OnXxrectangle);
    On(kCircle, BN_CLICKED, &GetSpecialPoly::OnXxcircle);
    On(kHalfCircle, BN_CLICKED, &GetSpecialPoly::OnXxhalfcircle);
    On(kRegularPolygon, BN_CLICKED, &GetSpecialPoly::OnXxregularpoly);
}

void GetSpecialPoly::DoDataExchange(CDataExchange* pDX) {
    DDX_Text(pDX, kFieldA, A);
    DDX_Text(pDX, kFieldB, B);
    DDX_Text(pDX, kFieldC, C);
    DDX_Text(pDX, kFieldD, D);
    DDX_Text(pDX, kFieldE, E);
}

void GetSpecialPoly::EndWith(int code) {
    if (UpdateData(TRUE)) {
        EndDialog(code);
    }
}

void GetSpecialPoly::OnXxrectangle() {
    EndWith(static_cast<int>(seisplot::PresetShape::Rectangle));
}

void GetSpecialPoly::OnXxcircle() {
    EndWith(static_cast<int>(seisplot::PresetShape::Circle));
}

void GetSpecialPoly::OnXxhalfcircle() {
    EndWith(static_cast<int>(seisplot::PresetShape::HalfCircle));
}

void GetSpecialPoly::OnXxregularpoly() {
    EndWith(static_cast<int>(seisplot::PresetShape::RegularPolygon));
}
