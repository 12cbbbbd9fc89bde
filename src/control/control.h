// What the control owns, put together, and the steps that more than one of its members takes.
#pragma once

#include "control/broadcast.h"
#include "control/collaborators.h"
#include "control/editor_relay.h"
#include "control/event_relay.h"
#include "control/grid_interaction.h"
#include "control/repaint_funnel.h"
#include "data/sort_keys.h"
#include "interact/check_toggle.h"
#include "interact/current_cell.h"
#include "interact/current_cell_mover.h"
#include "interact/edit_session.h"
#include "interact/grid_selection.h"
#include "interact/keyboard.h"
#include "interact/mouse.h"
#include "interact/scrolling.h"
#include "interact/split_drag.h"
#include "interact/table_edit.h"
#include "layout/auto_size.h"
#include "layout/layout_engine.h"
#include "layout/scroll_model.h"
#include "model/grid_store.h"
#include "model/hidden_lines.h"
#include "model/redraw_gate.h"
#include "model/spans.h"
#include "model/visual_cell_store.h"
#include "persist/batch_script.h"
#include "render/paint_pipeline.h"
#include "vornix/vornix.h"

#include <string>
#include <string_view>

namespace vornix {

// Properties of the control that no class below it needs.
struct ShellSettings {
    std::u16string Caption;
    i32 BorderStyle = vxNoBorder;
    bool Enabled = true;
    i32 AdjustLast = vxBoth;
    i32 ResizeMode = vxBoth;
    i16 VirtualPageSize = 0;
    i32 VirtualOffset = 0;
};

class Control {
public:
    Control(Container& windowContainer, VornixEvents& host);

    Container& container;
    EventRelay events;

    GridStore store;
    RedrawGate gate;
    ScrollModel scroll;
    LayoutEngine layout;
    HiddenLines hidden;
    Spans spans;
    AutoSize fitting;
    VisualCellStore visualCells;
    CurrentCell current;
    GridSelection selection;
    TableEdit tableEdit;
    SortKeyList sortKeys;
    ShellSettings settings;

    VirtualModeControl virtualMode;
    RecordSourceControl recordSource;
    EditSession editor;
    TextEditorRelay textRelay;
    ComboEditorRelay comboRelay;

    PressedCell pressed;
    GridInteraction interaction;
    PaintPipeline paint;
    RepaintFunnel funnel;
    Scrolling scrolling;
    CurrentCellMover mover;
    CheckToggle checks;
    LineSizing sizing;
    SplitDrag split;
    MouseSelection mouseSelection;
    Mouse mouse;
    Keyboard keyboard;
    Broadcast broadcast;
    BatchScript script;

    // Twips a pixel, as the screen had them when the control was made.
    Size twipsPerPixel;

    // Public to internal indices; error 6 when the sum leaves 16 bits.
    int InternalRow(i16 Row) const;
    int InternalCol(i16 Col) const;
    CellIndex Internal(i16 Row, i16 Col) const { return { InternalRow(Row), InternalCol(Col) }; }
    i16 PublicRow(int row) const;
    i16 PublicCol(int col) const;

    // Whether what the user does arrives.
    bool HearsUser() const { return settings.Enabled; }
    bool IsRunMode() const { return container.UserMode(); }
    const CellFormat& Format(i16 Row, i16 Col) const;
    // Writes one cell's format, then refreshes the cell.
    void EditFormat(i16 Row, i16 Col, const FormatEdit& edit);
    // The same, unless the field has the value already.
    template <typename Field, typename Value>
    void SetFormatField(i16 Row, i16 Col, Field CellFormat::*field, Value value);
    // A setting of the whole grid's look: unless equal, stores it, repaints and reports it.
    template <typename Value> void SetLook(Value& field, Value value, std::string_view name);
    // A setting without a look of its own: unless equal, stores and reports it.
    template <typename Value> bool SetSetting(Value& field, Value value, std::string_view name);
    void Report(std::string_view name);

    // The table from the defaults and counts, and everything that starts over with it.
    void BuildTable();
    void ForgetTable();
    void RequireTable() const;
    bool HasTable() const { return hasTable_; }
    // The flags for new lines, from ResizeMode and AdjustLast.
    void ApplyResizeMode();
    void ApplyAdjustLast();
    void ApplyBorderStyle();
    // Adds fixed rows at the outside or takes them away there.
    void SetFixedRowCount(i16 count);
    // The title into its cell, when there is one.
    void CopyCaption();
    void DropSplitBehindLastCol();
    // Brings every column that is not fixed to the place it was made at. False when all stood there.
    bool RestoreColumnOrder();
    // At design time the fixed row of the title comes with its first text and goes with its last.
    void FollowCaption(bool wasEmpty);
    void RelayoutForBars();
    // Closes the gate and has the host fill the page. False when the host closed the control meanwhile.
    bool PopulatePage();
    void HookBars(bool hooked);
    // Whether the boxes of the editors tell what the user does in them.
    void HookEditors(bool hooked);

    void ReadSettings(const PropertyBag& bag);
    void Load();

    // The lifecycle of calls: a control that is closed inside one of its own calls is released when the outermost ends.
    void BeginCall();
    void EndCall() noexcept;
    void Close();
    bool IsClosed() const { return closed_; }
    bool IsInCall() const { return depth_ > 0; }

    bool populated = false;

private:
    void Release() noexcept;
    void FreeTable();

    bool hasTable_ = false;
    bool barsHooked_ = false;
    bool closed_ = false;
    bool released_ = false;
    int depth_ = 0;
};

// One call into the control; every public member makes one, and so does what the user does in an editor.
class ControlCall {
public:
    explicit ControlCall(Control& control)
        : control_(control)
    {
        control_.BeginCall();
    }
    ~ControlCall() { control_.EndCall(); }
    ControlCall(const ControlCall&) = delete;
    ControlCall& operator=(const ControlCall&) = delete;

    Control* operator->() const { return &control_; }
    Control& operator*() const { return control_; }

private:
    Control& control_;
};

class Vornix::Call : public ControlCall {
    using ControlCall::ControlCall;
};

template <typename Field, typename Value>
void Control::SetFormatField(i16 Row, i16 Col, Field CellFormat::*field, Value value)
{
    if (Format(Row, Col).*field == value)
        return;
    EditFormat(Row, Col, [&](CellFormat& format) { format.*field = value; });
}

template <typename Value> void Control::SetLook(Value& field, Value value, std::string_view name)
{
    if (field == value)
        return;
    field = value;
    funnel.RepaintUnderGate();
    Report(name);
}

template <typename Value> bool Control::SetSetting(Value& field, Value value, std::string_view name)
{
    if (field == value)
        return false;
    field = value;
    Report(name);
    return true;
}

} // namespace vornix
