#pragma once

#include <cstddef>
#include <memory>

#include "toolkit/host/object.h"
#include "toolkit/host/string.h"
#include "toolkit/platform/win_types.h"

// What a driver does with a font. Drivers name the values; 2 is that of a new record.
enum Capture_Action : int { Capture_Action_2 = 2 };

// Which characters of a font a plot uses, for a driver that sends the font, or its used part, to the device.
// A null text is the empty one. No memory is std::bad_alloc, and what was there stays.
class PX_EXPORT PX_Font_Usage_Data : public PX_Object {
public:
    ~PX_Font_Usage_Data() override;

    // Makes the set of used code points anew, with none in it, also when the flag stays as it is: 8704 of
    // them when true, 65536 when false. A new record says true and has no set: call this first.
    void set_single_byte(bool single_byte);
    bool get_single_byte() const { return m_single_byte; }
    // No code point is used. The set keeps its size.
    void clear_all();
    // A code point that the set has no room for reads as not used and is not set; without a set that is so of
    // every one.
    bool codepoint_used(int codepoint) const {
        return has_room_for(codepoint) && (m_bits[place(codepoint)] & bit(codepoint)) != 0;
    }
    void set_bit(int codepoint) {
        if (has_room_for(codepoint))
            m_bits[place(codepoint)] = static_cast<unsigned char>(m_bits[place(codepoint)] | bit(codepoint));
    }
    // The used code points. Counts them: not for every character.
    int how_many() const;

    // Copies the record, which must not be null; null in a build without debug checks changes nothing.
    void set_logfont(const LOGFONTW* logfont);
    // The record's own copy, null before the first set_logfont; it may be changed in place.
    LOGFONTW* get_logfont() const { return m_logfont.get(); }

    // The keys of the font and of its family, the name shown to the user, and a file that was made for the
    // font.
    const wchar_t* get_canonical_name() const { return m_canonical_name; }
    void set_canonical_name(const wchar_t* name) { m_canonical_name = name; }
    const wchar_t* get_localized_name() const { return m_localized_name; }
    void set_localized_name(const wchar_t* name) { m_localized_name = name; }
    const wchar_t* get_canonical_family_name() const { return m_canonical_family_name; }
    void set_canonical_family_name(const wchar_t* name) { m_canonical_family_name = name; }
    PX_String get_temp_font_filename() const { return m_temp_font_filename; }
    void set_temp_font_filename(const wchar_t* filename) { m_temp_font_filename = filename; }

    Capture_Action get_action() const { return m_action; }
    void set_action(Capture_Action action) { m_action = action; }

    // A copy that has a set even where this record has none. No memory is MVNK_Memory_Exception 1101, detail
    // "new_one".
    PX_Font_Usage_Data* clone() const;

private:
    // One comparison for what is negative, too high, or without a set.
    bool has_room_for(int codepoint) const { return static_cast<std::size_t>(codepoint) < m_room; }
    static std::size_t place(int codepoint) { return static_cast<std::size_t>(codepoint) / 8; }
    static unsigned int bit(int codepoint) { return 1U << (static_cast<unsigned int>(codepoint) % 8); }

    PX_String m_canonical_name;
    PX_String m_localized_name;
    PX_String m_temp_font_filename;
    PX_String m_canonical_family_name;
    bool m_single_byte = true;
    std::unique_ptr<unsigned char[]> m_bits;
    std::size_t m_room = 0;  // in code points
    Capture_Action m_action = Capture_Action_2;
    std::unique_ptr<LOGFONTW> m_logfont;
};
