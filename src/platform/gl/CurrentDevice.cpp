#include "platform/gl/CurrentDevice.h"

namespace {

thread_local HDC t_currentDevice = nullptr;

} // namespace

HDC wglGetCurrentDC() {
    return t_currentDevice;
}

namespace seisplot {

void MakeGLDeviceCurrent(HDC dc) {
    t_currentDevice = dc;
}

} // namespace seisplot
