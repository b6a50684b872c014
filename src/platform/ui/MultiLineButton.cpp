#include "platform/ui/MultiLineButton_p.h"

#include <QStyleOptionButton>
#include <QStylePainter>

#include <algorithm>

namespace seisplot {
namespace {

constexpr int kTextFlags = Qt::AlignCenter | Qt::TextWordWrap | Qt::TextShowMnemonic;
// The widest a caption runs on one line before it wraps, in average characters.
constexpr int kLineCharacters = 48;
// Room between the caption and the button's sides, in pixels.
constexpr int kTextMargin = 6;

} // namespace

MultiLineButton::MultiLineButton(QWidget* parent) : QPushButton(parent) {
    QSizePolicy policy(QSizePolicy::Preferred, QSizePolicy::Preferred, QSizePolicy::PushButton);
    policy.setHeightForWidth(true);
    setSizePolicy(policy);
}

QSize MultiLineButton::Padding() const {
    const int margin = style()->pixelMetric(QStyle::PM_ButtonMargin, nullptr, this) +
                       2 * style()->pixelMetric(QStyle::PM_DefaultFrameWidth, nullptr, this);
    return {2 * (margin + kTextMargin), margin + fontMetrics().height() / 2};
}

int MultiLineButton::heightForWidth(int width) const {
    const QSize padding = Padding();
    const QRect text = fontMetrics().boundingRect(
        QRect(0, 0, std::max(1, width - padding.width()), 1 << 20), kTextFlags, this->text());
    return std::max(QPushButton::sizeHint().height(), text.height() + padding.height());
}

QSize MultiLineButton::sizeHint() const {
    const int oneLine = fontMetrics().horizontalAdvance(text());
    const int width =
        std::min(oneLine, kLineCharacters * fontMetrics().averageCharWidth()) + Padding().width();
    return {width, heightForWidth(width)};
}

QSize MultiLineButton::minimumSizeHint() const {
    // Narrower, the caption would only grow taller: the dialog keeps the width it needs.
    return sizeHint();
}

void MultiLineButton::paintEvent(QPaintEvent*) {
    QStylePainter painter(this);
    QStyleOptionButton option;
    initStyleOption(&option);
    const QString caption = option.text;
    option.text.clear();
    painter.drawControl(QStyle::CE_PushButton, option);
    QRect area = style()
                     ->subElementRect(QStyle::SE_PushButtonContents, &option, this)
                     .adjusted(kTextMargin, 0, -kTextMargin, 0);
    if (isDown()) {
        area.translate(style()->pixelMetric(QStyle::PM_ButtonShiftHorizontal, &option, this),
                       style()->pixelMetric(QStyle::PM_ButtonShiftVertical, &option, this));
    }
    painter.drawItemText(area, kTextFlags, palette(), isEnabled(), caption, QPalette::ButtonText);
}

} // namespace seisplot
