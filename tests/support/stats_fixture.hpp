// A typed fixture for the statistics tests: runs one statistic on a vector of
// given scalars through the C entry point and returns the result's scalars.
#pragma once

#include "support/api_stats.hpp"
#include "support/vectors.hpp"

#include <cstring>

namespace zt {

template <class T> class StatsFixture : public ::testing::Test {
protected:
    using Fn = int (*)(const Vec<T>*, Vec<T>*);
    static constexpr T G = Traits<T>::huge;

    // The result of fn over these scalars (pairs when complex); the call must
    // succeed and leave its input as it was.
    std::vector<T> run(Fn fn, const std::vector<T>& s, bool complex = false) {
        Owned<T> in(s, complex), out;
        EXPECT_EQ(fn(in.get(), out.get()), 0);
        EXPECT_EQ(std::memcmp(in.v.data, s.data(), s.size() * sizeof(T)), 0) << "input changed";
        return out.scalars();
    }
};

}  // namespace zt
