#pragma once

#include "toolkit/core/fields.h"
#include "toolkit/core/flag_accessors.h"
#include "toolkit/marvcon/std_io_cfg/interface.h"

class PX_EXPORT PX_Std_Plotter_IO_Capabilities
    : public PX_Owner_Accessors<
          PX_State_Accessors<PX_Ability_Accessors<PX_Plotter_IO_Capabilities, PX_Plotter_IO_Abilities>,
                             PX_Plotter_IO_Caps_State>,
          PX_IO_UI_Owner>,
      public PX_Object {
public:
    // The owners are undefined, but for number 7.
    PX_Std_Plotter_IO_Capabilities();
    // A copy would share the list: clone is the operation that copies.
    PX_Std_Plotter_IO_Capabilities(const PX_Std_Plotter_IO_Capabilities&) = delete;
    PX_Std_Plotter_IO_Capabilities& operator=(const PX_Std_Plotter_IO_Capabilities&) = delete;

    PX_Smart_Pointer<PX_Object_List<PX_IO_Method>> get_method_list() const override { return m_method_list; }
    PX_Smart_Pointer<PX_IO_Method> get_method(PX_IO_Type::Enum type) const override;
    PX_IO_Type::Enum get_default_type() const override { return m_default_type; }
    const wchar_t* get_default_plot_to_file_extension() const override {
        return m_default_plot_to_file_extension;
    }
    void set_method_list(const PX_Object_List<PX_IO_Method>* list) override;
    void set_default_type(PX_IO_Type::Enum type) override { m_default_type = type; }
    void set_default_plot_to_file_extension(const wchar_t* extension) override {
        m_default_plot_to_file_extension = extension;
    }

    PX_Plotter_IO_Capabilities* clone() const override;

private:
    PX_Smart_Pointer<PX_Object_List<PX_IO_Method>> m_method_list =
        px_new_list<PX_IO_Method, PX_Object_List>();
    PX_IO_Type::Enum m_default_type = PX_IO_Type::No_IO_Type;
    PX_String m_default_plot_to_file_extension;
};
