#include "toolkit/marvcon/std_media_cfg/datum.h"
#include "toolkit/marvcon/std_media_cfg/validator.h"

// The defaults of the selection chain, taken from the catalogue.

using Ability = PX_Media_Ability_Flags;
using Cfg = PX_Media_Config_Flags;

void PX_Std_Media_Validator::set_selection_method_to_default() {
    const PX_Media_Datum datum(m_plotter, L"PX_Std_Media_Validator::set_selection_method_to_default");
    if (datum.is_above_none(Ability::Ability_Media_Selection_Method)) {
        const auto method = datum.capabilities->get_default_media_selection_method();
        datum.call([&] { datum.configuration->set_media_selection_method(method); });
        // The value stays written.
        if (!(method & datum.capabilities->get_media_selection_methods()))
            datum.fail(PX_Media_Code::Default_Selection_Method);
    }
    datum.settle_default(Cfg::Cfg_Selection_Method);
}

// The next three look a default up by its name, hand it to the setter, which fails for none, and look again
// at what is configured then: a withdrawn default stays written.

void PX_Std_Media_Validator::set_type_to_default() {
    const PX_Media_Datum datum(m_plotter, L"PX_Std_Media_Validator::set_type_to_default");
    if (datum.is_listed(Ability::Ability_Media_Type_Default)) {
        const auto type = datum.capabilities->get_media_type(datum.capabilities->get_default_media_type());
        datum.call([&] { datum.configuration->set_media_type(type.get()); });
        if (!px_is_there(datum.capabilities->get_media_type(datum.configuration->get_media_type())))
            datum.fail(PX_Media_Code::Default_Type);
    }
    datum.settle_default(Cfg::Cfg_Media_Type);
}

void PX_Std_Media_Validator::set_source_to_default() {
    const PX_Media_Datum datum(m_plotter, L"PX_Std_Media_Validator::set_source_to_default");
    if (datum.is_listed(Ability::Ability_Media_Source_Default)) {
        const auto source =
            datum.capabilities->get_media_source(datum.capabilities->get_default_media_source());
        datum.call([&] { datum.configuration->set_media_source(source.get()); });
        if (!px_is_there(px_configured_source(datum)))
            datum.fail(PX_Media_Code::Default_Source);
    }
    datum.settle_default(Cfg::Cfg_Media_Source);
}

void PX_Std_Media_Validator::set_source_entry_to_default() {
    const PX_Media_Datum datum(m_plotter, L"PX_Std_Media_Validator::set_source_entry_to_default");
    if (datum.is_listed(Ability::Ability_Media_Source_Entry_Default)) {
        const auto source = px_configured_source(datum);
        const auto entry = source ? source->get_source_entry(source->get_default_source_entry()) : nullptr;
        datum.call([&] { datum.configuration->set_media_source_entry(entry.get()); });
        if (!px_is_there(px_configured_entry(datum, source)))
            datum.fail(PX_Media_Code::Default_Entry);
    }
    datum.settle_default(Cfg::Cfg_Media_Source_Entry);
}

namespace {

// By source the default is the entry's; the device's own default size plays no part then.
PX_Smart_Pointer<PX_Media_Size> default_size(const PX_Media_Datum& datum) {
    if (!px_is_by_source(datum)) {
        auto size = datum.capabilities->get_media_size(datum.capabilities->get_default_media_size());
        if (!px_is_there(size))
            datum.fail(PX_Media_Code::Default_Size);
        return size;
    }
    const auto entry = px_configured_entry(datum, px_configured_source(datum));
    if (!px_is_there(entry))
        datum.fail(PX_Media_Code::Default_Size_Of_Source);
    const wchar_t* const name = entry->get_default_media_size();
    const auto names = entry->get_media_size_name_list();
    auto size = datum.capabilities->get_media_size(name);
    if (!names || !px_is_there(names->find(name)) || !px_is_there(size))
        datum.fail(PX_Media_Code::Default_Size_Of_Source);
    return size;
}

}  // namespace

void PX_Std_Media_Validator::set_size_to_default() {
    const PX_Media_Datum datum(m_plotter, L"PX_Std_Media_Validator::set_size_to_default");
    if (datum.is_listed(Ability::Ability_Media_Size_Default)) {
        const auto size = default_size(datum);
        auto description = px_description_of(datum, size);
        if (!px_is_there(description))
            description = nullptr;  // a withdrawn one is no description
        datum.call([&] { datum.configuration->set_media_size(size.get(), description.get()); });
    }
    datum.settle_default(Cfg::Cfg_Media_Size);
}

void PX_Std_Media_Validator::set_destination_to_default() {
    const PX_Media_Datum datum(m_plotter, L"PX_Std_Media_Validator::set_destination_to_default");
    if (datum.is_listed(Ability::Ability_Media_Destination_Default)) {
        const auto& caps = *datum.capabilities;
        auto& cfg = *datum.configuration;
        const auto usable = [&](auto option) {
            if (!px_is_there(option))
                datum.fail(PX_Media_Code::Default_Destination);
            return option;
        };
        const auto destination = usable(caps.get_media_destination(caps.get_default_media_destination()));
        datum.call([&] { cfg.set_media_destination(destination.get()); });
        const auto put = [&](Ability::Enum flag, auto default_option, auto set) {
            if (!datum.is_listed(flag))
                return;
            const auto option = usable(default_option());
            datum.call([&] { set(option.get()); });
        };
        const auto& there = *destination;
        put(
            Ability::Ability_Media_Collating,
            [&] { return there.get_collating(there.get_default_collating()); },
            [&](const PX_Media_Collating* option) { cfg.set_media_collating(option); });
        put(
            Ability::Ability_Media_Stapling, [&] { return there.get_stapling(there.get_default_stapling()); },
            [&](const PX_Media_Stapling* option) { cfg.set_media_stapling(option); });
        put(
            Ability::Ability_Media_Cutting, [&] { return there.get_cutting(there.get_default_cutting()); },
            [&](const PX_Media_Cutting* option) { cfg.set_media_cutting(option); });
        put(
            Ability::Ability_Media_Folding, [&] { return there.get_folding(there.get_default_folding()); },
            [&](const PX_Media_Folding* option) { cfg.set_media_folding(option); });
    }
    for (const Cfg::Enum flag : px_destination_data)
        datum.settle_default(flag);
}
