#include "toolkit/report/domain_checks.h"

// Resolution, colour and memory: each is looked for in the colour mode that is chosen.

using Ability = PX_ResColorMem_Ability_Flags;
using Datum = PX_ResColorMem_Config_Flags;
using Fault = PX_Device_Fault;

namespace {

constexpr unsigned int nothing_there = PX_Code::Null_Argument;

constexpr PX_Gate<Ability> gates[] = {{Ability::RCM_Res_Color_Mem, L"colour mode"},
                                      {Ability::RCM_Resolution, L"resolution"},
                                      {Ability::RCM_HardSoftNo_Dithering, L"dithering"},
                                      {Ability::RCM_Lines_Overwrite, L"lines overwrite"},
                                      {Ability::RCM_Color_Vs_Mono, L"colour or monochrome"},
                                      {Ability::RCM_Rast_Color_Vs_Res_Pref, L"raster preference"},
                                      {Ability::RCM_Installed_Memory, L"installed memory"},
                                      {Ability::RCM_ISM_Max_Mem, L"first limit of memory"},
                                      {Ability::RCM_OLE_Max_Mem, L"second limit of memory"},
                                      {Ability::RCM_Icm_Method, L"colour management method"},
                                      {Ability::RCM_Icm_Intent, L"colour management intent"},
                                      {Ability::RCM_Dm_Color, L"device-mode colour"}};

class Color_Check {
public:
    Color_Check(const PX_ResColorMem_Capabilities& device, const PX_Findings& found)
        : m_device(device),
          m_found(found),
          m_modes(device.get_res_color_mem_list()),
          m_mode_is_sure(of(Ability::RCM_Res_Color_Mem).is_listed()),
          // From the conditional ability of the mode on; the mode itself is sure from the listed one on.
          m_resolution_has_default((of(Ability::RCM_Res_Color_Mem).is_conditional() ||
                                    of(Ability::RCM_Res_Color_Mem).is_listed()) &&
                                   of(Ability::RCM_Resolution).is_listed()),
          m_resolution_is_validated(of(Ability::RCM_Resolution).is_validated()),
          m_dithers(of(Ability::RCM_HardSoftNo_Dithering).is_validated() &&
                    of(Ability::RCM_Res_Color_Mem_List).is_above_none() &&
                    of(Ability::RCM_Resolution_List).is_above_none()),
          m_counts_memory(of(Ability::RCM_Installed_Memory).is_validated() &&
                          of(Ability::RCM_Mem_Area).is_required()) {}

    void run() const {
        px_check_gates(m_device, gates, m_found);
        const bool mode_is_validated = of(Ability::RCM_Res_Color_Mem).is_validated();
        px_check_names(m_modes, L"", L"colour mode",
                       px_repeating(m_found, px_bits_if(mode_is_validated,
                                                        px_rcm_change_bit(Datum::RCM_Cfg_Res_Color_Mem))));
        px_check_names(m_device.get_mem_area_list(), L"", L"memory area", px_passing_over(m_found));
        px_check_names(m_device.get_dithering_list(), L"", L"dithering method", px_passing_over(m_found));
        check_modes();
        check_order();
        px_for_each_named(m_modes, [&](const PX_ResColorMem& mode) {
            if (!m_mode_is_sure || !px_is_withdrawn(mode))
                check_resolutions(mode);
        });
        if (mode_is_validated && m_mode_is_sure)
            px_for_each_fallen_back_on(m_modes, [&](const PX_ResColorMem& mode) {
                check_resolutions_to_take(mode, px_named(L"colour mode", mode));
            });
    }

private:
    PX_Ability_Of of(Ability::Enum flag) const { return px_ability_of(m_device, gates, flag); }

