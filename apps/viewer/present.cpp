#include "present.h"

#include "looks.h"
#include "notices.h"
#include "wide_texts.h"

#include <algorithm>
#include <memory>
#include <string>

namespace vornix::viewer {

namespace {

constexpr i16 CaptionHeight = 34;
constexpr i16 HeaderHeight = 26;
constexpr i16 RowHeight = 24;
constexpr int NarrowestColumn = 44;
constexpr int WidestColumn = 340;
constexpr int CheckBoxColumn = 64;
// The painter's own insets left and right of a text, the grid line, and air.
constexpr int TextInsets = 4 + 4 + 1 + 6;

// How many texts of a column are measured.
constexpr std::size_t MeasuredTexts = 8;

constexpr i32 OneLine = vxSingleLine | vxTxtVCenter;

FontPtr FontLike(const FontPtr& font, double size, bool bold)
{
    auto made = std::make_shared<FontObject>(*font);
    made->Size = size;
    made->Bold = bold;
    return made;
}

// Width of a text on one line, in logical pixels.
class TextMeasure {
public:
    explicit TextMeasure(Device& device)
        : device_(device)
    {
    }

    // Line breaks count as in a cell of one line, which is drawn by the same call.
    int Width(const FontPtr& font, std::u16string_view text)
    {
        constexpr std::size_t LongEnough = 400; // the widest column is reached long before
        FontDescription description;
        description.face = font->Name;
        description.height = -static_cast<int>(font->Size * 20 / 15 + 0.5);
        description.weight = font->Bold ? 700 : 400;
        device_.SelectFont(description);
        Rect extent;
        device_.DrawText(text.substr(0, LongEnough), extent, DT_CALCRECT | DT_SINGLELINE | DT_NOPREFIX);
        return extent.Width();
    }

private:
    Device& device_;
};

i32 TextAlignmentOf(ColumnKind kind)
{
    switch (AlignmentOf(kind)) {
    case Alignment::Right:
        return OneLine | vxTxtRight;
    case Alignment::Center:
        return OneLine | vxTxtCenter;
    case Alignment::Left:
        break;
    }
    return OneLine | vxWordEllipsis;
}

class Presenter {
public:
    Presenter(Vornix& grid, Device& device, const SystemColors& colors, const Table& table)
        : grid_(grid)
        , looks_(LooksFrom(colors))
        , measure_(device)
        , table_(table)
        , bodyFont_(FontLike(grid.Font(), 9.75, false))
        , headerFont_(FontLike(grid.Font(), 9, true))
        , captionFont_(FontLike(grid.Font(), 12, true))
    {
    }

    void Present()
    {
        grid_.SetRedraw(false);
        SetTemplates();
        SetCounts();
        FillRowNumbers();
        for (int col = 0; col < table_.ColumnCount(); ++col)
            PresentColumn(col);
        PresentFixedLines();
        grid_.SetRedraw(true);
    }

private:
    void SetTemplates()
    {
        grid_.SetFont(bodyFont_);
        grid_.SetFontFixed(headerFont_);
        grid_.SetBackColor(looks_.ground);
        grid_.SetDefaultBkColor(looks_.ground);
        grid_.SetDefaultForeColor(looks_.ink);
        grid_.SetDefaultForeColorFixed(looks_.headerInk);
        grid_.SetDefaultBkColorFixed(looks_.headerGround);
        grid_.SetDefaultLineColor(looks_.line);
        grid_.SetDefaultHeight(RowHeight);
        grid_.SetDefaultTextAlignFixed(OneLine);
        grid_.SetAltColorEnabled(true);
        grid_.SetAltBkColor(looks_.alternateGround);
        grid_.SetAltForeColor(looks_.ink);
        // A picture shows cells alone; a window turns the bars on.
        grid_.SetScrollHBar(vxNoScrollBar);
        grid_.SetScrollVBar(vxNoScrollBar);
    }

    void SetCounts()
    {
        grid_.SetCols(0);
        grid_.SetRows(0);
        grid_.SetFixedCols(1);
        grid_.SetFixedRows(HeaderLines);
        grid_.SetCols(static_cast<i16>(table_.ColumnCount()));
        grid_.SetRows(static_cast<i16>(table_.RowCount()));
    }

    void FillRowNumbers()
    {
        std::u16string last;
        for (int row = 0; row < table_.RowCount(); ++row) {
            const std::string number = std::to_string(row + 1);
            last.assign(number.begin(), number.end());
            grid_.SetText(static_cast<i16>(row), -1, last);
        }
        grid_.SetColFont(-1, FontLike(bodyFont_, 8, false));
        grid_.SetColForeColor(-1, looks_.faintInk);
        grid_.SetColTextAlign(-1, OneLine | vxTxtRight);
        grid_.SetColStyle(-1, vxCellFlat);
        grid_.SetColWidth(-1, static_cast<i16>(std::max(30, measure_.Width(bodyFont_, last) + TextInsets)));
    }

