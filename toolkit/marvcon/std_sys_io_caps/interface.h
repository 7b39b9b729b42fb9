#pragma once

#include "toolkit/marvcon/std_io_cfg/interface.h"
#include "toolkit/platform/win_types.h"

inline constexpr PX_Source px_std_sys_io_caps_source = PX_SOURCE(L"std_sys_io_caps");

// The ports that the machine offers to a plotter: its local serial and parallel ports, and its network and
// shared printers. What was found last comes first in the list.
class PX_EXPORT PX_System_IO_Capabilities {
public:
    virtual ~PX_System_IO_Capabilities();

    // The list that all of them share, unless another was set.
    virtual PX_Smart_Pointer<PX_Named_Object_List<PX_IO_Port>> get_port_list() const = 0;
    // Stores a copy, none for null. No memory is MVNK_Memory_Exception 1101, "m_port_list".
    virtual void set_port_list(const PX_Named_Object_List<PX_IO_Port>* list) = 0;
    // With a private copy of the list. No memory is MVNK_Memory_Exception 1101, "new_one".
    virtual PX_System_IO_Capabilities* clone() const = 0;

protected:
    // The rate, in bits per second, that a bit of dwSettableBaud stands for; 0 for any other number. 0x8000
    // and 0x10000 are not the rates that their names on the system suggest.
    virtual long win_b_rate_to_long(unsigned long mask) = 0;
    // Adds the rate of the bit, where the record has it and the bit itself is at most dwMaxBaud. No memory is
    // MVNK_Memory_Exception 1101, "new_baud".
    virtual void add_b_rate(unsigned long mask, const COMMPROP& record,
                            PX_Smart_Pointer<PX_Object_List<PX_Baud_Rate>> list) = 0;
    // Adds every combination that the record allows. An argument but 0 is the one bit that is taken of its
    // kind, whatever the record says. No memory is MVNK_Memory_Exception 1101, "new_proto".
    virtual void set_up_protocols(unsigned long data_bits, unsigned long parity, unsigned long stop_bits,
                                  PX_Smart_Pointer<PX_Named_Object_List<PX_Protocol>> list,
                                  const COMMPROP& record) = 0;
};
