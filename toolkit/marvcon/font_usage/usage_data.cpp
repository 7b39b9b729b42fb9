#include "toolkit/marvcon/font_usage/usage_data.h"

#include <algorithm>
#include <bit>
#include <cassert>

#include "toolkit/core/clone.h"

namespace {

constexpr std::size_t single_byte_room = 8704;
constexpr std::size_t double_byte_room = 65536;

}  // namespace

PX_Font_Usage_Data::~PX_Font_Usage_Data() = default;

void PX_Font_Usage_Data::set_single_byte(bool single_byte) {
    const std::size_t room = single_byte ? single_byte_room : double_byte_room;
    m_bits = std::make_unique<unsigned char[]>(room / 8);
    m_room = room;
    m_single_byte = single_byte;
}

void PX_Font_Usage_Data::clear_all() {
    std::fill_n(m_bits.get(), m_room / 8, static_cast<unsigned char>(0));
}

int PX_Font_Usage_Data::how_many() const {
    int used = 0;
    for (std::size_t i = 0; i < m_room / 8; ++i)
        used += std::popcount(m_bits[i]);
    return used;
}

void PX_Font_Usage_Data::set_logfont(const LOGFONTW* logfont) {
    assert(logfont);
    if (!logfont)
        return;
    if (!m_logfont)
        m_logfont = std::make_unique<LOGFONTW>();
    *m_logfont = *logfont;
}

PX_Font_Usage_Data* PX_Font_Usage_Data::clone() const {
    // The file text of this class has no revision.
    return px_clone<PX_Font_Usage_Data>(L"PX_Font_Usage_Data::clone", L"$Workfile: FONTEM $",
                                        [this](auto& new_one) {
                                            new_one.set_canonical_name(get_canonical_name());
                                            new_one.set_localized_name(get_localized_name());
                                            new_one.set_single_byte(get_single_byte());
                                            new_one.set_action(get_action());
                                            std::copy_n(m_bits.get(), m_room / 8, new_one.m_bits.get());
                                            if (m_logfont)
                                                new_one.set_logfont(m_logfont.get());
                                            new_one.set_canonical_family_name(get_canonical_family_name());
                                            new_one.set_temp_font_filename(m_temp_font_filename);
                                        });
}
