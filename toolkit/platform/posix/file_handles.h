#pragma once

#include <cstdint>
#include <map>
#include <memory>
#include <mutex>
#include <string>

#include "toolkit/platform/posix/last_error.h"
#include "toolkit/platform/posix/open_file.h"
#include "toolkit/platform/posix/port_names.h"
#include "toolkit/platform/win_types.h"

// The files and ports that a platform holds open, and the names that its ports go by.
class PX_File_Handles {
public:
    explicit PX_File_Handles(PX_Last_Error& last_error);
    PX_File_Handles(const PX_File_Handles&) = delete;
    PX_File_Handles& operator=(const PX_File_Handles&) = delete;
    ~PX_File_Handles();

    // An empty device takes the mapping away.
    void map(PX_Port_Name port, std::string device);
    PX_Port_Devices ports() const;

    HANDLE add(std::shared_ptr<PX_Open_File> file);
    // Null for a port that cannot be opened, whose failure is kept under its name.
    HANDLE open(PX_Port_Name port, DWORD access);
    // Null for a handle that is not open.
    std::shared_ptr<PX_Open_File> find(HANDLE handle) const;
    std::shared_ptr<PX_Open_File> take(HANDLE handle);

    // Whether `work` passed on the open file; its failure is kept under the name of the file.
    template <class Work>
    BOOL attempt(HANDLE handle, Work work) {
        const std::shared_ptr<PX_Open_File> file = find(handle);
        return m_last_error.attempt(file ? file->name().c_str() : L"A handle", [&]() -> BOOL {
            file ? work(*file) : px_fail(EBADF);
            return 1;
        });
    }

private:
    PX_Last_Error& m_last_error;
    mutable std::mutex m_lock;
    std::map<HANDLE, std::shared_ptr<PX_Open_File>> m_open;
    std::intptr_t m_last_handle = 0;  // never given again, so that an old handle finds nothing
    PX_Port_Devices m_mapped;
};
