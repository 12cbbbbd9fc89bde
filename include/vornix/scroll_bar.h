// A scroll bar as a component of its own: range, position, and what its user asks for. The grid has two of them; a host
// may place others. The bar itself is the platform's, behind NativeScrollBar.
//
// What the user does reaches the bar by Notify, and leaves it as Change or Scroll with the value by reference: where the
// handler leaves it, the bar stands. A bar answers between Subclass and UnSubclass, and raises events only while it is
// shown. It must not be destroyed inside one of its own events.
#pragma once

#include "vornix/platform/container.h"
#include "vornix/types.h"

#include <memory>

namespace vornix {

class cScrollBar;

class ScrollBarEvents {
public:
    virtual ~ScrollBarEvents() = default;
    // The user asks for another position: Direction -1 and 1 for a page up and down, with Value where the bar stands, and
    // 0 for everything else, with Value where it is to go.
    virtual void Change(i32& Value, i32 Direction) = 0;
    // The thumb is being dragged.
    virtual void Scroll(i32& Value) = 0;
};

class ScrollBar {
public:
    // All three must outlive the scroll bar. `window` shows the bar, or is the bar.
    ScrollBar(ChildWindow& window, NativeScrollBar& bar, ScrollBarEvents& events);
    ~ScrollBar();
    ScrollBar(const ScrollBar&) = delete;
    ScrollBar& operator=(const ScrollBar&) = delete;

    // -- For the container --

    // A new bar: Orientation 0, Min 0, Max 100.
    void InitProperties();
    // A saved one; absent values are those of a new bar. A value that is no number is error 13.
    void ReadProperties(const PropertyBag& bag);
    void WriteProperties(PropertyBag& bag) const;
    void Show();
    void Hide();
    bool IsShown() const;
    // Covers the area below the bar, where the control draws its child windows itself.
    void Paint();
    // What the user did, as a number of vxScrollBar's messages:
    //
    //     0 line up    2 page up    4 thumb let go (not used)   6 to the top      8 end of the action
    //     1 line down  3 page down  5 thumb dragged             7 to the bottom
    //
    // Every action ends with 8. Nothing happens before Subclass and after UnSubclass.
    void Notify(i32 code);

    // -- Members --

    std::intptr_t hWnd() const;
    // Whether the bar takes input.
    bool Enabled() const;
    void SetEnabled(bool Value);
    i32 Min() const;
    i32 Max() const;
    // 0 horizontal, 1 vertical; stored as it comes.
    i32 Orientation() const;
    void SetOrientation(i32 Value);
    // Step of the arrows; 1 at the start.
    void SetSmallChange(i32 Value);
    // Whether the step doubles while an arrow is held: 2, 4, 8, 16, then 32.
    void SetSmoothScroll(bool Value);
    // The position, limited to Min .. Max. Writing raises nothing.
    i32 Value() const;
    void SetValue(i32 Value);
    // Range and page at once; the position stays as far as the range lets it.
    void SetInfo(i32 Min, i32 Max, i32 Page);
    // Has the bar answer to its user. An Orientation other than 0 and 1 has no messages: the bar then does not answer.
    // UnSubclass ends what the user is doing: a drag, and the doubling of the step. So does Enabled False.
    void Subclass();
    void UnSubclass();

private:
    class Shown;

    ChildWindow& window_;
    NativeScrollBar& bar_;
    std::unique_ptr<Shown> events_;
    std::unique_ptr<cScrollBar> logic_;
    i32 min_ = 0;
    i32 max_ = 100;
    i32 orientation_ = 0;
    bool subclassed_ = false;
};

} // namespace vornix
