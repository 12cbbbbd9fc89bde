// The container port: what a toolkit gives the control: a window, an ambient, child windows, a timer, dialogs.
//
// The control calls these on the thread that called it. Sizes and places are logical pixels of the control's client
// area unless said otherwise.
#pragma once

#include "vornix/platform/combo_box.h"
#include "vornix/platform/device.h"
#include "vornix/platform/edit_box.h"
#include "vornix/platform/locale.h"
#include "vornix/platform/system_colors.h"
#include "vornix/types.h"

#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <variant>

namespace vornix {

// A window placed on the control. Hidden until shown. Its place is one in the control's client area; txtTmp and cboTmp lie
// in the frame fraEdit, are seen only where and while it is, and have their place in it.
class ChildWindow {
public:
    virtual ~ChildWindow() = default;
    virtual void Move(const Rect& place) = 0;
    virtual Rect Place() const = 0;
    virtual void Show(bool visible) = 0;
    virtual bool IsVisible() const = 0;
    virtual void SetEnabled(bool enabled) = 0;
    virtual bool IsEnabled() const = 0;
    // Above its siblings.
    virtual void Raise() = 0;
    // False when the window cannot take the focus now.
    virtual bool SetFocus() = 0;
    // The ground of a window that shows nothing else.
    virtual void SetBackColor(ColorRef /*color*/) { }
    // What the control draws on where it draws a child itself, as large as its place; null where the toolkit does. A
    // place of another size may bring another canvas.
    virtual Device* Canvas() { return nullptr; }
    // The drawing on the canvas is complete and is to be shown.
    virtual void CanvasChanged() { }
};

// Range, page and position of a scroll bar. The thumb is as long as the page.
struct ScrollBarInfo {
    i32 min = 0;
    i32 max = 0;
    i32 page = 0;
    i32 position = 0;
};

// A scroll bar as the platform shows it. It keeps range and position and never moves by itself: what its user does is
// told to the control (Vornix::ScrollBarNotify), which sets the position that comes of it. With a range that is upside
// down there is nothing to scroll.
class NativeScrollBar {
public:
    virtual ~NativeScrollBar() = default;
    virtual void SetInfo(const ScrollBarInfo& info) = 0;
    virtual void SetRange(i32 min, i32 max) = 0;
    virtual i32 Position() const = 0;
    virtual void SetPosition(i32 position) = 0;
    // Where the user holds the thumb; after the drag, where it was let go.
    virtual i32 TrackPosition() const = 0;
    // The native window.
    virtual std::intptr_t Handle() const { return 0; }
};

// The children by the names they carry.
enum class ChildName { scrV, scrH, txtTmp, cboTmp, fraEdit, cPivot, picSplitCol, picSplitMove };

enum class PointerShape { Default, SizeWE, SizeNS };

// Which window lies under the pointer, and the place in the control's client area.
struct PointerLocation {
    enum class Window { Elsewhere, Control, Child };
    Window window = Window::Elsewhere;
    // Of Window::Child.
    ChildName child = ChildName::scrV;
    Point place;
};

enum class MessageIcon { None, Exclamation, Information };

// What a property bag stores.
using BagValue = std::variant<bool, i32, std::u16string, FontPtr, PicturePtr>;

// Name and value pairs that a container keeps with the form.
class PropertyBag {
public:
    virtual ~PropertyBag() = default;
    // Empty when the name is absent.
    virtual std::optional<BagValue> ReadProperty(std::string_view name) const = 0;
    virtual void WriteProperty(std::string_view name, const BagValue& value) = 0;
};

// The settings of the user, text by application, section and key.
class SettingsStore {
public:
    virtual ~SettingsStore() = default;
    virtual std::u16string GetSetting(std::u16string_view application, std::u16string_view section,
        std::u16string_view key, std::u16string_view fallback)
        = 0;
    virtual void SaveSetting(std::u16string_view application, std::u16string_view section, std::u16string_view key,
        std::u16string_view value)
        = 0;
};

class Container {
public:
    virtual ~Container() = default;

    // Ambient: asked at the moment of use, never remembered.
    virtual bool UserMode() const = 0;
    virtual FontPtr AmbientFont() const = 0;
    virtual const SystemColors& Colors() const = 0;
    virtual const Locale& GetLocale() const = 0;

    // Screen, in twips; twips a pixel in both directions.
    virtual Size ScreenSizeInTwips() const = 0;
    virtual Size TwipsPerPixel() const = 0;

    // The window of the control. ClientSize is also its ScaleWidth and ScaleHeight.
    virtual Size ClientSize() const = 0;
    virtual Device& WindowDevice() = 0;
    virtual std::intptr_t WindowHandle() const = 0;
    // Where the picture of the whole control is kept, asked for at each change of size. A toolkit that shows that picture
    // as it is gives its window device; null: the control keeps a surface of its own and copies it to the window.
    virtual Surface* BackStore(Size /*size*/) { return nullptr; }
    // The window's extended style, which may narrow the client area: 0, 512 (client edge) or 131072 (static edge).
    virtual void SetExtendedStyle(u32 style) = 0;
    // Part of the control's picture has changed. Toolkits that show the picture themselves repaint from it.
    virtual void PictureChanged(const Rect& area) = 0;
    virtual bool SetFocus() = 0;
    virtual void SetPointerShape(PointerShape shape) = 0;
    virtual PointerLocation LocatePointer() const = 0;
    // Whether a key or button is down now, by its platform code (left button 1).
    virtual bool IsKeyDown(int code) const = 0;
    // The one timer. Interval in milliseconds.
    virtual void SetTimer(int interval, bool enabled) = 0;
    virtual ChildWindow& Child(ChildName name) = 0;
    // The bar in the child scrV or scrH. Null where the toolkit has no bars: their children then stay hidden.
    virtual NativeScrollBar* ScrollBar(ChildName /*name*/) { return nullptr; }
    // The edit box in the child txtTmp, and the combo box in cboTmp. Null where the toolkit has none: the cells are then
    // not edited.
    virtual NativeEditBox* TextEditor() { return nullptr; }
    virtual NativeComboBox* ComboEditor() { return nullptr; }
    // A window of the host's, by the number that the toolkit knows it under. Shown, it lies over the control just behind
    // cPivot, at a place in the client area. False when there is no such window.
    virtual bool ShowHostWindow(std::intptr_t /*window*/, const Rect& /*place*/) { return false; }
    virtual void HideHostWindow(std::intptr_t /*window*/) { }
    virtual bool FocusHostWindow(std::intptr_t /*window*/) { return false; }

    // A persisted property changed.
    virtual void PropertyChanged(std::string_view name) = 0;

    virtual SettingsStore& Settings() = 0;
    // The plain text on the clipboard, CR LF between its lines; empty when there is none. Where the platform's texts end
    // lines in another way, those of other programs are brought to this one; a text set here comes back as it was.
    virtual std::u16string ClipboardText() const = 0;
    virtual void SetClipboardText(std::u16string_view text) = 0;
    virtual void ShowMessage(std::u16string_view title, std::u16string_view text, MessageIcon icon) = 0;
};

} // namespace vornix
