#include "examples/drivers/ppd/definition.h"

#include <memory>
#include <utility>

#include "examples/common/any_source.h"
#include "examples/common/device.h"
#include "examples/common/made.h"
#include "examples/common/own_strings.h"
#include "examples/common/ways_out.h"
#include "examples/drivers/ppd/media.h"
#include "examples/drivers/ppd/meta.h"
#include "examples/drivers/ppd/options.h"
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

// Makes the standard classes, and the driver's own where the description has a say.
class Ppd_Class_Factory : public PX_Std_Plotter_Class_Factory {
public:
    explicit Ppd_Class_Factory(std::shared_ptr<const Ppd_File> file) : m_file(std::move(file)) {}

    PX_Media_Validator* MK_Create_Media_Validator(PX_Plotter_Definition* plotter) const override {
        return new Any_Source_Validator(plotter);
    }
    PX_InitTerm_Validator* MK_Create_InitTerm_Validator(PX_Plotter_Definition* plotter) const override {
        return new Own_Strings_Validator(plotter, strings_of(*m_file));
    }
    PX_ResColorMem_Validator* MK_Create_ResColorMem_Validator(PX_Plotter_Definition* plotter) const override {
        return new Ppd_ResColorMem_Validator(plotter, m_file);
    }

    const Ppd_File& file() const { return *m_file; }

private:
    std::shared_ptr<const Ppd_File> m_file;
};

}  // namespace

PX_Smart_Pointer<PX_Plotter_Definition> open_ppd_device(const std::filesystem::path& description,
                                                        PX_Smart_Pointer<PX_Error_Handler> handler) {
    const auto file = std::make_shared<const Ppd_File>(description);
    const auto own = made<PX_Plotter_Class_Factory>(new Ppd_Class_Factory(file), L"class_factory");
    const PX_Plotter_Class_Factory& factory = *own;
    return described_device(std::move(handler), own,
                            {.identity = ppd_meta_capabilities(*file, factory),
                             .strings = own_strings_capabilities(strings_of(*file), factory),
                             .media = ppd_media_capabilities(*file, factory),
                             .pens = nullptr,
                             .color = ppd_res_color_mem_capabilities(*file, factory),
                             .ways_out = usual_ways_out(factory),
                             .settings = ppd_custom_capabilities(*file, factory)});
}

const Ppd_File& ppd_file_of(const PX_Plotter_Definition& device) {
    return dynamic_cast<const Ppd_Class_Factory&>(*device.get_class_factory()).file();
}
