// Random numbers, vectors and matrices of the worksheet. Every parameter
// must be a finite real number; the parameters of each family must lie in
// its range (rates, scales, shapes and degrees of freedom above 0,
// probabilities in their interval); sizes are whole numbers above 0 within
// the process-wide limit of array elements and at most 2^27 elements.
// Anything else gives the undefined value.
//
// A vector is a column of n numbers drawn in index order; a matrix is
// filled row by row.

#include <array>
#include <cmath>
#include <cstdint>

#include "frame/math.h"
#include "functions/elementwise_skeleton.h"
#include "statistics/random_variates.h"

namespace VarnholtMath {
namespace ValueTypes {

namespace {

namespace st = VarnholtMath::statistics;

// Random arrays are refused beyond 2^27 elements (1 GiB of doubles), even
// when the process-wide limit would allow more: a size typed by mistake must
// not exhaust the memory of the machine.
constexpr std::uint64_t kMaxRandomElements = std::uint64_t(1) << 27;

template <std::size_t N> bool readParameters(const std::array<const vhValue*, N>& args, std::array<double, N>& v)
{
    for (std::size_t i = 0; i < N; ++i)
        if (!elementwise::realOf(*args[i], v[i]) || std::isinf(v[i]))
            return false;
    return true;
}

bool readSize(const vhValue& v, std::uint64_t& n)
{
    if (v.isNull() || !v.isInteger())
        return false;
    const int k = v.toInt();
    if (k <= 0)
        return false;
    n = static_cast<std::uint64_t>(k);
    return true;
}

// A family: its parameter test and one draw.
template <std::size_t N, class Valid, class Draw> struct Family {
    Valid valid;
    Draw draw;
};

template <std::size_t N, class Valid, class Draw> Family<N, Valid, Draw> family(Valid valid, Draw draw)
{
    return Family<N, Valid, Draw>{valid, draw};
}

template <std::size_t N, class F> vhValue number(const std::array<const vhValue*, N>& args, const F& f)
{
    std::array<double, N> v{};
    if (!readParameters<N>(args, v) || !f.valid(v))
        return vhValue();
    return elementwise::doubleOrUndefined(f.draw(v));
}

template <std::size_t N, class F>
vhValue array(const std::array<const vhValue*, N>& args, const vhValue& rows, const vhValue* columns, const F& f)
{
    std::array<double, N> v{};
    if (!readParameters<N>(args, v) || !f.valid(v))
        return vhValue();
    std::uint64_t r = 0, c = 1;
    if (!readSize(rows, r) || (columns && !readSize(*columns, c)))
        return vhValue();
    if (r * c > maximumNumerOfMatrixElements() || r * c > kMaxRandomElements)
        return vhValue();
    vhValue result = columns ? vhValue(vhMatrix(static_cast<unsigned int>(r), static_cast<unsigned int>(c), true,
                                                false, false))
                             : vhValue(vhVector(static_cast<unsigned int>(r), false, true, false));
    double* out = result.numericValues();
    const std::uint64_t n = r * c;
    if (!out || result.vectorSize() != n)
        return vhValue();
    for (std::uint64_t i = 0; i < n; ++i) {
        const double x = f.draw(v);
        out[i] = std::isnan(x) ? elementwise::kNaN : x;
    }
    return result;
}

// The parameter tests.
auto anyReal = [](const auto&) { return true; };
auto positive1 = [](const std::array<double, 1>& v) { return v[0] > 0.0; };
auto positive2 = [](const std::array<double, 2>& v) { return v[0] > 0.0 && v[1] > 0.0; };

const auto uniformFamily = family<2>(anyReal, [](const std::array<double, 2>& v) {
    return st::uniformVariate(v[0], v[1]);
});
const auto normalFamily = family<2>([](const std::array<double, 2>& v) { return v[1] >= 0.0; },
                                    [](const std::array<double, 2>& v) { return st::normalVariate(v[0], v[1]); });
const auto exponentialFamily =
    family<1>(positive1, [](const std::array<double, 1>& v) { return st::exponentialVariate(v[0]); });
const auto laplaceFamily = family<1>(positive1, [](const std::array<double, 1>& v) { return st::laplaceVariate(v[0]); });
const auto gammaFamily =
    family<2>(positive2, [](const std::array<double, 2>& v) { return st::gammaVariate(v[0], v[1]); });
const auto betaFamily = family<2>(positive2, [](const std::array<double, 2>& v) { return st::betaVariate(v[0], v[1]); });
const auto chiSquareFamily =
    family<1>(positive1, [](const std::array<double, 1>& v) { return st::chiSquareVariate(v[0]); });
const auto cauchyFamily = family<2>([](const std::array<double, 2>& v) { return v[0] > 0.0; },
                                    [](const std::array<double, 2>& v) { return st::cauchyVariate(v[0], v[1]); });
const auto fFamily = family<2>(positive2, [](const std::array<double, 2>& v) { return st::fVariate(v[0], v[1]); });
const auto tFamily = family<1>(positive1, [](const std::array<double, 1>& v) { return st::tVariate(v[0]); });
const auto poissonFamily = family<1>([](const std::array<double, 1>& v) { return v[0] >= 0.0; },
                                     [](const std::array<double, 1>& v) { return st::poissonVariate(v[0]); });
const auto geometricFamily = family<1>([](const std::array<double, 1>& v) { return v[0] > 0.0 && v[0] <= 1.0; },
                                       [](const std::array<double, 1>& v) { return st::geometricVariate(v[0]); });
const auto logarithmicFamily = family<1>([](const std::array<double, 1>& v) { return v[0] > 0.0 && v[0] < 1.0; },
                                         [](const std::array<double, 1>& v) { return st::logarithmicVariate(v[0]); });

} // namespace

#define VH_RANDOM_FAMILY_2(NAME, FAMILY)                                                                   \
    vhValue vhMath::NAME##RandNum_f(const vhValue& a, const vhValue& b) { return number<2>({&a, &b}, FAMILY); } \
    vhValue vhMath::NAME##RandVec_f(const vhValue& a, const vhValue& b, const vhValue& n)                    \
    {                                                                                                      \
        return array<2>({&a, &b}, n, nullptr, FAMILY);                                                     \
    }                                                                                                      \
    vhValue vhMath::NAME##RandMat_f(const vhValue& a, const vhValue& b, const vhValue& rows,                 \
                                    const vhValue& columns)                                                \
    {                                                                                                      \
        return array<2>({&a, &b}, rows, &columns, FAMILY);                                                 \
    }

#define VH_RANDOM_FAMILY_1(NAME, FAMILY)                                                                   \
    vhValue vhMath::NAME##RandNum_f(const vhValue& a) { return number<1>({&a}, FAMILY); }                  \
    vhValue vhMath::NAME##RandVec_f(const vhValue& a, const vhValue& n) { return array<1>({&a}, n, nullptr, FAMILY); } \
    vhValue vhMath::NAME##RandMat_f(const vhValue& a, const vhValue& rows, const vhValue& columns)          \
    {                                                                                                      \
        return array<1>({&a}, rows, &columns, FAMILY);                                                     \
    }

VH_RANDOM_FAMILY_2(u, uniformFamily)
VH_RANDOM_FAMILY_2(norm, normalFamily)
VH_RANDOM_FAMILY_1(exp, exponentialFamily)
VH_RANDOM_FAMILY_1(dblexp, laplaceFamily)
VH_RANDOM_FAMILY_2(gamma, gammaFamily)
VH_RANDOM_FAMILY_2(beta, betaFamily)
VH_RANDOM_FAMILY_1(chi2, chiSquareFamily)
VH_RANDOM_FAMILY_2(cauchy, cauchyFamily)
VH_RANDOM_FAMILY_2(f, fFamily)
VH_RANDOM_FAMILY_1(t, tFamily)
VH_RANDOM_FAMILY_1(poisson, poissonFamily)
VH_RANDOM_FAMILY_1(geometric, geometricFamily)
VH_RANDOM_FAMILY_1(logarithmic, logarithmicFamily)

#undef VH_RANDOM_FAMILY_1
#undef VH_RANDOM_FAMILY_2

} // namespace ValueTypes
} // namespace VarnholtMath
