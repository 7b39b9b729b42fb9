#include "examples/common/driver.h"

#include <algorithm>

#include "examples/common/made.h"

namespace {

struct Plot_Stopped {};

void write_string(Plot_Output& output, const PX_Smart_Pointer<PX_Dev_String>& string) {
    if (string)
        output.write(
            {reinterpret_cast<const char*>(string->data()), static_cast<std::size_t>(string->length())});
}

// The drawing as a device gets it that draws true circles only where the options want them.
Drawing rendered(const Drawing& drawing, const PX_Plotter_Options& options) {
    Drawing picture = drawing;
    for (Drawing_Line& line : picture.lines)
        line = rendered(line, options);
    return picture;
}

}  // namespace

Drawing_Line rendered(const Drawing_Line& line, const PX_Plotter_Options& options) {
    if (!(line.radius > 0) || options.true_arcs() != 0)
        return line;
    constexpr float usual_sides = 9;
    constexpr float most_sides = 900;
    const float sides = usual_sides * options.tessellation_multiplier();
    // What is not a number is the least.
    return tessellated(line, static_cast<int>(sides > 1 ? std::min(sides, most_sides) : 1.0F));
}

Plot_Output::Plot_Output(PX_Plotter_IO& channel, const Plot_Progress& progress, std::size_t points)
    : m_channel(channel), m_progress(progress), m_points(points) {
}

// In parts that fit into the channel's buffer: there, none is dropped before an Abort.
void Plot_Output::write(std::string_view bytes) {
    while (!bytes.empty()) {
        const auto part = bytes.substr(0, static_cast<std::size_t>(m_channel.get_buffer_size()));
        const long taken = m_channel.write(part.data(), static_cast<unsigned long>(part.size()));
        if (taken <= 0)
            throw Plot_Stopped();
        m_count += static_cast<unsigned long>(taken);
        bytes.remove_prefix(static_cast<std::size_t>(taken));
    }
}

void Plot_Output::tell(std::size_t points) {
    m_drawn = std::min(m_drawn + points, m_points);
    if (!m_progress(m_drawn, m_points))
        throw Plot_Stopped();
}

Plot_Result Driver::plot(const PX_Plotter_Definition& device, PX_Smart_Pointer<PX_Error_Handler> handler,
                         const Drawing& drawing, const wchar_t* document, const PX_Plotter_Options& options,
                         const Plot_Progress& progress) const {
    const Drawing picture = rendered(drawing, options);
    const Draw draw = prepare(device, picture, options);
    const auto channel = made(device.get_class_factory()->MK_Create_Plotter_IO(handler), L"channel");
    channel->set_document_name(document);
    if (!channel->configure(&device) || !channel->open())
        return {Plot_End::Not_Opened, 0};
    Plot_Output output(*channel, progress, picture.count_points());
    // A channel that was aborted takes nothing, not even nothing.
    const auto was_aborted = [&] { return channel->write("", 0) < 0; };
    const auto stop = [&] {
        // First: closing sends what is left, and asks for as long as it cannot.
        channel->purge();
        channel->close();
        return Plot_Result{Plot_End::Stopped, output.count()};
    };
    try {
        output.tell(0);
        const auto strings = device.get_plotter_configuration()->get_init_term_configuration();
        write_string(output, strings->get_preinit_string());
        set_up_job(device, output);
        write_string(output, strings->get_postinit_string());
        draw(output);
        write_string(output, strings->get_termination_string());
        channel->flush();
    } catch (const Plot_Stopped&) {
        return stop();
    } catch (...) {
        stop();
        throw;
    }
    if (was_aborted())
        return stop();
    return {channel->close() ? Plot_End::Sent : Plot_End::Not_Closed, output.count()};
}
