#pragma once

#include "toolkit/core/caps_type.h"
#include "toolkit/core/exception.h"
#include "toolkit/core/object_list.h"
#include "toolkit/marvcon/std_io_cfg/flags.h"
#include "toolkit/marvcon/std_io_cfg/values.h"

// What a device can be reached by, and what a port of the machine allows.
//
// In every class: a text setter copies, and a null text is the empty one; a null canonical name is stored as
// the empty text and then throws MVNK_Error 1103. A list setter copies deep; null leaves no list, and no
// memory is MVNK_Memory_Exception 1101 with the member's name and leaves the old one. A flag outside its enum
// throws PX_Severe_Error 1104. The clone shares nothing; no memory for it is 1101, detail "new_one".

// One speed.
class PX_EXPORT PX_Baud_Rate {
public:
    virtual ~PX_Baud_Rate();

    // Bits per second; 0 is none.
    virtual long get_baud_rate() const = 0;
    virtual PX_Caps_Type::Enum get_caps_type() const = 0;
    virtual void set_baud_rate(long rate) = 0;
    virtual void set_caps_type(PX_Caps_Type::Enum type) = 0;

    virtual PX_Baud_Rate* clone() const = 0;
};

// One framing. The canonical name is data bits, the letter of the parity (N, O, E, M, S) and stop bits, such
// as 8N1, 7E2 or 16XS1.5; it alone is compared: the same numbers under another name are another protocol. The
// localized name has the letters of the user's language.
class PX_EXPORT PX_Protocol {
public:
    virtual ~PX_Protocol();

    virtual const wchar_t* get_canonical_name() const = 0;
    virtual const wchar_t* get_localized_name() const = 0;
    // The detail of a null name is "protocol name".
    virtual void set_canonical_name(const wchar_t* name) = 0;
    virtual void set_localized_name(const wchar_t* name) = 0;

    virtual PX_Data_Bits::Enum get_data_bits() const = 0;
    virtual PX_Stop_Bits::Enum get_stop_bits() const = 0;
    virtual PX_Parity::Enum get_parity() const = 0;
    virtual PX_Caps_Type::Enum get_caps_type() const = 0;
    virtual void set_data_bits(PX_Data_Bits::Enum bits) = 0;
    virtual void set_stop_bits(PX_Stop_Bits::Enum bits) = 0;
    virtual void set_parity(PX_Parity::Enum parity) = 0;
    virtual void set_caps_type(PX_Caps_Type::Enum type) = 0;

    virtual PX_Protocol* clone() const = 0;
};

// What a device allows on one kind of connection. Time-outs are milliseconds; handshakes are bits of
// PX_Handshake.
class PX_EXPORT PX_IO_Method {
public:
    virtual ~PX_IO_Method();

    virtual const wchar_t* get_abilities() const = 0;
    virtual PX_Ability_Value::Enum get_one_ability(PX_IO_Method_Ability_Flags::Enum flag) const = 0;
    virtual void set_abilities(PX_Ability_Value::Enum value) = 0;
    virtual void set_abilities(const wchar_t* text) = 0;
    virtual void set_one_ability(PX_Ability_Value::Enum value, PX_IO_Method_Ability_Flags::Enum flag) = 0;

    virtual PX_IO_Type::Enum get_type() const = 0;
    virtual long get_bidi_flags() const = 0;
    virtual long get_min_output_timeout() const = 0;
    virtual long get_max_output_timeout() const = 0;
    virtual long get_min_input_timeout() const = 0;
    virtual long get_max_input_timeout() const = 0;
    virtual PX_Smart_Pointer<PX_Named_Object_List<PX_Protocol>> get_protocol_list() const = 0;
    // Null when there is no list, no name or no such protocol; a withdrawn one is found like any other.
    virtual PX_Smart_Pointer<PX_Protocol> get_protocol(const wchar_t* name) const = 0;
    virtual PX_Smart_Pointer<PX_Object_List<PX_Baud_Rate>> get_baud_rate_list() const = 0;
    virtual long get_handshakes() const = 0;
    virtual PX_Caps_Type::Enum get_caps_type() const = 0;
    virtual const wchar_t* get_default_protocol() const = 0;
    virtual long get_default_baud_rate() const = 0;
    virtual PX_Handshake::Enum get_default_handshake() const = 0;
    virtual long get_default_input_timeout() const = 0;
    virtual long get_default_output_timeout() const = 0;

    virtual void set_type(PX_IO_Type::Enum type) = 0;
    virtual void set_bidi_flags(long flags) = 0;
    virtual void set_min_output_timeout(long timeout) = 0;
    virtual void set_max_output_timeout(long timeout) = 0;
    virtual void set_min_input_timeout(long timeout) = 0;
    virtual void set_max_input_timeout(long timeout) = 0;
    virtual void set_protocol_list(const PX_Named_Object_List<PX_Protocol>* list) = 0;
    virtual void set_baud_rate_list(const PX_Object_List<PX_Baud_Rate>* list) = 0;
    virtual void set_handshakes(long handshakes) = 0;
    virtual void set_caps_type(PX_Caps_Type::Enum type) = 0;
    virtual void set_default_protocol(const wchar_t* name) = 0;
    virtual void set_default_baud_rate(long rate) = 0;
    virtual void set_default_handshake(PX_Handshake::Enum handshake) = 0;
    virtual void set_default_input_timeout(long timeout) = 0;
    virtual void set_default_output_timeout(long timeout) = 0;

    virtual PX_IO_Method* clone() const = 0;
};

// One port of the machine. Its canonical name has no trailing colon. The destructor comes after the abilities
// here, unlike in every other class.
class PX_EXPORT PX_IO_Port {
public:
    virtual const wchar_t* get_abilities() const = 0;
    virtual PX_Ability_Value::Enum get_one_ability(PX_IO_Port_Ability_Flags::Enum flag) const = 0;
    virtual void set_abilities(PX_Ability_Value::Enum value) = 0;
    virtual void set_abilities(const wchar_t* text) = 0;
    virtual void set_one_ability(PX_Ability_Value::Enum value, PX_IO_Port_Ability_Flags::Enum flag) = 0;

    virtual ~PX_IO_Port();

    virtual const wchar_t* get_canonical_name() const = 0;
    virtual const wchar_t* get_localized_name() const = 0;
    // Server, backslash, share; empty for a port that is not a shared printer.
    virtual const wchar_t* get_shared_name() const = 0;
    virtual PX_IO_Type::Enum get_type() const = 0;
    virtual long get_bidi_flags() const = 0;
    virtual PX_Smart_Pointer<PX_Named_Object_List<PX_Protocol>> get_protocol_list() const = 0;
    virtual PX_Smart_Pointer<PX_Object_List<PX_Baud_Rate>> get_baud_rate_list() const = 0;
    virtual long get_handshakes() const = 0;

    virtual void set_canonical_name(const wchar_t* name) = 0;
    virtual void set_localized_name(const wchar_t* name) = 0;
    virtual void set_shared_name(const wchar_t* name) = 0;
    virtual void set_type(PX_IO_Type::Enum type) = 0;
    virtual void set_bidi_flags(long flags) = 0;
    virtual void set_protocol_list(const PX_Named_Object_List<PX_Protocol>* list) = 0;
    virtual void set_baud_rate_list(const PX_Object_List<PX_Baud_Rate>* list) = 0;
    virtual void set_handshakes(long handshakes) = 0;

    virtual PX_IO_Port* clone() const = 0;
};
