// The editors of the container without a screen: its edit box and its combo box.
#include "grid.h"
#include "values.h"

#include <functional>

namespace vornix::c {

namespace {

// What goes for both boxes.
struct Editor {
    HeadlessChild& window;
    EditBox& field;
    std::function<void(std::u16string_view)> replace;
};

Editor EditorOf(Call& call, const char* name)
{
    HeadlessChild& child = ChildOf(call, name);
    if (auto* const box = dynamic_cast<HeadlessEditBox*>(&child))
        return { *box, *box, [box](std::u16string_view text) { box->Replace(text); } };
    if (auto* const box = dynamic_cast<HeadlessComboBox*>(&child))
        return { *box, *box, [box](std::u16string_view text) { box->Replace(text); } };
    Raise(ErrorNumber::NoSuchMember, "This child window is no editor");
}

HeadlessComboBox& ComboOf(Call& call, const char* name)
{
    auto* const box = dynamic_cast<HeadlessComboBox*>(&ChildOf(call, name));
    if (box == nullptr)
        Raise(ErrorNumber::NoSuchMember, "This child window is no combo box");
    return *box;
}

// Nobody uses the windows of a control that is closed.
void RequireOpen(Call& call)
{
    if (call->Control().IsTerminated())
        Raise(ErrorNumber::InvalidArgument, "The control is closed");
}

// A notification of a key to an editor, whose code comes back.
template <typename Notification>
std::int32_t KeyCall(vornix_grid* grid, const char* name, std::int16_t* code, const Notification& notification)
{
    return GridCall(grid, [&](Call& call) {
        Require(code);
        const Editor editor = EditorOf(call, name);
        RequireOpen(call);
        i16 left = *code;
        notification(editor.window, left);
        call.Finish();
        *code = left;
    });
}

} // namespace

} // namespace vornix::c

using namespace vornix;
using namespace vornix::c;

std::int32_t vornix_host_get_editor_text(vornix_grid* grid, const char* name, vornix_text* text)
{
    return GridCall(grid, [&](Call& call) {
        Require(text);
        *text = ViewOf(call->Keep(EditorOf(call, name).field.Text()));
    });
}

std::int32_t vornix_host_set_editor_text(vornix_grid* grid, const char* name, vornix_text text)
{
    return GridCall(grid, [&](Call& call) {
        const Editor editor = EditorOf(call, name);
        RequireOpen(call);
        editor.replace(ToText(text));
    });
}

std::int32_t vornix_host_get_editor_selection(
    vornix_grid* grid, const char* name, std::int32_t* start, std::int32_t* length)
{
    return GridCall(grid, [&](Call& call) {
        Require(start);
        Require(length);
        const EditBox& field = EditorOf(call, name).field;
        *start = field.SelStart();
        *length = field.SelLength();
    });
}

std::int32_t vornix_host_set_editor_selection(
    vornix_grid* grid, const char* name, std::int32_t start, std::int32_t length)
{
    return GridCall(grid, [&](Call& call) {
        EditBox& field = EditorOf(call, name).field;
        field.SetSelStart(start);
        field.SetSelLength(length);
    });
}

std::int32_t vornix_host_editor_key_down(vornix_grid* grid, const char* name, std::int16_t* code, std::int16_t shift)
{
    return KeyCall(grid, name, code, [&](HeadlessChild& editor, i16& left) { editor.KeyDown(left, shift); });
}

std::int32_t vornix_host_editor_key_press(
    vornix_grid* grid, const char* name, std::int16_t* character, std::int16_t shift)
{
    return KeyCall(grid, name, character, [&](HeadlessChild& editor, i16& left) { editor.KeyPress(left, shift); });
}

std::int32_t vornix_host_editor_key_up(vornix_grid* grid, const char* name, std::int16_t* code, std::int16_t shift)
{
    return KeyCall(grid, name, code, [&](HeadlessChild& editor, i16& left) { editor.KeyUp(left, shift); });
}

std::int32_t vornix_host_combo(vornix_grid* grid, const char* name, vornix_combo_info* info)
{
    return GridCall(grid, [&](Call& call) {
        Require(info);
        const HeadlessComboBox& box = ComboOf(call, name);
        *info = { box.ItemCount(), box.ListIndex(), box.IsDroppedDown(), box.IsListOnly() };
    });
}

std::int32_t vornix_host_combo_item(vornix_grid* grid, const char* name, std::int32_t index, vornix_text* text)
{
    return GridCall(grid, [&](Call& call) {
        Require(text);
        *text = ViewOf(call->Keep(ComboOf(call, name).ItemText(index)));
    });
}

std::int32_t vornix_host_click_combo_item(vornix_grid* grid, const char* name, std::int32_t index)
{
    return GridCall(grid, [&](Call& call) {
        HeadlessComboBox& box = ComboOf(call, name);
        RequireOpen(call);
        box.ClickItem(index);
    });
}
