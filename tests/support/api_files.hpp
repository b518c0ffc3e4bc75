// Test-side overloads of the vector-file entry points, picked by record type.
#pragma once
#include <zifaif/dsp.h>

namespace api {
inline int fread(dsp_vector* v, FILE* f) { return dspf_fread(v, f); }
inline int fread(dspf_vector* v, FILE* f) { return dspff_fread(v, f); }
inline int fwrite(const dsp_vector* v, FILE* f) { return dspf_fwrite(v, f); }
inline int fwrite(const dspf_vector* v, FILE* f) { return dspff_fwrite(v, f); }
inline int fwrite2(const dsp_vector* v, FILE* f, int flags) { return dspf_fwrite2(v, f, flags); }
inline int fwrite2(const dspf_vector* v, FILE* f, int flags) { return dspff_fwrite2(v, f, flags); }
inline int fwrite_ascii(const dsp_vector* v, FILE* f) { return dspf_fwrite_ascii(v, f); }
inline int fwrite_ascii(const dspf_vector* v, FILE* f) { return dspff_fwrite_ascii(v, f); }
}  // namespace api
