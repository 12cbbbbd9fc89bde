#include "qt_edit_box.h"

#include "qt_ambient.h"
#include "qt_cursor.h"
#include "qt_host_call.h"
#include "qt_line_field.h"
#include "qt_text_field.h"

#include <QEvent>
#include <QScopedValueRollback>

#include <algorithm>
#include <utility>

namespace vornix {

namespace {

// Between a border and the text.
constexpr int Padding = 1;

// Whether the text of a key may be inserted, also where its first character is of two units.
bool IsInserted(const QString& text)
{
    return !text.isEmpty() && text.front().category() != QChar::Other_Control;
}

} // namespace

// The border, and the fields inside.
class QtEditBox::Frame final : public QFrame {
public:
    explicit Frame(QtEditBox& box)
        : box_(box)
    {
        setAutoFillBackground(true);
    }
    // The fields go next.
    ~Frame() override { box_.field_ = nullptr; }

protected:
    bool event(QEvent* event) override
    {
        const bool isKept = IsKeptByBox(*event);
        const bool isHandled = QFrame::event(event);
        if (isKept)
            event->accept();
        return isHandled || isKept;
    }

    void resizeEvent(QResizeEvent* event) override
    {
        QFrame::resizeEvent(event);
        box_.LayOut();
    }

private:
    QtEditBox& box_;
};

class QtEditBox::Watch final : public QObject {
public:
    explicit Watch(QtEditBox& box)
        : box_(box)
    {
    }

