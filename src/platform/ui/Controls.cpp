#include "platform/ui/Controls.h"

#include "platform/ui/BitmapButton_p.h"
#include "platform/ui/DialogTemplates_p.h"
#include "platform/ui/DialogWindow_p.h"

#include <QComboBox>
#include <QDateTimeEdit>
#include <QLineEdit>
#include <QListWidget>
#include <QPixmap>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScrollBar>

namespace {

using seisplot::ControlView;
using seisplot::DialogWindow;

ControlView* ViewOf(const CWnd& window) {
    return dynamic_cast<ControlView*>(window.GetView());
}

template <class W> W* WidgetOf(const CWnd& window) {
    ControlView* view = ViewOf(window);
    return view != nullptr ? qobject_cast<W*>(view->Widget()) : nullptr;
}

seisplot::BitmapButton* BitmapButtonOf(const CWnd& window) {
    ControlView* view = ViewOf(window);
    return view != nullptr ? dynamic_cast<seisplot::BitmapButton*>(view->Widget()) : nullptr;
}

// Changes made from code notify nobody.
DialogWindow* DialogOf(const CWnd& window) {
    ControlView* view = ViewOf(window);
    return view != nullptr ? &view->Dialog() : nullptr;
}

QString QtText(LPCTSTR text) {
    return QString::fromUtf8(text != nullptr ? text : "");
}

CString FrameworkText(const QString& text) {
    const QByteArray bytes = text.toUtf8();
    return CString(bytes.constData(), static_cast<int>(bytes.size()));
}

// A list line keeps its text as given (GetText answers it whole) and shows it on one line, as
// the framework's list boxes do: line ends are not drawn.
constexpr int kTextRole = Qt::UserRole;

QListWidgetItem* NewLine(QListWidget& list, LPCTSTR text) {
    const QString given = QtText(text);
    QString shown = given;
    shown.remove(QLatin1Char('\r')).replace(QLatin1Char('\n'), QLatin1Char(' '));
    auto* item = new QListWidgetItem(shown);
    item->setData(kTextRole, given);
    if (list.property("checkList").toBool()) {
        item->setFlags(item->flags() | Qt::ItemIsUserCheckable);
        item->setCheckState(Qt::Unchecked);
    }
    return item;
}

} // namespace

int CListBox::AddString(LPCTSTR text) {
    auto* list = WidgetOf<QListWidget>(*this);
    if (list == nullptr) {
        return LB_ERR;
    }
    const DialogWindow::Quiet quiet(DialogOf(*this));
    list->addItem(NewLine(*list, text));
    return list->count() - 1;
}

int CListBox::InsertString(int index, LPCTSTR text) {
    auto* list = WidgetOf<QListWidget>(*this);
    if (list == nullptr || index > list->count()) {
        return LB_ERR;
    }
    const DialogWindow::Quiet quiet(DialogOf(*this));
    const int at = index < 0 ? list->count() : index;
    list->insertItem(at, NewLine(*list, text));
    return at;
}

int CListBox::DeleteString(int index) {
    auto* list = WidgetOf<QListWidget>(*this);
    if (list == nullptr || index < 0 || index >= list->count()) {
        return LB_ERR;
    }
    const DialogWindow::Quiet quiet(DialogOf(*this));
    delete list->takeItem(index);
    return list->count();
}

void CListBox::ResetContent() {
    if (auto* list = WidgetOf<QListWidget>(*this)) {
        const DialogWindow::Quiet quiet(DialogOf(*this));
        list->clear();
    }
}

int CListBox::GetCount() const {
    auto* list = WidgetOf<QListWidget>(*this);
    return list != nullptr ? list->count() : LB_ERR;
}

int CListBox::GetCurSel() const {
    auto* list = WidgetOf<QListWidget>(*this);
    if (list == nullptr) {
        return LB_ERR;
    }
    const int row = list->currentRow();
    return row >= 0 && list->item(row)->isSelected() ? row : LB_ERR;
}

int CListBox::SetCurSel(int index) {
    auto* list = WidgetOf<QListWidget>(*this);
    if (list == nullptr) {
        return LB_ERR;
    }
    const DialogWindow::Quiet quiet(DialogOf(*this));
    if (index < 0 || index >= list->count()) {
        list->setCurrentRow(-1);
        list->clearSelection();
        return index == -1 ? 0 : LB_ERR;
    }
    list->setCurrentRow(index);
    list->scrollToItem(list->item(index));
    return index;
}

int CListBox::GetText(int index, CString& text) const {
    auto* list = WidgetOf<QListWidget>(*this);
    if (list == nullptr || index < 0 || index >= list->count()) {
        return LB_ERR;
    }
    text = FrameworkText(list->item(index)->data(kTextRole).toString());
    return text.GetLength();
}

int CListBox::GetTextLen(int index) const {
    CString text;
    return GetText(index, text);
}

void CListBox::SetHorizontalExtent(int width) {
    if (auto* list = WidgetOf<QListWidget>(*this)) {
        list->setProperty("horizontalExtent", width);
        // Lines wider than the list scroll sideways, as far as the extent reaches.
        list->setHorizontalScrollBarPolicy(
            width > list->viewport()->width() ? Qt::ScrollBarAlwaysOn : Qt::ScrollBarAsNeeded);
    }
}

