// A grid under a person's pointer: fixed lines of 21 by 30 pixels, cells of 21 by 120, in a window of 640 by 480.
#pragma once

#include "headless/person_fixture.h"

namespace vornix {

namespace Held {
constexpr i16 None = 0, Shift = 1, Ctrl = 2, ShiftAndCtrl = 3;
} // namespace Held

class MouseTest : public PersonTest {
protected:
    MouseTest() { MouseTable(20, 5); }

    // With one fixed row and one fixed column. Fixed cells have the row or column -1.
    void MouseTable(i16 rows, i16 cols)
    {
        Table(rows, cols, 1, 1);
        host->ClearLog();
    }
    // A small window over a large table, with bars.
    void SmallWindow(i16 rows = 100, i16 cols = 20)
    {
        HeadlessOptions options;
        options.width = 400;
        options.height = 200;
        Make(options);
        MouseTable(rows, cols);
    }

    // The middle of a cell of the grid while it is not scrolled.
    static float X(int Col) { return Col < 0 ? 15.0F : 30.0F + 120.0F * static_cast<float>(Col) + 60.0F; }
    static float Y(int Row) { return 10.0F + 21.0F * static_cast<float>(Row + 1); }
    static constexpr float Outside = 2000.0F;

    void Press(int Row, int Col, i16 shift = Held::None, i16 button = 1)
    {
        host->MouseDown(X(Col), Y(Row), button, shift);
    }
    // With the left button held.
    void DragTo(int Row, int Col, i16 shift = Held::None) { host->MouseMove(X(Col), Y(Row), 1, shift); }
    void Hover(int Row, int Col) { host->MouseMove(X(Col), Y(Row)); }
    void Release(int Row, int Col, i16 shift = Held::None, i16 button = 1)
    {
        host->MouseUp(X(Col), Y(Row), button, shift);
    }
    void ClickOn(int Row, int Col, i16 shift = Held::None)
    {
        Press(Row, Col, shift);
        Release(Row, Col, shift);
        host->Click();
    }

    CellPlace Current() { return { static_cast<i16>(Grid().CurrentRow()), Grid().CurrentCol() }; }
    std::vector<int> SelectedRows()
    {
        std::vector<int> rows;
        for (i16 Row = 0; Row < Grid().Rows(); ++Row) {
            if (Grid().RowSelected(Row))
                rows.push_back(Row);
        }
        return rows;
    }
    std::vector<int> SelectedCols()
    {
        std::vector<int> cols;
        for (i16 Col = 0; Col < Grid().Cols(); ++Col) {
            if (Grid().ColSelected(Col))
                cols.push_back(Col);
        }
        return cols;
    }
    // First and last cell of the selected rectangle, none when no cells are selected.
    std::vector<CellPlace> SelectedCells()
    {
        std::vector<CellPlace> cells;
        for (i16 Row = 0; Row < Grid().Rows(); ++Row) {
            for (i16 Col = 0; Col < Grid().Cols(); ++Col) {
                if (Grid().CellSelected(Row, Col))
                    cells.push_back({ Row, Col });
            }
        }
        if (cells.size() > 2)
            cells = { cells.front(), cells.back() };
        return cells;
    }
    // Whether the middle of a cell without a text shows the colour of selected cells.
    bool LooksSelected(int Row, int Col)
    {
        return host->Pixel(static_cast<int>(X(Col)), static_cast<int>(Y(Row))) == 0xD77800;
    }
};

constexpr CellPlace NoCell { -32767, -32767 };

} // namespace vornix
