#include "vornix/qvornix.h"

#include "picture_painter.h"
#include "qt_container.h"

#include <QApplication>
#include <QEvent>
#include <QPainter>
#include <QPaintEvent>
#include <QScopedValueRollback>

namespace vornix {

namespace {

// An empty bag: every property has its default.
class EmptyBag final : public PropertyBag {
public:
    std::optional<BagValue> ReadProperty(std::string_view) const override { return std::nullopt; }
    void WriteProperty(std::string_view, const BagValue&) override { }
};

// For widgets without handlers. It has no state, so one serves them all.
VornixEvents& NoEvents()
{
    static VornixEvents events;
    return events;
}

} // namespace

QVornix::QVornix(QWidget* parent)
    : QVornix(NoEvents(), parent)
{
}

QVornix::QVornix(VornixEvents& events, QWidget* parent)
    : QFrame(parent)
    , container_(std::make_unique<QtContainer>(*this))
    , grid_(std::make_unique<Vornix>(*container_, events))
{
    setFocusPolicy(Qt::StrongFocus);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    // Every pixel of the client area comes from the grid's picture, and the frame is filled before it is drawn.
    setAttribute(Qt::WA_OpaquePaintEvent);
    container_->OnPictureChanged = [this](const QRect& area) { UpdatePart(area); };
    grid_->ReadProperties(EmptyBag());
}

QVornix::~QVornix()
{
    Q_ASSERT_X(!grid_->IsInCall(), "QVornix", "deleted inside one of its own events; use deleteLater()");
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

const SystemColors& QVornix::Colors() const
{
    return container_->Colors();
}

QSize QVornix::sizeHint() const
{
    return { 640, 480 };
}

QRect QVornix::Client() const
{
    return contentsRect();
}

// News from Qt. A grid that is closed, or not yet made, hears nothing; above Qt nobody could take an error.
template <typename Step> void QVornix::TellGrid(const Step& step)
{
    if (!grid_ || grid_->IsTerminated())
        return;
    try {
        step(*grid_);
    } catch (const AutomationError& error) {
        qWarning("QVornix: error %d, %s", error.Number(), error.what());
    }
}

void QVornix::FollowWidget()
{
    if (container_ && container_->FitToWidget())
        TellGrid([](Vornix& grid) { grid.Resize(); });
}

// At a fractional scale an edge of the area may lie inside a device pixel, of which Qt would repaint one side only.
void QVornix::UpdatePart(const QRect& area)
{
    if (!painting_)
        update(area.translated(Client().topLeft()).adjusted(-1, -1, 1, 1) & Client());
}

bool QVornix::event(QEvent* event)
{
    const bool handled = QFrame::event(event);
    switch (event->type()) {
    case QEvent::ContentsRectChange:
    case QEvent::ScreenChangeInternal:
#if QT_VERSION >= QT_VERSION_CHECK(6, 6, 0)
    case QEvent::DevicePixelRatioChange:
#endif
        FollowWidget();
        break;
    default:
        break;
    }
    return handled;
}

void QVornix::paintEvent(QPaintEvent* event)
{
    // The resolution may have changed without a word; then all of the widget is repainted next.
    FollowWidget();
    {
        const QScopedValueRollback<bool> painting(painting_, true);
        TellGrid([](Vornix& grid) { grid.Paint(); });
    }
    QPainter painter(this);
    if (!Client().contains(event->rect()))
        DrawFrame(painter, event->region());
    DrawPicture(painter, event->region());
}

void QVornix::DrawFrame(QPainter& painter, const QRegion& dirty)
{
    // One pixel more than the frame: at a fractional scale the picture may begin that much later.
    for (const QRect& part : (QRegion(rect()) - Client().adjusted(1, 1, -1, -1)) & dirty)
        painter.fillRect(part, palette().window());
    drawFrame(&painter);
}

void QVornix::DrawPicture(QPainter& painter, const QRegion& dirty)
{
    const PicturePainter picture(container_->Picture(), container_->PictureScale(), Client());
    if (!picture.CoversClient())
        painter.fillRect(Client(), palette().base());
    picture.Paint(painter, dirty & Client());
}

void QVornix::resizeEvent(QResizeEvent* event)
{
    QFrame::resizeEvent(event);
    container_->FitToWidget();
    TellGrid([](Vornix& grid) { grid.Resize(); });
}

void QVornix::showEvent(QShowEvent*)
{
    TellGrid([](Vornix& grid) { grid.Show(); });
}

void QVornix::hideEvent(QHideEvent*)
{
    TellGrid([](Vornix& grid) { grid.Hide(); });
}

void QVornix::changeEvent(QEvent* event)
{
    QFrame::changeEvent(event);
    if (event->type() != QEvent::PaletteChange && event->type() != QEvent::FontChange)
        return;
    if (!container_ || !container_->ReadAmbient())
        return;
    // There is no notice of its own for this; a new layout draws all cells in the new colours.
    TellGrid([](Vornix& grid) { grid.Resize(); });
}

void QVornix::focusInEvent(QFocusEvent*)
{
    TellGrid([](Vornix& grid) { grid.EnterFocus(); });
}

void QVornix::focusOutEvent(QFocusEvent* event)
{
    // A menu, or a child window of the grid, takes the focus for a while; the grid keeps it.
    const bool stays = event->reason() == Qt::PopupFocusReason || isAncestorOf(QApplication::focusWidget());
    if (!stays)
        TellGrid([](Vornix& grid) { grid.ExitFocus(); });
}

} // namespace vornix