    void check_modes() const {
        const bool is_validated = of(Ability::RCM_Res_Color_Mem).is_validated();
        if (is_validated && !m_modes)
            m_found.throws(L"colour modes", Fault::List_Missing, nothing_there, L"res_color_mem_list");
        else if (is_validated && !px_has_one_there(m_modes, is_near))
            m_found.throws(L"colour modes", Fault::Nothing_To_Take, nothing_there, L"rcm");
        if (is_validated)
            px_for_each_there(m_modes, [&](const PX_ResColorMem& mode) {
                if (mode.get_color_system() == PX_Color_System::Color_System_Undefined)
                    m_found.repeats(px_named(L"colour mode", mode), Fault::Color_System_Undefined,
                                    px_rcm_change_bit(Datum::RCM_Cfg_Res_Color_Mem));
            });
        if (is_validated && !m_mode_is_sure)
            m_found.repeats(L"colour mode", Fault::Default_Not_Written,
                            px_rcm_change_bit(Datum::RCM_Cfg_Res_Color_Mem));
        if (!m_mode_is_sure)
            return;
        const wchar_t* const name = m_device.get_default_res_color_mem();
        const auto preset = m_device.get_res_color_mem(name);
        if (!preset)
            m_found.throws(px_named(L"default colour mode", name), Fault::Names_Nothing, nothing_there,
                           L"rcm");
        else if (!px_is_there(preset))
            m_found.throws(px_named(L"default colour mode", name), Fault::Names_Withdrawn,
                           PX_RCM_Code::Default_Mode);
    }

    // To a choice that was never made, as the search measures.
    static bool is_near(const PX_ResColorMem& mode) {
        const auto size_of = [](long number) { return std::fabs(static_cast<double>(number)); };
        const float colors = static_cast<float>(size_of(mode.get_num_colors())) * 0.1F;
        return double{colors} + size_of(mode.get_color_depth()) + size_of(mode.get_num_undithered_colors()) +
                   100.0 <
               px_worst_score;
    }

    // What needs a mode or a resolution, where no default makes them good.
    void check_order() const {
        if (m_resolution_has_default && !m_mode_is_sure)
            m_found.throws(L"default resolution", Fault::Not_Ensured, nothing_there, L"rcm");
        if (m_resolution_is_validated && !m_resolution_has_default)
            m_found.repeats(L"resolution", Fault::Default_Not_Written,
                            px_rcm_change_bit(Datum::RCM_Cfg_Resolution));
        const auto require = [&](bool is_needed, bool is_sure, const wchar_t* object, const wchar_t* detail) {
            if (is_needed && !is_sure)
                m_found.throws(object, Fault::Not_Ensured, nothing_there, detail);
        };
        require(m_resolution_is_validated, m_mode_is_sure, L"resolution", L"res_color_mem_list");
        for (const auto& [is_needed, object] :
             {std::pair(m_dithers, L"dithering"), {m_counts_memory, L"installed memory"}}) {
            require(is_needed, m_mode_is_sure, object, L"res_color_mem_list");
            require(is_needed, m_resolution_has_default, object, L"resolution");
        }
    }

    void check_resolutions(const PX_ResColorMem& mode) const {
        const std::wstring way = px_named(L"colour mode", mode);
        const auto resolutions = mode.get_resolution_list();
        px_check_names(resolutions, way, L"resolution",
                       px_repeating(m_found, px_bits_if(m_resolution_is_validated,
                                                        px_rcm_change_bit(Datum::RCM_Cfg_Resolution))));
        check_resolutions_to_take(mode, way);
        const wchar_t* const name = mode.get_default_resolution();
        const auto preset = mode.get_resolution(name);
        px_for_each_named(resolutions, [&](const PX_Resolution& resolution) {
            if (!m_resolution_has_default || !px_is_withdrawn(resolution))
                check_resolution(resolution, px_in(way, px_named(L"resolution", resolution)),
                                 m_resolution_has_default && preset.get() == &resolution);
        });
        if (!m_resolution_has_default)
            return;
        const std::wstring object = px_in(way, px_named(L"default resolution", name));
        if (!preset)
            m_found.throws(object, Fault::Names_Nothing, nothing_there, L"resolution");
        else if (!px_is_there(preset))
            m_found.throws(object, Fault::Names_Withdrawn, PX_RCM_Code::Default_Resolution);
        else if (const auto method = dithering_of(*preset); needs_method() && !px_is_there(method))
            m_found.throws(px_in(object, px_named(L"dithering", preset->get_dithering_name())),
                           px_fault_of_name(method), PX_RCM_Code::Default_Resolution);
    }

