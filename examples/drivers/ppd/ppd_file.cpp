// The library calls its PPD functions deprecated in favour of asking the printer itself. This driver
// describes devices that may not be at hand.
#pragma GCC diagnostic ignored "-Wdeprecated-declarations"

#include "examples/drivers/ppd/ppd_file.h"

#include <cups/ppd.h>

#include <algorithm>
#include <cerrno>
#include <cmath>
#include <cstring>
#include <span>
#include <system_error>
#include <utility>

#include "examples/common/text.h"

namespace {

[[noreturn]] void reject(const std::filesystem::path& path, const std::string& why) {
    throw Ppd_Error("the printer description '" + path.string() + "' " + why);
}

// What the library would report in words that do not help.
void check_readable(const std::filesystem::path& path) {
    std::error_code failure;
    const auto status = std::filesystem::status(path, failure);
    if (!std::filesystem::exists(status))
        reject(path, "cannot be opened: " + failure.message());
    if (std::filesystem::is_directory(status))
        reject(path, "is a folder");
    if (std::filesystem::is_regular_file(status) && std::filesystem::is_empty(path, failure))
        reject(path, "is empty");
}

[[noreturn]] void reject_broken(const std::filesystem::path& path) {
    int line = 0;
    const ppd_status_t status = ppdLastError(&line);
    if (status == PPD_FILE_OPEN_ERROR)
        reject(path, "cannot be opened: " + std::generic_category().message(errno));
    const std::string place = line > 0 ? "line " + std::to_string(line) + ": " : "";
    reject(path, std::string("is broken: ") + place + ppdErrorString(status));
}

std::string or_empty(const char* string) {
    return string ? string : "";
}

template <class Item>
std::span<const Item> items(const Item* first, int count) {
    return {first, first ? static_cast<std::size_t>(std::max(count, 0)) : 0};
}

bool has_choice(const std::vector<Ppd_Choice>& choices, const std::wstring& name) {
    return std::ranges::find(choices, name, &Ppd_Choice::name) != choices.end();
}

// A choice of a constraint. Left blank, it stands for all choices that do something.
bool covers(const char* constrained, const Ppd_Choice& choice) {
    if (*constrained)
        return text::from_utf8(constrained) == choice.name;
    return choice.name != L"None" && choice.name != L"Off" && choice.name != L"False";
}

// Null for a code that comes before any plot, and changes the device for good.
std::optional<Ppd_Section> section_of(const ppd_option_t& option) {
    switch (option.section) {
        case PPD_ORDER_JCL:
            return Ppd_Section::Job_Control;
        case PPD_ORDER_PROLOG:
            return Ppd_Section::Prolog;
        case PPD_ORDER_PAGE:
            return Ppd_Section::Page_Setup;
        case PPD_ORDER_EXIT:
            return std::nullopt;
        default:
            return Ppd_Section::Setup;
    }
}

Ppd_Option read_option(const ppd_option_t& from) {
    Ppd_Option option;
    for (const ppd_choice_t& choice : items(from.choices, from.num_choices)) {
        const std::wstring name = text::from_utf8(choice.choice);
        // The library offers a value of the user's own as a choice too.
        if (name.empty() || name == L"Custom" || has_choice(option.choices, name))
            continue;
        const std::wstring shown = text::from_utf8(text::on_one_line(choice.text));
        option.choices.push_back({name, shown.empty() ? name : shown});
    }
    option.default_choice = text::from_utf8(from.defchoice);
    if (!has_choice(option.choices, option.default_choice))
        option.default_choice = option.choices.empty() ? L"" : option.choices.front().name;
    return option;
}

std::string invocation(const ppd_option_t& option, const ppd_choice_t& choice) {
    std::string code = or_empty(choice.code);
    if (option.section == PPD_ORDER_JCL)
        return code;
    if (!code.empty() && code.back() != '\n')
        code += '\n';
    // A code that fails leaves what it wants on the stack.
    return std::string("mark {\n%%BeginFeature: *") + option.keyword + ' ' + choice.choice + '\n' + code +
           "%%EndFeature\n} stopped cleartomark\n";
}

bool is_extent(float length) {
    return std::isnormal(length) && length > 0;
}

bool lies_within(const Ppd_Size& sheet) {
    return sheet.left >= 0 && sheet.bottom >= 0 && sheet.right <= sheet.width && sheet.top <= sheet.height;
}

// Some files tell the printable area of the sheet as it lies the other way round, some round it up beyond the
// edges.
void bring_area_onto_sheet(Ppd_Size& sheet) {
    if (!lies_within(sheet)) {
        Ppd_Size turned = sheet;
        std::swap(turned.left, turned.bottom);
        std::swap(turned.right, turned.top);
        if (lies_within(turned))
            sheet = turned;
    }
    sheet.left = std::max(sheet.left, 0.0F);
    sheet.bottom = std::max(sheet.bottom, 0.0F);
    sheet.right = std::min(sheet.right, sheet.width);
    sheet.top = std::min(sheet.top, sheet.height);
}

bool has_area(const Ppd_Size& sheet) {
    const bool finite = std::isfinite(sheet.left) && std::isfinite(sheet.bottom) &&
                        std::isfinite(sheet.right) && std::isfinite(sheet.top);
    // Bounds that count both ends need more than one point between them.
    return finite && sheet.right - sheet.left > 1.0F && sheet.top - sheet.bottom > 1.0F;
}

}  // namespace

void Ppd_File::Closer::operator()(ppd_file_s* file) const {
    ppdClose(file);
}

Ppd_File::Ppd_File(const std::filesystem::path& path) : m_path(path) {
    check_readable(path);
    m_file.reset(ppdOpenFile(path.c_str()));
    if (!m_file)
        reject_broken(path);
    // A file that was cut off early still reads well.
    if (text("ModelName").empty() && text("NickName").empty())
        reject(path, "names no model");
}

