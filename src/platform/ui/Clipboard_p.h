#pragma once
// The clipboard's side of a window going away (private to the dialog layer).

class CWnd;

namespace seisplot {

// A clipboard that `owner` opened and left open is free again once `owner` is gone.
void ReleaseClipboardOf(const CWnd* owner);

} // namespace seisplot
