#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "tests/support/device.h"
#include "tests/support/fields.h"

namespace {

using namespace support;
using Ability = PX_Plotter_IO_Ability_Flags;
using Datum = PX_IO_Config_Flags;
using Type = PX_IO_Type;

constexpr const wchar_t* file_tag = L"$Workfile: std_io_cfg $ $Revision: #1 $";

// The first eight are in the order of their flags.
#define CFG(...) FIELD(PX_Plotter_IO_Configuration, __VA_ARGS__)
const Fields<PX_Plotter_IO_Configuration> configuration_fields = {
    CFG(portname, L"", L"COM1"),   CFG(type, L"-1", Type::Serial),
    CFG(protocol, L"", L"8N1"),    CFG(baud_rate, L"0", 9600),
    CFG(handshake, L"0", 0x88),    CFG(input_timeout, L"0", 5),
    CFG(output_timeout, L"0", 6),  CFG(pathname, L"", L"a.plt"),
    CFG(plot_to_file, L"0", true), CFG(all_system_ports_valid, L"0", true)};
#undef CFG

// Checks the fields of PX_Std_<stem>.
#define CHECK_FIELDS(stem, ...)                                                  \
    {                                                                            \
        using Contract = PX_##stem;                                              \
        PX_Std_##stem object;                                                    \
        check_fields<Contract>(object, __VA_ARGS__, L"PX_Std_" #stem, file_tag); \
    }
#define F(...) FIELD(Contract, __VA_ARGS__)

// clang-format off
TEST(IO_Catalogue, FieldsStartEmptyAndReachTheClone) {
    CHECK_FIELDS(Baud_Rate, {F(baud_rate, L"0", 9600), F(caps_type, L"0", PX_Caps_Type::Caps_Type_Withdrawn)})
    CHECK_FIELDS(Protocol, {
        F(canonical_name, L"", L"8N1", L"protocol name"), F(localized_name, L"", L"8K1"),
        F(data_bits, L"-1", PX_Data_Bits::Data_Bits_8), F(stop_bits, L"-1", PX_Stop_Bits::Stop_Bits_1_5),
        F(parity, L"-1", PX_Parity::Parity_Space), F(caps_type, L"0", PX_Caps_Type::Caps_Type_User)})
    CHECK_FIELDS(IO_Method, {
        F(type, L"-1", Type::Network), F(bidi_flags, L"0", 1), F(min_output_timeout, L"0", 2),
        F(max_output_timeout, L"0", 3), F(min_input_timeout, L"0", 4), F(max_input_timeout, L"0", 5),
        F(handshakes, L"0", 0xFFF), F(caps_type, L"0", PX_Caps_Type::Caps_Type_Modified),
        F(default_protocol, L"", L"7E2"), F(default_baud_rate, L"0", 75),
        F(default_handshake, L"0", PX_Handshake::Handshake_Rlsd), F(default_input_timeout, L"0", 6),
        F(default_output_timeout, L"0", 7)})
    CHECK_FIELDS(IO_Port, {
        F(canonical_name, L"", L"COM1", L"canonical_name"), F(localized_name, L"", L"Port 1"),
        F(shared_name, L"", L"hall\\plot"), F(type, L"-1", Type::Parallel), F(bidi_flags, L"0", 1),
        F(handshakes, L"0", 3)})
    CHECK_FIELDS(Plotter_IO_Capabilities, {
        F(default_type, L"-1", Type::File), F(default_plot_to_file_extension, L"", L"plt")})
    CHECK_FIELDS(Plotter_IO_Configuration, configuration_fields)
}
// clang-format on
#undef F
#undef CHECK_FIELDS

TEST(IO_Catalogue, FlagsStartAsToldReachTheCloneAndKeepTheirRange) {
    PX_Std_Plotter_IO_Capabilities caps;
    PX_Std_IO_Method method;
    PX_Std_IO_Port port;
    const PX_Std_Plotter_IO_Configuration cfg;
    EXPECT_STREQ(caps.get_abilities(), L"000000000000");
    EXPECT_STREQ(caps.get_caps_state(), L"0");
    EXPECT_STREQ(caps.get_ui_owner(), L"///////0/");
    EXPECT_STREQ(method.get_abilities(), L"00000000000000000000");
    EXPECT_STREQ(port.get_abilities(), L"000000");
    EXPECT_EQ(caps.get_one_ability(Ability::No_IO_Ability), 0);

    caps.set_abilities(L"123");
    caps.set_caps_state(L"8");
    caps.set_ui_owner(L"321");
    method.set_abilities(PX_Ability_Value::Ability_Fixed);
    port.set_abilities(PX_Ability_Value::Ability_Settable);
    const std::unique_ptr<PX_Plotter_IO_Capabilities> caps_clone(caps.clone());
    EXPECT_STREQ(caps_clone->get_abilities(), L"123");
    EXPECT_STREQ(caps_clone->get_caps_state(), L"8");
    EXPECT_STREQ(caps_clone->get_ui_owner(), L"321");
    EXPECT_STREQ(std::unique_ptr<PX_IO_Method>(method.clone())->get_abilities(), L"11111111111111111111");
    EXPECT_STREQ(std::unique_ptr<PX_IO_Port>(port.clone())->get_abilities(), L"222222");

    const auto expect_outside = [](const wchar_t* enum_name, auto call) {
        const std::wstring detail = std::wstring(enum_name) + L"::Enum";
        expect_thrown<PX_Severe_Error>(call, 1104, L"toolkit/marvcon/std_io_cfg", detail);
    };
#define EXPECT_OUTSIDE(enumeration, number, object, call)                                           \
    expect_outside(L"" #enumeration, [&] { object.call(static_cast<enumeration::Enum>(number)); }); \
    EXPECT_NO_THROW(object.call(static_cast<enumeration::Enum>(number - 1)))
    EXPECT_OUTSIDE(PX_Plotter_IO_Ability_Flags, 12, caps, get_one_ability);
    EXPECT_OUTSIDE(PX_Plotter_IO_User_Flags, 4, caps, get_one_caps_state);
    EXPECT_OUTSIDE(PX_IO_UI_Owner_Flags, 9, caps, get_one_ui_owner);
    EXPECT_OUTSIDE(PX_IO_Method_Ability_Flags, 20, method, get_one_ability);
    EXPECT_OUTSIDE(PX_IO_Port_Ability_Flags, 6, port, get_one_ability);
    EXPECT_OUTSIDE(PX_IO_Config_Flags, 8, cfg, get_one_validated);
    EXPECT_OUTSIDE(PX_IO_Config_Flags, 8, cfg, get_one_default);
#undef EXPECT_OUTSIDE
}

TEST(IO_Configuration, ASetterClearsTheFlagsOfItsDatumAloneAndACloneKeepsThem) {
    PX_Std_Plotter_IO_Configuration cfg;
    EXPECT_FALSE(cfg.get_validated() || cfg.get_default());
    for (int row = 0; row < int(configuration_fields.size()); ++row) {
        SCOPED_TRACE(testing::PrintToString(configuration_fields[std::size_t(row)].setter));
        cfg.set_validated(true);
        cfg.set_default(true);
        EXPECT_TRUE(cfg.get_validated() && cfg.get_default());
        configuration_fields[std::size_t(row)].write(cfg);
        EXPECT_EQ(cfg.get_validated(), row >= 8) << "plot to file and the system ports have no flags";
        EXPECT_EQ(cfg.get_default(), row >= 8);
        if (row < 8)
            cfg.set_one_default(true, static_cast<Datum::Enum>(row));
        const std::unique_ptr<PX_Plotter_IO_Configuration> clone(cfg.clone());
        for (int flag = 0; flag < 8; ++flag) {
            EXPECT_EQ(cfg.get_one_validated(static_cast<Datum::Enum>(flag)), flag != row);
            EXPECT_EQ(clone->get_one_validated(static_cast<Datum::Enum>(flag)), flag != row);
            EXPECT_TRUE(clone->get_one_default(static_cast<Datum::Enum>(flag)));
        }
    }
}

// The entries of a list by what tells them apart.
template <class List>
std::wstring entries(const PX_Smart_Pointer<List>& list) {
    std::wstring text = list ? L"list" : L"(null)";
    if (list) {
        for (const auto& entry : *list)
            text += L" " + show(entry->get_caps_type());
    }
    return text;
}

// A list is copied deep and in order, also into a clone; null is no list, and a copy that there is no memory
// for leaves the old one.
template <class Entry, class Class, class List>
void check_list(PX_Smart_Pointer<List> (Class::*get)() const, void (Class::*set)(const List*), Class&& object,
                const std::wstring& class_name, const std::wstring& list_name) {
    SCOPED_TRACE(testing::PrintToString(class_name + list_name));
    EXPECT_EQ(entries((object.*get)()), L"list");
    List callers;
    for (const auto type : {PX_Caps_Type::Caps_Type_Modified, PX_Caps_Type::Caps_Type_User}) {
        auto* const entry = new Entry;
        entry->set_caps_type(type);
        callers.append(entry);
    }
    (object.*set)(&callers);
    (*callers.begin())->set_caps_type(PX_Caps_Type::Caps_Type_Withdrawn);
    const auto held = (object.*get)();
    EXPECT_EQ(entries(held), L"list 1 2");
    const std::unique_ptr<Class> clone(object.clone());
    EXPECT_FALSE(((*clone).*get)() == held);
    EXPECT_EQ(entries(((*clone).*get)()), L"list 1 2");
    expect_clone_reports_no_memory(object, class_name + L"::clone");
    for (const Thrown& thrown : failures_of([&] {
             EXPECT_TRUE((object.*get)() == held);
             (object.*set)(&callers);
         })) {
        ASSERT_TRUE(thrown.type && thrown.is<MVNK_Memory_Exception>());
        EXPECT_EQ(thrown.code, 1101U);
        EXPECT_EQ(thrown.function, class_name + L"::set_" + list_name);
        EXPECT_EQ(thrown.detail, L"m_" + list_name);
        EXPECT_EQ(thrown.file, file_tag);
    }
    EXPECT_EQ(entries((object.*get)()), L"list 3 2");
    (object.*set)(nullptr);
    const std::unique_ptr<Class> without(object.clone());
    EXPECT_EQ(entries((object.*get)()) + entries(((*without).*get)()), L"(null)(null)");
}

TEST(IO_Catalogue, ListsAreCopiedWholeOrNotAtAll) {
#define CHECK_LIST(stem, name, entry)                                          \
    check_list<PX_Std_##entry>(&PX_##stem::get_##name, &PX_##stem::set_##name, \
                               static_cast<PX_##stem&&>(PX_Std_##stem()), L"PX_Std_" #stem, L"" #name)
    CHECK_LIST(IO_Method, protocol_list, Protocol);
    CHECK_LIST(IO_Method, baud_rate_list, Baud_Rate);
    CHECK_LIST(IO_Port, protocol_list, Protocol);
    CHECK_LIST(IO_Port, baud_rate_list, Baud_Rate);
    CHECK_LIST(Plotter_IO_Capabilities, method_list, IO_Method);
#undef CHECK_LIST
}

TEST(IO_Catalogue, ProtocolsAndMethodsAreLookedUp) {
    PX_Std_IO_Method method;
    const auto protocols = list_of<PX_Std_Protocol, PX_Protocol>({L"8N1", L"8N2"});
    protocols->find(L"8N2")->set_caps_type(PX_Caps_Type::Caps_Type_Withdrawn);
    method.set_protocol_list(protocols.get());
    EXPECT_TRUE(method.get_protocol(L"8N2")) << "a withdrawn one too";
    EXPECT_FALSE(method.get_protocol(L"8n2") || method.get_protocol(nullptr));
    method.set_protocol_list(nullptr);
    EXPECT_FALSE(method.get_protocol(L"8N2"));

    PX_Std_Plotter_IO_Capabilities caps;
    const auto get = [&] { return caps.get_method(Type::Serial); };
    const auto expect_failure = [&](unsigned int code) {
        const auto thrown = thrown_by(get);
        ASSERT_TRUE(thrown && thrown->is<MVNK_Error>());
        EXPECT_EQ(thrown->code, code);
        EXPECT_EQ(thrown->function, L"PX_Std_Plotter_IO_Capabilities::get_method");
    };
    EXPECT_FALSE(get()) << "without the ability the list is not looked at";
    caps.set_one_ability(PX_Ability_Value::Ability_Undefined, Ability::IO_Methods);
    expect_failure(210);
    PX_Object_List<PX_IO_Method> methods;
    for (const auto type : {Type::Parallel, Type::Serial, Type::Serial}) {
        auto* const added = new PX_Std_IO_Method;
        added->set_type(type);
        added->set_bidi_flags(methods.size());
        added->set_caps_type(PX_Caps_Type::Caps_Type_Withdrawn);
        methods.append(added);
    }
    caps.set_method_list(&methods);
    ASSERT_TRUE(get());
    EXPECT_EQ(get()->get_bidi_flags(), 1) << "the first of the type, a withdrawn one too";
    EXPECT_FALSE(caps.get_method(Type::Network));
    caps.set_method_list(nullptr);
    expect_failure(1103);
}

}  // namespace
