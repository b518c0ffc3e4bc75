// The ASCII number parser: arbitrary text read as the ASCII form. Whatever it
// returns must survive the round trip; text made only of plain numbers must
// read as those numbers, each as strtod/strtof or a hexadecimal integer gives it.
#include "fuzz_io.hpp"

#include <cctype>
#include <vector>

namespace {

// The numbers of text made of blank-separated tokens of the forms
// [+-]digits[.digits][e[+-]digits] and [+-]0x hexdigits (at most 13 digits),
// each at most 64 characters; false for any other text.
template <class T> bool plain_numbers(const std::string& s, std::vector<T>& out) {
    std::size_t i = 0;
    for (;;) {
        while (i < s.size() && std::isspace(static_cast<unsigned char>(s[i]))) ++i;
        if (i == s.size()) return true;
        std::size_t j = i;
        while (j < s.size() && !std::isspace(static_cast<unsigned char>(s[j]))) ++j;
        const std::string tok = s.substr(i, j - i);
        i = j;
        if (tok.size() > 64) return false;
        std::size_t k = tok[0] == '+' || tok[0] == '-' ? 1 : 0;
        const bool negative = tok[0] == '-';
        if (tok.size() > k + 2 && tok.compare(k, 2, "0x") == 0 && tok.size() - k - 2 <= 13) {
            const std::string hex = tok.substr(k + 2);
            if (hex.find_first_not_of("0123456789abcdefABCDEF") != std::string::npos) return false;
            const double value = static_cast<double>(std::strtoull(hex.c_str(), nullptr, 16));
            out.push_back(static_cast<T>(negative ? -value : value));
            continue;
        }
        auto digits = [&] { const std::size_t b = k; while (k < tok.size() && std::isdigit(static_cast<unsigned char>(tok[k]))) ++k; return k - b; };
        std::size_t n = digits();
        if (k < tok.size() && tok[k] == '.') { ++k; n += digits(); }
        if (n == 0) return false;
        if (k < tok.size() && (tok[k] == 'e' || tok[k] == 'E')) {
            ++k;
            if (k < tok.size() && (tok[k] == '+' || tok[k] == '-')) ++k;
            if (digits() == 0) return false;
        }
        if (k != tok.size()) return false;
        out.push_back(sizeof(T) == 8 ? static_cast<T>(std::strtod(tok.c_str(), nullptr))
                                     : static_cast<T>(std::strtof(tok.c_str(), nullptr)));
    }
}

template <class V, class T> void check(const std::string& text) {
    fz::read_all<V>(text.data(), text.size(), 16);
    std::vector<T> expect;
    if (!plain_numbers<T>(text, expect) || expect.empty()) return;
    FILE* f = fz::open_bytes(text.data(), text.size());
    V v;
    fz::init(&v);
    if (fz::read(&v, f) != 1 || v.complex || v.points != static_cast<int>(expect.size()) || v.delta != T(1))
        fz::fail("plain numbers do not read as one real vector");
    for (std::size_t k = 0; k < expect.size(); ++k)
        if (std::memcmp(&v.data[k], &expect[k], sizeof(T)) != 0) fz::fail("a plain number reads as another value");
    fz::destroy(&v);
    std::fclose(f);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
    // A leading blank keeps the text away from the binary form's first bytes.
    const std::string text = " " + std::string(reinterpret_cast<const char*>(data), size);
    check<dsp_vector, double>(text);
    check<dspf_vector, float>(text);
    return 0;
}
