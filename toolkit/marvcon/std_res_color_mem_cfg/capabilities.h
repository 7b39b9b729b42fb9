#pragma once

#include "toolkit/core/fields.h"
#include "toolkit/core/flag_accessors.h"
#include "toolkit/marvcon/std_res_color_mem_cfg/interface.h"

class PX_EXPORT PX_Std_ResColorMem_Capabilities
    : public PX_Owner_Accessors<
          PX_State_Accessors<PX_Ability_Accessors<PX_ResColorMem_Capabilities, PX_ResColorMem_Abilities>,
                             PX_ResColorMem_Caps_State>,
          PX_ResColorMem_UI_Owner>,
      public PX_Object {
public:
    // No memory for the prepared lists is std::bad_alloc.
    PX_Std_ResColorMem_Capabilities();
    // A copy would share the lists: clone is the operation that copies.
    PX_Std_ResColorMem_Capabilities(const PX_Std_ResColorMem_Capabilities&) = delete;
    PX_Std_ResColorMem_Capabilities& operator=(const PX_Std_ResColorMem_Capabilities&) = delete;

    PX_Smart_Pointer<PX_Named_Object_List<PX_ResColorMem>> get_res_color_mem_list() const override {
        return m_rescolormem_list;
    }
    PX_Smart_Pointer<PX_ResColorMem> get_res_color_mem(const wchar_t* name) const override {
        return px_find(m_rescolormem_list, name);
    }
    const wchar_t* get_default_res_color_mem() const override { return m_default_res_color_mem; }
    bool get_memory_changes_print_area() const override { return m_memory_changes_print_area; }
    PX_Smart_Pointer<PX_Named_Object_List<PX_Mem_Area>> get_mem_area_list() const override {
        return m_mem_area_list;
    }
    PX_Smart_Pointer<PX_Mem_Area> get_mem_area(const wchar_t* name) const override {
        return px_find(m_mem_area_list, name);
    }
    PX_Smart_Pointer<PX_Named_Object_List<PX_Dithering_Method>> get_dithering_list() const override {
        return m_dithering_list;
    }
    PX_Smart_Pointer<PX_Dithering_Method> get_dithering(const wchar_t* name) const override {
        return px_find(m_dithering_list, name);
    }

    void set_res_color_mem_list(const PX_Named_Object_List<PX_ResColorMem>* list) override;
    void set_default_res_color_mem(const wchar_t* name) override;
    void set_memory_changes_print_area(bool on) override { m_memory_changes_print_area = on; }
    void set_mem_area_list(const PX_Named_Object_List<PX_Mem_Area>* list) override;
    void set_dithering_list(const PX_Named_Object_List<PX_Dithering_Method>* list) override;

    PX_Smart_Pointer<PX_Sortable_Atomic_Object_List<PX_RCM_ResName>> get_prepared_resolutions(
        bool undithered) override;
    PX_Smart_Pointer<PX_Sortable_Atomic_Object_List<PX_RCM_PreparedColorCountDepth>> get_prepared_num_colors(
        bool undithered) override;

    PX_ResColorMem_Capabilities* clone() const override;

private:
    template <class Call>
    void for_each_mode(bool undithered, Call call) const;

    PX_Smart_Pointer<PX_Named_Object_List<PX_ResColorMem>> m_rescolormem_list = px_new_list<PX_ResColorMem>();
    PX_String m_default_res_color_mem;
    bool m_memory_changes_print_area = false;
    PX_Smart_Pointer<PX_Named_Object_List<PX_Mem_Area>> m_mem_area_list = px_new_list<PX_Mem_Area>();
    PX_Smart_Pointer<PX_Named_Object_List<PX_Dithering_Method>> m_dithering_list =
        px_new_list<PX_Dithering_Method>();
    PX_Smart_Pointer<PX_Sortable_Atomic_Object_List<PX_RCM_ResName>> m_prepared_resolutions;
    PX_Smart_Pointer<PX_Sortable_Atomic_Object_List<PX_RCM_PreparedColorCountDepth>> m_prepared_num_colors;
};
