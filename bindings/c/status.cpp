#include "status.h"

#include <cstring>
#include <map>
#include <string>

namespace vornix::c {

namespace {

constexpr std::size_t LongestText = 1024;

// Without a destructor, so that it is there until the last moment of the thread.
thread_local char lastError[LongestText] = "";

// Cut where a character begins.
std::size_t CutLength(const char* text, std::size_t length)
{
    if (length < LongestText)
        return length;
    length = LongestText - 1;
    while (length > 0 && (static_cast<unsigned char>(text[length]) & 0xC0) == 0x80)
        --length;
    return length;
}

std::map<int, std::string> MakeDescriptions()
{
    std::map<int, std::string> texts {
        { FileError::NotFound, "File not found" },
        { FileError::AccessFailed, "Path/File access error" },
        { FileError::InvalidPicture, "Invalid picture" },
    };
    for (const int number : { 5, 6, 7, 9, 13, 94, 438, 445, 448, 450 })
        texts.emplace(number, AutomationError(number).Description());
    return texts;
}

const char* FindDescription(int number)
{
    // Never destroyed: handed out for as long as the program runs.
    static const auto* const texts = new std::map<int, std::string>(MakeDescriptions());
    const auto found = texts->find(number);
    return found == texts->end() ? "Automation error" : found->second.c_str();
}

} // namespace

std::int32_t Fail(int number, const char* text) noexcept
{
    const std::size_t length = CutLength(text, std::strlen(text));
    std::memmove(lastError, text, length);
    lastError[length] = 0;
    return number;
}

const char* Description(int number) noexcept
{
    try {
        return FindDescription(number);
    } catch (const std::bad_alloc&) {
        return "Automation error";
    }
}

void Raise(int number)
{
    throw AutomationError(number, Description(number));
}

void Raise(int number, const char* text)
{
    throw AutomationError(number, text);
}

void Require(const void* pointer)
{
    if (pointer == nullptr)
        Raise(ErrorNumber::InvalidArgument, "A null pointer where something must be given");
}

} // namespace vornix::c

const char* vornix_version(void)
{
    return VORNIX_VERSION_TEXT;
}

const char* vornix_last_error(void)
{
    return vornix::c::lastError;
}

const char* vornix_error_description(std::int32_t number)
{
    return vornix::c::Description(number);
}
