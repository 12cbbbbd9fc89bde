#include "date_entry.h"

#include "editable_cells.h"
#include "present.h"

#include "vornix/event_handlers.h"
#include "vornix/headless_container.h"

#include <gtest/gtest.h>

using namespace vornix;
using namespace vornix::viewer;

namespace {

class FakeSaver final : public Saver {
public:
    std::optional<std::string> WhyReadOnly() const override { return {}; }
    bool CanChange(int, int) const override { return true; }
    SaveOutcome Save(const Changes&) override { return {}; }
};

ChangeableSource Source()
{
    auto table = std::make_unique<Table>();
    table->Columns() = { { u"day", ColumnKind::Date } };
    for (const std::u16string_view text : { u"2024-12-31", u"", u"2024-02-29" })
        table->AppendRow(std::vector<Field> { { text } });
    return { std::move(table), std::make_unique<FakeSaver>() };
}

// A person who types dates into a grid.
class DateEntryTest : public testing::Test {
protected:
    DateEntryTest()
    {
        PresentTable(grid, container.WindowDevice(), container.Colors(), document.Saved());
        MakeEditable(grid, document, inputs);
        handlers.OnBeforeEdit = [this](i16 Row, i16 Col) { date.Begin(Row, Col, Row); };
        handlers.OnTextChange = [this](i16, i16) { date.Take(); };
        handlers.OnAfterEdit = [this](i16, i16) { date.End(); };
        container.EnterFocus();
    }

    void Open(i16 Row)
    {
        grid.CurrentPos(Row, 0);
        grid.EnterEdit();
        ASSERT_TRUE(grid.IsEditMode());
    }

    EventHandlers handlers;
    HeadlessOptions options { .events = &handlers };
    HeadlessContainer container { options };
    Vornix& grid = container.Grid();
    Document document { Source() };
    const ColumnInputs inputs { document };
    DateEntry date { grid, document };
};

} // namespace

TEST_F(DateEntryTest, TakesAWholeDate)
{
    Open(1);
    container.Type(u"2025-01-1");
    EXPECT_EQ(date.Unfinished(), u"2025-01-1_") << "the hyphens are there already";
    EXPECT_FALSE(document.IsChanged());
    container.Type(u"5");
    EXPECT_EQ(date.Unfinished(), u"");
    EXPECT_EQ(document.Text(1, 0), u"2025-01-15");
    container.Press("Escape");
    EXPECT_EQ(grid.Text(1, 0), u"2025-01-15");
}

TEST_F(DateEntryTest, BeginsAtTheFirstDigit)
{
    Open(0);
    container.Type(u"2");
    container.Type(u"0");
    container.Type(u"31");
    EXPECT_EQ(document.Text(0, 0), u"2031-12-31");
}

TEST_F(DateEntryTest, KeepsTheOldDateInPlaceOfAnUnfinishedOne)
{
    Open(0);
    container.Press("Right");
    container.Press("Delete");
    EXPECT_EQ(date.Unfinished(), u"2_24-12-31");
    EXPECT_FALSE(document.IsChanged());
    container.Press("Escape");
    EXPECT_EQ(grid.Text(0, 0), u"2024-12-31");
    EXPECT_EQ(date.Unfinished(), u"");
    EXPECT_FALSE(document.IsChanged());
}

TEST_F(DateEntryTest, KeepsTheOldDateInPlaceOfADayThatThereIsNot)
{
    Open(2);
    container.Type(u"2023");
    EXPECT_EQ(date.Unfinished(), u"2023-02-29");
    container.Press("Escape");
    EXPECT_EQ(grid.Text(2, 0), u"2024-02-29");
}

TEST_F(DateEntryTest, GoesByWhatIsSeenWhenADigitIsTypedOverAll)
{
    Open(0);
    grid.SetSelStart(0);
    grid.SetSelLength(10);
    container.Type(u"2");
    EXPECT_EQ(date.Unfinished(), u"2___-__-__");
    EXPECT_FALSE(document.IsChanged());
    EXPECT_EQ(grid.SelStart(), 1) << "the caret stays where typing goes on";
    container.Type(u"0251224");
    EXPECT_EQ(document.Text(0, 0), u"2025-12-24");
}

TEST_F(DateEntryTest, TakesAnEmptiedFormForNoDate)
{
    Open(0);
    grid.SetSelStart(0);
    grid.SetSelLength(10);
    container.Press("Delete");
    EXPECT_EQ(document.Text(0, 0), u"");
    EXPECT_TRUE(document.IsChanged());
    container.Press("Escape");
    EXPECT_EQ(grid.Text(0, 0), u"");
    Open(0);
    container.Type(u"1");
    container.Press("Escape");
    EXPECT_EQ(grid.Text(0, 0), u"") << "nothing was before";
}

TEST_F(DateEntryTest, ComesBackToWhatWasSavedMeanwhile)
{
    Open(0);
    container.Type(u"2025");
    EXPECT_TRUE(document.IsChanged());
    document.Save();
    date.Saved();
    container.Press("Backspace"); // to the hyphen, which stays
    container.Press("Backspace");
    EXPECT_EQ(date.Unfinished(), u"202_-12-31");
    container.Press("Escape");
    EXPECT_EQ(grid.Text(0, 0), u"2025-12-31");
    EXPECT_FALSE(document.IsChanged());
}

TEST_F(DateEntryTest, EndsWithoutTheEventToo)
{
    Open(0);
    container.Press("Delete");
    grid.CurrentPos(2, 0);
    grid.EnterEdit();
    EXPECT_EQ(grid.Text(0, 0), u"2024-12-31");
    EXPECT_TRUE(date.IsOf(2, 0));
    EXPECT_FALSE(date.IsOf(0, 0));
}

TEST_F(DateEntryTest, HasNoFormForATextThatFitsNone)
{
    document.Change(0, 0, u"next week");
    grid.SetText(0, 0, u"next week");
    Open(0);
    EXPECT_EQ(grid.ColMask(0), u"");
    EXPECT_FALSE(date.IsOf(0, 0));
    EXPECT_EQ(grid.Text(0, 0), u"next week");
    Open(2);
    EXPECT_EQ(grid.ColMask(0), u"0000-00-00");
}
