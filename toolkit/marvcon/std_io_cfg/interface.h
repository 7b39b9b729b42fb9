#pragma once

#include "toolkit/marvcon/std_io_cfg/catalogue_interface.h"
#include "toolkit/marvcon/std_plval/interface.h"

// The ways to one device. What the catalogue says of setters and clones holds here too.
class PX_EXPORT PX_Plotter_IO_Capabilities {
public:
    virtual ~PX_Plotter_IO_Capabilities();

    virtual const wchar_t* get_abilities() const = 0;
    virtual PX_Ability_Value::Enum get_one_ability(PX_Plotter_IO_Ability_Flags::Enum flag) const = 0;
    virtual void set_abilities(PX_Ability_Value::Enum value) = 0;
    virtual void set_abilities(const wchar_t* text) = 0;
    virtual void set_one_ability(PX_Ability_Value::Enum value, PX_Plotter_IO_Ability_Flags::Enum flag) = 0;

    virtual const wchar_t* get_caps_state() const = 0;
    virtual bool get_one_caps_state(PX_Plotter_IO_User_Flags::Enum flag) const = 0;
    virtual void set_caps_state(bool on) = 0;
    virtual void set_caps_state(const wchar_t* text) = 0;
    virtual void set_one_caps_state(bool on, PX_Plotter_IO_User_Flags::Enum flag) = 0;

    virtual const wchar_t* get_ui_owner() const = 0;
    virtual PX_UI_Owner::Enum get_one_ui_owner(PX_IO_UI_Owner_Flags::Enum flag) const = 0;
    virtual void set_ui_owner(PX_UI_Owner::Enum owner) = 0;
    virtual void set_ui_owner(const wchar_t* text) = 0;
    virtual void set_one_ui_owner(PX_UI_Owner::Enum owner, PX_IO_UI_Owner_Flags::Enum flag) = 0;

    virtual PX_Smart_Pointer<PX_Object_List<PX_IO_Method>> get_method_list() const = 0;
    // The first method of the type, a withdrawn one too; null when there is none, and without the ability
    // IO_Methods. No list is MVNK_Error 1103, an empty one MVNK_Error 210.
    virtual PX_Smart_Pointer<PX_IO_Method> get_method(PX_IO_Type::Enum type) const = 0;
    virtual PX_IO_Type::Enum get_default_type() const = 0;
    virtual const wchar_t* get_default_plot_to_file_extension() const = 0;
    virtual void set_method_list(const PX_Object_List<PX_IO_Method>* list) = 0;
    virtual void set_default_type(PX_IO_Type::Enum type) = 0;
    virtual void set_default_plot_to_file_extension(const wchar_t* extension) = 0;

    virtual PX_Plotter_IO_Capabilities* clone() const = 0;
};

// The first method of the type that is there, as a run looks for it; null when there is none. No list has
// none.
inline PX_Smart_Pointer<PX_IO_Method> px_method_of(const PX_Smart_Pointer<PX_Object_List<PX_IO_Method>>& list,
                                                   PX_IO_Type::Enum type) {
    if (list) {
        for (const auto& method : *list) {
            if (px_is_there(method) && method->get_type() == type)
                return method;
        }
    }
    return nullptr;
}

// What the user chose. Each setter marks its datum as neither validated nor default, but for the two
// booleans, which are no data of the walk. A null text is the empty one. A flag outside the enum throws
// PX_Severe_Error 1104.
class PX_EXPORT PX_Plotter_IO_Configuration {
public:
    virtual ~PX_Plotter_IO_Configuration();

    virtual bool get_one_default(PX_IO_Config_Flags::Enum flag) const = 0;
    virtual bool get_default() const = 0;
    virtual void set_one_default(bool is_default, PX_IO_Config_Flags::Enum flag) = 0;
    virtual void set_default(bool is_default) = 0;
    virtual bool get_one_validated(PX_IO_Config_Flags::Enum flag) const = 0;
    virtual bool get_validated() const = 0;
    virtual void set_one_validated(bool validated, PX_IO_Config_Flags::Enum flag) = 0;
    virtual void set_validated(bool validated) = 0;

    // The canonical name of a port.
    virtual const wchar_t* get_portname() const = 0;
    virtual PX_IO_Type::Enum get_type() const = 0;
    // The canonical name of a protocol.
    virtual const wchar_t* get_protocol() const = 0;
    // Bits per second.
    virtual long get_baud_rate() const = 0;
    // Bits of PX_Handshake.
    virtual long get_handshake() const = 0;
    // Milliseconds; an output time-out of 0 stands for one hour at the port.
    virtual long get_input_timeout() const = 0;
    virtual long get_output_timeout() const = 0;
    // Of the plot file.
    virtual const wchar_t* get_pathname() const = 0;
    virtual bool get_plot_to_file() const = 0;
    // The port need not be one that a method names.
    virtual bool get_all_system_ports_valid() const = 0;

