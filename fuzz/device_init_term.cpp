#include <vector>

#include "fuzz/device.h"

namespace fuzz {

void fill(Input& input, PX_InitTerm_Capabilities& caps, PX_InitTerm_Configuration& cfg) {
    using Configuration = PX_InitTerm_Configuration;
    fill_abilities(input, caps);
    using Set = void (Configuration::*)(unsigned char*, long);
    for (const Set set : {static_cast<Set>(&Configuration::set_preinit_string),
                          static_cast<Set>(&Configuration::set_postinit_string),
                          static_cast<Set>(&Configuration::set_termination_string)}) {
        std::vector<unsigned char> bytes(static_cast<std::size_t>(input.up_to(4)));
        for (unsigned char& each : bytes)
            each = input.byte();
        const bool has_none = input.rarely();
        const long length = input.rarely() ? -1 : static_cast<long>(bytes.size());
        (cfg.*set)(has_none ? nullptr : bytes.data(), length);
    }
}

void tell(std::wostream& out, const PX_InitTerm_Configuration& cfg) {
    for (const auto& string :
         {cfg.get_preinit_string(), cfg.get_postinit_string(), cfg.get_termination_string()})
        tell_all(out, support::bytes(string).c_str());
}

}  // namespace fuzz
