#include "dialogs/records/RecordManagement.h"

#include "dialogs/CurvePreview.h"
#include "dialogs/ListExtent.h"
#include "dialogs/TextViewer.h"
#include "dialogs/curves/CurveDisplay.h"
#include "dialogs/records/RecordDetails.h"
#include "platform/core/CFileDialog.h"
#include "platform/core/StringTable.h"
#include "platform/ui/DataExchange.h"
#include "records/AccelerogramColl.h"
#include "records/RecordReport.h"
#include "records/Sinusoids.h"
#include "records/SpectrumCurves.h"

#include <algorithm>
#include <cstdio>
#include <optional>

namespace {

constexpr int kList = 14680;
constexpr int kPga = 14681;
constexpr int kDuration = 14682;
constexpr int kExplanation = 14683;
constexpr int kRemove = 14684;
constexpr int kRename = 14685;
constexpr int kUpdate = 14686;
constexpr int kScale = 14687;
constexpr int kDuplicate = 14688;
constexpr int kScaleFactor = 14689;
constexpr int kName = 14690;
constexpr int kAddFile = 14691;
constexpr int kPreview = 14692;
constexpr int kAcceleration = 14693;
constexpr int kLastPeriod = 14694;
constexpr int kPeriodStep = 14695;
constexpr int kLargestDamping = 14696;
constexpr int kDampingStep = 14697;
constexpr int kAddFromSet = 14698;
constexpr int kDisplacement = 14699;
constexpr int kAds = 14700;
constexpr int kSpectraProgress = 14701;
constexpr int kSave = 14702;
constexpr int kReport = 14703;
constexpr int kSinusPeriodStep = 14704;
constexpr int kSinusCount = 14705;
constexpr int kSinusPeriods = 14706;
constexpr int kSinusPoints = 14707;
constexpr int kSinusAdd = 14708;
constexpr int kSinusAmplitude = 14709;
constexpr int kSinusProgress = 14710;
constexpr int kRemoveAll = 14711;
constexpr int kAddMany = 14712;
constexpr int kFilesProgress = 14713;
constexpr int kInfo = 14732;

constexpr UINT kSameName = 14841;
constexpr UINT kSureToRemove = 14842;
constexpr UINT kAllOrOne = 14843;

constexpr const char* kArchiveFilter = "Accelerograms ACC (*.acc)|*.acc||";
constexpr DWORD kFileFlags = OFN_HIDEREADONLY | OFN_OVERWRITEPROMPT;

} // namespace

ManageAccelerograms::ManageAccelerograms(CWnd* parent) : CDialogEx(14507, parent) {
    using Self = ManageAccelerograms;
    On(kList, LBN_SELCHANGE, &Self::OnLbnSelchangeAccelList);
    On(kPreview, BN_CLICKED, &Self::OnBnClickedAccelPreview);
    On(kRemove, BN_CLICKED, &Self::OnBnClickedAccelRemove);
    On(kDuplicate, BN_CLICKED, &Self::OnBnClickedAccelDuplicate);
    On(kScale, BN_CLICKED, &Self::OnBnClickedAccelScale);
    On(kRename, BN_CLICKED, &Self::OnBnClickedAccelRename);
    On(kUpdate, BN_CLICKED, &Self::OnBnClickedAccelUpdate);
    On(kInfo, BN_CLICKED, &Self::OnBnClickedAccelInfo);
    On(kRemoveAll, BN_CLICKED, &Self::OnBnClickedAccelRemoveall);
    On(kAddFile, BN_CLICKED, &Self::OnBnClickedAccelAdd);
    On(kAddMany, BN_CLICKED, &Self::OnBnClickedAccelAddmany);
    On(kAddFromSet, BN_CLICKED, &Self::OnBnClickedAccelAddfromset);
    On(kSinusAdd, BN_CLICKED, &Self::OnBnClickedAccelSinusAdd);
    On(kAcceleration, BN_CLICKED, &Self::OnBnClickedAccelSpectrumAcc);
    On(kDisplacement, BN_CLICKED, &Self::OnBnClickedAccelSpectrumDis);
    On(kAds, BN_CLICKED, &Self::OnBnClickedAccelSpectrumAds);
    On(kReport, BN_CLICKED, &Self::OnBnClickedAccelReport);
    On(kSave, BN_CLICKED, &Self::OnBnClickedAccelSave);
}

