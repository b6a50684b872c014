#include "dialogs/ListExtent.h"

#include "platform/core/UserInterface.h"

#include <algorithm>

namespace seisplot {

bool FitListExtent(CListBox& list) {
    CDC* dc = list.GetDC();
    if (dc == nullptr) {
        AfxMessageBox("Error getting DC. Too many commands?");
        return false;
    }
    LONG widest = 0;
    for (int line = 0; line < list.GetCount(); ++line) {
        CString text;
        list.GetText(line, text);
        widest = std::max(widest, dc->GetTextExtent(text).cx);
    }
    TEXTMETRICA metrics;
    dc->GetTextMetrics(&metrics);
    list.ReleaseDC(dc);
    list.SetHorizontalExtent(static_cast<int>(widest + metrics.tmAveCharWidth));
    return true;
}

} // namespace seisplot
