#include "examples/plot_host/host.h"

#include <cerrno>
#include <fstream>
#include <optional>
#include <stdexcept>
#include <system_error>

#include "examples/common/text.h"
#include "examples/plot_host/arguments.h"
#include "examples/plot_host/configuration.h"
#include "examples/plot_host/host_error_handler.h"
#include "examples/plot_host/picture.h"
#include "examples/plot_host/report.h"
#include "examples/plot_host/saved_choice.h"

namespace plot_host {
namespace {

std::string on_one_line(const wchar_t* name) {
    return text::on_one_line(text::to_utf8(name));
}

std::string shown(const Saved_Device& device) {
    return text::on_one_line(device.model + (device.maker.empty() ? "" : " (" + device.maker + ")"));
}

Saved_Device identity_of(const PX_Plotter_Definition& device) {
    const auto meta = device.get_meta_capabilities();
    return {text::to_utf8(meta->get_family()->get_canonical_name()),
            text::to_utf8(meta->get_model()->get_canonical_name())};
}

PX_Smart_Pointer<PX_Error_Handler> make_handler(const std::filesystem::path& log, std::ostream& err) {
    PX_Smart_Pointer<PX_Error_Handler> handler(new Host_Error_Handler(err));
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

// A driver that opens a pipe would wait for somebody to write.
void refuse_what_is_no_file(const std::filesystem::path& device) {
    std::error_code ignored;
    const auto status = std::filesystem::status(device, ignored);
    if (std::filesystem::is_other(status))
        throw std::runtime_error("the device '" + device.string() + "' is not a regular file");
}

void print_heading(std::ostream& out, const PX_Plotter_Definition& device,
                   const std::optional<Saved_Device>& made_on, const Arguments& arguments) {
    const auto meta = device.get_meta_capabilities();
    const std::string version = on_one_line(meta->get_driver_version());
    out << "Device  " << shown(identity_of(device)) << '\n'
        << "Driver  " << on_one_line(meta->get_driver_description())
        << (version.empty() ? "" : ", version " + version) << ", from "
        << on_one_line(meta->get_driver_pathname()) << '\n'
        << "Choice  " << (made_on ? "made on " + shown(*made_on) : "none: the device's defaults") << '\n'
        << "Run     strategy " << word_for(arguments.strategy) << ", policy " << word_for(arguments.policy)
        << ", settable data " << (arguments.fixed_settables ? "put to their defaults" : "validated")
        << "\n\n";
}

void reconcile(const Arguments& arguments, PX_Plotter_Definition& device, std::ostream& out) {
    const auto configuration = new_configuration(device);
    std::optional<Saved_Device> made_on;
    if (!arguments.choice.empty())
        made_on = load_choice(arguments.choice, *configuration);
    device.set_plotter_configuration(configuration.get());
    const auto validator = device.get_plotter_validator();
    if (!made_on)
        validator->set_all_to_defaults();

    const Snapshot before = take_snapshot(*configuration);
    const Sheet sheet_before =
        take_sheet(*configuration, "Before: " + shown(made_on ? *made_on : identity_of(device)));
    const bool answer =
        validator->validate_all(arguments.strategy, arguments.policy, !arguments.fixed_settables);
    print_heading(out, device, made_on, arguments);
    print_data(out, device, before);
    print_answer(out, *validator, answer);
    if (!arguments.picture.empty())
        draw_sheets(arguments.picture, sheet_before,
                    take_sheet(*configuration, "After: " + shown(identity_of(device))));
    if (!arguments.save.empty())
        save_choice(arguments.save, identity_of(device), *configuration);
}

}  // namespace

Exit_Code run(int count, const char* const* words, const Open_Device& open_device, std::ostream& out,
              std::ostream& err) {
    PX_Smart_Pointer<PX_Error_Handler> handler;
    try {
        const std::optional<Arguments> arguments = parse_arguments(count, words, out);
        if (arguments) {
            handler = make_handler(arguments->log, err);
            refuse_what_is_no_file(arguments->device);
            reconcile(*arguments, *open_device(arguments->device, handler), out);
        }
        out.flush();
        if (!out)
            throw std::runtime_error("the report cannot be written");
        return Done;
    } catch (PX_Exception& failure) {
        px_report_by_kind(*handler, failure);
        return Toolkit_Failed;
    } catch (const std::runtime_error& failure) {
        err << "plot_host: " << text::on_one_line(failure.what()) << '\n';
        return Bad_Input;
    }
}

}  // namespace plot_host
