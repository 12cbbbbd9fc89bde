// A container without a screen: a control, its window in memory, and a record of all that it says. What a test, a
// script or a picture maker drives the control with.
#pragma once

#include "vornix/event_log.h"
#include "vornix/headless_child.h"
#include "vornix/headless_combo_box.h"
#include "vornix/headless_edit_box.h"
#include "vornix/headless_frame.h"
#include "vornix/headless_host_window.h"
#include "vornix/headless_picture_box.h"
#include "vornix/headless_scroll_bar.h"
#include "vornix/memory_stores.h"
#include "vornix/platform/container.h"
#include "vornix/raster_surface.h"
#include "vornix/vornix.h"

#include <array>
#include <cstdint>
#include <memory>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace vornix {

struct MessageBoxRecord {
    std::u16string title;
    std::u16string text;
    MessageIcon icon = MessageIcon::None;
};

// A picture by device pixels: four bytes each, red, green, blue and an alpha of 255, rows from the top.
struct RgbaImage {
    int width = 0;
    int height = 0;
    std::vector<u8> bytes;
};

// "exclamation", "information" or "".
std::string_view NameOf(MessageIcon icon);
// "default", "size_we" or "size_ns".
std::string_view NameOf(PointerShape shape);

class Person;
class WindowStack;

struct HeadlessOptions {
    // Of the window, border included; logical pixels. 0 to 32767 each; error 5 for others and beyond mostPixels.
    int width = 640;
    int height = 480;
    // Device pixels a logical pixel, 1 to 4; error 5 for others.
    double scale = 1.0;
    // Ambient UserMode false. Without a bag the control is a new one.
    bool design = false;
    // What the control was saved with; must live until the container is made.
    const PropertyBag* bag = nullptr;
    // Shows the control at the end.
    bool show = true;
    // Where events go behind the log. May be null; must outlive the container.
    VornixEvents* events = nullptr;
    std::shared_ptr<MemorySettings> settings = nullptr;
    // The most device pixels that the window may have, here and when it is resized: a quarter of a gigabyte. The control
    // keeps a second picture as large.
    std::int64_t mostPixels = std::int64_t { 1 } << 26;
};

// Screen 1920 by 1080 at 15 twips a pixel, ambient font DejaVu Sans 9 points, locale en-US, fixed system colours.
class HeadlessContainer : public Container {
public:
    // Makes the control and brings it to life: as a new one or from the bag, sized, and shown unless told otherwise.
    explicit HeadlessContainer(const HeadlessOptions& options = {});
    ~HeadlessContainer() override;
    HeadlessContainer(const HeadlessContainer&) = delete;
    HeadlessContainer& operator=(const HeadlessContainer&) = delete;

    Vornix& Grid() { return *grid_; }

    // What a form does to the control. All but SetUserMode and Close are error 5 on a closed control.
    void SetUserMode(bool userMode) { userMode_ = userMode; }
    // The limits are those of the options.
    void Resize(int width, int height);
    void Show();
    void Hide();
    void Paint() { grid_->Paint(); }
    void EnterFocus();
    void ExitFocus();
    // Ends in Terminate; the object stays, its members raise errors.
    void Close() { grid_->Terminate(); }

    // Single notifications to the control itself. Nothing is implied: no window on top, no focus, no button or key that
    // is held, and no other notification. Buttons 1 left, 2 right, 4 middle; shift the sum of 1 Shift, 2 Ctrl, 4 Alt;
    // places in pixels of the client area. Those of keys give the code as the handlers left it. Error 5 on a closed
    // control. They reach the control at design time, too.
    void MouseDown(float x, float y, i16 button = 1, i16 shift = 0);
    void MouseMove(float x, float y, i16 button = 0, i16 shift = 0);
    void MouseUp(float x, float y, i16 button = 1, i16 shift = 0);
    void Click();
    void DblClick();
    i16 KeyDown(i16 code, i16 shift = 0);
    i16 KeyPress(i16 character);
    i16 KeyUp(i16 code, i16 shift = 0);
    // 120 for each notch away from the user.
    void Wheel(i32 delta);
    // One tick of the timer, whether it runs or not; no time passes here by itself. The control then looks where the
    // pointer is: where the latest notification put it, one of the above or of what a person does, and elsewhere before
    // the first one, outside the client area, and while the control is hidden.
    void Tick();

