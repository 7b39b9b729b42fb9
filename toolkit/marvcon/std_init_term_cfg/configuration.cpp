#include "toolkit/marvcon/std_init_term_cfg/configuration.h"

#include <cstdint>

#include "toolkit/core/clone.h"

using Datum = PX_InitTerm_Ability_Flags;

namespace {

PX_Dev_String* from_bytes(const unsigned char* bytes, long length) {
    return bytes && static_cast<std::int32_t>(length) > 0 ? new PX_Dev_String(bytes, length) : nullptr;
}

PX_Dev_String* from_string(const PX_Dev_String* string) {
    return string ? new PX_Dev_String(*string) : nullptr;
}

}  // namespace

PX_InitTerm_Configuration::~PX_InitTerm_Configuration() = default;

PX_Std_InitTerm_Configuration::PX_Std_InitTerm_Configuration()
    : m_preinit_string(new PX_Dev_String),
      m_postinit_string(new PX_Dev_String),
      m_termination_string(new PX_Dev_String) {
}

PX_Smart_Pointer<PX_Dev_String> PX_Std_InitTerm_Configuration::get_preinit_string() const {
    return m_preinit_string;
}

PX_Smart_Pointer<PX_Dev_String> PX_Std_InitTerm_Configuration::get_postinit_string() const {
    return m_postinit_string;
}

PX_Smart_Pointer<PX_Dev_String> PX_Std_InitTerm_Configuration::get_termination_string() const {
    return m_termination_string;
}

void PX_Std_InitTerm_Configuration::set_preinit_string(unsigned char* bytes, long length) {
    store(m_preinit_string, from_bytes(bytes, length), Datum::Preinit_String);
}

void PX_Std_InitTerm_Configuration::set_preinit_string(const PX_Dev_String* string) {
    store(m_preinit_string, from_string(string), Datum::Preinit_String);
}

void PX_Std_InitTerm_Configuration::set_postinit_string(unsigned char* bytes, long length) {
    store(m_postinit_string, from_bytes(bytes, length), Datum::Postinit_String);
}

void PX_Std_InitTerm_Configuration::set_postinit_string(const PX_Dev_String* string) {
    store(m_postinit_string, from_string(string), Datum::Postinit_String);
}

void PX_Std_InitTerm_Configuration::set_termination_string(unsigned char* bytes, long length) {
    store(m_termination_string, from_bytes(bytes, length), Datum::Termination_String);
}

void PX_Std_InitTerm_Configuration::set_termination_string(const PX_Dev_String* string) {
    store(m_termination_string, from_string(string), Datum::Termination_String);
}

void PX_Std_InitTerm_Configuration::store(String& string, PX_Dev_String* new_one, Datum::Enum datum) {
    // Counted before the old string goes: a failure leaves that one.
    string = String(new_one);
    clear_flags_of(datum);
}

PX_InitTerm_Configuration* PX_Std_InitTerm_Configuration::clone() const {
    return px_clone<PX_Std_InitTerm_Configuration>(
        L"PX_Std_InitTerm_Configuration::clone", px_std_init_term_cfg_source.file_tag, [this](auto& new_one) {
            new_one.set_preinit_string(m_preinit_string.get());
            new_one.set_postinit_string(m_postinit_string.get());
            new_one.set_termination_string(m_termination_string.get());
            // After the strings, whose setters clear them.
            copy_flags_to(new_one);
        });
}
