#include "host/CSelObject.h"
#include "host/RPoint2D.h"
#include "support/ArchiveBytes.h"

#include <gtest/gtest.h>

using namespace seisplot::test;

TEST(SelectionTest, FlagsOfEveryViewAreIndependent) {
    CSelObject object;
    // Views on both sides of the 64-view boundary of the compact store, and the largest.
    object.Select(63);
    object.Select(64);
    object.Select(65535);
    object.Select(64); // selecting twice keeps one flag
    for (unsigned short v : {0, 1, 62, 63, 64, 65, 1000, 65534, 65535}) {
        EXPECT_EQ(object.IsSelected(v) != 0, v == 63 || v == 64 || v == 65535) << v;
    }
    object.Unselect(64);
    EXPECT_EQ(object.IsSelected(64), 0);
    EXPECT_NE(object.IsSelected(65535), 0);
    object.Change(1);
    object.Change(65535);
    EXPECT_NE(object.IsSelected(1), 0);
    EXPECT_EQ(object.IsSelected(65535), 0);
    object.Unselect(1);
    object.Unselect(63);
    EXPECT_FALSE(object.IsAnySelected());
}

TEST(SelectionTest, ArchiveFormIsNameThenSortedViews) {
    CSelObject object;
    object.SetName("E1");
    object.Select(300);
    object.Select(2);
    const Bytes bytes = StoreObject(object);
    // name "E1" (length byte 2), two views, 2 then 300 (0x012C), all little-endian
    const Bytes expected = {0x02, 'E', '1', 0x02, 0x00, 0x02, 0x00, 0x2C, 0x01};
    EXPECT_EQ(bytes, expected);

    CSelObject back;
    back.Select(7); // replaced by what is read
    EXPECT_EQ(LoadObject(bytes, back), 0u);
    EXPECT_EQ(back.GetName(), "E1");
    EXPECT_NE(back.IsSelected(2), 0);
    EXPECT_NE(back.IsSelected(300), 0);
    EXPECT_EQ(back.IsSelected(7), 0);
}

TEST(SelectionTest, AssignmentCopiesNameAndFlagsAndReturnsACopy) {
    CSelObject a;
    a.SetName("first");
    a.Select(3);
    CSelObject b;
    b.Select(9);
    CSelObject returned = (b = a);
    returned.SetName("changed");
    b = b;
    EXPECT_EQ(StoreObject(b), StoreObject(a));
}

TEST(SelectionTest, RunTimeClassesCreateObjectsByName) {
    CObject* made = CRuntimeClass::CreateObject("RPoint2D");
    ASSERT_NE(made, nullptr);
    EXPECT_TRUE(made->IsKindOf(RUNTIME_CLASS(CSelObject)));
    EXPECT_FALSE(made->IsKindOf(RUNTIME_CLASS(RPoint3D)));
    EXPECT_STREQ(made->GetRuntimeClass()->m_lpszClassName, "RPoint2D");
    EXPECT_EQ(made->GetRuntimeClass()->m_wSchema, 0u);
    delete made;
}
