#pragma once

#include "toolkit/marvcon/std_linetype_caps/capabilities.h"
