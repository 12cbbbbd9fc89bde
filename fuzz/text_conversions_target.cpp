// Texts to numbers, dates and truth values: errors 6 and 13 are the only way out, and the tests agree with them.
#include "automation/text_conversions.h"
#include "fuzz_input.h"
#include "vornix/automation.h"

#include <bit>
#include <cmath>

using namespace vornix;

namespace {

// 0 when the step gave a value.
template <typename Step> int ErrorOf(const Step& step)
{
    try {
        step();
    } catch (const AutomationError& error) {
        fuzz::Require(error.Number() == ErrorNumber::Overflow || error.Number() == ErrorNumber::TypeMismatch,
            "a conversion raises error 6 or 13");
        return error.Number();
    }
    return 0;
}

void CheckNumbers(const std::u16string& text)
{
    const bool isNumeric = IsNumeric(text);
    double value = 0;
    const int error = ErrorOf([&] { value = TextToR8(text); });
    fuzz::Require(isNumeric == (error == 0), "a number is what converts");
    const int narrow = ErrorOf([&] { static_cast<void>(TextToI2(text)); });
    const int wide = ErrorOf([&] { static_cast<void>(TextToI4(text)); });
    fuzz::Require(wide == 0 || narrow != 0, "what fits 16 bits fits 32");
    if (error == 0)
        fuzz::Require(std::isfinite(value), "a number is finite");
}

void CheckDates(const std::u16string& text)
{
    double day = 0;
    const int error = ErrorOf([&] { day = TextToDate(text); });
    if (IsDate(text))
        fuzz::Require(error == 0, "a date converts");
    if (error == 0)
        static_cast<void>(ErrorOf([&] { static_cast<void>(DateToText(day)); }));
}

void CheckRoundTrip(double value)
{
    if (!std::isfinite(value))
        return;
    const std::u16string text = NumberToText(value);
    double back = 0;
    if (ErrorOf([&] { back = TextToR8(text); }) != 0) {
        fuzz::Require(std::abs(value) > 1e308, "a number written down reads back");
        return;
    }
    // 15 digits.
    fuzz::Require(
        std::abs(back - value) <= std::abs(value) * 1e-14 || std::abs(value) < 1e-290, "a number reads back as it was");
    fuzz::Require(NumberToText(back) == text, "writing a number again gives the same text");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    fuzz::FuzzInput input(data, size);
    const std::uint64_t bits = input.DoubleWord() | static_cast<std::uint64_t>(input.DoubleWord()) << 32;
    const std::u16string text = input.Bool() ? input.Text(600) : input.Rest();
    CheckNumbers(text);
    CheckDates(text);
    static_cast<void>(ErrorOf([&] { static_cast<void>(TextToBool(text)); }));
    CheckRoundTrip(std::bit_cast<double>(bits));
    return 0;
}
