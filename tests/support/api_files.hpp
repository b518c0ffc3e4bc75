// Test-side overloads of the vector-file entry points, picked by record type.
#pragma once
#include "support/api_core.hpp"

namespace api {
ZT_TWIN(fread, dspf_fread, dspff_fread)
ZT_TWIN(fwrite, dspf_fwrite, dspff_fwrite)
ZT_TWIN(fwrite2, dspf_fwrite2, dspff_fwrite2)
ZT_TWIN(fwrite_ascii, dspf_fwrite_ascii, dspff_fwrite_ascii)
}  // namespace api
