#include "qt_scroll_bar.h"

#include <QEvent>
#include <QGuiApplication>
#include <QMouseEvent>
#include <QScopedValueRollback>
#include <QScrollBar>

#include <algorithm>
#include <optional>

namespace vornix {

namespace {

// As Vornix::ScrollBarNotify takes them.
enum Message { LineUp, LineDown, PageUp, PageDown, ThumbPosition, ThumbTrack, Top, Bottom, EndScroll };

std::optional<Message> MessageOf(int action)
{
    switch (action) {
    case QAbstractSlider::SliderSingleStepSub:
        return LineUp;
    case QAbstractSlider::SliderSingleStepAdd:
        return LineDown;
    case QAbstractSlider::SliderPageStepSub:
        return PageUp;
    case QAbstractSlider::SliderPageStepAdd:
        return PageDown;
    case QAbstractSlider::SliderToMinimum:
        return Top;
    case QAbstractSlider::SliderToMaximum:
        return Bottom;
    case QAbstractSlider::SliderMove:
        return ThumbTrack;
    default:
        return std::nullopt;
    }
}

} // namespace

// Tells when the pointer holds it, and leaves the wheel to the widget below.
class QtScrollBar::Bar final : public QScrollBar {
public:
    Bar(QtScrollBar& owner, Qt::Orientation orientation, QWidget* parent)
        : QScrollBar(orientation, parent)
        , owner_(owner)
    {
    }

protected:
    void mousePressEvent(QMouseEvent* event) override
    {
        // The right button brings up a menu, which takes the release for itself.
        if (event->button() != Qt::RightButton)
            owner_.Hold();
        QScrollBar::mousePressEvent(event);
    }

    void mouseReleaseEvent(QMouseEvent* event) override
    {
        QScrollBar::mouseReleaseEvent(event);
        if (event->buttons() == Qt::NoButton)
            owner_.LetGo();
    }

    // A handler may have brought up a window that took the release. What repeats is noticed by its timer, a drag by the
    // pointer coming back.
    void mouseMoveEvent(QMouseEvent* event) override
    {
        if (owner_.isHeld_ && event->buttons() == Qt::NoButton)
            owner_.LetGo();
        QScrollBar::mouseMoveEvent(event);
    }

    void enterEvent(QEnterEvent* event) override
    {
        if (owner_.isHeld_ && QGuiApplication::mouseButtons() == Qt::NoButton)
            owner_.LetGo();
        QScrollBar::enterEvent(event);
    }

    void timerEvent(QTimerEvent* event) override
    {
        if (!owner_.isHeld_ || QGuiApplication::mouseButtons() != Qt::NoButton)
            return QScrollBar::timerEvent(event);
        setRepeatAction(SliderNoAction);
        owner_.LetGo();
    }

    void hideEvent(QHideEvent* event) override
    {
        QScrollBar::hideEvent(event);
        owner_.LetGo();
    }

    void changeEvent(QEvent* event) override
    {
        QScrollBar::changeEvent(event);
        if (event->type() == QEvent::EnabledChange && !isEnabled())
            owner_.LetGo();
    }

    void wheelEvent(QWheelEvent* event) override { event->ignore(); }

private:
    QtScrollBar& owner_;
};

QtScrollBar::QtScrollBar(QtSetting& setting, ChildName name)
    : QtChildWindow(setting)
    , name_(name)
{
}

QWidget* QtScrollBar::MakeWindow(QWidget& parent)
{
    auto* const bar = new Bar(*this, name_ == ChildName::scrH ? Qt::Horizontal : Qt::Vertical, &parent);
    // The columns run from the left in every language.
    bar->setLayoutDirection(Qt::LeftToRight);
    bar->setFocusPolicy(Qt::NoFocus);
    QObject::connect(bar, &QScrollBar::actionTriggered, bar, [this](int action) { TakeAction(action); });
    QObject::connect(bar, &QScrollBar::valueChanged, bar, [this](int value) { TakeValue(value); });
    const QScopedValueRollback<bool> showing(isShowing_, true);
    bar->setSingleStep(1);
    bar->setRange(info_.min, info_.max);
    bar->setPageStep(std::max(info_.page, 1));
    bar->setValue(info_.position);
    return bar;
}

// A disabled widget lets the pointer through to its parent.
bool QtScrollBar::Hears(QEvent& event)
{
    return IsOfPointer(event) && !Widget()->isEnabled();
}

QScrollBar* QtScrollBar::NativeBar() const
{
    return static_cast<QScrollBar*>(Widget());
}

std::intptr_t QtScrollBar::Handle() const
{
    return Widget() ? static_cast<std::intptr_t>(Widget()->internalWinId()) : 0;
}

// -- What the control does with it --

// Of a range that is upside down the upper end is the only position.
i32 QtScrollBar::Limited(i32 position) const
{
    return std::min(std::max(position, info_.min), info_.max);
}

void QtScrollBar::SetInfo(const ScrollBarInfo& info)
{
    info_ = info;
    info_.position = Limited(info.position);
    ShowInfo();
}

void QtScrollBar::SetRange(i32 min, i32 max)
{
    info_.min = min;
    info_.max = max;
    info_.position = Limited(info_.position);
    ShowInfo();
}

void QtScrollBar::SetPosition(i32 position)
{
    info_.position = Limited(position);
    ShowPosition();
}

void QtScrollBar::ShowInfo()
{
    if (!Widget())
        return;
    const QScopedValueRollback<bool> showing(isShowing_, true);
    NativeBar()->setRange(std::min(info_.min, info_.max), info_.max);
    NativeBar()->setPageStep(std::max(info_.page, 1));
    NativeBar()->setValue(info_.position);
}

void QtScrollBar::ShowPosition()
{
    if (!Widget())
        return;
    const QScopedValueRollback<bool> showing(isShowing_, true);
    NativeBar()->setValue(info_.position);
}

// -- What its user does --

void QtScrollBar::Notify(i32 code)
{
    Setting().grid.Tell([&](Vornix& grid) { grid.ScrollBarNotify(name_, code); });
}

// Qt has moved the slider and is about to set the value to it. Where the control leaves it, it stays.
void QtScrollBar::TakeAction(int action)
{
    const std::optional<Message> message = MessageOf(action);
    const int asked = NativeBar()->sliderPosition();
    ShowPosition();
    if (!message)
        return;
    if (message == ThumbTrack) {
        trackPosition_ = asked;
        isTracking_ = true;
    }
    isActionOpen_ = true;
    Notify(*message);
    ShowPosition();
    if (!isHeld_)
        EndAction();
}

// By the bar's menu, or by an assistive tool: as if the thumb had been dragged there.
void QtScrollBar::TakeValue(int value)
{
    if (isShowing_)
        return;
    ShowPosition();
    trackPosition_ = value;
    isTracking_ = true;
    isActionOpen_ = true;
    Notify(ThumbTrack);
    EndAction();
}

void QtScrollBar::Hold()
{
    isHeld_ = true;
}

void QtScrollBar::LetGo()
{
    isHeld_ = false;
    EndAction();
}

void QtScrollBar::EndAction()
{
    if (!isActionOpen_)
        return;
    isActionOpen_ = false;
    if (isTracking_) {
        isTracking_ = false;
        Notify(ThumbPosition);
    }
    Notify(EndScroll);
    ShowPosition();
}

} // namespace vornix
