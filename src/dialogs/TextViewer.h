#pragma once
// Reports and listings open in the system text viewer, started with "notepad.exe <path>".

#include "platform/core/CString.h"

namespace seisplot {

// Starts the viewer on `path`; false, after the message "Notepad run failed", when it cannot
// be started.
bool OpenInTextViewer(const CString& path);

} // namespace seisplot
