// A grid in a container, and a person who edits in it: what each container does by its own means, so that the same tests
// hold all of them to the same.
#pragma once

#include "vornix/event_log.h"
#include "vornix/vornix.h"

#include <functional>
#include <memory>
#include <string>
#include <string_view>

namespace vornix {

class EditingDesk {
public:
    virtual ~EditingDesk() = default;

    virtual Vornix& Grid() = 0;
    virtual Container& Host() = 0;
    virtual EventLog& Log() = 0;

    // The pointer goes there and clicks; places in the client area. The control has the focus afterwards, or one of its
    // editors.
    virtual void ClickAt(int x, int y, i16 shift) = 0;
    virtual void DblClickAt(int x, int y) = 0;
    // Keys and characters go to what has the focus.
    virtual void Type(std::u16string_view text) = 0;
    virtual void Press(std::string_view key, i16 shift) = 0;
    // Text that an input method has composed.
    virtual void Compose(std::u16string_view text) = 0;
    // Into the editor, as by its menu.
    virtual void Paste(std::u16string_view text) = 0;
    // A row of the open list.
    virtual void ClickItem(int index) = 0;
    // The focus goes to something else than the control, and comes back.
    virtual void LeaveFocus() = 0;
    virtual void ReturnFocus() = 0;
    // One tick of the timer.
    virtual void Tick() = 0;

    // Which window types go to.
    enum class Focus { Elsewhere, Control, TextEditor, ComboEditor };
    virtual Focus WhereFocusIs() = 0;
};

// Of 640 by 480 pixels, shown and without the focus. The handlers must outlive it.
std::unique_ptr<EditingDesk> MakeDesk(VornixEvents& handlers);

} // namespace vornix
