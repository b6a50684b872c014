#pragma once
// ManageSpectra: the envelope spectrum dialog. The user picks records and structural modes,
// sets the criteria of an envelope run and starts it, and manages the resulting spectra:
// preview, enlarge, EC8 rating, rename, remove, report. The host opens it through
// SpectrumColl::GetData(records, modes, ...), which hands it the records (edited in place) and
// a copy of the spectra, taken back on OK.

#include "platform/ui/CDialog.h"
#include "platform/ui/Controls.h"
#include "spectra/Envelope.h"
#include "spectra/SpectrumColl.h"

#include <vector>

class AccelerogramColl;
class Units;

namespace seisplot {
// The dialog's progress bar as an envelope run hears it: the window keeps repainting and a
// click on Cancel stops the run.
class DialogRunProgress : public EnvelopeProgress {
public:
    explicit DialogRunProgress(CDialog& dialog) : m_dialog(dialog) {}
    bool Cancelled() override { return m_dialog.CancelRequested(); }
    void Heartbeat() override;

private:
    CDialog& m_dialog;
};
} // namespace seisplot

class ManageSpectra : public CDialogEx {
public:
    explicit ManageSpectra(CWnd* parent = nullptr);

    CCheckListBox m_records;
    CCheckListBox m_modes;
    CListBox m_spectra;
    PCurve Track;          // of the last run
    double Pga = 0.0;      // g, of the selected record
    double Duration = 0.0; // s, of the selected record
    double Peak = 0.0;     // g, of the selected spectrum
    double PeakPeriod = 0.0;
    double SpectrumDamping = 0.0;
    CString SpectrumName;
    CString Rating; // EC8 soil classes
    AccelerogramColl* Records = nullptr;
    SpectrumColl Spectra;
    CButton m_recordPreview;
    CButton m_spectrumPreview;
    Units* UnitSystem = nullptr;
    unsigned long ModeCount = 0;
    std::vector<double> ModePeriods;
    std::vector<CString> ModeTexts;
    seisplot::DialogRunProgress m_progress{*this};
    EnvelopeCriteria Criteria;

    // The structure's modes: n periods and, per mode, the participation fractions along X, Y
    // and Z (3·n values). Returns 0.
    int SetModes(unsigned long n, const double* periods, const double* participations);
    int RefreshAccelList();
    int RefreshSpectraList();

    void OnBnClickedDllplotEnvspeRun();
    void OnBnClickedDllplotEnvspeTrack();
    void OnBnClickedDllplotEnvspeAllacc() {
        CheckRecords([](int) { return true; });
    }
    void OnBnClickedDllplotEnvspeNoneacc() {
        CheckRecords([](int) { return false; });
    }
    void OnBnClickedDllplotEnvspeSel1() {
        CheckRecords([](int i) { return i % 3 == 0; });
    }
    void OnBnClickedDllplotEnvspeSel2() {
        CheckRecords([](int i) { return i % 3 == 1; });
    }
    void OnBnClickedDllplotEnvspeSel3() {
        CheckRecords([](int i) { return i % 3 == 2; });
    }
    void OnBnClickedDllplotEnvspeSel4() {
        CheckRecords([](int i) { return i % 3 != 2; });
    }
    void OnBnClickedDllplotEnvspeAllmode() { CheckModes(1); }
    void OnBnClickedDllplotEnvspeNonemode() { CheckModes(0); }
    void OnLbnSelchangeListaccel();
    void OnBnClickedAccelModify();
    void OnBnClickedDrawaccel();
    void OnLbnSelchangeDllplotEnvspeListspectra();
    void OnBnClickedDllplotDrawspectrum();
    void OnBnClickedDllplotEnvspeChangename();
    void OnBnClickedDllplotEnvspeDeletespe();
    void OnBnClickedDllplotEnvspeDeletespe2();
    void OnBnClickedSpettroReport();

protected:
    BOOL OnInitDialog() override;
    void DoDataExchange(CDataExchange* pDX) override;
    void OnDrawItem(int id, LPDRAWITEMSTRUCT drawItem) override;

private:
    Accelerogram* SelectedRecord();
    Spectrum* SelectedSpectrum();
    void CheckRecords(bool (*checked)(int line));
    void CheckModes(int check);
    // Draws `curve` in `preview` at once, in red (a repaint of the record preview draws it
    // green, so that a selection change shows apart from a repaint).
    void PaintNow(CButton& preview, PCurve* curve, bool outline);
};
