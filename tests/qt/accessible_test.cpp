// What assistive tools learn of the Qt widget, through the interfaces that they use.
#include "live_grid.h"

#include "qt_accessible_grid.h"
#include "qt_accessible_news.h"

#include <QAccessible>
#include <QTest>

namespace vornix {

namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;

// "Focus R3 C4" for the cell at row 3 and column 4, "SelectionWithin table" for the whole.
Lines heard;

std::string NameOf(QAccessibleInterface* about)
{
    if (!about)
        return "nothing";
    const QAccessibleTableCellInterface* const cell = about->tableCellInterface();
    if (!cell)
        return about->tableInterface() ? "table" : "other";
    return "R" + std::to_string(cell->rowIndex()) + " C" + std::to_string(cell->columnIndex());
}

// What Qt does with an event when a tool listens.
void Hear(QAccessibleEvent& event)
{
    heard.push_back(std::string(qAccessibleEventString(event.type())) + ' ' + NameOf(event.accessibleInterface()));
    if (event.type() == QAccessible::TableModelChanged)
        event.accessibleInterface()->tableInterface()->modelChange(
            static_cast<QAccessibleTableModelChangeEvent*>(&event));
}

class QtAccessibleTest : public LiveGridTest {
protected:
    QtAccessibleTest()
    {
        QAccessible::setActive(true);
        widget->findChild<QtAccessibleNews*>()->Tell = Hear;
        widget->update();
        Settle();
        heard.clear();
    }
    ~QtAccessibleTest() override { QAccessible::setActive(false); }

