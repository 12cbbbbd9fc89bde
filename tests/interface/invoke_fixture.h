// A grid that is called by the names of its members.
#pragma once

#include "control/grid_fixture.h"

#include <initializer_list>
#include <string_view>
#include <vector>

namespace vornix {

class InvokeTest : public GridTest {
protected:
    using Arguments = std::vector<Variant>;

    Variant Get(std::string_view name, Arguments arguments = {})
    {
        return Grid().Invoke(name, InvokeKind::Get, arguments);
    }
    // The value is the last argument.
    void Let(std::string_view name, Arguments arguments) { Grid().Invoke(name, InvokeKind::Let, arguments); }
    Variant Call(std::string_view name, Arguments arguments = {})
    {
        return Grid().Invoke(name, InvokeKind::Call, arguments);
    }
    // With names for the last arguments.
    Variant CallNamed(std::string_view name, Arguments arguments, std::vector<std::string_view> names)
    {
        return Grid().Invoke(name, InvokeKind::Call, arguments, names);
    }
    std::optional<int> Error(std::string_view name, InvokeKind kind, Arguments arguments = {})
    {
        return ErrorOf([&] { Grid().Invoke(name, kind, arguments); });
    }
};

} // namespace vornix
