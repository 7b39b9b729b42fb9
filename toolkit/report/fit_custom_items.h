#pragma once

#include "toolkit/marvcon/marvcon.h"

// Makes the custom items of the definition's configuration those of its device, in the device's order: for a
// choice that was made for another device, or for an older state of this one. An item that the device has no
// setting for goes, since a run fails over it with 704; a setting that the choice does not name comes at its
// default, and is marked so. The values of the others are kept and still to be validated; of several items of
// one name the first counts.
//
// A missing root or validator, or a choice without custom data, is MVNK_Error 1103. What putting them to
// their defaults throws comes on as a plain PX_Exception: 1103 for a device without a list of settings and
// for a setting without a default, 701 for a default of no known type. No memory is std::bad_alloc, or 1101.
// After a failure the items have the values and marks that they had; only where there is no memory for that
// either, they may be gone.
void px_fit_custom_items(const PX_Plotter_Definition& plotter);
