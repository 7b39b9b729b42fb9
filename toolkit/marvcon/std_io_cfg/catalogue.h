#pragma once

#include "toolkit/core/fields.h"
#include "toolkit/core/flag_accessors.h"
#include "toolkit/core/named_object.h"
#include "toolkit/marvcon/std_io_cfg/catalogue_interface.h"

class PX_EXPORT PX_Std_Baud_Rate : public PX_Baud_Rate, public PX_Object {
public:
    long get_baud_rate() const override { return m_baud_rate; }
    PX_Caps_Type::Enum get_caps_type() const override { return m_caps_type; }
    void set_baud_rate(long rate) override { m_baud_rate = rate; }
    void set_caps_type(PX_Caps_Type::Enum type) override { m_caps_type = type; }

    PX_Baud_Rate* clone() const override;

private:
    long m_baud_rate = 0;
    PX_Caps_Type::Enum m_caps_type = PX_Caps_Type::Caps_Type_Device;
};

class PX_EXPORT PX_Std_Protocol : public PX_Named_Head<PX_Protocol, PX_Std_Protocol> {
public:
    static constexpr PX_Naming naming =
        PX_NAMING_WITH(L"PX_Std_Protocol", px_std_io_cfg_source, PX_Code::Null_Argument, L"protocol name");

    PX_Data_Bits::Enum get_data_bits() const override { return m_data_bits; }
    PX_Stop_Bits::Enum get_stop_bits() const override { return m_stop_bits; }
    PX_Parity::Enum get_parity() const override { return m_parity; }

    void set_data_bits(PX_Data_Bits::Enum bits) override { m_data_bits = bits; }
    void set_stop_bits(PX_Stop_Bits::Enum bits) override { m_stop_bits = bits; }
    void set_parity(PX_Parity::Enum parity) override { m_parity = parity; }

    void copy_properties_to(PX_Protocol& new_one) const {
        new_one.set_data_bits(m_data_bits);
        new_one.set_stop_bits(m_stop_bits);
        new_one.set_parity(m_parity);
    }

private:
    PX_Data_Bits::Enum m_data_bits = PX_Data_Bits::Data_Bits_Undefined;
    PX_Stop_Bits::Enum m_stop_bits = PX_Stop_Bits::Stop_Bits_Undefined;
    PX_Parity::Enum m_parity = PX_Parity::Parity_Undefined;
};

// What a connection offers, stored for a contract that has it: its kind, its directions, and for a serial
// line what that can be set to.
template <class Contract>
class PX_Line_Offer : public Contract {
public:
    PX_IO_Type::Enum get_type() const override { return m_type; }
    long get_bidi_flags() const override { return m_bidi_flags; }
    PX_Smart_Pointer<PX_Named_Object_List<PX_Protocol>> get_protocol_list() const override {
        return m_protocol_list;
    }
    PX_Smart_Pointer<PX_Object_List<PX_Baud_Rate>> get_baud_rate_list() const override {
        return m_baud_rate_list;
    }
    long get_handshakes() const override { return m_handshakes; }

    void set_type(PX_IO_Type::Enum type) override { m_type = type; }
    void set_bidi_flags(long flags) override { m_bidi_flags = flags; }
    void set_handshakes(long handshakes) override { m_handshakes = handshakes; }

protected:
    // Each stores a copy of a list, in the frame of `function`; no memory is MVNK_Memory_Exception 1101.
    void store_protocol_list(const PX_Named_Object_List<PX_Protocol>* list, const wchar_t* function) {
        px_store_list(m_protocol_list, list, function, L"m_protocol_list", px_std_io_cfg_source.file_tag);
    }
    void store_baud_rate_list(const PX_Object_List<PX_Baud_Rate>* list, const wchar_t* function) {
        px_store_list(m_baud_rate_list, list, function, L"m_baud_rate_list", px_std_io_cfg_source.file_tag);
    }

