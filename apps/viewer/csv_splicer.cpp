#include "csv_splicer.h"

#include <algorithm>

namespace vornix::viewer {

void CsvSplicer::Feed(std::u16string_view text)
{
    const std::uint64_t pieceEnd = place_ + text.size();
    SkipLineBreak(text);
    for (; next_ != end_ && next_->begin < pieceEnd; ++next_) {
        if (place_ < next_->begin)
            Copy(next_->begin, text);
        Skip(std::min(pieceEnd, next_->end), text);
        if (next_->end > pieceEnd)
            return; // it goes on in the next piece
        Emit(next_->text);
        if (next_->isWholeLine) {
            skipping_ = Break::Whole;
            SkipLineBreak(text);
        }
    }
    Copy(pieceEnd, text);
}

// What is put in at the end of the text begins where the last piece ended.
void CsvSplicer::Finish()
{
    for (; next_ != end_; ++next_)
        Emit(next_->text);
    if (skipping_ != Break::Whole)
        onText_(heldBreak_);
    heldBreak_.clear();
}

void CsvSplicer::Copy(std::uint64_t place, std::u16string_view& text)
{
    Emit(text.substr(0, static_cast<std::size_t>(place - place_)));
    Skip(place, text);
}

void CsvSplicer::Skip(std::uint64_t place, std::u16string_view& text)
{
    text.remove_prefix(static_cast<std::size_t>(place - place_));
    place_ = place;
}

void CsvSplicer::SkipLineBreak(std::u16string_view& text)
{
    if (skipping_ == Break::Whole && !text.empty()) {
        skipping_ = text.front() == u'\r' ? Break::LineFeed : Break::None;
        Skip(place_ + 1, text);
    }
    if (skipping_ == Break::LineFeed && !text.empty()) {
        skipping_ = Break::None;
        if (text.front() == u'\n')
            Skip(place_ + 1, text);
    }
}

void CsvSplicer::Emit(std::u16string_view text)
{
    if (text.empty())
        return;
    if (heldBreak_ == u"\r" && text == u"\n") {
        heldBreak_ += u'\n';
        return;
    }
    onText_(heldBreak_);
    const bool endsLine = text.back() == u'\n' || text.back() == u'\r';
    const std::size_t held = text.ends_with(u"\r\n") ? 2 : (endsLine ? 1 : 0);
    heldBreak_ = text.substr(text.size() - held);
    onText_(text.substr(0, text.size() - held));
}

} // namespace vornix::viewer
