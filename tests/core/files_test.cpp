#include "support/vectors.hpp"

#include <cstdint>
#include <string>
#include <type_traits>

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
    explicit Scratch(const std::string& bytes = "") {
        EXPECT_NE(f, nullptr);
        EXPECT_EQ(std::fwrite(bytes.data(), 1, bytes.size(), f), bytes.size());
        std::rewind(f);
    }
    ~Scratch() { if (f) std::fclose(f); }
    Scratch(const Scratch&) = delete;
    Scratch& operator=(const Scratch&) = delete;
    // Everything written so far; the stream is left at its start for reading.
    std::string contents() {
        std::fflush(f);
        std::rewind(f);
        std::string s;
        for (int c; (c = std::getc(f)) != EOF;) s += static_cast<char>(c);
        std::rewind(f);
        return s;
    }
};

// What fwrite2 writes for these flags; the write must succeed.
template <class T> std::string written(Owned<T>& v, int flags) {
    Scratch s;
    EXPECT_EQ(api::fwrite2(v.get(), s.f, flags), 0);
    return s.contents();
}

template <class T> using Other = std::conditional_t<std::is_same_v<T, float>, double, float>;
template <class T, class U> std::vector<T> as(const std::vector<U>& x) { return std::vector<T>(x.begin(), x.end()); }

// Binary files assembled byte by byte, in either byte order.
struct Bytes {
    std::string s;
    bool big = false;
    template <class W> Bytes& raw(W w) {
        for (std::size_t i = 0; i < sizeof w; ++i) s += static_cast<char>((w >> (8 * (big ? sizeof w - 1 - i : i))) & 0xFF);
        return *this;
    }
    Bytes& word(std::uint32_t w) { return raw(w); }
    Bytes& scalar(int size, double x) {
        const float f = static_cast<float>(x);
        std::uint64_t b8;
        std::uint32_t b4;
        std::memcpy(&b8, &x, 8);
        std::memcpy(&b4, &f, 4);
        return size == 8 ? raw(b8) : raw(b4);
    }
};

enum class Header { sized, legacy_double, legacy_float };

// A whole binary file: header of the given kind, then the scalars.
std::string binary_file(Header kind, bool big, int size, std::int32_t points, int complex, double delta,
                        const std::vector<double>& scalars) {
    Bytes b;
    b.big = big;
    if (kind == Header::sized) b.word(0xEB0330BE).word(size == 8 ? 1032 : 1028);
    else b.word(kind == Header::legacy_double ? 0xEB0110BE : 0xEB0220BE);
    b.word(static_cast<std::uint32_t>(points)).word(static_cast<std::uint32_t>(complex)).scalar(size, delta);
    for (double x : scalars) b.scalar(size, x);
    return b.s;
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
    const double digits_t = std::is_same_v<T, double> ? 1e-15 : 1e-6, digits_u = std::is_same_v<U, double> ? 1e-15 : 1e-6;
    unsigned seed = 1;
    for (int complex : {0, 1}) {
        for (int n : {0, 1, 17, 3000}) {
            SCOPED_TRACE(::testing::Message() << "complex " << complex << " n " << n);
            const std::vector<double> raw = random_scalars<double>(static_cast<std::size_t>(n) * (complex + 1), seed++, -1e3, 1e3);
            Owned<T> same(as<T>(raw), complex, T(0.125));
            Owned<U> other(as<U>(raw), complex, U(0.125));
            Scratch s;
            ASSERT_EQ(api::fwrite2(same.get(), s.f, 0), 0);
            ASSERT_EQ(api::fwrite2(other.get(), s.f, 1), 0);
            ASSERT_EQ(api::fwrite2(same.get(), s.f, 1), 0);
            ASSERT_EQ(api::fwrite2(other.get(), s.f, 0), 0);
            s.contents();
            Owned<T> got[4];
            got[0].v.type = 77;
            for (Owned<T>& g : got) ASSERT_EQ(api::fread(g.get(), s.f), 1);
            EXPECT_EQ(api::fread(got[0].get(), s.f), 0);
            ASSERT_EQ(api::fread(got[0].get(), s.f), 0);  // and stays at the end
            std::rewind(s.f);
            ASSERT_EQ(api::fread(got[0].get(), s.f), 1);
            EXPECT_EQ(got[0].v.type, 77);  // never stored
            for (Owned<T>& g : got) EXPECT_EQ(shape(g.v), std::tuple(n, complex, T(0.125)));
            EXPECT_EQ(got[0].scalars(), same.scalars());
            EXPECT_EQ(got[3].scalars(), as<T>(other.scalars()));  // float -> double is exact, double -> float rounds once
            EXPECT_TRUE(near_all(got[1].scalars(), other.scalars(), digits_u + tol<T>()));
            EXPECT_TRUE(near_all(got[2].scalars(), same.scalars(), digits_t + tol<T>()));
        }
    }
}

