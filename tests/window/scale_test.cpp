#include <cmath>

#include "support/window_ref.hpp"

using namespace zt;
using ref::LD;

template <class T> class WindowScaleTest : public ::testing::Test {};
TYPED_TEST_SUITE(WindowScaleTest, Precisions);

namespace {
// The normalised reference window over the peak-1 one (the two are proportional).
LD ratio(const ref::Shape& s, int n, int flags, LD width) {
    LD a = 0, b = 0;
    for (LD x : ref::window(s, n, flags, width)) a += x;
    for (LD x : ref::window(s, n, (flags & 12) | 2, width)) b += x;
    return b > 1e-6 ? a / b : 0;   // a window of (nearly) nothing has no scale
}
template <class T> int enbw(T* r, int kind, int n, T width) {
    return width != 0 ? api::pick<T>(dsp_window2_enbw, dspf_window2_enbw)(r, kind, n, width)
                      : api::pick<T>(dsp_window_enbw, dspf_window_enbw)(r, kind, n);
}
}  // namespace

TYPED_TEST(WindowScaleTest, ScaleAndNoiseBandwidthAgreeWithTheReferenceWindows) {
    using T = TypeParam;
    const auto cat = ref::catalogue();
    const double rel = std::max(2e-6, tol<T>(256));   // the cosine rows of one kind agree to 7 digits
    for (int kind = 0; kind < 25; ++kind)
        for (int n : {1, 2, 3, 5, 8, 64, 1000})
            for (int flags : {0, 1, 4, 5, 8, 9}) {
                const bool wide = flags & 8, sym = flags & 4;
                if ((sym && kind < 14) || (wide && kind != 0 && kind != 2 && kind != 9)) continue;
                const double width = wide ? (n > 8 ? 7.5 : 4) : 0;
                const LD want = ratio(cat[kind], n, flags, width);
                SCOPED_TRACE(testing::Message() << "kind " << kind << " N " << n << " flags " << flags);
                T got = T(-7);
                ASSERT_EQ(api::pick<T>(dsp_window2_scale, dspf_window2_scale)(&got, kind, flags, n, T(width)), 0);
                if (want != 0) EXPECT_NEAR(got, want, rel * want);
                if (flags & 5 || want == 0) continue;
                const LD bw = want * want / (ratio(cat[kind], n, flags | 1, width) * ratio(cat[kind], n, flags | 1, width));
                ASSERT_EQ(enbw<T>(&got, kind, n, T(width)), 0);
                EXPECT_NEAR(got, bw, rel * bw);
            }
}

TYPED_TEST(WindowScaleTest, PeakNormalisationAndRefusals) {
    using T = TypeParam;
    const auto scale = api::pick<T>(dsp_window2_scale, dspf_window2_scale);
    T s = T(-7);
    for (auto [kind, flags, n] : {std::tuple(99, 2, 8), std::tuple(99, 0, 0), std::tuple(2, 3, 0)}) {
        ASSERT_EQ(scale(&s, kind, flags, n, T(0)), 0);   // 1 without further checks
        EXPECT_EQ(s, T(1));
    }
    s = T(-7);
    for (auto [kind, flags] : {std::pair(2, 3), {25, 0}, {-1, 1}, {1, 8}, {14, 9}, {2, 12}}) {
        EXPECT_EQ(scale(&s, kind, flags, 8, T(4)), -1) << kind << " " << flags;
        if (kind != 2) EXPECT_EQ(enbw<T>(&s, kind, 8, T(flags & 8 ? 4 : 0)), -1) << kind;
        EXPECT_EQ(s, T(-7));
    }
    EXPECT_EQ(scale(nullptr, 2, 0, 8, T(0)), -1);
    EXPECT_EQ(enbw<T>(nullptr, 2, 8, T(0)), -1);
    EXPECT_EQ(api::pick<T>(dsp_window_scale, dspf_window_scale)(&s, 2, 8, 8), -1);
}
