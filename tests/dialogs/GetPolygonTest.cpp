// The polygon dialog worked through the scripted driver: where each kind of side, arc and
// preset shape puts its vertices (against values worked out by hand), stepping, moving and
// removing vertices, the crossing test on OK, the preview and the messages.

#include "dialogs/polygon/GetPolygon.h"
#include "DialogFixture.h"
#include "host/dialogs/CoordinateDialogs.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <utility>
#include <vector>

using seisplot::DialogHandle;

namespace {

constexpr UINT kPolygonDialog = 14501;
constexpr UINT kSpecialDialog = 14502;
constexpr int kPreview = 14602;
constexpr int kDxDy = 14603;
constexpr int kAnDi = 14604;
constexpr int kAnDx = 14605;
constexpr int kAnDy = 14606;
constexpr int kFirstPoint = 14607;
constexpr int kRemove = 14608;
constexpr int kModify = 14609;
constexpr int kNext = 14610;
constexpr int kPrevious = 14611;
constexpr int kFieldX = 14612;
constexpr int kFieldY = 14613;
constexpr int kSpecial = 14614;
constexpr int kArc = 14624;
constexpr int kRectangle = 14619;
constexpr int kCircle = 14620;
constexpr int kHalfCircle = 14621;
constexpr int kRegularPolygon = 14622;
constexpr int kFirstField = seisplot::kFirstCoordinateField;
constexpr int kSpecialFields[] = {14615, 14616, 14617, 14618, 14623};

using Vertices = std::vector<std::pair<double, double>>;

Vertices VerticesOf(const RPoly& poly, int from = 1) {
    Vertices all;
    for (int i = from; i <= poly.GetNPoint(); ++i) {
        all.emplace_back(poly.GetPoint(i).GetX(), poly.GetPoint(i).GetY());
    }
    return all;
}

void ExpectVertices(const Vertices& actual, const Vertices& expected) {
    ASSERT_EQ(actual.size(), expected.size());
    for (size_t i = 0; i < expected.size(); ++i) {
        EXPECT_NEAR(actual[i].first, expected[i].first, 1e-12) << "vertex " << i + 1;
        EXPECT_NEAR(actual[i].second, expected[i].second, 1e-12) << "vertex " << i + 1;
    }
}

RPoly PolygonOf(const Vertices& vertices) {
    RPoly poly;
    for (const auto& [x, y] : vertices) {
        poly.AddPoint(x, y);
    }
    return poly;
}

struct PolygonDialog : seisplot::test::DialogFixture {
    void TearDown() override {
        DialogFixture::TearDown();
        ::unsetenv("SEISPLOT_LANG");
    }

    // The next dialog is coordinate dialog `id`: these values typed, then OK.
    void Answer(UINT id, std::vector<const char*> values) {
        dialogs.Expect(id, [values](DialogHandle& d) {
            for (size_t i = 0; i < values.size(); ++i) {
                d.Type(kFirstField + static_cast<int>(i), values[i]);
            }
            EXPECT_TRUE(d.Ok());
        });
    }

    // "Special polygons...": A to E typed, then the shape button (or Cancel, for 0).
    void Special(DialogHandle& d, int shape, std::vector<const char*> numbers) {
        dialogs.Expect(kSpecialDialog, [shape, numbers](DialogHandle& s) {
            for (size_t i = 0; i < numbers.size(); ++i) {
                s.Type(kSpecialFields[i], numbers[i]);
            }
            if (shape == 0) {
                EXPECT_TRUE(s.Cancel());
            } else {
                s.Click(shape);
                EXPECT_TRUE(s.Ended());
            }
        });
        d.Click(kSpecial);
    }
};

} // namespace

