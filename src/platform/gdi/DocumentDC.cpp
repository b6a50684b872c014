#include "platform/gdi/DocumentDC.h"

#include "platform/gdi/DocumentDC_p.h"
#include "platform/gdi/GuiApplication_p.h"
#include "platform/gdi/Painting_p.h"
#include "platform/gdi/PixelImage_p.h"
#include "platform/gdi/Surface_p.h"

#include <QPageSize>
#include <QPdfWriter>
#include <QSvgGenerator>

namespace seisplot {
namespace {

// A painter kept open on a document for its whole life. Raster operations cannot be
// undone on paper or in a vector picture: figures are drawn plainly.
class DocumentSurface final : public Surface {
public:
    DocumentSurface(std::unique_ptr<QPaintDevice> device, DeviceCaps caps, bool paged)
        : m_device(std::move(device)), m_caps(caps), m_paged(paged) {
        m_ok = m_painter.begin(m_device.get());
    }
    ~DocumentSurface() override { Finish(); }

    bool Ok() const { return m_ok; }
    DeviceCaps Caps() const override { return m_caps; }

    void Draw(const DrawCall& call, const DeviceClip& clip) override {
        if (!m_painter.isActive()) {
            return;
        }
        if (m_pageWanted) {
            if (auto* paged = dynamic_cast<QPagedPaintDevice*>(m_device.get())) {
                paged->newPage();
            }
            m_pageWanted = false;
        }
        if (clip.active) {
            QRegion region;
            for (const CRect& r : clip.rects) {
                region += QRect(r.left, r.top, r.Width(), r.Height());
            }
            m_painter.setClipRegion(region);
        } else {
            m_painter.setClipping(false);
        }
        const DeviceColours colours;
        switch (call.op) {
        case DrawOp::SetPixel:
            m_painter.setPen(QtColorOf(call.color));
            m_painter.drawPoint(call.device[0].x, call.device[0].y);
            break;
        case DrawOp::Blit: {
            QPoint at;
            QImage piece = BlitPicture(call, at);
            if (call.rop == SRCINVERT) {
                // Paper cannot be inverted: what would invert shows, black changes nothing.
                piece = piece.convertToFormat(QImage::Format_ARGB32);
                for (int y = 0; y < piece.height(); ++y) {
                    auto* line = reinterpret_cast<QRgb*>(piece.scanLine(y));
                    for (int x = 0; x < piece.width(); ++x) {
                        line[x] = (line[x] & 0xFFFFFF) == 0 ? 0 : line[x];
                    }
                }
            }
            m_painter.drawImage(at, piece);
            break;
        }
        default:
            PaintCall(m_painter, call, colours);
            break;
        }
    }

    void NewPage() override { m_pageWanted = m_paged; }

    void Finish() override {
        if (m_painter.isActive()) {
            m_ok = m_painter.end() && m_ok;
        }
    }

private:
    std::unique_ptr<QPaintDevice> m_device;
    QPainter m_painter;
    DeviceCaps m_caps;
    bool m_paged;
    bool m_ok = false;
    bool m_pageWanted = false;
};

} // namespace

DocumentDC::DocumentDC(std::shared_ptr<Surface> surface) : CDC(surface), m_document(surface) {}

std::unique_ptr<DocumentDC> DocumentDC::OpenPdf(const CString& path, double widthMm,
                                                double heightMm, int dpi) {
    EnsureGuiApplication();
    auto writer = std::make_unique<QPdfWriter>(QString::fromLocal8Bit(path.GetString()));
    writer->setPageSize(QPageSize(QSizeF(widthMm, heightMm), QPageSize::Millimeter));
    writer->setPageMargins(QMarginsF(0, 0, 0, 0));
    writer->setResolution(dpi);
    writer->setCreator(QStringLiteral("seisplot"));
    return OpenPagedDevice(std::move(writer), dpi);
}

std::unique_ptr<DocumentDC> DocumentDC::OpenSvg(const CString& path, int width, int height,
                                                int dpi) {
    EnsureGuiApplication();
    auto svg = std::make_unique<QSvgGenerator>();
    svg->setFileName(QString::fromLocal8Bit(path.GetString()));
    svg->setSize(QSize(width, height));
    svg->setViewBox(QRect(0, 0, width, height));
    svg->setResolution(dpi);
    svg->setTitle(QStringLiteral("seisplot"));
    DeviceCaps caps;
    caps.width = width;
    caps.height = height;
    caps.dpiX = caps.dpiY = dpi;
    auto surface = std::make_shared<DocumentSurface>(std::move(svg), caps, false);
    if (!surface->Ok()) {
        return nullptr;
    }
    return std::unique_ptr<DocumentDC>(new DocumentDC(surface));
}

std::unique_ptr<DocumentDC> OpenPagedDevice(std::unique_ptr<QPagedPaintDevice> device, int dpi) {
    EnsureGuiApplication();
    DeviceCaps caps;
    caps.width = device->width();
    caps.height = device->height();
    caps.dpiX = caps.dpiY = dpi;
    caps.technology = DT_RASPRINTER;
    caps.printing = true;
    auto surface = std::make_shared<DocumentSurface>(std::move(device), caps, true);
    if (!surface->Ok()) {
        return nullptr;
    }
    return std::unique_ptr<DocumentDC>(new DocumentDC(surface));
}

bool DocumentDC::Close() {
    auto& surface = static_cast<DocumentSurface&>(*m_document);
    surface.Finish();
    return surface.Ok();
}

} // namespace seisplot
