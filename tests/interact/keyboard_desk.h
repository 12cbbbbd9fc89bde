// The keyboard over a real grid, with an editor, a list page and a hovering pointer that only write down what is asked
// of them.
#pragma once

#include "automation/key_codes.h"
#include "control/control.h"
#include "control/grid_fixture.h"

namespace vornix {

using Calls = std::vector<std::string>;

inline std::string At(int row, int col)
{
    return " " + std::to_string(row) + " " + std::to_string(col);
}

class WrittenEditor : public CellEditor {
public:
    explicit WrittenEditor(Calls& calls)
        : calls_(calls)
    {
    }

    bool IsEditorOpen() const override { return isOpen; }
    void CloseEditor() override
    {
        isOpen = false;
        Note("CloseEditor");
    }
    bool IsEditorOpenOn(CellIndex cell) const override { return isOpen && cell == openedOn; }
    void CloseEditorAndRepaint() override
    {
        isOpen = false;
        Note("CloseEditorAndRepaint");
    }
    void OpenEditor(int row, int col) override
    {
        isOpen = true;
        openedOn = { row, col };
        Note("OpenEditor" + At(row, col));
    }
    void EnterEdit() override { Note("EnterEdit"); }
    void SetSelStart(int place) override { Note("SetSelStart " + std::to_string(place)); }
    void HideEditor() override
    {
        isOpen = false;
        Note("HideEditor");
    }
    void ForgetEditCell() override { Note("ForgetEditCell"); }

    bool isOpen = false;
    CellIndex openedOn { NoIndex, NoIndex };
    // Runs in place of what handlers of the editor's events do.
    std::function<void(const std::string&)> then = [](const std::string&) {};

private:
    void Note(const std::string& call)
    {
        calls_.push_back(call);
        then(call);
    }
    Calls& calls_;
};

class WrittenPage : public ListPage {
public:
    explicit WrittenPage(Calls& calls)
        : calls_(calls)
    {
    }

    int PageSize() const override { return size; }
    i32 Offset() const override { return offset; }
    i32 Length() const override { return length; }
    void RollPage() override { calls_.push_back("RollPage"); }
    void RollPageWithCurrent() override
    {
        calls_.push_back("RollPageWithCurrent");
        roll();
    }
    void GotoListPosition(i32 position) override
    {
        calls_.push_back("GotoListPosition " + std::to_string(position));
        then(position);
    }

    int size = 0;
    i32 offset = 0;
    i32 length = 0;
    std::function<void(i32)> then = [](i32) {};
    std::function<void()> roll = [] {};

private:
    Calls& calls_;
};

class WrittenHover : public PointerHover {
public:
    explicit WrittenHover(Calls& calls)
        : calls_(calls)
    {
    }
    void ExitHover() override { calls_.push_back("ExitHover"); }

private:
    Calls& calls_;
};

class WrittenEvents : public VornixEvents {
public:
    explicit WrittenEvents(Calls& calls)
        : calls_(calls)
    {
    }
    void ValidateRow() override { Note("ValidateRow"); }
    void CellChange(i16 Row, i16 Col, bool& bCancel) override
    {
        bCancel = refuses;
        Note("CellChange" + At(Row, Col));
    }
    void MouseDown(i16, i16, float, float) override { Note("MouseDown"); }
    void MouseUp(i16, i16, float, float) override { Note("MouseUp"); }
    void CellDown(i16 Row, i16 Col) override { Note("CellDown" + At(Row, Col)); }
    void CellUp(i16 Row, i16 Col) override { Note("CellUp" + At(Row, Col)); }
    void CellClick(i16 Row, i16 Col) override { Note("CellClick" + At(Row, Col)); }
    void Click() override { Note("Click"); }
    void Scroll() override { Note("Scroll"); }
    void TextChange(i16 Row, i16 Col) override { Note("TextChange" + At(Row, Col)); }

    bool refuses = false;
    std::function<void(const std::string&)> then = [](const std::string&) {};

private:
    void Note(const std::string& call)
    {
        calls_.push_back(call);
        then(call);
    }
    Calls& calls_;
};

// 6 rows and 4 columns behind one fixed line of each kind: internal indices are one above public ones.
class KeyboardDesk : public testing::Test {
protected:
    explicit KeyboardDesk(i32 rows = 6, i32 cols = 4, i32 fixedRows = 1)
    {
        bag.WriteProperty("Rows", rows);
        bag.WriteProperty("Cols", cols);
        bag.WriteProperty("FixedRows", fixedRows);
        bag.WriteProperty("FixedCols", 1);
        control.ReadSettings(bag);
        control.Load();
        control.funnel.ClientSizeChanged();
    }

    Calls Press(int key, int shift = 0)
    {
        calls.clear();
        keyboard.KeyDown(key, shift);
        return calls;
    }
    Calls Said(const std::function<void()>& step)
    {
        calls.clear();
        step();
        return calls;
    }
    void Stand(int row, int col) { mover.Take({ row, col }); }
    void SetMode(int row, int col, i32 mode)
    {
        control.store.EditFormat(row, col, [&](CellFormat& format) { format.Mode = mode; });
    }
    void Disable(int row, int col)
    {
        control.store.EditFormat(row, col, [](CellFormat& format) { format.Disabled = true; });
    }
    CellIndex Current() { return mover.Current(); }

    Calls calls;
    WrittenEvents events { calls };
    WrittenEditor editor { calls };
    WrittenPage page { calls };
    WrittenHover hover { calls };
    MemoryBag bag;
    HeadlessContainer host;
    Control control { host, events };
    CurrentCellMover mover { { control.store, control.spans, control.hidden, control.gate, control.current,
        control.scrolling, control.funnel, editor, page, events } };
    Keyboard keyboard { { control.store, control.spans, control.hidden, control.scroll, control.layout, control.gate,
        control.current, control.selection, control.scrolling, control.funnel, mover, control.checks, editor, page,
        hover, host, events } };
};

} // namespace vornix
