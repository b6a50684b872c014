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
    int result = 1;
    switch (seisplot::RecordFileKindOfExtension(dialog.GetFileExt())) {
    case seisplot::RecordFileKind::Itaca:
        result = ReadASC(quiet, name, path);
        break;
    case seisplot::RecordFileKind::TwoColumn:
        result = ReadTXTPLT(quiet, name, path);
        break;
    case seisplot::RecordFileKind::Unknown:
        AfxMessageBox("Unrecognized file extension");
        return 1;
    }
    return result != 0 ? 1 : 0;
}
