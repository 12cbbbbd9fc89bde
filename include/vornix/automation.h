// What a host passes and gets: errors, and values of any type.
#pragma once

#include "vornix/platform/locale.h"
#include "vornix/types.h"

#include <cstdint>
#include <exception>
#include <memory>
#include <string>
#include <string_view>
#include <type_traits>
#include <variant>
#include <vector>

namespace vornix {

// Numbers of the errors that members raise.
namespace ErrorNumber {
inline constexpr int InvalidArgument = 5;
inline constexpr int Overflow = 6;
inline constexpr int OutOfMemory = 7;
inline constexpr int SubscriptOutOfRange = 9;
inline constexpr int TypeMismatch = 13;
inline constexpr int InvalidUseOfNull = 94;
inline constexpr int NoSuchMember = 438;
inline constexpr int ActionNotSupported = 445;
inline constexpr int NamedArgumentNotFound = 448;
inline constexpr int WrongArgumentCount = 450;
} // namespace ErrorNumber

// A failure as the automation interface reports it.
class AutomationError : public std::exception {
public:
    // With the standard description of the number.
    explicit AutomationError(int number);
    AutomationError(int number, std::string description);

    int Number() const noexcept { return number_; }
    const std::string& Description() const noexcept { return description_; }
    const char* what() const noexcept override { return description_.c_str(); }

private:
    int number_;
    std::string description_;
};

enum class VariantType : u8 {
    Empty,
    Null,
    I16,
    I32,
    I64,
    Single,
    Double,
    Currency,
    Decimal,
    Date,
    Boolean,
    Text,
    Missing,
    Font,
    Picture,
    Object,
    Array
};

// An exact decimal number: (high * 2^64 + low) / 10^scale. The scale is 0 to 28.
struct DecimalValue {
    std::uint64_t low = 0;
    u32 high = 0;
    u8 scale = 0;
    bool negative = false;
    friend bool operator==(const DecimalValue&, const DecimalValue&) = default;
};

struct VariantArray;
// An object that passes through unseen.
using ObjectPtr = std::shared_ptr<void>;
using ArrayPtr = std::shared_ptr<const VariantArray>;

// A value of the interface. Conversions are those of the automation interface: error 6 for a value out of range, 13 for
// one that has no such form, 94 for null. Texts are read and written in the locale given.
class Variant {
public:
    Variant() = default;
    Variant(i16 value);
    Variant(i32 value);
    Variant(std::int64_t value);
    Variant(float value);
    Variant(double value);
    template <typename Bool>
    requires std::is_same_v<Bool, bool> Variant(Bool value)
        : Variant(VariantType::Boolean, Storage(static_cast<std::int64_t>(value ? -1 : 0)))
    {
    }
    Variant(std::u16string value);
    Variant(std::u16string_view value);
    Variant(const char16_t* value);
    // An empty pointer is "no font", "no picture".
    Variant(FontPtr value);
    Variant(PicturePtr value);

    static Variant Null();
    // An optional argument left out.
    static Variant Missing();
    // Ten-thousandths.
    static Variant FromCurrency(std::int64_t scaled);
    // Error 5 for a scale beyond 28.
    static Variant FromDecimal(const DecimalValue& value);
    // Days since 30 December 1899.
    static Variant FromDate(double days);
    static Variant FromObject(ObjectPtr object);
    static Variant FromArray(ArrayPtr array);

    VariantType Type() const { return type_; }
    bool IsEmpty() const { return type_ == VariantType::Empty; }
    bool IsNull() const { return type_ == VariantType::Null; }
    bool IsMissing() const { return type_ == VariantType::Missing; }

    i16 ToI16(const Locale& locale = BuiltinLocale()) const;
    i32 ToI32(const Locale& locale = BuiltinLocale()) const;
    std::int64_t ToI64(const Locale& locale = BuiltinLocale()) const;
    float ToSingle(const Locale& locale = BuiltinLocale()) const;
    double ToDouble(const Locale& locale = BuiltinLocale()) const;
    bool ToBool(const Locale& locale = BuiltinLocale()) const;
    std::u16string ToText(const Locale& locale = BuiltinLocale()) const;
    // The same without a copy where the value is a text: a view of it, otherwise of `scratch`.
    std::u16string_view ViewText(std::u16string& scratch, const Locale& locale = BuiltinLocale()) const;
    double ToDate(const Locale& locale = BuiltinLocale()) const;
    // Ten-thousandths.
    std::int64_t ToCurrency(const Locale& locale = BuiltinLocale()) const;
    DecimalValue ToDecimal(const Locale& locale = BuiltinLocale()) const;
    // A colour is a 32-bit pattern: both 0x80000005 and its negative reading are taken.
    OleColor ToColor(const Locale& locale = BuiltinLocale()) const;

    // Empty and null give no font, no picture, no object; anything of another type is error 13.
    FontPtr ToFont() const;
    PicturePtr ToPicture() const;
    ObjectPtr ToObject() const;
    // Error 13 when it is no array; never null.
    ArrayPtr ToArrayPtr() const;
    const VariantArray& ToArray() const;

    // Same type and same value; nothing is converted.
    friend bool operator==(const Variant&, const Variant&) = default;

private:
    // Every integer, boolean and currency is held in 64 bits, every float as a double.
    using Storage = std::variant<std::monostate, std::int64_t, double, DecimalValue, std::u16string, FontPtr,
        PicturePtr, ObjectPtr, ArrayPtr>;

    Variant(VariantType type, Storage value);

    bool IsInteger() const;
    bool IsFloat() const;
    [[noreturn]] void RaiseMismatch() const;

    // Its padding holds the type.
    [[no_unique_address]] Storage value_;
    VariantType type_ = VariantType::Empty;
};

// A table: element [c][r] is record r of column c.
struct VariantArray {
    std::vector<std::vector<Variant>> columns;
};

} // namespace vornix