// Files of the other byte order and the two older headers, assembled byte by
// byte, read with every field and sample in place.
TYPED_TEST(FilesTest, ReadsOtherByteOrderAndOlderHeaders) {
    using T = TypeParam;
    const std::vector<double> pairs = {1.5, -2.25, 1024.125, -0.0078125, 3e-3, 7.0};
    struct Case { Header kind; int size; };
    for (Case c : {Case{Header::sized, 8}, Case{Header::sized, 4}, Case{Header::legacy_double, 8}, Case{Header::legacy_float, 4}}) {
        for (bool big : {false, true}) {
            for (int complex : {0, 1}) {
                SCOPED_TRACE(::testing::Message() << "size " << c.size << " big " << big << " complex " << complex);
                Scratch h(binary_file(c.kind, big, c.size, complex ? 3 : 6, complex ? 5 : 0, 0.1, pairs));
                Owned<T> v;
                ASSERT_EQ(api::fread(v.get(), h.f), 1);
                // values rounded to the file's precision, then to the record's
                const auto stored = [&](double x) { return c.size == 8 ? static_cast<T>(x) : static_cast<T>(static_cast<float>(x)); };
                EXPECT_EQ(shape(v.v), std::tuple(complex ? 3 : 6, complex, stored(0.1)));
                std::vector<T> want;
                for (double x : pairs) want.push_back(stored(x));
                EXPECT_EQ(v.scalars(), want);
                EXPECT_EQ(api::fread(v.get(), h.f), 0);
            }
        }
    }
}

TYPED_TEST(FilesTest, BinaryLayoutAndHeaderChecks) {
    using T = TypeParam;
    const int size = sizeof(T);
    Owned<T> v(std::vector<T>{T(1.5), T(-2.25)}, false, T(0.5));
    Scratch s;
    ASSERT_EQ(api::fwrite(v.get(), s.f), 0);
    EXPECT_EQ(s.contents(), binary_file(Header::sized, false, size, 2, 0, 0.5, {1.5, -2.25}));
    EXPECT_EQ(written(v, 0), s.contents());
    const auto file = [](std::uint32_t magic, std::uint32_t size_word) {
        return Bytes{}.word(magic).word(size_word).word(1).word(0).scalar(8, 1).scalar(8, 2).s;
    };
    for (const std::string& bad : {file(0xEB0440BEu, 1032), file(0xBE0330EBu ^ 0x100u, 1032), file(0xBEu, 1032), file(0xEB0330BE, 0x0403)}) {
        Scratch h(bad);
        EXPECT_EQ(api::fread(v.get(), h.f), -1);
    }
    Scratch negative(binary_file(Header::sized, false, 8, -5, 0, 2.0, {}));   // reads as empty
    EXPECT_EQ(api::fread(v.get(), negative.f), 1);
    EXPECT_EQ(shape(v.v), std::tuple(0, 0, T(2)));
}

