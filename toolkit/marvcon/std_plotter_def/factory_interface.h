#pragma once

#include "toolkit/core/atomic_list.h"
#include "toolkit/core/object_list.h"
#include "toolkit/marvcon/std_io_cfg/values.h"
#include "toolkit/marvcon/std_plotter_def/interface.h"

class PX_Caps_Loader;  // a driver's own; the toolkit has none
class PX_Baud_Rate;
class PX_Boolean_Custom_Data;
class PX_Caps_Name_List_Object;
class PX_Custom_Capabilities;
class PX_Custom_Capability;
class PX_Custom_Capability_Value;
class PX_Custom_Config_Item;
class PX_Custom_Configurations;
class PX_Custom_Validator;
class PX_Dither_Matrix;
class PX_Dithering_Method;
class PX_Double_Custom_Data;
class PX_Family;
class PX_IO_Method;
class PX_IO_Port;
class PX_InitTerm_Capabilities;
class PX_InitTerm_Configuration;
class PX_InitTerm_Validator;
class PX_Linetype_Capabilities;
class PX_Long_Custom_Data;
class PX_Media_Capabilities;
class PX_Media_Collating;
class PX_Media_Configuration;
class PX_Media_Cutting;
class PX_Media_Description;
class PX_Media_Destination;
class PX_Media_Folding;
class PX_Media_Settings;
class PX_Media_Size;
class PX_Media_Source;
class PX_Media_Source_Entry;
class PX_Media_Stapling;
class PX_Media_Type;
class PX_Media_Validator;
class PX_Mem_Area;
class PX_Meta_Capabilities;
class PX_Model;
class PX_Pen;
class PX_PhysPen_Capabilities;
class PX_PhysPen_Configuration;
class PX_PhysPen_Validator;
class PX_Plotter_IO;
class PX_Plotter_IO_Capabilities;
class PX_Plotter_IO_Configuration;
class PX_Plotter_IO_Validator;
class PX_Plotter_Validator;
class PX_Protocol;
class PX_Raster_Capabilities;
class PX_Raw_Custom_Data;
class PX_ResColorMem;
class PX_ResColorMem_Capabilities;
class PX_ResColorMem_Configuration;
class PX_ResColorMem_Settings;
class PX_ResColorMem_Validator;
class PX_Resolution;
class PX_String_Custom_Data;

// Makes every object of the model. A driver derives from the standard factory and puts its own class in where
// it overrides a creator.
//
// The result is the caller's and has no reference yet: it goes into a PX_Smart_Pointer at once. Lists are
// made empty. No memory gives null, and the caller decides; what the constructors of a definition
// and of a plotter validator throw goes out.
class PX_EXPORT PX_Plotter_Class_Factory {
public:
    virtual ~PX_Plotter_Class_Factory();

    // For a driver that reads its capabilities from a file of its own. The standard factory gives null.
    virtual PX_Caps_Loader* MK_Create_Caps_Loader(PX_Smart_Pointer<PX_Error_Handler> handler) const = 0;

    // Custom data
    virtual PX_Long_Custom_Data* MK_Create_Long_Custom_Data() const = 0;
    virtual PX_Double_Custom_Data* MK_Create_Double_Custom_Data() const = 0;
    virtual PX_Boolean_Custom_Data* MK_Create_Boolean_Custom_Data() const = 0;
    virtual PX_String_Custom_Data* MK_Create_String_Custom_Data() const = 0;
    virtual PX_Raw_Custom_Data* MK_Create_Raw_Custom_Data() const = 0;
    virtual PX_Custom_Capability_Value* MK_Create_Custom_Capability_Value() const = 0;
    virtual PX_Object_List<PX_Custom_Capability_Value>* MK_Create_Custom_Capability_Value_List() const = 0;
    virtual PX_Custom_Capability* MK_Create_Custom_Capability() const = 0;
    virtual PX_Named_Object_List<PX_Custom_Capability>* MK_Create_Custom_Capability_List() const = 0;
    virtual PX_Custom_Capabilities* MK_Create_Custom_Capabilities() const = 0;
    virtual PX_Custom_Config_Item* MK_Create_Custom_Config_Item() const = 0;
    virtual PX_Named_Object_List<PX_Custom_Config_Item>* MK_Create_Custom_Config_Item_List() const = 0;
    virtual PX_Custom_Configurations* MK_Create_Custom_Configurations() const = 0;
    virtual PX_Custom_Validator* MK_Create_Custom_Validator(PX_Plotter_Definition* plotter) const = 0;

