// The clipboard and batch scripts through the C interface.
#include "c_grid.h"

namespace vornix::test {
namespace {

std::u16string ClipboardOf(vornix_grid* grid)
{
    vornix_text text {};
    EXPECT_EQ(vornix_host_get_clipboard(grid, &text), 0);
    return ToString(text);
}

std::u16string TextOf(vornix_grid* grid, int row, int col)
{
    return Get(grid, "Text", { Integer(row), Integer(col) }).ToText();
}

int CallWithCorners(vornix_grid* grid, const char* name, int row1, int col1, int row2, int col2)
{
    return Call(grid, name, { Integer(row1), Integer(col1), Integer(row2), Integer(col2) });
}

std::int64_t RunScript(vornix_grid* grid)
{
    Result result;
    EXPECT_EQ(Invoke(grid, "VXScriptExecute", VORNIX_CALL, {}, &result), 0) << vornix_last_error();
    return result.ToInteger();
}

} // namespace

TEST(CExchange, CopiesAndPastes)
{
    const GridPtr grid = MakeSmallGrid();
    ASSERT_EQ(Let(grid.get(), "Text", { Integer(0), Integer(0), Text(u"a\r\nb") }), 0);
    ASSERT_EQ(Let(grid.get(), "Text", { Integer(0), Integer(1), Text(u"\x00E4\U0001F600") }), 0);
    ASSERT_EQ(CallWithCorners(grid.get(), "CopyToClipboard", 0, 1, 0, 0), 0) << vornix_last_error();
    EXPECT_EQ(ClipboardOf(grid.get()), u"\"a\nb\"\t\x00E4\U0001F600");
    ASSERT_EQ(CallWithCorners(grid.get(), "PasteFromClipboard", 2, 1, 3, 2), 0) << vornix_last_error();
    EXPECT_EQ(TextOf(grid.get(), 2, 1), u"a\nb");
    EXPECT_EQ(TextOf(grid.get(), 2, 2), u"\x00E4\U0001F600");
}

TEST(CExchange, CornersOutsideAreErrors)
{
    const GridPtr grid = MakeSmallGrid();
    EXPECT_EQ(CallWithCorners(grid.get(), "CopyToClipboard", 0, 0, 99, 0), 9);
    EXPECT_EQ(CallWithCorners(grid.get(), "CopyToClipboard", 0, 0, 0, 32767), 6);
    ASSERT_EQ(vornix_host_set_clipboard(grid.get(), View(u"a")), 0);
    EXPECT_EQ(CallWithCorners(grid.get(), "PasteFromClipboard", 99, 0, 99, 0), 9);
}

TEST(CExchange, RunsScripts)
{
    const GridPtr grid = MakeSmallGrid();
    EXPECT_EQ(RunScript(grid.get()), 0) << "an empty one";
    Result added;
    Values script { Text(u"<Cols>4</Cols><ColWidth Col=\"3\">80</ColWidth>") };
    ASSERT_EQ(Invoke(grid.get(), "VXScriptAdd", VORNIX_CALL, script, &added), 0);
    EXPECT_EQ(added.ToInteger(), -1);
    EXPECT_EQ(RunScript(grid.get()), -1);
    EXPECT_EQ(Get(grid.get(), "Cols").ToInteger(), 4);
    EXPECT_EQ(Get(grid.get(), "ColWidth", { Integer(3) }).ToInteger(), 80);
    ASSERT_EQ(Call(grid.get(), "VXScriptAdd", { Text(u"<CellMode Row=\"99\" Col=\"0\">1</CellMode>") }), 0);
    EXPECT_EQ(Call(grid.get(), "VXScriptExecute"), 9);
    ASSERT_EQ(Call(grid.get(), "VXScriptClear"), 0);
    EXPECT_EQ(RunScript(grid.get()), 0);
}

} // namespace vornix::test
