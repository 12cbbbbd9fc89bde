#include "model/gap_array.h"

#include "model/limited_memory.h"
#include "model/store_support.h"

#include <gtest/gtest.h>

#include <memory>
#include <new>
#include <vector>

namespace vornix {
namespace {

// Each item owns something, so that one forgotten or freed twice is seen.
using Items = GapArray<std::shared_ptr<int>>;

Items Counting(std::size_t count)
{
    Items items(count);
    int number = 0;
    for (std::shared_ptr<int>& item : items)
        item = std::make_shared<int>(number++);
    return items;
}

// -1 for an item that holds nothing.
std::vector<int> NumbersOf(const Items& items)
{
    std::vector<int> numbers;
    for (const std::shared_ptr<int>& item : items)
        numbers.push_back(item ? *item : -1);
    return numbers;
}

TEST(GapArrayTest, ItemsComeAndGoAnywhere)
{
    Items items = Counting(4);
    items.Insert(1, 2);
    EXPECT_EQ(NumbersOf(items), (std::vector<int> { 0, -1, -1, 1, 2, 3 }));
    items.Remove(3, 2);
    EXPECT_EQ(NumbersOf(items), (std::vector<int> { 0, -1, -1, 3 }));
    items.Insert(4, 1);
    EXPECT_EQ(NumbersOf(items), (std::vector<int> { 0, -1, -1, 3, -1 }));
    items.Remove(0, 5);
    EXPECT_EQ(items.size(), 0u);
}

TEST(GapArrayTest, AnItemThatGoesIsFreedAtOnce)
{
    Items items = Counting(3);
    const std::weak_ptr<int> second = items[1];
    items.Remove(1, 1);
    EXPECT_TRUE(second.expired());
    EXPECT_EQ(NumbersOf(items), (std::vector<int> { 0, 2 }));
}

TEST(GapArrayTest, ANewSizeLeavesNoRoom)
{
    Items items = Counting(100);
    items.Insert(50, 1);
    EXPECT_GT(items.capacity(), items.size());
    items.Resize(200);
    EXPECT_EQ(items.capacity(), 200u);
    EXPECT_EQ(items[51] ? *items[51] : -1, 50);
    EXPECT_EQ(items[199], nullptr);
    items.Resize(10);
    EXPECT_LE(items.capacity(), 40u);
}

TEST(GapArrayTest, MemoryOfMostItemsIsGivenBack)
{
    Items items = Counting(1000);
    items.Remove(100, 800);
    EXPECT_LE(items.capacity(), 800u);
    EXPECT_EQ(*items[99], 99);
    EXPECT_EQ(*items[100], 900);
}

TEST(GapArrayTest, FailingChangesNothing)
{
    Items items = Counting(40);
    items.Insert(20, 1); // leaves a gap
    const std::vector<int> before = NumbersOf(items);
    EXPECT_THROW(
        {
            const LimitedMemory limited(0);
            items.Insert(7, 3);
        },
        std::bad_alloc);
    EXPECT_THROW(
        {
            const LimitedMemory limited(0);
            items.Resize(50);
        },
        std::bad_alloc);
    EXPECT_EQ(NumbersOf(items), before);
}

TEST(GapArrayTest, MovesWithItsGap)
{
    Items items = Counting(40);
    items.Insert(20, 1);
    Items other = std::move(items);
    EXPECT_EQ(other.size(), 41u);
    EXPECT_EQ(*other[21], 20);
    items = Counting(3);
    items = std::move(other);
    EXPECT_EQ(items.size(), 41u);
    EXPECT_EQ(*items[40], 39);
}

class GapArrayRandomTest : public testing::TestWithParam<unsigned> {
protected:
    void Step()
    {
        const auto position = static_cast<std::size_t>(random_.Between(0, static_cast<int>(plain_.size())));
        const auto place = plain_.begin() + static_cast<std::ptrdiff_t>(position);
        const auto count = static_cast<std::size_t>(random_.Between(0, random_.OneIn(8) ? 60 : 3));
        switch (random_.Between(0, 8)) {
        case 0:
            items_.Resize(position + count);
            return plain_.resize(position + count, -1);
        case 1:
        case 2:
        case 3:
            items_.Insert(position, count);
            plain_.insert(place, count, -1);
            return;
        case 4:
        case 5:
        case 6: {
            const std::size_t less = std::min(count, plain_.size() - position);
            items_.Remove(position, less);
            plain_.erase(place, place + static_cast<std::ptrdiff_t>(less));
            return;
        }
        default:
            if (place == plain_.end())
                return;
            *place = ++number_;
            items_[position] = std::make_shared<int>(number_);
        }
    }

    RandomNumbers random_ { GetParam() };
    Items items_;
    std::vector<int> plain_;
    int number_ = 0;
};

TEST_P(GapArrayRandomTest, HoldsWhatAVectorHolds)
{
    for (int step = 0; step < 3000; ++step) {
        Step();
        ASSERT_EQ(NumbersOf(items_), plain_) << "step " << step;
    }
}

INSTANTIATE_TEST_SUITE_P(Seeds, GapArrayRandomTest, testing::Range(0u, 10u));

} // namespace
} // namespace vornix
