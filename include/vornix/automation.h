// What a host meets when a call fails.
#pragma once

#include <exception>
#include <string>

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
    inline constexpr int WrongArgumentCount = 450;
}

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

} // namespace vornix
