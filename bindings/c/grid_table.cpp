#include "grid_table.h"

#include "status.h"

#include <vector>

namespace vornix::c {

namespace {

constexpr std::size_t LeastResting = 8192;

} // namespace

GridTable& GridTable::Instance()
{
    // Never destroyed: threads may end after the program's static objects have.
    static GridTable* const table = new GridTable;
    return *table;
}

vornix_grid* GridTable::FreeHandle()
{
    if (resting_.size() < LeastResting)
        return &handles_.emplace_back();
    vornix_grid* const handle = resting_.front();
    resting_.pop_front();
    return handle;
}

vornix_grid* GridTable::Add(std::unique_ptr<Grid> grid)
{
    const std::lock_guard lock(mutex_);
    vornix_grid* const handle = FreeHandle();
    handle->grid = grid.release();
    handle->owner.store(&handle->grid->GetOwner(), std::memory_order_relaxed);
    return handle;
}

// Under the lock.
std::unique_ptr<Grid> GridTable::Remove(vornix_grid* handle)
{
    resting_.push_back(handle);
    std::unique_ptr<Grid> grid(std::exchange(handle->grid, nullptr));
    handle->owner.store(nullptr, std::memory_order_relaxed);
    grid->GetOwner().Forget(handle);
    return grid;
}

std::unique_ptr<Grid> GridTable::RemoveOrAbandon(vornix_grid* handle)
{
    const std::lock_guard lock(mutex_);
    Owner* const owner = handle->owner.load(std::memory_order_relaxed);
    if (owner == nullptr)
        Raise(ErrorNumber::InvalidArgument, "The grid has been destroyed");
    const bool isOwn = owner == Owner::Current();
    if (isOwn && handle->grid->IsInCall())
        Raise(ErrorNumber::InvalidArgument, "A grid cannot be destroyed inside one of its own calls");
    for (const vornix_grid* const abandoned : owner->Abandoned()) {
        if (abandoned == handle)
            Raise(ErrorNumber::InvalidArgument, "The grid has been destroyed");
    }
    if (isOwn || owner->HasEnded())
        return Remove(handle);
    owner->Abandon(handle);
    return nullptr;
}

void GridTable::Destroy(vornix_grid* handle)
{
    // The grid itself ends outside of the lock.
    const std::unique_ptr<Grid> ended = RemoveOrAbandon(handle);
}

void GridTable::DestroyAbandoned(Owner& owner)
{
    std::vector<std::unique_ptr<Grid>> ended;
    const std::lock_guard lock(mutex_);
    const std::vector<vornix_grid*> abandoned = owner.Abandoned();
    for (vornix_grid* const handle : abandoned) {
        if (!handle->grid->IsInCall())
            ended.push_back(Remove(handle));
    }
}

void GridTable::EndThread(Owner& owner)
{
    {
        // First, so that nothing is put down any more.
        const std::lock_guard lock(mutex_);
        owner.SetEnded();
    }
    DestroyAbandoned(owner);
}

} // namespace vornix::c
