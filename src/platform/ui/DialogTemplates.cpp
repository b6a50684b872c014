#include "platform/ui/DialogTemplates_p.h"

#include "platform/core/ResourceModule.h"
#include "platform/core/StringTable.h"
#include "platform/ui/BitmapButton_p.h"
#include "platform/ui/DialogWindow_p.h"
#include "platform/ui/MultiLineButton_p.h"
#include "platform/ui/OwnerDrawButton_p.h"
#include "resources/Resources.h"

#include <QCoreApplication>
#include <QFile>
#include <QPixmap>
#include <QTranslator>
#include <QUiLoader>

namespace seisplot {
namespace {

// Builds our dialog widget for the form itself, and our owner-drawn, bitmap and multi-line
// buttons for the classes the forms name "OwnerDrawButton", "BitmapButton" and
// "MultiLineButton".
class TemplateLoader : public QUiLoader {
public:
    explicit TemplateLoader(QWidget* parent) : m_parent(parent) {}

    QWidget* createWidget(const QString& className, QWidget* parent, const QString& name) override {
        QWidget* widget = nullptr;
        if (parent == nullptr && className == QLatin1String("QDialog")) {
            widget = new DialogWidget(m_parent);
        } else if (className == QLatin1String("OwnerDrawButton")) {
            widget = new OwnerDrawButton(parent);
        } else if (className == QLatin1String("BitmapButton")) {
            widget = new BitmapButton(parent);
        } else if (className == QLatin1String("MultiLineButton")) {
            widget = new MultiLineButton(parent);
        } else {
            return QUiLoader::createWidget(className, parent, name);
        }
        widget->setObjectName(name);
        return widget;
    }

private:
    QWidget* m_parent;
};

// The Italian texts are a translation of the English forms; it is in force while the
// language is Italian.
void UseLanguage() {
    static QTranslator italian;
    static bool loaded = false;
    static bool installed = false;
    const bool wanted = CurrentLanguage() == Language::Italian;
    if (wanted && !loaded) {
        loaded = italian.load(QStringLiteral(":/seisplot/translations/seisplot_it.qm"));
    }
    if (wanted && loaded && !installed) {
        installed = QCoreApplication::installTranslator(&italian);
    } else if (!wanted && installed) {
        QCoreApplication::removeTranslator(&italian);
        installed = false;
    }
}

} // namespace

std::unique_ptr<DialogWidget> LoadDialogTemplate(UINT id, QWidget* parent) {
    InitLibraryResources();
    UseLanguage();
    // The first module of the search order that has the template: while a dialog of the
    // library runs, the library's own.
    QFile form;
    for (HINSTANCE module : ResourceSearchOrder()) {
        const CString& folder = module->TemplateFolder();
        if (!folder.IsEmpty()) {
            form.setFileName(QStringLiteral("%1/%2.ui")
                                 .arg(QString::fromUtf8(folder.GetString()), QString::number(id)));
            if (form.open(QIODevice::ReadOnly)) {
                break;
            }
        }
    }
    if (!form.isOpen()) {
        return nullptr;
    }
    TemplateLoader loader(parent);
    std::unique_ptr<QWidget> root(loader.load(&form));
    if (auto* dialog = dynamic_cast<DialogWidget*>(root.get())) {
        root.release();
        return std::unique_ptr<DialogWidget>(dialog);
    }
    return nullptr;
}

bool LoadBitmapResource(const char* name, QPixmap& pixmap) {
    InitLibraryResources();
    return pixmap.load(QStringLiteral(":/seisplot/bitmaps/%1.png").arg(QLatin1String(name)));
}

} // namespace seisplot
