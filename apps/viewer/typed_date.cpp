#include "typed_date.h"

#include "cell_content.h"

#include <algorithm>

namespace vornix::viewer {

namespace {

bool IsDigit(char16_t unit)
{
    return unit >= u'0' && unit <= u'9';
}

bool FitsMask(std::u16string_view text)
{
    return std::equal(text.begin(), text.end(), DateMask.begin(), DateMask.end(),
        [](char16_t unit, char16_t place) { return place == u'0' ? IsDigit(unit) : unit == place; });
}

} // namespace

bool IsWholeDate(std::u16string_view text)
{
    return FitsMask(text) && (ContentOf(text) & DateOnly);
}

bool IsBlankDate(std::u16string_view text)
{
    return std::none_of(text.begin(), text.end(), IsDigit);
}

} // namespace vornix::viewer