std::wstring Ppd_File::text(const char* keyword) const {
    const ppd_attr_t* const attribute = ppdFindAttr(m_file.get(), keyword, nullptr);
    return attribute ? text::from_utf8(text::on_one_line(or_empty(attribute->value))) : std::wstring();
}

std::string Ppd_File::job_begin() const {
    return or_empty(m_file->jcl_begin);
}

std::string Ppd_File::enter_language() const {
    return or_empty(m_file->jcl_ps);
}

std::string Ppd_File::job_end() const {
    return or_empty(m_file->jcl_end);
}

Ppd_Option Ppd_File::option(const char* keyword) const {
    const ppd_option_t* const found = ppdFindOption(m_file.get(), keyword);
    return found ? read_option(*found) : Ppd_Option();
}

std::vector<const ppd_option_s*> Ppd_File::options_for_plots() const {
    std::vector<const ppd_option_t*> options;
    for (const ppd_group_t& group : items(m_file->groups, m_file->num_groups)) {
        if (std::strcmp(group.name, "InstallableOptions") == 0)
            continue;
        for (const ppd_option_t& option : items(group.options, group.num_options)) {
            const auto section = section_of(option);
            const bool is_sent = section && (section != Ppd_Section::Job_Control || !job_begin().empty());
            // Of two under one keyword, that which option() tells of.
            if (is_sent && ppdFindOption(m_file.get(), option.keyword) == &option)
                options.push_back(&option);
        }
    }
    return options;
}

std::vector<Ppd_Named_Option> Ppd_File::options_besides(const std::vector<std::string>& keywords) const {
    // By the library's own idea of which keywords are the same.
    std::set<const ppd_option_t*> left_out;
    for (const std::string& keyword : keywords)
        left_out.insert(ppdFindOption(m_file.get(), keyword.c_str()));
    std::vector<Ppd_Named_Option> options;
    for (const ppd_option_t* const option : options_for_plots()) {
        if (left_out.contains(option))
            continue;
        const std::wstring keyword = text::from_utf8(option->keyword);
        const std::wstring shown = text::from_utf8(text::on_one_line(option->text));
        options.push_back({read_option(*option), keyword, shown.empty() ? keyword : shown});
    }
    return options;
}

std::string Ppd_File::code(Ppd_Section section, const std::map<std::wstring, std::wstring>& choices) const {
    std::vector<const ppd_option_t*> options = options_for_plots();
    std::ranges::stable_sort(options, {}, &ppd_option_t::order);
    std::string code;
    for (const ppd_option_t* const option : options) {
        const auto chosen = choices.find(text::from_utf8(option->keyword));
        if (section_of(*option) != section || chosen == choices.end())
            continue;
        const auto offered = items(option->choices, option->num_choices);
        const auto choice = std::ranges::find(
            offered, chosen->second, [](const ppd_choice_t& one) { return text::from_utf8(one.choice); });
        if (choice != offered.end())
            code += invocation(*option, *choice);
    }
    return code;
}

std::vector<Ppd_Size> Ppd_File::sizes() const {
    std::vector<Ppd_Size> sizes;
    const std::vector<Ppd_Choice> shown = option("PageSize").choices;
    for (const ppd_size_t& size : items(m_file->sizes, m_file->num_sizes)) {
        const std::wstring name = text::from_utf8(size.name);
        const bool is_sheet = is_extent(size.width) && is_extent(size.length) && name != L"Custom";
        if (name.empty() || !is_sheet || std::ranges::find(sizes, name, &Ppd_Size::name) != sizes.end())
            continue;
        const auto choice = std::ranges::find(shown, name, &Ppd_Choice::name);
        sizes.push_back({{name, choice == shown.end() ? name : choice->text},
                         size.width,
                         size.length,
                         size.left,
                         size.bottom,
                         size.right,
                         size.top});
        Ppd_Size& added = sizes.back();
        if (has_area(added))
            bring_area_onto_sheet(added);
        if (!has_area(added)) {
            added.left = added.bottom = 0;
            added.right = added.width;
            added.top = added.height;
        }
    }
    return sizes;
}

std::optional<std::pair<float, float>> Ppd_File::largest_custom_size() const {
    const float* const most = m_file->custom_max;
    if (!m_file->variable_sizes || !is_extent(most[0]) || !is_extent(most[1]))
        return std::nullopt;
    return std::pair(most[0], most[1]);
}

std::set<std::pair<std::wstring, std::wstring>> Ppd_File::slots_without_sizes() const {
    std::set<std::pair<std::wstring, std::wstring>> apart;
    const std::vector<Ppd_Choice> slots = option("InputSlot").choices;
    const std::vector<Ppd_Choice> sizes = option("PageSize").choices;
    const auto add = [&](const char* of_slot, const char* of_size) {
        for (const Ppd_Choice& slot : slots) {
            if (!covers(of_slot, slot))
                continue;
            for (const Ppd_Choice& size : sizes) {
                if (covers(of_size, size))
                    apart.emplace(slot.name, size.name);
            }
        }
    };
    for (const ppd_const_t& constraint : items(m_file->consts, m_file->num_consts)) {
        if (std::strcmp(constraint.option1, "InputSlot") == 0 &&
            std::strcmp(constraint.option2, "PageSize") == 0)
            add(constraint.choice1, constraint.choice2);
        if (std::strcmp(constraint.option1, "PageSize") == 0 &&
            std::strcmp(constraint.option2, "InputSlot") == 0)
            add(constraint.choice2, constraint.choice1);
    }
    return apart;
}