    // What a person does, in the platform's order. The window on top at a place gets the notifications of the pointer,
    // in its own coordinates: a child that is visible and enabled, else the control; from the press to the release they
    // all go to the window of the press. Outside the client area there is no window, and nothing arrives. A press on
    // the control gives it the focus first (EnterFocus when the focus was elsewhere). Buttons and keys are held, for
    // IsKeyDown, from their press to their release. The bars (HeadlessScrollBar) and the handle of the split tell the
    // control what is done to them, the corner between the bars takes the focus, the editors (HeadlessEditBox,
    // HeadlessComboBox) do what such boxes do, and their frame tells of moves over it; other children do nothing.
    //
    // A control that a handler closes or hides gets no further notification, and a hidden one none at all, nor the
    // focus; one that is closed from the start is error 5, as are buttons, sums of keys and numbers of steps that there
    // are not, and places that are not finite.

    // MouseMove, MouseDown, MouseUp, Click.
    void ClickAt(float x, float y, i16 button = 1, i16 shift = 0);
    // MouseMove, MouseDown, MouseUp, Click, DblClick, MouseUp. Where another window lies on top after the first click,
    // the second one is a click on that.
    void DblClickAt(float x, float y, i16 button = 1, i16 shift = 0);
    // MouseMove to the first place, MouseDown, 1 to 32767 times MouseMove with the button, the last one to the second
    // place, MouseUp, and Click if that lies in the window of the press.
    void Drag(float x1, float y1, float x2, float y2, i16 button = 1, i16 shift = 0, i32 steps = 8);
    // KeyDown, KeyPress unless the handlers set the code of KeyDown to 0, and KeyUp for each unit of the text, by the
    // keys of a US keyboard: capitals and upper signs with Shift, a line feed as Return (one for CR LF), what has no
    // key with the code 231. They go to what has the focus at the moment; when that is not in the control, the control
    // gets it first.
    void Type(std::u16string_view text);
    // The same for one key, by its name in any case ("a", "Left", "F2", "Escape", "Delete", "Back", "Return", "Tab",
    // "Numpad5", ...), by the sign that it gives ("+", which takes Shift), or by its code, 1 to 254. KeyPress comes for
    // keys that give a character: letters, digits, signs, Back, Tab, Return, Escape and Space; with Ctrl, letters give 1
    // to 26; with Alt nothing does. Error 5 for a name that no key has; its description lists those there are.
    void Press(std::string_view key, i16 shift = 0);
    void Press(i16 code, i16 shift = 0);
    // Holds a key or button by its platform code, or lets it go.
    void HoldKey(int code, bool down);
    // Whether the control or one of its children has the focus.
    bool HasFocus() const;
    // Whether the focus is on this child.
    bool HasFocus(ChildName name) const;

    // What the control said since ClearLog.
    const std::vector<LoggedEvent>& Log() const { return log_.Events(); }
    // How often an event was raised.
    int Count(std::string_view event) const { return log_.Count(event); }
    const std::vector<std::string>& PropertyChanges() const { return propertyChanges_; }
    int Repaints() const { return grid_->Repaints(); }
    int Refreshes() const { return grid_->Refreshes(); }
    // Forgets events and property changes, and counts repaints and refreshes from 0.
    void ClearLog();

    // What it did to its window.
    const std::vector<MessageBoxRecord>& MessageBoxes() const { return messageBoxes_; }
    PointerShape Pointer() const { return pointer_; }
    u32 ExtendedStyle() const { return extendedStyle_; }
    bool IsTimerEnabled() const { return timerEnabled_; }
    int TimerInterval() const { return timerInterval_; }
    // Null for a name that no child has.
    HeadlessChild* FindChild(std::string_view name);
    // Error 5 for a name that no child has.
    HeadlessChild& Child(std::string_view name);
    HeadlessScrollBar& HorizontalBar() { return bars_[1]; }
    HeadlessScrollBar& VerticalBar() { return bars_[0]; }
    HeadlessEditBox& EditBox() { return editBox_; }
    HeadlessComboBox& ComboBox() { return comboBox_; }
    HeadlessFrame& EditFrame() { return frame_; }
    // The window of the host's that goes by this number; null before it was shown.
    HeadlessHostWindow* HostWindow(std::intptr_t number);
    MemorySettings& StoredSettings() { return *settings_; }

