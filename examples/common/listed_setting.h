#pragma once

#include <string>
#include <vector>

#include "toolkit/marvcon/marvcon.h"

// A setting whose values are these texts and no others.
PX_Smart_Pointer<PX_Custom_Capability> listed_setting(const PX_Plotter_Class_Factory& factory,
                                                      const wchar_t* name, const wchar_t* shown,
                                                      const std::vector<std::wstring>& values,
                                                      const std::wstring& default_value);
