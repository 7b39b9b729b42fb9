#pragma once

#include "tests/support/device.h"
#include "tests/support/media.h"
#include "tests/support/rcm.h"

// Sound devices, each of one domain.
namespace support {

// With eight pens.
struct Pens : Device {
    Pens() {
        caps.set_abilities(PX_Ability_Value::Ability_Required);
        caps.set_max_number_of_physical_pens(8);
        caps.set_default_num_of_phys_pens(4);
        caps.set_max_pen_optimization(2);
        cfg.set_number_of_physical_pens(2);
    }
    void set_ability(PX_Pen_Ability_Flags::Enum flag, int ability) {
        caps.set_one_ability(Number{ability}, flag);
    }
    PX_PhysPen_Capabilities& caps = *pen_caps();
    PX_PhysPen_Configuration& cfg = *pen_cfg();
};

// A colour device whose resolutions count a memory of 0.
struct Color : RCM_Device {
    Color() {
        drop(modes(), L"rich");
        set_ability(7, 5);
        const PX_Smart_Pointer<PX_Mem_Area> least(named<PX_Std_Mem_Area>(L"least"));
        caps->get_mem_area_list()->append(least);
        for (const auto& mode : *modes()) {
            for (const auto& resolution : *mode->get_resolution_list()) {
                for (int time = 0; time < 3; ++time)
                    resolution->get_mem_area_name_list()->append(
                        named<PX_Std_Caps_Name_List_Object>(L"least"));
            }
        }
        cfg->set_resolution(normal().get());
        cfg->set_res_color_mem(color().get());
    }
    void stale_mode() { cfg->set_res_color_mem(PX_Smart_Pointer(color_mode(L"stale", 1, 1, 1)).get()); }
    void stale_resolution() {
        cfg->set_resolution(PX_Smart_Pointer(support::resolution(L"stale", {1, 1}, {}, {})).get());
    }
};

struct Checked_Media : Media_Device {
    void limit(const PX_Float_XY& largest, float roll) const {
        set_ability(Ability::Ability_Media_Size_Limit, 1);
        caps->set_media_size_max(&largest);
        caps->set_media_roll_max_height(roll);
    }
    void only_by_source() const {
        caps->set_media_selection_methods(1);
        caps->set_default_media_selection_method(Number{1});
    }
    // Which the search comes upon, for a choice of its measures.
    void add_second_a3() const {
        sizes()->append(media_size(L"A3", L"a3"));
        caps->set_default_media_size(L"A4");
        choose_directly();
        cfg->set_media_size(PX_Smart_Pointer(media_size(L"stale", L"a3")).get(),
                            descriptions()->find(L"a3").get());
    }
};

}  // namespace support
