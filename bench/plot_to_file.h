#pragma once

#include <memory>
#include <string>

#include "bench/handler.h"
#include "toolkit/marvcon/marvcon.h"

namespace bench {

// The output channel, open to that file while it lives.
class Plot_To_File {
public:
    explicit Plot_To_File(const std::wstring& path) {
        const auto factory = m_plotter->get_class_factory();
        m_plotter->set_meta_capabilities(factory->MK_Create_Meta_Capabilities());
        m_plotter->set_plotter_capabilities(factory->MK_Create_Plotter_Capabilities(L"", L"", L""));
        m_plotter->set_plotter_configuration(factory->MK_Create_Plotter_Configuration(L"", L"", L""));
        const PX_Std_Plotter_IO_Capabilities capabilities;
        m_plotter->get_plotter_capabilities()->set_io_capabilities(&capabilities);
        PX_Std_Plotter_IO_Configuration choices;
        choices.set_type(PX_IO_Type::File);
        choices.set_plot_to_file(true);
        choices.set_portname(path.c_str());
        m_plotter->get_plotter_configuration()->set_io_configuration(&choices);
        m_io.reset(factory->MK_Create_Plotter_IO(new Handler));
        m_is_open = m_io->configure(m_plotter.get()) && m_io->open();
    }
    bool is_open() const { return m_is_open; }
    PX_Plotter_IO& io() const { return *m_io; }

private:
    const PX_Smart_Pointer<PX_Plotter_Definition> m_plotter{new PX_Std_Plotter_Definition(new Handler)};
    std::unique_ptr<PX_Plotter_IO> m_io;
    bool m_is_open;
};

}  // namespace bench
