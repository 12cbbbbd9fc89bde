#include "owner.h"

#include "grid_table.h"
#include "status.h"

#include <algorithm>

namespace vornix::c {

namespace {

// Without destructors, so that they are there while other objects of the thread are destroyed.
thread_local Owner* currentOwner = nullptr;
thread_local bool threadHasEnded = false;

class ThreadsEnd {
public:
    std::shared_ptr<Owner> owner = std::make_shared<Owner>();

    ~ThreadsEnd()
    {
        threadHasEnded = true;
        currentOwner = nullptr;
        GridTable::Instance().EndThread(*owner);
    }
};

} // namespace

std::shared_ptr<Owner> Owner::OfThread()
{
    if (threadHasEnded)
        Raise(ErrorNumber::InvalidArgument, "The thread is ending");
    thread_local const ThreadsEnd end;
    currentOwner = end.owner.get();
    return end.owner;
}

Owner* Owner::Current() noexcept
{
    return currentOwner;
}

void Owner::Abandon(vornix_grid* grid)
{
    abandoned_.push_back(grid);
    hasAbandoned_.store(true, std::memory_order_relaxed);
}

void Owner::Forget(vornix_grid* grid)
{
    std::erase(abandoned_, grid);
    hasAbandoned_.store(!abandoned_.empty(), std::memory_order_relaxed);
}

} // namespace vornix::c
