#include "control/grid_fixture.h"
#include "support/comma_container.h"

#include <limits>

namespace vornix {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

std::u16string Numbered(char16_t letter, int number)
{
    const std::string digits = std::to_string(number);
    return letter + std::u16string(digits.begin(), digits.end());
}

// Texts "a0" to "a9", "b0" to "b9" and so on.
VariantArray MakeArray(int columns, int records)
{
    VariantArray array;
    for (int column = 0; column < columns; ++column) {
        std::vector<Variant>& made = array.columns.emplace_back();
        for (int record = 0; record < records; ++record)
            made.emplace_back(Numbered(static_cast<char16_t>(u'a' + column), record));
    }
    return array;
}

VariantArray OneCell(Variant value)
{
    return { { { std::move(value) } } };
}

// A host that acts when a property has changed.
class ReportingContainer : public HeadlessContainer {
public:
    using HeadlessContainer::HeadlessContainer;
    void PropertyChanged(std::string_view name) override
    {
        HeadlessContainer::PropertyChanged(name);
        if (onChange)
            onChange(name);
    }

    std::function<void(std::string_view)> onChange;
};

class LoadFromArray : public GridTest {
protected:
    // What the first cell of the last row says after a load of one value.
    std::u16string TextOf(Variant value)
    {
        Grid().LoadFromArray(OneCell(std::move(value)));
        return Grid().Text(static_cast<i16>(Grid().Rows() - 1), 0);
    }
};

} // namespace

TEST_F(LoadFromArray, AppendsTheRecordsBelowTheRows)
{
    Table(3, 5);
    Grid().SetText(2, 1, u"kept");
    Grid().LoadFromArray(MakeArray(2, 10));
    EXPECT_EQ(Grid().Cols(), 2);
    EXPECT_EQ(Grid().Rows(), 13);
    EXPECT_EQ(Grid().Text(0, 0), u"");
    EXPECT_EQ(Grid().Text(2, 1), u"kept");
    for (i16 row = 3; row < 13; ++row) {
        EXPECT_EQ(Grid().Text(row, 0), Numbered(u'a', row - 3));
        EXPECT_EQ(Grid().Text(row, 1), Numbered(u'b', row - 3));
    }
    EXPECT_EQ(Grid().Text(13, 0), u"") << "the filler row";
    EXPECT_EQ(Grid().Text(5, 2), u"") << "the filler column";
}

TEST_F(LoadFromArray, WritesBehindTheFixedLines)
{
    Table(0, 2, 2, 3);
    Grid().SetText(-1, 0, u"title");
    Grid().LoadFromArray(MakeArray(2, 2));
    EXPECT_EQ(Grid().Rows(), 2);
    EXPECT_EQ(Grid().Text(-1, 0), u"title");
    EXPECT_EQ(Grid().Text(0, -1), u"");
    EXPECT_EQ(Grid().Text(0, 0), u"a0");
    EXPECT_EQ(Grid().Text(1, 1), u"b1");
    EXPECT_EQ(Grid().CellStyle(0, -1), vxCellRaised);
}

TEST_F(LoadFromArray, ASecondLoadAppendsAgain)
{
    Table(0, 1);
    Grid().LoadFromArray(MakeArray(1, 2));
    Grid().LoadFromArray(MakeArray(3, 1));
    EXPECT_EQ(Grid().Rows(), 3);
    EXPECT_EQ(Grid().Cols(), 3);
    EXPECT_EQ(Grid().Text(1, 0), u"a1");
    EXPECT_EQ(Grid().Text(1, 1), u"");
    EXPECT_EQ(Grid().Text(2, 2), u"c0");
}

TEST_F(LoadFromArray, ReportsTheCountsThatChangeAndRepaintsOnce)
{
    Table(3, 5);
    Grid().LoadFromArray(MakeArray(2, 10));
    EXPECT_THAT(Reported(), ElementsAre("Cols", "Rows"));
    EXPECT_EQ(host->Repaints(), 1);
    host->ClearLog();
    Grid().LoadFromArray(MakeArray(2, 1));
    EXPECT_THAT(Reported(), ElementsAre("Rows"));
    EXPECT_EQ(host->Repaints(), 1);
    EXPECT_EQ(host->Refreshes(), 0);
}

