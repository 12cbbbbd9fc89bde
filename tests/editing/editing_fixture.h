// A small table of text cells, edited by a person in whatever container this program is built for.
#pragma once

#include "editing/editing_desk.h"
#include "vornix/event_handlers.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <sstream>

namespace vornix {

class EditingTest : public testing::Test {
protected:
    using Lines = std::vector<std::string>;
    using Focus = EditingDesk::Focus;

    static constexpr int Width = 100;
    static constexpr int Height = 20;

    EditingTest()
    {
        Vornix& grid = Grid();
        grid.SetFixedRows(1);
        grid.SetFixedCols(1);
        grid.SetRows(6);
        grid.SetCols(4);
        for (i16 line = -1; line < 6; ++line)
            grid.SetRowHeight(line, Height);
        for (i16 line = -1; line < 4; ++line)
            grid.SetColWidth(line, Width);
        for (i16 row = 0; row < 6; ++row) {
            for (i16 col = 0; col < 4; ++col) {
                grid.SetText(row, col, u"t" + Digit(row) + Digit(col));
                grid.SetCellMode(row, col, vxTextBox);
            }
        }
        Forget();
    }

    static std::u16string Digit(int digit) { return { static_cast<char16_t>(u'0' + digit) }; }

    Vornix& Grid() { return desk->Grid(); }
    Container& Host() { return desk->Host(); }
    // The middle of a cell, while nothing is scrolled.
    static Point MiddleOf(int Row, int Col)
    {
        return { (Col + 1) * Width + Width / 2, (Row + 1) * Height + Height / 2 };
    }
    void Click(int Row, int Col, i16 shift = 0)
    {
        const Point at = MiddleOf(Row, Col);
        desk->ClickAt(at.x, at.y, shift);
    }
    // The editor is open on the cell, and the log is empty.
    void Edit(i16 Row, i16 Col)
    {
        Grid().CurrentPos(Row, Col);
        Grid().EnterEdit();
        ASSERT_TRUE(Grid().IsEditMode());
        Forget();
    }
    void Press(std::string_view key, i16 shift = 0) { desk->Press(key, shift); }
    void Type(std::u16string_view text) { desk->Type(text); }
    void SelectAll()
    {
        Grid().SetSelStart(0);
        Grid().SetSelLength(1000);
    }
    std::u16string EditorText() { return Host().TextEditor()->Text(); }
    NativeComboBox& Combo() { return *Host().ComboEditor(); }
    Rect FramePlace() { return Host().Child(ChildName::fraEdit).Place(); }
    std::u16string Cell(i16 Row, i16 Col) { return Grid().Text(Row, Col); }
    void Forget() { desk->Log().Clear(); }

    // "BeforeEdit 0 1" for each event since the last call, without those of pointer moves, painting and scrolling.
    Lines Said()
    {
        Lines lines;
        for (const LoggedEvent& event : desk->Log().Events()) {
            if (IsOfStory(event.name))
                lines.push_back(LineOf(event));
        }
        Forget();
        return lines;
    }

    EventHandlers handlers;
    std::unique_ptr<EditingDesk> desk = MakeDesk(handlers);

private:
    static bool IsOfStory(const std::string& name)
    {
        return name != "MouseMove" && name != "CellOver" && name != "CellOut" && name != "Scroll" && name != "DrawCell";
    }
    // Places of the pointer differ between containers by fractions, and are left out.
    static std::string LineOf(const LoggedEvent& event)
    {
        std::ostringstream line;
        line << event.name;
        for (const auto& [name, value] : event.arguments) {
            if (!event.name.starts_with("Mouse") || (name != "x" && name != "y"))
                line << ' ' << value.ToDouble();
        }
        return line.str();
    }
};

} // namespace vornix
