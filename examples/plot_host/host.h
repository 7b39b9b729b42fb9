#pragma once

#include <filesystem>
#include <functional>
#include <ostream>

#include "examples/common/driver.h"
#include "toolkit/marvcon/marvcon.h"

namespace plot_host {

// The driver of a device, by what the command line calls it; it outlives the run.
using Find_Driver = std::function<const Driver&(const std::filesystem::path& device)>;

// Who sits before the program.
struct User {
    bool can_answer = false;  // abort, retry or ignore
    bool sees_progress = false;
};

// The exit codes of the program.
enum Exit_Code : int {
    Done = 0,
    Toolkit_Failed = 1,
    Device_At_Fault = 1,    // the check has found something
    Bad_Input = 2,          // with exactly one line on `err`
    Not_Sent = 3,           // the plot was aborted or could not be sent
    Other_Destination = 4,  // the plot could not go where it was to, and was not sent
    Interrupted = 130,
};

Exit_Code run(int count, const char* const* words, const Find_Driver& find_driver, std::ostream& out,
              std::ostream& err, User user = {});

}  // namespace plot_host
