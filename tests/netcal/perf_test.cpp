#include <gtest/gtest.h>
#include <zifaif/instrument.h>

#include <chrono>

// The counter frequency is the monotonic clock's tick rate; every timing and
// whole timing record is zero, and null pointers are skipped.
TEST(PerfDataTest, FrequencyAndZeroTimings) {
    using period = std::chrono::steady_clock::period;
    long long f = -1, g = -1, t[6], r[6][3];
    for (long long& x : t) x = -1;
    for (auto& rec : r)
        for (long long& x : rec) x = -1;
    GetPerfData(&f, &t[0], &t[1], &t[2], &t[3], &t[4], &t[5]);
    EXPECT_EQ(GetPerfData2(&g, r[0], r[1], r[2], r[3], r[4], r[5]), 6);
#ifndef _WIN32
    EXPECT_EQ(f, period::den / period::num);
#endif
    EXPECT_GT(f, 0);
    EXPECT_GT(g, 0);
    for (long long x : t) EXPECT_EQ(x, 0);
    for (auto& rec : r)
        for (long long x : rec) EXPECT_EQ(x, 0);
    GetPerfData(nullptr, nullptr, &t[1], nullptr, nullptr, nullptr, nullptr);
    EXPECT_EQ(GetPerfData2(nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr), 6);
}
