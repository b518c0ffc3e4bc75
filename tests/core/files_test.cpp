#include "support/vectors.hpp"

#include <string>

#ifndef _WIN32
#include <unistd.h>
#endif

#include "support/api_files.hpp"
#include "support/records.hpp"

using namespace zt;

namespace {

// A scratch stream holding the given bytes, positioned at its start.
struct Scratch {
    FILE* f = std::tmpfile();
    explicit Scratch(const std::string& bytes = "") { std::fwrite(bytes.data(), 1, bytes.size(), f), std::rewind(f); }
    ~Scratch() { std::fclose(f); }
    // Everything written so far; the stream is left at its start for reading.
    std::string contents() {
        std::fflush(f), std::rewind(f);
        std::string s;
        for (int c; (c = std::getc(f)) != EOF;) s += static_cast<char>(c);
        std::rewind(f);
        return s;
    }
};

// Reads the first vector of these bytes into v: the reader's status.
template <class T> int read_bytes(const std::string& bytes, Owned<T>& v) {
    Scratch h(bytes);
    return api::fread(v.get(), h.f);
}

// What fwrite2 writes for these flags; the write must succeed.
template <class T> std::string written(Owned<T>& v, int flags) {
    Scratch s;
    EXPECT_EQ(api::fwrite2(v.get(), s.f, flags), 0);
    return s.contents();
}

template <class T> using Other = std::conditional_t<std::is_same_v<T, float>, double, float>;
template <class T, class U> std::vector<T> as(const std::vector<U>& x) { return std::vector<T>(x.begin(), x.end()); }

// A binary file assembled byte by byte, in either byte order: the header words
// (magic, the size word of the current header, points, complex), then delta
// and the samples as scalars of `size` bytes.
std::string binary(const std::vector<std::uint32_t>& words, int size, const std::vector<double>& scalars, bool big = false) {
    std::string s;
    auto raw = [&](std::uint64_t w, int n) {
        for (int i = 0; i < n; ++i) s += static_cast<char>((w >> (8 * (big ? n - 1 - i : i))) & 0xFF);
    };
    for (std::uint32_t w : words) raw(w, 4);
    for (double x : scalars) {
        const float f = static_cast<float>(x);
        std::uint64_t b8;
        std::uint32_t b4;
        std::memcpy(&b8, &x, 8), std::memcpy(&b4, &f, 4);
        raw(size == 8 ? b8 : b4, size);
    }
    return s;
}
// The current header for scalars of this size.
std::string sized(int size, std::int32_t points, int complex, const std::vector<double>& delta_and_samples, bool big = false) {
    return binary({0xEB0330BE, size == 8 ? 1032u : 1028u, std::uint32_t(points), std::uint32_t(complex)}, size, delta_and_samples, big);
}

}  // namespace

template <class T> class FilesTest : public ::testing::Test {};
TYPED_TEST_SUITE(FilesTest, Precisions);

// Random vectors of both shapes, written by either precision in binary and
// ASCII one after another into one stream, come back with their shape, spacing
// and samples: exactly in binary (rounded once when a double file is read into
// a float record), within the printed digits in ASCII.
TYPED_TEST(FilesTest, RoundTripsThroughEveryFormAndPrecisionInOneStream) {
    using T = TypeParam;
    using U = Other<T>;
    const double digits_t = sizeof(T) == 8 ? 1e-15 : 1e-6, digits_u = sizeof(U) == 8 ? 1e-15 : 1e-6;
    unsigned seed = 1;
    for (int complex : {0, 1})
        for (int n : {0, 1, 17, 3000}) {
            SCOPED_TRACE(::testing::Message() << "complex " << complex << " n " << n);
            const auto raw = random_scalars<double>(static_cast<std::size_t>(n) * (complex + 1), seed++, -1e3, 1e3);
            Owned<T> same(as<T>(raw), complex, T(0.125)), got[4];
            Owned<U> other(as<U>(raw), complex, U(0.125));
            Scratch s;
            for (int flags : {0, 1}) {   // binary, ASCII, ASCII, binary
                ASSERT_EQ(api::fwrite2(same.get(), s.f, flags), 0);
                ASSERT_EQ(api::fwrite2(other.get(), s.f, !flags), 0);
            }
            s.contents();
            got[0].v.type = 77;   // never stored
            for (Owned<T>& g : got) ASSERT_EQ(api::fread(g.get(), s.f), 1);
            EXPECT_EQ(std::tuple(got[0].v.type, api::fread(Owned<T>().get(), s.f)), std::tuple(77, 0));
            for (Owned<T>& g : got) EXPECT_EQ(shape(g.v), std::tuple(n, complex, T(0.125)));
            EXPECT_EQ(got[0].scalars(), same.scalars());
            EXPECT_EQ(got[3].scalars(), as<T>(other.scalars()));  // float -> double is exact, double -> float rounds once
            EXPECT_TRUE(near_all(got[1].scalars(), other.scalars(), digits_u + tol<T>()));
            EXPECT_TRUE(near_all(got[2].scalars(), same.scalars(), digits_t + tol<T>()));
        }
}

