#include "vornix/headless_text_box_host.h"

#include "virtual_keys.h"

#include <string>

namespace vornix {

namespace {

constexpr int LongestSide = 32767;

} // namespace

HeadlessTextBoxHost::HeadlessTextBoxHost(const HeadlessTextBoxOptions& options)
    : receiver_(options.events)
    , font_(MakeAmbientFont())
    , window_({ clipboard_, 1, colors_, font_ })
    , box_(window_, window_, *this, *this)
{
    Resize(options.width, options.height);
    window_.Attach(*this, nullptr);
    window_.Listen(&box_.Listener());
    if (options.bag)
        box_.ReadProperties(*options.bag);
    else
        box_.InitProperties();
    window_.Show(true);
    box_.Show();
}

HeadlessTextBoxHost::~HeadlessTextBoxHost() = default;

i16 HeadlessTextBoxHost::KeyDown(i16 code, i16 shift)
{
    window_.KeyDown(code, shift);
    return code;
}

i16 HeadlessTextBoxHost::KeyPress(i16 character, i16 shift)
{
    window_.KeyPress(character, shift);
    return character;
}

i16 HeadlessTextBoxHost::KeyUp(i16 code, i16 shift)
{
    window_.KeyUp(code, shift);
    return code;
}

// A box that is disabled cannot be got at; the focus would enable it.
void HeadlessTextBoxHost::TakeFocus()
{
    if (!hasFocus_ && window_.IsUsable())
        box_.EnterFocus();
}

void HeadlessTextBoxHost::Type(std::u16string_view text)
{
    TakeFocus();
    for (const KeyStroke& stroke : StrokesFor(text))
        Strike(stroke);
}

void HeadlessTextBoxHost::Press(std::string_view key, i16 shift)
{
    const KeyStroke stroke = CheckedStroke(key, shift);
    TakeFocus();
    Strike(stroke);
}

void HeadlessTextBoxHost::Press(i16 code, i16 shift)
{
    const KeyStroke stroke = CheckedStroke(code, shift);
    TakeFocus();
    Strike(stroke);
}

void HeadlessTextBoxHost::Strike(const KeyStroke& stroke)
{
    const i16 left = KeyDown(stroke.code, static_cast<i16>(stroke.shift | ShiftFlagOf(stroke.code)));
    if (stroke.character && left != 0)
        KeyPress(*stroke.character, stroke.shift);
    KeyUp(stroke.code, stroke.shift);
}

void HeadlessTextBoxHost::Resize(int width, int height)
{
    if (width < 0 || height < 0 || width > LongestSide || height > LongestSide)
        throw AutomationError(ErrorNumber::InvalidArgument, "The sides of a window are 0 to 32767 pixels");
    window_.Move({ 0, 0, width, height });
}

MemoryBag HeadlessTextBoxHost::Save() const
{
    MemoryBag bag;
    box_.WriteProperties(bag);
    return bag;
}

void HeadlessTextBoxHost::ClearLog()
{
    log_.clear();
    propertyChanges_.clear();
}

void HeadlessTextBoxHost::WriteDown(int number, std::span<Variant> values)
{
    const EventInfo& info = TextBoxEventInfos()[static_cast<std::size_t>(number) - 1];
    LoggedEvent event { std::string(info.name), {} };
    for (std::size_t place = 0; place < values.size(); ++place)
        event.arguments.emplace_back(info.arguments[place].name, std::move(values[place]));
    log_.push_back(std::move(event));
}

} // namespace vornix
