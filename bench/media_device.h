#pragma once

#include <string>

#include "bench/handler.h"
#include "toolkit/marvcon/marvcon.h"

// A device of so many sheets, for the benchmarks: types, one source that feeds them all, one destination, and
// a configuration of its defaults.

namespace bench {

inline PX_Smart_Pointer<PX_Named_Object_List<PX_Media_Size>> many_sizes(int count) {
    PX_Smart_Pointer<PX_Named_Object_List<PX_Media_Size>> sizes(new PX_Named_Object_List<PX_Media_Size>);
    for (int n = 0; n < count; ++n) {
        auto* const size = new PX_Std_Media_Size;
        size->set_canonical_name((L"Size " + std::to_wstring(n)).c_str());
        size->set_media_description((L"Description " + std::to_wstring(n)).c_str());
        sizes->append(size);
    }
    return sizes;
}

inline void fill_media(PX_Media_Capabilities& caps, int size_count) {
    const auto sizes = many_sizes(size_count);
    PX_Named_Object_List<PX_Media_Description> descriptions;
    PX_Named_Object_List<PX_Caps_Name_List_Object> names;
    for (int n = 0; n < size_count; ++n) {
        auto* const description = new PX_Std_Media_Description;
        description->set_canonical_name((L"Description " + std::to_wstring(n)).c_str());
        const auto width = 500.0F + static_cast<float>(n);
        const PX_Float_XY sheet(width, 1.5F * width);
        const PX_Float_Rectangle printable(10.0F, width - 10.0F, 10.0F, 1.5F * width - 10.0F);
        description->set_media_bounds(&sheet);
        description->set_printable_bounds(&printable);
        descriptions.append(description);
        auto* const name = new PX_Std_Caps_Name_List_Object;
        name->set_canonical_name((L"Size " + std::to_wstring(n)).c_str());
        names.append(name);
    }
    PX_Std_Media_Source_Entry entry;
    entry.set_canonical_name(L"Entry");
    entry.set_media_size_name_list(&names);
    entry.set_default_media_size(L"Size 0");
    PX_Named_Object_List<PX_Media_Source_Entry> entries;
    entries.append(entry.clone());
    auto* const source = new PX_Std_Media_Source;
    source->set_canonical_name(L"Source");
    source->set_media_feed(static_cast<PX_Media_Feed::Enum>(1));
    source->set_source_entry_list(&entries);
    source->set_default_source_entry(L"Entry");
    PX_Named_Object_List<PX_Media_Source> sources;
    sources.append(source);
    auto* const type = new PX_Std_Media_Type;
    type->set_canonical_name(L"Type");
    PX_Named_Object_List<PX_Media_Type> types;
    types.append(type);
    auto* const destination = new PX_Std_Media_Destination;
    destination->set_canonical_name(L"Destination");
    PX_Named_Object_List<PX_Media_Destination> destinations;
    destinations.append(destination);

    caps.set_media_size_list(sizes.get());
    caps.set_media_description_list(&descriptions);
    caps.set_media_source_list(&sources);
    caps.set_media_type_list(&types);
    caps.set_media_destination_list(&destinations);
    caps.set_default_media_size(L"Size 0");
    caps.set_default_media_source(L"Source");
    caps.set_default_media_type(L"Type");
    caps.set_default_media_destination(L"Destination");
    caps.set_media_selection_methods(3);
    caps.set_abilities(PX_Ability_Value::Ability_Required);
    for (const auto none :
         {PX_Media_Ability_Flags::Ability_Media_Collating, PX_Media_Ability_Flags::Ability_Media_Stapling,
          PX_Media_Ability_Flags::Ability_Media_Cutting, PX_Media_Ability_Flags::Ability_Media_Folding,
          PX_Media_Ability_Flags::Ability_Media_Size_Limit})
        caps.set_one_ability(PX_Ability_Value::Ability_None, none);
}

// All domains that the library holds, the configuration at the device's defaults.
inline PX_Smart_Pointer<PX_Plotter_Definition> make_device(int size_count) {
    const PX_Smart_Pointer<PX_Plotter_Definition> plotter(new PX_Std_Plotter_Definition(new Handler));
    plotter->set_plotter_capabilities(new PX_Std_Plotter_Capabilities);
    plotter->set_plotter_configuration(new PX_Std_Plotter_Configuration);
    PX_Std_Media_Capabilities media;
    fill_media(media, size_count);
    const PX_Std_Media_Configuration sheet;
    PX_Std_InitTerm_Capabilities strings;
    strings.set_abilities(PX_Ability_Value::Ability_Required);
    const PX_Std_InitTerm_Configuration bytes;
    const PX_Std_PhysPen_Capabilities carousel;
    const PX_Std_PhysPen_Configuration pens;
    const PX_Std_ResColorMem_Capabilities colors;
    const PX_Std_ResColorMem_Configuration quality;
    const PX_Std_Plotter_IO_Capabilities ways_out;
    const PX_Std_Plotter_IO_Configuration destination;
    const PX_Std_Custom_Capabilities settings;
    const PX_Std_Custom_Configurations values;
    plotter->get_plotter_capabilities()->set_media_capabilities(&media);
    plotter->get_plotter_capabilities()->set_init_term_capabilities(&strings);
    plotter->get_plotter_capabilities()->set_phys_pen_capabilities(&carousel);
    plotter->get_plotter_capabilities()->set_res_color_mem_capabilities(&colors);
    plotter->get_plotter_capabilities()->set_io_capabilities(&ways_out);
    plotter->get_plotter_capabilities()->set_custom_capabilities(&settings);
    plotter->get_plotter_configuration()->set_media_configuration(&sheet);
    plotter->get_plotter_configuration()->set_init_term_configuration(&bytes);
    plotter->get_plotter_configuration()->set_phys_pen_configuration(&pens);
    plotter->get_plotter_configuration()->set_res_color_mem_configuration(&quality);
    plotter->get_plotter_configuration()->set_io_configuration(&destination);
    plotter->get_plotter_configuration()->set_custom_configuration(&values);
    plotter->get_plotter_validator()->set_all_to_defaults();
    // What the benches do not ask about is looked at, and found validated.
    const auto settle = [](const auto& capabilities, const auto& configuration) {
        capabilities->set_abilities(PX_Ability_Value::Ability_Required);
        configuration->set_validated(true);
    };
    const auto caps = plotter->get_plotter_capabilities();
    const auto cfg = plotter->get_plotter_configuration();
    settle(caps->get_phys_pen_capabilities(), cfg->get_phys_pen_configuration());
    settle(caps->get_res_color_mem_capabilities(), cfg->get_res_color_mem_configuration());
    settle(caps->get_io_capabilities(), cfg->get_io_configuration());
    return plotter;
}

}  // namespace bench
