#pragma once

#include <ostream>
#include <string>
#include <vector>

#include "toolkit/report/change_report.h"
#include "toolkit/report/device_check.h"

// "kept", "reset", "default", "nearest 12.5" with the score, "own rule", "along", "new", "gone".
std::string px_word_of_outcome(const PX_Datum_Change& row);

// The report as a table in UTF-8: a line a row with what was and, below it, what is now; then how many data
// changed, how many of them without a change bit, and the domains that the validator names. A changed row
// without a bit reads "silent" in the column of the bits.
void px_print_changes(std::ostream& out, const PX_Change_Report& report);

// What a device check found as a table in UTF-8, a line for each, and how many there are; one line for none.
void px_print_findings(std::ostream& out, const std::vector<PX_Device_Finding>& findings);
