#include "data/clipboard_text.h"
#include "data_exchange/plain_paste.h"

#include <gtest/gtest.h>

#include <random>
#include <vector>

namespace vornix {
namespace {

using Texts = std::vector<std::u16string>;

template <typename Step> int ErrorOf(Step&& step)
{
    try {
        step();
        return 0;
    } catch (const AutomationError& error) {
        return error.Number();
    }
}

class ClipboardText : public testing::Test {
protected:
    ClipboardText() { Table(4, 3); }

    void Table(i16 rows, i16 cols)
    {
        store.StoreRows(rows);
        store.StoreCols(cols);
        store.InitGridStore(SystemColors());
    }
    void Fill(const std::vector<Texts>& rows)
    {
        for (std::size_t row = 0; row < rows.size(); ++row)
            for (std::size_t col = 0; col < rows[row].size(); ++col)
                store.EditCell(static_cast<int>(row), static_cast<int>(col)).SetText(rows[row][col]);
    }
    std::u16string Copy(CellIndex first, CellIndex last) const { return CopiedText(store, { first, last }); }
    std::u16string CopyOne(const std::u16string& text)
    {
        store.EditCell(0, 0).SetText(text);
        return Copy({ 0, 0 }, { 0, 0 });
    }
    void Paste(std::u16string_view text, CellIndex first = {}, CellIndex last = { 3, 2 })
    {
        PasteText(store, { first, last }, text);
    }
    Texts Line(int row) const
    {
        Texts texts;
        for (int col = 0; col < store.Cols(); ++col)
            texts.push_back(store.CellAt(row, col).Text());
        return texts;
    }

