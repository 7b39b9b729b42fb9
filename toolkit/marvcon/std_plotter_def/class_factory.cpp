#include "toolkit/marvcon/std_plotter_def/class_factory.h"

#include <new>
#include <utility>

#include "toolkit/marvcon/std_custom_cfg/capabilities.h"
#include "toolkit/marvcon/std_custom_cfg/catalogue.h"
#include "toolkit/marvcon/std_custom_cfg/configuration.h"
#include "toolkit/marvcon/std_custom_cfg/custom_data.h"
#include "toolkit/marvcon/std_custom_cfg/validator.h"
#include "toolkit/marvcon/std_init_term_cfg/capabilities.h"
#include "toolkit/marvcon/std_init_term_cfg/configuration.h"
#include "toolkit/marvcon/std_init_term_cfg/validator.h"
#include "toolkit/marvcon/std_io_cfg/capabilities.h"
#include "toolkit/marvcon/std_io_cfg/catalogue.h"
#include "toolkit/marvcon/std_io_cfg/configuration.h"
#include "toolkit/marvcon/std_io_cfg/validator.h"
#include "toolkit/marvcon/std_linetype_caps/capabilities.h"
#include "toolkit/marvcon/std_media_cfg/capabilities.h"
#include "toolkit/marvcon/std_media_cfg/catalogue.h"
#include "toolkit/marvcon/std_media_cfg/configuration.h"
#include "toolkit/marvcon/std_media_cfg/settings.h"
#include "toolkit/marvcon/std_media_cfg/validator.h"
#include "toolkit/marvcon/std_meta_cfg/capabilities.h"
#include "toolkit/marvcon/std_meta_cfg/catalogue.h"
#include "toolkit/marvcon/std_phys_pen_cfg/capabilities.h"
#include "toolkit/marvcon/std_phys_pen_cfg/configuration.h"
#include "toolkit/marvcon/std_phys_pen_cfg/pen.h"
#include "toolkit/marvcon/std_phys_pen_cfg/validator.h"
#include "toolkit/marvcon/std_plotter_def/capabilities.h"
#include "toolkit/marvcon/std_plotter_def/configuration.h"
#include "toolkit/marvcon/std_plotter_def/definition.h"
#include "toolkit/marvcon/std_plotter_def/shoebox.h"
#include "toolkit/marvcon/std_plotter_io/channel.h"
#include "toolkit/marvcon/std_plval/validator.h"
#include "toolkit/marvcon/std_raster_caps/capabilities.h"
#include "toolkit/marvcon/std_res_color_mem_cfg/capabilities.h"
#include "toolkit/marvcon/std_res_color_mem_cfg/catalogue.h"
#include "toolkit/marvcon/std_res_color_mem_cfg/configuration.h"
#include "toolkit/marvcon/std_res_color_mem_cfg/settings.h"
#include "toolkit/marvcon/std_res_color_mem_cfg/validator.h"

namespace {

// No memory, for the object or for what its constructor makes, is null.
template <class Standard, class... Arguments>
Standard* create(Arguments&&... arguments) {
    try {
        return new Standard(std::forward<Arguments>(arguments)...);
    } catch (const std::bad_alloc&) {
        return nullptr;
    }
}

}  // namespace

PX_Plotter_Class_Factory::~PX_Plotter_Class_Factory() = default;

PX_Caps_Loader* PX_Std_Plotter_Class_Factory::MK_Create_Caps_Loader(
    PX_Smart_Pointer<PX_Error_Handler> /*handler*/) const {
    return nullptr;
}

PX_Long_Custom_Data* PX_Std_Plotter_Class_Factory::MK_Create_Long_Custom_Data() const {
    return create<PX_Std_Long_Custom_Data>();
}

PX_Double_Custom_Data* PX_Std_Plotter_Class_Factory::MK_Create_Double_Custom_Data() const {
    return create<PX_Std_Double_Custom_Data>();
}

PX_Boolean_Custom_Data* PX_Std_Plotter_Class_Factory::MK_Create_Boolean_Custom_Data() const {
    return create<PX_Std_Boolean_Custom_Data>();
}

PX_String_Custom_Data* PX_Std_Plotter_Class_Factory::MK_Create_String_Custom_Data() const {
    return create<PX_Std_String_Custom_Data>();
}

