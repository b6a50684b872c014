#include "MainWindow.h"

#include "PolygonSides.h"
#include "StructureWindow.h"
#include "host/dialogs/CoordinateDialogs.h"
#include "platform/core/Product.h"
#include "platform/core/UserInterface.h"

#include <QAction>
#include <QApplication>
#include <QFileDialog>
#include <QFileInfo>
#include <QHeaderView>
#include <QMenuBar>
#include <QMessageBox>
#include <QSplitter>
#include <QStatusBar>
#include <QTreeWidget>

namespace seisplot::studio {
namespace {

QString Text(const CString& text) {
    return QString::fromUtf8(text.GetString(), text.GetLength());
}

// The data path of a side-panel item: "Records/2" is record 2.
constexpr int kPathRole = Qt::UserRole;

QTreeWidgetItem* Group(QTreeWidget* panel, const QString& name, const QString& label) {
    auto* item = new QTreeWidgetItem(panel, {label});
    item->setData(0, kPathRole, name);
    return item;
}

void Child(QTreeWidgetItem* group, const QString& name, int number, const QString& label) {
    auto* item = new QTreeWidgetItem(group, {label});
    item->setData(0, kPathRole, QStringLiteral("%1/%2").arg(name).arg(number));
}

} // namespace

MainWindow::MainWindow() : m_panel(new QTreeWidget), m_view(new PlotView) {
    m_panel->setHeaderHidden(true);
    m_panel->setMinimumWidth(240);
    auto* splitter = new QSplitter;
    splitter->addWidget(m_panel);
    splitter->addWidget(m_view);
    splitter->setStretchFactor(1, 1);
    setCentralWidget(splitter);
    QObject::connect(m_panel, &QTreeWidget::currentItemChanged, this, [this] { ShowSelected(); });
    BuildMenus();
    SetFileName(QString());
    Refresh();
    resize(1000, 680);
}

void MainWindow::BuildMenus() {
    const auto add = [this](QMenu* menu, const char* name, const QString& text, auto slot,
                            QKeySequence key = {}) {
        QAction* action = menu->addAction(text, this, slot);
        action->setObjectName(QLatin1String(name));
        action->setShortcut(key);
        return action;
    };
    QMenu* file = menuBar()->addMenu(tr("&File"));
    add(
        file, "newProject", tr("&New project"), [this] { NewProject(); }, QKeySequence::New);
    add(
        file, "openProject", tr("&Open project..."), [this] { Open(); }, QKeySequence::Open);
    add(
        file, "saveProject", tr("&Save project"), [this] { Save(); }, QKeySequence::Save);
    add(file, "saveProjectAs", tr("Save project &as..."), [this] { SaveAs(); });
    file->addSeparator();
    add(file, "importRecords", tr("&Import record files..."), [this] { ImportRecordFiles(); });
    file->addSeparator();
    add(
        file, "quit", tr("&Quit"), [] { QApplication::quit(); }, QKeySequence::Quit);

    QMenu* geometry = menuBar()->addMenu(tr("&Geometry"));
    add(geometry, "addPoint", tr("Add &point..."), [this] { AddPoint(); });
    add(geometry, "addSideDxDy", tr("Add side by &projections..."),
        [this] { AddSideByProjections(); });
    add(geometry, "addSideAnDi", tr("Add side by angle and &length..."),
        [this] { AddSideByAngleAndLength(); });
    add(geometry, "addSideAnDx", tr("Add side by angle and d&x..."),
        [this] { AddSideByAngleAndDx(); });
    add(geometry, "addSideAnDy", tr("Add side by angle and d&y..."),
        [this] { AddSideByAngleAndDy(); });
    add(geometry, "addArc", tr("Add &arc..."), [this] { AddArc(); });
    geometry->addSeparator();
    add(geometry, "clearPolygon", tr("&Clear the polygon"), [this] { ClearPolygon(); });

    QMenu* view = menuBar()->addMenu(tr("&View"));
    add(view, "showStructure", tr("&Structure in GDI and OpenGL..."), [this] { ShowStructure(); });

    QMenu* settings = menuBar()->addMenu(tr("&Settings"));
    add(settings, "chooseUnits", tr("&Units..."), [this] { ChooseUnits(); });
    add(settings, "titleFont", tr("Plot &title font..."),
        [this] { ChoosePlotFont(m_view->titleFont); });
    add(settings, "axisFont", tr("Plot &axis font..."),
        [this] { ChoosePlotFont(m_view->axisFont); });
    add(settings, "labelFont", tr("Plot &label font..."),
        [this] { ChoosePlotFont(m_view->labelFont); });

    QMenu* help = menuBar()->addMenu(tr("&Help"));
    add(help, "about", tr("&About"), [this] { About(); });
}

void MainWindow::SetFileName(const QString& path) {
    m_path = path;
    const QString name = path.isEmpty() ? tr("untitled") : QFileInfo(path).fileName();
    setWindowTitle(tr("%1 - seisplot studio").arg(name));
}

void MainWindow::Refresh() {
    const QString selected =
        m_panel->currentItem() ? m_panel->currentItem()->data(0, kPathRole).toString() : QString();
    m_panel->clear();
    const unsigned long recordCount = m_project.records.GetAccelerogramNum();
    QTreeWidgetItem* records = Group(m_panel, "Records", tr("Records (%1)").arg(recordCount));
    for (unsigned long i = 1; i <= recordCount; ++i) {
        Child(records, "Records", static_cast<int>(i),
              Text(m_project.records.GetP(i)->GetIdentifier()));
    }
    const unsigned long spectrumCount = m_project.spectra.GetSpectrumNum();
    QTreeWidgetItem* spectra = Group(m_panel, "Spectra", tr("Spectra (%1)").arg(spectrumCount));
    for (unsigned long i = 1; i <= spectrumCount; ++i) {
        Child(spectra, "Spectra", static_cast<int>(i), Text(m_project.spectra.GetP(i)->GetName()));
    }
    const int curveCount = m_project.curves.GetPCurveNum();
    QTreeWidgetItem* curves = Group(m_panel, "Curves", tr("Curves (%1)").arg(curveCount));
    for (int i = 1; i <= curveCount; ++i) {
        Child(curves, "Curves", i, Text(m_project.curves.GetP(i)->GetName()));
    }
    const int polylineCount = m_project.polylines.GetPMCurveNum();
    QTreeWidgetItem* polylines =
        Group(m_panel, "Polylines", tr("Polylines (%1)").arg(polylineCount));
    for (int i = 1; i <= polylineCount; ++i) {
        Child(polylines, "Polylines", i, Text(m_project.polylines.GetP(i)->GetName()));
    }
    Group(m_panel, "Polygon", tr("Polygon (%1 vertices)").arg(m_project.polygon.GetNPoint()));
    Units& u = m_project.units;
    Group(m_panel, "Units",
          tr("Units: %1, %2, %3").arg(u.GetLString(), u.GetFString(), u.GetTString()));
    m_panel->expandAll();
    if (!SelectItem(selected)) {
        ShowSelected();
    }
    if (m_structure != nullptr) {
        m_structure->Redraw();
    }
}

bool MainWindow::SelectItem(const QString& path) {
    if (path.isEmpty()) {
        return false;
    }
    for (QTreeWidgetItemIterator it(m_panel); *it != nullptr; ++it) {
        if ((*it)->data(0, kPathRole).toString() == path) {
            m_panel->setCurrentItem(*it);
            ShowSelected();
            return true;
        }
    }
    return false;
}

void MainWindow::ShowSelected() {
    QTreeWidgetItem* item = m_panel->currentItem();
    const QStringList path =
        item != nullptr ? item->data(0, kPathRole).toString().split('/') : QStringList();
    Units* units = &m_project.units;
    const QString kind = path.value(0);
    const int number = path.value(1).toInt();
    PlotView::Shown shown;
    if (kind == "Records" && number > 0) {
        shown = &m_project.records.GetP(static_cast<unsigned long>(number))->Record;
    } else if (kind == "Spectra" && number > 0) {
        shown = &m_project.spectra.GetP(static_cast<unsigned long>(number))->Curve;
    } else if (kind == "Curves" && number > 0) {
        shown = static_cast<const PCurve*>(m_project.curves.GetP(number));
    } else if (kind == "Polylines" && number > 0) {
        shown = static_cast<const PMCurve*>(m_project.polylines.GetP(number));
    } else if (kind == "Polygon") {
        shown = static_cast<const RPoly*>(&m_project.polygon);
    }
    m_view->Show(shown, units);
}

void MainWindow::NewProject() {
    m_project = Project();
    SetFileName(QString());
    Refresh();
}

bool MainWindow::OpenProject(const QString& path) {
    std::string error;
    if (!m_project.Open(path.toLocal8Bit().toStdString(), error)) {
        AfxMessageBox(tr("Cannot open %1: %2").arg(path, QString::fromStdString(error)).toUtf8());
        return false;
    }
    SetFileName(path);
    Refresh();
    statusBar()->showMessage(tr("Opened %1").arg(path), 5000);
    return true;
}

bool MainWindow::SaveProjectAs(const QString& path) {
    std::string error;
    if (!m_project.Save(path.toLocal8Bit().toStdString(), error)) {
        AfxMessageBox(tr("Cannot save %1: %2").arg(path, QString::fromStdString(error)).toUtf8());
        return false;
    }
    SetFileName(path);
    statusBar()->showMessage(tr("Saved %1").arg(path), 5000);
    return true;
}

void MainWindow::Open() {
    const QString path = QFileDialog::getOpenFileName(this, tr("Open project"), QString(),
                                                      tr("seisplot projects (*.spj)"));
    if (!path.isEmpty()) {
        OpenProject(path);
    }
}

void MainWindow::Save() {
    if (m_path.isEmpty()) {
        SaveAs();
    } else {
        SaveProjectAs(m_path);
    }
}

void MainWindow::SaveAs() {
    QString path = QFileDialog::getSaveFileName(this, tr("Save project"), m_path,
                                                tr("seisplot projects (*.spj)"));
    if (path.isEmpty()) {
        return;
    }
    if (QFileInfo(path).suffix().isEmpty()) {
        path += QStringLiteral(".spj");
    }
    SaveProjectAs(path);
}

void MainWindow::ImportRecordFiles() {
    // The library's multi-file import asks for the files, and for units when it needs them.
    AccelerogramColl read;
    if (read.ReadFromFile(0, nullptr) == 0) {
        m_project.records += read;
        Refresh();
    }
}

bool MainWindow::ImportRecords(const QStringList& paths) {
    for (const QString& path : paths) {
        Accelerogram record;
        const QByteArray bytes = path.toLocal8Bit();
        const CString name = QFileInfo(path).fileName().toLocal8Bit().constData();
        if (record.ReadASC(1, name, CString(bytes.constData())) != 0) {
            return false;
        }
        m_project.records.AddAccelerogram(record);
    }
    Refresh();
    return true;
}

void MainWindow::AddPoint() {
    GetXY dialog;
    if (dialog.DoModal() == IDOK) {
        m_project.polygon.AddPoint(dialog.X, dialog.Y);
        SelectItem("Polygon");
        Refresh();
    }
}

void MainWindow::AddSideByProjections() {
    if (!HasFirstPoint(m_project.polygon)) {
        return;
    }
    GetDxDy dialog;
    if (dialog.DoModal() == IDOK) {
        AddSide(m_project.polygon, dialog.DX, dialog.DY);
        Refresh();
    }
}

void MainWindow::AddSideByAngleAndLength() {
    if (!HasFirstPoint(m_project.polygon)) {
        return;
    }
    GetAnDi dialog;
    if (dialog.DoModal() == IDOK) {
        AddSide(m_project.polygon, SideByAngleAndLength(dialog.Angle, dialog.Distance));
        Refresh();
    }
}

void MainWindow::AddSideByAngleAndDx() {
    if (!HasFirstPoint(m_project.polygon)) {
        return;
    }
    GetAnDx dialog;
    if (dialog.DoModal() == IDOK) {
        AddSide(m_project.polygon, SideByAngleAndDx(dialog.Angle, dialog.DX));
        Refresh();
    }
}

void MainWindow::AddSideByAngleAndDy() {
    if (!HasFirstPoint(m_project.polygon)) {
        return;
    }
    GetAnDy dialog;
    if (dialog.DoModal() == IDOK) {
        AddSide(m_project.polygon, SideByAngleAndDy(dialog.Angle, dialog.DY));
        Refresh();
    }
}

void MainWindow::AddArc() {
    GetArc1 dialog;
    if (dialog.DoModal() == IDOK) {
        AddArcVertices(m_project.polygon, dialog.CX, dialog.CY, dialog.Radius, dialog.Angle1,
                       dialog.Angle2, dialog.Segments);
        SelectItem("Polygon");
        Refresh();
    }
}

void MainWindow::ClearPolygon() {
    m_project.polygon.Clear();
    Refresh();
}

void MainWindow::ShowStructure() {
    if (m_structure == nullptr) {
        m_structure = new StructureWindow(m_project.polygon, this);
        m_structure->setWindowFlag(Qt::Window);
        m_structure->setAttribute(Qt::WA_DeleteOnClose);
    }
    m_structure->show();
    m_structure->raise();
}

void MainWindow::ChooseUnits() {
    m_project.units.Reset(nullptr, 1, 1, 1, 0);
    Refresh();
}

void MainWindow::ChoosePlotFont(SFont& font) {
    if (font.Get(nullptr, font.GetFont(), font.Color) != 0) {
        m_view->Redraw();
    }
}

void MainWindow::About() {
    QMessageBox::about(this, tr("About seisplot studio"),
                       tr("<b>seisplot studio</b><p>%1</p><p>The desktop application that holds "
                          "a project of records, spectra, curves and a polygon, and opens the "
                          "library's dialogs on it.</p>")
                           .arg(QString::fromUtf8(seisplot::kProductLine)));
}

} // namespace seisplot::studio
