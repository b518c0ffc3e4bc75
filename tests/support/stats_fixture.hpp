// A typed fixture for the statistics tests: one statistic run on given scalars
// through the C entry point, tables of hand-worked cases, and allocation hooks
// that count blocks.
#pragma once

#include "support/api_stats.hpp"
#include "support/vectors.hpp"

#include <cstdlib>
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
    // A case worked out by hand: the result within ulps units of epsilon (0: exactly).
    struct Case { Fn fn; std::vector<T> in; bool complex; std::vector<double> want; double ulps = 0; };
    void check(const std::vector<Case>& cases) {
        for (std::size_t i = 0; i < cases.size(); ++i)
            EXPECT_TRUE(near_all(run(cases[i].fn, cases[i].in, cases[i].complex), cases[i].want, tol<T>(cases[i].ulps)))
                << "case " << i;
    }
};

// Hooks that allocate with malloc, count blocks and can refuse every allocation.
template <class T> struct BlockHooks {
    static inline int allocs = 0, frees = 0;
    static inline bool refuse = false;
    static void ZF_CDECL alloc(Vec<T>* v) {
        if (v->alloc > 0) { std::free(v->data); ++frees; }
        v->data = refuse ? nullptr : static_cast<T*>(std::malloc(zf::need<T>(*v) * sizeof(T)));
        if (v->data) ++allocs;
    }
    static void ZF_CDECL free(Vec<T>* v) { ++frees; std::free(v->data); }
    explicit BlockHooks(bool refuse_all) {
        allocs = frees = 0;
        refuse = refuse_all;
        api::lib_alloc(&BlockHooks::alloc, nullptr);
        api::lib_free(&BlockHooks::free, nullptr);
    }
    ~BlockHooks() {
        api::lib_alloc(decltype(&BlockHooks::alloc)(nullptr), nullptr);
        api::lib_free(decltype(&BlockHooks::free)(nullptr), nullptr);
    }
};

}  // namespace zt
