#pragma once

#include <string>
#include <vector>

#include "examples/drivers/ppd/ppd_file.h"
#include "toolkit/marvcon/marvcon.h"

// Output bins are destinations, and each has the finishing options of the device: what the descriptions offer
// of collating, stapling, cutting and folding, each as one list. A device with finishing options but no bins
// has one destination to hold them.
//
// - Makers have keywords of their own. Where a file has several of a kind, their choices are joined under the
//   default of the first; one whose names are taken already is left out.
// - A choice that does nothing is 0, for a place and a fold -1. Any other has a number that no other choice
//   of its list has. Numbers below 20 mean the same on every device; from 20 on, they are the choice's place
//   in the list.
void ppd_fill_destinations(const Ppd_File& file, const PX_Plotter_Class_Factory& factory,
                           PX_Media_Capabilities& capabilities);

// The keywords whose choices are in those lists.
std::vector<std::string> ppd_finishing_keywords(const Ppd_File& file);
