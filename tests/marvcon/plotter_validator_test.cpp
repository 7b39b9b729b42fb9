#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "tests/support/allocations.h"
#include "tests/support/device.h"
#include "tests/support/expect_exception.h"

namespace {

using support::Device;
using support::expect_thrown;
using support::Test_Handler;
using Policy = PX_Validation_Policy;
using Strategy = PX_Validation_Strategy;
using Action = PX_Validator_Action;
using Flag = PX_InitTerm_Ability_Flags;

// The calls that the walk makes, as a driver's own validators see them.
std::string calls;

class Recording_InitTerm : public PX_Std_InitTerm_Validator {
public:
    using PX_Std_InitTerm_Validator::PX_Std_InitTerm_Validator;
    void validate_preinit_string(Strategy::Enum strategy) override {
        calls += "v0 ";
        PX_Std_InitTerm_Validator::validate_preinit_string(strategy);
    }
    void validate_postinit_string(Strategy::Enum strategy) override {
        calls += strategy == Strategy::Use_Nearest ? "v1(nearest) " : "v1 ";
        PX_Std_InitTerm_Validator::validate_postinit_string(strategy);
    }
    void validate_termination_string(Strategy::Enum strategy) override {
        calls += "v2 ";
        PX_Std_InitTerm_Validator::validate_termination_string(strategy);
    }
    void set_preinit_string_to_default() override {
        calls += "d0 ";
        PX_Std_InitTerm_Validator::set_preinit_string_to_default();
    }
    void set_postinit_string_to_default() override {
        calls += "d1 ";
        PX_Std_InitTerm_Validator::set_postinit_string_to_default();
    }
    void set_termination_string_to_default() override {
        calls += "d2 ";
        PX_Std_InitTerm_Validator::set_termination_string_to_default();
    }
    void set_all_init_term_to_defaults() override { calls += "init-term "; }
};

class Recording_Media : public PX_Std_Media_Validator {
public:
    using PX_Std_Media_Validator::PX_Std_Media_Validator;
    void set_all_media_to_defaults() override { calls += "media "; }
};
class Recording_IO : public PX_Plotter_IO_Validator, public PX_Object {
    void set_all_io_to_defaults() override { calls += "io "; }
};
class Recording_Pens : public PX_PhysPen_Validator, public PX_Object {
    void set_all_physpen_to_defaults() override { calls += "pens "; }
};
class Recording_RCM : public PX_ResColorMem_Validator, public PX_Object {
    void set_all_res_color_mem_to_defaults() override { calls += "rcm "; }
    void set_res_color_mem_to_default() override { calls += "rcm "; }
    void set_mem_area_to_default() override {
        calls += "area ";
        if (fails)
            throw MVNK_Error(701, L"Recording_RCM");
    }
    void set_resolution_to_default() override { calls += "resolution "; }
    void set_HardSoftNo_Dithering_to_default() override { calls += "dithering "; }
    void set_installed_memory_to_default() override { calls += "installed "; }
    void set_dithering_mode_to_default() override { calls += "mode "; }
    void set_icm_method_to_default() override { calls += "method "; }
    void set_icm_intent_to_default() override { calls += "intent "; }
    void set_dm_color_to_default() override { calls += "color "; }
    void set_color_vs_mono_to_default() override { calls += "mono "; }

public:
    static inline bool fails = false;
};
class Recording_Custom : public PX_Custom_Validator, public PX_Object {
    void validate_all_custom(Strategy::Enum) override { calls += "custom "; }
    void set_all_custom_to_defaults() override {
        calls += "custom ";
        if (fails)
            throw MVNK_Error(701, L"Recording_Custom");
    }

public:
    static inline bool fails = false;
};

class Recording_Factory : public PX_Std_Plotter_Class_Factory {
public:
    PX_Media_Validator* MK_Create_Media_Validator(PX_Plotter_Definition* plotter) const override {
        return new Recording_Media(plotter);
    }
    PX_PhysPen_Validator* MK_Create_Pen_Validator(PX_Plotter_Definition*) const override {
        return new Recording_Pens;
    }
    PX_InitTerm_Validator* MK_Create_InitTerm_Validator(PX_Plotter_Definition* plotter) const override {
        return without_init_term ? nullptr : new Recording_InitTerm(plotter);
    }
    PX_Custom_Validator* MK_Create_Custom_Validator(PX_Plotter_Definition*) const override {
        return new Recording_Custom;
    }
    PX_ResColorMem_Validator* MK_Create_ResColorMem_Validator(PX_Plotter_Definition*) const override {
        return new Recording_RCM;
    }
    PX_Plotter_IO_Validator* MK_Create_Plotter_IO_Validator(PX_Plotter_Definition*) const override {
        return new Recording_IO;
    }

