#pragma once

#include "toolkit/core/flag_accessors.h"
#include "toolkit/host/string.h"
#include "toolkit/marvcon/std_io_cfg/interface.h"

class PX_EXPORT PX_Std_Plotter_IO_Configuration
    : public PX_Configuration_Accessors<PX_Plotter_IO_Configuration, PX_IO_Default, PX_IO_Validated>,
      public PX_Object {
public:
    const wchar_t* get_portname() const override { return m_portname; }
    PX_IO_Type::Enum get_type() const override { return m_type; }
    const wchar_t* get_protocol() const override { return m_protocol; }
    long get_baud_rate() const override { return m_baud_rate; }
    long get_handshake() const override { return m_handshake; }
    long get_input_timeout() const override { return m_input_timeout; }
    long get_output_timeout() const override { return m_output_timeout; }
    const wchar_t* get_pathname() const override { return m_pathname; }
    bool get_plot_to_file() const override { return m_plot_to_file; }
    bool get_all_system_ports_valid() const override { return m_all_system_ports_valid; }

    void set_portname(const wchar_t* name) override;
    void set_type(PX_IO_Type::Enum type) override;
    void set_protocol(const wchar_t* name) override;
    void set_baud_rate(long rate) override;
    void set_handshake(long handshake) override;
    void set_input_timeout(long timeout) override;
    void set_output_timeout(long timeout) override;
    void set_pathname(const wchar_t* path) override;
    void set_plot_to_file(bool on) override { m_plot_to_file = on; }
    void set_all_system_ports_valid(bool on) override { m_all_system_ports_valid = on; }

    PX_Plotter_IO_Configuration* clone() const override;

private:
    PX_String m_portname;
    PX_IO_Type::Enum m_type = PX_IO_Type::No_IO_Type;
    PX_String m_protocol;
    long m_baud_rate = 0;
    long m_handshake = 0;
    long m_input_timeout = 0;
    long m_output_timeout = 0;
    PX_String m_pathname;
    bool m_all_system_ports_valid = false;
    bool m_plot_to_file = false;
};
