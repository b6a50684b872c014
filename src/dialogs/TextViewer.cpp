#include "dialogs/TextViewer.h"

#include "platform/core/UserInterface.h"

namespace seisplot {

bool OpenInTextViewer(const CString& path) {
    CString commandLine;
    commandLine.Format("notepad.exe %s", path.GetString());
    if (!CurrentUserInterface().StartProcess(commandLine)) {
        AfxMessageBox("Notepad run failed");
        return false;
    }
    return true;
}

} // namespace seisplot
