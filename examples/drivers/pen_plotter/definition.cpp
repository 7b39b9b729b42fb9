#include "examples/drivers/pen_plotter/definition.h"

#include <utility>

#include "examples/common/any_source.h"
#include "examples/common/device.h"
#include "examples/common/made.h"
#include "examples/common/own_strings.h"
#include "examples/common/text.h"
#include "examples/common/ways_out.h"
#include "examples/drivers/pen_plotter/linetypes.h"
#include "examples/drivers/pen_plotter/media.h"
#include "examples/drivers/pen_plotter/pens.h"
#include "examples/drivers/pen_plotter/settings.h"

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
    PX_Media_Validator* MK_Create_Media_Validator(PX_Plotter_Definition* plotter) const override {
        return new Any_Source_Validator(plotter);
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
    const auto family = made_named(factory.MK_Create_Family(), L"family", maker, maker);
    meta->set_family(family.get());
    const auto model = made_named(factory.MK_Create_Model(), L"model", model_name, model_name);
    meta->set_model(model.get());
    return meta;
}

}  // namespace

PX_Smart_Pointer<PX_Plotter_Definition> open_pen_plotter(const std::filesystem::path& name,
                                                         PX_Smart_Pointer<PX_Error_Handler> handler) {
    const auto own = made<PX_Plotter_Class_Factory>(new Pen_Plotter_Factory, L"class_factory");
    const PX_Plotter_Class_Factory& factory = *own;
    return described_device(std::move(handler), own,
                            {.identity = identity(name, factory),
                             .strings = own_strings_capabilities(own_strings, factory),
                             .media = pen_plotter_media(factory),
                             .pens = carousel_capabilities(factory),
                             // The pens have their colours; there is no raster to choose for.
                             .color = nullptr,
                             .ways_out = ways_out(line_settings(), L"plt", timeout, factory),
                             .settings = pen_plotter_settings(factory),
                             .linetypes = pen_plotter_linetypes(factory)});
}