void ManageAccelerograms::DoDataExchange(CDataExchange* pDX) {
    CDialogEx::DoDataExchange(pDX);
    DDX_Control(pDX, kList, m_list);
    DDX_Text(pDX, kPga, Pga);
    DDX_Text(pDX, kDuration, Duration);
    DDX_Text(pDX, kName, Name);
    DDX_Text(pDX, kExplanation, Explanation);
    DDX_Text(pDX, kScaleFactor, ScaleFactor);
    DDV_MinMaxDouble(pDX, ScaleFactor, 1e-5, 100000.0);
    DDX_Control(pDX, kPreview, m_preview);
    DDX_Text(pDX, kLastPeriod, LastPeriod);
    DDV_MinMaxDouble(pDX, LastPeriod, 0.1, 100.0);
    DDX_Text(pDX, kPeriodStep, PeriodStep);
    DDV_MinMaxDouble(pDX, PeriodStep, 0.0001, 1.0);
    DDX_Text(pDX, kLargestDamping, LargestDamping);
    DDX_Text(pDX, kDampingStep, DampingStep);
    // A step that is not positive would never end the loop over dampings.
    DDV_MinMaxDouble(pDX, DampingStep, 0.0001, 1.0);
    DDX_Control(pDX, kSpectraProgress, m_spectraProgress);
    DDX_Control(pDX, kSinusProgress, m_sinusProgress);
    DDX_Control(pDX, kFilesProgress, m_filesProgress);
    DDX_Text(pDX, kSinusCount, SinusCount);
    DDV_MinMaxUInt(pDX, SinusCount, 1, 10000);
    DDX_Text(pDX, kSinusPeriodStep, SinusPeriodStep);
    DDV_MinMaxDouble(pDX, SinusPeriodStep, 1e-8, 10.0);
    DDX_Text(pDX, kSinusPeriods, SinusPeriods);
    DDV_MinMaxUInt(pDX, SinusPeriods, 1, 100);
    DDX_Text(pDX, kSinusPoints, SinusPoints);
    DDV_MinMaxUInt(pDX, SinusPoints, 1, 10000);
    DDX_Text(pDX, kSinusAmplitude, SinusAmplitude);
    DDV_MinMaxDouble(pDX, SinusAmplitude, 1e-8, 10.0);
}

BOOL ManageAccelerograms::OnInitDialog() {
    CDialogEx::OnInitDialog();
    if (Records != nullptr && Records->GetAccelerogramNum() > 0) {
        Refresh();
    }
    m_spectraProgress.SetPos(0);
    m_sinusProgress.SetPos(0);
    m_filesProgress.SetPos(0);
    UpdateData(FALSE);
    return TRUE;
}

void ManageAccelerograms::Refresh(std::optional<int> select) {
    UpdateData(TRUE);
    const int remembered = select.value_or(m_list.GetCurSel());
    m_list.ResetContent();
    const unsigned long count = Records != nullptr ? Records->GetAccelerogramNum() : 0;
    if (count == 0) {
        Pga = 0.0;
        Duration = 0.0;
        Name.Empty();
        Explanation.Empty();
        UpdateData(FALSE);
        m_preview.Invalidate();
        return;
    }
    for (unsigned long i = 1; i <= count; ++i) {
        CString line;
        line.Format("%5ld - ", static_cast<long>(i));
        line += Records->GetP(i)->GetIdentifier();
        m_list.AddString(line);
    }
    if (!seisplot::FitListExtent(m_list)) {
        return;
    }
    const int line = remembered == LB_ERR ? 0 : std::min(remembered, static_cast<int>(count) - 1);
    m_list.SetCurSel(line);
    const Accelerogram& record = *Records->GetP(static_cast<unsigned long>(line) + 1);
    Pga = record.GetPga();
    Duration = record.Record.GetMaxX() - record.Record.GetMinX();
    Name = record.GetIdentifier();
    Explanation = record.GetExplanation();
    UpdateData(FALSE);
    m_preview.Invalidate();
}

