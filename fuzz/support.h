#pragma once

#include <bit>
#include <climits>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <limits>
#include <span>
#include <string>

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

    template <class Value, std::size_t count>
    const Value& one_of(const Value (&values)[count]) {
        return values[static_cast<std::size_t>(up_to(count - 1))];
    }

    // Mostly small, sometimes at an end of a type, sometimes anything.
    template <class Number = long>
    Number number() {
        // Of 64 bits on every system, so that a kept case means the same.
        constexpr std::int64_t ends[] = {-1,        -2,       INT_MAX,  INT_MIN,  INT64_MAX,
                                         INT64_MIN, SHRT_MAX, SHRT_MIN, UINT_MAX, INT64_MAX - 1};
        const int kind = up_to(7);
        if (kind < 5)
            return static_cast<Number>(kind);
        if (kind == 5)
            return static_cast<Number>(byte());
        if (kind == 6)
            return static_cast<Number>(one_of(ends));
        std::uint64_t any = 0;
        for (std::size_t at = 0; at < sizeof any; ++at)
            any = any << 8 | byte();
        return static_cast<Number>(any);
    }
    // As a measure: mostly one of a few, sometimes one that is no number or hardly one.
    float real() {
        using Limits = std::numeric_limits<float>;
        constexpr float usual[] = {0, 1, 100, 210, 210.5F, 297, 420};
        constexpr float odd[] = {Limits::quiet_NaN(),
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
                return one_of(odd);
            case 9:
                return std::bit_cast<float>(number<std::uint32_t>());
            default:
                return one_of(usual);
        }
    }
    // Out of a pool that is small enough for two to meet.
    const wchar_t* name() {
        constexpr const wchar_t* names[] = {L"a", L"b", L"a", L"b", L"c", L"", L"A"};
        return one_of(names);
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
