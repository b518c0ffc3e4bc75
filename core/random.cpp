#include "core/random.hpp"

#include <cstdlib>
#include <ctime>

namespace zf {

namespace {
bool seeded = false;  // the seed flag: rand() is seeded once per process

// Mixes the wall clock, the processor clock and an address of this process, so
// that two processes started in the same second still draw differently.
unsigned time_seed() noexcept {
    const auto now = static_cast<unsigned long long>(std::time(nullptr));
    const auto ticks = static_cast<unsigned long long>(std::clock());
    const auto where = static_cast<unsigned long long>(reinterpret_cast<std::uintptr_t>(&seeded));
    unsigned long long h = now * 0x9E3779B97F4A7C15ull;
    h ^= ticks + 0x7F4A7C15ull + (h << 6) + (h >> 2);
    h ^= where + 0x9E3779B9ull + (h << 6) + (h >> 2);
    return static_cast<unsigned>(h ^ (h >> 32));
}

void seed_once() noexcept {
    if (!seeded) {
        std::srand(time_seed());
        seeded = true;
    }
}
}  // namespace

std::int32_t random31() noexcept {
    seed_once();
    const std::int32_t r1 = std::rand() & 0x7FFF;
    const std::int32_t r2 = std::rand() & 1;
    const std::int32_t r3 = std::rand() & 0x7FFF;
    return r1 * 65536 + r2 * 32768 + r3;
}

double random_uniform() noexcept {
    seed_once();
    constexpr double step = 1.0 / 32768.0;
    double u = 0.0;
    for (int k = 0; k < 4; ++k) u = (u + (std::rand() & 0x7FFF)) * step;
    return u < 1.0 ? u : 1.0 - 0x1p-53;
}

void random_seed(unsigned seed) noexcept {
    std::srand(seed);
    seeded = true;
}

bool random_seeded() noexcept { return seeded; }

}  // namespace zf
