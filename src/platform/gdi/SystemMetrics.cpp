#include "platform/gdi/SystemMetrics.h"

#include "platform/gdi/GuiApplication_p.h"

#include <QGuiApplication>
#include <QScreen>

int GetSystemMetrics(int index) {
    if (index != SM_CXSCREEN && index != SM_CYSCREEN) {
        return 0;
    }
    seisplot::EnsureGuiApplication();
    const QScreen* screen = QGuiApplication::primaryScreen();
    if (screen == nullptr) {
        return 0;
    }
    const QRect area = screen->geometry();
    return index == SM_CXSCREEN ? area.width() : area.height();
}
