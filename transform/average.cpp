// One step of averaging: the accumulator folds in the next record by mean,
// extreme, harmonic or geometric mean, or a decimating hold.
#include "transform/handle_fft.hpp"

#include "elementwise/arith.hpp"
#include "elementwise/binary.hpp"
#include "elementwise/convert.hpp"
#include "elementwise/logexp.hpp"

namespace zf {

namespace {

// Weight of the new record: as given when >= 0, else 1/count, or 1/limit once
// count has reached a limit in (0, count] under avg_limit. Only counts of 2
// and more get here, so the divisor is never 0.
template <class T> T weight_of(int flags, int count, T weight, T limit) noexcept {
    if (weight >= T(0)) return weight;
    T k = static_cast<T>(count);
    if ((flags & avg_limit) && limit > T(0) && limit <= k) k = limit;
    return T(1) / k;
}

// The weighted mean of f(input) and f(acc), mapped back by g: every step runs
// even after one failed, and the result tells whether any did.
template <class T, class F, class G>
int mean_through(const Vec<T>* src, Vec<T>* acc, Vec<T>* scratch, T w, F f, G g) noexcept {
    int bad = (src == scratch ? 0 : copy<T>(scratch, src)) != 0;
    bad |= f(scratch) != 0;
    bad |= f(acc) != 0;
    bad |= avg_add<T>(scratch, acc, acc, w) != 0;
    bad |= g(acc) != 0;
    return bad ? -1 : 0;
}

}  // namespace

template <class T> int avg(const Vec<T>* in, Vec<T>* acc, Vec<T>* scratch, int flags, int count, int n, T weight, T limit) noexcept {
    if (!readable<T>(in) || !writable<T>(acc)) return -1;
    // A scratch record that is one of the others cannot serve.
    Temp<T> temp;
    if (!scratch || same_storage<T>(*scratch, *in) || same_storage<T>(*scratch, *acc)) scratch = temp.get();
    const Vec<T>* src = in;
    if (flags & avg_power) {
        if (magsq<T>(in, scratch) != 0) return -1;
        src = scratch;
    }
    if (count <= 1) return copy<T>(acc, src);
    const T w = weight_of<T>(flags, count, weight, limit);
    switch (flags & avg_mode_mask) {
        case avg_copy: return copy<T>(acc, src);
        case avg_mean: return avg_add<T>(src, acc, acc, w);
        case avg_max: return max<T>(src, acc, acc);
        case avg_min: return min<T>(src, acc, acc);
        case avg_harmonic: return mean_through<T>(src, acc, scratch, w, recip<T>, recip<T>);
        case avg_geometric: return mean_through<T>(src, acc, scratch, w, zf::log<T>, zf::exp<T>);
        case avg_hold: return (n == 1 || (n > 0 && count % n == 1)) ? copy<T>(acc, src) : 0;
        default: return 0;
    }
}

template int avg<double>(const Vec<double>*, Vec<double>*, Vec<double>*, int, int, int, double, double) noexcept;
template int avg<float>(const Vec<float>*, Vec<float>*, Vec<float>*, int, int, int, float, float) noexcept;

}  // namespace zf
