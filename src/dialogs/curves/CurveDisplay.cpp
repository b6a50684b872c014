#include "dialogs/curves/CurveDisplay.h"

#include "dialogs/PictureCopy.h"
#include "dialogs/TextViewer.h"
#include "dialogs/curves/CurveMixing.h"
#include "host/CurveListing.h"
#include "platform/core/CFileDialog.h"
#include "platform/ui/DataExchange.h"
#include "platform/ui/PrintDialog.h"
#include "plot/CurvePlot.h"

#include <cstdio>

namespace {

constexpr int kTemplate = 14503;
constexpr int kPrint = 14626;
constexpr int kCopy = 14627;
constexpr int kLoad = 14628;
constexpr int kCurveList = 14629;
constexpr int kPath = 14630;
constexpr int kMinus = 14631;
constexpr int kUnselect = 14632;
constexpr int kPlus = 14633;
constexpr int kTitleFont = 14634;
constexpr int kAxisFont = 14635;
constexpr int kDataFont = 14636;
constexpr int kDataList = 14637;
constexpr int kToFile = 14638;
constexpr int kSelect = 14639;
constexpr int kSelectAll = 14640;
constexpr int kSelectNone = 14641;
constexpr int kInvertAxes = 14642;
constexpr int kModify = 14665;
constexpr int kPlot = 14625;
constexpr int kMarkAll = 14674;
constexpr int kTickLabels = 14675;
constexpr int kThickness = 14677;
constexpr int kGotoMax = 14678;
constexpr int kGotoMin = 14679;
constexpr int kStepX = 14785;
constexpr int kStepY = 14786;
constexpr int kUpdate = 14787;
constexpr int kXLines = 14788;
constexpr int kYLines = 14789;

// Point marks made in this dialog are those of view 1.
constexpr unsigned short kMarkLayer = 1;
constexpr const char* kNoContext = "Error getting DC. Too many commands?";

template <class Kind> struct MixerFor;
template <> struct MixerFor<seisplot::FunctionCurves> { using Dialog = MixPCurve; };
template <> struct MixerFor<seisplot::FreeCurves> { using Dialog = MixCurve; };

// The listing row remembered from one PrintPCurve to the next (-1: none yet).
int g_lastFunctionRow = -1;

} // namespace

