#include "qt_cursor.h"

#include <QImage>
#include <QPixmap>

namespace vornix {

namespace {

constexpr i32 OfPicture = 99;

struct NumberAndShape {
    i32 number;
    Qt::CursorShape shape;
};

constexpr NumberAndShape shapes[] = {
    { 1, Qt::ArrowCursor },
    { 2, Qt::CrossCursor },
    { 3, Qt::IBeamCursor },
    { 4, Qt::SizeAllCursor },
    { 5, Qt::SizeAllCursor },
    { 6, Qt::SizeBDiagCursor },
    { 7, Qt::SizeVerCursor },
    { 8, Qt::SizeFDiagCursor },
    { 9, Qt::SizeHorCursor },
    { 10, Qt::UpArrowCursor },
    { 11, Qt::WaitCursor },
    { 12, Qt::ForbiddenCursor },
    { 13, Qt::BusyCursor },
    { 14, Qt::WhatsThisCursor },
    { 15, Qt::SizeAllCursor },
};

std::optional<QCursor> CursorOf(const PictureObject* picture)
{
    if (!picture || picture->Pixels().empty())
        return std::nullopt;
    const QImage image(reinterpret_cast<const uchar*>(picture->Pixels().data()), picture->PixelWidth(),
        picture->PixelHeight(), QImage::Format_ARGB32);
    return QCursor(QPixmap::fromImage(image.copy()));
}

} // namespace

std::optional<QCursor> CursorFrom(i32 shape, const PictureObject* picture)
{
    if (shape == OfPicture)
        return CursorOf(picture);
    for (const NumberAndShape& known : shapes) {
        if (known.number == shape)
            return QCursor(known.shape);
    }
    return std::nullopt;
}

} // namespace vornix
