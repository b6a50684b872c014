#include "dialogs/curves/CurveMixing.h"

#include "host/CurveFormula.h"
#include "platform/ui/DataExchange.h"

namespace {

constexpr int kTemplate = 14504;
constexpr int kCurveList = 14629;
constexpr int kDeleteCurve = 14653;
constexpr int kSlotName[] = {14643, 14645, 14647, 14648, 14649, 14650};
constexpr int kSlotBind[] = {14644, 14646, 14654, 14655, 14656, 14657};
constexpr int kSlotEmpty[] = {14666, 14667, 14668, 14669, 14670, 14671};
constexpr int kSlotVariable[] = {14658, 14659, 14660, 14661, 14662, 14663};
constexpr int kNewName = 14651;
constexpr int kFormula = 14664;
constexpr int kExecute = 14652;
constexpr int kVersus = 14665;
constexpr int kReferToX = 14672;
constexpr int kKinds = 14601;
// The formula is copied into a buffer of 298 characters; a longer one is refused when read.
constexpr int kLongestFormula = 298;

using seisplot::UnitKind;

constexpr const char* kExpressionError = "Error processing expression";
constexpr const char* kDifferentCounts = "Different number of points";
constexpr const char* kNoCurveA = "Bind a curve to A first";

} // namespace

namespace seisplot {

template <class Kind> CurveMixing<Kind>::CurveMixing(CWnd* parent) : CDialog(kTemplate, parent) {
    using Self = CurveMixing<Kind>;
    constexpr void (Self::*bind[])() = {&Self::OnBnClickedGetcurve1, &Self::OnBnClickedGetcurve2,
                                        &Self::OnBnClickedGetcurve3, &Self::OnBnClickedGetcurve4,
                                        &Self::OnBnClickedGetcurve5, &Self::OnBnClickedGetcurve6};
    constexpr void (Self::*empty[])() = {&Self::OnBnClickedDelcurve1, &Self::OnBnClickedDelcurve2,
                                         &Self::OnBnClickedDelcurve3, &Self::OnBnClickedDelcurve4,
                                         &Self::OnBnClickedDelcurve5, &Self::OnBnClickedDelcurve6};
    for (int slot = 0; slot < kCurveSlots; ++slot) {
        this->On(kSlotBind[slot], BN_CLICKED, bind[slot]);
        this->On(kSlotEmpty[slot], BN_CLICKED, empty[slot]);
    }
    this->On(kDeleteCurve, BN_CLICKED, &Self::OnBnClickedDeletecurve);
    this->On(kExecute, BN_CLICKED, &Self::OnBnClickedExec);
    this->On(kCurveList, LBN_SELCHANGE, &Self::OnLbnSelchangeThecurveList);
}

template <class Kind> void CurveMixing<Kind>::DoDataExchange(CDataExchange* pDX) {
    CDialog::DoDataExchange(pDX);
    DDX_Control(pDX, kCurveList, m_list);
    DDX_Control(pDX, kKinds, m_kinds);
    for (int slot = 0; slot < kCurveSlots; ++slot) {
        DDX_Text(pDX, kSlotName[slot], CurveName[slot]);
        DDX_Text(pDX, kSlotVariable[slot], VarName[slot]);
    }
    DDX_Text(pDX, kNewName, NewCurveName);
    DDX_Text(pDX, kFormula, Formula);
    DDV_MaxChars(pDX, Formula, kLongestFormula);
    DDX_Radio(pDX, kReferToX, Coordinate);
}

template <class Kind> BOOL CurveMixing<Kind>::OnInitDialog() {
    CDialog::OnInitDialog();
    RefillList();
    m_kinds.SetCurSel(0);
    this->UpdateData(FALSE);
    return TRUE;
}

template <class Kind> void CurveMixing<Kind>::RefillList() {
    m_list.ResetContent();
    for (int i = 1; i <= Kind::Count(Coll); ++i) {
        m_list.AddString(Coll.GetP(i)->GetName());
    }
    if (m_list.GetCount() > 0) {
        m_list.SetCurSel(0);
    }
}

template <class Kind> void CurveMixing<Kind>::BindSlot(int slot) {
    if (!this->UpdateData(TRUE)) {
        return;
    }
    const int line = m_list.GetCurSel();
    if (line != LB_ERR) {
        CurveNumber[slot] = static_cast<unsigned long>(line + 1);
        m_list.GetText(line, CurveName[slot]);
    }
    this->UpdateData(FALSE);
}

template <class Kind> void CurveMixing<Kind>::EmptySlot(int slot) {
    if (!this->UpdateData(TRUE)) {
        return;
    }
    CurveNumber[slot] = 0;
    CurveName[slot].Empty();
    this->UpdateData(FALSE);
    this->Invalidate();
}

template <class Kind> void CurveMixing<Kind>::OnBnClickedDeletecurve() {
    if (!this->UpdateData(TRUE)) {
        return;
    }
    const int line = m_list.GetCurSel();
    if (line != LB_ERR) {
        const auto n = static_cast<unsigned long>(line + 1);
        bool emptied = false;
        for (int slot = 0; slot < kCurveSlots; ++slot) {
            if (CurveNumber[slot] == n && !emptied) {
                // Only the first slot bound to the curve lets it go; another slot bound to it
                // keeps its number, as the user left it.
                CurveNumber[slot] = 0;
                CurveName[slot].Empty();
                emptied = true;
            } else if (CurveNumber[slot] > n) {
                // The curves after the deleted one move down one place: their slots follow.
                --CurveNumber[slot];
            }
        }
        Kind::Remove(Coll, static_cast<int>(n));
        RefillList();
    }
    this->UpdateData(FALSE);
    this->Invalidate();
}

template <class Kind> bool CurveMixing<Kind>::NamesComplete(int slots) {
    if (NewCurveName.IsEmpty()) {
        return false;
    }
    for (int slot = 0; slot < slots; ++slot) {
        if (CurveNumber[slot] != 0 && CurveName[slot].IsEmpty()) {
            return false;
        }
    }
    for (int slot = 0; slot < slots; ++slot) {
        if (CurveNumber[slot] != 0 && VarName[slot].IsEmpty()) {
            AfxMessageBox(14506);
            return false;
        }
    }
    return true;
}

template <class Kind> void CurveMixing<Kind>::OnBnClickedExec() {
    using Curve = typename Kind::Curve;
    if (!this->UpdateData(TRUE) || !NamesComplete(kCurveSlots)) {
        return;
    }
    std::array<FormulaSlot, kFormulaSlots> slots;
    for (int slot = 0; slot < kCurveSlots; ++slot) {
        slots[static_cast<size_t>(slot)].variable = VarName[slot];
        if (CurveNumber[slot] != 0) {
            const Curve* curve = Coll.GetP(static_cast<int>(CurveNumber[slot]));
            if (curve == nullptr) {
                // A slot still bound to the last curve after it was deleted.
                AfxMessageBox(kExpressionError);
                return;
            }
            slots[static_cast<size_t>(slot)].curve = curve;
        }
    }
    const int line = m_kinds.GetCurSel();
    ResultKind = line == CB_ERR ? 0 : line + 1;
    const auto axis = Coordinate == 0 ? FormulaAxis::X : FormulaAxis::Y;

    Curve result;
    if (slots[0].curve != nullptr) {
        result = *static_cast<const Curve*>(slots[0].curve);
        result.Clear();
    }
    result.SetName(NewCurveName);
    (axis == FormulaAxis::X ? result.XUnit : result.YUnit) = static_cast<UnitKind>(ResultKind);
    switch (ApplyCurveFormula(slots, Formula, axis, static_cast<UnitKind>(ResultKind), UnitSystem,
                              result)) {
    case FormulaOutcome::NoCurveA:
        AfxMessageBox(kNoCurveA);
        return;
    case FormulaOutcome::TooFewPoints:
        AfxMessageBox(kDifferentCounts);
        return;
    case FormulaOutcome::ExpressionError:
        AfxMessageBox(kExpressionError);
        return;
    case FormulaOutcome::Done:
        break;
    }
    Kind::Add(Coll, result);
    RefillList();
    this->UpdateData(FALSE);
}

template class CurveMixing<FunctionCurves>;
template class CurveMixing<FreeCurves>;

} // namespace seisplot