TEST_F(LoadFromArray, PaintsWhatItWrote)
{
    Table(0, 1);
    Grid().SetDefaultForeColor(0);
    const auto darkPixels = [&] {
        int count = 0;
        for (int y = 0; y < 21; ++y)
            for (int x = 1; x < 100; ++x)
                count += (host->Pixel(x, y) & 0xFF) < 0x60;
        return count;
    };
    Grid().LoadFromArray(OneCell(Variant()));
    const int without = darkPixels();
    Grid().SetRows(0);
    Grid().LoadFromArray(OneCell(Variant(u"MMMMMM")));
    EXPECT_GT(darkPixels(), without + 50);
}

TEST_F(LoadFromArray, PaintsNothingWhileRedrawIsOff)
{
    Table(1, 1);
    Grid().SetRedraw(false);
    host->ClearLog();
    Grid().LoadFromArray(MakeArray(2, 2));
    EXPECT_EQ(host->Repaints(), 0);
    EXPECT_EQ(Grid().Text(2, 1), u"b1");
    Grid().SetText(0, 0, u"x");
    EXPECT_EQ(host->Refreshes(), 0) << "the gate is where it was";
    Grid().SetRedraw(true);
    EXPECT_EQ(host->Repaints(), 1);
}

TEST_F(LoadFromArray, NothingInTheArrayIsNothingToDo)
{
    Table(3, 5);
    Grid().LoadFromArray({});
    Grid().LoadFromArray({ { {}, {} } });
    Grid().LoadFromArray({ { {} } }, false);
    EXPECT_EQ(Grid().Rows(), 3);
    EXPECT_EQ(Grid().Cols(), 5);
    EXPECT_THAT(Reported(), IsEmpty());
    EXPECT_EQ(host->Repaints(), 0);
}

TEST_F(LoadFromArray, ColumnsOfDifferentLengthAreRefusedBeforeAnythingChanges)
{
    Table(3, 5);
    VariantArray array = MakeArray(2, 4);
    array.columns[1].pop_back();
    EXPECT_EQ(ErrorOf([&] { Grid().LoadFromArray(array); }), 9);
    EXPECT_EQ(Grid().Rows(), 3);
    EXPECT_EQ(Grid().Cols(), 5);
    EXPECT_THAT(Reported(), IsEmpty());
    EXPECT_EQ(host->Repaints(), 0);
}

TEST_F(LoadFromArray, NullElementsLeaveTheirCellsEmpty)
{
    Table(0, 1);
    VariantArray array = MakeArray(2, 2);
    array.columns[0][0] = Variant::Null();
    array.columns[1][1] = Variant();
    Grid().LoadFromArray(array);
    EXPECT_EQ(Grid().Text(0, 0), u"");
    EXPECT_EQ(Grid().Text(0, 1), u"b0");
    EXPECT_EQ(Grid().Text(1, 0), u"a1");
    EXPECT_EQ(Grid().Text(1, 1), u"");
}

TEST_F(LoadFromArray, WithoutTheTestANullIsErrorNinetyFourAndTheRowsBeforeStay)
{
    Table(1, 1);
    VariantArray array = MakeArray(2, 3);
    array.columns[1][1] = Variant::Null();
    EXPECT_EQ(ErrorOf([&] { Grid().LoadFromArray(array, false); }), 94);
    EXPECT_EQ(Grid().Rows(), 4) << "the rows are there already";
    EXPECT_EQ(Grid().Text(1, 1), u"b0");
    EXPECT_EQ(Grid().Text(2, 0), u"a1");
    EXPECT_EQ(Grid().Text(2, 1), u"");
    EXPECT_EQ(Grid().Text(3, 0), u"");
    EXPECT_THAT(Reported(), ElementsAre("Cols", "Rows"));
    EXPECT_EQ(host->Repaints(), 0);
    Grid().SetText(0, 0, u"x");
    EXPECT_EQ(host->Refreshes(), 1) << "the gate is open again";
}

