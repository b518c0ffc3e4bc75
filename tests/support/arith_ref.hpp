// Plain references for the one-input element-wise operations, in long double
// and std::complex<long double> (textbook formulas, the guards written out),
// and a check that runs an operation through the C interface on random vectors
// against them.
#pragma once

#include <functional>
#include <string>

#include "support/records.hpp"

namespace ref {

using LD = long double;
using CL = std::complex<long double>;

template <class T> inline LD huge() { return static_cast<LD>(zf::Traits<T>::huge); }
template <class T> inline LD tiny() { return static_cast<LD>(zf::Traits<T>::tiny); }
template <class T> inline LD exp_limit() { return static_cast<LD>(zf::Traits<T>::exp_limit); }
inline constexpr LD pi = 3.141592653589793238462643383279502884L;
inline constexpr LD ln10 = 2.302585092994045684017991454684364208L;

template <class T> LD recip(LD x) { return x == 0 ? huge<T>() : 1 / x; }
template <class T> LD square(LD x) { return std::fabs(x) <= huge<T>() ? x * x : huge<T>(); }
inline LD sqrt(LD x) { return x >= 0 ? std::sqrt(x) : 0; }
template <class T> LD exp(LD x) { return x > exp_limit<T>() ? huge<T>() : std::exp(x); }
template <class T> LD exp10(LD x) { return x > zf::Traits<T>::exp10_limit ? huge<T>() : std::pow(10.0L, x); }
template <class T> LD log(LD x) { return std::log(x >= tiny<T>() ? x : tiny<T>()); }
template <class T> LD db(LD x, LD factor) { return factor * std::log10(x >= tiny<T>() ? x : tiny<T>()); }
inline LD phase(LD x) { return x >= 0 ? 0 : pi; }
inline CL polar(LD x) { return {std::fabs(x), phase(x)}; }
inline LD inverse_trig(LD x, LD (*f)(LD)) { return std::fabs(x) <= 1 ? f(x) : 0; }
template <class T> LD cosh(LD x) { return std::fabs(x) > exp_limit<T>() ? huge<T>() : std::cosh(x); }
template <class T> LD sinh(LD x) { return std::fabs(x) > exp_limit<T>() ? std::copysign(huge<T>(), x) : std::sinh(x); }
inline LD sinc(LD x) { return x == 0 ? 1 : std::sin(x) / x; }

// I0 by its power series summed until the terms no longer count.
inline LD bessel_i0(LD x) {
    const LD t = x * x / 4;
    LD term = 1, sum = 1;
    for (int k = 1; term > sum * 1e-22L; ++k) {
        term *= t / (static_cast<LD>(k) * k);
        sum += term;
    }
    return sum;
}
template <class T> LD besi0(LD x) { return std::fabs(x) > exp_limit<T>() ? huge<T>() : bessel_i0(x); }

}  // namespace ref

