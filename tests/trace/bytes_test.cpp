#include <cstdint>

#include "support/api_trace.hpp"

using namespace zt;

// Values with their IEEE 754 encodings, written out by hand.
const double kValues[3] = {1.0, -2.5, 0.1};
const std::uint64_t kDoubleBits[3] = {0x3FF0000000000000, 0xC004000000000000, 0x3FB999999999999A};
const std::uint32_t kFloatBits[3] = {0x3F800000, 0xC0200000, 0x3DCCCCCD};

template <class T> class TraceBytesTest : public ::testing::Test {};
TYPED_TEST_SUITE(TraceBytesTest, Precisions);

TYPED_TEST(TraceBytesTest, CopiesElementsFromAnyByteOffset) {
    using T = TypeParam;
    constexpr int w = sizeof(T);
    // Three big-endian elements after one odd byte, and their little-endian forms after them.
    std::vector<unsigned char> raw(1 + 6 * w, 0xEE);
    for (int k = 0; k < 3; ++k) {
        const std::uint64_t bits = w == 8 ? kDoubleBits[k] : kFloatBits[k];
        for (int b = 0; b < w; ++b) raw[1 + k * w + b] = raw[1 + (3 + k) * w + w - 1 - b] = static_cast<unsigned char>(bits >> (8 * (w - 1 - b)));
    }
    const std::uint16_t one = 1;
    const bool little = *reinterpret_cast<const unsigned char*>(&one) == 1;
    const int native = little ? 1 + 3 * w : 1, foreign = little ? 1 : 1 + 3 * w;
    const std::vector<T> want{-99, T(kValues[0]), T(kValues[1]), T(kValues[2]), -99};
    std::vector<T> dst(5, T(-99)), swapped(5, T(-99));
    EXPECT_EQ(api::byte_copy_to_fp(native, raw.data(), dst.data(), 1, 3, 0), 0);
    EXPECT_EQ(api::byte_copy_to_fp(foreign - 5, raw.data() + 5, swapped.data(), 1, 3, 1), 0);  // only base + offset matters
    EXPECT_EQ(std::tuple(dst, swapped), std::tuple(want, want));
    // Nothing to copy, a negative start, null source or destination: 0, nothing written.
    EXPECT_EQ(std::tuple(api::byte_copy_to_fp(0, raw.data(), dst.data(), 0, 0, 0), api::byte_copy_to_fp(0, raw.data(), dst.data(), -1, 2, 0),
                         api::byte_copy_to_fp(0, nullptr, dst.data(), 0, 2, 0), api::byte_copy_to_fp(0, raw.data(), static_cast<T*>(nullptr), 0, 2, 0)),
              std::tuple(0, 0, 0, 0));
    EXPECT_EQ(dst, want);
}

// Both byte swaps have one contract.
class TraceByteSwapTest : public ::testing::TestWithParam<int (*)(void*, int, unsigned)> {};
// Named by index: a function address would differ between the listing and the run.
INSTANTIATE_TEST_SUITE_P(BothEntries, TraceByteSwapTest, ::testing::Values(&vfp_ByteSwap, &vfp_ByteSwapDummy),
                         [](const auto& p) { return p.index == 0 ? "ByteSwap" : "ByteSwapDummy"; });

// Only the first element is permuted, once per element; sizes that are not
// whole elements are refused with nothing changed.
TEST_P(TraceByteSwapTest, PermutesOnlyTheFirstElementOncePerElement) {
    struct Case {
        unsigned width;
        std::vector<unsigned char> before, after;
    };
    const Case cases[] = {
        {2, {1, 2}, {2, 1}},                                    // a true swap
        {2, {1, 2, 3, 4}, {1, 2, 3, 4}},                        // toggled twice
        {2, {1, 2, 3, 4, 5, 6}, {2, 1, 3, 4, 5, 6}}, {3, {1, 2, 3, 4, 5, 6}, {1, 2, 3, 4, 5, 6}},
        {4, {1, 2, 3, 4}, {3, 2, 2, 1}},                        // byte 0 takes 4, then 3
        {4, {1, 2, 3, 4, 5, 6, 7, 8}, {2, 2, 2, 3, 5, 6, 7, 8}}, {8, {1, 2, 3, 4, 5, 6, 7, 8}, {5, 2, 3, 4, 4, 3, 2, 1}},
        {1, {1, 2, 3}, {1, 2, 3}},
    };
    for (const Case& c : cases) {
        auto buf = c.before;
        EXPECT_EQ(GetParam()(buf.data(), int(buf.size()), c.width), int(buf.size()));
        EXPECT_EQ(buf, c.after) << "width " << c.width << ", " << buf.size() << " bytes";
    }
    std::vector<unsigned char> buf = {1, 2, 3, 4, 5, 6};
    for (auto [n, width] : {std::pair{6, 4u}, {0, 4u}, {2, 4u}, {6, 0u}, {-4, 4u}})
        EXPECT_EQ(GetParam()(buf.data(), n, width), -1) << n << " bytes of width " << width;
    EXPECT_EQ(GetParam()(nullptr, 4, 2), -1);
    EXPECT_EQ(buf, (std::vector<unsigned char>{1, 2, 3, 4, 5, 6}));
}
