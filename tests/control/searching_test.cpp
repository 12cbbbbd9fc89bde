#include "control/grid_fixture.h"

namespace vornix {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

struct Hit {
    i16 IdSearch;
    i16 Pos;
    friend bool operator==(const Hit&, const Hit&) = default;
    friend void PrintTo(const Hit& hit, std::ostream* out) { *out << hit.IdSearch << " at " << hit.Pos; }
};

class Searching : public GridTest {
protected:
    Searching()
    {
        Table(6, 5, 1, 1);
        handlers.OnSearchResult = [&](i16 IdSearch, i16& Pos) {
            hits.push_back({ IdSearch, Pos });
            if (OnHit)
                OnHit(Pos);
        };
    }

    void FillCol(i16 Col, std::initializer_list<const char16_t*> texts)
    {
        i16 row = 0;
        for (const char16_t* text : texts)
            Grid().SetText(row++, Col, text);
    }
    // The rows that are found, and the count that comes back with them.
    std::vector<i16> Rows(const char16_t* searchString, const char16_t* wildcard = u"", i32 eType = vxText)
    {
        hits.clear();
        const i16 count = Grid().SearchRow(eType, 1, searchString, 1, wildcard);
        EXPECT_EQ(count, static_cast<i16>(hits.size()));
        return Places();
    }
    std::vector<i16> Places()
    {
        std::vector<i16> places;
        for (const Hit& hit : hits)
            places.push_back(hit.Pos);
        return places;
    }

