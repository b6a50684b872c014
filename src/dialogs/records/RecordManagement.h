#pragma once
// ManageAccelerograms: the dialog in which the user keeps a set of records — adds them from
// files, from a record archive or from the sinusoid generator, renames, annotates,
// duplicates, scales and removes them, edits their details, saves the set, writes a record's
// report and plots its response spectra. The host opens it through AccelerogramColl::GetData;
// the dialog itself, opened on an archive's records, lets the user pick one of them.
//
// The caller sets Records and UnitSystem before DoModal; the dialog changes the set in place
// and, on IDOK, leaves the number of the selected record (from 1; 0 for an empty set) in
// ChosenRecord.

#include "platform/core/CProgressCtrl.h"
#include "platform/ui/CDialog.h"
#include "platform/ui/Controls.h"
#include "records/SpectrumCurves.h"

#include <optional>

class AccelerogramColl;
class Units;

class ManageAccelerograms : public CDialogEx {
public:
    explicit ManageAccelerograms(CWnd* parent = nullptr);

    double Pga = 0.0;      // g, of the selected record
    double Duration = 0.0; // s, of the selected record
    CString Name;          // its identifier
    CString Explanation;
    double ScaleFactor = 1.0;
    AccelerogramColl* Records = nullptr;
    Units* UnitSystem = nullptr;
    // The response spectra: last period and step (s), largest damping and damping step.
    double LastPeriod = 2.0;
    double PeriodStep = 0.1;
    double LargestDamping = 0.05;
    double DampingStep = 0.025;
    unsigned long ChosenRecord = 0;
    // The sinusoid generator: number of records, period interval (s), periods per record,
    // points per period and amplitude (g).
    UINT SinusCount = 100;
    double SinusPeriodStep = 0.025;
    UINT SinusPeriods = 10;
    UINT SinusPoints = 100;
    double SinusAmplitude = 0.2;

    void OnLbnSelchangeAccelList() { Refresh(); }
    void OnBnClickedAccelPreview();
    void OnBnClickedAccelRemove();
    void OnBnClickedAccelDuplicate();
    void OnBnClickedAccelScale();
    void OnBnClickedAccelRename();
    void OnBnClickedAccelUpdate();
    void OnBnClickedAccelInfo();
    void OnBnClickedAccelRemoveall();
    void OnBnClickedAccelAdd();
    void OnBnClickedAccelAddmany();
    void OnBnClickedAccelAddfromset();
    void OnBnClickedAccelSinusAdd();
    void OnBnClickedAccelSpectrumAcc();
    void OnBnClickedAccelSpectrumDis();
    void OnBnClickedAccelSpectrumAds();
    void OnBnClickedAccelReport();
    void OnBnClickedAccelSave();

protected:
    BOOL OnInitDialog() override;
    void DoDataExchange(CDataExchange* pDX) override;
    void OnOK() override;
    void OnDrawItem(int id, LPDRAWITEMSTRUCT drawItem) override;

    // Lists the set again with line `select` selected (by default the line selected now),
    // clamped to the last, shows the selected record's data and redraws the preview.
    void Refresh(std::optional<int> select = std::nullopt);
    // Selects the last line, then refreshes.
    void RefreshAtLast();

    CListBox m_list;
    CButton m_preview;
    CProgressCtrl m_spectraProgress;
    CProgressCtrl m_sinusProgress;
    CProgressCtrl m_filesProgress;

private:
    void PlotSpectra(seisplot::SpectrumCurveKind kind);
    // The selected record (null: none), after reading the controls when `read`; false when a
    // field was refused.
    bool Selected(class Accelerogram*& record, bool read);
    // Whether a record with `identifier` is in the set (letter case counts); says so if it is.
    bool Clashes(const CString& identifier);
};
