#include <gtest/gtest.h>
#include <strings.h>
#include <zifaif/dsp.h>

#include <string>

#define ZT_KIND(name) {#name, DSP_WINDOW_##name},
static const std::pair<std::string, int> constants[] = {   // the header's names, canonical first for each kind
    ZT_KIND(UNIFORM) ZT_KIND(RECTANGULAR) ZT_KIND(NONE) ZT_KIND(P000) ZT_KIND(BARTLETT) ZT_KIND(TRIANGULAR) ZT_KIND(HANN)
    ZT_KIND(P110) ZT_KIND(HAMMING) ZT_KIND(P100) ZT_KIND(BLACKMAN) ZT_KIND(BLACKMAN_HARRIS3) ZT_KIND(P200)
    ZT_KIND(BLACKMAN_HARRIS4) ZT_KIND(P310) ZT_KIND(LOWLEAK) ZT_KIND(GAUSSTOP) ZT_KIND(P400) ZT_KIND(FLAT4) ZT_KIND(P301)
    ZT_KIND(FLATTOP) ZT_KIND(FLAT5) ZT_KIND(P401) ZT_KIND(FLAT6) ZT_KIND(P511) ZT_KIND(FLAT7) ZT_KIND(P611) ZT_KIND(P501)
    ZT_KIND(P601) ZT_KIND(KAISER70) ZT_KIND(KAISER80) ZT_KIND(KAISER90) ZT_KIND(KAISER100) ZT_KIND(KAISER110)
    ZT_KIND(KAISER120) ZT_KIND(GAUSS60) ZT_KIND(GAUSS70) ZT_KIND(GAUSS80) ZT_KIND(RIEMANN) ZT_KIND(SINC_LOBE)};

// Every name in three spellings back to its kind; each kind's first name in
// its short form; unknown kinds, short buffers (truncated, always terminated)
// and malformed names refused, the kind left alone unless the text was read.
TEST(WindowNames, RoundTripsUnknownNamesAndShortBuffers) {
    for (const auto& [to_str, from_str] : {std::pair(dsp_window_to_str, dsp_window_from_str), {dspf_window_to_str, dspf_window_from_str}}) {
        int last = -1, k = -1;
        char buf[32];
        for (const auto& [name, kind] : constants) {
            for (const std::string& text : {name, "DSP_WINDOW_" + name, "dsp_Window_" + name})
                EXPECT_EQ(std::pair(from_str(text.c_str(), &k), k), std::pair(0, kind)) << text;
            if (kind == last) continue;
            ASSERT_EQ(to_str(kind, buf, sizeof buf), 0);
            EXPECT_EQ(strcasecmp(buf, name.c_str()), 0) << buf;
            last = kind;
        }
        for (auto [kind, name] : {std::pair(6, "Blackman_Harris4"), {9, "Flattop"}, {14, "Kaiser70"}, {23, "Riemann"}, {24, ""}, {25, ""}, {-1, ""}}) {
            EXPECT_EQ(to_str(kind, buf, sizeof buf), *name ? 0 : -1);
            EXPECT_STREQ(buf, name);
        }
        EXPECT_EQ(to_str(6, buf, 4) + to_str(2, buf, 0) + to_str(2, nullptr, 8), -2);
        EXPECT_STREQ(buf, "Bla");
        for (const char* text : {"HAN", " hann", "hann ", "", "DSP_WINDOW_", "hannx", "DSP_WINDOW_DSP_WINDOW_HANN", static_cast<const char*>(nullptr)}) {
            k = 9;
            EXPECT_EQ(std::pair(from_str(text, &k), k), std::pair(-1, text ? 0 : 9)) << text;
        }
        EXPECT_EQ(from_str("hann", nullptr), -1);
    }
}