    bool without_init_term = false;
};

// A driver's definition: its factory and the validator made by it come in after the standard ones.
class Recording_Definition : public PX_Std_Plotter_Definition {
public:
    Recording_Definition() : PX_Std_Plotter_Definition(new Test_Handler) {
        m_class_factory = new Recording_Factory;
        m_plotter_validator = m_class_factory->MK_Create_Plotter_Validator(this);
    }
};

class Plotter_Validator : public testing::Test {
protected:
    Plotter_Validator() { calls.clear(); }

    std::string run(Policy::Enum policy, bool validate_settable = true,
                    Strategy::Enum strategy = Strategy::Use_Default) {
        calls.clear();
        m_changed = m_device.validator()->validate_all(strategy, policy, validate_settable);
        return calls;
    }

    Device m_device{new Recording_Definition};
    bool m_changed = false;
};

TEST(Check_Validate_Datum, IsDecidedByAbilityPolicyAndSettable) {
    class Probe : public PX_Std_Plotter_Validator {
    public:
        using PX_Std_Plotter_Validator::check_validate_datum;
        using PX_Std_Plotter_Validator::PX_Std_Plotter_Validator;
    };
    const Device device;
    Probe probe(device.get());
    device.init_term_caps()->set_abilities(PX_Ability_Value::Ability_Required);
    constexpr auto D = Action::Set_To_Default;
    constexpr auto N = Action::No_Action;
    constexpr auto V = Action::Validate;
    struct Case {
        int policy;
        bool settable;
        Action::Enum actions[6];
    };
    for (const Case& row : {
             Case{0, true, {D, N, N, N, N, V}},
             Case{1, true, {D, D, V, N, V, V}},
             Case{2, true, {D, D, V, V, V, V}},
             Case{3, true, {D, D, V, D, V, V}},
             Case{0, false, {D, N, N, N, N, V}},
             Case{1, false, {D, D, D, N, D, V}},
             Case{2, false, {D, D, D, V, D, V}},
             Case{3, false, {D, D, D, D, D, V}},
             Case{4, true, {D, D, V, D, V, V}},
             Case{-1, true, {D, D, V, D, V, V}},
         }) {
        probe.validate_all(Strategy::Use_Default, static_cast<Policy::Enum>(row.policy), row.settable);
        for (int ability = 0; ability < 6; ++ability)
            EXPECT_EQ(probe.check_validate_datum(static_cast<PX_Ability_Value::Enum>(ability)),
                      row.actions[ability])
                << "policy " << row.policy << ", settable " << row.settable << ", ability " << ability;
    }
    for (const int ability : {-1, 6}) {
        const auto thrown = expect_thrown<MVNK_Error>(
            [&] { probe.check_validate_datum(static_cast<PX_Ability_Value::Enum>(ability)); }, 1001,
            L"PX_Std_Plotter_Validator::check_validate_datum", L"");
        EXPECT_EQ(thrown.file, L"$Workfile: std_plval $ $Revision: #1 $");
    }
    // A new validator acts as the one that resets, with settable data validated.
    EXPECT_EQ(Probe(device.get()).check_validate_datum(PX_Ability_Value::Ability_Conditional), D);
    EXPECT_EQ(Probe(device.get()).check_validate_datum(PX_Ability_Value::Ability_Settable), V);
}

TEST_F(Plotter_Validator, WalksInOrderThroughTheDriversOverrides) {
    m_device.init_term_caps()->set_abilities(L"515");
    EXPECT_EQ(run(Policy::Keep_Conditional), "v0 d1 v2 custom ");
    EXPECT_EQ(run(Policy::Keep_Conditional), "d1 custom ") << "validated data are left alone, not defaults";
    m_device.init_term_cfg()->set_validated(false);
    m_device.init_term_caps()->set_abilities(L"323");
    EXPECT_EQ(run(Policy::Validate_Conditional, true, Strategy::Use_Nearest), "v0 v1(nearest) v2 custom ");
    EXPECT_EQ(run(Policy::Keep_All), "custom ") << "custom data are validated under every policy";
}

TEST_F(Plotter_Validator, ASettableDatumIsResetWithoutAChangeBit) {
    m_device.init_term_caps()->set_abilities(L"200");
    m_device.init_term_cfg()->set_default(false);
    EXPECT_EQ(run(Policy::Keep_Conditional, false), "d0 d1 d2 custom ");
    EXPECT_TRUE(m_device.init_term_cfg()->get_one_validated(Flag::Preinit_String));
    EXPECT_TRUE(m_device.init_term_cfg()->get_one_default(Flag::Preinit_String));
    EXPECT_FALSE(m_changed);
}

TEST_F(Plotter_Validator, AnUndefinedAbilityEndsTheRunThere) {
    m_device.init_term_caps()->set_abilities(L"1/1");
    const auto validator = m_device.validator();
    const auto thrown = expect_thrown<PX_Exception>([&] { run(Policy::Reset_Conditional); }, 1001,
                                                    L"PX_Std_Plotter_Validator::check_validate_datum", L"");
    EXPECT_EQ(thrown.frames, std::vector<std::wstring>{L"PX_Std_Plotter_Validator::validate_all"});
    EXPECT_EQ(calls, "d0 ") << "what was done stays, what follows is not looked at";
}

TEST_F(Plotter_Validator, ReportsWhatIsMissingWhereItIsNeeded) {
    constexpr const wchar_t* function = L"PX_Std_Plotter_Validator::validate_media_datum";
    m_device.media_caps()->set_abilities(PX_Ability_Value::Ability_Conditional);
    m_device.init_term_caps()->set_abilities(PX_Ability_Value::Ability_Conditional);
    m_device->set_plotter_configuration(nullptr);
    EXPECT_EQ(run(Policy::Keep_All), "custom ") << "nothing is asked of the configuration";
    expect_thrown<PX_Exception>([&] { run(Policy::Validate_Conditional); }, 1103, function,
                                L"plotter_caps or plotter_cfg");
    EXPECT_EQ(calls, "");
    m_device->set_plotter_capabilities(new PX_Std_Plotter_Capabilities);
    expect_thrown<PX_Exception>([&] { run(Policy::Keep_All); }, 1103, function, L"media_caps or media_cfg");
}

TEST_F(Plotter_Validator, EachWordHasItsBitInTheMasksAndIsClearedByARun) {
    struct Word {
        void (PX_Plotter_Validator::*set)(long);
        long (PX_Plotter_Validator::*get)() const;
        long cfg_mask;
        long caps_mask;
    };
    using V = PX_Plotter_Validator;
    const Word words[] = {
        {&V::set_media_cfg_changes, &V::get_media_cfg_changes, 2, 0},
        {&V::set_io_cfg_changes, &V::get_io_cfg_changes, 1, 0},
        {&V::set_phys_pen_cfg_changes, &V::get_phys_pen_cfg_changes, 16, 0},
        {&V::set_res_color_mem_cfg_changes, &V::get_res_color_mem_cfg_changes, 8, 0},
        {&V::set_init_term_cfg_changes, &V::get_init_term_cfg_changes, 32, 0},
        {&V::set_media_caps_changes, &V::get_media_caps_changes, 0, 2},
        {&V::set_io_caps_changes, &V::get_io_caps_changes, 0, 1},
        {&V::set_phys_pen_caps_changes, &V::get_phys_pen_caps_changes, 0, 16},
        {&V::set_res_color_mem_caps_changes, &V::get_res_color_mem_caps_changes, 0, 8},
        {&V::set_init_term_caps_changes, &V::get_init_term_caps_changes, 0, 32},
        {&V::set_raster_caps_changes, &V::get_raster_caps_changes, 0, 64},
        {&V::set_linetype_caps_changes, &V::get_linetype_caps_changes, 0, 128},
    };
    const auto validator = m_device.validator();
    for (const Word& word : words) {
        ((*validator).*word.set)(0x40000);
        EXPECT_EQ(((*validator).*word.get)(), 0x40000);
        EXPECT_EQ(validator->get_config_changed(), word.cfg_mask);
        EXPECT_EQ(validator->get_caps_changed(), word.caps_mask);
        run(Policy::Keep_All);
        EXPECT_FALSE(m_changed);
        EXPECT_EQ(((*validator).*word.get)(), 0);
    }
    validator->set_one_custom_cfg_change(L"x");
    EXPECT_EQ(validator->get_config_changed(), 4);
    EXPECT_EQ(validator->get_caps_changed(), 0);
    EXPECT_TRUE(validator->get_one_custom_cfg_change(L"x"));
    EXPECT_FALSE(validator->get_one_custom_cfg_change(L"X") || validator->get_one_custom_cfg_change(L"xx"));
    validator->set_one_custom_caps_change(L"y");
    EXPECT_EQ(validator->get_caps_changed(), 4);
    EXPECT_TRUE(validator->get_one_custom_caps_change(L"y"));
    run(Policy::Keep_All);
    EXPECT_FALSE(validator->get_one_custom_cfg_change(L"x") || validator->get_one_custom_caps_change(L"y"));
}

TEST_F(Plotter_Validator, AnswersByTheMasksThatADriverMayOverride) {
    class Driver : public PX_Std_Plotter_Validator {
    public:
        using PX_Std_Plotter_Validator::PX_Std_Plotter_Validator;
        long get_caps_changed() const override { return 64; }
    } driver(m_device.get());
    EXPECT_TRUE(driver.validate_all(Strategy::Use_Default, Policy::Keep_All, true));
}

TEST_F(Plotter_Validator, ResetsDomainsInTwoOrders) {
    const auto validator = m_device.validator();
    validator->set_io_cfg_changes(3);
    validator->set_all_to_defaults();
    EXPECT_EQ(calls, "media pens rcm custom init-term io ");
    calls.clear();
    validator->set_selected_to_defaults(0xFF);
    EXPECT_EQ(calls, "media io pens rcm init-term custom ");
    for (const auto& [mask, expected] :
         {std::pair{1L, "io "}, std::pair{2L, "media "}, std::pair{4L, "custom "}, std::pair{8L, "rcm "},
          std::pair{16L, "pens "}, std::pair{32L, "init-term "}, std::pair{64L, ""}, std::pair{0L, ""}}) {
        calls.clear();
        validator->set_selected_to_defaults(mask);
        EXPECT_EQ(calls, expected) << mask;
    }
    calls.clear();
    validator->set_selected_rescolormem_data_to_defaults();
    EXPECT_EQ(calls, "rcm area resolution dithering installed mode method intent color mono ");
    EXPECT_EQ(validator->get_io_cfg_changes(), 3) << "the change words stay";
}

TEST_F(Plotter_Validator, NamesItsFramesInTheTrace) {
    Recording_Custom::fails = true;
    const auto validator = m_device.validator();
    const auto all =
        expect_thrown<PX_Exception>([&] { validator->set_all_to_defaults(); }, 701, L"Recording_Custom", L"");
    EXPECT_EQ(all.frames, std::vector<std::wstring>{L"PX_Std_Plotter_Validator::set_all_default"});
    const auto selected = expect_thrown<PX_Exception>([&] { validator->set_selected_to_defaults(4); }, 701,
                                                      L"Recording_Custom", L"");
    EXPECT_EQ(selected.frames,
              std::vector<std::wstring>{L"PX_Std_Plotter_Validator::set_selected_to_defaults"});
    Recording_Custom::fails = false;
    Recording_RCM::fails = true;
    const auto rcm = expect_thrown<PX_Exception>(
        [&] { validator->set_selected_rescolormem_data_to_defaults(); }, 701, L"Recording_RCM", L"");
    EXPECT_EQ(rcm.frames, std::vector<std::wstring>{
                              L"PX_Std_Plotter_Validator::set_selected_rescolormem_data_to_defaults"});
    Recording_RCM::fails = false;
}

TEST_F(Plotter_Validator, IsMadeOnlyWhole) {
    constexpr const wchar_t* constructor = L"PX_Std_Plotter_Validator::PX_Std_Plotter_Validator";
    expect_thrown<MVNK_Error>([] { PX_Std_Plotter_Validator validator(nullptr); }, 1103, constructor,
                              L"plotter");
    class Definition : public PX_Std_Plotter_Definition {
    public:
        Definition() : PX_Std_Plotter_Definition(nullptr) {
            auto* const factory = new Recording_Factory;
            factory->without_init_term = true;
            m_class_factory = factory;
        }
    } plotter;
    expect_thrown<MVNK_Memory_Exception>([&] { PX_Std_Plotter_Validator validator(&plotter); }, 1101,
                                         constructor, L"m_init_term_validator");
}

TEST_F(Plotter_Validator, ARunOverValidatedDataAllocatesNothing) {
    const Device device;
    device.init_term_caps()->set_abilities(PX_Ability_Value::Ability_Required);
    device.init_term_cfg()->set_validated(true);
    device.media_caps()->set_abilities(PX_Ability_Value::Ability_Required);
    device.media_cfg()->set_validated(true);
    const auto validator = device.validator();
    validator->validate_all(Strategy::Use_Nearest, Policy::Validate_Conditional, true);
    const auto before = support::allocation_count();
    const bool changed = validator->validate_all(Strategy::Use_Nearest, Policy::Validate_Conditional, true);
    EXPECT_EQ(support::allocation_count() - before, 0U);
    EXPECT_FALSE(changed);
}

TEST_F(Plotter_Validator, DeletesWhatTheUserDefined) {
    const auto media = m_device.media_caps();
    media->set_media_description_list(nullptr);
    const auto sizes = media->get_media_size_list();
    for (const auto& [name, type] : {std::pair{L"a", 2}, std::pair{L"b", 2}, std::pair{L"c", 0},
                                     std::pair{L"d", 3}, std::pair{L"e", 2}}) {
        auto* const size = new PX_Std_Media_Size;
        size->set_canonical_name(name);
        size->set_caps_type(static_cast<PX_Caps_Type::Enum>(type));
        sizes->append(size);
    }
    const auto left = [&] {
        std::wstring names;
        for (const auto& size : *sizes)
            names += size->get_canonical_name();
        return names;
    };
    const auto validator = m_device.validator();
    EXPECT_TRUE(validator->delete_user_defined_caps(1));
    EXPECT_EQ(left(), L"abcde");
    EXPECT_TRUE(validator->delete_user_defined_caps(2)) << "a missing list is passed over";
    EXPECT_EQ(left(), L"cd");
    PX_Named_Object_List<PX_Media_Description> descriptions;
    for (const auto type : {PX_Caps_Type::Caps_Type_User, PX_Caps_Type::Caps_Type_Withdrawn}) {
        auto* const description = new PX_Std_Media_Description;
        description->set_caps_type(type);
        descriptions.append(description);
    }
    media->set_media_description_list(&descriptions);
    EXPECT_TRUE(validator->delete_user_defined_caps(2));
    ASSERT_EQ(media->get_media_description_list()->size(), 1);
    EXPECT_EQ((*media->get_media_description_list()->begin())->get_caps_type(),
              PX_Caps_Type::Caps_Type_Withdrawn);
    EXPECT_EQ(validator->get_caps_changed(), 0);
    m_device->set_plotter_capabilities(nullptr);
    EXPECT_FALSE(validator->delete_user_defined_caps(2));
}

}  // namespace
