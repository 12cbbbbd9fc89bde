// One cell on its way to the screen: the steps of its picture, in the order they are laid over one another.
#pragma once

#include "render/cell_painter.h"

#include <memory>

namespace vornix {

class ScreenCell {
public:
    ScreenCell(CellPainter& painter, const PaintJob& job, const CellPlacement& place);

    void Paint();

private:
    // How the handler of DrawCell left things.
    enum class DrawnByHost { Nothing, Everything, CannotGoOn };

    bool ReadCell();
    bool CreateSurface();
    void ChooseStyle();
    void ChooseColors();
    void PaintGround();
    void PaintBackgroundPicture();
    void ChooseSelection();
    // By the colour of selected cells.
    bool IsGroundCovered() const;
    void PaintSelectionGround();
    DrawnByHost RaiseDrawCell();
    bool AdoptSurface(Hdc handle);
    void PaintPicture();
    void PaintIcon(const PictureObject& icon);
    void PaintStretchedIcon(const PictureObject& icon);
    void PaintBitmap(Surface& picture);
    void ChooseCurrent();
    void PaintContent();
    void PaintText();
    ColorRef TextColor() const;
    std::u16string_view ShownText();
    void PaintCheckBox();
    bool IsCellChecked() const;
    void PaintPressedLook();
    void PaintEdges();
    void CopyOut(Device& target) const;
    void PaintFocus() const;

    Rect Whole() const { return { 0, 0, place_.size.width, place_.size.height }; }
    // The part of the cell's surface that backgrounds are copied to, cut to what lies in the client area when asked.
    Rect FromSource(Size size) const;
    Size RoomInClient() const;
    void BlendFrom(const Surface& source, Point sourceOrigin);
    const PaintContext& Context() const { return painter_.context_; }
    const PaintSettings& Settings() const { return painter_.settings_; }
    const PaintPalette& Palette() const { return painter_.palette_; }

    CellPainter& painter_;
    const PaintJob& job_;
    const CellPlacement& place_;

    // Into the store: read anew after the event.
    const Cell* cell_ = nullptr;
    const CellFormat* format_ = nullptr;
    const PreparedFormat* prepared_ = nullptr;

    std::unique_ptr<Surface> ownSurface_;
    Surface* mem_ = nullptr;
    i32 style_ = vxCellFlat;
    bool customDraw_ = false;
    bool pressedNow_ = false;
    bool nonFixed_ = false;
    bool alternate_ = false;
    bool selected_ = false;
    bool current_ = false;
    bool edgeDone_ = false;
    ColorRef back_ = 0;
};

} // namespace vornix
