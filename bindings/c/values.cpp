#include "values.h"

#include "handles.h"
#include "status.h"

#include <cmath>
#include <cstdlib>
#include <cstring>
#include <limits>

namespace vornix::c {

namespace {

// The numbers of the two sides are the same, so that none has to be translated.
static_assert(VORNIX_EMPTY == static_cast<int>(VariantType::Empty) && VORNIX_NULL == static_cast<int>(VariantType::Null)
    && VORNIX_I16 == static_cast<int>(VariantType::I16) && VORNIX_I64 == static_cast<int>(VariantType::I64)
    && VORNIX_SINGLE == static_cast<int>(VariantType::Single)
    && VORNIX_DECIMAL == static_cast<int>(VariantType::Decimal) && VORNIX_DATE == static_cast<int>(VariantType::Date)
    && VORNIX_TEXT == static_cast<int>(VariantType::Text) && VORNIX_MISSING == static_cast<int>(VariantType::Missing)
    && VORNIX_FONT == static_cast<int>(VariantType::Font) && VORNIX_ARRAY == static_cast<int>(VariantType::Array));

template <typename Integer> Integer Narrow(std::int64_t value)
{
    if (value < std::numeric_limits<Integer>::min() || value > std::numeric_limits<Integer>::max())
        Raise(ErrorNumber::Overflow);
    return static_cast<Integer>(value);
}

float NarrowToSingle(double value)
{
    if (std::isfinite(value) && std::fabs(value) > static_cast<double>(std::numeric_limits<float>::max()))
        Raise(ErrorNumber::Overflow);
    return static_cast<float>(value);
}

Variant FromDecimal(const vornix_decimal& value)
{
    return Variant::FromDecimal({ value.low, value.high, value.scale, value.negative != 0 });
}

Variant FromArray(vornix_array* array)
{
    Require(array);
    return Variant::FromArray(array->table);
}

std::uint16_t* CopyUnits(const std::u16string& text)
{
    if (text.empty())
        return nullptr;
    const std::size_t bytes = text.size() * sizeof(char16_t);
    void* const memory = std::malloc(bytes);
    if (memory == nullptr)
        throw std::bad_alloc();
    return static_cast<std::uint16_t*>(std::memcpy(memory, text.data(), bytes));
}

vornix_array* NewArray(const Variant& value)
{
    auto array = std::make_unique<vornix_array>();
    // A copy, because the caller may write into what comes out.
    array->table = std::make_shared<VariantArray>(value.ToArray());
    array->records = array->table->columns.empty() ? 0 : array->table->columns.front().size();
    return array.release();
}

template <typename Handle, typename Pointer> Handle* NewHandle(Pointer Handle::*member, const Pointer& object)
{
    if (object == nullptr)
        return nullptr;
    auto handle = std::make_unique<Handle>();
    (*handle).*member = object;
    return handle.release();
}

// What the value holds in memory of its own.
void FillHeld(vornix_value& made, const Variant& value)
{
    switch (value.Type()) {
    case VariantType::Text: {
        const std::u16string text = value.ToText();
        made.as.text = { CopyUnits(text), text.size() };
        break;
    }
    case VariantType::Font:
        made.as.font = NewHandle(&vornix_font::font, value.ToFont());
        break;
    case VariantType::Picture:
        made.as.picture = NewHandle(&vornix_picture::picture, value.ToPicture());
        break;
    case VariantType::Object:
        made.as.object = NewHandle(&vornix_object::object, value.ToObject());
        break;
    default:
        made.as.array = NewArray(value);
        break;
    }
    made.owned = 1;
}

} // namespace

std::u16string ToText(const vornix_text& text)
{
    if (text.length == 0)
        return {};
    Require(text.data);
    if (text.length > LongestText)
        Raise(ErrorNumber::OutOfMemory, "The text is too long");
    std::u16string copy(text.length, u'\0');
    std::memcpy(copy.data(), text.data, text.length * sizeof(char16_t));
    return copy;
}

vornix_text ViewOf(std::u16string_view text)
{
    return { reinterpret_cast<const std::uint16_t*>(text.data()), text.size() };
}

Variant ToVariant(const vornix_value& value)
{
    switch (value.type) {
    case VORNIX_EMPTY:
        return {};
    case VORNIX_NULL:
        return Variant::Null();
    case VORNIX_I16:
        return Variant(Narrow<i16>(value.as.integer));
    case VORNIX_I32:
        return Variant(Narrow<i32>(value.as.integer));
    case VORNIX_I64:
        return Variant(value.as.integer);
    case VORNIX_SINGLE:
        return Variant(NarrowToSingle(value.as.number));
    case VORNIX_DOUBLE:
        return Variant(value.as.number);
    case VORNIX_CURRENCY:
        return Variant::FromCurrency(value.as.integer);
    case VORNIX_DECIMAL:
        return FromDecimal(value.as.decimal);
    case VORNIX_DATE:
        return Variant::FromDate(value.as.number);
    case VORNIX_BOOLEAN:
        return Variant(value.as.integer != 0);
    case VORNIX_TEXT:
        return Variant(ToText(value.as.text));
    case VORNIX_MISSING:
        return Variant::Missing();
    case VORNIX_FONT:
        return Variant(value.as.font == nullptr ? FontPtr() : value.as.font->font);
    case VORNIX_PICTURE:
        return Variant(value.as.picture == nullptr ? PicturePtr() : value.as.picture->picture);
    case VORNIX_OBJECT:
        return Variant::FromObject(value.as.object == nullptr ? ObjectPtr() : value.as.object->object);
    case VORNIX_ARRAY:
        return FromArray(value.as.array);
    default:
        Raise(ErrorNumber::TypeMismatch, "A value of an unknown type");
    }
}

vornix_value ToValue(const Variant& value)
{
    vornix_value made {};
    made.type = static_cast<std::uint16_t>(value.Type());
    switch (value.Type()) {
    case VariantType::Empty:
    case VariantType::Null:
    case VariantType::Missing:
        break;
    case VariantType::I16:
    case VariantType::I32:
    case VariantType::I64:
    case VariantType::Boolean:
        made.as.integer = value.ToI64();
        break;
    case VariantType::Currency:
        made.as.integer = value.ToCurrency();
        break;
    case VariantType::Single:
    case VariantType::Double:
    case VariantType::Date:
        made.as.number = value.ToDouble();
        break;
    case VariantType::Decimal: {
        const DecimalValue decimal = value.ToDecimal();
        made.as.decimal
            = { decimal.low, decimal.high, decimal.scale, static_cast<std::uint8_t>(decimal.negative ? 1 : 0) };
        break;
    }
    default:
        FillHeld(made, value);
        break;
    }
    return made;
}

} // namespace vornix::c

void vornix_value_clear(vornix_value* value)
{
    using vornix::c::ReleaseHandle;
    if (value == nullptr)
        return;
    if (value->owned == 1) {
        switch (value->type) {
        case VORNIX_TEXT:
            std::free(const_cast<std::uint16_t*>(value->as.text.data));
            break;
        case VORNIX_FONT:
            ReleaseHandle(value->as.font);
            break;
        case VORNIX_PICTURE:
            ReleaseHandle(value->as.picture);
            break;
        case VORNIX_OBJECT:
            ReleaseHandle(value->as.object);
            break;
        case VORNIX_ARRAY:
            ReleaseHandle(value->as.array);
            break;
        default:
            break;
        }
    }
    *value = vornix_value {};
}
