// A scroll bar as a control of its own, in a container without a screen, and a record of the events that it raises.
#pragma once

#include "vornix/event_log.h"
#include "vornix/headless_scroll_bar.h"
#include "vornix/memory_stores.h"
#include "vornix/scroll_bar_members.h"

#include <optional>
#include <string_view>
#include <vector>

namespace vornix {

struct HeadlessBarOptions {
    // Of a new bar; a saved one has its own. 1 stands, all others lie.
    i32 orientation = 0;
    // Pixels, 0 to 32767; error 5 for others.
    int length = 100;
    // What the bar was saved with; must live until the host is made.
    const PropertyBag* bag = nullptr;
    // Where events go behind the log. May be null; must outlive the host.
    ScrollBarEvents* events = nullptr;
};

class HeadlessBarHost final : private ScrollBarEvents {
public:
    // Pixels that a bar is thick.
    static constexpr int Thickness = 17;

    // Makes the bar, as a new one or from the bag, and shows it. It answers to its user from Subclass on.
    explicit HeadlessBarHost(const HeadlessBarOptions& options = {});
    HeadlessBarHost(const HeadlessBarHost&) = delete;
    HeadlessBarHost& operator=(const HeadlessBarHost&) = delete;

    ScrollBar& Bar() { return bar_; }
    // Its window, to be notified and clicked.
    HeadlessScrollBar& Window() { return window_; }
    // A member by its name, as a host without its types calls it.
    Variant Invoke(std::string_view name, InvokeKind kind, std::span<Variant> args)
    {
        return vornix::Invoke(bar_, BuiltinLocale(), name, kind, args);
    }
    // 0 to 32767 each; error 5 for others.
    void Resize(int width, int height);
    MemoryBag Save() const;

    const std::vector<LoggedEvent>& Log() const { return log_; }
    void ClearLog() { log_.clear(); }

private:
    void Change(i32& Value, i32 Direction) override;
    void Scroll(i32& Value) override;

    ScrollBarEvents* receiver_;
    std::vector<LoggedEvent> log_;
    HeadlessScrollBar window_;
    ScrollBar bar_;
};

} // namespace vornix
