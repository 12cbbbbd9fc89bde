#include "qt_container.h"

#include "qt_ambient.h"
#include "qt_canvas_window.h"
#include "qt_clipboard.h"
#include "qt_combo_box.h"
#include "qt_edit_box.h"
#include "qt_editor_window.h"
#include "qt_frame_window.h"
#include "qt_scroll_bar.h"

#include <QApplication>
#include <QCursor>
#include <QMessageBox>
#include <QPointer>
#include <QScreen>
#include <QSettings>

#include <algorithm>
#include <new>
#include <utility>

namespace vornix {

namespace {

constexpr u32 ClientEdge = 512;
constexpr u32 StaticEdge = 131072;
constexpr int TwipsPerInch = 1440;
constexpr int PixelsPerInch = 96;
constexpr int LeftButton = 1;
constexpr int RightButton = 2;
constexpr int MiddleButton = 4;
constexpr int ShiftKey = 16;
constexpr int CtrlKey = 17;
constexpr int AltKey = 18;
constexpr int SplitHandleWidth = 6;
// Pixels are 16 bits in the control.
constexpr int LargestSize = 32767;

class QtSettings final : public SettingsStore {
public:
    std::u16string GetSetting(std::u16string_view application, std::u16string_view section, std::u16string_view key,
        std::u16string_view fallback) override
    {
        QSettings settings = Open(application);
        // The user's own settings, not those of the machine.
        settings.setFallbacksEnabled(false);
        return FromQString(settings.value(KeyOf(section, key), ToQString(fallback)).toString());
    }

