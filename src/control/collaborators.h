// What the shell asks of the parts that come to life with input and data. A part that is not there does nothing.
#pragma once

#include "interact/scrolling.h"
#include "model/repainter.h"

namespace vornix {

class EditSessionControl : public EditorControl {
public:
    bool IsEditorOpen() const override { return false; }
    void CloseEditor() override { }
    // Hands the focus on to the editor that is open.
    virtual void TakeFocus() { }
};

class VirtualModeControl : public PageRoller {
public:
    virtual void SetUp() { }
    void RollPage() override { }
};

class RecordSourceControl {
public:
    virtual ~RecordSourceControl() = default;
    virtual bool IsBound() const { return false; }
    virtual void Load() { }
};

} // namespace vornix
