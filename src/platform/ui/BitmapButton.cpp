#include "platform/ui/BitmapButton_p.h"

#include <QPainter>
#include <QStyle>
#include <QStyleOptionButton>
#include <QStyleOptionFocusRect>

namespace seisplot {

BitmapButton::BitmapButton(QWidget* parent) : QAbstractButton(parent) {
    setFocusPolicy(Qt::StrongFocus);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

void BitmapButton::SetBitmaps(const QPixmap& up, const QString& upName, const QPixmap& down,
                              const QString& downName) {
    m_up = up;
    m_upName = upName;
    m_down = down;
    m_downName = downName;
    updateGeometry();
    update();
}

QString BitmapButton::ShownName() const {
    return ShowsDown() ? m_downName : m_upName;
}

QSize BitmapButton::sizeHint() const {
    if (!m_up.isNull()) {
        return m_up.deviceIndependentSize().toSize();
    }
    QStyleOptionButton option;
    option.initFrom(this);
    option.text = text();
    return style()->sizeFromContents(QStyle::CT_PushButton, &option,
                                     fontMetrics().size(Qt::TextShowMnemonic, text()), this);
}

void BitmapButton::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    if (m_up.isNull()) {
        QStyleOptionButton option;
        option.initFrom(this);
        option.text = text();
        if (isDown()) {
            option.state |= QStyle::State_Sunken;
        }
        style()->drawControl(QStyle::CE_PushButton, &option, &painter, this);
        return;
    }
    QPixmap shown = ShowsDown() ? m_down : m_up;
    if (!isEnabled()) {
        QStyleOption option;
        option.initFrom(this);
        shown = style()->generatedIconPixmap(QIcon::Disabled, shown, &option);
    }
    const QSize size = shown.deviceIndependentSize().toSize();
    const QRect picture(QPoint((width() - size.width()) / 2, (height() - size.height()) / 2), size);
    painter.drawPixmap(picture, shown);
    if (hasFocus()) {
        QStyleOptionFocusRect focus;
        focus.initFrom(this);
        focus.rect = picture.adjusted(4, 4, -4, -4);
        style()->drawPrimitive(QStyle::PE_FrameFocusRect, &focus, &painter, this);
    }
}

} // namespace seisplot
