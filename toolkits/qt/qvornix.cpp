#include "vornix/qvornix.h"

#include "qt_container.h"

#include <QEvent>
#include <QPainter>
#include <QPaintEvent>

namespace vornix {

namespace {

// An empty bag: every property has its default.
class EmptyBag final : public PropertyBag {
public:
    std::optional<BagValue> ReadProperty(std::string_view) const override { return std::nullopt; }
    void WriteProperty(std::string_view, const BagValue&) override { }
};

} // namespace

QVornix::QVornix(QWidget* parent)
    : QVornix(noEvents_, parent)
{
}

QVornix::QVornix(VornixEvents& events, QWidget* parent)
    : QFrame(parent)
    , container_(std::make_unique<QtContainer>(*this))
    , grid_(std::make_unique<Vornix>(*container_, events))
{
    setFocusPolicy(Qt::StrongFocus);
    // Every pixel of the client area comes from the grid's picture.
    setAttribute(Qt::WA_OpaquePaintEvent);
    container_->OnPictureChanged = [this](const QRect& area) {
        if (!painting_)
            update(area.translated(Client().topLeft()));
    };
    grid_->ReadProperties(EmptyBag());
}

QVornix::~QVornix()
{
    container_->OnPictureChanged = nullptr;
    grid_->Terminate();
}

Vornix& QVornix::Grid()
{
    return *grid_;
}

const Vornix& QVornix::Grid() const
{
    return *grid_;
}

Device& QVornix::MeasuringDevice()
{
    return container_->WindowDevice();
}

QSize QVornix::sizeHint() const
{
    return { 640, 480 };
}

QRect QVornix::Client() const
{
    return contentsRect();
}

void QVornix::FitToWidget()
{
    container_->FitTo(Client().size(), devicePixelRatioF());
    grid_->Resize();
    update();
}

bool QVornix::event(QEvent* event)
{
    const bool handled = QFrame::event(event);
    // The window may have moved to a screen of another resolution.
    if (event->type() == QEvent::ScreenChangeInternal)
        FitToWidget();
    return handled;
}

void QVornix::paintEvent(QPaintEvent* event)
{
    if (container_->FitTo(Client().size(), devicePixelRatioF()))
        grid_->Resize();
    painting_ = true;
    grid_->Paint();
    painting_ = false;

    QFrame::paintEvent(event);
    QPainter painter(this);
    const QRect dirty = event->rect() & Client();
    const double scale = container_->Picture().devicePixelRatio();
    const QPoint inPicture = dirty.topLeft() - Client().topLeft();
    const QRectF source(inPicture.x() * scale, inPicture.y() * scale, dirty.width() * scale, dirty.height() * scale);
    painter.drawImage(QRectF(dirty), container_->Picture(), source);
}

void QVornix::resizeEvent(QResizeEvent*)
{
    FitToWidget();
}

void QVornix::showEvent(QShowEvent*)
{
    grid_->Show();
}

void QVornix::hideEvent(QHideEvent*)
{
    grid_->Hide();
}

void QVornix::changeEvent(QEvent* event)
{
    QFrame::changeEvent(event);
    if (event->type() != QEvent::PaletteChange && event->type() != QEvent::FontChange)
        return;
    container_->ReadAmbient();
    grid_->Resize();
    update();
}

void QVornix::focusInEvent(QFocusEvent*)
{
    grid_->EnterFocus();
}

void QVornix::focusOutEvent(QFocusEvent*)
{
    grid_->ExitFocus();
}

} // namespace vornix
