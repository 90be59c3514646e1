// Densities, cumulative functions and inverses of the probability
// distributions. Each member is a frame over a kernel of plain doubles:
//
//  1. an undefined argument gives the undefined value;
//  2. a symbolic argument gives the held call of the row;
//  3. a vector or matrix x is mapped element by element, with each other
//     argument a real number or an array of x's shape; a numeric x with
//     real parameters takes a fast path over its raw doubles;
//  4. real arguments only: a NaN or an infinite parameter gives the
//     undefined value; the discrete families cut x to a whole number;
//  5. the kernel refuses parameters out of range (undefined) and gives a
//     double.

#include <array>
#include <cmath>

#include "frame/math.h"
#include "functions/elementwise_skeleton.h"
#include "statistics/distribution_kernels.h"
#include "value/value_internal.h"

namespace VarnholtMath {
namespace ValueTypes {

namespace {

namespace st = VarnholtMath::statistics;
using elementwise::kNaN;

// How x is read: as it is, or cut to a whole number (discrete densities and
// cumulatives; the probability of an inverse is never cut).
enum class XRead { real, whole };

template <std::size_t N, class Kernel>
double evaluate(Kernel kernel, std::array<double, N> v, XRead read)
{
    for (std::size_t i = 0; i < N; ++i) {
        if (std::isnan(v[i]))
            return kNaN;
        if (i > 0 && std::isinf(v[i]))
            return kNaN;
    }
    if (read == XRead::whole)
        v[0] = static_cast<double>(internal::cutToInt32(v[0]));
    if constexpr (N == 2)
        return kernel(v[0], v[1]);
    else
        return kernel(v[0], v[1], v[2]);
}

template <std::size_t N, class Kernel, class Self>
vhValue distribution(const std::array<const vhValue*, N>& args, int id, XRead read, Kernel kernel, Self self)
{
    for (const vhValue* a : args)
        if (a->isNull())
            return vhValue();
    for (const vhValue* a : args)
        if (a->isSymbolic()) {
            std::vector<vhValue> list;
            for (const vhValue* b : args)
                list.push_back(*b);
            return elementwise::symbolicCall(id, list);
        }
    std::array<double, N> v{};
    const vhValue& x = *args[0];
    if (!elementwise::isArray(x)) {
        for (std::size_t i = 0; i < N; ++i)
            if (!elementwise::realOf(*args[i], v[i]))
                return vhValue();
        return elementwise::doubleOrUndefined(evaluate<N>(kernel, v, read));
    }
    vhValue holders[N];
    std::array<const vhValue*, N> arrays{};
    bool scalarParameters = true;
    for (std::size_t i = 0; i < N; ++i) {
        arrays[i] = &elementwise::arrayOf(*args[i], holders[i]);
        if (i == 0)
            continue;
        if (elementwise::isArray(*arrays[i])) {
            if (!arrays[0]->isDataAlignedWidh(*arrays[i]))
                return vhValue();
            scalarParameters = false;
        } else if (!elementwise::realOf(*arrays[i], v[i])) {
            return vhValue();
        }
    }
    const vhValue& array = *arrays[0];
    const unsigned int n = array.vectorSize();
    const double* in = array.numericValues();
    if (scalarParameters && in && !array.numericImValues()) {
        vhValue result = elementwise::sameShape(array);
        double* out = result.numericValues();
        if (out && result.vectorSize() == n) {
            for (unsigned int k = 0; k < n; ++k) {
                v[0] = in[k];
                const double r = evaluate<N>(kernel, v, read);
                out[k] = std::isnan(r) ? kNaN : r;
            }
            return result;
        }
    }
    vhValue result = elementwise::sameShape(array);
    for (unsigned int k = 0; k < n; ++k) {
        std::array<vhValue, N> at;
        for (std::size_t i = 0; i < N; ++i)
            at[i] = (i == 0 || elementwise::isArray(*arrays[i])) ? arrays[i]->value(k) : *arrays[i];
        result.setValue(self(at), k);
    }
    return result;
}

// The frames of members of two and three arguments.
template <class Kernel, class Member>
vhValue two(vhMath* m, const vhValue& x, const vhValue& p, int id, XRead read, Kernel kernel, Member member)
{
    return distribution<2>({&x, &p}, id, read, kernel,
                           [&](const std::array<vhValue, 2>& a) { return (m->*member)(a[0], a[1]); });
}

template <class Kernel, class Member>
vhValue three(vhMath* m, const vhValue& x, const vhValue& p, const vhValue& q, int id, XRead read, Kernel kernel,
              Member member)
{
    return distribution<3>({&x, &p, &q}, id, read, kernel,
                           [&](const std::array<vhValue, 3>& a) { return (m->*member)(a[0], a[1], a[2]); });
}

constexpr XRead kReal = XRead::real;
constexpr XRead kWhole = XRead::whole;

} // namespace

// --- normal ------------------------------------------------------------------------

vhValue vhMath::normaldens_f(const vhValue& x, const vhValue& mean, const vhValue& sigma)
{
    return three(this, x, mean, sigma, nt_normaldens, kReal, st::normalDensity, &vhMath::normaldens_f);
}
vhValue vhMath::normaldist_f(const vhValue& x, const vhValue& mean, const vhValue& sigma)
{
    return three(this, x, mean, sigma, nt_normaldist, kReal, st::normalDistribution, &vhMath::normaldist_f);
}
vhValue vhMath::normalinv_f(const vhValue& p, const vhValue& mean, const vhValue& sigma)
{
    return three(this, p, mean, sigma, nt_normalinv, kReal, st::normalInverse, &vhMath::normalinv_f);
}

// --- t, chi-square, gamma -------------------------------------------------------------

vhValue vhMath::tdens_f(const vhValue& t, const vhValue& df)
{
    return two(this, t, df, nt_tdens, kReal, st::tdens, &vhMath::tdens_f);
}
vhValue vhMath::tdist_f(const vhValue& t, const vhValue& df)
{
    return two(this, t, df, nt_tdist, kReal, st::tdist, &vhMath::tdist_f);
}
vhValue vhMath::tinv_f(const vhValue& p, const vhValue& df)
{
    return two(this, p, df, nt_tinv, kReal, st::tinv, &vhMath::tinv_f);
}

vhValue vhMath::chidens_f(const vhValue& x, const vhValue& df)
{
    return two(this, x, df, nt_chidens, kReal, st::chidensn, &vhMath::chidens_f);
}
vhValue vhMath::chidist_f(const vhValue& x, const vhValue& df)
{
    return two(this, x, df, nt_chidist, kReal, st::chidistn, &vhMath::chidist_f);
}
vhValue vhMath::chiinv_f(const vhValue& p, const vhValue& df)
{
    return two(this, p, df, nt_chiinv, kReal, st::chiinvn, &vhMath::chiinv_f);
}

vhValue vhMath::gammadens_f(const vhValue& x, const vhValue& shape, const vhValue& scale)
{
    return three(this, x, shape, scale, nt_gammadens, kReal, st::gammadensn, &vhMath::gammadens_f);
}
vhValue vhMath::gammadist_f(const vhValue& x, const vhValue& shape, const vhValue& scale)
{
    return three(this, x, shape, scale, nt_gammadist, kReal, st::gammadistnn, &vhMath::gammadist_f);
}
vhValue vhMath::gammainv_f(const vhValue& p, const vhValue& shape, const vhValue& scale)
{
    return three(this, p, shape, scale, nt_gammainv, kReal, st::gammainvnn, &vhMath::gammainv_f);
}

// --- beta and F ----------------------------------------------------------------------------

vhValue vhMath::betadens_f(const vhValue& x, const vhValue& a, const vhValue& b)
{
    return three(this, x, a, b, nt_betadens, kReal, st::betaDensity, &vhMath::betadens_f);
}
vhValue vhMath::betadist_f(const vhValue& x, const vhValue& a, const vhValue& b)
{
    return three(this, x, a, b, nt_betadist, kReal, st::betaDistribution, &vhMath::betadist_f);
}
vhValue vhMath::betainv_f(const vhValue& p, const vhValue& a, const vhValue& b)
{
    return three(this, p, a, b, nt_betainv, kReal, st::betaInverse, &vhMath::betainv_f);
}

vhValue vhMath::fdens_f(const vhValue& x, const vhValue& d1, const vhValue& d2)
{
    return three(this, x, d1, d2, nt_fdens, kReal, st::fDensity, &vhMath::fdens_f);
}
vhValue vhMath::fdist_f(const vhValue& x, const vhValue& d1, const vhValue& d2)
{
    return three(this, x, d1, d2, nt_fdist, kReal, st::fDistribution, &vhMath::fdist_f);
}
vhValue vhMath::finv_f(const vhValue& p, const vhValue& d1, const vhValue& d2)
{
    return three(this, p, d1, d2, nt_finv, kReal, st::fInverse, &vhMath::finv_f);
}

// --- discrete families ------------------------------------------------------------------------

vhValue vhMath::poissondens_f(const vhValue& k, const vhValue& rate)
{
    return two(this, k, rate, nt_poissondens, kWhole, st::poissonDensity, &vhMath::poissondens_f);
}
vhValue vhMath::poissondist_f(const vhValue& k, const vhValue& rate)
{
    return two(this, k, rate, nt_poissondist, kWhole, st::poissonDistribution, &vhMath::poissondist_f);
}
vhValue vhMath::poissoninv_f(const vhValue& p, const vhValue& rate)
{
    return two(this, p, rate, nt_poissoninv, kReal, st::poissonInverse, &vhMath::poissoninv_f);
}

vhValue vhMath::geometricdens_f(const vhValue& k, const vhValue& p)
{
    return two(this, k, p, nt_geometricdens, kWhole, st::geometricDensity, &vhMath::geometricdens_f);
}
vhValue vhMath::geometricdist_f(const vhValue& k, const vhValue& p)
{
    return two(this, k, p, nt_geometricdist, kWhole, st::geometricDistribution, &vhMath::geometricdist_f);
}
vhValue vhMath::geometricinv_f(const vhValue& q, const vhValue& p)
{
    return two(this, q, p, nt_geometricinv, kReal, st::geometricInverse, &vhMath::geometricinv_f);
}

vhValue vhMath::logarithmicdens_f(const vhValue& k, const vhValue& p)
{
    return two(this, k, p, nt_logarithmicdens, kWhole, st::logarithmicDensity, &vhMath::logarithmicdens_f);
}
vhValue vhMath::logarithmicdist_f(const vhValue& k, const vhValue& p)
{
    return two(this, k, p, nt_logarithmicdist, kWhole, st::logarithmicDistribution, &vhMath::logarithmicdist_f);
}
vhValue vhMath::logarithmicinv_f(const vhValue& q, const vhValue& p)
{
    return two(this, q, p, nt_logarithmicinv, kReal, st::logarithmicInverse, &vhMath::logarithmicinv_f);
}

// --- closed forms ---------------------------------------------------------------------------------

vhValue vhMath::exponentialdens_f(const vhValue& x, const vhValue& rate)
{
    return two(this, x, rate, nt_exponentialdens, kReal, st::exponentialDensity, &vhMath::exponentialdens_f);
}
vhValue vhMath::exponentialdist_f(const vhValue& x, const vhValue& rate)
{
    return two(this, x, rate, nt_exponentialdist, kReal, st::exponentialDistribution, &vhMath::exponentialdist_f);
}
vhValue vhMath::exponentialinv_f(const vhValue& p, const vhValue& rate)
{
    return two(this, p, rate, nt_exponentialinv, kReal, st::exponentialInverse, &vhMath::exponentialinv_f);
}

vhValue vhMath::dblexponentialdens_f(const vhValue& x, const vhValue& location, const vhValue& scale)
{
    return three(this, x, location, scale, nt_dblexponentialdens, kReal, st::laplaceDensity,
                 &vhMath::dblexponentialdens_f);
}
vhValue vhMath::dblexponentialdist_f(const vhValue& x, const vhValue& location, const vhValue& scale)
{
    return three(this, x, location, scale, nt_dblexponentialdist, kReal, st::laplaceDistribution,
                 &vhMath::dblexponentialdist_f);
}
vhValue vhMath::dblexponentialinv_f(const vhValue& p, const vhValue& location, const vhValue& scale)
{
    return three(this, p, location, scale, nt_dblexponentialinv, kReal, st::laplaceInverse,
                 &vhMath::dblexponentialinv_f);
}

vhValue vhMath::cauchydens_f(const vhValue& x, const vhValue& location, const vhValue& scale)
{
    return three(this, x, location, scale, nt_cauchydens, kReal, st::cauchyDensity, &vhMath::cauchydens_f);
}
vhValue vhMath::cauchydist_f(const vhValue& x, const vhValue& location, const vhValue& scale)
{
    return three(this, x, location, scale, nt_cauchydist, kReal, st::cauchyDistribution, &vhMath::cauchydist_f);
}
vhValue vhMath::cauchyinv_f(const vhValue& p, const vhValue& location, const vhValue& scale)
{
    return three(this, p, location, scale, nt_cauchyinv, kReal, st::cauchyInverse, &vhMath::cauchyinv_f);
}

} // namespace ValueTypes
} // namespace VarnholtMath
