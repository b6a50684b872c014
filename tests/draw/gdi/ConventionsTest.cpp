// Colour tables and their look-ups, the numeric helpers, unit conversions on the OpenGL
// device and the library's start-up.

#include "draw/gdi/DeviceConventions.h"

#include "platform/core/ResourceModule.h"
#include "platform/core/StringTable.h"
#include "platform/gdi/RecordingDC.h"
#include "platform/gl/CurrentDevice.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <utility>

namespace {

std::pair<unsigned long, unsigned long> Pair(unsigned short index) {
    unsigned long first = 1, second = 1;
    getcolors(12345, &first, &second, index);
    return {first, second};
}

using Colours = std::pair<unsigned long, unsigned long>;

} // namespace

TEST(Conventions, PaletteLookups) {
    EXPECT_EQ(torgb(0), 0x000000u);
    EXPECT_EQ(torgb(6), 0x368798u);
    EXPECT_EQ(torgb(15), 0xFFFFFFu);
    EXPECT_EQ(cold[16], 0xE10000u);

    // The pair palette read from 1, with white before it; past 38 it wraps with a step of 2.
    EXPECT_EQ(Pair(0), Colours(0xFFFFFF, 0x000096));
    EXPECT_EQ(Pair(37), Colours(0xFAC800, 0xC8FA00));
    EXPECT_EQ(Pair(38), Colours(0xC8FA00, 0x000096));
    EXPECT_EQ(Pair(39), Colours(0x000096, 0x960000));
    EXPECT_EQ(Pair(75), Colours(0xFAC800, 0x000096));
    EXPECT_EQ(Pair(76), Colours(0xFFFFFF, 0x009600));
    EXPECT_EQ(Pair(65535), Colours(0x0096C8, 0xC89600)); // m = 23: cold[22], cold[24]

    // A host that overwrites an entry gets its own colour back.
    const unsigned long saved = cold[0];
    cold[0] = 0x123456;
    EXPECT_EQ(Pair(0).second, 0x123456u);
    cold[0] = saved;
}

TEST(Conventions, RoundingAndFitting) {
    EXPECT_EQ(rnd(2.5), 3);
    EXPECT_EQ(rnd(-2.5), -3);
    EXPECT_EQ(rnd(-0.4), 0);
    EXPECT_EQ(rnd(2.49), 2);
    EXPECT_EQ(rnd(1e10), std::numeric_limits<int>::max());
    EXPECT_EQ(rnd(-1e10), std::numeric_limits<int>::min());
    EXPECT_EQ(rnd(std::nan("")), 0);
    EXPECT_DOUBLE_EQ(find_conv(10, 20, 100, 100, 1, 1), 5.0); // height limits
    EXPECT_DOUBLE_EQ(find_conv(20, 10, 100, 100, 1, 1), 5.0); // width limits
    // Equal ratios take the width branch: a·c/dx = 0.5·40/10, not b·d/dy = 0.25·80/10.
    EXPECT_DOUBLE_EQ(find_conv(10, 10, 0.5, 0.25, 40, 80), 2.0);
    EXPECT_DOUBLE_EQ(find_conv(10, 10.001, 0.5, 0.25, 40, 80), 20.0 / 10.001);
}

TEST(Conventions, UnitsFollowTheOpenGLDevice) {
    // 1000 pixels at 254 dots per inch: 100 mm across.
    seisplot::RecordingDC gdi(seisplot::RecordingDevice{1000, 500, 254});
    ASSERT_EQ(wglGetCurrentDC(), nullptr);
    EXPECT_EQ(MM2Pixels(10.0), 0.0);
    EXPECT_EQ(Pixels2MM(10.0), 0.0);
    EXPECT_EQ(Logical2Pixels(1000.0), 0.0);

    seisplot::MakeGLDeviceCurrent(&gdi);
    EXPECT_DOUBLE_EQ(MM2Pixels(10.0), 100.0);
    EXPECT_DOUBLE_EQ(Pixels2MM(50.0), 5.0);
    EXPECT_DOUBLE_EQ(Logical2Pixels(1000.0), 100.0);
    EXPECT_DOUBLE_EQ(Pixels2Logical(100.0), 1000.0);

    seisplot::RecordingDC empty(seisplot::RecordingDevice{0, 0, 254});
    seisplot::MakeGLDeviceCurrent(&empty);
    EXPECT_EQ(MM2Pixels(10.0), 0.0);
    EXPECT_EQ(Pixels2MM(10.0), 0.0);
    seisplot::MakeGLDeviceCurrent(nullptr);
}

TEST(Conventions, PrintingDevicesByTechnology) {
    using seisplot::RecordingDevice;
    seisplot::RecordingDC printer(RecordingDevice{1000, 1000, 600, 2, DT_RASPRINTER, true});
    seisplot::RecordingDC plotter(RecordingDevice{1000, 1000, 600, 2, DT_PLOTTER, true});
    // The framework's printing flag alone does not make a printer.
    seisplot::RecordingDC screen(RecordingDevice{1000, 1000, 96, -1, DT_RASDISPLAY, true});
    EXPECT_NE(IsPrinting(&printer), 0);
    EXPECT_NE(IsPrinting(&plotter), 0);
    EXPECT_EQ(IsPrinting(&screen), 0);
    EXPECT_EQ(GetMM_Multiplier(&printer), 100);
    EXPECT_EQ(GetMM_Multiplier(&screen), 100);
}

TEST(Conventions, DrawInitLinksTheLibraryOnce) {
    seisplot::UnlinkResourceModule(seisplot::LibraryModule());
    CString text;
    EXPECT_FALSE(text.LoadString(14844));
    DrawInit();
    DrawInit();
    EXPECT_TRUE(text.LoadString(14844));
    EXPECT_EQ(text, seisplot::LoadLibraryString(14844, seisplot::CurrentLanguage()));
    EXPECT_EQ(seisplot::ResourceSearchOrder().size(), 1u);
}
