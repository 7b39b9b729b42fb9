#include <cstdint>
#include <cwchar>
#include <limits>
#include <string>
#include <utility>

#include "toolkit/core/atomic_list.h"
#include "toolkit/core/fields.h"
#include "toolkit/marvcon/std_phys_pen_cfg/domain.h"
#include "toolkit/marvcon/std_phys_pen_cfg/validator.h"
#include "toolkit/marvcon/std_plotter_def/factory_interface.h"
#include "toolkit/marvcon/std_plval/datum.h"

// The list of pens: each pen within the limits, and the list in line with the number of pens.

using Datum = PX_Pen_Config_Flags;
using Pen_Datum = PX_Datum<PX_Pen_Domain>;
using Pen_List = PX_Named_Object_List<PX_Pen>;
using Strategy = PX_Validation_Strategy;

namespace {

constexpr const wchar_t* file_tag = px_std_phys_pen_cfg_source.file_tag;
constexpr const wchar_t* synchronize = L"PX_Std_PhysPen_Validator::synchronize_pen_list";

// The number that a name begins with, held within 32 bits; 0 for a name of letters.
long number_of(const PX_Pen& pen) {
    const wchar_t* const name = pen.get_canonical_name();
    const long number = name ? std::wcstol(name, nullptr, 10) : 0;
    using Limits = std::numeric_limits<std::int32_t>;
    return number < Limits::min() ? Limits::min() : number > Limits::max() ? Limits::max() : number;
}

// Makes lists and pens by the definition's class factory.
class Maker {
public:
    Maker(const PX_Plotter_Definition* plotter, const wchar_t* function) : m_function(function) {
        if (plotter)
            m_factory = plotter->get_class_factory();
    }

    PX_Smart_Pointer<Pen_List> empty_list() const {
        PX_Smart_Pointer<Pen_List> list;
        px_store_made(list, factory().MK_Create_Pen_List(), m_function, L"workpenlist", file_tag);
        return list;
    }

    // Puts a pen of that number with the device's default width and speed at the head.
    void add_pen(Pen_List& list, long number, const PX_PhysPen_Capabilities& capabilities) const {
        PX_Smart_Pointer<PX_Pen> pen;
        px_store_made(pen, factory().MK_Create_Pen(), m_function, L"workpen", file_tag);
        px_frame(m_function, [&] {
            pen->set_pen_width(capabilities.get_default_pen_width());
            pen->set_pen_speed(capabilities.get_default_pen_speed());
            pen->set_canonical_name(std::to_wstring(number).c_str());
        });
        list.prepend(std::move(pen));
    }

private:
    const PX_Plotter_Class_Factory& factory() const {
        px_require_argument(m_factory, m_function, L"class_factory", file_tag);
        return *m_factory;
    }

    PX_Smart_Pointer<PX_Plotter_Class_Factory> m_factory;
    const wchar_t* m_function;
};

PX_Smart_Pointer<Pen_List> copy_of(const PX_Smart_Pointer<Pen_List>& list, const wchar_t* function) {
    PX_Smart_Pointer<Pen_List> copy;
    px_store_list(copy, list.get(), function, L"workpenlist", file_tag);
    return copy;
}

// Runs what adds to lists, where there may be no memory for a place in them or for the name of a pen.
template <class Call>
void build_list(const wchar_t* function, Call&& call) {
    px_with_memory(function, L"workpenlist", file_tag, call);
}

// Puts a number outside the limits on the nearer of them or to the default; true when it was outside.
bool repair(float& number, float least, float greatest, float by_default, Strategy::Enum strategy) {
    const bool is_below = number < least;
    if (!is_below && !(number > greatest))
        return false;
    const float nearest = is_below ? least : greatest;
    number = strategy == Strategy::Use_Nearest ? nearest : by_default;
    return true;
}

bool repair_pen(PX_Pen& pen, const PX_PhysPen_Capabilities& device, Strategy::Enum strategy) {
    float width = pen.get_pen_width();
    float speed = pen.get_pen_speed();
    const bool is_width_repaired = repair(width, device.get_min_pen_width(), device.get_max_pen_width(),
                                          device.get_default_pen_width(), strategy);
    const bool is_speed_repaired = repair(speed, device.get_min_pen_speed(), device.get_max_pen_speed(),
                                          device.get_default_pen_speed(), strategy);
    if (is_width_repaired)
        pen.set_pen_width(width);
    if (is_speed_repaired)
        pen.set_pen_speed(speed);
    return is_width_repaired || is_speed_repaired;
}

}  // namespace

