#include "examples/plot_host/output_words.h"

#include <algorithm>
#include <iterator>

namespace plot_host {
namespace {

struct Type_Word {
    const char* word;
    PX_IO_Type::Enum type;
};
constexpr Type_Word types[] = {
    {"none", PX_IO_Type::No_IO_Type},
    {"driver method", PX_IO_Type::Driver_Method},
    {"driver", PX_IO_Type::Driver_Plain},
    {"file", PX_IO_Type::File},
    {"system driver", PX_IO_Type::Driver_System},
    {"serial", PX_IO_Type::Serial},
    {"parallel", PX_IO_Type::Parallel},
    {"network", PX_IO_Type::Network},
};

struct Handshake_Word {
    const char* word;
    long bit;
};
using Handshake = PX_Handshake;
constexpr Handshake_Word handshakes[] = {
    {"XON/XOFF in", Handshake::Handshake_Xon_In},    {"XON/XOFF out", Handshake::Handshake_Xon_Out},
    {"CTS out", Handshake::Handshake_Cts_Out},       {"RTS off", Handshake::Handshake_Rts_Disable},
    {"RTS on", Handshake::Handshake_Rts_Enable},     {"RTS", Handshake::Handshake_Rts_Handshake},
    {"RTS toggle", Handshake::Handshake_Rts_Toggle}, {"DTR off", Handshake::Handshake_Dtr_Disable},
    {"DTR on", Handshake::Handshake_Dtr_Enable},     {"DTR", Handshake::Handshake_Dtr_Handshake},
    {"DSR out", Handshake::Handshake_Dsr_Out},       {"carrier", Handshake::Handshake_Rlsd},
};

}  // namespace

const char* word_of(PX_IO_Type::Enum type) {
    const auto found = std::ranges::find(types, type, &Type_Word::type);
    return found == std::end(types) ? types[0].word : found->word;
}

std::optional<PX_IO_Type::Enum> io_type_of(std::string_view word) {
    const auto found = std::ranges::find(types, word, &Type_Word::word);
    if (found == std::end(types))
        return std::nullopt;
    return found->type;
}

std::string handshake_words(long handshake) {
    std::string words;
    for (const auto& [word, bit] : handshakes) {
        if (handshake & bit)
            words.append(words.empty() ? "" : ", ").append(word);
        handshake &= ~bit;
    }
    if (handshake != 0)
        words.append(words.empty() ? "" : ", ").append("bits " + std::to_string(handshake));
    return words.empty() ? "none" : words;
}

}  // namespace plot_host
