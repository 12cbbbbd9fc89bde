// What the shell asks of the parts that come to life with input and data. A part that is not there does nothing.
#pragma once

#include "interact/current_cell_ports.h"

namespace vornix {

class EditSessionControl : public CellEditor {
public:
    bool IsEditorOpen() const override { return false; }
    void CloseEditor() override { }
    bool IsEditorOpenOn(CellIndex /*cell*/) const override { return false; }
    void CloseEditorAndRepaint() override { }
    bool OpenEditor(int /*row*/, int /*col*/) override { return false; }
    void EnterEdit() override { }
    void SetSelStart(int /*place*/) override { }
    void HideEditor() override { }
    void ForgetEditCell() override { }
    // Hands the focus on to the editor that is open.
    virtual void TakeFocus() { }
};

class VirtualModeControl : public ListPage {
public:
    virtual void SetUp() { }
    void RollPage() override { }
    int PageSize() const override { return 0; }
    i32 Offset() const override { return 0; }
    i32 Length() const override { return 0; }
    void GotoListPosition(i32 /*position*/) override { }
    void RollPageWithCurrent() override { }
};

class RecordSourceControl {
public:
    virtual ~RecordSourceControl() = default;
    virtual bool IsBound() const { return false; }
    virtual void Load() { }
};

} // namespace vornix
