#pragma once
// A dialog on screen: the widgets built from its template, the windows of its controls, and
// the way what the user does reaches the dialog's handlers (private to the dialog layer).

#include "platform/core/CProgressCtrl.h"
#include "platform/ui/CDialog.h"

#include <QDialog>
#include <QPointer>

#include <exception>
#include <map>
#include <memory>

class QAbstractButton;
class QButtonGroup;

namespace seisplot {

class DialogWindow;

// What shows a control's window: its widget.
class ControlView : public WindowView {
public:
    ControlView(DialogWindow& dialog, int id, QWidget* widget)
        : m_dialog(dialog), m_id(id), m_widget(widget) {}

    QWidget* Widget() const { return m_widget; }
    DialogWindow& Dialog() const { return m_dialog; }
    int Id() const { return m_id; }

    void PictureChanged() override;
    void Invalidated() override;
    CString Text() const override;
    void SetText(const CString& text) override;
    bool Enabled() const override;
    void SetEnabled(bool enabled) override;
    bool Visible() const override;
    void SetVisible(bool visible) override;
    void Focus() override;
    int Check() const override;
    void SetCheck(int state) override;

private:
    DialogWindow& m_dialog;
    int m_id;
    QPointer<QWidget> m_widget;
};

// The dialog's own window: invalidating it redraws every owner-drawn control.
class DialogView : public ControlView {
public:
    using ControlView::ControlView;
    void Invalidated() override;
};

class DialogWidget : public QDialog {
public:
    explicit DialogWidget(QWidget* parent) : QDialog(parent) {}
    void SetOwner(DialogWindow* owner) { m_owner = owner; }
    // Escape and the window's close box are the Cancel button.
    void reject() override;
    void accept() override;

private:
    DialogWindow* m_owner = nullptr;
};

class DialogWindow {
public:
    // Builds the widgets of the dialog's template; throws std::runtime_error when there is
    // no such template.
    explicit DialogWindow(CDialog& owner);
    ~DialogWindow();
    DialogWindow(const DialogWindow&) = delete;
    DialogWindow& operator=(const DialogWindow&) = delete;

    CDialog& Owner() const { return m_owner; }
    QDialog* Widget() const { return m_widget.get(); }
    // The widget of control `id`, null when the template has none.
    QWidget* Control(int id) const;
    int IdOf(const QWidget* widget) const;
    // The window of control `id`: the member bound to it, or one of the dialog's own.
    CWnd* Window(int id);
    void Bind(int id, CWnd& member);
    void Bind(int id, CProgressCtrl& progress);

    // What the user did to control `id`: runs its handler (IDOK and IDCANCEL without one end
    // the dialog through OnOK and OnCancel). While a handler works (its long work lets the
    // window repaint), other notifications are ignored and Cancel is only noted.
    // Framework exceptions are reported as the framework's message loop does. Anything else
    // a handler raises must not unwind through Qt, which is built without exception support:
    // it ends the dialog and is kept until RethrowFailure, called where only our code is on
    // the stack.
    void Notify(int id, UINT code);
    void RethrowFailure();
    bool CancelRequested() const { return m_cancelRequested; }

    // Setting controls from code notifies nobody while one of these lives.
    class Quiet {
    public:
        explicit Quiet(DialogWindow& dialog) : Quiet(&dialog) {}
        // A control that is on no dialog has nobody to notify.
        explicit Quiet(DialogWindow* dialog) : m_dialog(dialog) {
            if (m_dialog != nullptr) {
                ++m_dialog->m_quiet;
            }
        }
        ~Quiet() {
            if (m_dialog != nullptr) {
                --m_dialog->m_quiet;
            }
        }
        Quiet(const Quiet&) = delete;
        Quiet& operator=(const Quiet&) = delete;

    private:
        DialogWindow* m_dialog;
    };

    // Ending: EndDialog records the result; a running window closes with it.
    void End(int result);
    bool Ended() const { return m_ended; }
    int Result() const { return m_result; }
    // Runs the window modally (QDialog::exec) until it ends.
    int Exec();

    // Owner-drawn controls: marked for drawing when invalidated or resized, drawn when
    // painted (or, with no event loop, when a test looks).
    void MarkForDrawing(int id);
    void MarkAllForDrawing();
    void DrawIfMarked(int id);
    void DrawMarked();
    bool IsOwnerDrawn(int id) const;

    // Focus: what the dialog asked for last (a window without a screen has no real focus).
    void FocusOn(int id);
    int FocusedControl() const { return m_focused; }

private:
    friend class ControlView;
    void Connect(int id, QWidget* widget);
    // Keeps what a handler raised and ends the dialog.
    void Fail();
    CWnd& OwnWindow(int id, QWidget* widget);

    CDialog& m_owner;
    std::unique_ptr<DialogWidget> m_widget;
    std::map<int, QWidget*> m_controls;
    std::map<int, std::unique_ptr<ControlView>> m_views;
    std::map<int, CWnd*> m_windows;                    // the window shown by each control
    std::map<int, std::unique_ptr<CWnd>> m_ownWindows; // GetDlgItem's, for controls not bound
    std::map<int, std::unique_ptr<ProgressView>> m_progressViews;
    std::map<int, CProgressCtrl*> m_progress;
    std::unique_ptr<DialogView> m_dialogView;
    std::map<int, bool> m_marked;
    int m_quiet = 0;
    int m_busy = 0;
    bool m_cancelRequested = false;
    bool m_ended = false;
    bool m_running = false;
    int m_result = IDCANCEL;
    int m_focused = 0;
    int m_drawing = 0;
    std::exception_ptr m_failure;
};

// A date and time picker that shows no date-time.
inline constexpr const char* kUnsetProperty = "unset";

// The radio buttons of the group `first` belongs to, in order.
std::vector<QAbstractButton*> RadioGroup(const DialogWindow& dialog, int first);

} // namespace seisplot
