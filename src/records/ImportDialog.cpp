// Import of one record file that the user picks.

#include "records/Accelerogram.h"
#include "records/ImportFiles.h"

#include "platform/core/CFileDialog.h"

int Accelerogram::ReadFromFile(int quiet) {
    CFileDialog dialog(TRUE, seisplot::kRecordDefaultExtension, nullptr,
                       OFN_HIDEREADONLY | OFN_OVERWRITEPROMPT, seisplot::kRecordFileFilter);
    if (dialog.DoModal() != IDOK) {
        return 1;
    }
    const CString path = dialog.GetPathName();
    const CString name = dialog.GetFileName();
    CString extension = dialog.GetFileExt();
    extension.MakeUpper();
    int result = 1;
    if (extension == "ASC" || extension == "RA" || extension == "TR" || extension == "UP" ||
        extension == "SEW" || extension == "SNS") {
        result = ReadASC(quiet, name, path);
    } else if (extension == "PLT" || extension == "TXT") {
        result = ReadTXTPLT(quiet, name, path);
    } else {
        AfxMessageBox("Unrecognized file extension");
        return 1;
    }
    return result != 0 ? 1 : 0;
}
