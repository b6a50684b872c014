#include "platform/ui/DialogWindow_p.h"

#include "platform/core/Exceptions.h"
#include "platform/core/UserInterface.h"
#include "platform/gdi/PixelImage_p.h"
#include "platform/ui/Clipboard_p.h"
#include "platform/ui/Controls.h"
#include "platform/ui/DialogAccess_p.h"
#include "platform/ui/DialogDriver.h"
#include "platform/ui/DialogTemplates_p.h"
#include "platform/ui/OwnerDrawButton_p.h"

#include <QAbstractButton>
#include <QApplication>
#include <QButtonGroup>
#include <QComboBox>
#include <QDateTimeEdit>
#include <QElapsedTimer>
#include <QGroupBox>
#include <QLabel>
#include <QLayout>
#include <QLineEdit>
#include <QListWidget>
#include <QPainter>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QRadioButton>

#include <new>
#include <stdexcept>
#include <utility>

namespace seisplot {
namespace {

// The library's texts are UTF-8, as its message boxes show them.
QString QtText(const CString& text) {
    return QString::fromUtf8(text.GetString(), text.GetLength());
}

CString FrameworkText(const QString& text) {
    const QByteArray bytes = text.toUtf8();
    return CString(bytes.constData(), static_cast<int>(bytes.size()));
}

// A progress bar of the dialog: shows the state, and lets the window repaint and hear the
// Cancel button while the work goes on.
class ProgressBarView : public ProgressView {
public:
    explicit ProgressBarView(QProgressBar* bar) : m_bar(bar) { m_sinceEvents.start(); }

