#pragma once
// How a modal dialog runs: DoModal hands the live dialog to the dialog driver in force.
//
// - The Qt driver shows a real window and waits for the user (the desktop application
//   installs it).
// - A scripted driver (ScriptedDialogs.h) hands the dialog to a test, which works it by
//   control id and ends it; a dialog a handler opens reaches the script in turn.
// - Without either, the headless default ends every dialog with Cancel and says so on the
//   error stream, so that a batch job never waits for a person.

#include "platform/ui/CDialog.h"

namespace seisplot {

class DialogDriver {
public:
    virtual ~DialogDriver() = default;
    // Runs `dialog` from its start to its end; its end code, or -1 when it cannot be shown.
    virtual INT_PTR Run(CDialog& dialog) = 0;
};

// The driver in force: the installed one, else the headless default.
DialogDriver& CurrentDialogDriver();
// Installs `driver` (null: the headless default) and returns what was installed before.
DialogDriver* InstallDialogDriver(DialogDriver* driver);

class ScopedDialogDriver {
public:
    explicit ScopedDialogDriver(DialogDriver& driver) : m_previous(InstallDialogDriver(&driver)) {}
    ~ScopedDialogDriver() { InstallDialogDriver(m_previous); }
    ScopedDialogDriver(const ScopedDialogDriver&) = delete;
    ScopedDialogDriver& operator=(const ScopedDialogDriver&) = delete;

private:
    DialogDriver* m_previous;
};

// Real windows, shown modally over the active window.
class QtDialogDriver : public DialogDriver {
public:
    INT_PTR Run(CDialog& dialog) override;
};

// The environment a desktop program of ours starts Qt in: the offscreen platform without a
// display, a private runtime folder. Call it before making the QApplication.
void PrepareApplicationEnvironment();

// Lets the windows on screen repaint and hear the user while long work goes on in a handler
// (a click on Cancel then reaches CDialog::CancelRequested). Nothing without an application.
void ProcessPendingEvents();

// Dialogs are widgets and need a QApplication: this makes one when the process has no Qt
// application yet (on the offscreen platform without a display). False when the process
// already runs another kind of Qt application, which cannot show widgets.
bool EnsureWidgetApplication();

} // namespace seisplot