TEST_F(LoadFromArray, WithoutTheTestAnArrayWithoutNullsLoadsTheSame)
{
    Table(0, 1);
    Grid().LoadFromArray(MakeArray(2, 2), false);
    EXPECT_EQ(Grid().Text(1, 1), u"b1");
    EXPECT_EQ(host->Repaints(), 1);
}

TEST_F(LoadFromArray, ValuesBecomeTexts)
{
    Table(0, 1);
    EXPECT_EQ(TextOf(Variant(true)), u"True");
    EXPECT_EQ(TextOf(Variant(false)), u"False");
    EXPECT_EQ(TextOf(Variant(i16 { -5 })), u"-5");
    EXPECT_EQ(TextOf(Variant(std::numeric_limits<i32>::max())), u"2147483647");
    EXPECT_EQ(TextOf(Variant(std::numeric_limits<std::int64_t>::min())), u"-9223372036854775808");
    EXPECT_EQ(TextOf(Variant(0.1f)), u"0.1");
    EXPECT_EQ(TextOf(Variant(1.0 / 3)), u"0.333333333333333");
    EXPECT_EQ(TextOf(Variant::FromCurrency(-12345)), u"-1.2345");
    EXPECT_EQ(TextOf(Variant::FromDecimal({ 1234567890123456789, 0, 4, false })), u"123456789012345.6789");
    EXPECT_EQ(TextOf(Variant::FromDate(43832)), u"1/2/2020");
    EXPECT_EQ(TextOf(Variant::FromDate(43832.75)), u"1/2/2020 6:00:00 PM");
    EXPECT_EQ(TextOf(Variant()), u"");
    EXPECT_EQ(TextOf(Variant(u"a\tb\r\nc")), u"a\tb\r\nc");
    EXPECT_EQ(TextOf(Variant(u"\u05D0\u4E2D a text that is longer than a short one")),
        u"\u05D0\u4E2D a text that is longer than a short one");
}

TEST_F(LoadFromArray, TextsAreThoseOfTheContainersLocale)
{
    CommaContainer container;
    container.Grid().LoadFromArray({ { { Variant(-2.5) }, { Variant::FromDecimal({ 15, 0, 1, false }) } } });
    EXPECT_EQ(container.Grid().Text(1, 0), u"\u22122,5");
    EXPECT_EQ(container.Grid().Text(1, 1), u"1,5");
}

TEST_F(LoadFromArray, WhatHasNoTextIsErrorThirteen)
{
    Table(0, 1);
    for (const Variant& value : { Variant::Missing(), Variant(MakeFont(u"a", 9)), Variant(PicturePtr()),
             Variant::FromObject(std::make_shared<int>(1)), Variant::FromArray(std::make_shared<VariantArray>()) })
        EXPECT_EQ(ErrorOf([&] { Grid().LoadFromArray(OneCell(value)); }), 13);
    EXPECT_EQ(ErrorOf([&] { Grid().LoadFromArray(OneCell(Variant::FromDate(1e9))); }), 6);
}

