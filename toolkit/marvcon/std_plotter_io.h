#pragma once

#include "toolkit/marvcon/std_plotter_io/buffer.h"
#include "toolkit/marvcon/std_plotter_io/channel.h"
#include "toolkit/marvcon/std_plotter_io/warned_port.h"
