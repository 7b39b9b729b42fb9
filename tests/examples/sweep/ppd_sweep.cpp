#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <map>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

#include "examples/common/made.h"
#include "examples/common/text.h"
#include "examples/drivers/ppd/definition.h"
#include "examples/drivers/ppd/driver.h"
#include "examples/plot_host/configuration.h"
#include "examples/plot_host/host_error_handler.h"
#include "examples/plot_host/saved_choice.h"
#include "tests/examples/sweep/custom_choices.h"
#include "tests/examples/sweep/draw.h"
#include "toolkit/report.h"

// Opens every description of a folder, and on every device a choice that was made on another one. A run over
// the choice must leave it so that a second run changes nothing, and must not fail. The table of what was
// seen goes to standard output, the progress to standard error.

namespace {

namespace fs = std::filesystem;
using Device = PX_Smart_Pointer<PX_Plotter_Definition>;
using Strategy = PX_Validation_Strategy;
using Policy = PX_Validation_Policy;

// How often something was seen, and where first.
class Tally {
public:
    void count(const std::string& what, const std::string& where) {
        auto& entry = m_entries[what];
        if (entry.first++ == 0)
            entry.second = where;
    }
    bool is_empty() const { return m_entries.empty(); }
    void print(const char* heading) const {
        std::cout << "\n| " << heading << " | Count | First seen |\n| --- | ---: | --- |\n";
        for (const auto& [what, entry] : m_entries)
            std::cout << "| " << what << " | " << entry.first << " | " << entry.second << " |\n";
        if (m_entries.empty())
            std::cout << "| none | 0 | |\n";
    }

private:
    std::map<std::string, std::pair<long, std::string>> m_entries;
};

// What a user could choose on the device, over its defaults.
void choose(Draw& draw, const PX_ResColorMem_Capabilities& offered, PX_ResColorMem_Configuration& color) {
    if (const auto mode = draw.one_of(offered.get_res_color_mem_list())) {
        color.set_res_color_mem(mode.get());
        if (const auto resolution = draw.one_of(mode->get_resolution_list()))
            color.set_resolution(resolution.get());
    }
    if (const auto area = draw.one_of(offered.get_mem_area_list()))
        color.set_installed_memory(area->get_device_memory());
    color.set_hardsoftno_dithering(static_cast<PX_HardSoftNo_Dithering::Enum>(draw.below(3)));
    color.set_rast_color_vs_res_pref(static_cast<long>(draw.below(120)));
    color.set_dm_color(static_cast<long>(1 + draw.below(2)));
    color.set_lines_overwrite(draw.chance(2));
}

void choose(Draw& draw, const PX_Media_Capabilities& offered, PX_Media_Configuration& media) {
    if (const auto type = draw.one_of(offered.get_media_type_list()))
        media.set_media_type(type.get());
    PX_Smart_Pointer<PX_Media_Size> size = draw.one_of(offered.get_media_size_list());
    if (const auto source = draw.one_of(offered.get_media_source_list())) {
        media.set_media_source(source.get());
        if (const auto entry = draw.one_of(source->get_source_entry_list())) {
            media.set_media_source_entry(entry.get());
            if (const auto name = draw.one_of(entry->get_media_size_name_list()))
                size = offered.get_media_size(name->get_canonical_name());
        }
    }
    if (size)
        media.set_media_size(size.get(), offered.get_media_description(size->get_media_description()).get());
    if (const auto bin = draw.one_of(offered.get_media_destination_list())) {
        media.set_media_destination(bin.get());
        if (const auto option = draw.one_of(bin->get_collating_list()))
            media.set_media_collating(option.get());
        if (const auto option = draw.one_of(bin->get_stapling_list()))
            media.set_media_stapling(option.get());
        if (const auto option = draw.one_of(bin->get_cutting_list()))
            media.set_media_cutting(option.get());
        if (const auto option = draw.one_of(bin->get_folding_list()))
            media.set_media_folding(option.get());
    }
    media.set_number_of_copies(static_cast<long>(1 + draw.below(20)));
    const long modes = offered.get_duplexing_modes();
    const long mode = 1L << draw.below(3);
    if (modes & mode)
        media.set_duplexing_mode(static_cast<PX_Duplexing_Mode::Enum>(mode));
    media.set_longplot_reduction(draw.chance(4) ? 2.5 : 1.0);
    media.set_dm_scale(static_cast<long>(25 + draw.below(200)));
    PX_Float_Rectangle margins = *media.get_media_settings()->get_printable_bounds();
    if (draw.chance(2)) {
        margins.x_min += 10;
        margins.y_max -= 10;
    }
    media.set_margins(&margins);
    media.set_dm_orientation(draw.chance(4) ? PX_Dm_Orientation::Dm_Orientation_Turned
                                            : PX_Dm_Orientation::Dm_Orientation_Upright);
}

const char* word_for(Strategy::Enum strategy) {
    return strategy == Strategy::Use_Nearest ? "nearest" : "default";
}

class Sweep {
public:
    explicit Sweep(const fs::path& scratch) : m_scratch(scratch) {
        m_handler = made<PX_Error_Handler>(new plot_host::Host_Error_Handler(m_silenced), L"handler");
    }

