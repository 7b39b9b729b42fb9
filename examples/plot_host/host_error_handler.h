#pragma once

#include <ostream>

#include "toolkit/marvcon/marvcon.h"

namespace plot_host {

// Asks nobody, so that the program never stands still in a script: what the toolkit reports goes to a stream,
// and to the log file where there is one.
class Host_Error_Handler : public Std_Error_Handler {
public:
    // The stream outlives the handler.
    explicit Host_Error_Handler(std::ostream& err);

    void LogMessage(const wchar_t* caption, const wchar_t* text) override;
    void LogPath(const wchar_t** names, int count) override;

    const wchar_t* get_warning_caption() const override;
    const wchar_t* get_severe_error_caption() const override;
    const wchar_t* get_error_caption() const override;
    const wchar_t* get_ARI_error_caption() const override;
    const wchar_t* get_terminal_error_caption() const override;
    const wchar_t* get_info_caption() const override;

private:
    std::ostream& m_err;
};

}  // namespace plot_host
