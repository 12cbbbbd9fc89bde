// Makes a small table without a screen and writes its picture: headless_example [OUT.png]
#include <vornix/headless_container.h>

#include <cstdio>
#include <exception>

int main(int argc, char** argv)
try {
    vornix::HeadlessContainer container({ .width = 360, .height = 130 });
    vornix::Vornix& grid = container.Grid();
    grid.SetFixedRows(1);
    grid.SetRows(4);
    grid.SetCols(3);

    const char16_t* const header[] = { u"City", u"Balance", u"Open" };
    const char16_t* const cities[] = { u"Bergen", u"Bergen", u"Bergen", u"Oslo" };
    const double balances[] = { 120.5, -80, 0, -15.25 };
    for (vornix::i16 Col = 0; Col < 3; ++Col)
        grid.SetText(-1, Col, header[Col]);
    grid.SetColTextAlign(1, vornix::vxTxtRight | vornix::vxTxtVCenter | vornix::vxSingleLine);
    grid.SetColFormat(1, u"#,##0.00");
    grid.SetColMode(2, vornix::vxCheckBox);
    for (vornix::i16 Row = 0; Row < 4; ++Row) {
        grid.SetText(Row, 0, cities[Row]);
        grid.SetText(Row, 1, vornix::Variant(balances[Row]).ToText());
        grid.SetCellForeColor(Row, 1, balances[Row] < 0 ? 0x0000C0 : 0x006000);
        grid.SetCellChecked(Row, 2, balances[Row] != 0);
    }
    grid.SpanRows(0); // equal cities become one cell

    container.SavePng(argc > 1 ? argv[1] : "table.png");
    return 0;
} catch (const std::exception& error) {
    std::fprintf(stderr, "headless_example: %s\n", error.what());
    return 1;
}