namespace seisplot {

template <class Kind> CurveDisplay<Kind>::CurveDisplay(CWnd* parent) : CDialog(kTemplate, parent) {
    using Self = CurveDisplay<Kind>;
    On(kPrint, BN_CLICKED, &Self::OnBnClickedThecurvePrint);
    On(kCopy, BN_CLICKED, &Self::OnBnClickedThecurveCopy);
    On(kLoad, BN_CLICKED, &Self::OnBnClickedThecurveLoad);
    On(kCurveList, LBN_SELCHANGE, &Self::OnLbnSelchangeThecurveList);
    On(kMinus, BN_CLICKED, &Self::OnBnClickedThecurveMinus);
    On(kUnselect, BN_CLICKED, &Self::OnBnClickedThecurveNosel);
    On(kPlus, BN_CLICKED, &Self::OnBnClickedThecurvePlus);
    On(kTitleFont, BN_CLICKED, &Self::OnBnClickedThecurveFont1);
    On(kAxisFont, BN_CLICKED, &Self::OnBnClickedThecurveFont2);
    On(kDataFont, BN_CLICKED, &Self::OnBnClickedThecurveFont3);
    On(kToFile, BN_CLICKED, &Self::OnBnClickedThecurveTofile);
    On(kSelect, BN_CLICKED, &Self::OnBnClickedThecurveSel);
    On(kSelectAll, BN_CLICKED, &Self::OnBnClickedThecurveSelall);
    On(kSelectNone, BN_CLICKED, &Self::OnBnClickedThecurveNone);
    On(kInvertAxes, BN_CLICKED, &Self::OnBnClickedDllplotInvertaxes);
    On(kModify, BN_CLICKED, &Self::OnBnClickedModifyCollection);
    On(kMarkAll, BN_CLICKED, &Self::OnBnClickedThecurveDisplay);
    On(kTickLabels, BN_CLICKED, &Self::OnBnClickedDisplayticks);
    On(kThickness, EN_CHANGE, &Self::OnEnChangeThecurveThick);
    On(kGotoMax, BN_CLICKED, &Self::OnBnClickedThecurveGotomax);
    On(kGotoMin, BN_CLICKED, &Self::OnBnClickedThecurveGotomin);
    On(kUpdate, BN_CLICKED, &Self::OnBnClickedThecurveUpdate);
    On(kXLines, BN_CLICKED, &Self::OnBnClickedDisplayLinex);
    On(kYLines, BN_CLICKED, &Self::OnBnClickedDisplayLiney);
}

template <class Kind> void CurveDisplay<Kind>::DoDataExchange(CDataExchange* pDX) {
    CDialog::DoDataExchange(pDX);
    DDX_Control(pDX, kCurveList, m_curves);
    DDX_Control(pDX, kDataList, m_data);
    DDX_Control(pDX, kPlot, m_plot);
    DDX_Text(pDX, kPath, Path);
    DDX_Check(pDX, kMarkAll, MarkAll);
    DDX_Check(pDX, kTickLabels, TickLabels);
    DDX_Check(pDX, kXLines, XLines);
    DDX_Check(pDX, kYLines, YLines);
    DDX_Text(pDX, kThickness, LineWidth);
    DDX_Text(pDX, kStepX, DX);
    DDX_Text(pDX, kStepY, DY);
}

template <class Kind> BOOL CurveDisplay<Kind>::OnInitDialog() {
    CDialog::OnInitDialog();
    // The collection a caller filled is shown only with its path; the file is not read.
    if (!Path.IsEmpty()) {
        ClickedThecurveLoad();
    }
    UpdateData(FALSE);
    return TRUE;
}

template <class Kind> void CurveDisplay<Kind>::ClickedThecurveLoad() {
    m_curves.ResetContent();
    for (int i = 1; i <= Kind::Count(Coll); ++i) {
        m_curves.AddString(Coll.GetP(i)->GetName());
    }
    if (Kind::Count(Coll) > 0) {
        m_curves.SetCurSel(0);
        ListPoints(*Coll.GetP(1));
    }
    UpdateData(FALSE);
    RepaintPlot();
}

template <class Kind> typename Kind::Curve* CurveDisplay<Kind>::SelectedCurve() {
    const int line = m_curves.GetCurSel();
    return line == LB_ERR ? nullptr : Coll.GetP(line + 1);
}

template <class Kind> void CurveDisplay<Kind>::ListPoints(const typename Kind::Curve& curve) {
    m_data.ResetContent();
    for (int k = 1; k <= curve.GetNP(); ++k) {
        m_data.AddString(CurveListingLine(curve, k, UnitSystem, SwapAxes != 0));
    }
}

template <class Kind> void CurveDisplay<Kind>::RepaintPlot() {
    m_plot.Invalidate();
}

template <class Kind> void CurveDisplay<Kind>::OnDrawItem(int id, LPDRAWITEMSTRUCT drawItem) {
    if (id != kPlot) {
        return;
    }
    if (drawItem->hDC == nullptr) {
        AfxMessageBox(kNoContext);
        return;
    }
    DrawTheCurve(drawItem->hDC);
}

template <class Kind> void CurveDisplay<Kind>::DrawTheCurve(CDC* dc) {
    // A field that is not a number has said so; the plot keeps the values held before.
    UpdateData(TRUE);
    typename Kind::Curve* curve = SelectedCurve();
    if (curve == nullptr) {
        return;
    }
    DrawCurve(curve, &m_plot, dc, 1, UnitSystem, TitleFont, AxisFont, DataFont,
              static_cast<int>(CurrentPoint), SwapAxes, MarkAll, TickLabels, CurveColour, LineWidth,
              XLines, YLines, DX, DY);
}

template <class Kind> void CurveDisplay<Kind>::OnLbnSelchangeThecurveList() {
    if (const typename Kind::Curve* curve = SelectedCurve()) {
        ListPoints(*curve);
    }
    Invalidate();
}

template <class Kind> void CurveDisplay<Kind>::OnBnClickedThecurveMinus() {
    const typename Kind::Curve* curve = SelectedCurve();
    if (curve == nullptr) {
        return;
    }
    const auto last = static_cast<unsigned long>(curve->GetNP());
    if (CurrentPoint == 0 || CurrentPoint > last) {
        CurrentPoint = last;
    } else {
        CurrentPoint = CurrentPoint == 1 ? last : CurrentPoint - 1;
    }
    RepaintPlot();
}

template <class Kind> void CurveDisplay<Kind>::OnBnClickedThecurvePlus() {
    const typename Kind::Curve* curve = SelectedCurve();
    if (curve == nullptr) {
        return;
    }
    const auto last = static_cast<unsigned long>(curve->GetNP());
    if (CurrentPoint == 0) {
        CurrentPoint = last > 0 ? 1 : 0;
    } else if (CurrentPoint > last) {
        CurrentPoint = 1;
    } else if (CurrentPoint < last) {
        ++CurrentPoint;
    }
    RepaintPlot();
}

template <class Kind> void CurveDisplay<Kind>::GoToExtreme(bool largest) {
    typename Kind::Curve* curve = SelectedCurve();
    // A curve without points has no extreme: nothing changes.
    if (curve == nullptr || curve->GetNP() == 0) {
        return;
    }
    double bound = largest ? -1e12 : 1e12;
    int found = 1;
    for (int k = 1; k <= curve->GetNP(); ++k) {
        const double y = (*curve)[k - 1].GetY();
        if (largest ? y > bound : y < bound) {
            bound = y;
            found = k;
        }
    }
    CurrentPoint = static_cast<unsigned long>(found);
    m_data.SetCurSel(found - 1);
    (*curve)[found - 1].Select(kMarkLayer);
    Modified = 1;
    RepaintPlot();
}

template <class Kind> void CurveDisplay<Kind>::OnBnClickedThecurveSel() {
    typename Kind::Curve* curve = SelectedCurve();
    if (curve == nullptr) {
        return;
    }
    if (CurrentPoint >= 1 && CurrentPoint <= static_cast<unsigned long>(curve->GetNP())) {
        (*curve)[static_cast<int>(CurrentPoint) - 1].Select(kMarkLayer);
    }
    Modified = 1;
    RepaintPlot();
}

template <class Kind> void CurveDisplay<Kind>::OnBnClickedThecurveNosel() {
    typename Kind::Curve* curve = SelectedCurve();
    if (curve == nullptr) {
        return;
    }
    if (CurrentPoint >= 1 && CurrentPoint <= static_cast<unsigned long>(curve->GetNP())) {
        (*curve)[static_cast<int>(CurrentPoint) - 1].Unselect(kMarkLayer);
    }
    Modified = 1;
    RepaintPlot();
}

template <class Kind> void CurveDisplay<Kind>::OnBnClickedThecurveSelall() {
    typename Kind::Curve* curve = SelectedCurve();
    if (curve == nullptr) {
        return;
    }
    for (int k = 0; k < curve->GetNP(); ++k) {
        (*curve)[k].Select(kMarkLayer);
    }
    Modified = 1;
    RepaintPlot();
}

template <class Kind> void CurveDisplay<Kind>::OnBnClickedThecurveNone() {
    typename Kind::Curve* curve = SelectedCurve();
    if (curve == nullptr) {
        return;
    }
    curve->GetPColl().UnSelectAll(kMarkLayer);
    Modified = 1;
    RepaintPlot();
}

template <class Kind> void CurveDisplay<Kind>::ToggleMark(int number) {
    typename Kind::Curve* curve = SelectedCurve();
    if (curve != nullptr && number >= 1 && number <= curve->GetNP()) {
        (*curve)[number - 1].Change(kMarkLayer);
    }
}

template <class Kind> void CurveDisplay<Kind>::Toggle(int& flag) {
    flag = flag != 0 ? 0 : 1;
    RepaintPlot();
}

template <class Kind> void CurveDisplay<Kind>::OnBnClickedDllplotInvertaxes() {
    SwapAxes = SwapAxes != 0 ? 0 : 1;
    if (const typename Kind::Curve* curve = SelectedCurve()) {
        ListPoints(*curve);
    }
    RepaintPlot();
}

template <class Kind> void CurveDisplay<Kind>::ChooseFont(SFont& font) {
    font.Get(this, font.GetFont(), font.Color);
    RepaintPlot();
}

template <class Kind> void CurveDisplay<Kind>::OnBnClickedThecurveLoad() {
    CFileDialog dialog(TRUE, nullptr, nullptr, OFN_HIDEREADONLY, Kind::kFileFilter, this);
    if (dialog.DoModal() != IDOK) {
        return;
    }
    // A file that cannot be read leaves the collection as it was; the lists show it.
    Coll.ReadFromFile(dialog.GetPathName().GetString());
    Path = dialog.GetPathName();
    ClickedThecurveLoad();
}

template <class Kind> void CurveDisplay<Kind>::OnBnClickedModifyCollection() {
    typename MixerFor<Kind>::Dialog mixer(this);
    mixer.Coll = Coll;
    if (UnitSystem != nullptr) {
        mixer.UnitSystem = *UnitSystem;
    }
    if (mixer.DoModal() == IDOK) {
        Coll = mixer.Coll;
        ClickedThecurveLoad();
        Modified = 1;
    }
}

template <class Kind> void CurveDisplay<Kind>::OnBnClickedThecurvePrint() {
    CPrintDialog dialog(
        FALSE, PD_NOSELECTION | PD_NOPAGENUMS | PD_USEDEVMODECOPIESANDCOLLATE | PD_HIDEPRINTTOFILE,
        this);
    if (dialog.DoModal() != IDOK) {
        return;
    }
    CDC* printer = dialog.GetPrinterDC();
    if (printer == nullptr) {
        return;
    }
    printer->StartDoc("name");
    printer->StartPage();
    DrawTheCurve(printer);
    printer->EndPage();
    printer->EndDoc();
    printer->DeleteDC();
}

template <class Kind> void CurveDisplay<Kind>::OnBnClickedThecurveCopy() {
    // The clipboard is closed again after a failure once it was opened, so that a later copy
    // finds it free.
    CopyPictureToClipboard(
        *this, m_plot, [this](CDC* dc) { DrawTheCurve(dc); }, ClipboardAfterFailure::Close);
}

template <class Kind> void CurveDisplay<Kind>::OnBnClickedThecurveTofile() {
    CFileDialog dialog(FALSE, ".txt", "*.txt", OFN_HIDEREADONLY | OFN_OVERWRITEPROMPT, nullptr,
                       this);
    if (dialog.DoModal() != IDOK) {
        return;
    }
    const CString path = dialog.GetPathName();
    std::FILE* file = std::fopen(path.GetString(), "wb");
    if (file == nullptr) {
        AfxMessageBox("Unable to open output file");
        return;
    }
    for (int row = 0; row < m_data.GetCount(); ++row) {
        CString line;
        m_data.GetText(row, line);
        std::fwrite(line.GetString(), 1, static_cast<size_t>(line.GetLength()), file);
        std::fwrite("\r\n", 1, 2, file);
    }
    std::fclose(file);
    if (AfxMessageBox("Open?", MB_YESNO) == IDYES) {
        OpenListing(path);
    }
}

template <class Kind> void CurveDisplay<Kind>::OpenListing(const CString& path) {
    OpenInTextViewer(path);
}

template <class Kind> void CurveDisplay<Kind>::OnOK() {
    if (!UpdateData(TRUE)) {
        return;
    }
    if (Modified != 0 && AfxMessageBox(14505, MB_YESNO) == IDYES) {
        CString target = Path;
        if (target.IsEmpty()) {
            // Curves that came from no file are saved where the user says.
            CFileDialog dialog(FALSE, nullptr, nullptr, OFN_HIDEREADONLY | OFN_OVERWRITEPROMPT,
                               Kind::kFileFilter, this);
            if (dialog.DoModal() == IDOK) {
                target = dialog.GetPathName();
            }
        }
        if (!target.IsEmpty() && Coll.WriteToFile(target.GetString()) != 0) {
            AfxMessageBox("Unable to open output file");
        }
    }
    EndDialog(IDOK);
}

template class CurveDisplay<FunctionCurves>;
template class CurveDisplay<FreeCurves>;

} // namespace seisplot

PrintPCurve::PrintPCurve(CWnd* parent) : CurveDisplay(parent) {
    On(kDataList, LBN_SELCHANGE, &PrintPCurve::OnLbnSelchangeDataList);
}

void PrintPCurve::OnLbnSelchangeDataList() {
    const int row = m_data.GetCurSel();
    if (SelectedCurve() == nullptr || row == LB_ERR) {
        return;
    }
    if (g_lastFunctionRow >= 0) {
        ToggleMark(g_lastFunctionRow + 1);
    }
    CurrentPoint = static_cast<unsigned long>(row + 1);
    ToggleMark(row + 1);
    g_lastFunctionRow = row;
    Modified = 1;
    RepaintPlot();
}

PrintPMCurve::PrintPMCurve(CWnd* parent) : CurveDisplay(parent) {
    On(kDataList, LBN_DBLCLK, &PrintPMCurve::OnLbnDblclkDataList);
}

void PrintPMCurve::OnLbnDblclkDataList() {
    const int row = m_data.GetCurSel();
    if (SelectedCurve() == nullptr || row == LB_ERR) {
        return;
    }
    CurrentPoint = static_cast<unsigned long>(row + 1);
    ToggleMark(row + 1);
    Modified = 1;
    RepaintPlot();
}
