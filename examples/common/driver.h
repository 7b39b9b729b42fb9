#pragma once

#include <filesystem>
#include <functional>
#include <string_view>
#include <vector>

#include "examples/common/drawing.h"
#include "toolkit/marvcon/marvcon.h"
#include "toolkit/report.h"

// What the host is told while it plots; `done` goes up to `whole`. False stops the plot.
using Plot_Progress = std::function<bool(std::size_t done, std::size_t whole)>;

// Where a driver writes its plot: an open channel. What stops the plot leaves it as an exception that plot()
// takes.
class Plot_Output {
public:
    // `points` are those that will be told of.
    Plot_Output(PX_Plotter_IO& channel, const Plot_Progress& progress, std::size_t points);

    void write(std::string_view bytes);
    // So many points more are drawn. More than there are do not count.
    void tell(std::size_t points);
    unsigned long long count() const { return m_count; }

private:
    PX_Plotter_IO& m_channel;
    const Plot_Progress& m_progress;
    std::size_t m_points;
    std::size_t m_drawn = 0;
    unsigned long long m_count = 0;
};

enum class Plot_End {
    Sent,
    Not_Opened,
    Stopped,     // by an Abort or by the host
    Not_Closed,  // written, but a step of closing failed
};

struct Plot_Result {
    Plot_End end;
    unsigned long long bytes;
};

// A circle as the options have it drawn by a device that draws true ones: itself, or a line of sides. Any
// other line is itself.
Drawing_Line rendered(const Drawing_Line& line, const PX_Plotter_Options& options);

// A sample driver as its host sees it.
class Driver {
public:
    virtual ~Driver() = default;

    // A device without a configuration. Throws std::runtime_error, one line for the user, for one that cannot
    // be used.
    virtual PX_Smart_Pointer<PX_Plotter_Definition> open(
        const std::filesystem::path& device, PX_Smart_Pointer<PX_Error_Handler> handler) const = 0;

    // What is wrong with a device, but for what validators of the driver's own make good.
    virtual std::vector<PX_Device_Finding> check(const PX_Plotter_Definition& device) const {
        return px_check_device(device);
    }

    // Sends the drawing to where the device's configuration says, between the init and term strings of the
    // configuration; `options` tell how it is rendered. Failures are asked and told through the handler; what
    // has stopped leaves a channel that is closed, and nothing of the plot that could be kept back. Throws
    // std::runtime_error, one line for the user, for a drawing that cannot be plotted so; then nothing was
    // opened, and what lies where the plot was to go is as it was.
    Plot_Result plot(const PX_Plotter_Definition& device, PX_Smart_Pointer<PX_Error_Handler> handler,
                     const Drawing& drawing, const wchar_t* document, const PX_Plotter_Options& options,
                     const Plot_Progress& progress) const;

protected:
    // Commands of job control for this job, between the string that begins it and the one that enters the
    // language of the device.
    virtual void set_up_job(const PX_Plotter_Definition&, Plot_Output&) const {}
    // Writes a drawing in the language of its device.
    using Draw = std::function<void(Plot_Output&)>;
    // Asked before anything is opened: throws what plot() throws for a drawing that cannot be plotted. Its
    // circles are those that the options leave to the device. The arguments outlive what is returned.
    virtual Draw prepare(const PX_Plotter_Definition& device, const Drawing& drawing,
                         const PX_Plotter_Options& options) const = 0;
};