    void ProgressChanged(const CProgressCtrl& progress) override {
        if (m_bar.isNull()) {
            return;
        }
        int lower = 0;
        int upper = 0;
        progress.GetRange(lower, upper);
        m_bar->setRange(std::min(lower, upper), std::max(lower, upper));
        m_bar->setValue(progress.GetPos());
        if (m_sinceEvents.elapsed() >= 40) {
            QCoreApplication::processEvents();
            m_sinceEvents.restart();
        }
    }

private:
    QPointer<QProgressBar> m_bar;
    QElapsedTimer m_sinceEvents;
};

} // namespace

// ---- ControlView ----

void ControlView::PictureChanged() {
    QWidget* w = m_widget;
    if (w != nullptr && m_dialog.m_drawing == 0) {
        w->update();
    }
}

void ControlView::Invalidated() {
    m_dialog.MarkForDrawing(m_id);
    PictureChanged();
}

CString ControlView::Text() const {
    QWidget* w = m_widget;
    if (auto* line = qobject_cast<QLineEdit*>(w)) {
        return FrameworkText(line->text());
    }
    if (auto* text = qobject_cast<QPlainTextEdit*>(w)) {
        // The framework's multi-line edits end their lines with CR LF.
        QString plain = text->toPlainText();
        plain.replace(QLatin1Char('\n'), QLatin1String("\r\n"));
        return FrameworkText(plain);
    }
    if (auto* combo = qobject_cast<QComboBox*>(w)) {
        return FrameworkText(combo->currentText());
    }
    if (auto* button = qobject_cast<QAbstractButton*>(w)) {
        return FrameworkText(button->text());
    }
    if (auto* label = qobject_cast<QLabel*>(w)) {
        return FrameworkText(label->text());
    }
    if (auto* group = qobject_cast<QGroupBox*>(w)) {
        return FrameworkText(group->title());
    }
    if (auto* picker = qobject_cast<QDateTimeEdit*>(w)) {
        return FrameworkText(picker->text());
    }
    return w != nullptr ? FrameworkText(w->windowTitle()) : CString();
}

void ControlView::SetText(const CString& value) {
    DialogWindow::Quiet quiet(m_dialog);
    const QString text = QtText(value);
    QWidget* w = m_widget;
    if (auto* line = qobject_cast<QLineEdit*>(w)) {
        line->setText(text);
        // A text set from code shows from its beginning, as the framework's edits do.
        line->setCursorPosition(0);
    } else if (auto* edit = qobject_cast<QPlainTextEdit*>(w)) {
        QString plain = text;
        plain.replace(QLatin1String("\r\n"), QLatin1String("\n"));
        edit->setPlainText(plain);
    } else if (auto* combo = qobject_cast<QComboBox*>(w)) {
        if (combo->isEditable()) {
            combo->setEditText(text);
        } else {
            combo->setCurrentIndex(combo->findText(text));
        }
    } else if (auto* button = qobject_cast<QAbstractButton*>(w)) {
        button->setText(text);
    } else if (auto* label = qobject_cast<QLabel*>(w)) {
        label->setText(text);
    } else if (auto* group = qobject_cast<QGroupBox*>(w)) {
        group->setTitle(text);
    } else if (w != nullptr) {
        w->setWindowTitle(text);
    }
}

bool ControlView::Enabled() const {
    const QWidget* w = m_widget;
    return w != nullptr && w->isEnabled();
}

void ControlView::SetEnabled(bool enabled) {
    if (QWidget* w = m_widget) {
        w->setEnabled(enabled);
    }
}

bool ControlView::Visible() const {
    // Visible unless hidden: a dialog that is not on screen still has visible controls.
    const QWidget* w = m_widget;
    return w != nullptr && !w->isHidden();
}

void ControlView::SetVisible(bool visible) {
    if (QWidget* w = m_widget) {
        w->setVisible(visible);
    }
}

void ControlView::Focus() {
    m_dialog.FocusOn(m_id);
}

int ControlView::Check() const {
    const auto* button = qobject_cast<const QAbstractButton*>(m_widget.data());
    return button != nullptr && button->isChecked() ? BST_CHECKED : BST_UNCHECKED;
}

void ControlView::SetCheck(int state) {
    if (auto* button = qobject_cast<QAbstractButton*>(m_widget.data())) {
        DialogWindow::Quiet quiet(m_dialog);
        button->setChecked(state == BST_CHECKED);
    }
}

void DialogView::Invalidated() {
    Dialog().MarkAllForDrawing();
    if (Widget() != nullptr) {
        Widget()->update();
    }
}

// ---- DialogWidget ----

void DialogWidget::reject() {
    if (m_owner != nullptr) {
        m_owner->Notify(IDCANCEL, BN_CLICKED);
    } else {
        QDialog::reject();
    }
}

void DialogWidget::accept() {
    if (m_owner != nullptr) {
        m_owner->Notify(IDOK, BN_CLICKED);
    } else {
        QDialog::accept();
    }
}

// ---- DialogWindow ----

DialogWindow::DialogWindow(CDialog& owner) : m_owner(owner) {
    if (!EnsureWidgetApplication()) {
        throw std::runtime_error("dialogs need a widget application");
    }
    // Without a parent dialog, the window the user works in owns the dialog, as the framework
    // does, so that the dialog opens over it and stays above it.
    QWidget* parent = QApplication::activeModalWidget() != nullptr
                          ? QApplication::activeModalWidget()
                          : QApplication::activeWindow();
    if (auto* parentDialog = dynamic_cast<CDialog*>(owner.GetParent());
        parentDialog != nullptr && parentDialog->Window() != nullptr) {
        parent = parentDialog->Window()->Widget();
    }
    m_widget = LoadDialogTemplate(owner.GetTemplateId(), parent);
    if (!m_widget) {
        throw std::runtime_error("no dialog template " + std::to_string(owner.GetTemplateId()));
    }
    m_widget->SetOwner(this);
    for (QWidget* child : m_widget->findChildren<QWidget*>()) {
        const QVariant id = child->property(kControlIdProperty);
        if (id.isValid()) {
            m_controls[id.toInt()] = child;
        }
    }
    if (m_widget->layout() != nullptr) {
        m_widget->layout()->activate();
    }
    m_widget->adjustSize();
    for (const auto& [id, widget] : m_controls) {
        m_views[id] = std::make_unique<ControlView>(*this, id, widget);
        Connect(id, widget);
        if (auto* ownerDrawn = dynamic_cast<OwnerDrawButton*>(widget)) {
            ownerDrawn->Attach(this, id);
            m_marked[id] = true;
        }
    }
    m_dialogView = std::make_unique<DialogView>(*this, 0, m_widget.get());
    owner.SetView(m_dialogView.get());
}

DialogWindow::~DialogWindow() {
    for (const auto& [id, window] : m_windows) {
        window->SetView(nullptr);
    }
    for (const auto& [id, progress] : m_progress) {
        progress->SetView(nullptr);
    }
    m_owner.SetView(nullptr);
    ReleaseClipboardOf(&m_owner);
    m_widget->SetOwner(nullptr);
    m_widget.reset();
}

QWidget* DialogWindow::Control(int id) const {
    const auto it = m_controls.find(id);
    return it == m_controls.end() ? nullptr : it->second;
}

int DialogWindow::IdOf(const QWidget* widget) const {
    for (const auto& [id, w] : m_controls) {
        if (w == widget) {
            return id;
        }
    }
    return 0;
}

CWnd& DialogWindow::OwnWindow(int id, QWidget* widget) {
    std::unique_ptr<CWnd> window;
    if (auto* list = qobject_cast<QListWidget*>(widget)) {
        window = list->property("checkList").toBool() ? std::make_unique<CCheckListBox>()
                                                      : std::make_unique<CListBox>();
    } else if (qobject_cast<QComboBox*>(widget) != nullptr) {
        window = std::make_unique<CComboBox>();
    } else if (qobject_cast<QLineEdit*>(widget) != nullptr ||
               qobject_cast<QPlainTextEdit*>(widget) != nullptr) {
        window = std::make_unique<CEdit>();
    } else if (qobject_cast<QDateTimeEdit*>(widget) != nullptr) {
        window = std::make_unique<CDateTimeCtrl>();
    } else if (qobject_cast<QAbstractButton*>(widget) != nullptr) {
        window = std::make_unique<CButton>();
    } else {
        window = std::make_unique<CWnd>();
    }
    CWnd& own = *window;
    m_ownWindows[id] = std::move(window);
    return own;
}

CWnd* DialogWindow::Window(int id) {
    if (const auto it = m_windows.find(id); it != m_windows.end()) {
        return it->second;
    }
    QWidget* widget = Control(id);
    if (widget == nullptr) {
        return nullptr;
    }
    CWnd& own = OwnWindow(id, widget);
    Bind(id, own);
    return &own;
}

void DialogWindow::Bind(int id, CWnd& member) {
    QWidget* widget = Control(id);
    if (widget == nullptr) {
        return;
    }
    if (const auto it = m_windows.find(id); it != m_windows.end()) {
        if (it->second == &member) {
            return;
        }
        it->second->SetView(nullptr);
    }
    m_windows[id] = &member;
    member.SetDlgCtrlID(id);
    member.SetClientSize(widget->width(), widget->height());
    member.SetView(m_views.at(id).get());
    if (IsOwnerDrawn(id)) {
        m_marked[id] = true;
    }
}

void DialogWindow::Bind(int id, CProgressCtrl& progress) {
    auto* bar = qobject_cast<QProgressBar*>(Control(id));
    if (bar == nullptr || m_progress[id] == &progress) {
        return;
    }
    if (m_progress[id] != nullptr) {
        m_progress[id]->SetView(nullptr);
    }
    m_progressViews[id] = std::make_unique<ProgressBarView>(bar);
    m_progress[id] = &progress;
    progress.SetView(m_progressViews[id].get());
}

void DialogWindow::Connect(int id, QWidget* widget) {
    const auto notify = [this, id](UINT code) { return [this, id, code] { Notify(id, code); }; };
    if (auto* button = qobject_cast<QAbstractButton*>(widget)) {
        QObject::connect(button, &QAbstractButton::clicked, m_widget.get(), notify(BN_CLICKED));
    } else if (auto* list = qobject_cast<QListWidget*>(widget)) {
        QObject::connect(list, &QListWidget::currentRowChanged, m_widget.get(),
                         notify(LBN_SELCHANGE));
        QObject::connect(list, &QListWidget::itemDoubleClicked, m_widget.get(), notify(LBN_DBLCLK));
        QObject::connect(list, &QListWidget::itemChanged, m_widget.get(), notify(CLBN_CHKCHANGE));
    } else if (auto* combo = qobject_cast<QComboBox*>(widget)) {
        // What is typed into an editable combo box never becomes an entry of its list.
        combo->setInsertPolicy(QComboBox::NoInsert);
        QObject::connect(combo, &QComboBox::activated, m_widget.get(), notify(CBN_SELCHANGE));
        QObject::connect(combo, &QComboBox::editTextChanged, m_widget.get(),
                         notify(CBN_EDITCHANGE));
    } else if (auto* line = qobject_cast<QLineEdit*>(widget)) {
        QObject::connect(line, &QLineEdit::textEdited, m_widget.get(), notify(EN_CHANGE));
    } else if (auto* text = qobject_cast<QPlainTextEdit*>(widget)) {
        QObject::connect(text, &QPlainTextEdit::textChanged, m_widget.get(), notify(EN_CHANGE));
    } else if (auto* date = qobject_cast<QDateTimeEdit*>(widget)) {
        // An unset date-time shows as empty (the picker's lowest value) until the user sets
        // one.
        date->setSpecialValueText(QStringLiteral(" "));
        QObject::connect(date, &QDateTimeEdit::dateTimeChanged, m_widget.get(), [this, id, date] {
            if (m_quiet == 0) {
                date->setProperty(kUnsetProperty, false);
            }
            Notify(id, DTN_DATETIMECHANGE);
        });
    }
}

void DialogWindow::Notify(int id, UINT code) {
    if (m_quiet > 0) {
        return;
    }
    if (m_busy > 0) {
        // Long work lets the window repaint; meanwhile only Cancel is heard, and it stops the
        // work rather than the dialog.
        m_cancelRequested = m_cancelRequested || (id == IDCANCEL && code == BN_CLICKED);
        return;
    }
    ++m_busy;
    try {
        DialogAccess::Dispatch(m_owner, id, code);
    } catch (CException* e) {
        // The framework reports what a handler raised, as its message loop does.
        e->ReportError();
        e->Delete();
    } catch (const std::bad_alloc&) {
        AfxMessageBox(CMemoryException().GetMessageText());
    } catch (...) {
        --m_busy;
        Fail();
        return;
    }
    --m_busy;
    m_cancelRequested = false;
    DrawMarked();
}

void DialogWindow::Fail() {
    if (!m_failure) {
        m_failure = std::current_exception();
    }
    End(IDCANCEL);
}

void DialogWindow::RethrowFailure() {
    if (m_failure) {
        std::rethrow_exception(std::exchange(m_failure, nullptr));
    }
}

void DialogWindow::End(int result) {
    m_ended = true;
    m_result = result;
    if (m_running) {
        m_widget->QDialog::done(result);
    }
}

int DialogWindow::Exec() {
    if (m_ended) {
        return m_result;
    }
    m_running = true;
    const int shown = m_widget->exec();
    m_running = false;
    RethrowFailure();
    return m_ended ? m_result : shown;
}

bool DialogWindow::IsOwnerDrawn(int id) const {
    return dynamic_cast<OwnerDrawButton*>(Control(id)) != nullptr;
}

void DialogWindow::MarkForDrawing(int id) {
    if (IsOwnerDrawn(id)) {
        m_marked[id] = true;
    }
}

void DialogWindow::MarkAllForDrawing() {
    for (auto& [id, marked] : m_marked) {
        marked = true;
    }
}

void DialogWindow::DrawIfMarked(int id) {
    auto it = m_marked.find(id);
    if (it == m_marked.end() || !it->second || m_drawing > 0) {
        return;
    }
    it->second = false;
    CWnd* window = Window(id);
    QWidget* widget = Control(id);
    CRect client;
    window->GetClientRect(&client);
    if (client.Width() != widget->width() || client.Height() != widget->height()) {
        window->SetClientSize(widget->width(), widget->height());
        window->GetClientRect(&client);
    }
    DRAWITEMSTRUCT item;
    item.CtlID = static_cast<UINT>(id);
    item.hwndItem = window;
    item.rcItem = client;
    item.hDC = window->GetDC();
    ++m_drawing;
    try {
        DialogAccess::DrawItem(m_owner, id, &item);
    } catch (CException* e) {
        e->ReportError();
        e->Delete();
    } catch (...) {
        Fail();
    }
    --m_drawing;
    window->ReleaseDC(item.hDC);
}

void DialogWindow::DrawMarked() {
    for (const auto& [id, marked] : m_marked) {
        if (marked) {
            DrawIfMarked(id);
            if (QWidget* widget = Control(id)) {
                widget->update();
            }
        }
    }
}

void DialogWindow::FocusOn(int id) {
    m_focused = id;
    if (QWidget* widget = Control(id)) {
        widget->setFocus(Qt::OtherFocusReason);
        if (auto* line = qobject_cast<QLineEdit*>(widget)) {
            line->selectAll();
        }
    }
}

std::vector<QAbstractButton*> RadioGroup(const DialogWindow& dialog, int first) {
    auto* start = qobject_cast<QAbstractButton*>(dialog.Control(first));
    if (start == nullptr) {
        return {};
    }
    if (QButtonGroup* group = start->group()) {
        const QList<QAbstractButton*> buttons = group->buttons();
        std::vector<QAbstractButton*> all(buttons.begin(), buttons.end());
        const auto at = std::find(all.begin(), all.end(), start);
        return std::vector<QAbstractButton*>(at, all.end());
    }
    // Without a button group: the radio buttons beside it, from it on.
    std::vector<QAbstractButton*> group;
    bool started = false;
    for (QObject* sibling : start->parent()->children()) {
        auto* radio = qobject_cast<QRadioButton*>(sibling);
        started = started || radio == start;
        if (started && radio != nullptr) {
            group.push_back(radio);
        }
    }
    return group;
}

} // namespace seisplot
