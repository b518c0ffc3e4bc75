// Filtering with a response given by one half of a symmetric or antisymmetric
// impulse response: the full response is expanded into a library-wide vector
// and filtered as dspd_fir filters; short real responses on long enough input
// always take the direct sums.
#include "core/cache.hpp"
#include "filter/fir.hpp"

namespace zf {
namespace {

// The expanded response of one precision, freed only by release_sfir.
template <class T> Vec<T> expanded{};

template <class T> int release_sfir() noexcept { return destroy<T>(&expanded<T>); }

}  // namespace

template <class T> int sfir(const Vec<T>* in, Vec<T>* out, const Vec<T>* half, int odd, int negate, Vec<T>* hist) noexcept {
    if (!readable<T>(in) || !readable<T>(half) || !writable<T>(out)) return -1;
    const int h = half->points;
    if (h <= 0) return copy<T>(out, in);
    Vec<T>& b = expanded<T>;
    register_cache<T>(CacheSlot::sfir_scratch, &release_sfir<T>);
    const int len = odd ? 2 * h - 1 : 2 * h;
    const int w = width<T>(*half);
    b.points = len;
    b.complex = half->complex;
    b.delta = half->delta;
    if (alloc<T>(&b) != 0) return -1;
    // b[k] = half[k]; b[len-1-k] = +-half[k] for the mirrored samples. With
    // odd the shared centre b[h-1] is written once, unnegated.
    const T sign = negate ? T(-1) : T(1);
    for (int k = 0; k < h; ++k) {
        for (int c = 0; c < w; ++c) {
            const T v = half->data[w * k + c];
            b.data[w * k + c] = v;
            if (len - 1 - k != k) b.data[w * (len - 1 - k) + c] = sign * v;
        }
    }
    const bool short_kernel = !half->complex && len < 61 && in->points >= len - 1;
    return fir_filter<T>(in, out, &b, hist, short_kernel);
}

template int sfir<double>(const Vec<double>*, Vec<double>*, const Vec<double>*, int, int, Vec<double>*) noexcept;
template int sfir<float>(const Vec<float>*, Vec<float>*, const Vec<float>*, int, int, Vec<float>*) noexcept;

}  // namespace zf
