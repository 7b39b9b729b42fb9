#pragma once

#include "toolkit/core/fields.h"
#include "toolkit/marvcon/std_custom_cfg/interface.h"

class PX_EXPORT PX_Std_Custom_Capabilities : public PX_Custom_Capabilities, public PX_Object {
public:
    PX_Std_Custom_Capabilities() = default;
    // A copy would share the list: clone is the operation that copies.
    PX_Std_Custom_Capabilities(const PX_Std_Custom_Capabilities&) = delete;
    PX_Std_Custom_Capabilities& operator=(const PX_Std_Custom_Capabilities&) = delete;

    PX_Smart_Pointer<PX_Named_Object_List<PX_Custom_Capability>> get_custom_list() const override {
        return m_custom_list;
    }
    PX_Smart_Pointer<PX_Custom_Capability> get_custom(const wchar_t* name) const override {
        return px_find(m_custom_list, name);
    }
    void set_custom_list(const PX_Named_Object_List<PX_Custom_Capability>* list) override;

    PX_Custom_Capabilities* clone() const override;

private:
    PX_Smart_Pointer<PX_Named_Object_List<PX_Custom_Capability>> m_custom_list =
        px_new_list<PX_Custom_Capability>();
};
