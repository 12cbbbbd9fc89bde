// The steps by which a container brings the control to life, shows it and ends it.
#include "automation/checked.h"
#include "control/control.h"

namespace vornix {

namespace {

constexpr u32 ClientEdge = 512;
constexpr u32 StaticEdge = 131072;

} // namespace

void Control::ApplyResizeMode()
{
    store.Defaults.ColsResizable = settings.ResizeMode == vxColumn || settings.ResizeMode == vxBoth;
    store.Defaults.RowsResizable = settings.ResizeMode == vxRow || settings.ResizeMode == vxBoth;
}

void Control::ApplyAdjustLast()
{
    store.Defaults.AdjustLastCol = settings.AdjustLast == vxColumn || settings.AdjustLast == vxBoth;
    store.Defaults.AdjustLastRow = settings.AdjustLast == vxRow || settings.AdjustLast == vxBoth;
}

void Control::ApplyBorderStyle()
{
    switch (settings.BorderStyle) {
    case vxNoBorder:
        return container.SetExtendedStyle(0);
    case vxInset:
        return container.SetExtendedStyle(ClientEdge);
    case vxInsetThin:
        return container.SetExtendedStyle(StaticEdge);
    default:
        return;
    }
}

void Control::CopyCaption()
{
    if (layout.Settings.CaptionEnabled && store.FixedRows() >= 1)
        store.EditCell(0, store.FixedCols()).SetText(settings.Caption);
}

void Control::BuildTable()
{
    ApplyAdjustLast();
    store.InitGridStore(container.Colors());
    layout.ResetFor(store);
    editor.Reset();
    current.Clear();
    selection.Reset();
    mouse.Reset();
    split.Cancel();
    hasTable_ = true;
    CopyCaption();
    layout.MarkMetricsDirty();
    funnel.SetReady(true);
}

// While the counts are read anew they do not fit the arrays: no member may reach them before the table is built.
void Control::ForgetTable()
{
    hasTable_ = false;
    funnel.SetReady(false);
}

void Control::HookBars(bool hooked)
{
    if (barsHooked_ == hooked)
        return;
    barsHooked_ = hooked;
    scrolling.SetHooked(hooked);
}

void Control::HookEditors(bool hooked)
{
    if (NativeEditBox* const box = container.TextEditor())
        box->Listen(hooked ? &textRelay : nullptr);
    if (NativeComboBox* const box = container.ComboEditor())
        box->Listen(hooked ? &comboRelay : nullptr);
}

bool Control::PopulatePage()
{
    RedrawGate::Closed closed(gate);
    events.PopulateGrid(settings.VirtualOffset, 0, ToI16(store.Rows() - 1));
    return !IsClosed();
}

void Control::Load()
{
    ApplyResizeMode();
    BuildTable();
    if (!IsRunMode())
        return;
    HookBars(true);
    HookEditors(true);
    if (layout.Settings.ScrollHBar == vxScrollSmooth)
        scrolling.HorizontalBar().SetSmoothScroll(true);
    gate.RestoreFromRedraw();
}

Vornix::Vornix(Container& container, VornixEvents& events)
    : control_(std::make_unique<Control>(container, events))
{
}

Vornix::~Vornix()
{
    control_->Close();
}

Vornix::Call Vornix::Enter() const
{
    return Call(*control_);
}

namespace {

// A bag of a control that was never saved.
class EmptyBag : public PropertyBag {
    std::optional<BagValue> ReadProperty(std::string_view) const override { return std::nullopt; }
    void WriteProperty(std::string_view, const BagValue&) override { }
};

} // namespace

void Vornix::InitProperties()
{
    const auto control = Enter();
    control->ForgetTable();
    control->ReadSettings(EmptyBag());
    control->ApplyBorderStyle();
    control->ApplyResizeMode();
    control->BuildTable();
}

void Vornix::ReadProperties(const PropertyBag& bag)
{
    const auto control = Enter();
    control->ForgetTable();
    control->ReadSettings(bag);
    control->Load();
    if (control->settings.VirtualPageSize > 0)
        control->virtualMode.SetUp();
    control->ApplyBorderStyle();
    control->funnel.RecalcLayout();
}

void Vornix::Resize()
{
    const auto control = Enter();
    if (!control->IsRunMode())
        control->gate.Open();
    if (control->editor.IsEditorOpen())
        control->editor.CloseEditor();
    control->funnel.ClientSizeChanged();
    if (control->container.Child(ChildName::picSplitCol).IsVisible())
        control->funnel.PaintSplitBar();
}

void Vornix::Show()
{
    const auto control = Enter();
    if (control->IsRunMode() && !control->populated && control->settings.VirtualPageSize >= 1) {
        control->settings.VirtualOffset = 0;
        control->populated = true;
        if (!control->PopulatePage())
            return;
        control->funnel.RepaintUnderGate();
    }
    if (control->container.Child(ChildName::scrH).IsVisible() && control->layout.Settings.ShowSplit)
        control->container.Child(ChildName::picSplitCol).Show(true);
}

void Vornix::Hide() { }

void Vornix::Paint()
{
    Enter()->funnel.PaintMessage();
}

void Vornix::EnterFocus()
{
    const auto control = Enter();
    if (control->editor.IsEditorOpen())
        control->editor.TakeFocus();
}

void Vornix::ExitFocus()
{
    const auto control = Enter();
    control->editor.CloseEditor();
    if (!control->gate.IsOpen() || !control->current.IsValid())
        return;
    const CurrentCell::Undisplayed withoutMark(control->current);
    control->funnel.RefreshIfInRange(control->current.Row(), control->current.Col());
}

void Vornix::Terminate()
{
    control_->Close();
}

bool Vornix::IsTerminated() const noexcept
{
    return control_->IsClosed();
}

bool Vornix::IsInCall() const noexcept
{
    return control_->IsInCall();
}

const Surface* Vornix::BackStore() const
{
    return control_->paint.BackStore();
}

int Vornix::Repaints() const
{
    return control_->paint.Repaints();
}

int Vornix::Refreshes() const
{
    return control_->paint.Refreshes();
}

void Vornix::ClearPaintCounters()
{
    control_->paint.ClearCounters();
}

bool Vornix::Redraw() const
{
    return Enter()->gate.Redraw();
}

void Vornix::SetRedraw(bool Value)
{
    const auto control = Enter();
    if (Value == control->gate.Redraw())
        return;
    control->gate.SetRedraw(Value);
    control->gate.RestoreFromRedraw();
    if (!control->IsRunMode()) {
        control->mouse.ForgetPressUnlessHeld();
        control->funnel.RecalcLayout(false);
    } else if (Value) {
        control->HookBars(true);
        control->container.SetTimer(Mouse::WatchInterval, true);
        control->funnel.RecalcLayout();
    } else {
        control->HookBars(false);
        control->container.SetTimer(Mouse::WatchInterval, false);
    }
    control->Report("Redraw");
}

void Vornix::Refresh()
{
    const auto control = Enter();
    control->ApplyBorderStyle();
    if (!control->recordSource.IsBound() && control->settings.VirtualPageSize > 0 && !control->PopulatePage())
        return;
    control->recordSource.Load();
    control->layout.SetSmoothOffset(0);
    control->funnel.RecalcLayout();
}

void Vornix::RefreshCell(i16 Row, i16 Col)
{
    const auto control = Enter();
    const auto [row, col] = control->Internal(Row, Col);
    control->funnel.RefreshOneCell(row, col);
    control->editor.Reload({ row, col });
}

Hdc Vornix::hDC() const
{
    return Enter()->container.WindowDevice().Handle();
}

std::intptr_t Vornix::hWnd() const
{
    return Enter()->container.WindowHandle();
}

} // namespace vornix
