/* The header alone, as a C11 program sees it. */
#include "vornix/vornix_c.h"

#include "vornix/vornix_constants.h"

#include <stdio.h>
#include <string.h>

_Static_assert(sizeof(vornix_value) == 24, "the layout of values is fixed");
_Static_assert(offsetof(vornix_value, as) == 8, "the layout of values is fixed");
_Static_assert(sizeof(vornix_decimal) == 16, "the layout of decimals is fixed");

static int failures;

static void expect(int holds, const char* what)
{
    if (holds)
        return;
    ++failures;
    fprintf(stderr, "failed: %s\n", what);
}

static void on_event(void* user, vornix_grid* grid, int32_t number, vornix_value* arguments, size_t count)
{
    (void)grid;
    (void)arguments;
    (void)count;
    if (number == VORNIX_EVENT_Click)
        ++*(int*)user;
}

int main(void)
{
    int clicks = 0;
    vornix_grid_options options = { 0 };
    options.size = sizeof options;
    options.callback = on_event;
    options.user = &clicks;
    vornix_grid* grid = NULL;
    expect(vornix_grid_create(&options, &grid) == 0, "a grid is made");

    vornix_value rows = { .type = VORNIX_I32, .as.integer = 12 };
    expect(vornix_invoke(grid, "rows", VORNIX_LET, &rows, 1, NULL) == 0, "names are matched in any case");
    vornix_value result = { 0 };
    expect(vornix_invoke_member(grid, vornix_find_member("Rows"), VORNIX_GET, NULL, 0, &result) == 0, "rows are read");
    expect(result.type == VORNIX_I16 && result.as.integer == 12, "the rows are 12");
    expect(vornix_invoke(grid, "Nonsense", VORNIX_CALL, NULL, 0, NULL) == 438, "what there is not is error 438");
    expect(strlen(vornix_last_error()) > 0, "an error is described");
    expect(vornix_host_click(grid) == 0 && clicks == 1, "the event comes");
    expect(vornix_grid_destroy(grid) == 0, "the grid ends");
    return failures != 0;
}
