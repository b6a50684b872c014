// The curve display dialogs: what the listing shows, how the current point moves and points
// are marked, the plot, and what reaches files, the printer, the clipboard and the caller.

#include "dialogs/curves/CurveDisplay.h"
#include "DialogFixture.h"
#include "platform/core/FailureInjection.h"
#include "platform/gdi/GdiObjects.h"
#include "platform/ui/Clipboard.h"
#include "platform/ui/PrintDialog.h"
#include "plot/CurvePlot.h"
#include "support/TempDir.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QImage>

#include <cstring>
#include <fstream>
#include <sstream>

using seisplot::DialogHandle;

namespace {

constexpr int kCurves = 14629, kPath = 14630, kLoad = 14628, kModify = 14665, kPlot = 14625;
constexpr int kData = 14637, kToFile = 14638, kMax = 14678, kMin = 14679, kMinus = 14631;
constexpr int kPlus = 14633, kSel = 14639, kUnsel = 14632, kAll = 14640, kNone = 14641;
constexpr int kSwap = 14642, kCopy = 14627, kPrint = 14626, kTitleFont = 14634;

template <class Curve> Curve Ordinates(const char* name, std::vector<double> ys) {
    Curve c;
    c.SetName(name);
    for (size_t k = 0; k < ys.size(); ++k) {
        c.AddPoint(1000.0 * static_cast<double>(k + 1), ys[k]);
    }
    return c;
}

std::string FileText(const std::string& path) {
    std::ifstream in(path, std::ios::binary);
    std::ostringstream text;
    text << in.rdbuf();
    return text.str();
}

struct CurveDisplayTest : seisplot::test::DialogFixture {
    seisplot::test::TempDir dir;
};

} // namespace

TEST_F(CurveDisplayTest, TheListingShowsEachPointInTheUsersUnitsAndFollowsSwappedAxes) {
    Units units;
    units.SetL(10.0); // cm; forces kN
    PCurve beam;
    beam.SetName("beam");
    beam.XUnit = seisplot::UnitKind::Length;
    beam.YUnit = seisplot::UnitKind::ListedMoment;
    for (int k = 1; k <= 12; ++k) {
        beam.AddPoint(250.0 * k, -1.5e6 * k);
    }
    beam[11].SetName("support");
    PrintPCurve display;
    display.UnitSystem = &units;
    display.Coll.AddPCurve(beam);
    display.Path = "beam.pcc";
    dialogs.Expect(14503, [&](DialogHandle& d) {
        EXPECT_EQ(d.Caption(), "Curve display");
        EXPECT_EQ(d.Text(kPath), "beam.pcc");
        EXPECT_EQ(d.Lines(kCurves), std::vector<CString>{"beam"});
        const std::vector<CString> lines = d.Lines(kData);
        ASSERT_EQ(lines.size(), 12u);
        // 3000 mm = 300 cm; -1.8e7 N·mm = -0.18 kN·m shown in kN·cm: -1800.
        EXPECT_EQ(lines[11], "   12     3.000e+02    -1.800e+03  support          ");
        EXPECT_EQ(lines[0], "    1     2.500e+01    -1.500e+02            ");
        d.Click(kSwap);
        EXPECT_EQ(d.Lines(kData)[11], "   12    -1.800e+03     3.000e+02  support          ");
        EXPECT_TRUE(d.Cancel());
    });
    EXPECT_EQ(display.DoModal(), IDCANCEL);
    EXPECT_EQ(display.SwapAxes, 1);
    EXPECT_EQ(display.Coll.GetP(1)->GetPoint(12).GetX(), 3000.0); // no data changed
}

