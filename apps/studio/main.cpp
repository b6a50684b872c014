// seisplot studio: the desktop application that plays the host of the library.

#include "Automation.h"
#include "MainWindow.h"

#include "draw/gdi/DeviceConventions.h"
#include "platform/core/StringTable.h"
#include "platform/core/UserInterface.h"
#include "platform/ui/DialogDriver.h"
#include "platform/ui/QtUserInterface.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QTranslator>

#include <cstdlib>
#include <iostream>
#include <string_view>

namespace {

bool HasDisplay() {
    // An explicit platform (offscreen, for pictures without a screen) is the caller's choice.
    return std::getenv("DISPLAY") != nullptr || std::getenv("WAYLAND_DISPLAY") != nullptr ||
           std::getenv("QT_QPA_PLATFORM") != nullptr;
}

bool AsksForHelp(int argc, char** argv) {
    for (int i = 1; i < argc; ++i) {
        const std::string_view arg = argv[i];
        if (arg == "-h" || arg == "--help" || arg == "--help-all" || arg == "-?") {
            return true;
        }
    }
    return false;
}

} // namespace

int main(int argc, char** argv) {
    // The help needs no screen: it is printed by a window-less platform.
    if (!HasDisplay() && AsksForHelp(argc, argv)) {
        setenv("QT_QPA_PLATFORM", "offscreen", 1);
    } else if (!HasDisplay()) {
        std::cerr << "seisplot-studio: no display to show the studio on (DISPLAY is not set).\n"
                     "Run it on a desktop, over ssh -X, or under xvfb-run.\n";
        return 1;
    }
    seisplot::PrepareApplicationEnvironment();
    QApplication app(argc, argv);
    QApplication::setApplicationName("seisplot-studio");

    QCommandLineParser parser;
    parser.setApplicationDescription(
        "The desktop application of seisplot: a project of records, spectra, curves and a "
        "polygon, shown in a side panel and drawn in the centre, with the library's dialogs "
        "in its menus.");
    parser.addHelpOption();
    parser.addPositionalArgument("project", "A project file (*.spj) to open.", "[project]");
    const QCommandLineOption language({"l", "language"}, "Texts in English or Italian.", "en|it");
    const QCommandLineOption import(
        "import", "Import an ITACA record file or a spectra archive (*.spc) (repeatable).", "file");
    const QCommandLineOption polygon("polygon", "Make these vertices the polygon.", "x,y x,y ...");
    const QCommandLineOption select("select", "Select an item: Records/2, Polygon, ...", "item");
    const QCommandLineOption action(
        "action", "Trigger a menu action that opens no dialog (repeatable): copyToCurves, ...",
        "action");
    const QCommandLineOption saveAs("save-as", "Save the project to this file.", "file");
    const QCommandLineOption shot("screenshot", "Write a picture of the main window.", "png");
    const QCommandLineOption dialog(
        "open-dialog", "Open the dialog of a menu action (polygonInput, addPoint, ...).", "action");
    const QCommandLineOption click(
        "dialog-click", "Click this control of that dialog; the dialog it opens is the one taken.",
        "id");
    const QCommandLineOption report("dialog-report", "Describe that dialog in a text file.",
                                    "file");
    const QCommandLineOption dialogShot("dialog-screenshot",
                                        "Photograph the screen with that dialog shown.", "png");
    const QCommandLineOption modes(
        "modes", "The structure's modes file for the envelope spectra (period X Y Z lines).",
        "file");
    const QCommandLineOption structureShot(
        "structure-screenshot", "Open the structure window and write a picture of it.", "png");
    const QCommandLineOption quit("quit", "End after the steps above instead of staying open.");
    parser.addOptions({language, import, polygon, select, action, modes, saveAs, shot, dialog,
                       click, report, dialogShot, structureShot, quit});
    parser.process(app);
    if (parser.isSet(language)) {
        qputenv("SEISPLOT_LANG", parser.value(language).toLatin1());
    }
    // The studio's own texts follow the library's language.
    QTranslator italian;
    if (seisplot::CurrentLanguage() == seisplot::Language::Italian &&
        italian.load(QStringLiteral(":/studio/studio_it.qm"))) {
        QApplication::installTranslator(&italian);
    }

    DrawInit();
    seisplot::QtUserInterface userInterface;
    seisplot::ScopedUserInterface userInterfaceScope(userInterface);
    seisplot::QtDialogDriver dialogs;
    seisplot::ScopedDialogDriver dialogScope(dialogs);

    seisplot::studio::MainWindow window;
    window.SetModesFile(parser.value(modes));
    window.show();
    seisplot::studio::AutomationSteps steps;
    steps.project = parser.positionalArguments().value(0);
    steps.imports = parser.values(import);
    steps.polygon = parser.value(polygon);
    steps.select = parser.value(select);
    steps.actions = parser.values(action);
    steps.saveAs = parser.value(saveAs);
    steps.windowShot = parser.value(shot);
    steps.dialogAction = parser.value(dialog);
    steps.dialogClick = parser.value(click).toInt();
    steps.dialogReport = parser.value(report);
    steps.dialogShot = parser.value(dialogShot);
    steps.structureShot = parser.value(structureShot);
    steps.quit = parser.isSet(quit);
    if (!seisplot::studio::RunSteps(window, steps)) {
        return 1;
    }
    return steps.quit ? 0 : app.exec();
}
