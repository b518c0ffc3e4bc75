// The library's integer random generator, shared by the sample shuffle and the
// random-signal generator. It draws from the standard rand(), which it seeds
// once on first use.
#pragma once

#include <cstdint>

namespace zf {

// A non-negative 31-bit random integer. Each draw combines three rand()
// results r1, r2, r3 as (r1 & 0x7FFF) * 65536 + (r2 & 1) * 32768 + (r3 & 0x7FFF),
// so it needs only the 15 bits every rand() guarantees.
std::int32_t random31() noexcept;

// A uniform value in [0, 1) from four rand() draws r0 .. r3 as
// (((r0 2^-15 + r1) 2^-15 + r2) 2^-15 + r3) 2^-15, each masked to 15 bits.
// The one value that rounds up to 1 is taken as the largest double below 1.
double random_uniform() noexcept;

// Seeds rand() with a fixed value and marks the generator seeded, so that a
// sequence of draws can be repeated (tests). Not exported.
void random_seed(unsigned seed) noexcept;

// True once the generator has been seeded (by its first draw or random_seed).
bool random_seeded() noexcept;

}  // namespace zf
