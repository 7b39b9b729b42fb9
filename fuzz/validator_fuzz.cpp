#include <array>
#include <vector>

#include "fuzz/device.h"
#include "toolkit/core/module.h"
#include "toolkit/platform/scripted/scripted_platform.h"

// Runs of the plotter validator over devices whose domains are made out of the input.

namespace {

using fuzz::Input;
using fuzz::require;
using support::Device;
using support::Number;

// Calls `each` with the capabilities and the configuration of every domain. The next one gets its line here.
template <class Each>
void for_each_domain(const Device& device, Each each) {
    each(*device.media_caps(), *device.media_cfg());
    each(*device.io_caps(), *device.io_cfg());
    each(*device.rcm_caps(), *device.rcm_cfg());
    each(*device.init_term_caps(), *device.init_term_cfg());
    each(*device.custom_caps(), *device.custom_cfg());
    each(*device.pen_caps(), *device.pen_cfg());
}

// Domain by domain.
using Data = std::vector<std::wstring>;
constexpr std::size_t io_domain = 1, custom_domain = 4;

Data all_data(const Device& device) {
    Data data;
    for_each_domain(device, [&](const auto&, const auto& cfg) {
        std::wostringstream out;
        out.precision(17);
        fuzz::tell(out, cfg);
        data.push_back(out.str());
    });
    return data;
}

struct Arguments {
    PX_Validation_Strategy::Enum strategy;
    PX_Validation_Policy::Enum policy;
    bool validate_settable;
};

// The change words with the bits that they may have, and their bit among the domains.
struct Word {
    long (PX_Plotter_Validator::*get)() const;
    long bits, domain;
};
constexpr Word words[] = {{&PX_Plotter_Validator::get_io_cfg_changes, 0xFF, 1},
                          {&PX_Plotter_Validator::get_media_cfg_changes, 0x7FEFF, 2},
                          {&PX_Plotter_Validator::get_res_color_mem_cfg_changes, 0xEFF, 8},
                          {&PX_Plotter_Validator::get_phys_pen_cfg_changes, 0x1F, 16},
                          {&PX_Plotter_Validator::get_init_term_cfg_changes, 0, 32}};
using Changes = std::array<long, std::size(words)>;

struct Result {
    unsigned int code = 0;  // of what was thrown
    bool is_changed = false;
    Changes changes{};
    int custom = 0;  // items
    Data data;

