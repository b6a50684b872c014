#pragma once
// The least of a window that drawing code needs: a client area and device contexts on the
// picture the window shows, at 96 dots per inch so that a picture drawn off-screen is the
// same on every machine.
//
// The window lives here, on the drawing side, so that primitives and plots draw into windows
// without knowing any widget. On screen a widget of the dialog layer shows the window: it
// attaches itself as the window's view, sizes the client area to its own, keeps the window's
// text and state, and repaints from the picture when told it changed. Without a view the
// window is an image in memory with its text and state kept here (tests, the command-line
// tool).

#include "platform/gdi/CDC.h"

#include <memory>
#include <vector>

namespace seisplot {
struct PixelImage;

// The pixels of a window's picture, for what shows it: rows of 32-bit 0xFFRRGGBB values, valid
// until the picture is resized.
struct PictureBits {
    const unsigned char* data = nullptr;
    int width = 0;
    int height = 0;
    int bytesPerLine = 0;
};

// What shows a window on screen: a widget of the dialog layer. The window's text, state and
// focus are the widget's; it is told when the picture changed (a context was given back, an
// invalidation) and repaints from it.
class WindowView {
public:
    virtual ~WindowView() = default;
    // The picture changed: a context on it was given back.
    virtual void PictureChanged() {}
    // The window must be drawn again (by its owner, for an owner-drawn control).
    virtual void Invalidated() { PictureChanged(); }
    virtual CString Text() const = 0;
    virtual void SetText(const CString& text) = 0;
    virtual bool Enabled() const = 0;
    virtual void SetEnabled(bool enabled) = 0;
    virtual bool Visible() const = 0;
    virtual void SetVisible(bool visible) = 0;
    virtual void Focus() = 0;
    // Check boxes, radio and push-like buttons: BST_UNCHECKED, BST_CHECKED.
    virtual int Check() const = 0;
    virtual void SetCheck(int state) = 0;
};
} // namespace seisplot

inline constexpr int SW_HIDE = 0;
inline constexpr int SW_SHOW = 5;
inline constexpr int BST_UNCHECKED = 0;
inline constexpr int BST_CHECKED = 1;

class CWnd {
public:
    CWnd();
    CWnd(const CWnd&) = delete;
    CWnd& operator=(const CWnd&) = delete;
    virtual ~CWnd();

    // (0, 0, width, height) in pixels.
    void GetClientRect(LPRECT rect) const;
    // A context in its default state on the window's picture; give it back with ReleaseDC,
    // which tells the view to show what was drawn.
    CDC* GetDC();
    int ReleaseDC(CDC* dc);
    // Asks for the picture to be shown again (the view decides when and how it is redrawn).
    void Invalidate(BOOL erase = TRUE);

    // The size of the client area; the picture starts white.
    void SetClientSize(int width, int height);
    const std::shared_ptr<seisplot::PixelImage>& Picture() const { return m_picture; }
    seisplot::PictureBits Bits() const;
    // Writes the picture to an image file: `format` "PNG", "BMP", ..., or by the name's
    // extension when null.
    bool SavePicture(const CString& path, const char* format = nullptr) const;

    // Text and state, the view's when there is one.
    void SetWindowText(LPCTSTR text);
    void GetWindowText(CString& text) const;
    int GetWindowTextLength() const;
    BOOL EnableWindow(BOOL enable = TRUE); // returns whether it was disabled before
    BOOL IsWindowEnabled() const;
    BOOL ShowWindow(int command); // SW_SHOW or SW_HIDE; returns whether it was visible
    BOOL IsWindowVisible() const;
    void SetFocus();
    // The control id of a dialog's control (0 for other windows).
    int GetDlgCtrlID() const { return m_controlId; }
    void SetDlgCtrlID(int id) { m_controlId = id; }

    // The view that shows the window (null: none); the view outlives its attachment.
    void SetView(seisplot::WindowView* view) { m_view = view; }
    seisplot::WindowView* GetView() const { return m_view; }

private:
    std::shared_ptr<seisplot::PixelImage> m_picture;
    std::vector<std::unique_ptr<CDC>> m_contexts;
    seisplot::WindowView* m_view = nullptr;
    CString m_text;
    bool m_enabled = true;
    bool m_visible = true;
    int m_controlId = 0;

protected:
    int m_check = BST_UNCHECKED; // without a view
};

// A button: pushed, checked, or owner-drawn (a window whose picture its owner paints).
class CButton : public CWnd {
public:
    int GetCheck() const;
    void SetCheck(int state);
};

namespace seisplot {
// Writes a bitmap to an image file: `format` "PNG", "BMP", ..., or by the name's extension
// when null.
bool SaveBitmap(const CBitmap& bitmap, const CString& path, const char* format = nullptr);
} // namespace seisplot