TEST_F(PolygonDialog, SidesStartAtTheLastVertexAndAnArcAtItsCentre) {
    GetPolygon polygon;
    dialogs.Expect(kPolygonDialog, [&](DialogHandle& d) {
        EXPECT_EQ(d.Caption(), "Closed polygon input");
        EXPECT_EQ(d.Bitmap(kDxDy), "XXDXDYU");
        EXPECT_EQ(d.Bitmap(kAnDi), "XXANDIU");
        EXPECT_EQ(d.Bitmap(kAnDx), "XXANDXU");
        EXPECT_EQ(d.Bitmap(kAnDy), "XXANDYU");
        EXPECT_EQ(d.Bitmap(kArc), "XXARC1U");
        Answer(seisplot::kGetXYTemplate, {"0", "0"});
        d.Click(kFirstPoint);
        Answer(seisplot::kGetDxDyTemplate, {"10", "0"});
        d.Click(kDxDy);
        Answer(seisplot::kGetAnDiTemplate, {"90", "5"});
        d.Click(kAnDi);
        Answer(seisplot::kGetAnDxTemplate, {"0", "-10"});
        d.Click(kAnDx);
        Answer(seisplot::kGetAnDyTemplate, {"45", "-5"});
        d.Click(kAnDy);
        Answer(seisplot::kGetArc1Template, {"0", "0", "1", "0", "90", "2"});
        d.Click(kArc);
        // Sides leave the selection on the first point.
        EXPECT_EQ(polygon.Selected, 1);
        EXPECT_EQ(d.Text(kFieldX), "0");
        EXPECT_EQ(d.Text(kFieldY), "0");
        EXPECT_TRUE(d.Cancel());
    });
    EXPECT_EQ(polygon.DoModal(), IDCANCEL);
    const double r = std::sqrt(0.5);
    ExpectVertices(VerticesOf(polygon.Poly), {{0, 0},
                                              {10, 0},
                                              {10, 5},
                                              {0, 5},
                                              {-5, 0}, // dx = dy / tan 45°
                                              {1, 0},
                                              {r, r},
                                              {0, 1}});
    EXPECT_TRUE(ui.MessageTexts().empty());
}

TEST_F(PolygonDialog, ASideNeedsAFirstPointAndAnAngleThatLeavesItsProjection) {
    GetPolygon polygon;
    dialogs.Expect(kPolygonDialog, [&](DialogHandle& d) {
        // No dialog opens for any of these: the driver would report it.
        for (int id : {kDxDy, kAnDi, kAnDx, kAnDy, kArc, kPrevious, kNext, kModify, kRemove}) {
            d.Click(id);
        }
        EXPECT_FALSE(d.Ok());
        Answer(seisplot::kGetXYTemplate, {"1", "2"});
        d.Click(kFirstPoint);
        d.Click(kFirstPoint);
        for (const char* vertical : {"90", "-270"}) {
            Answer(seisplot::kGetAnDxTemplate, {vertical, "3"});
            d.Click(kAnDx);
        }
        for (const char* horizontal : {"180", "0"}) {
            Answer(seisplot::kGetAnDyTemplate, {horizontal, "3"});
            d.Click(kAnDy);
        }
        EXPECT_TRUE(d.Cancel());
    });
    polygon.DoModal();
    ExpectVertices(VerticesOf(polygon.Poly), {{1, 2}});
    const CString first = "Enter first point coordinates";
    const CString noDx = "The angle gives a vertical side, which has no dx";
    const CString noDy = "The angle gives a horizontal side, which has no dy";
    EXPECT_EQ(ui.MessageTexts(),
              (std::vector<CString>{first, first, first, first, first, "First point already given",
                                    noDx, noDx, noDy, noDy}));
}

TEST_F(PolygonDialog, OkWantsThreeVerticesAndNoCrossingSides) {
    struct Case {
        Vertices vertices;
        bool accepted;
    };
    const Case cases[] = {
        {{{0, 0}, {1, 1}}, false},                 // two vertices: silently kept open
        {{{0, 0}, {1, 1}, {1, 0}, {0, 1}}, false}, // a square entered crosswise
        {{{0, 0}, {4, 0}, {4, 4}, {2, 0}}, false}, // a vertex touching another side
        {{{0, 0}, {1, 0}, {1, 1}, {0, 1}}, true},  // the square in order
    };
    for (const Case& c : cases) {
        ui.Clear();
        GetPolygon polygon;
        polygon.Poly = PolygonOf(c.vertices);
        dialogs.Expect(kPolygonDialog, [&](DialogHandle& d) {
            EXPECT_EQ(d.Ok(), c.accepted);
            if (!d.Ended()) {
                d.Cancel();
            }
        });
        EXPECT_EQ(polygon.DoModal(), c.accepted ? IDOK : IDCANCEL);
        const bool told = c.vertices.size() > 2 && !c.accepted;
        EXPECT_EQ(ui.MessageTexts(),
                  told ? std::vector<CString>{"Sides must not intersect"} : std::vector<CString>{});
        ExpectVertices(VerticesOf(polygon.Poly), c.vertices);
    }
}

