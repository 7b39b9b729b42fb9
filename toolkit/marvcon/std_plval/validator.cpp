#include "toolkit/marvcon/std_plval/validator.h"

#include "toolkit/core/frame.h"
#include "toolkit/marvcon/std_plotter_def/factory_interface.h"

namespace {

constexpr const wchar_t* constructor = L"PX_Std_Plotter_Validator::PX_Std_Plotter_Validator";

// The bit of a domain in a mask, if anything changed there.
long domain_bit(long changes, PX_Domain_Mask::Enum domain) {
    return changes ? long{domain} : 0L;
}

template <class Entry>
void remove_user_defined(const PX_Smart_Pointer<PX_Named_Object_List<Entry>>& list) {
    if (list)
        list->remove_if(
            [](const Entry& entry) { return entry.get_caps_type() == PX_Caps_Type::Caps_Type_User; });
}

}  // namespace

PX_Plotter_Validator::~PX_Plotter_Validator() = default;

PX_Std_Plotter_Validator::PX_Std_Plotter_Validator(PX_Plotter_Definition* plotter) : m_plotter(plotter) {
    px_require_argument(plotter, constructor, L"plotter", px_std_plval_source.file_tag);
    const auto factory = plotter->get_class_factory();
    px_require_argument(factory, constructor, L"class_factory", px_std_plval_source.file_tag);
    const auto require = [](const auto& validator, const wchar_t* member) {
        px_require_made(validator, constructor, member, px_std_plval_source.file_tag);
    };
    m_media_validator = factory->MK_Create_Media_Validator(plotter);
    require(m_media_validator, L"m_media_validator");
    m_phys_pen_validator = factory->MK_Create_Pen_Validator(plotter);
    require(m_phys_pen_validator, L"m_phys_pen_validator");
    m_init_term_validator = factory->MK_Create_InitTerm_Validator(plotter);
    require(m_init_term_validator, L"m_init_term_validator");
    m_custom_validator = factory->MK_Create_Custom_Validator(plotter);
    require(m_custom_validator, L"m_custom_validator");
    m_res_color_mem_validator = factory->MK_Create_ResColorMem_Validator(plotter);
    require(m_res_color_mem_validator, L"m_res_color_mem_validator");
    m_io_validator = factory->MK_Create_Plotter_IO_Validator(plotter);
    require(m_io_validator, L"m_io_validator");
}

PX_Std_Plotter_Validator::~PX_Std_Plotter_Validator() = default;

long PX_Std_Plotter_Validator::get_config_changed() const {
    return domain_bit(m_media_cfg_changes, PX_Domain_Mask::Media) |
           domain_bit(m_io_cfg_changes, PX_Domain_Mask::IO) |
           domain_bit(m_phys_pen_cfg_changes, PX_Domain_Mask::Phys_Pens) |
           domain_bit(m_res_color_mem_cfg_changes, PX_Domain_Mask::Res_Color_Mem) |
           domain_bit(m_init_term_cfg_changes, PX_Domain_Mask::Init_Term) |
           domain_bit(m_custom_cfg_changes.size(), PX_Domain_Mask::Custom);
}

long PX_Std_Plotter_Validator::get_caps_changed() const {
    return domain_bit(m_media_caps_changes, PX_Domain_Mask::Media) |
           domain_bit(m_io_caps_changes, PX_Domain_Mask::IO) |
           domain_bit(m_phys_pen_caps_changes, PX_Domain_Mask::Phys_Pens) |
           domain_bit(m_res_color_mem_caps_changes, PX_Domain_Mask::Res_Color_Mem) |
           domain_bit(m_init_term_caps_changes, PX_Domain_Mask::Init_Term) |
           domain_bit(m_raster_caps_changes, PX_Domain_Mask::Raster) |
           domain_bit(m_linetype_caps_changes, PX_Domain_Mask::Linetype) |
           domain_bit(m_custom_caps_changes.size(), PX_Domain_Mask::Custom);
}

long PX_Std_Plotter_Validator::get_media_cfg_changes() const {
    return m_media_cfg_changes;
}

long PX_Std_Plotter_Validator::get_io_cfg_changes() const {
    return m_io_cfg_changes;
}

long PX_Std_Plotter_Validator::get_phys_pen_cfg_changes() const {
    return m_phys_pen_cfg_changes;
}

long PX_Std_Plotter_Validator::get_res_color_mem_cfg_changes() const {
    return m_res_color_mem_cfg_changes;
}

long PX_Std_Plotter_Validator::get_init_term_cfg_changes() const {
    return m_init_term_cfg_changes;
}

long PX_Std_Plotter_Validator::get_media_caps_changes() const {
    return m_media_caps_changes;
}

long PX_Std_Plotter_Validator::get_io_caps_changes() const {
    return m_io_caps_changes;
}

long PX_Std_Plotter_Validator::get_phys_pen_caps_changes() const {
    return m_phys_pen_caps_changes;
}

long PX_Std_Plotter_Validator::get_res_color_mem_caps_changes() const {
    return m_res_color_mem_caps_changes;
}

long PX_Std_Plotter_Validator::get_init_term_caps_changes() const {
    return m_init_term_caps_changes;
}

long PX_Std_Plotter_Validator::get_raster_caps_changes() const {
    return m_raster_caps_changes;
}

long PX_Std_Plotter_Validator::get_linetype_caps_changes() const {
    return m_linetype_caps_changes;
}

void PX_Std_Plotter_Validator::set_media_cfg_changes(long changes) {
    m_media_cfg_changes = changes;
}

void PX_Std_Plotter_Validator::set_io_cfg_changes(long changes) {
    m_io_cfg_changes = changes;
}

