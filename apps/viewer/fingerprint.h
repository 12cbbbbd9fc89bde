// A number that tells whether bytes are still the same.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace vornix::viewer {

// Notices what programs and people do to a file, not what somebody does who wants to go unnoticed. How the bytes were
// cut into pieces does not matter.
class Fingerprint {
public:
    void Add(std::string_view bytes);
    std::uint64_t Value() const;

private:
    void Mix(std::uint64_t word);

    std::uint64_t state_ = 0x9E3779B97F4A7C15;
    std::uint64_t length_ = 0;
    std::uint64_t waiting_ = 0; // bytes that do not make a word yet, the first one lowest
    unsigned waitingBytes_ = 0;
};

} // namespace vornix::viewer
