#include "toolkit/marvcon/std_media_cfg/configuration.h"

#include <new>

#include "toolkit/core/clone.h"
#include "toolkit/core/fields.h"
#include "toolkit/core/frame.h"
#include "toolkit/marvcon/std_media_cfg/catalogue.h"
#include "toolkit/marvcon/std_media_cfg/settings.h"

using Settings = PX_Media_Settings;

// The words that a setter of a catalogue object fails with.
struct PX_Std_Media_Configuration::Choice {
    const wchar_t* function;
    const wchar_t* detail;
};

namespace {

constexpr const wchar_t* file_tag = px_std_media_cfg_source.file_tag;

// Width and height exchanged about the same lower corner. The extents count both ends.
PX_Float_Rectangle turned(PX_Float_Rectangle bounds) {
    const float width = bounds.x_extent();
    const float height = bounds.y_extent();
    bounds.x_max = (bounds.x_min + height) - 1.0F;
    bounds.y_max = (bounds.y_min + width) - 1.0F;
    return bounds;
}

}  // namespace

PX_Media_Configuration::~PX_Media_Configuration() = default;

PX_Std_Media_Configuration::PX_Std_Media_Configuration() : m_settings(new PX_Std_Media_Settings) {
    if (!m_settings)
        throw std::bad_alloc();
}

// A null object empties the name and leaves all else. The settings may fail: the name then stays written and
// the flags as they were.
template <class Object>
void PX_Std_Media_Configuration::choose(PX_String& name, const Object* object,
                                        void (Settings::*set_settings)(const Object*), Datum::Enum datum,
                                        const Choice& choice) {
    px_store_choice(name, object, choice.function, choice.detail, file_tag);
    px_memory_frame(choice.function, [&] { ((*m_settings).*set_settings)(object); });
    clear_flags_of(datum);
}

// A change of finishing asks for the destination to be checked again; its default flag stays.
template <class Object>
void PX_Std_Media_Configuration::choose_finishing(PX_String& name, const Object* object,
                                                  void (Settings::*set_settings)(const Object*),
                                                  Datum::Enum datum, const Choice& choice) {
    choose(name, object, set_settings, datum, choice);
    set_one_validated(false, Datum::Cfg_Media_Destination);
}

void PX_Std_Media_Configuration::set_media_selection_method(PX_Media_Selection_Method::Enum method) {
    m_selection_method = method;
    clear_flags_of(Datum::Cfg_Selection_Method);
}

void PX_Std_Media_Configuration::set_media_type(const PX_Media_Type* type) {
    choose(m_type, type, &Settings::set_media_type_settings, Datum::Cfg_Media_Type,
           {L"PX_Std_Media_Configuration::set_media_type", L"newtype"});
}

void PX_Std_Media_Configuration::set_media_source(const PX_Media_Source* source) {
    choose(m_source, source, &Settings::set_media_source_settings, Datum::Cfg_Media_Source,
           {L"PX_Std_Media_Configuration::set_media_source", L"newsource"});
}

void PX_Std_Media_Configuration::set_media_source_entry(const PX_Media_Source_Entry* entry) {
    choose(m_source_entry, entry, &Settings::set_media_source_entry_settings, Datum::Cfg_Media_Source_Entry,
           {L"PX_Std_Media_Configuration::set_media_source_entry", L"newentry"});
}

void PX_Std_Media_Configuration::set_media_size(const PX_Media_Size* size,
                                                const PX_Media_Description* description) {
    constexpr const wchar_t* function = L"PX_Std_Media_Configuration::set_media_size";
    if (!size || !description)
        m_size = nullptr;
    px_require_argument(size && description, function, L"newsize", file_tag);
    px_memory_frame(function, [&] {
        m_size = size->get_canonical_name();
        m_settings->set_media_size_settings(size);
        m_settings->set_media_description_settings(description);
        lay_printable_bounds();
    });
    clear_flags_of(Datum::Cfg_Media_Size);
}

// The actual printable bounds are those of the snapshot as they lie under the dm orientation.
void PX_Std_Media_Configuration::lay_printable_bounds() {
    PX_Float_Rectangle bounds = *m_settings->get_printable_bounds();
    if (m_dm_orientation == PX_Dm_Orientation::Dm_Orientation_Turned)
        bounds = turned(bounds);
    set_actual_printable_bounds(&bounds);
}

void PX_Std_Media_Configuration::set_media_destination(const PX_Media_Destination* destination) {
    choose(m_destination, destination, &Settings::set_media_destination_settings,
           Datum::Cfg_Media_Destination, {L"PX_Std_Media_Configuration::set_media_destination", L"newdest"});
}

void PX_Std_Media_Configuration::set_media_collating(const PX_Media_Collating* collating) {
    choose_finishing(m_collating, collating, &Settings::set_media_collating_settings,
                     Datum::Cfg_Media_Collating,
                     {L"PX_Std_Media_Configuration::set_media_collating", L"newcollate"});
}

void PX_Std_Media_Configuration::set_media_stapling(const PX_Media_Stapling* stapling) {
    choose_finishing(m_stapling, stapling, &Settings::set_media_stapling_settings, Datum::Cfg_Media_Stapling,
                     {L"PX_Std_Media_Configuration::set_media_stapling", L"newstaple"});
}

