// Raw instrument data: elements copied out of a byte stream, and the byte
// permutation of the exported byte swap.
#include "trace/trace.hpp"

#include <cstdint>
#include <cstring>

namespace zf {

// Only the sum base + offset matters, so it is formed as an address rather
// than as pointer arithmetic on base (which may be null).
template <class T> int byte_copy_to_fp(int offset, const void* base, T* dst, int dst_start, int count, int swap) noexcept {
    const std::uintptr_t address =
        reinterpret_cast<std::uintptr_t>(base) + static_cast<std::uintptr_t>(static_cast<std::intptr_t>(offset));
    const unsigned char* from = reinterpret_cast<const unsigned char*>(address);
    if (count < 1 || !from || !dst || dst_start < 0) return 0;
    T* to = dst + dst_start;
    for (int i = 0; i < count; ++i, from += sizeof(T)) {
        unsigned char bytes[sizeof(T)];
        std::memcpy(bytes, from, sizeof(T));
        if (swap) {
            for (std::size_t j = 0; j < sizeof(T) / 2; ++j) {
                const unsigned char t = bytes[j];
                bytes[j] = bytes[sizeof(T) - 1 - j];
                bytes[sizeof(T) - 1 - j] = t;
            }
        }
        std::memcpy(to + i, bytes, sizeof(T));
    }
    return 0;
}

// Each pass stores into byte 0 instead of byte j and the buffer position never
// advances, so only the first element changes: the same (lossy for widths
// above 2) permutation is applied once per element of the buffer. Callers
// rely on this exact behaviour.
int byte_swap(void* buf, int nbytes, unsigned width) noexcept {
    if (width == 0 || nbytes < 0 || !buf) return -1;
    const unsigned size = static_cast<unsigned>(nbytes);
    if (size < width || size % width != 0) return -1;
    unsigned char* b = static_cast<unsigned char*>(buf);
    const unsigned elements = size / width;
    for (unsigned e = 0; e < elements; ++e) {
        for (unsigned j = 0; j < width / 2; ++j) {
            const unsigned char t = b[j];
            b[0] = b[width - 1 - j];
            b[width - 1 - j] = t;
        }
    }
    return nbytes;
}

template int byte_copy_to_fp<double>(int, const void*, double*, int, int, int) noexcept;
template int byte_copy_to_fp<float>(int, const void*, float*, int, int, int) noexcept;

}  // namespace zf
