#include "fuzz/custom.h"
#include "fuzz/device.h"

namespace fuzz {

void fill(Input& input, PX_InitTerm_Capabilities& caps, PX_InitTerm_Configuration& cfg) {
    using Cfg = PX_InitTerm_Configuration;
    fill_abilities(input, caps);
    using Set = void (Cfg::*)(unsigned char*, long);
    for (const Set set :
         {static_cast<Set>(&Cfg::set_preinit_string), static_cast<Set>(&Cfg::set_postinit_string),
          static_cast<Set>(&Cfg::set_termination_string)}) {
        Bytes string = bytes(input, 4);
        const long length = input.rarely() ? -1 : static_cast<long>(string.size());
        (cfg.*set)(input.rarely() ? nullptr : string.data(), length);
    }
}

void tell(std::wostream& out, const PX_InitTerm_Configuration& cfg) {
    for (const auto& string :
         {cfg.get_preinit_string(), cfg.get_postinit_string(), cfg.get_termination_string()})
        tell_all(out, support::bytes(string).c_str());
}

}  // namespace fuzz
