// The Qt application behind fonts and painting, and the screen's resolution.

#include "platform/gdi/GuiApplication_p.h"

#include <QGuiApplication>
#include <QScreen>

#include <cerrno>
#include <cmath>
#include <cstdlib>
#include <string>
#include <sys/stat.h>
#include <unistd.h>

namespace seisplot {

namespace {

ApplicationMaker g_maker = nullptr;

} // namespace

void SetApplicationMaker(ApplicationMaker maker) {
    g_maker = maker;
}

void PrepareQtEnvironment() {
    // Without a display the offscreen platform still gives fonts and painting.
    if (std::getenv("QT_QPA_PLATFORM") == nullptr && std::getenv("DISPLAY") == nullptr &&
        std::getenv("WAYLAND_DISPLAY") == nullptr) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    // Qt wants a private runtime folder and complains on every start without one.
    if (std::getenv("XDG_RUNTIME_DIR") == nullptr) {
        const std::string runtime = "/tmp/seisplot-runtime-" + std::to_string(::getuid());
        struct stat info {};
        const bool made = ::mkdir(runtime.c_str(), 0700) == 0;
        // Only a folder of our own that nobody else may enter will do.
        if ((made || errno == EEXIST) && ::lstat(runtime.c_str(), &info) == 0 &&
            S_ISDIR(info.st_mode) && info.st_uid == ::getuid() && (info.st_mode & 0777) == 0700) {
            ::setenv("XDG_RUNTIME_DIR", runtime.c_str(), 0);
        }
    }
}

void EnsureGuiApplication() {
    if (QCoreApplication::instance() != nullptr) {
        return;
    }
    PrepareQtEnvironment();
    static int argc = 1;
    static char name[] = "seisplot";
    static char* argv[] = {name, nullptr};
    static QCoreApplication* app =
        g_maker != nullptr ? g_maker(argc, argv) : new QGuiApplication(argc, argv);
    (void)app;
}

int ScreenDpi() {
    EnsureGuiApplication();
    const QScreen* screen = QGuiApplication::primaryScreen();
    const int dpi =
        screen != nullptr ? static_cast<int>(std::lround(screen->logicalDotsPerInchX())) : 0;
    return dpi > 0 ? dpi : 96;
}

} // namespace seisplot
