#include <gtest/gtest.h>
#include <zifaif/instrument.h>

#include <chrono>
#include <vector>

// The counter frequency is the monotonic clock's tick rate; every timing and
// whole timing record is zero, and null pointers are skipped.
TEST(PerfDataTest, FrequencyAndZeroTimings) {
    using period = std::chrono::steady_clock::period;
    long long f = -1, g = -1;
    std::vector<long long> t(6, -1), r(18, -1);
    GetPerfData(&f, &t[0], &t[1], &t[2], &t[3], &t[4], &t[5]);
    EXPECT_EQ(GetPerfData2(&g, &r[0], &r[3], &r[6], &r[9], &r[12], &r[15]), 6);
#ifndef _WIN32
    EXPECT_EQ(f, period::den / period::num);
#endif
    EXPECT_TRUE(f > 0 && g > 0);
    EXPECT_EQ(std::tuple(t, r), std::tuple(std::vector<long long>(6, 0), std::vector<long long>(18, 0)));
    GetPerfData(nullptr, nullptr, &t[1], nullptr, nullptr, nullptr, nullptr);
    EXPECT_EQ(GetPerfData2(nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr), 6);
}