namespace zt {

// One operation and its references: a real input goes through real (real
// result) or to_complex (complex result); a complex input through cplx
// (complex result) or to_real (real result). With neither of the last two the
// operation refuses complex input.
template <class T> struct Unary {
    std::string name;
    int (*run)(Vec<T>*);
    std::function<ref::LD(ref::LD)> real;
    std::function<ref::CL(ref::LD)> to_complex;
    std::function<ref::CL(ref::CL)> cplx;
    std::function<ref::LD(ref::CL)> to_real;
    double lo = -1, hi = 1;  // range of the random scalars
    double ulps = 8;         // tolerance in units of the precision's epsilon
};

// An operation defined for real input only (complex input is refused).
template <class T>
Unary<T> real_only(std::string name, int (*run)(Vec<T>*), std::function<ref::LD(ref::LD)> f, double lo, double hi,
                   double ulps = 8) {
    return Unary<T>{std::move(name), run, std::move(f), nullptr, nullptr, nullptr, lo, hi, ulps};
}

// A case worked out by hand: the operation on these scalars gives these
// scalars, within ulps units of epsilon (0: exactly).
template <class T> struct Hand {
    int (*run)(Vec<T>*);
    std::vector<T> in;
    bool complex;
    std::vector<double> want;
    double ulps = 0;
};
template <class T> void check_hand(const std::vector<Hand<T>>& cases) {
    for (std::size_t i = 0; i < cases.size(); ++i) {
        Owned<T> v(cases[i].in, cases[i].complex);
        ASSERT_EQ(cases[i].run(v.get()), 0) << "case " << i;
        EXPECT_TRUE(near_all(v.scalars(), cases[i].want, tol<T>(cases[i].ulps))) << "case " << i;
    }
}

// Every operation at the lengths empty, tiny, around a power of two (vector
// blocks and tails) and one longer run, real and complex, on random samples
// against its reference (values, form, points, capacity, delta, type); each
// also refuses the records it cannot read.
template <class T> void check_all(const std::vector<Unary<T>>& cases) {
    unsigned seed = 1;
    for (const auto& c : cases) {
        for (int n : {0, 1, 2, 3, 2047, 2048, 2049, 10000}) {
            for (bool complex : {false, true}) {
                SCOPED_TRACE(::testing::Message() << c.name << " n=" << n << " complex=" << complex);
                const std::vector<T> in = random_scalars<T>(static_cast<std::size_t>(n) * (complex ? 2 : 1), ++seed, c.lo, c.hi);
                Owned<T> o(in, complex, T(0.25));
                o.v.type = 42;
                const int capacity = o.v.alloc, status = c.run(o.get());
                if (complex && !c.cplx && !c.to_real) {
                    EXPECT_EQ(std::tuple(status, o.v.complex, o.scalars()), std::tuple(-1, 1, in)) << "not refused whole";
                    continue;
                }
                ASSERT_EQ(status, 0);
                std::vector<ref::CL> want;
                for (const ref::CL& z : samples(in, complex))
                    want.push_back(complex ? (c.cplx ? c.cplx(z) : c.to_real(z)) : (c.real ? c.real(z.real()) : c.to_complex(z.real())));
                // No points: a real vector still becomes complex when the result is
                // complex by nature, but a complex one is left as it is.
                const bool want_complex = complex ? (n == 0 || c.cplx) : !c.real;
                EXPECT_EQ(std::tuple(o.v.complex != 0, o.v.points, o.v.delta, o.v.type), std::tuple(want_complex, n, T(0.25), 42));
                EXPECT_GE(o.v.alloc, capacity);
                // A pair is compared relative to its magnitude: its small part carries the
                // absolute error of the large one.
                EXPECT_TRUE(near_samples(samples(o.scalars(), want_complex), want, c.ulps * tol<T>(1)));
            }
        }
        expect_refuses_unreadable<T>(c.run);
    }
}

// Runs into(source, destination) with a separate destination (the source left
// as it was), with the source record itself and with a second record wrapping
// the source's block, each against the in-place operation.
template <class T> void check_into(int (*into)(const Vec<T>*, Vec<T>*), int (*in_place)(Vec<T>*), unsigned seed) {
    const int n = 1001;
    for (bool complex : {false, true}) {
        const auto in = random_scalars<T>(complex ? 2 * n : n, seed, -3, 3);
        Owned<T> expected(in, complex, T(0.5)), src(in, complex, T(0.5)), dst, self(in, complex, T(0.5)), owner(in, complex, T(0.5));
        ASSERT_EQ(in_place(expected.get()), 0);
        const auto want = expected.scalars();
        dst.v.type = 9;
        ASSERT_EQ(into(src.get(), dst.get()), 0);
        EXPECT_EQ(std::tuple(src.scalars(), src.v.complex, shape(dst.v), dst.v.type, dst.scalars()),
                  std::tuple(in, complex ? 1 : 0, shape(expected.v), 9, want));
        const int capacity = self.v.alloc;
        ASSERT_EQ(into(self.get(), self.get()), 0);
        EXPECT_EQ(std::tuple(self.v.alloc, self.scalars()), std::tuple(capacity, want));
        Vec<T> view = owner.v;
        view.alloc = 0;
        ASSERT_EQ(into(owner.get(), &view), 0);
        EXPECT_EQ(std::vector<T>(view.data, view.data + want.size()), want);
        if (view.data != owner.v.data) api::destroy(&view);
    }
}

}  // namespace zt
