#include "control/grid_fixture.h"

namespace vornix {
namespace {

using testing::IsEmpty;

class Clipboard : public GridTest {
protected:
    std::u16string Copied(i16 Row1, i16 Col1, i16 Row2, i16 Col2)
    {
        Grid().CopyToClipboard(Row1, Col1, Row2, Col2);
        return host->ClipboardText();
    }
    void Paste(std::u16string_view text, i16 Row1, i16 Col1, i16 Row2, i16 Col2)
    {
        host->SetClipboardText(text);
        Grid().PasteFromClipboard(Row1, Col1, Row2, Col2);
    }
};

} // namespace

TEST_F(Clipboard, CopiesByPublicIndicesInAnyOrderOfCorners)
{
    Table(2, 2, 1, 1);
    Grid().SetText(-1, -1, u"corner");
    Grid().SetText(0, 0, u"a");
    Grid().SetText(0, 1, u"b");
    Grid().SetText(1, 0, u"c");
    const std::u16string block = u"a\tb\r\nc\t";
    EXPECT_EQ(Copied(0, 0, 1, 1), block);
    EXPECT_EQ(Copied(1, 1, 0, 0), block);
    EXPECT_EQ(Copied(0, 1, 1, 0), block);
    EXPECT_EQ(Copied(1, 0, 0, 1), block);
    EXPECT_EQ(Copied(-1, -1, 0, 0), u"corner\t\r\n\ta");
}

TEST_F(Clipboard, CopiesHiddenLinesToo)
{
    Table(3, 2);
    for (i16 row = 0; row < 3; ++row)
        Grid().SetText(row, 0, std::u16string(1, static_cast<char16_t>(u'a' + row)));
    Grid().SetRowHide(1, true);
    Grid().SetColHide(1, true);
    EXPECT_EQ(Copied(0, 0, 2, 1), u"a\t\r\nb\t\r\nc\t");
}

TEST_F(Clipboard, CopiesTheCellsUnderASpanEachWithItsOwnText)
{
    Table(2, 2);
    Grid().SetText(0, 0, u"parent");
    Grid().SetText(0, 1, u"child");
    Grid().SetColSpan(0, 0, 1);
    EXPECT_EQ(Copied(0, 0, 0, 1), u"parent\tchild");
}

TEST_F(Clipboard, AnEmptyLastLineLeavesTheClipboardAlone)
{
    Table(2, 2);
    Grid().SetText(0, 0, u"a");
    host->SetClipboardText(u"before");
    EXPECT_EQ(Copied(0, 0, 1, 0), u"before");
    EXPECT_EQ(Copied(0, 0, 1, 1), u"a\t\r\n\t");
}

TEST_F(Clipboard, CornersOutsideAreErrorsAndLeaveTheClipboardAlone)
{
    Table(2, 2);
    host->SetClipboardText(u"before");
    EXPECT_EQ(ErrorOf([&] { Grid().CopyToClipboard(0, 0, 3, 0); }), 9);
    EXPECT_EQ(ErrorOf([&] { Grid().CopyToClipboard(0, -1, 1, 1); }), 9);
    EXPECT_EQ(ErrorOf([&] { Grid().CopyToClipboard(-32767, 0, 32767, 0); }), 9);
    Table(2, 2, 1, 1);
    EXPECT_EQ(ErrorOf([&] { Grid().CopyToClipboard(32767, 0, 0, 0); }), 6);
    EXPECT_EQ(ErrorOf([&] { Grid().PasteFromClipboard(0, 32767, 0, 0); }), 6);
    EXPECT_EQ(host->ClipboardText(), u"before");
}

TEST_F(Clipboard, CopyingTellsNothing)
{
    Table(2, 2);
    Grid().SetText(1, 1, u"a");
    host->ClearLog();
    Grid().CopyToClipboard(0, 0, 1, 1);
    EXPECT_TRUE(host->Log().empty());
    EXPECT_THAT(Reported(), IsEmpty());
    EXPECT_EQ(host->Repaints(), 0);
}

TEST_F(Clipboard, PastesABlockAndRepaintsOnce)
{
    Table(3, 3, 1, 1);
    Grid().SetText(2, 2, u"kept");
    host->ClearLog();
    Paste(u"a\tb\r\nc\td", 1, 1, 0, 0);
    EXPECT_EQ(Grid().Text(0, 0), u"a");
    EXPECT_EQ(Grid().Text(0, 1), u"b");
    EXPECT_EQ(Grid().Text(1, 0), u"c");
    EXPECT_EQ(Grid().Text(1, 1), u"d");
    EXPECT_EQ(Grid().Text(2, 2), u"kept");
    EXPECT_EQ(host->Repaints(), 1);
    EXPECT_EQ(host->Refreshes(), 0);
    EXPECT_THAT(Reported(), IsEmpty());
}

TEST_F(Clipboard, PastingRaisesNoEventAndAsksNoMask)
{
    Table(1, 1);
    Grid().SetRedraw(false);
    Grid().SetColMask(0, u"##");
    host->ClearLog();
    Paste(u"letters", 0, 0, 0, 0);
    EXPECT_EQ(Grid().Text(0, 0), u"letters");
    EXPECT_TRUE(host->Log().empty());
}

TEST_F(Clipboard, PastesFixedAndHiddenCells)
{
    Table(2, 2, 1, 1);
    Grid().SetRowHide(0, true);
    Paste(u"1\t2\t3\r\n4\t5\t6\r\n7\t8\t9", -1, -1, 1, 1);
    EXPECT_EQ(Grid().Text(-1, -1), u"1");
    EXPECT_EQ(Grid().Text(0, 0), u"5");
    EXPECT_EQ(Grid().Text(1, 1), u"9");
}

TEST_F(Clipboard, AddsNoRowsOrColumns)
{
    Table(1, 1);
    Paste(u"a\tb\r\nc\td", 0, 0, 0, 0);
    EXPECT_EQ(Grid().Rows(), 1);
    EXPECT_EQ(Grid().Cols(), 1);
    EXPECT_EQ(Grid().Text(0, 0), u"a");
}

TEST_F(Clipboard, AnEmptyClipboardEndsAPasteQuietly)
{
    Table(1, 1);
    host->ClearLog();
    Paste(u"", 0, 0, 99, 99);
    EXPECT_EQ(host->Repaints(), 0);
}

TEST_F(Clipboard, ARectangleBeyondTheTableIsAnErrorWhereTheTextReachesIt)
{
    Table(2, 2);
    Paste(u"a\tb", 0, 0, 99, 99);
    EXPECT_EQ(Grid().Text(0, 1), u"b");
    EXPECT_EQ(ErrorOf([&] { Paste(u"1\r\n2\r\n3\r\n4", 0, 0, 99, 99); }), 9);
    EXPECT_EQ(Grid().Text(1, 0), u"2");
    EXPECT_EQ(Grid().Text(2, 0), u"3") << "the filler row is there";
}

TEST_F(Clipboard, AClosedGateIsLeftClosed)
{
    Table(1, 1);
    Grid().SetRedraw(false);
    host->ClearLog();
    Paste(u"a", 0, 0, 0, 0);
    EXPECT_EQ(host->Repaints(), 0);
    Grid().SetRedraw(true);
    EXPECT_EQ(Grid().Text(0, 0), u"a");
}

TEST_F(Clipboard, WorksOnTheLongestTable)
{
    Grid().SetFixedRows(0);
    Grid().SetRedraw(false);
    Table(32766, 1);
    Grid().SetText(0, 0, u"first");
    Grid().SetText(32765, 0, u"last");
    const std::u16string text = Copied(0, 0, 32765, 0);
    EXPECT_EQ(text.size(), 9u + 2 * 32765);
    Grid().SetText(0, 0, u"");
    Grid().PasteFromClipboard(32765, 0, 0, 0);
    EXPECT_EQ(Grid().Text(0, 0), u"first");
    EXPECT_EQ(Grid().Text(32765, 0), u"last");
}

TEST_F(Clipboard, WorksWithoutRows)
{
    Table(0, 2, 1, 0);
    Grid().SetText(-1, 0, u"title");
    EXPECT_EQ(Copied(-1, 0, -1, 1), u"title\t");
    Paste(u"a\tb", -1, 0, -1, 1);
    EXPECT_EQ(Grid().Text(-1, 1), u"b");
}

TEST_F(Clipboard, DoesNotTouchAnOpenEditor)
{
    Table(1, 1);
    Grid().SetText(0, 0, u"old");
    Grid().SetCellMode(0, 0, vxTextBox);
    Grid().CurrentPos(0, 0);
    Grid().EnterEdit();
    ASSERT_TRUE(Grid().IsEditMode());
    Paste(u"new", 0, 0, 0, 0);
    EXPECT_EQ(Grid().Text(0, 0), u"new");
    EXPECT_TRUE(Grid().IsEditMode());
}

TEST_F(Clipboard, AHandlerOfTheRepaintMayChangeTheTable)
{
    Table(3, 2);
    Grid().SetRowStyle(0, vxCustomDraw);
    bool done = false;
    handlers.OnDrawCell = [&](i16, i16, Hdc&, bool&) {
        if (!std::exchange(done, true))
            Grid().SetRows(1);
    };
    Paste(u"a\r\nb\r\nc", 0, 0, 2, 1);
    EXPECT_EQ(Grid().Rows(), 1);
    EXPECT_EQ(Grid().Text(0, 0), u"a");
}

TEST_F(Clipboard, AHandlerOfTheRepaintMayCloseTheControl)
{
    Table(3, 2);
    Grid().SetRowStyle(0, vxCustomDraw);
    handlers.OnDrawCell = [&](i16, i16, Hdc&, bool&) { host->Close(); };
    Paste(u"a\r\nb\r\nc", 0, 0, 2, 1);
    EXPECT_TRUE(Grid().IsTerminated());
    EXPECT_EQ(ErrorOf([&] { Grid().CopyToClipboard(0, 0, 0, 0); }), 5);
    EXPECT_EQ(ErrorOf([&] { Grid().PasteFromClipboard(0, 0, 0, 0); }), 5);
}

// A clipboard that waits for another program lets the own one run meanwhile.
class ClosingContainer : public HeadlessContainer {
public:
    std::u16string ClipboardText() const override
    {
        const_cast<ClosingContainer*>(this)->Close();
        return u"a\tb";
    }
    void SetClipboardText(std::u16string_view text) override
    {
        HeadlessContainer::SetClipboardText(text);
        Close();
    }
};

TEST(ClosingClipboard, EndsAPasteWithoutAnError)
{
    ClosingContainer container;
    EXPECT_EQ(ErrorOf([&] { container.Grid().PasteFromClipboard(0, 0, 0, 0); }), std::nullopt);
    EXPECT_TRUE(container.Grid().IsTerminated());
}

TEST(ClosingClipboard, HasWhatWasCopied)
{
    ClosingContainer container;
    container.Grid().SetText(0, 0, u"text");
    EXPECT_EQ(ErrorOf([&] { container.Grid().CopyToClipboard(0, 0, 0, 0); }), std::nullopt);
    EXPECT_TRUE(container.Grid().IsTerminated());
    EXPECT_EQ(container.HeadlessContainer::ClipboardText(), u"text");
}

} // namespace vornix
