#include "toolkit/marvcon/std_custom_cfg/validator.h"

#include <new>

#include "toolkit/marvcon/std_custom_cfg/configuration.h"
#include "toolkit/marvcon/std_custom_cfg/domain.h"
#include "toolkit/marvcon/std_plval/datum.h"

using Strategy = PX_Validation_Strategy;

namespace {

constexpr const wchar_t* nothing_to_work_on = L"workitem or workcapitem";

class Custom_Datum : public PX_Datum<PX_Custom_Domain> {
public:
    using PX_Datum::PX_Datum;

    // Before anything is written: an item without a value would be good for nothing.
    PX_Smart_Pointer<PX_Custom_Data> required_default(const PX_Custom_Capability& capability) const {
        auto value = capability.get_default_data_value();
        if (!value)
            fail(PX_Code::Null_Argument, L"default_data_value");
        return value;
    }

    bool is_good(const PX_Custom_Capability& capability, const PX_Custom_Config_Item& item) const {
        const auto value = item.get_config_value();
        // A value of the wrong type is replaced even where nothing is verified.
        if (!value || value->type() != capability.get_data_type())
            return false;
        if (!capability.get_verifiable())
            return true;
        return capability.get_is_range_type() ? is_in_range(capability, *value)
                                              : is_listed(capability, *value);
    }

    // Appends a new item for the setting, at its default.
    void append_default_item(PX_Named_Object_List<PX_Custom_Config_Item>& items,
                             const PX_Custom_Capability& capability) const {
        const auto default_value = required_default(capability);
        try {
            // Not the factory's: the configuration makes copies of its own in any case.
            PX_Smart_Pointer<PX_Custom_Config_Item> item(new PX_Std_Custom_Config_Item);
            px_require_argument(item, m_function, nothing_to_work_on, PX_Custom_Domain::file_tag);
            call([&] {
                item->set_canonical_name(capability.get_canonical_name());
                item->set_localized_name(capability.get_localized_name());
                item->set_config_value(default_value.get());
            });
            item->set_validated(true);
            item->set_default(true);
            items.append(item);
        } catch (const std::bad_alloc&) {
            fail(PX_Code::Null_Argument, nothing_to_work_on);
        }
    }

private:
    double number(const PX_Custom_Data& value) const {
        if (value.type() == PX_Data_Type::Data_Long) {
            if (const auto* const number = dynamic_cast<const PX_Long_Custom_Data*>(&value))
                return static_cast<double>(number->data());
        } else if (value.type() == PX_Data_Type::Data_Double) {
            if (const auto* const number = dynamic_cast<const PX_Double_Custom_Data*>(&value))
                return number->data();
        }
        fail(PX_Custom_Code::Range_Of_No_Number);
    }

    // What is not a number lies in every range.
    bool is_in_range(const PX_Custom_Capability& capability, const PX_Custom_Data& value) const {
        const double number = this->number(value);
        return !(capability.get_range_min() > number || number > capability.get_range_max());
    }

    bool is_listed(const PX_Custom_Capability& capability, const PX_Custom_Data& value) const {
        const auto list = capability.get_value_list();
        if (capability.get_num_values() <= 0 || !list || list->is_empty())
            fail(PX_Custom_Code::No_Values);
        for (const auto& allowed : *list) {
            const auto data = px_is_there(allowed) ? allowed->get_data_value() : nullptr;
            // The allowed value stands on the left, whose length counts.
            if (data && data->type() == value.type() && *data == value)
                return true;
        }
        return false;
    }
};

}  // namespace

PX_Custom_Validator::~PX_Custom_Validator() = default;

PX_Std_Custom_Validator::PX_Std_Custom_Validator(PX_Plotter_Definition* plotter) : m_plotter(plotter) {
}

void PX_Std_Custom_Validator::validate_all_custom(Strategy::Enum strategy) {
    const Custom_Datum datum(m_plotter, L"PX_Std_Custom_Validator::validate_all_custom");
    if (datum.configuration->get_validated())
        return;
    const auto list = datum.configuration->get_custom_list();
    if (!list)
        return;
    // On to the next one first: a driver's override may take the item away.
    for (auto place = list->begin(); place != list->end();) {
        const PX_Smart_Pointer<PX_Custom_Config_Item> item = *place;
        ++place;
        if (item && !item->get_validated())
            datum.call([&] { validate_named_custom(strategy, item->get_canonical_name()); });
    }
}

void PX_Std_Custom_Validator::validate_named_custom(Strategy::Enum /*strategy*/, const wchar_t* name) {
    const Custom_Datum datum(m_plotter, L"PX_Std_Custom_Validator::validate_named_custom");
    const auto list = datum.configuration->get_custom_list();
    if (!list || list->is_empty())
        datum.fail(PX_Custom_Code::No_Items);
    const auto item = name ? datum.configuration->get_custom(name) : nullptr;
    if (!item)
        datum.fail(PX_Custom_Code::No_Item);
    if (item->get_validated())
        return;
    const auto capability = datum.capabilities->get_custom(name);
    if (!px_is_there(capability))
        datum.fail(PX_Custom_Code::No_Capability);
    if (!datum.is_good(*capability, *item)) {
        const auto default_value = datum.required_default(*capability);
        const auto validator = datum.required_validator();
        datum.call([&] { item->set_config_value(default_value.get()); });
        datum.configuration->set_one_default(true, name);
        validator->set_one_custom_cfg_change(name);
    }
    datum.configuration->set_one_validated(true, name);
}

void PX_Std_Custom_Validator::set_all_custom_to_defaults() {
    const Custom_Datum datum(m_plotter, L"PX_Std_Custom_Validator::set_all_custom_to_defaults");
    const auto settings = datum.capabilities->get_custom_list();
    if (!settings)
        datum.fail(PX_Code::Null_Argument, PX_Custom_Domain::domain_missing);
    PX_Named_Object_List<PX_Custom_Config_Item> items;
    for (const auto& capability : *settings) {
        if (px_is_there(capability))
            datum.append_default_item(items, *capability);
    }
    if (!items.is_empty())
        datum.call([&] { datum.configuration->set_custom_list(&items); });
}

void PX_Std_Custom_Validator::set_named_custom_to_default(const wchar_t* name) {
    const Custom_Datum datum(m_plotter, L"PX_Std_Custom_Validator::set_named_custom_to_default");
    const auto capability = name ? datum.capabilities->get_custom(name) : nullptr;
    const auto item = name ? datum.configuration->get_custom(name) : nullptr;
    if (!px_is_there(capability) || !item)
        datum.fail(PX_Code::Null_Argument, nothing_to_work_on);
    const auto default_value = datum.required_default(*capability);
    datum.call([&] { item->set_config_value(default_value.get()); });
    px_settle_default(*datum.configuration, name);
}