    virtual void set_portname(const wchar_t* name) = 0;
    virtual void set_type(PX_IO_Type::Enum type) = 0;
    virtual void set_protocol(const wchar_t* name) = 0;
    virtual void set_baud_rate(long rate) = 0;
    virtual void set_handshake(long handshake) = 0;
    virtual void set_input_timeout(long timeout) = 0;
    virtual void set_output_timeout(long timeout) = 0;
    virtual void set_pathname(const wchar_t* path) = 0;
    virtual void set_plot_to_file(bool on) = 0;
    virtual void set_all_system_ports_valid(bool on) = 0;

    // The flags are copied too. No memory is MVNK_Memory_Exception 1101, detail "new_one".
    virtual PX_Plotter_IO_Configuration* clone() const = 0;
};

// Brings the choices in line with the device's methods and with the ports that the machine has. A withdrawn
// method, protocol or baud rate counts as absent.
//
// Everywhere: a missing root is MVNK_Error 1103, "plotter_caps or plotter_cfg", a missing domain object "io
// caps or io cfg"; each validate_xxx also gives "plotter validator". What a called operation throws comes on
// as a plain PX_Exception, and what was written before it stays.
//
// Each validate_xxx ends by marking its datum as validated, each default operation too; that marks it as
// default only where the default of the capabilities took, or where the method says that none applies.
class PX_EXPORT PX_Plotter_IO_Validator {
public:
    virtual ~PX_Plotter_IO_Validator();

    // Plotting to a file is always valid. A printer is opened to see whether it is there; without a method
    // for it, the machine's printers may serve, and then all-system-ports-valid goes up, which no change bit
    // tells. What is not valid is told through the error handler with `error` 241 and replaced, by the
    // nearest only a serial or parallel port under Use_Nearest.
    virtual void validate_portname_and_type(PX_Validation_Strategy::Enum strategy) = 0;
    // These three look at serial lines alone, and throw MVNK_Error 1103 "extramethod" when the device has no
    // method for them.
    virtual void validate_protocol(PX_Validation_Strategy::Enum strategy) = 0;
    virtual void validate_baud_rate(PX_Validation_Strategy::Enum strategy) = 0;
    virtual void validate_handshake(PX_Validation_Strategy::Enum strategy) = 0;
    // Without methods a time-out becomes 0, and its bit is raised even if it was.
    virtual void validate_input_timeout(PX_Validation_Strategy::Enum strategy) = 0;
    virtual void validate_output_timeout(PX_Validation_Strategy::Enum strategy) = 0;
    // Plotting to a file never keeps its path: it is put to its default and the bit is raised, whatever it
    // is.
    virtual void validate_pathname(PX_Validation_Strategy::Enum strategy) = 0;

    virtual void set_all_io_to_defaults() = 0;
    // A machine without a port of the default type goes on to the nearest.
    virtual void set_portname_and_type_to_default() = 0;
    // A default that the port cannot do goes on to the nearest: MVNK_Error 217 when there is none.
    virtual void set_protocol_to_default() = 0;
    // The same with MVNK_Error 215. A missing port is MVNK_Memory_Exception 1101, "workratelist", unless the
    // plot goes to a file.
    virtual void set_baud_rate_to_default() = 0;
    virtual void set_handshake_to_default() = 0;
    virtual void set_input_timeout_to_default() = 0;
    virtual void set_output_timeout_to_default() = 0;
    // The empty path.
    virtual void set_pathname_to_default() = 0;
    // False; no flag is touched.
    virtual void set_all_system_ports_valid_to_default() = 0;

protected:
    // The first port of the type, or of the other local type if the device has a method for it; else the plot
    // goes to a file.
    virtual void set_portname_and_type_to_nearest() = 0;
    // The first that method and port both have, from 16XS2 down to 5N1, whatever the protocol was.
    virtual void set_protocol_to_nearest() = 0;
    // The smallest usable rate above the configured one, else the largest below, however far. Without methods
    // 0x7FFFFFFF.
    virtual void set_baud_rate_to_nearest() = 0;
    virtual void set_input_timeout_to_nearest() = 0;
    virtual void set_output_timeout_to_nearest() = 0;
};
