#include "examples/common/any_source.h"

void Any_Source_Validator::set_source_to_nearest() {
    const auto roots = m_plotter->get_plotter_capabilities();
    const auto choices = m_plotter->get_plotter_configuration();
    const auto media = roots ? roots->get_media_capabilities() : nullptr;
    const auto chosen = choices ? choices->get_media_configuration() : nullptr;
    const auto had = chosen ? chosen->get_media_settings() : nullptr;
    const auto sources = media ? media->get_media_source_list() : nullptr;
    bool has_feed = false;
    if (had && sources) {
        for (const auto& source : *sources)
            has_feed |= px_is_there(source) && source->get_media_feed() == had->get_media_feed();
    }
    // Where something is missing altogether, the standard operation says so.
    if (has_feed || !had || !sources)
        PX_Std_Media_Validator::set_source_to_nearest();
    else
        px_frame(L"Any_Source_Validator::set_source_to_nearest", [&] { set_source_to_default(); });
}