    // Only the device check.
    void check(const fs::path& file) {
        if (const Device device = open(file))
            check_device(*device);
    }

    void visit(const fs::path& file) {
        const Device device = open(file);
        if (!device)
            return;
        check_device(*device);
        check_finishing(*device->get_plotter_capabilities()->get_media_capabilities());
        check_own_defaults(*device);
        check_own_settings(*device);
        if (!m_choices.empty()) {
            const Choice& choice = m_choices[m_draw.below(m_choices.size())];
            for (const auto strategy : {Strategy::Use_Default, Strategy::Use_Nearest}) {
                for (const auto policy : {Policy::Validate_Conditional, Policy::Reset_Conditional})
                    open_choice(*device, choice, strategy, policy);
            }
        }
        save(*device);
    }

    bool report() const {
        std::cout << "| What | Count |\n| --- | ---: |\n"
                  << "| descriptions | " << m_files << " |\n"
                  << "| runs over a choice of another device | " << m_runs << " |\n"
                  << "| values drawn for a device's own settings | " << m_drawn << " |\n"
                  << "| of them not the device's, changed by the run | " << m_drawn_wrong << " |\n"
                  << "| values of a choice that its next device has a setting for | " << m_known << " |\n"
                  << "| values that it has none for, dropped | " << m_dropped << " |\n"
                  << "| findings of the device check that the driver answers for | " << m_answered << " |\n";
        m_repaired.print("Changed by the first run");
        m_rules.print("Repaired again by a second run, by a rule of the toolkit; the data stay as they are");
        m_rejected.print("Descriptions that cannot be read");
        m_findings.print("Found by the device check");
        m_faults.print("Faults");
        return m_faults.is_empty() && m_findings.is_empty();
    }

private:
    // A saved choice; the values of the settings go along as they are.
    struct Choice {
        std::string text;
        PX_Smart_Pointer<Custom_Items> items;
    };

    // Null for a description that cannot be read.
    Device open(const fs::path& file) {
        m_where = file.filename().string();
        ++m_files;
        try {
            return open_ppd_device(file, m_handler);
        } catch (const Ppd_Error& failure) {
            const std::string why = failure.what();
            m_rejected.count(why.substr(std::min(why.find("' "), why.size() - 2) + 2), m_where);
            return nullptr;
        }
    }

    void check_device(const PX_Plotter_Definition& device) {
        const auto findings = Ppd_Driver().check(device);
        m_answered += px_check_device(device).size() - findings.size();
        for (const PX_Device_Finding& finding : findings) {
            const std::wstring kind = px_domain_text(finding) +
                                      (L": " + std::wstring(px_fault_text(finding.fault))) + L"; " +
                                      px_effect_text(finding);
            m_findings.count(text::to_utf8(kind), m_where + ": " + text::to_utf8(finding.object));
        }
    }

