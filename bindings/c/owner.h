// The thread that a grid belongs to.
#pragma once

#include "vornix/vornix_c.h"

#include <atomic>
#include <memory>
#include <vector>

namespace vornix::c {

// One for each thread that makes grids: a thread's own number may be given to another thread once it has ended, this
// object's place is not while a grid refers to it.
class Owner {
public:
    // That of the calling thread, made on the first call. Error 5 on a thread that is ending.
    static std::shared_ptr<Owner> OfThread();
    // The same without making one: null on threads that have none.
    static Owner* Current() noexcept;

    // Another thread has ended one of the grids. Read without the lock, so that the question costs nothing.
    bool HasAbandoned() const { return hasAbandoned_.load(std::memory_order_relaxed); }

    // What follows is called under the lock of the grids' table alone.
    bool HasEnded() const { return hasEnded_; }
    void SetEnded() { hasEnded_ = true; }
    void Abandon(vornix_grid* grid);
    void Forget(vornix_grid* grid);
    const std::vector<vornix_grid*>& Abandoned() const { return abandoned_; }

private:
    std::atomic<bool> hasAbandoned_ { false };
    bool hasEnded_ = false;
    std::vector<vornix_grid*> abandoned_;
};

} // namespace vornix::c
