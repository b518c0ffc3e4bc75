// The window cache of one precision: up to 16 generated windows with their
// keys. Slots are filled in order; once all are taken a replacement index
// walks them cyclically from slot 0 and the window in that slot is regenerated
// at its new length. A slot is only valid after a complete generation, so a
// failure never leaves a window under another key.
#include <cstdlib>

#include "core/cache.hpp"
#include "window/catalogue.hpp"
#include "window/window.hpp"

namespace zf {
namespace {

constexpr int slots = 16;

template <class T> struct Slot {
    Vec<T> w;
    int kind, flags, points;
    T width;
    bool valid;
};

template <class T> struct WindowCache {
    Slot<T>* slot;   // slots entries once used, else null
    int used;        // slots filled in order so far
    int next;        // the next slot to replace once all are used
};

template <class T> WindowCache<T> cache;   // zero-initialised, trivially destructible

template <class T> bool matches(const Slot<T>& s, int kind, int flags, int n, T width) noexcept {
    return s.valid && s.kind == kind && s.flags == flags && s.points == n &&
           (!(flags & win_width) || s.width == width);
}

}  // namespace

template <class T> int release_windows() noexcept {
    WindowCache<T>& c = cache<T>;
    if (c.slot) {
        for (int i = 0; i < slots; ++i) destroy<T>(&c.slot[i].w);
        std::free(c.slot);
    }
    c = WindowCache<T>{};
    return 0;
}

template <class T> const T* cached_window(int kind, int flags, int n, T width) noexcept {
    WindowCache<T>& c = cache<T>;
    flags &= 15;
    if (n < 1 || !win::accepts(kind, flags)) return nullptr;
    if (c.slot) {
        for (int i = 0; i < c.used; ++i)
            if (matches(c.slot[i], kind, flags, n, width)) return c.slot[i].w.data;
    } else {
        c.slot = static_cast<Slot<T>*>(std::malloc(slots * sizeof(Slot<T>)));
        if (!c.slot) return nullptr;
        for (int i = 0; i < slots; ++i) {
            init<T>(&c.slot[i].w);
            c.slot[i].valid = false;
        }
        register_cache<T>(CacheSlot::window, &release_windows<T>);
    }
    int i;
    if (c.used < slots) {
        i = c.used++;
    } else {
        i = c.next;
        c.next = (c.next + 1) % slots;
    }
    Slot<T>& s = c.slot[i];
    s.valid = false;
    if (make_window<T>(&s.w, n, kind, flags, width) != 0) return nullptr;
    s.kind = kind;
    s.flags = flags;
    s.points = n;
    s.width = width;
    s.valid = true;
    return s.w.data;
}

template int release_windows<double>() noexcept;
template int release_windows<float>() noexcept;
template const double* cached_window<double>(int, int, int, double) noexcept;
template const float* cached_window<float>(int, int, int, float) noexcept;

}  // namespace zf
