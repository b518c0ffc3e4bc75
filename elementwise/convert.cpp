#include "elementwise/convert.hpp"

#include <cmath>

#include "core/libm.hpp"
#include "elementwise/unary.hpp"
#include "elementwise/vmath.hpp"

namespace zf {

namespace {

// The phase of a real number: 0 for x >= 0 (so also for -0), pi below.
template <class T> inline T real_phase(T x) noexcept { return x >= T(0) ? T(0) : Traits<T>::pi; }
// The phase of a pair: exactly 0 at the origin, where atan2 is not asked.
template <class T> inline T pair_phase(T re, T im) noexcept {
    return (re == T(0) && im == T(0)) ? T(0) : std::atan2(im, re);
}

template <class T> inline T real_mag(T x) noexcept { return std::fabs(x); }
template <class T> inline T pair_mag(T re, T im) noexcept { return std::hypot(re, im); }

// The block kernel of an operation from pairs to reals, or null.
template <class T> using PackFn = void (*)(const T*, T*, std::size_t) noexcept;
template <class T> PackFn<T> mag_kernel() noexcept {
    const VecMath<T>* k = vecmath<T>();
    return k ? k->mag : nullptr;
}
template <class T> PackFn<T> phase_kernel() noexcept {
    const VecMath<T>* k = vecmath<T>();
    return k ? k->phase : nullptr;
}

// A real result in place as to_real does, the pairs by the block kernel when there is one.
template <class T, class G, class F> int to_real_by(Vec<T>* v, PackFn<T> block, G g, F f) noexcept {
    if (block && readable<T>(v) && v->complex && v->points > 0) {
        block(v->data, v->data, static_cast<std::size_t>(v->points));
        v->complex = 0;
        return 0;
    }
    return to_real<T>(v, g, f);
}

// One-input operation with a real result into dst (dst may be src); pairs by
// the block kernel when there is one.
template <class T, class G, class F> int real_into(const Vec<T>* src, Vec<T>* dst, G g, F f, PackFn<T> block) noexcept {
    if (!readable<T>(src)) return -1;
    const bool complex = src->complex != 0;
    const T* in = nullptr;
    if (size_output<T>(src, dst, 0, &in) != 0) return -1;
    const std::size_t n = static_cast<std::size_t>(dst->points);
    if (complex && block) block(in, dst->data, n);
    else if (complex) pack_pairs(in, dst->data, n, f);
    else map_scalars(in, dst->data, n, g);
    return 0;
}

}  // namespace

template <class T> int rtoc(Vec<T>* v) noexcept {
    if (!readable<T>(v)) return -1;
    if (v->complex) return 0;
    return spread_to_complex<T>(*v, [](T x, T& re, T& im) { re = x; im = T(0); });
}

template <class T> int rtop(Vec<T>* v) noexcept {
    return to_complex<T>(
        v, [](T x, T& re, T& im) { re = std::fabs(x); im = real_phase(x); },
        [](T& re, T& im) {
            const T m = pair_mag(re, im);
            im = pair_phase(re, im);
            re = m;
        });
}

template <class T> int ptor(Vec<T>* v) noexcept {
    if (!readable<T>(v)) return -1;
    if (!v->complex) return 0;
    if (const VecMath<T>* k = vecmath<T>()) {
        k->polar(v->data, static_cast<std::size_t>(v->points));
        return 0;
    }
    map_pairs(v->data, v->data, static_cast<std::size_t>(v->points), [](T& re, T& im) {
        const T m = re;
        T s, c;
        libm::sincos(im, &s, &c);
        re = m * c;
        im = m * s;
    });
    return 0;
}

template <class T> int real(Vec<T>* v) noexcept {
    if (!readable<T>(v)) return -1;
    if (v->complex && v->points > 0) {
        pack_pairs(v->data, v->data, static_cast<std::size_t>(v->points), [](T re, T) { return re; });
        v->complex = 0;
    }
    return 0;
}

template <class T> int imag(Vec<T>* v) noexcept {
    return to_real<T>(v, [](T) { return T(0); }, [](T, T im) { return im; });
}

template <class T> int mag(Vec<T>* v) noexcept {
    return to_real_by<T>(v, mag_kernel<T>(), [](T x) { return real_mag(x); }, [](T re, T im) { return pair_mag(re, im); });
}
template <class T> int magsq(Vec<T>* v) noexcept { return to_real<T>(v, [](T x) { return saturated_square(x); }, [](T re, T im) { return saturated_norm(re, im); }); }
template <class T> int phase(Vec<T>* v) noexcept {
    return to_real_by<T>(v, phase_kernel<T>(), [](T x) { return real_phase(x); }, [](T re, T im) { return pair_phase(re, im); });
}

template <class T> int mag(const Vec<T>* src, Vec<T>* dst) noexcept {
    return real_into<T>(src, dst, [](T x) { return real_mag(x); }, [](T re, T im) { return pair_mag(re, im); }, mag_kernel<T>());
}
template <class T> int magsq(const Vec<T>* src, Vec<T>* dst) noexcept {
    return real_into<T>(src, dst, [](T x) { return saturated_square(x); }, [](T re, T im) { return saturated_norm(re, im); }, PackFn<T>(nullptr));
}

template int rtoc<double>(Vec<double>*) noexcept;
template int rtop<double>(Vec<double>*) noexcept;
template int ptor<double>(Vec<double>*) noexcept;
template int real<double>(Vec<double>*) noexcept;
template int imag<double>(Vec<double>*) noexcept;
template int mag<double>(Vec<double>*) noexcept;
template int magsq<double>(Vec<double>*) noexcept;
template int phase<double>(Vec<double>*) noexcept;
template int mag<double>(const Vec<double>*, Vec<double>*) noexcept;
template int magsq<double>(const Vec<double>*, Vec<double>*) noexcept;

template int rtoc<float>(Vec<float>*) noexcept;
template int rtop<float>(Vec<float>*) noexcept;
template int ptor<float>(Vec<float>*) noexcept;
template int real<float>(Vec<float>*) noexcept;
template int imag<float>(Vec<float>*) noexcept;
template int mag<float>(Vec<float>*) noexcept;
template int magsq<float>(Vec<float>*) noexcept;
template int phase<float>(Vec<float>*) noexcept;
template int mag<float>(const Vec<float>*, Vec<float>*) noexcept;
template int magsq<float>(const Vec<float>*, Vec<float>*) noexcept;

}  // namespace zf
