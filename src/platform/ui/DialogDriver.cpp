#include "platform/ui/DialogDriver.h"

#include "platform/gdi/GuiApplication_p.h"
#include "platform/ui/DialogAccess_p.h"
#include "platform/ui/DialogWindow_p.h"

#include <QApplication>

#include <iostream>
#include <optional>
#include <stdexcept>

namespace seisplot {
namespace {

class HeadlessDialogDriver final : public DialogDriver {
public:
    INT_PTR Run(CDialog& dialog) override {
        std::cerr << "seisplot: dialog " << dialog.GetTemplateId()
                  << " needs a person at a screen; it was cancelled\n";
        return IDCANCEL;
    }
};

DialogDriver* g_installed = nullptr;

QCoreApplication* MakeWidgetApplication(int& argc, char** argv) {
    return new QApplication(argc, argv);
}

// Whatever part of the process starts Qt first, a process that can show dialogs starts a
// widget application.
const bool kWidgetApplication = (SetApplicationMaker(&MakeWidgetApplication), true);

} // namespace

DialogDriver& CurrentDialogDriver() {
    static HeadlessDialogDriver headless;
    return g_installed != nullptr ? *g_installed : headless;
}

DialogDriver* InstallDialogDriver(DialogDriver* driver) {
    return std::exchange(g_installed, driver);
}

INT_PTR QtDialogDriver::Run(CDialog& dialog) {
    // A dialog whose window cannot be built does not run, as the framework's DoModal answers
    // -1; what its handlers raise reaches the caller.
    std::optional<ModalSession> session;
    try {
        session.emplace(dialog);
    } catch (const std::runtime_error& e) {
        std::cerr << "seisplot: " << e.what() << '\n';
        return -1;
    }
    return session->Window().Exec();
}

void PrepareApplicationEnvironment() {
    PrepareQtEnvironment();
}

void ProcessPendingEvents() {
    if (QCoreApplication::instance() != nullptr) {
        QCoreApplication::processEvents();
    }
}

bool EnsureWidgetApplication() {
    SetApplicationMaker(&MakeWidgetApplication);
    EnsureGuiApplication();
    return qobject_cast<QApplication*>(QCoreApplication::instance()) != nullptr;
}

} // namespace seisplot
