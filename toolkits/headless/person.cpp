#include "person.h"

#include "vornix/headless_container.h"

#include <cmath>
#include <utility>

namespace vornix {

namespace {

// Flags in the notifications, and the codes that they are held under.
constexpr i16 LeftButton = 1;
constexpr i16 RightButton = 2;
constexpr i16 MiddleButton = 4;
constexpr i32 MostSteps = 32767;

void Check(bool holds, const char* description)
{
    if (!holds)
        throw AutomationError(ErrorNumber::InvalidArgument, description);
}

void CheckPlace(PointerPlace place)
{
    Check(std::isfinite(place.x) && std::isfinite(place.y), "A place of the pointer is a pair of finite numbers");
}

void CheckButton(i16 button)
{
    Check(button == LeftButton || button == RightButton || button == MiddleButton,
        "A button is 1 (left), 2 (right) or 4 (middle)");
}

void CheckPress(PointerPlace place, i16 button, i16 shift)
{
    CheckPlace(place);
    CheckButton(button);
    CheckShift(shift);
}

PointerPlace On(const InputWindow& window, PointerPlace place)
{
    const Rect area = window.Area();
    return { place.x - static_cast<float>(area.left), place.y - static_cast<float>(area.top) };
}

// Exactly `to` at the last step.
PointerPlace Between(PointerPlace from, PointerPlace to, i32 step, i32 steps)
{
    if (step == steps)
        return to;
    const double part = static_cast<double>(step) / steps;
    const auto along = [&](double a, double b) { return static_cast<float>(a + (b - a) * part); };
    return { along(from.x, to.x), along(from.y, to.y) };
}

} // namespace

// One thing that a person does with these keys held. Buttons, keys and the capture are afterwards as they were before,
// whatever the handlers did.
class Person::Action {
public:
    Action(Person& person, i16 shift)
        : person_(person)
        , before_(person.hands_)
    {
        for (const i16 key : { ShiftKey, CtrlKey, AltKey }) {
            if (shift & ShiftFlagOf(key))
                person.hands_.held.set(static_cast<std::size_t>(key));
        }
    }
    ~Action() { person_.hands_ = before_; }
    Action(const Action&) = delete;
    Action& operator=(const Action&) = delete;

private:
    Person& person_;
    Hands before_;
};

template <typename Notification> void Person::Tell(InputWindow* window, const Notification& notification)
{
    if (window && windows_.IsShown() && !host_.Grid().IsTerminated())
        notification(*window);
}

bool Person::Holds(int code) const
{
    return code >= 0 && code <= LastKeyCode && hands_.held.test(static_cast<std::size_t>(code));
}

// The window that notifications of the pointer go to.
InputWindow* Person::Under(PointerPlace place)
{
    return hands_.isCaptured ? hands_.capture : windows_.TopAt(place.x, place.y);
}

void Person::Move(PointerPlace place, i16 shift)
{
    i16 buttons = 0;
    for (const i16 button : { LeftButton, RightButton, MiddleButton }) {
        if (Holds(button))
            buttons = static_cast<i16>(buttons | button);
    }
    windows_.MovePointer(place);
    Tell(Under(place), [&](InputWindow& window) {
        const PointerPlace on = On(window, place);
        window.MouseMove(buttons, shift, on.x, on.y);
    });
}

// The focus comes before the notification of the press.
InputWindow* Person::BeginPress(PointerPlace place, i16 button)
{
    InputWindow* const window = Under(place);
    hands_.held.set(static_cast<std::size_t>(button));
    hands_.isCaptured = true;
    hands_.capture = window;
    if (window == &windows_.TheControl())
        windows_.FocusControl();
    return window;
}

void Person::Press(PointerPlace place, i16 button, i16 shift)
{
    Tell(BeginPress(place, button), [&](InputWindow& window) {
        const PointerPlace on = On(window, place);
        window.MouseDown(button, shift, on.x, on.y);
    });
}

// Whether the release lies in the window of the press.
bool Person::Release(PointerPlace place, i16 button, i16 shift)
{
    InputWindow* const window = std::exchange(hands_.capture, nullptr);
    hands_.held.reset(static_cast<std::size_t>(button));
    hands_.isCaptured = false;
    Tell(window, [&](InputWindow& pressed) {
        const PointerPlace on = On(pressed, place);
        pressed.MouseUp(button, shift, on.x, on.y);
    });
    return window && Contains(window->Area(), place.x, place.y);
}

void Person::ReleaseAndClick(PointerPlace place, i16 button, i16 shift)
{
    InputWindow* const window = hands_.capture;
    if (Release(place, button, shift))
        Tell(window, [](InputWindow& pressed) { pressed.Click(); });
}

void Person::ClickAt(PointerPlace place, i16 button, i16 shift)
{
    CheckPress(place, button, shift);
    const Action action(*this, shift);
    Move(place, shift);
    Press(place, button, shift);
    ReleaseAndClick(place, button, shift);
}

void Person::DblClickAt(PointerPlace place, i16 button, i16 shift)
{
    CheckPress(place, button, shift);
    const Action action(*this, shift);
    Move(place, shift);
    Press(place, button, shift);
    InputWindow* const first = hands_.capture;
    ReleaseAndClick(place, button, shift);
    // Another window there by now takes the second press as its first.
    if (Under(place) != first) {
        Press(place, button, shift);
        return ReleaseAndClick(place, button, shift);
    }
    Tell(BeginPress(place, button), [](InputWindow& window) { window.DblClick(); });
    Release(place, button, shift);
}

void Person::Drag(PointerPlace from, PointerPlace to, i16 button, i16 shift, i32 steps)
{
    CheckPress(from, button, shift);
    CheckPlace(to);
    Check(steps >= 1 && steps <= MostSteps, "A drag takes 1 to 32767 steps");
    const Action action(*this, shift);
    Move(from, shift);
    Press(from, button, shift);
    for (i32 step = 1; step <= steps; ++step)
        Move(Between(from, to, step, steps), shift);
    ReleaseAndClick(to, button, shift);
}

// Nobody types into a window without the focus.
void Person::RequireFocus()
{
    if (windows_.IsShown() && !windows_.HasFocus())
        windows_.FocusControl();
}

void Person::Type(std::u16string_view text)
{
    RequireFocus();
    for (const KeyStroke& stroke : StrokesFor(text))
        Strike(stroke);
}

void Person::Press(std::string_view key, i16 shift)
{
    const KeyStroke stroke = CheckedStroke(key, shift);
    RequireFocus();
    Strike(stroke);
}

void Person::Press(i16 code, i16 shift)
{
    const KeyStroke stroke = CheckedStroke(code, shift);
    RequireFocus();
    Strike(stroke);
}

void Person::Strike(const KeyStroke& stroke)
{
    const Action action(*this, stroke.shift);
    hands_.held.set(static_cast<std::size_t>(stroke.code));
    i16 code = stroke.code;
    i16 shift = static_cast<i16>(stroke.shift | ShiftFlagOf(stroke.code));
    Tell(windows_.Focused(), [&](InputWindow& window) { window.KeyDown(code, shift); });
    if (stroke.character && code != 0) {
        i16 character = *stroke.character;
        Tell(windows_.Focused(), [&](InputWindow& window) { window.KeyPress(character, stroke.shift); });
    }
    hands_.held.reset(static_cast<std::size_t>(stroke.code));
    code = stroke.code;
    shift = stroke.shift;
    Tell(windows_.Focused(), [&](InputWindow& window) { window.KeyUp(code, shift); });
}

} // namespace vornix
