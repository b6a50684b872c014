#pragma once
// The framework's modal dialogs: a dialog class with its template, its members bound to the
// template's controls by data exchange, and handlers for what the user does with the
// controls.
//
// A dialog is built from its template (a Qt Designer form whose widgets carry the control
// ids) when DoModal runs, and taken down when it returns; DoModal hands the live dialog to
// the dialog driver in force (a real window, a test script, or the headless default that
// cancels) and makes the library's resources current meanwhile. Handlers are declared in
// the derived class's constructor:
//
//     On(14626, BN_CLICKED, &PrintPCurve::OnBnClickedThecurvePrint);
//
// Notifications come from what the user does, not from what the program sets: filling a list
// or selecting a line from code notifies nobody.

#include "platform/core/UserInterface.h"
#include "platform/gdi/CDC.h"
#include "platform/gdi/CWnd.h"

#include <functional>
#include <memory>

// Notification codes, by the kind of control that sends them.
inline constexpr UINT BN_CLICKED = 0;
inline constexpr UINT BN_DOUBLECLICKED = 5;
inline constexpr UINT LBN_SELCHANGE = 1;
inline constexpr UINT LBN_DBLCLK = 2;
inline constexpr UINT CLBN_CHKCHANGE = 40; // a check-list line checked or unchecked
inline constexpr UINT CBN_SELCHANGE = 1;
inline constexpr UINT CBN_EDITCHANGE = 5;
inline constexpr UINT EN_CHANGE = 0x0300;
inline constexpr UINT DTN_DATETIMECHANGE = 0xFD09;

inline constexpr UINT ODT_BUTTON = 4;
inline constexpr UINT ODA_DRAWENTIRE = 1;

// What an owner-drawn control needs to paint itself: a context on the control's picture,
// valid during OnDrawItem, and the control's client rectangle.
struct DRAWITEMSTRUCT {
    UINT CtlType = ODT_BUTTON;
    UINT CtlID = 0;
    UINT itemID = 0;
    UINT itemAction = ODA_DRAWENTIRE;
    UINT itemState = 0;
    CWnd* hwndItem = nullptr;
    CDC* hDC = nullptr;
    RECT rcItem{};
};
using LPDRAWITEMSTRUCT = DRAWITEMSTRUCT*;

class CDialog;

namespace seisplot {
class DialogWindow; // the dialog on screen (private)
struct DialogAccess;
} // namespace seisplot

// One exchange between the members and the controls, in one direction.
class CDataExchange {
public:
    CDataExchange(CDialog* dialog, BOOL saveAndValidate)
        : m_bSaveAndValidate(saveAndValidate), m_pDlgWnd(dialog) {}

    // The control the exchange is at: where the focus goes when a check fails.
    void PrepareCtrl(int id);
    void PrepareEditCtrl(int id);
    // Ends the exchange: the focus goes to the control it was at; UpdateData returns FALSE.
    [[noreturn]] void Fail();

    BOOL m_bSaveAndValidate; // TRUE: controls to members (with checks); FALSE: members to controls
    CDialog* m_pDlgWnd;
    int m_idLastControl = 0;
    BOOL m_bEditLastControl = FALSE;
};

class CDialog : public CWnd {
public:
    explicit CDialog(UINT templateId, CWnd* parent = nullptr);
    ~CDialog() override;

    // Runs the dialog modally: the end code (IDOK, IDCANCEL or what EndDialog was given).
    virtual INT_PTR DoModal();
    // Ends the dialog with `result` once the handler that calls it returns.
    void EndDialog(int result);
    // Controls to members (TRUE, with the range checks) or members to controls (FALSE).
    // FALSE when a check failed: its message has been shown and the focus put on the field.
    BOOL UpdateData(BOOL saveAndValidate = TRUE);

    // The window of a control of the template (the member bound to it, if any); null when the
    // template has no such control or the dialog is not open.
    CWnd* GetDlgItem(int id);
    void SetDlgItemText(int id, LPCTSTR text);
    int GetDlgItemText(int id, CString& text);
    void CheckDlgButton(int id, UINT check);
    UINT IsDlgButtonChecked(int id);
    // Moves the focus to a control.
    void GotoDlgCtrl(CWnd* control);

    UINT GetTemplateId() const { return m_templateId; }
    CWnd* GetParent() const { return m_parent; }
    // Whether the dialog is open (between the start and the end of DoModal).
    bool IsOpen() const;
    // Whether Cancel was pressed while a handler was still working: long work polls it.
    bool CancelRequested() const;

    // The dialog on screen, for the dialog layer.
    seisplot::DialogWindow* Window() const { return m_window.get(); }

protected:
    virtual BOOL OnInitDialog(); // writes the members to the controls
    virtual void OnOK();         // reads the controls; ends with IDOK when they are good
    virtual void OnCancel();     // ends with IDCANCEL
    virtual void DoDataExchange(CDataExchange* pDX);
    // Paints owner-drawn control `id`.
    virtual void OnDrawItem(int id, LPDRAWITEMSTRUCT drawItem);

    // Declares `handler` for notification `code` of control `id`.
    template <class D> void On(int id, UINT code, void (D::*handler)()) {
        AddHandler(id, code, [this, handler] { (static_cast<D*>(this)->*handler)(); });
    }

private:
    friend struct seisplot::DialogAccess;
    void AddHandler(int id, UINT code, std::function<void()> handler);

    UINT m_templateId;
    CWnd* m_parent;
    std::unique_ptr<seisplot::DialogWindow> m_window;
    struct Handler {
        int id;
        UINT code;
        std::function<void()> run;
    };
    std::vector<Handler> m_handlers;
};

// The framework's dialog with the newer look; the same here.
class CDialogEx : public CDialog {
public:
    using CDialog::CDialog;
};
