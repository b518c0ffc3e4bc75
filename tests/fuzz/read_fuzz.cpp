// The vector-file reader of both precisions on arbitrary bytes.
#include "fuzz_io.hpp"

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
    fz::read_all<double>(data, size, 16);
    fz::read_all<float>(data, size, 16);
    return 0;
}