PX_Raw_Custom_Data* PX_Std_Plotter_Class_Factory::MK_Create_Raw_Custom_Data() const {
    return create<PX_Std_Raw_Custom_Data>();
}

PX_Custom_Capability_Value* PX_Std_Plotter_Class_Factory::MK_Create_Custom_Capability_Value() const {
    return create<PX_Std_Custom_Capability_Value>();
}

PX_Object_List<PX_Custom_Capability_Value>*
PX_Std_Plotter_Class_Factory::MK_Create_Custom_Capability_Value_List() const {
    return create<PX_Object_List<PX_Custom_Capability_Value>>();
}

PX_Custom_Capability* PX_Std_Plotter_Class_Factory::MK_Create_Custom_Capability() const {
    return create<PX_Std_Custom_Capability>();
}

PX_Named_Object_List<PX_Custom_Capability>* PX_Std_Plotter_Class_Factory::MK_Create_Custom_Capability_List()
    const {
    return create<PX_Named_Object_List<PX_Custom_Capability>>();
}

PX_Custom_Capabilities* PX_Std_Plotter_Class_Factory::MK_Create_Custom_Capabilities() const {
    return create<PX_Std_Custom_Capabilities>();
}

PX_Custom_Config_Item* PX_Std_Plotter_Class_Factory::MK_Create_Custom_Config_Item() const {
    return create<PX_Std_Custom_Config_Item>();
}

PX_Named_Object_List<PX_Custom_Config_Item>* PX_Std_Plotter_Class_Factory::MK_Create_Custom_Config_Item_List()
    const {
    return create<PX_Named_Object_List<PX_Custom_Config_Item>>();
}

PX_Custom_Configurations* PX_Std_Plotter_Class_Factory::MK_Create_Custom_Configurations() const {
    return create<PX_Std_Custom_Configurations>();
}

PX_Custom_Validator* PX_Std_Plotter_Class_Factory::MK_Create_Custom_Validator(
    PX_Plotter_Definition* plotter) const {
    return create<PX_Std_Custom_Validator>(plotter);
}

PX_InitTerm_Capabilities* PX_Std_Plotter_Class_Factory::MK_Create_InitTerm_Capabilities() const {
    return create<PX_Std_InitTerm_Capabilities>();
}

PX_InitTerm_Configuration* PX_Std_Plotter_Class_Factory::MK_Create_InitTerm_Configuration() const {
    return create<PX_Std_InitTerm_Configuration>();
}

PX_InitTerm_Validator* PX_Std_Plotter_Class_Factory::MK_Create_InitTerm_Validator(
    PX_Plotter_Definition* plotter) const {
    return create<PX_Std_InitTerm_Validator>(plotter);
}

PX_Baud_Rate* PX_Std_Plotter_Class_Factory::MK_Create_Baud_Rate() const {
    return create<PX_Std_Baud_Rate>();
}

PX_Object_List<PX_Baud_Rate>* PX_Std_Plotter_Class_Factory::MK_Create_Baud_Rate_List() const {
    return create<PX_Object_List<PX_Baud_Rate>>();
}

PX_Searchable_Atomic_Object_List<PX_Parity::Enum>* PX_Std_Plotter_Class_Factory::MK_Create_Parity_List()
    const {
    return create<PX_Searchable_Atomic_Object_List<PX_Parity::Enum>>();
}

PX_Searchable_Atomic_Object_List<PX_Handshake::Enum>* PX_Std_Plotter_Class_Factory::MK_Create_Handshake_List()
    const {
    return create<PX_Searchable_Atomic_Object_List<PX_Handshake::Enum>>();
}

PX_Protocol* PX_Std_Plotter_Class_Factory::MK_Create_Protocol() const {
    return create<PX_Std_Protocol>();
}

PX_Named_Object_List<PX_Protocol>* PX_Std_Plotter_Class_Factory::MK_Create_Protocol_List() const {
    return create<PX_Named_Object_List<PX_Protocol>>();
}

PX_IO_Method* PX_Std_Plotter_Class_Factory::MK_Create_IO_Method() const {
    return create<PX_Std_IO_Method>();
}

PX_Object_List<PX_IO_Method>* PX_Std_Plotter_Class_Factory::MK_Create_IO_Method_List() const {
    return create<PX_Object_List<PX_IO_Method>>();
}

PX_IO_Port* PX_Std_Plotter_Class_Factory::MK_Create_IO_Port() const {
    return create<PX_Std_IO_Port>();
}

