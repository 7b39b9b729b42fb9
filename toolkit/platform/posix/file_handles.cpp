#include "toolkit/platform/posix/file_handles.h"

#include <utility>

PX_File_Handles::PX_File_Handles(PX_Last_Error& last_error) : m_last_error(last_error) {
}

PX_File_Handles::~PX_File_Handles() {
    for (const auto& open : m_open)
        attempt(open.first, [](PX_Open_File& file) { file.close(); });
}

void PX_File_Handles::map(PX_Port_Name port, std::string device) {
    const std::lock_guard lock(m_lock);
    if (device.empty())
        m_mapped.erase(port);
    else
        m_mapped[port] = std::move(device);
}

PX_Port_Devices PX_File_Handles::ports() const {
    PX_Port_Devices found = px_found_ports();
    const std::lock_guard lock(m_lock);
    PX_Port_Devices all = m_mapped;
    all.merge(found);
    return all;
}

HANDLE PX_File_Handles::add(std::shared_ptr<PX_Open_File> file) {
    const std::lock_guard lock(m_lock);
    const HANDLE handle = reinterpret_cast<HANDLE>(++m_last_handle);
    m_open.emplace(handle, std::move(file));
    return handle;
}

HANDLE PX_File_Handles::open(PX_Port_Name port, DWORD access) {
    const std::wstring name = port.text();
    return m_last_error.attempt(name.c_str(), [&] {
        const PX_Port_Devices known = ports();
        const auto found = known.find(port);
        if (found == known.end())
            px_fail(ENODEV);
        return add(PX_Open_File::of_port(port, found->second, access));
    });
}

std::shared_ptr<PX_Open_File> PX_File_Handles::find(HANDLE handle) const {
    const std::lock_guard lock(m_lock);
    const auto found = m_open.find(handle);
    return found == m_open.end() ? nullptr : found->second;
}

std::shared_ptr<PX_Open_File> PX_File_Handles::take(HANDLE handle) {
    const std::lock_guard lock(m_lock);
    const auto taken = m_open.extract(handle);
    return taken ? taken.mapped() : nullptr;
}
