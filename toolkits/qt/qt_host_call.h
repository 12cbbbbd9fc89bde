// Calls from Qt into the core: above Qt nobody could take an error.
#pragma once

#include "vornix/automation.h"

#include <QtGlobal>

namespace vornix {

template <typename Step> void CallFromQt(const Step& step)
{
    try {
        step();
    } catch (const AutomationError& error) {
        qWarning("QVornix: error %d, %s", error.Number(), error.what());
    }
}

} // namespace vornix
