// Which boundary lies at a place.
#include "layout/resizers.h"

#include "layout/table.h"

#include <algorithm>
#include <random>
#include <string>

namespace vornix {
namespace {

// A fixed row of 20 and rows of 20, 30, 40; a fixed column of 30 and columns of 50, 60, 70.
class ResizersTest : public testing::Test {
protected:
    Table table { 1, 3, 1, 3 };
    Resizers resizers { table.store, table.layout, table.scroll };

    void SetUp() override
    {
        table.Heights({ 20, 20, 30, 40 });
        table.Widths({ 30, 50, 60, 70 });
        table.LayoutWithoutBars(600, 400);
    }
    Row& RowAt(int row) { return table.store.RowAt(row); }
    Column& ColumnAt(int col) { return table.store.ColumnAt(col); }
    void CloseRow(int row) { RowAt(row).Height = 0; }
    void CloseCol(int col) { ColumnAt(col).Width = 0; }
    void HideRow(int row) { HiddenLines(table.store).HideRow(row); }

    // "14-24:0 34-44:1": the places that offer a line, and which.
    template <typename LineAt> static std::string Zones(int first, int last, const LineAt& lineAt)
    {
        std::string zones;
        for (int place = first; place <= last;) {
            const int line = lineAt(place);
            int end = place;
            while (end < last && lineAt(end + 1) == line)
                ++end;
            if (line != NoIndex) {
                zones += zones.empty() ? "" : " ";
                zones += std::to_string(place) + "-" + std::to_string(end) + ":" + std::to_string(line);
            }
            place = end + 1;
        }
        return zones;
    }
    std::string RowZones(int first = 0, int last = 400) const
    {
        return Zones(first, last, [this](int y) { return resizers.HitTest(100, y).row; });
    }
    std::string ColZones(int first = 0, int last = 600) const
    {
        return Zones(first, last, [this](int x) { return resizers.HitTest(x, 100).col; });
    }
};

TEST_F(ResizersTest, AZoneIsTheLastSixPixelsOfALineAndFiveBehindIt)
{
    EXPECT_EQ(RowZones(), "14-24:0 34-44:1 64-74:2 104-114:3");
    EXPECT_EQ(ColZones(), "24-34:0 74-84:1 134-144:2 204-214:3");
}

TEST_F(ResizersTest, GivesTheCellThatAPlainHitTestGives)
{
    for (int y = -5; y <= 410; ++y) {
        const ResizerHit hit = resizers.HitTest(2 * y, y);
        const HitResult plain = table.layout.HitTestCell(2 * y, y);
        EXPECT_EQ(hit.cell.row, plain.row) << y;
        EXPECT_EQ(hit.cell.col, plain.col) << y;
        EXPECT_EQ(hit.cell.found, plain.found) << y;
    }
}

TEST_F(ResizersTest, OutsideTheClientAreaThereIsNothingToSize)
{
    table.LayoutWithoutBars(140, 70);
    EXPECT_EQ(resizers.HitTest(100, 70).row, 2);
    EXPECT_EQ(resizers.HitTest(100, 71).row, NoIndex);
    EXPECT_EQ(resizers.HitTest(100, -1).row, NoIndex);
    EXPECT_EQ(resizers.HitTest(100, -1).col, NoIndex);
    EXPECT_EQ(resizers.HitTest(140, -1).col, 2) << "the other direction has its own bounds";
    EXPECT_EQ(resizers.HitTest(141, 10).col, NoIndex);
    EXPECT_EQ(resizers.HitTest(-1, 20).col, NoIndex);
    EXPECT_EQ(resizers.HitTest(-1, 20).row, 0);
}

TEST_F(ResizersTest, ALockedLineIsOfferedFromWithinOnly)
{
    ColumnAt(1).Resizable = false;
    // The caller turns it down; its first pixels still offer the column before it, and nothing is caught across it.
    EXPECT_EQ(ColZones(), "24-34:0 74-77:1 134-144:2 204-214:3");
}

TEST_F(ResizersTest, ALockedLastLineIsNotOfferedFromBehindItsEnd)
{
    RowAt(3).Resizable = false;
    EXPECT_EQ(RowZones(90), "104-107:3");
}

TEST_F(ResizersTest, AClosedLineIsCaughtAroundItsBoundary)
{
    CloseRow(2);
    // Rows end at 20, 40, 40 and 80.
    EXPECT_EQ(RowZones(), "14-24:0 34-37:1 38-44:2 74-84:3");
}

TEST_F(ResizersTest, AClosedLastLineIsCaughtToo)
{
    CloseRow(3);
    EXPECT_EQ(RowZones(45), "64-67:2 68-74:3");
}

TEST_F(ResizersTest, OfSeveralClosedLinesTheLastOneComesFirst)
{
    CloseCol(1);
    CloseCol(2);
    EXPECT_EQ(ColZones(), "24-27:0 28-34:2 94-104:3");
}

TEST_F(ResizersTest, HiddenAndLockedLinesOfNoSizeArePassedOver)
{
    HideRow(2);
    EXPECT_EQ(RowZones(30, 50), "34-44:1");
    HiddenLines(table.store).ShowRow(2);
    CloseRow(2);
    RowAt(2).Resizable = false;
    EXPECT_EQ(RowZones(30, 50), "34-44:1");
}

TEST_F(ResizersTest, ASmallLineIsAllZone)
{
    table.Heights({ 20, 4, 30, 40 });
    EXPECT_EQ(RowZones(0, 40), "14-17:0 18-28:1") << "close to the boundary the small one is meant";
    table.Heights({ 20, 6, 30, 40 });
    EXPECT_EQ(RowZones(0, 40), "14-19:0 20-30:1");
}

TEST_F(ResizersTest, BehindTheFixedLinesTheLastOfThemIsOffered)
{
    table.scroll.SetFirstRow(2);
    table.scroll.SetFirstCol(3);
    EXPECT_EQ(RowZones(), "14-24:0 44-54:2 84-94:3");
    EXPECT_EQ(ColZones(), "24-34:0 94-104:3");
    RowAt(0).Resizable = false;
    EXPECT_EQ(RowZones(0, 30), "14-17:0") << "no row that is scrolled away";
}

TEST_F(ResizersTest, AClosedLineThatIsScrolledAwayIsOfferedBehindTheFixedOnes)
{
    CloseRow(1);
    table.scroll.SetFirstRow(3);
    // Row 2 lies between them, out of sight.
    EXPECT_EQ(RowZones(), "14-17:0 18-24:1 54-64:3");
    CloseRow(2);
    EXPECT_EQ(RowZones(0, 30), "14-17:0 18-24:2") << "the nearest";
    RowAt(2).Resizable = false;
    EXPECT_EQ(RowZones(0, 30), "14-17:0 18-24:1");
    RowAt(1).Hidden = true;
    EXPECT_EQ(RowZones(0, 30), "14-24:0");
}

TEST_F(ResizersTest, AClosedLineScrolledAwayIsOfferedAtTheTopToo)
{
    Table plain(0, 3, 0, 3);
    plain.LayoutWithoutBars(600, 400);
    plain.store.RowAt(0).Height = 0;
    plain.scroll.SetFirstRow(1);
    const Resizers ofPlain(plain.store, plain.layout, plain.scroll);
    EXPECT_EQ(ofPlain.HitTest(5, 0).row, 0);
    EXPECT_EQ(ofPlain.HitTest(5, 4).row, 0);
    EXPECT_EQ(ofPlain.HitTest(5, 5).row, NoIndex);
}

TEST_F(ResizersTest, ManyLinesScrolledAwayAreSearchedWhole)
{
    Table tall(1, 300, 1, 1);
    tall.LayoutWithoutBars(600, 400);
    tall.scroll.SetFirstRow(290);
    const Resizers ofTall(tall.store, tall.layout, tall.scroll);
    const int top = tall.layout.FixedRowsHeight();
    EXPECT_EQ(ofTall.HitTest(5, top).row, 0);
    for (int closed = 1; closed < 290; ++closed) {
        tall.store.RowAt(closed).Height = 0;
        EXPECT_EQ(ofTall.HitTest(5, top).row, closed);
    }
    for (int locked = 289; locked > 0; --locked) {
        tall.store.RowAt(locked).Resizable = false;
        EXPECT_EQ(ofTall.HitTest(5, top).row, locked - 1);
    }
}

TEST_F(ResizersTest, TheSmoothOffsetMovesTheBoundariesBehindIt)
{
    table.layout.Settings.ScrollHBar = vxScrollSmooth;
    table.layout.SetSmoothOffset(-20);
    EXPECT_EQ(ColZones(), "24-34:0 54-64:1 114-124:2 184-194:3");
    table.layout.SetSmoothOffset(-46); // 4 pixels of column 1 are left
    EXPECT_EQ(ColZones(0, 60), "24-27:0 28-38:1");
}

TEST_F(ResizersTest, SplitColumnsStandBeforeTheOthers)
{
    table.layout.Settings.ShowSplit = true;
    ASSERT_TRUE(table.layout.SetSplitCols(1));
    table.scroll.SetFirstCol(3);
    EXPECT_EQ(ColZones(), "24-34:0 74-84:1 144-154:3");
    CloseCol(2);
    EXPECT_EQ(ColZones(60, 100), "74-77:1 78-84:2");
}

TEST_F(ResizersTest, OnTheCaptionTheCellIsTheCaption)
{
    table.layout.Settings.CaptionEnabled = true;
    const ResizerHit hit = resizers.HitTest(500, 10);
    EXPECT_EQ(hit.cell.col, 1);
    EXPECT_TRUE(hit.cell.found);
    EXPECT_EQ(resizers.HitTest(78, 10).col, 1) << "whether a caption is sized is the caller's business";
}

TEST_F(ResizersTest, ATableWithoutLinesOffersNone)
{
    Table empty(0, 0, 0, 0);
    empty.LayoutWithoutBars(600, 400);
    const ResizerHit hit = Resizers(empty.store, empty.layout, empty.scroll).HitTest(0, 0);
    EXPECT_FALSE(hit.cell.found);
    EXPECT_EQ(hit.row, NoIndex);
    EXPECT_EQ(hit.col, NoIndex);
}

TEST_F(ResizersTest, AStoreWithoutArraysOffersNone)
{
    GridStore store;
    ScrollModel scroll(store);
    LayoutEngine layout(store, scroll);
    EXPECT_EQ(Resizers(store, layout, scroll).HitTest(0, 0).row, NoIndex);
}

TEST_F(ResizersTest, AClosedRowIsFoundAcrossAllRowsThatATableHas)
{
    Table tall(1, 32765, 1, 1);
    tall.LayoutWithoutBars(600, 400);
    tall.scroll.SetFirstRow(32000);
    const Resizers ofTall(tall.store, tall.layout, tall.scroll);
    const int top = tall.layout.FixedRowsHeight();
    EXPECT_EQ(ofTall.HitTest(5, top + 2).row, 0);
    EXPECT_EQ(ofTall.HitTest(5, top + 2).cell.row, 32000);
    EXPECT_EQ(ofTall.HitTest(5, top + tall.store.HeightOf(32000) - 3).row, 32000);
    tall.store.RowAt(1).Height = 0;
    EXPECT_EQ(ofTall.HitTest(5, top + 2).row, 1);
}

// The same by a plain model: the lines on the screen with their edges, and each question asked of them anew.
class PlainRows {
public:
    explicit PlainRows(const Table& table)
        : store_(table.store)
        , firstRow_(table.scroll.FirstRow())
    {
        for (int row = 0; row <= store_.LastRowIndex(); ++row) {
            if (row < store_.FixedRows() || row >= firstRow_)
                rows_.push_back(row);
        }
    }

