#include "qt_text_field.h"

#include "qt_ambient.h"
#include "qt_one_line.h"

#include <QKeyEvent>
#include <QMimeData>
#include <QTextBlock>
#include <QTextDocument>

#include <algorithm>

namespace vornix {

namespace {

// Room for the caret behind a text at the right edge.
constexpr int CaretWidth = 1;

const QString LineEnd = QStringLiteral("\r\n");

// Other ends of lines become the usual one.
QString InLines(const QString& text)
{
    QString lines = text;
    lines.replace(LineEnd, QStringLiteral("\n"));
    lines.replace(QLatin1Char('\r'), QLatin1Char('\n'));
    return lines;
}

} // namespace

QtTextField::QtTextField(QWidget* parent)
    : QPlainTextEdit(parent)
{
    setFrameShape(QFrame::NoFrame);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setWordWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    setCursorWidth(CaretWidth);
    // The margin is there at each side; outside the corner it is not seen.
    document()->setDocumentMargin(CaretWidth);
    setViewportMargins(-CaretWidth, -CaretWidth, 0, 0);
    QObject::connect(this, &QPlainTextEdit::textChanged, this, [this] {
        if (OnChange)
            OnChange();
    });
}

void QtTextField::Apply(const QtEditSettings& settings)
{
    setFocusPolicy(settings.focusPolicy);
    setFont(settings.font);
    setPalette(settings.palette);
    setToolTip(settings.toolTip);
    viewport()->setCursor(settings.cursor.value_or(QCursor(Qt::IBeamCursor)));
    setReadOnly(settings.isLocked);
    if (settings.isLocked)
        setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    else
        setTextInteractionFlags(Qt::TextEditorInteraction);
    setVerticalScrollBarPolicy(settings.style.hasScrollBar ? Qt::ScrollBarAlwaysOn : Qt::ScrollBarAlwaysOff);
    const Qt::LayoutDirection direction = settings.isRightToLeft ? Qt::RightToLeft : Qt::LeftToRight;
    setLayoutDirection(direction);
    QTextOption option = document()->defaultTextOption();
    option.setTextDirection(direction);
    option.setAlignment(settings.Alignment());
    document()->setDefaultTextOption(option);
    setViewportMargins(
        settings.isRightToLeft ? 0 : -CaretWidth, -CaretWidth, settings.isRightToLeft ? -CaretWidth : 0, 0);
    mostTyped_ = settings.maxLength;
}

int QtTextField::Length() const
{
    return document()->characterCount() - 1 + document()->blockCount() - 1;
}

int QtTextField::InText(int inDocument) const
{
    return inDocument + document()->findBlock(inDocument).blockNumber();
}

int QtTextField::InDocument(int inText) const
{
    const auto startOf = [this](int line) { return document()->findBlockByNumber(line).position() + line; };
    int line = 0;
    for (int end = document()->blockCount(); end - line > 1;) {
        const int middle = line + (end - line) / 2;
        (startOf(middle) <= inText ? line : end) = middle;
    }
    // Between the two characters of a line's end the caret stands in front of them.
    const QTextBlock block = document()->findBlockByNumber(line);
    return block.position() + std::clamp(inText - startOf(line), 0, block.length() - 1);
}

std::u16string QtTextField::Text() const
{
    return FromQString(document()->toRawText().replace(QChar::ParagraphSeparator, LineEnd));
}

void QtTextField::SetText(std::u16string_view text)
{
    setPlainText(InLines(ToQString(text)));
}

int QtTextField::SelStart() const
{
    return InText(textCursor().selectionStart());
}

int QtTextField::SelLength() const
{
    return InText(textCursor().selectionEnd()) - SelStart();
}

void QtTextField::Select(int start, int length)
{
    QTextCursor caret(document());
    caret.setPosition(InDocument(start));
    caret.setPosition(InDocument(start + length), QTextCursor::KeepAnchor);
    setTextCursor(caret);
}

void QtTextField::Insert(std::u16string_view text)
{
    textCursor().insertText(InLines(ToQString(text)));
}

bool QtTextField::HasRoomFor(int characters) const
{
    return mostTyped_ <= 0 || Length() - SelLength() + characters <= mostTyped_;
}

// Pasted or dropped; as much as there is room for.
void QtTextField::insertFromMimeData(const QMimeData* source)
{
    if (isReadOnly() || !source->hasText())
        return;
    QString lines = InLines(source->text());
    if (mostTyped_ > 0) {
        QString whole = lines;
        whole.replace(QLatin1Char('\n'), LineEnd);
        whole.truncate(FittingLength(whole, mostTyped_ - (Length() - SelLength())));
        if (whole.endsWith(QLatin1Char('\r'))) // half a line's end
            whole.chop(1);
        lines = InLines(whole);
    }
    textCursor().insertText(lines);
    ensureCursorVisible();
}

bool QtTextField::Act(QKeyEvent& event)
{
    event.accept();
    // With Shift it would be another kind of line's end, and with Ctrl none.
    const bool isReturn = event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
    const bool isOther = event.modifiers() & (Qt::ShiftModifier | Qt::ControlModifier);
    if (isReturn && isOther && !event.modifiers().testFlag(Qt::AltModifier)) {
        QKeyEvent plain(event.type(), Qt::Key_Return, Qt::NoModifier, event.text());
        return Act(plain);
    }
    if (isReturn && !HasRoomFor(static_cast<int>(LineEnd.size())))
        return true;
    QPlainTextEdit::event(&event);
    return event.isAccepted();
}

} // namespace vornix
