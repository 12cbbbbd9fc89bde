#include "vornix/headless_container.h"

#include "person.h"
#include "window_stack.h"

#include <algorithm>
#include <new>

namespace vornix {

namespace {

constexpr Size ScreenInPixels { 1920, 1080 };
constexpr int TwipsAPixel = 15;
constexpr u32 ClientEdge = 512;
constexpr u32 StaticEdge = 131072;
constexpr int LongestSide = 32767;
constexpr int SplitHandleWidth = 6;

constexpr std::array<std::string_view, 8> ChildNames {
    "scrV",
    "scrH",
    "txtTmp",
    "cboTmp",
    "fraEdit",
    "cPivot",
    "picSplitCol",
    "picSplitMove",
};

// Pixels that the border takes on each side.
int BorderWidth(u32 extendedStyle)
{
    if (extendedStyle & ClientEdge)
        return 2;
    return extendedStyle & StaticEdge ? 1 : 0;
}

[[noreturn]] void RaiseInvalid(const std::string& description)
{
    throw AutomationError(ErrorNumber::InvalidArgument, description);
}

} // namespace

std::string_view NameOf(MessageIcon icon)
{
    switch (icon) {
    case MessageIcon::Exclamation:
        return "exclamation";
    case MessageIcon::Information:
        return "information";
    case MessageIcon::None:
        break;
    }
    return "";
}

std::string_view NameOf(PointerShape shape)
{
    switch (shape) {
    case PointerShape::SizeWE:
        return "size_we";
    case PointerShape::SizeNS:
        return "size_ns";
    case PointerShape::Default:
        break;
    }
    return "default";
}

HeadlessContainer::HeadlessContainer(const HeadlessOptions& options)
    : size_ { options.width, options.height }
    , scale_(options.scale)
    , mostPixels_(options.mostPixels)
    , userMode_(!options.design)
    , font_(MakeAmbientFont())
    , settings_(options.settings ? options.settings : std::make_shared<MemorySettings>())
    , log_(options.events)
    , editBox_({ clipboard_, scale_, colors_, font_ })
    , comboBox_({ clipboard_, scale_, colors_, font_ })
{
    if (!(scale_ >= 1 && scale_ <= 4))
        RaiseInvalid("The scale of a window is 1 to 4 device pixels a pixel");
    CheckSize(size_);
    MakeWindow(ClientSize());
    if (!window_)
        throw std::bad_alloc();
    children_
        = { &bars_[0], &bars_[1], &editBox_, &comboBox_, &frame_, &corner_, &splitWindows_[0], &splitWindows_[1] };
    Child(ChildName::picSplitCol).Move({ 0, 0, SplitHandleWidth, 0 });
    windows_ = std::make_unique<WindowStack>(*this, children_);
    person_ = std::make_unique<Person>(*this, *windows_);
    grid_ = std::make_unique<Vornix>(*this, log_);
    VerticalBar().TellTo([this](i32 code) { grid_->ScrollBarNotify(ChildName::scrV, code); });
    HorizontalBar().TellTo([this](i32 code) { grid_->ScrollBarNotify(ChildName::scrH, code); });
    frame_.TellTo(*grid_);
    for (HeadlessPictureBox& window : splitWindows_)
        window.TellTo(*grid_, scale_, colors_);
    const MemoryBag emptyBag;
    if (options.design && !options.bag)
        grid_->InitProperties();
    else
        grid_->ReadProperties(options.bag ? *options.bag : emptyBag);
    isLoaded_ = true;
    grid_->Resize();
    if (options.show)
        Show();
}

HeadlessContainer::~HeadlessContainer() = default;

void HeadlessContainer::Resize(int width, int height)
{
    RequireOpen();
    CheckSize({ width, height });
    const Size before = ClientSize();
    size_ = { width, height };
    TellClientSize(before);
}

void HeadlessContainer::CheckSize(Size size) const
{
    if (size.width < 0 || size.height < 0 || size.width > LongestSide || size.height > LongestSide)
        RaiseInvalid("The sides of a window are 0 to 32767 pixels");
    const Size device = RasterSurface::DeviceSize(size, scale_);
    if (std::int64_t { device.width } * device.height > mostPixels_)
        RaiseInvalid("This window has no more than " + std::to_string(mostPixels_) + " device pixels");
}

void HeadlessContainer::RequireOpen() const
{
    if (grid_->IsTerminated())
        RaiseInvalid("The control is closed");
}

void HeadlessContainer::Show()
{
    RequireOpen();
    windows_->SetShown(true);
    grid_->Show();
}

void HeadlessContainer::Hide()
{
    RequireOpen();
    windows_->SetShown(false);
    grid_->Hide();
}

void HeadlessContainer::EnterFocus()
{
    RequireOpen();
    windows_->EnterFocus();
}

void HeadlessContainer::ExitFocus()
{
    RequireOpen();
    windows_->ExitFocus();
}

bool HeadlessContainer::SetFocus()
{
    windows_->FocusControl();
    return true;
}

bool HeadlessContainer::HasFocus() const
{
    return windows_->HasFocus();
}

bool HeadlessContainer::HasFocus(ChildName name) const
{
    return windows_->Focused() == children_[static_cast<std::size_t>(name)];
}

PointerLocation HeadlessContainer::LocatePointer() const
{
    return windows_->LocatePointer();
}

bool HeadlessContainer::IsKeyDown(int code) const
{
    return keysDown_.contains(code) || person_->Holds(code);
}

void HeadlessContainer::TellClientSize(Size before)
{
    if (isLoaded_ && ClientSize() != before)
        grid_->Resize();
}

void HeadlessContainer::HoldKey(int code, bool down)
{
    if (down)
        keysDown_.insert(code);
    else
        keysDown_.erase(code);
}

void HeadlessContainer::ClearLog()
{
    log_.Clear();
    propertyChanges_.clear();
    grid_->ClearPaintCounters();
}

HeadlessChild* HeadlessContainer::FindChild(std::string_view name)
{
    const auto found = std::find(ChildNames.begin(), ChildNames.end(), name);
    return found == ChildNames.end() ? nullptr : children_[static_cast<std::size_t>(found - ChildNames.begin())];
}

HeadlessChild& HeadlessContainer::Child(std::string_view name)
{
    if (HeadlessChild* const child = FindChild(name))
        return *child;
    RaiseInvalid("No child window is named \"" + std::string(name) + "\"");
}

RgbaImage HeadlessContainer::Image() const
{
    const DevicePixels pixels = window_->Pixels();
    RgbaImage image { pixels.width, pixels.height, {} };
    image.bytes.reserve(std::size_t { 4 } * pixels.width * pixels.height);
    for (int y = 0; y < pixels.height; ++y) {
        const u32* const row = pixels.data + y * pixels.stride;
        for (int x = 0; x < pixels.width; ++x) {
            const u32 pixel = row[x];
            for (const int shift : { 16, 8, 0 })
                image.bytes.push_back(static_cast<u8>(pixel >> shift & 0xFF));
            image.bytes.push_back(255);
        }
    }
    return image;
}

Size HeadlessContainer::ScreenSizeInTwips() const
{
    return { ScreenInPixels.width * TwipsAPixel, ScreenInPixels.height * TwipsAPixel };
}

Size HeadlessContainer::TwipsPerPixel() const
{
    return { TwipsAPixel, TwipsAPixel };
}

Size HeadlessContainer::ClientSize() const
{
    const int border = 2 * BorderWidth(extendedStyle_);
    return { std::max(size_.width - border, 0), std::max(size_.height - border, 0) };
}

// The window is a surface of its own. A new size comes into force here, where no paint is going on.
Surface* HeadlessContainer::BackStore(Size size)
{
    if (size != windowSize_)
        MakeWindow(size);
    return nullptr;
}

void HeadlessContainer::MakeWindow(Size client)
{
    const Size atLeastOne { std::max(client.width, 1), std::max(client.height, 1) };
    auto window = RasterSurface::Create(atLeastOne, scale_, colors_);
    if (!window)
        return; // the window goes on as it was; only a first one must be had
    const Rect whole { 0, 0, atLeastOne.width, atLeastOne.height };
    window->FillRect(whole, colors_.values[static_cast<std::size_t>(SystemColor::ButtonFace)]);
    // What was seen stays where it was until the next paint.
    if (window_) {
        window->BitBlt(whole, *window_, {}, RasterOp::SrcCopy);
        window->SetBkColor(window_->GetBkColor());
    }
    window_ = std::move(window);
    windowSize_ = client;
}

void HeadlessContainer::SetExtendedStyle(u32 style)
{
    const Size before = ClientSize();
    extendedStyle_ = style;
    TellClientSize(before);
}

void HeadlessContainer::SetTimer(int interval, bool enabled)
{
    timerInterval_ = interval;
    timerEnabled_ = enabled;
}

ChildWindow& HeadlessContainer::Child(ChildName name)
{
    return *children_[static_cast<std::size_t>(name)];
}

NativeScrollBar* HeadlessContainer::ScrollBar(ChildName name)
{
    switch (name) {
    case ChildName::scrV:
        return &VerticalBar();
    case ChildName::scrH:
        return &HorizontalBar();
    default:
        return nullptr;
    }
}

HeadlessHostWindow* HeadlessContainer::HostWindow(std::intptr_t number)
{
    const auto found = std::ranges::find(hostWindows_, number, [](const auto& window) { return window->Number(); });
    return found == hostWindows_.end() ? nullptr : found->get();
}

bool HeadlessContainer::ShowHostWindow(std::intptr_t window, const Rect& place)
{
    if (window == 0)
        return false;
    HeadlessHostWindow* shown = HostWindow(window);
    if (!shown)
        shown = hostWindows_.emplace_back(std::make_unique<HeadlessHostWindow>(window)).get();
    windows_->PlaceHostWindow(*shown);
    shown->Move(place);
    shown->Show(true);
    return true;
}

void HeadlessContainer::HideHostWindow(std::intptr_t window)
{
    if (HeadlessHostWindow* const shown = HostWindow(window))
        shown->Show(false);
}

bool HeadlessContainer::FocusHostWindow(std::intptr_t window)
{
    HeadlessHostWindow* const shown = HostWindow(window);
    return shown && shown->SetFocus();
}

void HeadlessContainer::ShowMessage(std::u16string_view title, std::u16string_view text, MessageIcon icon)
{
    messageBoxes_.push_back({ std::u16string(title), std::u16string(text), icon });
}

} // namespace vornix
