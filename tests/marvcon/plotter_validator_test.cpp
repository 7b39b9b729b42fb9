#include <gtest/gtest.h>

#include <string>

#include "tests/support/allocations.h"
#include "tests/support/device.h"
#include "tests/support/expect_exception.h"

namespace {

using namespace support;
using Policy = PX_Validation_Policy;
using Strategy = PX_Validation_Strategy;
using Action = PX_Validator_Action;
using Flag = PX_InitTerm_Ability_Flags;

// The calls that the walk makes, as a driver's own validators see them; and the one that fails.
std::string calls;
std::string failing;

void tell(const std::string& call) {
    calls += call + " ";
    if (call == failing)
        throw MVNK_Error(701, L"Driver");
}

// clang-format off
#define TELLS(operation, call) void operation() override { tell(call); }
#define STRING(number, name)                                                                              \
    void validate_##name##_string(Strategy::Enum strategy) override {                                     \
        tell((strategy == Strategy::Use_Nearest ? "n" : "v") + std::string(number));                      \
        PX_Std_InitTerm_Validator::validate_##name##_string(strategy);                                    \
    }                                                                                                     \
    void set_##name##_string_to_default() override {                                                      \
        tell("d" + std::string(number));                                                                  \
        PX_Std_InitTerm_Validator::set_##name##_string_to_default();                                      \
    }
class Recording_InitTerm : public PX_Std_InitTerm_Validator {
public:
    using PX_Std_InitTerm_Validator::PX_Std_InitTerm_Validator;
    STRING("0", preinit)
    STRING("1", postinit)
    STRING("2", termination)
    TELLS(set_all_init_term_to_defaults, "init-term")
};
class Recording_Media : public PX_Std_Media_Validator {
public:
    using PX_Std_Media_Validator::PX_Std_Media_Validator;
    TELLS(set_all_media_to_defaults, "media")
};
class Recording_IO : public PX_Std_Plotter_IO_Validator {
public:
    using PX_Std_Plotter_IO_Validator::PX_Std_Plotter_IO_Validator;
    TELLS(set_all_io_to_defaults, "io")
};
class Recording_Pens : public PX_Std_PhysPen_Validator {
public:
    using PX_Std_PhysPen_Validator::PX_Std_PhysPen_Validator;
    TELLS(set_all_physpen_to_defaults, "pens")
};
class Recording_RCM : public PX_Std_ResColorMem_Validator {
public:
    using PX_Std_ResColorMem_Validator::PX_Std_ResColorMem_Validator;
    TELLS(set_all_res_color_mem_to_defaults, "rcm")
    TELLS(set_res_color_mem_to_default, "rcm")
    TELLS(set_mem_area_to_default, "area")
    TELLS(set_resolution_to_default, "resolution")
    TELLS(set_HardSoftNo_Dithering_to_default, "dithering")
    TELLS(set_installed_memory_to_default, "installed")
    TELLS(set_dithering_mode_to_default, "mode")
    TELLS(set_icm_method_to_default, "method")
    TELLS(set_icm_intent_to_default, "intent")
    TELLS(set_dm_color_to_default, "color")
    TELLS(set_color_vs_mono_to_default, "mono")
};
class Recording_Custom : public PX_Std_Custom_Validator {
public:
    using PX_Std_Custom_Validator::PX_Std_Custom_Validator;
    void validate_all_custom(Strategy::Enum strategy) override {
        tell(strategy == Strategy::Use_Nearest ? "ncustom" : "vcustom");
    }
    TELLS(set_all_custom_to_defaults, "custom")
};
#undef STRING
#undef TELLS
// clang-format on

// clang-format off
#define MAKES(domain, contract, Recording, ...)                                                           \
    PX_##contract* MK_Create_##domain##_Validator([[maybe_unused]] PX_Plotter_Definition* plotter) const override { \
        return new Recording(__VA_ARGS__);                                                                \
    }
struct Recording_Factory : PX_Std_Plotter_Class_Factory {
    MAKES(Media, Media_Validator, Recording_Media, plotter)
    MAKES(InitTerm, InitTerm_Validator, Recording_InitTerm, plotter)
    MAKES(Pen, PhysPen_Validator, Recording_Pens, plotter)
    MAKES(Custom, Custom_Validator, Recording_Custom, plotter)
    MAKES(ResColorMem, ResColorMem_Validator, Recording_RCM, plotter)
    MAKES(Plotter_IO, Plotter_IO_Validator, Recording_IO, plotter)
};
#undef MAKES
// clang-format on

class Plotter_Validator : public testing::Test {
protected:
    Plotter_Validator() {
        calls.clear();
        failing.clear();
        // What is validated stays silent.
        m_device.rcm_caps()->set_abilities(PX_Ability_Value::Ability_Required);
        m_device.rcm_cfg()->set_validated(true);
    }

    std::string run(Policy::Enum policy, bool validate_settable = true,
                    Strategy::Enum strategy = Strategy::Use_Default) {
        calls.clear();
        m_changed = m_device.validator()->validate_all(strategy, policy, validate_settable);
        return calls;
    }

    Device m_device{new Definition_With<Recording_Factory>};
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
    EXPECT_EQ(run(Policy::Keep_Conditional), "v0 d1 v2 vcustom ");
    EXPECT_EQ(run(Policy::Keep_Conditional), "d1 vcustom ") << "validated data are left alone, not defaults";
    m_device.init_term_cfg()->set_validated(false);
    m_device.init_term_caps()->set_abilities(L"323");
    EXPECT_EQ(run(Policy::Validate_Conditional, true, Strategy::Use_Nearest), "n0 n1 n2 ncustom ");
    EXPECT_EQ(run(Policy::Keep_All), "vcustom ") << "custom data are validated under every policy";
}