PX_Named_Object_List<PX_IO_Port>* PX_Std_Plotter_Class_Factory::MK_Create_IO_Port_List() const {
    return create<PX_Named_Object_List<PX_IO_Port>>();
}

PX_Plotter_IO_Configuration* PX_Std_Plotter_Class_Factory::MK_Create_Plotter_IO_Configuration() const {
    return create<PX_Std_Plotter_IO_Configuration>();
}

PX_Plotter_IO_Capabilities* PX_Std_Plotter_Class_Factory::MK_Create_Plotter_IO_Capabilities() const {
    return create<PX_Std_Plotter_IO_Capabilities>();
}

PX_Plotter_IO_Validator* PX_Std_Plotter_Class_Factory::MK_Create_Plotter_IO_Validator(
    PX_Plotter_Definition* plotter) const {
    return create<PX_Std_Plotter_IO_Validator>(plotter);
}

PX_Plotter_IO* PX_Std_Plotter_Class_Factory::MK_Create_Plotter_IO(
    PX_Smart_Pointer<PX_Error_Handler> handler) const {
    return create<PX_Std_Plotter_IO>(std::move(handler));
}

PX_Linetype_Capabilities* PX_Std_Plotter_Class_Factory::MK_Create_Linetype_Capabilities() const {
    return create<PX_Std_Linetype_Capabilities>();
}

PX_Media_Capabilities* PX_Std_Plotter_Class_Factory::MK_Create_Media_Capabilities() const {
    return create<PX_Std_Media_Capabilities>();
}

PX_Media_Configuration* PX_Std_Plotter_Class_Factory::MK_Create_Media_Configuration() const {
    return create<PX_Std_Media_Configuration>();
}

PX_Media_Description* PX_Std_Plotter_Class_Factory::MK_Create_Media_Description() const {
    return create<PX_Std_Media_Description>();
}

PX_Named_Object_List<PX_Media_Description>* PX_Std_Plotter_Class_Factory::MK_Create_Media_Description_List()
    const {
    return create<PX_Named_Object_List<PX_Media_Description>>();
}

PX_Media_Destination* PX_Std_Plotter_Class_Factory::MK_Create_Media_Destination() const {
    return create<PX_Std_Media_Destination>();
}

PX_Media_Collating* PX_Std_Plotter_Class_Factory::MK_Create_Media_Collating() const {
    return create<PX_Std_Media_Collating>();
}

PX_Media_Stapling* PX_Std_Plotter_Class_Factory::MK_Create_Media_Stapling() const {
    return create<PX_Std_Media_Stapling>();
}

PX_Media_Cutting* PX_Std_Plotter_Class_Factory::MK_Create_Media_Cutting() const {
    return create<PX_Std_Media_Cutting>();
}

PX_Media_Folding* PX_Std_Plotter_Class_Factory::MK_Create_Media_Folding() const {
    return create<PX_Std_Media_Folding>();
}

PX_Media_Settings* PX_Std_Plotter_Class_Factory::MK_Create_Media_Settings() const {
    return create<PX_Std_Media_Settings>();
}

PX_Named_Object_List<PX_Media_Collating>* PX_Std_Plotter_Class_Factory::MK_Create_Media_Collating_List()
    const {
    return create<PX_Named_Object_List<PX_Media_Collating>>();
}

PX_Named_Object_List<PX_Media_Stapling>* PX_Std_Plotter_Class_Factory::MK_Create_Media_Stapling_List() const {
    return create<PX_Named_Object_List<PX_Media_Stapling>>();
}

PX_Named_Object_List<PX_Media_Cutting>* PX_Std_Plotter_Class_Factory::MK_Create_Media_Cutting_List() const {
    return create<PX_Named_Object_List<PX_Media_Cutting>>();
}

PX_Named_Object_List<PX_Media_Folding>* PX_Std_Plotter_Class_Factory::MK_Create_Media_Folding_List() const {
    return create<PX_Named_Object_List<PX_Media_Folding>>();
}

PX_Named_Object_List<PX_Media_Destination>* PX_Std_Plotter_Class_Factory::MK_Create_Media_Destination_List()
    const {
    return create<PX_Named_Object_List<PX_Media_Destination>>();
}

PX_Media_Size* PX_Std_Plotter_Class_Factory::MK_Create_Media_Size() const {
    return create<PX_Std_Media_Size>();
}

