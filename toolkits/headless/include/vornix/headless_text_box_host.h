// A text box as a control of its own, in a container without a screen, and a record of the events that it raises.
#pragma once

#include "vornix/event_log.h"
#include "vornix/headless_edit_box.h"
#include "vornix/memory_stores.h"
#include "vornix/text_box_event_funnel.h"
#include "vornix/text_box_members.h"

#include <string_view>
#include <vector>

namespace vornix {

struct KeyStroke;

struct HeadlessTextBoxOptions {
    // Pixels, 0 to 32767 each; error 5 for others.
    int width = 120;
    int height = 21;
    // What the box was saved with; must live until the host is made.
    const PropertyBag* bag = nullptr;
    // Where events go behind the log. May be null; must outlive the host.
    TextBoxEvents* events = nullptr;
};

// Ambient font DejaVu Sans 9 points, locale en-US, the system colours and the resolution of HeadlessContainer.
class HeadlessTextBoxHost final : private TextBoxSite,
                                  private ChildParent,
                                  private TextBoxEventFunnel<HeadlessTextBoxHost> {
public:
    // Makes the box, as a new one or from the bag, and shows it. It does not have the focus.
    explicit HeadlessTextBoxHost(const HeadlessTextBoxOptions& options = {});
    ~HeadlessTextBoxHost() override;
    HeadlessTextBoxHost(const HeadlessTextBoxHost&) = delete;
    HeadlessTextBoxHost& operator=(const HeadlessTextBoxHost&) = delete;

    TextBox& Box() { return box_; }
    // Its window, to be looked at and clicked.
    HeadlessEditBox& Window() { return window_; }
    // A member by its name, as a host without its types calls it.
    Variant Invoke(std::string_view name, InvokeKind kind, std::span<Variant> args)
    {
        return vornix::Invoke(box_, BuiltinLocale(), name, kind, args);
    }

    // Single notifications of its user, with what the box does by itself (HeadlessEditBox); nothing else is implied.
    // Give the code as it was left. Shift is the sum of 1 Shift, 2 Ctrl, 4 Alt. A box that is disabled has no user.
    i16 KeyDown(i16 code, i16 shift);
    i16 KeyPress(i16 character, i16 shift = 0);
    i16 KeyUp(i16 code, i16 shift);
    // What a person does, as HeadlessContainer has it: the box gets the focus first.
    void Type(std::u16string_view text);
    void Press(std::string_view key, i16 shift = 0);
    void Press(i16 code, i16 shift = 0);
    // As by a menu, in place of the selection. The clipboard stays as it is.
    void Paste(std::u16string_view text) { window_.Paste(text); }
    // What the keys for copying and pasting use.
    std::u16string& Clipboard() { return clipboard_; }
    // 0 to 32767 each; error 5 for others.
    void Resize(int width, int height);
    MemoryBag Save() const;

    // Object arguments are kept as values of type Object without an object.
    const std::vector<LoggedEvent>& Log() const { return log_; }
    const std::vector<std::string>& PropertyChanges() const { return propertyChanges_; }
    // Forgets events and property changes.
    void ClearLog();

private:
    friend TextBoxEventFunnel<HeadlessTextBoxHost>;

    template <typename Event, typename... Arguments> void On(int number, Event event, Arguments&... arguments)
    {
        std::array<Variant, sizeof...(Arguments)> values { Logged(arguments)... };
        WriteDown(number, values);
        if (receiver_)
            (receiver_->*event)(arguments...);
    }
    static Variant Logged(const DataObject& /*data*/) { return Variant::FromObject(nullptr); }
    template <typename Argument> static Variant Logged(Argument argument) { return Variant(argument); }
    void WriteDown(int number, std::span<Variant> values);
    void Strike(const KeyStroke& stroke);
    void TakeFocus();

    const Locale& GetLocale() const override { return BuiltinLocale(); }
    const SystemColors& Colors() const override { return colors_; }
    FontPtr AmbientFont() const override { return font_; }
    void PropertyChanged(std::string_view name) override { propertyChanges_.emplace_back(name); }

    void RaiseChild(HeadlessChild& /*child*/) override { }
    void FocusChild(HeadlessChild& /*child*/) override { hasFocus_ = true; }
    void ChildWithdrawn() override { hasFocus_ = false; }
    bool IsFocused(const HeadlessChild& /*child*/) const override { return hasFocus_; }

    TextBoxEvents* receiver_;
    std::vector<LoggedEvent> log_;
    std::vector<std::string> propertyChanges_;
    SystemColors colors_;
    FontPtr font_;
    std::u16string clipboard_;
    bool hasFocus_ = false;
    HeadlessEditBox window_;
    TextBox box_;
};

} // namespace vornix