    int Candidate(int y) const
    {
        int candidate = NoIndex;
        int top = 0;
        for (std::size_t at = 0; at < rows_.size(); ++at) {
            const int bottom = top + store_.HeightOf(rows_[at]);
            if (y < bottom) {
                if (y > bottom - 7)
                    candidate = rows_[at];
                else if (y < top + 5)
                    candidate = ResizableBefore(at);
                if (y < bottom - 2)
                    return candidate;
            }
            top = bottom;
        }
        return y < top + 5 ? ResizableBefore(rows_.size()) : candidate;
    }

private:
    bool IsResizable(int row) const { return store_.RowAt(row).Resizable && !store_.RowAt(row).Hidden; }
    int ResizableBefore(std::size_t at) const
    {
        while (true) {
            const bool behindFixed = at == static_cast<std::size_t>(store_.FixedRows());
            for (int row = firstRow_ - 1; behindFixed && row >= store_.FixedRows(); --row) {
                if (store_.HeightOf(row) == 0 && IsResizable(row))
                    return row;
            }
            if (at == 0)
                return NoIndex;
            --at;
            if (IsResizable(rows_[at]))
                return rows_[at];
            if (store_.HeightOf(rows_[at]) > 0)
                return NoIndex;
        }
    }

    const GridStore& store_;
    int firstRow_;
    std::vector<int> rows_;
};

TEST(ResizersRandomTest, OffersWhatAPlainModelOffers)
{
    std::mt19937 random(20);
    const auto upTo = [&](int limit) { return static_cast<int>(random() % static_cast<unsigned>(limit + 1)); };
    for (int round = 0; round < 400; ++round) {
        const int fixed = upTo(3);
        Table table(fixed, 1 + upTo(11), 1, 1);
        table.LayoutWithoutBars(200, 160);
        for (int row = 0; row <= table.store.LastRowIndex(); ++row) {
            Row& line = table.store.RowAt(row);
            line.Height = static_cast<i16>(upTo(2) == 0 ? 0 : upTo(25));
            line.Resizable = upTo(3) != 0;
            if (upTo(5) == 0)
                HiddenLines(table.store).HideRow(row);
        }
        table.scroll.SetFirstRow(fixed + upTo(table.store.LastRowIndex() - fixed));
        const Resizers resizers(table.store, table.layout, table.scroll);
        const PlainRows plain(table);
        for (int y = 0; y <= 160; ++y) {
            const ResizerHit hit = resizers.HitTest(10, y);
            ASSERT_EQ(hit.row, plain.Candidate(y)) << "round " << round << ", y " << y;
            ASSERT_EQ(hit.cell.row, table.layout.HitTestCell(10, y).row) << "round " << round << ", y " << y;
        }
    }
}

} // namespace
} // namespace vornix