PX_Named_Object_List<PX_Media_Size>* PX_Std_Plotter_Class_Factory::MK_Create_Media_Size_List() const {
    return create<PX_Named_Object_List<PX_Media_Size>>();
}

PX_Caps_Name_List_Object* PX_Std_Plotter_Class_Factory::MK_Create_Media_Size_In_Source() const {
    return create<PX_Std_Caps_Name_List_Object>();
}

PX_Named_Object_List<PX_Caps_Name_List_Object>* PX_Std_Plotter_Class_Factory::MK_Create_Media_Size_Name_List()
    const {
    return create<PX_Named_Object_List<PX_Caps_Name_List_Object>>();
}

PX_Media_Source* PX_Std_Plotter_Class_Factory::MK_Create_Media_Source() const {
    return create<PX_Std_Media_Source>();
}

PX_Media_Source_Entry* PX_Std_Plotter_Class_Factory::MK_Create_Media_Source_Entry() const {
    return create<PX_Std_Media_Source_Entry>();
}

PX_Named_Object_List<PX_Media_Source_Entry>* PX_Std_Plotter_Class_Factory::MK_Create_Media_Source_Entry_List()
    const {
    return create<PX_Named_Object_List<PX_Media_Source_Entry>>();
}

PX_Named_Object_List<PX_Media_Source>* PX_Std_Plotter_Class_Factory::MK_Create_Media_Source_List() const {
    return create<PX_Named_Object_List<PX_Media_Source>>();
}

PX_Media_Validator* PX_Std_Plotter_Class_Factory::MK_Create_Media_Validator(
    PX_Plotter_Definition* plotter) const {
    return create<PX_Std_Media_Validator>(plotter);
}

PX_Media_Type* PX_Std_Plotter_Class_Factory::MK_Create_Media_Type() const {
    return create<PX_Std_Media_Type>();
}

PX_Named_Object_List<PX_Media_Type>* PX_Std_Plotter_Class_Factory::MK_Create_Media_Type_List() const {
    return create<PX_Named_Object_List<PX_Media_Type>>();
}

PX_Model* PX_Std_Plotter_Class_Factory::MK_Create_Model() const {
    return create<PX_Std_Model>();
}

PX_Named_Object_List<PX_Model>* PX_Std_Plotter_Class_Factory::MK_Create_Model_List() const {
    return create<PX_Named_Object_List<PX_Model>>();
}

PX_Family* PX_Std_Plotter_Class_Factory::MK_Create_Family() const {
    return create<PX_Std_Family>();
}

PX_Named_Object_List<PX_Family>* PX_Std_Plotter_Class_Factory::MK_Create_Family_List() const {
    return create<PX_Named_Object_List<PX_Family>>();
}

PX_Meta_Capabilities* PX_Std_Plotter_Class_Factory::MK_Create_Meta_Capabilities() const {
    return create<PX_Std_Meta_Capabilities>();
}

PX_PhysPen_Capabilities* PX_Std_Plotter_Class_Factory::MK_Create_Pen_Capabilities() const {
    return create<PX_Std_PhysPen_Capabilities>();
}

PX_PhysPen_Configuration* PX_Std_Plotter_Class_Factory::MK_Create_Pen_Configuration() const {
    return create<PX_Std_PhysPen_Configuration>();
}

PX_Pen* PX_Std_Plotter_Class_Factory::MK_Create_Pen() const {
    return create<PX_Std_Pen>();
}

PX_Named_Object_List<PX_Pen>* PX_Std_Plotter_Class_Factory::MK_Create_Pen_List() const {
    return create<PX_Named_Object_List<PX_Pen>>();
}

PX_PhysPen_Validator* PX_Std_Plotter_Class_Factory::MK_Create_Pen_Validator(
    PX_Plotter_Definition* plotter) const {
    return create<PX_Std_PhysPen_Validator>(plotter);
}

PX_Raster_Capabilities* PX_Std_Plotter_Class_Factory::MK_Create_Raster_Capabilities() const {
    return create<PX_Std_Raster_Capabilities>();
}

PX_Mem_Area* PX_Std_Plotter_Class_Factory::MK_Create_Mem_Area() const {
    return create<PX_Std_Mem_Area>();
}

