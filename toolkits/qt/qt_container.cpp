#include "qt_container.h"

#include "qt_ambient.h"
#ifdef VORNIX_WITH_ICU
#include "vornix/icu_locale.h"
#endif

#include <QApplication>
#include <QClipboard>
#include <QCursor>
#include <QMessageBox>
#include <QScreen>
#include <QSettings>

#include <algorithm>

namespace vornix {

namespace {

constexpr u32 ClientEdge = 512;
constexpr u32 StaticEdge = 131072;
constexpr int TwipsPerInch = 1440;
constexpr int PixelsPerInch = 96;
constexpr int LeftButton = 1;
constexpr int RightButton = 2;
constexpr int MiddleButton = 4;

class QtSettings final : public SettingsStore {
public:
    std::u16string GetSetting(std::u16string_view application, std::u16string_view section, std::u16string_view key,
        std::u16string_view fallback) override
    {
        const QSettings settings = Open(application);
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
    FitTo(widget_.contentsRect().size(), widget_.devicePixelRatioF());
}

QtContainer::~QtContainer() = default;

void QtContainer::ReadAmbient()
{
    colors_ = SystemColorsFrom(widget_.palette());
    if (window_)
        window_->SetSystemColors(colors_);
    font_ = FontFrom(widget_.font());
}

bool QtContainer::FitTo(QSize client, double devicePixelRatio)
{
    client_ = { std::max(client.width(), 0), std::max(client.height(), 0) };
    const bool rescaled = devicePixelRatio != scale_ || !window_;
    scale_ = devicePixelRatio;
    if (rescaled || surfaceSize_.width < client_.width || surfaceSize_.height < client_.height)
        MakeWindowSurface({ std::max(client_.width, 1), std::max(client_.height, 1) });
    return rescaled;
}

void QtContainer::MakeWindowSurface(Size size)
{
    picture_ = QImage();
    window_ = RasterSurface::Create(size, scale_, colors_);
    surfaceSize_ = size;
    const ColorRef ground = colors_.values[SystemColor::Window];
    window_->SetBkColor(ground);
    window_->FillRect({ 0, 0, size.width, size.height }, ground);
    // The image shares the surface's memory; nothing is copied on the way to the screen.
    const DevicePixels pixels = window_->Pixels();
    picture_ = QImage(reinterpret_cast<uchar*>(pixels.data), pixels.width, pixels.height,
        pixels.stride * qsizetype { sizeof(u32) }, QImage::Format_RGB32);
    picture_.setDevicePixelRatio(scale_);
}

Surface* QtContainer::BackStore(Size size)
{
    if (surfaceSize_.width < size.width || surfaceSize_.height < size.height)
        MakeWindowSurface({ std::max(size.width, surfaceSize_.width), std::max(size.height, surfaceSize_.height) });
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
    int shape = QFrame::NoFrame;
    int lineWidth = 0;
    if (style & ClientEdge) {
        shape = static_cast<int>(QFrame::WinPanel) | static_cast<int>(QFrame::Sunken);
        lineWidth = 2;
    } else if (style & StaticEdge) {
        shape = static_cast<int>(QFrame::Panel) | static_cast<int>(QFrame::Sunken);
        lineWidth = 1;
    }
    if (widget_.frameStyle() == shape)
        return;
    widget_.setFrameStyle(shape);
    widget_.setLineWidth(lineWidth);
    FitTo(widget_.contentsRect().size(), scale_);
    widget_.update();
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
    widget_.setCursor(CursorOf(shape));
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
    QMessageBox box(&widget_);
    box.setWindowTitle(ToQString(title));
    box.setText(ToQString(text));
    if (icon == MessageIcon::Exclamation)
        box.setIcon(QMessageBox::Warning);
    else if (icon == MessageIcon::Information)
        box.setIcon(QMessageBox::Information);
    box.exec();
}

} // namespace vornix
