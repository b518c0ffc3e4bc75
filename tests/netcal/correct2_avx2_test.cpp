// The vector two-port kernels (AVX2 and AVX-512) against the portable one,
// lane by lane, on data that mixes ordinary points with every special case
// the kernels select on.
#include <array>
#include <limits>

#include "netcal/correct.hpp"
#include "support/vectors.hpp"  // brings GoogleTest and the standard headers of the data helpers

namespace {

using zf::Cx;

// Identical doubles, any two non-numbers counting as equal.
bool same(double a, double b) { return std::isnan(a) ? std::isnan(b) : std::memcmp(&a, &b, sizeof a) == 0; }

// The twenty arrays in Correct2Port's order; a set bit of null_mask leaves
// that array out (only the isolation terms and the outputs may be).
struct Arrays {
    std::vector<Cx> v[20];
    zf::TwoPortArrays view(unsigned null_mask) {
        zf::TwoPortArrays t{};
        const Cx** in[4] = {t.tracking, t.match, t.offset, t.measured};
        for (int i = 0; i < 20; ++i) {
            Cx* p = (null_mask >> i) & 1 ? nullptr : v[i].data();
            if (i < 16) in[i / 4][i % 4] = p;
            else t.corrected[i - 16] = p;
        }
        return t;
    }
};

// Each point is of a random kind: ordinary, a singular M in column 0 or 1,
// tied pivots, a zero divisor, non-numbers, infinities, huge or tiny values.
Arrays special_data(int n, unsigned seed) {
    std::mt19937 gen(seed);
    std::uniform_real_distribution<double> u(-1.0, 1.0);
    const double nan = std::numeric_limits<double>::quiet_NaN(), inf = HUGE_VAL;
    const double spread[4] = {0.2, 0.3, 0.05, 1}, centre[4] = {0.9, 0, 0, 0};  // tracking, match, offset, measured
    Arrays a;
    for (auto& x : a.v) x.assign(n, Cx{0, 0});
    for (int j = 0; j < n; ++j) {
        for (int i = 0; i < 16; ++i) a.v[i][j] = {centre[i / 4] + spread[i / 4] * u(gen), spread[i / 4] * u(gen)};
        // A singular M in column 0 or 1, or tied pivots (|M00| = |M10|).
        auto set_all = [&](std::array<double, 4> m, std::array<double, 4> match) {
            for (int p = 0; p < 4; ++p) a.v[p][j] = {1, 0}, a.v[8 + p][j] = {0, 0}, a.v[12 + p][j] = {m[p], 0}, a.v[4 + p][j] = {match[p], 0};
        };
        switch (gen() % 10) {
        case 1: set_all({0, 2, -1, -3}, {0.5, 1, 1, 1}); break;
        case 2: set_all({-1, 5, 0, 3}, {1, 1, 1, 1}); break;
        case 3: set_all({0, 0.25, 0.75, 0}, {0, 0, 4.0 / 3, 0}); break;
        case 4: a.v[gen() % 4][j] = {0, 0}; break;
        case 5: a.v[12 + gen() % 4][j].im = nan; break;
        case 6: a.v[4 + gen() % 4][j].re = inf; break;
        case 7: a.v[12 + gen() % 4][j] = {1e200 * u(gen), 1e200 * u(gen)}; break;
        case 8: for (int p = 0; p < 4; ++p) a.v[12 + p][j] = {1e-200 * u(gen), 1e-200 * u(gen)}; break;
        default: break;
        }
    }
    return a;
}

}  // namespace

// Each vector kernel this processor runs, eight points at a time, against the
// portable kernel over the same points, with and without the optional arrays.
TEST(Correct2PortKernelTest, VectorKernelsMatchPortableKernelLaneByLane) {
    const std::pair<bool (*)() noexcept, void (*)(const zf::TwoPortArrays&, int) noexcept> kernels[] = {
        {zf::have_avx2, zf::correct_2port_x8_avx2}, {zf::have_avx512, zf::correct_2port_x8_avx512}};
    if (!zf::have_avx2() && !zf::have_avx512()) GTEST_SKIP() << "no vector kernel on this processor";
    const int n = 800;
    for (const auto& [available, run] : kernels) {
        if (!available()) continue;
        for (const unsigned null_mask : {0u, (1u << 9) | (1u << 10), (1u << 16) | (1u << 19)}) {
            Arrays ref = special_data(n, 17), vec = special_data(n, 17);
            zf::correct_2port_portable(ref.view(null_mask), 0, n);
            for (int j = 0; j < n; j += 8) run(vec.view(null_mask), j);
            for (int p = 16; p < 20; ++p)
                for (int j = 0; j < n; ++j)
                    ASSERT_TRUE(same(ref.v[p][j].re, vec.v[p][j].re) && same(ref.v[p][j].im, vec.v[p][j].im))
                        << "S" << p - 16 << " point " << j;
        }
    }
}
