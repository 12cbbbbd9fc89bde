// The title, the split, and what is read of the current cell and of virtual mode.
#include "automation/checked.h"
#include "control/control.h"

#include <algorithm>

namespace vornix {

bool Vornix::CaptionEnabled() const
{
    return Enter()->layout.Settings.CaptionEnabled;
}

void Vornix::SetCaptionEnabled(bool Value)
{
    const auto control = Enter();
    LayoutSettings& settings = control->layout.Settings;
    if (Value == settings.CaptionEnabled || (Value && control->store.FixedRows() == 0))
        return;
    settings.CaptionEnabled = Value;
    control->CopyCaption();
    control->funnel.RecalcLayout(false);
    control->Report("CaptionEnabled");
}

std::u16string Vornix::Caption() const
{
    return Enter()->settings.Caption;
}

void Vornix::SetCaption(std::u16string_view Value)
{
    const auto control = Enter();
    const bool wasEmpty = control->settings.Caption.empty();
    if (Value == control->settings.Caption)
        return;
    OrOutOfMemory([&] { control->settings.Caption = Value; });
    if (!control->IsRunMode())
        control->FollowCaption(wasEmpty);
    control->CopyCaption();
    if (control->layout.Settings.CaptionEnabled)
        control->funnel.RefreshCellUnderGate(0, control->store.FixedCols());
    control->Report("Caption");
}

void Control::FollowCaption(bool wasEmpty)
{
    bool& enabled = layout.Settings.CaptionEnabled;
    if (wasEmpty && !enabled) {
        const i16 fixedRows = ToI16(store.FixedRows() + 1);
        ToI16(store.Rows() + fixedRows); // a table that is full already stays without a title
        enabled = true;
        SetFixedRowCount(fixedRows);
    } else if (settings.Caption.empty()) {
        enabled = false;
        if (store.FixedRows() > 0)
            SetFixedRowCount(static_cast<i16>(store.FixedRows() - 1));
    }
}

i16 Vornix::SplitCols() const
{
    return Enter()->layout.Settings.SplitCols;
}

void Vornix::SetSplitCols(i16 Value)
{
    const auto control = Enter();
    if (!control->layout.SetSplitCols(Value))
        return;
    control->scrolling.ApplyScrollAndRepaint();
    control->Report("SplitCols");
}

bool Vornix::ShowSplit() const
{
    return Enter()->layout.Settings.ShowSplit;
}

void Vornix::SetShowSplit(bool Value)
{
    const auto control = Enter();
    LayoutEngine& layout = control->layout;
    const SplitChange change = layout.SetShowSplit(Value);
    if (change == SplitChange::None)
        return;
    control->scrolling.HideSplitHandle();
    if (!Value && layout.HBarHeight() > 0) {
        const int top = layout.ClientHeight() - 1;
        control->container.Child(ChildName::scrH).Move({ 0, top, layout.ClientWidth(), top + layout.HBarHeight() + 1 });
    }
    if (change == SplitChange::Dropped)
        control->funnel.RecalcLayout(false);
    else
        control->funnel.PaintSplitBar();
    // A handler of the paint may have switched it off again.
    const bool isShown = layout.Settings.ShowSplit && !control->IsClosed();
    if (isShown && control->container.Child(ChildName::scrH).IsVisible())
        control->container.Child(ChildName::picSplitCol).Show(true);
    control->Report("ShowSplit");
}

i16 Vornix::VirtualPageSize() const
{
    return Enter()->settings.VirtualPageSize;
}

i32 Vornix::VirtualOffset() const
{
    return Enter()->settings.VirtualOffset;
}

} // namespace vornix
