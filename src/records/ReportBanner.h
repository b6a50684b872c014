#pragma once
// The banner that opens the library's text reports: a box 80 characters wide and 16 lines
// high, with the report's title on the seventh line and the product on the fourteenth and
// fifteenth.

#include "platform/core/CString.h"

namespace seisplot {

// The 16 banner lines, each followed by a line feed: a line of 80 '#', five empty box lines,
// `titleLine` as given (a framed line of 80 characters, such as
// "#                                   Spectrum data                              #"), six
// empty box lines, two lines naming the product, and a line of 80 '#'.
CString ReportBanner(const char* titleLine);

} // namespace seisplot
