#include "platform/ui/OwnerDrawButton_p.h"

#include "platform/gdi/PixelImage_p.h"
#include "platform/ui/DialogWindow_p.h"

#include <QPainter>

namespace seisplot {

OwnerDrawButton::OwnerDrawButton(QWidget* parent) : QAbstractButton(parent) {
    setFocusPolicy(Qt::NoFocus);
}

void OwnerDrawButton::Attach(DialogWindow* dialog, int id) {
    m_dialog = dialog;
    m_id = id;
}

QSize OwnerDrawButton::sizeHint() const {
    return minimumSize().isValid() && !minimumSize().isNull() ? minimumSize() : QSize(100, 100);
}

void OwnerDrawButton::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    if (m_dialog == nullptr) {
        painter.fillRect(rect(), Qt::white);
        return;
    }
    // The owner draws into the window's picture when it must; the widget shows the picture.
    m_dialog->DrawIfMarked(m_id);
    const CWnd* window = m_dialog->Window(m_id);
    if (window != nullptr && window->Picture() != nullptr) {
        painter.drawImage(0, 0, window->Picture()->image);
    }
}

void OwnerDrawButton::resizeEvent(QResizeEvent* event) {
    QAbstractButton::resizeEvent(event);
    if (m_dialog != nullptr) {
        if (CWnd* window = m_dialog->Window(m_id)) {
            window->SetClientSize(width(), height());
        }
        m_dialog->MarkForDrawing(m_id);
    }
}

} // namespace seisplot