    std::vector<Hit> hits;
    std::function<void(i16& Pos)> OnHit;
};

TEST_F(Searching, EachHitIsAnEventWithTheNumberOfTheSearch)
{
    FillCol(1, { u"oslo", u"Bergen", u"OSLO", u"Oslo 2", u"", u"osLO" });
    EXPECT_EQ(Grid().SearchRow(vxText, 1, u"Oslo", 7), 3);
    EXPECT_THAT(hits, ElementsAre(Hit { 7, 0 }, Hit { 7, 2 }, Hit { 7, 5 }));
    hits.clear();
    EXPECT_EQ(Grid().SearchRow(vxText, 1, u"Oslo", -32768, u"*"), 3) << "no wildcard stands in it";
    EXPECT_EQ(hits.front().IdSearch, -32768);
}

TEST_F(Searching, AWildcardAtTheEnds)
{
    FillCol(1, { u"ab", u"abc", u"CAB", u"cabc", u"a*b", u"axb" });
    EXPECT_THAT(Rows(u"ab*", u"*"), ElementsAre(0, 1));
    EXPECT_THAT(Rows(u"*ab", u"*"), ElementsAre(0, 2));
    EXPECT_THAT(Rows(u"*ab*", u"*"), ElementsAre(0, 1, 2, 3));
    EXPECT_THAT(Rows(u"a*b", u"*"), IsEmpty());
    EXPECT_THAT(Rows(u"a*b"), ElementsAre(4));
    EXPECT_THAT(Rows(u"<any>ab", u"<any>"), ElementsAre(0, 2));
    EXPECT_THAT(Rows(u"<any>ab<any>", u"<any>"), ElementsAre(0, 1, 2, 3));
}

TEST_F(Searching, OnlyEndsOfKeysInAColumnHaveTheirCase)
{
    for (i16 row = 0; row < 3; ++row) {
        const std::u16string text = row == 0 ? u"xAB" : row == 1 ? u"xab" : u"x";
        Grid().SetText(row, 1, text);
        Grid().SetKey(row, 1, text);
        Grid().SetText(1, row, text);
        Grid().SetKey(1, row, text);
    }
    Grid().SetText(1, 1, u"xab");
    Grid().SetKey(1, 1, u"xab");
    EXPECT_THAT(Rows(u"*ab", u"*", vxText), ElementsAre(0, 1));
    EXPECT_THAT(Rows(u"*ab", u"*", vxKey), ElementsAre(1));
    EXPECT_THAT(Rows(u"XAB", u"*", vxKey), ElementsAre(0, 1));
    EXPECT_THAT(Rows(u"XA*", u"*", vxKey), ElementsAre(0, 1));
    EXPECT_THAT(Rows(u"*XA*", u"*", vxKey), ElementsAre(0, 1));
    hits.clear();
    EXPECT_EQ(Grid().SearchCol(vxKey, 1, u"*ab", 1, u"*"), 2);
    EXPECT_THAT(Places(), ElementsAre(0, 1));
    for (const char16_t* const searchString : { u"XAB", u"XA*", u"*XA*" }) {
        hits.clear();
        EXPECT_EQ(Grid().SearchCol(vxKey, 1, searchString, 1, u"*"), 2);
        EXPECT_THAT(Places(), ElementsAre(0, 1));
    }
}

TEST_F(Searching, AnEmptyTextFindsWhatIsEmpty)
{
    FillCol(1, { u"a", u"", u"b", u"", u"c", u"d" });
    EXPECT_THAT(Rows(u""), ElementsAre(1, 3));
    EXPECT_THAT(Rows(u"**", u"*"), ElementsAre(0, 2, 4, 5)) << "what contains nothing in particular";
}

TEST_F(Searching, AcrossTheColumnsOfARow)
{
    Grid().SetText(2, -1, u"x");
    Grid().SetText(2, 0, u"x");
    Grid().SetText(2, 4, u"X");
    Grid().SetText(2, 5, u"x"); // the filler
    EXPECT_EQ(Grid().SearchCol(vxText, 2, u"x", 3), 2);
    EXPECT_THAT(hits, ElementsAre(Hit { 3, 0 }, Hit { 3, 4 }));
}

TEST_F(Searching, FixedAndFillerLinesCanBeSearchedAndAreNotWalked)
{
    Grid().SetText(-1, -1, u"x");
    Grid().SetText(0, -1, u"x");
    Grid().SetText(-1, 2, u"x");
    Grid().SetText(1, 5, u"x");
    Grid().SetText(6, 3, u"x");
    EXPECT_EQ(Grid().SearchRow(vxText, -1, u"x", 0), 1);
    EXPECT_EQ(Grid().SearchCol(vxText, -1, u"x", 0), 1);
    EXPECT_EQ(Grid().SearchRow(vxText, 5, u"x", 0), 1);
    EXPECT_EQ(Grid().SearchCol(vxText, 6, u"x", 0), 1);
    EXPECT_THAT(Places(), ElementsAre(0, 2, 1, 3));
}

TEST_F(Searching, HiddenLinesAndCoveredCellsAreSearched)
{
    FillCol(1, { u"x", u"x", u"x", u"x", u"x", u"x" });
    Grid().HideRow(2);
    Grid().HideCol(1);
    Grid().SetRowSpan(3, 1, 3);
    EXPECT_THAT(Rows(u"x"), ElementsAre(0, 1, 2, 3, 4, 5));
    for (i16 col = 0; col < 5; ++col)
        Grid().SetText(2, col, u"y");
    Grid().SetColSpan(2, 2, 2);
    EXPECT_EQ(Grid().SearchCol(vxText, 2, u"y", 1), 5);
}

TEST_F(Searching, LeavesTheGridAsItIs)
{
    FillCol(1, { u"x", u"x", u"x", u"x", u"x", u"x" });
    Grid().CurrentPos(1, 1);
    Grid().SetColSelected(2, true);
    host->ClearLog();
    EXPECT_THAT(Rows(u"x").size(), 6u);
    EXPECT_EQ(Grid().CurrentRow(), 1);
    EXPECT_EQ(Grid().SelectCountCol(), 1);
    EXPECT_EQ(host->Repaints() + host->Refreshes(), 0);
    EXPECT_THAT(Reported(), IsEmpty());
}

TEST_F(Searching, OtherThanTextsAndKeysNothingIsFound)
{
    for (const i32 eType : { -1, 2, 100 }) {
        EXPECT_EQ(Grid().SearchRow(eType, 1, u"", 1), 0);
        EXPECT_EQ(Grid().SearchCol(eType, 99, u"", 1), 0) << "no cell is looked at";
    }
    EXPECT_THAT(hits, IsEmpty());
    EXPECT_EQ(ErrorOf([&] { Grid().SearchRow(2, 1, u"*", 1, u"*"); }), ErrorNumber::InvalidArgument)
        << "what is looked for comes first";
}

TEST_F(Searching, Errors)
{
    EXPECT_EQ(ErrorOf([&] { Grid().SearchRow(vxText, 1, u"*", 1, u"*"); }), ErrorNumber::InvalidArgument);
    EXPECT_EQ(ErrorOf([&] { Grid().SearchCol(vxText, 1, u"aba", 1, u"aba"); }), ErrorNumber::InvalidArgument);
    EXPECT_EQ(ErrorOf([&] { Grid().SearchRow(vxText, 6, u"x", 1); }), ErrorNumber::SubscriptOutOfRange);
    EXPECT_EQ(ErrorOf([&] { Grid().SearchRow(vxText, -2, u"x", 1); }), ErrorNumber::SubscriptOutOfRange);
    EXPECT_EQ(ErrorOf([&] { Grid().SearchCol(vxText, 7, u"x", 1); }), ErrorNumber::SubscriptOutOfRange);
    EXPECT_EQ(ErrorOf([&] { Grid().SearchRow(vxText, 32767, u"x", 1); }), ErrorNumber::Overflow);
    EXPECT_EQ(Grid().SearchRow(vxText, 99, u"a*b", 1, u"*"), 0) << "nothing is searched";
    Grid().SetRows(0);
    EXPECT_EQ(Grid().SearchRow(vxText, 99, u"x", 1), 0) << "there is no cell to look at";
}

// -- Both methods, steered by the host --

// Down a column for false, across a row for true.
class SearchingBothWays : public Searching, public testing::WithParamInterface<bool> {
protected:
    SearchingBothWays() { Table(6, 6, 1, 1); }

