#include "control_members.h"

#include "vornix/picture.h"

#include <algorithm>
#include <limits>
#include <memory>
#include <tuple>
#include <type_traits>
#include <utility>
#include <vector>

namespace vornix::fuzz {

namespace {

FontPtr AnyFont(FuzzInput& input)
{
    constexpr double sizes[] = { 9, 12, 0, -3, 0.01, 300, 1e9, std::numeric_limits<double>::quiet_NaN() };
    if (input.Byte() % 8 == 0)
        return nullptr;
    auto font = std::make_shared<FontObject>();
    font->Name = input.Bool() ? u"DejaVu Sans" : input.Text(40);
    font->Size = sizes[input.Byte() % std::size(sizes)];
    font->Bold = input.Bool();
    font->Italic = input.Bool();
    font->Underline = input.Bool();
    font->Strikethrough = input.Bool();
    return font;
}

PicturePtr AnyPicture(FuzzInput& input)
{
    const int width = input.Between(0, 12);
    const int height = input.Between(0, 12);
    if (width == 0 || height == 0)
        return nullptr;
    std::vector<u8> rgba(static_cast<std::size_t>(width * height * 4));
    for (u8& value : rgba)
        value = input.Byte();
    return PictureObject::FromRgba(width, height, rgba);
}

// One argument, held for as long as the call runs.
template <typename Argument> struct Held {
    using Value = std::remove_cvref_t<Argument>;
    Value value;
    explicit Held(FuzzInput& input)
        : value(Make(input))
    {
    }
    static Value Make(FuzzInput& input)
    {
        if constexpr (std::is_same_v<Value, bool>)
            return input.Bool();
        else if constexpr (std::is_same_v<Value, i16>)
            return input.AnyI16();
        else if constexpr (std::is_same_v<Value, i32>)
            return input.AnyI32();
        else if constexpr (std::is_same_v<Value, u32>)
            return input.Bool() ? input.DoubleWord() : SystemOleColor(input.Byte());
        else if constexpr (std::is_same_v<Value, FontPtr>)
            return AnyFont(input);
        else
            return AnyPicture(input);
    }
    Argument Get() { return static_cast<Argument>(value); }
};

template <> struct Held<std::u16string_view> {
    std::u16string value;
    explicit Held(FuzzInput& input)
        : value(input.Text(60))
    {
    }
    std::u16string_view Get() const { return value; }
};

template <typename Result, typename... Arguments>
void CallWith(Vornix& grid, Result (Vornix::*member)(Arguments...), FuzzInput& input)
{
    std::tuple<Held<Arguments>...> held { Held<Arguments>(input)... };
    std::apply([&](auto&... each) { static_cast<void>((grid.*member)(each.Get()...)); }, held);
}

template <typename Result, typename... Arguments>
void CallWith(Vornix& grid, Result (Vornix::*member)(Arguments...) const, FuzzInput& input)
{
    std::tuple<Held<Arguments>...> held { Held<Arguments>(input)... };
    std::apply([&](auto&... each) { static_cast<void>((grid.*member)(each.Get()...)); }, held);
}

template <auto Member> void Call(Vornix& grid, FuzzInput& input)
{
    CallWith(grid, Member, input);
}

// Any count, but no table that a fuzzer would wait for: one of the four may be huge while the others are small.
template <auto Member> void CallWithCount(Vornix& grid, FuzzInput& input)
{
    constexpr int Few = 3;
    constexpr int Many = 60;
    const i16 count = input.AnyI16();
    const int largest = std::max({ grid.Rows(), grid.Cols(), grid.FixedRows(), grid.FixedCols() });
    const int limit = largest > Many ? Few : Many;
    const bool takeAsItIs = count <= limit || (largest <= Few && count > 32000);
    (grid.*Member)(takeAsItIs ? count : static_cast<i16>(count % limit));
}

// A few lines in at a place, or one where there are many.
template <auto Member, auto Count> void CallWithNewLines(Vornix& grid, FuzzInput& input)
{
    constexpr int Many = 60;
    const i16 place = input.AnyI16();
    const i16 count = input.AnyI16();
    (grid.*Member)(place, (grid.*Count)() > Many && count > 0 ? i16 { 1 } : static_cast<i16>(count % Many));
}

// Records and columns of texts, numbers and nothing.
void LoadAnArray(Vornix& grid, FuzzInput& input)
{
    VariantArray array;
    array.columns.resize(static_cast<std::size_t>(input.Between(0, 4)));
    const int records = input.Between(0, 6);
    for (std::vector<Variant>& column : array.columns)
        for (int record = 0; record < records; ++record)
            column.push_back(input.Bool() ? Variant(input.Text(20)) : input.Bool() ? Variant(2.5) : Variant());
    grid.LoadFromArray(array, input.Bool());
}

constexpr MemberCall acting[] = {
    Call<&Vornix::SetRedraw>,
    Call<&Vornix::Refresh>,
    Call<&Vornix::RefreshCell>,
    Call<&Vornix::SetBackColor>,
    Call<&Vornix::SetBackColorSel>,
    Call<&Vornix::SetForeColorSel>,
    Call<&Vornix::SetAltBkColor>,
    Call<&Vornix::SetAltForeColor>,
    Call<&Vornix::SetAltColorEnabled>,
    Call<&Vornix::SetGridLines>,
    Call<&Vornix::SetGridLineWidth>,
    Call<&Vornix::SetFocusRect>,
    Call<&Vornix::SetPicture>,
    Call<&Vornix::SetPictureMode>,
    Call<&Vornix::SetPictureBrightness>,
    Call<&Vornix::SetOpacity>,
    Call<&Vornix::SetUseMask>,
    Call<&Vornix::SetMaskColor>,
    Call<&Vornix::SetPictureAlpha>,
    CallWithCount<&Vornix::SetRows>,
    CallWithCount<&Vornix::SetCols>,
    CallWithCount<&Vornix::SetFixedRows>,
    CallWithCount<&Vornix::SetFixedCols>,
    Call<&Vornix::SetText>,
    Call<&Vornix::SetTextValue>,
    Call<&Vornix::SetKey>,
    Call<&Vornix::SetCellChecked>,
    Call<&Vornix::SetColName>,
    Call<&Vornix::SetColFormat>,
    Call<&Vornix::SetColMask>,
    Call<&Vornix::SetCellBackColor>,
    Call<&Vornix::SetCellForeColor>,
    Call<&Vornix::SetCellBorderColor>,
    Call<&Vornix::SetBoxBorder>,
    Call<&Vornix::SetCellEnabled>,
    Call<&Vornix::SetCheckEnable>,
    Call<&Vornix::SetCellFontName>,
    Call<&Vornix::SetCellFontBold>,
    Call<&Vornix::SetCellFontItalic>,
    Call<&Vornix::SetCellFontUnderline>,
    Call<&Vornix::SetCellFontStrikeThrough>,
    Call<&Vornix::SetCellFontSize>,
    Call<&Vornix::SetCellGradientMode>,
    Call<&Vornix::SetCellGradientEnd>,
    Call<&Vornix::SetCellMode>,
    Call<&Vornix::SetCellPicture>,
    Call<&Vornix::SetCellPictureAlignment>,
    Call<&Vornix::SetCellStyle>,
    Call<&Vornix::SetButtonPressed>,
    Call<&Vornix::SetTextAlignment>,
    Call<&Vornix::SetTextMarginLeft>,
    Call<&Vornix::SetTextMarginRight>,
    Call<&Vornix::SetColBackColor>,
    Call<&Vornix::SetColForeColor>,
    Call<&Vornix::SetColBorderColor>,
    Call<&Vornix::SetColEnabled>,
    Call<&Vornix::SetColFont>,
    Call<&Vornix::SetColGradientMode>,
    Call<&Vornix::SetColGradientEnd>,
    Call<&Vornix::SetColMode>,
    Call<&Vornix::SetColPicture>,
    Call<&Vornix::SetColPictureAlignment>,
    Call<&Vornix::SetColStyle>,
    Call<&Vornix::SetColTextAlign>,
    Call<&Vornix::SetColTextMarginLeft>,
    Call<&Vornix::SetColTextMarginRight>,
    Call<&Vornix::SetColLineColor>,
    Call<&Vornix::SetColResize>,
    Call<&Vornix::SetRowBackColor>,
    Call<&Vornix::SetRowForeColor>,
    Call<&Vornix::SetRowBorderColor>,
    Call<&Vornix::SetRowEnabled>,
    Call<&Vornix::SetRowFont>,
    Call<&Vornix::SetRowGradientMode>,
    Call<&Vornix::SetRowGradientEnd>,
    Call<&Vornix::SetRowMode>,
    Call<&Vornix::SetRowStyle>,
    Call<&Vornix::SetRowTextAlign>,
    Call<&Vornix::SetRowTextMarginLeft>,
    Call<&Vornix::SetRowTextMarginRight>,
    Call<&Vornix::SetRowLineColor>,
    Call<&Vornix::SetRowResize>,
    Call<&Vornix::SetCellsBackColor>,
    Call<&Vornix::SetCellsForeColor>,
    Call<&Vornix::SetCellsFont>,
    Call<&Vornix::SetDefaultBkColor>,
    Call<&Vornix::SetDefaultForeColor>,
    Call<&Vornix::SetDefaultBkColorFixed>,
    Call<&Vornix::SetDefaultForeColorFixed>,
    Call<&Vornix::SetDefaultMode>,
    Call<&Vornix::SetDefaultTextAlign>,
    Call<&Vornix::SetDefaultTextAlignFixed>,
    Call<&Vornix::SetDefaultLineColor>,
    Call<&Vornix::SetCommonTextAlign>,
    Call<&Vornix::SetFont>,
    Call<&Vornix::SetFontFixed>,
    Call<&Vornix::SetDefaultHeight>,
    Call<&Vornix::SetDefaultWidth>,
    Call<&Vornix::SetDefaultHeightFixed>,
    Call<&Vornix::SetDefaultWidthFixed>,
    Call<&Vornix::ResetGrid>,
    Call<&Vornix::SetColSpan>,
    Call<&Vornix::SetRowSpan>,
    Call<static_cast<void (Vornix::*)(i16, bool&)>(&Vornix::SpanRows)>,
    Call<&Vornix::RemoveSpanRows>,
    Call<&Vornix::HideRow>,
    Call<&Vornix::ShowRow>,
    Call<&Vornix::HideCol>,
    Call<&Vornix::ShowCol>,
    Call<&Vornix::SetRowHide>,
    Call<&Vornix::SetColHide>,
    Call<&Vornix::ReOrderCols>,
    Call<&Vornix::StoreVisualCell>,
    Call<&Vornix::RestoreVisualCell>,
    Call<&Vornix::RestoreVisualToCell>,
    Call<&Vornix::ClearVisualCell>,
    Call<&Vornix::SetColWidth>,
    Call<&Vornix::SetRowHeight>,
    Call<&Vornix::SetColWidthPercent>,
    Call<&Vornix::AdjustHeight>,
    Call<&Vornix::AdjustWidth>,
    Call<&Vornix::AutoSizeRows>,
    Call<&Vornix::SetResizingWidth>,
    Call<&Vornix::SetResizingRows>,
    Call<&Vornix::SetResizeMode>,
    Call<&Vornix::SetSelectMode>,
    Call<&Vornix::SetAdjustLast>,
    Call<&Vornix::SetBorderStyle>,
    Call<&Vornix::SetCaptionEnabled>,
    Call<&Vornix::SetCaption>,
    Call<&Vornix::SetSplitCols>,
    Call<&Vornix::SetShowSplit>,
    Call<&Vornix::SetFirstRow>,
    Call<&Vornix::SetFirstCol>,
    Call<&Vornix::SetScrollHBar>,
    Call<&Vornix::SetScrollVBar>,
    Call<&Vornix::SetScrollBarSize>,
    CallWithNewLines<&Vornix::InsertRows, &Vornix::Rows>,
    CallWithNewLines<&Vornix::InsertCols, &Vornix::Cols>,
    Call<&Vornix::DeleteRows>,
    Call<&Vornix::DeleteCols>,
    Call<&Vornix::MoveRow>,
    Call<&Vornix::MoveCol>,
    Call<&Vornix::SwapRows>,
    Call<&Vornix::SwapCols>,
    Call<&Vornix::CopyCell>,
    Call<&Vornix::CopyRow>,
    Call<&Vornix::CopyCol>,
    Call<&Vornix::ClearRow>,
    Call<&Vornix::ClearCol>,
    Call<&Vornix::ResetCells>,
    Call<&Vornix::Sort>,
    Call<&Vornix::SetSortOrder>,
    Call<&Vornix::SetSortCriteria>,
    Call<&Vornix::SetSortType>,
    Call<&Vornix::SetSortUseKey>,
    Call<&Vornix::SearchRow>,
    Call<&Vornix::SearchCol>,
    Call<&Vornix::CopyToClipboard>,
    Call<&Vornix::PasteFromClipboard>,
    LoadAnArray,
    Call<&Vornix::VXScriptAdd>,
    Call<&Vornix::VXScriptClear>,
    Call<&Vornix::VXScriptExecute>,
    Call<&Vornix::SetColSelected>,
    Call<&Vornix::SetRowSelected>,
    Call<&Vornix::SetSelectedCells>,
    Call<&Vornix::InvertSelect>,
    Call<&Vornix::DeselectAll>,
    Call<&Vornix::CurrentPos>,
    Call<&Vornix::EnterEdit>,
    Call<&Vornix::ExitEdit>,
    Call<&Vornix::SetSelText>,
};

constexpr MemberCall queries[] = {
    Call<&Vornix::Redraw>,
    Call<&Vornix::hDC>,
    Call<&Vornix::hWnd>,
    Call<&Vornix::BackColor>,
    Call<&Vornix::BackColorSel>,
    Call<&Vornix::ForeColorSel>,
    Call<&Vornix::AltBkColor>,
    Call<&Vornix::AltForeColor>,
    Call<&Vornix::AltColorEnabled>,
    Call<&Vornix::GridLines>,
    Call<&Vornix::GridLineWidth>,
    Call<&Vornix::FocusRect>,
    Call<&Vornix::Picture>,
    Call<&Vornix::PictureMode>,
    Call<&Vornix::PictureBrightness>,
    Call<&Vornix::Opacity>,
    Call<&Vornix::UseMask>,
    Call<&Vornix::MaskColor>,
    Call<&Vornix::ColorBrightness>,
    Call<&Vornix::Rows>,
    Call<&Vornix::Cols>,
    Call<&Vornix::FixedRows>,
    Call<&Vornix::FixedCols>,
    Call<&Vornix::Text>,
    Call<&Vornix::TextValue>,
    Call<&Vornix::Key>,
    Call<&Vornix::CellChecked>,
    Call<&Vornix::ColName>,
    Call<&Vornix::ColFormat>,
    Call<&Vornix::ColMask>,
    Call<&Vornix::CellBackColor>,
    Call<&Vornix::CellForeColor>,
    Call<&Vornix::CellBorderColor>,
    Call<&Vornix::BoxBorder>,
    Call<&Vornix::CellEnabled>,
    Call<&Vornix::CheckEnable>,
    Call<&Vornix::CellFontName>,
    Call<&Vornix::CellFontBold>,
    Call<&Vornix::CellFontItalic>,
    Call<&Vornix::CellFontUnderline>,
    Call<&Vornix::CellFontStrikeThrough>,
    Call<&Vornix::CellFontSize>,
    Call<&Vornix::CellGradientMode>,
    Call<&Vornix::CellGradientEnd>,
    Call<&Vornix::CellMode>,
    Call<&Vornix::CellPicture>,
    Call<&Vornix::CellPictureAlignment>,
    Call<&Vornix::CellStyle>,
    Call<&Vornix::ButtonPressed>,
    Call<&Vornix::TextAlignment>,
    Call<&Vornix::TextMarginLeft>,
    Call<&Vornix::TextMarginRight>,
    Call<&Vornix::ColEnabled>,
    Call<&Vornix::ColMode>,
    Call<&Vornix::ColPictureAlignment>,
    Call<&Vornix::ColStyle>,
    Call<&Vornix::ColTextAlign>,
    Call<&Vornix::ColTextMarginLeft>,
    Call<&Vornix::ColTextMarginRight>,
    Call<&Vornix::ColResize>,
    Call<&Vornix::RowResize>,
    Call<&Vornix::DefaultBkColor>,
    Call<&Vornix::DefaultForeColor>,
    Call<&Vornix::DefaultBkColorFixed>,
    Call<&Vornix::DefaultForeColorFixed>,
    Call<&Vornix::DefaultMode>,
    Call<&Vornix::DefaultTextAlign>,
    Call<&Vornix::DefaultTextAlignFixed>,
    Call<&Vornix::DefaultLineColor>,
    Call<&Vornix::CommonTextAlign>,
    Call<&Vornix::Font>,
    Call<&Vornix::FontFixed>,
    Call<&Vornix::DefaultHeight>,
    Call<&Vornix::DefaultWidth>,
    Call<&Vornix::DefaultHeightFixed>,
    Call<&Vornix::DefaultWidthFixed>,
    Call<&Vornix::ColSpan>,
    Call<&Vornix::RowSpan>,
    Call<&Vornix::ParentRow>,
    Call<&Vornix::ParentCol>,
    Call<&Vornix::IsParent>,
    Call<&Vornix::RowHide>,
    Call<&Vornix::ColHide>,
    Call<&Vornix::ColOrder>,
    Call<&Vornix::ColWidth>,
    Call<&Vornix::RowHeight>,
    Call<&Vornix::ColWidthPercent>,
    Call<&Vornix::ResizingWidth>,
    Call<&Vornix::ResizingRows>,
    Call<&Vornix::ResizeMode>,
    Call<&Vornix::SelectMode>,
    Call<&Vornix::AdjustLast>,
    Call<&Vornix::BorderStyle>,
    Call<&Vornix::CaptionEnabled>,
    Call<&Vornix::Caption>,
    Call<&Vornix::SplitCols>,
    Call<&Vornix::ShowSplit>,
    Call<&Vornix::GetCellAtPos>,
    Call<&Vornix::GetCellParentAtPos>,
    Call<&Vornix::GetPositionCell>,
    Call<&Vornix::GetSizeCell>,
    Call<&Vornix::GetSizeCells>,
    Call<&Vornix::CalcRectText>,
    Call<&Vornix::getWidthHeightCell>,
    Call<&Vornix::IsVisibleCell>,
    Call<&Vornix::IsVisibleRow>,
    Call<&Vornix::IsVisibleCol>,
    Call<&Vornix::GetScaleWidth>,
    Call<&Vornix::GetScaleHeight>,
    Call<&Vornix::FirstRow>,
    Call<&Vornix::FirstCol>,
    Call<&Vornix::LastRow>,
    Call<&Vornix::LastCol>,
    Call<&Vornix::ScrollHBar>,
    Call<&Vornix::ScrollVBar>,
    Call<&Vornix::ScrollBarSize>,
    Call<&Vornix::CurrentRow>,
    Call<&Vornix::CurrentCol>,
    Call<&Vornix::VirtualPageSize>,
    Call<&Vornix::VirtualOffset>,
    Call<&Vornix::SortOrder>,
    Call<&Vornix::SortType>,
    Call<&Vornix::CellSelected>,
    Call<&Vornix::ColSelected>,
    Call<&Vornix::RowSelected>,
    Call<&Vornix::IsEditMode>,
};

} // namespace

std::span<const MemberCall> ActingMembers()
{
    return acting;
}

std::span<const MemberCall> QueryMembers()
{
    return queries;
}

} // namespace vornix::fuzz
