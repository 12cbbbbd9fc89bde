#include "model/cell.h"

#include "automation/checked.h"

#include <utility>

namespace vornix {

namespace {

bool IsPlain(const CellExtras& extras)
{
    return extras.Key.empty() && !extras.Picture && extras.RowSpan == 0 && extras.ColSpan == 0 && extras.ParentRow == 0
        && extras.ParentCol == 0 && !extras.ButtonPressed;
}

} // namespace

Cell::Cell(const Cell& other)
    : text_(other.text_)
    , format_(other.format_)
    , extras_(other.extras_ ? OrOutOfMemory([&] { return std::make_unique<CellExtras>(*other.extras_); }) : nullptr)
{
}

Cell& Cell::operator=(const Cell& other)
{
    return *this = Cell(other);
}

void Cell::SetKey(std::u16string_view key)
{
    if (!extras_ && key.empty())
        return;
    OrOutOfMemory([&] { Extras().Key = std::u16string(key); });
    ReleasePlainExtras();
}

const PicturePtr& Cell::Picture() const
{
    static const PicturePtr none;
    return extras_ ? extras_->Picture : none;
}

void Cell::SetPicture(PicturePtr picture)
{
    if (!extras_ && !picture)
        return;
    Extras().Picture = std::move(picture);
    ReleasePlainExtras();
}

void Cell::ClearSpan()
{
    if (!extras_)
        return;
    extras_->RowSpan = extras_->ColSpan = 0;
    extras_->ParentRow = extras_->ParentCol = 0;
    ReleasePlainExtras();
}

void Cell::CopyContents(const Cell& other)
{
    if (this == &other)
        return;
    OrOutOfMemory([&] { text_ = other.text_; });
    format_ = other.format_;
    SetKey(other.Key());
    SetPicture(other.Picture());
}

void Cell::ClearContents()
{
    text_.Clear();
    SetPicture(nullptr);
}

std::size_t Cell::HeapBytes() const
{
    std::size_t bytes = text_.HeapBytes();
    if (extras_) {
        bytes += sizeof(CellExtras);
        // A short key lies inside the string object.
        if (extras_->Key.capacity() > std::u16string().capacity())
            bytes += (extras_->Key.capacity() + 1) * sizeof(char16_t);
    }
    return bytes;
}

CellExtras& Cell::Extras()
{
    if (!extras_)
        extras_ = OrOutOfMemory([] { return std::make_unique<CellExtras>(); });
    return *extras_;
}

void Cell::ReleasePlainExtras()
{
    if (IsPlain(*extras_))
        extras_.reset();
}

} // namespace vornix
