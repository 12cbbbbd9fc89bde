// All grids of the program, by the handles that callers hold.
#pragma once

#include "grid.h"
#include "owner.h"

#include <atomic>
#include <deque>
#include <memory>
#include <mutex>

// A handle outlives its grid: its memory is never given back, and it stands for another grid only after thousands of
// others were made. So a handle that is used too long leads to error 5 and not to freed memory.
struct vornix_grid {
    // Null while there is no grid. Read by any thread.
    std::atomic<vornix::c::Owner*> owner { nullptr };
    // Of the owner's thread, or under the table's lock when that thread has ended.
    vornix::c::Grid* grid = nullptr;
};

namespace vornix::c {

class GridTable {
public:
    static GridTable& Instance();

    // A handle for the grid, which is the table's from now on.
    vornix_grid* Add(std::unique_ptr<Grid> grid);
    // The end of a grid, from any thread: at once on its own thread or when that has ended, otherwise put down for it.
    // Error 5 where there is no grid any more, and inside one of its calls.
    void Destroy(vornix_grid* handle);
    // Ends what other threads have put down for this one, except grids in the middle of a call.
    void DestroyAbandoned(Owner& owner);
    // The thread ends: what was put down for it ends now, the others stay until someone ends them.
    void EndThread(Owner& owner);

private:
    GridTable() = default;

    vornix_grid* FreeHandle();
    std::unique_ptr<Grid> Remove(vornix_grid* handle);
    std::unique_ptr<Grid> RemoveOrAbandon(vornix_grid* handle);

    std::mutex mutex_;
    std::deque<vornix_grid> handles_;
    // In the order in which their grids ended.
    std::deque<vornix_grid*> resting_;
};

} // namespace vornix::c
