// A grid under a person's keys: the events between KeyDown and the end of the key's step.
#pragma once

#include "headless/person_fixture.h"

namespace vornix {

namespace Code {
constexpr i16 Space = 32, PageUp = 33, PageDown = 34, End = 35, Home = 36, Left = 37, Up = 38, Right = 39, Down = 40;
} // namespace Code

class KeyboardTest : public PersonTest {
protected:
    // What the key raised, without its own KeyDown.
    Lines Key(i16 code, i16 shift = 0)
    {
        host->ClearLog();
        host->KeyDown(code, shift);
        Lines lines = Said();
        EXPECT_FALSE(lines.empty());
        lines.erase(lines.begin());
        return lines;
    }
    void Keys(std::initializer_list<i16> codes)
    {
        for (const i16 code : codes)
            host->KeyDown(code);
    }
    CellPlace Current() { return { static_cast<i16>(Grid().CurrentRow()), Grid().CurrentCol() }; }
    bool IsMarkedAlone(i16 Row, i16 Col)
    {
        const RgbaImage shown = host->Image();
        const CellPlace place = Current();
        Grid().Refresh();
        return place == CellPlace { Row, Col } && host->Image().bytes == shown.bytes;
    }
};

constexpr CellPlace Nowhere { -32767, -32767 };

} // namespace vornix
