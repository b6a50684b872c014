#include "dialogs/spectra/EnvelopeSpectra.h"

#include "dialogs/CurvePreview.h"
#include "dialogs/ListExtent.h"
#include "dialogs/TextViewer.h"
#include "dialogs/records/RecordDetails.h"
#include "platform/core/CFileDialog.h"
#include "platform/ui/DataExchange.h"
#include "platform/ui/DialogDriver.h"
#include "records/AccelerogramColl.h"

#include <algorithm>
#include <cstdio>

namespace {

constexpr int kRecords = 14680;
constexpr int kPga = 14681;
constexpr int kDuration = 14682;
constexpr int kInfo = 14686;
constexpr int kRecordPreview = 14692;
constexpr int kProgress = 14701;
constexpr int kReport = 14703;
constexpr int kPeriodSource = 14733;
constexpr int kPeriodStep = 14735;
constexpr int kDamping = 14736;
constexpr int kStatistic = 14737;
constexpr int kMaxPeriod = 14739;
constexpr int kModes = 14740;
constexpr int kAllModes = 14741;
constexpr int kNoModes = 14742;
constexpr int kRun = 14743;
constexpr int kSpectrumPreview = 14744;
constexpr int kSpectraList = 14745;
constexpr int kRemove = 14746;
constexpr int kRemoveAll = 14747;
constexpr int kPeak = 14748;
constexpr int kPeakPeriod = 14749;
constexpr int kSpectrumDamping = 14750;
constexpr int kSignalUse = 14751;
constexpr int kName = 14752;
constexpr int kChangeName = 14753;
constexpr int kRating = 14755;
constexpr int kAllRecords = 14756;
constexpr int kNoRecords = 14757;
constexpr int kDirection = 14758;
constexpr int kTrack = 14759;
constexpr int kPercentile = 14791;
constexpr int kPattern[] = {14792, 14793, 14794, 14795};

constexpr unsigned long kRed = 0x0000FF;
constexpr unsigned long kGreen = 0x00FF00;

} // namespace

namespace seisplot {

void DialogRunProgress::Heartbeat() {
    ProcessPendingEvents();
}

} // namespace seisplot

ManageSpectra::ManageSpectra(CWnd* parent) : CDialogEx(14509, parent) {
    using Self = ManageSpectra;
    On(kRun, BN_CLICKED, &Self::OnBnClickedDllplotEnvspeRun);
    On(kTrack, BN_CLICKED, &Self::OnBnClickedDllplotEnvspeTrack);
    On(kAllRecords, BN_CLICKED, &Self::OnBnClickedDllplotEnvspeAllacc);
    On(kNoRecords, BN_CLICKED, &Self::OnBnClickedDllplotEnvspeNoneacc);
    On(kPattern[0], BN_CLICKED, &Self::OnBnClickedDllplotEnvspeSel1);
    On(kPattern[1], BN_CLICKED, &Self::OnBnClickedDllplotEnvspeSel2);
    On(kPattern[2], BN_CLICKED, &Self::OnBnClickedDllplotEnvspeSel3);
    On(kPattern[3], BN_CLICKED, &Self::OnBnClickedDllplotEnvspeSel4);
    On(kAllModes, BN_CLICKED, &Self::OnBnClickedDllplotEnvspeAllmode);
    On(kNoModes, BN_CLICKED, &Self::OnBnClickedDllplotEnvspeNonemode);
    On(kRecords, LBN_SELCHANGE, &Self::OnLbnSelchangeListaccel);
    On(kInfo, BN_CLICKED, &Self::OnBnClickedAccelModify);
    On(kRecordPreview, BN_CLICKED, &Self::OnBnClickedDrawaccel);
    On(kSpectraList, LBN_SELCHANGE, &Self::OnLbnSelchangeDllplotEnvspeListspectra);
    On(kSpectrumPreview, BN_CLICKED, &Self::OnBnClickedDllplotDrawspectrum);
    On(kChangeName, BN_CLICKED, &Self::OnBnClickedDllplotEnvspeChangename);
    On(kRemove, BN_CLICKED, &Self::OnBnClickedDllplotEnvspeDeletespe);
    On(kRemoveAll, BN_CLICKED, &Self::OnBnClickedDllplotEnvspeDeletespe2);
    On(kReport, BN_CLICKED, &Self::OnBnClickedSpettroReport);
}

