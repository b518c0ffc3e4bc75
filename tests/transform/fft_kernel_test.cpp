#include "support/vectors.hpp"

#include "support/dft_ref.hpp"
#include "transform/fft_kernel.hpp"
#include "transform/tables.hpp"

using namespace zt;

template <class T> class FftKernelTest : public ::testing::Test {};
TYPED_TEST_SUITE(FftKernelTest, Precisions);

// The kernel chosen for this processor against the portable one, at every
// length it handles up to 2^14 and on a half-length transform read from a
// longer table (as the real transforms do).
TYPED_TEST(FftKernelTest, DispatchedKernelMatchesPortable) {
    using T = TypeParam;
    const auto vec = zf::vector_dif<T>();
    if (!vec) GTEST_SKIP() << "no vector kernel on this processor";
    const int w = zf::vector_width<T>();
    for (int n = 4; n <= (1 << 14); n *= 2) {
        for (int half = 0; half < 2; ++half) {
            const int tn = half ? 2 * n : n;
            const T* tw = zf::twiddles<T>(tn);
            const T* lv = zf::level_twiddles<T>(n, tw, tn, w);
            ASSERT_TRUE(tw && lv);
            for (int inverse = 0; inverse < 2; ++inverse) {
                const auto in = random_scalars<T>(2 * n, n + inverse);
                auto a = in, b = in;
                zf::dif_portable<T>(a.data(), n, tw, tn / n, inverse != 0);
                vec(b.data(), n, lv, inverse != 0);
                const double err = ref::rms_rel_error(ref::from_pairs(b), ref::from_pairs(a));
                EXPECT_LE(err, 2 * static_cast<double>(Traits<T>::eps) * std::log2(n))
                    << "n = " << n << " table " << tn << (inverse ? " inverse" : " forward");
            }
        }
    }
}
