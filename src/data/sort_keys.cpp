#include "data/sort_keys.h"

#include "automation/checked.h"
#include "automation/date_parser.h"
#include "automation/text_conversions.h"
#include "data/text_ranks.h"

#include <algorithm>
#include <bit>
#include <iterator>
#include <limits>
#include <string>
#include <string_view>
#include <unordered_set>

namespace vornix {

// -- The columns --

i16 SortKeyList::PositionOf(int col) const
{
    const auto found = std::find(cols_.begin(), cols_.end(), col);
    return found == cols_.end() ? i16(0) : ToI16(found - cols_.begin() + 1);
}

void SortKeyList::Put(int col, int position)
{
    OrOutOfMemory([&] { cols_.resize(static_cast<std::size_t>(position)); });
    cols_.back() = ToI16(col);
}

// -- The values --

namespace {

using Numbers = std::vector<std::uint64_t>;

// Stands for every text that is no date.
constexpr std::u16string_view NoDateText = u"0000-01-01";
// Ahead of all dates.
constexpr double NoDate = -std::numeric_limits<double>::infinity();

double DateIn(std::u16string_view text, const Locale& locale)
{
    return text == NoDateText ? NoDate : ParseDate(text, locale).value_or(NoDate);
}

double NumberOrZero(std::u16string_view text, const Locale& locale)
{
    return NumberIn(text, locale).value_or(0);
}

// A number that is larger exactly when the value is.
std::uint64_t Ordered(double value)
{
    constexpr std::uint64_t sign = std::uint64_t { 1 } << 63;
    const auto bits = std::bit_cast<std::uint64_t>(value == 0 ? 0.0 : value); // there are two zeros
    return bits & sign ? ~bits : bits | sign;
}

// One column's values, row by row.
class ColumnValues {
public:
    ColumnValues(const GridStore& store, int col, const Locale& locale)
        : store_(store)
        , locale_(locale)
        , col_(col)
        , column_(store.ColumnAt(col))
    {
    }

    Numbers Build()
    {
        switch (column_.SortType) {
        case vxAlphaNum:
            return Texts();
        case vxNumeric:
            return Parsed(NumberOrZero);
        case vxDate:
            return Parsed(DateIn);
        default:
            return Numbers(static_cast<std::size_t>(store_.Rows()));
        }
    }

private:
    // Holds until the next call.
    std::u16string_view SourceText(int row)
    {
        const Cell& cell = store_.CellAt(row, col_);
        return column_.SortUseKey ? cell.Key() : cell.TextView(scratch_);
    }

    // Each different text is parsed once.
    template <typename Parse> Numbers Parsed(const Parse& parse)
    {
        const DistinctTexts distinct(ReadTexts([](char16_t unit) { return unit; }));
        Numbers parsed;
        parsed.reserve(distinct.texts.size());
        for (const std::u16string_view text : distinct.texts)
            parsed.push_back(Ordered(parse(text, locale_)));
        Numbers numbers;
        numbers.reserve(distinct.numberOf.size());
        for (const std::uint32_t number : distinct.numberOf)
            numbers.push_back(parsed[number]);
        return numbers;
    }

    Numbers Texts()
    {
        const auto ranks = TextRanks(ReadTexts([&](char16_t unit) { return locale_.ToLower(unit); }), locale_);
        return { ranks.begin(), ranks.end() };
    }

    // All in one piece of memory; views are made once it does not move any more.
    template <typename Change> std::vector<std::u16string_view> ReadTexts(const Change& change)
    {
        std::vector<std::size_t> ends;
        ends.reserve(static_cast<std::size_t>(store_.Rows()));
        for (int row = store_.FixedRows(); row < store_.MaxRow(); ++row) {
            for (const char16_t unit : SourceText(row))
                pool_ += change(unit);
            ends.push_back(pool_.size());
        }
        std::vector<std::u16string_view> texts;
        texts.reserve(ends.size());
        std::size_t begin = 0;
        for (const std::size_t end : ends) {
            texts.push_back(std::u16string_view(pool_).substr(begin, end - begin));
            begin = end;
        }
        return texts;
    }

    const GridStore& store_;
    const Locale& locale_;
    int col_;
    const Column& column_;
    std::u16string scratch_;
    std::u16string pool_;
};

// Each column once: where it comes again, rows that it can tell apart have been told apart.
std::vector<i16> WithoutRepeats(std::span<const i16> cols)
{
    std::vector<i16> once;
    std::unordered_set<i16> known;
    std::copy_if(cols.begin(), cols.end(), std::back_inserter(once), [&](i16 col) { return known.insert(col).second; });
    return once;
}

} // namespace

SortKeys::SortKeys(const GridStore& store, std::span<const i16> cols, const Locale& locale)
    : firstRow_(store.FixedRows())
    , rowCount_(static_cast<std::size_t>(store.Rows()))
{
    if (rowCount_ == 0)
        return;
    OrOutOfMemory([&] {
        const std::vector<i16> keyCols = WithoutRepeats(cols);
        keyCount_ = keyCols.size();
        numbers_.resize(rowCount_ * keyCount_);
        for (std::size_t key = 0; key < keyCount_; ++key) {
            const Numbers values = ColumnValues(store, keyCols[key], locale).Build();
            // The complement turns an order around.
            const bool isDescending = store.ColumnAt(keyCols[key]).SortCriteria == vxDesc;
            for (std::size_t row = 0; row < rowCount_; ++row)
                numbers_[row * keyCount_ + key] = isDescending ? ~values[row] : values[row];
        }
    });
}

std::vector<RowSortKey> SortKeys::Rows() const
{
    return OrOutOfMemory([&] {
        std::vector<RowSortKey> rows(rowCount_);
        for (std::size_t row = 0; row < rowCount_; ++row)
            rows[row] = { ToI16(firstRow_ + static_cast<int>(row)), numbers_.data() + row * keyCount_ };
        return rows;
    });
}

} // namespace vornix
