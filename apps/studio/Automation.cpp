#include "Automation.h"

#include "MainWindow.h"
#include "StructureWindow.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QDialog>
#include <QElapsedTimer>
#include <QFile>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QProcess>
#include <QRegularExpression>
#include <QTextStream>
#include <QTimer>
#include <QWindow>

#include <iostream>

namespace seisplot::studio {
namespace {

bool Fail(const QString& why) {
    std::cerr << "seisplot-studio: " << why.toStdString() << '\n';
    return false;
}

// Lets the window system show `widget` before it is photographed: until it is exposed, and
// then a moment more, for a window manager that frames and maps it again.
void WaitUntilShown(QWidget* widget) {
    QElapsedTimer waited;
    waited.start();
    while (waited.elapsed() < 5000 &&
           (widget->windowHandle() == nullptr || !widget->windowHandle()->isExposed())) {
        QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
    }
    waited.restart();
    while (waited.elapsed() < 300) {
        QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
    }
    widget->repaint();
    QCoreApplication::processEvents();
}

// "x,y x,y ..." (or separated by semicolons) as the project's polygon.
bool SetPolygon(MainWindow& window, const QString& vertices) {
    RPoly polygon;
    for (const QString& vertex :
         vertices.split(QRegularExpression("[\\s;]+"), Qt::SkipEmptyParts)) {
        const QStringList xy = vertex.split(',');
        bool xRead = false;
        bool yRead = false;
        const double x = xy.value(0).toDouble(&xRead);
        const double y = xy.value(1).toDouble(&yRead);
        if (xy.size() != 2 || !xRead || !yRead) {
            return false;
        }
        polygon.AddPoint(x, y);
    }
    window.CurrentProject().polygon = polygon;
    window.Refresh();
    return true;
}

} // namespace

bool DialogWitness::eventFilter(QObject* watched, QEvent* event) {
    auto* dialog = qobject_cast<QDialog*>(watched);
    if (!m_seen && event->type() == QEvent::Show && dialog != nullptr && dialog->isWindow()) {
        // After the dialog has shown itself: Show comes before its first paint.
        if (m_click != 0 && !m_pressed) {
            m_pressed = true;
            QTimer::singleShot(0, dialog, [this, dialog] { Press(dialog); });
        } else {
            m_seen = true;
            QTimer::singleShot(0, dialog, [this, dialog] { Witness(dialog); });
        }
    }
    return QObject::eventFilter(watched, event);
}

void DialogWitness::Press(QDialog* dialog) {
    WaitUntilShown(dialog);
    for (auto* button : dialog->findChildren<QAbstractButton*>()) {
        if (button->property("controlId").toInt() == m_click) {
            button->click(); // returns once the dialog it opens has been witnessed
            break;
        }
    }
    dialog->reject();
}

void DialogWitness::Witness(QDialog* dialog) {
    WaitUntilShown(dialog);
    QFile file(m_report);
    if (!m_report.isEmpty() && file.open(QIODevice::WriteOnly | QIODevice::Text)) {
        QTextStream out(&file);
        out << "title: " << dialog->windowTitle() << '\n';
        for (QWidget* child : dialog->findChildren<QWidget*>()) {
            QString text;
            if (auto* label = qobject_cast<QLabel*>(child)) {
                text = label->text();
            } else if (auto* button = qobject_cast<QAbstractButton*>(child)) {
                text = button->text();
            } else if (auto* line = qobject_cast<QLineEdit*>(child)) {
                text = line->text();
            } else if (auto* group = qobject_cast<QGroupBox*>(child)) {
                text = group->title();
            } else {
                continue;
            }
            out << child->metaObject()->className() << ": " << text << '\n';
        }
    }
    if (!m_shot.isEmpty()) {
        // The whole screen as the X server shows it; without one, the dialog alone.
        const bool x11 = QGuiApplication::platformName() == QLatin1String("xcb");
        if (!x11 || QProcess::execute("import", {"-window", "root", m_shot}) != 0) {
            dialog->grab().save(m_shot, "PNG");
        }
    }
    dialog->reject();
}

bool RunSteps(MainWindow& window, const AutomationSteps& steps) {
    WaitUntilShown(&window);
    if (!steps.project.isEmpty() && !window.OpenProject(steps.project)) {
        return Fail("cannot open " + steps.project);
    }
    if (!steps.imports.isEmpty() && !window.ImportRecords(steps.imports)) {
        return Fail("cannot import " + steps.imports.join(' '));
    }
    if (!steps.polygon.isEmpty() && !SetPolygon(window, steps.polygon)) {
        return Fail("not a polygon: " + steps.polygon);
    }
    if (!steps.select.isEmpty() && !window.SelectItem(steps.select)) {
        return Fail("no item " + steps.select + " in the project");
    }
    for (const QString& name : steps.actions) {
        auto* action = window.findChild<QAction*>(name);
        if (action == nullptr) {
            return Fail("no menu action " + name);
        }
        action->trigger();
    }
    if (!steps.saveAs.isEmpty() && !window.SaveProjectAs(steps.saveAs)) {
        return Fail("cannot save " + steps.saveAs);
    }
    if (!steps.windowShot.isEmpty()) {
        WaitUntilShown(&window);
        if (!window.grab().save(steps.windowShot, "PNG")) {
            return Fail("cannot write " + steps.windowShot);
        }
    }
    if (!steps.dialogAction.isEmpty()) {
        auto* action = window.findChild<QAction*>(steps.dialogAction);
        if (action == nullptr) {
            return Fail("no menu action " + steps.dialogAction);
        }
        DialogWitness witness(steps.dialogReport, steps.dialogShot, steps.dialogClick);
        qApp->installEventFilter(&witness);
        action->trigger();
        qApp->removeEventFilter(&witness);
        if (!witness.Seen()) {
            return Fail(steps.dialogAction + " opened no dialog");
        }
    }
    if (!steps.structureShot.isEmpty()) {
        window.findChild<QAction*>("showStructure")->trigger();
        StructureWindow* structure = window.Structure();
        WaitUntilShown(structure);
        if (!structure->grab().save(steps.structureShot, "PNG")) {
            return Fail("cannot write " + steps.structureShot);
        }
    }
    return true;
}

} // namespace seisplot::studio