    bool operator==(const Result&) const = default;
};

// These change together or not at all.
void require_together(long word, long bits) {
    require((word & bits) == 0 || (word & bits) == bits, "what belongs together changes together");
}

Result run(const Device& device, const Arguments& arguments) {
    const auto validator = device.validator();
    Result result;
    try {
        result.is_changed =
            validator->validate_all(arguments.strategy, arguments.policy, arguments.validate_settable);
    } catch (const PX_Exception& thrown) {
        result.code = thrown.m_code;
        require(thrown.m_code != 0, "a failure has a code");
    }
    for (const auto& item : *device.custom_cfg()->get_custom_list())
        result.custom += validator->get_one_custom_cfg_change(item->get_canonical_name());
    result.data = all_data(device);
    long domains = result.custom ? 4 : 0;
    std::size_t at = 0;
    for (const Word& word : words) {
        const long changes = result.changes[at++] = ((*validator).*word.get)();
        require((changes & ~word.bits) == 0, "a word has its own bits only");
        domains |= changes ? word.domain : 0;
    }
    require_together(validator->get_io_cfg_changes(), 3);           // name and type of the port
    require_together(validator->get_media_cfg_changes(), 0x1E004);  // the destination and the finishing
    require(validator->get_config_changed() == domains, "a domain's bit for each word");
    require(validator->get_caps_changed() == 0, "capabilities do not change");
    require(result.code != 0 || result.is_changed == (domains != 0), "the result tells of a change");
    return result;
}

// Whether every ability of the domain is one of the digits.
template <class Capabilities>
bool has_only(const Capabilities& caps, std::wstring_view digits) {
    if constexpr (requires { caps.get_abilities(); })
        return std::wstring_view(caps.get_abilities()).find_first_not_of(digits) == std::wstring_view::npos;
    return true;
}
bool has_only(const Device& device, std::wstring_view digits) {
    bool all = true;
    for_each_domain(device, [&](const auto& caps, const auto&) { all = all && has_only(caps, digits); });
    return all;
}

// The abilities of the data that these arguments do not put to their defaults.
std::wstring undefaulted(const Arguments& arguments) {
    using Policy = PX_Validation_Policy;
    if (arguments.policy == Policy::Keep_All)
        return L"12345";
    std::wstring digits = arguments.validate_settable ? L"245" : L"5";
    if (arguments.policy == Policy::Keep_Conditional || arguments.policy == Policy::Validate_Conditional)
        digits += L'3';
    return digits;
}

// Custom data are validated under every policy.
void check_kept(Data before, const Result& result) {
    before[custom_domain] = result.data[custom_domain];
    require(result.data == before && result.changes == Changes(), "what is kept stays");
}

void check_second_run(const Device& device, const Arguments& arguments, const Result& first) {
    // What is no number is never as the catalogue has it, and is repaired with every run.
    for (const std::wstring& domain : first.data) {
        if (domain.find(L"nan") != domain.npos)
            return;
    }
    Result expected{.data = first.data};
    // A default that the port cannot do goes on to the nearest other rate: to another one with every run.
    const bool is_io_at_rest = has_only(*device.io_caps(), undefaulted(arguments));
    if (!is_io_at_rest)
        device.io_caps()->set_abilities(PX_Ability_Value::Ability_None);
    const Result second = run(device, arguments);
    if (!is_io_at_rest)
        expected.data[io_domain] = second.data[io_domain];
    require(expected == second, "a second run finds nothing to change");
}

// Not for what they give: they have to end well.
void call_the_rest(Input& input, const Device& device) {
    const auto validator = device.validator();
    const long domains = input.up_to(255);
    using fuzz::attempt;
    attempt([&] { validator->set_selected_to_defaults(domains); });
    attempt([&] { validator->set_selected_rescolormem_data_to_defaults(); });
    attempt([&] { validator->set_all_to_defaults(); });
    require(validator->delete_user_defined_caps(domains), "there are capabilities");
    if (const auto sizes = device.media_caps()->get_media_size_list(); sizes && (domains & 2)) {
        for (const auto& size : *sizes)
            require(size->get_caps_type() != PX_Caps_Type::Caps_Type_User, "a user's sizes are gone");
    }
    const auto factory = device->get_class_factory();
    const PX_Smart_Pointer media(factory->MK_Create_Media_Validator(device.get()));
    const PX_Smart_Pointer rcm(factory->MK_Create_ResColorMem_Validator(device.get()));
    const PX_Smart_Pointer pens(factory->MK_Create_Pen_Validator(device.get()));
    const Number strategy{input.up_to(2)};
    attempt([&] { media->validate_all_media(strategy); });
    attempt([&] { rcm->validate_all_res_color_mem(strategy); });
    attempt([&] { pens->validate_all_pen(strategy); });
    using Media = PX_Media_Validator;
    attempt([&] { media->set_size_to_nearest(); });
    for (const auto set : {&Media::set_type_to_nearest, &Media::set_source_to_nearest,
                           &Media::set_source_entry_to_nearest, &Media::set_destination_to_nearest})
        attempt([&] { ((*media).*set)(); });
}

void set_up(Input& input, PX_Scripted_Platform& machine) {
    machine.record_calls(false);
    const int ports = input.byte();
    int bit = 1;
    for (const wchar_t* const name : {L"COM1:", L"COM2:", L"LPT1:", L"FILE:"}) {
        if (ports & bit)
            machine.add_port(name);
        bit *= 2;
    }
    if (ports & 0x10)
        machine.add_printer({.name = L"queue", .port = L"LPT1:", .driver = L"driver"});
    if (ports & 0x20)
        machine.add_printer({.server = L"server", .name = L"queue", .share = L"queue", .port = L"COM2:"});
    if (ports & 0x40)
        machine.redirect(L"LPT1", L"server\\queue");
    if (ports & 0x80)
        machine.pad_enumerations_to(300);
}

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    static const PX_Std_Raster_Capabilities raster;
    static const PX_Std_Linetype_Capabilities linetypes;
    Input input(bytes, size);
    // The ports of the machine are looked for once in a process.
    PX_Module_Exit();
    PX_Scripted_Platform machine;
    const PX_Use_Platform use(machine);
    set_up(input, machine);
    const Arguments arguments{Number{input.rarely() ? input.number<int>() : input.up_to(1)},
                              Number{input.up_to(6) - 1}, !input.rarely(4)};
    Device device;
    device->get_plotter_capabilities()->set_raster_capabilities(&raster);
    device->get_plotter_capabilities()->set_linetype_capabilities(&linetypes);
    device->get_error_handler()->set_quiet_mode(input.flag());
    const auto meta = device->get_meta_capabilities();
    meta->set_driver_type(Number{input.up_to(4) - 1});
    meta->get_model()->set_friendly_net_name(input.rarely(2) ? L"queue" : L"");
    for_each_domain(device, [&](auto& caps, auto& cfg) {
        if (input.rarely(4))
            return;
        fuzz::fill(input, caps, cfg);
        if (input.rarely())
            cfg.set_validated(true);
    });
    // A clone does not take the flags of the overwriting along.
    device.rcm_cfg()->set_one_validated(false, PX_ResColorMem_Config_Flags::RCM_Cfg_Lines_Overwrite);
    device.rcm_cfg()->set_one_default(false, PX_ResColorMem_Config_Flags::RCM_Cfg_Lines_Overwrite);
    Device copy;
    copy->get_error_handler()->set_quiet_mode(device->get_error_handler()->get_quiet_mode());
    copy->set_plotter_capabilities(device->get_plotter_capabilities()->clone());
    copy->set_plotter_configuration(device->get_plotter_configuration()->clone());
    copy->set_meta_capabilities(meta.get());
    const Data before = all_data(device);
    const PX_Smart_Pointer pens(device.pen_cfg()->clone());
    require(all_data(copy) == before, "a clone has the same data");

    const Result first = run(device, arguments);
    require(first == run(copy, arguments), "a clone is validated as its original");
    if (first.code == 0) {
        if (arguments.policy == PX_Validation_Policy::Keep_All && has_only(device, L"1234"))
            check_kept(before, first);
        if (has_only(device, L"05"))
            require(device->get_plotter_configuration()->get_validated(), "all was validated");
        fuzz::check(*device.pen_caps(), *pens, *device.pen_cfg());
        check_second_run(device, arguments, first);
    }
    if (input.rarely(3))
        call_the_rest(input, device);
    return 0;
}
