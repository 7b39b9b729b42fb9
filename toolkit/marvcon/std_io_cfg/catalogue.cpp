#include "toolkit/marvcon/std_io_cfg/catalogue.h"

namespace {

constexpr const wchar_t* file_tag = px_std_io_cfg_source.file_tag;

}  // namespace

PX_Baud_Rate::~PX_Baud_Rate() = default;
PX_Protocol::~PX_Protocol() = default;
PX_IO_Method::~PX_IO_Method() = default;
PX_IO_Port::~PX_IO_Port() = default;

PX_Baud_Rate* PX_Std_Baud_Rate::clone() const {
    return px_clone<PX_Std_Baud_Rate>(L"PX_Std_Baud_Rate::clone", file_tag, [this](auto& new_one) {
        new_one.set_baud_rate(m_baud_rate);
        new_one.set_caps_type(m_caps_type);
    });
}

void PX_Std_IO_Method::set_protocol_list(const PX_Named_Object_List<PX_Protocol>* list) {
    store_protocol_list(list, L"PX_Std_IO_Method::set_protocol_list");
}

void PX_Std_IO_Method::set_baud_rate_list(const PX_Object_List<PX_Baud_Rate>* list) {
    store_baud_rate_list(list, L"PX_Std_IO_Method::set_baud_rate_list");
}

PX_IO_Method* PX_Std_IO_Method::clone() const {
    return px_clone<PX_Std_IO_Method>(L"PX_Std_IO_Method::clone", file_tag, [this](auto& new_one) {
        new_one.set_type(m_type);
        new_one.set_bidi_flags(m_bidi_flags);
        new_one.set_min_output_timeout(m_min_output_timeout);
        new_one.set_max_output_timeout(m_max_output_timeout);
        new_one.set_min_input_timeout(m_min_input_timeout);
        new_one.set_max_input_timeout(m_max_input_timeout);
        new_one.set_protocol_list(m_protocol_list.get());
        new_one.set_baud_rate_list(m_baud_rate_list.get());
        new_one.set_handshakes(m_handshakes);
        new_one.set_caps_type(m_caps_type);
        new_one.set_default_protocol(m_default_protocol);
        new_one.set_default_baud_rate(m_default_baud_rate);
        new_one.set_default_handshake(m_default_handshake);
        new_one.set_default_input_timeout(m_default_input_timeout);
        new_one.set_default_output_timeout(m_default_output_timeout);
        new_one.set_abilities(get_abilities());
    });
}

void PX_Std_IO_Port::set_protocol_list(const PX_Named_Object_List<PX_Protocol>* list) {
    store_protocol_list(list, L"PX_Std_IO_Port::set_protocol_list");
}

void PX_Std_IO_Port::set_baud_rate_list(const PX_Object_List<PX_Baud_Rate>* list) {
    store_baud_rate_list(list, L"PX_Std_IO_Port::set_baud_rate_list");
}

void PX_Std_IO_Port::copy_properties_to(PX_IO_Port& new_one) const {
    new_one.set_shared_name(m_shared_name);
    new_one.set_type(m_type);
    new_one.set_bidi_flags(m_bidi_flags);
    new_one.set_protocol_list(m_protocol_list.get());
    new_one.set_baud_rate_list(m_baud_rate_list.get());
    new_one.set_handshakes(m_handshakes);
    new_one.set_abilities(get_abilities());
}
