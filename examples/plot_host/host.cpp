#include "examples/plot_host/host.h"

#include <cerrno>
#include <fstream>
#include <functional>
#include <new>
#include <optional>
#include <stdexcept>
#include <string>
#include <system_error>

#include "examples/common/text.h"
#include "examples/plot_host/arguments.h"
#include "examples/plot_host/configuration.h"
#include "examples/plot_host/destination.h"
#include "examples/plot_host/host_error_handler.h"
#include "examples/plot_host/host_platform.h"
#include "examples/plot_host/pick_lists.h"
#include "examples/plot_host/picture.h"
#include "examples/plot_host/saved_choice.h"
#include "examples/plot_host/sending.h"
#include "examples/plot_host/unchosen.h"
#include "toolkit/report.h"

namespace plot_host {
namespace {

std::string shown(const Saved_Device& device) {
    return text::on_one_line(device.model + (device.maker.empty() ? "" : " (" + device.maker + ")"));
}

Saved_Device identity_of(const PX_Plotter_Definition& device) {
    const auto meta = device.get_meta_capabilities();
    return {text::to_utf8(meta->get_family()->get_canonical_name()),
            text::to_utf8(meta->get_model()->get_canonical_name())};
}

PX_Smart_Pointer<Host_Error_Handler> make_handler(const std::filesystem::path& log, std::ostream& err) {
    PX_Smart_Pointer<Host_Error_Handler> handler(new Host_Error_Handler(err));
    if (!log.empty()) {
        // The handler says nothing of a log that it cannot open.
        if (!std::ofstream(log, std::ios::app))
            throw std::runtime_error("the log '" + log.string() +
                                     "' cannot be opened: " + std::generic_category().message(errno));
        handler->set_log_handle(text::from_utf8(log.string()).c_str());
        handler->set_log_mode(true);
    }
    return handler;
}

// Only the ports of the machine itself are looked for once; what is mapped has to be there before.
void set_up(Host_Platform& platform, const Arguments& arguments) {
    for (const auto& [name, mapped] : arguments.mapped_ports) {
        if (!platform.map_port(text::from_utf8(name).c_str(), mapped.c_str()))
            throw std::runtime_error("'" + name + "' is no port that can be mapped, such as COM1 or LPT2");
    }
    if (arguments.print_server &&
        !platform.use_print_server(arguments.print_server->first.c_str(), arguments.print_server->second))
        throw std::bad_alloc();
}

// A driver that opens a pipe would wait for somebody to write, and a plot to one for somebody to read.
void refuse_what_is_no_file(const Arguments& arguments) {
    std::error_code ignored;
    const auto device = std::filesystem::status(arguments.device, ignored);
    if (std::filesystem::is_other(device))
        throw std::runtime_error("the device '" + arguments.device.string() + "' is not a regular file");
    const bool to_file = arguments.to && arguments.to->kind == Destination::Kind::File;
    if (to_file && std::filesystem::is_fifo(arguments.to->name, ignored))
        throw std::runtime_error("'" + arguments.to->name + "' is a pipe; map a port to it");
}

void print_heading(std::ostream& out, const PX_Plotter_Definition& device,
                   const std::optional<Saved_Device>& made_on, const Arguments& arguments) {
    const auto meta = device.get_meta_capabilities();
    const std::string version = px_on_one_line(meta->get_driver_version());
    out << "Device  " << shown(identity_of(device)) << '\n'
        << "Driver  " << px_on_one_line(meta->get_driver_description())
        << (version.empty() ? "" : ", version " + version) << ", from "
        << px_on_one_line(meta->get_driver_pathname()) << '\n'
        << "Choice  " << (made_on ? "made on " + shown(*made_on) : "none: the device's defaults") << '\n'
        << (arguments.dry_run ? "Dry run" : "Run    ") << " strategy " << word_for(arguments.strategy)
        << ", policy " << word_for(arguments.policy) << ", settable data "
        << (arguments.fixed_settables ? "put to their defaults" : "validated") << "\n\n";
}

// Also the report: it is what the user reads first.
void finish(std::ostream& out) {
    out.flush();
    if (!out)
        throw std::runtime_error("the report cannot be written");
}

void reconcile(const Arguments& arguments, PX_Plotter_Definition& device, std::ostream& out) {
    const auto configuration = new_configuration(device);
    device.set_plotter_configuration(configuration.get());
    const auto validator = device.get_plotter_validator();
    std::optional<Saved_Device> made_on;
    if (arguments.choice.empty()) {
        validator->set_all_to_defaults();
    } else {
        // What an older choice does not speak of.
        validator->set_selected_to_defaults(PX_Domain_Mask::IO | PX_Domain_Mask::Res_Color_Mem |
                                            PX_Domain_Mask::Phys_Pens);
        made_on = load_choice(arguments.choice, *configuration);
    }
    if (arguments.to)
        choose_destination(device, *arguments.to);

    const PX_Validation_Order order = {arguments.strategy, arguments.policy, !arguments.fixed_settables};
    std::function<void()> fit;
    if (made_on)
        fit = [&device] { px_fit_custom_items(device); };
    const Sheet sheet_before =
        take_sheet(*configuration, "Before: " + shown(made_on ? *made_on : identity_of(device)));
    const PX_Change_Report report =
        arguments.dry_run ? px_dry_run(device, *configuration, order, fit)
                          : px_run(device, PX_Configuration_Snapshot(*configuration), order, fit);
    print_heading(out, device, made_on, arguments);
    px_print_changes(out, report);
    if (report.get_failure()) {
        finish(out);
        throw PX_Exception(*report.get_failure());
    }
    print_unchosen(out, device);
    for (const Pick_List list : arguments.lists) {
        out << '\n';
        list == Pick_List::Resolutions ? print_resolutions(out, device) : print_colors(out, device);
    }
    if (arguments.dry_run) {
        out << "\nThat was a dry run: nothing is changed, saved or plotted.\n";
        return;
    }
    if (!arguments.picture.empty())
        draw_sheets(arguments.picture, sheet_before,
                    take_sheet(*configuration, "After: " + shown(identity_of(device))));
    if (!arguments.save.empty())
        save_choice(arguments.save, identity_of(device), *configuration);
}

Exit_Code plot(const Arguments& arguments, const Drawing& drawing, const Session& session) {
    const Destination destination = settle_destination(session.device, *arguments.to, arguments.drawing);
    if (destination != *arguments.to) {
        session.err << "plot_host: " << shown(*arguments.to) << " cannot be used; the choice goes to "
                    << shown(destination) << " instead"
                    << (arguments.any_destination ? "" : ", where nothing was sent") << '\n';
        if (!arguments.any_destination)
            return Other_Destination;
    }
    session.out << '\n';
    finish(session.out);
    PX_Plotter_Device_Data renderer;
    // What the user has set holds for the picture as it is: none of the devices tunes it.
    for (PX_Plotter_Options* const options :
         {&renderer.get_plotter_options(), &renderer.get_current_plotter_options()}) {
        options->set_true_arcs(arguments.true_arcs ? 1 : 0);
        options->set_fat_dots_as_squares(!arguments.round_dots);
        options->set_tessellation_multiplier(arguments.tessellation);
    }
    return send_plot({drawing, arguments.drawing, destination, renderer.get_current_plotter_options()},
                     session);
}

Exit_Code check(const Driver& driver, const PX_Plotter_Definition& device, std::ostream& out) {
    const auto findings = driver.check(device);
    px_print_findings(out, findings);
    return findings.empty() ? Done : Device_At_Fault;
}

}  // namespace

Exit_Code run(int count, const char* const* words, const Find_Driver& find_driver, std::ostream& out,
              std::ostream& err, User user) {
    Host_Platform platform;
    const PX_Use_Platform use(platform);
    PX_Smart_Pointer<Host_Error_Handler> handler;
    try {
        const std::optional<Arguments> arguments = parse_arguments(count, words, out);
        Exit_Code code = Done;
        if (arguments) {
            handler = make_handler(arguments->log, err);
            refuse_what_is_no_file(*arguments);
            set_up(platform, *arguments);
            std::optional<Drawing> drawing;
            if (arguments->to)
                drawing = read_drawing(arguments->drawing);
            const Driver& driver = find_driver(arguments->device);
            const auto device = driver.open(arguments->device, handler.get());
            if (arguments->check)
                code = check(driver, *device, out);
            else
                reconcile(*arguments, *device, out);
            if (drawing && !arguments->dry_run)
                code = plot(*arguments, *drawing, {driver, *device, platform, handler, out, err, user});
        }
        finish(out);
        return code;
    } catch (PX_Exception& failure) {
        if (handler)
            px_report_by_kind(*handler, failure);
        return Toolkit_Failed;
    } catch (const std::runtime_error& failure) {
        err << "plot_host: " << text::on_one_line(failure.what()) << '\n';
        return Bad_Input;
    }
}

}  // namespace plot_host
