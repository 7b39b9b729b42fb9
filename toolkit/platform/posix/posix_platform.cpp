#include "toolkit/platform/posix/posix_platform.h"

#include <dlfcn.h>
#include <link.h>

#include <cerrno>
#include <filesystem>
#include <iterator>
#include <string>
#include <system_error>
#include <vector>

#include "toolkit/platform/back_end.h"
#include "toolkit/platform/posix/file_handles.h"
#include "toolkit/platform/posix/last_error.h"
#include "toolkit/platform/posix/text_module.h"
#include "toolkit/platform/utf8.h"

#ifndef MARVCON_LIBDIR
#    define MARVCON_LIBDIR "lib"
#endif

namespace fs = std::filesystem;

namespace {
void (*at_unload)() = nullptr;

// Later than every destructor of a static object, the host's too, in the module that holds the toolkit and in
// all that use it: a definition that is kept in one goes down in order. The lowest number runs last.
__attribute__((destructor(101))) void unload() {
    if (at_unload)
        at_unload();
}

fs::path program_path() {
    std::error_code none;
    return fs::read_symlink("/proc/self/exe", none);
}

fs::path toolkit_library_path() {
    Dl_info info;
    link_map* map = nullptr;
    const void* const own_code = reinterpret_cast<const void*>(&px_native_platform);
    if (!dladdr1(own_code, &info, reinterpret_cast<void**>(&map), RTLD_DL_LINKMAP) || !map)
        return {};
    // Linked into the program the toolkit has no path of its own; and from a relative one, modules would be
    // loaded out of whatever folder is current.
    const fs::path path = map->l_name;
    return path.is_absolute() ? path : fs::path();
}

std::vector<fs::path> search_path() {
    std::vector<fs::path> folders;
    if (const fs::path program = program_path(); !program.empty()) {
        const fs::path folder = program.parent_path();
        folders.push_back(folder);
        folders.push_back(folder.parent_path() / MARVCON_LIBDIR / "marvcon");
    }
    if (const fs::path library = toolkit_library_path(); !library.empty()) {
        folders.push_back(library.parent_path());
        folders.push_back(library.parent_path() / "marvcon");
    }
    return folders;
}

fs::path with_own_ending(fs::path name) {
    return name.extension() == ".dll" ? name.replace_extension(".so") : name;
}

std::vector<fs::path> candidates(const fs::path& name) {
    if (name.is_absolute())
        return {name, with_own_ending(name)};
    std::vector<fs::path> paths;
    for (const fs::path& folder : search_path())
        paths.push_back(folder / with_own_ending(name));
    return paths;
}
}  // namespace

void px_call_at_unload(void (*function)()) {
    at_unload = function;
}

// Never destroyed: a module that is kept to the end of the process is freed through it.
PX_Platform& px_native_platform() {
    static PX_Platform& platform = *new PX_Posix_Platform;
    return platform;
}

PX_Posix_Platform::PX_Posix_Platform(int answers_fd, int questions_fd)
    : m_answers_fd(answers_fd),
      m_questions_fd(questions_fd),
      m_last_error(std::make_unique<PX_Last_Error>()),
      m_files(std::make_unique<PX_File_Handles>(*m_last_error)) {
}

PX_Posix_Platform::~PX_Posix_Platform() = default;

const wchar_t* PX_Posix_Platform::last_error() const {
    // Not a string: its destructor would hold the module in the process until the thread ends.
    thread_local wchar_t text[256];
    m_last_error->copy_to(text, std::size(text));
    return text;
}

HMODULE PX_Posix_Platform::LoadLibraryExW(const wchar_t* name, HANDLE, DWORD) {
    if (!name)
        return nullptr;
    return m_last_error->attempt([&]() -> HMODULE {
        for (const fs::path& path : candidates(px_to_utf8(name))) {
            std::error_code none;
            if (!fs::is_regular_file(path, none))
                continue;
            if (void* const module = dlopen(path.c_str(), RTLD_NOW | RTLD_LOCAL))
                return module;
        }
        return nullptr;
    });
}

HMODULE PX_Posix_Platform::LoadLibraryW(const wchar_t* name) {
    return LoadLibraryExW(name, nullptr, 0);
}

FARPROC PX_Posix_Platform::GetProcAddress(HMODULE module, const char* name) {
    return module && name ? reinterpret_cast<FARPROC>(dlsym(module, name)) : nullptr;
}

BOOL PX_Posix_Platform::FreeLibrary(HMODULE module) {
    return module && dlclose(module) == 0;
}

DWORD PX_Posix_Platform::GetModuleFileNameW(HMODULE module, wchar_t* path, DWORD size) {
    return m_last_error->attempt([&] {
        fs::path found;
        if (!module) {
            found = program_path();
        } else if (link_map* map = nullptr; dlinfo(module, RTLD_DI_LINKMAP, &map) == 0) {
            found = map->l_name;
        }
        // Not wstring(): that one goes by the locale of the host.
        const std::u32string characters = found.u32string();
        return px_give_path(std::wstring(characters.begin(), characters.end()), path, size);
    });
}

int PX_Posix_Platform::LoadStringW(HMODULE module, UINT id, wchar_t* text, int size) {
    const FARPROC procedure = GetProcAddress(module, px_module_text_name);
    if (!procedure)
        return 0;
    const auto module_text = reinterpret_cast<decltype(&px_module_text)>(reinterpret_cast<void*>(procedure));
    const wchar_t* const found = module_text(id);
    return found ? px_give_text(found, text, size) : 0;
}

int PX_Posix_Platform::WideCharToMultiByte(UINT, DWORD, const wchar_t* text, int length, char* bytes,
                                           int bytes_size, const char*, BOOL* used_default) {
    if (used_default)
        *used_default = 0;
    return px_wide_char_to_utf8(text, length, bytes, bytes_size);
}

const wchar_t* PX_Posix_Platform::path_separator() const {
    return L"/";
}

int PX_Posix_Platform::_wfopen_s(std::FILE** stream, const wchar_t* name, const wchar_t* mode) {
    if (!stream)
        return EINVAL;
    *stream = nullptr;
    if (!name || !mode)
        return EINVAL;
    int error = ENOMEM;
    m_last_error->attempt(name, [&] {
        *stream = std::fopen(px_to_utf8(name).c_str(), px_to_utf8(mode).c_str());
        error = *stream ? 0 : errno;
        if (error)
            px_fail(error);
    });
    return error;
}

DWORD PX_Posix_Platform::WNetGetConnectionW(const wchar_t*, wchar_t*, DWORD*) {
    return ERROR_BAD_DEVICE;
}
