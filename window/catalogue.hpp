// The window catalogue: one constant table of every window kind 0 .. 24 with
// its shape, its parameters, its three cosine-sum coefficient rows (mean, RMS
// and peak normalisation, indexed by the low two flag bits) and its short
// names, canonical first. Generation, scaling and the name conversions all
// read this table; nothing else knows the kinds.
#pragma once

#include <array>

#include "core/vector.hpp"

namespace zf {
namespace win {

enum class Shape : unsigned char { uniform, triangle, cosine, kaiser, gauss, sinc, tukey };

constexpr int kinds = 25;         // kinds 0 .. 24
constexpr int max_terms = 7;      // longest cosine sum
constexpr int short_names = 40;   // the name table holds these, then as many DSP_WINDOW_ names

struct KindEntry {
    Shape shape;
    int terms;                        // coefficients per row (uniform and cosine sums)
    double p1, p2;                    // Kaiser beta; Gaussian sigma; sinc span, power; Tukey taper
    double rows[3][max_terms];        // mean row, RMS row, peak row
    const char* names[4];             // short names, canonical first
};

// clang-format off
constexpr KindEntry catalogue[kinds] = {
    {Shape::uniform, 1, 0, 0, {{1}, {1}, {1}}, {"Uniform", "Rectangular", "None", "P000"}},
    {Shape::triangle, 0, 0, 0, {}, {"Bartlett", "Triangular"}},
    {Shape::cosine, 2, 0, 0,
     {{1, 1},
      {0.816496580927726, 0.816496580927726},
      {0.5, 0.5}},
     {"Hann", "P110"}},
    {Shape::cosine, 2, 0, 0,
     {{1, 0.8518518518518519},
      {0.8566034682170329, 0.729699250703398},
      {0.54, 0.46}},
     {"Hamming", "P100"}},
    {Shape::cosine, 3, 0, 0,
     {{1, 1.1904761904761905, 0.19047619047619047},
      {0.76099944650684, 0.905951722031952, 0.144952275525112},
      {0.42, 0.5, 0.08}},
     {"Blackman"}},
    {Shape::cosine, 3, 0, 0,
     {{1, 1.171912, 0.184449},
      {0.766131803818887, 0.897839054477, 0.14131224508259},
      {0.424383190860823, 0.497339753968089, 0.078277055171088}},
     {"Blackman_Harris3", "P200"}},
    {Shape::cosine, 4, 0, 0,
     {{1, 1.36998268534551, 0.405410267365249, 0.0354275820197432},
      {0.703382979783909, 0.963622503470687, 0.28515868189436, 0.0249191582075858},
      {0.355768, 0.487396, 0.144232, 0.012604}},
     {"Blackman_Harris4", "P310", "Lowleak"}},
    {Shape::cosine, 5, 0, 0,
     {{1, 1.45875529058, 0.543087184, 0.08816718498, 0.00390252806},
      {0.67186010909274, 0.98007948866869, 0.364878614689109, 0.0592360145190626, 0.00262195292812908},
      {0.3232153788984078, 0.47149214396487166, 0.1755341299514293, 0.028496990099716707, 0.0012613570855745683}},
     {"Gausstop", "P400"}},
    {Shape::cosine, 4, 0, 0,
     {{0.9994484, 1.911456, 1.078578, 0.183162},
      {0.540110737248871, 1.03296769435899, 0.582873071546678, 0.0989823615265958},
      {0.239523981482822, 0.458092235226179, 0.258487878813733, 0.0438959044772663}},
     {"Flat4", "P301"}},
    {Shape::cosine, 5, 0, 0,
     {{0.9996403, 1.940411, 1.3079112, 0.4038558, 0.0350962},
      {0.511503346408074, 0.992883860231563, 0.669241681837557, 0.206647924424725, 0.0179582833407247},
      {0.213283237831627, 0.414006058783449, 0.279055911943774, 0.0861666667911267, 0.00748812465002295}},
     {"Flattop", "Flat5", "P401"}},
    {Shape::cosine, 6, 0, 0,
     {{0.999760855, 1.959279864368, 1.482207318028, 0.639636244612, 0.1236443547086, 0.00669641875546},
      {0.486122572817733, 0.952677996716077, 0.720706788313935, 0.311015994818339, 0.0601206893875967, 0.00325605898429494},
      {0.191847568346755, 0.375972989750395, 0.28442588877861, 0.122742011293553, 0.0237265428747444, 0.00128499895594193}},
     {"Flat6", "P511"}},
    {Shape::cosine, 7, 0, 0,
     {{0.999820406, 1.968927018592, 1.58314833527, 0.813811630104, 0.226727679792, 0.0278660778114, 0.000908305448086},
      {0.468805828779846, 0.923210265782527, 0.742322484061889, 0.381588166666788, 0.106310350533314, 0.013066126301104, 0.000425895376629477},
      {0.177865709213752, 0.350267506494545, 0.281638382006947, 0.144775183509154, 0.0403343233670632, 0.00495730999606168, 0.000161585412477099}},
     {"Flat7", "P611"}},
    {Shape::cosine, 6, 0, 0,
     {{0.99974762, 1.95719157697, 1.462421292406, 0.611433912448, 0.11186507767, 0.00553658087878},
      {0.489148752531658, 0.957599497301472, 0.715522134332392, 0.299157636933899, 0.0547324765765759, 0.00270889530114197},
      {0.194193773561842, 0.380170365312055, 0.284064801584131, 0.118766633064811, 0.0217289855238924, 0.00107544095326841}},
     {"P501"}},
    {Shape::cosine, 7, 0, 0,
     {{0.999813874, 1.967871907162, 1.57208459675, 0.79456597081, 0.21505509556, 0.0252934034374, 0.00076928806393},
      {0.470756142359013, 0.926560244624348, 0.740206251856888, 0.374116444065528, 0.101257353806709, 0.0119092416488318, 0.000362214498874338},
      {0.179324203849725, 0.352952756714861, 0.281965299769994, 0.142511435204976, 0.0385717630030842, 0.0045365638065367, 0.00013797765082358}},
     {"P601"}},
    {Shape::kaiser, 0, 9.473960131326246, 0, {}, {"Kaiser70"}},
    {Shape::kaiser, 0, 10.751776690564654, 0, {}, {"Kaiser80"}},
    {Shape::kaiser, 0, 12.014077292090791, 0, {}, {"Kaiser90"}},
    {Shape::kaiser, 0, 13.264372446115681, 0, {}, {"Kaiser100"}},
    {Shape::kaiser, 0, 14.505082414495599, 0, {}, {"Kaiser110"}},
    {Shape::kaiser, 0, 15.73795091271457, 0, {}, {"Kaiser120"}},
    {Shape::gauss, 0, 0.1583722, 0, {}, {"Gauss60"}},
    {Shape::gauss, 0, 0.1442161, 0, {}, {"Gauss70"}},
    {Shape::gauss, 0, 0.1328102, 0, {}, {"Gauss80"}},
    {Shape::sinc, 0, 3.141592653589793, 1, {}, {"Riemann", "Sinc_Lobe"}},
    {Shape::tukey, 0, 0.25, 0, {}, {}},
};
// clang-format on

// The coefficient rows in the precision T (the single-precision rows are the
// double rows rounded once).
template <class T> struct RowTable {
    T r[kinds][3][max_terms];
};
template <class T> constexpr RowTable<T> make_rows() {
    RowTable<T> t{};
    for (int k = 0; k < kinds; ++k)
        for (int n = 0; n < 3; ++n)
            for (int j = 0; j < max_terms; ++j) t.r[k][n][j] = static_cast<T>(catalogue[k].rows[n][j]);
    return t;
}
template <class T> inline constexpr RowTable<T> rows = make_rows<T>();

// The short names in table order, each with its kind.
struct NameEntry {
    const char* name;
    int kind;
};
constexpr std::array<NameEntry, short_names> make_names() {
    std::array<NameEntry, short_names> t{};
    int i = 0;
    for (int k = 0; k < kinds; ++k)
        for (const char* n : catalogue[k].names)
            if (n && i < short_names) t[i++] = {n, k};
    return t;
}
constexpr std::array<NameEntry, short_names> names = make_names();

constexpr int count_names() {
    int i = 0;
    for (const KindEntry& e : catalogue)
        for (const char* n : e.names) i += n != nullptr;
    return i;
}
static_assert(count_names() == short_names, "the name table holds 40 short names");

// Whether a kind (0 .. 24) takes these flags: low bits 3 never; symmetric not
// for kinds 0 to 13; width only for kind 0 and the cosine sums.
bool accepts(int kind, int flags) noexcept;

// Generators (generate.cpp); both size v to n real samples with the peak at n/2.
// A cosine sum of the coefficients a as given for the normalisation norm, over
// the whole vector or over `width` samples, with the corrections of the
// normalisation (short-length aliasing, or the measured mean / RMS with width).
template <class T>
int cosine_window(Vec<T>* v, int n, const T* a, int terms, int norm, bool use_width, double width) noexcept;
// A triangle, Kaiser (p1 = beta), Gaussian (p1 = sigma), sinc (p1 = span,
// p2 = power) or Tukey (p1 = taper) window, normalised as flags say.
template <class T> int shape_window(Vec<T>* v, int n, Shape shape, double p1, double p2, int flags) noexcept;

}  // namespace win
}  // namespace zf
