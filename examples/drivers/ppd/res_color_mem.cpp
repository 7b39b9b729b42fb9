#include "examples/drivers/ppd/res_color_mem.h"

#include <cwchar>
#include <initializer_list>
#include <utility>

#include "examples/common/made.h"
#include "examples/drivers/ppd/names.h"
#include "examples/drivers/ppd/resolutions.h"

namespace {

using Ability = PX_ResColorMem_Ability_Flags;
using Value = PX_Ability_Value;
using Factory = PX_Plotter_Class_Factory;

constexpr wchar_t dithering_name[] = L"Device";
constexpr const char* color_keyword = "ColorModel";
constexpr const char* memory_keyword = "InstalledMemory";

// What a mode can print; undithered are the colours that the inks make by themselves.
struct Colors {
    long count;
    long depth;  // bits
    long undithered;
};
constexpr Colors gray = {256, 8, 2};
constexpr Colors three_inks = {1L << 24, 24, 8};
constexpr Colors four_inks = {1L << 24, 32, 8};

constexpr Ppd_Meaning systems[] = {
    {L"gray", Ppd_Color_System::Gray},   {L"grey", Ppd_Color_System::Gray}, {L"mono", Ppd_Color_System::Gray},
    {L"=black", Ppd_Color_System::Gray}, {L"=bw", Ppd_Color_System::Gray},  {L"=k", Ppd_Color_System::Gray},
    {L"cmyk", Ppd_Color_System::Cmyk},   {L"rgb", Ppd_Color_System::Rgb},   {L"cmy", Ppd_Color_System::Rgb},
};

const Colors& colors_of(int system) {
    switch (system) {
        case Ppd_Color_System::Gray:
            return gray;
        case Ppd_Color_System::Rgb:
            return three_inks;
        default:
            return four_inks;
    }
}

// "64MB" and "64 Meg"; 0 for what does not begin with a number.
long megabytes_of(const std::wstring& name) {
    return std::wcstol(name.c_str(), nullptr, 10);
}

class Color_Side {
public:
    Color_Side(const Ppd_File& file, const Factory& factory, PX_ResColorMem_Capabilities& capabilities)
        : m_file(file), m_factory(factory), m_capabilities(capabilities) {}

    void fill() {
        fill_dithering();
        fill_memory();
        fill_modes();
        allow(Value::Ability_Settable_Listed,
              {Ability::RCM_ISM_Max_Mem, Ability::RCM_OLE_Max_Mem, Ability::RCM_HardSoftNo_Dithering,
               Ability::RCM_Color_Vs_Mono, Ability::RCM_Rast_Color_Vs_Res_Pref, Ability::RCM_Icm_Method,
               Ability::RCM_Icm_Intent});
        allow(is_color_device() ? Value::Ability_Settable_Listed : Value::Ability_Fixed,
              {Ability::RCM_Dm_Color});
    }

private:
    void allow(Value::Enum value, std::initializer_list<Ability::Enum> flags) {
        for (const Ability::Enum flag : flags)
            m_capabilities.set_one_ability(value, flag);
    }

    bool is_color_device() const { return m_file.text("ColorDevice") == L"True"; }

    void fill_dithering() {
        const auto methods = made(m_factory.MK_Create_Dithering_List(), L"dithering");
        const auto method =
            made_named(m_factory.MK_Create_Dithering_Method(), L"method", dithering_name, dithering_name);
        methods->append(method);
        m_capabilities.set_dithering_list(methods.get());
        allow(Value::Ability_Required, {Ability::RCM_Dithering_List, Ability::RCM_Dithering});
    }

    void fill_memory() {
        const Ppd_Option memory = m_file.option(memory_keyword);
        const auto areas = made(m_factory.MK_Create_Mem_Area_List(), L"areas");
        for (const Ppd_Choice& choice : memory.choices) {
            const auto area =
                made_named(m_factory.MK_Create_Mem_Area(), L"area", choice.name.c_str(), choice.text.c_str());
            area->set_device_memory(megabytes_of(choice.name));
            areas->append(area);
        }
        m_capabilities.set_mem_area_list(areas.get());
        if (memory.choices.empty())
            return;
        allow(Value::Ability_Settable_Listed, {Ability::RCM_Mem_Area_List, Ability::RCM_Installed_Memory});
        // Areas are reached through a resolution.
        if (!m_resolutions.choices.empty())
            allow(Value::Ability_Required, {Ability::RCM_Mem_Area});
    }

