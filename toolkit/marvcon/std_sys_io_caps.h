#pragma once

#include "toolkit/marvcon/std_sys_io_caps/capabilities.h"