    GridStore store;
};

// What a text pasted over marks leaves in the cells of a rectangle, each with a bar behind it.
std::u16string Pasted(std::u16string_view text, int rows = 3, int cols = 3)
{
    const PasteStories stories = StoriesOfPaste(text, rows, cols);
    EXPECT_EQ(stories.fast, stories.plain) << testing::PrintToString(std::u16string(text));
    std::u16string cells = stories.fast;
    for (std::size_t at = cells.find(u"(untouched)"); at != std::u16string::npos; at = cells.find(u"(untouched)"))
        cells.replace(at, 11, u"~");
    return cells;
}

} // namespace

TEST_F(ClipboardText, ARectangleHasItsCornersInOrder)
{
    const CellRectangle cells = CellRectangle::Between({ 3, 1 }, { 2, 5 });
    EXPECT_EQ(cells.first.row, 2);
    EXPECT_EQ(cells.first.col, 1);
    EXPECT_EQ(cells.last.row, 3);
    EXPECT_EQ(cells.last.col, 5);
}

TEST_F(ClipboardText, CopiesTabsBetweenCellsAndLineEndsBetweenRows)
{
    Fill({ { u"a", u"b" }, { u"c", u"d" } });
    EXPECT_EQ(Copy({ 0, 0 }, { 0, 1 }), u"a\tb");
    EXPECT_EQ(Copy({ 0, 0 }, { 1, 1 }), u"a\tb\r\nc\td");
    EXPECT_EQ(Copy({ 0, 1 }, { 1, 2 }), u"b\t\r\nd\t");
    EXPECT_EQ(Copy({ 0, 0 }, { 0, 0 }), u"a");
}

TEST_F(ClipboardText, CopiesEmptyCellsOfSeveralColumnsAsTabs)
{
    EXPECT_EQ(Copy({ 0, 0 }, { 1, 2 }), u"\t\t\r\n\t\t");
}

TEST_F(ClipboardText, AnEmptyLastLineCopiesNothing)
{
    Fill({ { u"a" }, { u"" }, { u"c" } });
    EXPECT_EQ(Copy({ 0, 0 }, { 1, 0 }), u"");
    EXPECT_EQ(Copy({ 0, 0 }, { 2, 0 }), u"a\r\n\r\nc");
    EXPECT_EQ(Copy({ 3, 0 }, { 3, 0 }), u"");
}

TEST_F(ClipboardText, ATextWithLineEndsStandsBetweenQuotesWithBareLineFeeds)
{
    EXPECT_EQ(CopyOne(u"a\r\nb"), u"\"a\nb\"");
    EXPECT_EQ(CopyOne(u"\r\n"), u"\"\n\"");
    EXPECT_EQ(CopyOne(u"a\rb\r\nc\r\r\n"), u"\"ab\nc\n\"") << "all carriage returns go";
}

TEST_F(ClipboardText, OtherTextsStandAsTheyAre)
{
    for (const std::u16string& text : { std::u16string(u"say \"hi\""), std::u16string(u"\""), std::u16string(u"a\rb"),
             std::u16string(u"a\nb"), std::u16string(u"a\n\rb"), std::u16string(u"a\tb"),
             std::u16string(u"\x00E4\x20AC\xD83D\xDE00"), std::u16string(u"a\0b", 3), std::u16string(u"\xD800") })
        EXPECT_EQ(CopyOne(text), text);
    EXPECT_EQ(CopyOne(u"\"a\"\r\n"), u"\"\"a\"\n\"") << "quotes inside are not doubled";
}

TEST_F(ClipboardText, CopiesTheFillerCellsToo)
{
    EXPECT_EQ(Copy({ 0, 3 }, { 4, 3 }), u"");
    store.EditCell(4, 3).SetText(u"corner");
    EXPECT_EQ(Copy({ 3, 2 }, { 4, 3 }), u"\t\r\n\tcorner");
}

TEST_F(ClipboardText, CellsOutsideAreErrorNine)
{
    EXPECT_EQ(ErrorOf([&] { Copy({ -1, 0 }, { 0, 0 }); }), 9);
    EXPECT_EQ(ErrorOf([&] { Copy({ 0, -1 }, { 0, 0 }); }), 9);
    EXPECT_EQ(ErrorOf([&] { Copy({ 0, 0 }, { 5, 0 }); }), 9);
    EXPECT_EQ(ErrorOf([&] { Copy({ 0, 0 }, { 0, 4 }); }), 9);
}

TEST_F(ClipboardText, PastesABlock)
{
    Paste(u"a\tb\r\nc\td", { 1, 1 }, { 2, 2 });
    EXPECT_EQ(Line(0), (Texts { u"", u"", u"" }));
    EXPECT_EQ(Line(1), (Texts { u"", u"a", u"b" }));
    EXPECT_EQ(Line(2), (Texts { u"", u"c", u"d" }));
}

TEST_F(ClipboardText, TheRectangleBoundsThePaste)
{
    Paste(u"a\tb\r\nc\td", { 1, 1 }, { 1, 1 });
    EXPECT_EQ(Line(1), (Texts { u"", u"a", u"" }));
    EXPECT_EQ(Line(2), (Texts { u"", u"", u"" }));
}

TEST_F(ClipboardText, WhatIsNotGivenStaysAsItIs)
{
    EXPECT_EQ(Pasted(u"a\tb\r\nc"), u"a|b|~|c|~|~|~|~|~|");
    EXPECT_EQ(Pasted(u"a\r\n"), u"a|~|~|~|~|~|~|~|~|") << "the line behind the end is empty";
}

TEST_F(ClipboardText, AnEmptyLineTakesUpARow)
{
    EXPECT_EQ(Pasted(u"a\r\n\r\nb"), u"a|~|~|~|~|~|b|~|~|");
    EXPECT_EQ(Pasted(u"\r\n\r\n\r\n\r\n"), u"~|~|~|~|~|~|~|~|~|");
}

TEST_F(ClipboardText, AnEmptyFieldEmptiesItsCell)
{
    EXPECT_EQ(Pasted(u"\tb\t"), u"|b||~|~|~|~|~|~|");
    EXPECT_EQ(Pasted(u"\"\""), u"\"\"|~|~|~|~|~|~|~|~|") << "an even number of quotes is no beginning";
}

TEST_F(ClipboardText, AnEmptyTextPastesNothing)
{
    Fill({ { u"kept" } });
    Paste(u"", { 0, 0 }, { 99, 99 });
    EXPECT_EQ(Line(0), (Texts { u"kept", u"", u"" }));
}

TEST_F(ClipboardText, OnlyCarriageReturnWithLineFeedEndsALine)
{
    EXPECT_EQ(Pasted(u"a\nb\tc\rd\n\r"), u"a\nb|c\rd\n\r|~|~|~|~|~|~|~|");
}

TEST_F(ClipboardText, AFieldBetweenQuotesComesWithoutThem)
{
    EXPECT_EQ(Pasted(u"\"a\"\tb"), u"a|b|~|~|~|~|~|~|~|");
    EXPECT_EQ(Pasted(u"\"a\nb\""), u"a\nb|~|~|~|~|~|~|~|~|");
    EXPECT_EQ(Pasted(u"\"a \"\" b\""), u"a \"\" b|~|~|~|~|~|~|~|~|") << "pairs inside stay";
}

TEST_F(ClipboardText, AFieldThatBeginsWithAnEvenNumberOfQuotesStandsAsItIs)
{
    EXPECT_EQ(Pasted(u"\"\"a\"\tb"), u"\"\"a\"|b|~|~|~|~|~|~|~|");
    EXPECT_EQ(Pasted(u"\"\"\"\"a\r\nb"), u"\"\"\"\"a|~|~|b|~|~|~|~|~|");
}

TEST_F(ClipboardText, AQuotedFieldWithMoreBehindItIsOneLine)
{
    EXPECT_EQ(Pasted(u"\"a\tb\"\r\nc"), u"a|b\"|~|c|~|~|~|~|~|");
    EXPECT_EQ(Pasted(u"\"a\"\"\tb"), u"a\"\"|b|~|~|~|~|~|~|~|") << "an even number at the end is no end";
    EXPECT_EQ(Pasted(u"\"\tb"), u"|b|~|~|~|~|~|~|~|");
}

TEST_F(ClipboardText, AQuotedFieldGoesOverLinesToTheOneThatEnds)
{
    EXPECT_EQ(Pasted(u"\"a\r\nb\"\r\nc"), u"a\r\nb|~|~|c|~|~|~|~|~|");
    EXPECT_EQ(Pasted(u"x\t\"a\r\n\r\nb\"\ty\r\nc"), u"x|a\r\n\r\nb|y|c|~|~|~|~|~|");
    EXPECT_EQ(Pasted(u"\"a\r\nb\tc\"\r\nd\"\te"), u"a\r\nb\r\nd|e|~|~|~|~|~|~|~|")
        << "fields behind the first of a line in between are lost";
}

TEST_F(ClipboardText, AQuotedFieldWithoutAnEndTakesAllThatIsLeft)
{
    EXPECT_EQ(Pasted(u"\"a\r\nb\r\nc"), u"a\r\nb\r\nc|~|~|~|~|~|~|~|~|");
    EXPECT_EQ(Pasted(u"\"a\r\n"), u"a\r\n|~|~|~|~|~|~|~|~|");
    EXPECT_EQ(Pasted(u"\""), u"|~|~|~|~|~|~|~|~|");
    EXPECT_EQ(Pasted(u"\"a\r\nb\tc"), u"a\r\nb|c|~|~|~|~|~|~|~|") << "the fields of the last line follow";
    EXPECT_EQ(Pasted(u"\"a\r\nb\t\"c"), u"a\r\nb||~|~|~|~|~|~|~|") << "with no line left, a quoted one is empty";
}

TEST_F(ClipboardText, AllQuotesAtTheEndAreCounted)
{
    // Behind the first quote: three, two, one of them, nothing else.
    EXPECT_EQ(Pasted(u"\"\"\"\"\tb"), u"\"\"\"\"|b|~|~|~|~|~|~|~|") << "four: an even beginning";
    EXPECT_EQ(Pasted(u"\"\"\"\tb"), u"\"\"|b|~|~|~|~|~|~|~|") << "three: the two behind the first are no end";
    EXPECT_EQ(Pasted(u"\"\"\"\"\"\"\"\tb"), u"\"\"\"\"\"\"|b|~|~|~|~|~|~|~|");
    EXPECT_EQ(Pasted(u"\"a\r\n\"\r\nb"), u"a\r\n|~|~|b|~|~|~|~|~|") << "a line that is one quote ends it";
    EXPECT_EQ(Pasted(u"\"a\r\n\"\"\r\n\"\"\"\r\nb"), u"a\r\n\"\"\r\n\"\"|~|~|b|~|~|~|~|~|");
}

TEST_F(ClipboardText, AnEmptyLineInsideQuotesKeepsTheFieldsBeforeIt)
{
    EXPECT_EQ(Pasted(u"x\t\"a\r\n\r\n"), u"x|a\r\n\r\n|~|~|~|~|~|~|~|");
    EXPECT_EQ(Pasted(u"\"a\r\n\r\nb\"\tc"), u"a\r\n\r\nb|c|~|~|~|~|~|~|~|");
}

TEST_F(ClipboardText, WhatWasCopiedComesBackWithLineFeeds)
{
    Fill({ { u"a\r\nb", u"\"q\" r", u"t" }, { u"", u"\xE4\x20AC", u"x" } });
    Paste(Copy({ 0, 0 }, { 1, 2 }), { 2, 0 }, { 3, 2 });
    EXPECT_EQ(Line(2), (Texts { u"a\nb", u"q\" r", u"t" })) << "a text that begins with a quote loses it";
    EXPECT_EQ(Line(3), (Texts { u"", u"\xE4\x20AC", u"x" }));
}

TEST_F(ClipboardText, PasteKeepsEverythingButTheText)
{
    store.EditCell(0, 0).SetKey(u"key");
    store.EditCell(0, 0).SetButtonPressed(true);
    store.EditFormat(0, 0, [](CellFormat& format) { format.ForeColor = 0x123456; });
    Paste(u"text");
    EXPECT_EQ(store.CellAt(0, 0).Text(), u"text");
    EXPECT_EQ(store.CellAt(0, 0).Key(), u"key");
    EXPECT_TRUE(store.CellAt(0, 0).ButtonPressed());
    EXPECT_EQ(store.Format(0, 0).ForeColor, 0x123456u);
}

TEST_F(ClipboardText, RowsThatShareTheirCellsAreWrittenApart)
{
    ASSERT_TRUE(store.RowAt(1).Cells.IsShared());
    Paste(u"a\r\nb");
    EXPECT_EQ(Line(0), (Texts { u"a", u"", u"" }));
    EXPECT_EQ(Line(1), (Texts { u"b", u"", u"" }));
    EXPECT_EQ(Line(2), (Texts { u"", u"", u"" }));
}

TEST_F(ClipboardText, PastingOutsideIsErrorNineOnceACellIsThere)
{
    EXPECT_EQ(ErrorOf([&] { Paste(u"a", { -1, 0 }, { 0, 0 }); }), 9);
    EXPECT_EQ(ErrorOf([&] { Paste(u"\r\na", { -1, 0 }, { 0, 0 }); }), 0) << "the line for the row outside is empty";
    EXPECT_EQ(store.CellAt(0, 0).Text(), u"a");
    EXPECT_EQ(ErrorOf([&] { Paste(u"b", { 0, 0 }, { 99, 99 }); }), 0) << "nothing goes there";
    EXPECT_EQ(ErrorOf([&] { Paste(u"1\t2\t3\t4\t5", { 0, 0 }, { 0, 99 }); }), 9);
    EXPECT_EQ(Line(0), (Texts { u"1", u"2", u"3" })) << "cells ahead are written";
    EXPECT_EQ(store.CellAt(0, 3).Text(), u"4") << "the filler";
}

TEST_F(ClipboardText, PastesAsThePlainReadingDoes)
{
    constexpr std::u16string_view pieces[] = { u"\"", u"\"\"", u"\"\"\"", u"\t", u"\r\n", u"\r\n\r\n", u"\r", u"\n",
        u"a", u"b c", u"\t\"", u"\"\t", u"\r\n\"", u"\"\r\n" };
    std::mt19937 random(7);
    std::u16string text;
    for (int round = 0; round < 30'000; ++round) {
        text.clear();
        for (auto count = random() % 24; count > 0; --count)
            text += pieces[random() % std::size(pieces)];
        const PasteStories stories
            = StoriesOfPaste(text, static_cast<int>(1 + random() % 6), static_cast<int>(1 + random() % 4));
        ASSERT_EQ(stories.fast, stories.plain) << testing::PrintToString(text);
    }
}

TEST_F(ClipboardText, TakesTimeLinearInTheText)
{
    Table(3, 2);
    std::u16string lines;
    for (int i = 0; i < 300'000; ++i)
        lines += u"x\r\n";
    Paste(u"\"" + lines, {}, { 2, 1 });
    EXPECT_EQ(store.CellAt(0, 0).Text().size(), lines.size());
    Paste(u"\"" + lines + u"y\"\tz", {}, { 2, 1 });
    EXPECT_EQ(store.CellAt(0, 1).Text(), u"z");
    std::u16string quotes(1'000'001, u'"');
    Paste(quotes, {}, { 2, 1 });
    EXPECT_EQ(store.CellAt(0, 0).Text().size(), quotes.size() - 1);
    Paste(std::u16string(1'000'000, u'\t') + u"a", {}, { 2, 1 });
    EXPECT_EQ(store.CellAt(0, 0).Text(), u"");
}

} // namespace vornix
