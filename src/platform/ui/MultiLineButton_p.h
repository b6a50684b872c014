#pragma once
// The widget of a push button whose caption wraps onto as many lines as its width needs (the
// framework's multi-line buttons), so that a long caption fits in either language; it is
// never narrower than a comfortable line of about 48 characters (private to the dialog layer).

#include <QPushButton>

namespace seisplot {

class MultiLineButton : public QPushButton {
public:
    explicit MultiLineButton(QWidget* parent = nullptr);

    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override;
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QSize Padding() const;
};

} // namespace seisplot
