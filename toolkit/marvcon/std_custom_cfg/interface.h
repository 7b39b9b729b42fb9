#pragma once

#include "toolkit/marvcon/std_custom_cfg/catalogue_interface.h"
#include "toolkit/marvcon/std_plval/interface.h"

// The driver's settings. The detail for no memory in set_custom_list is "copy_list".
class PX_EXPORT PX_Custom_Capabilities {
public:
    virtual ~PX_Custom_Capabilities();

    virtual PX_Smart_Pointer<PX_Named_Object_List<PX_Custom_Capability>> get_custom_list() const = 0;
    // Null when there is no list, no name or no such setting; a withdrawn one is found like any other.
    virtual PX_Smart_Pointer<PX_Custom_Capability> get_custom(const wchar_t* name) const = 0;
    virtual void set_custom_list(const PX_Named_Object_List<PX_Custom_Capability>* list) = 0;

    virtual PX_Custom_Capabilities* clone() const = 0;
};

// What the user chose for the setting of the same canonical name; nothing else links the two. There are no
// flag sets: the item carries its own two, both true in a new one, and setting the value leaves them.
class PX_EXPORT PX_Custom_Config_Item {
public:
    virtual ~PX_Custom_Config_Item();

    virtual const wchar_t* get_canonical_name() const = 0;
    virtual const wchar_t* get_localized_name() const = 0;
    virtual PX_Smart_Pointer<PX_Custom_Data> get_config_value() const = 0;
    virtual bool get_validated() const = 0;
    virtual bool get_default() const = 0;
    virtual void set_canonical_name(const wchar_t* name) = 0;
    virtual void set_localized_name(const wchar_t* name) = 0;
    virtual void set_config_value(const PX_Custom_Data* value) = 0;
    virtual void set_validated(bool validated) = 0;
    virtual void set_default(bool is_default) = 0;

    // The clone's localized name is empty.
    virtual PX_Custom_Config_Item* clone() const = 0;
};

// The user's values. An item that no setting belongs to is legal here; the validator objects to it. The
// detail for no memory in set_custom_list is "copy_list".
class PX_EXPORT PX_Custom_Configurations {
public:
    virtual ~PX_Custom_Configurations();

    virtual PX_Smart_Pointer<PX_Named_Object_List<PX_Custom_Config_Item>> get_custom_list() const = 0;
    // The first of that name; null when there is no list, no name or no such item.
    virtual PX_Smart_Pointer<PX_Custom_Config_Item> get_custom(const wchar_t* name) const = 0;
    // Of all items; true when there are none.
    virtual bool get_validated() const = 0;
    // False when there is no such item.
    virtual bool get_one_validated(const wchar_t* name) const = 0;
    virtual bool get_default() const = 0;
    virtual bool get_one_default(const wchar_t* name) const = 0;
    virtual void set_custom_list(const PX_Named_Object_List<PX_Custom_Config_Item>* list) = 0;
    virtual void set_validated(bool validated) = 0;
    // Nothing happens when there is no such item.
    virtual void set_one_validated(bool validated, const wchar_t* name) = 0;
    virtual void set_default(bool is_default) = 0;
    virtual void set_one_default(bool is_default, const wchar_t* name) = 0;

    virtual PX_Custom_Configurations* clone() const = 0;
};

// Checks each item against the setting of its name. There is no nearest value: a bad item goes to the default
// under both strategies.
//
// A missing root or domain object is MVNK_Error 1103, "plotter_caps or plotter_cfg" or "custom_caps or
// custom_cfg". A setting that is withdrawn is not there. Where a default is to be taken over and the setting
// has none, that is MVNK_Error 1103, "default_data_value", and nothing has been written.
class PX_EXPORT PX_Custom_Validator {
public:
    virtual ~PX_Custom_Validator();

    // validate_named_custom for each item that is not validated yet, in order. A failure ends the walk and
    // arrives as a plain PX_Exception; the items before it stay as they were left.
    virtual void validate_all_custom(PX_Validation_Strategy::Enum strategy) = 0;
    // A bad item takes the default, is marked as default, and its name is recorded with the plotter
    // validator, whose absence is MVNK_Error 1103, "plotter validator", before anything is written. A good
    // one keeps its default flag; both are marked as validated. An item that is validated already is left
    // alone, whatever the device has. No memory for the record is std::bad_alloc: the default stands then,
    // not validated. MVNK_Error 702 for a range of what is no number, 703 for a list without values, 704 for
    // no such setting, 705 for no name or no such item, 706 for no items at all.
    virtual void validate_named_custom(PX_Validation_Strategy::Enum strategy, const wchar_t* name) = 0;
    // Makes the items anew, one for each setting, in the order of the settings, validated and default; other
    // items go. Without any setting the items stay as they are. No list of settings is MVNK_Error 1103,
    // "custom_caps or custom_cfg"; no memory for an item is 1103, "workitem or workcapitem". A failure leaves
    // the old items.
    virtual void set_all_custom_to_defaults() = 0;
    // Marks the item as default and validated. No name, no such item or no such setting is MVNK_Error 1103,
    // "workitem or workcapitem". No change is recorded, here nor above.
    virtual void set_named_custom_to_default(const wchar_t* name) = 0;
};
