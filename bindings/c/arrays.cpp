// Tables that callers fill, a value or a whole column at a time.
#include "handles.h"
#include "status.h"
#include "values.h"

#include <atomic>
#include <limits>
#include <numeric>
#include <span>

namespace vornix::c {

namespace {

constexpr std::uint32_t NullLength = std::numeric_limits<std::uint32_t>::max();
// More elements than any machine holds are refused before memory is asked for them.
constexpr std::size_t MostElements = std::size_t { 1 } << 40;

void CheckSize(std::size_t columns, std::size_t records)
{
    if (columns > MostElements || (columns > 0 && records > MostElements / columns))
        throw std::bad_alloc();
}

// The table for writing. A grid may still read the one that it was given: it keeps that, and this one goes on.
VariantArray& WritableTable(vornix_array& array)
{
    if (array.table.use_count() > 1)
        array.table = std::make_shared<VariantArray>(*array.table);
    else
        std::atomic_thread_fence(std::memory_order_acquire);
    return *array.table;
}

void CheckColumn(const vornix_array& array, std::size_t column)
{
    if (column >= array.table->columns.size())
        Raise(ErrorNumber::SubscriptOutOfRange);
}

void CheckWholeColumn(const vornix_array& array, std::size_t column, std::size_t count, const void* data)
{
    CheckColumn(array, column);
    if (count != array.records)
        Raise(ErrorNumber::InvalidArgument, "A column takes as many values as the array has records");
    if (count > 0)
        Require(data);
}

// The column is built aside, so that a value that fails leaves the array as it was.
template <typename Make> void SetColumn(vornix_array& array, std::size_t column, const Make& make)
{
    std::vector<Variant> values;
    values.reserve(array.records);
    for (std::size_t record = 0; record < array.records; ++record)
        values.push_back(make(record));
    WritableTable(array).columns[column] = std::move(values);
}

// Tables within tables would be of no use to a grid, and have no end to their depth.
Variant ToElement(const vornix_value& value)
{
    if (value.type == VORNIX_ARRAY)
        Raise(ErrorNumber::TypeMismatch, "An array cannot be an element of an array");
    return ToVariant(value);
}

void AppendCodePoint(std::u16string& text, std::uint32_t codePoint)
{
    if (codePoint > 0x10FFFF)
        Raise(ErrorNumber::InvalidArgument, "A number beyond the last code point");
    if (codePoint < 0x10000) {
        text.push_back(static_cast<char16_t>(codePoint));
        return;
    }
    text.push_back(static_cast<char16_t>(0xD7C0 + (codePoint >> 10)));
    text.push_back(static_cast<char16_t>(0xDC00 + (codePoint & 0x3FF)));
}

std::u16string ToUtf16(std::span<const std::uint32_t> codePoints)
{
    if (codePoints.size() > LongestText)
        throw std::bad_alloc();
    std::u16string text;
    text.reserve(codePoints.size());
    for (const std::uint32_t codePoint : codePoints)
        AppendCodePoint(text, codePoint);
    return text;
}

std::size_t SumOfLengths(std::span<const std::uint32_t> lengths)
{
    return std::accumulate(lengths.begin(), lengths.end(), std::size_t { 0 },
        [](std::size_t sum, std::uint32_t length) { return length == NullLength ? sum : sum + length; });
}

void SetTexts(vornix_array& array, std::size_t column, std::span<const std::uint32_t> codePoints,
    std::span<const std::uint32_t> lengths)
{
    if (SumOfLengths(lengths) != codePoints.size())
        Raise(ErrorNumber::InvalidArgument, "The lengths do not add up to the number of code points");
    std::size_t next = 0;
    SetColumn(array, column, [&](std::size_t record) {
        const std::uint32_t length = lengths[record];
        if (length == NullLength)
            return Variant::Null();
        next += length;
        return Variant(ToUtf16(codePoints.subspan(next - length, length)));
    });
}

void CheckType(bool isOne)
{
    if (!isOne)
        Raise(ErrorNumber::TypeMismatch, "A type that these values do not have");
}

bool IsIntegerType(std::int32_t type)
{
    return type == VORNIX_I16 || type == VORNIX_I32 || type == VORNIX_I64 || type == VORNIX_CURRENCY
        || type == VORNIX_BOOLEAN;
}

bool IsNumberType(std::int32_t type)
{
    return type == VORNIX_SINGLE || type == VORNIX_DOUBLE || type == VORNIX_DATE;
}

// Elements of one type; `held` is where a value keeps it.
template <typename Number, typename Held>
void SetNumbers(vornix_array& array, std::size_t column, std::int32_t type, const Number* numbers, std::size_t count,
    const Held& held)
{
    CheckWholeColumn(array, column, count, numbers);
    vornix_value value {};
    value.type = static_cast<std::uint16_t>(type);
    SetColumn(array, column, [&](std::size_t record) {
        held(value) = numbers[record];
        return ToVariant(value);
    });
}

} // namespace

} // namespace vornix::c

using namespace vornix;
using namespace vornix::c;

std::int32_t vornix_array_create(std::size_t columns, std::size_t records, vornix_array** array)
{
    return Guarded([&] {
        Require(array);
        CheckSize(columns, records);
        auto made = std::make_unique<vornix_array>();
        made->table = std::make_shared<VariantArray>();
        made->table->columns.resize(columns);
        for (std::vector<Variant>& column : made->table->columns)
            column.resize(records);
        made->records = records;
        *array = made.release();
    });
}

void vornix_array_retain(vornix_array* array)
{
    if (array != nullptr)
        array->Retain();
}

void vornix_array_release(vornix_array* array)
{
    ReleaseHandle(array);
}

std::int32_t vornix_array_set(vornix_array* array, std::size_t column, std::size_t record, const vornix_value* value)
{
    return Guarded([&] {
        Require(array);
        Require(value);
        CheckColumn(*array, column);
        if (record >= array->records)
            Raise(ErrorNumber::SubscriptOutOfRange);
        Variant element = ToElement(*value);
        WritableTable(*array).columns[column][record] = std::move(element);
    });
}

std::int32_t vornix_array_set_texts(vornix_array* array, std::size_t column, const std::uint32_t* code_points,
    std::size_t code_point_count, const std::uint32_t* lengths, std::size_t count)
{
    return Guarded([&] {
        Require(array);
        CheckWholeColumn(*array, column, count, lengths);
        if (code_point_count > 0)
            Require(code_points);
        SetTexts(*array, column, { code_points, code_point_count }, { lengths, count });
    });
}

std::int32_t vornix_array_set_integers(
    vornix_array* array, std::size_t column, std::int32_t type, const std::int64_t* integers, std::size_t count)
{
    return Guarded([&] {
        Require(array);
        CheckType(IsIntegerType(type));
        SetNumbers(
            *array, column, type, integers, count, [](vornix_value & value) -> auto& { return value.as.integer; });
    });
}

std::int32_t vornix_array_set_numbers(
    vornix_array* array, std::size_t column, std::int32_t type, const double* numbers, std::size_t count)
{
    return Guarded([&] {
        Require(array);
        CheckType(IsNumberType(type));
        SetNumbers(
            *array, column, type, numbers, count, [](vornix_value & value) -> auto& { return value.as.number; });
    });
}

std::int32_t vornix_array_set_values(
    vornix_array* array, std::size_t column, const vornix_value* values, std::size_t count)
{
    return Guarded([&] {
        Require(array);
        CheckWholeColumn(*array, column, count, values);
        SetColumn(*array, column, [&](std::size_t record) { return ToElement(values[record]); });
    });
}
