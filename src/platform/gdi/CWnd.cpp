#include "platform/gdi/CWnd.h"

#include "platform/gdi/FontEngine_p.h"
#include "platform/gdi/PixelImage_p.h"
#include "platform/gdi/Surface_p.h"

#include <algorithm>

namespace {

class WindowDC final : public CDC {
public:
    explicit WindowDC(std::shared_ptr<seisplot::PixelImage> picture)
        : CDC(seisplot::MakeImageSurface(std::move(picture), 96)) {}
};

bool SaveImage(const QImage& image, const CString& path, const char* format) {
    seisplot::EnsureGuiApplication();
    return image.save(QString::fromLocal8Bit(path.GetString()), format);
}

} // namespace

CWnd::CWnd() {
    SetClientSize(1, 1);
}
CWnd::~CWnd() = default;

void CWnd::GetClientRect(LPRECT rect) const {
    *rect = CRect(0, 0, m_picture->image.width(), m_picture->image.height());
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
    return 1;
}

void CWnd::SetClientSize(int width, int height) {
    auto picture = std::make_shared<seisplot::PixelImage>();
    picture->image = QImage(std::max(1, width), std::max(1, height), QImage::Format_RGB32);
    picture->image.fill(Qt::white);
    m_picture = std::move(picture);
}

bool CWnd::SavePicture(const CString& path, const char* format) const {
    return SaveImage(m_picture->image, path, format);
}

namespace seisplot {

bool SaveBitmap(const CBitmap& bitmap, const CString& path, const char* format) {
    return bitmap.Pixels() != nullptr && SaveImage(bitmap.Pixels()->image, path, format);
}

} // namespace seisplot
