#include "toolkit/marvcon/std_custom_cfg/capabilities.h"

#include "toolkit/core/clone.h"

namespace {

constexpr const wchar_t* file_tag = px_std_custom_cfg_source.file_tag;

}  // namespace

PX_Custom_Capabilities::~PX_Custom_Capabilities() = default;

void PX_Std_Custom_Capabilities::set_custom_list(const PX_Named_Object_List<PX_Custom_Capability>* list) {
    px_store_list(m_custom_list, list, L"PX_Std_Custom_Capabilities::set_custom_list", L"copy_list",
                  file_tag);
}

PX_Custom_Capabilities* PX_Std_Custom_Capabilities::clone() const {
    return px_clone<PX_Std_Custom_Capabilities>(
        L"PX_Std_Custom_Capabilities::clone", file_tag,
        [this](auto& new_one) { new_one.set_custom_list(m_custom_list.get()); });
}