    void SaveSetting(std::u16string_view application, std::u16string_view section, std::u16string_view key,
        std::u16string_view value) override
    {
        QSettings settings = Open(application);
        settings.setValue(KeyOf(section, key), ToQString(value));
    }

private:
    static QSettings Open(std::u16string_view application)
    {
        return QSettings(QSettings::IniFormat, QSettings::UserScope, QStringLiteral("Vornix"), ToQString(application));
    }
    static QString KeyOf(std::u16string_view section, std::u16string_view key)
    {
        return ToQString(section) + QLatin1Char('/') + ToQString(key);
    }
};

using TextWindow = QtEditorWindow<QtEditBox>;
using ComboWindow = QtEditorWindow<QtComboBox>;

Qt::CursorShape CursorOf(PointerShape shape)
{
    switch (shape) {
    case PointerShape::SizeWE:
        return Qt::SplitHCursor;
    case PointerShape::SizeNS:
        return Qt::SplitVCursor;
    case PointerShape::Default:
        break;
    }
    return Qt::ArrowCursor;
}

} // namespace

QtContainer::QtContainer(QFrame& widget)
    : setting_ { widget, {}, {}, 1.0 }
    , focus_(setting_)
    , hostWindows_(widget)
    , widget_(widget)
    , settings_(std::make_unique<QtSettings>())
{
    // The frame before what is in it.
    children_[static_cast<std::size_t>(ChildName::fraEdit)] = MakeChild(ChildName::fraEdit);
    for (std::size_t child = 0; child < children_.size(); ++child) {
        if (!children_[child])
            children_[child] = MakeChild(static_cast<ChildName>(child));
    }
    ConnectEditor(ChildOf<TextWindow>(ChildName::txtTmp).TheBox());
    ConnectEditor(ChildOf<ComboWindow>(ChildName::cboTmp).TheBox());
    Child(ChildName::picSplitCol).Move({ 0, 0, SplitHandleWidth, 0 });
    QObject::connect(
        &timer_, &QTimer::timeout, &timer_, [this] { setting_.grid.Tell([](Vornix& grid) { grid.Tick(); }); });
    ReadAmbient();
    FitToWidget();
    // The control needs a device from its first call on, long before the widget has its size.
    auto surface = MakeSurface({ 1, 1 });
    if (!surface)
        throw std::bad_alloc();
    UseSurface(std::move(surface));
}

QtContainer::~QtContainer() = default;

template <typename Box> void QtContainer::ConnectEditor(Box& box)
{
    box.OnTab = [this](bool forward) { return OnTab && OnTab(forward); };
    box.OnFocus = [this](QWidget& editor) {
        if (OnEditorFocus)
            OnEditorFocus(editor);
    };
}

void QtContainer::DropChildWidgets()
{
    hostWindows_.LetGo();
    for (const auto& child : children_)
        child->DropWidget();
}

std::unique_ptr<QtChildWindow> QtContainer::MakeChild(ChildName name)
{
    switch (name) {
    case ChildName::scrV:
    case ChildName::scrH:
        return std::make_unique<QtScrollBar>(setting_, name);
    case ChildName::picSplitCol:
        return std::make_unique<QtCanvasWindow>(setting_, name, QtCanvasWindow::Pointer::Dragging);
    case ChildName::picSplitMove:
        return std::make_unique<QtCanvasWindow>(setting_, name, QtCanvasWindow::Pointer::Through);
    case ChildName::cPivot:
        return std::make_unique<QtChildWindow>(setting_, QPalette::Button);
    case ChildName::fraEdit:
        return std::make_unique<QtFrameWindow>(setting_);
    case ChildName::txtTmp:
        return std::make_unique<TextWindow>(setting_, ChildOf<QtFrameWindow>(ChildName::fraEdit));
    case ChildName::cboTmp:
        return std::make_unique<ComboWindow>(setting_, ChildOf<QtFrameWindow>(ChildName::fraEdit));
    }
    return nullptr;
}

template <typename Window> Window& QtContainer::ChildOf(ChildName name) const
{
    return static_cast<Window&>(*children_[static_cast<std::size_t>(name)]);
}

bool QtContainer::ReadAmbient()
{
    const SystemColors colors = SystemColorsFrom(widget_.palette());
    FontPtr font = FontFrom(widget_.font(), widget_.logicalDpiY());
    if (font_ && colors == setting_.colors && SameFont(*font, *font_))
        return false;
    setting_.colors = colors;
    font_ = std::move(font);
    for (const auto& child : children_)
        child->FollowSetting();
    if (window_) {
        window_->SetSystemColors(setting_.colors);
        window_->SetBkColor(setting_.colors.values[SystemColor::Window]);
    }
    return true;
}

bool QtContainer::FitToWidget()
{
    const QSize client = widget_.contentsRect().size().expandedTo({ 0, 0 }).boundedTo({ LargestSize, LargestSize });
    const Size size { client.width(), client.height() };
    const double scale = widget_.devicePixelRatioF();
    if (size == client_ && scale == setting_.scale)
        return false;
    client_ = size;
    const bool isRescaled = scale != setting_.scale;
    setting_.scale = scale;
    for (const auto& child : children_) {
        child->FollowParent();
        if (isRescaled)
            child->FollowSetting();
    }
    return true;
}

std::unique_ptr<RasterSurface> QtContainer::MakeSurface(Size size) const
{
    auto surface = RasterSurface::Create(size, setting_.scale, setting_.colors);
    if (!surface)
        return nullptr;
    const ColorRef ground = setting_.colors.values[SystemColor::Window];
    surface->SetBkColor(ground);
    surface->FillRect({ 0, 0, size.width, size.height }, ground);
    return surface;
}

// The image shares the surface's memory; nothing is copied on the way to the screen.
void QtContainer::UseSurface(std::unique_ptr<RasterSurface> surface)
{
    picture_ = QImage();
    window_ = std::move(surface);
    const DevicePixels pixels = window_->Pixels();
    picture_ = QImage(reinterpret_cast<uchar*>(pixels.data), pixels.width, pixels.height,
        pixels.stride * qsizetype { sizeof(u32) }, QImage::Format_RGB32);
}

// The window's picture is the back store itself. It only grows, but starts over at another resolution. When memory is
// short, the one that is there has to do.
Surface* QtContainer::BackStore(Size size)
{
    const bool rescaled = window_->Scale() != setting_.scale;
    const Size present = rescaled ? Size { 1, 1 } : window_->GetSize();
    const Size needed { std::max(size.width, present.width), std::max(size.height, present.height) };
    if (rescaled || needed != present) {
        if (auto surface = MakeSurface(needed))
            UseSurface(std::move(surface));
    }
    return window_.get();
}

const Locale& QtContainer::GetLocale() const
{
    return UserLocale();
}

Size QtContainer::ScreenSizeInTwips() const
{
    const QScreen* screen = widget_.screen();
    const QSize size = screen ? screen->size() : QSize(1920, 1080);
    const Size twips = TwipsPerPixel();
    return { size.width() * twips.width, size.height() * twips.height };
}

// Logical pixels are the unit everywhere, and a logical pixel is 1/96 of an inch.
Size QtContainer::TwipsPerPixel() const
{
    return { TwipsPerInch / PixelsPerInch, TwipsPerInch / PixelsPerInch };
}

std::intptr_t QtContainer::WindowHandle() const
{
    return static_cast<std::intptr_t>(widget_.winId());
}

void QtContainer::SetExtendedStyle(u32 style)
{
    if (style == extendedStyle_)
        return;
    extendedStyle_ = style;
    int shape = QFrame::NoFrame;
    int lineWidth = 0;
    if (style & ClientEdge) {
        shape = static_cast<int>(QFrame::WinPanel) | static_cast<int>(QFrame::Sunken);
        lineWidth = 2;
    } else if (style & StaticEdge) {
        shape = static_cast<int>(QFrame::Panel) | static_cast<int>(QFrame::Sunken);
        lineWidth = 1;
    }
    // The widget tells of its narrower or wider client area by an event of its own.
    widget_.setLineWidth(lineWidth);
    widget_.setFrameStyle(shape);
}

void QtContainer::PictureChanged(const Rect& area)
{
    if (OnPictureChanged)
        OnPictureChanged(QRect(area.left, area.top, area.Width(), area.Height()));
}

bool QtContainer::SetFocus()
{
    widget_.setFocus();
    return widget_.hasFocus();
}

void QtContainer::SetPointerShape(PointerShape shape)
{
    if (shape == pointer_)
        return;
    pointer_ = shape;
    if (shape == PointerShape::Default)
        widget_.unsetCursor();
    else
        widget_.setCursor(CursorOf(shape));
}

PointerLocation QtContainer::LocatePointer() const
{
    const QPoint screenPlace = QCursor::pos();
    const QPoint place = widget_.mapFromGlobal(screenPlace) - widget_.contentsRect().topLeft();
    PointerLocation location { PointerLocation::Window::Elsewhere, {}, { place.x(), place.y() } };
    const QWidget* const under = pointerLeft_ ? nullptr : QApplication::widgetAt(screenPlace);
    if (!under)
        return location;
    if (under == &widget_)
        location.window = PointerLocation::Window::Control;
    // What is in the frame comes before the frame.
    for (std::size_t child = 0; child < children_.size(); ++child) {
        if (!children_[child]->Owns(*under))
            continue;
        location.window = PointerLocation::Window::Child;
        location.child = static_cast<ChildName>(child);
        break;
    }
    return location;
}

bool QtContainer::IsKeyDown(int code) const
{
    const Qt::MouseButtons buttons = QGuiApplication::mouseButtons();
    const Qt::KeyboardModifiers keys = QGuiApplication::keyboardModifiers();
    switch (code) {
    case LeftButton:
        return buttons.testFlag(Qt::LeftButton);
    case RightButton:
        return buttons.testFlag(Qt::RightButton);
    case MiddleButton:
        return buttons.testFlag(Qt::MiddleButton);
    case ShiftKey:
        return keys.testFlag(Qt::ShiftModifier);
    case CtrlKey:
        return keys.testFlag(Qt::ControlModifier);
    case AltKey:
        return keys.testFlag(Qt::AltModifier);
    default:
        return false;
    }
}

void QtContainer::SetTimer(int interval, bool enabled)
{
    timer_.setInterval(interval);
    if (enabled && interval > 0)
        timer_.start();
    else
        timer_.stop();
}

ChildWindow& QtContainer::Child(ChildName name)
{
    return *children_[static_cast<std::size_t>(name)];
}

NativeScrollBar* QtContainer::ScrollBar(ChildName name)
{
    if (name != ChildName::scrV && name != ChildName::scrH)
        return nullptr;
    return static_cast<QtScrollBar*>(children_[static_cast<std::size_t>(name)].get());
}

NativeEditBox* QtContainer::TextEditor()
{
    return &ChildOf<TextWindow>(ChildName::txtTmp).TheBox();
}

NativeComboBox* QtContainer::ComboEditor()
{
    return &ChildOf<ComboWindow>(ChildName::cboTmp).TheBox();
}

bool QtContainer::ShowHostWindow(std::intptr_t window, const Rect& place)
{
    if (!hostWindows_.Show(window, place))
        return false;
    Child(ChildName::cPivot).Raise();
    return true;
}

void QtContainer::HideHostWindow(std::intptr_t window)
{
    hostWindows_.Hide(window);
}

bool QtContainer::FocusHostWindow(std::intptr_t window)
{
    return hostWindows_.Focus(window);
}

std::u16string QtContainer::ClipboardText() const
{
    return ClipboardPlainText();
}

void QtContainer::SetClipboardText(std::u16string_view text)
{
    SetClipboardPlainText(text);
}

void QtContainer::ShowMessage(std::u16string_view title, std::u16string_view text, MessageIcon icon)
{
    // Not on the stack: its parent may delete it.
    const QPointer<QMessageBox> box = new QMessageBox(&widget_);
    box->setWindowTitle(ToQString(title));
    box->setText(ToQString(text));
    if (icon == MessageIcon::Exclamation)
        box->setIcon(QMessageBox::Warning);
    else if (icon == MessageIcon::Information)
        box->setIcon(QMessageBox::Information);
    box->exec();
    delete box;
}

} // namespace vornix
