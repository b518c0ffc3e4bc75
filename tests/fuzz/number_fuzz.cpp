// The ASCII number parser: arbitrary text read as the ASCII form. Whatever it
// returns must survive the round trip; text made only of plain numbers must
// read as those numbers, each as strtod/strtof or a hexadecimal integer gives it.
#include "fuzz_io.hpp"

#include <regex>
#include <sstream>
#include <vector>

namespace {

// The numbers of text made of blank-separated tokens of the forms
// [+-]digits[.digits][e[+-]digits] and [+-]0x hexdigits (at most 13 digits),
// each at most 64 characters; false for any other text.
template <class T> bool plain_numbers(const std::string& s, std::vector<T>& out) {
    static const std::regex decimal("[+-]?(\\d+\\.?\\d*|\\.\\d+)([eE][+-]?\\d+)?"), hex("[+-]?0x[0-9a-fA-F]{1,13}");
    std::istringstream in(s);
    for (std::string tok; in >> tok;) {
        if (tok.size() > 64) return false;
        if (std::regex_match(tok, hex)) {
            const double value = static_cast<double>(std::strtoull(tok.c_str() + tok.find('x') + 1, nullptr, 16));
            out.push_back(static_cast<T>(tok[0] == '-' ? -value : value));
        } else if (std::regex_match(tok, decimal)) {
            out.push_back(sizeof(T) == 8 ? static_cast<T>(std::strtod(tok.c_str(), nullptr)) : static_cast<T>(std::strtof(tok.c_str(), nullptr)));
        } else {
            return false;
        }
    }
    return true;
}

template <class T> void check(const std::string& text) {
    fz::read_all<T>(text.data(), text.size(), 16);
    std::vector<T> expect;
    if (!plain_numbers<T>(text, expect) || expect.empty()) return;
    zf::Vec<T> v;
    zf::init<T>(&v);
    if (fz::read_back<T>(text, v) != 1 || v.complex || v.points != static_cast<int>(expect.size()) || v.delta != T(1))
        fz::fail("plain numbers do not read as one real vector");
    if (std::memcmp(v.data, expect.data(), expect.size() * sizeof(T)) != 0) fz::fail("a plain number reads as another value");
    zf::destroy<T>(&v);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
    // A leading blank keeps the text away from the binary form's first bytes.
    const std::string text = " " + std::string(reinterpret_cast<const char*>(data), size);
    check<double>(text);
    check<float>(text);
    return 0;
}
