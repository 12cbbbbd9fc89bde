// The editors on the Qt widget: where they lie, who has the focus, which keys are the form's, and windows of the host.
#include "live_grid.h"

#include "vornix/platform/container.h"

#include <QAbstractItemView>
#include <QAccessible>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMenu>
#include <QPlainTextEdit>
#include <QTest>

namespace vornix {

namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;

// Gets the keys that nobody inside has a use for.
class Form : public QWidget {
public:
    std::vector<int> keys;

protected:
    void keyPressEvent(QKeyEvent* event) override { keys.push_back(event->key()); }
};

class QtEditorTest : public LiveGridTest {
protected:
    QtEditorTest()
    {
        before.setGeometry(500, 10, 80, 20);
        behind.setGeometry(500, 40, 80, 20);
        before.show();
        behind.show();
        QWidget::setTabOrder(&before, widget);
        QWidget::setTabOrder(widget, &behind);
        Grid().SetColMode(3, vxTextBox);
        Grid().SetColMode(4, vxComboDropDownBox);
        Grid().SetColMode(5, vxCustom);
        Settle();
        log.Clear();
    }
    void Edit(i16 Row, i16 Col)
    {
        Grid().CurrentPos(Row, Col);
        Grid().EnterEdit();
        Settle();
        ASSERT_TRUE(Grid().IsEditMode());
        log.Clear();
    }
    ChildWindow& Child(ChildName name) { return widget->GridContainer().Child(name); }
    QWidget* Editor() { return widget->findChild<QPlainTextEdit*>(); }
    QComboBox* Combo() { return widget->findChild<QComboBox*>(); }
    QWidget* Frame() { return Editor()->parentWidget()->parentWidget(); }

    QLineEdit before { &window };
    QLineEdit behind { &window };
};

} // namespace

// -- Places --

TEST_F(QtEditorTest, TheEditorLiesInTheFrameAndTheFrameOnTheControl)
{
    Edit(2, 3);
    EXPECT_EQ(Frame()->parentWidget(), widget);
    const Rect frame = Child(ChildName::fraEdit).Place();
    EXPECT_EQ(Frame()->geometry(), QRect(frame.left, frame.top, frame.Width(), frame.Height()));
    EXPECT_EQ(Editor()->parentWidget()->geometry(), Frame()->rect());
    Grid().SetBorderStyle(vxInset);
    Edit(2, 3);
    EXPECT_EQ(Frame()->geometry(), QRect(frame.left + 2, frame.top + 2, frame.Width(), frame.Height()));
    EXPECT_EQ(Editor()->parentWidget()->geometry(), Frame()->rect());
}

TEST_F(QtEditorTest, AnEditorIsSeenOnlyWhileItsFrameIs)
{
    Edit(2, 3);
    Child(ChildName::fraEdit).Show(false);
    EXPECT_TRUE(Child(ChildName::txtTmp).IsVisible());
    EXPECT_FALSE(Editor()->isVisible());
    EXPECT_FALSE(Child(ChildName::txtTmp).SetFocus());
    Child(ChildName::fraEdit).Show(true);
    EXPECT_TRUE(Editor()->isVisible());
}

TEST_F(QtEditorTest, ThePointerIsFoundOnTheChildUnderIt)
{
    Edit(2, 3);
    const auto childAt = [&](QWidget& on, QPoint at) {
        QCursor::setPos(on.mapToGlobal(at));
        const PointerLocation found = widget->GridContainer().LocatePointer();
        return found.window == PointerLocation::Window::Child ? std::optional(found.child) : std::nullopt;
    };
    EXPECT_EQ(childAt(*Editor(), { 5, 5 }), ChildName::txtTmp);
    Child(ChildName::txtTmp).Show(false);
    EXPECT_EQ(childAt(*Frame(), { 5, 5 }), ChildName::fraEdit);
    Edit(2, 4);
    EXPECT_EQ(childAt(*Combo(), { 5, 5 }), ChildName::cboTmp);
    EXPECT_EQ(childAt(*widget, { 5, 5 }), std::nullopt);
}

TEST_F(QtEditorTest, ThePointerOnAnEditorIsTheEditorsAlone)
{
    Grid().ComboAddItem(u"one");
    Edit(2, 4);
    const Rect frame = Child(ChildName::fraEdit).Place();
    const QPoint arrow(frame.right - 6, frame.top + 6);
    MoveTo(arrow - QPoint(1, 0));
    log.Clear();
    MoveTo(arrow);
    EXPECT_EQ(log.Count("MouseMove"), 1);
    Press(arrow);
    EXPECT_TRUE(Combo()->view()->isVisible());
    Combo()->hidePopup();
    Release(arrow);
    EXPECT_EQ(log.Count("MouseDown"), 0);
    Edit(2, 3);
    const QPoint inText(frame.left - 40, frame.top + 6);
    MoveTo(inText - QPoint(1, 0));
    log.Clear();
    MoveTo(inText);
    EXPECT_EQ(log.Count("MouseMove"), 1);
    Press(inText, Qt::RightButton);
    Release(inText, Qt::RightButton);
    EXPECT_EQ(log.Count("MouseDown"), 0);
}

