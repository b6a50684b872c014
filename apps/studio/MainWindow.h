#pragma once
// The studio's main window: the project in a side panel, the selected item drawn in the
// centre, and menus that open the library's dialogs the way a host opens them.

#include "PlotView.h"
#include "Project.h"
#include "StructureWindow.h"

#include <QMainWindow>
#include <QPointer>

class QTreeWidget;

namespace seisplot::studio {

class MainWindow : public QMainWindow {
    Q_OBJECT

public:
    MainWindow();

    Project& CurrentProject() { return m_project; }
    bool OpenProject(const QString& path);
    bool SaveProjectAs(const QString& path);
    // Imports record files as the multi-file import does, without asking for them; a spectra
    // archive (*.spc, as the command line writes it) adds its spectra.
    bool ImportRecords(const QStringList& paths);
    bool ImportSpectra(const QString& path);
    // Selects the item a path in the side panel names: "Records/2", "Polygon", ...
    bool SelectItem(const QString& path);
    PlotView& View() { return *m_view; }
    // The window with the structural drawing through both back ends, opened by its menu
    // action; null until then.
    StructureWindow* Structure() const { return m_structure; }

    // Rebuilds the side panel and redraws the view from the project.
    void Refresh();
    // The structure's modes file for the envelope spectra (asked for when not set).
    void SetModesFile(const QString& path) { m_modesFile = path; }

private:
    void BuildMenus();
    void ShowSelected();
    void SetFileName(const QString& path);
    // File menu
    void NewProject();
    void Open();
    void Save();
    void SaveAs();
    void ImportRecordFiles();
    void ImportSpectraArchive();
    // Polygon menu: the library's polygon dialog, and the geometry library's dialogs one by one
    void EditPolygon();
    void AddPoint();
    void AddSideByProjections();
    void AddSideByAngleAndLength();
    void AddSideByAngleAndDx();
    void AddSideByAngleAndDy();
    void AddArc();
    void AddVertex(const RPoint2D& vertex);
    void ClearPolygon();
    // Records menu: the record management dialog on the project's records, and the function
    // of time added to the project's curves
    void ManageRecords();
    void EditRecordDetails();
    void BuildTimeFunction();
    // Curves menu: the curve display and mixing dialogs on the project's curves and polylines
    void CopySelectedToCurves();
    // A curve collection file (*.pcc or *.pmc) in the curve display dialog.
    void OpenCurveFile();
    void ShowCurves();
    void ShowPolylines();
    void MixCurves();
    void MixPolylines();
    // Where the display dialogs save a changed collection: beside the project.
    QString CollectionPath(const char* extension) const;
    // Spectra menu: the spectrum editor on the project's spectra, and the envelope spectrum
    // dialog on the project's records with the structure's modes
    void EditSpectra();
    void EnvelopeSpectra();
    // View menu
    void ShowStructure();
    // Settings menu
    void ChooseUnits();
    void ChoosePlotFont(SFont& font);
    void About();

    Project m_project;
    QString m_path;
    QString m_modesFile;
    QTreeWidget* m_panel;
    PlotView* m_view;
    QPointer<StructureWindow> m_structure;
};

} // namespace seisplot::studio
