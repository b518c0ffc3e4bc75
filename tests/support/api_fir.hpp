// Test-side overloads of the FIR design and filtering entry points.
#pragma once
#include "support/api_core.hpp"

namespace api {
ZT_TWIN(fir, dspc_fir, dspfc_fir)
ZT_TWIN(fir, dspd_fir, dspfd_fir)
ZT_TWIN(fir2, dspc_fir2, dspfc_fir2)
ZT_TWIN(sfir, dspd_sfir, dspfd_sfir)
ZT_TWIN(hwfilt, dspd_hwfilt, dspfd_hwfilt)
ZT_TWIN(hwfilt, dspi_hwfilt, dspfi_hwfilt)
}  // namespace api
