#include "records/ImportFiles.h"

#include <algorithm>

namespace seisplot {

CString FileNameOf(const CString& path) {
    const int slash = std::max(path.ReverseFind('/'), path.ReverseFind('\\'));
    return path.Mid(slash + 1);
}

RecordFileKind RecordFileKindOf(const CString& name) {
    CString upper = name;
    upper.MakeUpper();
    const CString last3 = upper.Right(3);
    const CString last2 = upper.Right(2);
    if (last3 == "ASC") {
        return RecordFileKind::Itaca;
    }
    if (last3 == "PLT" || last3 == "TXT") {
        return RecordFileKind::TwoColumn;
    }
    if (last2 == "RA" || last2 == "TR" || last2 == "UP" || last3 == "SEW" || last3 == "SNS") {
        return RecordFileKind::Itaca;
    }
    return RecordFileKind::Unknown;
}

RecordFileKind RecordFileKindOfExtension(const CString& extension) {
    CString upper = extension;
    upper.MakeUpper();
    for (const char* itaca : {"ASC", "RA", "TR", "UP", "SEW", "SNS"}) {
        if (upper == itaca) {
            return RecordFileKind::Itaca;
        }
    }
    return upper == "PLT" || upper == "TXT" ? RecordFileKind::TwoColumn : RecordFileKind::Unknown;
}

} // namespace seisplot
