#include "model/cell_block.h"

#include "model/store_support.h"

#include <gtest/gtest.h>

namespace vornix {
namespace {

CellBlock BlockOfTexts(std::initializer_list<std::u16string_view> texts)
{
    CellBlock block(static_cast<int>(texts.size()));
    int index = 0;
    for (const std::u16string_view text : texts)
        block.Edit(index++).SetText(text);
    return block;
}

std::vector<std::u16string> TextsOf(const CellBlock& block)
{
    std::vector<std::u16string> texts;
    for (const Cell& cell : block.All())
        texts.push_back(cell.Text());
    return texts;
}

using Texts = std::vector<std::u16string>;

TEST(CellBlockTest, StartsWithoutCells)
{
    const CellBlock block;
    EXPECT_EQ(block.Count(), 0);
    EXPECT_EQ(ErrorOf([&] { block.At(0); }), ErrorNumber::SubscriptOutOfRange);
    EXPECT_FALSE(block.IsShared());
    const CellBlock copy = block;
    EXPECT_EQ(copy.Count(), 0);
}

TEST(CellBlockTest, ChecksItsBounds)
{
    CellBlock block(3);
    EXPECT_EQ(ErrorOf([&] { block.At(3); }), ErrorNumber::SubscriptOutOfRange);
    EXPECT_EQ(ErrorOf([&] { block.At(-1); }), ErrorNumber::SubscriptOutOfRange);
    EXPECT_EQ(ErrorOf([&] { block.Edit(3); }), ErrorNumber::SubscriptOutOfRange);
    EXPECT_EQ(ErrorOf([&] { block.Edit(2); }), 0);
}

TEST(CellBlockTest, CopiesShareUntilWritten)
{
    CellBlock original = BlockOfTexts({ u"a", u"b, long enough for the heap" });
    CellBlock copy = original;
    EXPECT_EQ(copy.Identity(), original.Identity());
    EXPECT_TRUE(copy.IsShared());
    EXPECT_TRUE(original.IsShared());

    copy.Edit(0).SetText(u"changed");
    EXPECT_NE(copy.Identity(), original.Identity());
    EXPECT_EQ(TextsOf(original), (Texts { u"a", u"b, long enough for the heap" }));
    EXPECT_EQ(TextsOf(copy), (Texts { u"changed", u"b, long enough for the heap" }));
    EXPECT_FALSE(copy.IsShared());
    EXPECT_FALSE(original.IsShared());
}

TEST(CellBlockTest, WritingToTheOriginalLeavesTheCopy)
{
    CellBlock original = BlockOfTexts({ u"a" });
    const CellBlock copy = original;
    original.EditAll()[0].SetText(u"changed");
    EXPECT_EQ(TextsOf(copy), Texts { u"a" });
}

TEST(CellBlockTest, TheLastHandleWritesInPlace)
{
    CellBlock original = BlockOfTexts({ u"a" });
    const void* place = original.Identity();
    {
        const CellBlock copy = original;
    }
    original.Edit(0).SetText(u"b");
    EXPECT_EQ(original.Identity(), place);
}

TEST(CellBlockTest, MovingHandsOver)
{
    CellBlock original = BlockOfTexts({ u"a" });
    const void* place = original.Identity();
    CellBlock taken = std::move(original);
    EXPECT_EQ(taken.Identity(), place);
    EXPECT_EQ(original.Count(), 0); // NOLINT(bugprone-use-after-move)
    CellBlock& same = taken;
    taken = std::move(same);
    EXPECT_EQ(TextsOf(taken), Texts { u"a" });
    taken = *&same;
    EXPECT_EQ(TextsOf(taken), Texts { u"a" });
}

TEST(CellBlockTest, GrowsWithBlankCells)
{
    CellBlock block = BlockOfTexts({ u"a", u"b" });
    block.Edit(1).SetFormatNumber(5);
    block.Resize(4);
    EXPECT_EQ(TextsOf(block), (Texts { u"a", u"b", u"", u"" }));
    EXPECT_EQ(block[1].FormatNumber(), 5u);
    EXPECT_EQ(block[3].FormatNumber(), 0u);
}

TEST(CellBlockTest, ShrinksKeepingTheFirst)
{
    CellBlock block = BlockOfTexts({ u"a", u"b", u"c, long enough for the heap" });
    block.Resize(2);
    EXPECT_EQ(TextsOf(block), (Texts { u"a", u"b" }));
    EXPECT_EQ(ErrorOf([&] { block.At(2); }), ErrorNumber::SubscriptOutOfRange);
    block.Resize(3);
    EXPECT_EQ(TextsOf(block), (Texts { u"a", u"b", u"" }));
}

TEST(CellBlockTest, ResizingOneHandleLeavesTheOthers)
{
    CellBlock original = BlockOfTexts({ u"a", u"b", u"c" });
    CellBlock shrunk = original;
    CellBlock grown = original;
    shrunk.Resize(1);
    grown.Resize(4);
    EXPECT_EQ(TextsOf(original), (Texts { u"a", u"b", u"c" }));
    EXPECT_EQ(TextsOf(shrunk), Texts { u"a" });
    EXPECT_EQ(TextsOf(grown), (Texts { u"a", u"b", u"c", u"" }));
    shrunk.Edit(0).SetText(u"x");
    shrunk.Resize(3);
    EXPECT_EQ(TextsOf(shrunk), (Texts { u"x", u"", u"" }));
    EXPECT_EQ(TextsOf(original), (Texts { u"a", u"b", u"c" }));
}

TEST(CellBlockTest, AShrunkHandleThatOutlivesTheOthersShowsNoOldCells)
{
    CellBlock shrunk = BlockOfTexts({ u"a", u"b" });
    {
        const CellBlock whole = shrunk;
        shrunk.Resize(1);
    }
    shrunk.Resize(2);
    EXPECT_EQ(TextsOf(shrunk), (Texts { u"a", u"" }));
}

TEST(CellBlockTest, EachHandleBehavesAsAValueOfItsOwn)
{
    RandomNumbers random(2);
    std::vector<CellBlock> blocks(6, CellBlock(3));
    std::vector<Texts> model(6, Texts(3));
    for (int step = 0; step < 20000; ++step) {
        const auto target = static_cast<std::size_t>(random.Between(0, 5));
        const auto source = static_cast<std::size_t>(random.Between(0, 5));
        switch (random.Between(0, 3)) {
        case 0:
            blocks[target] = blocks[source];
            model[target] = model[source];
            break;
        case 1:
            std::swap(blocks[target], blocks[source]);
            std::swap(model[target], model[source]);
            break;
        case 2: {
            const int count = random.Between(1, 6);
            blocks[target].Resize(count);
            model[target].resize(static_cast<std::size_t>(count));
            break;
        }
        default: {
            const int index = random.Between(0, blocks[target].Count() - 1);
            const std::u16string text = RandomText(random);
            blocks[target].Edit(index).SetText(text);
            model[target][static_cast<std::size_t>(index)] = text;
        }
        }
        for (std::size_t index = 0; index < blocks.size(); ++index)
            ASSERT_EQ(TextsOf(blocks[index]), model[index]) << "step " << step;
    }
}

} // namespace
} // namespace vornix
