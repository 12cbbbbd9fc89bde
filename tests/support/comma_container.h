// A place for the grid where numbers are written with a decimal comma.
#pragma once

#include "automation/comma_locale.h"
#include "vornix/headless_container.h"

namespace vornix {

class CommaContainer : public HeadlessContainer {
public:
    const Locale& GetLocale() const override { return locale_; }

private:
    CommaLocale locale_;
};

} // namespace vornix
