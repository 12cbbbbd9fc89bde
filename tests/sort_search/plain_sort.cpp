#include "sort_search/plain_sort.h"

#include "automation/checked.h"
#include "automation/text_compare.h"
#include "automation/text_conversions.h"

#include <map>
#include <string>

namespace vornix {

namespace {

struct PlainKey {
    int sourceRow = 0;
    std::vector<std::u16string> keys; // one-based
};

class PlainSorter {
public:
    PlainSorter(GridStore& store, std::span<const i16> cols, const Locale& locale)
        : store_(store)
        , cols_(cols)
        , locale_(locale)
        , count_(static_cast<int>(cols.size()))
        , rows_(store.FixedRows())
        , last_(store.FixedRows() + store.Rows() - 1)
    {
    }

    std::vector<int> Run()
    {
        BuildKeys();
        ShellSort();
        return Move();
    }

private:
    const Column& ColumnOf(int k) const { return store_.ColumnAt(cols_[static_cast<std::size_t>(k - 1)]); }

    std::u16string KeyText(int row, int k) const
    {
        const Cell& cell = store_.CellAt(row, cols_[static_cast<std::size_t>(k - 1)]);
        const std::u16string source = ColumnOf(k).SortUseKey ? std::u16string(cell.Key()) : cell.Text();
        switch (ColumnOf(k).SortType) {
        case vxAlphaNum: {
            std::u16string lower;
            for (const char16_t unit : source)
                lower += locale_.ToLower(unit);
            return lower;
        }
        case vxNumeric:
            return IsNumeric(source, locale_) ? source : u"0";
        case vxDate:
            return IsDate(source, locale_) ? source : u"0000-01-01";
        default:
            return u"";
        }
    }

    void BuildKeys()
    {
        for (int row = rows_; row <= last_; ++row) {
            PlainKey key { row, std::vector<std::u16string>(static_cast<std::size_t>(count_ + 1)) };
            for (int k = 1; k <= count_; ++k)
                key.keys[static_cast<std::size_t>(k)] = KeyText(row, k);
            entries_[row] = key;
        }
    }

    // The text for what is no date is earlier than all dates.
    double DateOf(const std::u16string& text) const { return text == u"0000-01-01" ? -1e9 : TextToDate(text, locale_); }

    bool CompareRowToPivot(int i) const
    {
        for (int k = 1; k <= count_; ++k) {
            const std::u16string& a = entries_.at(i).keys[static_cast<std::size_t>(k)];
            const std::u16string& b = pivot_.keys[static_cast<std::size_t>(k)];
            const bool descending = ColumnOf(k).SortCriteria == vxDesc;
            if (ColumnOf(k).SortType == vxNumeric) {
                if (a.empty())
                    return descending;
                if (b.empty())
                    return !descending;
                const double x = TextToR8(a, locale_);
                const double y = TextToR8(b, locale_);
                if (x != y)
                    return descending ? x < y : x > y;
            } else if (ColumnOf(k).SortType == vxDate) {
                const double x = DateOf(a);
                const double y = DateOf(b);
                if (x != y)
                    return descending ? x < y : x > y;
            } else if (ColumnOf(k).SortType == vxAlphaNum) {
                int result = CompareTextNoCase(a.substr(0, 3), b.substr(0, 3), locale_);
                if (result != 0)
                    return descending ? result < 0 : result > 0;
                result = CompareTextNoCase(a, b, locale_);
                if (result != 0)
                    return descending ? result < 0 : result > 0;
            }
        }
        return false;
    }

    void ShellSort()
    {
        i16 h = 1;
        do
            h = ToI16(3 * h + 1);
        while (!(h > store_.Rows()));
        do {
            h = ToI16(h / 3);
            for (int i = ToI16(rows_ + h); i <= last_; ++i) {
                pivot_ = entries_[i];
                if (!CompareRowToPivot(i - h))
                    continue;
                const PlainKey saved = entries_[i];
                int j = i - h;
                while (j >= rows_ && CompareRowToPivot(j)) {
                    entries_[j + h] = entries_[j];
                    j -= h;
                }
                entries_[j + h] = saved;
            }
        } while (h != 1);
    }

    std::vector<int> Move()
    {
        std::vector<int> places;
        for (int row = 0; row <= last_; ++row)
            places.push_back(row);
        const auto copy = [&](int target, int source) {
            places[static_cast<std::size_t>(target)] = places[static_cast<std::size_t>(source)];
            store_.RowAt(target) = store_.RowAt(source);
        };
        for (int i = rows_; i <= last_; ++i) {
            int j = entries_[i].sourceRow;
            if (j < 0)
                continue;
            const Row saved = store_.RowAt(i);
            const int savedPlace = places[static_cast<std::size_t>(i)];
            copy(i, j);
            entries_[i].sourceRow = -1;
            int n = entries_[j].sourceRow;
            while (n > i) {
                copy(j, n);
                entries_[j].sourceRow = -1;
                j = n;
                n = entries_[j].sourceRow;
            }
            store_.RowAt(j) = saved;
            places[static_cast<std::size_t>(j)] = savedPlace;
            entries_[j].sourceRow = -1;
        }
        return places;
    }

    GridStore& store_;
    std::span<const i16> cols_;
    const Locale& locale_;
    int count_;
    int rows_;
    int last_;
    std::map<int, PlainKey> entries_;
    PlainKey pivot_;
};

} // namespace

std::vector<int> PlainSort(GridStore& store, std::span<const i16> cols, const Locale& locale)
{
    return PlainSorter(store, cols, locale).Run();
}

} // namespace vornix
