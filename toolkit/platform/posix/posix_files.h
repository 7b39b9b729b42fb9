#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <mutex>
#include <string>

#include "toolkit/platform/posix/failure.h"
#include "toolkit/platform/posix/open_file.h"
#include "toolkit/platform/posix/port_names.h"
#include "toolkit/platform/win_types.h"

// The files and ports that a platform holds open, and the names that its ports go by.
class PX_Posix_Files {
public:
    explicit PX_Posix_Files(std::function<void(std::wstring)> keep_error);
    PX_Posix_Files(const PX_Posix_Files&) = delete;
    PX_Posix_Files& operator=(const PX_Posix_Files&) = delete;
    ~PX_Posix_Files();

    // An empty device takes the mapping away.
    void map(PX_Port_Name port, std::string device);
    PX_Port_Devices ports() const;

    HANDLE add(std::shared_ptr<PX_Open_File> file);
    // Null for a handle that is not open.
    std::shared_ptr<PX_Open_File> find(HANDLE handle) const;
    std::shared_ptr<PX_Open_File> take(HANDLE handle);

    // Whether `work` passed; its failure is kept under the name.
    template <class Work>
    bool attempt(const std::wstring& name, Work work) {
        try {
            work();
            return true;
        } catch (const PX_Failure& failure) {
            const std::string reason = failure.reason;
            m_keep_error(name + L": " + std::wstring(reason.begin(), reason.end()));
            return false;
        }
    }
    // Fails for null, as an unknown handle gives it.
    template <class Work>
    bool attempt(const std::shared_ptr<PX_Open_File>& file, Work work) {
        return file ? attempt(file->name(), [&] { work(*file); })
                    : attempt(L"A handle", [] { px_fail(EBADF); });
    }

private:
    std::function<void(std::wstring)> m_keep_error;
    mutable std::mutex m_lock;
    std::map<HANDLE, std::shared_ptr<PX_Open_File>> m_open;
    std::intptr_t m_last_handle = 0;  // never given again, so that an old handle finds nothing
    PX_Port_Devices m_mapped;
};