TEST_F(PolygonDialog, SteppingWrapsAndRemovingSelectsTheVertexBefore) {
    GetPolygon polygon;
    polygon.Poly = PolygonOf({{0, 0}, {1, 0}, {1, 1}});
    dialogs.Expect(kPolygonDialog, [&](DialogHandle& d) {
        const auto shown = [&] { return std::pair(d.Text(kFieldX), d.Text(kFieldY)); };
        EXPECT_EQ(polygon.Selected, 1);
        d.Click(kPrevious);
        EXPECT_EQ(polygon.Selected, 3);
        EXPECT_EQ(shown(), std::pair(CString("1"), CString("1")));
        d.Click(kNext);
        d.Click(kNext);
        EXPECT_EQ(polygon.Selected, 2);
        dialogs.Expect(seisplot::kGetXYTemplate, [](DialogHandle& point) {
            EXPECT_EQ(point.Text(kFirstField), "1"); // filled with the selected vertex
            EXPECT_EQ(point.Text(kFirstField + 1), "0");
            point.Type(kFirstField, "2");
            point.Type(kFirstField + 1, "0.5");
            point.Ok();
        });
        d.Click(kModify);
        EXPECT_EQ(shown(), std::pair(CString("2"), CString("0.5")));
        ExpectVertices(VerticesOf(polygon.Poly), {{0, 0}, {2, 0.5}, {1, 1}});

        d.Click(kRemove); // vertex 2: vertex 1 is selected
        EXPECT_EQ(polygon.Selected, 1);
        d.Click(kRemove); // vertex 1: the last one is selected
        EXPECT_EQ(polygon.Selected, 1);
        ExpectVertices(VerticesOf(polygon.Poly), {{1, 1}});
        d.Click(kRemove); // the only vertex: no selection
        EXPECT_EQ(polygon.Selected, 0);
        EXPECT_EQ(polygon.Poly.GetNPoint(), 0);
        Answer(seisplot::kGetXYTemplate, {"3", "4"});
        d.Click(kFirstPoint);
        EXPECT_EQ(polygon.Selected, 1);
        EXPECT_EQ(shown(), std::pair(CString("3"), CString("4")));
        d.Cancel();
    });
    polygon.DoModal();
    ExpectVertices(VerticesOf(polygon.Poly), {{3, 4}});
    EXPECT_TRUE(ui.MessageTexts().empty());
}

TEST_F(PolygonDialog, PresetShapesAppendTheirVerticesAndSelectTheFirst) {
    // Each on a polygon of two vertices whose second is selected.
    const auto appended = [&](int shape, std::vector<const char*> numbers, int& selected) {
        GetPolygon polygon;
        polygon.Poly = PolygonOf({{7, 7}, {8, 8}});
        dialogs.Expect(kPolygonDialog, [&](DialogHandle& d) {
            d.Click(kNext);
            Special(d, shape, numbers);
            d.Cancel();
        });
        polygon.DoModal();
        selected = polygon.Selected;
        const Vertices all = VerticesOf(polygon.Poly);
        EXPECT_EQ(Vertices(all.begin(), all.begin() + 2), (Vertices{{7, 7}, {8, 8}}));
        return VerticesOf(polygon.Poly, 3);
    };
    const double r = std::sqrt(0.5);
    int selected = 0;
    ExpectVertices(appended(kRectangle, {"0", "0", "4", "2"}, selected),
                   {{-2, -1}, {2, -1}, {2, 1}, {-2, 1}});
    EXPECT_EQ(selected, 1);
    const Vertices circle = appended(kCircle, {"0", "0", "1", "5"}, selected);
    ExpectVertices(circle, {{1, 0}, {0, 1}, {-1, 0}, {0, -1}, {1, 0}});
    EXPECT_EQ(circle.back(), circle.front()); // the whole turn ends exactly where it began
    ExpectVertices(appended(kHalfCircle, {"1", "2", "2", "3", "90"}, selected),
                   {{1, 4}, {-1, 2}, {1, 0}});
    ExpectVertices(appended(kRegularPolygon, {"0", "0", "1", "4", "45"}, selected),
                   {{r, r}, {-r, r}, {-r, -r}, {r, -r}});
    EXPECT_EQ(selected, 1);

    // Nothing is appended, and the selection stays, for C = 0 or D = 0, a count too small for
    // the shape, or Cancel.
    EXPECT_TRUE(appended(kRectangle, {"0", "0", "0", "2"}, selected).empty());
    EXPECT_TRUE(appended(kCircle, {"0", "0", "1", "0"}, selected).empty());
    EXPECT_TRUE(ui.MessageTexts().empty());
    EXPECT_TRUE(appended(kHalfCircle, {"0", "0", "1", "1"}, selected).empty());
    EXPECT_TRUE(appended(kRegularPolygon, {"0", "0", "1", "2.5"}, selected).empty());
    EXPECT_TRUE(appended(0, {"0", "0", "1", "4"}, selected).empty());
    EXPECT_EQ(selected, 2);
    EXPECT_EQ(ui.MessageTexts(), (std::vector<CString>{"D must be between 2 and 10000",
                                                       "D must be between 3 and 10000"}));
}

