#include "automation/text_compare.h"

namespace vornix {

int CompareTextNoCase(std::u16string_view a, std::u16string_view b, const Locale& locale)
{
    const int order = locale.CompareNoCase(a, b);
    return (order > 0) - (order < 0);
}

} // namespace vornix
