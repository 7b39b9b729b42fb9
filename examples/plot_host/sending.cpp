#include "examples/plot_host/sending.h"

#include <string>

#include "examples/common/text.h"
#include "examples/plot_host/interrupt.h"
#include "toolkit/report.h"

namespace plot_host {
namespace {

// On a line of its own, which is written over until the plot is through.
class Progress_Bar {
public:
    Progress_Bar(std::ostream& err, bool is_seen) : m_err(err), m_is_seen(is_seen) {}
    ~Progress_Bar() {
        if (m_shown >= 0)
            m_err << std::endl;
    }
    Progress_Bar(const Progress_Bar&) = delete;
    Progress_Bar& operator=(const Progress_Bar&) = delete;

    void show(std::size_t done, std::size_t whole) {
        constexpr int width = 40;
        const int percent = whole == 0 ? 100 : static_cast<int>(done * 100 / whole);
        if (!m_is_seen || percent == m_shown)
            return;
        m_shown = percent;
        const auto full = static_cast<std::size_t>(percent * width / 100);
        m_err << "\r[" << std::string(full, '#') << std::string(width - full, ' ') << "] " << percent << " %"
              << std::flush;
    }

private:
    std::ostream& m_err;
    bool m_is_seen;
    int m_shown = -1;
};

std::string plural(unsigned long long bytes) {
    return std::to_string(bytes) + (bytes == 1 ? " byte" : " bytes");
}

}  // namespace

Exit_Code send_plot(const Plot_Order& order, const Session& session) {
    Host_Platform& platform = session.platform;
    std::ostream& err = session.err;
    fill_shoebox(session.device, order.destination, order.drawing_path, session.user.can_answer);
    session.handler->begin_sending(platform, session.user.can_answer);
    const Interrupt interrupt(platform);
    Plot_Result result{};
    {
        Progress_Bar bar(err, session.user.sees_progress);
        result = session.driver.plot(session.device, session.handler.get(), order.drawing,
                                     text::from_utf8(order.drawing_path.stem().string()).c_str(),
                                     order.options, [&](std::size_t done, std::size_t whole) {
                                         bar.show(done, whole);
                                         return !platform.is_stopped();
                                     });
    }
    const std::string reason = px_on_one_line(platform.last_error());
    platform.close_ports();
    const std::string where = shown(order.destination);
    if (interrupt.was_caught()) {
        err << "plot_host: interrupted; the plot to " << where << " is not whole\n";
        return Interrupted;
    }
    switch (result.end) {
        case Plot_End::Sent:
            session.out << "Sent " << plural(result.bytes) << " to " << where << '\n';
            return Done;
        case Plot_End::Not_Opened:
            err << "plot_host: " << where << " cannot be opened" << (reason.empty() ? "" : ": " + reason)
                << '\n';
            return Not_Sent;
        case Plot_End::Stopped:
            err << "plot_host: aborted; the plot to " << where << " is not whole\n";
            return Not_Sent;
        default:
            err << "plot_host: closing " << where << " failed; the plot may not be whole\n";
            return Not_Sent;
    }
}

}  // namespace plot_host
