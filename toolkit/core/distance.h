#pragma once

#include <cstdint>

// How far two numbers of 32 bits lie apart. The difference may wrap round.
inline std::uint32_t px_distance_32(long one, long other) {
    const std::uint32_t difference = static_cast<std::uint32_t>(one) - static_cast<std::uint32_t>(other);
    return static_cast<std::int32_t>(difference) < 0 ? 0U - difference : difference;
}
