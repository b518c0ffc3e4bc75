#include "core/cache.hpp"

namespace zf {
namespace {

// Plain arrays of function pointers: trivially destructible, so nothing runs
// at unload.
template <class T> ReleaseFn registry[static_cast<int>(CacheSlot::count)];

}  // namespace

template <class T> void register_cache(CacheSlot slot, ReleaseFn release) noexcept {
    registry<T>[static_cast<int>(slot)] = release;
}

template <class T> int free_internal() noexcept {
    for (ReleaseFn release : registry<T>) {
        if (release && release() != 0) return -1;
    }
    return 0;
}

template void register_cache<double>(CacheSlot, ReleaseFn) noexcept;
template void register_cache<float>(CacheSlot, ReleaseFn) noexcept;
template int free_internal<double>() noexcept;
template int free_internal<float>() noexcept;

}  // namespace zf
