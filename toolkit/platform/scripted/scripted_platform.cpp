#include "toolkit/platform/scripted/scripted_platform.h"

#include <cerrno>
#include <fstream>
#include <iterator>
#include <random>
#include <string_view>
#include <system_error>
#include <utility>

#include "toolkit/platform/utf8.h"

namespace fs = std::filesystem;

PX_Scripted_Platform::~PX_Scripted_Platform() {
    std::error_code ignored;
    if (!m_folder.empty())
        fs::remove_all(m_folder, ignored);
}

void PX_Scripted_Platform::install_module(const std::wstring& name, std::map<UINT, std::wstring> texts) {
    m_modules[name].texts = std::move(texts);
}

std::vector<std::wstring> PX_Scripted_Platform::loaded_modules() const {
    std::vector<std::wstring> names;
    for (const auto& [name, module] : m_modules)
        names.insert(names.end(), static_cast<std::size_t>(module.loads), name);
    return names;
}

HMODULE PX_Scripted_Platform::load(const wchar_t* name) {
    const auto found = m_modules.find(name ? name : L"");
    if (found == m_modules.end())
        return nullptr;
    Module& module = found->second;
    if (module.loads++ == 0)
        module.handle = static_cast<HMODULE>(new_handle(found->first));
    return module.handle;
}

PX_Scripted_Platform::Installed* PX_Scripted_Platform::in_memory(HMODULE module) {
    if (!module)
        return nullptr;
    for (Installed& installed : m_modules)
        if (installed.second.handle == module)
            return &installed;
    mark_misuse();
    return nullptr;
}

HMODULE PX_Scripted_Platform::LoadLibraryExW(const wchar_t* name, HANDLE file, DWORD flags) {
    return must_fail(__func__, name, file, flags) ? nullptr : load(name);
}

HMODULE PX_Scripted_Platform::LoadLibraryW(const wchar_t* name) {
    return must_fail(__func__, name) ? nullptr : load(name);
}

FARPROC PX_Scripted_Platform::GetProcAddress(HMODULE module, const char* name) {
    if (must_fail(__func__, module, name))
        return nullptr;
    const Installed* const installed = in_memory(module);
    if (!installed || !name)
        return nullptr;
    const auto& procedures = installed->second.procedures;
    const auto found = procedures.find(name);
    return found == procedures.end() ? nullptr : found->second;
}

BOOL PX_Scripted_Platform::FreeLibrary(HMODULE module) {
    if (must_fail(__func__, module))
        return 0;
    Installed* const installed = in_memory(module);
    if (!installed)
        return 0;
    if (--installed->second.loads == 0)
        installed->second.handle = nullptr;
    return 1;
}

DWORD PX_Scripted_Platform::GetModuleFileNameW(HMODULE module, wchar_t* path, DWORD size) {
    if (must_fail(__func__, module, size))
        return 0;
    if (!module)
        return px_give_path(m_program_path, path, size);
    const Installed* const installed = in_memory(module);
    return installed ? px_give_path(installed->first, path, size) : 0;
}

int PX_Scripted_Platform::LoadStringW(HMODULE module, UINT id, wchar_t* text, int size) {
    if (must_fail(__func__, module, id, size))
        return 0;
    const Installed* const installed = in_memory(module);
    if (!installed)
        return 0;
    const auto found = installed->second.texts.find(id);
    return found == installed->second.texts.end() ? 0 : px_give_text(found->second, text, size);
}

int PX_Scripted_Platform::WideCharToMultiByte(UINT code_page, DWORD flags, const wchar_t* text, int length,
                                              char* bytes, int bytes_size, const char*, BOOL* used_default) {
    const std::wstring_view converted = !text ? L"null"
                                        : length < 0
                                            ? std::wstring_view(text)
                                            : std::wstring_view(text, static_cast<std::size_t>(length));
    if (must_fail(__func__, code_page, flags, converted, length, bytes_size))
        return 0;
    if (used_default)
        *used_default = 0;
    return px_wide_char_to_utf8(text, length, bytes, bytes_size);
}

const wchar_t* PX_Scripted_Platform::path_separator() const {
    return m_separator;
}

fs::path PX_Scripted_Platform::new_file() {
    std::random_device random;
    while (m_folder.empty()) {
        const fs::path folder = fs::temp_directory_path() / ("scripted_" + std::to_string(random()));
        if (fs::create_directory(folder))
            m_folder = folder;
    }
    return m_folder / std::to_string(m_files.size());
}

int PX_Scripted_Platform::_wfopen_s(std::FILE** stream, const wchar_t* name, const wchar_t* mode) {
    const bool fails = must_fail(__func__, name, mode);
    if (stream)
        *stream = nullptr;
    if (fails)
        return EACCES;
    if (!stream || !name || !mode) {
        mark_misuse();
        return EINVAL;
    }
    const auto known = m_files.find(name);
    const fs::path path = known != m_files.end() ? known->second : new_file();
    *stream = std::fopen(path.string().c_str(), px_to_utf8(mode).c_str());
    if (!*stream)
        return errno;
    m_files[name] = path;
    // log_of reads what has been written so far.
    std::setvbuf(*stream, nullptr, _IONBF, 0);
    return 0;
}

std::string PX_Scripted_Platform::log_of(const std::wstring& name) const {
    const auto known = m_files.find(name);
    if (known == m_files.end())
        return {};
    std::ifstream file(known->second);
    return {std::istreambuf_iterator<char>(file), {}};
}

int PX_Scripted_Platform::MessageBoxExW(HWND owner, const wchar_t* text, const wchar_t* caption, UINT type,
                                        WORD language) {
    if (must_fail(__func__, owner, text, caption, type, language))
        return 0;
    m_boxes.push_back({text ? text : L"", caption ? caption : L"", type, language, owner});
    if (m_answers.empty())
        return px_ending_answer(type);
    const int answer = m_answers.front();
    m_answers.pop();
    return answer;
}

HWND PX_Scripted_Platform::activate_window() {
    m_active_window = static_cast<HWND>(new_handle(L"window"));
    return m_active_window;
}

HWND PX_Scripted_Platform::GetActiveWindow() {
    return must_fail(__func__) ? nullptr : m_active_window;
}

int PX_Scripted_Platform::_controlfp_s(unsigned int* current, unsigned int value, unsigned int mask) {
    if (must_fail(__func__, value, mask))
        return EINVAL;
    write_control_word((m_control_word & ~mask) | (value & mask));
    if (current)
        *current = m_control_word;
    return 0;
}
