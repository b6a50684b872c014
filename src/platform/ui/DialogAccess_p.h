#pragma once
// What the dialog layer's drivers and windows do with a dialog that its own code does not:
// open and close its window, run its start, handlers and owner drawing (private to the
// dialog layer).

#include "platform/ui/CDialog.h"

namespace seisplot {

struct DialogAccess {
    // Builds the dialog's window; throws std::runtime_error without a template or a widget
    // application.
    static DialogWindow& Open(CDialog& dialog);
    static void Close(CDialog& dialog);
    static BOOL Init(CDialog& dialog) { return dialog.OnInitDialog(); }
    // Runs the handler of notification `code` of control `id`; IDOK and IDCANCEL clicked
    // without a handler of their own run OnOK and OnCancel.
    static void Dispatch(CDialog& dialog, int id, UINT code);
    static void DrawItem(CDialog& dialog, int id, LPDRAWITEMSTRUCT item) {
        dialog.OnDrawItem(id, item);
    }
};

// A dialog open from its start (OnInitDialog) to the end of the driver's run: the window is
// closed however the run ends.
class ModalSession {
public:
    explicit ModalSession(CDialog& dialog);
    ~ModalSession() { DialogAccess::Close(m_dialog); }
    ModalSession(const ModalSession&) = delete;
    ModalSession& operator=(const ModalSession&) = delete;

    DialogWindow& Window() const { return *m_dialog.Window(); }

private:
    CDialog& m_dialog;
};

} // namespace seisplot