int CListBox::GetHorizontalExtent() const {
    auto* list = WidgetOf<QListWidget>(*this);
    return list != nullptr ? list->property("horizontalExtent").toInt() : 0;
}

void CCheckListBox::SetCheck(int index, int check) {
    auto* list = WidgetOf<QListWidget>(*this);
    if (list != nullptr && index >= 0 && index < list->count()) {
        const DialogWindow::Quiet quiet(DialogOf(*this));
        list->item(index)->setCheckState(check != 0 ? Qt::Checked : Qt::Unchecked);
    }
}

int CCheckListBox::GetCheck(int index) const {
    auto* list = WidgetOf<QListWidget>(*this);
    if (list == nullptr || index < 0 || index >= list->count()) {
        return 0;
    }
    return list->item(index)->checkState() == Qt::Checked ? 1 : 0;
}

int CComboBox::AddString(LPCTSTR text) {
    auto* combo = WidgetOf<QComboBox>(*this);
    if (combo == nullptr) {
        return CB_ERR;
    }
    const DialogWindow::Quiet quiet(DialogOf(*this));
    combo->addItem(QtText(text));
    return combo->count() - 1;
}

void CComboBox::ResetContent() {
    if (auto* combo = WidgetOf<QComboBox>(*this)) {
        const DialogWindow::Quiet quiet(DialogOf(*this));
        combo->clear();
    }
}

int CComboBox::GetCount() const {
    auto* combo = WidgetOf<QComboBox>(*this);
    return combo != nullptr ? combo->count() : CB_ERR;
}

int CComboBox::GetCurSel() const {
    auto* combo = WidgetOf<QComboBox>(*this);
    if (combo == nullptr) {
        return CB_ERR;
    }
    // Text typed into an editable combo box selects no entry, unless it is an entry's text.
    const int index = combo->currentIndex();
    if (combo->isEditable() && index >= 0 && combo->currentText() != combo->itemText(index)) {
        return combo->findText(combo->currentText());
    }
    return index;
}

int CComboBox::SetCurSel(int index) {
    auto* combo = WidgetOf<QComboBox>(*this);
    if (combo == nullptr || index >= combo->count()) {
        return CB_ERR;
    }
    const DialogWindow::Quiet quiet(DialogOf(*this));
    combo->setCurrentIndex(index);
    return index;
}

int CComboBox::GetLBText(int index, CString& text) const {
    auto* combo = WidgetOf<QComboBox>(*this);
    if (combo == nullptr || index < 0 || index >= combo->count()) {
        return CB_ERR;
    }
    text = FrameworkText(combo->itemText(index));
    return text.GetLength();
}

BOOL CEdit::SetReadOnly(BOOL readOnly) {
    if (auto* line = WidgetOf<QLineEdit>(*this)) {
        line->setReadOnly(readOnly != FALSE);
        return TRUE;
    }
    if (auto* text = WidgetOf<QPlainTextEdit>(*this)) {
        text->setReadOnly(readOnly != FALSE);
        return TRUE;
    }
    return FALSE;
}

void CEdit::SetSel(int start, int end) {
    if (auto* line = WidgetOf<QLineEdit>(*this)) {
        const int last = end < 0 ? static_cast<int>(line->text().size()) : end;
        line->setSelection(start, last - start);
    }
}

BOOL CBitmapButton::LoadBitmaps(LPCTSTR up, LPCTSTR down) {
    QPixmap upPicture;
    QPixmap downPicture;
    if (up == nullptr || !seisplot::LoadBitmapResource(up, upPicture) ||
        (down != nullptr && !seisplot::LoadBitmapResource(down, downPicture))) {
        return FALSE;
    }
    if (auto* button = BitmapButtonOf(*this)) {
        button->SetBitmaps(upPicture, QString::fromUtf8(up), downPicture,
                           down != nullptr ? QString::fromUtf8(down) : QString());
    }
    return TRUE;
}

void CBitmapButton::SizeToContent() {
    if (auto* button = BitmapButtonOf(*this)) {
        button->setFixedSize(button->sizeHint());
    }
}

BOOL CDateTimeCtrl::GetTime(COleDateTime& time) const {
    auto* picker = WidgetOf<QDateTimeEdit>(*this);
    if (picker == nullptr) {
        return FALSE;
    }
    if (picker->property(seisplot::kUnsetProperty).toBool()) {
        time.SetStatus(COleDateTime::null);
        return FALSE;
    }
    const QDateTime value = picker->dateTime();
    const QDate date = value.date();
    const QTime clock = value.time();
    time.SetDateTime(date.year(), date.month(), date.day(), clock.hour(), clock.minute(),
                     clock.second());
    return TRUE;
}

BOOL CDateTimeCtrl::SetTime(const COleDateTime& time) {
    auto* picker = WidgetOf<QDateTimeEdit>(*this);
    if (picker == nullptr) {
        return FALSE;
    }
    const DialogWindow::Quiet quiet(DialogOf(*this));
    const bool unset = time.GetStatus() != COleDateTime::valid;
    picker->setProperty(seisplot::kUnsetProperty, unset);
    if (unset) {
        picker->setDateTime(picker->minimumDateTime()); // shown empty
        return TRUE;
    }
    picker->setDateTime(QDateTime(QDate(time.GetYear(), time.GetMonth(), time.GetDay()),
                                  QTime(time.GetHour(), time.GetMinute(), time.GetSecond())));
    return TRUE;
}
