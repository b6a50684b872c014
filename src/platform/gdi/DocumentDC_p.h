#pragma once
// A printing context on any paged Qt device, a printer among them (private to the drawing
// and dialog layers).

#include "platform/gdi/DocumentDC.h"

#include <QPagedPaintDevice>

namespace seisplot {

// A printing context on `device`, drawn at `dpi`; null when it cannot be painted on.
std::unique_ptr<DocumentDC> OpenPagedDevice(std::unique_ptr<QPagedPaintDevice> device, int dpi);

} // namespace seisplot
