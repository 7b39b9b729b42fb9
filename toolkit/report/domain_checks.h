#pragma once

#include "toolkit/report/findings.h"

class PX_Custom_Capabilities;
class PX_InitTerm_Capabilities;
class PX_Media_Capabilities;
class PX_Meta_Capabilities;
class PX_PhysPen_Capabilities;
class PX_Plotter_IO_Capabilities;
class PX_ResColorMem_Capabilities;

// The check of each domain.
void px_check_media(const PX_Media_Capabilities& device, const PX_Findings& found);
void px_check_pens(const PX_PhysPen_Capabilities& device, const PX_Findings& found);
// The identity may be missing, here and for the output.
void px_check_color(const PX_ResColorMem_Capabilities& device, const PX_Meta_Capabilities* identity,
                    const PX_Findings& found);
void px_check_init_term(const PX_InitTerm_Capabilities& device, const PX_Findings& found);
void px_check_output(const PX_Plotter_IO_Capabilities& device, const PX_Meta_Capabilities* identity,
                     const PX_Findings& found);
void px_check_custom(const PX_Custom_Capabilities& device, const PX_Findings& found);

// A part of the check of media: sources, their entries, and the sizes.
void px_check_media_sizes(const PX_Media_Capabilities& device, const PX_Findings& found);
