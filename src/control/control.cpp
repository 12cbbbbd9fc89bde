#include "control/control.h"

#include "automation/checked.h"

namespace vornix {

namespace {

// Closing goes on whatever fails on the way.
template <typename Step> void IgnoringFailures(const Step& step) noexcept
{
    try {
        step();
    } catch (const std::exception&) {
    }
}

} // namespace

Control::Control(Container& windowContainer, VornixEvents& host)
    : container(windowContainer)
    , events(host)
    , scroll(store)
    , layout(store, scroll)
    , hidden(store)
    , spans(store)
    , fitting({ store, layout, spans, hidden, gate, funnel, container, events })
    , selection(store, current)
    , tableEdit({ store, spans, hidden, scroll, layout, current, selection })
    , editor({ store, layout, gate, current, mover, selection, scrolling, funnel, sizing, mouse, keyboard, recordSource,
          container, events })
    , textRelay(*this)
    , comboRelay(*this)
    , interaction(current, editor, selection, pressed)
    , paint({ store, layout, scroll, gate, interaction, container, events })
    , funnel({ store, layout, paint, gate, editor, scrolling, container })
    , scrolling({ store, layout, scroll, hidden, spans, gate, paint, funnel, editor, virtualMode, container, events })
    , mover({ store, spans, hidden, gate, current, scrolling, funnel, editor, virtualMode, events })
    , checks(store, funnel, container, events)
    , sizing({ store, layout, scroll, hidden, spans, fitting, gate, scrolling, funnel, virtualMode, container, events })
    , split({ store, layout, scroll, scrolling, paint, container, events })
    , mouseSelection({ store, layout, scroll, mover, selection, scrolling, funnel })
    , mouse({ store, layout, spans, gate, current, mover, selection, mouseSelection, sizing, pressed, checks, editor,
          funnel, container, events })
    , keyboard({ store, spans, hidden, scroll, layout, gate, current, selection, scrolling, funnel, mover, checks,
          editor, virtualMode, mouse, container, events })
    , broadcast(store, funnel)
    , twipsPerPixel(container.TwipsPerPixel())
{
}

int Control::InternalRow(i16 Row) const
{
    return ToI16(Row + store.FixedRows());
}

int Control::InternalCol(i16 Col) const
{
    return ToI16(Col + store.FixedCols());
}

i16 Control::PublicRow(int row) const
{
    return ToI16(row - store.FixedRows());
}

i16 Control::PublicCol(int col) const
{
    return ToI16(col - store.FixedCols());
}

const CellFormat& Control::Format(i16 Row, i16 Col) const
{
    const auto [row, col] = Internal(Row, Col);
    return store.Format(row, col);
}

void Control::EditFormat(i16 Row, i16 Col, const FormatEdit& edit)
{
    const auto [row, col] = Internal(Row, Col);
    store.EditFormat(row, col, edit);
    funnel.RefreshCellUnderGate(row, col);
}

void Control::Report(std::string_view name)
{
    if (!closed_)
        container.PropertyChanged(name);
}

void Control::RequireTable() const
{
    if (!hasTable_)
        RaiseError(ErrorNumber::SubscriptOutOfRange);
}

void Control::BeginCall()
{
    if (closed_)
        throw AutomationError(ErrorNumber::InvalidArgument, "The control is closed");
    ++depth_;
}

void Control::EndCall() noexcept
{
    --depth_;
    if (closed_ && depth_ == 0)
        Release();
}

void Control::Close()
{
    if (closed_)
        return;
    closed_ = true;
    events.Silence();
    funnel.SetReady(false);
    // The steps still running put the value of Redraw back into the gate: it must not open again.
    gate.SetRedraw(false);
    gate.Close();
    IgnoringFailures([this] { editor.Dispose(); });
    // Stops a paint that is going on.
    IgnoringFailures([this] { paint.Release(); });
    if (depth_ == 0)
        Release();
}

void Control::Release() noexcept
{
    if (released_)
        return;
    released_ = true;
    IgnoringFailures([this] {
        store.Defaults.Font.reset();
        store.Defaults.FontFixed.reset();
    });
    // Again: a paint that ended by an error left this to be done.
    IgnoringFailures([this] { paint.Release(); });
    IgnoringFailures([this] { container.SetTimer(0, false); });
    IgnoringFailures([this] { FreeTable(); });
    HookBars(false);
    HookEditors(false);
}

void Control::FreeTable()
{
    visualCells.Clear();
    if (!hasTable_)
        return;
    store.ResizeRowStore(0);
    store.ResizeColStore(0);
}

} // namespace vornix
