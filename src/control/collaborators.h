// What the shell asks of the parts that come to life with input and data. A part that is not there does nothing.
#pragma once

#include "model/repainter.h"

namespace vornix {

class EditSessionControl : public EditorControl {
public:
    bool IsEditorOpen() const override { return false; }
    void CloseEditor() override { }
    // Hands the focus on to the editor that is open.
    virtual void TakeFocus() { }
};

class ScrollBarControl {
public:
    virtual ~ScrollBarControl() = default;
    // Places both bars and takes their range and position from the layout.
    virtual void Update() { }
    // Whether the bars answer to the user.
    virtual void SetHooked(bool /*hooked*/) { }
    virtual void EnableSmoothScroll() { }
};

class VirtualModeControl {
public:
    virtual ~VirtualModeControl() = default;
    virtual void SetUp() { }
};

class RecordSourceControl {
public:
    virtual ~RecordSourceControl() = default;
    virtual bool IsBound() const { return false; }
    virtual void Load() { }
};

} // namespace vornix
