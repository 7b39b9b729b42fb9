#include "toolkit/marvcon/std_media_cfg/nearest.h"

#include <cmath>
#include <cwchar>

#include "toolkit/core/distance.h"
#include "toolkit/host/string.h"
#include "toolkit/marvcon/std_media_cfg/datum.h"
#include "toolkit/marvcon/std_media_cfg/validator.h"

// The searches for the entry that is most like what the user had. Each walks its list in order, passes over
// withdrawn entries, and lets an equal score keep the earlier one.

using Ability = PX_Media_Ability_Flags;

namespace {

constexpr double worst_score = 2147483647.0;

// The best entry so far, by name: the winner is looked up again, as every choice is.
class Best {
public:
    explicit Best(double start) : m_score(start) {}
    // A score that is not a number never wins.
    template <class Entry>
    void offer(double score, const Entry& entry) {
        if (score < m_score) {
            m_score = score;
            m_name = entry.get_canonical_name();
        }
    }
    double score() const { return m_score; }
    const wchar_t* name() const { return m_name; }

private:
    double m_score;
    PX_String m_name;
};

// The distance of a measure from what the user had, in per cent of it, weighted: within five per cent a
// difference is cheap, beyond it the weight grows tenfold. All in single precision; only the product is
// widened.
class Measure {
public:
    Measure(float had, float weight_within) : m_had(had), m_factor(100.0F / had), m_within(weight_within) {}
    double distance(float has) const {
        const float per_cent = std::fabs(has - m_had) * m_factor;
        return per_cent <= 5.0F ? per_cent * m_within : per_cent * (m_within * 10.0F);
    }

private:
    float m_had;
    float m_factor;
    float m_within;
};

// What the user had, as sizes are measured against it.
class Size_Score {
public:
    Size_Score(const PX_Media_Settings& had, const wchar_t* name)
        : m_had(had),
          m_name(name ? name : L""),
          m_sheet_x(had.get_media_bounds()->x, 10.0F),
          m_sheet_y(had.get_media_bounds()->y, 10.0F),
          m_printable_x(had.get_printable_bounds()->x_extent(), 1.0F),
          m_printable_y(had.get_printable_bounds()->y_extent(), 1.0F) {}

    // 0.0 is identical.
    double of(const PX_Media_Size& size, const PX_Media_Description& description) const {
        double score = 0.0;
        if (size.get_media_group() != m_had.get_media_group())
            score += 50.0;
        if (size.get_landscape_mode_flag() != m_had.get_landscape_mode_flag())
            score += 200.0;
        if (std::wcscmp(size.get_canonical_name(), m_name) != 0)
            score += 10.0;
        if (description.get_dimensional() != m_had.get_dimensional())
            score += 50.0;
        const auto sheet = description.get_media_bounds();
        const auto printable = description.get_printable_bounds();
        score += m_sheet_x.distance(sheet->x);
        score += m_sheet_y.distance(sheet->y);
        score += m_printable_x.distance(printable->x_extent());
        score += m_printable_y.distance(printable->y_extent());
        return score;
    }

private:
    const PX_Media_Settings& m_had;
    const wchar_t* m_name;
    Measure m_sheet_x;
    Measure m_sheet_y;
    Measure m_printable_x;
    Measure m_printable_y;
};

double type_score(const PX_Media_Type& type, const PX_Float_XY& had_resolution, long had_drying_time) {
    const auto has = type.get_max_resolution();
    const double x = std::fabs(has->x - had_resolution.x) * 10.0F;
    const double y = std::fabs(has->y - had_resolution.y) * 10.0F;
    return x + y + px_distance_32(type.get_drying_time(), had_drying_time);
}

// Calls `visit(size, description)` for the sizes that the configured entry names, until it gives false.
template <class Visit>
void for_each_size_of_source(const PX_Media_Datum& datum, Visit visit) {
    // The details are texts that hosts know, blanks included.
    const auto source = px_configured_source(datum);
    datum.require_made(source,
                       L"media_caps.get()->get_media_source (media_config.get()->get_media_source())");
    const auto entry = px_configured_entry(datum, source);
    datum.require_made(entry,
                       L"media_caps.get()->get_media_source (media_config.get()->get_media_source()).get()-> "
                       L"get_source_entry (media_config.get()->get_media_source_entry())");
    const auto names = entry->get_media_size_name_list();
    datum.require_made(names,
                       L"media_caps.get()->get_media_source (media_config.get()->get_media_source()).get()-> "
                       L"get_source_entry (media_config.get()->get_media_source_entry()).get()-> "
                       L"get_media_size_name_list()");
    for (const auto& name : *names) {
        if (!px_is_there(name))
            continue;
        const auto size = datum.capabilities->get_media_size(name->get_canonical_name());
        const auto description = px_description_of(datum, size);
        if (px_is_there(size) && px_is_there(description) && !visit(*size, *description))
            return;
    }
}

// The same for all sizes of the device; no list is an empty one.
template <class Visit>
void for_each_size(const PX_Media_Datum& datum, Visit visit) {
    const auto sizes = datum.capabilities->get_media_size_list();
    if (!sizes)
        return;
    for (const auto& size : *sizes) {
        if (!px_is_there(size))
            continue;
        const auto description = px_description_of(datum, size);
        if (px_is_there(description) && !visit(*size, *description))
            return;
    }
}

}  // namespace

double px_media_size_score(const PX_Media_Settings& had, const wchar_t* had_name, const PX_Media_Size& size,
                           const PX_Media_Description& description) {
    return Size_Score(had, had_name).of(size, description);
}

