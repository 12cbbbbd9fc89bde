#include "render/check_box.h"
#include "vornix/platform/device.h"

#include <gtest/gtest.h>

namespace vornix {
namespace {

Rect BoxAt(int x, int y)
{
    return { x, y, x + 13, y + 13 };
}

TEST(CheckBoxTest, StandsTwoPixelsFromTheCornerByDefault)
{
    EXPECT_EQ(CheckBoxRect(vxTxtDefault, { 60, 30 }, 1), BoxAt(2, 2));
}

TEST(CheckBoxTest, IsCentredWithTruncation)
{
    EXPECT_EQ(CheckBoxRect(vxTxtCenter, { 60, 30 }, 1), BoxAt(23, 2));
    EXPECT_EQ(CheckBoxRect(vxTxtVCenter, { 60, 30 }, 1), BoxAt(2, 8));
    EXPECT_EQ(CheckBoxRect(vxTxtCenter | vxTxtVCenter, { 10, 10 }, 1), BoxAt(-1, -1));
}

TEST(CheckBoxTest, RightLeavesRoomForTheGridLine)
{
    EXPECT_EQ(CheckBoxRect(vxTxtRight, { 60, 30 }, 3), BoxAt(60 - 4 - 16, 2));
}

TEST(CheckBoxTest, BottomCutsTheBoxOffAtTheLeftEdge)
{
    EXPECT_EQ(CheckBoxRect(vxTxtBottom, { 60, 30 }, 1), BoxAt(-4, 18));
    EXPECT_EQ(CheckBoxRect(vxTxtBottom | vxTxtRight, { 60, 30 }, 1), BoxAt(-4, 18));
}

TEST(CheckBoxTest, IsFlatUnlessAskedOtherwise)
{
    EXPECT_EQ(CheckBoxState(false, false, 0), DFCS_FLAT);
    EXPECT_EQ(CheckBoxState(false, false, vxCheck3D), 0u);
}

TEST(CheckBoxTest, ShowsCheckedAndDisabled)
{
    EXPECT_EQ(CheckBoxState(true, false, vxCheck3D), DFCS_CHECKED);
    EXPECT_EQ(CheckBoxState(true, true, 0), DFCS_CHECKED | DFCS_INACTIVE | DFCS_FLAT);
}

} // namespace
} // namespace vornix
