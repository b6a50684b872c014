#include "platform/ui/CDialog.h"

#include "platform/core/ResourceModule.h"
#include "platform/ui/DataExchange.h"
#include "platform/ui/DialogAccess_p.h"
#include "platform/ui/DialogDriver.h"
#include "platform/ui/DialogWindow_p.h"

#include <QWidget>

namespace seisplot {
namespace {

// Thrown by CDataExchange::Fail, caught by UpdateData.
struct ExchangeFailed {};

} // namespace

DialogWindow& DialogAccess::Open(CDialog& dialog) {
    dialog.m_window = std::make_unique<DialogWindow>(dialog);
    return *dialog.m_window;
}

void DialogAccess::Close(CDialog& dialog) {
    dialog.m_window.reset();
}

void DialogAccess::Dispatch(CDialog& dialog, int id, UINT code) {
    for (const CDialog::Handler& handler : dialog.m_handlers) {
        if (handler.id == id && handler.code == code) {
            handler.run();
            return;
        }
    }
    if (code == BN_CLICKED && id == IDOK) {
        dialog.OnOK();
    } else if (code == BN_CLICKED && id == IDCANCEL) {
        dialog.OnCancel();
    }
}

ModalSession::ModalSession(CDialog& dialog) : m_dialog(dialog) {
    DialogAccess::Open(dialog);
    try {
        DialogAccess::Init(dialog);
        Window().DrawMarked();
    } catch (...) {
        DialogAccess::Close(dialog);
        throw;
    }
}

} // namespace seisplot

void CDataExchange::PrepareCtrl(int id) {
    m_idLastControl = id;
    m_bEditLastControl = FALSE;
}

void CDataExchange::PrepareEditCtrl(int id) {
    m_idLastControl = id;
    m_bEditLastControl = TRUE;
}

void CDataExchange::Fail() {
    if (m_pDlgWnd != nullptr && m_pDlgWnd->Window() != nullptr && m_idLastControl != 0) {
        m_pDlgWnd->Window()->FocusOn(m_idLastControl);
    }
    throw seisplot::ExchangeFailed{};
}

CDialog::CDialog(UINT templateId, CWnd* parent) : m_templateId(templateId), m_parent(parent) {}

CDialog::~CDialog() = default;

INT_PTR CDialog::DoModal() {
    // The library's templates and texts are found while the dialog is open, whatever the
    // caller had in force; the caller's resources come back however the dialog ends.
    seisplot::LibraryResourceScope resources;
    return seisplot::CurrentDialogDriver().Run(*this);
}

void CDialog::EndDialog(int result) {
    if (m_window) {
        m_window->End(result);
    }
}

BOOL CDialog::UpdateData(BOOL saveAndValidate) {
    if (!m_window) {
        return FALSE;
    }
    CDataExchange exchange(this, saveAndValidate);
    seisplot::DialogWindow::Quiet quiet(*m_window);
    try {
        DoDataExchange(&exchange);
    } catch (const seisplot::ExchangeFailed&) {
        return FALSE;
    }
    return TRUE;
}

CWnd* CDialog::GetDlgItem(int id) {
    return m_window ? m_window->Window(id) : nullptr;
}

void CDialog::SetDlgItemText(int id, LPCTSTR text) {
    if (CWnd* control = GetDlgItem(id)) {
        control->SetWindowText(text);
    }
}

int CDialog::GetDlgItemText(int id, CString& text) {
    CWnd* control = GetDlgItem(id);
    text = CString();
    if (control != nullptr) {
        control->GetWindowText(text);
    }
    return text.GetLength();
}

void CDialog::CheckDlgButton(int id, UINT check) {
    if (auto* button = dynamic_cast<CButton*>(GetDlgItem(id))) {
        button->SetCheck(static_cast<int>(check));
    }
}

UINT CDialog::IsDlgButtonChecked(int id) {
    auto* button = dynamic_cast<CButton*>(GetDlgItem(id));
    return button != nullptr ? static_cast<UINT>(button->GetCheck()) : 0u;
}

void CDialog::GotoDlgCtrl(CWnd* control) {
    if (control != nullptr && m_window) {
        m_window->FocusOn(control->GetDlgCtrlID());
    }
}

bool CDialog::IsOpen() const {
    return m_window != nullptr;
}

bool CDialog::CancelRequested() const {
    return m_window && m_window->CancelRequested();
}

BOOL CDialog::OnInitDialog() {
    UpdateData(FALSE);
    return TRUE;
}

void CDialog::OnOK() {
    if (UpdateData(TRUE)) {
        EndDialog(IDOK);
    }
}

void CDialog::OnCancel() {
    EndDialog(IDCANCEL);
}

void CDialog::DoDataExchange(CDataExchange*) {}

void CDialog::OnDrawItem(int, LPDRAWITEMSTRUCT) {}

void CDialog::AddHandler(int id, UINT code, std::function<void()> handler) {
    m_handlers.push_back({id, code, std::move(handler)});
}