// Every proper prefix of a binary file fails; what was read whole stays.
TYPED_TEST(FilesTest, TruncatedBinaryFilesFailKeepingWholeSamples) {
    using T = TypeParam;
    for (int size : {4, 8}) {
        for (int complex : {0, 1}) {
            const std::string full = binary_file(Header::sized, false, size, complex ? 5 : 10, complex, 1.0, random_scalars<double>(10, 3));
            const std::size_t header = 16 + size, sample = size * (complex + 1);
            for (std::size_t len = 1; len < full.size(); ++len) {
                Scratch h(full.substr(0, len));
                Owned<T> v;
                ASSERT_EQ(api::fread(v.get(), h.f), -1) << len;
                ASSERT_EQ(v.v.points, len < header ? 0 : static_cast<int>((len - header) / sample)) << len;
                ASSERT_TRUE(zf::readable<T>(&v.v));
            }
        }
    }
}

// A header announcing billions of samples over a few bytes fails without
// allocating what it announces, on a seekable stream and on a pipe.
TYPED_TEST(FilesTest, AbsurdCountInShortFileFailsWithoutHugeAllocation) {
    using T = TypeParam;
    const std::string file = binary_file(Header::sized, false, 8, 0x7FFFFFFF, 1, 1.0, {1, 2, 3, 4, 5});
    Scratch h(file);
    Owned<T> v;
    EXPECT_EQ(api::fread(v.get(), h.f), -1);
    EXPECT_EQ(v.v.points, 2);
    EXPECT_LE(v.v.alloc, 4);
    EXPECT_EQ(v.scalars(), (std::vector<T>{1, 2, 3, 4}));
#ifndef _WIN32
    int fds[2];
    ASSERT_EQ(pipe(fds), 0);
    ASSERT_EQ(write(fds[1], file.data(), file.size()), static_cast<ssize_t>(file.size()));
    close(fds[1]);
    FILE* p = fdopen(fds[0], "rb");
    ASSERT_NE(p, nullptr);
    Owned<T> w;
    EXPECT_EQ(api::fread(w.get(), p), -1);
    EXPECT_EQ(w.v.points, 2);
    EXPECT_LE(static_cast<double>(w.v.alloc) * sizeof(T), 2.0 * (1 << 20));
    std::fclose(p);
#endif
}

TYPED_TEST(FilesTest, AsciiAndSummaryText) {
    using T = TypeParam;
    const bool dbl = std::is_same_v<T, double>;
    const std::string banner = std::string("#DSP ASCII data from zifaif package\n#DSP points = 2\n#DSP complex = ");
    const std::string type = dbl ? "#DSP type = 8\n" : "#DSP type = 4\n";
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
    Owned<T> empty;
    empty.v.delta = T(25000);
    EXPECT_EQ(written(empty, 2), "[0/25000]\n");
    for (int n : {32, 33, 40}) {   // thirty-two samples, then an ellipsis
        std::vector<T> pairs;
        std::string want = "[" + std::to_string(n) + "/1]";
        for (int k = 0; k < n; ++k) {
            pairs.insert(pairs.end(), {T(k), T(-k)});
            if (k < 32) want += " " + std::to_string(k) + "," + (k ? "-" : "") + std::to_string(k);
        }
        Owned<T> p(pairs, true);
        EXPECT_EQ(written(p, 2), want + (n > 32 ? " ...\n" : "\n"));
    }
}

TYPED_TEST(FilesTest, Fwrite2FlagsSelectFormAndParts) {
    using T = TypeParam;
    Owned<T> v(std::vector<T>{T(1), T(2), T(3)}, false, T(2));
    const std::size_t header = 16 + sizeof(T);
    const std::string full = written(v, 0);
    EXPECT_EQ(full.size(), header + 3 * sizeof(T));
    EXPECT_EQ(written(v, 0x200), full.substr(0, header));
    EXPECT_EQ(written(v, 0x100), full.substr(header));
    for (int form : {0, 1, 2}) EXPECT_EQ(written(v, form | 0x300), "");
    EXPECT_EQ(written(v, 0x202), "[3/2]\n");
    EXPECT_EQ(written(v, 0x102), "1 2 3\n");
    Scratch bad;
    for (int flags : {3, 0xFF, 0x303, 0x1FF}) EXPECT_EQ(api::fwrite2(v.get(), bad.f, flags), -1);
    EXPECT_EQ(bad.contents(), "");
}