void PX_Std_PhysPen_Validator::validate_pen_list(Strategy::Enum strategy) {
    constexpr const wchar_t* function = L"PX_Std_PhysPen_Validator::validate_pen_list";
    const Pen_Datum datum(m_plotter, function);
    bool is_changed = false;
    if (const auto list = datum.configuration->get_physical_pen_list(); list && !list->is_empty()) {
        // The configuration's own pens keep their values until the whole list is stored.
        const auto repaired = copy_of(list, function);
        datum.call([&] {
            for (const auto& pen : *repaired) {
                if (pen)
                    is_changed |= repair_pen(*pen, *datum.capabilities, strategy);
            }
            if (is_changed)
                datum.configuration->set_physical_pen_list(repaired.get());
        });
    }
    datum.call([&] { is_changed |= synchronize_pen_list(datum.capabilities, datum.configuration); });
    if (is_changed)
        datum.raise(PX_Pen_Change::List);
    // Last: storing the list has cleared it.
    datum.settle(Datum::Pen_Config_List);
}

bool PX_Std_PhysPen_Validator::synchronize_pen_list(
    PX_Smart_Pointer<PX_PhysPen_Capabilities> capabilities,
    PX_Smart_Pointer<PX_PhysPen_Configuration> configuration) {
    px_require_argument(capabilities && configuration, synchronize, PX_Pen_Domain::domain_missing, file_tag);
    const Maker maker(m_plotter, synchronize);
    const auto store = [&](const Pen_List* list) {
        px_frame(synchronize, [&] { configuration->set_physical_pen_list(list); });
    };
    const long number = configuration->get_number_of_physical_pens();
    const auto configured = configuration->get_physical_pen_list();
    if (number == 0) {
        if (!configured || configured->is_empty())
            return false;
        store(maker.empty_list().get());
        return true;
    }

    const auto pens = configured ? copy_of(configured, synchronize) : maker.empty_list();
    bool is_changed = false;
    build_list(synchronize, [&] {
        // The limit is what the device can have, not the configured number: a pen between the two stays.
        const long most = capabilities->get_max_number_of_physical_pens();
        PX_Searchable_Atomic_Object_List<long> seen;
        pens->remove_if([&](const PX_Pen& pen) {
            const long its_number = number_of(pen);
            if (its_number < 1 || its_number > most || seen.find(its_number)) {
                is_changed = true;
                return true;
            }
            seen.prepend(its_number);
            return false;
        });
        if (seen.size() == number)
            return;
        for (long i = 1; i <= number; ++i) {
            if (seen.find(i))
                continue;
            maker.add_pen(*pens, i, *capabilities);
            is_changed = true;
        }
    });
    if (is_changed)
        store(pens.get());
    return is_changed;
}

void PX_Std_PhysPen_Validator::set_pen_list_to_default() {
    constexpr const wchar_t* function = L"PX_Std_PhysPen_Validator::set_pen_list_to_default";
    const Pen_Datum datum(m_plotter, function);
    PX_Smart_Pointer<Pen_List> pens;
    if (datum.is_required(PX_Pen_Ability_Flags::Pen_Ability_List)) {
        const Maker maker(m_plotter, function);
        pens = maker.empty_list();
        build_list(function, [&] {
            const long number = datum.configuration->get_number_of_physical_pens();
            for (long i = 1; i <= number; ++i)
                maker.add_pen(*pens, i, *datum.capabilities);
        });
    }
    datum.call([&] { datum.configuration->set_physical_pen_list(pens.get()); });
    datum.settle_default(Datum::Pen_Config_List);
}
