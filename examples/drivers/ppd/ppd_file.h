#pragma once

#include <filesystem>
#include <map>
#include <memory>
#include <optional>
#include <set>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

struct ppd_file_s;
struct ppd_option_s;

// The description cannot be used: it is not there, empty, broken, or tells of no device. One line for the
// user, with the path and, for a broken one, the line where reading ended.
class Ppd_Error : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

// One choice of an option, under its name in the file and as a person reads it.
struct Ppd_Choice {
    std::wstring name;
    std::wstring text;
};

// An option of the device, such as "InputSlot". No two choices bear the same name; the default is one of
// them. No choices at all stand for an option that the file has not.
struct Ppd_Option {
    std::vector<Ppd_Choice> choices;
    std::wstring default_choice;
};

// An option with its keyword and the text that a person reads for it.
struct Ppd_Named_Option : Ppd_Option {
    std::wstring keyword;
    std::wstring text;
};

// Where in a plot the code of an option belongs.
enum class Ppd_Section { Job_Control, Prolog, Setup, Page_Setup };

// A sheet with its printable area, in points from the lower left corner.
struct Ppd_Size : Ppd_Choice {
    float width;
    float height;
    float left;
    float bottom;
    float right;
    float top;
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

    // By its keyword. A default that names no choice gives way to the first choice.
    Ppd_Option option(const char* keyword) const;

    // All but those under these keywords, in the order of the file. Left out too are the options that tell
    // what is installed, and those whose code no plot can carry: that which changes the device for good, and
    // commands of job control where no string begins the job.
    std::vector<Ppd_Named_Option> options_besides(const std::vector<std::string>& keywords) const;
    // What selects these choices, by keyword, in the order that the file asks for: between the strings of job
    // control bare, elsewhere so that a failure of one does not end the plot. A choice that the file has not
    // adds nothing.
    std::string code(Ppd_Section section, const std::map<std::wstring, std::wstring>& choices) const;

    // The sheets of fixed size, in the order of the file, each name once. A sheet without extent is left out.
    // A printable area lies on the sheet; one that holds nothing is the whole sheet.
    std::vector<Ppd_Size> sizes() const;
    // Width and height, in points, of the largest sheet of the user's own; nothing when there is no such
    // sheet.
    std::optional<std::pair<float, float>> largest_custom_size() const;
    // The slots and sizes that the constraints of the file keep apart, by their names.
    std::set<std::pair<std::wstring, std::wstring>> slots_without_sizes() const;

private:
    struct Closer {
        void operator()(ppd_file_s* file) const;
    };

    // The options that a user of the device sets for a plot.
    std::vector<const ppd_option_s*> options_for_plots() const;

    std::filesystem::path m_path;
    std::unique_ptr<ppd_file_s, Closer> m_file;
};
