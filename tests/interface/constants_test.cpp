// The constants of C beside those of C++.
#include "vornix/vornix_constants.h"

#include "vornix/event_funnel.h"

#include <gtest/gtest.h>

namespace {

TEST(Constants, OfCAreThoseOfTheControl)
{
    EXPECT_EQ(int { vxCheckBox }, int { vornix::vxCheckBox });
    EXPECT_EQ(int { vxAlwaysVCenter }, int { vornix::vxAlwaysVCenter });
    EXPECT_EQ(int { vxKey }, int { vornix::vxKey });
    EXPECT_EQ(static_cast<int>(VORNIX_EVENT_ADOInProgress), vornix::EventNumber::ADOInProgress);
    EXPECT_EQ(static_cast<int>(VORNIX_EVENT_DrawCell), vornix::EventNumber::DrawCell);
}

TEST(Constants, CanBeNamedByTheirEnum)
{
    const vxCellModeEnum mode = vxTextBox;
    EXPECT_EQ(mode, 3);
}

} // namespace
