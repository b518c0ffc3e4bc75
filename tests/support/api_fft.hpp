// Test-side overloads of the FFT entry points, picked by record type.
#pragma once
#include "support/api_core.hpp"

namespace api {
ZT_TWIN(fft, dspi_fft, dspfi_fft)
ZT_TWIN(rfft, dspi_rfft, dspfi_rfft)
ZT_TWIN(irfft, dspi_irfft, dspfi_irfft)
ZT_TWIN(bitrev, dspi_bitrev, dspfi_bitrev)
ZT_TWIN(bitrev_scale, dspi_bitrev_scale, dspfi_bitrev_scale)
}  // namespace api
