#include "toolkit/report/snapshot.h"

#include <algorithm>

#include "toolkit/core/fields.h"
#include "toolkit/report/data.h"

PX_Configuration_Snapshot::PX_Configuration_Snapshot(const PX_Plotter_Configuration& configuration) {
    constexpr const wchar_t* function = L"PX_Configuration_Snapshot::PX_Configuration_Snapshot";
    for (const PX_Report_Datum& datum : px_report_data(configuration)) {
        PX_Value_Words words = datum.value(configuration);
        m_values.push_back({datum.id, datum.name, std::move(words.exact), std::move(words.shown)});
    }
    using Root = PX_Plotter_Configuration;
    const auto store = [&](auto& field, const auto& source, const wchar_t* detail) {
        px_store_clone(field, source.get(), function, detail, px_report_file);
    };
    store(m_media, px_reported(configuration, &Root::get_media_configuration), L"m_media");
    store(m_pens, px_reported(configuration, &Root::get_phys_pen_configuration), L"m_pens");
    if (const auto had = configuration.get_res_color_mem_configuration()->get_rescolormem_settings())
        store(m_color_settings, had, L"m_color_settings");
}

const PX_Datum_Value* PX_Configuration_Snapshot::find(const PX_Datum_Id& datum) const& {
    const auto found = std::ranges::find(m_values, datum, &PX_Datum_Value::datum);
    return found == m_values.end() ? nullptr : &*found;
}
