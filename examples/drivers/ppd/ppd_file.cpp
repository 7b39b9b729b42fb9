// The library calls its PPD functions deprecated in favour of asking the printer itself. This driver
// describes devices that may not be at hand.
#pragma GCC diagnostic ignored "-Wdeprecated-declarations"

#include "examples/drivers/ppd/ppd_file.h"

#include <cups/ppd.h>

#include <cerrno>
#include <system_error>

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
