#pragma once

#include <initializer_list>
#include <utility>

#include "tests/support/device.h"
#include "tests/support/entries.h"

namespace support {

using Ability = PX_Media_Ability_Flags;
using Cfg = PX_Media_Config_Flags;

// Catalogue entries by their values, for the lists of the capabilities or of each other.

inline PX_Media_Type* media_type(const wchar_t* name, long drying_time, const PX_Float_XY& resolution) {
    auto* const type = named<PX_Std_Media_Type>(name);
    type->set_drying_time(drying_time);
    type->set_max_resolution(&resolution);
    return type;
}

inline PX_Media_Description* description(const wchar_t* name, const PX_Float_XY& sheet,
                                         const PX_Float_Rectangle& printable) {
    auto* const description = named<PX_Std_Media_Description>(name);
    description->set_media_bounds(&sheet);
    description->set_printable_bounds(&printable);
    return description;
}

inline PX_Media_Size* media_size(const wchar_t* name, const wchar_t* description_name) {
    auto* const size = named<PX_Std_Media_Size>(name);
    size->set_media_description(description_name);
    return size;
}

// The first size is the default.
inline PX_Media_Source_Entry* source_entry(const wchar_t* name, float width, float height,
                                           std::initializer_list<const wchar_t*> sizes) {
    auto* const entry = named<PX_Std_Media_Source_Entry>(name);
    entry->set_source_width(width);
    entry->set_source_frame_height(height);
    for (const wchar_t* const size : sizes)
        entry->get_media_size_name_list()->append(named<PX_Std_Caps_Name_List_Object>(size));
    entry->set_default_media_size(sizes.size() ? *sizes.begin() : L"");
    return entry;
}

// The first entry is the default.
inline PX_Media_Source* source(const wchar_t* name, int feed,
                               std::initializer_list<PX_Media_Source_Entry*> entries) {
    auto* const source = named<PX_Std_Media_Source>(name);
    source->set_media_feed(Number{feed});
    for (PX_Media_Source_Entry* const entry : entries)
        source->get_source_entry_list()->append(entry);
    source->set_default_source_entry(entries.size() ? (*entries.begin())->get_canonical_name() : L"");
    return source;
}

// A collating, a stapling, a cutting and a folding for each name, all values the number beside it. The first
// of each is the default.
inline PX_Media_Destination* destination(const wchar_t* name,
                                         std::initializer_list<std::pair<const wchar_t*, short>> finishings) {
    auto* const destination = named<PX_Std_Media_Destination>(name);
    for (const auto& [option, value] : finishings) {
        auto* const collating = named<PX_Std_Media_Collating>(option);
        collating->set_collating_type(Number{value});
        destination->get_collating_list()->append(collating);
        auto* const stapling = named<PX_Std_Media_Stapling>(option);
        stapling->set_stapling_location(Number{value});
        stapling->set_stapling_when(Number{value});
        stapling->set_stapling_orientation(value);
        destination->get_stapling_list()->append(stapling);
        auto* const cutting = named<PX_Std_Media_Cutting>(option);
        cutting->set_cutting_when(Number{value});
        destination->get_cutting_list()->append(cutting);
        auto* const folding = named<PX_Std_Media_Folding>(option);
        folding->set_folding_type(Number{value});
        folding->set_folding_when(Number{value});
        destination->get_folding_list()->append(folding);
    }
    for (const auto set :
         {&PX_Media_Destination::set_default_collating, &PX_Media_Destination::set_default_stapling,
          &PX_Media_Destination::set_default_cutting, &PX_Media_Destination::set_default_folding})
        (destination->*set)(finishings.size() ? finishings.begin()->first : L"");
    return destination;
}

// The name of a datum, its test and its default: the fields of a row, and their values.
#define MEDIA_DATUM_FIELDS                                              \
    const wchar_t* name;                                                \
    void (PX_Media_Validator::*validate)(PX_Validation_Strategy::Enum); \
    void (PX_Media_Validator::*set_to_default)()
#define MEDIA_DATUM(name) \
    L"" #name, &PX_Media_Validator::validate_##name, &PX_Media_Validator::set_##name##_to_default

// A driver's configuration, which may lose what it should give.
class Driver_Configuration : public PX_Std_Media_Configuration {
public:
    PX_Smart_Pointer<PX_Media_Settings> get_media_settings() const override {
        return forgets ? nullptr : PX_Std_Media_Configuration::get_media_settings();
    }
    PX_Smart_Pointer<PX_Float_Rectangle> get_margins() const override {
        return forgets ? nullptr : PX_Std_Media_Configuration::get_margins();
    }
    PX_Smart_Pointer<PX_Float_Rectangle> get_actual_printable_bounds() const override {
        return forgets ? nullptr : PX_Std_Media_Configuration::get_actual_printable_bounds();
    }
    PX_Media_Configuration* clone() const override { return new Driver_Configuration; }