void ManageSpectra::DoDataExchange(CDataExchange* pDX) {
    CDialogEx::DoDataExchange(pDX);
    DDX_Control(pDX, kRecords, m_records);
    DDX_Control(pDX, kModes, m_modes);
    DDX_Control(pDX, kSpectraList, m_spectra);
    DDX_Text(pDX, kPga, Pga);
    DDX_Text(pDX, kDuration, Duration);
    DDX_Text(pDX, kPeak, Peak);
    DDX_Text(pDX, kPeakPeriod, PeakPeriod);
    DDX_Text(pDX, kSpectrumDamping, SpectrumDamping);
    DDX_Text(pDX, kName, SpectrumName);
    DDX_Text(pDX, kRating, Rating);
    DDX_Control(pDX, kRecordPreview, m_recordPreview);
    DDX_Control(pDX, kSpectrumPreview, m_spectrumPreview);
    DDX_Control(pDX, kProgress, m_progress);
    DDX_Radio(pDX, kPeriodSource, Criteria.PeriodSource);
    DDX_Text(pDX, kMaxPeriod, Criteria.MaxPeriod);
    DDV_MinMaxDouble(pDX, Criteria.MaxPeriod, 0.0, 50.0);
    DDX_Text(pDX, kPeriodStep, Criteria.PeriodStep);
    DDV_MinMaxDouble(pDX, Criteria.PeriodStep, 0.0, 10000.0);
    DDX_Text(pDX, kDamping, Criteria.Damping);
    DDV_MinMaxDouble(pDX, Criteria.Damping, 0.0, 100.0);
    DDX_Radio(pDX, kSignalUse, Criteria.SignalUse);
    DDX_Text(pDX, kDirection, Criteria.Direction);
    DDX_Radio(pDX, kStatistic, Criteria.Statistic);
    DDX_Text(pDX, kPercentile, Criteria.Percentile);
    DDV_MinMaxDouble(pDX, Criteria.Percentile, 50.0, 100.0);
}

int ManageSpectra::SetModes(unsigned long n, const double* periods, const double* participations) {
    ModeCount = n;
    ModePeriods.assign(periods, periods + n);
    for (unsigned long m = 0; m < n; ++m) {
        CString text;
        text.Format("Mode=%5ld  Period=%7.3lf  %%X=%7.3lf  %%Y=%7.3lf  %%Z=%7.3lf\n",
                    static_cast<long>(m + 1), periods[m], participations[3 * m] * 100.0,
                    participations[3 * m + 1] * 100.0, participations[3 * m + 2] * 100.0);
        ModeTexts.push_back(text);
    }
    return 0;
}

BOOL ManageSpectra::OnInitDialog() {
    CDialogEx::OnInitDialog();
    if (Records == nullptr) {
        AfxMessageBox("No accelerogram list");
        return TRUE;
    }
    if (ModeCount == 0) {
        AfxMessageBox("No mode list");
        return TRUE;
    }
    m_progress.SetPos(0);
    RefreshAccelList();
    RefreshSpectraList();
    for (const CString& text : ModeTexts) {
        const int line = m_modes.AddString(text);
        m_modes.SetCheck(line, BST_CHECKED);
    }
    seisplot::FitListExtent(m_modes);
    UpdateData(FALSE);
    return TRUE;
}

Accelerogram* ManageSpectra::SelectedRecord() {
    const int line = m_records.GetCurSel();
    return Records == nullptr || line == LB_ERR
               ? nullptr
               : Records->GetP(static_cast<unsigned long>(line) + 1);
}

Spectrum* ManageSpectra::SelectedSpectrum() {
    const int line = m_spectra.GetCurSel();
    return line == LB_ERR ? nullptr : Spectra.GetP(static_cast<unsigned long>(line) + 1);
}

