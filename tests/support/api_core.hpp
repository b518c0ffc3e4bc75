// Test-side overloads of the core entry points, picked by record type, so one
// typed test reaches both C twins through the real interface.
#pragma once
#include <zifaif/dsp.h>

namespace api {
inline int init(dsp_vector* v) { return dsp_init(v); }
inline int init(dspf_vector* v) { return dspf_init(v); }
inline int destroy(dsp_vector* v) { return dsp_destroy(v); }
inline int destroy(dspf_vector* v) { return dspf_destroy(v); }
inline int alloc(dsp_vector* v) { return dsp_alloc(v); }
inline int alloc(dspf_vector* v) { return dspf_alloc(v); }
inline int realloc(dsp_vector* v, int p, int c) { return dsp_realloc(v, p, c); }
inline int realloc(dspf_vector* v, int p, int c) { return dspf_realloc(v, p, c); }
inline int append(dsp_vector* d, const dsp_vector* s) { return dsp_append(d, s); }
inline int append(dspf_vector* d, const dspf_vector* s) { return dspf_append(d, s); }
inline int copy(dsp_vector* d, const dsp_vector* s) { return dsp_copy(d, s); }
inline int copy(dspf_vector* d, const dspf_vector* s) { return dspf_copy(d, s); }
inline int copy_at_most(dsp_vector* d, const dsp_vector* s, int n) { return dsp_copy_at_most(d, s, n); }
inline int copy_at_most(dspf_vector* d, const dspf_vector* s, int n) { return dspf_copy_at_most(d, s, n); }
inline int subvec(const dsp_vector* s, dsp_vector* d, int a, int n) { return dspu_subvec(s, d, a, n); }
inline int subvec(const dspf_vector* s, dspf_vector* d, int a, int n) { return dspfu_subvec(s, d, a, n); }
inline int cmp(const dsp_vector* a, const dsp_vector* b, double t, int* r) { return dsp_cmp(a, b, t, r); }
inline int cmp(const dspf_vector* a, const dspf_vector* b, float t, int* r) { return dspf_cmp(a, b, t, r); }
inline int lib_alloc(dsp_alloc_hook h, dsp_alloc_hook* p) { return dsp_lib_alloc(h, p); }
inline int lib_alloc(dspf_alloc_hook h, dspf_alloc_hook* p) { return dspf_lib_alloc(h, p); }
inline int lib_realloc(dsp_realloc_hook h, dsp_realloc_hook* p) { return dsp_lib_realloc(h, p); }
inline int lib_realloc(dspf_realloc_hook h, dspf_realloc_hook* p) { return dspf_lib_realloc(h, p); }
inline int lib_free(dsp_free_hook h, dsp_free_hook* p) { return dsp_lib_free(h, p); }
inline int lib_free(dspf_free_hook h, dspf_free_hook* p) { return dspf_lib_free(h, p); }
}  // namespace api
