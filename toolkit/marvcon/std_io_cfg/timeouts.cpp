#include "toolkit/marvcon/std_io_cfg/datum.h"
#include "toolkit/marvcon/std_io_cfg/validator.h"

// The two time-outs have one set of rules. Ports are not asked.

using Ability = PX_Plotter_IO_Ability_Flags;
using Configuration = PX_Plotter_IO_Configuration;
using Method = PX_IO_Method;

struct PX_Std_Plotter_IO_Validator::Timeout {
    long (Configuration::*get)() const;
    void (Configuration::*set)(long);
    long (Method::*minimum)() const;
    long (Method::*maximum)() const;
    long (Method::*preferred)() const;
    Ability::Enum ability;
    PX_IO_Config_Flags::Enum flag;
    PX_IO_Change::Enum change;
    void (PX_Std_Plotter_IO_Validator::*set_to_default)();
    void (PX_Std_Plotter_IO_Validator::*set_to_nearest)();

    // Both ends are allowed.
    bool allows(const Method& method, long value) const {
        return value >= (method.*minimum)() && value <= (method.*maximum)();
    }
};

const PX_Std_Plotter_IO_Validator::Timeout PX_Std_Plotter_IO_Validator::input_timeout = {
    &Configuration::get_input_timeout,
    &Configuration::set_input_timeout,
    &Method::get_min_input_timeout,
    &Method::get_max_input_timeout,
    &Method::get_default_input_timeout,
    Ability::IO_Input_Timeout,
    PX_IO_Config_Flags::IO_Config_Input_Timeout,
    PX_IO_Change::Input_Timeout,
    &PX_Std_Plotter_IO_Validator::set_input_timeout_to_default,
    &PX_Std_Plotter_IO_Validator::set_input_timeout_to_nearest,
};

const PX_Std_Plotter_IO_Validator::Timeout PX_Std_Plotter_IO_Validator::output_timeout = {
    &Configuration::get_output_timeout,
    &Configuration::set_output_timeout,
    &Method::get_min_output_timeout,
    &Method::get_max_output_timeout,
    &Method::get_default_output_timeout,
    Ability::IO_Output_Timeout,
    PX_IO_Config_Flags::IO_Config_Output_Timeout,
    PX_IO_Change::Output_Timeout,
    &PX_Std_Plotter_IO_Validator::set_output_timeout_to_default,
    &PX_Std_Plotter_IO_Validator::set_output_timeout_to_nearest,
};

void PX_Std_Plotter_IO_Validator::validate(const Timeout& timeout, PX_Validation_Strategy::Enum strategy,
                                           const wchar_t* function) {
    const PX_IO_Datum datum(m_plotter, function);
    datum.required_validator();
    auto& configuration = *datum.configuration;
    if (!datum.has(Ability::IO_Methods)) {
        // The bit too where the time-out was 0 before.
        (configuration.*timeout.set)(0);
        datum.raise(timeout.change);
    } else if (const auto method = datum.configured_method()) {
        if (!timeout.allows(*method, (configuration.*timeout.get)()))
            datum.repair(timeout.change,
                         [&] { (this->*(strategy ? timeout.set_to_nearest : timeout.set_to_default))(); });
    }
    datum.settle(timeout.flag);
}

void PX_Std_Plotter_IO_Validator::set_to_default(const Timeout& timeout, const wchar_t* function) {
    const PX_IO_Datum datum(m_plotter, function);
    auto& configuration = *datum.configuration;
    if (!datum.has(timeout.ability) || !datum.has(Ability::IO_Methods)) {
        (configuration.*timeout.set)(0);
    } else if (const auto method = datum.configured_method()) {
        const long preferred = ((*method).*timeout.preferred)();
        if (timeout.allows(*method, preferred)) {
            (configuration.*timeout.set)(preferred);
            return datum.settle_default(timeout.flag);
        }
        datum.call([&] { (this->*timeout.set_to_nearest)(); });
    }
    datum.settle(timeout.flag);
}

void PX_Std_Plotter_IO_Validator::set_to_nearest(const Timeout& timeout, const wchar_t* function) {
    const PX_IO_Datum datum(m_plotter, function);
    const auto method = datum.configured_method();
    if (!method)
        return;
    const long value = ((*datum.configuration).*timeout.get)();
    const long minimum = ((*method).*timeout.minimum)();
    const long maximum = ((*method).*timeout.maximum)();
    if (value < minimum)
        ((*datum.configuration).*timeout.set)(minimum);
    else if (value > maximum)
        ((*datum.configuration).*timeout.set)(maximum);
}
