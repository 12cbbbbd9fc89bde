// Random tables and keys: the sort leaves every row where the plain one leaves it.
#include "data/sort.h"
#include "fuzz_input.h"
#include "model/store_support.h"
#include "sort_search/plain_sort.h"

#include <algorithm>
#include <vector>

using namespace vornix;

namespace {

// Now and then the text of an earlier cell, so that rows are equal.
std::u16string NextText(fuzz::FuzzInput& input, std::vector<std::u16string>& seen)
{
    const int choice = input.Byte();
    if (!seen.empty() && choice % 4 != 0)
        return seen[static_cast<std::size_t>(choice) % seen.size()];
    seen.push_back(input.Text(12));
    return seen.back();
}

void Fill(fuzz::FuzzInput& input, GridStore& table, GridStore& twin)
{
    for (int col = 0; col < table.MaxCol(); ++col) {
        Column& column = table.ColumnAt(col);
        Column& same = twin.ColumnAt(col);
        column.SortType = same.SortType = input.Between(0, 3);
        column.SortCriteria = same.SortCriteria = input.Between(0, 2);
        column.SortUseKey = same.SortUseKey = input.Bool();
    }
    std::vector<std::u16string> seen;
    for (int row = 0; row < table.MaxRow(); ++row) {
        table.RowAt(row).RecordPos = twin.RowAt(row).RecordPos = row;
        for (int col = 0; col < table.MaxCol(); ++col) {
            const std::u16string text = NextText(input, seen);
            for (GridStore* const store : { &table, &twin }) {
                store->EditCell(row, col).SetText(text);
                store->EditCell(row, col).SetKey(text);
            }
        }
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    fuzz::FuzzInput input(data, size);
    const int rows = input.Between(0, 60);
    const int fixedRows = input.Between(0, 2);
    const int cols = input.Between(1, 4);
    const auto table = BuildStore(rows, cols, fixedRows, 0);
    const auto twin = BuildStore(rows, cols, fixedRows, 0);
    std::vector<i16> keys(static_cast<std::size_t>(input.Between(1, 4)));
    std::generate(keys.begin(), keys.end(), [&] { return static_cast<i16>(input.Between(0, cols - 1)); });
    Fill(input, *table, *twin);

    Spans spans(*table);
    HiddenLines hidden(*table);
    SortRows(*table, spans, hidden, keys, BuiltinLocale());
    PlainSort(*twin, keys);
    for (int row = 0; row < table->MaxRow(); ++row)
        fuzz::Require(table->RowAt(row).RecordPos == twin->RowAt(row).RecordPos, "the rows are in the plain order");
    return 0;
}