    void check_finishing(const PX_Media_Capabilities& media) {
        for (const auto& bin : *media.get_media_destination_list()) {
            check_numbers("collating", *bin->get_collating_list(), &PX_Media_Collating::get_collating_type,
                          &PX_Media_Collating::get_collating_type);
            check_numbers("stapling", *bin->get_stapling_list(), &PX_Media_Stapling::get_stapling_location,
                          &PX_Media_Stapling::get_stapling_when);
            check_numbers("cutting", *bin->get_cutting_list(), &PX_Media_Cutting::get_cutting_when,
                          &PX_Media_Cutting::get_cutting_when);
            check_numbers("folding", *bin->get_folding_list(), &PX_Media_Folding::get_folding_type,
                          &PX_Media_Folding::get_folding_when);
        }
    }

    // What is shown as nothing does nothing, and of the others no two that are shown as different are the
    // same.
    template <class Entry, class What, class When>
    void check_numbers(const std::string& kind, const PX_Named_Object_List<Entry>& list, What what,
                       When when) {
        std::map<std::pair<int, int>, std::wstring> shown;
        for (const auto& option : list) {
            const std::wstring text = option->get_localized_name();
            const std::pair<int, int> pair(((*option).*what)(), ((*option).*when)());
            const bool does_nothing = pair.second == 0;
            if (!does_nothing && (text == L"None" || text == L"Off" || text == L"No"))
                m_faults.count(kind + ": shown as nothing, but a finish", m_where);
            if (!does_nothing && shown.emplace(pair, text).first->second != text)
                m_faults.count(kind + ": two finishes are the same", m_where + ": " + text::to_utf8(text));
        }
    }

    template <class Run>
    bool without_failure(const std::string& what, Run run) {
        try {
            run();
            return true;
        } catch (const PX_Exception& failure) {
            const std::string told =
                what + ": " + std::to_string(failure.m_code) + " " + text::to_utf8(failure.m_detail);
            m_faults.count(told, m_where);
            return false;
        }
    }

    // The device's own defaults are what it can do: nothing may be changed there.
    void check_own_defaults(PX_Plotter_Definition& device) {
        const auto configuration = plot_host::new_configuration(device);
        device.set_plotter_configuration(configuration.get());
        const auto validator = device.get_plotter_validator();
        without_failure("own defaults", [&] {
            validator->set_all_to_defaults();
            const auto before = PX_Configuration_Snapshot(*configuration);
            clear_validated(*configuration);
            validator->validate_all(Strategy::Use_Nearest, Policy::Validate_Conditional, true);
            for_each_difference(before, PX_Configuration_Snapshot(*configuration),
                                [&](const std::string& datum, const std::string& change) {
                                    m_faults.count("own default changed: " + datum, m_where + change);
                                });
            if (validator->get_config_changed() & PX_Domain_Mask::Custom)
                m_faults.count("own default changed: a setting", m_where);
        });
    }

