#include "MainWindow.h"

#include "StructureWindow.h"
#include "dialogs/curves/CurveDisplay.h"
#include "dialogs/curves/CurveMixing.h"
#include "dialogs/polygon/GetPolygon.h"
#include "dialogs/polygon/PolygonVertices.h"
#include "dialogs/records/RecordDetails.h"
#include "dialogs/records/TimeFunction.h"
#include "host/dialogs/CoordinateDialogs.h"
#include "platform/core/Product.h"
#include "platform/core/UserInterface.h"
#include "spectra/ModesFile.h"

#include <QAction>
#include <QApplication>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QHeaderView>
#include <QMenuBar>
#include <QMessageBox>
#include <QSplitter>
#include <QStatusBar>
#include <QTreeWidget>

#include <algorithm>

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

// A side needs a vertex to start from; without one the user is told to give it first.
bool HasFirstPoint(const RPoly& polygon) {
    if (polygon.GetNPoint() > 0) {
        return true;
    }
    AfxMessageBox("Enter first point coordinates");
    return false;
}

// The curve display dialog on a collection file; the dialog saves a changed collection back to
// the file, after asking.
template <class Display> void ShowCollectionFile(const QString& path, Units& units) {
    const QByteArray file = path.toLocal8Bit();
    Display dialog;
    dialog.UnitSystem = &units;
    dialog.Path = file.constData();
    dialog.Coll.ReadFromFile(file.constData());
    dialog.DoModal();
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
    add(file, "importSpectra", tr("Import a s&pectra archive..."),
        [this] { ImportSpectraArchive(); });
    file->addSeparator();
    add(
        file, "quit", tr("&Quit"), [] { QApplication::quit(); }, QKeySequence::Quit);

    QMenu* geometry = menuBar()->addMenu(tr("&Polygon"));
    add(geometry, "polygonInput", tr("Closed polygon &input..."), [this] { EditPolygon(); });
    geometry->addSeparator();
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

    QMenu* records = menuBar()->addMenu(tr("&Records"));
    add(records, "manageRecords", tr("&Manage records..."), [this] { ManageRecords(); });
    add(records, "recordDetails", tr("Selected record's &details..."),
        [this] { EditRecordDetails(); });
    add(records, "timeFunction", tr("&Function of time..."), [this] { BuildTimeFunction(); });

    QMenu* curves = menuBar()->addMenu(tr("&Curves"));
    add(curves, "copyToCurves", tr("Copy the selected &record or spectrum to the curves"),
        [this] { CopySelectedToCurves(); });
    curves->addSeparator();
    add(curves, "openCurveFile", tr("&Open a curve file..."), [this] { OpenCurveFile(); });
    add(curves, "showCurves", tr("Curve &display..."), [this] { ShowCurves(); });
    add(curves, "mixCurves", tr("Curve &mixing..."), [this] { MixCurves(); });
    add(curves, "showPolylines", tr("&Polyline display..."), [this] { ShowPolylines(); });
    add(curves, "mixPolylines", tr("Po&lyline mixing..."), [this] { MixPolylines(); });

    QMenu* spectra = menuBar()->addMenu(tr("&Spectra"));
    add(spectra, "editSpectra", tr("Spectrum &editor..."), [this] { EditSpectra(); });
    add(spectra, "envelopeSpectra", tr("E&nvelope spectra..."), [this] { EnvelopeSpectra(); });

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
        if (QFileInfo(path).suffix().compare(QLatin1String("spc"), Qt::CaseInsensitive) == 0) {
            if (!ImportSpectra(path)) {
                return false;
            }
            continue;
        }
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

bool MainWindow::ImportSpectra(const QString& path) {
    SpectrumColl read;
    CString file(path.toLocal8Bit().constData());
    try {
        read.ReadFromFile(file);
    } catch (CException* e) {
        e->ReportError();
        e->Delete();
        return false;
    }
    for (unsigned long i = 1; i <= read.GetSpectrumNum(); ++i) {
        m_project.spectra.AddSpectrum(*read.GetP(i));
    }
    Refresh();
    return true;
}

void MainWindow::ImportSpectraArchive() {
    const QString path =
        QFileDialog::getOpenFileName(this, tr("Import a spectra archive"), QFileInfo(m_path).path(),
                                     tr("Spectra archives (*.spc);;All files (*)"));
    if (!path.isEmpty()) {
        ImportSpectra(path);
    }
}

void MainWindow::EditPolygon() {
    GetPolygon dialog;
    dialog.Poly = m_project.polygon;
    if (dialog.DoModal() == IDOK) {
        m_project.polygon = dialog.Poly;
        SelectItem("Polygon");
        Refresh();
    }
}

void MainWindow::AddPoint() {
    GetXY dialog;
    if (dialog.DoModal() == IDOK) {
        m_project.polygon.AddPoint(dialog.X, dialog.Y);
        SelectItem("Polygon");
        Refresh();
    }
}

void MainWindow::AddVertex(const RPoint2D& vertex) {
    m_project.polygon.AddPoint(vertex);
    Refresh();
}

void MainWindow::AddSideByProjections() {
    GetDxDy dialog;
    if (HasFirstPoint(m_project.polygon) && dialog.DoModal() == IDOK) {
        AddVertex(SideByProjections(m_project.polygon.GetLastPoint(), dialog.DX, dialog.DY));
    }
}

void MainWindow::AddSideByAngleAndLength() {
    GetAnDi dialog;
    if (HasFirstPoint(m_project.polygon) && dialog.DoModal() == IDOK) {
        AddVertex(
            SideByAngleAndLength(m_project.polygon.GetLastPoint(), dialog.Angle, dialog.Distance));
    }
}

void MainWindow::AddSideByAngleAndDx() {
    GetAnDx dialog;
    if (HasFirstPoint(m_project.polygon) && dialog.DoModal() == IDOK) {
        if (!AngleAllowsDx(dialog.Angle)) {
            AfxMessageBox(tr("A vertical side has no dx.").toUtf8());
            return;
        }
        AddVertex(SideByAngleAndDx(m_project.polygon.GetLastPoint(), dialog.Angle, dialog.DX));
    }
}

void MainWindow::AddSideByAngleAndDy() {
    GetAnDy dialog;
    if (HasFirstPoint(m_project.polygon) && dialog.DoModal() == IDOK) {
        if (!AngleAllowsDy(dialog.Angle)) {
            AfxMessageBox(tr("A horizontal side has no dy.").toUtf8());
            return;
        }
        AddVertex(SideByAngleAndDy(m_project.polygon.GetLastPoint(), dialog.Angle, dialog.DY));
    }
}

void MainWindow::AddArc() {
    GetArc1 dialog;
    if (dialog.DoModal() == IDOK) {
        AppendArc(m_project.polygon, dialog.CX, dialog.CY, dialog.Radius, dialog.Angle1,
                  dialog.Angle2, dialog.Segments);
        SelectItem("Polygon");
        Refresh();
    }
}

void MainWindow::ClearPolygon() {
    m_project.polygon.Clear();
    Refresh();
}

void MainWindow::ManageRecords() {
    if (m_project.records.GetData(&m_project.units) == 0) {
        Refresh();
    }
}

void MainWindow::EditRecordDetails() {
    QTreeWidgetItem* item = m_panel->currentItem();
    const QStringList path =
        item != nullptr ? item->data(0, kPathRole).toString().split('/') : QStringList();
    Accelerogram* record =
        path.value(0) == "Records"
            ? m_project.records.GetP(static_cast<unsigned long>(path.value(1).toInt()))
            : nullptr;
    if (record == nullptr) {
        statusBar()->showMessage(tr("Select a record first"), 5000);
        return;
    }
    AccData details(nullptr);
    details.CopyFrom(*record);
    if (details.DoModal() == IDOK) {
        details.CopyTo(*record);
        Refresh();
    }
}

void MainWindow::BuildTimeFunction() {
    GetTimeCurve dialog;
    if (dialog.DoModal() != IDOK || dialog.Function.GetNP() == 0) {
        return;
    }
    PCurve function = dialog.Function;
    if (function.GetName().IsEmpty()) {
        static const char* const kKinds[] = {"impulse",   "step", "limited step", "ramp",
                                             "trapezoid", "sine", "cosine",       "generic"};
        CString name = "f(t) ";
        name += kKinds[std::clamp(dialog.Kind, 0, 7)];
        function.SetName(name);
    }
    m_project.curves.AddPCurve(function);
    Refresh();
    SelectItem(QStringLiteral("Curves/%1").arg(m_project.curves.GetPCurveNum()));
}

void MainWindow::EditSpectra() {
    if (m_project.spectra.GetData(&m_project.units) == 0) {
        Refresh();
    }
}

void MainWindow::EnvelopeSpectra() {
    QString path = m_modesFile;
    if (path.isEmpty()) {
        path = QFileDialog::getOpenFileName(
            this, tr("The structure's modes"), QFileInfo(m_path).path(),
            tr("Modes of a structure (*.modes *.txt);;All files (*)"));
        if (path.isEmpty()) {
            return;
        }
    }
    EnvelopeModes modes;
    std::string error;
    if (!seisplot::ReadModesFile(path.toLocal8Bit().toStdString(), modes, error)) {
        AfxMessageBox(error.c_str());
        return;
    }
    m_modesFile = path;
    if (m_project.spectra.GetData(
            &m_project.records, static_cast<unsigned long>(modes.Periods.size()),
            modes.Periods.data(), modes.Shares.data(), &m_project.units) == 0) {
        Refresh();
    }
}

void MainWindow::CopySelectedToCurves() {
    QTreeWidgetItem* item = m_panel->currentItem();
    const QStringList path =
        item != nullptr ? item->data(0, kPathRole).toString().split('/') : QStringList();
    const auto number = static_cast<unsigned long>(path.value(1).toInt());
    if (path.value(0) == "Records" && number > 0) {
        m_project.curves.AddPCurve(m_project.records.GetP(number)->Record);
    } else if (path.value(0) == "Spectra" && number > 0) {
        m_project.curves.AddPCurve(m_project.spectra.GetP(number)->Curve);
    } else {
        statusBar()->showMessage(tr("Select a record or a spectrum first"), 5000);
        return;
    }
    Refresh();
    SelectItem(QStringLiteral("Curves/%1").arg(m_project.curves.GetPCurveNum()));
}

void MainWindow::OpenCurveFile() {
    const QString path =
        QFileDialog::getOpenFileName(this, tr("Open a curve file"), QFileInfo(m_path).path(),
                                     tr("Curve collections (*.pcc *.pmc)"));
    if (path.isEmpty()) {
        return;
    }
    if (QFileInfo(path).suffix().compare(QLatin1String("pmc"), Qt::CaseInsensitive) == 0) {
        ShowCollectionFile<PrintPMCurve>(path, m_project.units);
    } else {
        ShowCollectionFile<PrintPCurve>(path, m_project.units);
    }
}

QString MainWindow::CollectionPath(const char* extension) const {
    const QFileInfo project(m_path.isEmpty() ? QDir::home().filePath("untitled.spj") : m_path);
    return project.dir().filePath(project.completeBaseName() + QLatin1String(extension));
}

void MainWindow::ShowCurves() {
    PrintPCurve dialog;
    dialog.UnitSystem = &m_project.units;
    dialog.Coll = m_project.curves;
    dialog.Path = CollectionPath(".pcc").toLocal8Bit().constData();
    if (dialog.DoModal() == IDOK) {
        m_project.curves = dialog.Coll;
        Refresh();
    }
}

void MainWindow::ShowPolylines() {
    PrintPMCurve dialog;
    dialog.UnitSystem = &m_project.units;
    dialog.Coll = m_project.polylines;
    dialog.Path = CollectionPath(".pmc").toLocal8Bit().constData();
    if (dialog.DoModal() == IDOK) {
        m_project.polylines = dialog.Coll;
        Refresh();
    }
}

void MainWindow::MixCurves() {
    MixPCurve dialog;
    dialog.UnitSystem = m_project.units;
    dialog.Coll = m_project.curves;
    if (dialog.DoModal() == IDOK) {
        m_project.curves = dialog.Coll;
        Refresh();
    }
}

void MainWindow::MixPolylines() {
    MixCurve dialog;
    dialog.UnitSystem = m_project.units;
    dialog.Coll = m_project.polylines;
    if (dialog.DoModal() == IDOK) {
        m_project.polylines = dialog.Coll;
        Refresh();
    }
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
