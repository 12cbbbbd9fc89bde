// Every member of the grid with right arguments, for the tests that call them all.
#pragma once

#include "c_grid.h"

#include <functional>
#include <string>
#include <vector>

namespace vornix::test {

struct Member {
    const vornix_member* handle;
    const vornix_member_info& info;

    std::string Name() const { return info.name; }
    bool IsReadable() const { return info.kind != VORNIX_WRITE_ONLY && !info.read_pending; }
    bool IsWritable() const
    {
        return (info.kind == VORNIX_PROPERTY || info.kind == VORNIX_WRITE_ONLY) && !info.write_pending;
    }
};

std::vector<Member> AllMembers();
int InvokeMember(vornix_grid* grid, const Member& member, int kind, Values arguments, Result* result = nullptr);

// A font, a picture and an array that live as long as the tests.
vornix_value SomeFont();
vornix_value SomePicture();
vornix_value SomeArray();

// A value in words, so that a difference can be read.
std::string Described(const vornix_value& value);
std::string DescribedGet(vornix_grid* grid, const char* name, Values arguments = {});
// What has to work.
void LetOk(vornix_grid* grid, const char* name, Values arguments);
void CallOk(vornix_grid* grid, const char* name, Values arguments = {});

// What the small grid has: its cell 1, 1 where a cell is meant.
Values RightArguments(const Member& member);

// Written to a property, and what it reads then, where that is not the same in the property's type.
struct Writing {
    vornix_value value;
    std::string read = "";
    // What has to be so before.
    std::function<void(vornix_grid*)> before = {};
};

Writing WritingOf(const Member& member);

} // namespace vornix::test
