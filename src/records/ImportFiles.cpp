#include "records/ImportFiles.h"

#include <algorithm>

namespace seisplot {

CString FileNameOf(const CString& path) {
    const int slash = std::max(path.ReverseFind('/'), path.ReverseFind('\\'));
    return path.Mid(slash + 1);
}

} // namespace seisplot