    QAccessibleInterface& Whole() { return *QAccessible::queryAccessibleInterface(widget); }
    QAccessibleTableInterface& Table() { return *Whole().tableInterface(); }
    QAccessibleInterface* CellAt(int row, int col) { return Table().cellAt(row, col); }
    QAccessible::State StateAt(int row, int col) { return CellAt(row, col)->state(); }
    int CellObjects() { return dynamic_cast<QtAccessibleGrid&>(Whole()).CellObjects(); }
    // In the client area.
    QRect Area(QAccessibleInterface& cell)
    {
        const QPoint corner = widget->mapToGlobal(widget->contentsRect().topLeft());
        return cell.rect().isEmpty() ? QRect() : cell.rect().translated(-corner);
    }
    Lines Heard()
    {
        Settle();
        return std::exchange(heard, {});
    }
    // A title above the header.
    void GiveTitle(std::u16string_view title)
    {
        Grid().SetFixedRows(2);
        Grid().SetRowHeight(-2, 30);
        Grid().SetCaptionEnabled(true);
        Grid().SetCaption(title);
    }
};

QString Name(QAccessibleInterface* about)
{
    return about->text(QAccessible::Name);
}

std::vector<std::string> Names(const QList<QAccessibleInterface*>& cells)
{
    std::vector<std::string> names;
    for (QAccessibleInterface* const cell : cells)
        names.push_back(Name(cell).toStdString());
    return names;
}

std::vector<std::string> Indices(const QList<QAccessibleInterface*>& cells)
{
    std::vector<std::string> names;
    for (QAccessibleInterface* const cell : cells)
        names.push_back(NameOf(cell));
    return names;
}

TEST_F(QtAccessibleTest, IsATableOfThePublicRowsAndColumns)
{
    EXPECT_EQ(Whole().role(), QAccessible::Table);
    EXPECT_EQ(Whole().object(), widget.data());
    EXPECT_EQ(Table().rowCount(), 100);
    EXPECT_EQ(Table().columnCount(), 20);
    EXPECT_EQ(Whole().childCount(), 101 * 21);
    EXPECT_EQ(Table().caption(), nullptr);
    EXPECT_EQ(Table().cellAt(-1, 0), nullptr) << "headers are not among the table's own cells";
    EXPECT_EQ(Table().cellAt(100, 0), nullptr) << "neither is what fills the room behind the last row";
    EXPECT_EQ(Table().cellAt(0, 20), nullptr);
    EXPECT_EQ(Whole().child(101 * 21), nullptr);
    EXPECT_EQ(Whole().child(-1), nullptr);
}

TEST_F(QtAccessibleTest, GivesEachCellItsPlaceInTable)
{
    QAccessibleInterface* const cell = CellAt(7, 3);
    ASSERT_NE(cell, nullptr);
    EXPECT_EQ(cell->role(), QAccessible::Cell);
    EXPECT_EQ(cell->parent(), &Whole());
    EXPECT_EQ(cell->tableCellInterface()->table(), &Whole());
    EXPECT_EQ(cell->tableCellInterface()->rowIndex(), 7);
    EXPECT_EQ(cell->tableCellInterface()->columnIndex(), 3);
    EXPECT_EQ(cell->tableCellInterface()->rowExtent(), 1);
    EXPECT_EQ(cell->tableCellInterface()->columnExtent(), 1);
    EXPECT_EQ(CellAt(7, 3), cell) << "it stays the same object";
    EXPECT_EQ(cell->window(), window.windowHandle());
}

TEST_F(QtAccessibleTest, FindsEveryChildByItsNumberAgain)
{
    GiveTitle(u"Orders");
    ASSERT_EQ(Whole().childCount(), 1 + 101 * 21);
    for (int index = 0; index < Whole().childCount(); index += 37)
        EXPECT_EQ(Whole().indexOfChild(Whole().child(index)), index);
    EXPECT_EQ(Whole().indexOfChild(&Whole()), -1);
}

TEST_F(QtAccessibleTest, ReadsWhatTheCellShows)
{
    Grid().SetText(2, 1, u"1234.5");
    EXPECT_EQ(Name(CellAt(2, 1)), QStringLiteral("1234.5"));
    Grid().SetColFormat(1, u"0.00");
    const QString shown = Name(CellAt(2, 1));
    EXPECT_TRUE(shown == QStringLiteral("1234.50") || shown == QStringLiteral("1234,50")) << shown.toStdString();
    EXPECT_EQ(Name(CellAt(3, 1)), QString());
}

TEST_F(QtAccessibleTest, HasFixedLinesAsHeaders)
{
    Grid().SetText(-1, 4, u"Price");
    Grid().SetText(6, -1, u"Seven");
    Grid().SetText(-1, -1, u"#");
    const QAccessibleTableCellInterface* const cell = CellAt(6, 4)->tableCellInterface();
    EXPECT_THAT(Names(cell->columnHeaderCells()), ElementsAre("Price"));
    EXPECT_THAT(Names(cell->rowHeaderCells()), ElementsAre("Seven"));
    EXPECT_EQ(cell->columnHeaderCells().first()->role(), QAccessible::ColumnHeader);
    EXPECT_EQ(cell->rowHeaderCells().first()->role(), QAccessible::RowHeader);
    EXPECT_EQ(cell->columnHeaderCells().first()->tableCellInterface(), nullptr) << "it has no row of the table";
    EXPECT_EQ(Table().columnDescription(4), QStringLiteral("Price"));
    EXPECT_EQ(Table().rowDescription(6), QStringLiteral("Seven"));
    EXPECT_EQ(Table().columnDescription(20), QString());
    EXPECT_EQ(Name(Whole().child(0)), QStringLiteral("#"));
    EXPECT_EQ(Whole().child(0)->role(), QAccessible::ColumnHeader);
}

TEST_F(QtAccessibleTest, ReadsSeveralHeadersTowardTheCell)
{
    Grid().SetFixedRows(2);
    Grid().SetText(-2, 3, u"2025");
    Grid().SetText(-1, 3, u"May");
    Grid().SetText(-1, 4, u"June");
    Grid().SetColSpan(-2, 3, 2);
    EXPECT_THAT(Names(CellAt(0, 4)->tableCellInterface()->columnHeaderCells()), ElementsAre("2025", "June"));
    Grid().SetFixedRows(0);
    Grid().SetColName(3, u"month");
    EXPECT_THAT(CellAt(0, 3)->tableCellInterface()->columnHeaderCells(), IsEmpty());
    EXPECT_EQ(Table().columnDescription(3), QStringLiteral("month"));
}

TEST_F(QtAccessibleTest, HasTheTitleAsNameAndCaption)
{
    EXPECT_EQ(Name(&Whole()), QString());
    GiveTitle(u"Orders");
    EXPECT_EQ(Name(&Whole()), QStringLiteral("Orders"));
    ASSERT_NE(Table().caption(), nullptr);
    EXPECT_EQ(Name(Table().caption()), QStringLiteral("Orders"));
    EXPECT_EQ(Table().caption(), Whole().child(0));
    EXPECT_EQ(Table().caption()->role(), QAccessible::StaticText);
    EXPECT_EQ(Area(*Table().caption()).height(), 30);
    EXPECT_EQ(CellAt(0, 0)->tableCellInterface()->columnHeaderCells().size(), 1) << "the title is no header";

    widget->setAccessibleName(QStringLiteral("Orders of May"));
    EXPECT_EQ(Name(&Whole()), QStringLiteral("Orders of May"));
    EXPECT_EQ(Whole().text(QAccessible::Description), QStringLiteral("Orders"));
}

TEST_F(QtAccessibleTest, TellsRoleAndStateByMode)
{
    Grid().SetText(-1, 2, u"Paid");
    Grid().SetCellMode(1, 2, vxCheckBox);
    Grid().SetCellChecked(1, 2, true);
    Grid().SetCellMode(1, 3, vxCommandButton);
    Grid().SetCellMode(1, 4, vxPressButton);
    Grid().SetCellMode(1, 5, vxTextBox);
    EXPECT_EQ(CellAt(1, 2)->role(), QAccessible::CheckBox);
    EXPECT_TRUE(StateAt(1, 2).checkable && StateAt(1, 2).checked);
    EXPECT_EQ(Name(CellAt(1, 2)), QStringLiteral("Paid")) << "a box shows no text of its own";
    Grid().SetCellChecked(1, 2, false);
    EXPECT_TRUE(StateAt(1, 2).checkable && !StateAt(1, 2).checked);
    EXPECT_EQ(CellAt(1, 3)->role(), QAccessible::Button);
    EXPECT_FALSE(StateAt(1, 3).checkable);
    EXPECT_EQ(CellAt(1, 4)->role(), QAccessible::Button);
    EXPECT_FALSE(StateAt(1, 4).pressed);
    Grid().SetButtonPressed(1, 4, true);
    EXPECT_TRUE(StateAt(1, 4).pressed && StateAt(1, 4).checked);
    EXPECT_TRUE(StateAt(1, 6).readOnly);
    EXPECT_FALSE(StateAt(1, 5).readOnly);
}

TEST_F(QtAccessibleTest, TellsWhatIsDisabled)
{
    EXPECT_FALSE(StateAt(0, 0).disabled);
    Grid().SetCellEnabled(0, 0, false);
    EXPECT_TRUE(StateAt(0, 0).disabled);
    EXPECT_FALSE(StateAt(0, 1).disabled);
    Grid().SetEnabled(false);
    EXPECT_TRUE(StateAt(0, 1).disabled);
    EXPECT_THAT(CellAt(0, 1)->actionInterface()->actionNames(), IsEmpty());
}

TEST_F(QtAccessibleTest, HasPlacesOnTheScreen)
{
    EXPECT_EQ(Area(*CellAt(0, 0)), QRect(60, 20, 60, 20));
    EXPECT_EQ(Area(*CellAt(2, 1)), QRect(120, 60, 60, 20));
    EXPECT_EQ(Area(*Whole().child(0)), QRect(0, 0, 60, 20)) << "the corner";
    EXPECT_EQ(Whole().rect(), QRect(widget->mapToGlobal(QPoint()), widget->size()));
    Grid().SetBorderStyle(vxInset);
    Settle();
    EXPECT_EQ(Area(*CellAt(2, 1)), QRect(120, 60, 60, 20)) << "in the client area, wherever that begins";
}

TEST_F(QtAccessibleTest, FindsCellsByTheirPlaceOnTheScreen)
{
    for (const auto& [row, col] : std::vector<std::pair<int, int>> { { 0, 0 }, { 5, 2 }, { 10, 4 } }) {
        QAccessibleInterface* const cell = CellAt(row, col);
        const QRect place = cell->rect();
        EXPECT_EQ(Whole().childAt(place.center().x(), place.center().y()), cell);
        EXPECT_EQ(Whole().childAt(place.left() + 1, place.top() + 1), cell);
    }
    const QPoint outside = widget->mapToGlobal(QPoint(-5, 10));
    EXPECT_EQ(Whole().childAt(outside.x(), outside.y()), nullptr);
    const QPoint bar = Bar(Qt::Vertical)->mapToGlobal(Bar(Qt::Vertical)->rect().center());
    EXPECT_EQ(Whole().childAt(bar.x(), bar.y()), nullptr) << "the bar covers what lies below it";
}

TEST_F(QtAccessibleTest, TellsWhatIsScrolledOut)
{
    EXPECT_FALSE(StateAt(0, 0).offscreen);
    EXPECT_TRUE(StateAt(99, 0).offscreen);
    EXPECT_TRUE(CellAt(99, 0)->rect().isEmpty());
    Grid().SetFirstRow(50);
    EXPECT_TRUE(StateAt(0, 0).offscreen);
    EXPECT_TRUE(CellAt(0, 0)->rect().isEmpty());
    EXPECT_FALSE(StateAt(50, 0).offscreen);
    EXPECT_EQ(Area(*CellAt(50, 0)), QRect(60, 20, 60, 20));
    EXPECT_FALSE(StateAt(50, 0).invisible);
}

TEST_F(QtAccessibleTest, CountsHiddenLinesAndMarksTheirCells)
{
    Grid().HideRow(2);
    Grid().HideCol(3);
    EXPECT_EQ(Table().rowCount(), 100);
    EXPECT_TRUE(StateAt(2, 0).invisible);
    EXPECT_TRUE(StateAt(0, 3).invisible);
    EXPECT_FALSE(StateAt(0, 3).offscreen);
    EXPECT_TRUE(CellAt(2, 0)->rect().isEmpty());
    EXPECT_FALSE(StateAt(3, 4).invisible);
    EXPECT_EQ(Area(*CellAt(3, 4)), QRect(240, 60, 60, 20));
    Grid().ShowRow(2);
    EXPECT_FALSE(StateAt(2, 0).invisible);
    window.hide();
    EXPECT_TRUE(StateAt(2, 0).invisible);
}

TEST_F(QtAccessibleTest, GivesTheCoveringCellOfASpan)
{
    Grid().SetColSpan(4, 1, 3);
    Grid().SetRowSpan(4, 1, 2);
    QAccessibleInterface* const parent = CellAt(4, 1);
    EXPECT_EQ(parent->tableCellInterface()->columnExtent(), 3);
    EXPECT_EQ(parent->tableCellInterface()->rowExtent(), 2);
    EXPECT_EQ(CellAt(5, 3), parent);
    EXPECT_EQ(Area(*parent), QRect(120, 100, 180, 40));
    QAccessibleInterface* const covered = Whole().child((5 + 1) * 21 + 3 + 1);
    EXPECT_NE(covered, parent);
    EXPECT_TRUE(covered->state().invisible);
    const QPoint place = widget->mapToGlobal(widget->contentsRect().topLeft() + QPoint(250, 125));
    EXPECT_EQ(Whole().childAt(place.x(), place.y()), parent);
    Grid().SetFirstCol(2);
    EXPECT_EQ(Area(*parent), QRect(60, 100, 120, 40)) << "what is left of it on the screen";
}

TEST_F(QtAccessibleTest, HasTheCurrentCellAsFocus)
{
    EXPECT_EQ(Whole().focusChild(), nullptr);
    Click(MiddleOf(3, 2));
    ASSERT_NE(Whole().focusChild(), nullptr);
    EXPECT_EQ(NameOf(Whole().focusChild()), "R3 C2");
    EXPECT_TRUE(StateAt(3, 2).focused && StateAt(3, 2).focusable && StateAt(3, 2).active);
    EXPECT_FALSE(StateAt(3, 3).focused);
    EXPECT_TRUE(StateAt(3, 3).focusable);
}

TEST_F(QtAccessibleTest, HasAPressedHeaderAsFocus)
{
    Grid().SetText(-1, 2, u"Price");
    Click(MiddleOf(-1, 2));
    QAccessibleInterface* const header = Whole().focusChild();
    ASSERT_NE(header, nullptr);
    EXPECT_EQ(Name(header), QStringLiteral("Price"));
    EXPECT_TRUE(header->state().focused && header->state().focusable);
    Type(Qt::Key_Down);
    EXPECT_FALSE(header->state().focused || header->state().focusable);
}

TEST_F(QtAccessibleTest, TellsWhereTheCurrentCellGoes)
{
    Click(MiddleOf(3, 2));
    EXPECT_THAT(Heard(), Contains("Focus R3 C2"));
    Type(Qt::Key_Down);
    EXPECT_THAT(Heard(), ElementsAre("Focus R4 C2"));
    Type(Qt::Key_Right);
    EXPECT_THAT(Heard(), ElementsAre("Focus R4 C3"));
    Grid().CurrentPos(90, 5);
    EXPECT_THAT(Heard(), ElementsAre("Focus R90 C5"));
    Type(Qt::Key_PageUp);
    EXPECT_THAT(Heard(), IsEmpty()) << "the view has moved, the cell has not";
}

TEST_F(QtAccessibleTest, TellsOfTheCellWhenTheGridGetsTheKeyboard)
{
    QWidget other(&window);
    other.setFocusPolicy(Qt::StrongFocus);
    other.show();
    Click(MiddleOf(3, 2));
    other.setFocus();
    Settle();
    EXPECT_FALSE(StateAt(3, 2).focused);
    heard.clear();
    Grid().CurrentPos(5, 5);
    EXPECT_THAT(Heard(), Not(Contains("Focus R5 C5")));
    widget->setFocus();
    EXPECT_THAT(Heard(), Contains("Focus R5 C5"));
}

TEST_F(QtAccessibleTest, IsSilentWhileNobodyListens)
{
    QAccessible::setActive(false);
    Click(MiddleOf(3, 2));
    Type(Qt::Key_Down);
    Grid().SetRows(10);
    Settle();
    heard.clear();
    QAccessible::setActive(true);
    EXPECT_THAT(Heard(), IsEmpty());
}

TEST_F(QtAccessibleTest, TellsWhatBecomesOfTheCurrentCell)
{
    Grid().SetCellMode(2, 2, vxCheckBox);
    Grid().CurrentPos(2, 2);
    widget->setFocus();
    Heard();
    Type(Qt::Key_Space);
    EXPECT_TRUE(StateAt(2, 2).checked);
    EXPECT_THAT(Heard(), ElementsAre("StateChanged R2 C2"));
    Grid().CurrentPos(3, 3);
    Heard();
    Grid().SetText(3, 3, u"new");
    EXPECT_THAT(Heard(), ElementsAre("NameChanged R3 C3"));
}

TEST_F(QtAccessibleTest, TellsWhatIsSelected)
{
    EXPECT_EQ(Table().selectedCellCount(), 0);
    Grid().SetCellSelection(true);
    Heard();
    Drag(MiddleOf(2, 1), MiddleOf(4, 2));
    EXPECT_THAT(Heard(), Contains("SelectionWithin table"));
    EXPECT_TRUE(StateAt(3, 2).selected && StateAt(3, 2).selectable);
    EXPECT_TRUE(CellAt(3, 2)->tableCellInterface()->isSelected());
    EXPECT_FALSE(StateAt(5, 2).selected);
    EXPECT_EQ(Table().selectedCellCount(), 6);
    EXPECT_THAT(Indices(Table().selectedCells()), ElementsAre("R2 C1", "R2 C2", "R3 C1", "R3 C2", "R4 C1", "R4 C2"));
    EXPECT_EQ(Table().selectedRowCount(), 0);
    Grid().SetSelectedCells(7, 3, 9, 4);
    EXPECT_THAT(Heard(), ElementsAre("SelectionWithin table")) << "as many cells, at another place";
    Grid().DeselectAll();
    EXPECT_THAT(Heard(), ElementsAre("SelectionWithin table"));
    EXPECT_THAT(Table().selectedCells(), IsEmpty());
}

TEST_F(QtAccessibleTest, SelectsLinesWhereTheUserCan)
{
    Grid().SetSelectMode(vxNone);
    EXPECT_FALSE(Table().selectRow(3));
    EXPECT_FALSE(StateAt(3, 0).selectable);
    Grid().SetSelectMode(vxBoth);
    EXPECT_TRUE(StateAt(3, 0).selectable && Whole().state().multiSelectable);
    EXPECT_TRUE(Table().selectRow(3));
    EXPECT_TRUE(Table().selectRow(3)) << "it is as wished";
    EXPECT_TRUE(Table().selectRow(5));
    EXPECT_EQ(Grid().SelectCountRow(), 2);
    EXPECT_THAT(Table().selectedRows(), ElementsAre(3, 5));
    EXPECT_EQ(Table().selectedCellCount(), 40);
    EXPECT_TRUE(StateAt(5, 19).selected);
    EXPECT_TRUE(CellAt(5, 0)->tableCellInterface()->rowHeaderCells().first()->state().selected);
    EXPECT_TRUE(Table().unselectRow(3));
    EXPECT_FALSE(Table().isRowSelected(3));
    EXPECT_TRUE(Table().selectColumn(2)) << "columns take the place of rows";
    EXPECT_EQ(Table().selectedRowCount(), 0);
    EXPECT_THAT(Table().selectedColumns(), ElementsAre(2));
    EXPECT_TRUE(Table().isColumnSelected(2));
    EXPECT_TRUE(Table().unselectColumn(2));
    EXPECT_FALSE(Table().selectRow(100));
    EXPECT_FALSE(Table().selectColumn(-1));
    EXPECT_FALSE(Table().isRowSelected(100));
}

TEST_F(QtAccessibleTest, UnselectsALineThatIsInSeveralRanges)
{
    Grid().SetSelectMode(vxBoth);
    Grid().SetRowSelected(3, true);
    Grid().SetRowsSelected(2, 6, true);
    EXPECT_TRUE(Table().unselectRow(3));
    EXPECT_THAT(Table().selectedRows(), ElementsAre(2, 4, 5, 6));
}

TEST_F(QtAccessibleTest, LeavesTheHostsWalkOverSelectedLinesAlone)
{
    Grid().SetRowsSelected(2, 3, true);
    Grid().SetRowsSelected(7, 8, true);
    i16 first = 0;
    i16 last = 0;
    Grid().StartSelectedItems();
    ASSERT_TRUE(Grid().NextSelectedRows(first, last));
    EXPECT_EQ(Table().selectedRowCount(), 4);
    EXPECT_EQ(Table().selectedCells().size(), 80);
    ASSERT_TRUE(Grid().NextSelectedRows(first, last));
    EXPECT_EQ(first, 7);
}

TEST_F(QtAccessibleTest, ClicksButtonsAndBoxesForThePerson)
{
    Grid().SetCellMode(2, 2, vxCheckBox);
    Grid().SetCellMode(60, 8, vxCommandButton);
    Grid().SetCellMode(2, 3, vxPressButton);
    log.Clear();
    QAccessibleActionInterface* const box = CellAt(2, 2)->actionInterface();
    EXPECT_EQ(box->actionNames().first(), QAccessibleActionInterface::toggleAction());
    box->doAction(QAccessibleActionInterface::toggleAction());
    EXPECT_TRUE(Grid().CellChecked(2, 2));
    EXPECT_THAT(Said(), Contains("CellClick Row=2 Col=2"));
    CellAt(2, 3)->actionInterface()->doAction(QAccessibleActionInterface::toggleAction());
    EXPECT_TRUE(StateAt(2, 3).pressed);

    log.Clear();
    QAccessibleActionInterface* const button = CellAt(60, 8)->actionInterface();
    EXPECT_EQ(button->actionNames().first(), QAccessibleActionInterface::pressAction());
    button->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_THAT(Said(), Contains("CellClick Row=60 Col=8")) << "it comes into view first";
    EXPECT_FALSE(StateAt(60, 8).offscreen);
    log.Clear();
    button->doAction(QAccessibleActionInterface::increaseAction());
    EXPECT_THAT(Said(), IsEmpty()) << "not one of its actions";
}

TEST_F(QtAccessibleTest, PressesHeaders)
{
    Grid().SetSelectMode(vxBoth);
    log.Clear();
    CellAt(0, 2)->tableCellInterface()->columnHeaderCells().first()->actionInterface()->doAction(
        QAccessibleActionInterface::pressAction());
    EXPECT_THAT(Said(), Contains("CellClick Row=-1 Col=2"));
    EXPECT_THAT(Table().selectedColumns(), ElementsAre(2));
}

TEST_F(QtAccessibleTest, MakesACellCurrentForThePerson)
{
    CellAt(40, 9)->actionInterface()->doAction(QAccessibleActionInterface::setFocusAction());
    EXPECT_TRUE(widget->hasFocus());
    EXPECT_TRUE(StateAt(40, 9).focused);
    EXPECT_FALSE(StateAt(40, 9).offscreen);
    EXPECT_THAT(Heard(), Contains("Focus R40 C9"));
}

TEST_F(QtAccessibleTest, TellsWhenTheCountsChange)
{
    const QAccessible::Id gone = QAccessible::uniqueId(CellAt(50, 1));
    QAccessibleInterface* const cell = CellAt(60, 1);
    Grid().SetRows(55);
    EXPECT_FALSE(cell->isValid());
    EXPECT_TRUE(cell->state().invalid);
    EXPECT_EQ(Name(cell), QString());
    EXPECT_TRUE(cell->rect().isEmpty());
    EXPECT_THAT(Heard(), ElementsAre("TableModelChanged table"));
    EXPECT_EQ(QAccessible::accessibleInterface(gone), nullptr);
    EXPECT_EQ(CellObjects(), 0);
    EXPECT_EQ(Table().rowCount(), 55);
    Grid().SetFixedCols(2);
    EXPECT_THAT(Heard(), Contains("TableModelChanged table"));
    Grid().SetRows(55);
    Grid().SetText(1, 1, u"x");
    EXPECT_THAT(Heard(), IsEmpty());
}

TEST_F(QtAccessibleTest, IsEmptyWithoutRows)
{
    Grid().SetRows(0);
    EXPECT_EQ(Table().rowCount(), 0);
    EXPECT_EQ(Table().cellAt(0, 0), nullptr);
    EXPECT_EQ(Whole().focusChild(), nullptr);
    EXPECT_EQ(Whole().childCount(), 21) << "the header is left";
    EXPECT_EQ(Table().selectedCellCount(), 0);
    Grid().SetCols(0);
    Grid().SetFixedCols(0);
    EXPECT_EQ(Whole().childCount(), 0);
    EXPECT_EQ(Whole().child(0), nullptr);
    const QPoint middle = widget->mapToGlobal(widget->rect().center());
    EXPECT_EQ(Whole().childAt(middle.x(), middle.y()), nullptr);
}

TEST_F(QtAccessibleTest, MakesObjectsForTheCellsThatSomebodyAsksFor)
{
    Grid().SetRows(32766);
    Settle();
    EXPECT_EQ(Table().rowCount(), 32766);
    EXPECT_LE(CellObjects(), 1);
    EXPECT_EQ(Whole().childCount(), 32767 * 21);
    EXPECT_EQ(NameOf(Whole().child(32767 * 21 - 1)), "R32765 C19");
    EXPECT_TRUE(CellAt(32765, 19)->rect().isEmpty()) << "its place has no number";
    EXPECT_TRUE(StateAt(32765, 19).offscreen);
    EXPECT_LE(CellObjects(), 2);
}

TEST_F(QtAccessibleTest, ForgetsCellsThatNobodyHasAskedForLately)
{
    Grid().SetRows(32766);
    Settle();
    const QAccessible::Id first = QAccessible::uniqueId(CellAt(0, 0));
    for (int row = 0; row < 9000; ++row)
        ASSERT_TRUE(CellAt(row, 1)->isValid()) << "none goes while it is in use";
    const QAccessible::Id last = QAccessible::uniqueId(CellAt(8999, 1));
    Settle();
    EXPECT_LE(CellObjects(), 4096);
    EXPECT_EQ(QAccessible::accessibleInterface(first), nullptr);
    EXPECT_EQ(QAccessible::accessibleInterface(last), CellAt(8999, 1));
    ASSERT_NE(CellAt(0, 0), nullptr) << "asked for again, it has a new object";
}

TEST_F(QtAccessibleTest, ListsNoMoreThanThousandsOfSelectedCells)
{
    Grid().SetRows(32766);
    Grid().SetRowsSelected(0, 32765, true);
    EXPECT_EQ(Table().selectedCellCount(), 32766 * 20);
    EXPECT_EQ(Table().selectedRowCount(), 32766);
    EXPECT_EQ(Table().selectedCells().size(), 4096);
}

TEST_F(QtAccessibleTest, HasNothingOnceTheGridIsClosed)
{
    QAccessibleInterface* const cell = CellAt(3, 3);
    Grid().Terminate();
    EXPECT_FALSE(Whole().isValid());
    EXPECT_FALSE(cell->isValid());
    EXPECT_EQ(Table().rowCount(), 0);
    EXPECT_EQ(Whole().childCount(), 0);
    EXPECT_EQ(Whole().focusChild(), nullptr);
    EXPECT_TRUE(cell->rect().isEmpty());
    EXPECT_TRUE(cell->state().invalid);
    EXPECT_THAT(cell->actionInterface()->actionNames(), IsEmpty());
    cell->actionInterface()->doAction(QAccessibleActionInterface::setFocusAction());
    EXPECT_FALSE(Table().selectRow(1));
    Settle();
}

TEST_F(QtAccessibleTest, GoesWithItsWidget)
{
    const QAccessible::Id table = QAccessible::uniqueId(&Whole());
    const QAccessible::Id cell = QAccessible::uniqueId(CellAt(3, 3));
    Type(Qt::Key_Down);
    delete widget;
    EXPECT_EQ(QAccessible::accessibleInterface(table), nullptr);
    EXPECT_EQ(QAccessible::accessibleInterface(cell), nullptr);
    Settle();
}

TEST_F(QtAccessibleTest, SurvivesAHandlerThatClosesTheGrid)
{
    Grid().SetCellMode(2, 2, vxCommandButton);
    handlers.OnCellDown = [this](i16, i16) { Grid().Terminate(); };
    QAccessibleInterface* const cell = CellAt(2, 2);
    cell->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_FALSE(cell->isValid());
    EXPECT_TRUE(Grid().IsTerminated());
}

} // namespace

} // namespace vornix
