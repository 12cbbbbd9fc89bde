// Saved settings of columns, as the store meets them when it makes columns.
#pragma once

namespace vornix {

class GridStore;

class ColumnSettings {
public:
    virtual ~ColumnSettings() = default;
    // Writes the chosen setting to columns first..last, internal and both included; false when there is none to apply.
    virtual bool ApplyTo(GridStore& store, int first, int last) = 0;
};

} // namespace vornix
