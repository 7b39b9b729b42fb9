#include <gtest/gtest.h>

#include <new>
#include <stdexcept>
#include <string>

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
        state += show(item->get_config_value()) == L"none" ? '-' : item->get_validated() ? '2' : '0';
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
        px_dry_run(*device.get(), device.root(), {}, prepare);
    };
    EXPECT_THROW(dry_run([] { throw std::runtime_error("no"); }), std::runtime_error);
    expect_same(Held(device), before);

    const auto ability = PX_Media_Ability_Flags::Ability_Dm_Scale;
    device.caps->set_one_ability(PX_Ability_Value::Ability_Undefined, ability);
    const auto thrown = thrown_by([&] { dry_run(); });
    EXPECT_TRUE(thrown && thrown->code == 1001);
    expect_same(Held(device), before);
    device.caps->set_one_ability(PX_Ability_Value::Ability_Settable, ability);

    int failures = 0;
    for (int successes = 0;; successes += 1 + successes / 8) {
        SCOPED_TRACE(testing::Message() << "after " << successes << " allocations");
        try {
            const Out_Of_Memory none(successes);
            dry_run();
            break;
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
    const Changed_Device own, other;
    other.custom_caps()->set_custom_list(nullptr);
    own.validator()->set_all_to_defaults();
    const std::string chosen = state_of(own.root());
    bool is_prepared = false;
    const PX_Change_Report report = px_dry_run(*other.get(), own.root(), {}, [&] {
        // The items of the clone, for which the other device has no setting.
        other.custom_cfg()->get_custom_list()->clear();
        is_prepared = true;
    });
    EXPECT_TRUE(is_prepared);
    EXPECT_EQ(report.get_gone(), 1);
    EXPECT_EQ(state_of(own.root()), chosen);
    EXPECT_EQ(own.validator()->validate_all(Strategy::Use_Nearest, PX_Validation_Policy::Validate_Conditional,
                                            true),
              false || own.validator()->get_caps_changed());
    EXPECT_EQ(own.validator()->get_config_changed(), 0);
}

TEST(Dry_Run, FailsForWhatIsMissing) {
    const Changed_Device device;
    const auto capabilities = device->get_plotter_capabilities();
    device->set_plotter_capabilities(nullptr);
    expect_thrown<MVNK_Error>([&] { px_dry_run(*device.get(), device.root(), {}); }, 1103, L"px_dry_run",
                              L"plotter");
    // Where no choice was made yet, there is none afterwards.
    device->set_plotter_capabilities(capabilities.get());
    const auto choice = device->get_plotter_configuration();
    device->set_plotter_configuration(nullptr);
    EXPECT_GT(px_dry_run(*device.get(), *choice, {}).get_changed(), 0);
    EXPECT_FALSE(device->get_plotter_configuration());
}

}  // namespace
