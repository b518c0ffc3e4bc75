#include "core/files.hpp"

#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <type_traits>

#ifdef _WIN32
#include <fcntl.h>
#include <io.h>
#endif

namespace zf {

namespace {

// Samples whose storage stays below this many bytes are allocated as the
// header announces them. Beyond it the announced count is first checked
// against what the stream still holds, or, when the stream cannot tell (a
// pipe), storage grows as the samples arrive, so that a short file with an
// absurd count never makes the reader allocate more than the file holds.
constexpr std::int64_t kTrustedBytes = 1 << 20;

// Longest number token of the ASCII form (a %.16g number needs 23 characters).
constexpr int kTokenMax = 128;
// Characters of a comment line that are examined; the rest is skipped.
constexpr int kCommentMax = 256;
// The ASCII form grows its storage in steps of this many samples.
constexpr std::int64_t kAsciiStep = 1024;
// Samples shown by the summary form.
constexpr int kSummarySamples = 32;

const char kAsciiBanner[] = "#DSP ASCII data from zifaif package";
const char kPointsKey[] = "#DSP points = ";
const char kComplexKey[] = "#DSP complex = ";
const char kTypeKey[] = "#DSP type = ";
const char kDeltaKey[] = "#DSP delta = ";

std::uint32_t bswap(std::uint32_t x) noexcept {
    return (x >> 24) | ((x >> 8) & 0xFF00u) | ((x << 8) & 0xFF0000u) | (x << 24);
}
std::uint64_t bswap(std::uint64_t x) noexcept {
    return (static_cast<std::uint64_t>(bswap(static_cast<std::uint32_t>(x))) << 32) |
           bswap(static_cast<std::uint32_t>(x >> 32));
}

// Reverses the bytes of n scalars in memory (never through a floating-point
// register, which could change a reversed pattern that reads as a NaN).
template <class Real> void swap_in_place(Real* d, std::size_t n) noexcept {
    using Bits = std::conditional_t<sizeof(Real) == 8, std::uint64_t, std::uint32_t>;
    static_assert(sizeof(Bits) == sizeof(Real), "4- or 8-byte scalars");
    for (std::size_t i = 0; i < n; ++i) {
        Bits bits;
        std::memcpy(&bits, d + i, sizeof bits);
        bits = bswap(bits);
        std::memcpy(d + i, &bits, sizeof bits);
    }
}

// ---------------------------------------------------------------- writing

template <class T> bool put(std::FILE* f, const T& x) noexcept {
    return std::fwrite(&x, sizeof x, 1, f) == 1;
}

template <class T> int write_binary(const Vec<T>& v, std::FILE* f, bool head, bool body) noexcept {
    if (head) {
        const std::uint32_t magic = kMagicSized;
        const std::int32_t size_word = Traits<T>::file_size_word;
        const std::int32_t points = v.points;
        const std::int32_t complex = v.complex ? 1 : 0;
        const T delta = v.delta;
        if (!put(f, magic) || !put(f, size_word) || !put(f, points) || !put(f, complex) || !put(f, delta))
            return -1;
    }
    if (body) {
        const std::size_t n = static_cast<std::size_t>(need<T>(v));
        if (n > 0 && std::fwrite(v.data, sizeof(T), n, f) != n) return -1;
    }
    return 0;
}

template <class T> int write_ascii(const Vec<T>& v, std::FILE* f, bool head, bool body) noexcept {
    // The conversions are built for the precision: %.16g for double, %.7g for float.
    const int digits = Traits<T>::ascii_digits;
    char value_fmt[32], pair_fmt[48], delta_fmt[32];
    std::snprintf(value_fmt, sizeof value_fmt, "%%.%d%sg\n", digits, "");
    std::snprintf(pair_fmt, sizeof pair_fmt, "%%.%d%sg %%.%d%sg\n", digits, "", digits, "");
    std::snprintf(delta_fmt, sizeof delta_fmt, "%%s%%.%d%sg\n", digits, "");
    if (head) {
        if (std::fprintf(f, "%s\n", kAsciiBanner) < 0) return -1;
        if (std::fprintf(f, "%s%ld\n", kPointsKey, static_cast<long>(v.points)) < 0) return -1;
        if (std::fprintf(f, "%s%d\n", kComplexKey, v.complex ? 1 : 0) < 0) return -1;
        if (std::fprintf(f, "%s%lu\n", kTypeKey, static_cast<unsigned long>(sizeof(T))) < 0) return -1;
        if (std::fprintf(f, delta_fmt, kDeltaKey, static_cast<double>(v.delta)) < 0) return -1;
    }
    if (body) {
        const T* d = v.data;
        if (v.complex) {
            for (int k = 0; k < v.points; ++k)
                if (std::fprintf(f, pair_fmt, static_cast<double>(d[2 * k]), static_cast<double>(d[2 * k + 1])) < 0)
                    return -1;
        } else {
            for (int k = 0; k < v.points; ++k)
                if (std::fprintf(f, value_fmt, static_cast<double>(d[k])) < 0) return -1;
        }
    }
    return 0;
}

// One number of the summary: four significant digits for small and huge
// magnitudes, every integer digit from 9999 up to 999999999.
int put_summary_number(std::FILE* f, double x) noexcept {
    const double m = x < 0 ? -x : x;
    const bool whole = m >= 9999.0 && m <= 999999999.0;
    return std::fprintf(f, whole ? "%.0f" : "%.4g", x) < 0 ? -1 : 0;
}

template <class T> int write_summary(const Vec<T>& v, std::FILE* f, bool head, bool body) noexcept {
    if (head) {
        if (std::fputs("[", f) < 0 || put_summary_number(f, v.points) != 0 || std::fputs("/", f) < 0 ||
            put_summary_number(f, v.delta) != 0 || std::fputs("]", f) < 0)
            return -1;
    }
    if (body) {
        const int shown = v.points < kSummarySamples ? v.points : kSummarySamples;
        const T* d = v.data;
        for (int k = 0; k < shown; ++k) {
            if ((head || k > 0) && std::fputs(" ", f) < 0) return -1;
            if (v.complex) {
                if (put_summary_number(f, d[2 * k]) != 0 || std::fputs(",", f) < 0 ||
                    put_summary_number(f, d[2 * k + 1]) != 0)
                    return -1;
            } else if (put_summary_number(f, d[k]) != 0) {
                return -1;
            }
        }
        if (v.points > kSummarySamples && std::fputs(" ...", f) < 0) return -1;
    }
    return std::fputs("\n", f) < 0 ? -1 : 0;
}

// ---------------------------------------------------------------- binary reading

// Bytes the stream holds after the current position, or -1 when it cannot
// tell (a pipe, a terminal, a file too large for ftell).
long long bytes_left(std::FILE* f) noexcept {
    const long pos = std::ftell(f);
    if (pos < 0) return -1;
    if (std::fseek(f, 0, SEEK_END) != 0) return -1;
    const long end = std::ftell(f);
    if (std::fseek(f, pos, SEEK_SET) != 0) return -1;
    return end >= pos ? static_cast<long long>(end) - pos : -1;
}

// Reads up to n scalars stored as Stored (the other precision) into d,
// converting them block by block. Returns how many were read whole.
template <class Stored, class T>
std::int64_t read_converted(std::FILE* f, T* d, std::int64_t n, bool swap) noexcept {
    Stored buf[32768 / sizeof(Stored)];
    const std::int64_t per = static_cast<std::int64_t>(sizeof buf / sizeof buf[0]);
    std::int64_t done = 0;
    while (done < n) {
        const std::int64_t want = n - done < per ? n - done : per;
        const std::size_t got = std::fread(buf, sizeof(Stored), static_cast<std::size_t>(want), f);
        if (swap) swap_in_place(buf, got);
        T* out = d + done;
        for (std::size_t k = 0; k < got; ++k) out[k] = static_cast<T>(buf[k]);
        done += static_cast<std::int64_t>(got);
        if (static_cast<std::int64_t>(got) < want) break;
    }
    return done;
}

// Reads n stored scalars of `size` bytes into d, converting them to T.
// Returns how many scalars were read whole.
template <class T>
std::int64_t read_scalars(std::FILE* f, T* d, std::int64_t n, int size, bool swap) noexcept {
    if (n <= 0) return 0;
    if (size != static_cast<int>(sizeof(T)))
        return size == 8 ? read_converted<double, T>(f, d, n, swap) : read_converted<float, T>(f, d, n, swap);
    const std::size_t got = std::fread(d, sizeof(T), static_cast<std::size_t>(n), f);
    if (swap) swap_in_place(d, got);
    return static_cast<std::int64_t>(got);
}

// Reads `points` samples into v, which takes the shape (points, complex).
// On a short stream v keeps the whole samples that were read and -1 is returned.
template <class T>
int read_samples(Vec<T>& v, std::FILE* f, int points, int complex, int size, bool swap) noexcept {
    const int w = complex ? 2 : 1;
    const std::int64_t sample_bytes = static_cast<std::int64_t>(size) * w;
    std::int64_t want = points;
    bool known = want * sample_bytes <= kTrustedBytes;
    if (!known) {
        const long long left = bytes_left(f);
        if (left >= 0) {
            if (left / sample_bytes < want) want = left / sample_bytes;
            known = true;
        }
    }
    v.complex = complex;
    if (known) {
        v.points = static_cast<int>(want);
        if (zf::alloc<T>(&v) != 0) {
            v.points = 0;
            return -1;
        }
        const std::int64_t got = read_scalars<T>(f, v.data, want * w, size, swap);
        v.points = static_cast<int>(got / w);
        return v.points == points ? 0 : -1;
    }
    // The stream cannot tell its length: grow geometrically as samples arrive.
    std::int64_t have = 0;
    std::int64_t step = kTrustedBytes / sample_bytes;
    v.points = 0;
    while (have < points) {
        const std::int64_t next = points - have < step ? points : have + step;
        v.points = static_cast<int>(next);
        if (zf::realloc<T>(&v, static_cast<int>(have), complex) != 0) {
            v.points = 0;
            return -1;
        }
        const std::int64_t got = read_scalars<T>(f, v.data + have * w, (next - have) * w, size, swap);
        if (got < (next - have) * w) {
            v.points = static_cast<int>(have + got / w);
            return -1;
        }
        have = next;
        step = have;
    }
    return 0;
}

bool read_word(std::FILE* f, std::uint32_t& w, bool swap) noexcept {
    if (std::fread(&w, 4, 1, f) != 1) return false;
    if (swap) w = bswap(w);
    return true;
}

template <class T> int read_binary(Vec<T>& v, std::FILE* f) noexcept {
    std::uint32_t magic;
    if (!read_word(f, magic, false)) return -1;
    bool swap = false, sized = false;
    int size = 0;
    if (magic == kMagicSized) sized = true;
    else if (magic == bswap(kMagicSized)) sized = swap = true;
    else if (magic == kMagicDouble) size = 8;
    else if (magic == bswap(kMagicDouble)) size = 8, swap = true;
    else if (magic == kMagicFloat) size = 4;
    else if (magic == bswap(kMagicFloat)) size = 4, swap = true;
    else return -1;
    if (sized) {
        std::uint32_t word;
        if (!read_word(f, word, swap)) return -1;
        size = static_cast<int>(word & 0xFF);
        if (size != 4 && size != 8) return -1;
    }
    std::uint32_t points_word, complex_word;
    T delta;
    if (!read_word(f, points_word, swap) || !read_word(f, complex_word, swap)) return -1;
    if (read_scalars<T>(f, &delta, 1, size, swap) != 1) return -1;
    std::int32_t points;
    std::memcpy(&points, &points_word, 4);
    if (points < 0) points = 0;
    v.delta = delta;
    return read_samples<T>(v, f, points, complex_word != 0 ? 1 : 0, size, swap) == 0 ? 1 : -1;
}

// ---------------------------------------------------------------- ASCII reading

bool is_digit(int c) noexcept { return c >= '0' && c <= '9'; }
bool is_space(int c) noexcept { return c == ' ' || c == '\t' || c == '\n' || c == '\r' || c == '\v' || c == '\f'; }
bool is_letter(int c) noexcept { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z'); }
int hex_digit(int c) noexcept {
    if (is_digit(c)) return c - '0';
    if (c >= 'a' && c <= 'f') return c - 'a' + 10;
    if (c >= 'A' && c <= 'F') return c - 'A' + 10;
    return -1;
}

void parse(const char* s, char** end, double& x) noexcept { x = std::strtod(s, end); }
void parse(const char* s, char** end, float& x) noexcept { x = std::strtof(s, end); }

// After a number one separator (white space, ',' or ';') is consumed; any
// other character is left for the next token.
void end_number(std::FILE* f, int c) noexcept {
    if (c != EOF && !is_space(c) && c != ',' && c != ';') std::ungetc(c, f);
}

// Reads one number whose first character c has been taken from the stream:
// a decimal number, inf or nan, or 0 directly followed by 'x' and hexadecimal
// digits (an integer, negated after a leading '-'). Returns false when the
// characters do not form a number.
template <class T> bool read_number(std::FILE* f, int c, T& x) noexcept {
    char tok[kTokenMax + 1];
    int n = 0;
    bool negative = false;
    auto keep = [&](int ch) {
        if (n >= kTokenMax) return false;
        tok[n++] = static_cast<char>(ch);
        return true;
    };
    if (c == '+' || c == '-') {
        negative = c == '-';
        keep(c);
        c = std::getc(f);
    }
    if (is_letter(c)) {  // inf, infinity, nan
        for (; is_letter(c); c = std::getc(f))
            if (!keep(c)) return false;
    } else {
        int digits = 0;
        for (; is_digit(c); c = std::getc(f), ++digits)
            if (!keep(c)) return false;
        if (digits == 1 && tok[n - 1] == '0' && (c == 'x' || c == 'X')) {
            double value = 0;
            for (c = std::getc(f); hex_digit(c) >= 0; c = std::getc(f)) value = value * 16 + hex_digit(c);
            x = static_cast<T>(negative ? -value : value);
            end_number(f, c);
            return true;
        }
        if (c == '.') {
            if (!keep(c)) return false;
            for (c = std::getc(f); is_digit(c); c = std::getc(f), ++digits)
                if (!keep(c)) return false;
        }
        if (digits == 0) return false;
        if (c == 'e' || c == 'E') {
            if (!keep(c)) return false;
            c = std::getc(f);
            if (c == '+' || c == '-') {
                if (!keep(c)) return false;
                c = std::getc(f);
            }
            for (; is_digit(c); c = std::getc(f))
                if (!keep(c)) return false;
        }
    }
    tok[n] = '\0';
    char* end = nullptr;
    parse(tok, &end, x);
    if (n == 0 || end != tok + n) return false;  // "1e", "-", or a word that is not inf or nan
    end_number(f, c);
    return true;
}

// The patterns of the recognised header lines, built for the precision.
template <class T> struct HeaderPatterns {
    char points[48], complex[48], delta[48];
    HeaderPatterns() noexcept {
        char number[16];
        std::snprintf(number, sizeof number, "%%%sg", Traits<T>::ascii_scan_length);
        std::snprintf(points, sizeof points, "%s%%ld", kPointsKey);
        std::snprintf(complex, sizeof complex, "%s%%d", kComplexKey);
        std::snprintf(delta, sizeof delta, "%s%s", kDeltaKey, number);
    }
};

// Storage of the ASCII reader: values are collected as a run of scalars in a
// record shaped (capacity, real) and given their final shape at the end.
template <class T> bool grow_to_hold(Vec<T>& v, std::int64_t& capacity, std::int64_t values, int complex) noexcept {
    if (values < capacity) return true;
    const std::int64_t step = kAsciiStep * (complex ? 2 : 1);
    std::int64_t next = capacity + capacity / 2;
    next = (next / step + 1) * step;
    if (next > INT32_MAX) next = INT32_MAX;
    if (next <= values) return false;
    v.complex = 0;
    v.points = static_cast<int>(next);
    if (zf::realloc<T>(&v, static_cast<int>(capacity), 0) != 0) return false;
    capacity = next;
    return true;
}

template <class T> int read_ascii(Vec<T>& v, std::FILE* f) noexcept {
    const HeaderPatterns<T> patterns;
    v.complex = 0;
    v.delta = T(1);
    v.points = 0;
    int complex = 0;
    long expected = -1;  // the count of the header, -1 while none was given
    bool header = false;
    std::int64_t values = 0;
    std::int64_t capacity = v.alloc > 0 ? v.alloc : 0;
    auto target = [&] { return static_cast<std::int64_t>(expected) * (complex ? 2 : 1); };
    // Gives the record its shape for the values read so far.
    auto settle = [&](int status) {
        v.complex = complex;
        v.points = v.data ? static_cast<int>(values / (complex ? 2 : 1)) : 0;
        return status;
    };
    for (;;) {
        int c = std::getc(f);
        while (is_space(c)) c = std::getc(f);
        if (c == EOF) break;
        if (c == '#') {
            char line[kCommentMax + 1];
            int n = 0;
            line[n++] = '#';
            while (n < kCommentMax && (c = std::getc(f)) != EOF && c != '\n') line[n++] = static_cast<char>(c);
            if (n == kCommentMax)
                while (c != EOF && c != '\n') c = std::getc(f);
            line[n] = '\0';
            if (std::strncmp(line, "#DSP", 4) != 0) continue;
            header = true;
            long count;
            int flag;
            T delta;
            if (std::sscanf(line, patterns.points, &count) == 1) {
                // Counts are 32-bit: a larger one can never be met (and would
                // overflow the count of scalars), so it stands at the largest.
                expected = count < 0 ? 0 : (count > 2147483647L ? 2147483647L : count);
            } else if (std::sscanf(line, patterns.complex, &flag) == 1) {
                complex = flag != 0;
            } else if (std::sscanf(line, patterns.delta, &delta) == 1) {
                v.delta = delta;
                // The last header line: a vector announced empty ends here.
                if (expected >= 0 && values >= target()) break;
            }
            continue;
        }
        T x;
        if (!read_number<T>(f, c, x)) return settle(-1);
        if (!grow_to_hold<T>(v, capacity, values, complex)) {
            values = 0;
            return settle(-1);
        }
        v.data[values++] = x;
        if (expected >= 0 && values >= target()) break;
    }
    if (values == 0 && !header) return settle(0);  // only white space was left
    if (complex && values % 2 != 0) {
        if (!grow_to_hold<T>(v, capacity, values, complex)) {
            values = 0;
            return settle(-1);
        }
        v.data[values++] = T(0);
    }
    settle(0);
    return expected >= 0 && v.points != expected ? -1 : 1;
}

}  // namespace

// ---------------------------------------------------------------- streams

std::FILE* open_file(const char* name, const char* mode) noexcept {
    if (!name || !mode) return nullptr;
    if (std::strcmp(name, "-") != 0) return std::fopen(name, mode);
    std::FILE* f = mode[0] == 'r' ? stdin : mode[0] == 'w' ? stdout : nullptr;
    if (!f) return nullptr;
    const bool binary = mode[1] == 'b' || (mode[1] != '\0' && mode[2] == 'b');
#ifdef _WIN32
    if (binary) _setmode(_fileno(f), _O_BINARY);
#else
    (void)binary;  // streams have no text mode here
#endif
    return f;
}

int close_file(std::FILE* f) noexcept {
    if (!f) return -1;
    if (f == stdin || f == stdout) return 0;
    return std::fclose(f);
}

// ---------------------------------------------------------------- vectors

template <class T> int fwrite2(const Vec<T>* v, std::FILE* f, int flags) noexcept {
    if (!readable<T>(v) || !f) return -1;
    const int form = flags & 0xFF;
    const bool head = !(flags & kFileNoHeader);
    const bool body = !(flags & kFileHeaderOnly);
    if (form != kFormBinary && form != kFormAscii && form != kFormSummary) return -1;
    if (!head && !body) return 0;
    if (form == kFormBinary) return write_binary<T>(*v, f, head, body);
    if (form == kFormAscii) return write_ascii<T>(*v, f, head, body);
    return write_summary<T>(*v, f, head, body);
}

template <class T> int fwrite(const Vec<T>* v, std::FILE* f) noexcept {
    return fwrite2<T>(v, f, kFormBinary);
}

template <class T> int fwrite_ascii(const Vec<T>* v, std::FILE* f) noexcept {
    return fwrite2<T>(v, f, kFormAscii);
}

template <class T> int fread(Vec<T>* v, std::FILE* f) noexcept {
    if (!v || !f) return -1;
    v->points = 0;
    const int c = std::getc(f);
    if (c == EOF) return 0;
    std::ungetc(c, f);
    if (c == 0xBE || c == 0xEB) return read_binary<T>(*v, f);
    return read_ascii<T>(*v, f);
}

template int fwrite2<double>(const Vec<double>*, std::FILE*, int) noexcept;
template int fwrite<double>(const Vec<double>*, std::FILE*) noexcept;
template int fwrite_ascii<double>(const Vec<double>*, std::FILE*) noexcept;
template int fread<double>(Vec<double>*, std::FILE*) noexcept;

template int fwrite2<float>(const Vec<float>*, std::FILE*, int) noexcept;
template int fwrite<float>(const Vec<float>*, std::FILE*) noexcept;
template int fwrite_ascii<float>(const Vec<float>*, std::FILE*) noexcept;
template int fread<float>(Vec<float>*, std::FILE*) noexcept;

}  // namespace zf
