// C entry points of the core: one line each, double then float, in header order.
#include "core/cache.hpp"
#include "core/control.hpp"
#include "core/files.hpp"
#include "core/vector.hpp"

using namespace zf;

extern "C" {

ZF_API int ZF_CALL dsp_init (dsp_vector*  v) noexcept { return init<double>(v); }
ZF_API int ZF_CALL dspf_init(dspf_vector* v) noexcept { return init<float>(v); }
ZF_API int ZF_CALL dsp_destroy (dsp_vector*  v) noexcept { return destroy<double>(v); }
ZF_API int ZF_CALL dspf_destroy(dspf_vector* v) noexcept { return destroy<float>(v); }
ZF_API int ZF_CALL dsp_alloc (dsp_vector*  v) noexcept { return alloc<double>(v); }
ZF_API int ZF_CALL dspf_alloc(dspf_vector* v) noexcept { return alloc<float>(v); }
ZF_API int ZF_CALL dsp_realloc (dsp_vector*  v, int op, int oc) noexcept { return zf::realloc<double>(v, op, oc); }
ZF_API int ZF_CALL dspf_realloc(dspf_vector* v, int op, int oc) noexcept { return zf::realloc<float>(v, op, oc); }
ZF_API int ZF_CALL dsp_append (dsp_vector*  d, const dsp_vector*  s) noexcept { return append<double>(d, s); }
ZF_API int ZF_CALL dspf_append(dspf_vector* d, const dspf_vector* s) noexcept { return append<float>(d, s); }
ZF_API int ZF_CALL dsp_copy (dsp_vector*  d, const dsp_vector*  s) noexcept { return copy<double>(d, s); }
ZF_API int ZF_CALL dspf_copy(dspf_vector* d, const dspf_vector* s) noexcept { return copy<float>(d, s); }
ZF_API int ZF_CALL dsp_copy_at_most (dsp_vector*  d, const dsp_vector*  s, int n) noexcept { return copy_at_most<double>(d, s, n); }
ZF_API int ZF_CALL dspf_copy_at_most(dspf_vector* d, const dspf_vector* s, int n) noexcept { return copy_at_most<float>(d, s, n); }
ZF_API int ZF_CALL dspu_subvec (const dsp_vector*  s, dsp_vector*  d, int start, int count) noexcept { return subvec<double>(s, d, start, count); }
ZF_API int ZF_CALL dspfu_subvec(const dspf_vector* s, dspf_vector* d, int start, int count) noexcept { return subvec<float>(s, d, start, count); }
ZF_API int ZF_CALL dspfu_tof(const dspf_vector* s, dspf_vector* d) noexcept { return tof(s, d); }
ZF_API int ZF_CALL dsp_cmp (const dsp_vector*  a, const dsp_vector*  b, double tol, int* r) noexcept { return cmp<double>(a, b, tol, r); }
ZF_API int ZF_CALL dspf_cmp(const dspf_vector* a, const dspf_vector* b, float  tol, int* r) noexcept { return cmp<float>(a, b, tol, r); }
ZF_API int ZF_CALL dsp_lib_alloc   (dsp_alloc_hook    h, dsp_alloc_hook*    p) noexcept { return set_hook(hooks<double>().alloc, h, p); }
ZF_API int ZF_CALL dsp_lib_realloc (dsp_realloc_hook  h, dsp_realloc_hook*  p) noexcept { return set_hook(hooks<double>().realloc, h, p); }
ZF_API int ZF_CALL dsp_lib_free    (dsp_free_hook     h, dsp_free_hook*     p) noexcept { return set_hook(hooks<double>().free, h, p); }
ZF_API int ZF_CALL dspf_lib_alloc  (dspf_alloc_hook   h, dspf_alloc_hook*   p) noexcept { return set_hook(hooks<float>().alloc, h, p); }
ZF_API int ZF_CALL dspf_lib_realloc(dspf_realloc_hook h, dspf_realloc_hook* p) noexcept { return set_hook(hooks<float>().realloc, h, p); }
ZF_API int ZF_CALL dspf_lib_free   (dspf_free_hook    h, dspf_free_hook*    p) noexcept { return set_hook(hooks<float>().free, h, p); }
ZF_API int ZF_CALL dsp_lib_init (void) noexcept { return 0; }
ZF_API int ZF_CALL dspf_lib_init(void) noexcept { return 0; }
ZF_API int ZF_CALL dsp_free_internal (void) noexcept { return free_internal<double>(); }
ZF_API int ZF_CALL dspf_free_internal(void) noexcept { return free_internal<float>(); }
ZF_API int ZF_CALL dsp_version (void) noexcept { return version(); }
ZF_API int ZF_CALL dspf_version(void) noexcept { return version(); }
ZF_API int  ZF_CDECL get_fpscr(void) noexcept { return fpscr_get(); }
ZF_API int  ZF_CDECL set_fpscr(int word) noexcept { return fpscr_set(word); }
ZF_API void ZF_CDECL set_runfast(void) noexcept { runfast(); }
ZF_API FILE* ZF_CALL dspf_fopen (const char* name, const char* mode) noexcept { return open_file(name, mode); }
ZF_API FILE* ZF_CALL dspff_fopen(const char* name, const char* mode) noexcept { return open_file(name, mode); }
ZF_API int ZF_CALL dspf_fclose (FILE* f) noexcept { return close_file(f); }
ZF_API int ZF_CALL dspff_fclose(FILE* f) noexcept { return close_file(f); }
ZF_API int ZF_CALL dspf_fread (dsp_vector*  v, FILE* f) noexcept { return zf::fread<double>(v, f); }
ZF_API int ZF_CALL dspff_fread(dspf_vector* v, FILE* f) noexcept { return zf::fread<float>(v, f); }
ZF_API int ZF_CALL dspf_fwrite (const dsp_vector*  v, FILE* f) noexcept { return zf::fwrite<double>(v, f); }
ZF_API int ZF_CALL dspff_fwrite(const dspf_vector* v, FILE* f) noexcept { return zf::fwrite<float>(v, f); }
ZF_API int ZF_CALL dspf_fwrite2 (const dsp_vector*  v, FILE* f, int flags) noexcept { return fwrite2<double>(v, f, flags); }
ZF_API int ZF_CALL dspff_fwrite2(const dspf_vector* v, FILE* f, int flags) noexcept { return fwrite2<float>(v, f, flags); }
ZF_API int ZF_CALL dspf_fwrite_ascii (const dsp_vector*  v, FILE* f) noexcept { return fwrite_ascii<double>(v, f); }
ZF_API int ZF_CALL dspff_fwrite_ascii(const dspf_vector* v, FILE* f) noexcept { return fwrite_ascii<float>(v, f); }

}  // extern "C"
