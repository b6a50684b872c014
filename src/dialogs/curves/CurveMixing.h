#pragma once
// The curve mixing dialogs: new curves computed point by point from a formula over up to six
// curves of a collection, each bound to a named variable. MixPCurve works on function curves,
// MixCurve on free polylines and alone plots one curve's ordinates against another's
// ("B=B(A)!").
//
// The caller assigns its collection to Coll, runs DoModal and, on IDOK, takes Coll back. No
// operation changes Coll unless it completes.

#include "host/CurveFormula.h"
#include "host/CurveKinds.h"
#include "host/Units.h"
#include "platform/ui/CDialog.h"
#include "platform/ui/Controls.h"

#include <array>

namespace seisplot {

inline constexpr int kCurveSlots = kFormulaSlots;

template <class Kind> class CurveMixing : public CDialog {
public:
    explicit CurveMixing(CWnd* parent = nullptr);

    typename Kind::Collection Coll;
    // The curves bound to the slots: their names and numbers in Coll (from 1; 0 for none).
    std::array<CString, kCurveSlots> CurveName;
    std::array<unsigned long, kCurveSlots> CurveNumber{};
    std::array<CString, kCurveSlots> VarName{"A", "B", "C", "D", "E", "F"};
    CString NewCurveName = "Unknown";
    CString Formula;
    // 0: the formula computes the x values; 1: the y values.
    int Coordinate = 0;
    // The unit kind of the computed coordinate (the entry chosen + 1; 0 for none).
    int ResultKind = 0;
    // The units the formula sees values in (metres, kilonewtons and seconds unless the caller
    // sets others).
    Units UnitSystem;

    void OnBnClickedGetcurve1() { BindSlot(0); }
    void OnBnClickedGetcurve2() { BindSlot(1); }
    void OnBnClickedGetcurve3() { BindSlot(2); }
    void OnBnClickedGetcurve4() { BindSlot(3); }
    void OnBnClickedGetcurve5() { BindSlot(4); }
    void OnBnClickedGetcurve6() { BindSlot(5); }
    void OnBnClickedDelcurve1() { EmptySlot(0); }
    void OnBnClickedDelcurve2() { EmptySlot(1); }
    void OnBnClickedDelcurve3() { EmptySlot(2); }
    void OnBnClickedDelcurve4() { EmptySlot(3); }
    void OnBnClickedDelcurve5() { EmptySlot(4); }
    void OnBnClickedDelcurve6() { EmptySlot(5); }
    void OnBnClickedDeletecurve();
    void OnBnClickedExec();
    void OnLbnSelchangeThecurveList() { Invalidate(); }

protected:
    BOOL OnInitDialog() override;
    void DoDataExchange(CDataExchange* pDX) override;

    // Refills the list from Coll and selects its first line.
    void RefillList();
    // Stops silently for a missing name, with message 14506 for a missing variable name;
    // `slots` is how many slots, from the first, the operation reads.
    bool NamesComplete(int slots);

    CListBox m_list;
    CComboBox m_kinds;

private:
    void BindSlot(int slot);
    void EmptySlot(int slot);
};

} // namespace seisplot

class MixPCurve : public seisplot::CurveMixing<seisplot::FunctionCurves> {
public:
    explicit MixPCurve(CWnd* parent = nullptr) : CurveMixing(parent) {}
};

class MixCurve : public seisplot::CurveMixing<seisplot::FreeCurves> {
public:
    explicit MixCurve(CWnd* parent = nullptr);
    // The curve of B's ordinates against A's, point by point.
    void OnBnClickedExec2();
};
