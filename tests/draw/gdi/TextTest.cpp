// Text, labels and legend swatches: font sizes and angles, the state left behind, the Symbol
// face per character, inverting text, and the swatch colours, labels and numbers.

#include "draw/gdi/Text.h"

#include "draw/font/SFont.h"

#include "support/DrawProbes.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <numbers>
#include <string>
#include <utility>
#include <vector>

using seisplot::DrawCall;
using seisplot::DrawOp;
using seisplot::test::Canvas;
using seisplot::test::Shapes;
using testing::ElementsAre;

namespace {

struct Recorder : seisplot::RecordingDC {
    explicit Recorder(int mode = MM_HIMETRIC) { SetMapMode(mode); }

    std::vector<DrawCall> Texts() const {
        std::vector<DrawCall> texts;
        for (const DrawCall& call : Calls()) {
            if (call.op == DrawOp::Text) {
                texts.push_back(call);
            }
        }
        return texts;
    }
};

} // namespace

TEST(Text, FontSizesInPointsAnglesAndTheAlignmentLeftBehind) {
    Recorder dc;
    dc.SetTextColor(0x123456);
    EXPECT_EQ(OutTextCentered(&dc, "Sa [g]", 500, 700, 300, SFont()), 0);
    ASSERT_EQ(dc.Texts().size(), 1u);
    const DrawCall call = dc.Texts()[0];
    EXPECT_EQ(call.text, "Sa [g]");
    EXPECT_EQ(call.logical[0], CPoint(500, 700));
    EXPECT_EQ(call.font.lfHeight, 423); // 2540 · 12 / 72
    EXPECT_EQ(call.font.lfEscapement, -300);
    EXPECT_EQ(call.textColor, 0x0000FFu);
    EXPECT_EQ(call.bkMode, TRANSPARENT);
    EXPECT_EQ(call.textAlign, TA_CENTER | TA_BOTTOM);
    // Colour and background come back; the alignment stays.
    EXPECT_EQ(dc.GetTextColor(), 0x123456u);
    EXPECT_EQ(dc.GetBkMode(), OPAQUE);
    EXPECT_EQ(dc.GetTextAlign(), 0x0Eu);

    Recorder lometric(MM_LOMETRIC);
    outx(&lometric, "T [s]", 0, 0, SFont(), std::numbers::pi / 2);
    ASSERT_EQ(lometric.Texts().size(), 1u);
    EXPECT_EQ(lometric.Texts()[0].font.lfHeight, 42); // 254 · 12 / 72
    EXPECT_EQ(lometric.Texts()[0].font.lfEscapement, -900);
    EXPECT_EQ(lometric.GetTextAlign(), TA_BOTTOM);

    Recorder text(MM_TEXT);
    OutTextCentered(&text, "x", 0, 0, 0, SFont());
    outx(&text, "x", 0, 0, SFont(), 0.0);
    MixedRect(&text, 1, "ab", CPoint(0, 0), 10);
    EXPECT_TRUE(text.Calls().empty());
}

TEST(Text, SymbolFlagsPickTheSymbolFacePerCharacter) {
    Recorder dc;
    dc.SetTextAlign(TA_RIGHT);
    const SFont font(12, 0x00FF00);
    OutTextCentered(&dc, "am", "\1\0", 1000, 500, 0, font);
    const std::vector<DrawCall> texts = dc.Texts();
    ASSERT_EQ(texts.size(), 2u);
    EXPECT_EQ(texts[0].text, "a");
    EXPECT_STREQ(texts[0].font.lfFaceName, "Symbol");
    EXPECT_EQ(texts[1].text, "m");
    EXPECT_STREQ(texts[1].font.lfFaceName, "");
    EXPECT_EQ(texts[0].textAlign, TA_UPDATECP);
    EXPECT_EQ(texts[1].textColor, 0x00FF00u);

    // The string starts half the plain width left of x, 1.2 text heights above y.
    LOGFONTA plain = font.GetFont();
    plain.lfHeight = 423;
    CFont measure;
    measure.CreateFontIndirect(&plain);
    CFont* previous = dc.SelectObject(&measure);
    const CSize extent = dc.GetTextExtent("am", 2);
    dc.SelectObject(previous);
    EXPECT_EQ(texts[0].logical[0],
              CPoint(1000 - extent.cx / 2, static_cast<int>(500 + 1.2 * extent.cy)));
    EXPECT_GT(texts[1].logical[0].x, texts[0].logical[0].x);
    EXPECT_EQ(dc.GetTextAlign(), TA_RIGHT);
}

