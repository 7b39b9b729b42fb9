#pragma once

#include <array>
#include <bit>
#include <climits>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <limits>
#include <span>
#include <string>
#include <type_traits>

// What a fuzz program does with its input. The engine calls it; so does run_corpus.cpp for the kept cases.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size);

namespace fuzz {

// Ends the program where something does not hold that has to.
inline void require(bool holds, const char* what) {
    if (holds)
        return;
    std::fprintf(stderr, "does not hold: %s\n", what);
    std::abort();
}

// Makes decisions out of the input's bytes. Behind their end every decision is the first one and every number
// 0, so that whatever counts by them ends.
class Input {
public:
    Input(const std::uint8_t* bytes, std::size_t size) : m_left(bytes, size) {}

    bool is_empty() const { return m_left.empty(); }
    std::uint8_t byte() {
        if (m_left.empty())
            return 0;
        const std::uint8_t first = m_left.front();
        m_left = m_left.subspan(1);
        return first;
    }
    // From 0 to `most`, which is at most 255.
    int up_to(int most) { return byte() % (most + 1); }
    bool flag() { return up_to(1) != 0; }
    // One time in so many.
    bool rarely(int times = 8) { return up_to(times - 1) == times - 1; }

    // Mostly small, sometimes at an end of a type, sometimes anything.
    template <class Number = long>
    Number number() {
        constexpr std::array<long, 10> ends = {-1,       -2,       INT_MAX,  INT_MIN,  LONG_MAX,
                                               LONG_MIN, SHRT_MAX, SHRT_MIN, UINT_MAX, LONG_MAX - 1};
        long result = 0;
        switch (const int kind = up_to(7)) {
            case 5:
                return byte();
            case 6:
                result = ends[static_cast<std::size_t>(up_to(ends.size() - 1))];
                break;
            case 7:
                for (std::size_t at = 0; at < sizeof result; ++at)
                    result = static_cast<long>(static_cast<unsigned long>(result) << 8 | byte());
                break;
            default:
                result = kind;
        }
        return static_cast<Number>(result);
    }
    // As a measure: mostly one of a few, sometimes one that is no number or hardly one.
    float real() {
        constexpr std::array<float, 7> usual = {0, 1, 100, 210, 210.5F, 297, 420};
        using Limits = std::numeric_limits<float>;
        constexpr std::array<float, 7> odd = {Limits::quiet_NaN(),
                                              Limits::infinity(),
                                              -Limits::infinity(),
                                              Limits::max(),
                                              Limits::lowest(),
                                              Limits::min(),
                                              -0.0F};
        switch (up_to(9)) {
            case 7:
                return static_cast<float>(number<short>()) / 10;
            case 8:
                return odd[static_cast<std::size_t>(up_to(odd.size() - 1))];
            case 9:
                return std::bit_cast<float>(number<std::uint32_t>());
            default:
                return usual[static_cast<std::size_t>(up_to(usual.size() - 1))];
        }
    }
    // Out of a pool that is small enough for two to meet.
    const wchar_t* name() {
        constexpr std::array names = {L"a", L"b", L"a", L"b", L"c", L"", L"A"};
        return names[static_cast<std::size_t>(up_to(names.size() - 1))];
    }
    const wchar_t* name_or_null() { return rarely(16) ? nullptr : name(); }
    // Any characters but the one that ends a text, digits for the most part.
    std::wstring text(int longest) {
        std::wstring result;
        for (int left = up_to(longest); left > 0; --left) {
            const auto character = static_cast<wchar_t>(rarely() ? number<std::int32_t>() : L'0' + up_to(15));
            result += character ? character : L'0';
        }
        return result;
    }

private:
    std::span<const std::uint8_t> m_left;
};

}  // namespace fuzz
