// How failures leave the library: as a number, with a text that stays for the thread.
#pragma once

#include "vornix/automation.h"
#include "vornix/vornix_c.h"

#include <cxxabi.h>
#include <exception>
#include <new>
#include <stdexcept>
#include <utility>

namespace vornix::c {

// Numbers that files have; the core has none of them.
namespace FileError {
inline constexpr int NotFound = 53;
inline constexpr int AccessFailed = 75;
inline constexpr int InvalidPicture = 481;
} // namespace FileError

// Keeps the text for vornix_last_error and gives the number back. Texts that are too long are cut.
std::int32_t Fail(int number, const char* text) noexcept;
// What an error number says.
const char* Description(int number) noexcept;

[[noreturn]] void Raise(int number);
[[noreturn]] void Raise(int number, const char* text);
// A pointer that must be given: error 5 without it.
void Require(const void* pointer);

// Runs the body of an exported function. Whatever it throws becomes a status, except the unwinding of a thread that
// ends, which must go on.
template <typename Body> std::int32_t Guarded(Body&& body)
{
    try {
        std::forward<Body>(body)();
        return 0;
    } catch (const AutomationError& error) {
        return Fail(error.Number(), error.Description().c_str());
    } catch (const std::bad_alloc&) {
        return Fail(ErrorNumber::OutOfMemory, Description(ErrorNumber::OutOfMemory));
    } catch (const std::length_error&) {
        return Fail(ErrorNumber::OutOfMemory, Description(ErrorNumber::OutOfMemory));
    } catch (const std::exception& error) {
        return Fail(ErrorNumber::InvalidArgument, error.what());
    } catch (const abi::__forced_unwind&) {
        throw;
    } catch (...) {
        return Fail(ErrorNumber::InvalidArgument, Description(ErrorNumber::InvalidArgument));
    }
}

} // namespace vornix::c
