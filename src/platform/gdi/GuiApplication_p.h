#pragma once
// The Qt application that fonts and painting need (private to the drawing layers).

class QCoreApplication;

namespace seisplot {

// Makes sure a Qt application exists; without a display it runs on the offscreen platform.
// It is a QGuiApplication unless a layer that needs more (widgets) gave its maker.
void EnsureGuiApplication();
using ApplicationMaker = QCoreApplication* (*)(int& argc, char** argv);
void SetApplicationMaker(ApplicationMaker maker);
// The environment every Qt application of ours starts in: the offscreen platform without a
// display, a private runtime folder.
void PrepareQtEnvironment();
// Dots per inch of the screen: what the primary screen says, 96 without one.
int ScreenDpi();

} // namespace seisplot
