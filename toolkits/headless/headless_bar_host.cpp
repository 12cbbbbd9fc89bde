#include "vornix/headless_bar_host.h"

namespace vornix {

namespace {

constexpr i32 Vertical = 1;
constexpr int LongestSide = 32767;

i32 OrientationOf(const HeadlessBarOptions& options)
{
    if (!options.bag)
        return options.orientation;
    const std::optional<BagValue> saved = options.bag->ReadProperty("Orientation");
    const i32* const number = saved ? std::get_if<i32>(&*saved) : nullptr;
    return number ? *number : 0;
}

} // namespace

HeadlessBarHost::HeadlessBarHost(const HeadlessBarOptions& options)
    : receiver_(options.events)
    , window_(OrientationOf(options) == Vertical ? ChildName::scrV : ChildName::scrH)
    , bar_(window_, window_, *this)
{
    if (OrientationOf(options) == Vertical)
        Resize(Thickness, options.length);
    else
        Resize(options.length, Thickness);
    window_.TellTo([this](i32 code) { bar_.Notify(code); });
    if (options.bag) {
        bar_.ReadProperties(*options.bag);
    } else {
        bar_.InitProperties();
        bar_.SetOrientation(options.orientation);
    }
    bar_.Show();
}

void HeadlessBarHost::Resize(int width, int height)
{
    if (width < 0 || height < 0 || width > LongestSide || height > LongestSide)
        throw AutomationError(ErrorNumber::InvalidArgument, "The sides of a window are 0 to 32767 pixels");
    window_.Move({ 0, 0, width, height });
}

MemoryBag HeadlessBarHost::Save() const
{
    MemoryBag bag;
    bar_.WriteProperties(bag);
    return bag;
}

void HeadlessBarHost::Change(i32& Value, i32 Direction)
{
    log_.push_back({ "Change", { { "Value", Variant(Value) }, { "Direction", Variant(Direction) } } });
    if (receiver_)
        receiver_->Change(Value, Direction);
}

void HeadlessBarHost::Scroll(i32& Value)
{
    log_.push_back({ "Scroll", { { "Value", Variant(Value) } } });
    if (receiver_)
        receiver_->Scroll(Value);
}

} // namespace vornix
