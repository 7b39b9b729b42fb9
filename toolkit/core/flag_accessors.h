#pragma once

#include "toolkit/core/flags.h"

// The groups of flag accessors that the contracts of the domains share. A class stacks the groups that its
// contract has between the contract and itself; `Set` is the domain's flag set.

// What the device can do for each datum. A flag outside its enum throws PX_Severe_Error 1104, here and below.
template <class Base, class Set>
class PX_Ability_Accessors : public Base {
    using Flag = typename Set::Flag;

public:
    const wchar_t* get_abilities() const override { return m_abilities.get_text(); }
    PX_Ability_Value::Enum get_one_ability(Flag flag) const override { return m_abilities.get_checked(flag); }
    void set_abilities(PX_Ability_Value::Enum value) override { m_abilities.set_all(value); }
    void set_abilities(const wchar_t* text) override { m_abilities.set_text(text); }
    void set_one_ability(PX_Ability_Value::Enum value, Flag flag) override {
        m_abilities.set_checked(value, flag);
    }

private:
    Set m_abilities;
};

// The flags of capabilities that belong to hosts and drivers.
template <class Base, class Set>
class PX_State_Accessors : public Base {
    using Flag = typename Set::Flag;

public:
    const wchar_t* get_caps_state() const override { return m_state.get_text(); }
    bool get_one_caps_state(Flag flag) const override { return m_state.get_checked(flag); }
    void set_caps_state(bool on) override { m_state.set_all(on); }
    void set_caps_state(const wchar_t* text) override { m_state.set_text(text); }
    void set_one_caps_state(bool on, Flag flag) override { m_state.set_checked(on, flag); }

private:
    Set m_state;
};

// Who shows the user interface of each datum.
template <class Base, class Set>
class PX_Owner_Accessors : public Base {
    using Flag = typename Set::Flag;

public:
    const wchar_t* get_ui_owner() const override { return m_owners.get_text(); }
    PX_UI_Owner::Enum get_one_ui_owner(Flag flag) const override { return m_owners.get_checked(flag); }
    void set_ui_owner(PX_UI_Owner::Enum owner) override { m_owners.set_all(owner); }
    void set_ui_owner(const wchar_t* text) override { m_owners.set_text(text); }
    void set_one_ui_owner(PX_UI_Owner::Enum owner, Flag flag) override { m_owners.set_checked(owner, flag); }

private:
    Set m_owners;
};

// Which data of a configuration are validated and which are at their default.
template <class Base, class Default_Set, class Validated_Set>
class PX_Configuration_Accessors : public Base {
    using Flag = typename Default_Set::Flag;
    static constexpr int count = Default_Set::Numbering::range.count;

public:
    bool get_one_validated(Flag flag) const override { return m_validated.get_checked(flag); }
    bool get_validated() const override { return m_validated.get_flags(count); }
    void set_one_validated(bool on, Flag flag) override { m_validated.set_checked(on, flag); }
    void set_validated(bool on) override { m_validated.set_all(on); }
    bool get_one_default(Flag flag) const override { return m_default.get_checked(flag); }
    bool get_default() const override { return m_default.get_flags(count); }
    void set_one_default(bool on, Flag flag) override { m_default.set_checked(on, flag); }
    void set_default(bool on) override { m_default.set_all(on); }

protected:
    // A setter has stored a new value: the datum is neither validated nor at its default. Through the virtual
    // operations, so that a derived class sees it.
    void clear_flags_of(Flag flag) {
        this->set_one_validated(false, flag);
        this->set_one_default(false, flag);
    }
    // For the clone of a configuration, behind its setters, which clear flags.
    void copy_flags_to(PX_Configuration_Accessors& other) const {
        other.m_validated = m_validated;
        other.m_default = m_default;
    }

private:
    Default_Set m_default;
    Validated_Set m_validated;
};