    void PresentColumn(int column)
    {
        const i16 Col = static_cast<i16>(column);
        const Column& source = table_.Columns()[static_cast<std::size_t>(column)];
        grid_.SetColName(Col, source.name);
        grid_.SetText(-1, Col, source.name);
        if (source.kind == ColumnKind::Boolean)
            PresentCheckBoxes(Col);
        else
            PresentTexts(Col, source.kind);
        // The header stands over its values: numbers to the right, names to the left.
        grid_.SetTextAlignment(-1, Col, TextAlignmentOf(source.kind));
        grid_.SetColWidth(Col, static_cast<i16>(WidthOf(column)));
    }

    void PresentTexts(i16 Col, ColumnKind kind)
    {
        grid_.SetColTextAlign(Col, TextAlignmentOf(kind));
        for (int row = 0; row < table_.RowCount(); ++row)
            grid_.SetText(static_cast<i16>(row), Col, table_.Text(row, Col));
    }

    void PresentCheckBoxes(i16 Col)
    {
        grid_.SetColMode(Col, vxCheckBox);
        grid_.SetColTextAlign(Col, vxTxtCenter | vxTxtVCenter);
        for (int row = 0; row < table_.RowCount(); ++row) {
            const i16 Row = static_cast<i16>(row);
            // What is neither true nor false, as a null or a blank, shows no box.
            if (table_.HasTruthValue(row, Col))
                grid_.SetCellChecked(Row, Col, table_.IsTrue(row, Col));
            else
                grid_.SetCellMode(Row, Col, vxCellFixed);
        }
    }

    int WidthOf(int column)
    {
        const Column& source = table_.Columns()[static_cast<std::size_t>(column)];
        const int content = source.kind == ColumnKind::Boolean ? CheckBoxColumn - TextInsets : WidthOfTexts(column);
        const int width = std::max(content, measure_.Width(headerFont_, source.name)) + TextInsets;
        return std::clamp(width, NarrowestColumn, WidestColumn);
    }

    int WidthOfTexts(int column)
    {
        int width = 0;
        for (const int row : WidestRows(table_, column, MeasuredTexts)) {
            width = std::max(width, measure_.Width(bodyFont_, table_.Text(row, column)));
            if (width >= WidestColumn)
                break;
        }
        return width;
    }

    void PresentFixedLines()
    {
        grid_.SetRowStyle(-1, vxCellFlat);
        grid_.SetRowHeight(-1, HeaderHeight);
        grid_.SetText(-1, -1, u"#");
        grid_.SetTextAlignment(-1, -1, OneLine | vxTxtRight);
        grid_.SetCellStyle(-1, -1, vxCellFlat);

        grid_.SetRowHeight(-HeaderLines, CaptionHeight);
        grid_.SetRowStyle(-HeaderLines, vxCellFlat);
        grid_.SetRowFont(-HeaderLines, captionFont_);
        grid_.SetRowTextAlign(-HeaderLines, OneLine);
        grid_.SetRowBackColor(-HeaderLines, looks_.ground);
        grid_.SetRowForeColor(-HeaderLines, looks_.ink);
        grid_.SetCaptionEnabled(true);
        grid_.SetCaption(table_.Name());
        grid_.SetTextMarginLeft(-HeaderLines, 0, 4);
    }

    Vornix& grid_;
    const Looks looks_;
    TextMeasure measure_;
    const Table& table_;
    FontPtr bodyFont_;
    FontPtr headerFont_;
    FontPtr captionFont_;
};

} // namespace

void PresentTable(Vornix& grid, Device& device, const SystemColors& colors, const Table& table)
{
    Presenter(grid, device, colors, table).Present();
}

std::string StatusLine(const Table& table)
{
    return StatusLine(table.RowCount(), table.TotalRows(), table.ColumnCount());
}

std::string StatusLine(int shownRows, std::uint64_t totalRows, int columns)
{
    const std::string columnsText = Counted(static_cast<std::uint64_t>(columns), "column");
    const auto shown = static_cast<std::uint64_t>(shownRows);
    if (shown == totalRows)
        return Counted(shown, "row") + ", " + columnsText;
    return "the first " + WithGroups(shown) + " of " + Counted(totalRows, "row") + ", " + columnsText;
}

} // namespace vornix::viewer
