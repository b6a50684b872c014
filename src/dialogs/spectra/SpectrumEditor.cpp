#include "dialogs/spectra/SpectrumEditor.h"

#include "dialogs/CurvePreview.h"
#include "dialogs/ListExtent.h"
#include "platform/ui/DataExchange.h"

#include <algorithm>

namespace {

constexpr int kList = 14760;
constexpr int kScaleFactor = 14761;
constexpr int kDamping = 14762;
constexpr int kExplanation = 14763;
constexpr int kUpdate = 14764;
constexpr int kBehavior = 14765;
constexpr int kApply = 14766;
constexpr int kPreview = 14692;

// The view in which the host's spectrum collection marks the spectrum picked here.
constexpr unsigned short kPickedView = 1;

} // namespace

EditSpectra::EditSpectra(CWnd* parent) : CDialogEx(14510, parent) {
    On(kList, LBN_SELCHANGE, &EditSpectra::OnLbnSelchangeDllplotListspectra);
    On(kUpdate, BN_CLICKED, &EditSpectra::OnBnClickedDllplotSpeUpdate);
    On(kApply, BN_CLICKED, &EditSpectra::OnBnClickedDllplotSpeScaleapply);
    On(kPreview, BN_CLICKED, &EditSpectra::OnBnClickedDrawaccel);
    On(IDOK, BN_CLICKED, &EditSpectra::OnBnClickedOk);
}

void EditSpectra::DoDataExchange(CDataExchange* pDX) {
    CDialogEx::DoDataExchange(pDX);
    DDX_Control(pDX, kList, m_list);
    DDX_Control(pDX, kPreview, m_preview);
    DDX_Text(pDX, kScaleFactor, ScaleFactor);
    DDV_MinMaxDouble(pDX, ScaleFactor, 1e-7, 1e9);
    DDX_Text(pDX, kBehavior, Behavior);
    DDX_Text(pDX, kExplanation, Explanation);
    DDX_Text(pDX, kDamping, Damping);
    DDV_MinMaxDouble(pDX, Damping, 0.0, 1.0);
}

BOOL EditSpectra::OnInitDialog() {
    CDialogEx::OnInitDialog();
    for (unsigned long i = 1; i <= Spectra.GetSpectrumNum(); ++i) {
        m_list.AddString(Spectra.GetP(i)->GetName());
    }
    if (!seisplot::FitListExtent(m_list)) {
        m_list.ResetContent();
        return TRUE;
    }
    if (Spectra.GetSpectrumNum() == 0) {
        Behavior = 0.0;
        Explanation.Empty();
        Damping = 0.05;
    } else {
        m_list.SetCurSel(0);
        const Spectrum& first = *Spectra.GetP(1);
        Behavior = first.GetBehavior();
        Damping = first.GetDamp();
        Explanation = first.GetExplanation();
    }
    UpdateData(FALSE);
    return TRUE;
}

Spectrum* EditSpectra::Selected() {
    const int line = m_list.GetCurSel();
    return line == LB_ERR ? nullptr : Spectra.GetP(static_cast<unsigned long>(line) + 1);
}

void EditSpectra::OnLbnSelchangeDllplotListspectra() {
    if (!UpdateData(TRUE) || Spectra.GetSpectrumNum() == 0) {
        return;
    }
    const int line =
        std::min(std::max(m_list.GetCurSel(), 0), static_cast<int>(Spectra.GetSpectrumNum()) - 1);
    const Spectrum& spectrum = *Spectra.GetP(static_cast<unsigned long>(line) + 1);
    Behavior = spectrum.GetBehavior();
    Damping = spectrum.GetDamp();
    Explanation = spectrum.GetExplanation();
    UpdateData(FALSE);
    m_preview.Invalidate();
}

void EditSpectra::OnBnClickedDllplotSpeUpdate() {
    if (!UpdateData(TRUE)) {
        return;
    }
    if (Spectrum* spectrum = Selected()) {
        spectrum->SetBehavior(Behavior);
        spectrum->SetDamp(Damping);
        spectrum->SetExplanation(Explanation);
        UpdateData(FALSE);
    }
}

void EditSpectra::OnBnClickedDllplotSpeScaleapply() {
    if (!UpdateData(TRUE)) {
        return;
    }
    if (Spectrum* spectrum = Selected()) {
        for (int k = 0; k < spectrum->Curve.GetNP(); ++k) {
            RPoint2D& point = spectrum->Curve[k];
            point.SetY(point.GetY() * ScaleFactor);
        }
        m_preview.Invalidate();
    }
}

void EditSpectra::OnDrawItem(int id, LPDRAWITEMSTRUCT drawItem) {
    if (id == kPreview) {
        Spectrum* spectrum = Selected();
        seisplot::DrawCurvePreview(drawItem->hDC, m_preview,
                                   spectrum != nullptr ? &spectrum->Curve : nullptr, UnitSystem,
                                   0x0000FF, false);
    }
}

void EditSpectra::OnBnClickedDrawaccel() {
    if (const Spectrum* spectrum = Selected()) {
        seisplot::ShowCurveEnlarged(this, spectrum->Curve, spectrum->GetName(), UnitSystem);
    }
}

void EditSpectra::OnBnClickedOk() {
    if (!UpdateData(TRUE)) {
        return;
    }
    const int line = m_list.GetCurSel();
    ChosenSpectrum = line == LB_ERR ? 0 : static_cast<unsigned long>(line) + 1;
    EndDialog(IDOK);
}

int SpectrumColl::GetData(Units* units) {
    EditSpectra editor;
    editor.UnitSystem = units;
    editor.Spectra = *this;
    if (editor.DoModal() != IDOK) {
        return 1;
    }
    *this = editor.Spectra;
    UnSelectAll(kPickedView);
    if (editor.ChosenSpectrum != 0) {
        Select(editor.ChosenSpectrum, kPickedView);
    }
    return 0;
}
