// Test-side overloads of the core entry points, picked by record type, so one
// typed test reaches both C twins through the real interface.
#pragma once
#include <zifaif/dsp.h>

#include <type_traits>

// One overload set per pair of twins: a call goes to whichever of the two C
// functions accepts its arguments, so the record or element type picks it.
#define ZT_TWIN(name, dbl, flt)                                                           \
    template <class... A> auto name(A... a)->decltype(dbl(a...)) { return dbl(a...); } \
    template <class... A> auto name(A... a)->decltype(flt(a...)) { return flt(a...); }

namespace api {
template <class V> int free_internal() { return std::is_same_v<V, dsp_vector> ? dsp_free_internal() : dspf_free_internal(); }
ZT_TWIN(init, dsp_init, dspf_init)
ZT_TWIN(destroy, dsp_destroy, dspf_destroy)
ZT_TWIN(alloc, dsp_alloc, dspf_alloc)
ZT_TWIN(realloc, dsp_realloc, dspf_realloc)
ZT_TWIN(append, dsp_append, dspf_append)
ZT_TWIN(copy, dsp_copy, dspf_copy)
ZT_TWIN(copy_at_most, dsp_copy_at_most, dspf_copy_at_most)
ZT_TWIN(subvec, dspu_subvec, dspfu_subvec)
ZT_TWIN(cmp, dsp_cmp, dspf_cmp)
ZT_TWIN(lib_alloc, dsp_lib_alloc, dspf_lib_alloc)
ZT_TWIN(lib_realloc, dsp_lib_realloc, dspf_lib_realloc)
ZT_TWIN(lib_free, dsp_lib_free, dspf_lib_free)
}  // namespace api
