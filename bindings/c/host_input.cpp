// Input: single notifications, and what a person does.
#include "grid.h"
#include "values.h"

using namespace vornix;
using namespace vornix::c;

std::int32_t vornix_host_mouse_down(vornix_grid* grid, float x, float y, std::int16_t button, std::int16_t shift)
{
    return GridCall(grid, [&](Call& call) { call->Container().MouseDown(x, y, button, shift); });
}

std::int32_t vornix_host_mouse_move(vornix_grid* grid, float x, float y, std::int16_t button, std::int16_t shift)
{
    return GridCall(grid, [&](Call& call) { call->Container().MouseMove(x, y, button, shift); });
}

std::int32_t vornix_host_mouse_up(vornix_grid* grid, float x, float y, std::int16_t button, std::int16_t shift)
{
    return GridCall(grid, [&](Call& call) { call->Container().MouseUp(x, y, button, shift); });
}

std::int32_t vornix_host_click(vornix_grid* grid)
{
    return GridCall(grid, [](Call& call) { call->Container().Click(); });
}

std::int32_t vornix_host_dbl_click(vornix_grid* grid)
{
    return GridCall(grid, [](Call& call) { call->Container().DblClick(); });
}

std::int32_t vornix_host_wheel(vornix_grid* grid, std::int32_t delta)
{
    return GridCall(grid, [&](Call& call) { call->Container().Wheel(delta); });
}

std::int32_t vornix_host_tick(vornix_grid* grid)
{
    return GridCall(grid, [](Call& call) { call->Container().Tick(); });
}

std::int32_t vornix_host_key_down(vornix_grid* grid, std::int16_t* code, std::int16_t shift)
{
    return GridCall(grid, [&](Call& call) {
        Require(code);
        const i16 left = call->Container().KeyDown(*code, shift);
        call.Finish();
        *code = left;
    });
}

std::int32_t vornix_host_key_press(vornix_grid* grid, std::int16_t* character)
{
    return GridCall(grid, [&](Call& call) {
        Require(character);
        const i16 left = call->Container().KeyPress(*character);
        call.Finish();
        *character = left;
    });
}

std::int32_t vornix_host_key_up(vornix_grid* grid, std::int16_t* code, std::int16_t shift)
{
    return GridCall(grid, [&](Call& call) {
        Require(code);
        const i16 left = call->Container().KeyUp(*code, shift);
        call.Finish();
        *code = left;
    });
}

std::int32_t vornix_host_click_at(vornix_grid* grid, float x, float y, std::int16_t button, std::int16_t shift)
{
    return GridCall(grid, [&](Call& call) { call->Container().ClickAt(x, y, button, shift); });
}

std::int32_t vornix_host_dbl_click_at(vornix_grid* grid, float x, float y, std::int16_t button, std::int16_t shift)
{
    return GridCall(grid, [&](Call& call) { call->Container().DblClickAt(x, y, button, shift); });
}

std::int32_t vornix_host_drag(vornix_grid* grid, float x1, float y1, float x2, float y2, std::int16_t button,
    std::int16_t shift, std::int32_t steps)
{
    return GridCall(grid, [&](Call& call) { call->Container().Drag(x1, y1, x2, y2, button, shift, steps); });
}

std::int32_t vornix_host_type(vornix_grid* grid, vornix_text text)
{
    return GridCall(grid, [&](Call& call) { call->Container().Type(ToText(text)); });
}

std::int32_t vornix_host_press(vornix_grid* grid, const char* key, std::int16_t shift)
{
    return GridCall(grid, [&](Call& call) {
        Require(key);
        call->Container().Press(key, shift);
    });
}

std::int32_t vornix_host_press_code(vornix_grid* grid, std::int16_t code, std::int16_t shift)
{
    return GridCall(grid, [&](Call& call) { call->Container().Press(code, shift); });
}
