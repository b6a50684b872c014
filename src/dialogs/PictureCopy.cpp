#include "dialogs/PictureCopy.h"

#include "platform/core/UserInterface.h"
#include "platform/gdi/GdiObjects.h"
#include "platform/ui/Clipboard.h"

namespace seisplot {
namespace {

// The face colour of dialogs, under the copied picture.
constexpr COLORREF kDialogFace = 0xF0F0F0;

} // namespace

bool CopyPictureToClipboard(CWnd& owner, CWnd& control, const std::function<void(CDC*)>& draw,
                            ClipboardAfterFailure afterFailure) {
    CDC* dc = control.GetDC();
    if (dc == nullptr) {
        AfxMessageBox("Error getting DC. Too many commands?");
        return false;
    }
    const auto fail = [&](const char* message, bool opened) {
        AfxMessageBox(message);
        if (opened && afterFailure == ClipboardAfterFailure::Close) {
            CloseClipboard();
        }
        control.ReleaseDC(dc);
        return false;
    };
    CDC memory;
    if (!memory.CreateCompatibleDC(dc)) {
        return fail("Failed creation of compatible DC", false);
    }
    CRect client;
    control.GetClientRect(&client);
    CBitmap bitmap;
    if (!bitmap.CreateCompatibleBitmap(dc, client.Width(), client.Height())) {
        return fail("Failed creation of compatible bitmap", false);
    }
    CBitmap* previous = memory.SelectObject(&bitmap);
    memory.FillSolidRect(&client, kDialogFace);
    draw(&memory);
    memory.SelectObject(previous);
    if (!OpenClipboard(&owner)) {
        return fail("Failed to open Clipboard", false);
    }
    if (!EmptyClipboard()) {
        return fail("Failed to empty Clipboard", true);
    }
    if (SetClipboardData(CF_BITMAP, bitmap.GetSafeHandle()) == nullptr) {
        return fail("Failed to copy data to Clipboard", true);
    }
    if (!CloseClipboard()) {
        return fail("Failed to close Clipboard", false);
    }
    control.ReleaseDC(dc);
    return true;
}

} // namespace seisplot
