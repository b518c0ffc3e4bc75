// Every averaging mode over a run of records against a plain fold of the same
// records, with and without a usable scratch record.
#include <algorithm>
#include <cmath>
#include <functional>

#include "support/api_spectrum.hpp"
#include "support/vectors.hpp"

using namespace zt;

namespace {

template <class T> class Average : public ::testing::Test {};
TYPED_TEST_SUITE(Average, Precisions);

// The expected result at one sample from that sample's values x[0 .. K-1] in
// the records' order (the first is record count 1).
using Fold = std::function<double(const std::vector<double>&)>;
struct AvgCase { const char* name; int flags, n; double weight, limit; Fold want; };

double exp_avg(const std::vector<double>& x, std::function<double(int)> w) {
    double e = x[0];
    for (std::size_t k = 1; k < x.size(); ++k) e += w(static_cast<int>(k) + 1) * (x[k] - e);
    return e;
}

const AvgCase kCases[] = {
    {"mean", 1, 0, -1, 0, [](const auto& x) { double s = 0; for (double v : x) s += v; return s / x.size(); }},
    {"limited", 1 | 16, 0, -1, 3, [](const auto& x) { return exp_avg(x, [](int k) { return 1.0 / std::min(k, 3); }); }},
    {"limit above count", 1 | 16, 0, -2, 50, [](const auto& x) { return exp_avg(x, [](int k) { return 1.0 / k; }); }},
    {"weight", 1, 0, 0.25, 0, [](const auto& x) { return exp_avg(x, [](int) { return 0.25; }); }},
    {"max", 2, 0, -1, 0, [](const auto& x) { return *std::max_element(x.begin(), x.end()); }},
    {"min", 3, 0, -1, 0, [](const auto& x) { return *std::min_element(x.begin(), x.end()); }},
    {"harmonic", 4, 0, -1, 0, [](const auto& x) { double s = 0; for (double v : x) s += 1 / v; return x.size() / s; }},
    {"geometric", 5, 0, -1, 0, [](const auto& x) { double s = 0; for (double v : x) s += std::log(v); return std::exp(s / x.size()); }},
    {"hold 3", 6, 3, -1, 0, [](const auto& x) { return x[6]; }},  // counts 1, 4, 7 of 8
    {"hold 1", 6, 1, -1, 0, [](const auto& x) { return x[7]; }},
    {"hold 0", 6, 0, -1, 0, [](const auto& x) { return x[0]; }},
    {"copy", 0, 0, -1, 0, [](const auto& x) { return x[7]; }},
    {"nothing", 9, 0, -1, 0, [](const auto& x) { return x[0]; }},
    {"power mean", 32 | 1, 0, -1, 0, [](const auto& x) { double s = 0; for (double v : x) s += v; return s / x.size(); }},
};

TYPED_TEST(Average, EveryModeFoldsLikeItsPlainReference) {
    using T = TypeParam;
    const int K = 8, N = 17;
    for (const AvgCase& c : kCases) {
        const bool power = c.flags & 32;
        std::vector<std::vector<T>> recs;
        for (int k = 0; k < K; ++k) recs.push_back(random_scalars<T>(power ? 2 * N : N, 10 + k, 0.5, 2.0));
        for (int use : {0, 1, 2}) {  // scratch: null, its own record, the accumulator
            SCOPED_TRACE(::testing::Message() << c.name << " scratch " << use);
            Owned<T> acc, scratch, in;
            for (int k = 0; k < K; ++k) {
                in.set(recs[k], power);
                Vec<T>* s = use == 0 ? nullptr : use == 1 ? scratch.get() : acc.get();
                ASSERT_EQ(api::avg(in.get(), acc.get(), s, c.flags, k + 1, c.n, T(c.weight), T(c.limit)), 0);
                ASSERT_EQ(in.scalars(), recs[k]);  // the input is left alone
            }
            ASSERT_EQ(acc->points, N);
            ASSERT_FALSE(acc->complex);
            for (int i = 0; i < N; ++i) {
                std::vector<double> x;
                for (int k = 0; k < K; ++k)
                    x.push_back(power ? double(recs[k][2 * i]) * recs[k][2 * i] + double(recs[k][2 * i + 1]) * recs[k][2 * i + 1]
                                      : double(recs[k][i]));
                ASSERT_NEAR(acc->data[i], c.want(x), tol<T>(64) * std::fabs(c.want(x))) << "sample " << i;
            }
        }
    }
}

TYPED_TEST(Average, RefusesMissingRecordsAndMismatchedLengths) {
    using T = TypeParam;
    Owned<T> in(random_scalars<T>(4, 1)), acc(random_scalars<T>(5, 2));
    EXPECT_EQ(api::avg(static_cast<Vec<T>*>(nullptr), acc.get(), nullptr, 1, 2, 0, T(-1), T(0)), -1);
    EXPECT_EQ(api::avg(in.get(), static_cast<Vec<T>*>(nullptr), nullptr, 1, 2, 0, T(-1), T(0)), -1);
    for (int mode : {1, 2, 3, 4, 5}) EXPECT_EQ(api::avg(in.get(), acc.get(), nullptr, mode, 2, 0, T(-1), T(0)), -1);
}

}  // namespace
