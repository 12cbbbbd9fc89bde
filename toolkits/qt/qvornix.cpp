#include "vornix/qvornix.h"

#include "picture_painter.h"
#include "qt_accessible_news.h"
#include "qt_container.h"
#include "qt_host_windows.h"
#include "qt_keyboard.h"
#include "qt_pointer.h"
#include "qt_wheel.h"

#include <QApplication>
#include <QEnterEvent>
#include <QEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QPaintEvent>
#include <QScopedValueRollback>
#include <QWheelEvent>

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

bool IsForward(const QKeyEvent& event)
{
    return event.key() == Qt::Key_Tab && !event.modifiers().testFlag(Qt::ShiftModifier);
}

bool MovesFocus(const QKeyEvent& event)
{
    const bool isTab = event.key() == Qt::Key_Tab || event.key() == Qt::Key_Backtab;
    return isTab && !(event.modifiers() & (Qt::ControlModifier | Qt::AltModifier));
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
    , pointer_(std::make_unique<QtPointer>(container_->Setting()))
    , wheel_(std::make_unique<QtWheel>(container_->Setting(), *container_))
    , keyboard_(std::make_unique<QtKeyboard>(container_->Setting()))
    , accessibleNews_(std::make_unique<QtAccessibleNews>(*this, *container_))
{
    container_->Attach(grid_.get());
    setMouseTracking(true);
    setFocusPolicy(Qt::StrongFocus);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    // Every pixel of the client area comes from the grid's picture, and the frame is filled before it is drawn.
    setAttribute(Qt::WA_OpaquePaintEvent);
    container_->OnTab = [this](bool forward) { return MoveFocusOn(forward); };
    container_->OnEditorFocus = [this](QWidget& editor) { NameEditor(editor); };
    container_->OnPictureChanged = [this](const QRect& area) { UpdatePart(area); };
    grid_->ReadProperties(EmptyBag());
}

QVornix::~QVornix()
{
    Q_ASSERT_X(!grid_->IsInCall(), "QVornix", "deleted inside one of its own events; use deleteLater()");
    container_->OnTab = nullptr;
    container_->OnEditorFocus = nullptr;
    container_->OnPictureChanged = nullptr;
    grid_->Terminate();
    container_->Attach(nullptr);
    container_->DropChildWidgets();
}

Vornix& QVornix::Grid()
{
    return *grid_;
}

const Vornix& QVornix::Grid() const
{
    return *grid_;
}

Container& QVornix::GridContainer()
{
    return *container_;
}

Device& QVornix::MeasuringDevice()
{
    return container_->WindowDevice();
}

const SystemColors& QVornix::Colors() const
{
    return container_->Colors();
}

i32 QVornix::RegisterEditor(QWidget* editor)
{
    return editor ? NumberOfHostWindow(*editor) : 0;
}

QSize QVornix::sizeHint() const
{
    return { 640, 480 };
}

QRect QVornix::Client() const
{
    return contentsRect();
}

template <typename Step> void QVornix::TellGrid(const Step& step)
{
    if (container_)
        container_->Setting().grid.Tell(step);
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
    if (event->type() == QEvent::KeyPress && MovesFocus(static_cast<QKeyEvent&>(*event)) && !IsKeyOfChild()) {
        PressTab(static_cast<QKeyEvent&>(*event));
        return true;
    }
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
    container_->Focus().Look();
    // It is the corner that has the focus for the grid.
    TellGrid([](Vornix& grid) { grid.EnterChildFocus(ChildName::cPivot); });
}

void QVornix::focusOutEvent(QFocusEvent* event)
{
    // A menu takes it for a while.
    if (event->reason() != Qt::PopupFocusReason)
        container_->Focus().Look();
}

void QVornix::enterEvent(QEnterEvent* event)
{
    QFrame::enterEvent(event);
    container_->SetPointerLeft(false);
}

// Hovering ends at once, not with the next look for the pointer.
void QVornix::leaveEvent(QEvent* event)
{
    QFrame::leaveEvent(event);
    container_->SetPointerLeft(true);
    TellGrid([](Vornix& grid) { grid.Tick(); });
}

void QVornix::mousePressEvent(QMouseEvent* event)
{
    pointer_->Press(*event);
}

void QVornix::mouseMoveEvent(QMouseEvent* event)
{
    pointer_->Move(*event);
}

void QVornix::mouseReleaseEvent(QMouseEvent* event)
{
    pointer_->Release(*event);
}

void QVornix::mouseDoubleClickEvent(QMouseEvent* event)
{
    pointer_->DoubleClick(*event);
}

void QVornix::wheelEvent(QWheelEvent* event)
{
    wheel_->Turn(*event);
}

// What a window on the grid has no use for is the form's.
bool QVornix::IsKeyOfChild() const
{
    const QWidget* const focus = QApplication::focusWidget();
    return focus && focus != this && isAncestorOf(focus);
}

void QVornix::keyPressEvent(QKeyEvent* event)
{
    if (IsKeyOfChild())
        return event->ignore();
    keyboard_->Press(*event);
}

void QVornix::keyReleaseEvent(QKeyEvent* event)
{
    if (IsKeyOfChild())
        return event->ignore();
    keyboard_->Release(*event);
}

// The window on the grid with the focus stands in the form where the grid does.
bool QVornix::MoveFocusOn(bool forward)
{
    QWidget* const child = window()->focusWidget();
    if (!child || !isAncestorOf(child))
        return false;
    setTabOrder(this, child);
    const Qt::FocusPolicy policy = focusPolicy();
    setFocusPolicy(Qt::NoFocus);
    const bool isMoved = focusNextPrevChild(forward) && window()->focusWidget() != child;
    setFocusPolicy(policy);
    return isMoved;
}

// Qt would move the focus before anybody hears of the key.
void QVornix::PressTab(QKeyEvent& event)
{
    const bool hadFocus = hasFocus();
    keyboard_->Press(event);
    if (event.isAccepted())
        return;
    // Where a handler has moved the focus, it is not to go on from there.
    const bool isMoved = hadFocus && !hasFocus();
    if (isMoved || focusNextPrevChild(IsForward(event)))
        event.accept();
}

// For assistive tools, as the cell itself is called.
void QVornix::NameEditor(QWidget& editor) const
{
    const auto reader = accessibleNews_->Reader();
    const std::optional<AccessiblePlace> cell = reader->Current();
    editor.setAccessibleName(cell ? reader->ColumnText(cell->Col) : QString());
    editor.setAccessibleDescription(cell ? reader->RowText(cell->Row) : QString());
}

} // namespace vornix
