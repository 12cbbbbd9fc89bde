// The scroll bar as a component: the shell around its logic.
#include "automation/checked.h"
#include "layout/scroll_bar.h"

namespace vornix {

namespace {

enum Orientations { Horizontal = 0, Vertical = 1 };

i32 NumberIn(const PropertyBag& bag, std::string_view name, i32 fallback)
{
    const std::optional<BagValue> value = bag.ReadProperty(name);
    if (!value)
        return fallback;
    const i32* const number = std::get_if<i32>(&*value);
    if (!number)
        RaiseError(ErrorNumber::TypeMismatch);
    return *number;
}

} // namespace

// Hands events on while the bar is shown.
class ScrollBar::Shown : public ScrollBarEvents {
public:
    Shown(const ScrollBar& bar, ScrollBarEvents& host)
        : bar_(bar)
        , host_(host)
    {
    }
    void Change(i32& value, i32 direction) override
    {
        if (bar_.IsShown())
            host_.Change(value, direction);
    }
    void Scroll(i32& value) override
    {
        if (bar_.IsShown())
            host_.Scroll(value);
    }

private:
    const ScrollBar& bar_;
    ScrollBarEvents& host_;
};

ScrollBar::ScrollBar(ChildWindow& window, NativeScrollBar& bar, ScrollBarEvents& events)
    : window_(window)
    , bar_(bar)
    , events_(std::make_unique<Shown>(*this, events))
    , logic_(std::make_unique<cScrollBar>(bar, *events_))
{
}

ScrollBar::~ScrollBar() = default;

void ScrollBar::InitProperties()
{
    orientation_ = Horizontal;
    min_ = 0;
    max_ = 100;
    logic_->Initialize();
    SetInfo(min_, max_, 1);
}

void ScrollBar::ReadProperties(const PropertyBag& bag)
{
    orientation_ = NumberIn(bag, "Orientation", Horizontal);
    max_ = NumberIn(bag, "Max", 100);
    min_ = NumberIn(bag, "Min", 0);
    logic_->Initialize();
    SetInfo(min_, max_, 1);
}

void ScrollBar::WriteProperties(PropertyBag& bag) const
{
    bag.WriteProperty("Orientation", orientation_);
    bag.WriteProperty("Max", max_);
    bag.WriteProperty("Min", min_);
}

void ScrollBar::Show()
{
    window_.Show(true);
}

void ScrollBar::Hide()
{
    window_.Show(false);
}

bool ScrollBar::IsShown() const
{
    return window_.IsVisible();
}

void ScrollBar::Paint()
{
    const Rect place = window_.Place();
    Device* const canvas = window_.Canvas();
    if (!canvas || place.Height() == 0)
        return;
    canvas->FillRect({ 0, 0, place.Width(), place.Height() }, canvas->GetBkColor());
    window_.CanvasChanged();
}

void ScrollBar::Notify(i32 code)
{
    if (subclassed_)
        logic_->DispatchMessage(code);
}

std::intptr_t ScrollBar::hWnd() const
{
    return bar_.Handle();
}

bool ScrollBar::Enabled() const
{
    return window_.IsEnabled();
}

void ScrollBar::SetEnabled(bool Value)
{
    window_.SetEnabled(Value);
    if (!Value)
        logic_->EndAction();
}

i32 ScrollBar::Min() const
{
    return min_;
}

i32 ScrollBar::Max() const
{
    return max_;
}

i32 ScrollBar::Orientation() const
{
    return orientation_;
}

void ScrollBar::SetOrientation(i32 Value)
{
    orientation_ = Value;
}

void ScrollBar::SetSmallChange(i32 Value)
{
    logic_->SetSmallChange(Value);
}

void ScrollBar::SetSmoothScroll(bool Value)
{
    logic_->SetSmoothScroll(Value);
}

i32 ScrollBar::Value() const
{
    return logic_->Value();
}

void ScrollBar::SetValue(i32 Value)
{
    logic_->SetValue(Value);
}

void ScrollBar::SetInfo(i32 Min, i32 Max, i32 Page)
{
    min_ = Min;
    max_ = Max;
    logic_->SetInfo(logic_->Value(), Min, Max, Page);
}

void ScrollBar::Subclass()
{
    subclassed_ = orientation_ == Horizontal || orientation_ == Vertical;
}

void ScrollBar::UnSubclass()
{
    subclassed_ = false;
    logic_->EndAction();
}

} // namespace vornix
