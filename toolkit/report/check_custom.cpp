#include "toolkit/report/domain_checks.h"

using Fault = PX_Device_Fault;

namespace {

bool is_type(PX_Data_Type::Enum type) {
    return type >= PX_Data_Type::Data_String && type <= PX_Data_Type::Data_Raw;
}

// What an item is made of, also that of a later setting of the name.
void check_default(const PX_Custom_Capability& setting, const std::wstring& way, const PX_Findings& found) {
    const auto preset = setting.get_default_data_value();
    const std::wstring object = px_in(way, L"default");
    if (!preset)
        found.throws(object, Fault::Object_Missing, PX_Code::Null_Argument, L"default_data_value");
    else if (!is_type(preset->type()))
        found.throws(object, Fault::Data_Type_Undefined, PX_Custom_Code::Unknown_Type);
}

// A setting that its name finds.
class Setting_Check {
public:
    Setting_Check(const PX_Custom_Capability& setting, const PX_Findings& found)
        : m_setting(setting),
          m_found(found),
          m_way(px_named(L"setting", setting)),
          m_preset(setting.get_default_data_value()) {}

    void run() const {
        const PX_Data_Type::Enum type = m_setting.get_data_type();
        const bool is_number = type == PX_Data_Type::Data_Long || type == PX_Data_Type::Data_Double;
        check_default(m_setting, m_way, m_found);
        if (!is_type(type)) {
            m_found.repeats(m_way, Fault::Data_Type_Undefined, 0);
        } else if (m_setting.get_verifiable() && m_setting.get_is_range_type()) {
            if (is_number)
                check_range();
            else
                m_found.throws(m_way, Fault::Range_Of_No_Number, PX_Custom_Code::Range_Of_No_Number);
        } else if (m_setting.get_verifiable()) {
            check_list();
        }
        if (m_preset && is_type(type) && is_type(m_preset->type()) && m_preset->type() != type)
            m_found.repeats(default_value(), Fault::Default_Of_Other_Type, 0);
    }

private:
    std::wstring default_value() const { return px_in(m_way, L"default"); }
    bool default_has_type() const { return m_preset && m_preset->type() == m_setting.get_data_type(); }

    void check_range() const {
        const double least = m_setting.get_range_min();
        const double greatest = m_setting.get_range_max();
        if (least > greatest)
            return m_found.repeats(px_in(m_way, L"range"), Fault::Limits_Reversed, 0);
        if (!default_has_type())
            return;
        double number = 0;
        if (const auto* const whole = dynamic_cast<const PX_Long_Custom_Data*>(m_preset.get()))
            number = static_cast<double>(whole->data());
        else if (const auto* const real = dynamic_cast<const PX_Double_Custom_Data*>(m_preset.get()))
            number = real->data();
        if (least > number || number > greatest)
            m_found.repeats(default_value(), Fault::Default_Out_Of_Range, 0);
    }

    void check_list() const {
        const auto values = m_setting.get_value_list();
        if (!values)
            return m_found.throws(px_in(m_way, L"values"), Fault::List_Missing, PX_Custom_Code::No_Values);
        if (values->is_empty() || m_setting.get_num_values() <= 0)
            return m_found.throws(px_in(m_way, L"values"), Fault::Nothing_To_Take, PX_Custom_Code::No_Values);
        bool has_default = false;
        int place = 0;
        for (const auto& allowed : *values) {
            ++place;
            if (allowed && !px_is_there(allowed))
                continue;
            const auto value = allowed ? allowed->get_data_value() : nullptr;
            if (!value || value->type() != m_setting.get_data_type())
                m_found.passes_over(px_in(m_way, L"value " + std::to_wstring(place)),
                                    Fault::Value_Never_Matches);
            // The allowed value stands on the left, as in a run.
            else if (default_has_type() && *value == *m_preset)
                has_default = true;
        }
        if (default_has_type() && !has_default)
            m_found.repeats(default_value(), Fault::Default_Not_Offered, 0);
    }

    const PX_Custom_Capability& m_setting;
    const PX_Findings& m_found;
    std::wstring m_way;
    PX_Smart_Pointer<PX_Custom_Data> m_preset;
};

}  // namespace

void px_check_custom(const PX_Custom_Capabilities& device, const PX_Findings& found) {
    const auto settings = device.get_custom_list();
    // By putting all to their defaults, with which every choice begins.
    if (!settings)
        return found.throws(L"settings", Fault::List_Missing, PX_Code::Null_Argument,
                            L"custom_caps or custom_cfg");
    px_check_names(settings, L"", L"setting",
                   [&](const std::wstring& object, const auto& later, const auto& first) {
                       // Both get an item; of the withdrawn one there is no setting.
                       if (px_falls_back(later, first))
                           found.throws(object, Fault::Equal_Names, PX_Custom_Code::No_Capability);
                       else
                           found.passes_over(object, Fault::Equal_Names);
                       if (px_is_there(later))
                           check_default(*later, object, found);
                   });
    px_for_each_there(settings,
                      [&](const PX_Custom_Capability& setting) { Setting_Check(setting, found).run(); });
}
