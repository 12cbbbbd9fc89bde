// Dates and times as people and programs write them.
#pragma once

#include "cell_content.h"

namespace vornix::viewer {

// The date kinds of a text in upper case without outer blanks: 2024-03-05, 2024/3/5, 5.3.2024, 3/5/2024, 5 Mar 2024,
// Mar 5, 2024, each with or without a time such as 14:30, 2:30:15 PM or T14:30:15.250+01:00.
Content DateContentOf(std::u16string_view text);

} // namespace vornix::viewer
