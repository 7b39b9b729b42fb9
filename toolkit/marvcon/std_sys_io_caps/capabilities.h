#pragma once

#include "toolkit/host/object.h"
#include "toolkit/marvcon/std_sys_io_caps/interface.h"

// The first one asks the machine; from then on the process keeps that list, and nothing refreshes it.
class PX_EXPORT PX_Std_System_IO_Capabilities : public PX_System_IO_Capabilities, public PX_Object {
public:
    // What the machine does not answer is not there: without ports, seven of the usual names stand in. Every
    // local port that is not redirected has the machine asked for its printers, as detect_io_port_conflict
    // does, and the list does not depend on the answer. No memory is MVNK_Memory_Exception 1101, which leaves
    // the list as far as it came.
    PX_Std_System_IO_Capabilities();
    // A copy would share the list: clone is the operation that copies.
    PX_Std_System_IO_Capabilities(const PX_Std_System_IO_Capabilities&) = delete;
    PX_Std_System_IO_Capabilities& operator=(const PX_Std_System_IO_Capabilities&) = delete;

    PX_Smart_Pointer<PX_Named_Object_List<PX_IO_Port>> get_port_list() const override { return m_port_list; }
    void set_port_list(const PX_Named_Object_List<PX_IO_Port>* list) override;
    PX_System_IO_Capabilities* clone() const override;

protected:
    long win_b_rate_to_long(unsigned long mask) override;
    void add_b_rate(unsigned long mask, const COMMPROP& record,
                    PX_Smart_Pointer<PX_Object_List<PX_Baud_Rate>> list) override;
    void set_up_protocols(unsigned long data_bits, unsigned long parity, unsigned long stop_bits,
                          PX_Smart_Pointer<PX_Named_Object_List<PX_Protocol>> list,
                          const COMMPROP& record) override;

    // Whether a local printer is on a port that begins with this name. Asks the machine each time. No memory
    // is MVNK_Memory_Exception 1101, "pinfo".
    bool detect_io_port_conflict(const wchar_t* name);

private:
    void list_local_ports(PX_Named_Object_List<PX_IO_Port>& ports);
    void list_local_port(PX_Named_Object_List<PX_IO_Port>& ports, const wchar_t* name);
    void list_printers(PX_Named_Object_List<PX_IO_Port>& ports);
    void set_up_serial_port(PX_IO_Port& port);

    PX_Smart_Pointer<PX_Named_Object_List<PX_IO_Port>> m_port_list;
};