void ManageAccelerograms::RefreshAtLast() {
    Refresh(Records != nullptr ? static_cast<int>(Records->GetAccelerogramNum()) - 1 : LB_ERR);
}

bool ManageAccelerograms::Selected(Accelerogram*& record, bool read) {
    record = nullptr;
    if (read && !UpdateData(TRUE)) {
        return false;
    }
    const int line = m_list.GetCurSel();
    if (Records != nullptr && line != LB_ERR) {
        record = Records->GetP(static_cast<unsigned long>(line) + 1);
    }
    return record != nullptr;
}

bool ManageAccelerograms::Clashes(const CString& identifier) {
    for (unsigned long i = 1; i <= Records->GetAccelerogramNum(); ++i) {
        if (Records->GetP(i)->GetIdentifier() == identifier) {
            AfxMessageBox(kSameName);
            return true;
        }
    }
    return false;
}

void ManageAccelerograms::OnDrawItem(int id, LPDRAWITEMSTRUCT drawItem) {
    if (id != kPreview) {
        return;
    }
    Accelerogram* record = nullptr;
    Selected(record, false);
    // Without a record to show, a white area, outlined when the set is empty.
    seisplot::DrawCurvePreview(drawItem->hDC, m_preview,
                               record != nullptr ? &record->Record : nullptr, UnitSystem, 0x0000FF,
                               Records == nullptr || Records->GetAccelerogramNum() == 0);
}

void ManageAccelerograms::OnBnClickedAccelPreview() {
    Accelerogram* record = nullptr;
    if (Selected(record, false)) {
        seisplot::ShowCurveEnlarged(this, record->Record, record->GetIdentifier(), UnitSystem);
    }
}

void ManageAccelerograms::OnBnClickedAccelRemove() {
    Accelerogram* record = nullptr;
    if (!Selected(record, false)) {
        return;
    }
    if (AfxMessageBox(kSureToRemove, MB_YESNO) == IDYES) {
        Records->RemoveAccelerogram(static_cast<unsigned long>(m_list.GetCurSel()) + 1);
        Refresh();
    }
}

void ManageAccelerograms::OnBnClickedAccelDuplicate() {
    Accelerogram* record = nullptr;
    if (!Selected(record, false)) {
        return;
    }
    Accelerogram copy(*record);
    CString identifier = record->GetIdentifier();
    identifier.AppendFormat("- Copy - %ld", static_cast<long>(Records->GetAccelerogramNum() + 1));
    copy.SetIdentifier(identifier);
    Records->AddAccelerogram(copy);
    RefreshAtLast();
}

void ManageAccelerograms::OnBnClickedAccelScale() {
    Accelerogram* record = nullptr;
    if (!Selected(record, true)) {
        return;
    }
    for (int k = 0; k < record->Record.GetNP(); ++k) {
        RPoint2D& point = record->Record[k];
        point.SetY(point.GetY() * ScaleFactor);
    }
    Refresh();
}

void ManageAccelerograms::OnBnClickedAccelRename() {
    Accelerogram* record = nullptr;
    if (!Selected(record, true)) {
        return;
    }
    record->SetIdentifier(Name);
    Refresh();
}

void ManageAccelerograms::OnBnClickedAccelUpdate() {
    Accelerogram* record = nullptr;
    if (!Selected(record, true)) {
        return;
    }
    record->SetExplanation(Explanation);
    Refresh();
}

