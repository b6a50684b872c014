#include "RecordFiles.h"

#include "platform/core/CString.h"
#include "records/ImportFiles.h"

namespace seisplot::cli {

RecordFileKind RecordFileKindOf(const std::string& name) {
    CString file = seisplot::FileNameOf(name.c_str());
    file.MakeUpper();
    const CString last3 = file.Right(3);
    const CString last2 = file.Right(2);
    // The order of the tests matters: "X.TXT" ends in "XT", not in "TR".
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

} // namespace seisplot::cli
