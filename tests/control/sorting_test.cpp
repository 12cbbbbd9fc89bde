#include "control/grid_fixture.h"
#include "support/comma_container.h"

namespace vornix {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class Sorting : public GridTest {
protected:
    using Texts = std::vector<std::u16string>;

    Sorting() { Table(5, 4, 1, 1); }

    void Fill(i16 Col, std::initializer_list<const char16_t*> texts)
    {
        i16 row = 0;
        for (const char16_t* text : texts)
            Grid().SetText(row++, Col, text);
    }
    Texts Column(i16 Col)
    {
        Texts texts;
        for (i16 row = 0; row < Grid().Rows(); ++row)
            texts.push_back(Grid().Text(row, Col));
        return texts;
    }
    std::vector<i16> Orders()
    {
        std::vector<i16> orders;
        for (i16 col = -1; col <= Grid().Cols(); ++col)
            orders.push_back(Grid().SortOrder(col));
        return orders;
    }
};

TEST_F(Sorting, WithoutKeysAMessageSaysSo)
{
    Fill(0, { u"b", u"a" });
    Grid().SetSelectedCells(0, 0, 1, 1);
    Grid().SpanRows(1);
    host->ClearLog();
    Grid().Sort();
    ASSERT_EQ(host->MessageBoxes().size(), 1u);
    const MessageBoxRecord& box = host->MessageBoxes().front();
    EXPECT_EQ(box.title, u"Vornix - Sort Property");
    EXPECT_EQ(box.text,
        u"You have not set the SortOrder property (or incorrectly set). \n"
        u"For example : SortOrder(3)=1 to sort by column 3.");
    EXPECT_EQ(box.icon, MessageIcon::Exclamation);
    EXPECT_EQ(Grid().Text(0, 0), u"b");
    EXPECT_EQ(Grid().SelectCountCell(), 4);
    EXPECT_EQ(Grid().RowSpan(0, 1), 5);
    EXPECT_EQ(host->Repaints(), 0);
}

TEST_F(Sorting, ByTheTextsOfAColumn)
{
    Fill(2, { u"Oslo", u"bergen", u"Tromso", u"Alta", u"molde" });
    Grid().SetSortOrder(2, 1);
    Grid().Sort();
    EXPECT_THAT(Column(2), ElementsAre(u"Alta", u"bergen", u"molde", u"Oslo", u"Tromso"));
    EXPECT_THAT(host->MessageBoxes(), IsEmpty());
}

TEST_F(Sorting, TheOrderWrittenTwiceDescends)
{
    Fill(2, { u"b", u"c", u"a", u"e", u"d" });
    Grid().SetSortOrder(2, 1);
    EXPECT_EQ(Grid().SortCriteria(2), vxAsc);
    Grid().SetSortOrder(2, 1);
    EXPECT_EQ(Grid().SortCriteria(2), vxDesc);
    Grid().Sort();
    EXPECT_THAT(Column(2), ElementsAre(u"e", u"d", u"c", u"b", u"a"));
    Grid().SetSortOrder(2, 1);
    EXPECT_EQ(Grid().SortCriteria(2), vxAsc);
    Grid().SetSortCriteria(2, 77);
    Grid().SetSortOrder(2, 1);
    EXPECT_EQ(Grid().SortCriteria(2), vxAsc);
}

TEST_F(Sorting, AnOrderBelowOneChangesNothing)
{
    Grid().SetSortOrder(2, 0);
    Grid().SetSortOrder(2, -1);
    Grid().SetSortOrder(2, -32768);
    EXPECT_EQ(Grid().SortOrder(2), 0);
    EXPECT_EQ(Grid().SortCriteria(2), vxNoOrder);
    Grid().SetSortOrder(2, 1);
    Grid().SetSortOrder(2, 0);
    EXPECT_EQ(Grid().SortOrder(2), 1);
    EXPECT_EQ(Grid().SortCriteria(2), vxAsc);
}

TEST_F(Sorting, TheListOfKeysGrowsAndBeginsAnew)
{
    EXPECT_THAT(Orders(), ElementsAre(0, 0, 0, 0, 0, 0));
    Grid().SetSortOrder(1, 1);
    Grid().SetSortOrder(2, 2);
    EXPECT_EQ(Grid().SortOrder(1), 1);
    EXPECT_EQ(Grid().SortOrder(2), 2);
    Grid().SetSortOrder(3, 1);
    EXPECT_THAT(Orders(), ElementsAre(0, 0, 0, 0, 1, 0));
}

TEST_F(Sorting, AJumpOpensKeysOfTheOutermostColumn)
{
    Grid().SetSortOrder(1, 1);
    Grid().SetSortOrder(2, 4);
    EXPECT_THAT(Orders(), ElementsAre(2, 0, 1, 4, 0, 0));
    EXPECT_EQ(Grid().SortCriteria(-1), vxNoOrder) << "it was not named";
    // Rows equal in column 1 are told apart by the fixed column, before column 2.
    Fill(1, { u"x", u"x", u"x", u"x", u"x" });
    Fill(-1, { u"3", u"1", u"2", u"5", u"4" });
    Fill(2, { u"a", u"b", u"c", u"d", u"e" });
    Grid().Sort();
    EXPECT_THAT(Column(2), ElementsAre(u"b", u"c", u"a", u"e", u"d"));
}

// Fixed columns count twice in the highest place: 1 + 5 here.
TEST_F(Sorting, PlacesAndColumnsThatAreNotThereAreIgnored)
{
    Grid().SetSortOrder(2, 7);
    EXPECT_EQ(Grid().SortOrder(2), 0);
    Grid().SetSortOrder(2, 6);
    EXPECT_EQ(Grid().SortOrder(2), 6);
    Grid().SetSortOrder(4, 1);
    Grid().SetSortOrder(-2, 1);
    EXPECT_EQ(Grid().SortOrder(2), 6);
    Grid().SetSortOrder(-1, 1);
    EXPECT_EQ(Grid().SortOrder(-1), 1);
}

TEST_F(Sorting, AColumnBehindSixteenBitsIsAnError)
{
    EXPECT_EQ(Grid().SortOrder(32767), 0) << "without keys nothing is looked up";
    EXPECT_EQ(ErrorOf([&] { Grid().SetSortOrder(32767, 1); }), ErrorNumber::Overflow);
    Grid().SetSortOrder(0, 1);
    EXPECT_EQ(ErrorOf([&] { Grid().SortOrder(32767); }), ErrorNumber::Overflow);
    EXPECT_EQ(ErrorOf([&] { Grid().SortType(32767); }), ErrorNumber::Overflow);
    EXPECT_EQ(ErrorOf([&] { Grid().SortCriteria(5); }), ErrorNumber::SubscriptOutOfRange);
    EXPECT_EQ(ErrorOf([&] { Grid().SetSortUseKey(-2, true); }), ErrorNumber::SubscriptOutOfRange);
}

TEST_F(Sorting, TheSettingsOfAColumnTakeAnyValueAndDoNothing)
{
    Fill(0, { u"b", u"a" });
    Grid().SetSortOrder(0, 1);
    host->ClearLog();
    Grid().SetSortType(0, -5);
    Grid().SetSortCriteria(0, 2147483647);
    Grid().SetSortUseKey(0, true);
    EXPECT_EQ(Grid().SortType(0), -5);
    EXPECT_EQ(Grid().SortCriteria(0), 2147483647);
    EXPECT_TRUE(Grid().SortUseKey(0));
    EXPECT_EQ(Grid().Text(0, 0), u"b");
    EXPECT_EQ(host->Repaints() + host->Refreshes(), 0);
    EXPECT_THAT(Reported(), IsEmpty());
}

TEST_F(Sorting, EmptyAndUnreadableNumbersAreZero)
{
    Fill(0, { u"10", u"9", u"", u"word", u"-4" });
    Grid().SetSortType(0, vxNumeric);
    Grid().SetSortOrder(0, 1);
    Grid().Sort();
    Texts sorted = Column(0);
    EXPECT_EQ(sorted[0], u"-4");
    EXPECT_EQ(sorted[1].size() + sorted[2].size(), 4u);
    EXPECT_EQ(sorted[3], u"9");
    EXPECT_EQ(sorted[4], u"10");
}

TEST_F(Sorting, ByKeysTextsPlayNoPart)
{
    Fill(0, { u"a", u"b", u"c", u"d", u"e" });
    for (i16 row = 0; row < 5; ++row)
        Grid().SetKey(row, 0, std::u16string(1, static_cast<char16_t>(u'9' - row)));
    Grid().SetSortUseKey(0, true);
    Grid().SetSortOrder(0, 1);
    Grid().Sort();
    EXPECT_THAT(Column(0), ElementsAre(u"e", u"d", u"c", u"b", u"a"));
}

TEST_F(Sorting, AColumnWithoutADirectionAscends)
{
    Fill(0, { u"c", u"a", u"b", u"e", u"d" });
    Grid().SetSortOrder(0, 1);
    Grid().SetSortCriteria(0, vxNoOrder);
    Grid().Sort();
    EXPECT_THAT(Column(0), ElementsAre(u"a", u"b", u"c", u"d", u"e"));
}

TEST_F(Sorting, SeveralKeysWithADirectionEach)
{
    Fill(0, { u"x", u"y", u"x", u"y", u"x" });
    Fill(1, { u"1", u"10", u"9", u"2", u"100" });
    Grid().SetSortOrder(0, 1);
    Grid().SetSortOrder(1, 2);
    Grid().SetSortType(1, vxNumeric);
    Grid().SetSortCriteria(1, vxDesc);
    Grid().Sort();
    EXPECT_THAT(Column(0), ElementsAre(u"x", u"x", u"x", u"y", u"y"));
    EXPECT_THAT(Column(1), ElementsAre(u"100", u"9", u"1", u"10", u"2"));
}

TEST_F(Sorting, NoneAndOneRowPass)
{
    Grid().SetSortOrder(0, 1);
    Grid().SetText(0, 0, u"a");
    Grid().SetRows(1);
    Grid().Sort();
    EXPECT_EQ(Grid().Text(0, 0), u"a");
    Grid().SetRows(0);
    Grid().Sort();
    EXPECT_EQ(Grid().Rows(), 0);
}

TEST_F(Sorting, TheCurrentCellAndTheFirstRowStay)
{
    Table(40, 2, 1, 0);
    for (i16 row = 0; row < 40; ++row)
        Grid().SetText(row, 0, std::u16string(1, static_cast<char16_t>(u'z' - row % 26)));
    Grid().CurrentPos(5, 1);
    Grid().SetFirstRow(3);
    const std::u16string before = Grid().Text(5, 0);
    Grid().SetSortOrder(0, 1);
    Grid().Sort();
    EXPECT_EQ(Grid().CurrentRow(), 5);
    EXPECT_EQ(Grid().CurrentCol(), 1);
    EXPECT_EQ(Grid().FirstRow(), 3);
    EXPECT_NE(Grid().Text(5, 0), before);
}

TEST_F(Sorting, WithoutACurrentCellThereIsNoneAfterwards)
{
    Fill(0, { u"b", u"a" });
    Grid().SetSortOrder(0, 1);
    Grid().Sort();
    EXPECT_EQ(Grid().CurrentRow(), -32767);
    EXPECT_EQ(Grid().CurrentCol(), -32767);
    EXPECT_FALSE(Grid().IsCurrent(0, 0));
    Grid().SetCurrentCol(2);
    EXPECT_EQ(Grid().CurrentRow(), 0);
}

TEST_F(Sorting, SelectedRowsAndCellsEndAndColumnsStay)
{
    Grid().SetSortOrder(0, 1);
    Grid().SetRowSelected(1, true);
    Grid().Sort();
    EXPECT_EQ(Grid().SelectCountRow(), 0);
    Grid().SetSelectedCells(0, 0, 2, 2);
    Grid().Sort();
    EXPECT_EQ(Grid().SelectCountCell(), 0);
    Grid().SetColSelected(1, true);
    Grid().Sort();
    EXPECT_EQ(Grid().SelectCountCol(), 1);
}

TEST_F(Sorting, MergedRowsPartInEveryColumn)
{
    Fill(0, { u"b", u"b", u"a", u"a", u"a" });
    Grid().SpanRows(0);
    Grid().SpanRows(3);
    Grid().SpanRows(-1);
    Grid().SetSortOrder(0, 1);
    Grid().Sort();
    for (i16 row = -1; row < 5; ++row) {
        for (i16 col = -1; col < 4; ++col) {
            EXPECT_EQ(Grid().RowSpan(row, col), 0);
            EXPECT_EQ(Grid().ParentRow(row, col), row);
        }
    }
    EXPECT_THAT(Column(0), ElementsAre(u"a", u"a", u"a", u"b", u"b"));
}

TEST_F(Sorting, HiddenRowsMoveLikeOthersAndAreWalkedPast)
{
    Fill(0, { u"e", u"d", u"c", u"b", u"a" });
    Grid().HideRow(1); // "d"
    Grid().SetRowHeight(0, 44);
    Grid().SetSortOrder(0, 1);
    Grid().Sort();
    EXPECT_TRUE(Grid().RowHide(3));
    EXPECT_FALSE(Grid().RowHide(1));
    EXPECT_EQ(Grid().RowHeight(4), 44);
    Grid().CurrentPos(2, 0);
    host->Press("Down");
    EXPECT_EQ(Grid().CurrentRow(), 4);
    host->Press("Up");
    EXPECT_EQ(Grid().CurrentRow(), 2);
    Grid().ShowRow(3);
    host->Press("Down");
    EXPECT_EQ(Grid().CurrentRow(), 3);
}

TEST_F(Sorting, RepaintsOnceWhileRedrawIsOn)
{
    Fill(0, { u"b", u"a" });
    Grid().SetSortOrder(0, 1);
    host->ClearLog();
    Grid().Sort();
    EXPECT_EQ(host->Repaints(), 1);
    EXPECT_THAT(Reported(), IsEmpty());
    Grid().SetRedraw(false);
    host->ClearLog();
    Grid().SetSortOrder(0, 1);
    Grid().Sort();
    EXPECT_EQ(host->Repaints(), 0);
    EXPECT_EQ(Grid().Text(0, 0), u"b");
}

TEST_F(Sorting, RepaintsForEachColumnOfMergedRowsAsWell)
{
    Fill(0, { u"b", u"b", u"a" });
    Grid().SpanRows(0);
    Grid().SpanRows(3);
    Grid().SetSortOrder(0, 1);
    host->ClearLog();
    Grid().Sort();
    EXPECT_EQ(host->Repaints(), 3);
}

TEST_F(Sorting, ASortThatFailsShowsThatTheSelectionHasEnded)
{
    Grid().SetSortOrder(3, 1);
    Grid().SetCols(2);
    Grid().SetRowSelected(1, true);
    host->ClearLog();
    EXPECT_EQ(ErrorOf([&] { Grid().Sort(); }), ErrorNumber::SubscriptOutOfRange);
    EXPECT_EQ(Grid().SelectCountRow(), 0);
    EXPECT_EQ(host->Repaints(), 1);
}

TEST_F(Sorting, ReadsNumbersAsTheContainersLocaleWritesThem)
{
    CommaContainer container;
    Vornix& grid = container.Grid();
    grid.SetRows(2);
    grid.SetText(0, 0, u"1,5");
    grid.SetText(1, 0, u"1,25");
    grid.SetSortType(0, vxNumeric);
    grid.SetSortOrder(0, 1);
    grid.Sort();
    EXPECT_EQ(grid.Text(0, 0), u"1,25");
}

TEST_F(Sorting, TheKeysOutliveTheirColumn)
{
    Fill(0, { u"b", u"a" });
    Grid().SetSortOrder(3, 1);
    Grid().SetCols(2);
    EXPECT_EQ(ErrorOf([&] { Grid().Sort(); }), ErrorNumber::SubscriptOutOfRange);
    EXPECT_EQ(Grid().Text(0, 0), u"b");
    EXPECT_EQ(Grid().SortOrder(3), 1);
    Grid().SetCols(4);
    Grid().Sort();
    Grid().ResetGrid();
    EXPECT_EQ(Grid().SortOrder(3), 1);
}

TEST_F(Sorting, ManyRowsAreAnErrorAndNoneHasMoved)
{
    Grid().SetRedraw(false);
    Table(29524, 2, 0, 0);
    Grid().SetText(0, 0, u"z");
    Grid().SetSortOrder(0, 1);
    Grid().SetRowSelected(3, true);
    Grid().SpanRows(1);
    EXPECT_EQ(ErrorOf([&] { Grid().Sort(); }), ErrorNumber::Overflow);
    EXPECT_EQ(Grid().Text(0, 0), u"z");
    EXPECT_EQ(Grid().SelectCountRow(), 0);
    EXPECT_EQ(Grid().RowSpan(0, 1), 0);
    Grid().SetRows(29523);
    Grid().Sort();
    EXPECT_EQ(Grid().Text(29522, 0), u"z");
}

TEST_F(Sorting, ByTheFillerColumnNothingMoves)
{
    Fill(0, { u"b", u"a" });
    Grid().SetSortOrder(3, 1);
    Grid().SetCols(3); // the key is the filler column now
    Grid().Sort();
    EXPECT_EQ(Grid().Text(0, 0), u"b");
}

TEST_F(Sorting, BeforeTheTableThereAreNoKeys)
{
    HeadlessContainer place;
    VornixEvents silent;
    Vornix bare(place, silent);
    bare.SetSortOrder(0, 1);
    EXPECT_EQ(bare.SortOrder(0), 0);
    bare.Sort();
    EXPECT_EQ(place.MessageBoxes().size(), 1u);
    EXPECT_EQ(ErrorOf([&] { bare.SortType(0); }), ErrorNumber::SubscriptOutOfRange);
}

// -- The editor --

class SortingWhileEditing : public Sorting {
protected:
    SortingWhileEditing()
    {
        Fill(0, { u"b", u"c", u"a", u"e", u"d" });
        Grid().SetColMode(0, vxTextBox);
        Grid().SetSortOrder(0, 1);
        Grid().CurrentPos(1, 0);
        Grid().EnterEdit();
        host->Type(u"9");
    }
};

TEST_F(SortingWhileEditing, TheEditorClosesAndKeepsWhatWasTyped)
{
    ASSERT_TRUE(Grid().IsEditMode());
    ASSERT_EQ(Grid().Text(1, 0), u"9c");
    std::vector<CellPlace> closed;
    handlers.OnAfterEdit = [&](i16 Row, i16 Col) {
        closed.push_back({ Row, Col });
        EXPECT_EQ(Grid().Text(1, 0), u"9c") << "no row has moved yet";
    };
    Grid().Sort();
    EXPECT_THAT(closed, ElementsAre(CellPlace { 1, 0 }));
    EXPECT_FALSE(Grid().IsEditMode());
    EXPECT_THAT(Column(0), ElementsAre(u"9c", u"a", u"b", u"d", u"e"));
}

TEST_F(SortingWhileEditing, AHandlerMayTakeRowsAndColumns)
{
    handlers.OnAfterEdit = [&](i16, i16) {
        Grid().SetRows(3);
        Grid().SetFixedRows(0);
        Grid().SetFixedCols(0);
    };
    // The key is the column that has moved in: its index stays.
    Grid().Sort();
    EXPECT_EQ(Grid().Rows(), 3);
    handlers.OnAfterEdit = {};
    Grid().SetRows(0);
    Grid().SetCols(0);
    EXPECT_EQ(ErrorOf([&] { Grid().Sort(); }), std::nullopt);
}

TEST_F(SortingWhileEditing, AHandlerMayTakeTheKeysColumn)
{
    Grid().SetSortOrder(3, 2);
    handlers.OnAfterEdit = [&](i16, i16) { Grid().SetCols(1); };
    EXPECT_EQ(ErrorOf([&] { Grid().Sort(); }), ErrorNumber::SubscriptOutOfRange);
    EXPECT_THAT(Column(0), ElementsAre(u"b", u"9c", u"a", u"e", u"d"));
}

TEST_F(SortingWhileEditing, AHandlerMayNameOtherKeysAndMerge)
{
    handlers.OnAfterEdit = [&](i16, i16) {
        Grid().SetSortOrder(0, 1); // turns around
        Grid().SetRowSpan(0, 2, 3);
    };
    Grid().Sort();
    EXPECT_THAT(Column(0), ElementsAre(u"e", u"d", u"b", u"a", u"9c"));
    for (i16 row = 0; row < 5; ++row)
        EXPECT_EQ(Grid().ParentRow(row, 2), row);
}

TEST_F(SortingWhileEditing, AHandlerMaySort)
{
    int calls = 0;
    handlers.OnAfterEdit = [&](i16, i16) {
        ++calls;
        Grid().Sort();
    };
    Grid().Sort();
    EXPECT_EQ(calls, 1);
    EXPECT_THAT(Column(0), ElementsAre(u"9c", u"a", u"b", u"d", u"e"));
}

TEST_F(SortingWhileEditing, AHandlerMayCloseTheControl)
{
    handlers.OnAfterEdit = [&](i16, i16) { host->Close(); };
    Grid().Sort();
    EXPECT_TRUE(Grid().IsTerminated());
    EXPECT_EQ(ErrorOf([&] { Grid().Sort(); }), ErrorNumber::InvalidArgument);
}

// Its text is that of a row which is about to move.
TEST_F(SortingWhileEditing, AnEditorThatAHandlerOpensClosesToo)
{
    int calls = 0;
    handlers.OnAfterEdit = [&](i16, i16) {
        ++calls;
        Grid().EnterEdit();
        EXPECT_TRUE(Grid().IsEditMode());
    };
    Grid().Sort();
    EXPECT_EQ(calls, 1);
    EXPECT_FALSE(Grid().IsEditMode());
    host->Type(u"7");
    EXPECT_THAT(Column(0), ElementsAre(u"9c", u"a", u"b", u"d", u"e")) << "there is nothing to type into";
}

TEST_F(SortingWhileEditing, AHandlersErrorEndsTheSort)
{
    handlers.OnAfterEdit = [&](i16, i16) { Grid().SetText(99, 0, u""); };
    Grid().SetRowSelected(3, true);
    host->ClearLog();
    EXPECT_EQ(ErrorOf([&] { Grid().Sort(); }), ErrorNumber::SubscriptOutOfRange);
    EXPECT_EQ(Grid().SelectCountRow(), 0);
    EXPECT_EQ(host->Repaints(), 1) << "no row looks selected any more";
    EXPECT_THAT(Column(0), ElementsAre(u"b", u"9c", u"a", u"e", u"d"));
    handlers.OnAfterEdit = {};
    Grid().Sort();
    EXPECT_EQ(Grid().Text(0, 0), u"9c");
}

// Taking merged rows apart repaints, and a cell of the host's own drawing hears of it.
TEST_F(SortingWhileEditing, AHandlerOfThePaintMayCloseTheControl)
{
    Grid().SpanRows(1);
    Grid().SetCellStyle(0, 0, vxCustomDraw);
    handlers.OnDrawCell = [&](i16, i16, Hdc&, bool&) { host->Close(); };
    bool ended = false;
    handlers.OnAfterEdit = [&](i16, i16) { ended = true; };
    Grid().Sort();
    EXPECT_TRUE(Grid().IsTerminated());
    EXPECT_FALSE(ended);
}

} // namespace
} // namespace vornix