TEST_F(QtEditorTest, ADisabledEditorLetsNothingThrough)
{
    Edit(2, 3);
    const Rect frame = Child(ChildName::fraEdit).Place();
    Child(ChildName::txtTmp).SetEnabled(false);
    Press({ frame.left + 5, frame.top + 5 });
    Release({ frame.left + 5, frame.top + 5 });
    EXPECT_EQ(log.Count("MouseDown"), 0);
}

// -- Focus --

TEST_F(QtEditorTest, AnEditorThatOpensHasTheFocus)
{
    Edit(2, 3);
    EXPECT_TRUE(Editor()->hasFocus());
    Edit(2, 4);
    EXPECT_TRUE(Combo()->hasFocus());
}

TEST_F(QtEditorTest, LeavingTheEditorForAnotherWidgetClosesIt)
{
    for (const i16 Col : { i16 { 3 }, i16 { 4 } }) {
        Edit(2, Col);
        before.setFocus();
        EXPECT_FALSE(Grid().IsEditMode());
        EXPECT_THAT(SaidNames(), ElementsAre("AfterEdit"));
        EXPECT_TRUE(before.hasFocus());
    }
}

TEST_F(QtEditorTest, BetweenTheEditorsAndTheControlNobodyLeaves)
{
    Edit(2, 3);
    Edit(2, 4);
    EXPECT_THAT(SaidNames(), Not(Contains("AfterEdit")));
    Type(Qt::Key_Escape);
    EXPECT_THAT(SaidNames(), ElementsAre("KeyDown", "AfterEdit", "KeyUp"));
    EXPECT_TRUE(widget->hasFocus());
}

TEST_F(QtEditorTest, AnEditorThatHidesGivesTheFocusToTheControl)
{
    Edit(2, 3);
    Grid().ExitEdit();
    EXPECT_TRUE(widget->hasFocus());
    EXPECT_THAT(SaidNames(), IsEmpty());
    Edit(2, 3);
    Child(ChildName::txtTmp).SetEnabled(false);
    EXPECT_TRUE(widget->hasFocus());
}

TEST_F(QtEditorTest, MenusAndListsBorrowTheFocusOnly)
{
    Edit(2, 3);
    QMenu menu;
    menu.addAction(QStringLiteral("Paste"));
    menu.popup(window.mapToGlobal(QPoint(10, 10)));
    Settle();
    menu.hide();
    Settle();
    EXPECT_TRUE(Grid().IsEditMode());
    Grid().ComboAddItem(u"one");
    Edit(2, 4);
    Combo()->showPopup();
    Settle();
    EXPECT_TRUE(Grid().IsEditMode());
    Combo()->hidePopup();
    Settle();
    EXPECT_TRUE(Grid().IsEditMode());
    EXPECT_TRUE(Combo()->hasFocus());
}

TEST_F(QtEditorTest, AnotherWindowTakesTheFocusAsFromTheControl)
{
    Edit(2, 3);
    QDialog dialog(&window);
    dialog.show();
    dialog.activateWindow();
    Settle();
    EXPECT_FALSE(Grid().IsEditMode());
    EXPECT_THAT(SaidNames(), ElementsAre("AfterEdit"));
    dialog.hide();
    window.activateWindow();
    Settle();
    EXPECT_TRUE(widget->hasFocus());
}

TEST_F(QtEditorTest, APressOnTheFrameGivesTheFocusToTheEditor)
{
    Edit(2, 3);
    Child(ChildName::txtTmp).Move({ 10, 0, 40, 16 });
    Frame()->setFocus();
    EXPECT_TRUE(Editor()->hasFocus());
    const Rect frame = Child(ChildName::fraEdit).Place();
    Press({ frame.left + 2, frame.top + 2 });
    Release({ frame.left + 2, frame.top + 2 });
    EXPECT_TRUE(Editor()->hasFocus());
    EXPECT_TRUE(Grid().IsEditMode());
    EXPECT_THAT(SaidNames(), Not(testing::AnyOf(Contains("MouseDown"), Contains("AfterEdit"))));
}

TEST_F(QtEditorTest, ThePointerOverTheFrameIsFollowedAsOverTheControl)
{
    Edit(2, 3);
    Child(ChildName::txtTmp).Show(false);
    const Rect frame = Child(ChildName::fraEdit).Place();
    MoveTo({ frame.left + 3, frame.top + 4 });
    const std::string place = " x=" + std::to_string(frame.left + 3) + " y=" + std::to_string(frame.top + 4);
    EXPECT_THAT(Said(), Contains("MouseMove Button=0 Shift=0" + place));
}

