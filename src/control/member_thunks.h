// Makes thunks of late binding out of pointers to a control's members: arguments become the types that the member
// takes, what it gives becomes a value.
#pragma once

#include "vornix/automation.h"

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <tuple>
#include <type_traits>
#include <utility>

namespace vornix {

// Takes pointers to members of exactly one signature: with other arguments, or another result, nothing compiles.
template <typename Control, typename Function> struct Signature;

template <typename Control, typename Result, typename... Parameters> struct Signature<Control, Result(Parameters...)> {
    using Member = Result (Control::*)(Parameters...);
    using ConstMember = Result (Control::*)(Parameters...) const;

    static constexpr ConstMember Getter(ConstMember member) { return member; }
    static constexpr Member Method(Member member) { return member; }
    static constexpr ConstMember Method(ConstMember member) { return member; }
};

// An argument as its member takes it, from the value that was given.
template <typename Value> Value FromVariant(const Variant& given, const Locale& locale) = delete;

template <> inline i16 FromVariant<i16>(const Variant& given, const Locale& locale)
{
    return given.ToI16(locale);
}
template <> inline i32 FromVariant<i32>(const Variant& given, const Locale& locale)
{
    return given.ToI32(locale);
}
template <> inline float FromVariant<float>(const Variant& given, const Locale& locale)
{
    return given.ToSingle(locale);
}
template <> inline bool FromVariant<bool>(const Variant& given, const Locale& locale)
{
    return given.ToBool(locale);
}
template <> inline std::u16string FromVariant<std::u16string>(const Variant& given, const Locale& locale)
{
    return given.ToText(locale);
}
template <> inline OleColor FromVariant<OleColor>(const Variant& given, const Locale& locale)
{
    return given.ToColor(locale);
}
template <> inline std::intptr_t FromVariant<std::intptr_t>(const Variant& given, const Locale& locale)
{
    if constexpr (sizeof(std::intptr_t) == sizeof(i32))
        return static_cast<std::intptr_t>(given.ToI32(locale));
    else
        return static_cast<std::intptr_t>(given.ToI64(locale));
}
template <> inline FontPtr FromVariant<FontPtr>(const Variant& given, const Locale& /*locale*/)
{
    return given.ToFont();
}
template <> inline PicturePtr FromVariant<PicturePtr>(const Variant& given, const Locale& /*locale*/)
{
    return given.ToPicture();
}
template <> inline ObjectPtr FromVariant<ObjectPtr>(const Variant& given, const Locale& /*locale*/)
{
    return given.ToObject();
}

// What a member gives, as a value. A colour is the number that it is written as, never negative; devices and windows are
// 64-bit numbers.
template <typename Value> Variant IntoVariant(Value&& value)
{
    using Plain = std::remove_cvref_t<Value>;
    if constexpr (std::is_same_v<Plain, OleColor> || std::is_same_v<Plain, std::intptr_t>)
        return Variant(static_cast<std::int64_t>(value));
    else if constexpr (std::is_same_v<Plain, ObjectPtr>)
        return Variant::FromObject(std::forward<Value>(value));
    else
        return Variant(std::forward<Value>(value));
}

// One argument on its way into a member and, by reference, back.
template <typename Parameter> class Passed {
    using Value = std::conditional_t<std::is_same_v<Parameter, std::u16string_view>, std::u16string,
        std::remove_cvref_t<Parameter>>;
    static constexpr bool IsByReference
        = std::is_lvalue_reference_v<Parameter> && !std::is_const_v<std::remove_reference_t<Parameter>>;

public:
    Passed(Variant& given, const Locale& locale)
        : given_(&given)
        , value_(FromVariant<Value>(given, locale))
    {
    }
    Value& Get() { return value_; }
    void GiveBack()
    {
        if constexpr (IsByReference)
            *given_ = IntoVariant(std::move(value_));
    }

private:
    Variant* given_;
    Value value_;
};

// Arrays and values of any type are taken as they were given, and held while the member runs: a host may write over the
// given one meanwhile.
template <> class Passed<const VariantArray&> {
public:
    Passed(Variant& given, const Locale& /*locale*/)
        : array_(given.ToArrayPtr())
    {
    }
    const VariantArray& Get() { return *array_; }
    void GiveBack() { }

private:
    ArrayPtr array_;
};

template <> class Passed<const Variant&> {
public:
    Passed(Variant& given, const Locale& /*locale*/)
        : given_(given)
    {
    }
    const Variant& Get() { return given_; }
    void GiveBack() { }

private:
    Variant given_;
};

template <typename Control, auto member> class Thunk {
public:
    static Variant Call(Control& control, std::span<Variant> arguments, const Locale& locale)
    {
        return Step(control, arguments, locale, member);
    }

private:
    template <typename Result, typename... Parameters>
    static Variant Step(
        Control& control, std::span<Variant> arguments, const Locale& locale, Result (Control::*)(Parameters...))
    {
        return Step<Result, Parameters...>(control, arguments, locale, std::index_sequence_for<Parameters...>());
    }

    template <typename Result, typename... Parameters>
    static Variant Step(
        Control& control, std::span<Variant> arguments, const Locale& locale, Result (Control::*)(Parameters...) const)
    {
        return Step<Result, Parameters...>(control, arguments, locale, std::index_sequence_for<Parameters...>());
    }

    template <typename Result, typename... Parameters, std::size_t... place>
    static Variant Step(Control& control, [[maybe_unused]] std::span<Variant> arguments,
        [[maybe_unused]] const Locale& locale, std::index_sequence<place...> /*places*/)
    {
        // In braces the arguments are converted from left to right, so that the first bad one makes the error.
        [[maybe_unused]] std::tuple<Passed<Parameters>...> passed { Passed<Parameters>(arguments[place], locale)... };
        if constexpr (std::is_void_v<Result>) {
            (control.*member)(std::get<place>(passed).Get()...);
            (std::get<place>(passed).GiveBack(), ...);
            return Variant();
        } else {
            Variant result = IntoVariant((control.*member)(std::get<place>(passed).Get()...));
            (std::get<place>(passed).GiveBack(), ...);
            return result;
        }
    }
};

} // namespace vornix
