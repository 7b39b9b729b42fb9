#pragma once

#include <functional>

#include "toolkit/report/change_report.h"

// Has the plotter validator go over the definition's configuration, and tells what became of `before`, which
// was taken of it. `prepare` is called ahead of the run, for what a host does first with a choice of another
// device, such as px_fit_custom_items; what it changes is told as such.
//
// A run that fails with a PX_Exception is told as far as it came, and the report has the failure. What
// `prepare` throws comes on as it is, and so does what is no PX_Exception. A missing root or validator is
// MVNK_Error 1103, "plotter"; a missing domain is 1103 too.
PX_Change_Report px_run(PX_Plotter_Definition& plotter, const PX_Configuration_Snapshot& before,
                        const PX_Validation_Order& order, const std::function<void()>& prepare = {});
