#include "vornix/platform/device.h"

#include <limits>
#include <mutex>
#include <unordered_map>

namespace vornix {

namespace {

// Numbers go up and come back only after 31 bits of them, so that a number kept too long names nothing.
struct DeviceTable {
    std::mutex mutex;
    std::unordered_map<Hdc, Device*> devices;
    Hdc last = 0;
};

// Never destroyed: a device may live as long as the program.
DeviceTable& Table()
{
    static DeviceTable* const table = new DeviceTable;
    return *table;
}

Hdc NextFree(const DeviceTable& table)
{
    Hdc handle = table.last;
    do
        handle = handle == std::numeric_limits<i32>::max() ? 1 : handle + 1;
    while (table.devices.contains(handle));
    return handle;
}

} // namespace

Device* DeviceFromHandle(Hdc handle)
{
    DeviceTable& table = Table();
    const std::lock_guard lock(table.mutex);
    const auto found = table.devices.find(handle);
    return found == table.devices.end() ? nullptr : found->second;
}

Hdc RegisterDevice(Device& device)
{
    DeviceTable& table = Table();
    const std::lock_guard lock(table.mutex);
    const Hdc handle = NextFree(table);
    table.devices.emplace(handle, &device);
    table.last = handle;
    return handle;
}

void UnregisterDevice(Hdc handle)
{
    DeviceTable& table = Table();
    const std::lock_guard lock(table.mutex);
    table.devices.erase(handle);
}

void Device::Polyline(const Pen& pen, std::initializer_list<Point> points)
{
    if (points.size() == 0)
        return;
    SelectPen(pen);
    const Point* point = points.begin();
    MoveTo(point->x, point->y);
    for (++point; point != points.end(); ++point)
        LineTo(point->x, point->y);
}

} // namespace vornix
