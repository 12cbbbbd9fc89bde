/* Makes a small table without a screen, lets a click colour a row, and writes a picture: c_example [OUT.png] */
#include <vornix/vornix_c.h>
#include <vornix/vornix_constants.h>

#include <stdio.h>
#include <stdlib.h>
#include <uchar.h>

#define COUNT(array) (sizeof(array) / sizeof((array)[0]))

/* Every call can fail; here a failure ends the program. */
static void check(int32_t status, const char* what)
{
    if (status == 0)
        return;
    fprintf(stderr, "c_example: %s: error %d: %s\n", what, (int)status, vornix_last_error());
    exit(1);
}

static vornix_value integer(int64_t value)
{
    return (vornix_value) { .type = VORNIX_I32, .as.integer = value };
}

static vornix_value boolean(int value)
{
    return (vornix_value) { .type = VORNIX_BOOLEAN, .as.integer = value ? -1 : 0 };
}

static vornix_value number(double value)
{
    return (vornix_value) { .type = VORNIX_DOUBLE, .as.number = value };
}

static vornix_value text(const char16_t* value)
{
    size_t length = 0;
    while (value[length] != 0)
        ++length;
    return (vornix_value) { .type = VORNIX_TEXT, .as.text = { (const uint16_t*)value, length } };
}

/* Properties without arguments, of a column or a row, and of a cell. */
static void let(vornix_grid* grid, const char* name, vornix_value value)
{
    check(vornix_invoke(grid, name, VORNIX_LET, &value, 1, NULL), name);
}

static void let_line(vornix_grid* grid, const char* name, int line, vornix_value value)
{
    vornix_value arguments[] = { integer(line), value };
    check(vornix_invoke(grid, name, VORNIX_LET, arguments, COUNT(arguments), NULL), name);
}

static void let_cell(vornix_grid* grid, const char* name, int row, int col, vornix_value value)
{
    vornix_value arguments[] = { integer(row), integer(col), value };
    check(vornix_invoke(grid, name, VORNIX_LET, arguments, COUNT(arguments), NULL), name);
}

/* A handler may call the grid: this one finds the cell that was pressed and colours its row. */
static void on_event(void* user, vornix_grid* grid, int32_t event, vornix_value* arguments, size_t count)
{
    (void)count;
    if (event != VORNIX_EVENT_MouseDown)
        return;
    /* The event's arguments, in their order: Button, Shift, x, y. */
    vornix_value cell[] = { number(arguments[2].as.number), number(arguments[3].as.number), integer(0), integer(0) };
    vornix_value found;
    check(vornix_invoke(grid, "GetCellAtPos", VORNIX_CALL, cell, COUNT(cell), &found), "GetCellAtPos");
    if (!found.as.integer)
        return;
    /* The last two are by reference: the row and the column came back in their places. */
    printf("pressed row %d, column %d\n", (int)cell[2].as.integer, (int)cell[3].as.integer);
    let_line(grid, "RowBackColor", (int)cell[2].as.integer, integer(0x00C0FFFF));
    ++*(int*)user;
}

static void fill(vornix_grid* grid)
{
    static const char16_t* const header[] = { u"City", u"Balance", u"Open" };
    static const char16_t* const cities[] = { u"Bergen", u"Bergen", u"Bergen", u"Oslo" };
    static const double balances[] = { 120.5, -80, 0, -15.25 };
    let(grid, "FixedRows", integer(1));
    let(grid, "Rows", integer(4));
    let(grid, "Cols", integer(3));
    for (int col = 0; col < 3; ++col)
        let_cell(grid, "Text", -1, col, text(header[col]));
    for (int row = 0; row < 4; ++row) {
        let_cell(grid, "Text", row, 0, text(cities[row]));
        let_cell(grid, "Text", row, 1, number(balances[row])); /* becomes a text as the language's conversions do */
        let_cell(grid, "CellForeColor", row, 1, integer(balances[row] < 0 ? 0x0000C0 : 0x006000));
        let_cell(grid, "CellChecked", row, 2, boolean(balances[row] != 0));
    }
}

static void format(vornix_grid* grid)
{
    let_line(grid, "ColTextAlign", 1, integer(vxTxtRight | vxTxtVCenter | vxSingleLine));
    let_line(grid, "ColFormat", 1, text(u"#,##0.00"));
    let_line(grid, "ColMode", 2, integer(vxCheckBox));
    vornix_value column = integer(0);
    check(
        vornix_invoke(grid, "SpanRows", VORNIX_CALL, &column, 1, NULL), "SpanRows"); /* equal cities become one cell */
}

/* What comes out belongs to the caller, who gives it back when it is done with. */
static void print_text(vornix_grid* grid, int row, int col)
{
    vornix_value arguments[] = { integer(row), integer(col) };
    vornix_value read;
    check(vornix_invoke(grid, "Text", VORNIX_GET, arguments, COUNT(arguments), &read), "Text");
    for (size_t i = 0; i < read.as.text.length; ++i)
        putchar(read.as.text.data[i] < 128 ? read.as.text.data[i] : '?');
    putchar('\n');
    vornix_value_clear(&read);
}

int main(int argc, char** argv)
{
    int presses = 0;
    const vornix_grid_options options
        = { .size = sizeof options, .width = 360, .height = 130, .callback = on_event, .user = &presses };
    vornix_grid* grid = NULL;
    check(vornix_grid_create(&options, &grid), "vornix_grid_create");
    fill(grid);
    format(grid);

    print_text(grid, 0, 1);
    check(vornix_host_click_at(grid, 150, 50, 1, 0), "vornix_host_click_at");
    const char* const path = argc > 1 ? argv[1] : "table.png";
    check(vornix_host_save_png(grid, path), path);
    check(vornix_grid_destroy(grid), "vornix_grid_destroy");
    return presses == 1 ? 0 : 1;
}
