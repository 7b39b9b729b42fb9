#include "examples/drivers/ppd/definition.h"

#include "examples/common/made.h"
#include "examples/drivers/ppd/init_term.h"
#include "examples/drivers/ppd/io.h"
#include "examples/drivers/ppd/media.h"
#include "examples/drivers/ppd/meta.h"

Ppd_Class_Factory::Ppd_Class_Factory(std::shared_ptr<const Ppd_File> file) : m_file(std::move(file)) {
}

PX_Media_Validator* Ppd_Class_Factory::MK_Create_Media_Validator(PX_Plotter_Definition* plotter) const {
    return new Ppd_Media_Validator(plotter);
}

PX_InitTerm_Validator* Ppd_Class_Factory::MK_Create_InitTerm_Validator(PX_Plotter_Definition* plotter) const {
    return new Ppd_InitTerm_Validator(plotter, m_file);
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
    m_plotter_capabilities->set_init_term_capabilities(ppd_init_term_capabilities(*file, factory).get());
    m_plotter_capabilities->set_media_capabilities(ppd_media_capabilities(*file, factory).get());
    m_plotter_capabilities->set_io_capabilities(ppd_io_capabilities(factory).get());
}

PX_Smart_Pointer<PX_Plotter_Definition> open_ppd_device(const std::filesystem::path& description,
                                                        PX_Smart_Pointer<PX_Error_Handler> handler) {
    auto file = std::make_shared<const Ppd_File>(description);
    return made<PX_Plotter_Definition>(new Ppd_Definition(std::move(handler), std::move(file)),
                                       L"definition");
}
