#include "column_content.h"

#include "blanks.h"

namespace vornix::viewer {

namespace {

bool IsPlaceholder(std::u16string_view text)
{
    return text == u"NA" || text == u"N/A" || text == u"n/a" || text == u"NULL" || text == u"null";
}

void CompleteTruthTexts(Column& column)
{
    if (column.trueText.empty() && !column.falseText.empty())
        column.trueText = OppositeTruthText(column.falseText);
    if (column.falseText.empty() && !column.trueText.empty())
        column.falseText = OppositeTruthText(column.trueText);
}

} // namespace

void ColumnContent::Add(std::u16string_view text)
{
    if (IsBlank(text))
        return;
    if (IsPlaceholder(text)) {
        hasPlaceholder_ = true;
        return;
    }
    ++count_;
    if (common_ == 0)
        return;
    const Content content = ContentOf(text);
    common_ &= content;
    if (content & AnyTruthValue)
        (*TruthValueOf(text) ? hasTrue_ : hasFalse_) = true;
}

bool ColumnContent::HasTruthValues() const
{
    if (hasPlaceholder_)
        return false;
    if (common_ & (WordTrueFalse | WordYesNo))
        return true;
    return (common_ & (LetterYesNo | LetterTrueFalse)) && hasTrue_ && hasFalse_;
}

ColumnKind ColumnContent::Kind() const
{
    if (count_ == 0)
        return ColumnKind::Text;
    if (HasTruthValues())
        return ColumnKind::Boolean;
    if (common_ & AnyInteger)
        return ColumnKind::Integer;
    if (common_ & AnyReal)
        return ColumnKind::Real;
    if (common_ & AnyMoney)
        return ColumnKind::Money;
    if (common_ & DateOnly)
        return ColumnKind::Date;
    return common_ & DateAndTime ? ColumnKind::DateTime : ColumnKind::Text;
}

bool ColumnContent::Fits(std::u16string_view text) const
{
    ColumnContent extended = *this;
    extended.Add(text);
    return extended.Kind() == Kind();
}

void SetKindsByContent(Table& table)
{
    std::vector<ColumnContent> contents(table.Columns().size());
    for (int row = 0; row < table.RowCount(); ++row) {
        for (int column = 0; column < table.ColumnCount(); ++column)
            contents[static_cast<std::size_t>(column)].Add(table.Text(row, column));
    }
    for (int column = 0; column < table.ColumnCount(); ++column) {
        const ColumnKind kind = contents[static_cast<std::size_t>(column)].Kind();
        table.Columns()[static_cast<std::size_t>(column)].kind = kind;
        if (kind == ColumnKind::Boolean)
            WriteTruthValues(table, column);
    }
}

void WriteTruthValues(Table& table, int column)
{
    Column& described = table.Columns()[static_cast<std::size_t>(column)];
    for (int row = 0; row < table.RowCount(); ++row) {
        if (table.IsNull(row, column))
            continue;
        const auto value = TruthValueOf(table.Text(row, column));
        if (!value)
            continue;
        std::u16string& written = *value ? described.trueText : described.falseText;
        if (written.empty())
            written = table.Text(row, column);
        table.ReplaceText(row, column, *value ? u"-1" : u"0");
    }
    CompleteTruthTexts(described);
}

} // namespace vornix::viewer
