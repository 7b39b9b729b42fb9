#include "examples/plot_host/output_words.h"

#include "examples/plot_host/words.h"

namespace plot_host {
namespace {

constexpr Word<PX_IO_Type::Enum> types[] = {
    {"none", PX_IO_Type::No_IO_Type},
    {"driver method", PX_IO_Type::Driver_Method},
    {"driver", PX_IO_Type::Driver_Plain},
    {"file", PX_IO_Type::File},
    {"system driver", PX_IO_Type::Driver_System},
    {"serial", PX_IO_Type::Serial},
    {"parallel", PX_IO_Type::Parallel},
    {"network", PX_IO_Type::Network},
};

using Handshake = PX_Handshake;
constexpr Word<long> handshakes[] = {
    {"XON/XOFF in", Handshake::Handshake_Xon_In},    {"XON/XOFF out", Handshake::Handshake_Xon_Out},
    {"CTS out", Handshake::Handshake_Cts_Out},       {"RTS off", Handshake::Handshake_Rts_Disable},
    {"RTS on", Handshake::Handshake_Rts_Enable},     {"RTS", Handshake::Handshake_Rts_Handshake},
    {"RTS toggle", Handshake::Handshake_Rts_Toggle}, {"DTR off", Handshake::Handshake_Dtr_Disable},
    {"DTR on", Handshake::Handshake_Dtr_Enable},     {"DTR", Handshake::Handshake_Dtr_Handshake},
    {"DSR out", Handshake::Handshake_Dsr_Out},       {"carrier", Handshake::Handshake_Rlsd},
};

}  // namespace

const char* word_of(PX_IO_Type::Enum type) {
    return word_in(types, type, "none");
}

std::optional<PX_IO_Type::Enum> io_type_of(std::string_view word) {
    return value_in(types, word);
}

std::string handshake_words(long handshake) {
    std::string words = take_words(handshakes, handshake, ", ");
    if (handshake != 0)
        words.append(words.empty() ? "" : ", ").append("bits " + std::to_string(handshake));
    return words.empty() ? "none" : words;
}

}  // namespace plot_host
