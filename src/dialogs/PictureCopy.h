#pragma once
// A dialog's picture to the clipboard: a bitmap the size of a control's client area, erased
// with the dialog's face colour, drawn on by the dialog and handed to the clipboard as
// CF_BITMAP. Each failing step is shown with its own message and ends the copy.

#include "platform/gdi/CDC.h"
#include "platform/gdi/CWnd.h"

#include <functional>

namespace seisplot {

// What becomes of the clipboard when emptying it or handing it the bitmap failed.
enum class ClipboardAfterFailure {
    Close,     // closed again, so that the next copy finds it free
    LeaveOpen, // left as the failing step left it
};

// Copies what `draw` draws (on a memory context over `control`'s client area) to the
// clipboard, opened for `owner`. True when the bitmap reached the clipboard.
bool CopyPictureToClipboard(CWnd& owner, CWnd& control, const std::function<void(CDC*)>& draw,
                            ClipboardAfterFailure afterFailure);

} // namespace seisplot
