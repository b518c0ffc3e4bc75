/**
 * @file
 * zifaif: signal processing on the signal vector.
 *
 * Every numerical function exists twice: dsp... works on dsp_vector (double),
 * dspf... on dspf_vector (float). Unless a comment says otherwise a function
 * returns 0 on success and -1 on failure (a bad argument or a failed
 * allocation), and an output record is sized by the function itself.
 * Compiles as C99 and as C++.
 */
#ifndef ZIFAIF_DSP_H
#define ZIFAIF_DSP_H

#include <stdio.h>

/* ZF_CALL: the convention of the dsp* entry points (callee pops on 32-bit
 * Windows). ZF_CDECL: the caller-pops convention of hooks and plain-named
 * routines. ZF_API: marks an exported entry point. */
#if defined(_WIN32) && !defined(_WIN64)
#  define ZF_CALL __stdcall
#  define ZF_CDECL __cdecl
#else
#  define ZF_CALL
#  define ZF_CDECL
#endif
#if defined(_WIN32)
#  if defined(ZF_BUILDING_LIBRARY)
#    define ZF_API __declspec(dllexport)
#  elif defined(ZF_STATIC)
#    define ZF_API
#  else
#    define ZF_API __declspec(dllimport)
#  endif
#elif defined(__GNUC__)
#  define ZF_API __attribute__((visibility("default")))
#else
#  define ZF_API
#endif