TEST_F(PolygonDialog, EveryWholeCircleIsAcceptedDespiteRounding) {
    // Left to rounding, the last point of some circles (14 points among them) lands a hair off
    // the first, across the first side.
    for (const char* points : {"5", "14", "27"}) {
        GetPolygon polygon;
        dialogs.Expect(kPolygonDialog, [&](DialogHandle& d) {
            Special(d, kCircle, {"0", "0", "1", points});
            EXPECT_TRUE(d.Ok()) << points;
            if (!d.Ended()) {
                d.Cancel();
            }
        });
        EXPECT_EQ(polygon.DoModal(), IDOK);
    }
    EXPECT_TRUE(ui.MessageTexts().empty());
}

TEST_F(PolygonDialog, ThePreviewMarksTheLastVertexRedAndTheSelectedGreen) {
    constexpr COLORREF kRed = 0x0000FF;
    constexpr COLORREF kGreen = 0x00FF00;
    constexpr COLORREF kWhite = 0xFFFFFF;
    GetPolygon square;
    square.Poly = PolygonOf({{0, 0}, {1, 0}, {1, 1}, {0, 1}});
    dialogs.Expect(kPolygonDialog, [&](DialogHandle& d) {
        CWnd& preview = d.Picture(kPreview);
        CRect client;
        preview.GetClientRect(&client);
        // The square fills 70 % of the shorter side, centred; y grows downwards in pixels.
        const int cx = client.Width() / 2;
        const int cy = client.Height() / 2;
        const int half = static_cast<int>(0.35 * std::min(client.Width(), client.Height()));
        CDC* dc = preview.GetDC();
        EXPECT_EQ(dc->GetPixel(cx - half, cy + half), kGreen); // vertex 1, selected
        EXPECT_EQ(dc->GetPixel(cx - half, cy - half), kRed);   // vertex 4, the last
        EXPECT_EQ(dc->GetPixel(cx, cy), kWhite);               // the inside
        EXPECT_NE(dc->GetPixel(5, 5), kWhite);                 // the background
        preview.ReleaseDC(dc);
        d.Click(kNext);
        CWnd& redrawn = d.Picture(kPreview);
        dc = redrawn.GetDC();
        EXPECT_EQ(dc->GetPixel(cx + half, cy + half), kGreen);
        EXPECT_NE(dc->GetPixel(cx - half, cy + half), kGreen);
        redrawn.ReleaseDC(dc);
        d.Cancel();
    });
    square.DoModal();

    // A lone vertex shows at the centre, green over red.
    GetPolygon point;
    point.Poly = PolygonOf({{5, -3}});
    dialogs.Expect(kPolygonDialog, [&](DialogHandle& d) {
        CWnd& preview = d.Picture(kPreview);
        CRect client;
        preview.GetClientRect(&client);
        CDC* dc = preview.GetDC();
        EXPECT_EQ(dc->GetPixel(client.Width() / 2, client.Height() / 2), kGreen);
        preview.ReleaseDC(dc);
        d.Cancel();
    });
    point.DoModal();
}

TEST_F(PolygonDialog, BothDialogsSpeakItalian) {
    ::setenv("SEISPLOT_LANG", "it", 1);
    GetPolygon polygon;
    dialogs.Expect(kPolygonDialog, [&](DialogHandle& d) {
        EXPECT_EQ(d.Caption(), "Inserimento di un poligono chiuso");
        EXPECT_EQ(d.Text(kSpecial), "Poligoni speciali...");
        dialogs.Expect(kSpecialDialog, [](DialogHandle& s) {
            EXPECT_EQ(s.Caption(), "Inserimento di poligoni speciali");
            EXPECT_EQ(s.Text(kRectangle), "Rettangolo con centro in (A,B), base C, altezza D");
            s.Cancel();
        });
        d.Click(kSpecial);
        d.Cancel();
    });
    polygon.DoModal();
}
