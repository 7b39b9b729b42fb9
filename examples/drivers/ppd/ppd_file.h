#pragma once

#include <filesystem>
#include <memory>
#include <stdexcept>
#include <string>

struct ppd_file_s;

// The description cannot be used: it is not there, empty, broken, or tells of no device. One line for the
// user, with the path and, for a broken one, the line where reading ended.
class Ppd_Error : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

// A PostScript printer description that has been read. The only part of the driver that knows the library
// behind it; the others ask for what their domain needs.
class Ppd_File {
public:
    // Throws Ppd_Error. A compressed description is read too.
    explicit Ppd_File(const std::filesystem::path& path);

    const std::filesystem::path& path() const { return m_path; }

    // The value of a main keyword, such as "ModelName", on one line; empty when the file has none.
    std::wstring text(const char* keyword) const;

    // The job-control strings as the device gets them; empty when the file has none. They cannot hold a byte
    // of value 0, which ends a string for the library behind.
    std::string job_begin() const;
    std::string enter_language() const;
    std::string job_end() const;

private:
    struct Closer {
        void operator()(ppd_file_s* file) const;
    };

    std::filesystem::path m_path;
    std::unique_ptr<ppd_file_s, Closer> m_file;
};
