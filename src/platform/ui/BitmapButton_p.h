#pragma once
// The widget of a bitmap button: a push button that is nothing but its picture — the up
// bitmap, or the down one while it is held down — as the framework's bitmap buttons are
// (private to the dialog layer). Until bitmaps are loaded it shows its caption.

#include <QAbstractButton>
#include <QPixmap>

namespace seisplot {

class BitmapButton : public QAbstractButton {
public:
    explicit BitmapButton(QWidget* parent = nullptr);

    // The pictures and their resource names; a null down picture: the up one serves.
    void SetBitmaps(const QPixmap& up, const QString& upName, const QPixmap& down,
                    const QString& downName);
    // The name of the bitmap shown now (empty before any is loaded).
    QString ShownName() const;
    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    bool ShowsDown() const { return isDown() && !m_down.isNull(); }

    QPixmap m_up;
    QPixmap m_down;
    QString m_upName;
    QString m_downName;
};

} // namespace seisplot
