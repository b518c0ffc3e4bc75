// Test-side overloads of the trace entry points, picked by element type, so
// one typed test reaches both C twins through the real interface.
#pragma once
#include <zifaif/instrument.h>

#include "support/vectors.hpp"  // brings the core overloads with the random data helpers

namespace api {
ZT_TWIN(trace_mul, vfpdbMul, vfpsbMul)
ZT_TWIN(scale_to_int, vfpdb_ScaleToInt, vfpsb_ScaleToInt)
ZT_TWIN(scale_to_fp, vfpdb_ScaleToFP, vfpsb_ScaleToFP)
ZT_TWIN(find_max, vfpd_FindMax, vfps_FindMax)
ZT_TWIN(find_max2, vfpd_FindMax2, vfps_FindMax2)
ZT_TWIN(find_min, vfpd_FindMin, vfps_FindMin)
ZT_TWIN(find_min2, vfpd_FindMin2, vfps_FindMin2)
ZT_TWIN(find_min_max, vfpd_FindMinMax, vfps_FindMinMax)
ZT_TWIN(expand_linear, vfpd_ExpandLinear, vfps_ExpandLinear)
ZT_TWIN(expand_log, vfpd_ExpandLog, vfps_ExpandLog)
ZT_TWIN(unwrap_phase, vfpd_UnwrapPhase, vfps_UnwrapPhase)
ZT_TWIN(format_buffer, vfpd_FormatBuffer, vfps_FormatBuffer)
ZT_TWIN(byte_copy_to_fp, vfpd_ByteCopyToFP, vfps_ByteCopyToFP)
ZT_TWIN(smooth, vfpd_Smooth, vfps_Smooth)
ZT_TWIN(smooth_cpx, vfpd_SmoothCpx, vfps_SmoothCpx)
}  // namespace api
