// Vector files: the binary form, the ASCII form and the one-line summary, on
// standard-I/O streams. A stream may hold several vectors one after another,
// in any mix of forms and precisions; the reader returns one vector per call.
#pragma once

#include <cstdio>

#include "core/vector.hpp"

namespace zf {

// Magics of the binary form as they read in the writer's byte order. The
// current one is followed by a scalar-size word; the two older ones fix the
// scalar size (8 and 4 bytes). Byte-reversed, each marks a file of the other
// byte order.
constexpr unsigned kMagicSized = 0xEB0330BEu;
constexpr unsigned kMagicDouble = 0xEB0110BEu;
constexpr unsigned kMagicFloat = 0xEB0220BEu;

// Flags of fwrite2: the low byte is the form, the two bits select the parts.
constexpr int kFormBinary = 0;
constexpr int kFormAscii = 1;
constexpr int kFormSummary = 2;
constexpr int kFileNoHeader = 0x100;
constexpr int kFileHeaderOnly = 0x200;

// Opens a vector file; "-" is standard input (mode "r...") or standard output
// (mode "w..."), switched to binary mode when the mode asks for it.
std::FILE* open_file(const char* name, const char* mode) noexcept;
// Closes a stream opened by open_file; standard input and output stay open (0).
int close_file(std::FILE* f) noexcept;

// Writes v in the form and parts chosen by flags. 0, or -1 on a bad record,
// an unknown form or a short write.
template <class T> int fwrite2(const Vec<T>* v, std::FILE* f, int flags) noexcept;
template <class T> int fwrite(const Vec<T>* v, std::FILE* f) noexcept;
template <class T> int fwrite_ascii(const Vec<T>* v, std::FILE* f) noexcept;
// Reads the next vector of the stream into v: 1 when a vector was read, 0 at a
// clean end of stream, -1 on a malformed or short file (v keeps what was read).
template <class T> int fread(Vec<T>* v, std::FILE* f) noexcept;

}  // namespace zf
