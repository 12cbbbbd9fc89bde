#include "editor_window_fixture.h"

#include <QClipboard>

namespace vornix::viewer {

namespace {

TEST_F(EditorWindowTest, LetsTextsBeTypedAndCheckBoxesBeClicked)
{
    EXPECT_EQ(Grid().CellMode(0, 0), vxTextBox);
    EXPECT_EQ(Grid().CellMode(2, 1), vxTextBox);
    EXPECT_EQ(Grid().CellMode(0, 2), vxCheckBox);
    EXPECT_EQ(Grid().CellMode(2, 2), vxTextBox) << "no truth value yet: its text can be typed";
    for (i16 Col = -1; Col < 4; ++Col) {
        EXPECT_EQ(Grid().CellMode(-1, Col), vxCellFixed) << "a title";
        EXPECT_EQ(Grid().CellMode(-2, Col), vxCellFixed);
    }
    EXPECT_EQ(Grid().CellMode(1, -1), vxCellFixed) << "a row number";
    EXPECT_EQ(Grid().TextAlignment(0, 3) & vxSingleLine, 0) << "its editor has room for line breaks";
    EXPECT_EQ(Grid().Text(0, 3), u"a\r\nb") << "with the breaks of the editor";
    EXPECT_NE(Grid().TextAlignment(1, 3) & vxSingleLine, 0);
}

TEST_F(EditorWindowTest, TellsWhatIsNotSaved)
{
    EXPECT_EQ(window.windowTitle(), QStringLiteral("orders.csv[*] - Vornix"));
    EXPECT_FALSE(window.isWindowModified());
    EXPECT_FALSE(SaveAction().isEnabled());
    EXPECT_EQ(Label("changes"), "no changes");
    Click(0, 2);
    EXPECT_TRUE(window.isWindowModified());
    EXPECT_TRUE(SaveAction().isEnabled());
    EXPECT_EQ(Label("changes"), "1 change not saved");
    Click(1, 2);
    EXPECT_EQ(Label("changes"), "2 changes not saved");
    Click(0, 2);
    Click(1, 2);
    EXPECT_EQ(Label("changes"), "no changes") << "all is as it was";
    EXPECT_FALSE(window.isWindowModified());
    EXPECT_EQ(Content(path), Orders);
}

TEST_F(EditorWindowTest, SavesByItsKey)
{
    Click(0, 2);
    EXPECT_FALSE(Grid().CellChecked(0, 2)) << "what was clicked stays";
    Type(Qt::Key_S, Qt::ControlModifier);
    EXPECT_EQ(Content(path), "city,total,paid,note\nOslo,12.50,no,\"a\nb\"\nRoma,7,no,c\nBern,8,,d\n");
    EXPECT_EQ(Label("changes"), "saved");
    EXPECT_FALSE(window.isWindowModified());
    EXPECT_FALSE(SaveAction().isEnabled());
    Click(0, 2);
    SaveAction().trigger();
    EXPECT_EQ(Content(path), Orders);
}

TEST_F(EditorWindowTest, ClosesWithoutAQuestionWhenAllIsSaved)
{
    BoxAnswer box(QMessageBox::Cancel);
    EXPECT_TRUE(window.close());
    EXPECT_FALSE(box.WasShown());
}

TEST_F(EditorWindowTest, AsksWhatToDoWithChangesWhenItCloses)
{
    Click(0, 2);
    std::string text;
    EXPECT_FALSE(Close(QMessageBox::Cancel, &text));
    EXPECT_EQ(text, "Save the changes to orders.csv?\n\n1 change not saved.");
    EXPECT_TRUE(window.isVisible());
    EXPECT_EQ(Content(path), Orders);
    EXPECT_TRUE(Close(QMessageBox::Save));
    EXPECT_NE(Content(path), Orders);
    EXPECT_FALSE(document.IsChanged());
}

TEST_F(EditorWindowTest, LetsChangesGoWhenToldTo)
{
    Click(0, 2);
    EXPECT_TRUE(Close(QMessageBox::Discard));
    EXPECT_EQ(Content(path), Orders);
}

TEST_F(EditorWindowTest, KeepsTheChangesWhenTheyCannotBeSaved)
{
    Click(0, 2);
    folder.Write("orders.csv", "something else\n");
    {
        BoxAnswer box(QMessageBox::Ok);
        Type(Qt::Key_S, Qt::ControlModifier);
        EXPECT_EQ(box.Text(),
            "orders.csv is not saved:\nanother program has changed the file since it was read.\n\nThe changes are "
            "still "
            "here.");
    }
    EXPECT_EQ(Label("changes"), "1 change not saved");
    EXPECT_TRUE(window.isWindowModified());
    EXPECT_FALSE(Grid().CellChecked(0, 2));
    EXPECT_EQ(Content(path), "something else\n");
    folder.Write("orders.csv", Orders);
    EXPECT_TRUE(window.Save());
    EXPECT_EQ(Content(path), "city,total,paid,note\nOslo,12.50,no,\"a\nb\"\nRoma,7,no,c\nBern,8,,d\n");
}

TEST_F(EditorWindowTest, StaysOpenWhenSavingFailsOnClosing)
{
    Click(0, 2);
    std::filesystem::remove(path);
    QTimer failure;
    int failures = 0;
    QObject::connect(&failure, &QTimer::timeout, [&] {
        auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        if (!box || !box->button(QMessageBox::Ok))
            return;
        ++failures;
        box->button(QMessageBox::Ok)->click();
    });
    failure.start(10);
    EXPECT_FALSE(Close(QMessageBox::Save));
    EXPECT_EQ(failures, 1);
    EXPECT_TRUE(window.isVisible());
    EXPECT_TRUE(document.IsChanged());
}

TEST_F(EditorWindowTest, TakesWhatIsTypedIntoACell)
{
    Type(Qt::Key_F2);
    ASSERT_TRUE(Grid().IsEditMode());
    Type(Qt::Key_End);
    Type(" 1");
    EXPECT_EQ(Label("changes"), "1 change not saved") << "at once";
    Type(Qt::Key_Down);
    EXPECT_EQ(Label("currentCell"), "city, row 2") << "the line below follows the editor's keys";
    Type(Qt::Key_S, Qt::ControlModifier);
    EXPECT_EQ(Content(path), "city,total,paid,note\nOslo 1,12.50,yes,\"a\nb\"\nRoma,7,no,c\nBern,8,,d\n");
    EXPECT_TRUE(Grid().IsEditMode()) << "saving leaves the editor alone";
    Type(Qt::Key_End);
    Type("x");
    Type(Qt::Key_Escape);
    EXPECT_FALSE(Grid().IsEditMode());
    EXPECT_EQ(Label("changes"), "1 change not saved") << "Escape keeps what was typed";
    EXPECT_EQ(document.Text(1, 0), u"Romax");
}

TEST_F(EditorWindowTest, KeepsTheLineBreaksOfACell)
{
    Grid().CurrentPos(0, 3);
    Type(Qt::Key_F2);
    ASSERT_TRUE(Grid().IsEditMode());
    Type(Qt::Key_End, Qt::ControlModifier);
    Type("!");
    EXPECT_EQ(document.Text(0, 3), u"a\nb!");
}

TEST_F(EditorWindowTest, SavesInTheOrderOfTheFileWhateverIsShown)
{
    ClickTitle(0);
    ASSERT_EQ(Grid().Text(0, 0), u"Bern");
    EXPECT_EQ(Grid().Text(0, -1), u"3");
    Grid().CurrentPos(0, 0);
    Type(Qt::Key_F2);
    Type(Qt::Key_End);
    Type("!");
    EXPECT_EQ(document.Text(2, 0), u"Bern!");
    Click(2, 2);
    EXPECT_TRUE(Grid().CellChecked(2, 2)) << "it was Roma's";
    Type(Qt::Key_S, Qt::ControlModifier);
    EXPECT_EQ(Content(path), "city,total,paid,note\nOslo,12.50,yes,\"a\nb\"\nRoma,7,yes,c\nBern!,8,,d\n");
    EXPECT_EQ(Grid().Text(0, 0), u"Bern!") << "and shows them as they were";
}

TEST_F(EditorWindowTest, AddsRowsByTheirKeys)
{
    Grid().CurrentPos(1, 0);
    Type(Qt::Key_Plus, Qt::ControlModifier);
    EXPECT_EQ(Grid().Text(1, -1), u"+1");
    EXPECT_EQ(Label("currentCell"), "city, row +1");
    EXPECT_EQ(Label("changes"), "1 change not saved");
    EXPECT_EQ(Label("extent"), "4 rows, 4 columns");
    ASSERT_TRUE(Grid().IsEditMode()) << "its texts can be typed at once";
    Type("Bonn");
    Type(Qt::Key_Return, Qt::ControlModifier);
    EXPECT_EQ(Grid().Text(2, -1), u"+2") << "from an editor too";
    Type(Qt::Key_Right);
    Type("5");
    Type(Qt::Key_S, Qt::ControlModifier);
    EXPECT_EQ(Content(path),
        "city,total,paid,note\nOslo,12.50,yes,\"a\nb\"\nBonn,,,\"\"\n,5,,\"\"\nRoma,7,no,c\nBern,8,,d\n");
    EXPECT_EQ(Label("changes"), "saved");
    EXPECT_EQ(Grid().Text(1, -1), u"2") << "as the file counts them now";
    EXPECT_EQ(Grid().Text(4, -1), u"5");
}

TEST_F(EditorWindowTest, DeletesRowsAndBringsThemBack)
{
    Grid().SetRowSelected(0, true);
    Grid().SetRowSelected(2, true);
    EXPECT_FALSE(Action("restoreRows").isEnabled());
    Type(Qt::Key_Minus, Qt::ControlModifier);
    EXPECT_EQ(Grid().Rows(), 1);
    EXPECT_EQ(Label("extent"), "1 row, 4 columns");
    EXPECT_EQ(Label("changes"), "2 changes not saved");
    Type(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(Grid().Rows(), 3);
    EXPECT_EQ(Grid().Text(2, 0), u"Bern");
    EXPECT_EQ(Label("changes"), "no changes");
    Grid().CurrentPos(1, 0);
    Type(Qt::Key_Minus, Qt::ControlModifier);
    Type(Qt::Key_S, Qt::ControlModifier);
    EXPECT_EQ(Content(path), "city,total,paid,note\nOslo,12.50,yes,\"a\nb\"\nBern,8,,d\n");
    EXPECT_FALSE(Action("restoreRows").isEnabled()) << "that has been saved";
}

TEST_F(EditorWindowTest, SortsItsNewRowsToo)
{
    Grid().CurrentPos(0, 0);
    Type(Qt::Key_Plus, Qt::ControlModifier);
    Type("Paris");
    ClickTitle(0);
    EXPECT_EQ(Grid().Text(2, -1), u"+1");
    EXPECT_EQ(Grid().Text(2, 0), u"Paris");
    Action("asInSource").trigger();
    EXPECT_EQ(Grid().Text(0, -1), u"+1");
    Type(Qt::Key_S, Qt::ControlModifier);
    EXPECT_EQ(Content(path).substr(0, 46), "city,total,paid,note\nParis,,,\"\"\nOslo,12.50,yes");
}

TEST_F(EditorWindowTest, PastesBlocks)
{
    QApplication::clipboard()->setText(QStringLiteral("Wien\t3\tyes\r\nGraz\t4\tyes\r\n"));
    Type(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(Grid().Text(0, 0), u"Wien");
    EXPECT_EQ(Grid().Text(1, 1), u"4");
    EXPECT_TRUE(Grid().CellChecked(1, 2));
    EXPECT_EQ(Label("changes"), "5 changes not saved");
    Grid().CurrentPos(2, 3);
    Type(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(Label("notice"), "5 of 6 cells not pasted (there are no more columns)");
    Type(Qt::Key_S, Qt::ControlModifier);
    EXPECT_EQ(Content(path), "city,total,paid,note\nWien,3,yes,\"a\nb\"\nGraz,4,yes,c\nBern,8,,Wien\n");
    EXPECT_EQ(Label("notice"), "") << "until the next key";
}

TEST_F(EditorWindowTest, CopiesCutsAndClearsCells)
{
    Grid().SetSelectedCells(0, 0, 1, 1);
    Type(Qt::Key_X, Qt::ControlModifier);
    EXPECT_EQ(QApplication::clipboard()->text(), QStringLiteral("Oslo\t12.50\r\nRoma\t7"));
    EXPECT_EQ(document.Text(1, 1), u"");
    EXPECT_EQ(Label("changes"), "4 changes not saved");
    Type(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(Label("changes"), "no changes");
    Grid().CurrentPos(2, 0);
    Grid().SetSelectedCells(2, 0, 2, 0);
    Type(Qt::Key_Delete);
    EXPECT_EQ(document.Text(2, 0), u"");
    EXPECT_EQ(Grid().Text(2, 0), u"");
}

TEST_F(EditorWindowTest, CopiesEmptyCellsToo)
{
    Grid().CurrentPos(2, 2);
    Grid().SetSelectedCells(2, 2, 2, 2);
    ASSERT_EQ(Grid().Text(2, 2), u"");
    Type(Qt::Key_C, Qt::ControlModifier);
    Grid().SetSelectedCells(0, 0, 1, 0);
    Type(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(document.Text(0, 0), u"");
    EXPECT_EQ(document.Text(1, 0), u"");
    Grid().SetSelectedCells(1, 2, 2, 2);
    Type(Qt::Key_C, Qt::ControlModifier);
    Grid().SetSelectedCells(0, 3, 2, 3);
    Type(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(document.Text(0, 3), u"no");
    EXPECT_EQ(document.Text(1, 3), u"") << "the second of two";
    EXPECT_EQ(document.Text(2, 3), u"d") << "and no more";
}

TEST_F(EditorWindowTest, DeletesNoRowThatWasNotSelected)
{
    ClickTitle(0);
    Grid().CurrentPos(1, 0);
    Grid().SetRowSelected(0, true);
    Grid().SetRowSelected(2, true);
    Type(Qt::Key_0, Qt::ControlModifier);
    EXPECT_EQ(Label("selection"), "");
    Type(Qt::Key_Minus, Qt::ControlModifier);
    EXPECT_EQ(document.Rows(), (std::vector<int> { 0, 2 })) << "the current one alone";
}

TEST_F(EditorWindowTest, DeletesTheCurrentRowWhereAColumnIsSelected)
{
    Grid().CurrentPos(1, 0);
    Grid().SetColSelected(0, true);
    Type(Qt::Key_Minus, Qt::ControlModifier);
    EXPECT_EQ(Grid().Rows(), 2);
    EXPECT_EQ(Grid().Text(1, 0), u"Bern");
}

TEST_F(EditorWindowTest, LeavesAnOpenEditorItsKeys)
{
    Type(Qt::Key_F2);
    ASSERT_TRUE(Grid().IsEditMode());
    Type(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QApplication::clipboard()->text(), QStringLiteral("Oslo")) << "without selected text, the cell";
    Type(Qt::Key_Home);
    Type(Qt::Key_Right, Qt::ShiftModifier);
    Type(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QApplication::clipboard()->text(), QStringLiteral("O"));
    Type(Qt::Key_End);
    Type(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(document.Text(0, 0), u"OsloO") << "a single text goes to the caret";
    Type(Qt::Key_Backspace);
    Type(Qt::Key_Home);
    Type(Qt::Key_Delete);
    EXPECT_EQ(document.Text(0, 0), u"slo");
    Type(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(Grid().Rows(), 3);
    EXPECT_TRUE(Grid().IsEditMode());
    QApplication::clipboard()->setText(QStringLiteral("\r\n"));
    Type(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(document.Text(0, 0), u"Oslo") << "that was an empty cell";
    EXPECT_TRUE(Grid().IsEditMode());
    QApplication::clipboard()->setText(QStringLiteral("a\tb"));
    Type(Qt::Key_V, Qt::ControlModifier);
    EXPECT_FALSE(Grid().IsEditMode()) << "what fills several cells is for no editor";
    EXPECT_EQ(Grid().Text(0, 0), u"a");
    EXPECT_EQ(Grid().Text(0, 1), u"b");
}

TEST_F(EditorWindowTest, FindsWhileItEdits)
{
    Type(Qt::Key_F2);
    Type(Qt::Key_End);
    Type("123");
    Type(Qt::Key_F, Qt::ControlModifier);
    QTest::keyClicks(window.findChild<QWidget*>(QStringLiteral("findText")), QStringLiteral("123"));
    EXPECT_EQ(Label("findCount"), "1 of 1");
    EXPECT_FALSE(Grid().IsEditMode());
    Click(1, 2);
    Grid().CurrentPos(0, 0);
    Type(Qt::Key_F2);
    Type(Qt::Key_Backspace);
    Type(Qt::Key_F3);
    EXPECT_EQ(Label("findCount"), "not found");
}

TEST(EditorWindow, HasEverythingToDoWithoutRows)
{
    const ScratchFolder folder;
    const std::string path = folder.Write("a.csv", "id,n\n1,a\n2,b\n");
    Document document = Opened(path);
    EditorWindow window(document);
    window.show();
    Vornix& grid = window.GridWidget().Grid();
    grid.SetRowsSelected(0, 1, true);
    window.RemoveRows();
    EXPECT_EQ(grid.Rows(), 0);
    QApplication::clipboard()->setText(QStringLiteral("x\ty"));
    for (const char* action : { "copy", "cut", "paste", "clear", "removeRows", "selectAll", "asInSource", "find" })
        window.findChild<QAction*>(QLatin1String(action))->trigger();
    EXPECT_EQ(document.ChangeCount(), 2u);
    EXPECT_TRUE(window.Save());
    EXPECT_EQ(Content(path), "id,n\n");
    window.AddRowBelow();
    ASSERT_EQ(grid.Rows(), 1);
    grid.CurrentPos(0, 0);
    window.Paste();
    EXPECT_TRUE(window.Save());
    EXPECT_EQ(Content(path), "id,n\nx,y\n");
}

TEST(EditorWindow, TellsWhatWillBeReadOtherwise)
{
    const ScratchFolder folder;
    Document document = Opened(folder.Write("a.csv", "1,2\n3,4\n"));
    EditorWindow window(document);
    window.show();
    QApplication::clipboard()->setText(QStringLiteral("x\ty"));
    window.Paste();
    EXPECT_TRUE(window.Save());
    const auto* const notice = window.findChild<QLabel*>(QStringLiteral("notice"));
    EXPECT_EQ(notice->text(), QStringLiteral("when it is opened again, the first row will be taken for column names"));
    window.AddRowBelow();
    EXPECT_TRUE(window.Save());
    EXPECT_NE(notice->text(), QString()) << "as long as it will";
}

TEST(EditorWindow, TellsWhatWillBeReadOtherwiseWhenItCloses)
{
    const ScratchFolder folder;
    Document document = Opened(folder.Write("a.csv", "1,2\n3,4\n"));
    EditorWindow window(document);
    window.show();
    QApplication::clipboard()->setText(QStringLiteral("x\ty"));
    window.Paste();
    const BoxAnswer question(QMessageBox::Save);
    const BoxAnswer box(QMessageBox::Ok);
    EXPECT_TRUE(window.close());
    EXPECT_TRUE(question.WasShown());
    EXPECT_EQ(
        box.Text(), "a.csv is saved, but\nwhen it is opened again, the first row will be taken for column names.");
}

TEST(EditorWindow, SaysWhyNothingCanBeChanged)
{
    const ScratchFolder folder;
    ViewerOptions options;
    options.file = VORNIX_DATA "/sample.db"; // which begins with a view
    Document document(OpenForChanging(options, LoadLimits(), {}));
    EditorWindow window(document);
    window.show();
    QApplication::processEvents();
    EXPECT_EQ(window.findChild<QLabel*>(QStringLiteral("changes"))->text(),
        QStringLiteral("read only: it is a view, which has no rows of its own"));
    const Vornix& grid = window.GridWidget().Grid();
    for (i16 Col = 0; Col < grid.Cols(); ++Col)
        EXPECT_NE(grid.CellMode(0, Col), vxTextBox) << Col;
    for (const char* action :
        { "save", "cut", "paste", "clear", "addRowAbove", "addRowBelow", "removeRows", "restoreRows" })
        EXPECT_FALSE(window.findChild<QAction*>(QLatin1String(action))->isEnabled()) << action;
    EXPECT_TRUE(window.findChild<QAction*>(QStringLiteral("copy"))->isEnabled());
}

class ReadOnlySaver final : public Saver {
public:
    std::optional<std::string> WhyReadOnly() const override { return "it is carved in stone"; }
    bool CanChange(int, int) const override { return false; }
    SaveOutcome Save(const Changes&) override { throw SaveError("it is carved in stone"); }
};

TEST(EditorWindow, LeavesCheckBoxesOfAReadOnlySourceAsTheyAre)
{
    auto table = std::make_unique<Table>();
    table->Columns() = { { u"paid", ColumnKind::Boolean, u"yes", u"no" } };
    table->AppendRow(std::vector<Field> { { u"-1" } });
    Document document({ std::move(table), std::make_unique<ReadOnlySaver>() });
    EditorWindow window(document);
    window.show();
    window.activateWindow();
    QApplication::processEvents();
    const Vornix& grid = window.GridWidget().Grid();
    ASSERT_EQ(grid.CellMode(0, 0), vxCheckBox);
    QTest::keyClick(window.windowHandle(), Qt::Key_Space);
    EXPECT_TRUE(grid.CellChecked(0, 0));
    EXPECT_FALSE(document.IsChanged());
    EXPECT_EQ(window.findChild<QLabel*>(QStringLiteral("changes"))->text(),
        QStringLiteral("read only: it is carved in stone"));
}

TEST(EditorWindow, KeepsANameThatLooksLikeTheMark)
{
    const ScratchFolder folder;
    Document document = Opened(folder.Write("a[*].csv", Orders));
    const EditorWindow window(document);
    EXPECT_EQ(window.windowTitle(), QStringLiteral("a[*][*].csv[*] - Vornix"));
}

// Saves everything, and then tells this.
class FakeSaver final : public Saver {
public:
    explicit FakeSaver(SaveOutcome outcome)
        : outcome_(std::move(outcome))
    {
    }

    std::optional<std::string> WhyReadOnly() const override { return {}; }
    bool CanChange(int, int) const override { return true; }
    SaveOutcome Save(const Changes&) override { return outcome_; }

private:
    SaveOutcome outcome_;
};

// Of one column.
Document DocumentOf(const std::vector<Field>& texts, SaveOutcome outcome)
{
    auto table = std::make_unique<Table>();
    table->SetName(u"file.csv");
    table->Columns() = { { u"a" } };
    for (const Field& text : texts)
        table->AppendRow({ &text, 1 });
    table->SetTotalRows(texts.size());
    return Document(ChangeableSource { std::move(table), std::make_unique<FakeSaver>(std::move(outcome)) });
}

TEST(EditorWindow, FindsNothingInRowsThatSavingHasRemoved)
{
    Document document
        = DocumentOf({ { u"one" }, { u"two" }, { u"two" } }, { .others = { { 0, 0, u"two" } }, .removed = { 1, 2 } });
    EditorWindow window(document);
    window.show();
    window.OpenFindBar();
    const auto count = [&] { return window.findChild<QLabel*>(QStringLiteral("findCount"))->text().toStdString(); };
    QTest::keyClicks(window.findChild<QWidget*>(QStringLiteral("findText")), QStringLiteral("two"));
    EXPECT_EQ(count(), "1 of 2");
    document.Change(0, 0, u"2");
    EXPECT_TRUE(window.Save());
    for (int time = 0; time < 2; ++time) {
        window.FindNext();
        EXPECT_EQ(count(), "1 of 1");
        EXPECT_EQ(window.GridWidget().Grid().CurrentRow(), 0);
        window.Copy();
        EXPECT_EQ(QApplication::clipboard()->text(), QStringLiteral("two"));
    }
}

TEST(EditorWindow, SortsNothingThatItCouldNotShow)
{
    Document document = DocumentOf({ { u"one" }, { u"two" }, { u"three" } }, { .removed = { 1, 1 } }); // which fails
    EditorWindow window(document);
    window.show();
    window.activateWindow();
    document.Change(0, 0, u"2");
    BoxAnswer box(QMessageBox::Ok);
    EXPECT_TRUE(window.Save());
    ASSERT_TRUE(box.WasShown());
    ASSERT_EQ(document.RowCount(), 2);
    QApplication::processEvents();
    const auto* const notice = window.findChild<QLabel*>(QStringLiteral("notice"));
    const QString refusal = QStringLiteral("not sorted: the rows that are shown are not those of the table");
    window.SortAsInSource();
    EXPECT_EQ(notice->text(), refusal);
    Vornix& grid = window.GridWidget().Grid();
    i32 x = 0;
    i32 y = 0;
    grid.GetPositionCell(-1, 0, x, y);
    const QPoint at = window.GridWidget().mapTo(&window, QPoint(x / 15 + 10, y / 15 + 10));
    QTest::mouseMove(window.windowHandle(), at);
    QTest::mousePress(window.windowHandle(), Qt::LeftButton, {}, at);
    EXPECT_EQ(notice->text(), QString());
    QTest::mouseRelease(window.windowHandle(), Qt::LeftButton, {}, at);
    EXPECT_EQ(notice->text(), refusal);
    EXPECT_EQ(grid.Text(-1, 0), u"a");
    EXPECT_EQ(grid.Text(1, 0), u"two");
}

TEST(EditorWindow, TellsOfChangesThatAreSavedButCannotBeShown)
{
    Document document = DocumentOf({ { u"one" } }, { { { 99, 0, u"" } } }); // of a cell that is not there
    EditorWindow window(document);
    window.show();
    document.Change(0, 0, u"two");
    BoxAnswer box(QMessageBox::Ok);
    EXPECT_TRUE(window.Save());
    EXPECT_EQ(box.Text(),
        "file.csv is saved, but cannot be shown as it is now:\nno such cell in the table.\n\nOpen it again to see it.");
    EXPECT_FALSE(window.isWindowModified());
}

} // namespace

} // namespace vornix::viewer