TEST_F(CurveDisplayTest, WithoutAPathTheListsWaitForAFileRead) {
    const std::string file = dir.Path("two.pcc");
    {
        PCurveColl stored;
        stored.AddPCurve(Ordinates<PCurve>("first", {1, 2}));
        stored.AddPCurve(Ordinates<PCurve>("second", {3, 4, 5}));
        ASSERT_EQ(stored.WriteToFile(file.c_str()), 0);
    }
    PrintPCurve display;
    display.Coll.AddPCurve(Ordinates<PCurve>("held", {9}));
    ui.QueueFiles({file.c_str()});
    dialogs.Expect(14503, [&](DialogHandle& d) {
        EXPECT_TRUE(d.Lines(kCurves).empty());
        EXPECT_TRUE(d.Lines(kData).empty());
        d.Click(kLoad);
        EXPECT_EQ(d.Lines(kCurves), (std::vector<CString>{"first", "second"}));
        EXPECT_EQ(d.Selection(kCurves), 0);
        EXPECT_EQ(d.Lines(kData).size(), 2u);
        EXPECT_EQ(d.Text(kPath), file.c_str());
        d.SelectLine(kCurves, 1);
        EXPECT_EQ(d.Lines(kData).size(), 3u);
        EXPECT_TRUE(d.Ok());
    });
    EXPECT_EQ(display.DoModal(), IDOK);
    ASSERT_EQ(ui.FileRequests().size(), 1u);
    EXPECT_EQ(ui.FileRequests()[0].filter, "PCurves (*.pcc)|*.pcc||");
    EXPECT_EQ(display.Coll.GetPCurveNum(), 2);
    EXPECT_TRUE(ui.Messages().empty()); // nothing modified: no question
}

TEST_F(CurveDisplayTest, TheCurrentPointWrapsBackButNotForwardAndExtremesAreMarked) {
    PrintPMCurve display;
    display.Coll.AddPMCurve(Ordinates<PMCurve>("five", {3, 7, 7, 1, 5}));
    display.Coll.AddPMCurve(Ordinates<PMCurve>("empty", {}));
    display.Path = "x";
    std::vector<unsigned long> seen;
    dialogs.Expect(14503, [&](DialogHandle& d) {
        const auto press = [&](int id) {
            d.Click(id);
            seen.push_back(display.CurrentPoint);
        };
        press(kMinus); // 1 -> 5
        press(kPlus);  // 5 stays
        press(kMax);   // the first of the two 7s
        EXPECT_EQ(d.Selection(kData), 1);
        press(kMin);
        press(kPlus);
        display.CurrentPoint = 9; // beyond the last point, as after a shorter curve
        press(kPlus);
        display.CurrentPoint = 9;
        press(kMinus);
        display.CurrentPoint = 0;
        press(kPlus);
        d.SelectLine(kCurves, 1);
        press(kMax); // no point: nothing
        EXPECT_TRUE(d.Cancel());
    });
    EXPECT_EQ(display.DoModal(), IDCANCEL);
    EXPECT_EQ(seen, (std::vector<unsigned long>{5, 5, 2, 4, 5, 1, 5, 1, 1}));
    const PMCurve& five = *display.Coll.GetP(1);
    std::vector<int> marked;
    for (int k = 0; k < five.GetNP(); ++k) {
        marked.push_back(five[k].IsSelected(1));
    }
    EXPECT_EQ(marked, (std::vector<int>{0, 1, 0, 1, 0}));
    EXPECT_EQ(display.Modified, 1);
    EXPECT_TRUE(ui.Messages().empty()); // Cancel asks nothing
}

