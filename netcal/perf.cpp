// The performance-counter frequency and the six timing records. Nothing in the
// library fills the records: they stay zero for the life of the process.
#include "netcal/correct.hpp"

#ifdef _WIN32
#include <windows.h>
#else
#include <chrono>
#endif

namespace zf {

namespace {
long long timing_records[6][3];  // zero-initialised, never written
}  // namespace

long long perf_frequency() noexcept {
#ifdef _WIN32
    LARGE_INTEGER f;
    if (!QueryPerformanceFrequency(&f)) return 0;
    return static_cast<long long>(f.QuadPart);
#else
    // The tick rate of the monotonic clock (nanoseconds on Linux).
    using period = std::chrono::steady_clock::period;
    return static_cast<long long>(period::den / period::num);
#endif
}

namespace {
// The order in which the records are reported.
constexpr int kReportOrder[6] = {3, 4, 2, 5, 1, 0};
}  // namespace

void get_perf_data(long long* frequency, long long* t1, long long* t2, long long* t3, long long* t4,
                   long long* t5, long long* t6) noexcept {
    long long* const t[6] = {t1, t2, t3, t4, t5, t6};
    if (frequency) *frequency = perf_frequency();
    for (int i = 0; i < 6; ++i)
        if (t[i]) *t[i] = timing_records[kReportOrder[i]][1];
}

int get_perf_data2(long long* frequency, long long* r1, long long* r2, long long* r3, long long* r4,
                  long long* r5, long long* r6) noexcept {
    long long* const r[6] = {r1, r2, r3, r4, r5, r6};
    if (frequency) *frequency = perf_frequency();
    for (int i = 0; i < 6; ++i)
        if (r[i])
            for (int f = 0; f < 3; ++f) r[i][f] = timing_records[kReportOrder[i]][f];
    return 6;
}

}  // namespace zf
