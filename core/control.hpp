// Library-wide controls: version number, hook installation, floating-point control word.
#pragma once

namespace zf {

// The library's version number.
constexpr int kVersion = 205;
inline int version() noexcept { return kVersion; }

// Installs a hook into its slot, handing the previous one to the caller.
template <class Hook> int set_hook(Hook& slot, Hook hook, Hook* previous) noexcept {
    if (previous) *previous = slot;
    slot = hook;
    return 0;
}

// The floating-point status and control word. This processor has no such
// register: reading gives 0 and writing does nothing. The code that guards its
// rounding mode (matrix inversion, error correction) still goes through these,
// so a port to a processor that has one changes only control.cpp.
int fpscr_get() noexcept;
int fpscr_set(int word) noexcept;
void runfast() noexcept;

// Mask of the rounding-mode field of the control word.
constexpr int kRoundingModeMask = 0x00C00000;

// Saves the control word on construction and on destruction writes back the
// current word with only its rounding-mode field restored.
class RoundingGuard {
public:
    RoundingGuard() noexcept : saved_(fpscr_get()) {}
    ~RoundingGuard() {
        fpscr_set((fpscr_get() & ~kRoundingModeMask) | (saved_ & kRoundingModeMask));
    }
    RoundingGuard(const RoundingGuard&) = delete;
    RoundingGuard& operator=(const RoundingGuard&) = delete;
private:
    int saved_;
};

}  // namespace zf