// Files of either byte order, with the current and the two older headers, are
// read with every field and sample in place; the writer's layout is the
// current header; unknown magics and size words are refused, a negative count
// reads as empty.
TYPED_TEST(FilesTest, BinaryLayoutByteOrdersAndHeaders) {
    using T = TypeParam;
    const std::vector<double> file = {0.1, 1.5, -2.25, 1024.125, -0.0078125, 3e-3, 7.0};
    for (int size : {8, 4})
        for (bool older : {false, true})
            for (bool big : {false, true})
                for (int complex : {0, 1}) {
                    SCOPED_TRACE(::testing::Message() << "size " << size << " older " << older << " big " << big << " complex " << complex);
                    const std::uint32_t n = complex ? 3 : 6, magic = size == 8 ? 0xEB0110BE : 0xEB0220BE;
                    Owned<T> v;
                    ASSERT_EQ(read_bytes(older ? binary({magic, n, std::uint32_t(complex ? 5 : 0)}, size, file, big) : sized(size, n, complex ? 5 : 0, file, big), v), 1);
                    std::vector<T> want;   // values rounded to the file's precision, then to the record's
                    for (double x : file) want.push_back(size == 8 ? static_cast<T>(x) : static_cast<T>(static_cast<float>(x)));
                    EXPECT_EQ(std::tuple(shape(v.v), v.scalars()), std::tuple(std::tuple(int(n), complex, want[0]), std::vector<T>(want.begin() + 1, want.end())));
                }
    Owned<T> v(std::vector<T>{T(1.5), T(-2.25)}, false, T(0.5));
    Scratch s;
    ASSERT_EQ(api::fwrite(v.get(), s.f), 0);
    EXPECT_EQ(s.contents(), sized(sizeof(T), 2, 0, {0.5, 1.5, -2.25}));
    for (auto [magic, size_word] : {std::pair{0xEB0440BEu, 1032u}, {0xBE0330EBu ^ 0x100u, 1032u}, {0xBEu, 1032u}, {0xEB0330BEu, 0x0403u}})
        EXPECT_EQ(read_bytes(binary({magic, size_word, 1, 0}, 8, {1, 2}), v), -1);
    EXPECT_EQ(read_bytes(sized(8, -5, 0, {2.0}), v), 1);
    EXPECT_EQ(shape(v.v), std::tuple(0, 0, T(2)));
}

// Every proper prefix of a binary file fails; what was read whole stays. A
// header announcing billions of samples over a few bytes fails without
// allocating what it announces, on a seekable stream and on a pipe.
TYPED_TEST(FilesTest, ShortBinaryFilesFailKeepingWholeSamplesWithoutHugeAllocation) {
    using T = TypeParam;
    for (int size : {4, 8})
        for (int complex : {0, 1}) {
            const std::string full = sized(size, complex ? 5 : 10, complex, {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11});
            const std::size_t header = 16 + size, sample = size * (complex + 1);
            for (std::size_t len = 1; len < full.size(); ++len) {
                Owned<T> v;
                ASSERT_EQ(read_bytes(full.substr(0, len), v), -1) << len;
                ASSERT_EQ(v.v.points, len < header ? 0 : static_cast<int>((len - header) / sample)) << len;
                ASSERT_TRUE(zf::readable<T>(&v.v));
            }
        }
    const std::string file = sized(8, 0x7FFFFFFF, 1, {1, 1, 2, 3, 4, 5});
    Owned<T> v;
    EXPECT_EQ(read_bytes(file, v), -1);
    EXPECT_EQ(std::tuple(v.v.points, v.v.alloc <= 4, v.scalars()), std::tuple(2, true, std::vector<T>{1, 2, 3, 4}));
#ifndef _WIN32
    int fds[2];
    ASSERT_EQ(pipe(fds), 0);
    ASSERT_EQ(write(fds[1], file.data(), file.size()), static_cast<ssize_t>(file.size()));
    close(fds[1]);
    FILE* p = fdopen(fds[0], "rb");
    Owned<T> w;
    EXPECT_EQ(api::fread(w.get(), p), -1);
    EXPECT_EQ(w.v.points, 2);
    EXPECT_LE(static_cast<double>(w.v.alloc) * sizeof(T), 2.0 * (1 << 20));
    std::fclose(p);
#endif
}

