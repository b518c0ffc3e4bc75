// The few vector operations the vector math kernels are written in, for the
// instruction set of the file that includes this header (vmath_avx2.cpp or
// vmath_avx512.cpp): a vector V of W doubles, its mask M and index I types.
// Float data are widened to double on load and rounded once on store. Every
// name has internal linkage, so the two variants never meet at link time.
#pragma once

#include <immintrin.h>

#include <cstdint>

// The kernels are built from many small functions that must all be inlined
// into the block loops (a call passes vectors through memory).
#if defined(_MSC_VER) && !defined(__clang__)
#define ZF_VINLINE __forceinline
#else
#define ZF_VINLINE inline __attribute__((always_inline))
#endif

namespace zf {
namespace {

#if defined(__AVX512F__)

using V = __m512d;
using M = __mmask8;
using I = __m512i;
constexpr int W = 8;

inline V set1(double x) noexcept { return _mm512_set1_pd(x); }
inline V add(V a, V b) noexcept { return _mm512_add_pd(a, b); }
inline V sub(V a, V b) noexcept { return _mm512_sub_pd(a, b); }
inline V mul(V a, V b) noexcept { return _mm512_mul_pd(a, b); }
inline V fma(V a, V b, V c) noexcept { return _mm512_fmadd_pd(a, b, c); }    // a b + c
inline V fms(V a, V b, V c) noexcept { return _mm512_fmsub_pd(a, b, c); }    // a b - c
inline V fnma(V a, V b, V c) noexcept { return _mm512_fnmadd_pd(a, b, c); }  // c - a b
inline V sqrt(V a) noexcept { return _mm512_sqrt_pd(a); }
inline V min(V a, V b) noexcept { return _mm512_min_pd(a, b); }
inline V max(V a, V b) noexcept { return _mm512_max_pd(a, b); }
inline V abs(V a) noexcept { return _mm512_abs_pd(a); }
inline V xor_(V a, V b) noexcept { return _mm512_xor_pd(a, b); }
inline V sign_of(V a) noexcept { return _mm512_and_pd(a, set1(-0.0)); }
inline M ge(V a, V b) noexcept { return _mm512_cmp_pd_mask(a, b, _CMP_GE_OQ); }
inline M gt(V a, V b) noexcept { return _mm512_cmp_pd_mask(a, b, _CMP_GT_OQ); }
inline M lt(V a, V b) noexcept { return _mm512_cmp_pd_mask(a, b, _CMP_LT_OQ); }
inline M eq(V a, V b) noexcept { return _mm512_cmp_pd_mask(a, b, _CMP_EQ_OQ); }
inline M nlt(V a, V b) noexcept { return _mm512_cmp_pd_mask(a, b, _CMP_NLT_UQ); }   // not a < b, NaN true
inline M and_(M a, M b) noexcept { return static_cast<M>(a & b); }
inline M or_(M a, M b) noexcept { return static_cast<M>(a | b); }
inline unsigned bits(M m) noexcept { return m; }
inline V select(M m, V a, V b) noexcept { return _mm512_mask_blend_pd(m, b, a); }   // m ? a : b
inline V round(V a) noexcept { return _mm512_roundscale_pd(a, _MM_FROUND_TO_NEAREST_INT | _MM_FROUND_NO_EXC); }
inline V floor(V a) noexcept { return _mm512_roundscale_pd(a, _MM_FROUND_TO_NEG_INF | _MM_FROUND_NO_EXC); }
// 1/a to within an ulp (about 14 bits, then two Newton steps).
inline V recip(V a) noexcept {
    V y = _mm512_rcp14_pd(a);
    y = fma(y, fnma(a, y, set1(1.0)), y);
    return fma(y, fnma(a, y, set1(1.0)), y);
}
// a = 2^k m with m in [0.75, 1.5), for positive normal a.
inline void split(V a, V& k, V& m) noexcept {
    m = _mm512_getmant_pd(a, _MM_MANT_NORM_p75_1p5, _MM_MANT_SIGN_zero);
    k = _mm512_getexp_pd(a);
    k = _mm512_mask_add_pd(k, lt(m, set1(1.0)), k, set1(1.0));
}
// p 2^k for integral k, rounded once (also to a subnormal).
inline V scale2(V p, V k) noexcept { return _mm512_scalef_pd(p, k); }
// Index from the 4 bits above bit 48 of a's representation, or from an integral value below 2^51.
inline I top4(V a) noexcept { return _mm512_srli_epi64(_mm512_castpd_si512(a), 48); }
inline I small_int(V a) noexcept { return _mm512_castpd_si512(add(a, set1(0x1p52))); }
// A table of 16 doubles held in two registers.
struct Table16 {
    V lo, hi;
    explicit Table16(const double* t) noexcept : lo(_mm512_loadu_pd(t)), hi(_mm512_loadu_pd(t + 8)) {}
    ZF_VINLINE V operator()(I i) const noexcept { return _mm512_permutex2var_pd(lo, i, hi); }
};

inline V load(const double* p) noexcept { return _mm512_loadu_pd(p); }
inline V load(const float* p) noexcept { return _mm512_cvtps_pd(_mm256_loadu_ps(p)); }
inline void store(double* p, V a) noexcept { _mm512_storeu_pd(p, a); }
inline void store(float* p, V a) noexcept { _mm256_storeu_ps(p, _mm512_cvtpd_ps(a)); }
// W pairs from 2W scalars, in order.
inline void deinterleave(V a, V b, V& re, V& im) noexcept {
    const I even = _mm512_set_epi64(14, 12, 10, 8, 6, 4, 2, 0), odd = _mm512_set_epi64(15, 13, 11, 9, 7, 5, 3, 1);
    re = _mm512_permutex2var_pd(a, even, b);
    im = _mm512_permutex2var_pd(a, odd, b);
}
inline void interleave(V re, V im, V& a, V& b) noexcept {
    const I lo = _mm512_set_epi64(11, 3, 10, 2, 9, 1, 8, 0), hi = _mm512_set_epi64(15, 7, 14, 6, 13, 5, 12, 4);
    a = _mm512_permutex2var_pd(re, lo, im);
    b = _mm512_permutex2var_pd(re, hi, im);
}

#elif defined(__AVX2__)

using V = __m256d;
using M = __m256d;
using I = __m256i;
constexpr int W = 4;

inline V set1(double x) noexcept { return _mm256_set1_pd(x); }
inline V add(V a, V b) noexcept { return _mm256_add_pd(a, b); }
inline V sub(V a, V b) noexcept { return _mm256_sub_pd(a, b); }
inline V mul(V a, V b) noexcept { return _mm256_mul_pd(a, b); }
inline V fma(V a, V b, V c) noexcept { return _mm256_fmadd_pd(a, b, c); }
inline V fms(V a, V b, V c) noexcept { return _mm256_fmsub_pd(a, b, c); }
inline V fnma(V a, V b, V c) noexcept { return _mm256_fnmadd_pd(a, b, c); }
inline V sqrt(V a) noexcept { return _mm256_sqrt_pd(a); }
inline V min(V a, V b) noexcept { return _mm256_min_pd(a, b); }
inline V max(V a, V b) noexcept { return _mm256_max_pd(a, b); }
inline V abs(V a) noexcept { return _mm256_andnot_pd(set1(-0.0), a); }
inline V xor_(V a, V b) noexcept { return _mm256_xor_pd(a, b); }
inline V sign_of(V a) noexcept { return _mm256_and_pd(a, set1(-0.0)); }
inline M ge(V a, V b) noexcept { return _mm256_cmp_pd(a, b, _CMP_GE_OQ); }
inline M gt(V a, V b) noexcept { return _mm256_cmp_pd(a, b, _CMP_GT_OQ); }
inline M lt(V a, V b) noexcept { return _mm256_cmp_pd(a, b, _CMP_LT_OQ); }
inline M eq(V a, V b) noexcept { return _mm256_cmp_pd(a, b, _CMP_EQ_OQ); }
inline M nlt(V a, V b) noexcept { return _mm256_cmp_pd(a, b, _CMP_NLT_UQ); }
inline M and_(M a, M b) noexcept { return _mm256_and_pd(a, b); }
inline M or_(M a, M b) noexcept { return _mm256_or_pd(a, b); }
inline unsigned bits(M m) noexcept { return static_cast<unsigned>(_mm256_movemask_pd(m)); }
inline V select(M m, V a, V b) noexcept { return _mm256_blendv_pd(b, a, m); }
inline V round(V a) noexcept { return _mm256_round_pd(a, _MM_FROUND_TO_NEAREST_INT | _MM_FROUND_NO_EXC); }
inline V floor(V a) noexcept { return _mm256_floor_pd(a); }
inline V recip(V a) noexcept { return _mm256_div_pd(set1(1.0), a); }
inline void split(V a, V& k, V& m) noexcept {
    const __m256i b = _mm256_castpd_si256(a);
    const __m256i frac = _mm256_and_si256(b, _mm256_set1_epi64x(0x000FFFFFFFFFFFFF));
    // Mantissas from 1.5 up take the exponent of 0.5 and one more in k.
    const __m256i high = _mm256_srli_epi64(frac, 51);
    const __m256i mexp = _mm256_sub_epi64(_mm256_set1_epi64x(0x3FF), high);
    m = _mm256_castsi256_pd(_mm256_or_si256(frac, _mm256_slli_epi64(mexp, 52)));
    const __m256i e = _mm256_add_epi64(_mm256_srli_epi64(b, 52), high);   // biased exponent of 2^k
    k = sub(_mm256_castsi256_pd(_mm256_or_si256(e, _mm256_set1_epi64x(0x4330000000000000))), set1(0x1p52 + 1023));
}
inline V pow2(V k) noexcept {   // 2^k for integral k in [-1022, 1023]
    const __m256i b = _mm256_castpd_si256(add(k, set1(0x1p52 + 1023)));
    return _mm256_castsi256_pd(_mm256_slli_epi64(b, 52));
}
// In two steps when some k leaves [-1022, 1023] (subnormal or overflowing results).
inline V scale2(V p, V k) noexcept {
    if (!bits(or_(lt(k, set1(-1022.0)), gt(k, set1(1023.0))))) return mul(p, pow2(k));
    const V h = round(mul(k, set1(0.5)));
    return mul(mul(p, pow2(h)), pow2(sub(k, h)));
}
inline I top4(V a) noexcept { return _mm256_and_si256(_mm256_srli_epi64(_mm256_castpd_si256(a), 48), _mm256_set1_epi64x(15)); }
inline I small_int(V a) noexcept {
    return _mm256_and_si256(_mm256_castpd_si256(add(a, set1(0x1p52))), _mm256_set1_epi64x(15));
}
struct Table16 {
    const double* t;
    explicit Table16(const double* p) noexcept : t(p) {}
    ZF_VINLINE V operator()(I i) const noexcept { return _mm256_i64gather_pd(t, i, 8); }
};

inline V load(const double* p) noexcept { return _mm256_loadu_pd(p); }
inline V load(const float* p) noexcept { return _mm256_cvtps_pd(_mm_loadu_ps(p)); }
inline void store(double* p, V a) noexcept { _mm256_storeu_pd(p, a); }
inline void store(float* p, V a) noexcept { _mm_storeu_ps(p, _mm256_cvtpd_ps(a)); }
inline void deinterleave(V a, V b, V& re, V& im) noexcept {
    re = _mm256_permute4x64_pd(_mm256_unpacklo_pd(a, b), 0xD8);
    im = _mm256_permute4x64_pd(_mm256_unpackhi_pd(a, b), 0xD8);
}
inline void interleave(V re, V im, V& a, V& b) noexcept {
    const V r = _mm256_permute4x64_pd(re, 0xD8), i = _mm256_permute4x64_pd(im, 0xD8);
    a = _mm256_unpacklo_pd(r, i);
    b = _mm256_unpackhi_pd(r, i);
}

#endif

}  // namespace
}  // namespace zf
