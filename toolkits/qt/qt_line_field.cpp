#include "qt_line_field.h"

#include "qt_ambient.h"
#include "qt_one_line.h"

#include <QApplication>
#include <QKeyEvent>
#include <QProxyStyle>
#include <QScopedValueRollback>
#include <QStyleFactory>

#include <limits>

namespace vornix {

namespace {

// What QLineEdit leaves free around its line.
constexpr int SideMargin = 2;
constexpr int TopMargin = 1;
constexpr int CaretWidth = 1;
constexpr int Unlimited = std::numeric_limits<int>::max();

} // namespace

// The application's style with another sign for passwords.
class QtLineField::SignStyle final : public QProxyStyle {
public:
    explicit SignStyle(char16_t sign)
        : QProxyStyle(QStyleFactory::create(QApplication::style()->name()))
        , sign_(sign)
    {
    }

    int styleHint(
        StyleHint hint, const QStyleOption* option, const QWidget* widget, QStyleHintReturn* more) const override
    {
        return hint == SH_LineEdit_PasswordCharacter ? int { sign_ }
                                                     : QProxyStyle::styleHint(hint, option, widget, more);
    }

private:
    char16_t sign_;
};

QtLineField::QtLineField(QWidget* parent)
    : QLineEdit(parent)
{
    setFrame(false);
    setMaxLength(Unlimited);
    setTextMargins(-SideMargin, -TopMargin, -SideMargin - CaretWidth, -TopMargin);
    QObject::connect(this, &QLineEdit::textChanged, this, [this] { HearChange(); });
}

QtLineField::~QtLineField()
{
    setStyle(nullptr);
}

void QtLineField::HearChange()
{
    // Qt's own limit would cut what a program has written, too.
    if (!isProgram_) {
        const QScopedValueRollback<bool> program(isProgram_, true);
        KeepFirstLine(*this, former_, mostTyped_);
    }
    former_ = text();
    if (OnChange)
        OnChange();
}

void QtLineField::Apply(const QtEditSettings& settings)
{
    setFocusPolicy(settings.focusPolicy);
    setFont(settings.font);
    setPalette(settings.palette);
    setToolTip(settings.toolTip);
    setCursor(settings.cursor.value_or(QCursor(Qt::IBeamCursor)));
    setReadOnly(settings.isLocked);
    setAlignment(settings.Alignment());
    // The line learns of a direction only when it is another.
    const Qt::LayoutDirection direction = settings.isRightToLeft ? Qt::RightToLeft : Qt::LeftToRight;
    if (!testAttribute(Qt::WA_SetLayoutDirection))
        setLayoutDirection(settings.isRightToLeft ? Qt::LeftToRight : Qt::RightToLeft);
    setLayoutDirection(direction);
    ShowSign(settings.passwordChar);
    mostTyped_ = settings.maxLength;
}

void QtLineField::ShowSign(char16_t sign)
{
    if (sign == sign_)
        return;
    sign_ = sign;
    auto style = sign ? std::make_unique<SignStyle>(sign) : nullptr;
    setStyle(style.get());
    signStyle_ = std::move(style);
    // Shows the text anew behind the new sign.
    setEchoMode(Normal);
    setEchoMode(sign ? Password : Normal);
}

bool QtLineField::HasRoomFor(int characters) const
{
    return mostTyped_ <= 0 || text().size() - SelLength() + characters <= mostTyped_;
}

std::u16string QtLineField::Text() const
{
    return FromQString(text());
}

void QtLineField::SetText(std::u16string_view text)
{
    const QScopedValueRollback<bool> program(isProgram_, true);
    setText(ToQString(text));
    setCursorPosition(0);
}

int QtLineField::SelStart() const
{
    return hasSelectedText() ? selectionStart() : cursorPosition();
}

int QtLineField::SelLength() const
{
    return selectionLength();
}

void QtLineField::Select(int start, int length)
{
    if (length > 0)
        setSelection(start, length);
    else
        setCursorPosition(start);
}

void QtLineField::Insert(std::u16string_view text)
{
    const QScopedValueRollback<bool> program(isProgram_, true);
    if (text.empty() && !hasSelectedText())
        return;
    if (text.empty())
        del();
    else
        insert(ToQString(text));
}

bool QtLineField::Act(QKeyEvent& event)
{
    event.accept();
    QLineEdit::event(&event);
    return event.isAccepted();
}

} // namespace vornix
