#pragma once

#include "toolkit/marvcon/font_usage/usage_data.h"