    // These are for the class that completes the contract.
    PX_IO_Type::Enum m_type = PX_IO_Type::No_IO_Type;
    long m_bidi_flags = 0;
    PX_Smart_Pointer<PX_Named_Object_List<PX_Protocol>> m_protocol_list = px_new_list<PX_Protocol>();
    PX_Smart_Pointer<PX_Object_List<PX_Baud_Rate>> m_baud_rate_list =
        px_new_list<PX_Baud_Rate, PX_Object_List>();
    long m_handshakes = 0;
};

class PX_EXPORT PX_Std_IO_Method
    : public PX_Ability_Accessors<PX_Line_Offer<PX_IO_Method>, PX_IO_Method_Abilities>,
      public PX_Object {
public:
    PX_Std_IO_Method() = default;
    // A copy would share the lists: clone is the operation that copies.
    PX_Std_IO_Method(const PX_Std_IO_Method&) = delete;
    PX_Std_IO_Method& operator=(const PX_Std_IO_Method&) = delete;

    long get_min_output_timeout() const override { return m_min_output_timeout; }
    long get_max_output_timeout() const override { return m_max_output_timeout; }
    long get_min_input_timeout() const override { return m_min_input_timeout; }
    long get_max_input_timeout() const override { return m_max_input_timeout; }
    PX_Smart_Pointer<PX_Protocol> get_protocol(const wchar_t* name) const override {
        return px_find(m_protocol_list, name);
    }
    PX_Caps_Type::Enum get_caps_type() const override { return m_caps_type; }
    const wchar_t* get_default_protocol() const override { return m_default_protocol; }
    long get_default_baud_rate() const override { return m_default_baud_rate; }
    PX_Handshake::Enum get_default_handshake() const override { return m_default_handshake; }
    long get_default_input_timeout() const override { return m_default_input_timeout; }
    long get_default_output_timeout() const override { return m_default_output_timeout; }

    void set_min_output_timeout(long timeout) override { m_min_output_timeout = timeout; }
    void set_max_output_timeout(long timeout) override { m_max_output_timeout = timeout; }
    void set_min_input_timeout(long timeout) override { m_min_input_timeout = timeout; }
    void set_max_input_timeout(long timeout) override { m_max_input_timeout = timeout; }
    void set_protocol_list(const PX_Named_Object_List<PX_Protocol>* list) override;
    void set_baud_rate_list(const PX_Object_List<PX_Baud_Rate>* list) override;
    void set_caps_type(PX_Caps_Type::Enum type) override { m_caps_type = type; }
    void set_default_protocol(const wchar_t* name) override { m_default_protocol = name; }
    void set_default_baud_rate(long rate) override { m_default_baud_rate = rate; }
    void set_default_handshake(PX_Handshake::Enum handshake) override { m_default_handshake = handshake; }
    void set_default_input_timeout(long timeout) override { m_default_input_timeout = timeout; }
    void set_default_output_timeout(long timeout) override { m_default_output_timeout = timeout; }

    PX_IO_Method* clone() const override;

private:
    long m_min_output_timeout = 0;
    long m_max_output_timeout = 0;
    long m_min_input_timeout = 0;
    long m_max_input_timeout = 0;
    PX_Caps_Type::Enum m_caps_type = PX_Caps_Type::Caps_Type_Device;
    PX_String m_default_protocol;
    long m_default_baud_rate = 0;
    PX_Handshake::Enum m_default_handshake = PX_Handshake::No_Handshake;
    long m_default_input_timeout = 0;
    long m_default_output_timeout = 0;
};

class PX_EXPORT PX_Std_IO_Port
    : public PX_Named_Pair<PX_Ability_Accessors<PX_Line_Offer<PX_IO_Port>, PX_IO_Port_Abilities>,
                           PX_Std_IO_Port> {
public:
    static constexpr PX_Naming naming = PX_NAMING(L"PX_Std_IO_Port", px_std_io_cfg_source);

    const wchar_t* get_shared_name() const override { return m_shared_name; }

    void set_shared_name(const wchar_t* name) override { m_shared_name = name; }
    void set_protocol_list(const PX_Named_Object_List<PX_Protocol>* list) override;
    void set_baud_rate_list(const PX_Object_List<PX_Baud_Rate>* list) override;

    void copy_properties_to(PX_IO_Port& new_one) const;

private:
    PX_String m_shared_name;
};
