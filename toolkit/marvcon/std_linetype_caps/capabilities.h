#pragma once

#include <array>

#include "toolkit/core/flag_accessors.h"
#include "toolkit/marvcon/std_linetype_caps/interface.h"

class PX_EXPORT PX_Std_Linetype_Capabilities
    : public PX_State_Accessors<PX_Ability_Accessors<PX_Linetype_Capabilities, PX_Linetype_Abilities>,
                                PX_Linetype_Caps_State>,
      public PX_Object {
public:
    const wchar_t* get_linefont_capabilities() const override { return m_linefont_caps.get_text(); }
    bool get_linefont_capability(PX_Line_Pattern::Enum pattern) const override {
        return m_linefont_caps.get_one(pattern);
    }
    float get_linefont_size(PX_Line_Pattern::Enum pattern) const override {
        return has_size(pattern) ? m_linefont_sizes[static_cast<unsigned int>(pattern)] : 0.0F;
    }
    void set_linefont_capabilities(bool on) override { m_linefont_caps.set_all(on); }
    void set_linefont_capabilities(const wchar_t* text) override { m_linefont_caps.set_text(text); }
    void set_linefont_capability(bool on, PX_Line_Pattern::Enum pattern) override {
        m_linefont_caps.set_one(on, pattern);
    }
    void set_linefont_size(PX_Line_Pattern::Enum pattern, float size) override {
        if (has_size(pattern))
            m_linefont_sizes[static_cast<unsigned int>(pattern)] = size;
    }

    PX_Linetype_Capabilities* clone() const override;

private:
    static bool has_size(int pattern) { return pattern >= 0 && pattern < PX_Line_Pattern::count; }

    PX_Linetype_Linefont_Caps m_linefont_caps;
    std::array<float, PX_Line_Pattern::count> m_linefont_sizes{};
};
