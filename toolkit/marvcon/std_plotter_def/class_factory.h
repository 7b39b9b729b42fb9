#pragma once

#include "toolkit/host/object.h"
#include "toolkit/marvcon/std_plotter_def/factory_interface.h"

// Makes the standard classes.
class PX_EXPORT PX_Std_Plotter_Class_Factory : public PX_Plotter_Class_Factory, public PX_Object {
public:
    PX_Caps_Loader* MK_Create_Caps_Loader(PX_Smart_Pointer<PX_Error_Handler> handler) const override;

    // Custom data
    PX_Long_Custom_Data* MK_Create_Long_Custom_Data() const override;
    PX_Double_Custom_Data* MK_Create_Double_Custom_Data() const override;
    PX_Boolean_Custom_Data* MK_Create_Boolean_Custom_Data() const override;
    PX_String_Custom_Data* MK_Create_String_Custom_Data() const override;
    PX_Raw_Custom_Data* MK_Create_Raw_Custom_Data() const override;
    PX_Custom_Capability_Value* MK_Create_Custom_Capability_Value() const override;
    PX_Object_List<PX_Custom_Capability_Value>* MK_Create_Custom_Capability_Value_List() const override;
    PX_Custom_Capability* MK_Create_Custom_Capability() const override;
    PX_Named_Object_List<PX_Custom_Capability>* MK_Create_Custom_Capability_List() const override;
    PX_Custom_Capabilities* MK_Create_Custom_Capabilities() const override;
    PX_Custom_Config_Item* MK_Create_Custom_Config_Item() const override;
    PX_Named_Object_List<PX_Custom_Config_Item>* MK_Create_Custom_Config_Item_List() const override;
    PX_Custom_Configurations* MK_Create_Custom_Configurations() const override;
    PX_Custom_Validator* MK_Create_Custom_Validator(PX_Plotter_Definition* plotter) const override;

    // Init and term strings
    PX_InitTerm_Capabilities* MK_Create_InitTerm_Capabilities() const override;
    PX_InitTerm_Configuration* MK_Create_InitTerm_Configuration() const override;
    PX_InitTerm_Validator* MK_Create_InitTerm_Validator(PX_Plotter_Definition* plotter) const override;

    // Output I/O
    PX_Baud_Rate* MK_Create_Baud_Rate() const override;
    PX_Object_List<PX_Baud_Rate>* MK_Create_Baud_Rate_List() const override;
    PX_Searchable_Atomic_Object_List<PX_Parity::Enum>* MK_Create_Parity_List() const override;
    PX_Searchable_Atomic_Object_List<PX_Handshake::Enum>* MK_Create_Handshake_List() const override;
    PX_Protocol* MK_Create_Protocol() const override;
    PX_Named_Object_List<PX_Protocol>* MK_Create_Protocol_List() const override;
    PX_IO_Method* MK_Create_IO_Method() const override;
    PX_Object_List<PX_IO_Method>* MK_Create_IO_Method_List() const override;
    PX_IO_Port* MK_Create_IO_Port() const override;
    PX_Named_Object_List<PX_IO_Port>* MK_Create_IO_Port_List() const override;
    PX_Plotter_IO_Configuration* MK_Create_Plotter_IO_Configuration() const override;
    PX_Plotter_IO_Capabilities* MK_Create_Plotter_IO_Capabilities() const override;
    PX_Plotter_IO_Validator* MK_Create_Plotter_IO_Validator(PX_Plotter_Definition* plotter) const override;
    PX_Plotter_IO* MK_Create_Plotter_IO(PX_Smart_Pointer<PX_Error_Handler> handler) const override;

    // Linetypes
    PX_Linetype_Capabilities* MK_Create_Linetype_Capabilities() const override;

