#pragma once

#include <ostream>
#include <vector>

#include "toolkit/report/device_check.h"

// What a device check found as a table in UTF-8, a line for each, and how many there are; one line for none.
void px_print_findings(std::ostream& out, const std::vector<PX_Device_Finding>& findings);
