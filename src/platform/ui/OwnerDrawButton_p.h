#pragma once
// The widget of an owner-drawn control: it shows the picture of the control's window, which
// the dialog's OnDrawItem paints, and is clicked like a button (private to the dialog layer).

#include <QAbstractButton>

namespace seisplot {

class DialogWindow;

class OwnerDrawButton : public QAbstractButton {
public:
    explicit OwnerDrawButton(QWidget* parent = nullptr);
    void Attach(DialogWindow* dialog, int id);
    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    DialogWindow* m_dialog = nullptr;
    int m_id = 0;
};

} // namespace seisplot
