#pragma once

#include "toolkit/report/findings.h"

class PX_Custom_Capabilities;
class PX_InitTerm_Capabilities;
class PX_Media_Capabilities;
class PX_Meta_Capabilities;
class PX_PhysPen_Capabilities;
class PX_Plotter_Class_Factory;
class PX_Plotter_IO_Capabilities;
class PX_ResColorMem_Capabilities;

// The check of each domain.
void px_check_media(const PX_Media_Capabilities& device, const PX_Findings& found);
// The class factory may be missing; below, and for the output, the identity.
void px_check_pens(const PX_PhysPen_Capabilities& device, const PX_Plotter_Class_Factory* factory,
                   const PX_Findings& found);
void px_check_color(const PX_ResColorMem_Capabilities& device, const PX_Meta_Capabilities* identity,
                    const PX_Findings& found);
void px_check_init_term(const PX_InitTerm_Capabilities& device, const PX_Findings& found);
void px_check_output(const PX_Plotter_IO_Capabilities& device, const PX_Meta_Capabilities* identity,
                     const PX_Findings& found);
void px_check_custom(const PX_Custom_Capabilities& device, const PX_Findings& found);

// What every run asks for of media.
inline constexpr PX_Gate<PX_Media_Ability_Flags> px_media_gates[] = {
    {PX_Media_Ability_Flags::Ability_Media_Selection_Method, L"selection method"},
    {PX_Media_Ability_Flags::Ability_Media_Type, L"type"},
    {PX_Media_Ability_Flags::Ability_Media_Source, L"source"},
    {PX_Media_Ability_Flags::Ability_Media_Source_Entry, L"source entry"},
    {PX_Media_Ability_Flags::Ability_Media_Size, L"size and margins"},
    {PX_Media_Ability_Flags::Ability_Media_Destination, L"destination"},
    {PX_Media_Ability_Flags::Ability_Number_Of_Copies, L"copies"},
    {PX_Media_Ability_Flags::Ability_Duplexing, L"duplexing"},
    {PX_Media_Ability_Flags::Ability_Longplot_Reduction, L"longplot reduction"},
    {PX_Media_Ability_Flags::Ability_Dm_Scale, L"scale"},
    {PX_Media_Ability_Flags::Ability_Dm_Orientation, L"orientation"},
    {PX_Media_Ability_Flags::Ability_Actual_Printable_Bounds, L"actual printable bounds"}};
// A part of the check of media: sources, their entries, and the sizes.
void px_check_media_sizes(const PX_Media_Capabilities& device, const PX_Findings& found);
