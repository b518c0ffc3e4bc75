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
}  // namespace

TYPED_TEST(WindowScaleTest, ScaleAndNoiseBandwidthAgreeWithTheReferenceWindows) {
    using T = TypeParam;
    const auto cat = ref::catalogue();
    const auto scale = api::pick<T>(dsp_window2_scale, dspf_window2_scale);
    const auto enbw = api::pick<T>(dsp_window_enbw, dspf_window_enbw), enbw2 = api::pick<T>(dsp_window2_enbw, dspf_window2_enbw);
    const double rel = std::max(2e-6, tol<T>(256));   // the cosine rows of one kind agree to 7 digits
    for (int kind = 0; kind < 25; ++kind)
        for (int n : {1, 2, 3, 5, 8, 64, 1000})
            for (int flags : {0, 1, 4, 5, 8, 9}) {
                if (((flags & 4) && kind < 14) || ((flags & 8) && kind != 0 && kind != 2 && kind != 8 && kind != 13)) continue;
                const double width = flags & 8 ? (n > 8 ? 7.5 : 4) : 0;
                const LD want = ratio(cat[kind], n, flags, width), rms = ratio(cat[kind], n, flags | 1, width);
                SCOPED_TRACE(testing::Message() << "kind " << kind << " N " << n << " flags " << flags);
                T got = T(-7);
                ASSERT_EQ(scale(&got, kind, flags, n, T(width)), 0);
                if (want != 0) EXPECT_NEAR(got, want, rel * want);
                if (flags & 5 || want == 0) continue;
                ASSERT_EQ(flags & 8 ? enbw2(&got, kind, n, T(width)) : enbw(&got, kind, n), 0);
                EXPECT_NEAR(got, want * want / (rms * rms), rel * want * want / (rms * rms));
            }
    T s = T(-7);
    EXPECT_EQ(scale(&s, 99, 2, 8, T(0)) + scale(&s, 99, 0, 0, T(0)), 0);   // peak or no points: 1 without further checks
    EXPECT_EQ(s, T(1));
    for (auto [kind, flags] : {std::pair(2, 3), {25, 0}, {-1, 1}, {1, 8}, {14, 9}, {2, 12}}) {
        EXPECT_EQ(scale(&s, kind, flags, 8, T(4)), -1) << kind << " " << flags;
        if (kind != 2) EXPECT_EQ(flags & 8 ? enbw2(&s, kind, 8, T(4)) : enbw(&s, kind, 8), -1) << kind;
    }
    EXPECT_EQ(s, T(1));   // untouched by the refusals
    EXPECT_EQ(scale(nullptr, 2, 0, 8, T(0)) + enbw(nullptr, 2, 8) + enbw2(nullptr, 2, 8, T(4)), -3);
    EXPECT_EQ(api::pick<T>(dsp_window_scale, dspf_window_scale)(&s, 2, 8, 8), -1);
}
