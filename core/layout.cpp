// The record layouts are part of the binary interface: callers on 32-bit
// Windows and on 64-bit systems lay these records out themselves.
#include <zifaif/dsp.h>

#include <cstddef>

static_assert(offsetof(dsp_vector, delta) == 0, "dsp_vector layout");
static_assert(offsetof(dsp_vector, data) == 8, "dsp_vector layout");
static_assert(offsetof(dspf_vector, delta) == 0, "dspf_vector layout");
static_assert(sizeof(int) == 4, "counts are 32-bit");
#if defined(_WIN32) && !defined(_WIN64)
static_assert(offsetof(dsp_vector, alloc) == 12 && offsetof(dsp_vector, points) == 16 &&
              offsetof(dsp_vector, complex) == 20 && offsetof(dsp_vector, type) == 24 &&
              sizeof(dsp_vector) == 32, "dsp_vector layout on 32-bit Windows");
static_assert(offsetof(dspf_vector, data) == 4 && offsetof(dspf_vector, alloc) == 8 &&
              offsetof(dspf_vector, points) == 12 && offsetof(dspf_vector, complex) == 16 &&
              offsetof(dspf_vector, type) == 20 && sizeof(dspf_vector) == 24,
              "dspf_vector layout on 32-bit Windows");
static_assert(sizeof(dsph_rsmp_coef) == 144, "dsph_rsmp_coef layout");
static_assert(offsetof(dsph_rsmp_coef, ratio) == 3 * 32 + 3 * 8, "dsph_rsmp_coef layout");
static_assert(sizeof(dspfh_rsmp_coef) == 3 * 24 + 3 * 4 + 4 + 4 * 4, "dspfh_rsmp_coef layout");
static_assert(offsetof(dsph_rsmp_state, prefilter_history) == 16, "dsph_rsmp_state layout");
static_assert(sizeof(dsph_rsmp_state) == 16 + 4 * 32 + 8, "dsph_rsmp_state layout");
#elif UINTPTR_MAX == 0xFFFFFFFFFFFFFFFFu || defined(__LP64__) || defined(_WIN64)
static_assert(offsetof(dsp_vector, alloc) == 16 && offsetof(dsp_vector, points) == 20 &&
              offsetof(dsp_vector, complex) == 24 && offsetof(dsp_vector, type) == 28 &&
              sizeof(dsp_vector) == 32, "dsp_vector layout on 64-bit systems");
static_assert(offsetof(dspf_vector, data) == 8 && offsetof(dspf_vector, alloc) == 16 &&
              offsetof(dspf_vector, points) == 20 && offsetof(dspf_vector, complex) == 24 &&
              offsetof(dspf_vector, type) == 28 && sizeof(dspf_vector) == 32,
              "dspf_vector layout on 64-bit systems");
static_assert(offsetof(dsph_rsmp_coef, ratio) == 3 * 32 + 3 * 8, "dsph_rsmp_coef layout");
static_assert(offsetof(dsph_rsmp_state, stage_history) == 8 &&
              offsetof(dsph_rsmp_state, prefilter_history) == 32, "dsph_rsmp_state layout");
#endif
