#pragma once
// The clipboard: opened for one window at a time, emptied, given a bitmap, closed. Each call
// can fail, as the system's can; the picture goes to the desktop's clipboard.

#include "platform/gdi/CWnd.h"

inline constexpr UINT CF_BITMAP = 2;

// FALSE when the clipboard is open already (for any window) or cannot be opened.
BOOL OpenClipboard(CWnd* owner);
// FALSE unless the clipboard is open.
BOOL EmptyClipboard();
// Puts a copy of a bitmap (`data` is the CBitmap's GetSafeHandle) on the open clipboard;
// returns `data`, or null when nothing was put there.
const void* SetClipboardData(UINT format, const void* data);
BOOL CloseClipboard();
