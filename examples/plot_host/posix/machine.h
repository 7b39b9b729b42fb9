#pragma once

#include "toolkit/platform/posix/posix_platform.h"

namespace plot_host {

// The platform of the system, which maps ports, takes a print server and tells its last failure.
using Machine = PX_Posix_Platform;

}  // namespace plot_host
