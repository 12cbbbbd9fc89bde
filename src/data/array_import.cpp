#include "data/array_import.h"

#include "automation/checked.h"

namespace vornix {

ArrayShape ShapeOf(const VariantArray& array)
{
    if (array.columns.empty())
        return {};
    const std::size_t records = array.columns.front().size();
    for (const std::vector<Variant>& column : array.columns)
        if (column.size() != records)
            RaiseError(ErrorNumber::SubscriptOutOfRange);
    return { ToI32(static_cast<std::int64_t>(array.columns.size())), ToI32(static_cast<std::int64_t>(records)) };
}

namespace {

const Variant& ElementAt(const VariantArray& array, int col, int record)
{
    const int columns = static_cast<int>(array.columns.size());
    const std::vector<Variant>& column = array.columns[static_cast<std::size_t>(CheckedIndex(col, columns))];
    return column[static_cast<std::size_t>(CheckedIndex(record, static_cast<int>(column.size())))];
}

} // namespace

void WriteArray(GridStore& store, const VariantArray& array, ArrayShape shape, CellIndex first, NullElements nulls,
    const Locale& locale)
{
    std::u16string scratch;
    for (int record = 0; record < shape.records; ++record) {
        for (int col = 0; col < shape.columns; ++col) {
            const Variant& element = ElementAt(array, col, record);
            if (nulls == NullElements::Skip && element.IsNull())
                continue;
            const std::u16string_view text = OrOutOfMemory([&] { return element.ViewText(scratch, locale); });
            store.EditCell(first.row + record, first.col + col).SetText(text);
        }
    }
}

} // namespace vornix
