#pragma once

#include "toolkit/marvcon/std_media_cfg/capabilities.h"
#include "toolkit/marvcon/std_media_cfg/catalogue.h"
#include "toolkit/marvcon/std_media_cfg/configuration.h"
#include "toolkit/marvcon/std_media_cfg/largest_sheet.h"
#include "toolkit/marvcon/std_media_cfg/nearest.h"
#include "toolkit/marvcon/std_media_cfg/settings.h"
#include "toolkit/marvcon/std_media_cfg/validator.h"
