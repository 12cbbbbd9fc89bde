#include "qt_clipboard.h"

#include "qt_ambient.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>

namespace vornix {

namespace {

constexpr auto None = std::u16string_view::npos;

// Beside the text: it is a control's own, line ends included.
QString OwnTextMark()
{
    return QStringLiteral("application/x-vornix-text");
}

// Behind the quote that closes the field at the start of the text, which begins with one; 0 when none does. Quotes
// inside are doubled.
std::size_t QuotedLength(std::u16string_view text)
{
    std::size_t quote = text.find(u'"', 1);
    while (quote != None && quote + 1 < text.size() && text[quote + 1] == u'"')
        quote = text.find(u'"', quote + 2);
    return quote == None ? 0 : quote + 1;
}

} // namespace

std::u16string WithLineEnds(std::u16string_view text)
{
    if (text.find(u"\r\n") != None)
        return std::u16string(text);
    std::u16string lines;
    // Once a quote is not closed, no later one that begins a field is looked at: that keeps time linear.
    bool mayBeQuoted = true;
    while (!text.empty()) {
        if (mayBeQuoted && text.front() == u'"') {
            const std::size_t quoted = QuotedLength(text);
            mayBeQuoted = quoted > 0;
            lines += text.substr(0, quoted);
            text.remove_prefix(quoted);
        }
        const std::size_t end = text.find_first_of(u"\t\n");
        lines += text.substr(0, end);
        if (end == None)
            break;
        lines += text[end] == u'\n' ? std::u16string_view(u"\r\n") : std::u16string_view(u"\t");
        text.remove_prefix(end + 1);
    }
    return lines;
}

std::u16string ClipboardPlainText()
{
    const QMimeData* const content = QGuiApplication::clipboard()->mimeData();
    // Without it Qt would give the addresses of files for a text.
    if (!content || !content->hasFormat(QStringLiteral("text/plain")))
        return {};
    const std::u16string text = FromQString(content->text());
    return content->hasFormat(OwnTextMark()) ? text : WithLineEnds(text);
}

void SetClipboardPlainText(std::u16string_view text)
{
    auto* const content = new QMimeData; // the clipboard takes it
    content->setText(ToQString(text));
    content->setData(OwnTextMark(), QByteArrayLiteral("1"));
    QGuiApplication::clipboard()->setMimeData(content);
}

} // namespace vornix
