// Lists and forms for what is typed into the window.
#include "editor_window_fixture.h"

#include <QClipboard>

namespace vornix::viewer {

namespace {

// With a column of few texts and one of dates.
constexpr const char* Jobs = "status,due\nopen,2024-12-31\nlate,2024-02-29\ndone,\nopen,2024-05-01\nlate,2024-05-02\n"
                             "done,2024-05-03\nopen,2024-05-04\nlate,2024-05-05\ndone,2024-05-06\n";

class EditorWindowOfJobsTest : public EditorWindowTest {
protected:
    EditorWindowOfJobsTest()
        : EditorWindowTest(Jobs)
    {
    }

    void Open(i16 Row, i16 Col)
    {
        Grid().CurrentPos(Row, Col);
        Type(Qt::Key_F2);
        ASSERT_TRUE(Grid().IsEditMode());
    }
};

TEST_F(EditorWindowOfJobsTest, OffersTheTextsOfAColumnThatRepeat)
{
    Open(0, 0);
    ASSERT_EQ(Grid().ComboListCount(), 3);
    EXPECT_EQ(Grid().ComboList(0), u"done");
    EXPECT_EQ(Grid().ComboList(2), u"open");
    EXPECT_EQ(Label("changes"), "no changes");
    Type(Qt::Key_Up);
    EXPECT_EQ(document.Text(0, 0), u"late") << "before what it was";
    Type(Qt::Key_A, Qt::ControlModifier);
    Type("lost");
    EXPECT_EQ(document.Text(0, 0), u"lost") << "any other text can be typed";
    Type(Qt::Key_Escape);
    Open(1, 0);
    EXPECT_EQ(Grid().ComboListCount(), 4) << "and joins the list";
    Type(Qt::Key_S, Qt::ControlModifier);
    EXPECT_EQ(Content(path).substr(0, 28), std::string(Jobs).replace(11, 4, "lost").substr(0, 28));
}

TEST_F(EditorWindowOfJobsTest, LetsATextOfAListBeEmptied)
{
    Open(0, 0);
    Type(Qt::Key_A, Qt::ControlModifier);
    Type(Qt::Key_Delete);
    Type(Qt::Key_Escape);
    EXPECT_EQ(document.Text(0, 0), u"");
    EXPECT_EQ(Label("changes"), "1 change not saved");
}

TEST_F(EditorWindowOfJobsTest, TakesADateWhenItIsWhole)
{
    Open(2, 1);
    Type("2025-01-1");
    EXPECT_EQ(Label("changes"), "2025-01-1_ is no date yet; no changes");
    EXPECT_FALSE(window.isWindowModified());
    Type("5");
    EXPECT_EQ(Label("changes"), "1 change not saved");
    EXPECT_EQ(document.Text(2, 1), u"2025-01-15");
    Type(Qt::Key_S, Qt::ControlModifier);
    EXPECT_EQ(Content(path), std::string(Jobs).replace(48, 0, "2025-01-15"));
}

TEST_F(EditorWindowOfJobsTest, GoesByWhatIsSeenOfADateThatIsTypedOver)
{
    Open(0, 1);
    Type(Qt::Key_A, Qt::ControlModifier);
    Type("2");
    EXPECT_EQ(Label("changes"), "2___-__-__ is no date yet; no changes");
    Type("0250115");
    EXPECT_EQ(document.Text(0, 1), u"2025-01-15");
}

TEST_F(EditorWindowOfJobsTest, SavesNothingWhileADateIsUnfinished)
{
    Open(0, 0);
    Type(Qt::Key_Up);
    Type(Qt::Key_Escape);
    Open(0, 1);
    Type(Qt::Key_Delete);
    Type(Qt::Key_S, Qt::ControlModifier);
    EXPECT_EQ(Label("changes"), "not saved: _024-12-31 is no date yet; 1 change not saved");
    EXPECT_EQ(Content(path), Jobs);
    ASSERT_TRUE(Grid().IsEditMode()) << "it can be finished";
    Type(Qt::Key_Home);
    Type("2");
    Type(Qt::Key_S, Qt::ControlModifier);
    EXPECT_EQ(Label("changes"), "saved");
    EXPECT_EQ(Content(path), std::string(Jobs).replace(11, 4, "late"));
}

TEST_F(EditorWindowOfJobsTest, SaysThatAnUnfinishedDateWasNotTaken)
{
    Open(0, 1);
    Type(Qt::Key_Delete);
    EXPECT_TRUE(SaveAction().isEnabled()) << "to be told why not";
    Type(Qt::Key_Down);
    EXPECT_EQ(Label("currentCell"), "due, row 2");
    EXPECT_EQ(Label("changes"), "_024-12-31 is no date and was not taken; no changes");
    EXPECT_EQ(Grid().Text(0, 1), u"2024-12-31");
    EXPECT_FALSE(SaveAction().isEnabled());
    Type("2023");
    Type(Qt::Key_Escape);
    EXPECT_EQ(Label("changes"), "2023-02-29 is no date and was not taken; no changes");
    EXPECT_EQ(Grid().Text(1, 1), u"2024-02-29");
}

TEST_F(EditorWindowOfJobsTest, FindsTheOldDateWhereTheNewOneWasNotTaken)
{
    Type(Qt::Key_F, Qt::ControlModifier);
    QTest::keyClicks(window.findChild<QWidget*>(QStringLiteral("findText")), QStringLiteral("2024-12-31"));
    EXPECT_EQ(Label("findCount"), "1 of 1");
    window.GridWidget().setFocus();
    Open(0, 1);
    Type(Qt::Key_Delete);
    EXPECT_TRUE(QTest::qWaitFor([&] { return Label("findCount") == "not found"; }));
    Type(Qt::Key_Escape);
    EXPECT_TRUE(QTest::qWaitFor([&] { return Label("findCount") == "1 of 1"; }));
}

TEST_F(EditorWindowOfJobsTest, TakesAnEmptiedDateForNone)
{
    Open(0, 1);
    Type(Qt::Key_A, Qt::ControlModifier);
    Type(Qt::Key_Delete);
    EXPECT_EQ(Label("changes"), "1 change not saved");
    Type(Qt::Key_Escape);
    EXPECT_EQ(Grid().Text(0, 1), u"");
    EXPECT_TRUE(window.Save());
    EXPECT_EQ(Content(path), std::string(Jobs).replace(16, 10, ""));
}

TEST_F(EditorWindowOfJobsTest, LeavesAnUnfinishedDateWhenRowsMove)
{
    Open(0, 1);
    Type(Qt::Key_Delete);
    Action("addRowAbove").trigger();
    EXPECT_EQ(Grid().Text(1, 1), u"2024-12-31") << "the old one is back";
    EXPECT_EQ(document.ChangeCount(), 1u);
    Type(Qt::Key_Escape);
    Grid().CurrentPos(1, 1);
    QApplication::clipboard()->setText(QStringLiteral("2024-02-30"));
    Type(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(Label("notice"), "1 cell not pasted (row 1, due: \"2024-02-30\" is no date such as 2024-12-31)");
    Grid().SetSelectedCells(1, 1, 3, 1);
    QApplication::clipboard()->setText(QStringLiteral("2024-02-28"));
    Type(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(document.Text(2, 1), u"2024-02-28");
}

TEST_F(EditorWindowOfJobsTest, ClosesWithoutAnUnfinishedDate)
{
    Open(0, 1);
    Type(Qt::Key_Delete);
    BoxAnswer box(QMessageBox::Cancel);
    EXPECT_TRUE(window.close());
    EXPECT_FALSE(box.WasShown());
    EXPECT_EQ(Content(path), Jobs);
}

TEST_F(EditorWindowOfJobsTest, SavesTheRestWhenItClosesOnAnUnfinishedDate)
{
    Open(0, 0);
    Type(Qt::Key_Up);
    Type(Qt::Key_Escape);
    Open(0, 1);
    Type(Qt::Key_Delete);
    EXPECT_TRUE(Close(QMessageBox::Save));
    EXPECT_EQ(Content(path), std::string(Jobs).replace(11, 4, "late"));
}

} // namespace

} // namespace vornix::viewer
