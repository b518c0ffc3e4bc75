#include "support/vectors.hpp"

#include <cstdint>
#include <cstdlib>
#include <string>
#include <type_traits>

#ifndef _WIN32
#include <unistd.h>
#endif

#include "support/api_files.hpp"

using namespace zt;

namespace {

// A scratch stream that disappears with the test.
struct Scratch {
    FILE* f = std::tmpfile();
    Scratch() { EXPECT_NE(f, nullptr); }
    ~Scratch() { if (f) std::fclose(f); }
    Scratch(const Scratch&) = delete;
    Scratch& operator=(const Scratch&) = delete;
    void put(const std::string& bytes) {
        ASSERT_EQ(std::fwrite(bytes.data(), 1, bytes.size(), f), bytes.size());
    }
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

// Stream holding exactly these bytes, positioned at the start.
struct Holding : Scratch {
    explicit Holding(const std::string& bytes) {
        put(bytes);
        std::rewind(f);
    }
};

// The other precision.
template <class T> using Other = std::conditional_t<std::is_same_v<T, float>, double, float>;

// Binary files assembled byte by byte, in either byte order.
struct Bytes {
    std::string s;
    bool big = false;
    Bytes& word(std::uint32_t w) {
        for (int i = 0; i < 4; ++i) {
            const int shift = big ? 24 - 8 * i : 8 * i;
            s += static_cast<char>((w >> shift) & 0xFF);
        }
        return *this;
    }
    Bytes& f64(double x) {
        std::uint64_t bits;
        std::memcpy(&bits, &x, 8);
        for (int i = 0; i < 8; ++i) {
            const int shift = big ? 56 - 8 * i : 8 * i;
            s += static_cast<char>((bits >> shift) & 0xFF);
        }
        return *this;
    }
    Bytes& f32(float x) {
        std::uint32_t bits;
        std::memcpy(&bits, &x, 4);
        return word(bits);
    }
    Bytes& scalar(int size, double x) { return size == 8 ? f64(x) : f32(static_cast<float>(x)); }
};

enum class Header { sized, legacy_double, legacy_float };

// A whole binary file: header of the given kind, then the scalars.
std::string binary_file(Header kind, bool big, int size, std::int32_t points, int complex, double delta,
                        const std::vector<double>& scalars) {
    Bytes b;
    b.big = big;
    if (kind == Header::sized) b.word(0xEB0330BE).word(size == 8 ? 1032 : 1028);
    else if (kind == Header::legacy_double) b.word(0xEB0110BE);
    else b.word(0xEB0220BE);
    b.word(static_cast<std::uint32_t>(points)).word(static_cast<std::uint32_t>(complex)).scalar(size, delta);
    for (double x : scalars) b.scalar(size, x);
    return b.s;
}

template <class T, class U> std::vector<T> as(const std::vector<U>& x) { return std::vector<T>(x.begin(), x.end()); }

}  // namespace

template <class T> class FilesTest : public ::testing::Test {};
TYPED_TEST_SUITE(FilesTest, Precisions);

// Random vectors of both shapes written in binary and ASCII by either
// precision come back with their shape, spacing and samples: exactly in binary
// (rounded once when a double file is read into a float record), within the
// printed digits in ASCII.
TYPED_TEST(FilesTest, RoundTripsThroughEveryFormAndPrecision) {
    using T = TypeParam;
    using U = Other<T>;
    unsigned seed = 1;
    for (int form : {0, 1}) {
        for (int complex : {0, 1}) {
            for (int n : {0, 1, 17, 3000}) {
                SCOPED_TRACE(::testing::Message() << "form " << form << " complex " << complex << " n " << n);
                const std::vector<double> raw = random_scalars<double>(static_cast<std::size_t>(n) * (complex + 1), seed++, -1e3, 1e3);
                Owned<T> same(as<T>(raw), complex, T(0.125));
                Owned<U> other(as<U>(raw), complex, U(0.125));
                Scratch s;
                ASSERT_EQ(api::fwrite2(same.get(), s.f, form), 0);
                ASSERT_EQ(api::fwrite2(other.get(), s.f, form), 0);
                s.contents();

                Owned<T> a, b;
                a.v.type = 77;
                ASSERT_EQ(api::fread(a.get(), s.f), 1);
                ASSERT_EQ(api::fread(b.get(), s.f), 1);
                EXPECT_EQ(api::fread(a.get(), s.f), 0);
                ASSERT_EQ(api::fread(a.get(), s.f), 0);  // and stays at the end
                std::rewind(s.f);
                ASSERT_EQ(api::fread(a.get(), s.f), 1);

                EXPECT_EQ(a.v.type, 77);  // never stored
                for (Owned<T>* got : {&a, &b}) {
                    EXPECT_EQ(got->v.points, n);
                    EXPECT_EQ(got->v.complex, complex);
                    EXPECT_EQ(got->v.delta, T(0.125));
                }
                if (form == 0) {
                    EXPECT_EQ(a.scalars(), same.scalars());
                    // float -> double is exact, double -> float rounds once
                    EXPECT_EQ(b.scalars(), as<T>(other.scalars()));
                } else {
                    const double digits_t = std::is_same_v<T, double> ? 1e-15 : 1e-6;
                    const double digits_u = std::is_same_v<U, double> ? 1e-15 : 1e-6;
                    EXPECT_TRUE(near_all(a.scalars(), same.scalars(), digits_t + tol<T>()));
                    EXPECT_TRUE(near_all(b.scalars(), other.scalars(), digits_u + tol<T>()));
                }
            }
        }
    }
}

// Files of the other byte order and the two older headers, assembled byte by
// byte, read with every field and sample in place.
TYPED_TEST(FilesTest, ReadsOtherByteOrderAndOlderHeaders) {
    using T = TypeParam;
    const std::vector<double> pairs = {1.5, -2.25, 1024.125, -0.0078125, 3e-3, 7.0};
    const std::vector<double> complex_pairs(pairs.begin(), pairs.end());
    struct Case { Header kind; int size; };
    for (Case c : {Case{Header::sized, 8}, Case{Header::sized, 4}, Case{Header::legacy_double, 8},
                   Case{Header::legacy_float, 4}}) {
        for (bool big : {false, true}) {
            for (int complex : {0, 1}) {
                SCOPED_TRACE(::testing::Message() << "size " << c.size << " big " << big << " complex " << complex);
                const int points = complex ? 3 : 6;
                Holding h(binary_file(c.kind, big, c.size, points, complex ? 5 : 0, 0.1, pairs));
                Owned<T> v;
                ASSERT_EQ(api::fread(v.get(), h.f), 1);
                EXPECT_EQ(v.v.points, points);
                EXPECT_EQ(v.v.complex, complex);
                // the stored spacing, rounded to the file's precision, then to the record's
                const T want_delta = c.size == 8 ? static_cast<T>(0.1) : static_cast<T>(0.1f);
                EXPECT_EQ(v.v.delta, want_delta);
                std::vector<T> want;
                for (double x : pairs) want.push_back(c.size == 8 ? static_cast<T>(x) : static_cast<T>(static_cast<float>(x)));
                EXPECT_EQ(v.scalars(), want);
                EXPECT_EQ(api::fread(v.get(), h.f), 0);
            }
        }
    }
}

TYPED_TEST(FilesTest, BinaryLayoutIsTheDocumentedOne) {
    using T = TypeParam;
    Owned<T> v(std::vector<T>{T(1.5), T(-2.25)}, false, T(0.5));
    Scratch s;
    ASSERT_EQ(api::fwrite(v.get(), s.f), 0);
    const int size = sizeof(T);
    Bytes want;
    want.word(0xEB0330BE).word(size == 8 ? 1032 : 1028).word(2).word(0).scalar(size, 0.5).scalar(size, 1.5).scalar(size, -2.25);
    EXPECT_EQ(s.contents(), want.s);
}

TYPED_TEST(FilesTest, NegativeCountInAFileReadsAsEmpty) {
    using T = TypeParam;
    Holding h(binary_file(Header::sized, false, 8, -5, 0, 2.0, {}));
    Owned<T> v;
    EXPECT_EQ(api::fread(v.get(), h.f), 1);
    EXPECT_EQ(v.v.points, 0);
    EXPECT_EQ(v.v.delta, T(2));
}

// Every proper prefix of a binary file fails; what was read whole stays.
TYPED_TEST(FilesTest, TruncatedBinaryFilesFailKeepingWholeSamples) {
    using T = TypeParam;
    for (int size : {4, 8}) {
        for (int complex : {0, 1}) {
            const std::vector<double> raw = random_scalars<double>(10, 3);
            const std::string full = binary_file(Header::sized, false, size, complex ? 5 : 10, complex, 1.0, raw);
            const std::size_t header = 16 + size, sample = size * (complex + 1);
            for (std::size_t len = 1; len < full.size(); ++len) {
                Holding h(full.substr(0, len));
                Owned<T> v;
                ASSERT_EQ(api::fread(v.get(), h.f), -1) << len;
                const int whole = len < header ? 0 : static_cast<int>((len - header) / sample);
                ASSERT_EQ(v.v.points, whole) << len;
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
    {
        Holding h(file);
        Owned<T> v;
        EXPECT_EQ(api::fread(v.get(), h.f), -1);
        EXPECT_EQ(v.v.points, 2);
        EXPECT_LE(v.v.alloc, 4);
        EXPECT_EQ(v.scalars(), (std::vector<T>{1, 2, 3, 4}));
    }
#ifndef _WIN32
    int fds[2];
    ASSERT_EQ(pipe(fds), 0);
    ASSERT_EQ(write(fds[1], file.data(), file.size()), static_cast<ssize_t>(file.size()));
    close(fds[1]);
    FILE* p = fdopen(fds[0], "rb");
    ASSERT_NE(p, nullptr);
    Owned<T> v;
    EXPECT_EQ(api::fread(v.get(), p), -1);
    EXPECT_EQ(v.v.points, 2);
    EXPECT_LE(static_cast<double>(v.v.alloc) * sizeof(T), 2.0 * (1 << 20));
    std::fclose(p);
#endif
}

TYPED_TEST(FilesTest, UnknownMagicFails) {
    using T = TypeParam;
    Owned<T> v;
    for (std::uint32_t magic : {0xEB0440BEu, 0xBE0330EBu ^ 0x100u, 0x000000BEu}) {
        Bytes b;
        b.word(magic).word(1032).word(1).word(0).f64(1).f64(2);
        Holding h(b.s);
        EXPECT_EQ(api::fread(v.get(), h.f), -1);
    }
    Holding bad_size(Bytes{}.word(0xEB0330BE).word(0x0403).word(1).word(0).f64(1).f64(2).s);
    EXPECT_EQ(api::fread(v.get(), bad_size.f), -1);
}

// Random bytes, with and without a valid-looking start, never crash the
// reader and always leave a usable record.
TYPED_TEST(FilesTest, RandomBytesNeverBreakTheReader) {
    using T = TypeParam;
    std::mt19937 gen(11);
    const char alphabet[] = "0123456789+-.eExX#DSP pointscomplexdelta=\n\t,;abcnif";
    for (int trial = 0; trial < 1500; ++trial) {
        std::string s;
        const int len = static_cast<int>(gen() % 80);
        const int kind = trial % 3;
        if (kind == 0) s = binary_file(Header::sized, trial % 2, trial % 4 < 2 ? 8 : 4, 3, 0, 1.0, {1, 2, 3}).substr(0, 8 + gen() % 16);
        for (int i = 0; i < len; ++i)
            s += kind == 2 ? alphabet[gen() % (sizeof alphabet - 1)] : static_cast<char>(gen() & 0xFF);
        Holding h(s);
        Owned<T> v;
        for (int reads = 0; reads < 100; ++reads) {
            const int r = api::fread(v.get(), h.f);
            ASSERT_TRUE(r == -1 || r == 0 || r == 1);
            ASSERT_TRUE(zf::readable<T>(&v.v)) << trial;
            ASSERT_TRUE(v.v.complex == 0 || v.v.complex == 1);
            if (r != 1) break;
        }
    }
}

TYPED_TEST(FilesTest, AsciiHeaderLinesAndNumberFormats) {
    using T = TypeParam;
    const bool dbl = std::is_same_v<T, double>;
    Owned<T> real(std::vector<T>{T(1.5), T(1) / T(3)}, false, T(0.25));
    Scratch s;
    ASSERT_EQ(api::fwrite_ascii(real.get(), s.f), 0);
    const std::string third = dbl ? "0.3333333333333333" : "0.3333333";
    EXPECT_EQ(s.contents(), std::string("#DSP ASCII data from zifaif package\n#DSP points = 2\n#DSP complex = 0\n") +
                                (dbl ? "#DSP type = 8\n" : "#DSP type = 4\n") + "#DSP delta = 0.25\n1.5\n" + third + "\n");

    Owned<T> cplx(std::vector<T>{T(-2), T(1e-20), T(3), T(4)}, true, T(1) / T(3));
    Scratch c;
    ASSERT_EQ(api::fwrite2(cplx.get(), c.f, 0x101), 0);  // samples only
    // the double nearest 1e-20 lies below it, which sixteen digits show
    EXPECT_EQ(c.contents(), dbl ? "-2 9.999999999999999e-21\n3 4\n" : "-2 1e-20\n3 4\n");
    Scratch h;
    ASSERT_EQ(api::fwrite2(cplx.get(), h.f, 0x201), 0);  // header only
    EXPECT_EQ(h.contents(), std::string("#DSP ASCII data from zifaif package\n#DSP points = 2\n#DSP complex = 1\n") +
                                (dbl ? "#DSP type = 8\n#DSP delta = 0.3333333333333333\n" : "#DSP type = 4\n#DSP delta = 0.3333333\n"));
}

TYPED_TEST(FilesTest, SummaryNumberThresholds) {
    using T = TypeParam;
    Owned<T> v(std::vector<T>{T(1.5), T(-2), T(9999), T(-9998.75), T(12345.75), T(-99999.25), T(999999936),
                              T(1000000064), T(1e10), T(0.0001234), T(-1e-30)},
               false, T(0.001));
    Scratch s;
    ASSERT_EQ(api::fwrite2(v.get(), s.f, 2), 0);
    EXPECT_EQ(s.contents(), "[11/0.001] 1.5 -2 9999 -9999 12346 -99999 999999936 1e+09 1e+10 0.0001234 -1e-30\n");

    Owned<T> empty;
    empty.v.delta = T(25000);
    Scratch e;
    ASSERT_EQ(api::fwrite2(empty.get(), e.f, 2), 0);
    EXPECT_EQ(e.contents(), "[0/25000]\n");
}

TYPED_TEST(FilesTest, SummaryShowsThirtyTwoSamplesThenEllipsis) {
    using T = TypeParam;
    for (int n : {32, 33, 40}) {
        std::vector<T> pairs;
        std::string want = "[" + std::to_string(n) + "/1]";
        for (int k = 0; k < n; ++k) {
            pairs.push_back(T(k));
            pairs.push_back(T(-k));
            if (k < 32) want += " " + std::to_string(k) + "," + (k ? "-" : "") + std::to_string(k);
        }
        want += n > 32 ? " ...\n" : "\n";
        Owned<T> v(pairs, true);
        Scratch s;
        ASSERT_EQ(api::fwrite2(v.get(), s.f, 2), 0);
        EXPECT_EQ(s.contents(), want);
    }
}

TYPED_TEST(FilesTest, Fwrite2FlagsSelectFormAndParts) {
    using T = TypeParam;
    Owned<T> v(std::vector<T>{T(1), T(2), T(3)}, false, T(2));
    const std::size_t header = 16 + sizeof(T), body = 3 * sizeof(T);
    Scratch full, head, data, none, summary_head, summary_body;
    ASSERT_EQ(api::fwrite(v.get(), full.f), 0);
    ASSERT_EQ(api::fwrite2(v.get(), head.f, 0x200), 0);
    ASSERT_EQ(api::fwrite2(v.get(), data.f, 0x100), 0);
    EXPECT_EQ(full.contents().size(), header + body);
    EXPECT_EQ(head.contents(), full.contents().substr(0, header));
    EXPECT_EQ(data.contents(), full.contents().substr(header));
    for (int form : {0, 1, 2}) EXPECT_EQ(api::fwrite2(v.get(), none.f, form | 0x300), 0);
    EXPECT_EQ(none.contents(), "");
    ASSERT_EQ(api::fwrite2(v.get(), summary_head.f, 0x202), 0);
    ASSERT_EQ(api::fwrite2(v.get(), summary_body.f, 0x102), 0);
    EXPECT_EQ(summary_head.contents(), "[3/2]\n");
    EXPECT_EQ(summary_body.contents(), "1 2 3\n");
    Scratch bad;
    for (int flags : {3, 0xFF, 0x303, 0x1FF}) EXPECT_EQ(api::fwrite2(v.get(), bad.f, flags), -1);
    EXPECT_EQ(bad.contents(), "");
}

TYPED_TEST(FilesTest, RejectsBadArguments) {
    using T = TypeParam;
    Scratch s;
    Owned<T> v(std::vector<T>{T(1)});
    EXPECT_EQ(api::fwrite(v.get(), nullptr), -1);
    EXPECT_EQ(api::fwrite(static_cast<Vec<T>*>(nullptr), s.f), -1);
    EXPECT_EQ(api::fread(v.get(), nullptr), -1);
    EXPECT_EQ(api::fread(static_cast<Vec<T>*>(nullptr), s.f), -1);
    Vec<T> broken = v.v;
    broken.data = nullptr;
    broken.alloc = 0;
    EXPECT_EQ(api::fwrite_ascii(&broken, s.f), -1);
    broken = v.v;
    broken.points = -1;
    EXPECT_EQ(api::fwrite2(&broken, s.f, 2), -1);
    EXPECT_EQ(s.contents(), "");
}

// Several vectors of both forms and precisions, one after another in one stream.
TYPED_TEST(FilesTest, MixedStreamReadsVectorByVector) {
    using T = TypeParam;
    Owned<double> d(std::vector<double>{1, 2, 3}, false, 0.5);
    Owned<float> f(std::vector<float>{4, 5}, true, 0.25f);
    Owned<double> empty;
    Scratch s;
    ASSERT_EQ(dspf_fwrite_ascii(&d.v, s.f), 0);
    ASSERT_EQ(dspff_fwrite(&f.v, s.f), 0);
    ASSERT_EQ(dspf_fwrite_ascii(&empty.v, s.f), 0);
    ASSERT_EQ(dspff_fwrite_ascii(&f.v, s.f), 0);
    ASSERT_EQ(dspf_fwrite(&d.v, s.f), 0);
    s.contents();
    struct Want { int points, complex; double delta; std::vector<double> scalars; };
    const Want want[] = {{3, 0, 0.5, {1, 2, 3}}, {1, 1, 0.25, {4, 5}}, {0, 0, 1, {}}, {1, 1, 0.25, {4, 5}}, {3, 0, 0.5, {1, 2, 3}}};
    Owned<T> v;
    for (const Want& w : want) {
        ASSERT_EQ(api::fread(v.get(), s.f), 1);
        EXPECT_EQ(v.v.points, w.points);
        EXPECT_EQ(v.v.complex, w.complex);
        EXPECT_EQ(v.v.delta, T(w.delta));
        EXPECT_EQ(v.scalars(), as<T>(w.scalars));
    }
    EXPECT_EQ(api::fread(v.get(), s.f), 0);
}

struct AsciiCase {
    const char* name;
    const char* text;
    int result, points, complex;
    double delta;
    std::vector<double> scalars;
};

class AsciiReadTest : public ::testing::TestWithParam<AsciiCase> {};

template <class T> void check_ascii(const AsciiCase& c) {
    Holding h(c.text);
    Owned<T> v;
    EXPECT_EQ(api::fread(v.get(), h.f), c.result);
    EXPECT_EQ(v.v.points, c.points);
    EXPECT_EQ(v.v.complex, c.complex);
    EXPECT_EQ(v.v.delta, T(c.delta));
    EXPECT_EQ(v.scalars(), as<T>(c.scalars));
}

TEST_P(AsciiReadTest, Double) { check_ascii<double>(GetParam()); }
TEST_P(AsciiReadTest, Float) { check_ascii<float>(GetParam()); }

const std::string kLongComment = "#" + std::string(400, 'x') + " 5 6 7\n8\n";
const std::string kLongHeader = "#DSP points = 2" + std::string(300, ' ') + "99\n3 4\n";
const std::string kHeaderAfterLimit = "#" + std::string(300, ' ') + "#DSP points = 7\n1\n";

INSTANTIATE_TEST_SUITE_P(Files, AsciiReadTest, ::testing::Values(
    AsciiCase{"NoHeader", "1 2\n3,4;5\r\n-6e1\n", 1, 6, 0, 1, {1, 2, 3, 4, 5, -60}},
    AsciiCase{"CountMismatch", "#DSP points = 5\n1\n2\n3\n", -1, 3, 0, 1, {1, 2, 3}},
    AsciiCase{"OddComplex", "#DSP complex = 1\n#DSP delta = 0.5\n1 2\n3\n", 1, 2, 1, 0.5, {1, 2, 3, 0}},
    AsciiCase{"OddComplexCounted", "#DSP points = 2\n#DSP complex = 1\n1 2\n3\n", 1, 2, 1, 1, {1, 2, 3, 0}},
    AsciiCase{"Hex", "0x1F -0x10 0X0a +0xff 0x\n", 1, 5, 0, 1, {31, -16, 10, 255, 0}},
    AsciiCase{"Infinities", "inf -Infinity\n", 1, 2, 0, 1, {HUGE_VAL, -HUGE_VAL}},
    AsciiCase{"CountStopsEarly", "#DSP points = 2\n1 2 3 4\n", 1, 2, 0, 1, {1, 2}},
    AsciiCase{"OtherCommentsIgnored", "# hello 1 2\n#DSP type = 8\n#DSPX\n7\n", 1, 1, 0, 1, {7}},
    AsciiCase{"LongComment", kLongComment.c_str(), 1, 1, 0, 1, {8}},
    AsciiCase{"LongHeaderLine", kLongHeader.c_str(), 1, 2, 0, 1, {3, 4}},
    AsciiCase{"HeaderBeyond256Ignored", kHeaderAfterLimit.c_str(), 1, 1, 0, 1, {1}},
    AsciiCase{"Garbage", "1 2 abc 3\n", -1, 2, 0, 1, {1, 2}},
    AsciiCase{"BareSign", "4 - 5\n", -1, 1, 0, 1, {4}},
    AsciiCase{"ExponentWithoutDigits", "4 1e\n", -1, 1, 0, 1, {4}},
    AsciiCase{"WhiteSpaceOnly", " \n\t\n", 0, 0, 0, 1, {}}),
    [](const ::testing::TestParamInfo<AsciiCase>& i) { return std::string(i.param.name); });

// Hooks whose allocations fail: the read fails and leaks nothing.
template <class T> struct FailingHooks {
    static void ZF_CDECL alloc(Vec<T>* v) {
        if (v->alloc > 0) std::free(v->data);
        v->data = nullptr;
    }
    static void ZF_CDECL realloc(Vec<T>* v, int, int) {
        if (v->alloc > 0) std::free(v->data);
        v->data = nullptr;
    }
};

TYPED_TEST(FilesTest, FailedAllocationDuringReadFails) {
    using T = TypeParam;
    typename std::conditional_t<std::is_same_v<T, double>, dsp_alloc_hook, dspf_alloc_hook> old_alloc = nullptr;
    typename std::conditional_t<std::is_same_v<T, double>, dsp_realloc_hook, dspf_realloc_hook> old_realloc = nullptr;
    api::lib_alloc(&FailingHooks<T>::alloc, &old_alloc);
    api::lib_realloc(&FailingHooks<T>::realloc, &old_realloc);
    Owned<T> v;
    Holding binary(binary_file(Header::sized, false, 8, 2, 0, 1.0, {1, 2}));
    EXPECT_EQ(api::fread(v.get(), binary.f), -1);
    EXPECT_EQ(v.v.points, 0);
    Holding ascii("1 2 3\n");
    EXPECT_EQ(api::fread(v.get(), ascii.f), -1);
    EXPECT_EQ(v.v.points, 0);
    EXPECT_EQ(v.v.data, nullptr);
    api::lib_alloc(old_alloc, nullptr);
    api::lib_realloc(old_realloc, nullptr);
}

// A record wrapping a caller's array is given storage of its own by a read.
TYPED_TEST(FilesTest, ReadIntoWrappedArrayLeavesTheArrayAlone) {
    using T = TypeParam;
    T mine[2] = {T(9), T(9)};
    Vec<T> v;
    api::init(&v);
    v.data = mine;
    v.points = 2;
    Holding h("1 2 3 4\n");
    EXPECT_EQ(api::fread(&v, h.f), 1);
    EXPECT_NE(v.data, mine);
    EXPECT_EQ(mine[0], T(9));
    EXPECT_EQ(v.points, 4);
    EXPECT_EQ(v.data[3], T(4));
    api::destroy(&v);
}

TEST(FilesStreams, DashNamesStandardStreams) {
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
}

TEST(FilesStreams, NamedFileRoundTrip) {
    const std::string path = ::testing::TempDir() + "zifaif_files_test.vec";
    Owned<double> v(std::vector<double>{0.1, 0.2}, false, 0.001);
    FILE* f = dspf_fopen(path.c_str(), "wb");
    ASSERT_NE(f, nullptr);
    EXPECT_EQ(dspf_fwrite(&v.v, f), 0);
    EXPECT_EQ(dspf_fclose(f), 0);
    f = dspff_fopen(path.c_str(), "rb");
    ASSERT_NE(f, nullptr);
    Owned<float> back;
    EXPECT_EQ(dspff_fread(&back.v, f), 1);
    EXPECT_EQ(back.scalars(), (std::vector<float>{0.1f, 0.2f}));
    EXPECT_EQ(back.v.delta, 0.001f);
    EXPECT_EQ(dspff_fclose(f), 0);
    EXPECT_EQ(dspf_fopen((path + ".missing/x").c_str(), "rb"), nullptr);
    std::remove(path.c_str());
}
