// The device context: mapping, state, pixels of lines and figures, raster operations,
// clipping, blits, text placement, object accounting and the document surfaces.

#include "platform/gdi/BitmapBits.h"
#include "platform/gdi/CDC.h"
#include "platform/gdi/CWnd.h"
#include "platform/gdi/DocumentDC.h"
#include "platform/gdi/RecordingDC.h"

#include "support/DrawProbes.h"
#include "support/TempDir.h"

#include <gtest/gtest.h>

namespace {

using seisplot::test::Canvas;

constexpr COLORREF kWhite = 0xFFFFFF;
constexpr COLORREF kRed = 0x0000FF;

TEST(DeviceContext, MetricModesMapWithYUpAndRoundTrip) {
    seisplot::RecordingDC dc(seisplot::RecordingDevice{1000, 800, 254});
    dc.SetMapMode(MM_LOMETRIC); // 254 dpi: one pixel per tenth of a millimetre
    CPoint p(120, -340);
    dc.LPtoDP(&p);
    EXPECT_EQ(p, CPoint(120, 340));
    dc.SetMapMode(MM_HIMETRIC);
    dc.SetWindowOrg(0, -8000);
    CPoint q(2500, -4000);
    dc.LPtoDP(&q);
    EXPECT_EQ(q, CPoint(250, -400));
    dc.DPtoLP(&q);
    EXPECT_EQ(q, CPoint(2500, -4000));
    dc.SetViewportOrg(10, 20);
    CRect r(0, 0, 1000, -1000);
    dc.LPtoDP(&r);
    EXPECT_EQ(r, CRect(10, -780, 110, -680));
    EXPECT_EQ(dc.GetDeviceCaps(HORZSIZE), 100); // 1000 pixels at 254 dpi
    EXPECT_EQ(dc.GetDeviceCaps(LOGPIXELSY), 254);
}

TEST(DeviceContext, LineLeavesItsEndPixelAndStyledGaps) {
    Canvas c(40, 10);
    CPen pen(PS_SOLID, 1, kRed);
    CPen* old = c.dc.SelectObject(&pen);
    c.dc.MoveTo(2, 2);
    c.dc.LineTo(12, 2);
    EXPECT_EQ(c.dc.GetPixel(2, 2), kRed);
    EXPECT_EQ(c.dc.GetPixel(11, 2), kRed);
    EXPECT_EQ(c.dc.GetPixel(12, 2), kWhite);
    EXPECT_EQ(c.dc.GetCurrentPosition(), CPoint(12, 2));

    // A rectangle's right and bottom edges lie outside it; without a pen it fills one less.
    c.dc.Rectangle(20, 2, 28, 8);
    EXPECT_EQ(c.dc.GetPixel(27, 7), kRed);
    EXPECT_EQ(c.dc.GetPixel(28, 7), kWhite);
    EXPECT_EQ(c.dc.GetPixel(27, 8), kWhite);
    const CRect solid(20, 8, 24, 10);
    c.dc.FillSolidRect(&solid, 0x00FF00);
    EXPECT_EQ(c.dc.GetPixel(23, 9), 0x00FF00u);
    EXPECT_EQ(c.dc.GetPixel(24, 9), kWhite);
    c.dc.SelectStockObject(NULL_PEN);
    c.dc.Rectangle(30, 2, 38, 8);
    EXPECT_EQ(c.dc.GetPixel(36, 6), 0xFFFFFFu); // the stock white brush
    c.dc.SelectStockObject(BLACK_BRUSH);
    c.dc.Rectangle(30, 2, 38, 8);
    EXPECT_EQ(c.dc.GetPixel(36, 6), 0u);
    EXPECT_EQ(c.dc.GetPixel(37, 6), kWhite);

    CPen dot(PS_DOT, 1, 0);
    c.dc.SelectObject(&dot);
    c.dc.SetBkMode(TRANSPARENT);
    c.dc.MoveTo(0, 5);
    c.dc.LineTo(12, 5);
    // Three pixels on, three off; transparent gaps keep what was there.
    const std::vector<COLORREF> expected{0, 0, 0, kWhite, kWhite, kWhite,
                                         0, 0, 0, kWhite, kWhite, kWhite};
    for (int x = 0; x < 12; ++x) {
        EXPECT_EQ(c.dc.GetPixel(x, 5), expected[x]) << x;
    }
    c.dc.SetBkMode(OPAQUE);
    c.dc.SetBkColor(kRed);
    c.dc.MoveTo(0, 7);
    c.dc.LineTo(6, 7);
    EXPECT_EQ(c.dc.GetPixel(4, 7), kRed);
    c.dc.SelectObject(old);
}

TEST(DeviceContext, InvertingOperationsUndoThemselves) {
    for (int rop : {R2_NOT, R2_XORPEN, R2_NOTXORPEN}) {
        Canvas c(60, 60);
        CBrush blue(0xFF0000);
        c.dc.SelectObject(&blue);
        c.dc.Ellipse(5, 5, 40, 30);
        const auto before = c.Pixels();
        CPen wide(PS_SOLID, 3, 0x00FF00);
        CBrush fill(0x123456);
        c.dc.SelectObject(&wide);
        c.dc.SelectObject(&fill);
        c.dc.SetROP2(rop);
        c.dc.Pie(0, 0, 50, 50, 50, 25, 25, 0);
        c.dc.MoveTo(0, 59);
        c.dc.LineTo(59, 0);
        EXPECT_NE(c.Pixels(), before) << rop;
        c.dc.Pie(0, 0, 50, 50, 50, 25, 25, 0);
        c.dc.MoveTo(0, 59);
        c.dc.LineTo(59, 0);
        EXPECT_EQ(c.Pixels(), before) << rop;
        c.dc.SelectStockObject(BLACK_PEN);
        c.dc.SelectStockObject(WHITE_BRUSH);
    }
}

TEST(DeviceContext, PieRunsCounterClockwiseAsSeenInBothModes) {
    // From the radial to the right to the radial upward is the upper-right quarter on the
    // device, whichever way y runs.
    for (int mode : {MM_TEXT, MM_LOMETRIC}) {
        Canvas c(100, 100);
        c.dc.SetMapMode(mode);
        c.dc.SetViewportOrg(50, 50);
        CPen none(PS_NULL, 0, 0);
        CBrush red(kRed);
        c.dc.SelectObject(&none);
        c.dc.SelectObject(&red);
        const int r = mode == MM_TEXT ? 40 : 100; // 100 tenths of a mm are 38 pixels at 96 dpi
        const int up = mode == MM_TEXT ? -r : r;
        c.dc.Pie(-r, -r, r, r, r, 0, 0, up);
        c.dc.SetMapMode(MM_TEXT);
        c.dc.SetViewportOrg(0, 0);
        EXPECT_EQ(c.dc.GetPixel(65, 35), kRed) << mode;
        EXPECT_EQ(c.dc.GetPixel(35, 65), kWhite) << mode;
        EXPECT_EQ(c.dc.GetPixel(35, 35), kWhite) << mode;
    }
}

TEST(DeviceContext, ClipRegionAndIntersection) {
    Canvas c(30, 30);
    CBrush red(kRed);
    CPen none(PS_NULL, 0, 0);
    c.dc.SelectObject(&red);
    c.dc.SelectObject(&none);
    EXPECT_EQ(c.dc.IntersectClipRect(5, 5, 20, 20), SIMPLEREGION);
    EXPECT_EQ(c.dc.IntersectClipRect(10, 0, 30, 30), SIMPLEREGION);
    CRect box;
    c.dc.GetClipBox(&box);
    EXPECT_EQ(box, CRect(10, 5, 20, 20));
    c.dc.Rectangle(0, 0, 30, 30);
    EXPECT_EQ(c.dc.GetPixel(9, 10), kWhite);
    EXPECT_EQ(c.dc.GetPixel(10, 10), kRed);
    EXPECT_EQ(c.dc.GetPixel(19, 19), kRed);
    EXPECT_EQ(c.dc.GetPixel(20, 19), kWhite);
    CRgn region;
    region.CreateRectRgn(0, 25, 30, 30);
    c.dc.SelectClipRgn(&region);
    CRgn never;
    EXPECT_EQ(c.dc.SelectClipRgn(&never), ERROR); // the clip stays as it was
    c.dc.SetPixel(1, 1, 0);
    c.dc.SetPixel(1, 26, 0);
    EXPECT_EQ(c.dc.GetPixel(1, 1), kWhite);
    EXPECT_EQ(c.dc.GetPixel(1, 26), 0u);
}

TEST(DeviceContext, MonochromeDeviceAndPatternBrush) {
    Canvas mono(16, 16, kWhite, Canvas::Depth::Monochrome);
    EXPECT_EQ(mono.dc.GetDeviceCaps(NUMCOLORS), 2);
    EXPECT_TRUE(mono.dc.IsMonochrome());
    mono.dc.SetPixel(3, 3, 0x00C0C0); // light: white on a monochrome device
    mono.dc.SetPixel(4, 3, 0x404000);
    EXPECT_EQ(mono.dc.GetPixel(3, 3), kWhite);
    EXPECT_EQ(mono.dc.GetPixel(4, 3), 0u);
    CBitmap compatible;
    compatible.CreateCompatibleBitmap(&mono.dc, 4, 4);
    BITMAP info;
    compatible.GetBitmap(&info);
    EXPECT_EQ(info.bmBitsPixel, 1);

    // Rows of 16-bit words, pattern byte first: 0 bits take the text colour, 1 bits the
    // background colour, aligned to the device's 8-pixel grid.
    const unsigned char rows[16] = {0xF0, 0, 0xF0, 0, 0xF0, 0, 0xF0, 0,
                                    0x0F, 0, 0x0F, 0, 0x0F, 0, 0x0F, 0};
    CBitmap tile;
    ASSERT_TRUE(tile.CreateBitmap(8, 8, 1, 1, rows));
    CBrush pattern;
    ASSERT_TRUE(pattern.CreatePatternBrush(&tile));
    Canvas c(16, 16);
    c.dc.SetTextColor(kRed);
    c.dc.SetBkColor(0x00FF00);
    c.dc.SelectObject(&pattern);
    c.dc.SelectStockObject(NULL_PEN);
    c.dc.Rectangle(0, 0, 17, 17);
    EXPECT_EQ(c.dc.GetPixel(0, 0), 0x00FF00u);
    EXPECT_EQ(c.dc.GetPixel(4, 0), kRed);
    EXPECT_EQ(c.dc.GetPixel(0, 4), kRed);
    EXPECT_EQ(c.dc.GetPixel(12, 12), 0x00FF00u);
}

TEST(DeviceContext, BlitsCopyAndInvertWithFlips) {
    Canvas source(4, 2);
    source.dc.SetPixel(0, 0, kRed);
    source.dc.SetPixel(3, 1, 0x00FF00);
    Canvas target(8, 8);
    target.dc.BitBlt(2, 2, 4, 2, &source.dc, 0, 0, SRCCOPY);
    EXPECT_EQ(target.dc.GetPixel(2, 2), kRed);
    EXPECT_EQ(target.dc.GetPixel(5, 3), 0x00FF00u);
    // Only what lies inside the picture and the clip region is copied.
    target.dc.BitBlt(-3, 7, 4, 2, &source.dc, 0, 0, SRCCOPY);
    EXPECT_EQ(target.dc.GetPixel(0, 7), kWhite);
    target.dc.BitBlt(5, 6, 4, 2, &source.dc, 0, 0, SRCCOPY);
    EXPECT_EQ(target.dc.GetPixel(5, 6), kRed);
    EXPECT_EQ(target.dc.GetPixel(7, 7), kWhite);
    target.dc.IntersectClipRect(0, 0, 4, 8);
    target.dc.BitBlt(3, 4, 4, 2, &source.dc, 0, 0, SRCCOPY);
    EXPECT_EQ(target.dc.GetPixel(3, 4), kRed);
    EXPECT_EQ(target.dc.GetPixel(6, 5), kWhite);
    target.dc.SelectClipRgn(nullptr);
    // Inverting with white turns white black; twice restores it.
    target.dc.BitBlt(2, 2, 4, 2, &source.dc, 0, 0, SRCINVERT);
    EXPECT_EQ(target.dc.GetPixel(3, 2), 0u);
    EXPECT_EQ(target.dc.GetPixel(2, 2), 0u);
    // A negative height turns the picture upside down.
    Canvas flipped(8, 8);
    flipped.dc.StretchBlt(0, 4, 4, -2, &source.dc, 0, 0, 4, 2, SRCCOPY);
    EXPECT_EQ(flipped.dc.GetPixel(0, 3), kRed);
    EXPECT_EQ(flipped.dc.GetPixel(3, 2), 0x00FF00u);
}

TEST(DeviceContext, TextAlignmentCurrentPositionAndMetrics) {
    seisplot::RecordingDC dc;
    dc.SetMapMode(MM_HIMETRIC);
    LOGFONTA lf;
    lf.lfHeight = 423; // 12 points
    lf.lfEscapement = 900;
    CFont font;
    font.CreateFontIndirect(&lf);
    dc.SelectObject(&font);
    const CSize extent = dc.GetTextExtent("Wide text");
    EXPECT_GT(extent.cx, 1500);
    EXPECT_NEAR(extent.cy, 423, 30); // the cell height is the font's height
    TEXTMETRICA tm;
    dc.GetTextMetrics(&tm);
    EXPECT_EQ(tm.tmHeight, tm.tmAscent + tm.tmDescent);
    EXPECT_GT(tm.tmAveCharWidth, 0);

    // The stock font keeps its pixel size whatever the mapping mode.
    CFont* mine = dc.SelectObject(CFont::FromStock(SYSTEM_FONT));
    TEXTMETRICA stock;
    dc.GetTextMetrics(&stock);
    EXPECT_NEAR(stock.tmHeight, 18 * 2540 / 96, 4 * 2540 / 96); // about 18 pixels
    dc.SelectObject(mine);

    dc.SetTextAlign(TA_UPDATECP);
    dc.MoveTo(100, 200);
    dc.TextOut(0, 0, "ab");
    ASSERT_EQ(dc.Calls().size(), 1u);
    const auto& call = dc.Calls()[0];
    EXPECT_EQ(call.logical[0], CPoint(100, 200)); // drawn at the current position
    EXPECT_EQ(call.font.lfEscapement, 900);
    EXPECT_DOUBLE_EQ(call.textAngle, -90.0); // y up: turned clockwise as seen
    EXPECT_EQ(call.fontPixelHeight, 16);     // 423 hundredths of a mm at 96 dpi
    // The current position moves along the text, here downward in logical y.
    EXPECT_EQ(dc.GetCurrentPosition().x, 100);
    EXPECT_LT(dc.GetCurrentPosition().y, 200);
    dc.DeleteDC(); // what was recorded stays readable
    EXPECT_EQ(dc.Calls().size(), 1u);
}

TEST(DeviceContext, TextIsMeasuredByTheSurfaceThatDrawsIt) {
    // A device whose own font advances 10 pixels a character, at 254 dpi: 1 pixel is 10
    // hundredths of a millimetre.
    seisplot::RecordingDevice device;
    device.dpi = 254;
    device.characterPixels = 10;
    seisplot::RecordingDC dc(device);
    dc.SetMapMode(MM_HIMETRIC);
    LOGFONTA lf;
    lf.lfHeight = -500; // 50 pixels
    CFont font;
    font.CreateFontIndirect(&lf);
    dc.SelectObject(&font);
    EXPECT_EQ(dc.GetTextExtent("abcd"), CSize(400, 500));
    TEXTMETRICA tm;
    ASSERT_TRUE(dc.GetTextMetrics(&tm));
    EXPECT_EQ((std::vector<LONG>{tm.tmAscent, tm.tmDescent, tm.tmAveCharWidth}),
              (std::vector<LONG>{400, 100, 100}));
    dc.SetTextAlign(TA_UPDATECP);
    dc.MoveTo(1000, 2000);
    dc.TextOut(0, 0, "abc");
    EXPECT_EQ(dc.GetCurrentPosition(), CPoint(1300, 2000));
    // A context without a surface measures nothing.
    CDC none;
    EXPECT_EQ(none.GetTextExtent("abcd"), CSize(0, 0));
    EXPECT_FALSE(none.GetTextMetrics(&tm));
}

TEST(DeviceContext, SelectionReturnsPreviousAndObjectsAreCounted) {
    const int live = seisplot::LiveGdiObjects();
    {
        seisplot::RecordingDC dc;
        CPen* stock = dc.GetCurrentPen();
        CPen pen(PS_DASH, 1, 0);
        EXPECT_EQ(seisplot::LiveGdiObjects(), live + 1);
        EXPECT_EQ(dc.SelectObject(&pen), stock);
        CGdiObject* brush = dc.SelectStockObject(NULL_BRUSH);
        EXPECT_EQ(dc.SelectObject(brush), CBrush::FromStock(NULL_BRUSH));
        EXPECT_EQ(dc.SelectObject(stock), &pen);
        EXPECT_TRUE(pen.DeleteObject());
        EXPECT_FALSE(pen.DeleteObject());
        EXPECT_EQ(seisplot::LiveGdiObjects(), live);
        seisplot::FailGdiCreationAfter(1);
        CBrush a, b;
        EXPECT_TRUE(a.CreateSolidBrush(0));
        EXPECT_FALSE(b.CreateSolidBrush(0));
        seisplot::FailGdiCreationAfter(-1);
        EXPECT_TRUE(b.CreateSolidBrush(0));
        EXPECT_FALSE(CBrush::FromStock(NULL_BRUSH)->DeleteObject());
    }
    EXPECT_EQ(seisplot::LiveGdiObjects(), live);
}

TEST(DeviceContext, WindowsAndDocuments) {
    CButton button;
    button.SetClientSize(120, 80);
    CRect client;
    button.GetClientRect(&client);
    EXPECT_EQ(client, CRect(0, 0, 120, 80));
    CDC* dc = button.GetDC();
    EXPECT_EQ(dc->GetPixel(5, 5), kWhite);
    dc->SetPixel(5, 5, kRed);
    // The view that shows the picture hears of every context given back and invalidation.
    struct View : seisplot::WindowView {
        int changes = 0;
        CString text;
        bool enabled = true;
        void PictureChanged() override { ++changes; }
        CString Text() const override { return text; }
        void SetText(const CString& t) override { text = t; }
        bool Enabled() const override { return enabled; }
        void SetEnabled(bool e) override { enabled = e; }
        bool Visible() const override { return true; }
        void SetVisible(bool) override {}
        void Focus() override {}
        int Check() const override { return BST_CHECKED; }
        void SetCheck(int) override {}
    } view;
    button.SetView(&view);
    EXPECT_EQ(button.ReleaseDC(dc), 1);
    EXPECT_EQ(button.ReleaseDC(dc), 0); // not ours any more: nothing to tell
    button.Invalidate();
    EXPECT_EQ(view.changes, 2);
    // Text and state are the view's while it is attached, the window's own otherwise.
    button.SetWindowText("shown");
    EXPECT_EQ(view.text, "shown");
    EXPECT_FALSE(button.EnableWindow(FALSE));
    EXPECT_FALSE(view.enabled);
    EXPECT_EQ(button.GetCheck(), BST_CHECKED);
    button.SetView(nullptr);
    CString text;
    button.GetWindowText(text);
    EXPECT_EQ(text, "");
    EXPECT_TRUE(button.IsWindowEnabled());
    EXPECT_EQ(button.GetCheck(), BST_UNCHECKED);
    EXPECT_EQ(button.GetDC()->GetPixel(5, 5), kRed); // the picture stays

    seisplot::test::TempDir dir;
    const std::string pdf = dir.Path("page.pdf"), svg = dir.Path("picture.svg");
    {
        auto doc = seisplot::DocumentDC::OpenPdf(pdf.c_str(), 210, 297, 300);
        ASSERT_TRUE(doc);
        EXPECT_TRUE(doc->IsPrinting());
        EXPECT_EQ(doc->GetDeviceCaps(TECHNOLOGY), DT_RASPRINTER);
        EXPECT_EQ(doc->GetDeviceCaps(HORZSIZE), 210);
        doc->SetMapMode(MM_HIMETRIC);
        doc->Rectangle(1000, -1000, 5000, -5000);
        EXPECT_TRUE(doc->Close());
    }
    {
        auto doc = seisplot::DocumentDC::OpenSvg(svg.c_str(), 200, 100);
        ASSERT_TRUE(doc);
        EXPECT_FALSE(doc->IsPrinting());
        doc->Ellipse(10, 10, 90, 60);
        EXPECT_TRUE(doc->Close());
    }
    const std::string pdfText = dir.Read("page.pdf");
    EXPECT_EQ(pdfText.rfind("%PDF-", 0), 0u);
    const std::string svgText = dir.Read("picture.svg");
    EXPECT_NE(svgText.find("<svg"), std::string::npos);
    EXPECT_NE(svgText.find("viewBox=\"0 0 200 100\""), std::string::npos);
}

TEST(DeviceContext, BitmapBitsComeAsBottomUpDibRows) {
    // Three pixels wide: a 24-bit row of 9 bytes is padded to 12.
    Canvas c(3, 2);
    c.dc.SetPixel(0, 0, RGB(1, 2, 3)); // top-left
    c.dc.SetPixel(2, 1, RGB(7, 8, 9)); // bottom-right
    BITMAPINFO info{};
    info.bmiHeader.biSize = sizeof(BITMAPINFOHEADER);
    EXPECT_EQ(GetDIBits(&c.dc, &c.bitmap, 0, 0, nullptr, &info, DIB_RGB_COLORS), 2);
    EXPECT_EQ(info.bmiHeader.biWidth, 3);
    EXPECT_EQ(info.bmiHeader.biHeight, 2);
    EXPECT_EQ(info.bmiHeader.biBitCount, 32);
    EXPECT_EQ(info.bmiHeader.biSizeImage, 24u);

    std::vector<BYTE> rows(24, 0xAA);
    info.bmiHeader.biBitCount = 24;
    EXPECT_EQ(GetDIBits(&c.dc, &c.bitmap, 0, 2, rows.data(), &info, DIB_RGB_COLORS), 2);
    EXPECT_EQ(rows, (std::vector<BYTE>{0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 9,    8,
                                       7,    0xAA, 0xAA, 0xAA, 3,    2,    1,    0xFF,
                                       0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xAA, 0xAA, 0xAA}));
    info.bmiHeader.biBitCount = 32;
    EXPECT_EQ(GetDIBits(&c.dc, &c.bitmap, 1, 1, rows.data(), &info, DIB_RGB_COLORS), 1);
    EXPECT_EQ(std::vector<BYTE>(rows.begin(), rows.begin() + 4),
              (std::vector<BYTE>{3, 2, 1, 0xFF}));
    EXPECT_EQ(GetDIBits(nullptr, &c.bitmap, 0, 2, rows.data(), &info, DIB_RGB_COLORS), 0);
}

} // namespace
