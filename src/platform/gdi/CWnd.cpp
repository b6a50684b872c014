#include "platform/gdi/CWnd.h"

#include "platform/gdi/Surface_p.h"

#include <algorithm>

namespace {

class WindowDC final : public CDC {
public:
    explicit WindowDC(std::shared_ptr<seisplot::PixelImage> picture)
        : CDC(seisplot::MakeImageSurface(std::move(picture), 96)) {}
};

} // namespace

CWnd::CWnd() {
    SetClientSize(1, 1);
}
CWnd::~CWnd() = default;

void CWnd::GetClientRect(LPRECT rect) const {
    const CSize size = seisplot::PixelSize(*m_picture);
    *rect = CRect(0, 0, size.cx, size.cy);
}

CDC* CWnd::GetDC() {
    m_contexts.push_back(std::make_unique<WindowDC>(m_picture));
    return m_contexts.back().get();
}

int CWnd::ReleaseDC(CDC* dc) {
    const auto it = std::find_if(m_contexts.begin(), m_contexts.end(),
                                 [dc](const auto& owned) { return owned.get() == dc; });
    if (it == m_contexts.end()) {
        return 0;
    }
    m_contexts.erase(it);
    if (m_view != nullptr) {
        m_view->PictureChanged();
    }
    return 1;
}

void CWnd::Invalidate(BOOL) {
    if (m_view != nullptr) {
        m_view->Invalidated();
    }
}

void CWnd::SetClientSize(int width, int height) {
    m_picture = seisplot::MakePixels(std::max(1, width), std::max(1, height), false, 0xFFFFFF);
}

seisplot::PictureBits CWnd::Bits() const {
    return seisplot::BitsOf(*m_picture);
}

bool CWnd::SavePicture(const CString& path, const char* format) const {
    return seisplot::SavePixels(*m_picture, path, format);
}

void CWnd::SetWindowText(LPCTSTR text) {
    const CString value(text);
    if (m_view != nullptr) {
        m_view->SetText(value);
    } else {
        m_text = value;
    }
}

void CWnd::GetWindowText(CString& text) const {
    text = m_view != nullptr ? m_view->Text() : m_text;
}

int CWnd::GetWindowTextLength() const {
    CString text;
    GetWindowText(text);
    return text.GetLength();
}

BOOL CWnd::EnableWindow(BOOL enable) {
    const bool wasDisabled = !IsWindowEnabled();
    if (m_view != nullptr) {
        m_view->SetEnabled(enable != FALSE);
    } else {
        m_enabled = enable != FALSE;
    }
    return wasDisabled ? TRUE : FALSE;
}

BOOL CWnd::IsWindowEnabled() const {
    return (m_view != nullptr ? m_view->Enabled() : m_enabled) ? TRUE : FALSE;
}

BOOL CWnd::ShowWindow(int command) {
    const BOOL wasVisible = IsWindowVisible();
    if (m_view != nullptr) {
        m_view->SetVisible(command != SW_HIDE);
    } else {
        m_visible = command != SW_HIDE;
    }
    return wasVisible;
}

BOOL CWnd::IsWindowVisible() const {
    return (m_view != nullptr ? m_view->Visible() : m_visible) ? TRUE : FALSE;
}

void CWnd::SetFocus() {
    if (m_view != nullptr) {
        m_view->Focus();
    }
}

int CButton::GetCheck() const {
    return GetView() != nullptr ? GetView()->Check() : m_check;
}

void CButton::SetCheck(int state) {
    if (GetView() != nullptr) {
        GetView()->SetCheck(state);
    } else {
        m_check = state;
    }
}

namespace seisplot {

bool SaveBitmap(const CBitmap& bitmap, const CString& path, const char* format) {
    return bitmap.Pixels() != nullptr && SavePixels(*bitmap.Pixels(), path, format);
}

} // namespace seisplot
