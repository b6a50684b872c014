#pragma once
// Device contexts that write a document: a PDF page (a printer: IsPrinting is true and the
// device capabilities are the page's) or an SVG picture (a screen of the given size).

#include "platform/gdi/CDC.h"

#include <memory>

class QPagedPaintDevice;

namespace seisplot {

class DocumentDC : public CDC {
public:
    // A PDF of pages `widthMm` by `heightMm`, drawn at `dpi` device pixels per inch.
    static std::unique_ptr<DocumentDC> OpenPdf(const CString& path, double widthMm, double heightMm,
                                               int dpi = 600);
    // An SVG picture of `width` by `height` pixels at `dpi`.
    static std::unique_ptr<DocumentDC> OpenSvg(const CString& path, int width, int height,
                                               int dpi = 96);
    // Ends the document (also done on destruction); false when the file could not be written.
    bool Close();

private:
    friend std::unique_ptr<DocumentDC> OpenPagedDevice(std::unique_ptr<QPagedPaintDevice> device,
                                                       int dpi);
    explicit DocumentDC(std::shared_ptr<Surface> surface);
    // Held here too, so that Close works after DeleteDC.
    std::shared_ptr<Surface> m_document;
};

} // namespace seisplot