    void open_choice(PX_Plotter_Definition& device, const Choice& choice, Strategy::Enum strategy,
                     Policy::Enum policy) {
        std::ofstream(m_scratch, std::ios::binary) << choice.text;
        const auto configuration = plot_host::new_configuration(device);
        plot_host::load_choice(m_scratch, *configuration);
        device.set_plotter_configuration(configuration.get());
        const auto items = known_to(device, *choice.items);
        configuration->get_custom_configuration()->set_custom_list(items.get());
        configuration->get_custom_configuration()->set_validated(false);
        m_known += items->size();
        m_dropped += choice.items->size() - items->size();
        const auto validator = device.get_plotter_validator();
        ++m_runs;
        const auto before = PX_Configuration_Snapshot(*configuration);
        if (!without_failure(word_for(strategy), [&] { validator->validate_all(strategy, policy, true); }))
            return;
        const auto once = PX_Configuration_Snapshot(*configuration);
        for_each_difference(before, once, [&](const std::string& datum, const std::string& change) {
            m_repaired.count(std::string(word_for(strategy)) + ": " + datum, m_where + change);
        });
        if (const long changed = check_settings(device, *items, word_for(strategy)))
            m_repaired.count(std::string(word_for(strategy)) + ": Setting",
                             m_where + ": " + std::to_string(changed));
        check_consistency(device);
        const auto items_once = copy_of_items(device);
        clear_validated(*configuration);
        if (!without_failure(std::string(word_for(strategy)) + ", second run",
                             [&] { validator->validate_all(strategy, policy, true); }))
            return;
        if (check_settings(device, *items_once, "second run"))
            m_faults.count("second run: a setting", m_where);
        count_bits_of_second_run(validator->get_media_cfg_changes(), strategy);
        for_each_difference(once, PX_Configuration_Snapshot(*configuration),
                            [&](const std::string& datum, const std::string& change) {
                                m_faults.count(std::string(word_for(strategy)) + ", second run: " + datum,
                                               m_where + change);
                            });
    }

    // How many the run has changed.
    long check_settings(const PX_Plotter_Definition& device, const Custom_Items& before,
                        const std::string& what) {
        const Custom_Outcome outcome = outcome_of_run(device, before);
        for (const std::string& fault : outcome.faults)
            m_faults.count(what + ": " + fault, m_where);
        return outcome.changed;
    }

    static PX_Smart_Pointer<Custom_Items> copy_of_items(const PX_Plotter_Definition& device) {
        const PX_Smart_Pointer copy(device.get_plotter_configuration()->get_custom_configuration()->clone());
        return copy->get_custom_list();
    }

    // Moved to another device, most items are dropped: here, every setting has its turn.
    void check_own_settings(PX_Plotter_Definition& device) {
        without_failure("own settings", [&] {
            const auto configuration = plot_host::new_configuration(device);
            device.set_plotter_configuration(configuration.get());
            const auto validator = device.get_plotter_validator();
            validator->set_all_to_defaults();
            const auto items = draw_custom_items(m_draw, device);
            configuration->get_custom_configuration()->set_custom_list(items.get());
            validator->validate_all(Strategy::Use_Nearest, Policy::Validate_Conditional, true);
            m_drawn += items->size();
            m_drawn_wrong += check_settings(device, *items, "own settings");
        });
    }

    void count_bits_of_second_run(long bits, Strategy::Enum strategy) {
        using Change = PX_Media_Change;
        constexpr long destination_and_finishing =
            Change::Destination | Change::Collating | Change::Stapling | Change::Cutting | Change::Folding;
        if (strategy == Strategy::Use_Nearest && (bits & destination_and_finishing)) {
            m_rules.count("destination: the nearest one leaves the names of the finishing options alone",
                          m_where);
            bits &= ~destination_and_finishing;
        }
        if (bits)
            m_faults.count("repaired again without a rule: " + std::to_string(bits), m_where);
    }

    // What a driver relies on when the plot begins.
    void check_consistency(const PX_Plotter_Definition& device) {
        const auto offered = device.get_plotter_capabilities()->get_media_capabilities();
        const auto media = device.get_plotter_configuration()->get_media_configuration();
        const auto expect = [&](bool holds, const char* what) {
            if (!holds)
                m_faults.count(what, m_where);
        };
        if (offered->get_media_size_list()->is_empty())
            return;
        const auto size = offered->get_media_size(media->get_media_size());
        expect(size != nullptr, "the size is not the device's");
        if (!size)
            return;
        const auto description = offered->get_media_description(size->get_media_description());
        expect(description &&
                   *description->get_media_bounds() == *media->get_media_settings()->get_media_bounds(),
               "the snapshot is not that of the size");
        if (offered->get_media_source_list()->is_empty())
            return;
        const auto source = offered->get_media_source(media->get_media_source());
        const auto entry = source ? source->get_source_entry(media->get_media_source_entry()) : nullptr;
        expect(entry && entry->get_media_size_name_list()->find(media->get_media_size()),
               "the source does not feed the size");
    }

