// One value of a database, on its own.
#pragma once

#include <compare>
#include <cstdint>
#include <string>
#include <variant>

namespace vornix::sqlite {

struct Blob {
    std::string bytes;
    auto operator<=>(const Blob&) const = default;
};

// Nothing is a null; a text is UTF-8.
using Value = std::variant<std::monostate, std::int64_t, double, std::string, Blob>;

} // namespace vornix::sqlite
