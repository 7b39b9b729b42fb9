#include "toolkit/core/error_resources.h"

#include <string>
#include <string_view>

#include "toolkit/core/module.h"
#include "toolkit/platform/platform.h"

namespace {

constexpr wchar_t module_name[] = L"mvnres11.dll";
constexpr wchar_t default_language[] = L"en-US";
constexpr DWORD path_capacity = 260;

// The current platform's: it is freed before another one comes.
HMODULE cached = nullptr;

void free_cached() {
    if (cached)
        PX_Get_Platform().FreeLibrary(cached);
    cached = nullptr;
}

// The language module beside the running program; empty when the program's path cannot be got.
std::wstring language_module_path(PX_Platform& platform) {
    wchar_t path[path_capacity];
    const DWORD length = platform.GetModuleFileNameW(nullptr, path, path_capacity);
    if (length == 0 || length >= path_capacity)
        return {};
    const std::wstring_view program(path, length);
    // The drive and both of its separators where Windows paths are.
    const std::wstring_view separator = platform.path_separator();
    const auto folder_end = program.find_last_of(separator == L"\\" ? L"\\/:" : separator);
    const auto folder = folder_end == program.npos ? std::wstring_view{} : program.substr(0, folder_end + 1);
    return std::wstring(folder) + L"userdata.dll";
}

std::wstring product_language(PX_Platform& platform) {
    const std::wstring path = language_module_path(platform);
    const HMODULE module = path.empty() ? nullptr : platform.LoadLibraryW(path.c_str());
    if (!module)
        return default_language;
    std::wstring language = default_language;
    if (const FARPROC procedure = platform.GetProcAddress(module, "vrcuGetProductUILanguage")) {
        const auto get_language =
            reinterpret_cast<const wchar_t* (*)()>(reinterpret_cast<void (*)()>(procedure));
        if (const wchar_t* const told = get_language())
            language = told;
    }
    platform.FreeLibrary(module);
    return language;
}

}  // namespace

unsigned long long GetMVNErrResHandle() {
    if (!cached) {
        auto& platform = PX_Get_Platform();
        cached = platform.LoadLibraryExW(module_name, nullptr, 0);
        if (!cached) {
            const std::wstring name = product_language(platform) + platform.path_separator() + module_name;
            cached = platform.LoadLibraryExW(name.c_str(), nullptr, 0);
        }
        if (cached) {
            px_before_platform_exchange(free_cached);
            px_at_module_exit(PX_Exit_Step::Resources, [](bool) { free_cached(); });
        }
    }
    return reinterpret_cast<unsigned long long>(cached);
}

int px_load_mvn_text(unsigned int id, wchar_t* text, int size) {
    const auto module = reinterpret_cast<HMODULE>(GetMVNErrResHandle());
    return module ? PX_Get_Platform().LoadStringW(module, id, text, size) : 0;
}