void PX_Std_Media_Configuration::set_media_cutting(const PX_Media_Cutting* cutting) {
    choose_finishing(m_cutting, cutting, &Settings::set_media_cutting_settings, Datum::Cfg_Media_Cutting,
                     {L"PX_Std_Media_Configuration::set_media_cutting", L"newcut"});
}

void PX_Std_Media_Configuration::set_media_folding(const PX_Media_Folding* folding) {
    choose_finishing(m_folding, folding, &Settings::set_media_folding_settings, Datum::Cfg_Media_Folding,
                     {L"PX_Std_Media_Configuration::set_media_folding", L"newfold"});
}

// No flag is cleared: the settings are what the choices were like, not a choice.
void PX_Std_Media_Configuration::set_media_settings(const PX_Media_Settings* settings) {
    constexpr const wchar_t* function = L"PX_Std_Media_Configuration::set_media_settings";
    px_require_argument(settings, function, L"settings", file_tag);
    PX_Media_Settings* const clone = px_memory_frame(function, [&] { return settings->clone(); });
    px_store_made(m_settings, clone, function, L"settings", file_tag);
}

void PX_Std_Media_Configuration::set_number_of_copies(long copies) {
    m_number_of_copies = copies;
    clear_flags_of(Datum::Cfg_Number_Of_Copies);
}

void PX_Std_Media_Configuration::set_duplexing_mode(PX_Duplexing_Mode::Enum mode) {
    m_duplexing_mode = mode;
    clear_flags_of(Datum::Cfg_Duplexing);
}

void PX_Std_Media_Configuration::set_margins(const PX_Float_Rectangle* margins) {
    px_store_value(m_margins, margins, L"PX_Std_Media_Configuration::set_margins", L"m_margins", file_tag);
    clear_flags_of(Datum::Cfg_Margins);
}

void PX_Std_Media_Configuration::set_longplot_reduction(double factor) {
    m_longplot_reduction = factor;
    clear_flags_of(Datum::Cfg_Longplot_Reduction);
}

void PX_Std_Media_Configuration::set_dm_scale(long percent) {
    m_dm_scale = percent;
    clear_flags_of(Datum::Cfg_Dm_Scale);
}

void PX_Std_Media_Configuration::set_dm_orientation(long orientation) {
    m_dm_orientation = orientation;
    px_memory_frame(L"PX_Std_Media_Configuration::set_dm_orientation", [&] { lay_printable_bounds(); });
    clear_flags_of(Datum::Cfg_Dm_Orientation);
}

void PX_Std_Media_Configuration::set_actual_printable_bounds(const PX_Float_Rectangle* bounds) {
    px_store_value(m_actual_printable_bounds, bounds,
                   L"PX_Std_Media_Configuration::set_actual_printable_bounds", L"m_actual_printable_bounds",
                   file_tag);
    clear_flags_of(Datum::Cfg_Actual_Printable_Bounds);
}

namespace {

// Catalogue objects that carry nothing but the name: the setters want objects.
template <class Object>
struct Named : Object {
    explicit Named(const wchar_t* name) { this->set_canonical_name(name); }
};

}  // namespace

PX_Media_Configuration* PX_Std_Media_Configuration::clone() const {
    return px_clone<PX_Std_Media_Configuration>(
        L"PX_Std_Media_Configuration::clone", file_tag, [this](auto& new_one) {
            new_one.set_media_selection_method(m_selection_method);
            const PX_Std_Media_Settings blank;
            new_one.set_media_settings(&blank);
            const Named<PX_Std_Media_Type> type(m_type);
            new_one.set_media_type(&type);
            const Named<PX_Std_Media_Source> source(m_source);
            new_one.set_media_source(&source);
            const Named<PX_Std_Media_Source_Entry> entry(m_source_entry);
            new_one.set_media_source_entry(&entry);
            const Named<PX_Std_Media_Size> size(m_size);
            const PX_Std_Media_Description description;
            new_one.set_media_size(&size, &description);
            const Named<PX_Std_Media_Destination> destination(m_destination);
            new_one.set_media_destination(&destination);
            const Named<PX_Std_Media_Folding> folding(m_folding);
            new_one.set_media_folding(&folding);
            const Named<PX_Std_Media_Cutting> cutting(m_cutting);
            new_one.set_media_cutting(&cutting);
            const Named<PX_Std_Media_Collating> collating(m_collating);
            new_one.set_media_collating(&collating);
            const Named<PX_Std_Media_Stapling> stapling(m_stapling);
            new_one.set_media_stapling(&stapling);
            new_one.set_media_settings(m_settings.get());
            new_one.set_number_of_copies(m_number_of_copies);
            new_one.set_duplexing_mode(m_duplexing_mode);
            new_one.set_margins(m_margins.get());
            new_one.set_longplot_reduction(m_longplot_reduction);
            new_one.set_dm_scale(m_dm_scale);
            new_one.set_dm_orientation(m_dm_orientation);
            new_one.set_actual_printable_bounds(m_actual_printable_bounds.get());
            // After the setters, which clear them.
            copy_flags_to(new_one);
        });
}
