// A table with everything that paints it, in a container that only lends a window, for the tests of this folder.
#pragma once

#include "model/hidden_lines.h"
#include "model/spans.h"
#include "render/paint_pipeline.h"
#include "support/fake_device.h"
#include "support/plain_container.h"
#include "vornix/automation.h"
#include "vornix/picture.h"

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

namespace vornix {

// A user who has done what the test says.
class PaintInteraction : public InteractionView {
public:
    CellIndex pressed { NoIndex, NoIndex };
    CellIndex current { NoIndex, NoIndex };
    bool editing = false;
    bool suppressesFocus = false;
    std::function<bool(const Cell&, int, int, bool)> selected;
    std::vector<CellIndex> ranges;

    bool IsPressed(int row, int col) const override { return pressed == CellIndex { row, col }; }
    bool IsSelected(const Cell& cell, int row, int col, bool printing) const override
    {
        return selected && selected(cell, row, col, printing);
    }
    bool IsCurrentCell(int row, int col) const override { return current == CellIndex { row, col }; }
    bool IsEditing() const override { return editing; }
    bool SuppressesFocusMark() const override { return suppressesFocus; }
    void PaintRangeChanged(int paintLastRow, int paintLastCol) override
    {
        ranges.push_back({ paintLastRow, paintLastCol });
    }
};

class PaintEvents : public VornixEvents {
public:
    std::function<void(i16, i16, Hdc&, bool&)> drawCell;
    std::vector<CellIndex> drawn;

    void DrawCell(i16 Row, i16 Col, Hdc& PictureHdc, bool& bCancel) override
    {
        drawn.push_back({ Row, Col });
        if (drawCell)
            drawCell(Row, Col, PictureHdc, bCancel);
    }
};

// Columns are 50 pixels wide, rows 20 high, fixed columns 30 and fixed rows 25. There are no bars, no filler lines and
// no grid lines until the test turns them on.
class PaintTable {
public:
    PaintTable(std::unique_ptr<Device> device, Size client, int fixedRows, int rows, int fixedCols, int cols)
        : container(std::move(device), client)
        , pipeline({ store, layout, scroll, gate, interaction, container, events })
    {
        GridDefaults& defaults = store.Defaults;
        defaults.Font = std::make_shared<FontObject>(FontObject { .Name = u"DejaVu Sans" });
        defaults.FontFixed = defaults.Font;
        defaults.DefaultHeight = 20;
        defaults.DefaultWidth = 50;
        defaults.DefaultHeightFixed = 25;
        defaults.DefaultWidthFixed = 30;
        defaults.AdjustLastCol = false;
        defaults.AdjustLastRow = false;
        store.StoreFixedRows(static_cast<i16>(fixedRows));
        store.StoreRows(static_cast<i16>(rows));
        store.StoreFixedCols(static_cast<i16>(fixedCols));
        store.StoreCols(static_cast<i16>(cols));
        store.InitGridStore(container.colors);
        layout.ResetFor(store);
        layout.Settings.ScrollHBar = vxNoScrollBar;
        layout.Settings.ScrollVBar = vxNoScrollBar;
        pipeline.Settings.GridLines = vxNone;
        pipeline.Settings.FocusRect = vxFocusNone;
        Layout();
    }

    void Layout()
    {
        layout.MarkMetricsDirty();
        layout.SetScaleSize(container.ClientSize());
        layout.UpdateCaptionHeight();
        layout.MeasureIfDirty();
        layout.CalcScrollBarNeed(false);
        layout.UpdateClientArea();
        pipeline.ResizeBackStore(container.ClientSize());
    }

    void AdjustLast(bool rows, bool cols)
    {
        store.Defaults.AdjustLastRow = rows;
        store.Defaults.AdjustLastCol = cols;
        store.InitFillerCol();
        store.InitFillerRow();
    }

    void SetText(int row, int col, std::u16string_view text) { store.EditCell(row, col).SetText(text); }
    void Format(int row, int col, const FormatEdit& edit) { store.EditFormat(row, col, edit); }
    void BackColor(int row, int col, OleColor color)
    {
        const BackColorSet colors(color, container.colors);
        store.EditFormat(row, col, [&](CellFormat& format) { colors.ApplyTo(format); });
    }
    // Every cell in a colour of its own: 0x010000 + row * 0x100 + col.
    static ColorRef ColorOf(int row, int col) { return static_cast<ColorRef>(0x010000 + row * 0x100 + col); }
    void ColorEveryCell()
    {
        for (int row = 0; row <= store.MaxRow(); ++row) {
            for (int col = 0; col <= store.MaxCol(); ++col)
                BackColor(row, col, ColorOf(row, col));
        }
    }
    void Span(int row, int col, int rows, int cols)
    {
        Spans spans(store);
        if (cols > 1)
            store.EditCell(row, col).SetColSpan(spans.SetColSpan(row, col, static_cast<i16>(cols)));
        if (rows > 1)
            store.EditCell(row, col).SetRowSpan(spans.SetRowSpan(row, col, static_cast<i16>(rows)));
    }

