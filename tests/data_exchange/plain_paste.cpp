#include "data_exchange/plain_paste.h"

#include "data/clipboard_text.h"

#include <vector>

namespace vornix {

namespace {

using Texts = std::vector<std::u16string>;

Texts Split(std::u16string text, const std::u16string& separator)
{
    Texts parts;
    for (std::size_t end = text.find(separator); end != std::u16string::npos; end = text.find(separator)) {
        parts.push_back(text.substr(0, end));
        text = text.substr(end + separator.size());
    }
    parts.push_back(text);
    return parts;
}

int QuotesAtStart(const std::u16string& field)
{
    int count = 0;
    while (count < static_cast<int>(field.size()) && field[static_cast<std::size_t>(count)] == u'"')
        ++count;
    return count;
}

int QuotesAtEnd(const std::u16string& field)
{
    return QuotesAtStart(std::u16string(field.rbegin(), field.rend()));
}

std::u16string PastedField(Texts& fields, std::size_t& j, const Texts& lines, std::size_t& u)
{
    std::u16string f = fields[j];
    if (f.empty())
        return u"";
    if (f.front() != u'"')
        return f;
    if (QuotesAtStart(f) % 2 == 0)
        return f;
    f = f.substr(1);
    std::u16string result;
    bool multi = false;
    while (u < lines.size()) {
        if (multi) {
            f = u"";
            if (!lines[u].empty()) {
                fields = Split(lines[u], u"\t");
                j = 0;
                f = fields[0];
            }
        }
        if (!f.empty() && f.back() == u'"' && QuotesAtEnd(f) % 2 == 1) {
            f.pop_back();
            if (multi)
                result += u"\r\n";
            result += f;
            break;
        }
        if (!multi && j + 1 < fields.size()) {
            result += f;
            break;
        }
        if (multi)
            result += u"\r\n";
        result += f;
        multi = true;
        u += 1;
    }
    return result;
}

} // namespace

void PlainPaste(std::u16string_view text, int rows, int cols, const CellWriter& write)
{
    if (text.empty())
        return;
    const Texts lines = Split(std::u16string(text), u"\r\n");
    std::size_t u = 0;
    for (int row = 0; row < rows; ++row) {
        if (!lines[u].empty()) {
            Texts fields = Split(lines[u], u"\t");
            std::size_t j = 0;
            for (int col = 0; col < cols; ++col) {
                write(row, col, PastedField(fields, j, lines, u));
                j += 1;
                if (j >= fields.size())
                    break;
            }
        }
        u += 1;
        if (u >= lines.size())
            break;
    }
}

PasteStories StoriesOfPaste(std::u16string_view text, int rows, int cols)
{
    PasteStories stories;
    GridStore store;
    store.StoreRows(static_cast<i16>(rows));
    store.StoreCols(static_cast<i16>(cols));
    store.InitGridStore(SystemColors());
    // What a cell has that nothing was pasted into.
    const std::u16string untouched = u"(untouched)";
    std::vector<std::u16string> cells(static_cast<std::size_t>(rows * cols), untouched);
    for (int row = 0; row < rows; ++row)
        for (int col = 0; col < cols; ++col)
            store.EditCell(row, col).SetText(untouched);
    PlainPaste(text, rows, cols, [&](int row, int col, const std::u16string& value) {
        cells[static_cast<std::size_t>(row * cols + col)] = value;
    });
    PasteText(store, { { 0, 0 }, { rows - 1, cols - 1 } }, text);
    for (int row = 0; row < rows; ++row) {
        for (int col = 0; col < cols; ++col) {
            stories.plain += cells[static_cast<std::size_t>(row * cols + col)] + u"|";
            stories.fast += store.CellAt(row, col).Text() + u"|";
        }
    }
    return stories;
}

} // namespace vornix
