#pragma once

#include "toolkit/marvcon/marvcon.h"

// Makes the custom items of the definition's configuration those of its device, in the device's order: for a
// choice that was made for another device, or for an older state of this one. An item that the device has no
// setting for goes, since a run fails over it with 704; a setting that the choice does not name comes at its
// default, and is marked so. The values of the others are kept and still to be validated; of several items of
// one name the first counts.
//
// A missing root, validator or custom domain is MVNK_Error 1103, and so is a device without a list of
// settings; no memory is std::bad_alloc, or 1101. After a failure the items may be only a part of them.
void px_fit_custom_items(const PX_Plotter_Definition& plotter);
