// A table whose texts are measured in a plain grid: 7 pixels a character, 13 a line, broken at spaces where the cell
// breaks words. Fixed lines are 25 by 30 pixels, cells 20 by 50, in a window of 400 by 300 without bars.
#pragma once

#include "layout/auto_size.h"
#include "layout/table.h"
#include "support/fake_device.h"
#include "support/plain_container.h"

#include <functional>

namespace vornix {

// Lines of words, as wide as the rectangle or the longest word.
Size PlainExtent(std::u16string_view text, const Rect& rect, u32 format);

class CountingRepainter : public Repainter {
public:
    // RecalcLayout with and without percent widths, and the state of the gate.
    std::vector<std::string> calls;
    const RedrawGate* gate = nullptr;

    void RepaintGrid() override { calls.push_back("RepaintGrid"); }
    void RecalcLayout(bool forcePercent) override
    {
        calls.push_back(
            std::string("RecalcLayout") + (forcePercent ? " percent" : "") + (gate->IsOpen() ? "" : " shut"));
    }
    void RefreshRowCells(int) override { calls.push_back("RefreshRowCells"); }
    void RefreshColCells(int) override { calls.push_back("RefreshColCells"); }
    void RefreshIfInRange(int, int) override { calls.push_back("RefreshIfInRange"); }
    void RefreshOneCell(int, int) override { calls.push_back("RefreshOneCell"); }
    void RepaintUnderGate() override { calls.push_back("RepaintUnderGate"); }
    void RefreshCellUnderGate(int, int) override { calls.push_back("RefreshCellUnderGate"); }
};

class SizingEvents : public VornixEvents {
public:
    // "ResizeRow 1 34 shut", with the gate as the handler found it.
    std::vector<std::string> said;
    std::function<void(i16& size)> onResize;
    const RedrawGate* gate = nullptr;

    void ResizeRow(i16 Row, i16& NewHeight) override { Say("ResizeRow", Row, NewHeight); }
    void ResizeCol(i16 Col, i16& NewWidth) override { Say("ResizeCol", Col, NewWidth); }

private:
    void Say(const char* name, i16 line, i16& size)
    {
        said.push_back(std::string(name) + " " + std::to_string(line) + " " + std::to_string(size)
            + (gate->IsOpen() ? " open" : ""));
        if (onResize)
            onResize(size);
    }
};

struct FittingTable : Table {
    std::shared_ptr<FakeScreen> screen = std::make_shared<FakeScreen>();
    PlainContainer container { std::make_unique<FakeDevice>(screen, "window", Size { 400, 300 }), { 400, 300 } };
    Spans spans { store };
    HiddenLines hidden { store };
    RedrawGate gate;
    CountingRepainter repainter;
    SizingEvents events;
    AutoSize fitting { { store, layout, spans, hidden, gate, repainter, container, events } };

    FittingTable(int fixedRows, int rows, int fixedCols, int cols)
        : Table(fixedRows, rows, fixedCols, cols)
    {
        screen->measure = PlainExtent;
        repainter.gate = &gate;
        events.gate = &gate;
        gate.Open();
        for (int row = 0; row <= store.LastRowIndex(); ++row)
            store.RowAt(row).Height = row < fixedRows ? 25 : 20;
        for (int col = 0; col <= store.LastColIndex(); ++col)
            store.ColumnAt(col).Width = col < fixedCols ? 30 : 50;
        LayoutWithoutBars(400, 300);
        ForgetCalls();
    }

    void Text(int row, int col, std::u16string_view text) { store.EditCell(row, col).SetText(text); }
    void Format(int row, int col, const FormatEdit& edit) { store.EditFormat(row, col, edit); }
    void BreakWords(int row, int col)
    {
        Format(row, col, [](CellFormat& format) { format.TextAlignment |= vxWordBreak; });
    }
    void Margins(int row, int col, i16 left, i16 right)
    {
        Format(row, col, [=](CellFormat& format) {
            format.TextMarginLeft = left;
            format.TextMarginRight = right;
        });
    }
    // As the members do it.
    void Span(int row, int col, i16 rows, i16 cols)
    {
        spans.SetRowSpan(row, col, rows);
        spans.SetColSpan(row, col, cols);
    }
    void ForgetCalls()
    {
        screen->journal.clear();
        repainter.calls.clear();
        events.said.clear();
    }
    int Height(int row) const { return store.HeightOf(row); }
    int Width(int col) const { return store.WidthOf(col); }
    // "\"text\" rectangle flags" of each measurement.
    std::vector<std::string> Measured() const
    {
        std::vector<std::string> lines;
        for (const std::string& line : screen->journal) {
            const std::size_t at = line.find(".DrawText ");
            if (at != std::string::npos)
                lines.push_back(line.substr(at + 10));
        }
        return lines;
    }
};

} // namespace vornix
