#pragma once

#include <functional>

#include "toolkit/report/change_report.h"

// What a run of the plotter validator would make of `choice` on this device, told without doing it: neither
// the choice nor what the definition holds is touched. The choice may be the definition's own configuration
// or one that was made for another device, which the user goes back to when the report does not please.
//
// The run goes over clones of the choice and of the capabilities, which the definition holds meanwhile, the
// validated and default flags with them; nobody else uses the definition in that time. A driver's class of
// capabilities without a clone of its own is validated as the class that it derives from. `prepare` is called
// ahead of the run, with the clones in their place, as px_run does; what it changes is in the report too.
// When the call is over, by a return or by an exception, the definition holds the objects again that it held
// before.
//
// What stays of the run: the change words and the strategy of the plotter validator are those of the dry run,
// as after any run. It asks the machine for its ports and printers, and tells the error handler, as any run
// does. What a driver's validator writes elsewhere, into the identity or into itself, is not undone.
//
// A run that fails with a PX_Exception is told as far as it came, and the report has the failure. A missing
// root or validator is MVNK_Error 1103, "plotter". What fails in a clone comes on as a plain PX_Exception: a
// domain that was not set, raster and linetypes too, is 1103; a clone that did not come into being is
// MVNK_Memory_Exception 1101, "configuration" or "capabilities". What `prepare` throws comes on as it is, and
// so does what is no PX_Exception.
PX_Change_Report px_dry_run(PX_Plotter_Definition& plotter, const PX_Plotter_Configuration& choice,
                            const PX_Validation_Order& order, const std::function<void()>& prepare = {});
