#include "toolkit/marvcon/std_io_cfg/configuration.h"

#include "toolkit/core/clone.h"

using Datum = PX_IO_Config_Flags;

PX_Plotter_IO_Configuration::~PX_Plotter_IO_Configuration() = default;

void PX_Std_Plotter_IO_Configuration::set_portname(const wchar_t* name) {
    m_portname = name;
    clear_flags_of(Datum::IO_Config_Portname);
}

void PX_Std_Plotter_IO_Configuration::set_type(PX_IO_Type::Enum type) {
    m_type = type;
    clear_flags_of(Datum::IO_Config_Type);
}

void PX_Std_Plotter_IO_Configuration::set_protocol(const wchar_t* name) {
    m_protocol = name;
    clear_flags_of(Datum::IO_Config_Protocol);
}

void PX_Std_Plotter_IO_Configuration::set_baud_rate(long rate) {
    m_baud_rate = rate;
    clear_flags_of(Datum::IO_Config_Baud_Rate);
}

void PX_Std_Plotter_IO_Configuration::set_handshake(long handshake) {
    m_handshake = handshake;
    clear_flags_of(Datum::IO_Config_Handshake);
}

void PX_Std_Plotter_IO_Configuration::set_input_timeout(long timeout) {
    m_input_timeout = timeout;
    clear_flags_of(Datum::IO_Config_Input_Timeout);
}

void PX_Std_Plotter_IO_Configuration::set_output_timeout(long timeout) {
    m_output_timeout = timeout;
    clear_flags_of(Datum::IO_Config_Output_Timeout);
}

void PX_Std_Plotter_IO_Configuration::set_pathname(const wchar_t* path) {
    m_pathname = path;
    clear_flags_of(Datum::IO_Config_Pathname);
}

PX_Plotter_IO_Configuration* PX_Std_Plotter_IO_Configuration::clone() const {
    return px_clone<PX_Std_Plotter_IO_Configuration>(
        L"PX_Std_Plotter_IO_Configuration::clone", px_std_io_cfg_source.file_tag, [this](auto& new_one) {
            new_one.set_portname(m_portname);
            new_one.set_type(m_type);
            new_one.set_protocol(m_protocol);
            new_one.set_baud_rate(m_baud_rate);
            new_one.set_handshake(m_handshake);
            new_one.set_input_timeout(m_input_timeout);
            new_one.set_output_timeout(m_output_timeout);
            new_one.set_pathname(m_pathname);
            new_one.set_plot_to_file(m_plot_to_file);
            new_one.set_all_system_ports_valid(m_all_system_ports_valid);
            // After the data, whose setters clear them.
            copy_flags_to(new_one);
        });
}
