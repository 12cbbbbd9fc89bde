// Values that a careful host would not pass, drawn from a generator that always gives the same.
#pragma once

#include "c_grid.h"

#include <array>
#include <random>
#include <string>
#include <vector>

namespace vornix::test {

class Chance {
public:
    explicit Chance(std::uint32_t seed)
        : engine_(seed)
    {
    }
    // From 0 to below the limit.
    std::size_t Below(std::size_t limit) { return engine_() % limit; }
    int Between(int first, int last)
    {
        return first + static_cast<int>(Below(static_cast<std::size_t>(last - first + 1)));
    }
    bool OneIn(std::size_t count) { return Below(count) == 0; }
    std::uint64_t Bits() { return std::uint64_t { engine_() } << 32 | engine_(); }
    template <typename List> const auto& Of(const List& list) { return list[Below(std::size(list))]; }

private:
    std::mt19937 engine_;
};

// Makes values of every type, and keeps what they point to.
class HostileValues {
public:
    explicit HostileValues(Chance& chance);
    ~HostileValues();
    HostileValues(const HostileValues&) = delete;
    HostileValues& operator=(const HostileValues&) = delete;

    vornix_value Any();
    // One that the declared type can often be made of.
    vornix_value For(int declaredType);
    // An index or a small number most of the time.
    std::int64_t Index();
    float Coordinate();
    const std::u16string& AnyText() { return chance_.Of(texts_); }
    vornix_value Array() { return Handle(VORNIX_ARRAY); }

private:
    void MakeTexts();
    void MakeFonts();
    void MakePictures();
    void MakeArrays();
    std::int64_t AnyInteger();
    double AnyNumber();
    vornix_value Handle(int type);

    Chance& chance_;
    std::vector<std::u16string> texts_;
    std::vector<vornix_font*> fonts_ { nullptr };
    std::vector<vornix_picture*> pictures_ { nullptr };
    std::vector<vornix_array*> arrays_ { nullptr };
    std::vector<vornix_object*> objects_ { nullptr };
};

} // namespace vornix::test
