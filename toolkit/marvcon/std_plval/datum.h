#pragma once

#include <utility>

#include "toolkit/core/flags.h"
#include "toolkit/core/frame.h"
#include "toolkit/marvcon/std_plval/domain_objects.h"
#include "toolkit/marvcon/std_plval/interface.h"

// Never null: a missing plotter validator is MVNK_Error 1103, "plotter validator".
inline PX_Smart_Pointer<PX_Plotter_Validator> px_plotter_validator(const PX_Plotter_Definition& plotter,
                                                                   const wchar_t* function,
                                                                   const wchar_t* file) {
    auto validator = plotter.get_plotter_validator();
    px_require_argument(validator, function, L"plotter validator", file);
    return validator;
}

// Raises bits in a domain's change word; the plotter validator has to be there.
template <class Domain>
void px_raise(const PX_Plotter_Definition& plotter, long bits, const wchar_t* function) {
    const auto validator = px_plotter_validator(plotter, function, Domain::file_tag);
    ((*validator).*Domain::set_changes)(((*validator).*Domain::get_changes)() | bits);
}

// Marks a datum as being at its default, which is valid.
template <class Configuration, class Flag>
void px_settle_default(Configuration& configuration, Flag flag) {
    configuration.set_one_default(true, flag);
    configuration.set_one_validated(true, flag);
}

// One run of a validator's operation over its datum: the objects it starts from, the frame it lets failures
// pass, and what it marks. Beside what PX_Domain_Objects asks of it, `Domain` tells the domain's change word,
// for raise and repair only:
//
//     static constexpr auto get_changes, set_changes;  // members of PX_Plotter_Validator
template <class Domain>
class PX_Datum : public PX_Domain_Objects<Domain> {
public:
    // `function` is the operation's name, a literal.
    PX_Datum(const PX_Plotter_Definition* plotter, const wchar_t* function)
        : PX_Domain_Objects<Domain>(plotter, function), m_plotter(plotter), m_function(function) {}

    // Whether the device has the feature, and whether its default is taken from the catalogue.
    template <class Flag>
    bool is_above_none(Flag ability) const {
        return this->capabilities->get_one_ability(ability) > PX_Ability_Value::Ability_None;
    }
    template <class Flag>
    bool is_listed(Flag ability) const {
        return this->capabilities->get_one_ability(ability) >= PX_Ability_Value::Ability_Settable_Listed;
    }
    // Whether the datum has to be there.
    template <class Flag>
    bool is_required(Flag ability) const {
        return this->capabilities->get_one_ability(ability) == PX_Ability_Value::Ability_Required;
    }

    // The call of another operation, in the frame of this one.
    template <class Call>
    decltype(auto) call(Call&& other) const {
        return px_frame(m_function, std::forward<Call>(other));
    }

    // For an operation that tells of a change, before it writes anything.
    PX_Smart_Pointer<PX_Plotter_Validator> required_validator() const {
        return px_plotter_validator(*m_plotter, m_function, Domain::file_tag);
    }

    // Repairs the datum, then raises its bits.
    template <class Repair>
    void repair(long bits, Repair&& repair) const {
        call(std::forward<Repair>(repair));
        raise(bits);
    }
    void raise(long bits) const { px_raise<Domain>(*m_plotter, bits, m_function); }

    // The last thing a validate operation does.
    template <class Flag>
    void settle(Flag flag) const {
        this->configuration->set_one_validated(true, flag);
    }
    // The last thing a default operation does.
    template <class Flag>
    void settle_default(Flag flag) const {
        px_settle_default(*this->configuration, flag);
    }

    // MVNK_Error with the operation's name.
    [[noreturn]] void fail(unsigned int code, const wchar_t* detail = nullptr) const {
        throw MVNK_Error(code, m_function, detail, Domain::file_tag);
    }
    // MVNK_Memory_Exception 1101 for what must be there, and is not.
    template <class Pointer>
    void require_made(const Pointer& object, const wchar_t* detail) const {
        px_require_made(object, m_function, detail, Domain::file_tag);
    }

protected:
    const PX_Plotter_Definition* m_plotter;
    const wchar_t* m_function;
};
