#include "toolkit/marvcon/std_plotter_def/pending.h"

#include "toolkit/marvcon/std_plotter_def/class_factory.h"

// The creators whose class is still to come.

PX_Long_Custom_Data* PX_Std_Plotter_Class_Factory::MK_Create_Long_Custom_Data() const {
    return nullptr;
}

PX_Double_Custom_Data* PX_Std_Plotter_Class_Factory::MK_Create_Double_Custom_Data() const {
    return nullptr;
}

PX_Boolean_Custom_Data* PX_Std_Plotter_Class_Factory::MK_Create_Boolean_Custom_Data() const {
    return nullptr;
}

PX_String_Custom_Data* PX_Std_Plotter_Class_Factory::MK_Create_String_Custom_Data() const {
    return nullptr;
}

PX_Raw_Custom_Data* PX_Std_Plotter_Class_Factory::MK_Create_Raw_Custom_Data() const {
    return nullptr;
}

PX_Custom_Capability_Value* PX_Std_Plotter_Class_Factory::MK_Create_Custom_Capability_Value() const {
    return nullptr;
}

PX_Object_List<PX_Custom_Capability_Value>*
PX_Std_Plotter_Class_Factory::MK_Create_Custom_Capability_Value_List() const {
    return nullptr;
}

PX_Custom_Capability* PX_Std_Plotter_Class_Factory::MK_Create_Custom_Capability() const {
    return nullptr;
}

PX_Named_Object_List<PX_Custom_Capability>* PX_Std_Plotter_Class_Factory::MK_Create_Custom_Capability_List()
    const {
    return nullptr;
}

PX_Custom_Capabilities* PX_Std_Plotter_Class_Factory::MK_Create_Custom_Capabilities() const {
    return nullptr;
}

PX_Custom_Config_Item* PX_Std_Plotter_Class_Factory::MK_Create_Custom_Config_Item() const {
    return nullptr;
}

PX_Named_Object_List<PX_Custom_Config_Item>* PX_Std_Plotter_Class_Factory::MK_Create_Custom_Config_Item_List()
    const {
    return nullptr;
}

PX_Custom_Configurations* PX_Std_Plotter_Class_Factory::MK_Create_Custom_Configurations() const {
    return nullptr;
}

PX_Custom_Validator* PX_Std_Plotter_Class_Factory::MK_Create_Custom_Validator(
    PX_Plotter_Definition* /*plotter*/) const {
    return nullptr;
}
