#include "records/ReportBanner.h"

#include "platform/core/Product.h"

#include <cassert>
#include <cstring>
#include <string>

namespace seisplot {

namespace {

constexpr int kWidth = 80;

// `text` framed as "#" + text padded with blanks to 78 characters + "#", and a line feed.
CString BoxLine(const char* text) {
    const int length = static_cast<int>(std::strlen(text));
    assert(length <= kWidth - 2);
    CString line('#');
    line += text;
    line += CString(' ', kWidth - 2 - length);
    line += "#\n";
    return line;
}

} // namespace

CString ReportBanner(const char* titleLine) {
    assert(std::strlen(titleLine) == static_cast<std::size_t>(kWidth));
    const CString rule = CString('#', kWidth) + '\n';
    const CString empty = BoxLine("");

    CString banner = rule;
    for (int k = 0; k < 5; ++k) {
        banner += empty;
    }
    banner += titleLine;
    banner += '\n';
    for (int k = 0; k < 6; ++k) {
        banner += empty;
    }
    banner += BoxLine((std::string("  ") + kProductLine).c_str());
    banner += BoxLine((std::string("  ") + kProductMaker).c_str());
    banner += rule;
    return banner;
}

} // namespace seisplot