void ManageAccelerograms::OnBnClickedAccelInfo() {
    Accelerogram* record = nullptr;
    if (!Selected(record, true)) {
        return;
    }
    AccData details(this);
    details.CopyFrom(*record);
    if (details.DoModal() == IDOK) {
        details.CopyTo(*record);
    }
}

void ManageAccelerograms::OnBnClickedAccelRemoveall() {
    if (Records == nullptr) {
        return;
    }
    Records->Free();
    Refresh();
}

void ManageAccelerograms::OnBnClickedAccelAdd() {
    if (Records == nullptr || !UpdateData(TRUE)) {
        return;
    }
    Accelerogram record;
    if (record.ReadFromFile(0) != 0 || Clashes(record.GetIdentifier())) {
        return;
    }
    Records->AddAccelerogram(record);
    RefreshAtLast();
}

void ManageAccelerograms::OnBnClickedAccelAddmany() {
    if (Records == nullptr) {
        return;
    }
    AccelerogramColl read;
    if (read.ReadFromFile(1, &m_filesProgress) == 0) {
        *Records += read;
        RefreshAtLast();
    }
}

void ManageAccelerograms::OnBnClickedAccelAddfromset() {
    if (Records == nullptr) {
        return;
    }
    CFileDialog choose(TRUE, "*.acc", "*.acc", kFileFlags, kArchiveFilter, this);
    if (choose.DoModal() != IDOK) {
        return;
    }
    CString path = choose.GetPathName();
    AccelerogramColl archive;
    archive.ReadFromFile(path);
    if (AfxMessageBox(kAllOrOne, MB_YESNO) == IDYES) {
        for (unsigned long i = 1; i <= archive.GetAccelerogramNum(); ++i) {
            const CString identifier = archive.GetP(i)->GetIdentifier();
            if (Records->FindAccelerogramId(identifier) != 0) {
                AfxMessageBox(kSameName);
                AfxMessageBox(identifier);
                return;
            }
        }
        *Records += archive;
        Refresh();
        return;
    }
    ManageAccelerograms pick(this);
    pick.Records = &archive;
    pick.UnitSystem = UnitSystem;
    if (pick.DoModal() != IDOK || pick.ChosenRecord == 0) {
        return;
    }
    const Accelerogram& chosen = *archive.GetP(pick.ChosenRecord);
    if (Clashes(chosen.GetIdentifier())) {
        return;
    }
    Records->AddAccelerogram(chosen);
    RefreshAtLast();
}

void ManageAccelerograms::OnBnClickedAccelSinusAdd() {
    if (Records == nullptr || !UpdateData(TRUE)) {
        return;
    }
    {
        CWaitCursor wait;
        GenerateSinusoids(SinusCount, SinusPeriodStep, SinusPeriods, SinusPoints, SinusAmplitude,
                          *Records, &m_sinusProgress);
    }
    Refresh();
    AfxMessageBox("OK");
}

void ManageAccelerograms::OnBnClickedAccelSpectrumAcc() {
    PlotSpectra(seisplot::SpectrumCurveKind::Acceleration);
}

void ManageAccelerograms::OnBnClickedAccelSpectrumDis() {
    PlotSpectra(seisplot::SpectrumCurveKind::Displacement);
}

void ManageAccelerograms::OnBnClickedAccelSpectrumAds() {
    PlotSpectra(seisplot::SpectrumCurveKind::AccelerationDisplacement);
}

