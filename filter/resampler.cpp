// The streaming resampler: octave stages (half-band lowpass, then every second
// sample) followed by one fractional stage (prefilter, table-driven resampling
// at twice the output rate, half-band lowpass, every second sample), with every
// filter's history and every decimation phase kept in the state record so that
// consecutive blocks join into one stream. Each filter runs as the symmetric
// response its half vector describes; the half-band filter that precedes a
// decimation computes only the samples the decimation keeps.
#include "filter/resample.hpp"

#include "elementwise/rearrange.hpp"
#include "filter/fir.hpp"

#include <cstdint>
#include <cstdlib>
#include <cstring>

namespace zf {
namespace {

template <class T> bool nearly_equal(T a, T b) noexcept {
    using L = RsmpTol<T>;
    if (a == b) return true;
    if (std::fabs(a) <= L::tiny && std::fabs(b) <= L::tiny) return true;
    const T r = b / a;
    return r >= L::lo && r <= L::hi;
}

template <class T> int tolerant_ceil(T x) noexcept {
    using L = RsmpTol<T>;
    if (x >= T(2147483648.0)) return INT_MAX;
    if (x < T(0)) return 0;
    return static_cast<int>(std::ceil(x <= T(0.5) ? x - L::ceil_sub : x * L::ceil_mul));
}

template <class T> bool fraction_runs(const RsmpCoef<T>& c) noexcept {
    return c.force != 0 || !nearly_equal<T>(c.ratio, T(1));
}

// A filter given by half of a symmetric response: taps half[0 .. h-1], then
// the same mirrored; odd: the last half tap is the shared centre.
template <class T> struct Half {
    const T* b;
    int h;
    bool odd;
    int taps() const noexcept { return h > 0 ? 2 * h - (odd ? 1 : 0) : 0; }
};

// Real outputs k0 .. of filter_keep whose windows lie in the block, in runs of
// 32 with the taps outermost (the same sums in the same order as one output
// at a time); returns the index after the last run.
template <class T, int Step>
std::int64_t block_sums(const T* in, std::int64_t first, std::int64_t k0, std::int64_t count, int l1, const T* b,
                        int pairs, T centre, int mid, T* y) noexcept {
    constexpr int run = 32;
    std::int64_t k = k0;
    for (; k + run <= count; k += run) {
        const T* s = in + (first + k * Step - l1);
        T acc[run];
        for (int m = 0; m < run; ++m) acc[m] = centre * s[m * Step + mid];
        for (int j = 0; j < pairs; ++j) {
            const T bj = b[j];
            const T* lo = s + j;
            const T* hi = s + l1 - j;
            for (int m = 0; m < run; ++m) acc[m] += bj * (hi[m * Step] + lo[m * Step]);
        }
        for (int m = 0; m < run; ++m) y[k + m] = acc[m];
    }
    return k;
}

// Filters x (n samples) with f and keeps the outputs first, first + step, ...
// (count of them) in y; hist holds the f.taps() - 1 samples before x, oldest
// first, and becomes the last ones of hist followed by x. y must not share
// storage with x or hist. An empty response passes the samples through.
template <class T>
int filter_keep(const Vec<T>& x, const Half<T>& f, Vec<T>& hist, std::int64_t first, int step,
                std::int64_t count, T* y) noexcept {
    const int w = width<T>(x);
    const std::int64_t n = x.points;
    const T* in = x.data;
    if (f.h <= 0) {
        for (std::int64_t k = 0; k < count; ++k)
            for (int c = 0; c < w; ++c) y[k * w + c] = in[(first + k * step) * w + c];
        return 0;
    }
    const int l1 = f.taps() - 1;
    const std::size_t lw = static_cast<std::size_t>(l1) * w;
    // Samples -(L-1) .. L-2 in a row, for the outputs whose window starts in the history.
    Temp<T> head;
    head->points = 2 * l1;
    head->complex = x.complex;
    if (l1 > 0 && alloc<T>(head.get()) != 0) return -1;
    T* hd = head->data;
    const std::int64_t lead = n < l1 ? n : l1;
    if (l1 > 0) {
        std::memset(hd, 0, 2 * lw * sizeof(T));
        std::memcpy(hd, hist.data, lw * sizeof(T));
        if (lead > 0) std::memcpy(hd + lw, in, static_cast<std::size_t>(lead) * w * sizeof(T));
    }
    auto at = [&](std::int64_t m) { return m < 0 ? hd + (m + l1) * w : in + m * w; };
    const T* b = f.b;
    const int pairs = f.odd ? f.h - 1 : f.h;
    const T centre = f.odd ? b[f.h - 1] : T(0);
    const int mid = f.h - 1;
    auto one = [&](std::int64_t k) {
        const T* s = at(first + k * step - l1);
        if (w == 1) {
            T acc = centre * s[mid];
            for (int j = 0; j < pairs; ++j) acc += b[j] * (s[l1 - j] + s[j]);
            y[k] = acc;
        } else {
            T re = centre * s[2 * mid], im = centre * s[2 * mid + 1];
            for (int j = 0; j < pairs; ++j) {
                re += b[j] * (s[2 * (l1 - j)] + s[2 * j]);
                im += b[j] * (s[2 * (l1 - j) + 1] + s[2 * j + 1]);
            }
            y[2 * k] = re;
            y[2 * k + 1] = im;
        }
    };
    std::int64_t k = 0;
    for (; k < count && first + k * step < l1; ++k) one(k);  // windows that reach into the history
    if (w == 1) {
        const std::int64_t done = step == 1 ? block_sums<T, 1>(in, first, k, count, l1, b, pairs, centre, mid, y)
                                            : block_sums<T, 2>(in, first, k, count, l1, b, pairs, centre, mid, y);
        k = done;
    }
    for (; k < count; ++k) one(k);
    if (l1 > 0) std::memcpy(hist.data, at(n - l1), lw * sizeof(T));
    return 0;
}

// One filter stage from src into dst: the filter f with history hist, then,
// with a phase vector, every second sample from that phase on.
template <class T>
int stage(const Vec<T>& src, Vec<T>* dst, const Half<T>& f, Vec<T>* hist, Vec<T>* phase) noexcept {
    if (f.h > 0 && prepare_history<T>(hist, src, f.taps() - 1) != 0) return -1;
    const std::int64_t n = src.points;
    std::int64_t first = 0, count = n, next = 0;
    const int step = phase ? 2 : 1;
    if (phase) {
        if (prepare_history<T>(phase, src, 1) != 0) return -1;
        const int p = round_half_up<T>(phase->data[0]);
        first = p > 0 ? p : 0;
        const std::int64_t span = n + 1 - first;
        count = first < n ? span / 2 : 0;
        next = first < n ? 1 - span % 2 : first - n;
    }
    dst->points = static_cast<int>(count);
    dst->complex = src.complex;
    dst->delta = src.delta * static_cast<T>(step);
    if (alloc<T>(dst) != 0) return -1;
    if (filter_keep<T>(src, f, *hist, first, step, count, dst->data) != 0) return -1;
    if (phase) {
        phase->data[0] = static_cast<T>(next);
        if (phase->complex) phase->data[1] = T(0);
    }
    return 0;
}

template <class T> void drop_front(Vec<T>* v, int& pending) noexcept {
    const int d = v->points < pending ? v->points : pending;
    if (d <= 0) return;
    shift<T>(v, d);
    pending -= d;
}

// Releases the arrays of the octave stages.
template <class T> void free_stages(RsmpState<T>* s) noexcept {
    for (int k = 0; k < s->stages; ++k) {
        if (s->stage_history) destroy<T>(&s->stage_history[k]);
        if (s->stage_phase) destroy<T>(&s->stage_phase[k]);
    }
    std::free(s->stage_history);
    std::free(s->stage_phase);
    s->stage_history = nullptr;
    s->stage_phase = nullptr;
    s->stages = 0;
}

// Kind and length of one state vector.
template <class T> int size_state(Vec<T>* v, int complex, int n) noexcept {
    Vec<T> kind;
    init<T>(&kind);
    kind.complex = complex;
    kind.delta = v->delta;
    return prepare_history<T>(v, kind, n);
}

}  // namespace

template <class T> int rsmp_coef_init(RsmpCoef<T>* c) noexcept {
    if (!c) return 0;
    init<T>(&c->halfband);
    init<T>(&c->prefilter);
    init<T>(&c->kernel);
    c->halfband_used = c->prefilter_used = c->kernel_mode = 0;
    c->ratio = T(0);
    c->octaves = c->force = c->octave_skip = c->fraction_skip = 0;
    return 0;
}

template <class T> int rsmp_coef_destroy(RsmpCoef<T>* c) noexcept {
    if (!c) return 0;
    destroy<T>(&c->halfband);
    destroy<T>(&c->prefilter);
    destroy<T>(&c->kernel);
    return rsmp_coef_init<T>(c);
}

template <class T> int rsmp_coef_alloc(RsmpCoef<T>* c, void* reserved) noexcept {
    if (!c) return 0;
    if (reserved) return -1;
    if (fir2<T>(&c->halfband, 101) != 0) return -1;
    c->halfband_used = 1;
    if (fir2<T>(&c->prefilter, 100) != 0) return -1;
    c->prefilter_used = 1;
    c->kernel.points = 13314;
    c->kernel.complex = 0;
    c->kernel.delta = T(1);
    if (rsmp_table<T>(&c->kernel, 4) != 0) return -1;
    c->kernel_mode = 1;
    return 0;
}

template <class T> int rsmp_coef_setup(RsmpCoef<T>* c, T ratio, int force, void* reserved) noexcept {
    if (!c || !std::isfinite(ratio)) return -1;
    if (!(ratio > T(0))) ratio = T(1);
    int octaves = 0;
    while (ratio >= T(2)) {
        ratio /= T(2);
        ++octaves;
    }
    if (reserved) return -1;
    c->ratio = ratio;
    c->octaves = octaves;
    c->force = force;
    c->octave_skip = octaves >= 1 ? 33 : 0;
    c->fraction_skip = fraction_runs<T>(*c) ? tolerant_ceil<T>(T(35) / ratio) + 19 : 0;
    return 0;
}

template <class T> int rsmp_state_init(RsmpState<T>* s) noexcept {
    if (!s) return 0;
    s->stages = 0;
    s->stage_history = nullptr;
    s->stage_phase = nullptr;
    s->octave_pending = s->fraction_pending = 0;
    init<T>(&s->prefilter_history);
    init<T>(&s->kernel_history);
    init<T>(&s->halfband_history);
    init<T>(&s->final_phase);
    return 0;
}

template <class T> int rsmp_state_destroy(RsmpState<T>* s) noexcept {
    if (!s) return 0;
    free_stages<T>(s);
    destroy<T>(&s->prefilter_history);
    destroy<T>(&s->kernel_history);
    destroy<T>(&s->halfband_history);
    destroy<T>(&s->final_phase);
    return rsmp_state_init<T>(s);
}

template <class T> int rsmp_state_alloc(const RsmpCoef<T>* c, RsmpState<T>* s, int complex) noexcept {
    if (!c || !s) return 0;
    const int octaves = c->octaves > 0 ? c->octaves : 0;
    if (s->stages != octaves) {
        free_stages<T>(s);
        if (octaves >= 1) {
            const std::size_t bytes = static_cast<std::size_t>(octaves) * sizeof(Vec<T>);
            s->stage_history = static_cast<Vec<T>*>(std::malloc(bytes));
            s->stage_phase = static_cast<Vec<T>*>(std::malloc(bytes));
            if (!s->stage_history || !s->stage_phase) {
                std::free(s->stage_history);
                std::free(s->stage_phase);
                s->stage_history = s->stage_phase = nullptr;
                return -1;
            }
            for (int k = 0; k < octaves; ++k) {
                init<T>(&s->stage_history[k]);
                init<T>(&s->stage_phase[k]);
            }
        }
        s->stages = octaves;
    }
    const int band = 2 * 20 - 1 - (c->halfband_used ? 1 : 0);
    const int pre = 2 * 12 - 1 - (c->prefilter_used ? 1 : 0);
    int kern = 0;
    if (c->kernel.points > 0 && c->kernel.data) {
        const int k = round_half_up<T>(c->kernel.data[0]);
        kern = k < c->kernel.points ? k + 2 : c->kernel.points + 2;
    }
    for (int k = 0; k < s->stages; ++k) {
        if (size_state<T>(&s->stage_history[k], complex, band) != 0) return -1;
        if (size_state<T>(&s->stage_phase[k], complex, 1) != 0) return -1;
    }
    if (size_state<T>(&s->halfband_history, complex, band) != 0) return -1;
    if (size_state<T>(&s->final_phase, complex, 1) != 0) return -1;
    if (size_state<T>(&s->prefilter_history, complex, pre) != 0) return -1;
    return size_state<T>(&s->kernel_history, complex, kern);
}

template <class T> int rsmp_state_reset(const RsmpCoef<T>* c, RsmpState<T>* s) noexcept {
    if (!c || !s) return 0;
    int rc = 0;
    for (int k = 0; k < s->stages; ++k) {
        rc |= zero<T>(&s->stage_history[k]);
        rc |= zero<T>(&s->stage_phase[k]);
    }
    rc |= zero<T>(&s->prefilter_history);
    rc |= zero<T>(&s->kernel_history);
    rc |= zero<T>(&s->halfband_history);
    rc |= zero<T>(&s->final_phase);
    s->octave_pending = c->octave_skip;
    s->fraction_pending = c->fraction_skip;
    return rc ? -1 : 0;
}

namespace {

// The body of hrsmp once the state record and the scratch vector exist; the
// signal moves between the output and the scratch vector, stage by stage.
template <class T>
int run(const Vec<T>* in, Vec<T>* out, Vec<T>* scratch, const RsmpCoef<T>& c, RsmpState<T>* s) noexcept {
    const int want = out->points > 0 ? out->points : 0;
    if (rsmp_state_alloc<T>(&c, s, in->complex) != 0) return -1;
    const Half<T> band{c.halfband.data, c.halfband.points, c.halfband_used != 0};
    const Half<T> pre{c.prefilter.data, c.prefilter.points, c.prefilter_used != 0};
    Vec<T>* cur = nullptr;  // null: the signal is still the input
    auto src = [&]() -> const Vec<T>& { return cur ? *cur : *in; };
    auto next = [&]() { return cur == scratch ? out : scratch; };
    for (int k = 0; k < c.octaves; ++k) {
        Vec<T>* dst = next();
        if (stage<T>(src(), dst, band, &s->stage_history[k], &s->stage_phase[k]) != 0) return -1;
        cur = dst;
    }
    if (cur) drop_front<T>(cur, s->octave_pending);
    if (fraction_runs<T>(c)) {
        Vec<T>& fp = s->final_phase;
        const int p = fp.points > 0 ? round_half_up<T>(fp.data[0]) : 0;
        const std::int64_t wanted = static_cast<std::int64_t>(want) + s->fraction_pending;
        Vec<T>* a = next();
        if (stage<T>(src(), a, pre, &s->prefilter_history, nullptr) != 0) return -1;
        Vec<T>* b = a == scratch ? out : scratch;
        const std::int64_t cap = (p > 0 ? p : 0) + 2 * wanted - 1;
        b->points = static_cast<int>(cap < INT_MAX ? cap : INT_MAX);
        if (rsmp<T>(a, b, c.kernel_mode, &c.kernel, c.ratio / T(2), &s->kernel_history) != 0) return -1;
        if (stage<T>(*b, a, band, &s->halfband_history, &fp) != 0) return -1;
        drop_front<T>(a, s->fraction_pending);
        cur = a;
    }
    if (cur != out && copy<T>(out, &src()) != 0) return -1;
    if (out->points > want) out->points = want;
    return 0;
}

}  // namespace

template <class T>
int hrsmp(const Vec<T>* in, Vec<T>* out, Vec<T>* scratch, const RsmpCoef<T>* c, RsmpState<T>* s) noexcept {
    if (!readable<T>(in) || !writable<T>(out) || !c) return -1;
    if (!readable<T>(&c->halfband) || !readable<T>(&c->prefilter) || !readable<T>(&c->kernel)) return -1;
    if (c->halfband.complex || c->prefilter.complex) return -1;
    if (scratch && (same_storage<T>(*scratch, *in) || same_storage<T>(*scratch, *out))) return -1;
    Temp<T> own_scratch;
    Vec<T>* sc = scratch ? scratch : own_scratch.get();
    if (s) return run<T>(in, out, sc, *c, s);
    RsmpState<T> local;
    rsmp_state_init<T>(&local);
    const int rc = run<T>(in, out, sc, *c, &local);  // nothing pending: nothing dropped
    return rsmp_state_destroy<T>(&local) != 0 ? -1 : rc;
}

template int rsmp_coef_init<double>(RsmpCoef<double>*) noexcept;
template int rsmp_coef_destroy<double>(RsmpCoef<double>*) noexcept;
template int rsmp_coef_alloc<double>(RsmpCoef<double>*, void*) noexcept;
template int rsmp_coef_setup<double>(RsmpCoef<double>*, double, int, void*) noexcept;
template int rsmp_state_init<double>(RsmpState<double>*) noexcept;
template int rsmp_state_destroy<double>(RsmpState<double>*) noexcept;
template int rsmp_state_alloc<double>(const RsmpCoef<double>*, RsmpState<double>*, int) noexcept;
template int rsmp_state_reset<double>(const RsmpCoef<double>*, RsmpState<double>*) noexcept;
template int hrsmp<double>(const Vec<double>*, Vec<double>*, Vec<double>*, const RsmpCoef<double>*, RsmpState<double>*) noexcept;

template int rsmp_coef_init<float>(RsmpCoef<float>*) noexcept;
template int rsmp_coef_destroy<float>(RsmpCoef<float>*) noexcept;
template int rsmp_coef_alloc<float>(RsmpCoef<float>*, void*) noexcept;
template int rsmp_coef_setup<float>(RsmpCoef<float>*, float, int, void*) noexcept;
template int rsmp_state_init<float>(RsmpState<float>*) noexcept;
template int rsmp_state_destroy<float>(RsmpState<float>*) noexcept;
template int rsmp_state_alloc<float>(const RsmpCoef<float>*, RsmpState<float>*, int) noexcept;
template int rsmp_state_reset<float>(const RsmpCoef<float>*, RsmpState<float>*) noexcept;
template int hrsmp<float>(const Vec<float>*, Vec<float>*, Vec<float>*, const RsmpCoef<float>*, RsmpState<float>*) noexcept;

}  // namespace zf