TEST(Text, InvertingTextWrittenTwiceLeavesThePicture) {
    Canvas canvas(200, 100);
    canvas.Fill(CRect(100, 0, 200, 100), 0x336699);
    const std::vector<COLORREF> before = canvas.Pixels();
    canvas.dc.SetMapMode(MM_HIMETRIC);
    outxROP(&canvas.dc, "Ag", 2000, -500, SFont(), 0.0);
    EXPECT_NE(canvas.Pixels(), before);
    outxROP(&canvas.dc, "Ag", 2000, -500, SFont(), 0.0);
    EXPECT_EQ(canvas.Pixels(), before);
}

TEST(Text, SwatchColourCodes) {
    const std::vector<std::pair<unsigned int, std::pair<COLORREF, COLORREF>>> cases{
        {0, {0x00FFFF, 0x00FFFF}},   {1, {0xBF0000, 0xBF0000}},   {2, {0xBF0000, 0x00BF00}},
        {144, {0x00FF00, 0x808000}}, {146, {0x00BF00, 0xBF0000}}, {289, {0xBF0000, 0x00BF00}},
    };
    for (const auto& [code, colours] : cases) {
        Recorder dc;
        MixedRect(&dc, code, "ab", CPoint(0, 0), 10);
        ASSERT_EQ(dc.Calls().size(), 3u) << code;
        EXPECT_EQ(dc.Calls()[0].brush.color, colours.first) << code;
        EXPECT_EQ(dc.Calls()[1].brush.color, colours.second) << code;
    }
}

TEST(Text, SwatchSquareLabelAndNumber) {
    Recorder dc;
    dc.SetTextColor(0x00AA00);
    CBrush* brush = dc.GetCurrentBrush();
    const int live = seisplot::LiveGdiObjects();
    MixedRect(&dc, 2, 7, "ab", CPoint(0, 0), 10);
    EXPECT_THAT(Shapes(dc),
                ElementsAre("R -500,-500 0,500", "R 0,-500 500,500", "? 0,-250", "? 0,-500"));
    std::vector<DrawCall> texts = dc.Texts();
    // A two-letter label is larger and lower; the number sits on the lower edge.
    EXPECT_EQ(texts[0].text, "ab");
    EXPECT_EQ(texts[0].font.lfHeight, 500);
    EXPECT_EQ(texts[0].textColor, 0x00AA00u);
    EXPECT_EQ(texts[1].text, "7");
    EXPECT_EQ(texts[1].font.lfHeight, 250);
    EXPECT_EQ(texts[1].textAlign, TA_CENTER | TA_BOTTOM);
    EXPECT_EQ(dc.GetCurrentBrush(), brush);
    EXPECT_EQ(seisplot::LiveGdiObjects(), live);

    dc.Clear();
    MixedRect(&dc, 2, 42, "ABCDEFGHIJKL", CPoint(0, 0), 10);
    texts = dc.Texts();
    EXPECT_EQ(texts[0].text, "ABCDEFGHI");
    EXPECT_EQ(texts[0].font.lfHeight, 400);
    EXPECT_EQ(texts[0].logical[0], CPoint(0, -200));
    EXPECT_EQ(texts[1].text, "42");

    dc.Clear();
    FullRect(&dc, 5, 123, "ABCDEFGHIJKL", CPoint(0, 0), 10, 0x0080FF);
    EXPECT_EQ(dc.Calls()[0].brush.color, 0x0080FFu);
    EXPECT_EQ(dc.Calls()[1].brush.color, 0x0080FFu);
    texts = dc.Texts();
    EXPECT_EQ(texts[0].text, "ABCDEFGHIJKL");
    EXPECT_EQ(texts[1].text, "123");
}
