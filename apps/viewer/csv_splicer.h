// Copies a text with pieces of it replaced.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace vornix::viewer {

// What takes the place of a part of the text, in UTF-16 units of all of it.
struct Splice {
    std::uint64_t begin = 0;
    std::uint64_t end = 0;
    std::u16string text = {};
    // The line break behind it goes too; at the end of the text, where there may be none, the one before.
    bool isWholeLine = false;
};

// The text comes in pieces of any size. The splices, which must outlive this, are in their order and do not overlap.
class CsvSplicer {
public:
    using TextFunction = std::function<void(std::u16string_view)>;

    CsvSplicer(const std::vector<Splice>& splices, TextFunction onText)
        : next_(splices.begin())
        , end_(splices.end())
        , onText_(std::move(onText))
    {
    }

    void Feed(std::u16string_view text);
    void Finish();

private:
    enum class Break { None, Whole, LineFeed };

    // Both go on to that place, which is not before the present one.
    void Copy(std::uint64_t place, std::u16string_view& text);
    void Skip(std::uint64_t place, std::u16string_view& text);
    void SkipLineBreak(std::u16string_view& text);
    void Emit(std::u16string_view text);

    std::vector<Splice>::const_iterator next_;
    const std::vector<Splice>::const_iterator end_;
    const TextFunction onText_;
    std::uint64_t place_ = 0; // in all of the text
    Break skipping_ = Break::None;
    std::u16string heldBreak_; // the line break that the text so far ends with
};

} // namespace vornix::viewer
