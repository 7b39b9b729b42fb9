#pragma once

#include "toolkit/marvcon/std_plotter_def/capabilities.h"
#include "toolkit/marvcon/std_plotter_def/class_factory.h"
#include "toolkit/marvcon/std_plotter_def/configuration.h"
#include "toolkit/marvcon/std_plotter_def/definition.h"
#include "toolkit/marvcon/std_plotter_def/shoebox.h"