TEST_F(CurveDisplayTest, MarksFromButtonsAndFromListingRows) {
    const auto marks = [](const seisplot::CurveBase& c) {
        std::vector<int> m;
        for (int k = 0; k < c.GetNP(); ++k) {
            m.push_back(c[k].IsSelected(1));
        }
        return m;
    };
    PrintPCurve first;
    first.Coll.AddPCurve(Ordinates<PCurve>("c", {1, 2, 3, 4}));
    first.Path = "x";
    dialogs.Expect(14503, [&](DialogHandle& d) {
        d.Click(kAll);
        d.Click(kPlus);
        d.Click(kUnsel); // point 2
        EXPECT_EQ(marks(*first.Coll.GetP(1)), (std::vector<int>{1, 0, 1, 1}));
        d.Click(kNone);
        d.Click(kSel);
        EXPECT_EQ(marks(*first.Coll.GetP(1)), (std::vector<int>{0, 1, 0, 0}));
        d.Click(kNone);
        d.SelectLine(kData, 2); // marks point 3
        d.SelectLine(kData, 0); // point 3 back, point 1 marked
        EXPECT_EQ(marks(*first.Coll.GetP(1)), (std::vector<int>{1, 0, 0, 0}));
        EXPECT_EQ(first.CurrentPoint, 1u);
        EXPECT_TRUE(d.Cancel());
    });
    first.DoModal();
    // The row chosen last is remembered by the next function-curve dialog.
    PrintPCurve second;
    second.Coll.AddPCurve(Ordinates<PCurve>("c", {1, 2, 3, 4}));
    second.Path = "x";
    dialogs.Expect(14503, [&](DialogHandle& d) {
        d.Click(kAll);
        d.SelectLine(kData, 3); // row 0 of the last dialog toggles back first
        EXPECT_TRUE(d.Cancel());
    });
    second.DoModal();
    EXPECT_EQ(marks(*second.Coll.GetP(1)), (std::vector<int>{0, 1, 1, 0}));
    // Polylines: a double click toggles, a plain selection does nothing.
    PrintPMCurve poly;
    poly.Coll.AddPMCurve(Ordinates<PMCurve>("p", {1, 2, 3}));
    poly.Path = "x";
    dialogs.Expect(14503, [&](DialogHandle& d) {
        d.SelectLine(kData, 1);
        EXPECT_EQ(poly.Modified, 0);
        d.DoubleClickLine(kData, 2);
        EXPECT_TRUE(d.Cancel());
    });
    poly.DoModal();
    EXPECT_EQ(marks(*poly.Coll.GetP(1)), (std::vector<int>{0, 0, 1}));
    EXPECT_EQ(poly.CurrentPoint, 3u);
}

TEST_F(CurveDisplayTest, ThePlotIsTheEnginesDrawingOfTheSelectedCurve) {
    PrintPCurve display;
    display.Coll.AddPCurve(Ordinates<PCurve>("up", {0, 1, 4, 9}));
    display.Coll.AddPCurve(Ordinates<PCurve>("down", {9, 4, 1, 0}));
    display.Path = "x";
    SFont requested;
    seisplot::FontChoice chosen;
    chosen.font = SFont(40, 0).GetFont();
    chosen.colour = 0x0000FF;
    ui.QueueFont(chosen);
    dialogs.Expect(14503, [&](DialogHandle& d) {
        d.SelectLine(kCurves, 1);
        d.Click(kTitleFont);
        d.Type(14677, "120");
        CWnd& plot = d.Picture(kPlot);
        // The same plot drawn directly by the engine into a window of the same size.
        CRect area;
        plot.GetClientRect(&area);
        CWnd expected;
        expected.SetClientSize(area.Width(), area.Height());
        CDC* dc = expected.GetDC();
        SFont axis(18, 0), data(14, 0);
        DrawCurve(display.Coll.GetP(2), &expected, dc, 1, nullptr, display.TitleFont, axis, data, 1,
                  0, 0, 0, 0x00FF00, 120, 0, 0, 0.0, 0.0);
        expected.ReleaseDC(dc);
        const seisplot::PictureBits shown = plot.Bits();
        const seisplot::PictureBits drawn = expected.Bits();
        ASSERT_EQ(shown.height, drawn.height);
        EXPECT_EQ(0, std::memcmp(shown.data, drawn.data,
                                 static_cast<size_t>(shown.bytesPerLine * shown.height)));
        EXPECT_TRUE(d.Cancel());
    });
    display.DoModal();
    ASSERT_EQ(ui.FontRequests().size(), 1u);
    EXPECT_EQ(ui.FontRequests()[0].font.lfHeight, SFont(22, 0).lfHeight);
    EXPECT_EQ(display.TitleFont.lfHeight, chosen.font.lfHeight);
    EXPECT_EQ(display.TitleFont.Color, 0x0000FFu);
    EXPECT_EQ(display.LineWidth, 120);
}

