// What the tests of the store have in common.
#pragma once

#include "model/grid_store.h"
#include "vornix/automation.h"

#include <memory>
#include <random>

namespace vornix {

// The number of the error that the step ends with, as a host would see it; 0 when there is none.
template <typename Step> int ErrorOf(Step&& step)
{
    try {
        step();
    } catch (const AutomationError& error) {
        return error.Number();
    }
    return 0;
}

// A store built from its defaults.
std::unique_ptr<GridStore> BuildStore(int rows, int cols, int fixedRows = 0, int fixedCols = 0);

// The counts set as the control sets them, as far as the store goes.
void ChangeRows(GridStore& store, int rows);
void ChangeCols(GridStore& store, int cols);
void ChangeFixedRows(GridStore& store, int fixedRows);
void ChangeFixedCols(GridStore& store, int fixedCols);

// Numbers from a fixed seed, both bounds included.
class RandomNumbers {
public:
    explicit RandomNumbers(unsigned seed)
        : engine_(seed)
    {
    }
    int Between(int low, int high) { return low + static_cast<int>(engine_() % static_cast<unsigned>(high - low + 1)); }
    bool OneIn(int count) { return Between(1, count) == 1; }

private:
    std::mt19937 engine_;
};

// A text of random length and width: empty, short, long, with units above one byte.
std::u16string RandomText(RandomNumbers& random);

} // namespace vornix
