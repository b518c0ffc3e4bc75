// Test-side overloads of the interpolation entry points, picked by record type.
#pragma once
#include "support/api_core.hpp"

namespace api {
ZT_TWIN(interp, dsp_interp, dspf_interp)
ZT_TWIN(cspline, dsp_cspline, dspf_cspline)
ZT_TWIN(cspline_2d, dspb_cspline_2d, dspfb_cspline_2d)
ZT_TWIN(zinter, dspi_zinter, dspfi_zinter)
}  // namespace api
