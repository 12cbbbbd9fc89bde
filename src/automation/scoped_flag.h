// A flag that is set for a scope.
#pragma once

namespace vornix {

class ScopedFlag {
public:
    explicit ScopedFlag(bool& flag)
        : flag_(flag)
    {
        flag_ = true;
    }
    ~ScopedFlag() { flag_ = false; }
    ScopedFlag(const ScopedFlag&) = delete;
    ScopedFlag& operator=(const ScopedFlag&) = delete;

private:
    bool& flag_;
};

} // namespace vornix
