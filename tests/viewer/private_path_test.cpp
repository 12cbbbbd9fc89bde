#include "private_path.h"

#include "scratch_folder.h"

#include <gtest/gtest.h>

#include <cstdlib>

using namespace vornix::viewer;

TEST(MakePrivatePath, IsInANewFolderOfThisUserAlone)
{
    const std::filesystem::path first = MakePrivatePath("a.png");
    const std::filesystem::path second = MakePrivatePath("a.png");
    EXPECT_EQ(first.filename(), "a.png");
    EXPECT_NE(first, second);
    EXPECT_FALSE(std::filesystem::exists(first));
    EXPECT_EQ(std::filesystem::status(first.parent_path()).permissions(), std::filesystem::perms::owner_all);
    EXPECT_TRUE(std::filesystem::remove(first.parent_path()));
    EXPECT_TRUE(std::filesystem::remove(second.parent_path()));
}
