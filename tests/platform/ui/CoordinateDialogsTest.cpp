// The geometry library's six input dialogs: what is typed is what the caller reads; a field
// that is not a number keeps the dialog open.

#include "host/dialogs/CoordinateDialogs.h"
#include "platform/core/ScriptedUserInterface.h"
#include "platform/ui/ScriptedDialogs.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <functional>

using seisplot::DialogHandle;

namespace {

struct Case {
    UINT templateId;
    std::vector<const char*> typed;
    std::function<std::vector<double>()> run; // DoModal, then the members in field order
};

} // namespace

TEST(CoordinateDialogs, EachReturnsWhatWasTypedAndRefusesANonNumber) {
    seisplot::ScriptedUserInterface ui;
    seisplot::ScopedUserInterface uiScope(ui);
    seisplot::ScriptedDialogs dialogs;
    seisplot::ScopedDialogDriver driverScope(dialogs);

    const Case cases[] = {
        {seisplot::kGetXYTemplate,
         {"1.5", "-2"},
         [] {
             GetXY d;
             EXPECT_EQ(d.DoModal(), IDOK);
             return std::vector{d.X, d.Y};
         }},
        {seisplot::kGetDxDyTemplate,
         {"10", "0"},
         [] {
             GetDxDy d;
             EXPECT_EQ(d.DoModal(), IDOK);
             return std::vector{d.DX, d.DY};
         }},
        {seisplot::kGetAnDiTemplate,
         {"90", "5"},
         [] {
             GetAnDi d;
             EXPECT_EQ(d.DoModal(), IDOK);
             return std::vector{d.Angle, d.Distance};
         }},
        {seisplot::kGetAnDxTemplate,
         {"-30", "2.5e-3"},
         [] {
             GetAnDx d;
             EXPECT_EQ(d.DoModal(), IDOK);
             return std::vector{d.Angle, d.DX};
         }},
        {seisplot::kGetAnDyTemplate,
         {"45", "1e3"},
         [] {
             GetAnDy d;
             EXPECT_EQ(d.DoModal(), IDOK);
             return std::vector{d.Angle, d.DY};
         }},
        {seisplot::kGetArc1Template,
         {"0", "0", "1", "0", "90", "2"},
         [] {
             GetArc1 d;
             EXPECT_EQ(d.DoModal(), IDOK);
             return std::vector{d.CX,     d.CY,     d.Radius,
                                d.Angle1, d.Angle2, static_cast<double>(d.Segments)};
         }},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.templateId);
        ui.Clear();
        dialogs.Expect(c.templateId, [&](DialogHandle& d) {
            // A decimal comma, an infinity and a blank field are not numbers.
            for (const char* bad : {"1,5", "inf", ""}) {
                d.Type(seisplot::kFirstCoordinateField, bad);
                EXPECT_FALSE(d.Ok()) << bad;
                EXPECT_EQ(d.FocusedControl(), seisplot::kFirstCoordinateField);
            }
            for (size_t i = 0; i < c.typed.size(); ++i) {
                d.Type(seisplot::kFirstCoordinateField + static_cast<int>(i), c.typed[i]);
            }
            EXPECT_TRUE(d.Ok());
        });
        std::vector<double> expected;
        for (const char* text : c.typed) {
            expected.push_back(std::strtod(text, nullptr));
        }
        EXPECT_EQ(c.run(), expected);
        EXPECT_EQ(ui.MessageTexts(), std::vector<CString>(3, "Please enter a number."));
    }

    // The arc needs between 1 and 360 segments.
    GetArc1 arc;
    ui.Clear();
    dialogs.Expect(seisplot::kGetArc1Template, [](DialogHandle& d) {
        d.Type(seisplot::kFirstCoordinateField + 5, "0");
        EXPECT_FALSE(d.Ok());
        EXPECT_EQ(d.FocusedControl(), seisplot::kFirstCoordinateField + 5);
        EXPECT_TRUE(d.Cancel());
    });
    EXPECT_EQ(arc.DoModal(), IDCANCEL);
    EXPECT_EQ(ui.MessageTexts(),
              std::vector<CString>{"Please enter an integer between 1 and 360."});
    EXPECT_TRUE(dialogs.Problems().empty());
}

TEST(CoordinateDialogs, ItalianTextsComeFromTheTranslation) {
    seisplot::ScriptedDialogs dialogs;
    seisplot::ScopedDialogDriver driverScope(dialogs);
    ::setenv("SEISPLOT_LANG", "it", 1);
    GetXY point;
    point.X = 2.5;
    dialogs.Expect(seisplot::kGetXYTemplate, [](DialogHandle& d) {
        EXPECT_EQ(d.Caption(), "Coordinate del punto");
        EXPECT_EQ(d.Text(IDCANCEL), "Annulla");
        EXPECT_EQ(d.Text(seisplot::kFirstCoordinateField), "2.5");
        d.Cancel();
    });
    point.DoModal();
    ::unsetenv("SEISPLOT_LANG");
    GetXY english;
    dialogs.Expect(seisplot::kGetXYTemplate, [](DialogHandle& d) {
        EXPECT_EQ(d.Caption(), "Point coordinates");
        d.Cancel();
    });
    english.DoModal();
}
