// A grid whose boundaries a person drags: fixed lines of 21 by 30 pixels, cells of 21 by 120, in a window of 640 by 480.
#pragma once

#include "interact/mouse_fixture.h"

namespace vornix {

class SizingTest : public MouseTest {
protected:
    // Where a boundary is caught: in the fixed row and in the fixed column.
    static constexpr float Header = 10;

    // The ends of the columns and rows while they have the sizes they were made with.
    static float ColEnd(int Col) { return 150.0F + 120.0F * static_cast<float>(Col); }
    static float RowEnd(int Row) { return 42.0F + 21.0F * static_cast<float>(Row); }

    // The pointer comes without a button, and presses.
    void Catch(float x, float y)
    {
        host->MouseMove(x, y);
        host->MouseDown(x, y);
    }
    void CatchCol(int Col) { Catch(ColEnd(Col) - 1, Header); }
    void CatchRow(int Row) { Catch(Header, RowEnd(Row) - 1); }
    void Drag(float x, float y) { host->MouseMove(x, y, 1); }
    void LetGo(float x, float y) { host->MouseUp(x, y); }
    // From catching to letting go.
    void SizeCol(int Col, float x)
    {
        CatchCol(Col);
        Drag(x, Header);
        LetGo(x, Header);
    }
    void SizeRow(int Row, float y)
    {
        CatchRow(Row);
        Drag(Header, y);
        LetGo(Header, y);
    }

    // What a move to the place shows.
    PointerShape ShapeAt(float x, float y)
    {
        host->MouseMove(x, y);
        EXPECT_EQ(Grid().MousePointer(), host->Pointer() == PointerShape::Default ? 0 : 99);
        return host->Pointer();
    }

    // The picture is the one that a repaint would make.
    bool IsPainted()
    {
        const RgbaImage shown = host->Image();
        Grid().Refresh();
        return host->Image().bytes == shown.bytes;
    }
    std::vector<int> Widths()
    {
        std::vector<int> widths;
        for (i16 Col = 0; Col < Grid().Cols(); ++Col)
            widths.push_back(Grid().ColWidth(Col));
        return widths;
    }
    std::vector<int> Heights()
    {
        std::vector<int> heights;
        for (i16 Row = 0; Row < Grid().Rows(); ++Row)
            heights.push_back(Grid().RowHeight(Row));
        return heights;
    }
};

} // namespace vornix
