// The pointer's shapes by the numbers that hosts know them under.
#pragma once

#include "vornix/picture.h"

#include <QCursor>

#include <optional>

namespace vornix {

// 0, and numbers that mean nothing, are the window's own shape. `picture` is for 99; its hot spot is the middle.
std::optional<QCursor> CursorFrom(i32 shape, const PictureObject* picture);

} // namespace vornix
