#include "grid.h"

#include "bag.h"
#include "caller_settings.h"
#include "grid_table.h"
#include "handles.h"
#include "values.h"

#include <span>
#include <string>

namespace vornix::c {

namespace {

constexpr std::int32_t LargestSide = 32767;

Grid& Entered(vornix_grid* handle)
{
    Require(handle);
    Owner* const owner = Owner::Current();
    if (owner != nullptr && owner->HasAbandoned())
        GridTable::Instance().DestroyAbandoned(*owner);
    Owner* const owning = handle->owner.load(std::memory_order_relaxed);
    if (owning == nullptr)
        Raise(ErrorNumber::InvalidArgument, "The grid has been destroyed");
    if (owning != owner)
        Raise(ErrorNumber::InvalidArgument, "Called from another thread than the one that made the grid");
    return *handle->grid;
}

} // namespace

void Grid::Load(HeadlessOptions options)
{
    const bool isShown = options.show;
    options.events = &events_;
    options.show = false;
    container_ = std::make_unique<HeadlessContainer>(options);
    if (isShown)
        container_->Show();
}

HeadlessContainer& Grid::Container()
{
    if (container_ == nullptr)
        Raise(ErrorNumber::InvalidArgument, "The grid is still being made");
    return *container_;
}

Call::Call(vornix_grid* handle)
    : Call(Entered(handle))
{
}

Call::Call(Grid& grid)
    : grid_(grid)
{
    ++grid_.depth_;
}

Call::~Call()
{
    if (--grid_.depth_ == 0)
        grid_.events_.TakeKeptFailure();
}

void Call::Finish()
{
    if (grid_.depth_ > 1)
        return;
    if (const std::optional<AutomationError> failure = grid_.events_.TakeKeptFailure())
        throw *failure;
}

namespace {

std::shared_ptr<MemorySettings> ToSettings(const vornix_grid_options& options)
{
    if (options.setting_count > 0)
        Require(options.settings);
    std::shared_ptr<MemorySettings> settings = options.get_setting == nullptr && options.save_setting == nullptr
        ? std::make_shared<MemorySettings>()
        : std::make_shared<CallerSettings>(options.get_setting, options.save_setting, options.settings_user);
    for (const vornix_setting& setting : std::span(options.settings, options.setting_count))
        settings->SaveSetting(
            ToText(setting.application), ToText(setting.section), ToText(setting.key), ToText(setting.value));
    return settings;
}

int Side(std::int32_t given, int usual)
{
    if (given < 0 || given > LargestSide)
        Raise(ErrorNumber::InvalidArgument, "A window has 1 to 32767 pixels in each direction");
    return given == 0 ? usual : given;
}

double Scale(double given)
{
    if (given == 0)
        return 1;
    if (!(given >= 1 && given <= 4))
        Raise(ErrorNumber::InvalidArgument, "A scale is a number from 1 to 4");
    return given;
}

HeadlessOptions ToHeadlessOptions(const vornix_grid_options& given)
{
    HeadlessOptions options;
    options.width = Side(given.width, options.width);
    options.height = Side(given.height, options.height);
    options.scale = Scale(given.scale);
    options.design = given.design != 0;
    options.show = given.hidden == 0;
    options.settings = ToSettings(given);
    return options;
}

vornix_grid_options Known(const vornix_grid_options* given)
{
    vornix_grid_options options {};
    if (given == nullptr)
        return options;
    if (given->size != sizeof(vornix_grid_options))
        Raise(ErrorNumber::InvalidArgument, "The options have another size than this library knows");
    return *given;
}

vornix_grid* MakeGrid(const vornix_grid_options& given)
{
    HeadlessOptions options = ToHeadlessOptions(given);
    const MemoryBag bag = given.has_bag ? ToBag(given.bag, given.bag_count) : MemoryBag();
    options.bag = given.has_bag ? &bag : nullptr;

    GridTable& table = GridTable::Instance();
    const std::shared_ptr<Owner> owner = Owner::OfThread();
    if (owner->HasAbandoned())
        table.DestroyAbandoned(*owner);
    vornix_grid* const handle = table.Add(std::make_unique<Grid>(owner));
    try {
        Call call(handle);
        call->Events().SetGrid(handle);
        call->Events().SetCallback(given.callback, given.user);
        call->Load(options);
        call.Finish();
    } catch (...) {
        table.Destroy(handle);
        throw;
    }
    return handle;
}

} // namespace

} // namespace vornix::c

using namespace vornix::c;

std::int32_t vornix_grid_create(const vornix_grid_options* options, vornix_grid** grid)
{
    return Guarded([&] {
        Require(grid);
        *grid = MakeGrid(Known(options));
    });
}

std::int32_t vornix_grid_destroy(vornix_grid* grid)
{
    return Guarded([&] {
        if (grid != nullptr)
            GridTable::Instance().Destroy(grid);
    });
}

std::int32_t vornix_set_event_callback(vornix_grid* grid, vornix_event_callback callback, void* user)
{
    return GridCall(grid, [&](Call& call) { call->Events().SetCallback(callback, user); });
}
