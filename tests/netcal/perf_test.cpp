#include <gtest/gtest.h>
#include <zifaif/instrument.h>

#include <chrono>

namespace {
// The counter frequency this platform reports: the monotonic clock's tick rate.
long long expected_frequency() {
    using period = std::chrono::steady_clock::period;
    return period::den / period::num;
}
}  // namespace

TEST(PerfDataTest, FrequencyAndSixZeroTimings) {
    long long f = -1, t[6] = {-1, -1, -1, -1, -1, -1};
    GetPerfData(&f, &t[0], &t[1], &t[2], &t[3], &t[4], &t[5]);
#ifndef _WIN32
    EXPECT_EQ(f, expected_frequency());
#endif
    EXPECT_GT(f, 0);
    for (long long x : t) EXPECT_EQ(x, 0);
    GetPerfData(nullptr, nullptr, &t[1], nullptr, nullptr, nullptr, nullptr);  // null pointers are skipped
}

TEST(PerfDataTest, WholeRecordsAreSixZeroTriples) {
    long long f = -1, r[6][3];
    for (auto& rec : r)
        for (long long& x : rec) x = -1;
    EXPECT_EQ(GetPerfData2(&f, r[0], r[1], r[2], r[3], r[4], r[5]), 6);
    EXPECT_GT(f, 0);
    for (auto& rec : r)
        for (long long x : rec) EXPECT_EQ(x, 0);
    EXPECT_EQ(GetPerfData2(nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr), 6);
}