TYPED_TEST(FilesTest, RejectsBadArguments) {
    using T = TypeParam;
    static Scratch s;  // reachable from the lambdas
    Owned<T> v(std::vector<T>{T(1)});
    EXPECT_EQ(api::fwrite(v.get(), nullptr), -1);
    EXPECT_EQ(api::fread(v.get(), nullptr), -1);
    EXPECT_EQ(api::fread(static_cast<Vec<T>*>(nullptr), s.f), -1);
    expect_refuses_unreadable<T>([](Vec<T>* r) { return api::fwrite(r, s.f); });
    expect_refuses_unreadable<T>([](Vec<T>* r) { return api::fwrite_ascii(r, s.f); });
    expect_refuses_unreadable<T>([](Vec<T>* r) { return api::fwrite2(r, s.f, 2); });
    EXPECT_EQ(s.contents(), "");
}

// Failing allocations fail the read, leave an empty record and leak nothing.
TYPED_TEST(FilesTest, FailedAllocationDuringReadFails) {
    using T = TypeParam;
    using H = CountingHooks<T>;
    for (const std::string& file : {binary_file(Header::sized, false, 8, 2, 0, 1.0, {1, 2}), std::string("1 2 3\n")}) {
        typename H::Installed hooks(1);
        {
            Owned<T> v;
            Scratch h(file);
            EXPECT_EQ(api::fread(v.get(), h.f), -1);
            EXPECT_EQ(v.v.points, 0);
            EXPECT_EQ(v.v.data, nullptr);
        }
        EXPECT_EQ(H::live, 0);
    }
}

// A record wrapping a caller's array is given storage of its own by a read.
TYPED_TEST(FilesTest, ReadIntoWrappedArrayLeavesTheArrayAlone) {
    using T = TypeParam;
    T mine[2] = {T(9), T(9)};
    Owned<T> v;
    v.v.data = mine;
    v.v.points = 2;
    Scratch h("1 2 3 4\n");
    EXPECT_EQ(api::fread(v.get(), h.f), 1);
    EXPECT_NE(v.v.data, mine);
    EXPECT_EQ(mine[0], T(9));
    EXPECT_EQ(v.scalars(), (std::vector<T>{1, 2, 3, 4}));
}

struct AsciiCase {
    const char* name;
    std::string text;
    int result, points, complex;
    double delta;
    std::vector<double> scalars;
};

class AsciiReadTest : public ::testing::TestWithParam<AsciiCase> {};

template <class T> void check_ascii(const AsciiCase& c) {
    Scratch h(c.text);
    Owned<T> v;
    EXPECT_EQ(api::fread(v.get(), h.f), c.result);
    EXPECT_EQ(shape(v.v), std::tuple(c.points, c.complex, T(c.delta)));
    EXPECT_EQ(v.scalars(), as<T>(c.scalars));
}

TEST_P(AsciiReadTest, Double) { check_ascii<double>(GetParam()); }
TEST_P(AsciiReadTest, Float) { check_ascii<float>(GetParam()); }