void ManageAccelerograms::PlotSpectra(seisplot::SpectrumCurveKind curveKind) {
    Accelerogram* record = nullptr;
    if (!Selected(record, false) || !UpdateData(TRUE)) {
        return;
    }
    using seisplot::SpectrumCurveKind;
    const CString title = "Spectrum: " + record->GetIdentifier();
    PCurveColl functions;
    PMCurveColl polylines;
    {
        CWaitCursor wait;
        const double steps = std::min(LargestDamping / DampingStep, 32767.0);
        m_spectraProgress.SetRange(0, static_cast<short>(steps >= 0.0 ? steps : 0.0));
        m_spectraProgress.SetStep(1);
        for (double d = DampingStep; LargestDamping >= d; d += DampingStep) {
            if (curveKind == SpectrumCurveKind::AccelerationDisplacement) {
                PMCurve curve;
                record->GetADSpectrum(d, LastPeriod, PeriodStep, curve);
                seisplot::LabelSpectrumCurve(curve, curveKind, d, UnitSystem);
                polylines.AddPMCurve(curve);
            } else {
                PCurve curve;
                if (curveKind == SpectrumCurveKind::Acceleration) {
                    record->GetAccSpectrum(d, LastPeriod, PeriodStep, curve);
                } else {
                    record->GetDisSpectrum(d, LastPeriod, PeriodStep, curve);
                }
                seisplot::LabelSpectrumCurve(curve, curveKind, d, UnitSystem);
                functions.AddPCurve(curve);
            }
            m_spectraProgress.StepIt();
            if (CancelRequested()) {
                break;
            }
        }
        m_spectraProgress.SetPos(0);
    }
    if (curveKind == SpectrumCurveKind::AccelerationDisplacement) {
        PrintPMCurve display(this);
        display.UnitSystem = UnitSystem;
        display.Coll = polylines;
        display.Path = title;
        display.DoModal();
    } else {
        PrintPCurve display(this);
        display.UnitSystem = UnitSystem;
        display.Coll = functions;
        display.Path = title;
        display.DoModal();
    }
}

void ManageAccelerograms::OnBnClickedAccelReport() {
    Accelerogram* record = nullptr;
    if (!Selected(record, true)) {
        return;
    }
    CString text;
    {
        CWaitCursor wait;
        text = BuildRecordReport(*record, LastPeriod, PeriodStep);
    }
    CFileDialog choose(FALSE, "*.txt", "*.txt", kFileFlags,
                       "Report Accelerograms TXT (*.txt)|*.txt||", this);
    if (choose.DoModal() != IDOK) {
        return;
    }
    const CString path = choose.GetPathName();
    std::FILE* file = std::fopen(path.GetString(), "w");
    if (file == nullptr) {
        AfxThrowFileException(CFileException::badPath, -1, path);
    }
    std::fwrite(text.GetString(), 1, static_cast<size_t>(text.GetLength()), file);
    std::fclose(file);
    seisplot::OpenInTextViewer(path);
}

void ManageAccelerograms::OnBnClickedAccelSave() {
    if (Records == nullptr) {
        return;
    }
    CFileDialog choose(FALSE, "*.acc", "saved.acc", kFileFlags, kArchiveFilter, this);
    if (choose.DoModal() != IDOK) {
        return;
    }
    CString path = choose.GetPathName();
    Records->WriteToFile(path);
    CString done;
    done.Format("File %s successufully saved onto disk", path.GetString());
    AfxMessageBox(done);
}

void ManageAccelerograms::OnOK() {
    if (!UpdateData(TRUE)) {
        return;
    }
    const unsigned long count = Records != nullptr ? Records->GetAccelerogramNum() : 0;
    const int line = m_list.GetCurSel();
    if (count > 0 && line == LB_ERR) {
        return;
    }
    ChosenRecord = count == 0 ? 0 : static_cast<unsigned long>(line) + 1;
    EndDialog(IDOK);
}

int AccelerogramColl::GetData(Units* units) {
    AccelerogramColl copy(*this);
    ManageAccelerograms dialog;
    dialog.Records = &copy;
    dialog.UnitSystem = units;
    if (dialog.DoModal() != IDOK) {
        return 1;
    }
    *this = copy;
    return 0;
}