    // The control's picture. Logical pixels; 0xFFFFFFFF outside.
    ColorRef Pixel(int x, int y) const { return window_->GetPixel(x, y); }
    RasterSurface& Window() { return *window_; }
    RgbaImage Image() const;
    // Throws std::runtime_error when the file cannot be written.
    void SavePng(const std::string& path) const { window_->SavePng(path); }

    bool UserMode() const override { return userMode_; }
    FontPtr AmbientFont() const override { return font_; }
    const SystemColors& Colors() const override { return colors_; }
    const Locale& GetLocale() const override { return BuiltinLocale(); }
    Size ScreenSizeInTwips() const override;
    Size TwipsPerPixel() const override;
    Size ClientSize() const override;
    Device& WindowDevice() override { return *window_; }
    std::intptr_t WindowHandle() const override { return reinterpret_cast<std::intptr_t>(this); }
    Surface* BackStore(Size size) override;
    void SetExtendedStyle(u32 style) override;
    void PictureChanged(const Rect&) override { }
    bool SetFocus() override;
    void SetPointerShape(PointerShape shape) override { pointer_ = shape; }
    // By the windows that lie there; one that is hidden or disabled lets through what is below.
    PointerLocation LocatePointer() const override;
    bool IsKeyDown(int code) const override;
    void SetTimer(int interval, bool enabled) override;
    ChildWindow& Child(ChildName name) override;
    NativeScrollBar* ScrollBar(ChildName name) override;
    NativeEditBox* TextEditor() override { return &editBox_; }
    NativeComboBox* ComboEditor() override { return &comboBox_; }
    // Every number but 0 stands for a window.
    bool ShowHostWindow(std::intptr_t window, const Rect& place) override;
    void HideHostWindow(std::intptr_t window) override;
    bool FocusHostWindow(std::intptr_t window) override;
    void PropertyChanged(std::string_view name) override { propertyChanges_.emplace_back(name); }
    SettingsStore& Settings() override { return *settings_; }
    std::u16string ClipboardText() const override { return clipboard_; }
    void SetClipboardText(std::u16string_view text) override { clipboard_ = text; }
    void ShowMessage(std::u16string_view title, std::u16string_view text, MessageIcon icon) override;

private:
    void MakeWindow(Size client);
    void TellClientSize(Size before);
    void CheckSize(Size size) const;
    void RequireOpen() const;

    Size size_;
    double scale_;
    std::int64_t mostPixels_;
    bool userMode_;
    FontPtr font_;
    SystemColors colors_;
    std::shared_ptr<MemorySettings> settings_;
    EventLog log_;
    std::vector<std::string> propertyChanges_;
    std::vector<MessageBoxRecord> messageBoxes_;
    std::array<HeadlessScrollBar, 2> bars_ { HeadlessScrollBar(ChildName::scrV), HeadlessScrollBar(ChildName::scrH) };
    std::u16string clipboard_;
    HeadlessEditBox editBox_;
    HeadlessComboBox comboBox_;
    HeadlessFrame frame_;
    HeadlessCorner corner_;
    std::array<HeadlessPictureBox, 2> splitWindows_ { HeadlessPictureBox(ChildName::picSplitCol),
        HeadlessPictureBox(ChildName::picSplitMove) };
    // By their names in ChildName: the bars, the editors and their frame, the corner, those of the split.
    std::array<HeadlessChild*, 8> children_ {};
    std::vector<std::unique_ptr<HeadlessHostWindow>> hostWindows_;
    std::set<int> keysDown_;
    PointerShape pointer_ = PointerShape::Default;
    u32 extendedStyle_ = 0;
    int timerInterval_ = 0;
    bool timerEnabled_ = false;
    bool isLoaded_ = false;
    Size windowSize_;
    std::unique_ptr<RasterSurface> window_;
    std::unique_ptr<WindowStack> windows_;
    std::unique_ptr<Person> person_;
    std::unique_ptr<Vornix> grid_;
};

} // namespace vornix
