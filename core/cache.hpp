// The ordered registry of process-wide caches that dsp_free_internal and
// dspf_free_internal walk. Each cache lives in the subsystem that fills it and
// registers its release function here the first time it is filled; the
// registry knows only the slot order, never what a cache holds.
#pragma once

namespace zf {

// Release order of the caches of one precision.
enum class CacheSlot : int {
    fir_scratch = 0,     // FIR filter's three scratch vectors
    sfir_scratch,        // short-FIR expanded coefficients
    bitrev,              // bit-reversal lists of the FFT
    dct,                 // DCT scratch vector and buffer
    dft,                 // chirp-z DFT state
    dft_mixed,           // mixed-radix DFT plan and scratch
    filter_scratch,      // scratch vectors shared by the filters and resamplers
    twiddle,             // FFT twiddle tables
    window,              // generated-window cache
    count
};

// A release function empties its cache (the next use rebuilds it) and returns
// 0, or -1 when it could not.
using ReleaseFn = int (*)() noexcept;

// Records the release function of a slot; cheap and idempotent, so a cache may
// call it on every fill.
template <class T> void register_cache(CacheSlot slot, ReleaseFn release) noexcept;

// Walks the slots in order, stopping at the first release that fails (-1).
template <class T> int free_internal() noexcept;

}  // namespace zf
