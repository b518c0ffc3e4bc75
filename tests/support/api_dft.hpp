// Test-side overloads of the DFT, DCT, Hilbert and analytic-signal entry
// points, picked by record type.
#pragma once
#include "support/api_core.hpp"

namespace api {
ZT_TWIN(dft, dspi_dft, dspfi_dft)
ZT_TWIN(rdft, dspi_rdft, dspfi_rdft)
ZT_TWIN(irdft, dspi_irdft, dspfi_irdft)
ZT_TWIN(orecon, dspi_orecon, dspfi_orecon)
ZT_TWIN(recon, dspi_recon, dspfi_recon)
ZT_TWIN(dct, dspi_dct, dspfi_dct)
ZT_TWIN(hilbert, dspi_hilbert, dspfi_hilbert)
ZT_TWIN(analytic, dspi_analytic, dspfi_analytic)
}  // namespace api
