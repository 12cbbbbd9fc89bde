// A grid in a container without a screen, and the few words that its tests share.
#pragma once

#include "vornix/event_handlers.h"
#include "vornix/headless_container.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace vornix {

inline std::optional<int> ErrorOf(const std::function<void()>& step)
{
    try {
        step();
    } catch (const AutomationError& error) {
        return error.Number();
    }
    return std::nullopt;
}

inline FontPtr MakeFont(std::u16string name, double size)
{
    FontObject font;
    font.Name = std::move(name);
    font.Size = size;
    font.Bold = true;
    font.Italic = true;
    font.Underline = true;
    font.Strikethrough = true;
    font.Charset = 2;
    return std::make_shared<const FontObject>(font);
}

inline PicturePtr MakePicture(ColorRef color, int width = 4, int height = 4)
{
    std::vector<u8> rgba;
    for (int i = 0; i < width * height; ++i) {
        rgba.push_back(static_cast<u8>(color & 0xFF));
        rgba.push_back(static_cast<u8>(color >> 8 & 0xFF));
        rgba.push_back(static_cast<u8>(color >> 16 & 0xFF));
        rgba.push_back(255);
    }
    return PictureObject::FromRgba(width, height, rgba);
}

// A cell by its public indices.
struct CellPlace {
    i16 Row;
    i16 Col;
    friend auto operator<=>(const CellPlace&, const CellPlace&) = default;
    friend void PrintTo(const CellPlace& place, std::ostream* out)
    {
        *out << "(" << place.Row << ", " << place.Col << ")";
    }
};

// Every cell that the store has, fillers included.
inline std::vector<CellPlace> AllCells(const Vornix& grid)
{
    std::vector<CellPlace> cells;
    for (int row = -grid.FixedRows(); row <= grid.Rows(); ++row) {
        for (int col = -grid.FixedCols(); col <= grid.Cols(); ++col)
            cells.push_back({ static_cast<i16>(row), static_cast<i16>(col) });
    }
    return cells;
}

inline std::vector<CellPlace> CellsWhere(const Vornix& grid, const std::function<bool(CellPlace)>& condition)
{
    std::vector<CellPlace> cells = AllCells(grid);
    std::erase_if(cells, [&](CellPlace cell) { return !condition(cell); });
    return cells;
}

// The readable attributes of one cell, as numbers and texts.
inline std::vector<std::string> LookOf(const Vornix& grid, CellPlace place)
{
    const auto [Row, Col] = place;
    std::string fontName;
    for (const char16_t unit : grid.CellFontName(Row, Col))
        fontName.push_back(static_cast<char>(unit));
    return { std::to_string(grid.CellBackColor(Row, Col)), std::to_string(grid.CellForeColor(Row, Col)),
        std::to_string(grid.CellBorderColor(Row, Col)), std::to_string(grid.CellEnabled(Row, Col)), fontName,
        std::to_string(grid.CellFontBold(Row, Col)), std::to_string(grid.CellFontItalic(Row, Col)),
        std::to_string(grid.CellFontUnderline(Row, Col)), std::to_string(grid.CellFontStrikeThrough(Row, Col)),
        std::to_string(grid.CellFontSize(Row, Col)), std::to_string(grid.CellGradientMode(Row, Col)),
        std::to_string(grid.CellGradientEnd(Row, Col)), std::to_string(grid.CellMode(Row, Col)),
        std::to_string(grid.CellPictureAlignment(Row, Col)), std::to_string(grid.CellStyle(Row, Col)),
        std::to_string(grid.TextAlignment(Row, Col)), std::to_string(grid.TextMarginLeft(Row, Col)),
        std::to_string(grid.TextMarginRight(Row, Col)), std::to_string(grid.ButtonPressed(Row, Col)),
        std::to_string(reinterpret_cast<std::uintptr_t>(grid.CellPicture(Row, Col).get())) };
}

// The cells whose look a step changes.
inline std::vector<CellPlace> CellsChangedBy(Vornix& grid, const std::function<void()>& step)
{
    const std::vector<CellPlace> cells = AllCells(grid);
    std::vector<std::vector<std::string>> before;
    for (const CellPlace cell : cells)
        before.push_back(LookOf(grid, cell));
    step();
    std::vector<CellPlace> changed;
    for (std::size_t i = 0; i < cells.size(); ++i) {
        if (LookOf(grid, cells[i]) != before[i])
            changed.push_back(cells[i]);
    }
    return changed;
}

class GridTest : public testing::Test {
protected:
    GridTest() { Make({}); }

    void Make(HeadlessOptions options)
    {
        options.events = &handlers;
        host = nullptr;
        host = std::make_unique<HeadlessContainer>(options);
    }
    void MakeDesign()
    {
        HeadlessOptions options;
        options.design = true;
        Make(options);
    }
    // A table of this size, nothing said about it yet.
    void Table(i16 rows, i16 cols, i16 fixedRows = 0, i16 fixedCols = 0)
    {
        Grid().SetFixedRows(fixedRows);
        Grid().SetFixedCols(fixedCols);
        Grid().SetRows(rows);
        Grid().SetCols(cols);
        host->ClearLog();
    }
    Vornix& Grid() { return host->Grid(); }
    std::vector<std::string> Reported() const { return host->PropertyChanges(); }

    EventHandlers handlers;
    std::unique_ptr<HeadlessContainer> host;
};

} // namespace vornix
