// The library-wide vectors that the filters share, and the preparation of
// history and output vectors common to filtering, decimation and resampling.
#include "core/cache.hpp"
#include "elementwise/convert.hpp"
#include "elementwise/rearrange.hpp"
#include "filter/fir.hpp"

namespace zf {
namespace {

// The in-place scratch vector and the hardware filter's default history of
// one precision: plain records, freed only by release_filter_scratch.
template <class T> struct FilterScratch {
    Vec<T> scratch;
    Vec<T> hw_history;
};
template <class T> FilterScratch<T> filter_scratch{};

template <class T> int release_filter_scratch() noexcept {
    FilterScratch<T>& s = filter_scratch<T>;
    const int a = destroy<T>(&s.scratch);
    const int b = destroy<T>(&s.hw_history);
    return a == 0 && b == 0 ? 0 : -1;
}

}  // namespace

template <class T> Vec<T>* scratch() noexcept {
    register_cache<T>(CacheSlot::filter_scratch, &release_filter_scratch<T>);
    return &filter_scratch<T>.scratch;
}

template <class T> Vec<T>* hw_default_history() noexcept {
    register_cache<T>(CacheSlot::filter_scratch, &release_filter_scratch<T>);
    return &filter_scratch<T>.hw_history;
}

template <class T> int prepare_history(Vec<T>* hist, const Vec<T>& in, int length) noexcept {
    if (!hist) return 0;
    if (!readable<T>(hist)) return -1;
    hist->delta = in.delta;
    if (in.complex && !hist->complex) {
        if (rtoc<T>(hist) != 0) return -1;
    } else if (!in.complex && hist->complex) {
        if (real<T>(hist) != 0) return -1;
    }
    if (length < 0) length = 0;
    if (hist->points > length) {
        hist->points = length;
        return 0;
    }
    return zpad<T>(hist, length);
}

template <class T> int prepare_output(const Vec<T>& in, Vec<T>* out, bool extra_complex) noexcept {
    if (!writable<T>(out)) return -1;
    out->points = in.points;
    out->complex = in.complex || extra_complex ? 1 : 0;
    out->delta = in.delta;
    return alloc<T>(out);
}

template Vec<double>* scratch<double>() noexcept;
template Vec<float>* scratch<float>() noexcept;
template Vec<double>* hw_default_history<double>() noexcept;
template Vec<float>* hw_default_history<float>() noexcept;
template int prepare_history<double>(Vec<double>*, const Vec<double>&, int) noexcept;
template int prepare_history<float>(Vec<float>*, const Vec<float>&, int) noexcept;
template int prepare_output<double>(const Vec<double>&, Vec<double>*, bool) noexcept;
template int prepare_output<float>(const Vec<float>&, Vec<float>*, bool) noexcept;

}  // namespace zf