    GridStore store;
    ScrollModel scroll { store };
    LayoutEngine layout { store, scroll };
    RedrawGate gate;
    PaintInteraction interaction;
    PlainContainer container;
    PaintEvents events;
    PaintPipeline pipeline;
};

// On a device that writes down what it is asked.
class FakePaintTable : public PaintTable {
public:
    explicit FakePaintTable(
        Size client = { 200, 100 }, int fixedRows = 0, int rows = 1, int fixedCols = 0, int cols = 1)
        : FakePaintTable(std::make_shared<FakeScreen>(), client, fixedRows, rows, fixedCols, cols)
    {
    }

    FakeDevice& Window() { return static_cast<FakeDevice&>(*container.window); }
    const FakeDevice& BackStore() const { return static_cast<const FakeDevice&>(*pipeline.BackStore()); }
    const std::vector<std::string>& Journal() const { return screen->journal; }
    void ClearJournal() { screen->journal.clear(); }
    std::vector<std::string> StoreLines() const { return screen->LinesOf(BackStore().Name()); }
    std::vector<std::string> WindowLines() const { return screen->LinesOf("window"); }

    // Repaints; the calls on the surface that the cell was composed on.
    std::vector<std::string> CellLines()
    {
        ClearJournal();
        pipeline.RepaintGrid();
        return ComposedLines();
    }
    // The calls on the first surface composed for the back store since the journal was cleared.
    std::vector<std::string> ComposedLines() const
    {
        for (const std::string& line : StoreLines()) {
            const std::size_t name = line.rfind(' ');
            if (line.starts_with("CreateCompatible"))
                return screen->LinesOf(line.substr(name + 1));
        }
        return {};
    }

    // The cells copied to a device, in order: "row,col @ left,top,right,bottom", followed by " from x,y" where the
    // cell's left or top part is cut off. Needs ColorEveryCell.
    std::vector<std::string> CellsOn(const std::string& device) const
    {
        std::vector<std::string> cells;
        std::map<std::string, std::string> grounds;
        for (const std::string& line : Journal()) {
            const std::string name = line.substr(0, line.find('.'));
            const std::size_t color = line.find(" #");
            if (line.find(".FillRect ") != std::string::npos && !grounds.contains(name))
                grounds[name] = CellOfColor(line.substr(color + 2));
            const std::string copy = device + ".BitBlt ";
            const std::size_t from = line.find(" from mem");
            if (!line.starts_with(copy) || from == std::string::npos)
                continue;
            const std::string source = line.substr(from + 6);
            const std::string origin = source.substr(source.find(' ') + 1, source.rfind(' ') - source.find(' ') - 1);
            cells.push_back(grounds[source.substr(0, source.find(' '))] + " @ "
                + line.substr(copy.size(), from - copy.size()) + (origin == "0,0" ? "" : " from " + origin));
        }
        return cells;
    }
    std::vector<std::string> CellsOnStore() const { return CellsOn(BackStore().Name()); }
    std::vector<std::string> Repainted()
    {
        ClearJournal();
        pipeline.RepaintGrid();
        return CellsOnStore();
    }

    std::shared_ptr<FakeScreen> screen;

private:
    static std::string CellOfColor(const std::string& hex)
    {
        const int value = std::stoi(hex, nullptr, 16) - 0x010000;
        return std::to_string(value / 0x100) + "," + std::to_string(value % 0x100);
    }

    FakePaintTable(std::shared_ptr<FakeScreen> shared, Size client, int fixedRows, int rows, int fixedCols, int cols)
        : PaintTable(std::make_unique<FakeDevice>(shared, "window", client), client, fixedRows, rows, fixedCols, cols)
        , screen(shared)
    {
        ClearJournal();
    }
};

inline PicturePtr SolidPicture(int width, int height, PictureType type = PictureType::Bitmap)
{
    const std::vector<u8> rgba(static_cast<std::size_t>(width) * static_cast<std::size_t>(height) * 4, 255);
    return PictureObject::FromRgba(width, height, rgba, type);
}

} // namespace vornix
