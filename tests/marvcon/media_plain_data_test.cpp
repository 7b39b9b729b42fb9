#include <gtest/gtest.h>

#include <string>
#include <tuple>

#include "tests/support/expect_exception.h"
#include "tests/support/media.h"

namespace {

using namespace support;

// What the numbers have in common.
struct Datum {
    MEDIA_DATUM_FIELDS;
    Ability::Enum ability;
    Cfg::Enum flag;
    long bit;
    double by_default;
    double (*get)(const PX_Media_Configuration&);
    void (*set)(PX_Media_Configuration&, double);
};

// A number as whatever a setter takes.
struct Value {
    double value;
    template <class Type>
    operator Type() const {
        return static_cast<Type>(value);
    }
};
#define NUMBER(name, field, flag, bit, by_default)                                           \
    {                                                                                        \
        MEDIA_DATUM(name), Ability::Ability_##flag, Cfg::Cfg_##flag, bit, by_default,        \
            [](const PX_Media_Configuration& cfg) { return double(cfg.get_##field()); },     \
            [](PX_Media_Configuration& cfg, double value) { cfg.set_##field(Value{value}); } \
    }
const Datum numbers[] = {NUMBER(number_of_copies, number_of_copies, Number_Of_Copies, 0x10, 1),
                         NUMBER(duplexing, duplexing_mode, Duplexing, 0x8, 4),
                         NUMBER(longplot_reduction, longplot_reduction, Longplot_Reduction, 0x200, 2),
                         NUMBER(dm_scale, dm_scale, Dm_Scale, 0x400, 50),
                         NUMBER(dm_orientation, dm_orientation, Dm_Orientation, 0x800, 1)};
#undef NUMBER
const auto& [copies, duplexing, reduction, scale, orientation] = numbers;

class Media_Plain_Data : public testing::Test {
protected:
    Media_Device m_device;
    PX_Std_Media_Validator m_validator{m_device.get()};
    PX_Media_Configuration& m_cfg = *m_device.cfg;
};

TEST_F(Media_Plain_Data, NumbersStandOrAreRepaired) {
    struct Case {
        const Datum& datum;
        double value, by_default, by_nearest;
    };
    // The device takes 5 copies and the modes 2 and 4; its defaults are mode 4, reduction 2 and scale 50.
    // clang-format off
    const Case rows[] = {
        {copies, 1, 1, 1}, {copies, 5, 5, 5}, {copies, 6, 1, 5}, {copies, 0, 1, 1},
        {duplexing, 2, 2, 2}, {duplexing, 3, 3, 3}, {duplexing, 0, 4, 4}, {duplexing, 9, 4, 4},
        {reduction, 1, 1, 1}, {reduction, 0.999, 2, 2},
        {scale, 1, 1, 1}, {scale, 0, 50, 50}, {scale, 32766, 32766, 32766}, {scale, 32767, 50, 50},
        {orientation, 1, 1, 1}, {orientation, 2, 2, 2}, {orientation, 0, 1, 1}, {orientation, 3, 1, 1},
    };
    // clang-format on
    for (const Case& row : rows) {
        for (const auto strategy : {Strategy::Use_Default, Strategy::Use_Nearest}) {
            SCOPED_TRACE(testing::PrintToString(row.datum.name) + std::to_string(row.value));
            row.datum.set(m_cfg, row.value);
            m_device.validator()->set_media_cfg_changes(0x100);
            (m_validator.*row.datum.validate)(strategy);
            const double expected = strategy ? row.by_nearest : row.by_default;
            EXPECT_EQ(row.datum.get(m_cfg), expected);
            EXPECT_EQ(m_device.changes(), expected == row.value ? 0x100 : 0x100 | row.datum.bit);
            EXPECT_TRUE(m_cfg.get_one_validated(row.datum.flag));
        }
    }
    m_device.caps->set_max_number_of_copies(0);
    m_validator.validate_number_of_copies(Strategy::Use_Nearest);
    EXPECT_EQ(m_cfg.get_number_of_copies(), 0) << "what the device says, though it fails again";
}

TEST_F(Media_Plain_Data, DefaultsAreWrittenWhereTheDeviceHasTheDatum) {
    for (const Datum& datum : numbers) {
        for (const int ability : {-1, 0, 1, 5}) {
            SCOPED_TRACE(testing::PrintToString(datum.name) + std::to_string(ability));
            datum.set(m_cfg, 3);
            m_device.set_ability(datum.ability, ability);
            (m_validator.*datum.set_to_default)();
            EXPECT_EQ(datum.get(m_cfg), ability > 0 ? datum.by_default : 3);
            EXPECT_TRUE(m_cfg.get_one_default(datum.flag) && m_cfg.get_one_validated(datum.flag));
        }
    }
    EXPECT_EQ(m_device.changes(), 0);
}

TEST_F(Media_Plain_Data, RefusesImpossibleDefaults) {
    // The datum, the default that the device gives, and the error, or 0 where it is taken. A reduction of 0
    // is taken, though it fails the next test.
    for (const auto& [datum, by_default, code] :
         {std::tuple{duplexing, 1.0, 315U}, std::tuple{scale, 0.0, 316U}, std::tuple{scale, 32767.0, 316U},
          std::tuple{scale, 1.0, 0U}, std::tuple{scale, 32766.0, 0U}, std::tuple{reduction, -0.1, 317U},
          std::tuple{reduction, 0.0, 0U}}) {
        SCOPED_TRACE(testing::PrintToString(datum.name) + std::to_string(by_default));
        datum.set(m_cfg, -8);
        m_device.validator()->set_media_cfg_changes(0);
        m_device.caps->set_default_duplexing_mode(Value{by_default});
        m_device.caps->set_default_dm_scale(Value{by_default});
        m_device.caps->set_default_longplot_reduction(by_default);
        const auto thrown = support::thrown_by([&, &test = datum] { (m_validator.*test.validate)({}); });
        EXPECT_EQ(thrown ? thrown->code : 0, code);
        EXPECT_TRUE(!thrown || thrown->function == std::wstring(L"PX_Std_Media_Validator::set_") +
                                                       datum.name + L"_to_default");
        EXPECT_EQ(datum.get(m_cfg), code ? -8 : by_default);
        EXPECT_EQ(m_cfg.get_one_validated(datum.flag), !code);
        EXPECT_EQ(m_cfg.get_one_default(datum.flag), !code);
        EXPECT_EQ(m_device.changes(), code ? 0 : datum.bit);
    }
}

// What the margins and the actual printable bounds have in common.
struct Bounds {
    MEDIA_DATUM_FIELDS;
    Cfg::Enum flag;
    long bit;
    PX_Smart_Pointer<PX_Float_Rectangle> (PX_Media_Configuration::*get)() const;
    void (PX_Media_Configuration::*set)(const PX_Float_Rectangle*);
};

const Bounds both[] = {
    {MEDIA_DATUM(margins), Cfg::Cfg_Margins, 0x20, &PX_Media_Configuration::get_margins,
     &PX_Media_Configuration::set_margins},
    {MEDIA_DATUM(actual_printable_bounds), Cfg::Cfg_Actual_Printable_Bounds, 0x1000,
     &PX_Media_Configuration::get_actual_printable_bounds,
     &PX_Media_Configuration::set_actual_printable_bounds},
};

TEST_F(Media_Plain_Data, BoundsAreCutNumberByNumber) {
    struct Case {
        const char* name;
        PX_Float_Rectangle had, expected;
    };
    const PX_Float_Rectangle printable(10, 100, 20, 200);
    const Case rows[] = {
        {"crossed inside", {99.5F, 10.5F, 199.5F, 20.5F}, {99.5F, 10.5F, 199.5F, 20.5F}},
        {"x_min below", {9.5F, 99, 21, 199}, {10, 99, 21, 199}},
        {"x_min at x_max", {100, 99, 21, 199}, {10, 99, 21, 199}},
        {"x_max above", {11, 100.5F, 21, 199}, {11, 100, 21, 199}},
        {"x_max at x_min", {11, 10, 21, 199}, {11, 100, 21, 199}},
        {"y_max above", {11, 99, 21, 200.5F}, {11, 99, 21, 200}},
        {"y_max at y_min", {11, 99, 21, 20}, {11, 99, 21, 200}},
        {"y_min below", {11, 99, 19.5F, 199}, {11, 99, 20, 199}},
        {"y_min at y_max", {11, 99, 200, 199}, {11, 99, 20, 199}},
        {"turned", {10, 190, 20, 110}, {10, 100, 20, 110}},
    };
    m_device.a4_sheet()->set_printable_bounds(&printable);
    m_cfg.set_dm_orientation(2);
    for (const Case& row : rows) {
        for (const Bounds& bounds : both) {
            SCOPED_TRACE(testing::PrintToString(bounds.name) + row.name);
            (m_cfg.*bounds.set)(&row.had);
            m_device.validator()->set_media_cfg_changes(0x100);
            (m_validator.*bounds.validate)(Strategy::Use_Nearest);
            EXPECT_EQ(*(m_cfg.*bounds.get)(), row.expected);
            EXPECT_EQ(m_device.changes(), row.had == row.expected ? 0x100 : 0x100 | bounds.bit);
            EXPECT_TRUE(m_cfg.get_one_validated(bounds.flag));
            EXPECT_FALSE(m_cfg.get_one_default(bounds.flag));
        }
    }
}

TEST_F(Media_Plain_Data, DefaultBoundsNeedBothAbilities) {
    const PX_Float_Rectangle had(1, 2, 3, 4);
    m_cfg.set_dm_orientation(2);
    for (const auto& [size, margins] : {std::pair{4, 4}, std::pair{3, 4}, std::pair{4, 3}}) {
        m_device.set_ability(Ability::Ability_Media_Size_Default, size);
        m_device.set_ability(Ability::Ability_Media_Margins_Default, margins);
        for (const Bounds& bounds : both) {
            SCOPED_TRACE(testing::PrintToString(bounds.name) + std::to_string(10 * size + margins));
            (m_cfg.*bounds.set)(&had);
            (m_validator.*bounds.set_to_default)();
            const bool written = size == 4 && margins == 4;
            EXPECT_EQ(*(m_cfg.*bounds.get)(), written ? *m_device.a4_sheet()->get_printable_bounds() : had)
                << "not turned";
            EXPECT_TRUE(m_cfg.get_one_default(bounds.flag) && m_cfg.get_one_validated(bounds.flag));
        }
    }
    EXPECT_EQ(m_device.changes(), 0);
}

TEST(Media_Bounds, ReportWhatIsMissing) {
    struct Case {
        const char* name;
        void (*spoil)(const Media_Device&);
        const wchar_t* margins;  // null where nothing is missing
        const wchar_t* actual;
    };
    const Case rows[] = {
        {"no rectangle", [](auto& d) { d.forget(); }, L"margins", L"bounds"},
        {"no size", [](auto& d) { drop(d.sizes(), L"A4"); }, L"margins", L"newsize"},
        {"no sheet", [](auto& d) { drop(d.descriptions(), L"a4"); }, L"description_list", L"bounds"},
        {"sheet withdrawn", [](auto& d) { withdraw(d.a4_sheet()); }, L"description_list", nullptr},
        {"size withdrawn", [](auto& d) { withdraw(d.a4()); }, nullptr, nullptr},
    };
    for (const Case& row : rows) {
        const Media_Device device;
        row.spoil(device);
        PX_Std_Media_Validator validator(device.get());
        for (const Bounds& bounds : both) {
            SCOPED_TRACE(testing::PrintToString(bounds.name) + row.name);
            const wchar_t* const detail = bounds.flag == Cfg::Cfg_Margins ? row.margins : row.actual;
            const auto validate = [&] { (validator.*bounds.validate)(Strategy::Use_Default); };
            if (detail)
                support::expect_thrown<MVNK_Error>(
                    validate, 1103, std::wstring(L"PX_Std_Media_Validator::validate_") + bounds.name, detail);
            else
                EXPECT_NO_THROW(validate());
            EXPECT_EQ(device.cfg->get_one_validated(bounds.flag), !detail);
        }
    }
}

}  // namespace
