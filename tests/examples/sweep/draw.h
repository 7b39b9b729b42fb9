#pragma once

#include <random>

#include "toolkit/marvcon/marvcon.h"

// The dice of the sweep: the same numbers in every run.
struct Draw {
    static constexpr unsigned seed = 20230202;

    std::mt19937 numbers{seed};
    // The distributions of the library are not the same everywhere.
    std::size_t below(std::size_t count) { return numbers() % count; }
    bool chance(unsigned of) { return numbers() % of == 0; }

    // Null when there is none.
    template <class List>
    auto one_of(const PX_Smart_Pointer<List>& list) {
        using Entry = std::decay_t<decltype(*list->begin())>;
        if (!list || list->is_empty())
            return Entry();
        std::size_t left = below(static_cast<std::size_t>(list->size()));
        for (const auto& entry : *list) {
            if (left-- == 0)
                return entry;
        }
        return Entry();
    }
};
