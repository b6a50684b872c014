#include "platform/gl/CurrentDevice.h"

#include "platform/gdi/CDC.h"

#include <gtest/gtest.h>

#include <thread>

TEST(CurrentDeviceTest, EachThreadHasItsOwnCurrentDevice) {
    CDC dc;
    ASSERT_TRUE(dc.CreateCompatibleDC(nullptr));
    seisplot::MakeGLDeviceCurrent(&dc);
    HDC seenElsewhere = &dc;
    std::thread([&] { seenElsewhere = wglGetCurrentDC(); }).join();
    EXPECT_EQ(seenElsewhere, nullptr);
    EXPECT_EQ(wglGetCurrentDC(), &dc);
    seisplot::MakeGLDeviceCurrent(nullptr);
    EXPECT_EQ(wglGetCurrentDC(), nullptr);
}
