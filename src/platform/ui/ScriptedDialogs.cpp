#include "platform/ui/ScriptedDialogs.h"

#include "platform/ui/BitmapButton_p.h"
#include "platform/ui/DialogAccess_p.h"
#include "platform/ui/DialogWindow_p.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QProgressBar>

namespace seisplot {
namespace {

CString FrameworkText(const QString& text) {
    const QByteArray bytes = text.toUtf8();
    return CString(bytes.constData(), static_cast<int>(bytes.size()));
}

} // namespace

CDialog& DialogHandle::Dialog() const {
    return m_window.Owner();
}

CString DialogHandle::Caption() const {
    return FrameworkText(m_window.Widget()->windowTitle());
}

void DialogHandle::Click(int id) {
    auto* button = qobject_cast<QAbstractButton*>(m_window.Control(id));
    if (button != nullptr && button->isEnabled()) {
        button->click(); // toggles a check box or radio button first, as a click does
    }
    m_window.DrawMarked();
    m_window.RethrowFailure();
}

void DialogHandle::Type(int id, const CString& text) {
    QWidget* widget = m_window.Control(id);
    if (widget == nullptr || !widget->isEnabled()) {
        return;
    }
    {
        DialogWindow::Quiet quiet(m_window);
        const QString value = QString::fromUtf8(text.GetString(), text.GetLength());
        if (auto* line = qobject_cast<QLineEdit*>(widget)) {
            line->setText(value);
        } else if (auto* edit = qobject_cast<QPlainTextEdit*>(widget)) {
            edit->setPlainText(value);
        } else if (auto* combo = qobject_cast<QComboBox*>(widget)) {
            combo->setEditText(value);
        }
    }
    const UINT code = qobject_cast<QComboBox*>(widget) != nullptr ? CBN_EDITCHANGE : EN_CHANGE;
    m_window.Notify(id, code);
    m_window.RethrowFailure();
}

void DialogHandle::SelectLine(int id, int line) {
    QWidget* widget = m_window.Control(id);
    if (widget == nullptr || !widget->isEnabled()) {
        return;
    }
    if (auto* list = qobject_cast<QListWidget*>(widget)) {
        {
            DialogWindow::Quiet quiet(m_window);
            list->setCurrentRow(line);
        }
        m_window.Notify(id, LBN_SELCHANGE);
    } else if (auto* combo = qobject_cast<QComboBox*>(widget)) {
        {
            DialogWindow::Quiet quiet(m_window);
            combo->setCurrentIndex(line);
        }
        m_window.Notify(id, CBN_SELCHANGE);
    }
    m_window.RethrowFailure();
}

void DialogHandle::DoubleClickLine(int id, int line) {
    auto* list = qobject_cast<QListWidget*>(m_window.Control(id));
    if (list == nullptr || !list->isEnabled()) {
        return;
    }
    // The first click of the two selects the line.
    SelectLine(id, line);
    m_window.Notify(id, LBN_DBLCLK);
    m_window.RethrowFailure();
}

void DialogHandle::CheckLine(int id, int line, bool checked) {
    auto* list = qobject_cast<QListWidget*>(m_window.Control(id));
    if (list == nullptr || !list->isEnabled() || line < 0 || line >= list->count()) {
        return;
    }
    {
        DialogWindow::Quiet quiet(m_window);
        list->item(line)->setCheckState(checked ? Qt::Checked : Qt::Unchecked);
    }
    m_window.Notify(id, CLBN_CHKCHANGE);
    m_window.RethrowFailure();
}

bool DialogHandle::Ok() {
    Click(IDOK);
    return Ended();
}

bool DialogHandle::Cancel() {
    Click(IDCANCEL);
    return Ended();
}

bool DialogHandle::Exists(int id) const {
    return m_window.Control(id) != nullptr;
}

CString DialogHandle::Text(int id) const {
    CString text;
    if (CWnd* window = m_window.Window(id)) {
        window->GetWindowText(text);
    }
    return text;
}

bool DialogHandle::Checked(int id) const {
    auto* button = qobject_cast<QAbstractButton*>(m_window.Control(id));
    return button != nullptr && button->isChecked();
}

bool DialogHandle::Enabled(int id) const {
    QWidget* widget = m_window.Control(id);
    return widget != nullptr && widget->isEnabled();
}

bool DialogHandle::Visible(int id) const {
    QWidget* widget = m_window.Control(id);
    return widget != nullptr && !widget->isHidden();
}

std::vector<CString> DialogHandle::Lines(int id) const {
    std::vector<CString> lines;
    if (auto* list = qobject_cast<QListWidget*>(m_window.Control(id))) {
        for (int i = 0; i < list->count(); ++i) {
            lines.push_back(FrameworkText(list->item(i)->text()));
        }
    } else if (auto* combo = qobject_cast<QComboBox*>(m_window.Control(id))) {
        for (int i = 0; i < combo->count(); ++i) {
            lines.push_back(FrameworkText(combo->itemText(i)));
        }
    }
    return lines;
}

int DialogHandle::Selection(int id) const {
    if (auto* list = qobject_cast<QListWidget*>(m_window.Control(id))) {
        const int row = list->currentRow();
        return row >= 0 && list->item(row)->isSelected() ? row : -1;
    }
    if (auto* combo = qobject_cast<QComboBox*>(m_window.Control(id))) {
        return combo->currentIndex();
    }
    return -1;
}

bool DialogHandle::LineChecked(int id, int line) const {
    auto* list = qobject_cast<QListWidget*>(m_window.Control(id));
    return list != nullptr && line >= 0 && line < list->count() &&
           list->item(line)->checkState() == Qt::Checked;
}

int DialogHandle::ProgressPosition(int id) const {
    auto* bar = qobject_cast<QProgressBar*>(m_window.Control(id));
    return bar != nullptr ? bar->value() : -1;
}

CString DialogHandle::Bitmap(int id) const {
    auto* button = dynamic_cast<BitmapButton*>(m_window.Control(id));
    return button != nullptr ? FrameworkText(button->ShownName()) : CString();
}

CWnd& DialogHandle::Picture(int id) {
    m_window.DrawMarked();
    m_window.RethrowFailure();
    return *m_window.Window(id);
}

int DialogHandle::FocusedControl() const {
    return m_window.FocusedControl();
}

bool DialogHandle::Ended() const {
    return m_window.Ended();
}

INT_PTR DialogHandle::Result() const {
    return m_window.Result();
}

bool DialogHandle::SaveScreenshot(const CString& path) const {
    m_window.DrawMarked();
    return m_window.Widget()->grab().save(QString::fromLocal8Bit(path.GetString()), "PNG");
}

void ScriptedDialogs::Expect(UINT templateId, Script script) {
    m_scripts.push_back({templateId, std::move(script)});
}

INT_PTR ScriptedDialogs::Run(CDialog& dialog) {
    CString problem;
    if (m_scripts.empty()) {
        problem.Format("dialog %u opened with no script for it; cancelled", dialog.GetTemplateId());
        m_problems.push_back(problem);
        return IDCANCEL;
    }
    Expected expected = std::move(m_scripts.front());
    m_scripts.pop_front();
    if (expected.templateId != dialog.GetTemplateId()) {
        problem.Format("dialog %u opened where %u was expected; cancelled", dialog.GetTemplateId(),
                       expected.templateId);
        m_problems.push_back(problem);
        return IDCANCEL;
    }
    ModalSession session(dialog);
    DialogWindow& window = session.Window();
    if (!window.Ended()) {
        DialogHandle handle(window);
        expected.script(handle);
    }
    window.RethrowFailure();
    if (!window.Ended()) {
        problem.Format("dialog %u left open by its script; cancelled", dialog.GetTemplateId());
        m_problems.push_back(problem);
        return IDCANCEL;
    }
    return window.Result();
}

} // namespace seisplot