    void check_resolutions_to_take(const PX_ResColorMem& mode, const std::wstring& way) const {
        if (m_resolution_is_validated && !px_has_one_there(mode.get_resolution_list(), has_measures))
            m_found.throws(px_in(way, L"resolutions"), Fault::Nothing_To_Take, nothing_there, L"resolution");
    }

    // The search begins at the largest number that there is.
    static bool has_measures(const PX_Resolution& resolution) {
        return px_is_finite(px_value(resolution.get_phys_resolution_xy())) &&
               px_is_finite(px_value(resolution.get_addr_resolution_xy())) &&
               px_is_finite(px_value(resolution.get_effective_resolution_xy()));
    }
    static bool has_nan(const PX_Resolution& resolution) {
        return px_is_nan(px_value(resolution.get_phys_resolution_xy())) ||
               px_is_nan(px_value(resolution.get_addr_resolution_xy())) ||
               px_is_nan(px_value(resolution.get_effective_resolution_xy()));
    }

    bool needs_method() const { return of(Ability::RCM_Dithering).is_required(); }
    PX_Smart_Pointer<PX_Dithering_Method> dithering_of(const PX_Resolution& resolution) const {
        return m_device.get_dithering(resolution.get_dithering_name());
    }

    void check_resolution(const PX_Resolution& resolution, const std::wstring& way, bool is_default) const {
        if (m_resolution_is_validated)
            px_check_measure(has_nan(resolution), has_measures(resolution), way, L"resolution", is_default,
                             px_rcm_change_bit(Datum::RCM_Cfg_Resolution), m_found);
        const auto method = dithering_of(resolution);
        const std::wstring dithering = px_in(way, px_named(L"dithering", resolution.get_dithering_name()));
        if (m_dithers && !method)
            m_found.throws(dithering, Fault::Names_Nothing, nothing_there, L"dithering");
        // The search asks for no method: the resolution is the nearest to itself. Without one, a run that
        // validates the dithering too does not end.
        const bool ends =
            method || !m_dithers ||
            of(Ability::RCM_Resolution).is_validated_without(of(Ability::RCM_HardSoftNo_Dithering));
        if (m_resolution_is_validated && needs_method() && !px_is_there(method) && ends)
            m_found.repeats(dithering, px_fault_of_name(method),
                            px_rcm_change_bit(Datum::RCM_Cfg_Resolution));
        if (!m_counts_memory)
            return;
        px_for_each_there(resolution.get_mem_area_name_list(), [&](const PX_Caps_Name_List_Object& name) {
            if (!m_device.get_mem_area(name.get_canonical_name()))
                m_found.passes_over(px_in(way, px_named(L"memory area", name)), Fault::Names_Nothing);
        });
        if (!px_is_memory_of_an_area(m_device, resolution, 0))
            m_found.repeats(way, Fault::Memory_Default, px_rcm_change_bit(Datum::RCM_Cfg_Installed_Memory));
    }

    const PX_ResColorMem_Capabilities& m_device;
    const PX_Findings& m_found;
    PX_Smart_Pointer<PX_Named_Object_List<PX_ResColorMem>> m_modes;
    bool m_mode_is_sure;
    bool m_resolution_has_default;
    bool m_resolution_is_validated;
    bool m_dithers;
    bool m_counts_memory;
};

}  // namespace

void px_check_color(const PX_ResColorMem_Capabilities& device, const PX_Meta_Capabilities* identity,
                    const PX_Findings& found) {
    Color_Check(device, found).run();
    // Its default depends on the path of the driver.
    if (!identity && PX_Ability_Of(device.get_one_ability(Ability::RCM_ISM_Max_Mem)).is_above_none())
        found.throws(L"identity", Fault::Object_Missing, nothing_there, L"meta_capabilities");
}
