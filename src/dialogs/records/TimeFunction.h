#pragma once
// GetTimeCurve: the function of time f(t) that multiplies a load in a time-history analysis.
// The user picks a kind (impulse, step, limited step, ramp, trapezoid, modulated sine or
// cosine, or a generic curve read from a text file), types its parameters and the duration,
// sees the curve and may copy it to the clipboard. The host may preset the members; on IDOK it
// reads them and Function, the curve last built.

#include "host/PCurve.h"
#include "platform/ui/CDialog.h"
#include "platform/ui/Controls.h"

class GetTimeCurve : public CDialogEx {
public:
    explicit GetTimeCurve(CWnd* parent = nullptr);

    // 0 impulse, 1 step, 2 limited step, 3 ramp, 4 trapezoid, 5 sine, 6 cosine, 7 generic.
    int Kind = 0;
    // Impulse T1 dT V1; step T1 V1; limited step and ramp T1 V1 T2; trapezoid T1 V1 T2 T3 T4;
    // sine and cosine T fi A B.
    double Parameter1 = 0.0;
    double Parameter2 = 1.0;
    double Parameter3 = 5.0;
    double Parameter4 = 10.0;
    double Parameter5 = 15.0;
    PCurve Function; // t (s) against f(t), a pure number
    PCurve Loaded;   // the curve last read from a file, for the generic kind
    double Duration = 50.0;

    // Builds Function from the kind, the parameters, the duration and the loaded curve.
    void BuildFunction();

    void OnBnClickedDllplotKindTimecurve1() { Rebuild(); }
    void OnBnClickedDllplotKindTimecurve2() { Rebuild(); }
    void OnBnClickedDllplotKindTimecurve3() { Rebuild(); }
    void OnBnClickedDllplotKindTimecurve4() { Rebuild(); }
    void OnBnClickedDllplotKindTimecurve5() { Rebuild(); }
    void OnBnClickedDllplotKindTimecurve6() { Rebuild(); }
    void OnBnClickedDllplotKindTimecurve7() { Rebuild(); }
    void OnBnClickedDllplotKindTimecurve8() { Rebuild(); }
    void OnBnClickedDllplotFtimeUpdate() { Rebuild(); }
    // Reads a curve from a text file of "time value" lines.
    void OnBnClickedAccelAdd();
    void OnBnClickedThecurveCopy();
    void OnBnClickedOk();

protected:
    BOOL OnInitDialog() override;
    void DoDataExchange(CDataExchange* pDX) override;
    void OnDrawItem(int id, LPDRAWITEMSTRUCT drawItem) override;

    CButton m_preview;

private:
    // Reads the controls, builds the function and redraws the preview.
    void Rebuild();
    void DrawFunction(CDC* dc);
};
