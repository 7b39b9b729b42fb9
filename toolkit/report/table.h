#pragma once

#include <ostream>
#include <string>

#include "toolkit/report/change_report.h"

// "kept", "reset", "default", "nearest 12.5" with the score, "own rule", "along", "new", "gone",
// "prepared".
std::string px_word_of_outcome(const PX_Datum_Change& row);

// The report as a table in UTF-8: a line a row with what was and, below it, what is now; then how many data
// changed, how many of them without a change bit, and the domains that the validator names; at last, what
// ended the run early. A row that the run changed without a bit reads "silent" in the column of the bits;
// "set" is what was made of the choice ahead of the run. A value that reads as the one above it says so.
void px_print_changes(std::ostream& out, const PX_Change_Report& report);