double px_media_type_score(const PX_Media_Settings& had, const PX_Media_Type& type) {
    return type_score(type, *had.get_max_resolution(), had.get_drying_time());
}

double px_media_source_entry_score(const PX_Media_Settings& had, const PX_Media_Source_Entry& entry) {
    const double width = std::fabs(entry.get_source_width() - had.get_source_width());
    const double height = std::fabs(entry.get_source_frame_height() - had.get_source_frame_height());
    return width + height;
}

int px_media_destination_score(const PX_Media_Capabilities& capabilities, const PX_Media_Configuration& had,
                               const PX_Media_Settings& had_settings,
                               const PX_Media_Destination& destination) {
    int mismatches = 0;
    const auto compare = [&](Ability::Enum flag, auto option) {
        if (capabilities.get_one_ability(flag) >= PX_Ability_Value::Ability_Settable_Listed &&
            !px_finishing_stands(had_settings, option()))
            ++mismatches;
    };
    compare(Ability::Ability_Media_Collating,
            [&] { return destination.get_collating(had.get_media_collating()); });
    compare(Ability::Ability_Media_Stapling,
            [&] { return destination.get_stapling(had.get_media_stapling()); });
    compare(Ability::Ability_Media_Cutting, [&] { return destination.get_cutting(had.get_media_cutting()); });
    compare(Ability::Ability_Media_Folding, [&] { return destination.get_folding(had.get_media_folding()); });
    return mismatches;
}

bool PX_Std_Media_Validator::set_size_to_nearest() {
    const PX_Media_Datum datum(m_plotter, L"PX_Std_Media_Validator::set_size_to_nearest");
    const auto had = datum.configuration->get_media_settings();
    datum.require_made(had, L"media_settings");
    const Size_Score score(*had, datum.configuration->get_media_size());
    Best best(worst_score);
    const auto visit = [&](const PX_Media_Size& size, const PX_Media_Description& description) {
        best.offer(score.of(size, description), size);
        return best.score() != 0.0;  // the first identical one ends the search
    };
    if (px_is_by_source(datum))
        for_each_size_of_source(datum, visit);
    else
        for_each_size(datum, visit);
    if (best.score() > 500.0)
        return false;
    const auto size = datum.capabilities->get_media_size(best.name());
    const auto description = px_description_of(datum, size);
    datum.call([&] { datum.configuration->set_media_size(size.get(), description.get()); });
    return true;
}

void PX_Std_Media_Validator::set_type_to_nearest() {
    const PX_Media_Datum datum(m_plotter, L"PX_Std_Media_Validator::set_type_to_nearest");
    const auto had = px_media_snapshot(datum);
    const PX_Float_XY resolution = *had->get_max_resolution();
    Best best(worst_score);
    if (const auto types = datum.capabilities->get_media_type_list()) {
        for (const auto& type : *types) {
            if (!px_is_there(type))
                continue;
            best.offer(type_score(*type, resolution, had->get_drying_time()), *type);
        }
    }
    const auto type = datum.capabilities->get_media_type(best.name());
    datum.call([&] { datum.configuration->set_media_type(type.get()); });
}

// There is no distance between feeds: the first source of the very feed wins, and where there is none the
// setter fails.
void PX_Std_Media_Validator::set_source_to_nearest() {
    const PX_Media_Datum datum(m_plotter, L"PX_Std_Media_Validator::set_source_to_nearest");
    const auto feed = px_media_snapshot(datum)->get_media_feed();
    PX_String name;
    if (const auto sources = datum.capabilities->get_media_source_list()) {
        for (const auto& source : *sources) {
            if (px_is_there(source) && source->get_media_feed() == feed) {
                name = source->get_canonical_name();
                break;
            }
        }
    }
    const auto source = datum.capabilities->get_media_source(name);
    datum.call([&] { datum.configuration->set_media_source(source.get()); });
}

void PX_Std_Media_Validator::set_source_entry_to_nearest() {
    const PX_Media_Datum datum(m_plotter, L"PX_Std_Media_Validator::set_source_entry_to_nearest");
    const auto had = px_media_snapshot(datum);
    const auto source = px_configured_source(datum);
    Best best(worst_score);
    if (const auto entries = source ? source->get_source_entry_list() : nullptr) {
        for (const auto& entry : *entries) {
            if (px_is_there(entry))
                best.offer(px_media_source_entry_score(*had, *entry), *entry);
        }
    }
    const auto entry = source ? source->get_source_entry(best.name()) : nullptr;
    datum.call([&] { datum.configuration->set_media_source_entry(entry.get()); });
}

void PX_Std_Media_Validator::set_destination_to_nearest() {
    const PX_Media_Datum datum(m_plotter, L"PX_Std_Media_Validator::set_destination_to_nearest");
    const auto& cfg = *datum.configuration;
    const auto had = px_media_snapshot(datum);
    Best best(5.0);
    if (const auto destinations = datum.capabilities->get_media_destination_list()) {
        for (const auto& destination : *destinations) {
            if (!px_is_there(destination))
                continue;
            const int mismatches = px_media_destination_score(*datum.capabilities, cfg, *had, *destination);
            best.offer(mismatches, *destination);
            if (mismatches == 0)
                break;
        }
    }
    const auto destination = datum.capabilities->get_media_destination(best.name());
    datum.call([&] { datum.configuration->set_media_destination(destination.get()); });
}