    bool IsAcross() const { return GetParam(); }

    // `line` is one of those that are walked over, `place` the row or column they are looked at in.
    void SetText(i16 line, const char16_t* text, i16 place = 1)
    {
        IsAcross() ? Grid().SetText(place, line, text) : Grid().SetText(line, place, text);
    }
    void Fill(std::initializer_list<const char16_t*> texts, i16 place = 1)
    {
        i16 line = 0;
        for (const char16_t* text : texts)
            SetText(line++, text, place);
    }
    i16 Search(const char16_t* searchString = u"x", i16 place = 1)
    {
        return IsAcross() ? Grid().SearchCol(vxText, place, searchString, 1)
                          : Grid().SearchRow(vxText, place, searchString, 1);
    }
    void LinedTable(i16 lines, i16 across, i16 fixedLines)
    {
        IsAcross() ? Table(across, lines, 1, fixedLines) : Table(lines, across, fixedLines, 1);
    }
    void SetLines(i16 count) { IsAcross() ? Grid().SetCols(count) : Grid().SetRows(count); }
    void SetLinesAcross(i16 count) { IsAcross() ? Grid().SetRows(count) : Grid().SetCols(count); }
    void SetFixedLines(i16 count) { IsAcross() ? Grid().SetFixedCols(count) : Grid().SetFixedRows(count); }
    void SetFixedLinesAcross(i16 count) { IsAcross() ? Grid().SetFixedRows(count) : Grid().SetFixedCols(count); }
};

INSTANTIATE_TEST_SUITE_P(Searches, SearchingBothWays, testing::Bool(),
    [](const auto& method) { return method.param ? "SearchCol" : "SearchRow"; });

TEST_P(SearchingBothWays, ThePositionThatAHandlerWritesIsTheLatest)
{
    LinedTable(20, 2, 1);
    for (i16 line = 0; line < 20; ++line)
        SetText(line, u"x");
    OnHit = [](i16& Pos) {
        if (Pos == 3)
            Pos = 10;
    };
    EXPECT_EQ(Search(), 13);
    EXPECT_THAT(Places(), ElementsAre(0, 1, 2, 3, 11, 12, 13, 14, 15, 16, 17, 18, 19));
}

TEST_P(SearchingBothWays, AHandlerEndsTheWalkAtTheLastIndexOrBehind)
{
    Fill({ u"x", u"x", u"x", u"x", u"x", u"x" });
    for (const int end : { 5, 6, 7, 300, 32765 }) {
        OnHit = [end](i16& Pos) { Pos = static_cast<i16>(end); };
        hits.clear();
        EXPECT_EQ(Search(), 1) << end;
    }
}

TEST_P(SearchingBothWays, AHandlerMayGoBack)
{
    Fill({ u"x", u"x", u"x", u"x", u"x", u"x" });
    OnHit = [&](i16& Pos) {
        if (hits.size() == 3)
            Pos = 0;
    };
    EXPECT_EQ(Search(), 8);
    EXPECT_THAT(Places(), ElementsAre(0, 1, 2, 1, 2, 3, 4, 5));
}

TEST_P(SearchingBothWays, InTheFixedLinesTheWalkGoesOnFromThere)
{
    LinedTable(3, 2, 3);
    for (i16 line = -3; line < 3; ++line)
        SetText(line, u"x");
    OnHit = [&](i16& Pos) {
        if (hits.size() == 1)
            Pos = -4; // in front of the first fixed row
    };
    EXPECT_EQ(Search(), 7);
    EXPECT_THAT(Places(), ElementsAre(0, -3, -2, -1, 0, 1, 2));
    OnHit = [](i16& Pos) { Pos = -5; };
    EXPECT_EQ(ErrorOf([&] { Search(); }), ErrorNumber::SubscriptOutOfRange);
    OnHit = [](i16& Pos) { Pos = -32768; };
    EXPECT_EQ(ErrorOf([&] { Search(); }), ErrorNumber::SubscriptOutOfRange);
}

TEST_P(SearchingBothWays, APositionBehindSixteenBitsIsAnError)
{
    SetText(0, u"x");
    OnHit = [](i16& Pos) { Pos = 32767; };
    EXPECT_EQ(ErrorOf([&] { Search(); }), ErrorNumber::Overflow);
    OnHit = [](i16& Pos) { Pos = 32766; }; // the index still fits, the next one does not
    EXPECT_EQ(ErrorOf([&] { Search(); }), ErrorNumber::Overflow);
    OnHit = [](i16& Pos) { Pos = 32765; };
    EXPECT_EQ(Search(), 1);
}

TEST_P(SearchingBothWays, HitsBehindSixteenBitsAreAnError)
{
    SetText(0, u"x");
    OnHit = [](i16& Pos) { Pos = -1; };
    EXPECT_EQ(ErrorOf([&] { Search(); }), ErrorNumber::Overflow);
    EXPECT_EQ(hits.size(), 32767u);
}

TEST_P(SearchingBothWays, AHandlerMayAddAndTakeLines)
{
    Fill({ u"x", u"x", u"x", u"x", u"x", u"x" });
    OnHit = [&](i16& Pos) {
        if (Pos == 1)
            SetLines(3);
    };
    EXPECT_EQ(Search(), 3);
    OnHit = [&](i16& Pos) {
        if (Pos == 2) {
            SetLines(5);
            SetText(4, u"x");
        }
    };
    hits.clear();
    EXPECT_EQ(Search(), 4);
    EXPECT_THAT(Places(), ElementsAre(0, 1, 2, 4));
    OnHit = [&](i16&) { SetLines(0); };
    EXPECT_EQ(Search(), 1);
}

TEST_P(SearchingBothWays, AHandlerMayTakeTheLineThatIsWalked)
{
    Fill({ u"x", u"x", u"x", u"x", u"x", u"x" }, 4);
    OnHit = [&](i16&) { SetLinesAcross(2); };
    EXPECT_EQ(ErrorOf([&] { Search(u"x", 4); }), ErrorNumber::SubscriptOutOfRange);
    EXPECT_EQ(hits.size(), 1u);
}

TEST_P(SearchingBothWays, AHandlerMayChangeTheFixedLines)
{
    Fill({ u"x", u"x", u"x", u"x", u"x", u"x" });
    OnHit = [&](i16& Pos) {
        if (Pos == 1) {
            SetFixedLines(3);
            SetFixedLinesAcross(0);
        }
    };
    EXPECT_EQ(Search(), 6);
    EXPECT_THAT(Places(), ElementsAre(0, 1, 2, 3, 4, 5)) << "by public indices nothing has moved";
}

TEST_F(Searching, AHandlerMaySearchAndSort)
{
    FillCol(1, { u"x", u"y", u"x", u"y", u"x", u"y" });
    Grid().SetSortOrder(1, 1);
    i16 inner = 0;
    OnHit = [&](i16&) {
        OnHit = {};
        Grid().Sort();
        inner = Grid().SearchRow(vxText, 1, u"y", 2);
    };
    EXPECT_EQ(Grid().SearchRow(vxText, 1, u"x", 1), 3);
    EXPECT_EQ(inner, 3);
}

TEST_P(SearchingBothWays, AHandlerMayCloseTheControl)
{
    Fill({ u"x", u"x", u"x", u"x", u"x", u"x" });
    OnHit = [&](i16& Pos) {
        if (Pos == 1)
            host->Close();
    };
    EXPECT_EQ(Search(), 2);
    EXPECT_EQ(hits.size(), 2u);
    EXPECT_TRUE(Grid().IsTerminated());
}

TEST_P(SearchingBothWays, AHandlersErrorEndsTheSearch)
{
    Fill({ u"x", u"x" });
    OnHit = [&](i16&) { Grid().SetText(99, 0, u""); };
    EXPECT_EQ(ErrorOf([&] { Search(); }), ErrorNumber::SubscriptOutOfRange);
    EXPECT_EQ(hits.size(), 1u);
}

TEST_F(Searching, BeforeTheTableThereIsNothingToFind)
{
    HeadlessContainer place;
    VornixEvents silent;
    Vornix bare(place, silent);
    EXPECT_EQ(bare.SearchRow(vxText, 0, u"", 1), 0);
    EXPECT_EQ(bare.SearchCol(vxKey, 0, u"", 1), 0);
}

} // namespace
} // namespace vornix
