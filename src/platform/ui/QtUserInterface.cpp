#include "platform/ui/QtUserInterface.h"

#include "platform/core/CFileDialog.h"
#include "platform/ui/FontMapping_p.h"
#include "platform/ui/PrintDialog.h"

#include <QApplication>
#include <QColorDialog>
#include <QComboBox>
#include <QDesktopServices>
#include <QDialog>
#include <QDialogButtonBox>
#include <QFile>
#include <QFileDialog>
#include <QFontDialog>
#include <QFormLayout>
#include <QMessageBox>
#include <QPrintDialog>
#include <QPrinter>
#include <QProcess>
#include <QUrl>

#include <algorithm>
#include <utility>

namespace seisplot {
namespace {

constexpr std::pair<int, QMessageBox::StandardButton> kButtons[] = {
    {IDOK, QMessageBox::Ok},       {IDCANCEL, QMessageBox::Cancel}, {IDABORT, QMessageBox::Abort},
    {IDRETRY, QMessageBox::Retry}, {IDIGNORE, QMessageBox::Ignore}, {IDYES, QMessageBox::Yes},
    {IDNO, QMessageBox::No},
};

QMessageBox::StandardButton StandardButtonOf(int id) {
    for (const auto& [buttonId, standard] : kButtons) {
        if (buttonId == id) {
            return standard;
        }
    }
    return QMessageBox::NoButton;
}

int IdOf(QMessageBox::StandardButton standard, int fallback) {
    for (const auto& [buttonId, button] : kButtons) {
        if (button == standard) {
            return buttonId;
        }
    }
    return fallback;
}

QMessageBox::Icon IconOf(UINT type) {
    switch (type & MB_ICONMASK) {
    case MB_ICONERROR:
        return QMessageBox::Critical;
    case MB_ICONQUESTION:
        return QMessageBox::Question;
    case MB_ICONWARNING:
        return QMessageBox::Warning;
    case MB_ICONINFORMATION:
        return QMessageBox::Information;
    default:
        return QMessageBox::NoIcon;
    }
}

QWidget* ActiveWindow() {
    QWidget* modal = QApplication::activeModalWidget();
    return modal != nullptr ? modal : QApplication::activeWindow();
}

QString FromCString(const CString& text) {
    return QString::fromLocal8Bit(text.GetString(), text.GetLength());
}

CString PathOf(const QString& path) {
    const QByteArray bytes = QFile::encodeName(path);
    return CString(bytes.constData(), static_cast<int>(bytes.size()));
}

// "Description (*.a *.b)" per group: Qt takes the patterns from the last parentheses and,
// with the details hidden, shows the description as the caller wrote it.
QStringList NameFilters(const CString& filter) {
    QStringList filters;
    for (const FileFilter& group : ParseFileFilter(filter)) {
        QStringList patterns;
        for (const CString& pattern : group.patterns) {
            patterns << FromCString(pattern);
        }
        filters << FromCString(group.description) + QStringLiteral(" (") +
                       patterns.join(QLatin1Char(' ')) + QLatin1Char(')');
    }
    return filters;
}

} // namespace

int QtUserInterface::ShowMessage(const CString& text, UINT type) {
    QMessageBox box(IconOf(type), QApplication::applicationDisplayName(), FromCString(text),
                    QMessageBox::NoButton, ActiveWindow());
    for (int id : MessageButtons(type)) {
        box.addButton(StandardButtonOf(id));
    }
    box.setDefaultButton(StandardButtonOf(DefaultButton(type)));
    box.exec();
    return IdOf(box.standardButton(box.clickedButton()), DefaultButton(type));
}

std::optional<std::vector<CString>> QtUserInterface::ChooseFiles(const FileRequest& request) {
    QFileDialog dialog(ActiveWindow());
    dialog.setAcceptMode(request.open ? QFileDialog::AcceptOpen : QFileDialog::AcceptSave);
    dialog.setFileMode(!request.open         ? QFileDialog::AnyFile
                       : request.multiSelect ? QFileDialog::ExistingFiles
                                             : QFileDialog::ExistingFile);
    const QStringList filters = NameFilters(request.filter);
    if (!filters.isEmpty()) {
        dialog.setNameFilters(filters);
        dialog.setOption(QFileDialog::HideNameFilterDetails);
    }
    QString extension = FromCString(request.defaultExtension);
    while (extension.startsWith(QLatin1Char('*')) || extension.startsWith(QLatin1Char('.'))) {
        extension.remove(0, 1);
    }
    if (!extension.isEmpty() && !extension.contains(QLatin1Char('*'))) {
        dialog.setDefaultSuffix(extension);
    }
    if (!request.fileName.IsEmpty()) {
        dialog.selectFile(QFile::decodeName(request.fileName.GetString()));
    }
    if (!request.open && (request.flags & OFN_OVERWRITEPROMPT) == 0) {
        dialog.setOption(QFileDialog::DontConfirmOverwrite);
    }
    if (dialog.exec() != QDialog::Accepted) {
        return std::nullopt;
    }
    std::vector<CString> paths;
    for (const QString& path : dialog.selectedFiles()) {
        paths.push_back(PathOf(path));
    }
    if (paths.empty()) {
        return std::nullopt;
    }
    return paths;
}

bool QtUserInterface::ChooseUnits(UnitQuestion& question) {
    const bool asks = std::any_of(question.quantities.begin(), question.quantities.end(),
                                  [](const UnitQuestion::Quantity& q) { return q.ask; });
    if (!asks) {
        return true;
    }
    // One list per quantity; the ones not asked are shown for information only.
    QDialog dialog(ActiveWindow());
    dialog.setWindowTitle(FromCString(question.title));
    auto* form = new QFormLayout(&dialog);
    std::vector<QComboBox*> combos;
    for (const UnitQuestion::Quantity& quantity : question.quantities) {
        auto* combo = new QComboBox(&dialog);
        for (const CString& label : quantity.labels) {
            combo->addItem(FromCString(label));
        }
        combo->setCurrentIndex(quantity.current);
        combo->setEnabled(quantity.ask);
        combo->setObjectName(FromCString(quantity.name));
        form->addRow(FromCString(quantity.name), combo);
        combos.push_back(combo);
    }
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, &dialog);
    QObject::connect(buttons, &QDialogButtonBox::accepted, &dialog, &QDialog::accept);
    QObject::connect(buttons, &QDialogButtonBox::rejected, &dialog, &QDialog::reject);
    form->addRow(buttons);
    if (dialog.exec() != QDialog::Accepted) {
        return false;
    }
    for (size_t i = 0; i < combos.size(); ++i) {
        if (question.quantities[i].ask && combos[i]->currentIndex() >= 0) {
            question.quantities[i].current = combos[i]->currentIndex();
        }
    }
    return true;
}

