// Test helpers over the vector records: an owning record, filling from and
// reading into std::vector, random data, and tolerances per precision.
#pragma once

#include <gtest/gtest.h>

#include <cmath>
#include <complex>
#include <cstring>
#include <random>
#include <vector>

#include "core/vector.hpp"
#include "support/api_core.hpp"

namespace zt {

using Precisions = ::testing::Types<float, double>;

template <class T> using Vec = zf::Vec<T>;
template <class T> using Traits = zf::Traits<T>;

// A record initialised on construction and destroyed through the library.
template <class T> struct Owned {
    Vec<T> v;
    Owned() { api::init(&v); }
    explicit Owned(const std::vector<T>& scalars, bool complex = false, T delta = T(1)) : Owned() { set(scalars, complex, delta); }
    ~Owned() { api::destroy(&v); }
    Owned(const Owned&) = delete;
    Owned& operator=(const Owned&) = delete;
    Vec<T>* get() { return &v; }
    Vec<T>* operator->() { return &v; }

    // Makes the record hold these scalars (pairs when complex).
    void set(const std::vector<T>& scalars, bool complex = false, T delta = T(1)) {
        v.complex = complex ? 1 : 0;
        v.points = static_cast<int>(complex ? scalars.size() / 2 : scalars.size());
        v.delta = delta;
        ASSERT_EQ(api::alloc(&v), 0);
        if (!scalars.empty()) std::memcpy(v.data, scalars.data(), scalars.size() * sizeof(T));
    }
    // The scalars the record holds for its current shape.
    std::vector<T> scalars() const { return std::vector<T>(v.data, v.data + static_cast<std::size_t>(v.points) * (v.complex ? 2 : 1)); }
};

// The samples of a scalar list as complex values, pairs when complex.
using Cx = std::complex<long double>;
template <class T> std::vector<Cx> samples(const std::vector<T>& s, bool complex) {
    std::vector<Cx> out;
    for (std::size_t k = 0; k + complex < s.size(); k += 1 + complex) out.emplace_back(s[k], complex ? s[k + 1] : T(0));
    return out;
}

// Uniform random scalars in [lo, hi), reproducible by seed.
template <class T> std::vector<T> random_scalars(std::size_t n, unsigned seed, double lo = -1.0, double hi = 1.0) {
    std::mt19937 gen(seed);
    std::uniform_real_distribution<double> d(lo, hi);
    std::vector<T> out(n);
    for (auto& x : out) x = static_cast<T>(d(gen));
    return out;
}

// A relative tolerance of k units of the precision's epsilon.
template <class T> constexpr double tol(double k = 4) { return k * static_cast<double>(Traits<T>::eps); }

// Element-wise comparison with a tolerance relative to max(1, |expected|).
template <class T, class U>
::testing::AssertionResult near_all(const std::vector<T>& got, const std::vector<U>& want, double rel) {
    if (got.size() != want.size())
        return ::testing::AssertionFailure() << "size " << got.size() << " != " << want.size();
    for (std::size_t i = 0; i < got.size(); ++i) {
        const double g = static_cast<double>(got[i]), w = static_cast<double>(want[i]);
        if (std::isnan(w) ? !std::isnan(g) : std::fabs(g - w) > rel * std::fmax(1.0, std::fabs(w)))
            return ::testing::AssertionFailure() << "at " << i << ": " << g << " != " << w;
    }
    return ::testing::AssertionSuccess();
}

// Samples within rel * max(1, |want|) of the reference, measured as complex
// numbers (a pair is judged by its magnitude; a NaN never passes).
inline ::testing::AssertionResult near_samples(const std::vector<Cx>& got, const std::vector<Cx>& want, double rel) {
    if (got.size() != want.size()) return ::testing::AssertionFailure() << "points " << got.size() << " != " << want.size();
    for (std::size_t k = 0; k < got.size(); ++k)
        if (!(std::abs(got[k] - want[k]) <= rel * std::fmax(1.0L, std::abs(want[k]))))
            return ::testing::AssertionFailure() << "sample " << k << ": " << got[k] << " != " << want[k];
    return ::testing::AssertionSuccess();
}

}  // namespace zt
