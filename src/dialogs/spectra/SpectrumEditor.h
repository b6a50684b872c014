#pragma once
// EditSpectra: the editor of a collection of spectra — the behaviour factor, damping and
// explanation of one spectrum, its ordinates scaled, and one spectrum picked. The host opens
// it through SpectrumColl::GetData(Units*), which hands it a copy and takes the copy back on
// OK with the picked spectrum selected in view 1.

#include "platform/ui/CDialog.h"
#include "platform/ui/Controls.h"
#include "spectra/SpectrumColl.h"

class Units;

class EditSpectra : public CDialogEx {
public:
    explicit EditSpectra(CWnd* parent = nullptr);

    Units* UnitSystem = nullptr;
    SpectrumColl Spectra;
    double ScaleFactor = 1.0; // 1e-7 to 1e9
    double Behavior = 1.5;
    unsigned long ChosenSpectrum = 0; // from 1; 0 for none
    CString Explanation;
    double Damping = 0.05; // fraction of critical, 0 to 1

    void OnLbnSelchangeDllplotListspectra();
    void OnBnClickedDllplotSpeUpdate();
    void OnBnClickedDllplotSpeScaleapply();
    void OnBnClickedDrawaccel();
    void OnBnClickedOk();

protected:
    BOOL OnInitDialog() override;
    void DoDataExchange(CDataExchange* pDX) override;
    void OnDrawItem(int id, LPDRAWITEMSTRUCT drawItem) override;

    CListBox m_list;
    CButton m_preview;

private:
    // The spectrum of the selected line (null: none).
    Spectrum* Selected();
};
