#pragma once

#include "toolkit/marvcon/std_plval/validator.h"
