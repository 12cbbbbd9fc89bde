#include "data/clipboard_text.h"

#include "automation/checked.h"

#include <algorithm>

namespace vornix {

namespace {

constexpr char16_t Quote = u'"';
constexpr char16_t Tab = u'\t';
constexpr std::u16string_view LineEnd = u"\r\n";

// Parts of a text between separators, empty ones too; one more than there are separators.
void Split(std::u16string_view text, std::u16string_view separator, std::vector<std::u16string_view>& parts)
{
    parts.clear();
    for (;;) {
        const std::size_t end = text.find(separator);
        parts.push_back(text.substr(0, end));
        if (end == std::u16string_view::npos)
            return;
        text.remove_prefix(end + separator.size());
    }
}

void AppendField(std::u16string& line, std::u16string_view text)
{
    if (text.find(LineEnd) == std::u16string_view::npos) {
        line += text;
        return;
    }
    line += Quote;
    std::copy_if(text.begin(), text.end(), std::back_inserter(line), [](char16_t unit) { return unit != u'\r'; });
    line += Quote;
}

// Of all texts with what stands between them; a quote more or less at texts of several lines is not counted.
std::size_t LengthOf(const GridStore& store, CellRectangle cells)
{
    std::size_t length = 0;
    for (int row = cells.first.row; row <= cells.last.row; ++row) {
        length += LineEnd.size();
        for (int col = cells.first.col; col <= cells.last.col; ++col)
            length += store.CellAt(row, col).TextLength() + 1;
    }
    return length;
}

bool IsQuote(char16_t unit)
{
    return unit == Quote;
}

bool BeginsQuoted(std::u16string_view field)
{
    return (std::find_if_not(field.begin(), field.end(), IsQuote) - field.begin()) % 2 == 1;
}

bool EndsQuoted(std::u16string_view field)
{
    return (std::find_if_not(field.rbegin(), field.rend(), IsQuote) - field.rbegin()) % 2 == 1;
}

} // namespace

CellRectangle CellRectangle::Between(CellIndex oneCorner, CellIndex otherCorner)
{
    const auto [firstRow, lastRow] = std::minmax(oneCorner.row, otherCorner.row);
    const auto [firstCol, lastCol] = std::minmax(oneCorner.col, otherCorner.col);
    return { { firstRow, firstCol }, { lastRow, lastCol } };
}

std::u16string CopiedText(const GridStore& store, CellRectangle cells)
{
    return OrOutOfMemory([&] {
        std::u16string text;
        text.reserve(LengthOf(store, cells));
        std::u16string scratch;
        std::size_t lineStart = 0;
        for (int row = cells.first.row; row <= cells.last.row; ++row) {
            if (row > cells.first.row)
                text += LineEnd;
            lineStart = text.size();
            for (int col = cells.first.col; col <= cells.last.col; ++col) {
                if (col > cells.first.col)
                    text += Tab;
                AppendField(text, store.CellAt(row, col).TextView(scratch));
            }
        }
        if (text.size() == lineStart)
            text.clear();
        return text;
    });
}

PastedLines::PastedLines(std::u16string_view text)
{
    Split(text, LineEnd, lines_);
}

bool PastedLines::SplitLine()
{
    if (lines_[line_].empty())
        return false;
    Split(lines_[line_], { &Tab, 1 }, fields_);
    field_ = 0;
    return true;
}

bool PastedLines::OpenLine()
{
    return SplitLine();
}

std::u16string_view PastedLines::TakeField()
{
    const std::u16string_view field = fields_[field_];
    const std::u16string_view value = BeginsQuoted(field) ? TakeQuotedField() : field;
    ++field_;
    return value;
}

std::u16string_view PastedLines::TakeQuotedField()
{
    quoted_.clear();
    std::u16string_view part = fields_[field_].substr(1);
    for (bool isFirst = true; !IsPastLastLine(); isFirst = false, GoToNextLine()) {
        // An empty line leaves the fields of the line before it to be taken behind this one.
        if (!isFirst) {
            part = {};
            quoted_ += LineEnd;
            if (SplitLine())
                part = fields_[0];
        }
        const bool isEnd = EndsQuoted(part);
        if (isEnd)
            part.remove_suffix(1);
        quoted_ += part;
        // With more fields behind it, the first part was no beginning of several lines.
        if (isEnd || (isFirst && field_ + 1 < fields_.size()))
            break;
    }
    return quoted_;
}

void PasteText(GridStore& store, CellRectangle cells, std::u16string_view text)
{
    if (text.empty())
        return;
    OrOutOfMemory([&] {
        PastedLines lines(text);
        for (int row = cells.first.row; row <= cells.last.row && !lines.IsPastLastLine(); ++row) {
            if (lines.OpenLine()) {
                for (int col = cells.first.col; col <= cells.last.col && lines.HasField(); ++col)
                    store.EditCell(row, col).SetText(lines.TakeField());
            }
            lines.GoToNextLine();
        }
    });
}

} // namespace vornix
