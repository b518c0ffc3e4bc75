// Window names and the tolerant whole-number conversions of a width.
#include <cmath>
#include <cstring>

#include "window/catalogue.hpp"
#include "window/window.hpp"

namespace zf {
namespace {

constexpr double ulp_up = 1.0000000000000044, ulp_down = 0.9999999999999956, nudge = 4.440892098500626e-15;
constexpr double int_max = 2147483647.0;

inline char lower(char c) noexcept { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }

// Case-insensitive comparison of text with prefix followed by name, over the whole text.
bool same_name(const char* text, const char* prefix, const char* name) noexcept {
    for (const char* part : {prefix, name})
        for (; *part; ++part, ++text)
            if (lower(*text) != lower(*part)) return false;
    return *text == '\0';
}

}  // namespace

int floor_tolerant(double x) noexcept {
    if (!(x > 0)) return 0;
    if (x >= int_max) return 2147483647;
    const double f = std::floor(x <= 0.5 ? x + nudge : x * ulp_up);
    return f >= int_max ? 2147483647 : static_cast<int>(f);
}

int ceil_tolerant(double x) noexcept {
    if (!(x > 0)) return 0;
    if (x >= int_max) return 2147483647;
    return static_cast<int>(std::ceil(x <= 0.5 ? x - nudge : x * ulp_down));
}

int window_to_str(int kind, char* buffer, int size) noexcept {
    if (!buffer || size < 1) return -1;
    for (const win::NameEntry& e : win::names) {   // the DSP_WINDOW_ names follow, never first
        if (e.kind != kind) continue;
        std::strncpy(buffer, e.name, static_cast<std::size_t>(size));
        buffer[size - 1] = '\0';
        return 0;
    }
    buffer[0] = '\0';
    return -1;
}

int window_from_str(const char* text, int* kind) noexcept {
    if (!text || !kind) return -1;
    for (const char* prefix : {"", "DSP_WINDOW_"}) {
        for (const win::NameEntry& e : win::names) {
            if (same_name(text, prefix, e.name)) {
                *kind = e.kind;
                return 0;
            }
        }
    }
    *kind = 0;
    return -1;
}

}  // namespace zf
