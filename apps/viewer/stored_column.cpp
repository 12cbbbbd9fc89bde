#include "stored_column.h"

#include "digit_groups.h"

#include <algorithm>

namespace vornix::viewer {

namespace {

bool IsPlainDecimal(std::u16string_view text)
{
    return text.find_first_not_of(u"-.0123456789") == std::u16string_view::npos;
}

int DecimalsOf(std::u16string_view text)
{
    const auto point = text.find(u'.');
    return point == std::u16string_view::npos ? 0 : static_cast<int>(text.size() - point - 1);
}

std::u16string WithDecimals(std::u16string_view number, int decimals)
{
    std::u16string text(number);
    const int missing = decimals - DecimalsOf(number);
    if (decimals > 0 && text.find(u'.') == std::u16string::npos)
        text += u'.';
    if (missing > 0)
        text.append(static_cast<std::size_t>(missing), u'0');
    return text;
}

} // namespace

void StoredColumn::Add(sqlite::ValueType type, std::u16string_view text)
{
    if (type == sqlite::ValueType::Null)
        return;
    hasReals_ = hasReals_ || type == sqlite::ValueType::Real;
    hasBlobs_ = hasBlobs_ || type == sqlite::ValueType::Blob;
    allTruthValues_ = allTruthValues_ && type != sqlite::ValueType::Blob && TruthValueOf(text).has_value();
    if (type == sqlite::ValueType::Text) {
        hasTexts_ = true;
        content_.Add(text);
        return;
    }
    if (type != sqlite::ValueType::Blob)
        NoteNumber(text);
}

void StoredColumn::NoteNumber(std::u16string_view text)
{
    hasNumbers_ = true;
    hasPlainDecimals_ = hasPlainDecimals_ && IsPlainDecimal(text);
    decimals_ = std::max(decimals_, DecimalsOf(text));
}

ColumnKind StoredColumn::Kind() const
{
    const bool hasValues = hasNumbers_ || hasTexts_;
    if (!hasValues || hasBlobs_)
        return ColumnKind::Text;
    if (declared_ == sqlite::DeclaredKind::Boolean && allTruthValues_)
        return ColumnKind::Boolean;
    if (hasNumbers_)
        return hasTexts_ ? ColumnKind::Text : NumberKind();
    return TextKind();
}

ColumnKind StoredColumn::NumberKind() const
{
    if (declared_ == sqlite::DeclaredKind::Money && hasPlainDecimals_ && decimals_ <= 2)
        return ColumnKind::Money;
    return hasReals_ || declared_ == sqlite::DeclaredKind::Real ? ColumnKind::Real : ColumnKind::Integer;
}

ColumnKind StoredColumn::TextKind() const
{
    const Content common = content_.Common();
    const bool isDeclaredDate = declared_ == sqlite::DeclaredKind::Date || declared_ == sqlite::DeclaredKind::DateTime;
    if (!(common & IsoDate) && !isDeclaredDate)
        return ColumnKind::Text;
    if (common & DateOnly)
        return ColumnKind::Date;
    return common & DateAndTime ? ColumnKind::DateTime : ColumnKind::Text;
}

void StoredColumn::Settle(Table& table, int column, bool plain) const
{
    const ColumnKind kind = Kind();
    table.Columns()[static_cast<std::size_t>(column)].kind = kind;
    if (kind == ColumnKind::Boolean)
        WriteTruthValues(table, column);
    const bool isMoney = kind == ColumnKind::Money;
    if (plain)
        return;
    if (!isMoney && (kind != ColumnKind::Real || !hasPlainDecimals_ || decimals_ > MaxDecimals))
        return;
    for (int row = 0; row < table.RowCount(); ++row) {
        if (table.IsNull(row, column))
            continue;
        const std::u16string text = WithDecimals(table.Text(row, column), isMoney ? 2 : decimals_);
        table.ReplaceText(row, column, isMoney ? WithDigitGroups(text) : text);
    }
}

} // namespace vornix::viewer