MixCurve::MixCurve(CWnd* parent) : CurveMixing(parent) {
    On(kVersus, BN_CLICKED, &MixCurve::OnBnClickedExec2);
}

void MixCurve::OnBnClickedExec2() {
    if (!UpdateData(TRUE) || !NamesComplete(2)) {
        return;
    }
    const PMCurve* a = CurveNumber[0] != 0 ? Coll.GetP(static_cast<int>(CurveNumber[0])) : nullptr;
    const PMCurve* b = CurveNumber[1] != 0 ? Coll.GetP(static_cast<int>(CurveNumber[1])) : nullptr;
    if (a == nullptr || b == nullptr) {
        AfxMessageBox("Bind a curve to A and to B first");
        return;
    }
    if (a->GetNP() != b->GetNP()) {
        AfxMessageBox(kDifferentCounts);
        return;
    }
    PMCurve result;
    result.SetName(NewCurveName);
    result.XName = a->YName;
    result.XUnit = a->YUnit;
    result.YName = b->YName;
    result.YUnit = b->YUnit;
    for (int k = 1; k <= a->GetNP(); ++k) {
        result.AddPoint(a->GetPoint(k).GetY(), b->GetPoint(k).GetY());
    }
    Coll.AddPMCurve(result);
    RefillList();
    UpdateData(FALSE);
}
