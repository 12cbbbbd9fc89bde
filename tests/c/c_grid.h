// A grid behind the C interface, for tests: values made and read in a word.
#pragma once

#include "vornix/vornix_c.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <cstring>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace vornix::test {

inline vornix_value Typed(int type)
{
    vornix_value value {};
    value.type = static_cast<std::uint16_t>(type);
    return value;
}

inline vornix_value Integer(std::int64_t number, int type = VORNIX_I32)
{
    vornix_value value = Typed(type);
    value.as.integer = number;
    return value;
}

inline vornix_value Boolean(bool truth)
{
    return Integer(truth ? -1 : 0, VORNIX_BOOLEAN);
}

inline vornix_value Number(double number, int type = VORNIX_DOUBLE)
{
    vornix_value value = Typed(type);
    value.as.number = number;
    return value;
}

inline vornix_text View(std::u16string_view text)
{
    return { reinterpret_cast<const std::uint16_t*>(text.data()), text.size() };
}

// Of a text that stays as long as the value is used.
inline vornix_value Text(std::u16string_view text)
{
    vornix_value value = Typed(VORNIX_TEXT);
    value.as.text = View(text);
    return value;
}

inline std::u16string ToString(const vornix_text& text)
{
    std::u16string copy(text.length, u'\0');
    if (text.length > 0)
        std::memcpy(copy.data(), text.data, text.length * sizeof(char16_t));
    return copy;
}

// Gives back what a call gave.
class Result {
public:
    Result() = default;
    ~Result() { vornix_value_clear(&value_); }
    Result(Result&& other) noexcept
        : value_(std::exchange(other.value_, vornix_value {}))
    {
    }
    Result& operator=(Result&&) = delete;

    vornix_value* Address() { return &value_; }
    const vornix_value& Value() const { return value_; }
    int Type() const { return value_.type; }
    std::int64_t ToInteger() const { return value_.as.integer; }
    double ToNumber() const { return value_.as.number; }
    std::u16string ToText() const { return value_.type == VORNIX_TEXT ? ToString(value_.as.text) : u"<no text>"; }

private:
    vornix_value value_ {};
};

struct GridDeleter {
    void operator()(vornix_grid* grid) const { vornix_grid_destroy(grid); }
};
using GridPtr = std::unique_ptr<vornix_grid, GridDeleter>;

inline vornix_grid_options Options()
{
    vornix_grid_options options {};
    options.size = sizeof options;
    return options;
}

inline GridPtr MakeGrid(const vornix_grid_options& options = Options())
{
    vornix_grid* grid = nullptr;
    EXPECT_EQ(vornix_grid_create(&options, &grid), 0) << vornix_last_error();
    return GridPtr(grid);
}

using Values = std::vector<vornix_value>;

inline int Invoke(vornix_grid* grid, const char* name, int kind, Values arguments, Result* result = nullptr)
{
    return vornix_invoke(grid, name, kind, arguments.data(), arguments.size(), result ? result->Address() : nullptr);
}

inline int Let(vornix_grid* grid, const char* name, Values arguments)
{
    return Invoke(grid, name, VORNIX_LET, std::move(arguments));
}

inline int Call(vornix_grid* grid, const char* name, Values arguments = {})
{
    return Invoke(grid, name, VORNIX_CALL, std::move(arguments));
}

inline Result Get(vornix_grid* grid, const char* name, Values arguments = {})
{
    Result result;
    EXPECT_EQ(Invoke(grid, name, VORNIX_GET, std::move(arguments), &result), 0) << name << ": " << vornix_last_error();
    return result;
}

// One fixed row and column, four rows, three columns with texts.
inline GridPtr MakeSmallGrid(const vornix_grid_options& options = Options())
{
    GridPtr grid = MakeGrid(options);
    EXPECT_EQ(Let(grid.get(), "FixedRows", { Integer(1) }), 0);
    EXPECT_EQ(Let(grid.get(), "FixedCols", { Integer(1) }), 0);
    EXPECT_EQ(Let(grid.get(), "Rows", { Integer(4) }), 0);
    EXPECT_EQ(Let(grid.get(), "Cols", { Integer(3) }), 0);
    for (int col = 0; col < 3; ++col) {
        const std::u16string name = u"Column" + std::u16string(1, static_cast<char16_t>(u'A' + col));
        EXPECT_EQ(Let(grid.get(), "ColName", { Integer(col), Text(name) }), 0);
        for (int row = 0; row < 4; ++row)
            EXPECT_EQ(Let(grid.get(), "Text", { Integer(row), Integer(col), Integer(10 * row + col) }), 0);
        EXPECT_EQ(Call(grid.get(), "ComboAddItem", { Text(name) }), 0);
    }
    return grid;
}

} // namespace vornix::test
