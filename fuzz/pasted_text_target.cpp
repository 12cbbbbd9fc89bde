// Texts pasted into a small table against a plain reading of them: the same cells hold the same.
#include "data_exchange/plain_paste.h"
#include "fuzz_input.h"

using namespace vornix;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    fuzz::FuzzInput input(data, size);
    const u8 shape = input.Byte();
    const int rows = 1 + shape / 16 % 8;
    const int cols = 1 + shape % 8;
    // A byte a unit, so that the inputs can be read.
    const auto bytes = input.RestBytes();
    const std::u16string text(bytes.begin(), bytes.end());
    const PasteStories stories = StoriesOfPaste(text, rows, cols);
    fuzz::Require(stories.fast == stories.plain, "a paste leaves what the plain one leaves");
    return 0;
}
