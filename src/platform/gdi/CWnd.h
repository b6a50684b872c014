#pragma once
// The least of a window that drawing code needs: a client area and device contexts on the
// picture the window shows, at 96 dots per inch so that a picture drawn off-screen is the
// same on every machine. A widget shows that picture; without one it stays an image.

#include "platform/gdi/CDC.h"

#include <memory>
#include <vector>

namespace seisplot {
struct PixelImage;
}

class CWnd {
public:
    CWnd();
    CWnd(const CWnd&) = delete;
    CWnd& operator=(const CWnd&) = delete;
    virtual ~CWnd();

    // (0, 0, width, height) in pixels.
    void GetClientRect(LPRECT rect) const;
    // A context in its default state on the window's picture; give it back with ReleaseDC.
    CDC* GetDC();
    int ReleaseDC(CDC* dc);

    // The size of the client area; the picture starts white.
    void SetClientSize(int width, int height);
    const std::shared_ptr<seisplot::PixelImage>& Picture() const { return m_picture; }
    // Writes the picture to an image file: `format` "PNG", "BMP", ..., or by the name's
    // extension when null.
    bool SavePicture(const CString& path, const char* format = nullptr) const;

private:
    std::shared_ptr<seisplot::PixelImage> m_picture;
    std::vector<std::unique_ptr<CDC>> m_contexts;
};

// An owner-drawn button: a window whose picture its owner paints.
class CButton : public CWnd {};

namespace seisplot {
// Writes a bitmap to an image file: `format` "PNG", "BMP", ..., or by the name's extension
// when null.
bool SaveBitmap(const CBitmap& bitmap, const CString& path, const char* format = nullptr);
} // namespace seisplot
