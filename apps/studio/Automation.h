#pragma once
// Steps the studio runs by itself when asked on the command line: what its tests and the
// screenshots of the documentation need (open, import, set the polygon, save, select, open a
// dialog through its menu, press a button in it, describe and photograph the dialog,
// photograph the structure window, quit).

#include <QObject>
#include <QString>
#include <QStringList>

class QDialog;

namespace seisplot::studio {

class MainWindow;

struct AutomationSteps {
    QString project;       // open this project
    QStringList imports;   // then import these record files
    QString polygon;       // then make these vertices the polygon: "x,y x,y ..."
    QString select;        // then select this item of the side panel
    QStringList actions;   // then trigger these menu actions, which open no dialog
    QString saveAs;        // then save the project here
    QString windowShot;    // then photograph the main window
    QString dialogAction;  // then trigger this menu action...
    int dialogClick = 0;   // ...click this control of its dialog, and take the one it opens...
    QString dialogReport;  // ...describe the dialog it opens in this text file...
    QString dialogShot;    // ...photograph the screen with it (import -window root)
    QString structureShot; // open the structure window and photograph it
    bool quit = false;     // and end, instead of waiting for the user
};

// Runs the steps once the window is on screen; false (after saying why on the error stream)
// when one fails.
bool RunSteps(MainWindow& window, const AutomationSteps& steps);

// Describes and photographs the next dialog that shows, then cancels it. With a control to
// click, the first dialog only has that control clicked; the dialog that opens then is the
// one witnessed, and the first is cancelled after it.
class DialogWitness : public QObject {
public:
    DialogWitness(QString report, QString shot, int click)
        : m_report(std::move(report)), m_shot(std::move(shot)), m_click(click) {}
    bool eventFilter(QObject* watched, QEvent* event) override;
    bool Seen() const { return m_seen; }

private:
    void Press(QDialog* dialog);
    void Witness(QDialog* dialog);

    QString m_report;
    QString m_shot;
    int m_click;
    bool m_pressed = false;
    bool m_seen = false;
};

} // namespace seisplot::studio
