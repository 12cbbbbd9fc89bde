#include "interact/line_sizing.h"

namespace vornix {

LineSizing::LineSizing(LineSizingContext context)
    : context_(context)
{
}

HitResult LineSizing::HitTest(int x, int y)
{
    return context_.layout.HitTestCell(x, y);
}

void LineSizing::RestoreCursor()
{
    cursorShown_ = false;
    cursor_ = PointerShape::Default;
    context_.container.SetPointerShape(cursor_);
}

void LineSizing::UpdateCursor(int /*x*/, int /*y*/, const HitResult& /*hit*/) { }

bool LineSizing::Begin(int /*x*/, int /*y*/)
{
    return false;
}

void LineSizing::SizeTo(int /*x*/, int /*y*/) { }

void LineSizing::End()
{
    sizingCol_ = false;
    sizingRow_ = false;
}

void LineSizing::FitLine() { }

} // namespace vornix
