// Numbers as people and programs write them.
#pragma once

#include "cell_content.h"

namespace vornix::viewer {

// The number kinds of a text in upper case without outer blanks.
Content NumberContentOf(std::u16string_view text);

} // namespace vornix::viewer
