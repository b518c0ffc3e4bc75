#include <cstdint>

#include "support/api_trace.hpp"
#include "support/vectors.hpp"

using namespace zt;

// Values with their big-endian IEEE 754 encodings, written out by hand.
template <class T> struct Encoded;
template <> struct Encoded<double> {
    static constexpr double values[3] = {1.0, -2.5, 0.1};
    static constexpr unsigned char big_endian[3][8] = {{0x3F, 0xF0, 0, 0, 0, 0, 0, 0},
                                                       {0xC0, 0x04, 0, 0, 0, 0, 0, 0},
                                                       {0x3F, 0xB9, 0x99, 0x99, 0x99, 0x99, 0x99, 0x9A}};
};
template <> struct Encoded<float> {
    static constexpr float values[3] = {1.0f, -2.5f, 0.1f};
    static constexpr unsigned char big_endian[3][4] = {{0x3F, 0x80, 0, 0}, {0xC0, 0x20, 0, 0}, {0x3D, 0xCC, 0xCC, 0xCD}};
};

template <class T> class TraceBytesTest : public ::testing::Test {};
TYPED_TEST_SUITE(TraceBytesTest, Precisions);

TYPED_TEST(TraceBytesTest, CopiesElementsFromAnyByteOffset) {
    using T = TypeParam;
    using E = Encoded<T>;
    constexpr int w = sizeof(T);
    // Three big-endian elements after one odd byte, and their little-endian forms after them.
    std::vector<unsigned char> raw(1 + 6 * w, 0xEE);
    for (int k = 0; k < 3; ++k)
        for (int b = 0; b < w; ++b) {
            raw[1 + k * w + b] = E::big_endian[k][b];
            raw[1 + (3 + k) * w + b] = E::big_endian[k][w - 1 - b];
        }
    const std::uint16_t one = 1;
    const bool little = *reinterpret_cast<const unsigned char*>(&one) == 1;
    const int native = little ? 1 + 3 * w : 1, foreign = little ? 1 : 1 + 3 * w;
    std::vector<T> dst(5, T(-99));
    EXPECT_EQ(api::byte_copy_to_fp(native, raw.data(), dst.data(), 1, 3, 0), 0);
    EXPECT_EQ(dst, (std::vector<T>{-99, E::values[0], E::values[1], E::values[2], -99}));
    std::vector<T> swapped(5, T(-99));
    // Only base + offset matters.
    EXPECT_EQ(api::byte_copy_to_fp(foreign - 5, raw.data() + 5, swapped.data(), 1, 3, 1), 0);
    EXPECT_EQ(swapped, dst);
    EXPECT_EQ(api::byte_copy_to_fp(0, raw.data(), dst.data(), 0, 0, 0), 0);
    EXPECT_EQ(api::byte_copy_to_fp(0, raw.data(), dst.data(), -1, 2, 0), 0);
    EXPECT_EQ(api::byte_copy_to_fp(0, nullptr, dst.data(), 0, 2, 0), 0);
    EXPECT_EQ(api::byte_copy_to_fp(0, raw.data(), static_cast<T*>(nullptr), 0, 2, 0), 0);
    EXPECT_EQ(dst, (std::vector<T>{-99, E::values[0], E::values[1], E::values[2], -99}));
}

// Both byte swaps have one contract.
class TraceByteSwapTest : public ::testing::TestWithParam<int (*)(void*, int, unsigned)> {};
// Named by index: a function address would differ between the listing and the run.
INSTANTIATE_TEST_SUITE_P(BothEntries, TraceByteSwapTest, ::testing::Values(&vfp_ByteSwap, &vfp_ByteSwapDummy),
                         [](const auto& p) { return p.index == 0 ? "ByteSwap" : "ByteSwapDummy"; });

TEST_P(TraceByteSwapTest, PermutesOnlyTheFirstElementOncePerElement) {
    struct Case {
        unsigned width;
        std::vector<unsigned char> before, after;
    };
    const Case cases[] = {
        {2, {1, 2}, {2, 1}},                                    // a true swap
        {2, {1, 2, 3, 4}, {1, 2, 3, 4}},                        // toggled twice
        {2, {1, 2, 3, 4, 5, 6}, {2, 1, 3, 4, 5, 6}},
        {3, {1, 2, 3, 4, 5, 6}, {1, 2, 3, 4, 5, 6}},
        {4, {1, 2, 3, 4}, {3, 2, 2, 1}},                        // byte 0 takes 4, then 3
        {4, {1, 2, 3, 4, 5, 6, 7, 8}, {2, 2, 2, 3, 5, 6, 7, 8}},
        {8, {1, 2, 3, 4, 5, 6, 7, 8}, {5, 2, 3, 4, 4, 3, 2, 1}},
        {1, {1, 2, 3}, {1, 2, 3}},
    };
    for (const Case& c : cases) {
        auto buf = c.before;
        EXPECT_EQ(GetParam()(buf.data(), int(buf.size()), c.width), int(buf.size()));
        EXPECT_EQ(buf, c.after) << "width " << c.width << ", " << buf.size() << " bytes";
    }
}

TEST_P(TraceByteSwapTest, RejectsSizesThatAreNotWholeElements) {
    std::vector<unsigned char> buf = {1, 2, 3, 4, 5, 6};
    for (auto [n, width] : {std::pair{6, 4u}, {0, 4u}, {2, 4u}, {6, 0u}, {-4, 4u}})
        EXPECT_EQ(GetParam()(buf.data(), n, width), -1) << n << " bytes of width " << width;
    EXPECT_EQ(GetParam()(nullptr, 4, 2), -1);
    EXPECT_EQ(buf, (std::vector<unsigned char>{1, 2, 3, 4, 5, 6}));
}
