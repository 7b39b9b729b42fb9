#pragma once

#include <memory>

#include "toolkit/host/object.h"
#include "toolkit/host/string.h"
#include "toolkit/marvcon/std_io_cfg/interface.h"
#include "toolkit/marvcon/std_meta_cfg/interface.h"
#include "toolkit/marvcon/std_plotter_def/interface.h"
#include "toolkit/marvcon/std_plotter_io/buffer.h"
#include "toolkit/platform/spooler_records.h"

class PX_EXPORT PX_Std_Plotter_IO : public PX_Plotter_IO, public PX_Object {
public:
    // A null handler is taken; what has to be asked or told then is MVNK_Error 1103.
    explicit PX_Std_Plotter_IO(PX_Smart_Pointer<PX_Error_Handler> handler);
    // Closes. Whatever is thrown by that is lost.
    ~PX_Std_Plotter_IO() override;
    PX_Std_Plotter_IO(const PX_Std_Plotter_IO&) = delete;
    PX_Std_Plotter_IO& operator=(const PX_Std_Plotter_IO&) = delete;

    bool configure(const PX_Plotter_Definition* plotter) override;
    const wchar_t* get_document_name() const override { return m_document_name; }
    bool get_io_buffering() const override { return m_io_buffering; }
    long get_buffer_size() const override;
    bool get_handle_ari_for_drv() const override { return m_handle_ari_for_drv; }
    bool get_spooling() const override { return m_spooling; }
    void set_document_name(const wchar_t* name) override { m_document_name = name; }
    void set_io_buffering(bool on) override;
    void set_buffer_size(long size) override;
    void set_handle_ari_for_drv(bool on) override { m_handle_ari_for_drv = on; }
    void set_document_info(const PX_Document_Info* info) override;
    bool open() override;
    bool close() override;
    long read(char* buffer, unsigned long size) override;
    long write(const char* bytes, unsigned long size) override;
    bool flush() override;
    void purge() override;

private:
    using Answer = PX_Error_Handler::PX_Error_Result;

    PX_Error_Handler& handler() const;
    Answer ask(unsigned int code, const wchar_t* function) const;
    bool is_to_file() const { return m_configuration->get_plot_to_file(); }
    bool is_local_port() const { return m_type == PX_IO_Type::Serial || m_type == PX_IO_Type::Parallel; }
    bool goes_to_queue() const { return (m_type == PX_IO_Type::Network && !is_to_file()) || m_spooling; }
    bool decide_spooling();
    void make_buffer(const wchar_t* function);
    void empty_buffer();
    void empty_buffer_asking();
    bool flush_buffer();
    long send(const char* bytes, unsigned long size);
    template <class Write_Some, class Ask>
    long send_all(const char* bytes, unsigned long size, Write_Some write_some, Ask ask);

    // local_port.cpp
    void open_local();
    bool configure_local_port();
    bool configure_serial_line();
    bool close_local();
    long write_local(const char* bytes, unsigned long size);
    Answer ask_about_stall(bool failed);
    unsigned int stall_code() const;
    unsigned int line_error_code() const;
    void purge_local();

    // print_queue.cpp
    void open_net_spool();
    void start_job();
    bool close_net_spool();
    long write_net_spool(const char* bytes, unsigned long size);
    void purge_net_spool();

    // port_conflict.cpp
    bool detect_port_conflict();
    std::size_t find_monitorless_printer(std::span<PRINTER_INFO_2W> printers);
    bool is_monitorless(const wchar_t* driver_name);
    void announce_conflict();

    PX_Smart_Pointer<PX_Error_Handler> m_error_handler;
    // The definition's parts are not owned.
    PX_Plotter_IO_Configuration* m_configuration = nullptr;
    PX_IO_Type::Enum m_type = PX_IO_Type::No_IO_Type;
    PX_IO_Method* m_method = nullptr;
    PX_Protocol* m_protocol = nullptr;
    PX_String m_portname;
    bool m_configured = false;
    bool m_open = false;
    HANDLE m_device = nullptr;
    PX_String m_document_name;
    bool m_io_buffering = true;
    std::unique_ptr<PX_IO_Buffer> m_buffer;
    long m_buffer_size = PX_IO_Buffer::usual_length;
    bool m_spooling = false;
    PX_Spool_Announce::Enum m_spool_announce = PX_Spool_Announce::Box_Always;
    PX_String m_friendly_net_name;
    PX_String m_short_net_name;
    unsigned long m_job_id = 0;
    bool m_handle_ari_for_drv = true;
    // The port's settings before they were changed, where they could be read.
    COMMTIMEOUTS m_saved_timeouts{};
    bool m_has_saved_timeouts = false;
    DWORD m_saved_event_mask = 0;
    bool m_has_saved_event_mask = false;
    DCB m_saved_comm_state{};
    bool m_has_saved_comm_state = false;
    bool m_aborted = false;
    std::unique_ptr<PX_Spooler_Records<DRIVER_INFO_3W>> m_driver_table;
};
