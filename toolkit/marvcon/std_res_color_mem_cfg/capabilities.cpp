#include "toolkit/marvcon/std_res_color_mem_cfg/capabilities.h"

#include "toolkit/core/clone.h"

using Ability = PX_ResColorMem_Ability_Flags;

namespace {

constexpr const wchar_t* file_tag = px_std_res_color_mem_cfg_source.file_tag;

}  // namespace

PX_ResColorMem_Capabilities::~PX_ResColorMem_Capabilities() = default;

PX_Std_ResColorMem_Capabilities::PX_Std_ResColorMem_Capabilities()
    : m_prepared_resolutions(px_new_list<PX_RCM_ResName, PX_Sortable_Atomic_Object_List>()),
      m_prepared_num_colors(px_new_list<PX_RCM_PreparedColorCountDepth, PX_Sortable_Atomic_Object_List>()) {
}

void PX_Std_ResColorMem_Capabilities::set_res_color_mem_list(
    const PX_Named_Object_List<PX_ResColorMem>* list) {
    px_store_list_or_empty(m_rescolormem_list, list,
                           L"PX_Std_ResColorMem_Capabilities::set_res_color_mem_list", L"m_rescolormem_list",
                           file_tag);
}

void PX_Std_ResColorMem_Capabilities::set_default_res_color_mem(const wchar_t* name) {
    px_store_name(m_default_res_color_mem, name,
                  L"PX_Std_ResColorMem_Capabilities::set_default_res_color_mem", L"rcm", file_tag);
}

void PX_Std_ResColorMem_Capabilities::set_mem_area_list(const PX_Named_Object_List<PX_Mem_Area>* list) {
    px_store_list_or_empty(m_mem_area_list, list, L"PX_Std_ResColorMem_Capabilities::set_mem_area_list",
                           L"m_mem_area_list", file_tag);
}

void PX_Std_ResColorMem_Capabilities::set_dithering_list(
    const PX_Named_Object_List<PX_Dithering_Method>* list) {
    px_store_list_or_empty(m_dithering_list, list, L"PX_Std_ResColorMem_Capabilities::set_dithering_list",
                           L"m_dithering_list", file_tag);
}

// The modes that one of the two sets of prepared lists is about.
template <class Call>
void PX_Std_ResColorMem_Capabilities::for_each_mode(bool undithered, Call call) const {
    const auto modes = get_res_color_mem_list();
    if (!modes)
        return;
    for (const auto& mode : *modes) {
        if (px_is_there(mode) && (mode->get_num_undithered_colors() > 0) == undithered)
            call(*mode);
    }
}

PX_Smart_Pointer<PX_Sortable_Atomic_Object_List<PX_RCM_ResName>>
PX_Std_ResColorMem_Capabilities::get_prepared_resolutions(bool undithered) {
    m_prepared_resolutions = px_new_list<PX_RCM_ResName, PX_Sortable_Atomic_Object_List>();
    auto& prepared = *m_prepared_resolutions;
    if (get_one_ability(Ability::RCM_Res_Color_Mem_List) > 0 &&
        get_one_ability(Ability::RCM_Resolution_List) > 0)
        for_each_mode(undithered, [&](const PX_ResColorMem& mode) {
            const auto resolutions = mode.get_resolution_list();
            if (!resolutions)
                return;
            for (const auto& resolution : *resolutions) {
                if (!px_is_there(resolution))
                    continue;
                const auto effective = resolution->get_effective_resolution_xy();
                const PX_RCM_ResName named{effective->x, effective->y, resolution->get_localized_name()};
                if (!prepared.find(named))
                    prepared.append(named);
            }
        });
    prepared.sort(false);
    return m_prepared_resolutions;
}

PX_Smart_Pointer<PX_Sortable_Atomic_Object_List<PX_RCM_PreparedColorCountDepth>>
PX_Std_ResColorMem_Capabilities::get_prepared_num_colors(bool undithered) {
    m_prepared_num_colors = px_new_list<PX_RCM_PreparedColorCountDepth, PX_Sortable_Atomic_Object_List>();
    auto& prepared = *m_prepared_num_colors;
    if (get_one_ability(Ability::RCM_Res_Color_Mem_List) > 0)
        for_each_mode(undithered, [&](const PX_ResColorMem& mode) {
            const PX_RCM_PreparedColorCountDepth named{mode.get_canonical_name(), mode.get_localized_name(),
                                                       mode.get_num_colors(), mode.get_color_depth()};
            if (!prepared.find(named))
                prepared.append(named);
        });
    prepared.sort(false);
    return m_prepared_num_colors;
}

PX_ResColorMem_Capabilities* PX_Std_ResColorMem_Capabilities::clone() const {
    return px_clone<PX_Std_ResColorMem_Capabilities>(
        L"PX_Std_ResColorMem_Capabilities::clone", file_tag, [this](auto& new_one) {
            new_one.set_res_color_mem_list(m_rescolormem_list.get());
            new_one.set_default_res_color_mem(m_default_res_color_mem);
            new_one.set_memory_changes_print_area(m_memory_changes_print_area);
            new_one.set_mem_area_list(m_mem_area_list.get());
            new_one.set_dithering_list(m_dithering_list.get());
            new_one.set_abilities(get_abilities());
            new_one.set_caps_state(get_caps_state());
            new_one.set_ui_owner(get_ui_owner());
        });
}
