// What the container passes on of pointer and keyboard.
#include "person.h"
#include "vornix/headless_container.h"
#include "window_stack.h"

namespace vornix {

void HeadlessContainer::MouseDown(float x, float y, i16 button, i16 shift)
{
    windows_->MovePointer({ x, y });
    grid_->MouseDown(button, shift, x, y);
}

void HeadlessContainer::MouseMove(float x, float y, i16 button, i16 shift)
{
    windows_->MovePointer({ x, y });
    grid_->MouseMove(button, shift, x, y);
}

void HeadlessContainer::MouseUp(float x, float y, i16 button, i16 shift)
{
    windows_->MovePointer({ x, y });
    grid_->MouseUp(button, shift, x, y);
}

void HeadlessContainer::Click()
{
    grid_->Click();
}

void HeadlessContainer::DblClick()
{
    grid_->DblClick();
}

i16 HeadlessContainer::KeyDown(i16 code, i16 shift)
{
    grid_->KeyDown(code, shift);
    return code;
}

i16 HeadlessContainer::KeyPress(i16 character)
{
    grid_->KeyPress(character);
    return character;
}

i16 HeadlessContainer::KeyUp(i16 code, i16 shift)
{
    grid_->KeyUp(code, shift);
    return code;
}

void HeadlessContainer::Wheel(i32 delta)
{
    grid_->MouseWheel(delta);
}

void HeadlessContainer::Tick()
{
    RequireOpen();
    grid_->Tick();
}

void HeadlessContainer::ClickAt(float x, float y, i16 button, i16 shift)
{
    RequireOpen();
    person_->ClickAt({ x, y }, button, shift);
}

void HeadlessContainer::DblClickAt(float x, float y, i16 button, i16 shift)
{
    RequireOpen();
    person_->DblClickAt({ x, y }, button, shift);
}

void HeadlessContainer::Drag(float x1, float y1, float x2, float y2, i16 button, i16 shift, i32 steps)
{
    RequireOpen();
    person_->Drag({ x1, y1 }, { x2, y2 }, button, shift, steps);
}

void HeadlessContainer::Type(std::u16string_view text)
{
    RequireOpen();
    person_->Type(text);
}

void HeadlessContainer::Press(std::string_view key, i16 shift)
{
    RequireOpen();
    person_->Press(key, shift);
}

void HeadlessContainer::Press(i16 code, i16 shift)
{
    RequireOpen();
    person_->Press(code, shift);
}

} // namespace vornix
