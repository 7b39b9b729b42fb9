#include <gtest/gtest.h>

#include <new>
#include <sstream>
#include <stdexcept>
#include <string>
#include <utility>

#include "tests/support/allocations.h"
#include "tests/support/custom.h"
#include "tests/support/expect_exception.h"
#include "tests/support/media.h"
#include "toolkit/report.h"

namespace {

using namespace support;

// The values and flags of a choice.
std::string state_of(const PX_Plotter_Configuration& choice) {
    std::string state;
    const PX_Configuration_Snapshot snapshot(choice);
    for (const PX_Datum_Value& value : snapshot.get_values())
        state += value.exact + '|';
    const auto add = [&state](const auto& domain, int count) {
        for (int flag = 0; flag < count; ++flag)
            state += domain->get_one_validated(Number{flag})
                         ? domain->get_one_default(Number{flag}) ? '3' : '2'
                     : domain->get_one_default(Number{flag}) ? '1'
                                                             : '0';
    };
    add(choice.get_media_configuration(), PX_Media_Config_Flags::range.count);
    add(choice.get_phys_pen_configuration(), PX_Pen_Config_Flags::range.count);
    add(choice.get_res_color_mem_configuration(), PX_ResColorMem_Config_Flags::range.count);
    add(choice.get_io_configuration(), PX_IO_Config_Flags::range.count);
    add(choice.get_init_term_configuration(), PX_InitTerm_Ability_Flags::range.count);
    for (const auto& item : *choice.get_custom_configuration()->get_custom_list())
        state += std::string(item->get_validated() ? "v" : "-") + (item->get_default() ? 'd' : '-');
    return state;
}

std::string rows_of(const PX_Change_Report& report) {
    std::string rows;
    for (const PX_Datum_Change& row : report.get_rows())
        rows += row.name + ' ' + px_word_of_outcome(row) + ' ' + std::to_string(row.change_bits) +
                (row.is_raised ? "r" : "") + (row.is_validated ? "v" : "") + (row.is_default ? "d" : "") +
                ' ' + (row.before ? row.before->shown : "") + " > " + (row.after ? row.after->shown : "") +
                '\n';
    return rows;
}

// A device whose copies, sheet and setting are not what the choice says, with a driver's validator that also
// alters the device.
class Greedy_Validator : public PX_Std_Media_Validator {
public:
    using PX_Std_Media_Validator::PX_Std_Media_Validator;
    void validate_dm_scale(Strategy::Enum strategy) override {
        PX_Std_Media_Validator::validate_dm_scale(strategy);
        m_plotter->get_plotter_capabilities()->get_media_capabilities()->set_max_number_of_copies(77);
        m_plotter->get_plotter_validator()->set_media_caps_changes(1);
    }
};
struct Greedy_Factory : PX_Std_Plotter_Class_Factory {
    PX_Media_Validator* MK_Create_Media_Validator(PX_Plotter_Definition* plotter) const override {
        return new Greedy_Validator(plotter);
    }
};

class Changed_Device : public Media_Device {
public:
    Changed_Device() : Media_Device(new Definition_With<Greedy_Factory>) {
        const PX_Smart_Pointer<PX_Media_Configuration> standard(
            static_cast<const PX_Std_Media_Configuration&>(*cfg).PX_Std_Media_Configuration::clone());
        root().set_media_configuration(standard.get());
        cfg = media_cfg();
        (*this)->get_plotter_capabilities()->set_linetype_capabilities(
            PX_Smart_Pointer<PX_Linetype_Capabilities>(new PX_Std_Linetype_Capabilities).get());
        (*this)->get_plotter_capabilities()->set_raster_capabilities(
            PX_Smart_Pointer<PX_Raster_Capabilities>(new PX_Std_Raster_Capabilities).get());
        withdraw(a4());
        drop(types(), L"plain");
        entries()->find(L"upper")->set_default_media_size(L"A5");
        cfg->set_number_of_copies(6);
        const PX_Dev_String start = dev_string("start");
        init_term_cfg()->set_preinit_string(&start);
        custom_caps()->get_custom_list()->append(setting(L"gap", of(2L), 0, 4));
        custom_cfg()->get_custom_list()->append(item(L"gap", of(5L)));
        rcm_cfg()->set_one_validated(true, PX_ResColorMem_Config_Flags::RCM_Cfg_Lines_Overwrite);
        rcm_cfg()->set_one_default(true, PX_ResColorMem_Config_Flags::RCM_Cfg_Lines_Overwrite);
    }
    PX_Plotter_Configuration& root() const { return *(*this)->get_plotter_configuration(); }
};

// What a definition holds, by its objects, and what these hold.
struct Held {
    explicit Held(const Changed_Device& device)
        : configuration(device->get_plotter_configuration()),
          capabilities(device->get_plotter_capabilities()),
          state(state_of(*configuration)),
          copies(device.caps->get_max_number_of_copies()) {}