    bool forgets = false;
};

// A device with paper whose configuration passes. Of each kind it has what is chosen, another that is the
// default, and a third that is nearest to what is chosen:
//
//              chosen           default          nearest
//     type     plain            film             fine
//     source   tray             roll             drawer
//     entry    upper            manual           lower
//     size     A4               A5 (direct: A3)  A4plus
//     output   bin, all "full"  rack, all "none" shelf
class Media_Device : public Device {
public:
    explicit Media_Device(PX_Plotter_Definition* plotter = new PX_Std_Plotter_Definition(new Test_Handler))
        : Device(plotter) {
        fill_catalogue();
        const Driver_Configuration configuration;
        (*this)->get_plotter_configuration()->set_media_configuration(&configuration);
        cfg = media_cfg();
        choose();
    }

    auto types() const { return caps->get_media_type_list(); }
    auto sources() const { return caps->get_media_source_list(); }
    auto sizes() const { return caps->get_media_size_list(); }
    auto descriptions() const { return caps->get_media_description_list(); }
    auto destinations() const { return caps->get_media_destination_list(); }
    auto plain() const { return types()->find(L"plain"); }
    auto tray() const { return sources()->find(L"tray"); }
    auto entries() const { return tray()->get_source_entry_list(); }
    auto upper() const { return entries()->find(L"upper"); }
    auto names() const { return upper()->get_media_size_name_list(); }
    auto a4() const { return sizes()->find(L"A4"); }
    auto a4_sheet() const { return descriptions()->find(L"a4"); }
    auto bin() const { return destinations()->find(L"bin"); }
    auto rack() const { return destinations()->find(L"rack"); }

    void set_ability(PX_Media_Ability_Flags::Enum flag, int ability) const {
        caps->set_one_ability(Number{ability}, flag);
    }
    void choose_directly() const { cfg->set_media_selection_method(Number{2}); }
    void forget() const { static_cast<Driver_Configuration&>(*cfg).forgets = true; }
    auto snapshot() const { return cfg->get_media_settings(); }
    long changes() const { return validator()->get_media_cfg_changes(); }

    const PX_Smart_Pointer<PX_Media_Capabilities> caps = media_caps();
    PX_Smart_Pointer<PX_Media_Configuration> cfg;

private:
    void fill_catalogue() const {
        types()->append(media_type(L"film", 60, {1200, 1200}));
        types()->append(media_type(L"plain", 10, {600, 600}));
        types()->append(media_type(L"fine", 11, {600, 600}));
        add_size(L"A5", L"a5", 148, 210);
        add_size(L"A4", L"a4", 210, 297);
        add_size(L"A4plus", L"a4plus", 211, 297);
        add_size(L"A3", L"a3", 297, 420);
        sources()->append(source(L"roll", 3, {source_entry(L"wide", 297, 0, {L"A3"})}));
        sources()->append(source(L"tray", 1,
                                 {source_entry(L"manual", 100, 0, {L"A5"}),
                                  source_entry(L"upper", 210, 297, {L"A5", L"A4", L"A4plus"}),
                                  source_entry(L"lower", 211, 297, {L"A4"})}));
        sources()->append(source(L"drawer", 1, {source_entry(L"only", 210, 297, {L"A4"})}));
        destinations()->append(destination(L"rack", {{L"none", 0}}));
        destinations()->append(destination(L"bin", {{L"none", 0}, {L"full", 1}}));
        destinations()->append(destination(L"shelf", {{L"full", 1}}));

        caps->set_media_selection_methods(3);
        caps->set_default_media_selection_method(Number{2});
        caps->set_default_media_type(L"film");
        caps->set_default_media_source(L"roll");
        caps->set_default_media_size(L"A3");
        caps->set_default_media_destination(L"rack");
        caps->set_duplexing_modes(6);
        caps->set_default_duplexing_mode(Number{4});
        caps->set_max_number_of_copies(5);
        caps->set_default_longplot_reduction(2.0);
        caps->set_default_dm_scale(50);
        caps->set_abilities(PX_Ability_Value::Ability_Settable_Listed);
        set_ability(PX_Media_Ability_Flags::Ability_Media_Size_Limit, 0);
        set_ability(PX_Media_Ability_Flags::Ability_Roll_Limit, 0);
    }
    void add_size(const wchar_t* name, const wchar_t* sheet, float x, float y) const {
        descriptions()->append(description(sheet, {x, y}, {5, x - 6, 5, y - 6}));
        sizes()->append(media_size(name, sheet));
    }
    void choose() const {
        cfg->set_media_selection_method(Number{1});
        cfg->set_media_type(plain().get());
        cfg->set_media_source(tray().get());
        cfg->set_media_source_entry(upper().get());
        cfg->set_media_size(a4().get(), a4_sheet().get());
        cfg->set_media_destination(bin().get());
        cfg->set_media_collating(bin()->get_collating(L"full").get());
        cfg->set_media_stapling(bin()->get_stapling(L"full").get());
        cfg->set_media_cutting(bin()->get_cutting(L"full").get());
        cfg->set_media_folding(bin()->get_folding(L"full").get());
        cfg->set_duplexing_mode(Number{2});
        cfg->set_margins(a4_sheet()->get_printable_bounds().get());
    }
};

}  // namespace support
