#include "toolkit/marvcon/std_linetype_caps/capabilities.h"

#include "toolkit/core/clone.h"

PX_Linetype_Capabilities::~PX_Linetype_Capabilities() = default;

PX_Linetype_Capabilities* PX_Std_Linetype_Capabilities::clone() const {
    return px_clone<PX_Std_Linetype_Capabilities>(
        L"PX_Std_Linetype_Capabilities::clone", px_std_linetype_caps_source.file_tag, [this](auto& new_one) {
            new_one.set_linefont_capabilities(get_linefont_capabilities());
            for (int i = 0; i < PX_Line_Pattern::count; ++i) {
                const auto pattern = static_cast<PX_Line_Pattern::Enum>(i);
                new_one.set_linefont_size(pattern, get_linefont_size(pattern));
            }
            new_one.set_abilities(get_abilities());
            new_one.set_caps_state(get_caps_state());
        });
}
