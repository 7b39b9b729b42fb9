#pragma once

#include <ostream>

#include "examples/plot_host/host_platform.h"
#include "toolkit/marvcon/marvcon.h"

namespace plot_host {

// Asks nobody, so that the program never stands still in a script: what the toolkit reports goes to a stream,
// and to the log file where there is one. Only while a plot is sent a user may be asked.
class Host_Error_Handler : public Std_Error_Handler {
public:
    // The stream outlives the handler.
    explicit Host_Error_Handler(std::ostream& err);

    // From now on abort, retry and ignore are asked of the user, or else are Abort, as they are once the
    // platform was stopped; an Abort stops it. The platform outlives the handler.
    void begin_sending(Host_Platform& platform, bool asks);

    void LogMessage(const wchar_t* caption, const wchar_t* text) override;
    void LogPath(const wchar_t** names, int count) override;
    int message_box(const wchar_t* text, const wchar_t* caption, unsigned int type,
                    int default_result) override;
    PX_Error_Result ARI_error(unsigned long long module, unsigned int code, const wchar_t* function,
                              const wchar_t* detail, const wchar_t* file) override;

    const wchar_t* get_warning_caption() const override;
    const wchar_t* get_severe_error_caption() const override;
    const wchar_t* get_error_caption() const override;
    const wchar_t* get_ARI_error_caption() const override;
    const wchar_t* get_terminal_error_caption() const override;
    const wchar_t* get_info_caption() const override;

private:
    std::ostream& m_err;
    Host_Platform* m_sending = nullptr;
};

}  // namespace plot_host
