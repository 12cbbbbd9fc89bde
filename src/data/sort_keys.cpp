#include "data/sort_keys.h"

#include "automation/checked.h"
#include "automation/date_parser.h"
#include "automation/text_conversions.h"
#include "data/text_ranks.h"

#include <algorithm>
#include <array>
#include <bit>
#include <limits>
#include <string>
#include <string_view>
#include <utility>

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

// Places in an order, from 0, one for each row; the same where values are equal.
using Places = std::vector<std::uint32_t>;

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

// Most units are among the first ones, whose lower case is asked for once.
void ToLower(std::u16string& text, const Locale& locale)
{
    std::array<char16_t, 128> lower;
    for (char16_t unit = 0; unit < lower.size(); ++unit)
        lower[unit] = locale.ToLower(unit);
    for (char16_t& unit : text)
        unit = unit < lower.size() ? lower[unit] : locale.ToLower(unit);
}

template <typename Value> Places PlacesOf(const std::vector<Value>& values)
{
    std::vector<Value> order = values;
    std::sort(order.begin(), order.end());
    order.erase(std::unique(order.begin(), order.end()), order.end());
    Places places;
    places.reserve(values.size());
    for (const Value value : values)
        places.push_back(static_cast<std::uint32_t>(std::ranges::lower_bound(order, value) - order.begin()));
    return places;
}

// What the rows hold in one column, one text behind the other in one piece of memory.
class ColumnTexts {
public:
    ColumnTexts(const Column& column, i16 col, std::size_t rowCount)
        : column_(column)
        , col_(col)
    {
        ends_.reserve(rowCount);
    }

    void Take(const CellBlock& cells)
    {
        const Cell& cell = cells.At(col_);
        pool_ += column_.SortUseKey ? cell.Key() : cell.TextView(scratch_);
        ends_.push_back(pool_.size());
    }

    Places PlacesOfRows(const Locale& locale)
    {
        switch (column_.SortType) {
        case vxAlphaNum:
            ToLower(pool_, locale);
            return TextRanks(Views(), locale);
        case vxNumeric:
            return PlacesByValue(NumberOrZero, locale);
        case vxDate:
            return PlacesByValue(DateIn, locale);
        default:
            return Places(ends_.size());
        }
    }

    bool IsDescending() const { return column_.SortCriteria == vxDesc; }

private:
    // Each different text is parsed once.
    Places PlacesByValue(double (*parse)(std::u16string_view, const Locale&), const Locale& locale) const
    {
        const DistinctTexts distinct(Views());
        std::vector<double> values;
        values.reserve(distinct.texts.size());
        for (const std::u16string_view text : distinct.texts)
            values.push_back(parse(text, locale));
        const Places placesOfTexts = PlacesOf(values);
        Places places;
        places.reserve(ends_.size());
        for (const std::uint32_t number : distinct.numberOf)
            places.push_back(placesOfTexts[number]);
        return places;
    }

    std::vector<std::u16string_view> Views() const
    {
        std::vector<std::u16string_view> views;
        views.reserve(ends_.size());
        std::size_t begin = 0;
        for (const std::size_t end : ends_)
            views.push_back(std::u16string_view(pool_).substr(std::exchange(begin, end), end - begin));
        return views;
    }

    const Column& column_;
    i16 col_;
    std::u16string scratch_;
    std::u16string pool_;
    std::vector<std::size_t> ends_;
};

// Each column once: where it comes again, rows that it can tell apart have been told apart. All are read in one walk
// over the rows.
std::vector<ColumnTexts> ReadTexts(const GridStore& store, std::span<const i16> cols)
{
    const auto rowCount = static_cast<std::size_t>(store.Rows());
    std::vector<bool> isKnown(static_cast<std::size_t>(store.MaxCol()) + 1);
    std::vector<ColumnTexts> columns;
    for (const i16 col : cols) {
        const Column& column = store.ColumnAt(col);
        if (!isKnown[static_cast<std::size_t>(col)])
            columns.emplace_back(column, col, rowCount);
        isKnown[static_cast<std::size_t>(col)] = true;
    }
    for (int row = store.FixedRows(); row < store.MaxRow(); ++row)
        for (ColumnTexts& column : columns)
            column.Take(store.RowAt(row).Cells);
    return columns;
}

// A row's places in several columns, one above the other in the bits of one number.
class PackedPlaces {
public:
    explicit PackedPlaces(std::size_t rowCount)
        : numbers_(rowCount)
    {
    }

    // Of a column less significant than those before.
    void Append(const Places& places, bool isDescending)
    {
        const std::uint32_t last = *std::ranges::max_element(places);
        const auto bits = static_cast<int>(std::bit_width(last));
        if (usedBits_ + bits > std::numeric_limits<std::uint64_t>::digits)
            Condense();
        for (std::size_t row = 0; row < numbers_.size(); ++row)
            numbers_[row] = numbers_[row] << bits | (isDescending ? last - places[row] : places[row]);
        usedBits_ += bits;
    }

    std::uint64_t operator[](std::size_t row) const { return numbers_[row]; }

private:
    // The order alone needs no more bits than the number of rows.
    void Condense()
    {
        const Places places = PlacesOf(numbers_);
        numbers_.assign(places.begin(), places.end());
        usedBits_ = static_cast<int>(std::bit_width(*std::ranges::max_element(numbers_)));
    }

    std::vector<std::uint64_t> numbers_;
    int usedBits_ = 0;
};

} // namespace

std::vector<RowSortKey> SortKeysOf(const GridStore& store, std::span<const i16> cols, const Locale& locale)
{
    if (store.Rows() == 0)
        return {};
    return OrOutOfMemory([&] {
        std::vector<RowSortKey> rows(static_cast<std::size_t>(store.Rows()));
        PackedPlaces packed(rows.size());
        for (ColumnTexts& column : ReadTexts(store, cols))
            packed.Append(column.PlacesOfRows(locale), column.IsDescending());
        for (std::size_t row = 0; row < rows.size(); ++row)
            rows[row] = { packed[row], ToI16(store.FixedRows() + static_cast<int>(row)) };
        return rows;
    });
}

} // namespace vornix