TEST_F(Plotter_Validator, ASettableDatumIsResetWithoutAChangeBit) {
    m_device.init_term_caps()->set_abilities(L"200");
    m_device.init_term_cfg()->set_default(false);
    EXPECT_EQ(run(Policy::Keep_Conditional, false), "d0 d1 d2 vcustom ");
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
    m_device.pen_caps()->set_abilities(PX_Ability_Value::Ability_Conditional);
    m_device.init_term_caps()->set_abilities(PX_Ability_Value::Ability_Conditional);
    m_device.rcm_caps()->set_abilities(PX_Ability_Value::Ability_Conditional);
    m_device.io_caps()->set_abilities(PX_Ability_Value::Ability_Conditional);
    m_device->set_plotter_configuration(nullptr);
    EXPECT_EQ(run(Policy::Keep_All), "vcustom ") << "nothing is asked of the configuration";
    expect_thrown<PX_Exception>([&] { run(Policy::Validate_Conditional); }, 1103, function,
                                L"plotter_caps or plotter_cfg");
    EXPECT_EQ(calls, "");
    m_device->set_plotter_capabilities(new PX_Std_Plotter_Capabilities);
    expect_thrown<PX_Exception>([&] { run(Policy::Keep_All); }, 1103, function, L"media_caps or media_cfg");
}

TEST_F(Plotter_Validator, EachWordHasItsBitInTheMasksAndIsClearedByARun) {
    using V = PX_Plotter_Validator;
    // clang-format off
#define WORD(name) &V::set_##name##_changes, &V::get_##name##_changes
    const struct {
        void (V::*set)(long);
        long (V::*get)() const;
        long cfg_mask, caps_mask;
    } words[] = {
        {WORD(media_cfg), 2, 0}, {WORD(io_cfg), 1, 0}, {WORD(phys_pen_cfg), 16, 0},
        {WORD(res_color_mem_cfg), 8, 0}, {WORD(init_term_cfg), 32, 0}, {WORD(media_caps), 0, 2},
        {WORD(io_caps), 0, 1}, {WORD(phys_pen_caps), 0, 16}, {WORD(res_color_mem_caps), 0, 8},
        {WORD(init_term_caps), 0, 32}, {WORD(raster_caps), 0, 64}, {WORD(linetype_caps), 0, 128},
    };
#undef WORD
    // clang-format on
    const auto validator = m_device.validator();
    for (const auto& word : words) {
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
    const auto validator = m_device.validator();
    const auto expect_frame = [&](const wchar_t* frame, auto call) {
        EXPECT_EQ(expect_thrown<PX_Exception>(call, 701, L"Driver", L"").frames,
                  std::vector<std::wstring>{std::wstring(L"PX_Std_Plotter_Validator::") + frame});
    };
    failing = "custom";
    expect_frame(L"set_all_default", [&] { validator->set_all_to_defaults(); });
    expect_frame(L"set_selected_to_defaults", [&] { validator->set_selected_to_defaults(4); });
    failing = "area";
    expect_frame(L"set_selected_rescolormem_data_to_defaults",
                 [&] { validator->set_selected_rescolormem_data_to_defaults(); });
}

TEST_F(Plotter_Validator, IsMadeOnlyWhole) {
    constexpr const wchar_t* constructor = L"PX_Std_Plotter_Validator::PX_Std_Plotter_Validator";
    expect_thrown<MVNK_Error>([] { PX_Std_Plotter_Validator validator(nullptr); }, 1103, constructor,
                              L"plotter");
    struct Factory : Recording_Factory {
        PX_InitTerm_Validator* MK_Create_InitTerm_Validator(PX_Plotter_Definition*) const override {
            return nullptr;
        }
    };
    struct Definition : PX_Std_Plotter_Definition {
        Definition() : PX_Std_Plotter_Definition(nullptr) { m_class_factory = new Factory; }
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
    device.rcm_caps()->set_abilities(PX_Ability_Value::Ability_Required);
    device.rcm_cfg()->set_validated(true);
    device.pen_caps()->set_abilities(PX_Ability_Value::Ability_Required);
    device.pen_cfg()->set_validated(true);
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
    const auto fill = [](auto& list, auto make) {
        for (const auto& [name, type] : {std::pair{L"a", 2}, std::pair{L"b", 2}, std::pair{L"c", 0},
                                         std::pair{L"d", 3}, std::pair{L"e", 2}}) {
            auto* const entry = make();
            entry->set_canonical_name(name);
            entry->set_caps_type(static_cast<PX_Caps_Type::Enum>(type));
            list.append(entry);
        }
    };
    const auto names = [](const auto& list) {
        std::wstring all;
        for (const auto& entry : *list)
            all += entry->get_canonical_name();
        return all;
    };
    fill(*media->get_media_size_list(), [] { return new PX_Std_Media_Size; });
    const auto validator = m_device.validator();
    EXPECT_TRUE(validator->delete_user_defined_caps(1));
    EXPECT_EQ(names(media->get_media_size_list()), L"abcde");
    EXPECT_TRUE(validator->delete_user_defined_caps(2)) << "a missing list is passed over";
    EXPECT_EQ(names(media->get_media_size_list()), L"cd");
    PX_Named_Object_List<PX_Media_Description> descriptions;
    fill(descriptions, [] { return new PX_Std_Media_Description; });
    media->set_media_description_list(&descriptions);
    EXPECT_TRUE(validator->delete_user_defined_caps(2));
    EXPECT_EQ(names(media->get_media_description_list()), L"cd");
    EXPECT_EQ(validator->get_caps_changed(), 0);
    m_device->set_plotter_capabilities(nullptr);
    EXPECT_FALSE(validator->delete_user_defined_caps(2));
}

}  // namespace
