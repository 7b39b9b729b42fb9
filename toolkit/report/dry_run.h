#pragma once

#include <functional>

#include "toolkit/report/change_report.h"

// What a run of the plotter validator would make of `choice` on this device, told without doing it: neither
// the choice nor what the definition holds is touched. The choice may be the definition's own configuration
// or one that was made for another device, which the user goes back to when the report does not please.
//
// The run goes over clones of the choice and of the capabilities, which the definition holds meanwhile, the
// validated and default flags with them; nobody else uses the definition in that time. `prepare` is called
// ahead of the run, with the clones in their place, for what a host does first with a choice of another
// device; what it changes is in the report too. When the call is over, by a return or by an exception, the
// definition holds the objects again that it held before.
//
// What stays of the run: the change words and the strategy of the plotter validator are those of the dry run,
// as after any run. It asks the machine for its ports and printers, and tells the error handler, as any run
// does. What a driver's validator writes elsewhere, into the identity or into itself, is not undone.
//
// A missing root or validator is MVNK_Error 1103, "plotter"; what the clones, the run and `prepare` throw
// comes on as it is. A domain that was not set, raster and linetypes too, is the clone's 1103.
PX_Change_Report px_dry_run(PX_Plotter_Definition& plotter, const PX_Plotter_Configuration& choice,
                            const PX_Validation_Order& order, const std::function<void()>& prepare = {});
