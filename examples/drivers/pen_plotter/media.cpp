#include "examples/drivers/pen_plotter/media.h"

#include <algorithm>
#include <initializer_list>

#include "examples/common/made.h"

namespace {

using Ability = PX_Media_Ability_Flags;
using Value = PX_Ability_Value;

struct Sheet {
    const wchar_t* name;
    float width;
    float height;
};
// Lying on the bed.
constexpr Sheet sheets[] = {{L"A4", 842, 595}, {L"A3", 1191, 842}, {L"A2", 1684, 1191}, {L"A1", 2384, 1684}};
constexpr const wchar_t* default_sheet = L"A3";
constexpr const wchar_t* bed = L"Bed";
constexpr float margin = 28;
// As the other sample driver numbers its feeds.
constexpr auto fed_by_hand = static_cast<PX_Media_Feed::Enum>(0);

PX_Smart_Pointer<PX_Media_Description> description_of(const Sheet& sheet,
                                                      const PX_Plotter_Class_Factory& factory) {
    auto description =
        made_named(factory.MK_Create_Media_Description(), L"description", sheet.name, sheet.name);
    const PX_Float_XY extent(sheet.width, sheet.height);
    description->set_media_bounds(&extent);
    // Both ends count.
    const PX_Float_Rectangle printable(margin, sheet.width - margin - 1, margin, sheet.height - margin - 1);
    description->set_printable_bounds(&printable);
    description->set_printable_area(double{printable.x_extent()} * double{printable.y_extent()});
    return description;
}

void fill_sizes(PX_Media_Capabilities& capabilities, const PX_Plotter_Class_Factory& factory) {
    const auto sizes = made(factory.MK_Create_Media_Size_List(), L"sizes");
    const auto descriptions = made(factory.MK_Create_Media_Description_List(), L"descriptions");
    for (const Sheet& sheet : sheets) {
        const auto size = made_named(factory.MK_Create_Media_Size(), L"size", sheet.name, sheet.name);
        size->set_media_description(sheet.name);
        size->set_landscape_mode_flag(sheet.width > sheet.height);
        sizes->append(size);
        descriptions->append(description_of(sheet, factory));
    }
    capabilities.set_media_size_list(sizes.get());
    capabilities.set_media_description_list(descriptions.get());
    capabilities.set_default_media_size(default_sheet);
    const Sheet& largest = *std::ranges::max_element(sheets, {}, &Sheet::width);
    const PX_Float_XY limit(largest.width, largest.height);
    capabilities.set_media_size_max(&limit);
}

void fill_source(PX_Media_Capabilities& capabilities, const PX_Plotter_Class_Factory& factory) {
    const auto names = made(factory.MK_Create_Media_Size_Name_List(), L"names");
    const auto entry = made_named(factory.MK_Create_Media_Source_Entry(), L"entry", bed, bed);
    for (const Sheet& sheet : sheets) {
        const auto name = made(factory.MK_Create_Media_Size_In_Source(), L"name");
        name->set_canonical_name(sheet.name);
        names->append(name);
        entry->set_source_width(std::max(entry->get_source_width(), sheet.width));
    }
    entry->set_media_size_name_list(names.get());
    entry->set_default_media_size(default_sheet);
    const auto entries = made(factory.MK_Create_Media_Source_Entry_List(), L"entries");
    entries->append(entry);

    const auto source = made_named(factory.MK_Create_Media_Source(), L"source", bed, bed);
    source->set_media_feed(fed_by_hand);
    source->set_source_entry_list(entries.get());
    source->set_default_source_entry(bed);
    const auto sources = made(factory.MK_Create_Media_Source_List(), L"sources");
    sources->append(source);
    capabilities.set_media_source_list(sources.get());
    capabilities.set_default_media_source(bed);
    capabilities.set_media_selection_methods(PX_Media_Selection_Method::Media_Selection_By_Source);
    capabilities.set_default_media_selection_method(PX_Media_Selection_Method::Media_Selection_By_Source);
}

}  // namespace

PX_Smart_Pointer<PX_Media_Capabilities> pen_plotter_media(const PX_Plotter_Class_Factory& factory) {
    auto capabilities = made(factory.MK_Create_Media_Capabilities(), L"media_capabilities");
    fill_sizes(*capabilities, factory);
    fill_source(*capabilities, factory);
    const auto allow = [&](Value::Enum value, std::initializer_list<Ability::Enum> flags) {
        for (const Ability::Enum flag : flags)
            capabilities->set_one_ability(value, flag);
    };
    allow(Value::Ability_Required, {Ability::Ability_Media_Selection_Method, Ability::Ability_Media_Source,
                                    Ability::Ability_Media_Source_Entry, Ability::Ability_Media_Size,
                                    Ability::Ability_Actual_Printable_Bounds});
    allow(Value::Ability_Settable_Listed,
          {Ability::Ability_Media_Source_Default, Ability::Ability_Media_Source_Entry_Default,
           Ability::Ability_Media_Size_Default, Ability::Ability_Media_Margins_Default,
           Ability::Ability_Dm_Scale, Ability::Ability_Dm_Orientation});
    allow(Value::Ability_Fixed, {Ability::Ability_Media_Size_Limit, Ability::Ability_Longplot_Reduction});
    return capabilities;
}