void ManageSpectra::PaintNow(CButton& preview, PCurve* curve, bool outline) {
    CDC* dc = preview.GetDC();
    seisplot::DrawCurvePreview(dc, preview, curve, UnitSystem, kRed, outline);
    if (dc != nullptr) {
        preview.ReleaseDC(dc);
    }
}

int ManageSpectra::RefreshAccelList() {
    m_records.ResetContent();
    const unsigned long count = Records != nullptr ? Records->GetAccelerogramNum() : 0;
    if (count == 0) {
        Pga = 0.0;
        Duration = 0.0;
        PaintNow(m_recordPreview, nullptr, false);
        UpdateData(FALSE);
        return 0;
    }
    for (unsigned long i = 1; i <= count; ++i) {
        CString line;
        line.Format("%5ld - ", static_cast<long>(i));
        line += Records->GetP(i)->GetIdentifier();
        m_records.SetCheck(m_records.AddString(line), BST_CHECKED);
    }
    seisplot::FitListExtent(m_records);
    m_records.SetCurSel(0);
    OnLbnSelchangeListaccel();
    return 0;
}

void ManageSpectra::OnLbnSelchangeListaccel() {
    UpdateData(TRUE);
    Accelerogram* record = SelectedRecord();
    if (record == nullptr) {
        return;
    }
    Pga = record->GetPga();
    Duration = record->Record.GetMaxX() - record->Record.GetMinX();
    UpdateData(FALSE);
    PaintNow(m_recordPreview, &record->Record, false);
}

int ManageSpectra::RefreshSpectraList() {
    UpdateData(TRUE);
    m_spectra.ResetContent();
    if (Spectra.GetSpectrumNum() == 0) {
        Peak = 0.0;
        PeakPeriod = 0.0;
        SpectrumDamping = 0.0;
        SpectrumName.Empty();
        Rating.Empty();
        PaintNow(m_spectrumPreview, nullptr, true);
        UpdateData(FALSE);
        return 0;
    }
    for (unsigned long i = 1; i <= Spectra.GetSpectrumNum(); ++i) {
        CString line;
        line.Format("%5ld ", static_cast<long>(i));
        line += Spectra.GetP(i)->GetName();
        m_spectra.AddString(line);
    }
    seisplot::FitListExtent(m_spectra);
    m_spectra.SetCurSel(0);
    OnLbnSelchangeDllplotEnvspeListspectra();
    return 0;
}

void ManageSpectra::OnLbnSelchangeDllplotEnvspeListspectra() {
    UpdateData(TRUE);
    const int line = m_spectra.GetCurSel();
    if (line == LB_ERR || Spectra.GetSpectrumNum() == 0) {
        return;
    }
    const auto number = std::min(static_cast<unsigned long>(line) + 1, Spectra.GetSpectrumNum());
    Spectrum& spectrum = *Spectra.GetP(number);
    const Ec8Rating rating = MatchEc8SoilClasses(spectrum);
    Peak = rating.Peak;
    PeakPeriod = rating.PeakPeriod;
    SpectrumDamping = rating.Damping;
    SpectrumName = rating.Name;
    Rating = rating.Verdict;
    UpdateData(FALSE);
    PaintNow(m_spectrumPreview, &spectrum.Curve, false);
}

void ManageSpectra::OnDrawItem(int id, LPDRAWITEMSTRUCT drawItem) {
    if (id == kRecordPreview) {
        Accelerogram* record = SelectedRecord();
        seisplot::DrawCurvePreview(drawItem->hDC, m_recordPreview,
                                   record != nullptr ? &record->Record : nullptr, UnitSystem,
                                   kGreen, false);
    } else if (id == kSpectrumPreview) {
        Spectrum* spectrum = SelectedSpectrum();
        seisplot::DrawCurvePreview(drawItem->hDC, m_spectrumPreview,
                                   spectrum != nullptr ? &spectrum->Curve : nullptr, UnitSystem,
                                   kRed, false);
    }
}

void ManageSpectra::CheckRecords(bool (*checked)(int line)) {
    for (int line = 0; line < m_records.GetCount(); ++line) {
        m_records.SetCheck(line, checked(line) ? BST_CHECKED : BST_UNCHECKED);
    }
}

