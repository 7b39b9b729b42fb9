#include <cerrno>
#include <cfenv>

#include "toolkit/platform/back_end.h"
#include "toolkit/platform/posix/posix_platform.h"

#if defined(__SSE2__)
#    include <xmmintrin.h>
#endif

namespace {
struct Bits {
    unsigned int word;
    int native;
};
constexpr Bits roundings[] = {
    {0x000, FE_TONEAREST}, {0x100, FE_DOWNWARD}, {0x200, FE_UPWARD}, {0x300, FE_TOWARDZERO}};
constexpr Bits exceptions[] = {
    {0x01, FE_INEXACT}, {0x02, FE_UNDERFLOW}, {0x04, FE_OVERFLOW}, {0x08, FE_DIVBYZERO}, {0x10, FE_INVALID}};
constexpr unsigned int denormal_exception = 0x00080000;

#if defined(__SSE2__)
// The unit that computes `float` and `double`. A host may have set it up alone, which the functions of
// <cfenv> do not see: they read the older unit, and write both.
constexpr unsigned int csr_denormal_masked = 0x0100;
constexpr unsigned int csr_flush_results = 0x8000;
constexpr unsigned int csr_flush_operands = 0x0040;
constexpr unsigned int csr_flush = csr_flush_results | csr_flush_operands;

int native_rounding() {
    return static_cast<int>(_mm_getcsr() >> 3 & 0xC00);
}

int native_masked() {
    return static_cast<int>(_mm_getcsr() >> 7 & FE_ALL_EXCEPT);
}

struct Flush {
    unsigned int word;
    unsigned int csr;
};
constexpr Flush flushes[] = {{0x00000000, 0},
                             {0x01000000, csr_flush},
                             {0x02000000, csr_flush_operands},
                             {0x03000000, csr_flush_results}};

unsigned int read_denormals() {
    const unsigned int csr = _mm_getcsr();
    unsigned int word = csr & csr_denormal_masked ? denormal_exception : 0;
    for (const Flush& flush : flushes)
        if ((csr & csr_flush) == flush.csr)
            word |= flush.word;
    return word;
}

void write_denormals(unsigned int word) {
    unsigned int csr = _mm_getcsr() & ~(csr_flush | csr_denormal_masked);
    if (word & denormal_exception)
        csr |= csr_denormal_masked;
    for (const Flush& flush : flushes)
        if ((word & px_fp_denormals) == flush.word)
            csr |= flush.csr;
    _mm_setcsr(csr);
}
#else
int native_rounding() {
    return std::fegetround();
}

int native_masked() {
    return FE_ALL_EXCEPT & ~fegetexcept();
}

unsigned int read_denormals() {
    return denormal_exception;
}

void write_denormals(unsigned int) {
}
#endif

unsigned int read_word() {
    unsigned int word = read_denormals();
    const int rounding = native_rounding();
    for (const Bits& bits : roundings)
        if (rounding == bits.native)
            word |= bits.word;
    const int masked = native_masked();
    for (const Bits& bits : exceptions)
        if (masked & bits.native)
            word |= bits.word;
    return word;
}

bool write_word(unsigned int word) {
    int rounding = FE_TONEAREST;
    for (const Bits& bits : roundings)
        if ((word & px_fp_rounding) == bits.word)
            rounding = bits.native;
    int masked = 0;
    int unmasked = 0;
    for (const Bits& bits : exceptions)
        (word & bits.word ? masked : unmasked) |= bits.native;

    // A flag that stayed up while its exception was masked would raise it late, in code that has no part in
    // it.
    std::feclearexcept(unmasked & native_masked());
    const bool rounds = std::fesetround(rounding) == 0;
    const bool masks = fedisableexcept(masked) != -1;
    const bool raises = feenableexcept(unmasked) != -1;
    write_denormals(word);
    return rounds && masks && raises;
}
}  // namespace

int PX_Posix_Platform::_controlfp_s(unsigned int* current, unsigned int value, unsigned int mask) {
    const bool done = mask == 0 || write_word((read_word() & ~mask) | (value & mask));
    if (current)
        *current = read_word();
    return done ? 0 : ENOTSUP;
}