TEST_F(LoadFromArray, CountsBeyondSixteenBitsAreErrorSix)
{
    Table(1, 1);
    EXPECT_EQ(ErrorOf([&] { Grid().LoadFromArray({ std::vector(32768, std::vector<Variant>(1)) }); }), 6);
    EXPECT_EQ(Grid().Cols(), 1);
    EXPECT_EQ(ErrorOf([&] { Grid().LoadFromArray({ std::vector(2, std::vector<Variant>(32767)) }); }), 6);
    EXPECT_EQ(Grid().Cols(), 2) << "nothing is taken back";
    EXPECT_EQ(Grid().Rows(), 1);
    EXPECT_EQ(ErrorOf([&] { Grid().LoadFromArray({ std::vector(1, std::vector<Variant>(100000)) }); }), 6);
    Grid().SetFixedRows(1);
    EXPECT_EQ(ErrorOf([&] { Grid().LoadFromArray({ std::vector(1, std::vector<Variant>(32766)) }); }), 6);
    Grid().SetText(0, 0, u"x");
    host->ClearLog();
    Grid().LoadFromArray(MakeArray(1, 1));
    EXPECT_EQ(host->Repaints(), 1) << "the gate is open again";
}

TEST_F(LoadFromArray, FillsAsManyRowsAsThereCanBe)
{
    Table(0, 1);
    Grid().LoadFromArray(MakeArray(2, 32767));
    EXPECT_EQ(Grid().Rows(), 32767);
    EXPECT_EQ(Grid().Text(0, 0), u"a0");
    EXPECT_EQ(Grid().Text(32766, 1), u"b32766");
    EXPECT_EQ(ErrorOf([&] { Grid().LoadFromArray(MakeArray(2, 1)); }), 6);
    EXPECT_EQ(Grid().Text(32766, 1), u"b32766");
}

TEST_F(LoadFromArray, HiddenLinesAreFilledLikeOthers)
{
    Table(2, 2);
    Grid().SetRowHide(1, true);
    Grid().SetColHide(1, true);
    Grid().LoadFromArray(MakeArray(2, 2));
    EXPECT_TRUE(Grid().RowHide(1));
    EXPECT_TRUE(Grid().ColHide(1));
    EXPECT_EQ(Grid().Text(1, 0), u"");
    EXPECT_EQ(Grid().Text(2, 1), u"b0");
    EXPECT_EQ(Grid().Text(3, 0), u"a1");
}

TEST_F(LoadFromArray, MergedCellsStayAndAreNotExtended)
{
    Table(2, 3);
    Grid().SetRowSpan(0, 0, 2);
    Grid().SetColSpan(0, 1, 2);
    Grid().LoadFromArray(MakeArray(3, 2));
    EXPECT_EQ(Grid().RowSpan(0, 0), 2);
    EXPECT_EQ(Grid().ColSpan(0, 1), 2);
    EXPECT_EQ(Grid().Text(2, 0), u"a0");
    EXPECT_EQ(Grid().RowSpan(2, 0), 0);
    Grid().LoadFromArray(MakeArray(2, 1));
    EXPECT_EQ(Grid().ColSpan(0, 1), 0) << "a span across the cut goes";
    EXPECT_EQ(Grid().Text(4, 1), u"b0");
}

TEST_F(LoadFromArray, NewCellsHaveTheLookOfTheirColumn)
{
    Table(1, 2);
    Grid().SetColForeColor(1, 0x0000FF);
    Grid().LoadFromArray(MakeArray(2, 1));
    EXPECT_EQ(Grid().CellForeColor(1, 1), 0x0000FFu);
    EXPECT_NE(Grid().CellForeColor(1, 0), 0x0000FFu);
}

TEST_F(LoadFromArray, EndsAVirtualPageAsRowsDoes)
{
    MemoryBag bag;
    bag.WriteProperty("VirtualPageSize", i32 { 5 });
    HeadlessOptions options;
    options.bag = &bag;
    Make(options);
    ASSERT_EQ(Grid().VirtualPageSize(), 5);
    Grid().LoadFromArray(MakeArray(1, 1));
    EXPECT_EQ(Grid().VirtualPageSize(), 0);
}

TEST_F(LoadFromArray, LoadsAtDesignTimeToo)
{
    MakeDesign();
    Grid().LoadFromArray(MakeArray(2, 3));
    EXPECT_EQ(Grid().Cols(), 2);
    EXPECT_EQ(Grid().Text(static_cast<i16>(Grid().Rows() - 1), 1), u"b2");
}

