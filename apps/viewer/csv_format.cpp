#include "csv_format.h"

#include "column_content.h"
#include "csv_parser.h"

#include <algorithm>
#include <array>
#include <limits>
#include <map>
#include <set>

namespace vornix::viewer {

namespace {

constexpr std::array<char16_t, 4> Separators { u'\t', u';', u'|', u',' };
constexpr std::uint64_t SampledRows = 200;

struct FieldCounts {
    std::map<std::size_t, std::uint64_t> rowsOf; // by number of fields
    std::uint64_t rows = 0;
    std::uint64_t splitRows = 0; // with two fields or more
};

FieldCounts CountFields(std::u16string_view sample, bool isWholeFile, char16_t separator)
{
    FieldCounts counts;
    const auto count = [&](const CsvParser::Record& record) {
        if (counts.rows == SampledRows)
            return;
        ++counts.rows;
        ++counts.rowsOf[record.fields.size()];
        counts.splitRows += record.fields.size() > 1 ? 1 : 0;
    };
    LoadLimits noLimits;
    noLimits.maxColumns = std::numeric_limits<int>::max();
    CsvParser parser(separator, noLimits, count);
    try {
        parser.Feed(sample);
        // The cut end of a sample counts only where there is little else, as with very long rows.
        if (isWholeFile || counts.rows < 2)
            parser.Finish();
    } catch (const LoadError&) {
        // What is wrong with the file comes out when it is read; here the rows before it are enough.
    }
    return counts;
}

// From 0 to 1: the share of split rows, times the share of rows with the most frequent number of fields.
double Regularity(const FieldCounts& counts)
{
    std::uint64_t mostFrequent = 0;
    for (const auto& [fields, rows] : counts.rowsOf)
        mostFrequent = fields > 1 ? std::max(mostFrequent, rows) : mostFrequent;
    const auto rows = static_cast<double>(counts.rows);
    return static_cast<double>(counts.splitRows) / rows * static_cast<double>(mostFrequent) / rows;
}

// A whole number of up to four digits; -1 for any other text.
int ShortNumber(std::u16string_view text)
{
    const bool isShort = !text.empty() && text.size() <= 4;
    if (!isShort || text.find_first_not_of(u"0123456789") != std::u16string_view::npos)
        return -1;
    int value = 0;
    for (const char16_t unit : text)
        value = value * 10 + (unit - u'0');
    return value;
}

// Years, months or numbers along the top: 2019, 2020, 2021.
bool IsRunningNumber(const Table& table, int column)
{
    const int number = ShortNumber(table.Text(0, column));
    if (number < 0)
        return false;
    const bool follows = column > 0 && ShortNumber(table.Text(0, column - 1)) == number - 1;
    const bool leads = column + 1 < table.ColumnCount() && ShortNumber(table.Text(0, column + 1)) == number + 1;
    return follows || leads;
}

bool LooksLikeNames(const Table& table)
{
    constexpr std::size_t longestName = 64;
    std::set<std::u16string_view> names;
    bool hasWord = false;
    for (int column = 0; column < table.ColumnCount(); ++column) {
        const std::u16string_view name = table.Text(0, column);
        // A column may well be called No or Y.
        const bool isWord = (ContentOf(name) & (AnyNumber | AnyDate)) == 0;
        if (name.empty() || name.size() > longestName || !names.insert(name).second)
            return false;
        if (!isWord && !IsRunningNumber(table, column))
            return false;
        hasWord = hasWord || isWord;
    }
    return hasWord;
}

ColumnContent ContentBelowFirstRow(const Table& table, int column)
{
    ColumnContent content;
    for (int row = 1; row < std::min(HeaderSample, table.RowCount()); ++row)
        content.Add(table.Text(row, column));
    return content;
}

// Positive when the first row's text is not what the column holds, negative when it is.
int HeaderVote(const Table& table, int column)
{
    const ColumnContent content = ContentBelowFirstRow(table, column);
    const std::u16string_view first = table.Text(0, column);
    if (content.Kind() == ColumnKind::Text)
        return ContentOf(first) & (AnyNumber | AnyDate) ? -1 : 0;
    if (first.empty())
        return 0;
    if (!content.Fits(first))
        return ContentOf(first) & (AnyNumber | AnyDate) ? -1 : 2;
    return (ContentOf(first) & AnyInteger) && IsRunningNumber(table, column) ? 0 : -2;
}

} // namespace

char16_t GuessSeparator(std::u16string_view sample, bool isWholeFile)
{
    constexpr double leastRegularity = 0.2;
    char16_t best = 0;
    double bestRegularity = 0;
    bool hasRows = false;
    for (const char16_t separator : Separators) {
        const FieldCounts counts = CountFields(sample, isWholeFile, separator);
        hasRows = hasRows || counts.rows > 0;
        if (counts.splitRows * 2 < counts.rows || counts.rows == 0)
            continue;
        const double regularity = Regularity(counts);
        if (regularity > bestRegularity) {
            best = separator;
            bestRegularity = regularity;
        }
    }
    // A first row longer than the sample says nothing.
    if (!hasRows)
        return u',';
    return bestRegularity >= leastRegularity ? best : u'\0';
}

bool HasHeader(const Table& table)
{
    if (table.RowCount() == 0)
        return false;
    int votes = 0;
    for (int column = 0; column < table.ColumnCount(); ++column)
        votes += HeaderVote(table, column);
    return votes != 0 ? votes > 0 : LooksLikeNames(table);
}

} // namespace vornix::viewer