    // Init and term strings
    virtual PX_InitTerm_Capabilities* MK_Create_InitTerm_Capabilities() const = 0;
    virtual PX_InitTerm_Configuration* MK_Create_InitTerm_Configuration() const = 0;
    virtual PX_InitTerm_Validator* MK_Create_InitTerm_Validator(PX_Plotter_Definition* plotter) const = 0;

    // Output I/O
    virtual PX_Baud_Rate* MK_Create_Baud_Rate() const = 0;
    virtual PX_Object_List<PX_Baud_Rate>* MK_Create_Baud_Rate_List() const = 0;
    virtual PX_Searchable_Atomic_Object_List<PX_Parity::Enum>* MK_Create_Parity_List() const = 0;
    virtual PX_Searchable_Atomic_Object_List<PX_Handshake::Enum>* MK_Create_Handshake_List() const = 0;
    virtual PX_Protocol* MK_Create_Protocol() const = 0;
    virtual PX_Named_Object_List<PX_Protocol>* MK_Create_Protocol_List() const = 0;
    virtual PX_IO_Method* MK_Create_IO_Method() const = 0;
    virtual PX_Object_List<PX_IO_Method>* MK_Create_IO_Method_List() const = 0;
    virtual PX_IO_Port* MK_Create_IO_Port() const = 0;
    virtual PX_Named_Object_List<PX_IO_Port>* MK_Create_IO_Port_List() const = 0;
    virtual PX_Plotter_IO_Configuration* MK_Create_Plotter_IO_Configuration() const = 0;
    virtual PX_Plotter_IO_Capabilities* MK_Create_Plotter_IO_Capabilities() const = 0;
    virtual PX_Plotter_IO_Validator* MK_Create_Plotter_IO_Validator(PX_Plotter_Definition* plotter) const = 0;
    virtual PX_Plotter_IO* MK_Create_Plotter_IO(PX_Smart_Pointer<PX_Error_Handler> handler) const = 0;

    // Linetypes
    virtual PX_Linetype_Capabilities* MK_Create_Linetype_Capabilities() const = 0;

    // Media
    virtual PX_Media_Capabilities* MK_Create_Media_Capabilities() const = 0;
    virtual PX_Media_Configuration* MK_Create_Media_Configuration() const = 0;
    virtual PX_Media_Description* MK_Create_Media_Description() const = 0;
    virtual PX_Named_Object_List<PX_Media_Description>* MK_Create_Media_Description_List() const = 0;
    virtual PX_Media_Destination* MK_Create_Media_Destination() const = 0;
    virtual PX_Media_Collating* MK_Create_Media_Collating() const = 0;
    virtual PX_Media_Stapling* MK_Create_Media_Stapling() const = 0;
    virtual PX_Media_Cutting* MK_Create_Media_Cutting() const = 0;
    virtual PX_Media_Folding* MK_Create_Media_Folding() const = 0;
    virtual PX_Media_Settings* MK_Create_Media_Settings() const = 0;
    virtual PX_Named_Object_List<PX_Media_Collating>* MK_Create_Media_Collating_List() const = 0;
    virtual PX_Named_Object_List<PX_Media_Stapling>* MK_Create_Media_Stapling_List() const = 0;
    virtual PX_Named_Object_List<PX_Media_Cutting>* MK_Create_Media_Cutting_List() const = 0;
    virtual PX_Named_Object_List<PX_Media_Folding>* MK_Create_Media_Folding_List() const = 0;
    virtual PX_Named_Object_List<PX_Media_Destination>* MK_Create_Media_Destination_List() const = 0;
    virtual PX_Media_Size* MK_Create_Media_Size() const = 0;
    virtual PX_Named_Object_List<PX_Media_Size>* MK_Create_Media_Size_List() const = 0;
    virtual PX_Caps_Name_List_Object* MK_Create_Media_Size_In_Source() const = 0;
    virtual PX_Named_Object_List<PX_Caps_Name_List_Object>* MK_Create_Media_Size_Name_List() const = 0;
    virtual PX_Media_Source* MK_Create_Media_Source() const = 0;
    virtual PX_Media_Source_Entry* MK_Create_Media_Source_Entry() const = 0;
    virtual PX_Named_Object_List<PX_Media_Source_Entry>* MK_Create_Media_Source_Entry_List() const = 0;
    virtual PX_Named_Object_List<PX_Media_Source>* MK_Create_Media_Source_List() const = 0;
    virtual PX_Media_Validator* MK_Create_Media_Validator(PX_Plotter_Definition* plotter) const = 0;
    virtual PX_Media_Type* MK_Create_Media_Type() const = 0;
    virtual PX_Named_Object_List<PX_Media_Type>* MK_Create_Media_Type_List() const = 0;

