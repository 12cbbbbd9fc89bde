#include "render/screen_cell.h"

#include "automation/checked.h"
#include "automation/colors.h"
#include "automation/format_patterns.h"
#include "automation/text_conversions.h"
#include "render/check_box.h"
#include "render/mask_blit.h"
#include "render/style_painter.h"
#include "render/text_placement.h"
#include "vornix/automation.h"

#include <algorithm>

namespace vornix {

namespace {

constexpr i32 FullOpacity = 100;

bool Intersects(const Rect& rect, Size size)
{
    return !rect.IsEmpty() && rect.left < size.width && rect.top < size.height && rect.right > 0 && rect.bottom > 0;
}

Rect WholeOf(const PictureObject& picture)
{
    return { 0, 0, picture.PixelWidth(), picture.PixelHeight() };
}

class DeviceTextMeasurer : public TextMeasurer {
public:
    DeviceTextMeasurer(Device& device, std::u16string_view text)
        : device_(device)
        , text_(text)
    {
    }

    int MeasuredBottom(const Rect& within, u32 format) override
    {
        Rect measured = within;
        device_.DrawText(text_, measured, format | DT_CALCRECT);
        return measured.bottom;
    }

private:
    Device& device_;
    std::u16string_view text_;
};

} // namespace

ScreenCell::ScreenCell(CellPainter& painter, const PaintJob& job, const CellPlacement& place)
    : painter_(painter)
    , job_(job)
    , place_(place)
{
}

void ScreenCell::Paint()
{
    if (!ReadCell())
        return;
    ChooseStyle();
    if (!CreateSurface())
        return;
    ChooseColors();
    ChooseSelection();
    PaintGround();
    PaintBackgroundPicture();
    PaintSelectionGround();
    if (customDraw_) {
        const DrawnByHost drawn = RaiseDrawCell();
        if (drawn == DrawnByHost::Everything)
            CopyOut(*job_.target);
        if (drawn != DrawnByHost::Nothing)
            return;
    }
    PaintPicture();
    ChooseCurrent();
    PaintContent();
    PaintPressedLook();
    PaintEdges();
    CopyOut(*job_.target);
    if (job_.mirror)
        CopyOut(*job_.mirror);
    PaintFocus();
}

// False when the cell is not in the store, or not any more.
bool ScreenCell::ReadCell()
{
    const GridStore& store = Context().store;
    if (!store.ContainsRow(place_.row) || !store.ContainsCol(place_.col))
        return false;
    cell_ = &store.CellAt(place_.row, place_.col);
    format_ = &store.FormatOf(*cell_);
    prepared_ = &painter_.formats_.Prepared(cell_->FormatNumber(), *format_);
    return true;
}

void ScreenCell::ChooseStyle()
{
    style_ = format_->Style;
    customDraw_ = (style_ & vxCustomDraw) != 0;
    if (customDraw_)
        style_ &= ~vxCustomDraw;
    const bool isButton = format_->Mode == vxCommandButton || format_->Mode == vxPressButton;
    pressedNow_ = isButton && Context().interaction.IsPressed(place_.row, place_.col);
    nonFixed_ = place_.row >= Context().store.FixedRows() && place_.col >= Context().store.FixedCols();
}

// A host's handler may replace or free what lies below, and a pressed look moves pixels that may not show: both get
// pixels of their own. Any other cell may be composed where it is going to be.
bool ScreenCell::CreateSurface()
{
    const Rect visible = place_.Visible();
    if (!customDraw_ && !Intersects(visible, job_.target->GetSize()))
        return false;
    const bool ownPixels = customDraw_ || pressedNow_ || cell_->ButtonPressed();
    ownSurface_ = ownPixels ? job_.target->CreateCompatible(place_.size, place_.Origin())
                            : job_.target->ComposeAt(place_.Origin(), place_.size, visible);
    mem_ = ownSurface_.get();
    return mem_ != nullptr;
}

void ScreenCell::ChooseColors()
{
    alternate_ = nonFixed_ && Settings().AltColorEnabled && (place_.row - Context().store.FixedRows()) % 2 == 1;
    back_ = prepared_->back;
    if (alternate_ && back_ == Palette().defaultBack)
        back_ = Palette().altBack;
}

void ScreenCell::PaintGround()
{
    if (style_ == vxCellRoundBox)
        PrepareRoundBox(*mem_, place_.size, Palette().back);
    if (IsGroundCovered())
        return;
    if (format_->GradientMode != vxGradientNone)
        PaintGradient(*mem_, place_.size, format_->GradientMode, format_->GradientStart, format_->GradientStop);
    else
        mem_->FillRect(Whole(), back_);
}

void ScreenCell::PaintBackgroundPicture()
{
    if (!nonFixed_ || !painter_.background_.HasPicture() || job_.withoutBackground || IsGroundCovered())
        return;
    const Surface* const background = painter_.background_.BackGroundDC();
    if (!background)
        return;
    const i32 mode = Settings().PictureMode;
    Point from { place_.position.x - Context().layout.FixedColsWidth(),
        place_.position.y - Context().layout.FixedRowsHeight() };
    if (mode == vxPicColumn || mode == vxPicCell)
        from.x = 0;
    if (mode == vxPicRow || mode == vxPicCell)
        from.y = 0;
    const bool defaultGround = back_ == Palette().defaultBack && format_->GradientMode == vxGradientNone;
    if (defaultGround)
        mem_->BitBlt(FromSource(place_.size), *background, from, RasterOp::SrcCopy);
    else if (Settings().Opacity != FullOpacity)
        BlendFrom(*background, from);
}

void ScreenCell::ChooseSelection()
{
    selected_ = nonFixed_ && Context().interaction.IsSelected(*cell_, place_.row, place_.col, job_.printing);
}

bool ScreenCell::IsGroundCovered() const
{
    return selected_ && Settings().Opacity == FullOpacity;
}

void ScreenCell::PaintSelectionGround()
{
    if (!selected_)
        return;
    const ColorRef color = Palette().selectedBack;
    if (Settings().Opacity == FullOpacity) {
        mem_->FillRect(Whole(), color);
        return;
    }
    const Surface* const solid
        = painter_.selectionSurface_.FillBkGroundRect(*job_.target, color, place_.size.width, place_.size.height);
    if (solid)
        BlendFrom(*solid, {});
}

// The source rectangle must not leave the source: what fails is tried again with what lies in the client area.
void ScreenCell::BlendFrom(const Surface& source, Point sourceOrigin)
{
    const u32 blend = MakeBlendFunction(Settings().Opacity);
    const auto tryBlend = [&](Size size) {
        const Rect from { sourceOrigin.x, sourceOrigin.y, sourceOrigin.x + size.width, sourceOrigin.y + size.height };
        return mem_->AlphaBlend(FromSource(size), source, from, blend);
    };
    if (!tryBlend(place_.size))
        tryBlend(RoomInClient());
}

Rect ScreenCell::FromSource(Size size) const
{
    return { place_.source.x, place_.source.y, place_.source.x + size.width, place_.source.y + size.height };
}

Size ScreenCell::RoomInClient() const
{
    return { Context().layout.ClientWidth() - place_.position.x, Context().layout.ClientHeight() - place_.position.y };
}

ScreenCell::DrawnByHost ScreenCell::RaiseDrawCell()
{
    const int publicRow = place_.row - Context().store.FixedRows();
    const int publicCol = place_.col - Context().store.FixedCols();
    Hdc handle = mem_->Handle();
    bool cancel = false;
    cell_ = nullptr;
    format_ = nullptr;
    prepared_ = nullptr;
    {
        const RedrawGate::Closed closed(Context().gate);
        Context().events.DrawCell(ToI16(publicRow), ToI16(publicCol), handle, cancel);
    }
    if (job_.stopped || !AdoptSurface(handle))
        return DrawnByHost::CannotGoOn;
    if (cancel)
        return DrawnByHost::Everything;
    // Colours, formats and the cell itself may have been written by the handler.
    painter_.BeginPaint();
    return ReadCell() ? DrawnByHost::Nothing : DrawnByHost::CannotGoOn;
}

// The handle goes to the handler by reference: a device of its own put there is drawn on and copied from.
bool ScreenCell::AdoptSurface(Hdc handle)
{
    if (handle != mem_->Handle())
        mem_ = dynamic_cast<Surface*>(DeviceFromHandle(handle));
    return mem_ != nullptr;
}

void ScreenCell::PaintPicture()
{
    const PicturePtr& picture = cell_->Picture();
    if (!picture || picture->Handle() == 0)
        return;
    const bool stretched = (format_->PictureAlignment & vxStretch) != 0;
    if (picture->Type() == PictureType::Icon) {
        stretched ? PaintStretchedIcon(*picture) : PaintIcon(*picture);
        return;
    }
    Surface* const surface = painter_.pictures_.SurfaceOf(picture, *job_.target);
    if (!surface)
        return;
    if (stretched)
        mem_->StretchBlt(Whole(), *surface, WholeOf(*picture), RasterOp::SrcCopy);
    else
        PaintBitmap(*surface);
}

void ScreenCell::PaintIcon(const PictureObject& icon)
{
    const Size size = PicturePixelSize(icon, painter_.twipsPerPixel_);
    const Point place = PicturePlace(format_->PictureAlignment, place_.size, size, Settings().GridLineWidth);
    mem_->DrawIcon(place.x, place.y, icon);
}

// An icon has no stretched form of its own: it is drawn on the ground as it will be seen in the icon's size, and both
// are stretched together.
void ScreenCell::PaintStretchedIcon(const PictureObject& icon)
{
    const Rect whole = WholeOf(icon);
    const std::unique_ptr<Surface> natural = job_.target->CreateCompatible({ whole.right, whole.bottom });
    if (!natural)
        return;
    natural->StretchBlt(whole, *mem_, Whole(), RasterOp::SrcCopy);
    natural->DrawIcon(0, 0, icon);
    mem_->StretchBlt(Whole(), *natural, whole, RasterOp::SrcCopy);
}

void ScreenCell::PaintBitmap(Surface& picture)
{
    const Size size = PicturePixelSize(*cell_->Picture(), painter_.twipsPerPixel_);
    const Point place = PicturePlace(format_->PictureAlignment, place_.size, size, Settings().GridLineWidth);
    if (Settings().UseMask == vxNoMask) {
        const Rect target { place.x, place.y, place.x + size.width, place.y + size.height };
        mem_->BitBlt(target, picture, {}, RasterOp::SrcCopy);
        return;
    }
    const ColorRef transparent = Settings().UseMask == vxTopLeftPixel
        ? picture.GetPixel(0, 0)
        : OleTranslateColor(Settings().MaskColor, Context().container.Colors());
    MaskBlit(*mem_, place, size, picture, transparent, selected_);
}

void ScreenCell::ChooseCurrent()
{
    const InteractionView& interaction = Context().interaction;
    current_ = interaction.IsCurrentCell(place_.row, place_.col) && !interaction.IsEditing();
}

void ScreenCell::PaintContent()
{
    if (format_->Mode == vxCheckBox)
        PaintCheckBox();
    else
        PaintText();
}

void ScreenCell::PaintText()
{
    const std::u16string_view text = ShownText();
    if (text.empty())
        return;
    mem_->SelectFont(prepared_->font);
    if (current_ && Settings().FocusRect == vxFocusSelect) {
        mem_->SetTextColor(Palette().selectedFore);
        mem_->SetBkColor(Palette().selectedBack);
        mem_->SetBkMode(BackgroundMode::Opaque);
    } else {
        mem_->SetTextColor(TextColor());
        mem_->SetBkMode(BackgroundMode::Transparent);
    }
    const TextFrame frame {
        .cell = place_.size,
        .marginLeft = format_->TextMarginLeft,
        .marginRight = format_->TextMarginRight,
        .gridLineWidth = Settings().GridLineWidth,
        .sourceY = place_.source.y,
        .roomBelow = RoomInClient().height,
    };
    DeviceTextMeasurer measurer(*mem_, text);
    TextPlacement placement = PlaceText(format_->TextAlignment, frame, measurer);
    mem_->DrawText(text, placement.rect, placement.format);
}

ColorRef ScreenCell::TextColor() const
{
    const bool isCaption = Context().layout.Settings.CaptionEnabled && place_.row == 0;
    if (selected_ && !isCaption)
        return Palette().selectedFore;
    if (alternate_ && prepared_->fore == Palette().defaultFore)
        return Palette().altFore;
    return prepared_->fore;
}

// The text, or what the column's format makes of it.
std::u16string_view ScreenCell::ShownText()
{
    std::u16string& scratch = painter_.scratch_;
    const std::u16string_view text = cell_->TextView(scratch);
    const std::u16string& pattern = Context().store.ColumnAt(place_.col).Format;
    if (pattern.empty())
        return text;
    scratch = FormatText(text, pattern, Context().container.GetLocale());
    return scratch;
}

void ScreenCell::PaintCheckBox()
{
    const i32 alignment = format_->TextAlignment;
    mem_->DrawFrameControl(CheckBoxRect(alignment, place_.size, Settings().GridLineWidth), DFC_BUTTON,
        CheckBoxState(IsCellChecked(), format_->Disabled, alignment));
}

bool ScreenCell::IsCellChecked() const
{
    return cell_->HasText() && IsTrueText(cell_->TextView(painter_.scratch_), Context().container.GetLocale());
}

void ScreenCell::PaintPressedLook()
{
    const bool latched = cell_->ButtonPressed();
    if (!pressedNow_ && !latched)
        return;
    const Size size = place_.size;
    mem_->BitBlt({ 1, 1, size.width - 1, size.height - 1 }, *mem_, {}, RasterOp::SrcCopy);
    const FrameColors colors { format_->LightShade, prepared_->shadow, format_->DarkShade, Palette().back };
    if (style_ == vxCellRoundBox)
        PaintRoundFrame(*mem_, size, colors);
    else if (format_->Mode != vxPressButton)
        mem_->FrameRect(Whole(), colors.shadow);
    else
        PaintSunkenEdges(*mem_, size, colors);
    // A latched press on a flat cell keeps its grid lines.
    edgeDone_ = !latched || style_ != vxCellFlat;
}

void ScreenCell::PaintEdges()
{
    if (edgeDone_)
        return;
    const FrameColors colors { format_->LightShade, prepared_->shadow, format_->DarkShade, Palette().back };
    edgeDone_ = PaintStyleEdges(*mem_, place_.size, style_, colors);
    if (style_ == vxCellRoundBox && format_->GradientMode == vxGradientTB && !selected_)
        PaintRoundBoxSide(*mem_, place_.size, prepared_->back);
    if (edgeDone_ || Settings().GridLines == vxNone)
        return;
    const SystemColors& systemColors = Context().container.Colors();
    const GridStore& store = Context().store;
    PaintGridLines(*mem_, place_.size,
        { .kind = Settings().GridLines,
            .width = std::max<int>(Settings().GridLineWidth, 1),
            .rowColor = OleTranslateColor(store.RowAt(place_.row).LineColor, systemColors),
            .colColor = OleTranslateColor(store.ColumnAt(place_.col).LineColor, systemColors) });
}

void ScreenCell::CopyOut(Device& target) const
{
    const Rect area { place_.position.x, place_.position.y, place_.position.x + place_.size.width,
        place_.position.y + place_.size.height };
    target.BitBlt(area, *mem_, place_.source, RasterOp::SrcCopy);
}

void ScreenCell::PaintFocus() const
{
    const bool wanted = current_ && nonFixed_ && !job_.withoutFocus && Settings().FocusRect != vxFocusSelect
        && !Context().interaction.SuppressesFocusMark();
    if (wanted)
        DrawFocusMark(job_, place_.Visible(), Settings().FocusRect);
}

} // namespace vornix
