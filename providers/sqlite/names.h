// Names of tables and columns, which are the same in any case of their ASCII letters.
#pragma once

#include <string_view>

namespace vornix::sqlite {

bool SameName(std::string_view a, std::string_view b);

} // namespace vornix::sqlite
