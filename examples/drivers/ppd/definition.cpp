#include "examples/drivers/ppd/definition.h"

#include "examples/common/made.h"
#include "examples/common/own_strings.h"
#include "examples/common/ways_out.h"
#include "examples/drivers/ppd/media.h"
#include "examples/drivers/ppd/meta.h"
#include "examples/drivers/ppd/res_color_mem.h"

namespace {

Own_Strings strings_of(const Ppd_File& file) {
    return {file.job_begin(), file.enter_language(), file.job_end()};
}

// Of these a description says nothing. PostScript wants all eight bits; whether seven will do is the
// printer's secret.
PX_Smart_Pointer<PX_Plotter_IO_Capabilities> usual_ways_out(const PX_Plotter_Class_Factory& factory) {
    constexpr long timeout = 30000;
    const Serial_Settings line = {{{L"8N1", PX_Data_Bits::Data_Bits_8, PX_Parity::Parity_None},
                                   {L"8O1", PX_Data_Bits::Data_Bits_8, PX_Parity::Parity_Odd},
                                   {L"8E1", PX_Data_Bits::Data_Bits_8, PX_Parity::Parity_Even}},
                                  {9600, 19200, 38400, 115200},
                                  9600,
                                  PX_Handshake::Handshake_Xon_In | PX_Handshake::Handshake_Xon_Out |
                                      PX_Handshake::Handshake_Cts_Out | PX_Handshake::Handshake_Rts_Handshake,
                                  PX_Handshake::Handshake_Xon_Out};
    return ways_out(line, L"ps", timeout, factory);
}

}  // namespace

Ppd_Class_Factory::Ppd_Class_Factory(std::shared_ptr<const Ppd_File> file) : m_file(std::move(file)) {
}

PX_Media_Validator* Ppd_Class_Factory::MK_Create_Media_Validator(PX_Plotter_Definition* plotter) const {
    return new Ppd_Media_Validator(plotter);
}

PX_InitTerm_Validator* Ppd_Class_Factory::MK_Create_InitTerm_Validator(PX_Plotter_Definition* plotter) const {
    return new Own_Strings_Validator(plotter, strings_of(*m_file));
}

PX_ResColorMem_Validator* Ppd_Class_Factory::MK_Create_ResColorMem_Validator(
    PX_Plotter_Definition* plotter) const {
    return new Ppd_ResColorMem_Validator(plotter, m_file);
}

Ppd_Definition::Ppd_Definition(PX_Smart_Pointer<PX_Error_Handler> handler,
                               std::shared_ptr<const Ppd_File> file)
    : PX_Std_Plotter_Definition(std::move(handler)) {
    // The base has made the standard factory, and a validator out of it: both give way, the factory first.
    m_class_factory = made<PX_Plotter_Class_Factory>(new Ppd_Class_Factory(file), L"m_class_factory");
    const PX_Plotter_Class_Factory& factory = *m_class_factory;
    m_plotter_validator = made(factory.MK_Create_Plotter_Validator(this), L"m_plotter_validator");

    m_meta_capabilities = ppd_meta_capabilities(*file, factory);
    const auto family = m_meta_capabilities->get_family();
    const auto model = m_meta_capabilities->get_model();
    m_plotter_capabilities =
        made(factory.MK_Create_Plotter_Capabilities(
                 family->get_canonical_name(), family->get_canonical_name(), model->get_canonical_name()),
             L"m_plotter_capabilities");
    m_plotter_capabilities->set_init_term_capabilities(
        own_strings_capabilities(strings_of(*file), factory).get());
    m_plotter_capabilities->set_media_capabilities(ppd_media_capabilities(*file, factory).get());
    // It has no pens.
    m_plotter_capabilities->set_phys_pen_capabilities(
        made(factory.MK_Create_Pen_Capabilities(), L"phys_pen_capabilities").get());
    m_plotter_capabilities->set_res_color_mem_capabilities(
        ppd_res_color_mem_capabilities(*file, factory).get());
    m_plotter_capabilities->set_io_capabilities(usual_ways_out(factory).get());
}

PX_Smart_Pointer<PX_Plotter_Definition> open_ppd_device(const std::filesystem::path& description,
                                                        PX_Smart_Pointer<PX_Error_Handler> handler) {
    auto file = std::make_shared<const Ppd_File>(description);
    return made<PX_Plotter_Definition>(new Ppd_Definition(std::move(handler), std::move(file)),
                                       L"definition");
}
