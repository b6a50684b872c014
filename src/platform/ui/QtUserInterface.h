#pragma once
// The user-interface services of a desktop process, on Qt Widgets: message boxes, file
// dialogs, the unit chooser, the font and colour choosers, the wait cursor and started
// programs. A QApplication must exist while they are in use; dialogs open over the window
// that is active.

#include "platform/core/UserInterface.h"

namespace seisplot {

class QtUserInterface : public UserInterface {
public:
    int ShowMessage(const CString& text, UINT type) override;
    std::optional<std::vector<CString>> ChooseFiles(const FileRequest& request) override;
    bool ChooseUnits(UnitQuestion& question) override;
    bool ChooseFont(FontChoice& choice) override;
    bool ChoosePrinter(PrinterChoice& choice) override;
    void BeginWait() override;
    void EndWait() override;
    // "notepad.exe <file>", the library's text viewer, opens the file in the desktop's own
    // viewer; any other command line starts that program.
    bool StartProcess(const CString& commandLine) override;

private:
    int m_waitDepth = 0;
};

} // namespace seisplot
