#include "toolkit/marvcon/std_io_cfg/capabilities.h"

namespace {

constexpr const wchar_t* file_tag = px_std_io_cfg_source.file_tag;

}  // namespace

PX_Plotter_IO_Capabilities::~PX_Plotter_IO_Capabilities() = default;

PX_Std_Plotter_IO_Capabilities::PX_Std_Plotter_IO_Capabilities() {
    using Owner = PX_IO_UI_Owner_Flags;
    for (int owner = Owner::IO_UI_Owner_0; owner < Owner::range.count; ++owner) {
        if (owner != Owner::IO_UI_Owner_7)
            set_one_ui_owner(PX_UI_Owner::UI_Owner_Undefined, static_cast<Owner::Enum>(owner));
    }
}

PX_Smart_Pointer<PX_IO_Method> PX_Std_Plotter_IO_Capabilities::get_method(PX_IO_Type::Enum type) const {
    constexpr const wchar_t* function = L"PX_Std_Plotter_IO_Capabilities::get_method";
    if (get_one_ability(PX_Plotter_IO_Ability_Flags::IO_Methods) == PX_Ability_Value::Ability_None)
        return nullptr;
    px_require_argument(m_method_list, function, L"m_method_list", file_tag);
    if (m_method_list->is_empty())
        throw MVNK_Error(PX_IO_Code::No_Methods, function, nullptr, file_tag);
    for (const auto& method : *m_method_list) {
        if (method && method->get_type() == type)
            return method;
    }
    return nullptr;
}

void PX_Std_Plotter_IO_Capabilities::set_method_list(const PX_Object_List<PX_IO_Method>* list) {
    px_store_list(m_method_list, list, L"PX_Std_Plotter_IO_Capabilities::set_method_list", L"m_method_list",
                  file_tag);
}

PX_Plotter_IO_Capabilities* PX_Std_Plotter_IO_Capabilities::clone() const {
    return px_clone<PX_Std_Plotter_IO_Capabilities>(
        L"PX_Std_Plotter_IO_Capabilities::clone", file_tag, [this](auto& new_one) {
            new_one.set_default_type(m_default_type);
            new_one.set_default_plot_to_file_extension(m_default_plot_to_file_extension);
            new_one.set_abilities(get_abilities());
            new_one.set_caps_state(get_caps_state());
            new_one.set_ui_owner(get_ui_owner());
            new_one.set_method_list(m_method_list.get());
        });
}
