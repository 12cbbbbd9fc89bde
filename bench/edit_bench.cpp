// What a person does in an editor over a cell beside QTableWidget's own, and the list of the combo editor beside
// QComboBox, in one process. From the key to the finished state, without a picture where none is named.
#include "compare_tables.h"

#include <QApplication>
#include <QComboBox>
#include <QKeyEvent>
#include <QLineEdit>

namespace {

using namespace compare;

constexpr int ListLength = 30000;

void SendKey(QWidget& widget, int key, const QString& text = {})
{
    QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier, text);
    QApplication::sendEvent(&widget, &press);
    QKeyEvent release(QEvent::KeyRelease, key, Qt::NoModifier, text);
    QApplication::sendEvent(&widget, &release);
}

QWidget& Focused()
{
    QWidget* const widget = QApplication::focusWidget();
    if (!widget)
        qFatal("nothing has the focus");
    return *widget;
}

// -- From the editor of a cell to that of the next one, with the picture --

void TableEditNext(benchmark::State& state)
{
    QTableWidget& table = ShownTable();
    table.activateWindow();
    QApplication::processEvents();
    int row = 0;
    for (auto _ : state) {
        row = (row + 1) % 20;
        table.setCurrentCell(row, 1);
        table.editItem(table.item(row, 1));
        QApplication::processEvents();
        QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete); // the editor before
    }
    SendKey(Focused(), Qt::Key_Escape);
}

void GridEditNext(benchmark::State& state)
{
    QVornix& widget = ShownGrid();
    vornix::Vornix& grid = widget.Grid();
    widget.activateWindow();
    widget.setFocus();
    QApplication::processEvents();
    grid.SetFirstRow(0);
    grid.SetColMode(1, vornix::vxTextBox);
    grid.CurrentPos(0, 1);
    grid.EnterEdit();
    int key = Qt::Key_Down;
    for (auto _ : state) {
        if (grid.CurrentRow() == 20)
            key = Qt::Key_Up;
        else if (grid.CurrentRow() == 0)
            key = Qt::Key_Down;
        SendKey(Focused(), key);
        QApplication::processEvents();
    }
    grid.ExitEdit();
}

// -- A digit typed into a mask of ten places --

void LineTypeMasked(benchmark::State& state)
{
    QLineEdit line;
    line.setInputMask(QStringLiteral("(000) 000-0000"));
    ShowInWindow(line);
    for (auto _ : state) {
        line.setCursorPosition(1);
        SendKey(line, Qt::Key_7, QStringLiteral("7"));
    }
}

void GridTypeMasked(benchmark::State& state)
{
    QVornix& widget = ShownGrid();
    vornix::Vornix& grid = widget.Grid();
    widget.activateWindow();
    widget.setFocus();
    QApplication::processEvents();
    grid.SetFirstRow(0);
    grid.SetColMode(1, vornix::vxTextBox);
    grid.SetColMask(1, u"(000) 000-0000");
    grid.CurrentPos(0, 1);
    grid.EnterEdit();
    QWidget& editor = Focused();
    for (auto _ : state) {
        grid.SetSelStart(1);
        SendKey(editor, Qt::Key_7, QStringLiteral("7"));
    }
    grid.ExitEdit();
    grid.SetColMask(1, u"");
}

// -- A long list --

QString QtItem(int i)
{
    return QStringLiteral("entry %1").arg(i);
}

std::vector<std::u16string> GridItems()
{
    std::vector<std::u16string> items;
    for (int i = 0; i < ListLength; ++i)
        items.push_back(QtItem(i).toStdU16String());
    return items;
}

void ComboFill(benchmark::State& state)
{
    QStringList items;
    for (int i = 0; i < ListLength; ++i)
        items.push_back(QtItem(i));
    for (auto _ : state) {
        QComboBox combo;
        for (const QString& item : items)
            combo.addItem(item);
        benchmark::DoNotOptimize(combo.count());
    }
}

void GridFillList(benchmark::State& state)
{
    vornix::Vornix& grid = ShownGrid().Grid();
    const std::vector<std::u16string> items = GridItems();
    for (auto _ : state) {
        grid.ComboClear();
        for (const std::u16string& item : items)
            grid.ComboAddItem(item);
    }
}

// The last row of the list, by its text.
void ComboSearch(benchmark::State& state)
{
    QComboBox combo;
    for (int i = 0; i < ListLength; ++i)
        combo.addItem(QtItem(i));
    const QString wanted = QtItem(ListLength - 1);
    for (auto _ : state)
        combo.setCurrentIndex(combo.findText(wanted, Qt::MatchStartsWith));
}

void GridSearchList(benchmark::State& state)
{
    QVornix& widget = ShownGrid();
    vornix::Vornix& grid = widget.Grid();
    grid.ComboClear();
    for (const std::u16string& item : GridItems())
        grid.ComboAddItem(item);
    grid.ComboAddItem(u"zulu");
    widget.activateWindow();
    widget.setFocus();
    QApplication::processEvents();
    grid.SetFirstRow(0);
    grid.SetColMode(1, vornix::vxComboListBox);
    grid.CurrentPos(0, 1);
    grid.EnterEdit();
    QWidget& editor = Focused();
    for (auto _ : state) {
        SendKey(editor, Qt::Key_Z, QStringLiteral("z"));
        state.PauseTiming();
        grid.Tick(); // the next key begins a search
        state.ResumeTiming();
    }
    if (grid.Text(0, 1) != u"zulu")
        state.SkipWithError("the search has found nothing");
    grid.ExitEdit();
    grid.SetColMode(1, vornix::vxCellFixed);
}

BENCHMARK(TableEditNext)->Name("QTableWidget/edit_next")->Unit(benchmark::kMicrosecond);
BENCHMARK(GridEditNext)->Name("Vornix/edit_next")->Unit(benchmark::kMicrosecond);
BENCHMARK(LineTypeMasked)->Name("QLineEdit/type_masked")->Unit(benchmark::kMicrosecond);
BENCHMARK(GridTypeMasked)->Name("Vornix/type_masked")->Unit(benchmark::kMicrosecond);
BENCHMARK(ComboFill)->Name("QComboBox/fill_list")->Unit(benchmark::kMillisecond);
BENCHMARK(GridFillList)->Name("Vornix/fill_list")->Unit(benchmark::kMillisecond);
BENCHMARK(ComboSearch)->Name("QComboBox/search_list")->Unit(benchmark::kMicrosecond);
BENCHMARK(GridSearchList)->Name("Vornix/search_list")->Unit(benchmark::kMicrosecond);

} // namespace
