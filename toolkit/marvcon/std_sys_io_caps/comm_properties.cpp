#include <cwchar>
#include <iterator>
#include <utility>

#include "toolkit/core/error_resources.h"
#include "toolkit/core/fields.h"
#include "toolkit/marvcon/std_io_cfg/catalogue.h"
#include "toolkit/marvcon/std_io_cfg/line_settings.h"
#include "toolkit/marvcon/std_sys_io_caps/capabilities.h"

// What a serial line can be set to: the numbers of a COMMPROP record as rates and protocols.

namespace {

// Failures carry the constructor's name.
constexpr const wchar_t* constructor = L"PX_Std_System_IO_Capabilities::PX_Std_System_IO_Capabilities()";
constexpr const wchar_t* file_tag = px_std_sys_io_caps_source.file_tag;

bool is_taken(unsigned long mask, unsigned long fixed, unsigned long settable) {
    return ((fixed ? fixed : settable) & mask) != 0;
}

// The letters of the parities in the user's language, by their numbers.
struct Localized_Letters {
    Localized_Letters() {
        constexpr unsigned int first_text = 1105;
        for (const auto& parity : px_parities) {
            wchar_t(&letter)[capacity] = letters[parity.value];
            const unsigned int text = first_text + static_cast<unsigned int>(parity.value);
            if (px_load_mvn_text(text, letter, capacity) == 0)
                std::wcscpy(letter, parity.text);
        }
    }

    static constexpr int capacity = 11;
    wchar_t letters[std::size(px_parities)][capacity];
};

PX_Smart_Pointer<PX_Protocol> new_protocol(const PX_Framing& framing, const wchar_t* localized_letter) {
    PX_Smart_Pointer<PX_Protocol> protocol;
    px_store_made<PX_Protocol>(protocol, new PX_Std_Protocol, constructor, L"new_proto", file_tag);
    protocol->set_data_bits(framing.bits.value);
    protocol->set_parity(framing.parity.value);
    protocol->set_stop_bits(framing.stop.value);
    protocol->set_canonical_name(framing.name().c_str());
    protocol->set_localized_name(framing.name(localized_letter).c_str());
    return protocol;
}

}  // namespace

long PX_Std_System_IO_Capabilities::win_b_rate_to_long(unsigned long mask) {
    switch (mask) {
        case 0x1:
            return 75;
        case 0x2:
            return 110;
        case 0x4:
            return 134;
        case 0x8:
            return 150;
        case 0x10:
            return 300;
        case 0x20:
            return 600;
        case 0x40:
            return 1200;
        case 0x80:
            return 1800;
        case 0x100:
            return 2400;
        case 0x200:
            return 4800;
        case 0x400:
            return 7200;
        case 0x800:
            return 9600;
        case 0x1000:
            return 14400;
        case 0x2000:
            return 19200;
        case 0x4000:
            return 38400;
        // The numbers of these two are not those that their names suggest.
        case 0x8000:
            return 57344;
        case 0x10000:
            return 131072;
        case 0x20000:
            return 115200;
        case 0x40000:
            return 57600;
        default:
            return 0;
    }
}

void PX_Std_System_IO_Capabilities::add_b_rate(unsigned long mask, const COMMPROP& record,
                                               PX_Smart_Pointer<PX_Object_List<PX_Baud_Rate>> list) {
    // The two bits are compared, not their rates: 57600 drops out where the largest is 115200.
    if (!(record.dwSettableBaud & mask) || mask > record.dwMaxBaud)
        return;
    PX_Smart_Pointer<PX_Baud_Rate> rate;
    px_store_made<PX_Baud_Rate>(rate, new PX_Std_Baud_Rate, constructor, L"new_baud", file_tag);
    rate->set_baud_rate(win_b_rate_to_long(mask));
    px_with_memory(constructor, L"new_baud", file_tag, [&] { list->prepend(std::move(rate)); });
}

void PX_Std_System_IO_Capabilities::set_up_protocols(unsigned long data_bits, unsigned long parity,
                                                     unsigned long stop_bits,
                                                     PX_Smart_Pointer<PX_Named_Object_List<PX_Protocol>> list,
                                                     const COMMPROP& record) {
    const auto is_wanted = [&](const PX_Framing& framing) {
        return is_taken(framing.bits.mask, data_bits, record.wSettableData) &&
               is_taken(framing.parity.mask, parity, record.wSettableStopParity) &&
               is_taken(framing.stop.mask, stop_bits, record.wSettableStopParity);
    };
    px_with_memory(constructor, L"new_proto", file_tag, [&] {
        const Localized_Letters localized;
        for (const PX_Framing& framing : px_framings) {
            if (is_wanted(framing))
                list->prepend(new_protocol(framing, localized.letters[framing.parity.value]));
        }
    });
}
