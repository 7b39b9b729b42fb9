#pragma once

#include <initializer_list>

#include "tests/support/device.h"
#include "tests/support/entries.h"
#include "tests/support/fields.h"

namespace support {

inline constexpr const wchar_t* rcm_file = L"$Workfile: std_res_color_mem_cfg $ $Revision: #1 $";

inline const Fields<PX_ResColorMem_Settings>& rcm_settings_fields() {
    using Settings = PX_ResColorMem_Settings;
    static const PX_Float_XY phys(1, 2), addr(3, 4), effective(5, 6);
    static const Fields<Settings> fields = {
        FIELD(Settings, num_colors, L"0", 11),
        FIELD(Settings, color_depth, L"0", 12),
        FIELD(Settings, num_undithered_colors, L"0", -13),
        FIELD(Settings, color_system, L"0", Number{-1}),
        FIELD(Settings, phys_resolution_xy, L"0 0", &phys, L"m_phys_resolution_xy"),
        FIELD(Settings, addr_resolution_xy, L"0 0", &addr, L"m_addr_resolution_xy"),
        FIELD(Settings, effective_resolution_xy, L"0 0", &effective, L"m_effective_resolution_xy"),
        FIELD(Settings, printable_area, L"0", 14.5)};
    return fields;
}

inline PX_Resolution* resolution(const wchar_t* name, const PX_Float_XY& phys, const PX_Float_XY& addr,
                                 const PX_Float_XY& effective, const wchar_t* dithering = L"") {
    auto* const resolution = named<PX_Std_Resolution>(name);
    resolution->set_phys_resolution_xy(&phys);
    resolution->set_addr_resolution_xy(&addr);
    resolution->set_effective_resolution_xy(&effective);
    resolution->set_dithering_name(dithering);
    return resolution;
}

// The first resolution is the default.
inline PX_ResColorMem* color_mode(const wchar_t* name, long colors, long depth, long undithered,
                                  int system = 0, std::initializer_list<PX_Resolution*> resolutions = {}) {
    auto* const mode = named<PX_Std_ResColorMem>(name);
    mode->set_num_colors(colors);
    mode->set_color_depth(depth);
    mode->set_num_undithered_colors(undithered);
    mode->set_color_system(Number{system});
    for (PX_Resolution* const resolution : resolutions)
        mode->get_resolution_list()->append(resolution);
    mode->set_default_resolution(resolutions.size() ? (*resolutions.begin())->get_canonical_name() : L"");
    return mode;
}

// A driver's configuration, which may lose its snapshot and give numbers that its setters would not take.
class Driver_RCM_Configuration : public PX_Std_ResColorMem_Configuration {
public:
    PX_Smart_Pointer<PX_ResColorMem_Settings> get_rescolormem_settings() const override {
        return forgets ? nullptr : PX_Std_ResColorMem_Configuration::get_rescolormem_settings();
    }
    long get_ISM_max_mem() const override {
        return lacks_memory ? -1 : PX_Std_ResColorMem_Configuration::get_ISM_max_mem();
    }
    long get_OLE_max_mem() const override {
        return lacks_memory ? -1 : PX_Std_ResColorMem_Configuration::get_OLE_max_mem();
    }
    void set_ISM_max_mem(long memory) override {
        lacks_memory = false;
        PX_Std_ResColorMem_Configuration::set_ISM_max_mem(memory);
    }
    void set_OLE_max_mem(long memory) override {
        lacks_memory = false;
        PX_Std_ResColorMem_Configuration::set_OLE_max_mem(memory);
    }
    PX_ResColorMem_Configuration* clone() const override { return new Driver_RCM_Configuration; }

    bool forgets = false;
    bool lacks_memory = false;
};

// A device whose configuration passes. Of each kind it has a default, what is chosen, and what is nearest to
// that: the modes mono, color and rich, and in color the resolutions draft, normal and near. The first is
// dithered hard, the others soft.
class RCM_Device : public Device {
public:
    explicit RCM_Device(PX_Plotter_Definition* plotter = new PX_Std_Plotter_Definition(new Test_Handler))
        : Device(plotter) {
        caps->set_abilities(PX_Ability_Value::Ability_Required);
        set_ability(7, 0);
        for (const auto& [name, level] : {std::pair{L"hard", 0}, {L"soft", 2}}) {
            auto* const method = named<PX_Std_Dithering_Method>(name);
            method->set_required_renderers(Number{level});
            caps->get_dithering_list()->append(method);
        }
        modes()->append(color_mode(L"mono", 2, 1, 2, 0, {resolution(L"only", {}, {}, {}, L"hard")}));
        modes()->append(color_mode(L"color", 256, 8, 16, 2,
                                   {resolution(L"draft", {300, 300}, {300, 300}, {300, 300}, L"hard"),
                                    resolution(L"normal", {600, 300}, {1200, 600}, {590, 290}, L"soft"),
                                    resolution(L"near", {601, 300}, {1200, 600}, {590, 290}, L"soft")}));
        modes()->append(color_mode(L"rich", 257, 8, 16, 2));
        caps->set_default_res_color_mem(L"mono");
        const Driver_RCM_Configuration configuration;
        (*this)->get_plotter_configuration()->set_res_color_mem_configuration(&configuration);
        cfg = rcm_cfg();
        cfg->set_res_color_mem(color().get());
        cfg->set_resolution(normal().get());
        cfg->set_hardsoftno_dithering(Number{1});
    }

    PX_Smart_Pointer<PX_Named_Object_List<PX_ResColorMem>> modes() const {
        return caps->get_res_color_mem_list();
    }
    PX_Smart_Pointer<PX_ResColorMem> color() const { return modes()->find(L"color"); }
    PX_Smart_Pointer<PX_Named_Object_List<PX_Resolution>> resolutions() const {
        return color()->get_resolution_list();
    }
    PX_Smart_Pointer<PX_Resolution> normal() const { return resolutions()->find(L"normal"); }
    PX_Smart_Pointer<PX_Dithering_Method> soft() const { return caps->get_dithering(L"soft"); }
    Driver_RCM_Configuration& driver() const { return static_cast<Driver_RCM_Configuration&>(*cfg); }
    void set_ability(int flag, int ability) const { caps->set_one_ability(Number{ability}, Number{flag}); }
    PX_Smart_Pointer<PX_ResColorMem_Settings> snapshot() const { return cfg->get_rescolormem_settings(); }
    long changes() const { return validator()->get_res_color_mem_cfg_changes(); }

    const PX_Smart_Pointer<PX_ResColorMem_Capabilities> caps = rcm_caps();
    PX_Smart_Pointer<PX_ResColorMem_Configuration> cfg;
};

}  // namespace support