#ifdef __cplusplus
extern "C" {
#endif

/* ------------------------------------------------------------------------ */
/* The signal vector                                                         */
/* ------------------------------------------------------------------------ */

/** A run of equally spaced real samples, or of complex samples stored as
 * interleaved (real, imaginary) pairs. alloc is the capacity of data in
 * scalars; alloc <= 0 with non-null data wraps storage the caller owns. */
typedef struct dsp_vector {
    double  delta;   /**< sample spacing; 1.0 after dsp_init */
    double *data;    /**< the scalars */
    int     alloc;   /**< capacity in scalars, 0 when the record owns nothing */
    int     points;  /**< number of samples */
    int     complex; /**< nonzero: samples are (re, im) pairs */
    int     type;    /**< caller's tag, never interpreted */
} dsp_vector;

/** The single-precision record: the fields of dsp_vector, spacing and samples as float. */
typedef struct dspf_vector {
    float  delta;
    float *data;
    int    alloc;
    int    points;
    int    complex;
    int    type;
} dspf_vector;

/** Allocation hooks (caller-pops convention). They receive the record with
 * points and complex already set to the new shape; allocate and reallocate
 * leave the new block in data (null for failure), free releases data. */
typedef void (ZF_CDECL *dsp_alloc_hook)(dsp_vector *v);
typedef void (ZF_CDECL *dsp_realloc_hook)(dsp_vector *v, int old_points, int old_complex);
typedef void (ZF_CDECL *dsp_free_hook)(dsp_vector *v);
typedef void (ZF_CDECL *dspf_alloc_hook)(dspf_vector *v);
typedef void (ZF_CDECL *dspf_realloc_hook)(dspf_vector *v, int old_points, int old_complex);
typedef void (ZF_CDECL *dspf_free_hook)(dspf_vector *v);

/* ------------------------------------------------------------------------ */
/* Window kinds and flags                                                    */
/* ------------------------------------------------------------------------ */

#define DSP_WINDOW_UNIFORM           0
#define DSP_WINDOW_RECTANGULAR       0
#define DSP_WINDOW_NONE              0
#define DSP_WINDOW_P000              0
#define DSP_WINDOW_BARTLETT          1
#define DSP_WINDOW_TRIANGULAR        1
#define DSP_WINDOW_HANN              2
#define DSP_WINDOW_P110              2
#define DSP_WINDOW_HAMMING           3
#define DSP_WINDOW_P100              3
#define DSP_WINDOW_BLACKMAN          4
#define DSP_WINDOW_BLACKMAN_HARRIS3  5
#define DSP_WINDOW_P200              5
#define DSP_WINDOW_BLACKMAN_HARRIS4  6
#define DSP_WINDOW_P310              6
#define DSP_WINDOW_LOWLEAK           6
#define DSP_WINDOW_GAUSSTOP          7
#define DSP_WINDOW_P400              7
#define DSP_WINDOW_FLAT4             8
#define DSP_WINDOW_P301              8
#define DSP_WINDOW_FLATTOP           9
#define DSP_WINDOW_FLAT5             9
#define DSP_WINDOW_P401              9
#define DSP_WINDOW_FLAT6            10
#define DSP_WINDOW_P511             10
#define DSP_WINDOW_FLAT7            11
#define DSP_WINDOW_P611             11
#define DSP_WINDOW_P501             12
#define DSP_WINDOW_P601             13
#define DSP_WINDOW_KAISER70         14
#define DSP_WINDOW_KAISER80         15
#define DSP_WINDOW_KAISER90         16
#define DSP_WINDOW_KAISER100        17
#define DSP_WINDOW_KAISER110        18
#define DSP_WINDOW_KAISER120        19
#define DSP_WINDOW_GAUSS60          20
#define DSP_WINDOW_GAUSS70          21
#define DSP_WINDOW_GAUSS80          22
#define DSP_WINDOW_RIEMANN          23
#define DSP_WINDOW_SINC_LOBE        23

#define DSP_WINFLAG_NORM_MEAN        0  /**< mean 1 (coherent gain 1) */
#define DSP_WINFLAG_NORM_RMS         1  /**< RMS 1 */
#define DSP_WINFLAG_NORM_PEAK        2  /**< peak 1, the raw shape */
#define DSP_WINFLAG_SYMMETRIC        4  /**< denominator N-1 instead of N */
#define DSP_WINFLAG_WIDTH            8  /**< span the width argument, not the whole vector */
#define DSP_WINFLAG_ROTATE          16  /**< kind 0 only: rotate by half the length */
#define DSP_WINFLAG_NO_ROTATE       32  /**< other kinds: do not rotate */

/* ------------------------------------------------------------------------ */
/* FIR design kinds                                                          */
/* ------------------------------------------------------------------------ */

#define DSP_FIR_BANDPASS   0
#define DSP_FIR_BANDSTOP   1
#define DSP_FIR_HIGHPASS   2
#define DSP_FIR_LOWPASS    3
#define DSP_FIR_SINH       4
#define DSP_FIR_DELAY      5
#define DSP_FIR_DIFF       6
#define DSP_FIR_GAUSS      7
#define DSP_FIR_HILBERT    8
#define DSP_FIR_KAISER     9
#define DSP_FIR_RAMP      10

/* ------------------------------------------------------------------------ */
/* Resampler handle records (caller-owned)                                   */
/* ------------------------------------------------------------------------ */

/** Coefficients of the handle resampler: filters and kernel built once, the ratio split into octaves and a fraction. */
typedef struct dsph_rsmp_coef {
    dsp_vector halfband;       /**< half response of the 39-tap half-band lowpass */
    int        halfband_used;  /**< 1 once halfband is filled */
    dsp_vector prefilter;      /**< half response of the 23-tap prefilter */
    int        prefilter_used; /**< 1 once prefilter is filled */
    dsp_vector kernel;         /**< kernel table, 13314 points */
    int        kernel_mode;    /**< 1 once the kernel is built */
    double     ratio;          /**< remaining fractional ratio, 1 <= r < 2 */
    int        octaves;        /**< number of octave stages */
    int        force;          /**< nonzero: the fractional stage runs even for r = 1 */
    int        octave_skip;    /**< outputs dropped after the octave stages */
    int        fraction_skip;  /**< outputs dropped after the fractional stage */
} dsph_rsmp_coef;

/** State of the handle resampler: the histories and pending drops carried from one block to the next. */
typedef struct dsph_rsmp_state {
    int         stages;            /**< octave stages the arrays are sized for */
    dsp_vector *stage_history;     /**< per stage: half-band filter history */
    dsp_vector *stage_phase;       /**< per stage: decimation phase */
    int         octave_pending;    /**< samples still to drop after the octave stages */
    dsp_vector  prefilter_history;
    dsp_vector  kernel_history;
    dsp_vector  halfband_history;
    dsp_vector  final_phase;
    int         fraction_pending;  /**< samples still to drop after the fractional stage */
} dsph_rsmp_state;

/** Single-precision twin of dsph_rsmp_coef. */
typedef struct dspfh_rsmp_coef {
    dspf_vector halfband;
    int         halfband_used;
    dspf_vector prefilter;
    int         prefilter_used;
    dspf_vector kernel;
    int         kernel_mode;
    float       ratio;
    int         octaves;
    int         force;
    int         octave_skip;
    int         fraction_skip;
} dspfh_rsmp_coef;

/** Single-precision twin of dsph_rsmp_state. */
typedef struct dspfh_rsmp_state {
    int          stages;
    dspf_vector *stage_history;
    dspf_vector *stage_phase;
    int          octave_pending;
    dspf_vector  prefilter_history;
    dspf_vector  kernel_history;
    dspf_vector  halfband_history;
    dspf_vector  final_phase;
    int          fraction_pending;
} dspfh_rsmp_state;

/* ------------------------------------------------------------------------ */
/* Record and memory                                                         */
/* ------------------------------------------------------------------------ */

/** delta = 1.0, everything else 0; never frees; returns 0. */
ZF_API int ZF_CALL dsp_init (dsp_vector  *v);
ZF_API int ZF_CALL dspf_init(dspf_vector *v);
/** Frees owned storage (through the free hook when set), then as dsp_init; returns 0. */
ZF_API int ZF_CALL dsp_destroy (dsp_vector  *v);
ZF_API int ZF_CALL dspf_destroy(dspf_vector *v);
/** Capacity for the current points/complex; contents are not kept. 0 or -1. */
ZF_API int ZF_CALL dsp_alloc (dsp_vector  *v);
ZF_API int ZF_CALL dspf_alloc(dspf_vector *v);
/** Capacity for the current shape keeping the contents (old shape given). 0 or -1. */
ZF_API int ZF_CALL dsp_realloc (dsp_vector  *v, int old_points, int old_complex);
ZF_API int ZF_CALL dspf_realloc(dspf_vector *v, int old_points, int old_complex);
/** Appends src to dst; a real dst becomes complex when src is. 0 or -1. */
ZF_API int ZF_CALL dsp_append (dsp_vector  *dst, const dsp_vector  *src);
ZF_API int ZF_CALL dspf_append(dspf_vector *dst, const dspf_vector *src);
/** dst becomes a copy of src. 0 or -1. */
ZF_API int ZF_CALL dsp_copy (dsp_vector  *dst, const dsp_vector  *src);
ZF_API int ZF_CALL dspf_copy(dspf_vector *dst, const dspf_vector *src);
/** Copies the first min(n, src points) samples (n < 0 gives an empty dst). 0 or -1. */
ZF_API int ZF_CALL dsp_copy_at_most (dsp_vector  *dst, const dsp_vector  *src, int n);
ZF_API int ZF_CALL dspf_copy_at_most(dspf_vector *dst, const dspf_vector *src, int n);
/** Copies samples start .. start+count-1 (clamped) of src into dst; dst may be src. 0 or -1. */
ZF_API int ZF_CALL dspu_subvec (const dsp_vector  *src, dsp_vector  *dst, int start, int count);
ZF_API int ZF_CALL dspfu_subvec(const dspf_vector *src, dspf_vector *dst, int start, int count);
/** Float copy of src into dst; -1 when both are the same record. */
ZF_API int ZF_CALL dspfu_tof(const dspf_vector *src, dspf_vector *dst);
/** Orders a against b within tol into *result (-1, 0, 1); returns -1 when the lengths differ. */
ZF_API int ZF_CALL dsp_cmp (const dsp_vector  *a, const dsp_vector  *b, double tol, int *result);
ZF_API int ZF_CALL dspf_cmp(const dspf_vector *a, const dspf_vector *b, float  tol, int *result);
/** Install the allocation hooks of a precision: dsp_lib_alloc, dsp_lib_realloc
 * and dsp_lib_free (dspf_lib_alloc, dspf_lib_realloc, dspf_lib_free); null
 * restores the standard allocator; the previous hook is stored in *previous
 * when previous is not null. Return 0. */
ZF_API int ZF_CALL dsp_lib_alloc   (dsp_alloc_hook    hook, dsp_alloc_hook    *previous);
ZF_API int ZF_CALL dsp_lib_realloc (dsp_realloc_hook  hook, dsp_realloc_hook  *previous);
ZF_API int ZF_CALL dsp_lib_free    (dsp_free_hook     hook, dsp_free_hook     *previous);
ZF_API int ZF_CALL dspf_lib_alloc  (dspf_alloc_hook   hook, dspf_alloc_hook   *previous);
ZF_API int ZF_CALL dspf_lib_realloc(dspf_realloc_hook hook, dspf_realloc_hook *previous);
ZF_API int ZF_CALL dspf_lib_free   (dspf_free_hook    hook, dspf_free_hook    *previous);
/** Does nothing; returns 0. */
ZF_API int ZF_CALL dsp_lib_init (void);
ZF_API int ZF_CALL dspf_lib_init(void);
/** Releases every process-wide cache of the precision; 0, or -1 when a release failed. */
ZF_API int ZF_CALL dsp_free_internal (void);
ZF_API int ZF_CALL dspf_free_internal(void);
/** The library's version number, 205. */
ZF_API int ZF_CALL dsp_version (void);
ZF_API int ZF_CALL dspf_version(void);
/** Floating-point control word entry points; no such register on x86:
 * get_fpscr and set_fpscr return 0, set_runfast does nothing. Caller-pops
 * convention. */
ZF_API int  ZF_CDECL get_fpscr(void);
ZF_API int  ZF_CDECL set_fpscr(int word);
ZF_API void ZF_CDECL set_runfast(void);

/* ------------------------------------------------------------------------ */
/* Vector files                                                              */
/* ------------------------------------------------------------------------ */

/** Opens a vector file: a stream, or null. "-" is standard input for a mode
 * beginning 'r' and standard output for one beginning 'w' (a 'b' as second or
 * third character switches it to binary mode); other names go to fopen. */
ZF_API FILE *ZF_CALL dspf_fopen (const char *name, const char *mode);
ZF_API FILE *ZF_CALL dspff_fopen(const char *name, const char *mode);
/** Closes a stream of dspf_fopen: 0 for standard input and output, which stay
 * open; otherwise the result of fclose. */
ZF_API int ZF_CALL dspf_fclose (FILE *f);
ZF_API int ZF_CALL dspff_fclose(FILE *f);
/** Reads the next vector of the stream (binary of either precision and byte
 * order, or ASCII) and sizes v for it: 1 when a vector was read, 0 at the end
 * of the stream, -1 on a malformed or short file (v keeps what was read). */
ZF_API int ZF_CALL dspf_fread (dsp_vector  *v, FILE *f);
ZF_API int ZF_CALL dspff_fread(dspf_vector *v, FILE *f);
/** Writes v in the binary form (header and samples). 0 or -1. */
ZF_API int ZF_CALL dspf_fwrite (const dsp_vector  *v, FILE *f);
ZF_API int ZF_CALL dspff_fwrite(const dspf_vector *v, FILE *f);
/** Writes v in the form of the low byte of flags (0 binary, 1 ASCII, 2 one-line
 * summary); 0x100 leaves out the header, 0x200 writes only the header. 0, or -1
 * for an unknown form or a short write. */
ZF_API int ZF_CALL dspf_fwrite2 (const dsp_vector  *v, FILE *f, int flags);
ZF_API int ZF_CALL dspff_fwrite2(const dspf_vector *v, FILE *f, int flags);
/** Writes v in the ASCII form. 0 or -1. */
ZF_API int ZF_CALL dspf_fwrite_ascii (const dsp_vector  *v, FILE *f);
ZF_API int ZF_CALL dspff_fwrite_ascii(const dspf_vector *v, FILE *f);

/* ------------------------------------------------------------------------ */
/* In-place element-wise arithmetic and conversions                          */
/* ------------------------------------------------------------------------ */

/** |x| of a real vector; -1 for a complex one (unchanged). */
ZF_API int ZF_CALL dspi_abs (dsp_vector  *v);
ZF_API int ZF_CALL dspfi_abs(dspf_vector *v);
/** -x for every scalar. */
ZF_API int ZF_CALL dspi_neg (dsp_vector  *v);
ZF_API int ZF_CALL dspfi_neg(dspf_vector *v);
/** x * factor for every scalar. */
ZF_API int ZF_CALL dspi_scale (dsp_vector  *v, double factor);
ZF_API int ZF_CALL dspfi_scale(dspf_vector *v, float  factor);
/** x * (re + i im); a real vector becomes complex (grown in place). */
ZF_API int ZF_CALL dspi_cscale (dsp_vector  *v, double re, double im);
ZF_API int ZF_CALL dspfi_cscale(dspf_vector *v, float  re, float  im);
/** x + offset; to the real part only of a complex vector. */
ZF_API int ZF_CALL dspi_offset (dsp_vector  *v, double offset);
ZF_API int ZF_CALL dspfi_offset(dspf_vector *v, float  offset);
/** 1 / x; 0 gives 1e100 (1e15 for float), a complex 0 gives (0, -0). */
ZF_API int ZF_CALL dspi_recip (dsp_vector  *v);
ZF_API int ZF_CALL dspfi_recip(dspf_vector *v);
/** x * x; real values beyond +-1e100 (1e15) give 1e100, complex parts are clamped first. */
ZF_API int ZF_CALL dspi_square (dsp_vector  *v);
ZF_API int ZF_CALL dspfi_square(dspf_vector *v);
/** Principal square root; a negative real gives 0 (the vector stays real). */
ZF_API int ZF_CALL dspi_sqrt (dsp_vector  *v);
ZF_API int ZF_CALL dspfi_sqrt(dspf_vector *v);
/** e^x; real parts above 100 ln 10 (15 ln 10) give 1e100 (1e15). */
ZF_API int ZF_CALL dspi_exp (dsp_vector  *v);
ZF_API int ZF_CALL dspfi_exp(dspf_vector *v);
/** 10^x; above 100 (15) gives 1e100 (1e15); a real value below -1e100 (-1e15) stops the conversion there. */
ZF_API int ZF_CALL dspi_exp10 (dsp_vector  *v);
ZF_API int ZF_CALL dspfi_exp10(dspf_vector *v);
/** Natural logarithm; below the smallest normal number gives its logarithm; complex: (ln|z|, arg z). */
ZF_API int ZF_CALL dspi_log (dsp_vector  *v);
ZF_API int ZF_CALL dspfi_log(dspf_vector *v);
/** Base-10 logarithm, floored like log; complex: log10 of z. */
ZF_API int ZF_CALL dspi_log10 (dsp_vector  *v);
ZF_API int ZF_CALL dspfi_log10(dspf_vector *v);
/** factor * log10(x) (10 for power, 20 for amplitude), floored like log; complex: factor * log10 z. */
ZF_API int ZF_CALL dspi_db (dsp_vector  *v, double factor);
ZF_API int ZF_CALL dspfi_db(dspf_vector *v, float  factor);
/** |x|; a complex vector becomes real, hypot(re, im), capacity kept. */
ZF_API int ZF_CALL dspi_mag (dsp_vector  *v);
ZF_API int ZF_CALL dspfi_mag(dspf_vector *v);
/** x * x or re^2 + im^2 (1e100 / 1e15 beyond that range); the result is real. */
ZF_API int ZF_CALL dspi_magsq (dsp_vector  *v);
ZF_API int ZF_CALL dspfi_magsq(dspf_vector *v);
/** Real: 0 for x >= 0, pi below; complex: atan2(im, re), 0 at the origin; the result is real. */
ZF_API int ZF_CALL dspi_phase (dsp_vector  *v);
ZF_API int ZF_CALL dspfi_phase(dspf_vector *v);
/** A real vector becomes complex (x, 0), grown in place; a complex one is unchanged. */
ZF_API int ZF_CALL dspi_rtoc (dsp_vector  *v);
ZF_API int ZF_CALL dspfi_rtoc(dspf_vector *v);
/** Rectangular to polar (magnitude, phase); a real vector becomes complex first. */
ZF_API int ZF_CALL dspi_rtop (dsp_vector  *v);
ZF_API int ZF_CALL dspfi_rtop(dspf_vector *v);
/** Polar (magnitude, angle) pairs to rectangular; a real vector is unchanged. */
ZF_API int ZF_CALL dspi_ptor (dsp_vector  *v);
ZF_API int ZF_CALL dspfi_ptor(dspf_vector *v);
/** Complex conjugate; a real vector is unchanged. */
ZF_API int ZF_CALL dspi_conj (dsp_vector  *v);
ZF_API int ZF_CALL dspfi_conj(dspf_vector *v);
/** Real parts; a complex vector becomes real, capacity kept. */
ZF_API int ZF_CALL dspi_real (dsp_vector  *v);
ZF_API int ZF_CALL dspfi_real(dspf_vector *v);
/** Imaginary parts, real result; a real vector becomes all zeros. */
ZF_API int ZF_CALL dspi_imag (dsp_vector  *v);
ZF_API int ZF_CALL dspfi_imag(dspf_vector *v);
/** x * i; a real vector becomes complex (0, x). */
ZF_API int ZF_CALL dspi_timesi (dsp_vector  *v);
ZF_API int ZF_CALL dspfi_timesi(dspf_vector *v);
/** Clips every scalar into [min(a, b), max(a, b)] (NaN kept); *clipped (may be null) = 1 if any changed. reserved is ignored. */
ZF_API int ZF_CALL dspi_limit (dsp_vector  *v, int reserved, double a, double b, int *clipped);
ZF_API int ZF_CALL dspfi_limit(dspf_vector *v, int reserved, float  a, float  b, int *clipped);
/** cos x of a real vector; -1 for a complex one (unchanged), as all real-only functions below. */
ZF_API int ZF_CALL dspi_cos (dsp_vector  *v);
ZF_API int ZF_CALL dspfi_cos(dspf_vector *v);
/** sin x. */
ZF_API int ZF_CALL dspi_sin (dsp_vector  *v);
ZF_API int ZF_CALL dspfi_sin(dspf_vector *v);
/** tan x. */
ZF_API int ZF_CALL dspi_tan (dsp_vector  *v);
ZF_API int ZF_CALL dspfi_tan(dspf_vector *v);
/** arctan x. */
ZF_API int ZF_CALL dspi_atan (dsp_vector  *v);
ZF_API int ZF_CALL dspfi_atan(dspf_vector *v);
/** arccos x for |x| <= 1, else 0. */
ZF_API int ZF_CALL dspi_acos (dsp_vector  *v);
ZF_API int ZF_CALL dspfi_acos(dspf_vector *v);
/** arcsin x for |x| <= 1, else 0. */
ZF_API int ZF_CALL dspi_asin (dsp_vector  *v);
ZF_API int ZF_CALL dspfi_asin(dspf_vector *v);
/** cosh x; 1e100 (1e15) when |x| exceeds 100 ln 10 (15 ln 10). */
ZF_API int ZF_CALL dspi_cosh (dsp_vector  *v);
ZF_API int ZF_CALL dspfi_cosh(dspf_vector *v);
/** sinh x; +-1e100 (1e15) beyond +-100 ln 10 (15 ln 10). */
ZF_API int ZF_CALL dspi_sinh (dsp_vector  *v);
ZF_API int ZF_CALL dspfi_sinh(dspf_vector *v);
/** tanh x. */
ZF_API int ZF_CALL dspi_tanh (dsp_vector  *v);
ZF_API int ZF_CALL dspfi_tanh(dspf_vector *v);
/** sin x / x, 1 at 0. */
ZF_API int ZF_CALL dspi_sinc (dsp_vector  *v);
ZF_API int ZF_CALL dspfi_sinc(dspf_vector *v);
/** dst = |src| (hypot for complex), real, sized from src; dst may be src; src unchanged. */
ZF_API int ZF_CALL dspu_mag (const dsp_vector  *src, dsp_vector  *dst);
ZF_API int ZF_CALL dspfu_mag(const dspf_vector *src, dspf_vector *dst);
/** dst = squared magnitude of src as dspi_magsq, real, sized from src; dst may be src. */
ZF_API int ZF_CALL dspu_magsq (const dsp_vector  *src, dsp_vector  *dst);
ZF_API int ZF_CALL dspfu_magsq(const dspf_vector *src, dspf_vector *dst);
/** dst = square root of src as dspi_sqrt, same form as src, sized from src; dst may be src. */
ZF_API int ZF_CALL dspu_sqrt (const dsp_vector  *src, dsp_vector  *dst);
ZF_API int ZF_CALL dspfu_sqrt(const dspf_vector *src, dspf_vector *dst);

/* ------------------------------------------------------------------------ */
/* Binary operations                                                         */
/* ------------------------------------------------------------------------ */

/** Binary operations write out sized by themselves: points of the inputs (which
 * must be equal unless stated), the mean spacing, complex when either input
 * is (a real operand counts as imaginary part 0). out may be a or b. */
/** a + b; unequal lengths zero-pad the shorter operand (output has the longer length). 0 or -1. */
ZF_API int ZF_CALL dspb_add (const dsp_vector  *a, const dsp_vector  *b, dsp_vector  *out);
ZF_API int ZF_CALL dspfb_add(const dspf_vector *a, const dspf_vector *b, dspf_vector *out);
/** a - b; unequal lengths as dspb_add. 0 or -1. */
ZF_API int ZF_CALL dspb_sub (const dsp_vector  *a, const dsp_vector  *b, dsp_vector  *out);
ZF_API int ZF_CALL dspfb_sub(const dspf_vector *a, const dspf_vector *b, dspf_vector *out);
/** a * b sample by sample (complex product); equal lengths. 0 or -1. */
ZF_API int ZF_CALL dspb_mul (const dsp_vector  *a, const dsp_vector  *b, dsp_vector  *out);
ZF_API int ZF_CALL dspfb_mul(const dspf_vector *a, const dspf_vector *b, dspf_vector *out);
/** a / b; a zero divisor gives 1e100 (1e15 float) without sign, or 0 for a zero dividend. 0 or -1. */
ZF_API int ZF_CALL dspb_div (const dsp_vector  *a, const dsp_vector  *b, dsp_vector  *out);
ZF_API int ZF_CALL dspfb_div(const dspf_vector *a, const dspf_vector *b, dspf_vector *out);
/** a * conj(b); a real b gives dspb_mul. 0 or -1. */
ZF_API int ZF_CALL dspb_conj_mul (const dsp_vector  *a, const dsp_vector  *b, dsp_vector  *out);
ZF_API int ZF_CALL dspfb_conj_mul(const dspf_vector *a, const dspf_vector *b, dspf_vector *out);
/** Exponential-average update b + w (a - b) per scalar: a the new value, b the average. 0 or -1. */
ZF_API int ZF_CALL dspb_avg_add (const dsp_vector  *a, const dsp_vector  *b, dsp_vector  *out, double w);
ZF_API int ZF_CALL dspfb_avg_add(const dspf_vector *a, const dspf_vector *b, dspf_vector *out, float  w);
/** The smaller sample (complex: smaller squared magnitude; b wins ties). 0 or -1. */
ZF_API int ZF_CALL dspb_min (const dsp_vector  *a, const dsp_vector  *b, dsp_vector  *out);
ZF_API int ZF_CALL dspfb_min(const dspf_vector *a, const dspf_vector *b, dspf_vector *out);
/** The larger sample (complex: larger squared magnitude; b wins ties). 0 or -1. */
ZF_API int ZF_CALL dspb_max (const dsp_vector  *a, const dsp_vector  *b, dsp_vector  *out);
ZF_API int ZF_CALL dspfb_max(const dspf_vector *a, const dspf_vector *b, dspf_vector *out);
/** Interleaves a0, b0, a1, b1, ...: 2 * points samples at half the mean spacing. 0 or -1. */
ZF_API int ZF_CALL dspb_inter (const dsp_vector  *a, const dsp_vector  *b, dsp_vector  *out);
ZF_API int ZF_CALL dspfb_inter(const dspf_vector *a, const dspf_vector *b, dspf_vector *out);
/** Complex out = (re_k, im_k) from two real records of equal length. 0 or -1. */
ZF_API int ZF_CALL dspb_ritoc (const dsp_vector  *re, const dsp_vector  *im, dsp_vector  *out);
ZF_API int ZF_CALL dspfb_ritoc(const dspf_vector *re, const dspf_vector *im, dspf_vector *out);
/** Polynomial product: a.points + b.points - 1 coefficients (0 when either is empty). 0 or -1. */
ZF_API int ZF_CALL dspb_pmul (const dsp_vector  *a, const dsp_vector  *b, dsp_vector  *out);
ZF_API int ZF_CALL dspfb_pmul(const dspf_vector *a, const dspf_vector *b, dspf_vector *out);
/** out becomes one sample holding sum a_k * b_k (no conjugation), complex when either is; equal lengths; delta kept. 0 or -1. */
ZF_API int ZF_CALL dspbs_dot (const dsp_vector  *a, const dsp_vector  *b, dsp_vector  *out);
ZF_API int ZF_CALL dspfbs_dot(const dspf_vector *a, const dspf_vector *b, dspf_vector *out);

/* ------------------------------------------------------------------------ */
/* Rearrangement, editing and calculus                                       */
/* ------------------------------------------------------------------------ */

/** Reverses the order of the samples in place. 0 or -1. */
ZF_API int ZF_CALL dspi_rev (dsp_vector  *v);
ZF_API int ZF_CALL dspfi_rev(dspf_vector *v);
/** Drops the first n samples (points shrinks); n < 0 changes nothing. 0 or -1. */
ZF_API int ZF_CALL dspi_shift (dsp_vector  *v, int n);
ZF_API int ZF_CALL dspfi_shift(dspf_vector *v, int n);
/** Random permutation of the samples from the library's generator. 0 or -1. */
ZF_API int ZF_CALL dspi_shuffle (dsp_vector  *v);
ZF_API int ZF_CALL dspfi_shuffle(dspf_vector *v);
/** Sorts ascending: real by value, complex by squared magnitude, then re, then im. 0 or -1. */
ZF_API int ZF_CALL dspi_sort (dsp_vector  *v);
ZF_API int ZF_CALL dspfi_sort(dspf_vector *v);
/** Rotates right by points/2 samples (exchanges the halves of an even length). 0 or -1. */
ZF_API int ZF_CALL dspi_swap_halves (dsp_vector  *v);
ZF_API int ZF_CALL dspfi_swap_halves(dspf_vector *v);
/** Rotates left by points/2 samples: the inverse of dspi_swap_halves. 0 or -1. */
ZF_API int ZF_CALL dspi_swap_halves2 (dsp_vector  *v);
ZF_API int ZF_CALL dspfi_swap_halves2(dspf_vector *v);
/** Sets every sample to 0, length and form kept. 0 or -1. */
ZF_API int ZF_CALL dspi_zero (dsp_vector  *v);
ZF_API int ZF_CALL dspfi_zero(dspf_vector *v);
/** Grows to n samples with zeros at the end; never shortens. 0 or -1. */
ZF_API int ZF_CALL dspi_zpad (dsp_vector  *v, int n);
ZF_API int ZF_CALL dspfi_zpad(dspf_vector *v, int n);
/** Grows to n samples: flags & 3 scales the old samples (0: n/m, 1: sqrt(n/m), 2: none),
 * flags & 0x700 places them (0: front, 0x100: centre, 0x200: end, 0x300: split as a
 * spectrum). Invalid flags give -1 after the growth. 0 or -1. */
ZF_API int ZF_CALL dspi_zpad2 (dsp_vector  *v, int n, int flags);
ZF_API int ZF_CALL dspfi_zpad2(dspf_vector *v, int n, int flags);
/** Inverse of dspi_zpad2: shrinks to n samples taken from the same place with the inverse
 * scaling; invalid flags give -1 with the vector unchanged. 0 or -1. */
ZF_API int ZF_CALL dspi_unzpad (dsp_vector  *v, int n, int flags);
ZF_API int ZF_CALL dspfi_unzpad(dspf_vector *v, int n, int flags);
/** First difference divided by delta (1e100 / 1e15 times when delta is 0); y0 = x0 / delta. 0 or -1. */
ZF_API int ZF_CALL dspi_differ (dsp_vector  *v);
ZF_API int ZF_CALL dspfi_differ(dspf_vector *v);
/** Derivative of a polynomial (lowest power first): points decreases by 1. 0 or -1. */
ZF_API int ZF_CALL dspi_pdiffer (dsp_vector  *v);
ZF_API int ZF_CALL dspfi_pdiffer(dspf_vector *v);
/** Running integral by the rectangle rule: y_k = sum of x_i * delta for i <= k. 0 or -1. */
ZF_API int ZF_CALL dspi_integ (dsp_vector  *v);
ZF_API int ZF_CALL dspfi_integ(dspf_vector *v);
/** Replaces a real vector by the times (delta units) at which it crosses level: mode 1 rising,
 * 2 falling, 3 both; points becomes the count and delta 1.0. 0 or -1. */
ZF_API int ZF_CALL dspi_edge (dsp_vector  *v, int mode, double level);
ZF_API int ZF_CALL dspfi_edge(dspf_vector *v, int mode, float  level);
/** Phase unwrapping in radians against the previous output (the first against 0); real only. 0 or -1. */
ZF_API int ZF_CALL dspi_unwrap (dsp_vector  *v);
ZF_API int ZF_CALL dspfi_unwrap(dspf_vector *v);
/** Phase unwrapping against the mean of the last w outputs; real only, w >= 0. 0 or -1. */
ZF_API int ZF_CALL dspi_unwrap_wnd (dsp_vector  *v, int w);
ZF_API int ZF_CALL dspfi_unwrap_wnd(dspf_vector *v, int w);

/* ------------------------------------------------------------------------ */
/* Special functions                                                         */
/* ------------------------------------------------------------------------ */

/** J0(x), Bessel function of the first kind of order 0; -1 for a complex vector (unchanged), as all below. */
ZF_API int ZF_CALL dspi_besj0 (dsp_vector  *v);
ZF_API int ZF_CALL dspfi_besj0(dspf_vector *v);
/** J1(x). */
ZF_API int ZF_CALL dspi_besj1 (dsp_vector  *v);
ZF_API int ZF_CALL dspfi_besj1(dspf_vector *v);
/** Y0(x), Bessel function of the second kind of order 0, for x > 0; 0 for x <= 0. */
ZF_API int ZF_CALL dspi_besy0 (dsp_vector  *v);
ZF_API int ZF_CALL dspfi_besy0(dspf_vector *v);
/** Y1(x) for x > 0; 0 for x <= 0. */
ZF_API int ZF_CALL dspi_besy1 (dsp_vector  *v);
ZF_API int ZF_CALL dspfi_besy1(dspf_vector *v);
/** I0(x), modified Bessel function of order 0; 1e100 (1e15) when |x| exceeds 100 ln 10 (15 ln 10). */
ZF_API int ZF_CALL dspi_besi0 (dsp_vector  *v);
ZF_API int ZF_CALL dspfi_besi0(dspf_vector *v);
/** Reserved: not provided; returns -1 and changes nothing (as erfc, gamma, lgamma). */
ZF_API int ZF_CALL dspi_erf (dsp_vector  *v);
ZF_API int ZF_CALL dspfi_erf(dspf_vector *v);
/** Reserved: returns -1. */
ZF_API int ZF_CALL dspi_erfc (dsp_vector  *v);
ZF_API int ZF_CALL dspfi_erfc(dspf_vector *v);
/** Reserved: returns -1. */
ZF_API int ZF_CALL dspi_gamma (dsp_vector  *v);
ZF_API int ZF_CALL dspfi_gamma(dspf_vector *v);
/** Reserved: returns -1. */
ZF_API int ZF_CALL dspi_lgamma (dsp_vector  *v);
ZF_API int ZF_CALL dspfi_lgamma(dspf_vector *v);

/* ------------------------------------------------------------------------ */
/* FFT                                                                       */
/* ------------------------------------------------------------------------ */

/** Complex FFT of a power-of-two number of points in place; direction 0 is the
 * forward transform (kernel e^-j, scaled by 1/N), any other the unscaled
 * inverse. A real vector becomes complex with N points; delta becomes
 * 1/(N delta) (1e100, single 1e15, when delta is 0). -1 for other lengths. */
ZF_API int ZF_CALL dspi_fft (dsp_vector  *v, int direction);
ZF_API int ZF_CALL dspfi_fft(dspf_vector *v, int direction);
/** Forward FFT of a real vector of N = 2^k points: N/2 + 1 complex bins, DC to
 * Nyquist, scaled by 1/N (storage grown to N pairs). -1 for a complex vector. */
ZF_API int ZF_CALL dspi_rfft (dsp_vector  *v);
ZF_API int ZF_CALL dspfi_rfft(dspf_vector *v);
/** Inverse of dspi_rfft: M bins become N = 2(M - 1) real samples (unscaled);
 * the imaginary parts of the DC and Nyquist bins are ignored. -1 unless N is a
 * power of two (M = 1 gives one sample). */
ZF_API int ZF_CALL dspi_irfft (dsp_vector  *v);
ZF_API int ZF_CALL dspfi_irfft(dspf_vector *v);
/** Permutes the samples (complex pairs when complex) into bit-reversed index
 * order; shape and delta unchanged. -1 unless points is a power of two. */
ZF_API int ZF_CALL dspi_bitrev (dsp_vector  *v);
ZF_API int ZF_CALL dspfi_bitrev(dspf_vector *v);
/** The same permutation, every sample multiplied by 1/N. */
ZF_API int ZF_CALL dspi_bitrev_scale (dsp_vector  *v);
ZF_API int ZF_CALL dspfi_bitrev_scale(dspf_vector *v);
/** dspi_fft on a caller's array of points samples (pairs when complex is
 * nonzero), transformed in place; caller-pops convention, plain name. A real
 * array (complex 0) of two or more points has no room for the complex result:
 * -1 and the array is left untouched. No single-precision twin. */
ZF_API int ZF_CDECL cf_dspi_fft(double *data, int points, int complex, int direction);

/* ------------------------------------------------------------------------ */
/* DFT, DCT, Hilbert transform and analytic signal                           */
/* ------------------------------------------------------------------------ */

/** DFT of any length in place (0 forward with 1/N, other inverse); complex
 * result of the same points, delta becomes 1/(N*delta). */
ZF_API int ZF_CALL dspi_dft (dsp_vector  *v, int direction);
ZF_API int ZF_CALL dspfi_dft(dspf_vector *v, int direction);
/** DFT of a real vector: N/2 + 1 complex bins (-1 for complex input). */
ZF_API int ZF_CALL dspi_rdft (dsp_vector  *v);
ZF_API int ZF_CALL dspfi_rdft(dspf_vector *v);
/** Inverse of dspi_rdft: M bins to 2(M - 1) real samples, 2M - 1 with odd. */
ZF_API int ZF_CALL dspi_irdft (dsp_vector  *v, int odd);
ZF_API int ZF_CALL dspfi_irdft(dspf_vector *v, int odd);
/** Full conjugate-symmetric spectrum from bins 0 .. M-1: grows to 2(M - 1) points, 2M - 1 with odd. */
ZF_API int ZF_CALL dspi_orecon (dsp_vector  *v, int odd);
ZF_API int ZF_CALL dspfi_orecon(dspf_vector *v, int odd);
/** dspi_orecon with odd = 0. */
ZF_API int ZF_CALL dspi_recon (dsp_vector  *v);
ZF_API int ZF_CALL dspfi_recon(dspf_vector *v);
/** DCT of a real vector in place, same points (flags: 1 inverse, 2 orthonormal); -1 for complex input. */
ZF_API int ZF_CALL dspi_dct (dsp_vector  *v, int flags);
ZF_API int ZF_CALL dspfi_dct(dspf_vector *v, int flags);
/** Hilbert transform in place, same points; a real input stays real (H{cos} = sin). */
ZF_API int ZF_CALL dspi_hilbert (dsp_vector  *v);
ZF_API int ZF_CALL dspfi_hilbert(dspf_vector *v);
/** Analytic signal x + jH{x} in place: complex result of the same points. */
ZF_API int ZF_CALL dspi_analytic (dsp_vector  *v);
ZF_API int ZF_CALL dspfi_analytic(dspf_vector *v);

/* ------------------------------------------------------------------------ */
/* Handle-based spectra, averaging and correlation                           */
/* ------------------------------------------------------------------------ */

/** Spectrum of a record in one call. Flags: 1 inverse (spectrum to record),
 * 2 two-sided (no factor 2; complex transform with DC in the middle, also for
 * real input), 4 scale by the transform length instead of 2 with centred
 * padding, 8 no window (only its rotation), 16 centred padding with kind 0
 * rotated, 32 complex inverse result, 128 raw (plain transform of the padded
 * selection); 4, 16 and 128 ignore points and fraction.
 * Forward: M = the power of two >= points (points < 1: the input's points);
 * the first round(L) samples, L = min(M fraction, input points), fraction
 * outside (0, 1] counting as 1, are windowed with mean normalisation over width
 * L (kinds without a width, 1 and 14 .. 24, span the selection; a complex
 * record is windowed part by part with the same real window), scaled by 2,
 * zero-padded to M (rescaled by M/L unless flag 4) and transformed: a real input
 * gives M/2 + 1 bins, else M bins with DC in the middle.
 * Inverse: points < 1 means 2 (input points) - 2 for a real result, else the
 * input's points; the record is rebuilt at M points, cut to round(M fraction),
 * rotated back and scaled back. 0 or -1. */
ZF_API int ZF_CALL dsph_fft (const dsp_vector  *in, dsp_vector  *out, int points, double fraction, int kind, int flags);
ZF_API int ZF_CALL dspfh_fft(const dspf_vector *in, dspf_vector *out, int points, float  fraction, int kind, int flags);
/** dsph_fft for a record of any length, whole, through the arbitrary-length
 * transforms (flag 4 scales by the length). The inverse of N bins gives a real
 * record of 2N - 2 samples (an odd length needs flag 32 and the full two-sided
 * spectrum), with flags 2, 32 or 128 a complex record of N samples. 0 or -1. */
ZF_API int ZF_CALL dsph_dft (const dsp_vector  *in, dsp_vector  *out, int kind, int flags);
ZF_API int ZF_CALL dspfh_dft(const dspf_vector *in, dspf_vector *out, int kind, int flags);
/** dsph_fft with points 0 between caller arrays: in holds points samples (pairs
 * when complex is nonzero); complex describes the input only: out receives the
 * result in its own shape, (result complex ? 2 : 1) * result points doubles
 * (real forward: M + 2, two-sided: 2M, real inverse: M, with M the power of two
 * >= points). Caller-pops convention, plain name; no single-precision twin. */
ZF_API int ZF_CDECL cf_dsph_fft(const double *in, double *out, int points, int complex, double fraction, int kind, int flags);

/** One step of averaging: acc folds in the record in as record number count of a
 * run. Flag 32 first replaces the input by its magnitude squared (in scratch, or
 * a temporary when scratch is null or is one of the other records). count <= 1:
 * acc becomes a copy. Else by mode = flags & 15: 0 copy, 1 weighted mean
 * acc + w (in - acc), 2 maximum, 3 minimum, 4 harmonic and 5 geometric weighted
 * mean, 6 copy when n == 1 or n > 0 and count mod n == 1, 7 .. 15 nothing.
 * w = weight when >= 0, else 1/count, or with flag 16 1/limit once
 * 0 < limit <= count. 0 or -1 (modes 4 and 5 run every step, -1 if any failed). */
ZF_API int ZF_CALL dsph_avg (const dsp_vector  *in, dsp_vector  *acc, dsp_vector  *scratch, int flags, int count, int n, double weight, double limit);
ZF_API int ZF_CALL dspfh_avg(const dspf_vector *in, dspf_vector *acc, dspf_vector *scratch, int flags, int count, int n, float  weight, float  limit);
/** Correlation out[k] = (1/M) sum_{j < length} conj(a[j]) b[j + k] for
 * k = 0 .. b points - length, halved when half is nonzero, through transforms of
 * M points (the power of two >= b points); delta the mean of a's and b's.
 * Mixed inputs: a real input with a complex one counts as complex with imaginary
 * parts 0 and the result is complex. scratch receives b's transform (a temporary
 * when null or when it is a or out). -1 when length < 1 or exceeds a or b. */
ZF_API int ZF_CALL dsph_corr (const dsp_vector  *a, const dsp_vector  *b, dsp_vector  *out, dsp_vector  *scratch, int length, int half);
ZF_API int ZF_CALL dspfh_corr(const dspf_vector *a, const dspf_vector *b, dspf_vector *out, dspf_vector *scratch, int length, int half);
/** dsph_corr with a temporary scratch record. */
ZF_API int ZF_CALL dspb_corr (const dsp_vector  *a, const dsp_vector  *b, dsp_vector  *out, int length, int half);
ZF_API int ZF_CALL dspfb_corr(const dspf_vector *a, const dspf_vector *b, dspf_vector *out, int length, int half);

/* ------------------------------------------------------------------------ */
/* Window catalogue and generation                                           */
/* ------------------------------------------------------------------------ */

/**
 * Multiplies a real vector in place by the window of a kind 0 .. 24 in the
 * normalisation of the low flag bits (DSP_WINFLAG_*), taken from the window
 * cache of the precision (16 windows, replaced cyclically), then rotates the
 * product left by points/2 unless DSP_WINFLAG_NO_ROTATE (kind 0: only with
 * DSP_WINFLAG_ROTATE). With DSP_WINFLAG_WIDTH the window spans width samples
 * (kind 0 and the cosine sums only). -1 for a complex vector, low flag bits 3,
 * a kind outside 0 .. 24, a flag the kind refuses, or a failed allocation.
 * A complex vector is refused for every kind, kind 0 included.
 * Kind 0 without the width flag only rotates (or not), whatever the symmetric flag says.
 * A width of N samples or more computes floor((N - 1)/2) samples each side and forces none to 0.
 */
ZF_API int ZF_CALL dspi_window2 (dsp_vector  *v, int kind, int flags, double width);
ZF_API int ZF_CALL dspfi_window2(dspf_vector *v, int kind, int flags, float  width);
/** dspi_window2 with width 0; DSP_WINFLAG_WIDTH gives -1. */
ZF_API int ZF_CALL dspi_window (dsp_vector  *v, int kind, int flags);
ZF_API int ZF_CALL dspfi_window(dspf_vector *v, int kind, int flags);
/**
 * Cosine-sum window sum_k a_k cos(2 pi k m / N) at distance m from the centre,
 * with the caller's real coefficients a0, a1, ... used as given, then rotated.
 * No short-length correction is applied: the coefficients define the window exactly.
 */
ZF_API int ZF_CALL dspi_window_cos (dsp_vector  *v, const dsp_vector  *coef);
ZF_API int ZF_CALL dspfi_window_cos(dspf_vector *v, const dspf_vector *coef);
/**
 * Gaussian window exp(-m^2 / (2 (sigma L)^2)), L = N (periodic) or N - 1 (symmetric).
 * The symmetric Gaussian, sinc and Tukey windows use N - 1 wherever the periodic ones use N.
 * sigma 0 gives a unit impulse at the centre; DSP_WINFLAG_WIDTH gives -1 (as for all below).
 */
ZF_API int ZF_CALL dspi_window_gauss (dsp_vector  *v, double sigma, int flags);
ZF_API int ZF_CALL dspfi_window_gauss(dspf_vector *v, float  sigma, int flags);
/**
 * Kaiser window I0(beta sqrt(1 - (2m/L)^2)), L = N or N - 1 (symmetric); |beta|
 * limited to ln 1e200 (ln 1e100 for RMS normalisation); peak normalisation
 * divides by I0(beta). A one-sample window is 1 in every normalisation.
 */
ZF_API int ZF_CALL dspi_window_kaiser (dsp_vector  *v, double beta, int flags);
ZF_API int ZF_CALL dspfi_window_kaiser(dspf_vector *v, float  beta, int flags);
/**
 * (sin x / x)^power with x = 2 span m / L over [-span, span), 1 at x = 0.
 * For a power other than 0, 1 and 2 a sample with sin x / x <= 0 is 0.
 */
ZF_API int ZF_CALL dspi_window_sinc (dsp_vector  *v, double span, double power, int flags);
ZF_API int ZF_CALL dspfi_window_sinc(dspf_vector *v, float  span, float  power, int flags);
/** Tukey window: 1 up to (1 - taper) L / 2 from the centre, a raised-cosine taper beyond. */
ZF_API int ZF_CALL dspi_window_tukey (dsp_vector  *v, double taper, int flags);
ZF_API int ZF_CALL dspfi_window_tukey(dspf_vector *v, float  taper, int flags);
/**
 * Window for FIR design, peak 1, symmetric, not rotated: kind 100 Gaussian of
 * relative bandwidth param (param <= 0 leaves the vector unchanged), 101 Kaiser
 * for transition width param, 102 and 103 sinc windows of width param, any
 * other kind dspi_window with flags 38 (so the cosine sums and the triangle give -1).
 */
ZF_API int ZF_CALL dspi_window_fir (dsp_vector  *v, int kind, double param);
ZF_API int ZF_CALL dspfi_window_fir(dspf_vector *v, int kind, float  param);
/**
 * Canonical short name of a kind into buffer (at most size bytes, always
 * terminated); -1 with an empty string for a kind without a name, -1 for a
 * null buffer or size < 1.
 */
ZF_API int ZF_CALL dsp_window_to_str (int kind, char *buffer, int size);
ZF_API int ZF_CALL dspf_window_to_str(int kind, char *buffer, int size);
/**
 * Kind of a name, short or DSP_WINDOW_ form, compared case-insensitively over
 * the whole text; -1 with kind 0 when nothing matches, -1 for null arguments.
 */
ZF_API int ZF_CALL dsp_window_from_str (const char *text, int *kind);
ZF_API int ZF_CALL dspf_window_from_str(const char *text, int *kind);

/* ------------------------------------------------------------------------ */
/* Window scaling and noise bandwidth                                        */
/* ------------------------------------------------------------------------ */

/**
 * Factor by which the window of kind, flags, points and width normalised as the
 * flags ask exceeds the same window at peak 1: 1 for peak normalisation or
 * points < 1; closed forms for the cosine sums and the triangle, the generated
 * window measured otherwise (0 when its mean or RMS is 0). -1 for a null
 * result, low flag bits 3, an unknown kind or a refused flag.
 */
ZF_API int ZF_CALL dsp_window2_scale (double *result, int kind, int flags, int points, double width);
ZF_API int ZF_CALL dspf_window2_scale(float  *result, int kind, int flags, int points, float  width);
/** dsp_window2_scale with width 0; DSP_WINFLAG_WIDTH gives -1. */
ZF_API int ZF_CALL dsp_window_scale (double *result, int kind, int flags, int points);
ZF_API int ZF_CALL dspf_window_scale(float  *result, int kind, int flags, int points);
/** Equivalent noise bandwidth in bins of the periodic window: (mean scale / RMS scale)^2; result written only on success. */
ZF_API int ZF_CALL dsp_window_enbw (double *result, int kind, int points);
ZF_API int ZF_CALL dspf_window_enbw(float  *result, int kind, int points);
/** The same for the window spanning width samples (DSP_WINFLAG_WIDTH). */
ZF_API int ZF_CALL dsp_window2_enbw (double *result, int kind, int points, double width);
ZF_API int ZF_CALL dspf_window2_enbw(float  *result, int kind, int points, float  width);

/* ------------------------------------------------------------------------ */
/* FIR design and filtering                                                  */
/* ------------------------------------------------------------------------ */

/** FIR design: points = M taps of kind 0-10 (DSP_FIR_*; frequencies in cycles
 * per sample); a vector complex on entry gets complex taps with zero imaginary
 * parts. -1 for an unknown kind, kinds 1 and 2 with even M, or a failed
 * allocation. */
ZF_API int ZF_CALL dspc_fir (dsp_vector  *fir, int kind, double f1, double f2);
ZF_API int ZF_CALL dspfc_fir(dspf_vector *fir, int kind, float  f1, float  f2);
/** Fixed half responses for dspd_sfir with odd = 1: which 100 (12 values), 101
 * (20: a 39-tap lowpass, gain 1 to 0.2 and at most 0.00034 from 0.3 cycles
 * per sample on), 102 (5); -1 for any other which. */
ZF_API int ZF_CALL dspc_fir2 (dsp_vector  *fir, int which);
ZF_API int ZF_CALL dspfc_fir2(dspf_vector *fir, int which);
/** Causal FIR filtering y[n] = sum h[k] x[n-k], output as long as the input
 * (complex when the input or h is); state (or null for zeros) carries the
 * last M-1 inputs, oldest first, so blocks join without a seam. Long real
 * responses (M >= 46, 36 on complex input, M-1 <= N) run by overlap-save
 * FFT convolution; its cached coefficient transform is keyed on the values
 * and the transform length, so streamed blocks of any sizes equal one whole
 * call up to rounding. M <= 0:
 * the output is a copy. out may be in; -1 when state shares storage with in,
 * out or h, or out with h. */
ZF_API int ZF_CALL dspd_fir (const dsp_vector  *in, dsp_vector  *out, const dsp_vector  *h, dsp_vector  *state);
ZF_API int ZF_CALL dspfd_fir(const dspf_vector *in, dspf_vector *out, const dspf_vector *h, dspf_vector *state);
/** dspd_fir with the response expanded from half: 2H taps, or 2H-1 with odd
 * (the last half sample is the shared centre), the mirrored taps negated with
 * negate; with odd and negate the centre tap keeps its sign ([1, 2] gives
 * [1, 2, -1]). H <= 0: the output is a copy. */
ZF_API int ZF_CALL dspd_sfir (const dsp_vector  *in, dsp_vector  *out, const dsp_vector  *half, int odd, int negate, dsp_vector  *state);
ZF_API int ZF_CALL dspfd_sfir(const dspf_vector *in, dspf_vector *out, const dspf_vector *half, int odd, int negate, dspf_vector *state);
/** Hardware-filter model, kind 0 only (else -1): four sections
 * (0.25 + 0.5z^-1 + 0.5z^-2 + 0.25z^-3)/(1 + 0.5z^-2); state holds the 12
 * cells, null uses the library's default history, which persists between
 * calls. out may be in; -1 when in or out shares storage with the history. */
ZF_API int ZF_CALL dspd_hwfilt (const dsp_vector  *in, dsp_vector  *out, int kind, dsp_vector  *state);
ZF_API int ZF_CALL dspfd_hwfilt(const dspf_vector *in, dspf_vector *out, int kind, dspf_vector *state);
/** dspd_hwfilt(v, v, kind, null): in place, continuing the default history. */
ZF_API int ZF_CALL dspi_hwfilt (dsp_vector  *v, int kind);
ZF_API int ZF_CALL dspfi_hwfilt(dspf_vector *v, int kind);

/* ------------------------------------------------------------------------ */
/* Decimation and resampling                                                 */
/* ------------------------------------------------------------------------ */

/** Ratios are output spacing over input spacing (above 1: fewer samples); an
 * output's delta is the input's times the ratio. A history (state) vector may
 * be null, and is otherwise made like the input (delta, kind, length) on each
 * call; one that shares storage with the input or output is refused (-1). */

/** Keeps every factor-th sample (factor < 1 taken as 1), starting at the
 * phase's rounded first sample (0 without phase); the phase becomes the index
 * of the next sample to keep in the next block; delta times factor. */
ZF_API int ZF_CALL dspd_deci (const dsp_vector  *in, dsp_vector  *out, int factor, dsp_vector  *phase);
ZF_API int ZF_CALL dspfd_deci(const dspf_vector *in, dspf_vector *out, int factor, dspf_vector *phase);
/** Kernel table of kernel->points samples from stored series which (0-4, else
 * -1): element 0 the kernel length K, then one period of the kernel. */
ZF_API int ZF_CALL dspc_rsmp (dsp_vector  *kernel, int which);
ZF_API int ZF_CALL dspfc_rsmp(dspf_vector *kernel, int which);
/** Kernel table of w(theta) = sum a_k cos(k theta) from series [K, a_0, a_1, ...];
 * -1 for an odd points or a complex series. */
ZF_API int ZF_CALL dspc_rsmp_cos (dsp_vector  *kernel, const dsp_vector  *series);
ZF_API int ZF_CALL dspfc_rsmp_cos(dspf_vector *kernel, const dspf_vector *series);
/** As dspc_rsmp_cos with w(theta) = sum a_k cos(theta)^k. */
ZF_API int ZF_CALL dspc_rsmp_pcos (dsp_vector  *kernel, const dsp_vector  *series);
ZF_API int ZF_CALL dspfc_rsmp_pcos(dspf_vector *kernel, const dspf_vector *series);
/** Resamples by the kernel table (mode 0 nearest entry, real input only; 1
 * linear interpolation); out->points on entry is the most samples produced,
 * on return the count produced. History: K samples, the position (> -1) and
 * the count of this block's samples it accounts for. -1 for a negative or
 * non-finite ratio, a complex kernel, K < 1, a table of no whole number of
 * entries per input sample, a bad position or mode. */
ZF_API int ZF_CALL dspd_rsmp (const dsp_vector  *in, dsp_vector  *out, int mode, const dsp_vector  *kernel, double ratio, dsp_vector  *history);
ZF_API int ZF_CALL dspfd_rsmp(const dspf_vector *in, dspf_vector *out, int mode, const dspf_vector *kernel, float  ratio, dspf_vector *history);
/** dspd_rsmp with a kernel built by dspc_rsmp for which. */
ZF_API int ZF_CALL dspd_rsmp2 (const dsp_vector  *in, dsp_vector  *out, int mode, int which, double ratio, dsp_vector  *history);
ZF_API int ZF_CALL dspfd_rsmp2(const dspf_vector *in, dspf_vector *out, int mode, int which, float  ratio, dspf_vector *history);

/** The streaming resampler. Calling order: coef_init, coef_alloc, coef_setup;
 * state_init, state_alloc, state_reset; dsph_rsmp per block; state_destroy,
 * coef_destroy. Init, destroy, alloc and reset of a null record return 0.
 * A ratio below 1 (more output samples) is kept whole as the fractional
 * ratio: the field's 1 <= r < 2 holds only for ratios of 1 and above. */
/** Empty vectors, zero fields. */
ZF_API int ZF_CALL dsph_rsmp_coef_init (dsph_rsmp_coef  *coef);
ZF_API int ZF_CALL dspfh_rsmp_coef_init(dspfh_rsmp_coef *coef);
/** Releases the vectors, then as dsph_rsmp_coef_init. */
ZF_API int ZF_CALL dsph_rsmp_coef_destroy (dsph_rsmp_coef  *coef);
ZF_API int ZF_CALL dspfh_rsmp_coef_destroy(dspfh_rsmp_coef *coef);
/** Fills the half-band filter, the prefilter and the kernel table; reserved must be null. */
ZF_API int ZF_CALL dsph_rsmp_coef_alloc (dsph_rsmp_coef  *coef, void *reserved);
ZF_API int ZF_CALL dspfh_rsmp_coef_alloc(dspfh_rsmp_coef *coef, void *reserved);
/** Splits ratio (<= 0 taken as 1; not finite: -1) into octaves and the
 * remaining ratio and sets the start-up skips; force runs the fractional
 * stage even at 1; reserved must be null. */
ZF_API int ZF_CALL dsph_rsmp_coef_setup (dsph_rsmp_coef  *coef, double ratio, int force, void *reserved);
ZF_API int ZF_CALL dspfh_rsmp_coef_setup(dspfh_rsmp_coef *coef, float  ratio, int force, void *reserved);
/** Empty vectors and arrays, zero counts. */
ZF_API int ZF_CALL dsph_rsmp_state_init (dsph_rsmp_state  *state);
ZF_API int ZF_CALL dspfh_rsmp_state_init(dspfh_rsmp_state *state);
/** Releases the vectors and the stage arrays, then as dsph_rsmp_state_init. */
ZF_API int ZF_CALL dsph_rsmp_state_destroy (dsph_rsmp_state  *state);
ZF_API int ZF_CALL dspfh_rsmp_state_destroy(dspfh_rsmp_state *state);
/** Sizes the state for the coefficient record and real (0) or complex input. */
ZF_API int ZF_CALL dsph_rsmp_state_alloc (const dsph_rsmp_coef  *coef, dsph_rsmp_state  *state, int complex);
ZF_API int ZF_CALL dspfh_rsmp_state_alloc(const dspfh_rsmp_coef *coef, dspfh_rsmp_state *state, int complex);
/** Zeroes every history and phase and arms the start-up skips. */
ZF_API int ZF_CALL dsph_rsmp_state_reset (const dsph_rsmp_coef  *coef, dsph_rsmp_state  *state);
ZF_API int ZF_CALL dspfh_rsmp_state_reset(const dspfh_rsmp_coef *coef, dspfh_rsmp_state *state);
/** Resamples one block; out->points on entry is the number of samples wanted
 * (at least the block's share, about points / ratio + 1, for a seamless
 * stream) and the output is cut to it. Scratch and state may be null (a null
 * state: a lone block, nothing dropped); the output may be the input. The
 * coefficient record's filters must be real. */
ZF_API int ZF_CALL dsph_rsmp (const dsp_vector  *in, dsp_vector  *out, dsp_vector  *scratch, const dsph_rsmp_coef  *coef, dsph_rsmp_state  *state);
ZF_API int ZF_CALL dspfh_rsmp(const dspf_vector *in, dspf_vector *out, dspf_vector *scratch, const dspfh_rsmp_coef *coef, dspfh_rsmp_state *state);

/* ------------------------------------------------------------------------ */
/* Signal generators                                                         */
/* ------------------------------------------------------------------------ */

/** The generators size the record for its preset points (dsp_alloc) and use its
 * delta: freq in cycles per unit of delta, w = 2 pi delta freq. Sinusoids are
 * seeded with an exact cosine and sine every 256 samples and advanced by
 * rotation in between. Noise draws on the library's one rand() source, seeded
 * once per process from the clock; sequences do not repeat between runs. */
/** cos(w n + phase); a complex record keeps its kind with imaginary parts 0. 0 or -1. */
ZF_API int ZF_CALL dspc_cos (dsp_vector  *v, double freq, double phase);
ZF_API int ZF_CALL dspfc_cos(dspf_vector *v, float  freq, float  phase);
/** cos(w n + phase) + j sin(w n + phase) on a complex record; dspc_cos on a real one. 0 or -1. */
ZF_API int ZF_CALL dspc_cexp (dsp_vector  *v, double freq, double phase);
ZF_API int ZF_CALL dspfc_cexp(dspf_vector *v, float  freq, float  phase);
/** offset + n (delta slope) by repeated addition of the step; complex: imaginary parts 0. 0 or -1. */
ZF_API int ZF_CALL dspc_line (dsp_vector  *v, double slope, double offset);
ZF_API int ZF_CALL dspfc_line(dspf_vector *v, float  slope, float  offset);
/** Noise. kind 0: uniform in [-1, 1) (complex: uniform in the unit disc); 1: Gaussian
 * of variance 1 (complex: 1 per part); 2: exponential of mean 1; 3: Laplace (the
 * exponential with a random sign). -1 for another kind, and for kinds 2 and 3 on a
 * complex record. */
ZF_API int ZF_CALL dspc_rand (dsp_vector  *v, int kind);
ZF_API int ZF_CALL dspfc_rand(dspf_vector *v, int kind);
/** Adds amp cos(w n + phase) to the samples (complex: the real parts) and, with bit 0
 * of flags on a complex record, amp sin(w n + phase) to the imaginary parts; size
 * and kind unchanged. 0 or -1. */
ZF_API int ZF_CALL dspi_addcos (dsp_vector  *v, int flags, double amp, double freq, double phase);
ZF_API int ZF_CALL dspfi_addcos(dspf_vector *v, int flags, float  amp, float  freq, float  phase);

/* ------------------------------------------------------------------------ */
/* Interpolation and splines                                                 */
/* ------------------------------------------------------------------------ */

/** Knots x (strictly increasing, no NaN) and values y, both real of n points;
 * new abscissae xi, real. out gets xi's points and delta, real; out may be any
 * input. Bad knots (not strictly increasing or NaN), y not of n points, a
 * complex x, y, xi or y2, or a y2 not of n points: -1 before out is touched.
 * flags & 7 is the mode: 0 holds the value of the last knot at or before xi
 * (y[0] left of the knots, y[n-1] at and past the last), 1 linear, 3 the
 * parabola through the three knots centred on the knot nearest xi (a tie goes
 * to the lower knot, the centre kept within 1 .. n-2), 5 cubic spline with the
 * second derivatives y2 (null: not-a-knot ends from dspb_cspline_2d, which
 * needs four knots). Modes 3 and 7 with fewer than three knots become mode 1.
 * The reserved modes 2, 4, 6 and 7 evaluate nothing: from the first abscissa
 * not clamped on the left on, every output is y[j] for the first knot x[j]
 * (j >= 1, at most n-1) right of that abscissa. flags & 16 clamps: y[0] left
 * of x[0] and y[n-1] at and beyond x[n-1]; otherwise the end pieces are
 * extended. xi is walked in order with an interval that only moves forward
 * (O(n + m) in any order): xi is meant to ascend, a smaller abscissa after a
 * larger one keeps the interval reached so far (clamping on the left holds
 * only for the leading abscissae), and once an abscissa stops at the clamped
 * right end (or beyond the last knot in mode 0) every remaining output takes
 * that end's value; a NaN abscissa gives NaN. n = 0 gives zeros; n = 1 gives y[0], in mode 5
 * y[0] + y2[0] (xi - x[0])^2 / 2. 0 or -1. */
ZF_API int ZF_CALL dsp_interp (const dsp_vector  *x, const dsp_vector  *y, const dsp_vector  *y2, const dsp_vector  *xi, dsp_vector  *out, int flags);
ZF_API int ZF_CALL dspf_interp(const dspf_vector *x, const dspf_vector *y, const dspf_vector *y2, const dspf_vector *xi, dspf_vector *out, int flags);
/** dsp_interp in mode 5 (cubic spline, extrapolating). 0 or -1. */
ZF_API int ZF_CALL dsp_cspline (const dsp_vector  *x, const dsp_vector  *y, const dsp_vector  *y2, const dsp_vector  *xi, dsp_vector  *out);
ZF_API int ZF_CALL dspf_cspline(const dspf_vector *x, const dspf_vector *y, const dspf_vector *y2, const dspf_vector *xi, dspf_vector *out);
/** Second derivatives y2 of the cubic spline through the n >= 4 knots (x, y),
 * real, n points, delta the mean of x's and y's; y2 may be x or y. End
 * conditions cond0 (first knot) and condn (last knot): 0 not-a-knot (one cubic
 * over the first or last two intervals), 1 slope d0 / dn, 2 second derivative
 * d0 / dn, 3 natural (second derivative 0). Four knots with not-a-knot at both
 * ends give the single cubic through them. -1 (y2 untouched) for complex
 * input, unequal lengths, n < 4, a code outside 0 .. 3, or an interval that
 * is not positive (NaN included). */
ZF_API int ZF_CALL dspb_cspline_2d (const dsp_vector  *x, const dsp_vector  *y, dsp_vector  *y2, double d0, double dn, int cond0, int condn);
ZF_API int ZF_CALL dspfb_cspline_2d(const dspf_vector *x, const dspf_vector *y, dspf_vector *y2, float  d0, float  dn, int cond0, int condn);
/** Doubles the rate in place by zero insertion: sample k moves to 2k, 2k + 1
 * becomes 0 (a zero pair when complex), points doubles and delta halves. 0 or -1. */
ZF_API int ZF_CALL dspi_zinter (dsp_vector  *v);
ZF_API int ZF_CALL dspfi_zinter(dspf_vector *v);

/* ------------------------------------------------------------------------ */
/* Descriptive statistics                                                    */
/* ------------------------------------------------------------------------ */

/** Each writes its result into out as a vector of one point, sized with
 * dsp_alloc (delta untouched); out may be the input record itself. */
/** Sum of the samples (parts separately), in blocks of 2048; one point, complex as the input. */
ZF_API int ZF_CALL dsps_sum (const dsp_vector  *in, dsp_vector  *out);
ZF_API int ZF_CALL dspfs_sum(const dspf_vector *in, dspf_vector *out);
/** Sum divided by the count, each part; one point, complex as the input; 0 when empty. */
ZF_API int ZF_CALL dsps_mean (const dsp_vector  *in, dsp_vector  *out);
ZF_API int ZF_CALL dspfs_mean(const dspf_vector *in, dspf_vector *out);
/** Smallest sample (complex: of smallest |z|^2), at most 1e100 / 1e15; one point, complex as the input. */
ZF_API int ZF_CALL dsps_min (const dsp_vector  *in, dsp_vector  *out);
ZF_API int ZF_CALL dspfs_min(const dspf_vector *in, dspf_vector *out);
/** Largest sample (complex: of largest |z|^2); one point, complex as the input. */
ZF_API int ZF_CALL dsps_max (const dsp_vector  *in, dsp_vector  *out);
ZF_API int ZF_CALL dspfs_max(const dspf_vector *in, dspf_vector *out);
/** Middle of the sorted samples (mean of the two middle ones for an even count; complex
 * samples in the order of dspi_sort); one point, complex as the input. */
ZF_API int ZF_CALL dsps_median (const dsp_vector  *in, dsp_vector  *out);
ZF_API int ZF_CALL dspfs_median(const dspf_vector *in, dspf_vector *out);
/** Sum of x^2 or re^2 + im^2, each term at most the guard; one real point. */
ZF_API int ZF_CALL dsps_magsq_sum (const dsp_vector  *in, dsp_vector  *out);
ZF_API int ZF_CALL dspfs_magsq_sum(const dspf_vector *in, dspf_vector *out);
/** Square root of magsq_sum / count; one real point. */
ZF_API int ZF_CALL dsps_rms (const dsp_vector  *in, dsp_vector  *out);
ZF_API int ZF_CALL dspfs_rms(const dspf_vector *in, dspf_vector *out);
/** Population variance, real and imaginary parts pooled; one real point. */
ZF_API int ZF_CALL dsps_pop_var (const dsp_vector  *in, dsp_vector  *out);
ZF_API int ZF_CALL dspfs_pop_var(const dspf_vector *in, dspf_vector *out);
/** pop_var * n / (n - 1) for n >= 2, else pop_var; one real point. */
ZF_API int ZF_CALL dsps_samp_var (const dsp_vector  *in, dsp_vector  *out);
ZF_API int ZF_CALL dspfs_samp_var(const dspf_vector *in, dspf_vector *out);
/** Square root of pop_var; one real point. */
ZF_API int ZF_CALL dsps_pop_stddev (const dsp_vector  *in, dsp_vector  *out);
ZF_API int ZF_CALL dspfs_pop_stddev(const dspf_vector *in, dspf_vector *out);
/** Square root of samp_var; one real point. */
ZF_API int ZF_CALL dsps_samp_stddev (const dsp_vector  *in, dsp_vector  *out);
ZF_API int ZF_CALL dspfs_samp_stddev(const dspf_vector *in, dspf_vector *out);
/** Skewness; -1 for complex input (output untouched); one real point, 0 when empty. */
ZF_API int ZF_CALL dsps_skew (const dsp_vector  *in, dsp_vector  *out);
ZF_API int ZF_CALL dspfs_skew(const dspf_vector *in, dspf_vector *out);
/** Excess kurtosis; -1 for complex input (output untouched); one real point, -3 when empty. */
ZF_API int ZF_CALL dsps_excess (const dsp_vector  *in, dsp_vector  *out);
ZF_API int ZF_CALL dspfs_excess(const dspf_vector *in, dspf_vector *out);
/** Geometric mean (complex: principal n-th root of the product), 0 when the product is not above the smallest normal; one point, complex as the input. */
ZF_API int ZF_CALL dsps_gmean (const dsp_vector  *in, dsp_vector  *out);
ZF_API int ZF_CALL dspfs_gmean(const dspf_vector *in, dspf_vector *out);
/** Harmonic mean, 0 when a real sample is 0, the guard when the reciprocals cancel; one point, complex as the input. */
ZF_API int ZF_CALL dsps_hmean (const dsp_vector  *in, dsp_vector  *out);
ZF_API int ZF_CALL dspfs_hmean(const dspf_vector *in, dspf_vector *out);

/* ------------------------------------------------------------------------ */
/* Histogram, peak search, polynomials and regression                        */
/* ------------------------------------------------------------------------ */

/* Polynomials hold their coefficients lowest power first (as dspb_pmul and
 * dspi_pdiffer); leading zero coefficients lower the degree. Every output may
 * be an input record. */
/** Counts of the real samples in `bins` equal bins between lo and hi: bin k holds
 * lo + k w <= x < lo + (k + 1) w, w = (hi - lo) / bins, the last bin also x = hi;
 * samples outside [lo, hi] and NaN are not counted. out: bins real points,
 * delta w (bin k is centred on lo + (k + 1/2) w); single-precision counts are
 * exact up to 2^24. -1 (out untouched) for complex input, bins < 1, or limits
 * that are not finite with lo < hi. */
ZF_API int ZF_CALL dsps_hist (const dsp_vector  *in, double lo, double hi, int bins, dsp_vector  *out);
ZF_API int ZF_CALL dspfs_hist(const dspf_vector *in, float  lo, float  hi, int bins, dspf_vector *out);
/** Strongest peak of a real vector: out = (position, height), two real points,
 * position in samples (times delta for the abscissa). The largest sample (the
 * first of equals; NaN ignored) and its neighbours give the vertex of their
 * parabola; a run of equal largest samples (a plateau) gives its centre and
 * its value; at the first or last sample, or beside a NaN, the sample itself.
 * -1 (out untouched) for complex input or no sample other than NaN. */
ZF_API int ZF_CALL dsps_peak (const dsp_vector  *in, dsp_vector  *out);
ZF_API int ZF_CALL dspfs_peak(const dspf_vector *in, dspf_vector *out);
/** p at every sample of x by Horner (in double): out gets x's points and delta,
 * complex when p or x is; an empty p gives zeros; results beyond the guard
 * 1e100 (1e15) are held at it. 0 or -1. */
ZF_API int ZF_CALL dsps_peval (const dsp_vector  *p, const dsp_vector  *x, dsp_vector  *out);
ZF_API int ZF_CALL dspfs_peval(const dspf_vector *p, const dspf_vector *x, dspf_vector *out);
/** The real x with p(x) = y nearest x0 (one real point): among the real roots of
 * p - y (dsps_proots; a root counts as real when p - y at its real part is 0 to
 * rounding, as at a multiple root) the nearest, polished by Newton steps that
 * fall back to bisection inside a bracketing sign change. p identically y gives x0. -1 (out
 * untouched) for a complex p, NaN y or x0, or when p - y has no real root
 * (a nonzero constant included). */
ZF_API int ZF_CALL dsps_psolve (const dsp_vector  *p, double y, double x0, dsp_vector  *out);
ZF_API int ZF_CALL dspfs_psolve(const dspf_vector *p, float  y, float  x0, dspf_vector *out);
/** The complex x with p(x) = y nearest x0 (one complex point); p real or complex.
 * p identically y gives x0. -1 (out untouched) for a NaN argument or when
 * p - y is a nonzero constant. */
ZF_API int ZF_CALL dsps_pcsolve (const dsp_vector  *p, double y_re, double y_im, double x0_re, double x0_im, dsp_vector  *out);
ZF_API int ZF_CALL dspfs_pcsolve(const dspf_vector *p, float  y_re, float  y_im, float  x0_re, float  x0_im, dspf_vector *out);
/** All d roots of p of degree d (real or complex coefficients), complex, d points,
 * ascending by real part then imaginary part; zero low coefficients give exact
 * zero roots; a real p gives exactly real roots where a root has no conjugate
 * partner. Aberth-Ehrlich iteration in double from the circles of the Newton
 * polygon, p evaluated by compensated Horner (as in twice the precision), each
 * root polished by a Newton step: the roots are those of the coefficients as
 * stored, so the error is the conditioning of the roots times the rounding of
 * the coefficients. Measured in double: roots 1 .. 20 from the coefficients of
 * their product (rounded to double) within 1e-3, 20 roots evenly spaced on
 * [-1, 1] within 1e-10, five roots 1e-3 apart within 1e-3, a triple root of
 * integer coefficients within 1e-9; an m-fold root of rounded coefficients is
 * good to about eps^(1/m). The single-precision twin computes in double.
 * A nonzero constant gives no roots; -1 (out untouched) for an empty or zero p. */
ZF_API int ZF_CALL dsps_proots (const dsp_vector  *p, dsp_vector  *out);
ZF_API int ZF_CALL dspfs_proots(const dspf_vector *p, dspf_vector *out);
/** dsps_proots in place: v becomes its roots. */
ZF_API int ZF_CALL dspi_proots (dsp_vector  *v);
ZF_API int ZF_CALL dspfi_proots(dspf_vector *v);
/** In place: the n roots (real or complex) become the n + 1 coefficients of the
 * monic polynomial (x - r_0) ... (x - r_(n-1)), complex as the roots; no roots
 * give the constant 1. 0 or -1. */
ZF_API int ZF_CALL dspi_pztoc (dsp_vector  *v);
ZF_API int ZF_CALL dspfi_pztoc(dspf_vector *v);
/** Least-squares line y = slope x + offset through the real samples against
 * x_k = k delta: out = (slope, offset, r), three real points, r the correlation
 * coefficient (0 when the samples have no spread). Centred sums in double.
 * -1 (out untouched) for complex input, fewer than two samples or delta 0;
 * NaN samples give NaN results. */
ZF_API int ZF_CALL dsps_lin_regres (const dsp_vector  *y, dsp_vector  *out);
ZF_API int ZF_CALL dspfs_lin_regres(const dspf_vector *y, dspf_vector *out);
/** As dsps_lin_regres against the abscissae x (real, as many points as y); -1
 * also when the abscissae are all equal or one is NaN. */
ZF_API int ZF_CALL dsps_lin_regres2 (const dsp_vector  *x, const dsp_vector  *y, dsp_vector  *out);
ZF_API int ZF_CALL dspfs_lin_regres2(const dspf_vector *x, const dspf_vector *y, dspf_vector *out);

#ifdef __cplusplus
}
#endif

#endif /* ZIFAIF_DSP_H */
