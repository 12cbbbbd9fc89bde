#include "qt_container.h"

#include "qt_ambient.h"
#ifdef VORNIX_WITH_ICU
#include "vornix/icu_locale.h"
#endif

#include <QApplication>
#include <QClipboard>
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
    : widget_(widget)
    , locale_(&BuiltinLocale())
    , settings_(std::make_unique<QtSettings>())
{
#ifdef VORNIX_WITH_ICU
    userLocale_ = MakeIcuLocale();
    locale_ = userLocale_.get();
#endif
    for (auto& child : children_)
        child = std::make_unique<QtChildWindow>(widget_);
    ReadAmbient();
    FitToWidget();
    // The control needs a device from its first call on, long before the widget has its size.
    auto surface = MakeSurface({ 1, 1 });
    if (!surface)
        throw std::bad_alloc();
    UseSurface(std::move(surface));
}

QtContainer::~QtContainer() = default;

bool QtContainer::ReadAmbient()
{
    const SystemColors colors = SystemColorsFrom(widget_.palette());
    FontPtr font = FontFrom(widget_.font(), widget_.logicalDpiY());
    if (font_ && colors == colors_ && SameFont(*font, *font_))
        return false;
    colors_ = colors;
    font_ = std::move(font);
    if (window_) {
        window_->SetSystemColors(colors_);
        window_->SetBkColor(colors_.values[SystemColor::Window]);
    }
    return true;
}

bool QtContainer::FitToWidget()
{
    const QSize client = widget_.contentsRect().size().expandedTo({ 0, 0 }).boundedTo({ LargestSize, LargestSize });
    const Size size { client.width(), client.height() };
    const double scale = widget_.devicePixelRatioF();
    if (size == client_ && scale == scale_)
        return false;
    client_ = size;
    scale_ = scale;
    for (const auto& child : children_)
        child->FollowParent();
    return true;
}

std::unique_ptr<RasterSurface> QtContainer::MakeSurface(Size size) const
{
    auto surface = RasterSurface::Create(size, scale_, colors_);
    if (!surface)
        return nullptr;
    const ColorRef ground = colors_.values[SystemColor::Window];
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
    const bool rescaled = window_->Scale() != scale_;
    const Size present = rescaled ? Size { 1, 1 } : window_->GetSize();
    const Size needed { std::max(size.width, present.width), std::max(size.height, present.height) };
    if (rescaled || needed != present) {
        if (auto surface = MakeSurface(needed))
            UseSurface(std::move(surface));
    }
    return window_.get();
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
    const QPoint place = widget_.mapFromGlobal(QCursor::pos()) - widget_.contentsRect().topLeft();
    PointerLocation location { PointerLocation::Window::Elsewhere, {}, { place.x(), place.y() } };
    if (QApplication::widgetAt(QCursor::pos()) == &widget_)
        location.window = PointerLocation::Window::Control;
    return location;
}

bool QtContainer::IsKeyDown(int code) const
{
    const Qt::MouseButtons buttons = QGuiApplication::mouseButtons();
    switch (code) {
    case LeftButton:
        return buttons.testFlag(Qt::LeftButton);
    case RightButton:
        return buttons.testFlag(Qt::RightButton);
    case MiddleButton:
        return buttons.testFlag(Qt::MiddleButton);
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

std::u16string QtContainer::ClipboardText() const
{
    return FromQString(QGuiApplication::clipboard()->text());
}

void QtContainer::SetClipboardText(std::u16string_view text)
{
    QGuiApplication::clipboard()->setText(ToQString(text));
}

void QtContainer::ShowMessage(std::u16string_view title, std::u16string_view text, MessageIcon icon)
{
    // Not on the stack: the widget may be gone, and its children with it, when the box closes.
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