TEST_F(LoadFromArray, RaisesNoEventOfItsOwn)
{
    Table(1, 1);
    Grid().SetRedraw(false);
    host->ClearLog();
    Grid().LoadFromArray(MakeArray(2, 2));
    EXPECT_TRUE(host->Log().empty());
}

TEST_F(LoadFromArray, ClosesAnOpenEditor)
{
    Table(2, 2);
    Grid().SetCellMode(1, 0, vxTextBox);
    Grid().CurrentPos(1, 0);
    Grid().EnterEdit();
    Grid().SetSelText(u"typed");
    std::vector<CellPlace> closed;
    handlers.OnAfterEdit = [&](i16 Row, i16 Col) {
        closed.push_back({ Row, Col });
        Grid().EnterEdit();
    };
    Grid().LoadFromArray(MakeArray(2, 1));
    EXPECT_THAT(closed, ElementsAre(CellPlace { 1, 0 }));
    EXPECT_EQ(Grid().Text(1, 0), u"typed");
    EXPECT_EQ(Grid().Text(2, 0), u"a0");
    EXPECT_TRUE(Grid().IsEditMode()) << "the handler has opened it anew, on a row that stays";
    Grid().SetSelText(u"more ");
    EXPECT_EQ(Grid().Text(1, 0), u"typedmore ");
}

TEST_F(LoadFromArray, AHandlerOfTheEditorThatClosesMayEmptyOrCloseTheControl)
{
    for (const bool closes : { false, true }) {
        Table(2, 2);
        Grid().SetCellMode(1, 0, vxTextBox);
        Grid().CurrentPos(1, 0);
        Grid().EnterEdit();
        handlers.OnAfterEdit = [&](i16, i16) { closes ? host->Close() : Grid().SetRows(0); };
        // The rows that were there are counted no more.
        EXPECT_EQ(ErrorOf([&] { Grid().LoadFromArray(MakeArray(3, 2)); }), std::nullopt) << closes;
        EXPECT_EQ(Grid().IsTerminated(), closes);
        handlers.OnAfterEdit = {};
    }
}

TEST_F(LoadFromArray, AClosedControlIsErrorFive)
{
    host->Close();
    EXPECT_EQ(ErrorOf([&] { Grid().LoadFromArray(MakeArray(1, 1)); }), 5);
}

TEST_F(LoadFromArray, AHostThatClosesTheControlMeanwhileEndsIt)
{
    for (const std::string_view property : { "Cols", "Rows" }) {
        ReportingContainer container;
        container.onChange = [&](std::string_view name) {
            if (name == property)
                container.Close();
        };
        EXPECT_EQ(ErrorOf([&] { container.Grid().LoadFromArray(MakeArray(2, 3)); }), std::nullopt);
        EXPECT_TRUE(container.Grid().IsTerminated());
    }
}

TEST_F(LoadFromArray, AHostThatTakesTheRowsAwayMeanwhileGetsErrorNine)
{
    ReportingContainer container;
    container.onChange = [&](std::string_view name) {
        if (name != "Rows")
            return;
        container.onChange = nullptr;
        container.Grid().SetRows(1);
    };
    EXPECT_EQ(ErrorOf([&] { container.Grid().LoadFromArray(MakeArray(2, 3)); }), 9);
    EXPECT_EQ(container.Grid().Rows(), 1);
}

TEST_F(LoadFromArray, AHostMayLoadAgainMeanwhile)
{
    ReportingContainer container;
    container.onChange = [&](std::string_view name) {
        if (name != "Rows")
            return;
        container.onChange = nullptr;
        container.Grid().LoadFromArray(MakeArray(2, 1));
    };
    container.Grid().LoadFromArray(MakeArray(2, 3));
    EXPECT_EQ(container.Grid().Rows(), 5);
    EXPECT_EQ(container.Grid().Text(3, 1), u"b2");
    EXPECT_EQ(container.Grid().Text(4, 1), u"b0");
}

} // namespace vornix
