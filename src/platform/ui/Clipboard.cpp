#include "platform/ui/Clipboard.h"
#include "platform/ui/Clipboard_p.h"

#include "platform/core/FailureInjection.h"
#include "platform/gdi/PixelImage_p.h"
#include "platform/ui/DialogDriver.h"

#include <QClipboard>
#include <QGuiApplication>

namespace {

bool g_open = false;
const CWnd* g_owner = nullptr;

} // namespace

BOOL OpenClipboard(CWnd* owner) {
    if (g_open || seisplot::ShouldFail(seisplot::FailurePoint::ClipboardOpen)) {
        return FALSE;
    }
    g_open = true;
    g_owner = owner;
    return TRUE;
}

BOOL EmptyClipboard() {
    if (!g_open || seisplot::ShouldFail(seisplot::FailurePoint::ClipboardEmpty)) {
        return FALSE;
    }
    seisplot::EnsureWidgetApplication();
    QGuiApplication::clipboard()->clear();
    return TRUE;
}

const void* SetClipboardData(UINT format, const void* data) {
    const auto* bitmap = dynamic_cast<const CBitmap*>(static_cast<const CGdiObject*>(data));
    if (!g_open || format != CF_BITMAP || bitmap == nullptr || bitmap->Pixels() == nullptr ||
        seisplot::ShouldFail(seisplot::FailurePoint::ClipboardSet)) {
        return nullptr;
    }
    seisplot::EnsureWidgetApplication();
    QGuiApplication::clipboard()->setImage(bitmap->Pixels()->image);
    return data;
}

BOOL CloseClipboard() {
    if (!g_open || seisplot::ShouldFail(seisplot::FailurePoint::ClipboardClose)) {
        return FALSE;
    }
    g_open = false;
    g_owner = nullptr;
    return TRUE;
}

namespace seisplot {

void ReleaseClipboardOf(const CWnd* owner) {
    if (g_open && owner != nullptr && g_owner == owner) {
        g_open = false;
        g_owner = nullptr;
    }
}

} // namespace seisplot