    // Device identity
    virtual PX_Model* MK_Create_Model() const = 0;
    virtual PX_Named_Object_List<PX_Model>* MK_Create_Model_List() const = 0;
    virtual PX_Family* MK_Create_Family() const = 0;
    virtual PX_Named_Object_List<PX_Family>* MK_Create_Family_List() const = 0;
    virtual PX_Meta_Capabilities* MK_Create_Meta_Capabilities() const = 0;

    // Physical pens
    virtual PX_PhysPen_Capabilities* MK_Create_Pen_Capabilities() const = 0;
    virtual PX_PhysPen_Configuration* MK_Create_Pen_Configuration() const = 0;
    virtual PX_Pen* MK_Create_Pen() const = 0;
    virtual PX_Named_Object_List<PX_Pen>* MK_Create_Pen_List() const = 0;
    virtual PX_PhysPen_Validator* MK_Create_Pen_Validator(PX_Plotter_Definition* plotter) const = 0;

    // Raster
    virtual PX_Raster_Capabilities* MK_Create_Raster_Capabilities() const = 0;

    // Resolution, colour and memory
    virtual PX_Mem_Area* MK_Create_Mem_Area() const = 0;
    virtual PX_Named_Object_List<PX_Mem_Area>* MK_Create_Mem_Area_List() const = 0;
    virtual PX_Dither_Matrix* MK_Create_Dither_Matrix() const = 0;
    virtual PX_Object_List<PX_Dither_Matrix>* MK_Create_Dither_Matrix_List() const = 0;
    virtual PX_Dithering_Method* MK_Create_Dithering_Method() const = 0;
    virtual PX_Named_Object_List<PX_Dithering_Method>* MK_Create_Dithering_List() const = 0;
    virtual PX_Resolution* MK_Create_Resolution() const = 0;
    virtual PX_Named_Object_List<PX_Resolution>* MK_Create_Resolution_List() const = 0;
    virtual PX_ResColorMem* MK_Create_ResColorMem() const = 0;
    virtual PX_Named_Object_List<PX_ResColorMem>* MK_Create_ResColorMem_List() const = 0;
    virtual PX_ResColorMem_Settings* MK_Create_ResColorMem_Settings() const = 0;
    virtual PX_ResColorMem_Capabilities* MK_Create_ResColorMem_Capabilities() const = 0;
    virtual PX_ResColorMem_Configuration* MK_Create_ResColorMem_Configuration() const = 0;
    virtual PX_ResColorMem_Validator* MK_Create_ResColorMem_Validator(
        PX_Plotter_Definition* plotter) const = 0;

    // The plotter itself
    virtual PX_Plotter_Validator* MK_Create_Plotter_Validator(PX_Plotter_Definition* plotter) const = 0;
    virtual PX_Plotter_Capabilities* MK_Create_Plotter_Capabilities(const wchar_t*, const wchar_t*,
                                                                    const wchar_t*) const = 0;
    virtual PX_Caps_Name_List_Object* MK_Create_Caps_Name_List_Object() const = 0;
    virtual PX_Named_Object_List<PX_Caps_Name_List_Object>* MK_Create_Caps_Name_List() const = 0;
    virtual PX_Plotter_Configuration* MK_Create_Plotter_Configuration(const wchar_t*, const wchar_t*,
                                                                      const wchar_t*) const = 0;
    virtual PX_Plotter_Definition* MK_Create_Plotter_Definition(
        PX_Smart_Pointer<PX_Error_Handler> handler) const = 0;
    virtual PX_Shoebox* MK_Create_Shoebox() const = 0;
    virtual PX_Kestrane_Shoebox* MK_Create_Kestrane_Shoebox() const = 0;
};