// The ASCII form: a banner, the header lines and samples in sixteen (seven)
// digits; the summary: [points/delta] and at most thirty-two samples in six
// digits. The flags select the form and the parts; unknown ones write nothing.
TYPED_TEST(FilesTest, WrittenFormsAndParts) {
    using T = TypeParam;
    const bool dbl = sizeof(T) == 8;
    const std::string banner = "#DSP ASCII data from zifaif package\n#DSP points = 2\n#DSP complex = ", type = dbl ? "#DSP type = 8\n" : "#DSP type = 4\n";
    Owned<T> real(std::vector<T>{T(1.5), T(1) / T(3)}, false, T(0.25));
    Scratch s;
    ASSERT_EQ(api::fwrite_ascii(real.get(), s.f), 0);
    EXPECT_EQ(s.contents(), banner + "0\n" + type + "#DSP delta = 0.25\n1.5\n" + (dbl ? "0.3333333333333333\n" : "0.3333333\n"));
    Owned<T> cplx(std::vector<T>{T(-2), T(1e-20), T(3), T(4)}, true, T(1) / T(3));
    // samples only: the double nearest 1e-20 lies below it, which sixteen digits show
    EXPECT_EQ(written(cplx, 0x101), dbl ? "-2 9.999999999999999e-21\n3 4\n" : "-2 1e-20\n3 4\n");
    EXPECT_EQ(written(cplx, 0x201), banner + "1\n" + type + (dbl ? "#DSP delta = 0.3333333333333333\n" : "#DSP delta = 0.3333333\n"));
    Owned<T> v(std::vector<T>{T(1.5), T(-2), T(9999), T(-9998.75), T(12345.75), T(-99999.25), T(999999936),
                              T(1000000064), T(1e10), T(0.0001234), T(-1e-30)}, false, T(0.001));
    EXPECT_EQ(written(v, 2), "[11/0.001] 1.5 -2 9999 -9999 12346 -99999 999999936 1e+09 1e+10 0.0001234 -1e-30\n");
    std::string pairs;   // thirty-two samples, then an ellipsis
    std::vector<T> ramp;
    for (int k = 0; k < 40; ++k) ramp.insert(ramp.end(), {T(k), T(-k)});
    for (int k = 0; k < 32; ++k) pairs += " " + std::to_string(k) + "," + std::to_string(-k);
    Owned<T> c32(std::vector<T>(ramp.begin(), ramp.begin() + 64), true), c40(ramp, true);
    EXPECT_EQ(std::tuple(written(c32, 2), written(c40, 2)), std::tuple("[32/1]" + pairs + "\n", "[40/1]" + pairs + " ...\n"));
    const std::size_t header = 16 + sizeof(T);
    const std::string full = written(real, 0);
    EXPECT_EQ(std::tuple(written(real, 0x200), written(real, 0x100)), std::tuple(full.substr(0, header), full.substr(header)));
    EXPECT_EQ(std::tuple(written(real, 0x202), written(real, 0x102)), std::tuple("[2/0.25]\n", "1.5 0.3333\n"));
    for (int form : {0, 1, 2}) EXPECT_EQ(written(real, form | 0x300), "");
    Scratch bad;
    for (int flags : {3, 0xFF, 0x303, 0x1FF}) EXPECT_EQ(api::fwrite2(real.get(), bad.f, flags), -1);
    EXPECT_EQ(bad.contents(), "");
}

// Missing streams and records and unreadable records are refused, writing
// nothing. Failing allocations fail the read, leave an empty record and leak
// nothing. A record wrapping a caller's array is given storage of its own by a read.
TYPED_TEST(FilesTest, RefusalsAndReadsThroughTheHooks) {
    using T = TypeParam;
    using H = CountingHooks<T>;
    static Scratch s;  // reachable from the lambdas
    Owned<T> one(std::vector<T>{T(1)});
    EXPECT_EQ(api::fwrite(one.get(), nullptr) + api::fread(one.get(), nullptr) + api::fread(static_cast<Vec<T>*>(nullptr), s.f), -3);
    expect_refuses_unreadable<T>([](Vec<T>* r) { return api::fwrite2(r, s.f, 2); });
    EXPECT_EQ(s.contents(), "");
    for (const std::string& file : {sized(8, 2, 0, {1, 1, 2}), std::string("1 2 3\n")}) {
        typename H::Installed hooks(1);
        {
            Owned<T> v;
            EXPECT_EQ(read_bytes(file, v), -1);
            EXPECT_EQ(std::tuple(v.v.points, v.v.data), std::tuple(0, nullptr));
        }
        EXPECT_EQ(H::live, 0);
    }
    T mine[2] = {T(9), T(9)};
    Owned<T> v;
    v.v.data = mine, v.v.points = 2;
    EXPECT_EQ(read_bytes("1 2 3 4\n", v), 1);
    EXPECT_EQ(std::tuple(mine[0], v.scalars()), std::tuple(T(9), std::vector<T>{1, 2, 3, 4}));
}

