#include "vornix/qvxtextbox.h"

#include "qt_ambient.h"
#include "qt_edit_box.h"
#include "qt_text_box_relay.h"

#include <QEvent>
#include <QFontMetrics>
#include <QLabel>

namespace vornix {

namespace {

constexpr int HintedCharacters = 17;
constexpr int HintedLines = 5;
constexpr int BorderWidth = 1;

TextBoxEvents& NoEvents()
{
    static TextBoxEvents events;
    return events;
}

// A label that has the widget for its buddy names it.
QString LabelOf(const QWidget& widget)
{
    if (!widget.parentWidget())
        return {};
    const auto labels = widget.parentWidget()->findChildren<QLabel*>(Qt::FindDirectChildrenOnly);
    for (const QLabel* const label : labels) {
        if (label->buddy() == &widget)
            return label->text().remove(QLatin1Char('&'));
    }
    return {};
}

} // namespace

// The widget as the window that holds the box, and as the form around it.
class QVxTextBox::Parts final : public ChildWindow, public TextBoxSite {
public:
    Parts(QVxTextBox& widget, TextBoxEvents& events)
        : widget_(widget)
        , relay(
              events, [&widget] { emit widget.changed(); }, [&widget] { emit widget.sized(); })
        , box(Qt::StrongFocus)
        , component(*this, box, *this, relay)
    {
    }

    void Move(const Rect& place) override
    {
        widget_.move(place.left, place.top);
        wanted = QSize(place.Width(), place.Height());
        widget_.resize(wanted);
        widget_.updateGeometry();
    }
    Rect Place() const override
    {
        const QRect place = widget_.geometry();
        return { place.left(), place.top(), place.left() + place.width(), place.top() + place.height() };
    }
    void Show(bool visible) override { widget_.setVisible(visible); }
    bool IsVisible() const override { return widget_.isVisible(); }
    void SetEnabled(bool enabled) override { widget_.setEnabled(enabled); }
    // Its own setting: on a disabled form it is not the widget that was disabled.
    bool IsEnabled() const override { return widget_.isEnabledTo(widget_.parentWidget()); }
    void Raise() override { widget_.raise(); }
    bool SetFocus() override
    {
        widget_.setFocus();
        return widget_.hasFocus();
    }

    const Locale& GetLocale() const override { return UserLocale(); }
    const SystemColors& Colors() const override { return colors; }
    FontPtr AmbientFont() const override { return FontFrom(widget_.font(), widget_.logicalDpiY()); }
    void PropertyChanged(std::string_view) override { }

private:
    QVxTextBox& widget_;

public:
    SystemColors colors;
    QSize wanted;
    QtTextBoxRelay relay;
    QtEditBox box;
    TextBox component;
};

QVxTextBox::QVxTextBox(QWidget* parent)
    : QVxTextBox(NoEvents(), parent)
{
}

QVxTextBox::QVxTextBox(TextBoxEvents& events, QWidget* parent)
    : QWidget(parent)
    , parts_(std::make_unique<Parts>(*this, events))
{
    parts_->colors = SystemColorsFrom(palette());
    parts_->box.Window().setParent(this);
    setFocusProxy(&parts_->box.Window());
    setFocusPolicy(Qt::StrongFocus);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    parts_->box.OnFocus = [this](QWidget& field) {
        field.setAccessibleName(accessibleName().isEmpty() ? LabelOf(*this) : accessibleName());
        field.setAccessibleDescription(accessibleDescription());
    };
    parts_->component.InitProperties();
    parts_->box.Listen(&parts_->component.Listener());
    parts_->box.Window().show();
}

QVxTextBox::~QVxTextBox()
{
    parts_->box.Listen(nullptr);
}

TextBox& QVxTextBox::Box()
{
    return parts_->component;
}

const TextBox& QVxTextBox::Box() const
{
    return parts_->component;
}

QSize QVxTextBox::sizeHint() const
{
    if (Box().AutoResize() && parts_->wanted.isValid())
        return parts_->wanted;
    const QFontMetrics metrics(QFontFrom(*Box().Font()));
    const int lines = Box().MultiLine() ? HintedLines : 1;
    return { HintedCharacters * metrics.horizontalAdvance(QLatin1Char('x')) + 2 * BorderWidth,
        lines * metrics.height() + 2 * BorderWidth };
}

QSize QVxTextBox::minimumSizeHint() const
{
    const QFontMetrics metrics(QFontFrom(*Box().Font()));
    return { metrics.maxWidth() + 2 * BorderWidth, metrics.height() + 2 * BorderWidth };
}

void QVxTextBox::resizeEvent(QResizeEvent*)
{
    parts_->box.Window().setGeometry(rect());
}

void QVxTextBox::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    CallFromQt([this] { Box().Show(); });
}

void QVxTextBox::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (!parts_ || (event->type() != QEvent::PaletteChange && event->type() != QEvent::FontChange))
        return;
    parts_->colors = SystemColorsFrom(palette());
    Box().FollowAmbient();
    updateGeometry();
}

} // namespace vornix
