// Writes the seed corpus of the fuzz harnesses with the library's own writer:
// both forms and both precisions, real and complex, byte-swapped copies and the
// two older headers of the binary form, a stream of several vectors, and text
// for the number parser.  Usage: fuzz_corpus DIR (DIR/read and DIR/number exist).
#include "fuzz_io.hpp"

#include <cstdint>
#include <vector>

namespace {

std::string dir;

void save(const std::string& name, const std::string& bytes) {
    FILE* f = std::fopen((dir + "/" + name).c_str(), "wb");
    if (!f || std::fwrite(bytes.data(), 1, bytes.size(), f) != bytes.size() || std::fclose(f) != 0)
        fz::fail(name.c_str());
}

// The binary file with every header word and scalar byte-reversed.
std::string swapped(std::string s, int size) {
    auto rev = [&](std::size_t at, int n) { for (int i = 0; i < n / 2; ++i) std::swap(s[at + i], s[at + n - 1 - i]); };
    for (std::size_t at = 0; at < 16; at += 4) rev(at, 4);
    for (std::size_t at = 16; at + size <= s.size(); at += size) rev(at, size);
    return s;
}

// The binary file with the older header of its scalar size (no size word).
std::string older(const std::string& s, int size) {
    const std::uint32_t magic = size == 8 ? 0xEB0110BEu : 0xEB0220BEu;
    return std::string(reinterpret_cast<const char*>(&magic), 4) + s.substr(8);
}

template <class T> void vectors(const char* tag) {
    const T special[] = {T(0.5), T(-0.0), T(1e-3), T(3.25e7), T(1) / T(3), T(-2.5e-40), INFINITY, NAN};
    for (int complex = 0; complex < 2; ++complex) {
        zf::Vec<T> v;
        zf::init<T>(&v);
        v.points = 4, v.complex = complex, v.delta = T(0.125);
        v.data = const_cast<T*>(special);  // wraps the array; alloc stays 0
        const std::string name = "read/" + std::string(tag) + (complex ? "_complex" : "_real"), bin = fz::written<T>(v, 0);
        save(name + ".bin", bin);
        save(name + "_swapped.bin", swapped(bin, sizeof(T)));
        save(name + "_older.bin", older(bin, sizeof(T)));
        save(name + "_older_swapped.bin", swapped(older(bin, sizeof(T)), sizeof(T)));
        save(name + ".txt", fz::written<T>(v, 1));
        save(name + "_stream", bin + fz::written<T>(v, 1) + swapped(bin, sizeof(T)));
        v.points = 8 / (complex + 1);
        save("number" + name.substr(4) + "_body.txt", fz::written<T>(v, 0x101));  // the samples without header
        v.points = 0;
        save(name + "_empty.bin", fz::written<T>(v, 0));
        save(name + "_empty.txt", fz::written<T>(v, 1));
    }
}

}  // namespace

int main(int argc, char** argv) {
    if (argc != 2) return 2;
    dir = argv[1];
    vectors<double>("double");
    vectors<float>("float");
    save("number/plain.txt", "1 -2.5 +3e4 .5 7. 1e-310 0x1F -0x10 0X0\n");
    save("number/separators.txt", "1,2;3\t4\r\n5 ,6 inf -inf nan INFINITY\n");
    save("number/header.txt", "#DSP points = 3\n#DSP complex = 1\n#DSP delta = 0.5\n1 2 3 4 5\n");
    return 0;
}