TEST_F(CurveDisplayTest, ListingsCollectionsPrintsAndCopiesLeaveAsAsked) {
    const std::string listing = dir.Path("listing.txt");
    const std::string saved = dir.Path("saved.pcc");
    const std::string pdf = dir.Path("plot.pdf");
    PrintPCurve display;
    display.Coll.AddPCurve(Ordinates<PCurve>("c", {1, -2}));
    display.Path = saved.c_str();
    ui.QueueFiles({dir.Path("missing/listing.txt").c_str()});
    ui.QueueFiles({listing.c_str()});
    ui.QueueAnswer(IDYES); // Open?
    ui.QueuePrinter(pdf.c_str());
    ui.QueueAnswer(IDYES); // save the changed curves
    dialogs.Expect(14503, [&](DialogHandle& d) {
        d.Click(kToFile); // a folder that does not exist
        d.Click(kToFile);
        d.Click(kPrint);
        d.Click(kCopy);
        const QImage copied = QGuiApplication::clipboard()->image();
        const seisplot::PictureBits plot = d.Picture(kPlot).Bits();
        EXPECT_EQ(copied.size(), QSize(plot.width, plot.height));
        // Every failure on the way to the clipboard says what failed, and the clipboard is
        // free again afterwards.
        using seisplot::FailurePoint;
        for (FailurePoint point : {FailurePoint::MemoryContext, FailurePoint::ClipboardOpen,
                                   FailurePoint::ClipboardEmpty, FailurePoint::ClipboardSet,
                                   FailurePoint::ClipboardClose}) {
            seisplot::FailAfter(point, 0);
            d.Click(kCopy);
            seisplot::FailAfter(point, -1);
            if (point == FailurePoint::ClipboardClose) {
                CloseClipboard();
            }
        }
        seisplot::FailGdiCreationAfter(0);
        d.Click(kCopy);
        seisplot::FailGdiCreationAfter(-1);
        d.Click(kCopy);
        // Changed through the mixing dialog: a copy of the collection comes back on OK.
        dialogs.Expect(14504, [](DialogHandle& mix) {
            mix.Click(14644);
            mix.Type(14651, "twice");
            mix.Type(14664, "2*A");
            mix.Click(14673);
            mix.SelectLine(14601, 8); // a pure number
            mix.Click(14652);
            EXPECT_TRUE(mix.Ok());
        });
        d.Click(kModify);
        EXPECT_EQ(d.Lines(kCurves), (std::vector<CString>{"c", "twice"}));
        EXPECT_TRUE(d.Ok());
    });
    ASSERT_EQ(display.DoModal(), IDOK);
    EXPECT_EQ(FileText(listing), "    1     1.000e+03     1.000e+00            \r\n"
                                 "    2     2.000e+03    -2.000e+00            \r\n");
    EXPECT_EQ(ui.Processes(), std::vector<CString>{("notepad.exe " + listing).c_str()});
    EXPECT_EQ(FileText(pdf).substr(0, 5), "%PDF-");
    EXPECT_EQ(ui.PrinterRequests(),
              std::vector<DWORD>{PD_NOSELECTION | PD_NOPAGENUMS | PD_USEDEVMODECOPIESANDCOLLATE |
                                 PD_HIDEPRINTTOFILE});
    EXPECT_EQ(
        ui.MessageTexts(),
        (std::vector<CString>{"Unable to open output file", "Open?",
                              "Failed creation of compatible DC", "Failed to open Clipboard",
                              "Failed to empty Clipboard", "Failed to copy data to Clipboard",
                              "Failed to close Clipboard", "Failed creation of compatible bitmap",
                              "Curves have been changed. Save to disk?"}));
    ASSERT_EQ(display.Modified, 1);
    PCurveColl reread;
    ASSERT_EQ(reread.ReadFromFile(saved.c_str()), 0);
    ASSERT_EQ(reread.GetPCurveNum(), 2);
    EXPECT_EQ(reread.GetP(2)->GetPoint(2).GetY(), -4.0);
}