// The ASCII form read in both precisions: separators, headers, counts that
// disagree with the samples, hexadecimal and infinities, long lines, refusals.
TYPED_TEST(FilesTest, AsciiReads) {
    using T = TypeParam;
    struct Case { std::string text; int result, points, complex; double delta; std::vector<double> scalars; };
    const Case cases[] = {
        {"1 2\n3,4;5\r\n-6e1\n", 1, 6, 0, 1, {1, 2, 3, 4, 5, -60}},
        {"#DSP points = 5\n1\n2\n3\n", -1, 3, 0, 1, {1, 2, 3}},               // fewer samples than counted
        {"#DSP complex = 1\n#DSP delta = 0.5\n1 2\n3\n", 1, 2, 1, 0.5, {1, 2, 3, 0}},  // an odd count of parts
        {"#DSP points = 2\n#DSP complex = 1\n1 2\n3\n", 1, 2, 1, 1, {1, 2, 3, 0}},
        {"0x1F -0x10 0X0a +0xff 0x\n", 1, 5, 0, 1, {31, -16, 10, 255, 0}},
        {"inf -Infinity\n", 1, 2, 0, 1, {HUGE_VAL, -HUGE_VAL}},
        {"#DSP points = 2\n1 2 3 4\n", 1, 2, 0, 1, {1, 2}},                    // the count stops the read
        {"# hello 1 2\n#DSP type = 8\n#DSPX\n7\n", 1, 1, 0, 1, {7}},          // other comments are ignored
        {"#DSP points = 2" + std::string(300, ' ') + "99\n3 4\n", 1, 2, 0, 1, {3, 4}},  // the rest of a long line is dropped
        {"1 2 abc 3\n", -1, 2, 0, 1, {1, 2}},  // text that does not parse whole: a word, a lone sign
        {"4 - 5\n", -1, 1, 0, 1, {4}},
        {"#DSP points = 99999999999999999999\n#DSP complex = 1\n1 2\n", -1, 1, 1, 1, {1, 2}},
        {" \n\t\n", 0, 0, 0, 1, {}},
    };
    for (const Case& c : cases) {
        Owned<T> v;
        EXPECT_EQ(read_bytes(c.text, v), c.result) << c.text;
        EXPECT_EQ(std::tuple(shape(v.v), v.scalars()), std::tuple(std::tuple(c.points, c.complex, T(c.delta)), as<T>(c.scalars))) << c.text;
    }
}

// "-" names the standard streams, which closing leaves open.
TEST(FilesStreams, DashNamesTheStandardStreamsOtherNamesOpenFiles) {
    EXPECT_EQ(std::tuple(dspf_fopen("-", "rb"), dspff_fopen("-", "r"), dspf_fopen("-", "wb"), dspff_fopen("-", "w+b")),
              std::tuple(stdin, stdin, stdout, stdout));
    EXPECT_EQ(std::tuple(dspf_fopen("-", "a"), dspf_fopen("-", ""), dspf_fopen(nullptr, "r")), std::tuple(nullptr, nullptr, nullptr));
    EXPECT_EQ(dspf_fclose(stdin) + dspff_fclose(stdout) + dspf_fclose(nullptr), -1);
    EXPECT_EQ(std::fflush(stdout), 0);  // still open
    // Any other name goes to the C library, and closing it flushes and closes it.
    const std::string path = ::testing::TempDir() + "zifaif_files_test.vec";
    FILE* f = dspf_fopen(path.c_str(), "w");
    ASSERT_NE(f, nullptr);
    std::fputs("7 8\n", f);
    EXPECT_EQ(dspf_fclose(f), 0);
    Owned<float> back;
    ASSERT_NE(f = dspff_fopen(path.c_str(), "r"), nullptr);
    EXPECT_EQ(dspff_fread(&back.v, f), 1);
    EXPECT_EQ(dspff_fclose(f), 0);
    EXPECT_EQ(back.scalars(), (std::vector<float>{7, 8}));
    std::remove(path.c_str());
}
