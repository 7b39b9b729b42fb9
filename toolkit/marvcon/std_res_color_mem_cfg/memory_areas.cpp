#include "toolkit/marvcon/std_res_color_mem_cfg/memory_areas.h"

namespace {

// Takes the names of the areas one after the other.
class Area_Names {
public:
    using Names = PX_Named_Object_List<PX_Caps_Name_List_Object>;

    Area_Names(const PX_ResColorMem_Capabilities& device, const Names& names)
        : m_device(device), m_next(names.begin()), m_end(names.end()) {}

    bool has_next() const { return m_next != m_end; }
    // Null past the end, and for a name that no area has.
    PX_Smart_Pointer<PX_Mem_Area> next() {
        if (!has_next())
            return nullptr;
        const auto& name = *m_next;
        ++m_next;
        return name ? m_device.get_mem_area(name->get_canonical_name()) : nullptr;
    }

private:
    const PX_ResColorMem_Capabilities& m_device;
    Names::const_iterator m_next;
    Names::const_iterator m_end;
};

}  // namespace

bool px_is_memory_of_an_area(const PX_ResColorMem_Capabilities& device, const PX_Resolution& resolution,
                             long memory) {
    const auto list = resolution.get_mem_area_name_list();
    if (!list)
        return false;
    for (Area_Names areas(device, *list); areas.has_next();) {
        if (!areas.next() || !px_is_there(areas.next()))
            continue;
        const auto counted = areas.next();
        if (px_is_there(counted) && counted->get_device_memory() == memory)
            return true;
    }
    return false;
}
