#include "examples/drivers/pen_plotter/definition.h"

#include "examples/common/made.h"
#include "examples/common/own_strings.h"
#include "examples/common/text.h"
#include "examples/common/ways_out.h"
#include "examples/drivers/pen_plotter/media.h"
#include "examples/drivers/pen_plotter/pens.h"

namespace {

constexpr wchar_t maker[] = L"Example Works";
constexpr wchar_t model_name[] = L"Example Works PP 8";

// The plotter is turned on and told to hold the line by XON and XOFF; then it enters the language, and in the
// end leaves it and is turned off.
const Own_Strings own_strings = {"\033.(\033.I81;;17:\033.N;19:", "\033%0B", "\033%0A\033.)"};

// A pen needs its time for a long stroke, and nothing is taken meanwhile.
constexpr long timeout = 60000;

Serial_Settings line_settings() {
    using Handshake = PX_Handshake;
    return {{{L"8N1", PX_Data_Bits::Data_Bits_8, PX_Parity::Parity_None},
             {L"7E1", PX_Data_Bits::Data_Bits_7, PX_Parity::Parity_Even}},
            {2400, 4800, 9600, 19200, 38400},
            9600,
            Handshake::Handshake_Xon_In | Handshake::Handshake_Xon_Out | Handshake::Handshake_Cts_Out |
                Handshake::Handshake_Rts_Handshake,
            Handshake::Handshake_Xon_Out};
}

class Pen_Plotter_Factory : public PX_Std_Plotter_Class_Factory {
public:
    PX_InitTerm_Validator* MK_Create_InitTerm_Validator(PX_Plotter_Definition* plotter) const override {
        return new Own_Strings_Validator(plotter, own_strings);
    }
    PX_PhysPen_Validator* MK_Create_Pen_Validator(PX_Plotter_Definition* plotter) const override {
        return new Carousel_Validator(plotter);
    }
};

PX_Smart_Pointer<PX_Meta_Capabilities> identity(const std::filesystem::path& name,
                                                const PX_Plotter_Class_Factory& factory) {
    auto meta = made(factory.MK_Create_Meta_Capabilities(), L"meta_capabilities");
    meta->set_driver_pathname(text::from_utf8(name.string()).c_str());
    meta->set_driver_version(L"1.0");
    meta->set_driver_description(L"Flat-bed plotter with eight pens");
    const auto family = made(factory.MK_Create_Family(), L"family");
    family->set_canonical_name(maker);
    family->set_localized_name(maker);
    meta->set_family(family.get());
    const auto model = made(factory.MK_Create_Model(), L"model");
    model->set_canonical_name(model_name);
    model->set_localized_name(model_name);
    meta->set_model(model.get());
    return meta;
}

class Pen_Plotter : public PX_Std_Plotter_Definition {
public:
    Pen_Plotter(const std::filesystem::path& name, PX_Smart_Pointer<PX_Error_Handler> handler)
        : PX_Std_Plotter_Definition(std::move(handler)) {
        // The base has made the standard ones.
        m_class_factory = made<PX_Plotter_Class_Factory>(new Pen_Plotter_Factory, L"m_class_factory");
        const PX_Plotter_Class_Factory& factory = *m_class_factory;
        m_plotter_validator = made(factory.MK_Create_Plotter_Validator(this), L"m_plotter_validator");
        m_meta_capabilities = identity(name, factory);
        m_plotter_capabilities =
            made(factory.MK_Create_Plotter_Capabilities(maker, maker, model_name), L"m_plotter_capabilities");
        m_plotter_capabilities->set_init_term_capabilities(
            own_strings_capabilities(own_strings, factory).get());
        m_plotter_capabilities->set_media_capabilities(pen_plotter_media(factory).get());
        m_plotter_capabilities->set_phys_pen_capabilities(carousel_capabilities(factory).get());
        // Pens have their colours; there is no raster to choose for.
        m_plotter_capabilities->set_res_color_mem_capabilities(
            made(factory.MK_Create_ResColorMem_Capabilities(), L"res_color_mem_capabilities").get());
        m_plotter_capabilities->set_io_capabilities(
            ways_out(line_settings(), L"plt", timeout, factory).get());
    }
};

}  // namespace

PX_Smart_Pointer<PX_Plotter_Definition> open_pen_plotter(const std::filesystem::path& name,
                                                         PX_Smart_Pointer<PX_Error_Handler> handler) {
    return made<PX_Plotter_Definition>(new Pen_Plotter(name, std::move(handler)), L"definition");
}
