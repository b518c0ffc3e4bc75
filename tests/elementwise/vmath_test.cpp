#include <algorithm>

#include "core/cpu.hpp"
#include "elementwise/vmath.hpp"
#include "support/libm_ref.hpp"
#include "support/vectors.hpp"

using namespace zt;
using LD = long double;

// Every variant this processor runs, checked kernel by kernel against long
// double references with the element-wise guards, on random values over the
// whole domain and on the edges (±0, subnormals, the guards and their
// neighbours, huge, ±inf, NaN), at a length that leaves a partial vector.
template <class T> std::vector<const zf::VecMath<T>*> variants() {
    const zf::VecMath<T> *avx2, *avx512;
    if constexpr (sizeof(T) == 8) avx2 = &zf::vecmath_avx2_double, avx512 = &zf::vecmath_avx512_double;
    else avx2 = &zf::vecmath_avx2_float, avx512 = &zf::vecmath_avx512_float;
    std::vector<const zf::VecMath<T>*> out;
    if (zf::cpu_has_avx2_fma()) out.push_back(avx2);
    if (zf::cpu_has_avx512()) out.push_back(avx512);
    return out;
}

template <class T> std::vector<T> inputs(std::mt19937_64& gen, double lo, double hi, bool signs) {
    using L = std::numeric_limits<T>;
    const T tiny = Traits<T>::tiny, huge = Traits<T>::huge, lim = Traits<T>::exp_limit;
    std::vector<T> x = {T(0), T(-0.0), L::denorm_min(), tiny / 4, tiny, std::nextafter(tiny, T(0)), T(1),
                        std::nextafter(T(1), T(2)), std::nextafter(T(1), T(0)), lim, std::nextafter(lim, huge),
                        huge, L::max(), L::infinity(), -L::infinity(), L::quiet_NaN(), T(-745.5), T(-103.5),
                        -L::infinity(), T(0)};   // a pair on the negative axis, off the vector lanes
    std::uniform_real_distribution<double> e(lo, hi);
    while (x.size() < 3001) x.push_back(static_cast<T>(std::exp2(e(gen)) * (signs && (gen() & 1) ? -1 : 1)));
    return x;
}

template <class T> void expect_ulp(const std::vector<T>& got, const std::vector<LD>& want, const char* what, double bound = 1) {
    double worst = 0;
    for (std::size_t i = 0; i < got.size(); ++i) {
        if (std::isnan(want[i])) { EXPECT_TRUE(std::isnan(got[i])) << what << " " << i; continue; }
        if (std::isinf(want[i]) || std::fabs(want[i]) > std::numeric_limits<T>::max()) { EXPECT_EQ(got[i], static_cast<T>(want[i])) << what << " " << i; continue; }
        worst = std::fmax(worst, ref::ulps(got[i], want[i]));
    }
    EXPECT_LE(worst, bound) << what;
}

template <class T> class VmathTest : public ::testing::Test {};
TYPED_TEST_SUITE(VmathTest, Precisions);

TYPED_TEST(VmathTest, KernelsWithinOneUlpOfTheGuardedReferences) {
    using T = TypeParam;
    if (variants<T>().empty()) GTEST_SKIP() << "no vector kernels on this processor";
    const LD tiny = Traits<T>::tiny, huge = Traits<T>::huge, lim = Traits<T>::exp_limit, floor = -7;
    const int emax = std::numeric_limits<T>::max_exponent;
    std::mt19937_64 gen(5);
    const std::vector<T> pos = inputs<T>(gen, -emax - 20, emax, false);
    const std::vector<T> arg = inputs<T>(gen, -8, 10, true);   // exponent arguments up to ±1024
    const std::vector<T> parts = inputs<T>(gen, -emax - 20, emax, true);
    const std::size_t pairs = parts.size() / 2;
    for (const zf::VecMath<T>* k : variants<T>()) {
        for (bool dec : {false, true}) {
            std::vector<T> y = pos;
            std::vector<LD> want;
            k->log(y.data(), y.size(), T(1), T(floor), dec);
            for (T x : pos) want.push_back(x >= tiny ? (std::isinf(x) ? x : dec ? std::log10(LD(x)) : std::log(LD(x))) : floor);
            expect_ulp(y, want, dec ? "log10" : "log");

            // pairs: (log(p) / 2, atan2 * angle) with angle 1, or (floor, 0)
            std::vector<T> z = parts;
            k->log_pairs(z.data(), pairs, T(1), T(floor), T(1), dec);
            z.resize(2 * pairs);
            std::vector<LD> want_z;
            for (std::size_t i = 0; i < pairs; ++i) {
                const LD a = std::fmax(-huge, std::fmin(huge, LD(parts[2 * i]))), b = std::fmax(-huge, std::fmin(huge, LD(parts[2 * i + 1])));
                const LD p = sizeof(T) == 8 ? LD(T(T(a * a) + T(b * b))) : a * a + b * b;   // double: formed in double
                const bool ok = p >= tiny && !std::isnan(parts[2 * i]) && !std::isnan(parts[2 * i + 1]);
                want_z.push_back(ok ? (dec ? std::log10(p) : std::log(p)) / 2 : floor);
                want_z.push_back(ok ? std::atan2(b, a) : 0);
            }
            expect_ulp(z, want_z, "log of pairs");
        }
        std::vector<T> e = arg;
        k->exp(e.data(), e.size());
        std::vector<LD> want_e;
        for (T x : arg) want_e.push_back(x > lim ? huge : std::exp(LD(x)));
        expect_ulp(e, want_e, "exp");

        std::vector<T> ph(pairs), mg = parts;   // mag in place
        k->phase(parts.data(), ph.data(), pairs);
        k->mag(mg.data(), mg.data(), pairs);
        mg.resize(pairs);
        std::vector<LD> want_ph, want_mg;
        for (std::size_t i = 0; i < pairs; ++i) {
            const LD re = parts[2 * i], im = parts[2 * i + 1];
            want_ph.push_back(re == 0 && im == 0 ? 0 : std::atan2(im, re));
            want_mg.push_back(std::hypot(re, im));
        }
        expect_ulp(ph, want_ph, "phase");
        expect_ulp(mg, want_mg, "mag");

        // sine and cosine, also beyond the vector range (the reference holds below 2^30); polar pairs (m, phi)
        std::vector<T> angles = inputs<T>(gen, -8, 26, true);
        angles.erase(std::remove_if(angles.begin(), angles.end(), [](T x) { return std::fabs(x) >= T(0x1p30) && std::isfinite(x); }), angles.end());
        std::vector<T> s = angles, c = angles, pol(2 * angles.size());
        for (std::size_t i = 0; i < angles.size(); ++i) { pol[2 * i] = parts[i]; pol[2 * i + 1] = angles[i]; }
        k->sin_cos(s.data(), s.size(), false);
        k->sin_cos(c.data(), c.size(), true);
        k->polar(pol.data(), angles.size());
        std::vector<LD> want_s, want_c, want_pol;
        for (T x : angles) {
            LD rs = NAN, rc = NAN;
            if (std::isfinite(x)) ref::sincos(x, rs, rc);
            want_s.push_back(rs);
            want_c.push_back(rc);
        }
        for (std::size_t i = 0; i < angles.size(); ++i) {
            want_pol.push_back(parts[i] * want_c[i]);
            want_pol.push_back(parts[i] * want_s[i]);
        }
        expect_ulp(s, want_s, "sin");
        expect_ulp(c, want_c, "cos");
        expect_ulp(pol, want_pol, "polar", sizeof(T) == 8 ? 1.5 : 1.0);   // double: m times a rounded cosine
    }
}
