#pragma once
// The device context that is current for OpenGL on the calling thread, as the windowing
// system's OpenGL binding reports it.

#include "platform/gdi/GdiTypes.h"

// The device context whose OpenGL rendering context is current on this thread; null when
// none is.
HDC wglGetCurrentDC();

namespace seisplot {
// Makes `dc` the thread's current OpenGL device context (null: none), as making a rendering
// context current on it does.
void MakeGLDeviceCurrent(HDC dc);
} // namespace seisplot