INSTANTIATE_TEST_SUITE_P(Files, AsciiReadTest, ::testing::Values(
    AsciiCase{"NoHeader", "1 2\n3,4;5\r\n-6e1\n", 1, 6, 0, 1, {1, 2, 3, 4, 5, -60}},
    AsciiCase{"CountMismatch", "#DSP points = 5\n1\n2\n3\n", -1, 3, 0, 1, {1, 2, 3}},
    AsciiCase{"OddComplex", "#DSP complex = 1\n#DSP delta = 0.5\n1 2\n3\n", 1, 2, 1, 0.5, {1, 2, 3, 0}},
    AsciiCase{"OddComplexCounted", "#DSP points = 2\n#DSP complex = 1\n1 2\n3\n", 1, 2, 1, 1, {1, 2, 3, 0}},
    AsciiCase{"Hex", "0x1F -0x10 0X0a +0xff 0x\n", 1, 5, 0, 1, {31, -16, 10, 255, 0}},
    AsciiCase{"Infinities", "inf -Infinity\n", 1, 2, 0, 1, {HUGE_VAL, -HUGE_VAL}},
    AsciiCase{"CountStopsEarly", "#DSP points = 2\n1 2 3 4\n", 1, 2, 0, 1, {1, 2}},
    AsciiCase{"OtherCommentsIgnored", "# hello 1 2\n#DSP type = 8\n#DSPX\n7\n", 1, 1, 0, 1, {7}},
    AsciiCase{"LongComment", "#" + std::string(400, 'x') + " 5 6 7\n8\n", 1, 1, 0, 1, {8}},
    AsciiCase{"LongHeaderLine", "#DSP points = 2" + std::string(300, ' ') + "99\n3 4\n", 1, 2, 0, 1, {3, 4}},
    AsciiCase{"HeaderBeyond256Ignored", "#" + std::string(300, ' ') + "#DSP points = 7\n1\n", 1, 1, 0, 1, {1}},
    AsciiCase{"Garbage", "1 2 abc 3\n", -1, 2, 0, 1, {1, 2}},
    AsciiCase{"BareSign", "4 - 5\n", -1, 1, 0, 1, {4}},
    AsciiCase{"ExponentWithoutDigits", "4 1e\n", -1, 1, 0, 1, {4}},
    AsciiCase{"CountBeyond32Bits", "#DSP points = 99999999999999999999\n#DSP complex = 1\n1 2\n", -1, 1, 1, 1, {1, 2}},
    AsciiCase{"WhiteSpaceOnly", " \n\t\n", 0, 0, 0, 1, {}}),
    [](const ::testing::TestParamInfo<AsciiCase>& i) { return std::string(i.param.name); });

TEST(FilesStreams, DashNamesStandardStreamsAndNamedFilesOpen) {
    EXPECT_EQ(dspf_fopen("-", "rb"), stdin);
    EXPECT_EQ(dspff_fopen("-", "r"), stdin);
    EXPECT_EQ(dspf_fopen("-", "wb"), stdout);
    EXPECT_EQ(dspff_fopen("-", "w+b"), stdout);
    EXPECT_EQ(dspf_fopen("-", "a"), nullptr);
    EXPECT_EQ(dspf_fopen("-", ""), nullptr);
    EXPECT_EQ(dspf_fopen(nullptr, "r"), nullptr);
    EXPECT_EQ(dspf_fclose(stdin), 0);
    EXPECT_EQ(dspff_fclose(stdout), 0);
    EXPECT_EQ(std::fflush(stdout), 0);  // still open
    EXPECT_EQ(dspf_fclose(nullptr), -1);

    const std::string path = ::testing::TempDir() + "zifaif_files_test.vec";
    Owned<double> v(std::vector<double>{0.1, 0.2}, false, 0.001);
    FILE* f = dspf_fopen(path.c_str(), "wb");
    ASSERT_NE(f, nullptr);
    EXPECT_EQ(dspf_fwrite(&v.v, f), 0);
    EXPECT_EQ(dspf_fclose(f), 0);
    ASSERT_NE(f = dspff_fopen(path.c_str(), "rb"), nullptr);
    Owned<float> back;
    EXPECT_EQ(dspff_fread(&back.v, f), 1);
    EXPECT_EQ(back.scalars(), (std::vector<float>{0.1f, 0.2f}));
    EXPECT_EQ(back.v.delta, 0.001f);
    EXPECT_EQ(dspff_fclose(f), 0);
    EXPECT_EQ(dspf_fopen((path + ".missing/x").c_str(), "rb"), nullptr);
    std::remove(path.c_str());
}
