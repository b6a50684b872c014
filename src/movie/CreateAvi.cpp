#include "movie/CreateAvi.h"

#include "platform/avi/FileSearch.h"
#include "platform/avi/Processes.h"
#include "platform/core/UserInterface.h"

#include <string>

int CreateAvi(CString& toolFolder, CString& framesFolder, int deleteFrames, int fpi, int nth) {
    // 1 is the tool's own default for both options, and is not written.
    CString commandLine;
    commandLine.Format("%s/FrameStitch \"%s\"", toolFolder.GetString(), framesFolder.GetString());
    if (fpi != 1) {
        commandLine.AppendFormat(" -fpi %d", fpi);
    }
    if (nth != 1) {
        commandLine.AppendFormat(" -nth %d", nth);
    }

    // A console of 80 by 40 characters at the screen's top-left corner.
    STARTUPINFO startup;
    startup.cb = sizeof startup;
    startup.dwFlags = STARTF_USECOUNTCHARS | STARTF_USEPOSITION;
    startup.dwX = 0;
    startup.dwY = 0;
    startup.dwXCountChars = 80;
    startup.dwYCountChars = 40;
    PROCESS_INFORMATION process;
    std::string line = commandLine.GetString();
    if (!CreateProcess(nullptr, line.data(), nullptr, nullptr, FALSE, CREATE_NEW_CONSOLE, nullptr,
                       nullptr, &startup, &process)) {
        AfxMessageBox("Unable to run process:");
        AfxMessageBox(commandLine);
        return 1;
    }
    WaitForSingleObject(process.hProcess, INFINITE);
    CloseHandle(process.hThread);
    CloseHandle(process.hProcess);

    if (!deleteFrames) {
        return 0;
    }
    WIN32_FIND_DATA found;
    HANDLE search = FindFirstFile(framesFolder + "/*.jpg", &found);
    if (search == INVALID_HANDLE_VALUE) {
        return 1;
    }
    do {
        if ((found.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) == 0) {
            DeleteFile(framesFolder + "/" + found.cFileName);
        }
    } while (FindNextFile(search, &found));
    FindClose(search);
    RemoveDirectory(framesFolder); // only an empty folder goes
    return 0;
}
