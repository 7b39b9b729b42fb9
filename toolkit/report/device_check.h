#pragma once

#include <string>
#include <vector>

#include "toolkit/marvcon/marvcon.h"

// A check for the authors of drivers: what about a device would make a validation fail, or never come to
// rest.

// What is wrong. The numbers stay; further ones come behind.
struct PX_Device_Fault {
    enum Enum : int {
        Object_Missing = 1,       // a domain, the identity, the factory, a default value
        List_Missing = 2,         // null, where an empty one would do
        Nothing_To_Take = 3,      // a list without an entry that a search could take
        Ability_Undefined = 4,    // a digit that is none of the abilities
        Equal_Names = 5,          // an earlier entry bears the same name, and is found in its place
        Name_Empty = 6,           // of a source, which then counts as none
        Names_Nothing = 7,        // no entry bears the name
        Names_Withdrawn = 8,      // the entry of the name is withdrawn
        Default_Not_Offered = 9,  // the default is not among what the device offers
        Default_Out_Of_Range = 10,
        Default_Not_Written = 11,  // validated by its ability, while that of its default is too low
        Not_Ensured = 12,          // needs a choice that no default before it makes good
        Beyond_Limit = 13,         // a sheet larger than the largest
        Bounds_Empty = 14,         // printable bounds without an inside
        No_Measure = 15,           // what is no number, or beyond what the searches can measure
        Feed_Unset = 16,
        Color_System_Undefined = 17,
        Data_Type_Undefined = 18,
        Default_Of_Other_Type = 19,
        Range_Of_No_Number = 20,
        Limits_Reversed = 21,     // nothing lies between the least and the greatest
        Memory_Default = 22,      // 0, the default of the installed memory, is that of no area that counts
        List_Not_Counted = 23,    // asked for by one ability of a method, switched off by another
        Method_Missing = 24,      // no method for the type
        Type_Never_Valid = 25,    // the default type, as the rest of the output is
        Value_Never_Matches = 26  // an allowed value that is missing, or of another type
    };
};

// What comes of it, in rising severity.
struct PX_Device_Effect {
    enum Enum : int {
        Passed_Over = 0,  // a run never takes it, or silently something else in its place
        Repeats = 1,      // a run repairs it, and the next one again, once it is not marked as validated
        Throws = 2,       // a run ends with the code
    };
};

// One thing that is wrong.
struct PX_Device_Finding {
    long domain;  // its bit of PX_Domain_Mask; 0 for what belongs to the whole device
    // The way to it, such as "source 'tray', entry 'upper', default size". Of a name that is met again, with
    // the place in its list, the first is 1.
    std::wstring object;
    PX_Device_Fault::Enum fault;
    PX_Device_Effect::Enum effect;
    unsigned int code;    // of the exception, with its detail; 0 where nothing is thrown
    std::wstring detail;  // may be empty
    long bits;            // of the domain's change word, raised with every run; 0 where no run repeats

    friend bool operator==(const PX_Device_Finding&, const PX_Device_Finding&) = default;
};

// All findings, domain by domain in the order of a run; none for a sound device. The device may be in any
// state: what is missing is a finding. Nothing of it is changed, no configuration is needed, and the machine
// is not asked. No memory is std::bad_alloc.
//
// Which codes are thrown is told of the standard validators. A driver that answers for a fault in a validator
// of its own takes the finding out.
//
// Told is what the device alone brings about, for some choice, strategy and policy that looks at the choice;
// of several faults, what each of them does when the others are mended. Not told is what only a choice or a
// machine can do: a feed that no source has, under Use_Nearest; numbers that nothing is near to; an item of
// no setting; a way out that passes without a method; what a port lacks; several selection methods at once; a
// policy that keeps data unseen which others rely on. Nor are the three rules by which every device raises
// bits again: the nearest destination leaves the finishing options alone, a plot to a file never keeps its
// path, and the default size of a turned choice lays the actual printable bounds so that they are cut back.
std::vector<PX_Device_Finding> px_check_device(const PX_Plotter_Definition& device);

// Each is in English, without a full stop: the domain, the fault, what comes of it, and all of it on one
// line, whatever the names are.
const wchar_t* px_domain_text(const PX_Device_Finding& finding);
const wchar_t* px_fault_text(PX_Device_Fault::Enum fault);
std::wstring px_effect_text(const PX_Device_Finding& finding);
std::wstring px_finding_text(const PX_Device_Finding& finding);