    bool eventFilter(QObject* watched, QEvent* event) override { return box_.Hears(*watched, *event); }

private:
    QtEditBox& box_;
};

QtEditBox::QtEditBox(Qt::FocusPolicy focusPolicy)
    : watch_(std::make_unique<Watch>(*this))
    , keys_(*this)
    , pointer_(*this)
{
    settings_.focusPolicy = focusPolicy;
    settings_.palette.setColor(QPalette::Base, Qt::white);
    settings_.palette.setColor(QPalette::Text, Qt::black);
}

QtEditBox::~QtEditBox()
{
    listener_ = nullptr;
    isSilent_ = true;
    delete frame_;
}

// -- Its widgets --

QWidget& QtEditBox::Window()
{
    if (!frame_)
        MakeWindow();
    return *frame_;
}

void QtEditBox::MakeWindow()
{
    frame_ = new Frame(*this);
    field_ = nullptr;
    knownText_.clear();
    SetBorder(hasBorder_);
    UseFieldOfStyle();
}

QtEditField& QtEditBox::Field() const
{
    const_cast<QtEditBox*>(this)->Window();
    return *field_;
}

QtEditField& QtEditBox::FieldFor(const EditBoxStyle& style)
{
    // What is hidden stays hidden, at the price of the other lines.
    const bool isText = style.isMultiLine && settings_.passwordChar == 0;
    return isText ? MadeField(textField_) : MadeField(lineField_);
}

template <typename Widget> QtEditField& QtEditBox::MadeField(QPointer<Widget>& field)
{
    if (field)
        return *field;
    field = new Widget(frame_);
    field->hide();
    field->installEventFilter(watch_.get());
    if (&field->Canvas() != field)
        field->Canvas().installEventFilter(watch_.get());
    field->Canvas().setMouseTracking(true);
    field->OnChange = [this, made = field.data()] { HearChange(*made); };
    if (field_)
        QWidget::setTabOrder(&field_->Widget(), field);
    return *field;
}

// Text, selection and focus go along.
void QtEditBox::UseFieldOfStyle()
{
    QtEditField& chosen = FieldFor(settings_.style);
    QtEditField* const former = std::exchange(field_, &chosen);
    Silently([&] {
        chosen.Apply(settings_);
        if (former && former != &chosen) {
            chosen.SetText(former->Text());
            chosen.Select(former->SelStart(), former->SelLength());
        }
    });
    frame_->setFocusProxy(&chosen.Widget());
    LayOut();
    chosen.Widget().show();
    if (!former || former == &chosen)
        return;
    // Or would have it, were its window active.
    if (frame_->window()->focusWidget() == &former->Widget())
        chosen.Widget().setFocus();
    former->Widget().hide();
}

void QtEditBox::ApplySettings()
{
    if (!frame_)
        return;
    Silently([this] { field_->Apply(settings_); });
}

void QtEditBox::LayOut()
{
    if (!frame_ || !field_)
        return;
    const int padding = hasBorder_ ? Padding : 0;
    field_->Widget().setGeometry(frame_->contentsRect().adjusted(padding, 0, -padding, 0));
}

template <typename Step> void QtEditBox::Silently(const Step& step)
{
    {
        const QScopedValueRollback<bool> silent(isSilent_, true);
        step();
    }
    knownText_ = field_->Text();
}

// -- Its text --

std::u16string QtEditBox::Text() const
{
    return Field().Text();
}

void QtEditBox::SetText(std::u16string_view text)
{
    Field();
    keys_.ForgetComposition();
    Silently([&] { field_->SetText(text); });
}

int QtEditBox::SelStart() const
{
    return Field().SelStart();
}

void QtEditBox::SetSelStart(int start)
{
    const int length = static_cast<int>(Field().Text().size());
    field_->Select(std::clamp(start, 0, length), 0);
}

int QtEditBox::SelLength() const
{
    return Field().SelLength();
}

void QtEditBox::SetSelLength(int length)
{
    const int start = Field().SelStart();
    const int rest = static_cast<int>(Field().Text().size()) - start;
    field_->Select(start, std::clamp(length, 0, rest));
}

std::u16string QtEditBox::SelText() const
{
    return Field().Text().substr(static_cast<std::size_t>(SelStart()), static_cast<std::size_t>(SelLength()));
}

void QtEditBox::SetSelText(std::u16string_view text)
{
    Field();
    keys_.ForgetComposition();
    Silently([&] { field_->Insert(text); });
}

// -- Its settings --

void QtEditBox::SetStyle(const EditBoxStyle& style)
{
    if (style == settings_.style)
        return;
    settings_.style = style;
    if (frame_)
        UseFieldOfStyle();
}

void QtEditBox::SetRightToLeft(bool rightToLeft)
{
    settings_.isRightToLeft = rightToLeft;
    ApplySettings();
}

void QtEditBox::SetPasswordChar(char16_t sign)
{
    settings_.passwordChar = sign;
    if (frame_)
        UseFieldOfStyle();
}

void QtEditBox::SetMaxLength(i32 length)
{
    settings_.maxLength = length;
    ApplySettings();
}

void QtEditBox::SetLocked(bool locked)
{
    settings_.isLocked = locked;
    ApplySettings();
}

void QtEditBox::SetFont(const FontObject& font)
{
    settings_.font = QFontFrom(font);
    ApplySettings();
}

void QtEditBox::SetColors(ColorRef foreColor, ColorRef backColor)
{
    UseColors(settings_.palette, foreColor, backColor);
    if (frame_)
        frame_->setPalette(settings_.palette);
    ApplySettings();
}

void QtEditBox::SetBorder(bool hasBorder)
{
    hasBorder_ = hasBorder;
    if (!frame_)
        return;
    frame_->setFrameStyle(hasBorder ? static_cast<int>(QFrame::Box) | static_cast<int>(QFrame::Plain) : 0);
    frame_->setLineWidth(hasBorder ? 1 : 0);
    LayOut();
}

void QtEditBox::SetToolTip(std::u16string_view text)
{
    settings_.toolTip = ToQString(text);
    ApplySettings();
}

void QtEditBox::SetPointer(i32 shape, const PicturePtr& picture)
{
    settings_.cursor = CursorFrom(shape, picture.get());
    ApplySettings();
}

void QtEditBox::Refresh()
{
    if (frame_)
        field_->Canvas().repaint();
}

std::intptr_t QtEditBox::Handle() const
{
    return frame_ ? static_cast<std::intptr_t>(frame_->internalWinId()) : 0;
}

Device* QtEditBox::DrawingDevice()
{
    const double scale = Window().devicePixelRatioF();
    if (!measuring_ || measuring_->Scale() != scale)
        measuring_ = RasterSurface::Create({ 1, 1 }, scale, SystemColorsFrom(settings_.palette));
    return measuring_.get();
}

// -- What its user does --

template <typename Step> void QtEditBox::Tell(const Step& step)
{
    if (listener_)
        CallFromQt([&] { step(*listener_); });
}

bool QtEditBox::Hears(QObject& watched, QEvent& event)
{
    if (!field_)
        return false;
    if (&watched == &field_->Canvas() && pointer_.Hears(field_->Canvas(), *frame_, event))
        return true;
    if (&watched != &field_->Widget())
        return false;
    if (event.type() == QEvent::FocusIn && OnFocus)
        OnFocus(field_->Widget());
    return keys_.Hears(event);
}

void QtEditBox::HearChange(const QtEditField& field)
{
    if (isSilent_ || &field != field_)
        return;
    if (isActing_)
        hasChanged_ = true;
    else
        TellChange(ChangeOrigin::Foreign);
}

// Qt tells of changes of the look, too.
void QtEditBox::TellChange(ChangeOrigin origin)
{
    std::u16string text = field_->Text();
    if (text == knownText_)
        return;
    knownText_ = std::move(text);
    Tell([&](EditBoxListener& listener) { listener.TextChanged(origin); });
}

// The listener hears of the change when the field has done with it.
template <typename Step> void QtEditBox::Acting(ChangeOrigin origin, const Step& step)
{
    bool hasChanged = false;
    {
        const QScopedValueRollback<bool> acting(isActing_, true);
        const QScopedValueRollback<bool> changed(hasChanged_, false);
        step();
        hasChanged = hasChanged_;
    }
    if (hasChanged)
        TellChange(origin);
}

void QtEditBox::TellKeyDown(i16& code, i16& shift)
{
    Tell([&](EditBoxListener& listener) { listener.KeyDown(code, shift); });
}

void QtEditBox::TellKeyPress(i16& character, i16 shift)
{
    Tell([&](EditBoxListener& listener) { listener.KeyPress(character, shift); });
}

void QtEditBox::TellKeyUp(i16& code, i16& shift)
{
    Tell([&](EditBoxListener& listener) { listener.KeyUp(code, shift); });
}

QWidget& QtEditBox::KeyWidget()
{
    return Field().Widget();
}

void QtEditBox::ActOnKey(QKeyEvent& event, ChangeOrigin origin)
{
    const QString text = event.text();
    if (IsInserted(text) && !field_->HasRoomFor(static_cast<int>(text.size())))
        return event.accept();
    Acting(origin, [&] { event.setAccepted(field_->Act(event)); });
}

void QtEditBox::ActOnComposition(QInputMethodEvent& event, ChangeOrigin origin)
{
    if (!event.commitString().isEmpty() && !field_->HasRoomFor(static_cast<int>(event.commitString().size())))
        return;
    Acting(origin, [&] { static_cast<QObject&>(field_->Widget()).event(&event); });
}

bool QtEditBox::MoveFocus(bool forward)
{
    return OnTab ? OnTab(forward) : field_->MoveFocus(forward);
}

void QtEditBox::TellMouseDown(i16 button, i16 shift, PixelPlace place)
{
    Tell([&](EditBoxListener& listener) { listener.MouseDown(button, shift, place.x, place.y); });
}

void QtEditBox::TellMouseMove(i16 buttons, i16 shift, PixelPlace place)
{
    Tell([&](EditBoxListener& listener) { listener.MouseMove(buttons, shift, place.x, place.y); });
}

void QtEditBox::TellMouseUp(i16 button, i16 shift, PixelPlace place)
{
    Tell([&](EditBoxListener& listener) { listener.MouseUp(button, shift, place.x, place.y); });
}

void QtEditBox::TellClick()
{
    Tell([](EditBoxListener& listener) { listener.Click(); });
}

void QtEditBox::TellDblClick()
{
    Tell([](EditBoxListener& listener) { listener.DblClick(); });
}

} // namespace vornix