bool QtUserInterface::ChooseFont(FontChoice& choice) {
    // The font first, then its colour; cancelling either leaves the choice as it was.
    bool confirmed = false;
    const QFont font =
        QFontDialog::getFont(&confirmed, QFontOfLogFont(choice.font), ActiveWindow());
    if (!confirmed) {
        return false;
    }
    const QColor colour = QColorDialog::getColor(QColorOfColorRef(choice.colour), ActiveWindow());
    if (!colour.isValid()) {
        return false;
    }
    choice.font = LogFontOfQFont(font, choice.font);
    choice.colour = ColorRefOfQColor(colour);
    return true;
}

bool QtUserInterface::ChoosePrinter(PrinterChoice& choice) {
    QPrinter printer(QPrinter::HighResolution);
    QPrintDialog dialog(&printer, QApplication::activeWindow());
    QPrintDialog::PrintDialogOptions options = QPrintDialog::PrintShowPageSize;
    if ((choice.flags & PD_HIDEPRINTTOFILE) == 0) {
        options |= QPrintDialog::PrintToFile;
    }
    dialog.setOptions(options);
    if (dialog.exec() != QDialog::Accepted) {
        return false;
    }
    const QByteArray name = printer.printerName().toLocal8Bit();
    const QByteArray file = printer.outputFileName().toLocal8Bit();
    choice.printerName = CString(name.constData(), static_cast<int>(name.size()));
    choice.outputFile = CString(file.constData(), static_cast<int>(file.size()));
    return true;
}

void QtUserInterface::BeginWait() {
    if (m_waitDepth++ == 0) {
        QApplication::setOverrideCursor(Qt::WaitCursor);
    }
}

void QtUserInterface::EndWait() {
    if (m_waitDepth > 0 && --m_waitDepth == 0) {
        QApplication::restoreOverrideCursor();
    }
}

bool QtUserInterface::StartProcess(const CString& commandLine) {
    QStringList arguments = QProcess::splitCommand(FromCString(commandLine));
    if (arguments.isEmpty()) {
        return false;
    }
    const QString program = arguments.takeFirst();
    if (program.compare(QStringLiteral("notepad.exe"), Qt::CaseInsensitive) == 0 &&
        !arguments.isEmpty()) {
        return QDesktopServices::openUrl(QUrl::fromLocalFile(arguments.join(QLatin1Char(' '))));
    }
    return QProcess::startDetached(program, arguments);
}

} // namespace seisplot
