// Any text through any pattern.
#include "automation/format_patterns.h"
#include "fuzz_input.h"
#include "vornix/automation.h"

using namespace vornix;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    fuzz::FuzzInput input(data, size);
    const std::u16string text = input.Text(200);
    const std::u16string pattern = input.Bool() ? input.Text(300) : input.Rest();
    fuzz::Require(FormatText(text, u"") == text, "an empty pattern leaves the text");
    const std::u16string formatted = FormatText(text, pattern);
    fuzz::Require(formatted == FormatText(text, pattern), "a pattern gives the same text twice");
    return 0;
}
