// Many texts of a grid at once.
#include "grid.h"

#include <string_view>
#include <vector>

namespace vornix::c {

namespace {

struct TextBlock {
    std::vector<std::uint32_t> codePoints;
    std::vector<std::uint32_t> lengths;
};

// Public indices, the second corner included.
struct CellRange {
    i16 row1;
    i16 col1;
    i16 row2;
    i16 col2;
};

bool IsHighSurrogate(char16_t unit)
{
    return (unit & 0xFC00) == 0xD800;
}

bool IsLowSurrogate(char16_t unit)
{
    return (unit & 0xFC00) == 0xDC00;
}

void Append(TextBlock& block, std::u16string_view text)
{
    const std::size_t before = block.codePoints.size();
    for (std::size_t i = 0; i < text.size(); ++i) {
        const char16_t unit = text[i];
        const bool isPair = IsHighSurrogate(unit) && i + 1 < text.size() && IsLowSurrogate(text[i + 1]);
        if (!isPair) {
            block.codePoints.push_back(unit);
            continue;
        }
        ++i;
        block.codePoints.push_back(0x10000u + (static_cast<std::uint32_t>(unit & 0x3FF) << 10) + (text[i] & 0x3FF));
    }
    block.lengths.push_back(static_cast<std::uint32_t>(block.codePoints.size() - before));
}

std::unique_ptr<TextBlock> ReadTexts(Vornix& control, const CellRange& range)
{
    auto block = std::make_unique<TextBlock>();
    for (int Col = range.col1; Col <= range.col2; ++Col) {
        for (int Row = range.row1; Row <= range.row2; ++Row)
            Append(*block, control.Text(static_cast<i16>(Row), static_cast<i16>(Col)));
    }
    return block;
}

} // namespace

} // namespace vornix::c

using namespace vornix::c;

std::int32_t vornix_read_texts(vornix_grid* grid, std::int16_t row1, std::int16_t col1, std::int16_t row2,
    std::int16_t col2, vornix_text_block* block)
{
    return GridCall(grid, [&](Call& call) {
        Require(block);
        auto texts = ReadTexts(call->Control(), { row1, col1, row2, col2 });
        *block = { texts->codePoints.data(), texts->codePoints.size(), texts->lengths.data(), texts->lengths.size(),
            texts.get() };
        texts.release();
    });
}

void vornix_text_block_clear(vornix_text_block* block)
{
    if (block == nullptr)
        return;
    delete static_cast<TextBlock*>(block->storage);
    *block = {};
}
