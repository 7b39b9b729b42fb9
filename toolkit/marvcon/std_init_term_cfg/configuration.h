#pragma once

#include "toolkit/core/flag_accessors.h"
#include "toolkit/marvcon/std_init_term_cfg/interface.h"

// A new one holds three empty strings, neither validated nor default.
class PX_EXPORT PX_Std_InitTerm_Configuration
    : public PX_Configuration_Accessors<PX_InitTerm_Configuration, PX_InitTerm_Default,
                                        PX_InitTerm_Validated>,
      public PX_Object {
public:
    PX_Std_InitTerm_Configuration();
    // A copy would share the strings: clone is the operation that copies.
    PX_Std_InitTerm_Configuration(const PX_Std_InitTerm_Configuration&) = delete;
    PX_Std_InitTerm_Configuration& operator=(const PX_Std_InitTerm_Configuration&) = delete;

    PX_Smart_Pointer<PX_Dev_String> get_preinit_string() const override;
    PX_Smart_Pointer<PX_Dev_String> get_postinit_string() const override;
    PX_Smart_Pointer<PX_Dev_String> get_termination_string() const override;
    void set_preinit_string(unsigned char* bytes, long length) override;
    void set_preinit_string(const PX_Dev_String* string) override;
    void set_postinit_string(unsigned char* bytes, long length) override;
    void set_postinit_string(const PX_Dev_String* string) override;
    void set_termination_string(unsigned char* bytes, long length) override;
    void set_termination_string(const PX_Dev_String* string) override;
    PX_InitTerm_Configuration* clone() const override;

private:
    using String = PX_Smart_Pointer<PX_Dev_String>;

    void store(String& string, PX_Dev_String* new_one, PX_InitTerm_Ability_Flags::Enum datum);

    String m_preinit_string;
    String m_postinit_string;
    String m_termination_string;
};
