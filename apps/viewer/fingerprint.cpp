#include "fingerprint.h"

#include <cstring>

namespace vornix::viewer {

void Fingerprint::Add(std::string_view bytes)
{
    length_ += bytes.size();
    while (!bytes.empty()) {
        if (waitingBytes_ == 0 && bytes.size() >= sizeof(std::uint64_t)) {
            std::uint64_t word = 0;
            std::memcpy(&word, bytes.data(), sizeof word);
            Mix(word);
            bytes.remove_prefix(sizeof word);
            continue;
        }
        waiting_ |= std::uint64_t(static_cast<unsigned char>(bytes.front())) << (8 * waitingBytes_);
        bytes.remove_prefix(1);
        if (++waitingBytes_ < sizeof waiting_)
            continue;
        Mix(waiting_);
        waiting_ = 0;
        waitingBytes_ = 0;
    }
}

std::uint64_t Fingerprint::Value() const
{
    Fingerprint ended = *this;
    ended.Mix(waiting_);
    ended.Mix(length_);
    return ended.state_;
}

// Both steps can be undone, so that no word is ever lost on the way.
void Fingerprint::Mix(std::uint64_t word)
{
    state_ = (state_ ^ word) * 0xFF51AFD7ED558CCD;
    state_ ^= state_ >> 32;
}

} // namespace vornix::viewer