    template <class Report>
    static void for_each_difference(const PX_Configuration_Snapshot& before,
                                    const PX_Configuration_Snapshot& after, Report report) {
        for (const PX_Datum_Value& was : before.get_values()) {
            const PX_Datum_Value* const now = after.find(was.datum);
            if (now && was.exact != now->exact)
                report(was.name, ": " + was.shown + " -> " + now->shown);
        }
    }

    static void clear_validated(const PX_Plotter_Configuration& configuration) {
        configuration.get_media_configuration()->set_validated(false);
        configuration.get_res_color_mem_configuration()->set_validated(false);
        configuration.get_init_term_configuration()->set_validated(false);
        configuration.get_custom_configuration()->set_validated(false);
    }

    // Every second choice is made by a user; the others are the defaults.
    void save(PX_Plotter_Definition& device) {
        without_failure("saving", [&] {
            const auto configuration = plot_host::new_configuration(device);
            device.set_plotter_configuration(configuration.get());
            device.get_plotter_validator()->set_all_to_defaults();
            if (m_files % 2 == 0) {
                const auto offered = device.get_plotter_capabilities();
                choose(m_draw, *offered->get_media_capabilities(), *configuration->get_media_configuration());
                choose(m_draw, *offered->get_res_color_mem_capabilities(),
                       *configuration->get_res_color_mem_configuration());
                configuration->get_custom_configuration()->set_custom_list(
                    draw_custom_items(m_draw, device).get());
            }
            plot_host::save_choice(m_scratch, {"", m_where}, *configuration);
            std::ostringstream text;
            text << std::ifstream(m_scratch, std::ios::binary).rdbuf();
            m_choices.push_back({text.str(), copy_of_items(device)});
            const auto restored = plot_host::new_configuration(device);
            plot_host::load_choice(m_scratch, *restored);
            for_each_difference(
                PX_Configuration_Snapshot(*configuration), PX_Configuration_Snapshot(*restored),
                [&](const std::string& datum, const std::string& change) {
                    m_faults.count("changed by saving and loading: " + datum, m_where + change);
                });
        });
    }

    fs::path m_scratch;
    std::ostringstream m_silenced;
    PX_Smart_Pointer<PX_Error_Handler> m_handler;
    Draw m_draw;
    std::string m_where;
    std::vector<Choice> m_choices;
    long m_files = 0;
    long m_runs = 0;
    long m_drawn = 0, m_drawn_wrong = 0;
    long m_known = 0, m_dropped = 0;
    std::size_t m_answered = 0;
    Tally m_repaired, m_rules, m_rejected, m_findings, m_faults;
};

}  // namespace

int main(int count, char** words) {
    const bool check_only = count == 3 && words[2] == std::string_view("--check");
    if (count != 2 && !check_only) {
        std::cerr << "usage: ppd_sweep FOLDER [--check]\n";
        return 2;
    }
    const fs::path folder = words[1];
    std::vector<fs::path> files;
    for (const auto& entry : fs::directory_iterator(folder))
        files.push_back(entry.path());
    std::ranges::sort(files);
    // Otherwise every device would meet choices of its own maker and those before it in the alphabet.
    Draw draw;
    for (std::size_t left = files.size(); left > 1; --left)
        std::swap(files[left - 1], files[draw.below(left)]);
    Sweep sweep(folder / "choice.json");
    for (std::size_t at = 0; at < files.size(); ++at) {
        if (at % 100 == 0)
            std::cerr << at << " of " << files.size() << " descriptions, now "
                      << files[at].filename().string() << '\n';
        check_only ? sweep.check(files[at]) : sweep.visit(files[at]);
    }
    const bool sound = sweep.report();
    if (files.empty())
        std::cerr << "The folder holds no description.\n";
    return sound && !files.empty() ? 0 : 1;
}