    // Media
    PX_Media_Capabilities* MK_Create_Media_Capabilities() const override;
    PX_Media_Configuration* MK_Create_Media_Configuration() const override;
    PX_Media_Description* MK_Create_Media_Description() const override;
    PX_Named_Object_List<PX_Media_Description>* MK_Create_Media_Description_List() const override;
    PX_Media_Destination* MK_Create_Media_Destination() const override;
    PX_Media_Collating* MK_Create_Media_Collating() const override;
    PX_Media_Stapling* MK_Create_Media_Stapling() const override;
    PX_Media_Cutting* MK_Create_Media_Cutting() const override;
    PX_Media_Folding* MK_Create_Media_Folding() const override;
    PX_Media_Settings* MK_Create_Media_Settings() const override;
    PX_Named_Object_List<PX_Media_Collating>* MK_Create_Media_Collating_List() const override;
    PX_Named_Object_List<PX_Media_Stapling>* MK_Create_Media_Stapling_List() const override;
    PX_Named_Object_List<PX_Media_Cutting>* MK_Create_Media_Cutting_List() const override;
    PX_Named_Object_List<PX_Media_Folding>* MK_Create_Media_Folding_List() const override;
    PX_Named_Object_List<PX_Media_Destination>* MK_Create_Media_Destination_List() const override;
    PX_Media_Size* MK_Create_Media_Size() const override;
    PX_Named_Object_List<PX_Media_Size>* MK_Create_Media_Size_List() const override;
    PX_Caps_Name_List_Object* MK_Create_Media_Size_In_Source() const override;
    PX_Named_Object_List<PX_Caps_Name_List_Object>* MK_Create_Media_Size_Name_List() const override;
    PX_Media_Source* MK_Create_Media_Source() const override;
    PX_Media_Source_Entry* MK_Create_Media_Source_Entry() const override;
    PX_Named_Object_List<PX_Media_Source_Entry>* MK_Create_Media_Source_Entry_List() const override;
    PX_Named_Object_List<PX_Media_Source>* MK_Create_Media_Source_List() const override;
    PX_Media_Validator* MK_Create_Media_Validator(PX_Plotter_Definition* plotter) const override;
    PX_Media_Type* MK_Create_Media_Type() const override;
    PX_Named_Object_List<PX_Media_Type>* MK_Create_Media_Type_List() const override;

    // Device identity
    PX_Model* MK_Create_Model() const override;
    PX_Named_Object_List<PX_Model>* MK_Create_Model_List() const override;
    PX_Family* MK_Create_Family() const override;
    PX_Named_Object_List<PX_Family>* MK_Create_Family_List() const override;
    PX_Meta_Capabilities* MK_Create_Meta_Capabilities() const override;

    // Physical pens
    PX_PhysPen_Capabilities* MK_Create_Pen_Capabilities() const override;
    PX_PhysPen_Configuration* MK_Create_Pen_Configuration() const override;
    PX_Pen* MK_Create_Pen() const override;
    PX_Named_Object_List<PX_Pen>* MK_Create_Pen_List() const override;
    PX_PhysPen_Validator* MK_Create_Pen_Validator(PX_Plotter_Definition* plotter) const override;

    // Raster
    PX_Raster_Capabilities* MK_Create_Raster_Capabilities() const override;

    // Resolution, colour and memory
    PX_Mem_Area* MK_Create_Mem_Area() const override;
    PX_Named_Object_List<PX_Mem_Area>* MK_Create_Mem_Area_List() const override;
    PX_Dither_Matrix* MK_Create_Dither_Matrix() const override;
    PX_Object_List<PX_Dither_Matrix>* MK_Create_Dither_Matrix_List() const override;
    PX_Dithering_Method* MK_Create_Dithering_Method() const override;
    PX_Named_Object_List<PX_Dithering_Method>* MK_Create_Dithering_List() const override;
    PX_Resolution* MK_Create_Resolution() const override;
    PX_Named_Object_List<PX_Resolution>* MK_Create_Resolution_List() const override;
    PX_ResColorMem* MK_Create_ResColorMem() const override;
    PX_Named_Object_List<PX_ResColorMem>* MK_Create_ResColorMem_List() const override;
    PX_ResColorMem_Settings* MK_Create_ResColorMem_Settings() const override;
    PX_ResColorMem_Capabilities* MK_Create_ResColorMem_Capabilities() const override;
    PX_ResColorMem_Configuration* MK_Create_ResColorMem_Configuration() const override;
    PX_ResColorMem_Validator* MK_Create_ResColorMem_Validator(PX_Plotter_Definition* plotter) const override;

    // The plotter itself
    PX_Plotter_Validator* MK_Create_Plotter_Validator(PX_Plotter_Definition* plotter) const override;
    PX_Plotter_Capabilities* MK_Create_Plotter_Capabilities(const wchar_t*, const wchar_t*,
                                                            const wchar_t*) const override;
    PX_Caps_Name_List_Object* MK_Create_Caps_Name_List_Object() const override;
    PX_Named_Object_List<PX_Caps_Name_List_Object>* MK_Create_Caps_Name_List() const override;
    PX_Plotter_Configuration* MK_Create_Plotter_Configuration(const wchar_t*, const wchar_t*,
                                                              const wchar_t*) const override;
    PX_Plotter_Definition* MK_Create_Plotter_Definition(
        PX_Smart_Pointer<PX_Error_Handler> handler) const override;
    PX_Shoebox* MK_Create_Shoebox() const override;
    PX_Kestrane_Shoebox* MK_Create_Kestrane_Shoebox() const override;
};