void PX_Std_Plotter_Validator::set_phys_pen_cfg_changes(long changes) {
    m_phys_pen_cfg_changes = changes;
}

void PX_Std_Plotter_Validator::set_res_color_mem_cfg_changes(long changes) {
    m_res_color_mem_cfg_changes = changes;
}

void PX_Std_Plotter_Validator::set_init_term_cfg_changes(long changes) {
    m_init_term_cfg_changes = changes;
}

void PX_Std_Plotter_Validator::set_media_caps_changes(long changes) {
    m_media_caps_changes = changes;
}

void PX_Std_Plotter_Validator::set_io_caps_changes(long changes) {
    m_io_caps_changes = changes;
}

void PX_Std_Plotter_Validator::set_phys_pen_caps_changes(long changes) {
    m_phys_pen_caps_changes = changes;
}

void PX_Std_Plotter_Validator::set_res_color_mem_caps_changes(long changes) {
    m_res_color_mem_caps_changes = changes;
}

void PX_Std_Plotter_Validator::set_init_term_caps_changes(long changes) {
    m_init_term_caps_changes = changes;
}

void PX_Std_Plotter_Validator::set_raster_caps_changes(long changes) {
    m_raster_caps_changes = changes;
}

void PX_Std_Plotter_Validator::set_linetype_caps_changes(long changes) {
    m_linetype_caps_changes = changes;
}

bool PX_Std_Plotter_Validator::get_one_custom_cfg_change(const wchar_t* name) const {
    return m_custom_cfg_changes.find(name) != nullptr;
}

void PX_Std_Plotter_Validator::set_one_custom_cfg_change(const wchar_t* name) {
    m_custom_cfg_changes.append(name);
}

bool PX_Std_Plotter_Validator::get_one_custom_caps_change(const wchar_t* name) const {
    return m_custom_caps_changes.find(name) != nullptr;
}

void PX_Std_Plotter_Validator::set_one_custom_caps_change(const wchar_t* name) {
    m_custom_caps_changes.append(name);
}

void PX_Std_Plotter_Validator::clear_all_flags() {
    m_media_cfg_changes = 0;
    m_io_cfg_changes = 0;
    m_phys_pen_cfg_changes = 0;
    m_res_color_mem_cfg_changes = 0;
    m_init_term_cfg_changes = 0;
    m_media_caps_changes = 0;
    m_io_caps_changes = 0;
    m_phys_pen_caps_changes = 0;
    m_res_color_mem_caps_changes = 0;
    m_init_term_caps_changes = 0;
    m_raster_caps_changes = 0;
    m_linetype_caps_changes = 0;
    m_custom_cfg_changes.clear();
    m_custom_caps_changes.clear();
}

void PX_Std_Plotter_Validator::set_all_to_defaults() {
    // The name in the trace differs from the operation's on purpose.
    px_frame(L"PX_Std_Plotter_Validator::set_all_default", [&] {
        m_media_validator->set_all_media_to_defaults();
        m_phys_pen_validator->set_all_physpen_to_defaults();
        m_res_color_mem_validator->set_all_res_color_mem_to_defaults();
        m_custom_validator->set_all_custom_to_defaults();
        m_init_term_validator->set_all_init_term_to_defaults();
        m_io_validator->set_all_io_to_defaults();
    });
}

void PX_Std_Plotter_Validator::set_selected_to_defaults(long mask) {
    px_frame(L"PX_Std_Plotter_Validator::set_selected_to_defaults", [&] {
        if (mask & PX_Domain_Mask::Media)
            m_media_validator->set_all_media_to_defaults();
        if (mask & PX_Domain_Mask::IO)
            m_io_validator->set_all_io_to_defaults();
        if (mask & PX_Domain_Mask::Phys_Pens)
            m_phys_pen_validator->set_all_physpen_to_defaults();
        if (mask & PX_Domain_Mask::Res_Color_Mem)
            m_res_color_mem_validator->set_all_res_color_mem_to_defaults();
        if (mask & PX_Domain_Mask::Init_Term)
            m_init_term_validator->set_all_init_term_to_defaults();
        if (mask & PX_Domain_Mask::Custom)
            m_custom_validator->set_all_custom_to_defaults();
    });
}

void PX_Std_Plotter_Validator::set_selected_rescolormem_data_to_defaults() {
    px_frame(L"PX_Std_Plotter_Validator::set_selected_rescolormem_data_to_defaults", [&] {
        using RCM = PX_ResColorMem_Validator;
        // The memory limits, the raster preference and the line overwriting stay out of this on purpose; the
        // memory area and the dithering mode are there for the sake of derived validators.
        for (const auto set_to_default :
             {&RCM::set_res_color_mem_to_default, &RCM::set_mem_area_to_default,
              &RCM::set_resolution_to_default, &RCM::set_HardSoftNo_Dithering_to_default,
              &RCM::set_installed_memory_to_default, &RCM::set_dithering_mode_to_default,
              &RCM::set_icm_method_to_default, &RCM::set_icm_intent_to_default, &RCM::set_dm_color_to_default,
              &RCM::set_color_vs_mono_to_default})
            ((*m_res_color_mem_validator).*set_to_default)();
    });
}

bool PX_Std_Plotter_Validator::delete_user_defined_caps(long mask) {
    const auto capabilities = m_plotter->get_plotter_capabilities();
    if (!capabilities)
        return false;
    if (!(mask & PX_Domain_Mask::Media))
        return true;
    if (const auto media = capabilities->get_media_capabilities()) {
        remove_user_defined(media->get_media_size_list());
        remove_user_defined(media->get_media_description_list());
    }
    return true;
}
