#include "tests/examples/sweep/custom_choices.h"

#include "examples/common/made.h"
#include "examples/common/text.h"

namespace {

bool is_same(const PX_Custom_Data& left, const PX_Custom_Data& right) {
    return left.type() == right.type() && left == right;
}

bool is_listed(const PX_Custom_Capability& setting, const PX_Custom_Data& value) {
    for (const auto& allowed : *setting.get_value_list()) {
        if (is_same(*allowed->get_data_value(), value))
            return true;
    }
    return false;
}

PX_Smart_Pointer<PX_Custom_Data> draw_value(Draw& draw, const PX_Custom_Capability& setting,
                                            const PX_Plotter_Class_Factory& factory) {
    switch (draw.below(6)) {
        case 0: {
            const auto number = made(factory.MK_Create_Long_Custom_Data(), L"number");
            *number = 1;
            return number.get();
        }
        case 1: {
            const auto unknown = made(factory.MK_Create_String_Custom_Data(), L"unknown");
            *unknown = L"No choice of any device";
            return unknown.get();
        }
        default:
            return draw.one_of(setting.get_value_list())->get_data_value();
    }
}

}  // namespace

PX_Smart_Pointer<Custom_Items> draw_custom_items(Draw& draw, const PX_Plotter_Definition& device) {
    const auto factory = device.get_class_factory();
    auto items = made(factory->MK_Create_Custom_Config_Item_List(), L"items");
    for (const auto& setting :
         *device.get_plotter_capabilities()->get_custom_capabilities()->get_custom_list()) {
        if (draw.chance(6))
            continue;
        const auto item = made_named(factory->MK_Create_Custom_Config_Item(), L"item",
                                     setting->get_canonical_name(), setting->get_localized_name());
        item->set_config_value(draw_value(draw, *setting, *factory).get());
        item->set_validated(false);
        items->append(item);
    }
    return items;
}

PX_Smart_Pointer<Custom_Items> known_to(const PX_Plotter_Definition& device, const Custom_Items& items) {
    auto known = made(device.get_class_factory()->MK_Create_Custom_Config_Item_List(), L"known");
    for (const auto& item : items) {
        if (device.get_plotter_capabilities()->get_custom_capabilities()->get_custom(
                item->get_canonical_name()))
            known->append(item);
    }
    return known;
}

Custom_Outcome outcome_of_run(const PX_Plotter_Definition& device, const Custom_Items& before) {
    const auto settings = device.get_plotter_capabilities()->get_custom_capabilities();
    const auto chosen = device.get_plotter_configuration()->get_custom_configuration();
    const auto validator = device.get_plotter_validator();
    Custom_Outcome outcome;
    if (chosen->get_custom_list()->size() != before.size())
        outcome.faults.emplace_back("items came or went");
    for (const auto& had : before) {
        const wchar_t* const name = had->get_canonical_name();
        const auto expect = [&](bool holds, const char* what) {
            if (!holds)
                outcome.faults.push_back(text::to_utf8(name) + what);
        };
        const auto item = chosen->get_custom(name);
        expect(item != nullptr, " is gone");
        if (!item)
            continue;
        const auto setting = settings->get_custom(name);
        const bool is_changed = !is_same(*had->get_config_value(), *item->get_config_value());
        outcome.changed += is_changed;
        expect(is_listed(*setting, *item->get_config_value()), " holds what the device has not");
        expect(is_changed != is_listed(*setting, *had->get_config_value()), " was changed without need");
        expect(is_changed == validator->get_one_custom_cfg_change(name), " is told of wrongly");
    }
    return outcome;
}