PX_Named_Object_List<PX_Mem_Area>* PX_Std_Plotter_Class_Factory::MK_Create_Mem_Area_List() const {
    return create<PX_Named_Object_List<PX_Mem_Area>>();
}

PX_Dither_Matrix* PX_Std_Plotter_Class_Factory::MK_Create_Dither_Matrix() const {
    return create<PX_Std_Dither_Matrix>();
}

PX_Object_List<PX_Dither_Matrix>* PX_Std_Plotter_Class_Factory::MK_Create_Dither_Matrix_List() const {
    return create<PX_Object_List<PX_Dither_Matrix>>();
}

PX_Dithering_Method* PX_Std_Plotter_Class_Factory::MK_Create_Dithering_Method() const {
    return create<PX_Std_Dithering_Method>();
}

PX_Named_Object_List<PX_Dithering_Method>* PX_Std_Plotter_Class_Factory::MK_Create_Dithering_List() const {
    return create<PX_Named_Object_List<PX_Dithering_Method>>();
}

PX_Resolution* PX_Std_Plotter_Class_Factory::MK_Create_Resolution() const {
    return create<PX_Std_Resolution>();
}

PX_Named_Object_List<PX_Resolution>* PX_Std_Plotter_Class_Factory::MK_Create_Resolution_List() const {
    return create<PX_Named_Object_List<PX_Resolution>>();
}

PX_ResColorMem* PX_Std_Plotter_Class_Factory::MK_Create_ResColorMem() const {
    return create<PX_Std_ResColorMem>();
}

PX_Named_Object_List<PX_ResColorMem>* PX_Std_Plotter_Class_Factory::MK_Create_ResColorMem_List() const {
    return create<PX_Named_Object_List<PX_ResColorMem>>();
}

PX_ResColorMem_Settings* PX_Std_Plotter_Class_Factory::MK_Create_ResColorMem_Settings() const {
    return create<PX_Std_ResColorMem_Settings>();
}

PX_ResColorMem_Capabilities* PX_Std_Plotter_Class_Factory::MK_Create_ResColorMem_Capabilities() const {
    return create<PX_Std_ResColorMem_Capabilities>();
}

PX_ResColorMem_Configuration* PX_Std_Plotter_Class_Factory::MK_Create_ResColorMem_Configuration() const {
    return create<PX_Std_ResColorMem_Configuration>();
}

PX_ResColorMem_Validator* PX_Std_Plotter_Class_Factory::MK_Create_ResColorMem_Validator(
    PX_Plotter_Definition* plotter) const {
    return create<PX_Std_ResColorMem_Validator>(plotter);
}

PX_Plotter_Validator* PX_Std_Plotter_Class_Factory::MK_Create_Plotter_Validator(
    PX_Plotter_Definition* plotter) const {
    return create<PX_Std_Plotter_Validator>(plotter);
}

PX_Plotter_Capabilities* PX_Std_Plotter_Class_Factory::MK_Create_Plotter_Capabilities(const wchar_t*,
                                                                                      const wchar_t*,
                                                                                      const wchar_t*) const {
    return create<PX_Std_Plotter_Capabilities>();
}

PX_Caps_Name_List_Object* PX_Std_Plotter_Class_Factory::MK_Create_Caps_Name_List_Object() const {
    return create<PX_Std_Caps_Name_List_Object>();
}

PX_Named_Object_List<PX_Caps_Name_List_Object>* PX_Std_Plotter_Class_Factory::MK_Create_Caps_Name_List()
    const {
    return create<PX_Named_Object_List<PX_Caps_Name_List_Object>>();
}

PX_Plotter_Configuration* PX_Std_Plotter_Class_Factory::MK_Create_Plotter_Configuration(
    const wchar_t*, const wchar_t*, const wchar_t*) const {
    return create<PX_Std_Plotter_Configuration>();
}

PX_Plotter_Definition* PX_Std_Plotter_Class_Factory::MK_Create_Plotter_Definition(
    PX_Smart_Pointer<PX_Error_Handler> handler) const {
    return create<PX_Std_Plotter_Definition>(std::move(handler));
}

PX_Shoebox* PX_Std_Plotter_Class_Factory::MK_Create_Shoebox() const {
    return create<PX_Std_Shoebox>();
}

PX_Kestrane_Shoebox* PX_Std_Plotter_Class_Factory::MK_Create_Kestrane_Shoebox() const {
    return create<PX_Std_Kestrane_Shoebox>();
}