    // The search takes three names at a time and compares the memory of the third.
    PX_Smart_Pointer<PX_Named_Object_List<PX_Caps_Name_List_Object>> area_names() const {
        auto names = made(m_factory.MK_Create_Caps_Name_List(), L"names");
        for (const Ppd_Choice& choice : m_file.option(memory_keyword).choices) {
            for (int time = 0; time < 3; ++time) {
                const auto name = made(m_factory.MK_Create_Caps_Name_List_Object(), L"name");
                name->set_canonical_name(choice.name.c_str());
                names->append(name);
            }
        }
        return names;
    }

    PX_Smart_Pointer<PX_Named_Object_List<PX_Resolution>> resolutions() const {
        auto list = made(m_factory.MK_Create_Resolution_List(), L"resolutions");
        const auto names = area_names();
        for (const Ppd_Resolution& choice : m_resolutions.choices) {
            const auto resolution = made_named(m_factory.MK_Create_Resolution(), L"resolution",
                                               choice.name.c_str(), choice.text.c_str());
            resolution->set_phys_resolution_xy(&choice.dpi);
            resolution->set_addr_resolution_xy(&choice.dpi);
            resolution->set_effective_resolution_xy(&choice.dpi);
            resolution->set_dithering_name(dithering_name);
            resolution->set_mem_area_name_list(names.get());
            resolution->set_default_mem_area_name(m_file.option(memory_keyword).default_choice.c_str());
            list->append(resolution);
        }
        return list;
    }

    void fill_modes() {
        Ppd_Option models = m_file.option(color_keyword);
        const int own_system = is_color_device() ? Ppd_Color_System::Cmyk : Ppd_Color_System::Gray;
        if (models.choices.empty()) {
            const wchar_t* const only = is_color_device() ? L"Color" : L"Gray";
            models = {{{only, only}}, only};
        }
        const auto list = made(m_factory.MK_Create_ResColorMem_List(), L"modes");
        const auto all_resolutions = resolutions();
        for (const Ppd_Choice& choice : models.choices) {
            const auto mode = made_named(m_factory.MK_Create_ResColorMem(), L"mode", choice.name.c_str(),
                                         choice.text.c_str());
            const int system = ppd_meaning_of(choice.name, systems).value_or(own_system);
            const Colors& colors = colors_of(system);
            mode->set_num_colors(colors.count);
            mode->set_color_depth(colors.depth);
            mode->set_num_undithered_colors(colors.undithered);
            mode->set_color_system(static_cast<PX_Color_System::Enum>(system));
            mode->set_resolution_list(all_resolutions.get());
            mode->set_default_resolution(m_resolutions.default_choice.c_str());
            list->append(mode);
        }
        m_capabilities.set_res_color_mem_list(list.get());
        m_capabilities.set_default_res_color_mem(models.default_choice.c_str());
        allow(Value::Ability_Required, {Ability::RCM_Res_Color_Mem_List, Ability::RCM_Res_Color_Mem});
        if (!m_resolutions.choices.empty())
            allow(Value::Ability_Required, {Ability::RCM_Resolution_List, Ability::RCM_Resolution});
    }

    const Ppd_File& m_file;
    const Factory& m_factory;
    PX_ResColorMem_Capabilities& m_capabilities;
    const Ppd_Resolutions m_resolutions = ppd_resolutions(m_file);
};

}  // namespace

PX_Smart_Pointer<PX_ResColorMem_Capabilities> ppd_res_color_mem_capabilities(
    const Ppd_File& file, const PX_Plotter_Class_Factory& factory) {
    auto capabilities = made(factory.MK_Create_ResColorMem_Capabilities(), L"res_color_mem_capabilities");
    Color_Side(file, factory, *capabilities).fill();
    return capabilities;
}

std::vector<std::string> ppd_res_color_mem_keywords(const Ppd_File& file) {
    std::vector<std::string> keywords = {color_keyword, memory_keyword};
    if (ppd_resolutions(file).is_option)
        keywords.emplace_back(ppd_resolution_keyword);
    return keywords;
}

Ppd_ResColorMem_Validator::Ppd_ResColorMem_Validator(PX_Plotter_Definition* plotter,
                                                     std::shared_ptr<const Ppd_File> file)
    : PX_Std_ResColorMem_Validator(plotter), m_file(std::move(file)) {
}

void Ppd_ResColorMem_Validator::set_installed_memory_to_default() {
    // First the base: it reports what is missing.
    PX_Std_ResColorMem_Validator::set_installed_memory_to_default();
    const Ppd_Option memory = m_file->option(memory_keyword);
    if (memory.choices.empty())
        return;
    const auto configuration = m_plotter->get_plotter_configuration()->get_res_color_mem_configuration();
    configuration->set_installed_memory(megabytes_of(memory.default_choice));
    configuration->set_one_default(true, PX_ResColorMem_Config_Flags::RCM_Cfg_Installed_Memory);
    configuration->set_one_validated(true, PX_ResColorMem_Config_Flags::RCM_Cfg_Installed_Memory);
}
