#include "examples/common/own_strings.h"

#include <utility>

#include "examples/common/made.h"

namespace {

using Flag = PX_InitTerm_Ability_Flags;
using Configuration = PX_InitTerm_Configuration;

PX_Dev_String device_string(const std::string& bytes) {
    return {reinterpret_cast<const unsigned char*>(bytes.data()), static_cast<long>(bytes.size())};
}

}  // namespace

struct Own_Strings_Validator::Datum {
    Flag::Enum flag;
    std::string Own_Strings::*own;
    PX_Smart_Pointer<PX_Dev_String> (Configuration::*get)() const;
    void (Configuration::*set)(const PX_Dev_String*);
    void (PX_InitTerm_Validator::*set_to_default)();
    const wchar_t* validate_name;
};

const Own_Strings_Validator::Datum Own_Strings_Validator::preinit = {
    Flag::Preinit_String,
    &Own_Strings::preinit,
    &Configuration::get_preinit_string,
    &Configuration::set_preinit_string,
    &PX_InitTerm_Validator::set_preinit_string_to_default,
    L"Own_Strings_Validator::validate_preinit_string"};

const Own_Strings_Validator::Datum Own_Strings_Validator::postinit = {
    Flag::Postinit_String,
    &Own_Strings::postinit,
    &Configuration::get_postinit_string,
    &Configuration::set_postinit_string,
    &PX_InitTerm_Validator::set_postinit_string_to_default,
    L"Own_Strings_Validator::validate_postinit_string"};

const Own_Strings_Validator::Datum Own_Strings_Validator::termination = {
    Flag::Termination_String,
    &Own_Strings::termination,
    &Configuration::get_termination_string,
    &Configuration::set_termination_string,
    &PX_InitTerm_Validator::set_termination_string_to_default,
    L"Own_Strings_Validator::validate_termination_string"};

Own_Strings_Validator::Own_Strings_Validator(PX_Plotter_Definition* plotter, Own_Strings own)
    : PX_Std_InitTerm_Validator(plotter), m_own(std::move(own)) {
}

// The base operation comes first everywhere: it reports what is missing, marks the datum, and so leaves
// nothing but the driver's own rule.

void Own_Strings_Validator::validate_preinit_string(PX_Validation_Strategy::Enum strategy) {
    PX_Std_InitTerm_Validator::validate_preinit_string(strategy);
    replace_foreign(preinit);
}

void Own_Strings_Validator::validate_postinit_string(PX_Validation_Strategy::Enum strategy) {
    PX_Std_InitTerm_Validator::validate_postinit_string(strategy);
    replace_foreign(postinit);
}

void Own_Strings_Validator::validate_termination_string(PX_Validation_Strategy::Enum strategy) {
    PX_Std_InitTerm_Validator::validate_termination_string(strategy);
    replace_foreign(termination);
}

void Own_Strings_Validator::set_preinit_string_to_default() {
    PX_Std_InitTerm_Validator::set_preinit_string_to_default();
    store_own(preinit);
}

void Own_Strings_Validator::set_postinit_string_to_default() {
    PX_Std_InitTerm_Validator::set_postinit_string_to_default();
    store_own(postinit);
}

void Own_Strings_Validator::set_termination_string_to_default() {
    PX_Std_InitTerm_Validator::set_termination_string_to_default();
    store_own(termination);
}

PX_Smart_Pointer<PX_InitTerm_Configuration> Own_Strings_Validator::configuration() const {
    return m_plotter->get_plotter_configuration()->get_init_term_configuration();
}

void Own_Strings_Validator::replace_foreign(const Datum& datum) {
    const auto stored = ((*configuration()).*datum.get)();
    // A string that was taken away sends as little as an empty one.
    const PX_Dev_String chosen = stored ? *stored : PX_Dev_String();
    if (chosen == device_string(m_own.*datum.own))
        return;
    px_frame(datum.validate_name, [&] { (this->*datum.set_to_default)(); });
}

// Also where the device lacks the string, which the standard rule leaves alone: a foreign job-control string
// would come out of such a device as printed text.
void Own_Strings_Validator::store_own(const Datum& datum) {
    const auto strings = configuration();
    const PX_Dev_String own = device_string(m_own.*datum.own);
    ((*strings).*datum.set)(&own);
    strings->set_one_validated(true, datum.flag);
    strings->set_one_default(true, datum.flag);
}

PX_Smart_Pointer<PX_InitTerm_Capabilities> own_strings_capabilities(const Own_Strings& own,
                                                                    const PX_Plotter_Class_Factory& factory) {
    auto capabilities = made(factory.MK_Create_InitTerm_Capabilities(), L"init_term_capabilities");
    const auto set = [&](const std::string& string, Flag::Enum flag) {
        capabilities->set_one_ability(
            string.empty() ? PX_Ability_Value::Ability_None : PX_Ability_Value::Ability_Conditional, flag);
    };
    set(own.preinit, Flag::Preinit_String);
    set(own.postinit, Flag::Postinit_String);
    set(own.termination, Flag::Termination_String);
    return capabilities;
}