    PX_Smart_Pointer<PX_Plotter_Configuration> configuration;
    PX_Smart_Pointer<PX_Plotter_Capabilities> capabilities;
    std::string state;
    long copies;
};

void expect_same(const Held& now, const Held& before) {
    EXPECT_TRUE(now.configuration == before.configuration);
    EXPECT_TRUE(now.capabilities == before.capabilities);
    EXPECT_EQ(now.state, before.state);
    EXPECT_EQ(now.copies, before.copies);
}

TEST(Dry_Run, TellsWhatARunWouldDoAndDoesNothing) {
    for (const auto strategy : {Strategy::Use_Default, Strategy::Use_Nearest}) {
        for (int policy = 0; policy < 4; ++policy) {
            const Changed_Device device;
            const PX_Validation_Order order = {strategy, Number{policy}, true};
            const Held before(device);
            const PX_Change_Report told = px_dry_run(*device.get(), device.root(), order);
            expect_same(Held(device), before);

            const PX_Configuration_Snapshot snapshot(device.root());
            device.validator()->validate_all(order.strategy, order.policy, order.validate_settable);
            EXPECT_EQ(rows_of(told), rows_of({snapshot, *device.get(), order}));
            EXPECT_GT(told.get_changed(), 0);
            EXPECT_EQ(told.get_config_changed(), device.validator()->get_config_changed());
            EXPECT_EQ(told.get_caps_changed(), device.validator()->get_caps_changed());
        }
    }
}

TEST(Dry_Run, PutsBackWhateverIsThrown) {
    const Changed_Device device;
    device->set_plotter_configuration(device.root().clone());
    const Held before(device);
    const auto dry_run = [&](const std::function<void()>& prepare = {}) {
        return px_dry_run(*device.get(), device.root(), {}, prepare);
    };
    EXPECT_THROW(dry_run([] { throw std::runtime_error("no"); }), std::runtime_error);
    expect_same(Held(device), before);

    int failures = 0;
    for (int successes = 0;; successes += 1 + successes / 8) {
        SCOPED_TRACE(testing::Message() << "after " << successes << " allocations");
        try {
            const Out_Of_Memory none(successes);
            const PX_Change_Report report = dry_run();
            if (!report.get_failure())
                break;
            ++failures;
        } catch (const PX_Exception&) {
            ++failures;
        } catch (const std::bad_alloc&) {
            ++failures;
        }
        expect_same(Held(device), before);
    }
    EXPECT_GT(failures, 20);
}

// The user looks at another device, and goes back to the old one.
TEST(Dry_Run, KeepsTheChoiceOfAnotherDevice) {
    const Changed_Device own, twin, other;
    other.custom_caps()->get_custom_list()->clear();
    other.custom_caps()->get_custom_list()->append(setting(L"fan", of(true)));
    const std::string chosen = state_of(own.root());
    const PX_Change_Report report =
        px_dry_run(*other.get(), own.root(), {}, [&] { px_fit_custom_items(*other.get()); });
    EXPECT_FALSE(report.get_failure());
    EXPECT_EQ(report.get_gone(), 1);
    EXPECT_EQ(report.get_appeared(), 1);
    EXPECT_EQ(state_of(own.root()), chosen);

    const auto run = [](const Changed_Device& device) {
        return rows_of(px_run(*device.get(), PX_Configuration_Snapshot(device.root()), {}));
    };
    EXPECT_EQ(run(own), run(twin)) << "its own device makes of it what it would have";
}

TEST(Fit_Custom_Items, KeepsTheValuesOfTheSettingsThatAreThere) {
    const Device device;
    device.custom_caps()->get_custom_list()->append(setting(L"fan", of(true)));
    device.custom_caps()->get_custom_list()->append(setting(L"gap", of(2L), 0, 4));
    const auto chosen = device.custom_cfg()->get_custom_list();
    for (const auto& [name, value] : {std::pair(L"gap", 5L), {L"old", 1L}, {L"gap", 3L}})
        chosen->append(item(name, of(value)));
    px_fit_custom_items(*device.get());
    std::wstring items;
    for (const auto& item : *device.custom_cfg()->get_custom_list())
        items += show(*item) + L", ";
    EXPECT_EQ(items, L"fan true vd, gap long 5 --, ");
}

TEST(Fit_Custom_Items, StayWhereTheDeviceCannotSayItsDefaults) {
    const Device device;
    device.custom_caps()->get_custom_list()->append(setting(L"fan", of(true)));
    device.custom_caps()->get_custom_list()->append(setting(L"gap", nullptr));
    device.custom_cfg()->get_custom_list()->append(item(L"gap", of(5L)));
    device.custom_cfg()->get_custom(L"gap")->set_validated(true);
    const auto shown = [&] { return show(*device.custom_cfg()->get_custom_list()->find(L"gap")); };
    const std::wstring before = shown();
    const auto thrown = thrown_by([&] { px_fit_custom_items(*device.get()); });
    ASSERT_TRUE(thrown);
    EXPECT_EQ(thrown->code, 1103U);
    EXPECT_EQ(thrown->detail, L"default_data_value");
    EXPECT_EQ(device.custom_cfg()->get_custom_list()->size(), 1);
    EXPECT_EQ(shown(), before);
}

// Two runs that end early: over an item that the device has no setting for, and over the feed of a source.
TEST(Dry_Run, TellsHowFarAFailingRunCame) {
    for (const auto& [code, detail] : {std::pair(704, L""), {1103, L"newsource"}}) {
        const Changed_Device device;
        if (code == 704)
            device.custom_cfg()->get_custom_list()->append(item(L"foreign", of(1L)));
        else
            device.snapshot()->set_media_feed(Number{9});
        const Held before(device);
        const PX_Change_Report told = px_dry_run(*device.get(), device.root(), {});
        expect_same(Held(device), before);
        ASSERT_TRUE(told.get_failure()) << code;
        EXPECT_EQ(told.get_failure()->m_code, static_cast<unsigned>(code));
        EXPECT_STREQ(told.get_failure()->m_detail, detail);
        EXPECT_GT(told.get_failure()->m_stack_depth, 0);

        const auto outcome_of = [&](const PX_Datum_Id& datum) {
            const PX_Datum_Change* const row = told.find(datum);
            return px_word_of_outcome(*row) + (row->is_validated ? " validated" : "");
        };
        const bool has_sheets = code == 704;
        EXPECT_EQ(outcome_of({PX_Domain_Mask::Media, Cfg::Cfg_Media_Type}), "nearest 1 validated");
        EXPECT_EQ(outcome_of({PX_Domain_Mask::Media, Cfg::Cfg_Number_Of_Copies}),
                  has_sheets ? "nearest validated" : "kept");
        const PX_Datum_Change* const foreign = told.find({PX_Domain_Mask::Custom, -1, L"foreign"});
        EXPECT_EQ(foreign && foreign->kind == PX_Change_Kind::Kept && !foreign->is_validated, has_sheets);

        const PX_Configuration_Snapshot snapshot(device.root());
        EXPECT_EQ(rows_of(px_run(*device.get(), snapshot, {})), rows_of(told)) << "as the run itself";
        std::ostringstream out;
        px_print_changes(out, told);
        const std::string last = has_sheets ? "error 704: what" : "error 1103, \"newsource\": what";
        EXPECT_NE(out.str().find("The run failed with " + last + " it did not reach is not validated.\n"),
                  std::string::npos)
            << out.str();
    }
}

// What a host does ahead of the run is neither the run's doing nor silent, and the run is measured from
// there.
TEST(Dry_Run, TellsApartWhatWasPrepared) {
    const Changed_Device device;
    device.pen_caps()->set_abilities(PX_Ability_Value::Ability_Required);
    device.pen_caps()->set_max_number_of_physical_pens(8);
    const auto told = px_dry_run(*device.get(), device.root(), {}, [&] {
        device.pen_cfg()->set_number_of_physical_pens(20);
        device.media_cfg()->set_dm_scale(75);
    });
    const PX_Datum_Change* const pens =
        told.find({PX_Domain_Mask::Phys_Pens, PX_Pen_Config_Flags::Pen_Config_Number});
    EXPECT_EQ(px_word_of_outcome(*pens), "nearest 12");
    EXPECT_EQ(pens->before->shown + ' ' + pens->prepared->shown + ' ' + pens->after->shown, "0 20 8");
    const PX_Datum_Change* const scale = told.find({PX_Domain_Mask::Media, Cfg::Cfg_Dm_Scale});
    EXPECT_EQ(px_word_of_outcome(*scale), "prepared");
    EXPECT_TRUE(scale->is_changed() && !scale->is_silent() && !scale->prepared);
    device.media_caps()->set_one_ability(PX_Ability_Value::Ability_Fixed,
                                         PX_Media_Ability_Flags::Ability_Dm_Scale);
    const long had = device.media_cfg()->get_dm_scale();
    device.media_cfg()->set_dm_scale(device.media_caps()->get_default_dm_scale());
    const auto undone =
        px_dry_run(*device.get(), device.root(), {}, [&] { device.media_cfg()->set_dm_scale(75); });
    const PX_Datum_Change* const again = undone.find({PX_Domain_Mask::Media, Cfg::Cfg_Dm_Scale});
    EXPECT_TRUE(px_word_of_outcome(*again) == "reset" && again->is_silent() && again->prepared) << "undone";
    device.media_cfg()->set_dm_scale(had);
    device.media_caps()->set_one_ability(PX_Ability_Value::Ability_Required,
                                         PX_Media_Ability_Flags::Ability_Dm_Scale);
    const auto untouched = px_dry_run(*device.get(), device.root(), {});
    EXPECT_EQ(told.get_changed(), untouched.get_changed() + 3) << "the pens too";
    EXPECT_EQ(told.get_silent(), untouched.get_silent());

    std::ostringstream out;
    px_print_changes(out, told);
    const std::string table = out.str();
    const auto at = table.find("set 20\n");
    ASSERT_NE(at, std::string::npos) << table;
    EXPECT_LT(table.find("was 0\n"), at);
    EXPECT_NE(table.find("now 8\n", at), std::string::npos);
}

// A driver's roots whose clones do not come into being.
struct No_Clone_Of_Capabilities : PX_Std_Plotter_Capabilities {
    PX_Plotter_Capabilities* clone() const override { return nullptr; }
};
struct No_Clone_Of_Configuration : PX_Std_Plotter_Configuration {
    PX_Plotter_Configuration* clone() const override { return nullptr; }
};

TEST(Dry_Run, FailsForWhatIsMissing) {
    const Changed_Device device;
    const auto capabilities = device->get_plotter_capabilities();
    device->set_plotter_capabilities(nullptr);
    expect_thrown<MVNK_Error>([&] { px_dry_run(*device.get(), device.root(), {}); }, 1103, L"px_dry_run",
                              L"plotter");
    device->set_plotter_capabilities(new No_Clone_Of_Capabilities);
    expect_thrown<MVNK_Memory_Exception>([&] { px_dry_run(*device.get(), device.root(), {}); }, 1101,
                                         L"px_dry_run", L"capabilities");
    device->set_plotter_capabilities(capabilities.get());
    No_Clone_Of_Configuration uncloned;
    const auto& root = device.root();
    uncloned.set_media_configuration(root.get_media_configuration().get());
    uncloned.set_phys_pen_configuration(root.get_phys_pen_configuration().get());
    uncloned.set_res_color_mem_configuration(root.get_res_color_mem_configuration().get());
    uncloned.set_io_configuration(root.get_io_configuration().get());
    uncloned.set_init_term_configuration(root.get_init_term_configuration().get());
    uncloned.set_custom_configuration(root.get_custom_configuration().get());
    expect_thrown<MVNK_Memory_Exception>([&] { px_dry_run(*device.get(), uncloned, {}); }, 1101,
                                         L"px_dry_run", L"configuration");
    device->set_plotter_capabilities(new PX_Std_Plotter_Capabilities);
    const auto thrown = thrown_by([&] { px_dry_run(*device.get(), device.root(), {}); });
    ASSERT_TRUE(thrown && thrown->code == 1103);
    EXPECT_EQ(thrown->frames.back(), L"px_dry_run");
    device->set_plotter_capabilities(capabilities.get());
    // Where no choice was made yet, there is none afterwards.
    const auto choice = device->get_plotter_configuration();
    device->set_plotter_configuration(nullptr);
    EXPECT_GT(px_dry_run(*device.get(), *choice, {}).get_changed(), 0);
    EXPECT_FALSE(device->get_plotter_configuration());
}

}  // namespace
