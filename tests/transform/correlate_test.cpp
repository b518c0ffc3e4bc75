// Correlation against the direct sum, for every mix of real and complex inputs,
// with and without a scratch record, and with the output aliasing an input.
#include "support/api_spectrum.hpp"
#include "support/spectrum_ref.hpp"
#include "support/vectors.hpp"

using namespace zt;

namespace {

template <class T> class Correlate : public ::testing::Test {};
TYPED_TEST_SUITE(Correlate, Precisions);

TYPED_TEST(Correlate, MatchesDirectSum) {
    using T = TypeParam;
    struct Case { int na, nb, length; bool ca, cb; int half; int alias; };  // alias: 0 none, 1 out = a, 2 out = b
    const Case cases[] = {{40, 100, 30, false, false, 0, 0}, {7, 64, 7, true, true, 1, 0}, {50, 33, 20, false, true, 0, 1},
                          {20, 129, 5, true, false, 1, 2}, {5, 5, 5, false, false, 0, 2}, {1, 1, 1, true, true, 0, 0}};
    for (const Case& c : cases) {
        for (bool with_scratch : {false, true}) {
            SCOPED_TRACE(::testing::Message() << c.na << " " << c.nb << " " << c.length << " scratch " << with_scratch);
            const auto xa = random_scalars<T>(c.na * (c.ca ? 2 : 1), 1), xb = random_scalars<T>(c.nb * (c.cb ? 2 : 1), 2);
            Owned<T> a(xa, c.ca, T(1)), b(xb, c.cb, T(3)), out, scratch;
            Vec<T>* o = c.alias == 1 ? a.get() : c.alias == 2 ? b.get() : out.get();
            int m = 1;
            while (m < c.nb) m *= 2;
            ASSERT_EQ(api::corr(a.get(), b.get(), o, with_scratch ? scratch.get() : nullptr, c.length, c.half), 0);
            const auto want = ref::correlate(ref::samples(xa, c.ca), ref::samples(xb, c.cb), c.length, (c.half ? 0.5L : 1.0L) / m);
            ASSERT_EQ(o->points, c.nb - c.length + 1);
            EXPECT_EQ(o->complex != 0, c.ca || c.cb);
            EXPECT_EQ(o->delta, T(2));
            std::vector<T> got(o->data, o->data + o->points * (o->complex ? 2 : 1)), exp;
            for (const auto& z : want) {
                exp.push_back(static_cast<T>(z.real()));
                if (c.ca || c.cb) exp.push_back(static_cast<T>(z.imag()));
            }
            EXPECT_TRUE(near_all(got, exp, tol<T>(16) * std::log2(2.0 * m)));
        }
    }
}

TYPED_TEST(Correlate, RefusesLengthsOutsideBothInputs) {
    using T = TypeParam;
    Owned<T> a(random_scalars<T>(10, 1)), b(random_scalars<T>(12, 2)), out;
    for (int length : {0, -1, 11, 13}) EXPECT_EQ(api::corr(a.get(), b.get(), out.get(), nullptr, length, 0), -1);
    EXPECT_EQ(api::corr(a.get(), static_cast<Vec<T>*>(nullptr), out.get(), nullptr, 1, 0), -1);
    EXPECT_EQ(api::corr(a.get(), b.get(), static_cast<Vec<T>*>(nullptr), nullptr, 1, 0), -1);
}

}  // namespace
