#pragma once
// The curve display dialogs: a collection of curves listed by name, the points of the
// selected one listed and plotted, a current point moved along it, points marked, the plot's
// fonts, line, ticks, grid and axes changed, the plot printed or copied, the listing written
// to a text file, a collection read from a file or changed in the curve mixing dialog.
// PrintPCurve shows function curves (*.pcc) and toggles a point's mark when its listing row is
// selected; PrintPMCurve shows free polylines (*.pmc) and does so on a double click.
//
// The caller sets UnitSystem and either fills Coll and sets Path (the lists are filled at
// start only when Path is not empty) or leaves both for the user to read a file; after
// DoModal it takes Coll and Modified. With OK and Modified set the dialog has offered to save.

#include "draw/font/SFont.h"
#include "host/CurveKinds.h"
#include "host/Units.h"
#include "platform/ui/CDialog.h"
#include "platform/ui/Controls.h"

namespace seisplot {

template <class Kind> class CurveDisplay : public CDialog {
public:
    explicit CurveDisplay(CWnd* parent = nullptr);

    unsigned long CurrentPoint = 1; // from 1; 0 for none
    Units* UnitSystem = nullptr;    // null: values shown as held
    int Modified = 0;
    typename Kind::Collection Coll;
    CString Path;
    SFont TitleFont{22, 0};
    SFont AxisFont{18, 0};
    SFont DataFont{14, 0};
    int SwapAxes = 0;
    int MarkAll = 0;    // a disc on every point
    int TickLabels = 0; // tick values written
    int XLines = 0;     // lines across at the vertical axis's ticks
    int YLines = 0;     // lines across at the horizontal axis's ticks
    int LineWidth = 75; // 0.01 mm
    double DX = 0.0;    // tick steps, 0 for automatic
    double DY = 0.0;
    unsigned long CurveColour = 0x00FF00;

    // Fills the curve list from Coll, selects and lists curve 1, and repaints.
    void ClickedThecurveLoad();
    // Reads the controls and plots the selected curve on `dc` in the plot control's area.
    void DrawTheCurve(CDC* dc);
    // Opens a written listing in the text viewer.
    void OpenListing(const CString& path);

    void OnBnClickedThecurvePrint();
    void OnBnClickedThecurveCopy();
    void OnBnClickedThecurveLoad();
    void OnLbnSelchangeThecurveList();
    void OnBnClickedThecurveMinus();
    void OnBnClickedThecurvePlus();
    void OnBnClickedThecurveSel();
    void OnBnClickedThecurveNosel();
    void OnBnClickedThecurveSelall();
    void OnBnClickedThecurveNone();
    void OnBnClickedThecurveGotomax() { GoToExtreme(true); }
    void OnBnClickedThecurveGotomin() { GoToExtreme(false); }
    void OnBnClickedThecurveFont1() { ChooseFont(TitleFont); }
    void OnBnClickedThecurveFont2() { ChooseFont(AxisFont); }
    void OnBnClickedThecurveFont3() { ChooseFont(DataFont); }
    void OnBnClickedThecurveTofile();
    void OnBnClickedDllplotInvertaxes();
    void OnBnClickedModifyCollection();
    void OnBnClickedThecurveDisplay() { Toggle(MarkAll); }
    void OnBnClickedDisplayticks() { Toggle(TickLabels); }
    void OnBnClickedDisplayLinex() { Toggle(XLines); }
    void OnBnClickedDisplayLiney() { Toggle(YLines); }
    void OnEnChangeThecurveThick() { RepaintPlot(); }
    void OnBnClickedThecurveUpdate() { RepaintPlot(); }

protected:
    BOOL OnInitDialog() override;
    void DoDataExchange(CDataExchange* pDX) override;
    void OnOK() override;
    void OnDrawItem(int id, LPDRAWITEMSTRUCT drawItem) override;

    // The selected curve, or null.
    typename Kind::Curve* SelectedCurve();
    // Lists the points of `curve` in the data list.
    void ListPoints(const typename Kind::Curve& curve);
    void RepaintPlot();
    // Toggles the mark of point `number` (from 1) when the selected curve has it.
    void ToggleMark(int number);

    CListBox m_curves;
    CListBox m_data;
    CButton m_plot;

private:
    void GoToExtreme(bool largest);
    void ChooseFont(SFont& font);
    void Toggle(int& flag);
};

} // namespace seisplot

class PrintPCurve : public seisplot::CurveDisplay<seisplot::FunctionCurves> {
public:
    explicit PrintPCurve(CWnd* parent = nullptr);
    // A listing row selected: the point of the row chosen last time (by any dialog of this
    // kind) gets its mark back, the row's point becomes current and its mark is toggled.
    void OnLbnSelchangeDataList();
};

class PrintPMCurve : public seisplot::CurveDisplay<seisplot::FreeCurves> {
public:
    explicit PrintPMCurve(CWnd* parent = nullptr);
    // A listing row double-clicked: its point becomes current and its mark is toggled.
    void OnLbnDblclkDataList();
};