// -- Keys --

TEST_F(QtEditorTest, TabGoesOnToTheFormFromWhereTheControlStands)
{
    Edit(2, 3);
    Type(Qt::Key_Tab);
    EXPECT_TRUE(behind.hasFocus());
    EXPECT_FALSE(Grid().IsEditMode());
    Edit(2, 4);
    Type(Qt::Key_Tab);
    EXPECT_TRUE(behind.hasFocus());
    Edit(2, 3);
    Type(Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_TRUE(before.hasFocus());
    EXPECT_EQ(widget->focusPolicy(), Qt::StrongFocus);
}

TEST_F(QtEditorTest, TabFromTheFormComesToTheControl)
{
    Edit(2, 3);
    before.setFocus();
    Type(Qt::Key_Tab);
    EXPECT_TRUE(widget->hasFocus());
    Type(Qt::Key_Tab);
    EXPECT_TRUE(behind.hasFocus());
}

TEST_F(QtEditorTest, KeysThatTheEditorHasNoUseForAreTheFormsAndNotTheGridsAgain)
{
    Form form;
    EventLog heard;
    NotedWidget grid(heard, &form);
    grid.resize(300, 200);
    FillLiveTable(grid.Grid());
    grid.Grid().SetCellMode(1, 1, vxTextBox);
    grid.Grid().SetCellMode(2, 1, vxTextBox);
    ShowAndSettle(form);
    form.activateWindow();
    Settle();
    grid.Grid().CurrentPos(1, 1);
    grid.Grid().EnterEdit();
    heard.Clear();
    QTest::simulateEvent(form.windowHandle(), true, Qt::Key_F5, {}, {}, false);
    EXPECT_THAT(form.keys, ElementsAre(Qt::Key_F5));
    EXPECT_EQ(heard.Count("KeyDown"), 1);
    QTest::simulateEvent(form.windowHandle(), true, Qt::Key_Down, {}, {}, false);
    EXPECT_EQ(heard.Count("KeyDown"), 2);
    EXPECT_TRUE(grid.Grid().IsCurrent(2, 1));
    QTest::simulateEvent(form.windowHandle(), true, Qt::Key_Escape, {}, {}, false);
    EXPECT_FALSE(grid.Grid().IsEditMode());
    EXPECT_THAT(form.keys, ElementsAre(Qt::Key_F5));
}

// -- Assistive tools --

TEST_F(QtEditorTest, ToolsFindTheEditorAsTheFocusByTheNameOfItsColumn)
{
    Grid().SetText(-1, 3, u"Town");
    Grid().SetText(-1, 4, u"Street");
    Grid().SetText(2, -1, u"Third");
    QAccessibleInterface* const grid = QAccessible::queryAccessibleInterface(widget);
    ASSERT_TRUE(grid);
    Edit(2, 3);
    QAccessibleInterface* const text = QAccessible::queryAccessibleInterface(Editor());
    EXPECT_EQ(grid->focusChild(), text);
    EXPECT_EQ(text->text(QAccessible::Name), QStringLiteral("Town"));
    EXPECT_EQ(text->text(QAccessible::Description), QStringLiteral("Third"));
    Edit(2, 4);
    EXPECT_EQ(grid->focusChild()->role(), QAccessible::ComboBox);
    EXPECT_EQ(grid->focusChild()->text(QAccessible::Name), QStringLiteral("Street"));
    Grid().ExitEdit();
    EXPECT_EQ(grid->focusChild()->role(), QAccessible::Cell);
}

TEST_F(QtEditorTest, AToolThatWritesTheTextWritesTheCell)
{
    Edit(2, 3);
    QAccessible::queryAccessibleInterface(Editor())->editableTextInterface()->replaceText(0, 0, QStringLiteral("tool"));
    EXPECT_EQ(Grid().Text(2, 3), u"tool");
    EXPECT_THAT(SaidNames(), ElementsAre("TextChange"));
}

// -- Windows of the host --

class QtHostWindowTest : public QtEditorTest {
protected:
    void Offer(std::intptr_t number)
    {
        handlers.OnBeforeCustom = [this, number](i16, i16, i32&, i32& y, i32&, i32& height) {
            y += 1;
            height = 15;
            Grid().SetCustomhWnd(number);
        };
    }
};

TEST_F(QtHostWindowTest, ARegisteredWidgetComesOverTheCellWithTheFocus)
{
    QCheckBox box;
    Offer(QVornix::RegisterEditor(&box));
    Edit(2, 5);
    EXPECT_EQ(box.parentWidget(), widget);
    EXPECT_TRUE(box.isVisible());
    EXPECT_TRUE(box.hasFocus());
    const Rect frame = Child(ChildName::fraEdit).Place();
    EXPECT_EQ(box.geometry(), QRect(frame.left, frame.top + 1, frame.Width(), 15));
    Grid().ExitEdit();
    EXPECT_FALSE(box.isVisible());
    EXPECT_TRUE(widget->hasFocus());
}

TEST_F(QtHostWindowTest, ItLiesBehindTheCornerAndOverTheFrame)
{
    QWidget host;
    Offer(QVornix::RegisterEditor(&host));
    Edit(2, 5);
    const QObjectList order = widget->children();
    QWidget* const corner = widget->childAt(390, 290);
    ASSERT_TRUE(corner);
    EXPECT_LT(order.indexOf(&host), order.indexOf(corner));
    EXPECT_GT(order.indexOf(&host), order.indexOf(widget->childAt(host.geometry().topLeft() - QPoint(0, 1))));
}

TEST_F(QtHostWindowTest, ANativeWindowIsKnownByItsId)
{
    QWidget host;
    host.setFocusPolicy(Qt::StrongFocus);
    Offer(static_cast<std::intptr_t>(host.winId()));
    Edit(2, 5);
    EXPECT_EQ(host.parentWidget(), widget);
    EXPECT_TRUE(host.isVisible());
}

TEST_F(QtHostWindowTest, LeavingItForAnotherWidgetClosesIt)
{
    QLineEdit host;
    Offer(QVornix::RegisterEditor(&host));
    Edit(2, 5);
    EXPECT_TRUE(host.hasFocus());
    before.setFocus();
    EXPECT_FALSE(Grid().IsEditMode());
    EXPECT_FALSE(host.isVisible());
    EXPECT_THAT(SaidNames(), ElementsAre("AfterEdit"));
}

TEST_F(QtHostWindowTest, ItsKeysAreNotTheGrids)
{
    QLineEdit host;
    Offer(QVornix::RegisterEditor(&host));
    Edit(2, 5);
    Type(Qt::Key_Down);
    EXPECT_THAT(SaidNames(), IsEmpty());
    EXPECT_TRUE(Grid().IsCurrent(2, 5));
}

TEST_F(QtHostWindowTest, ANumberIsTheWidgetsForItsLife)
{
    EXPECT_EQ(QVornix::RegisterEditor(nullptr), 0);
    auto first = std::make_unique<QWidget>();
    QWidget second;
    const i32 number = QVornix::RegisterEditor(first.get());
    EXPECT_NE(number, 0);
    EXPECT_EQ(QVornix::RegisterEditor(first.get()), number);
    EXPECT_NE(QVornix::RegisterEditor(&second), number);
    Container& container = widget->GridContainer();
    EXPECT_TRUE(container.ShowHostWindow(number, { 0, 0, 10, 10 }));
    first.reset();
    EXPECT_FALSE(container.ShowHostWindow(number, { 0, 0, 10, 10 }));
    EXPECT_FALSE(container.FocusHostWindow(number));
    EXPECT_FALSE(container.ShowHostWindow(0, { 0, 0, 10, 10 }));
}

TEST_F(QtHostWindowTest, TheControlAndTheFormsAroundItAreNoEditors)
{
    Container& container = widget->GridContainer();
    EXPECT_FALSE(container.ShowHostWindow(QVornix::RegisterEditor(widget), { 0, 0, 10, 10 }));
    EXPECT_FALSE(container.ShowHostWindow(QVornix::RegisterEditor(&window), { 0, 0, 10, 10 }));
    EXPECT_EQ(widget->parentWidget(), &window);
}

TEST_F(QtHostWindowTest, TheHostKeepsItWhenTheControlGoes)
{
    QWidget alone;
    QPointer<QWidget> ofForm = new QWidget(&window);
    Container& container = widget->GridContainer();
    EXPECT_TRUE(container.ShowHostWindow(QVornix::RegisterEditor(&alone), { 0, 0, 10, 10 }));
    EXPECT_TRUE(container.ShowHostWindow(QVornix::RegisterEditor(ofForm), { 0, 0, 10, 10 }));
    delete widget;
    EXPECT_EQ(alone.parentWidget(), nullptr);
    ASSERT_TRUE(ofForm);
    EXPECT_EQ(ofForm->parentWidget(), &window);
}

TEST_F(QtHostWindowTest, AWindowThatIsDestroyedWhileItEditsDoesNoHarm)
{
    auto host = std::make_unique<QLineEdit>();
    Offer(QVornix::RegisterEditor(host.get()));
    Edit(2, 5);
    host.reset();
    Settle();
    Grid().ExitEdit();
    EXPECT_FALSE(Grid().IsEditMode());
}

} // namespace vornix