void ManageSpectra::CheckModes(int check) {
    for (int line = 0; line < m_modes.GetCount(); ++line) {
        m_modes.SetCheck(line, check);
    }
}

void ManageSpectra::OnBnClickedDllplotEnvspeRun() {
    if (!UpdateData(TRUE)) {
        return;
    }
    AccelerogramColl none;
    AccelerogramColl& records = Records != nullptr ? *Records : none;
    std::vector<bool> checked(records.GetAccelerogramNum(), false);
    for (int line = 0; line < m_records.GetCount() && line < static_cast<int>(checked.size());
         ++line) {
        checked[static_cast<size_t>(line)] = m_records.GetCheck(line) == BST_CHECKED;
    }
    EnvelopeModes modes;
    modes.Periods = ModePeriods;
    for (int line = 0; line < static_cast<int>(ModeCount); ++line) {
        modes.Checked.push_back(m_modes.GetCheck(line) == BST_CHECKED);
    }
    if (ComputeEnvelopeSpectrum(Criteria, records, checked, modes, Spectra, Track, &m_progress) ==
        EnvelopeOutcome::Added) {
        RefreshSpectraList();
    }
}

void ManageSpectra::OnBnClickedDllplotEnvspeTrack() {
    if (Track.GetNP() > 0) {
        seisplot::ShowCurveEnlarged(this, Track, Track.GetName(), UnitSystem);
    }
}

void ManageSpectra::OnBnClickedAccelModify() {
    Accelerogram* record = SelectedRecord();
    if (record == nullptr || !UpdateData(TRUE)) {
        return;
    }
    AccData details(this);
    details.CopyFrom(*record, false);
    if (details.DoModal() == IDOK) {
        details.CopyTo(*record, false);
    }
}

void ManageSpectra::OnBnClickedDrawaccel() {
    if (Accelerogram* record = SelectedRecord()) {
        seisplot::ShowCurveEnlarged(this, record->Record, record->GetIdentifier(), UnitSystem);
    }
}

void ManageSpectra::OnBnClickedDllplotDrawspectrum() {
    if (Spectrum* spectrum = SelectedSpectrum()) {
        seisplot::ShowCurveEnlarged(this, spectrum->Curve, spectrum->GetName(), UnitSystem);
    }
}

void ManageSpectra::OnBnClickedDllplotEnvspeChangename() {
    Spectrum* spectrum = SelectedSpectrum();
    if (spectrum == nullptr || !UpdateData(TRUE)) {
        return;
    }
    spectrum->SetName(SpectrumName);
    RefreshSpectraList();
}

void ManageSpectra::OnBnClickedDllplotEnvspeDeletespe() {
    const int line = m_spectra.GetCurSel();
    if (SelectedSpectrum() == nullptr) {
        return;
    }
    const auto number = static_cast<unsigned long>(line) + 1;
    // The track belongs to the latest run, whose spectrum is the last of the list.
    if (number == Spectra.GetSpectrumNum()) {
        Track.Clear();
    }
    Spectra.RemoveSpectrum(number);
    RefreshSpectraList();
}

void ManageSpectra::OnBnClickedDllplotEnvspeDeletespe2() {
    Track.Clear();
    Spectra.Free();
    RefreshSpectraList();
}

void ManageSpectra::OnBnClickedSpettroReport() {
    Spectrum* spectrum = SelectedSpectrum();
    if (spectrum == nullptr || !UpdateData(TRUE)) {
        return;
    }
    CString text;
    spectrum->DoReport(text);
    CFileDialog choose(FALSE, "*.txt", "*.txt", OFN_HIDEREADONLY | OFN_OVERWRITEPROMPT,
                       "Report Spectra TXT (*.txt)|*.txt||", this);
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

int SpectrumColl::GetData(AccelerogramColl* records, unsigned long nModes, double* periods,
                          double* shares, Units* units) {
    ManageSpectra dialog;
    dialog.Records = records;
    dialog.UnitSystem = units;
    dialog.Spectra = *this;
    dialog.SetModes(nModes, periods, shares);
    if (dialog.DoModal() != IDOK) {
        return 1;
    }
    *this = dialog.Spectra;
    return 0;
}
