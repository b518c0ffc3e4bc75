// Test-side overloads of the binary operations and of the rearrangement,
// editing and calculus functions, picked by record type.
#pragma once
#include "support/api_core.hpp"

namespace api {
// Binary operations.
ZT_TWIN(add, dspb_add, dspfb_add)
ZT_TWIN(sub, dspb_sub, dspfb_sub)
ZT_TWIN(mul, dspb_mul, dspfb_mul)
ZT_TWIN(div, dspb_div, dspfb_div)
ZT_TWIN(conj_mul, dspb_conj_mul, dspfb_conj_mul)
ZT_TWIN(avg_add, dspb_avg_add, dspfb_avg_add)
ZT_TWIN(min, dspb_min, dspfb_min)
ZT_TWIN(max, dspb_max, dspfb_max)
ZT_TWIN(inter, dspb_inter, dspfb_inter)
ZT_TWIN(ritoc, dspb_ritoc, dspfb_ritoc)
ZT_TWIN(pmul, dspb_pmul, dspfb_pmul)
ZT_TWIN(dot, dspbs_dot, dspfbs_dot)

// Rearrangement, editing and calculus.
ZT_TWIN(rev, dspi_rev, dspfi_rev)
ZT_TWIN(shift, dspi_shift, dspfi_shift)
ZT_TWIN(shuffle, dspi_shuffle, dspfi_shuffle)
ZT_TWIN(sort, dspi_sort, dspfi_sort)
ZT_TWIN(swap_halves, dspi_swap_halves, dspfi_swap_halves)
ZT_TWIN(swap_halves2, dspi_swap_halves2, dspfi_swap_halves2)
ZT_TWIN(zero, dspi_zero, dspfi_zero)
ZT_TWIN(zpad, dspi_zpad, dspfi_zpad)
ZT_TWIN(zpad2, dspi_zpad2, dspfi_zpad2)
ZT_TWIN(unzpad, dspi_unzpad, dspfi_unzpad)
ZT_TWIN(differ, dspi_differ, dspfi_differ)
ZT_TWIN(pdiffer, dspi_pdiffer, dspfi_pdiffer)
ZT_TWIN(integ, dspi_integ, dspfi_integ)
ZT_TWIN(edge, dspi_edge, dspfi_edge)
ZT_TWIN(unwrap, dspi_unwrap, dspfi_unwrap)
ZT_TWIN(unwrap_wnd, dspi_unwrap_wnd, dspfi_unwrap_wnd)
}  // namespace api
