// The error function, the gamma family, the zeta function and the
// exponential integrals, on the kernels of Boost.Math. Arguments within 1e-6
// of 0 count as the pole of the gamma function there, and so do the negative
// whole numbers.

#include <cmath>

#include <boost/math/special_functions/beta.hpp>
#include <boost/math/special_functions/erf.hpp>
#include <boost/math/special_functions/expint.hpp>
#include <boost/math/special_functions/gamma.hpp>
#include <boost/math/special_functions/zeta.hpp>

#include "frame/math.h"
#include "functions/elementary_core.h"
#include "functions/special_frame.h"

namespace VarnholtMath {
namespace ValueTypes {

using namespace elementwise;
using special::guarded;
using special::ThrowingPolicy;

namespace {

bool isNonPositiveWhole(double v) { return v <= 0.0 && std::floor(v) == v; }

// Near 0 and at the negative whole numbers the gamma function has poles.
bool isGammaPole(double v) { return std::fabs(v) < 1e-06 || isNonPositiveWhole(v); }

double gammaOf(double v)
{
    if (isGammaPole(v))
        return kNaN;
    return boost::math::tgamma(v, ThrowingPolicy());
}

// B(x, y) for arguments that are not poles. Negative arguments are shifted
// up by B(x, y) = B(x + 1, y) (x + y) / x until both are positive; far out the
// logarithms of |gamma| with their signs serve instead.
double betaOf(double x, double y)
{
    if (isGammaPole(x) || isGammaPole(y))
        return kNaN;
    if (x > 0.0 && y > 0.0)
        return boost::math::beta(x, y, ThrowingPolicy());
    if (x > -1000.0 && y > -1000.0) {
        double factor = 1.0;
        while (x < 0.0) {
            factor *= (x + y) / x;
            x += 1.0;
        }
        while (y < 0.0) {
            factor *= (x + y) / y;
            y += 1.0;
        }
        if (factor == 0.0)
            return 0.0;
        if (x == 0.0 || y == 0.0)
            return kNaN;
        return factor * boost::math::beta(x, y, ThrowingPolicy());
    }
    // Gamma(x + y) has a pole here, so the beta function is 0.
    if (isNonPositiveWhole(x + y))
        return 0.0;
    int sx = 1, sy = 1, sxy = 1;
    const double lx = boost::math::lgamma(x, &sx, ThrowingPolicy());
    const double ly = boost::math::lgamma(y, &sy, ThrowingPolicy());
    const double lxy = boost::math::lgamma(x + y, &sxy, ThrowingPolicy());
    return double(sx * sy * sxy) * std::exp(lx + ly - lxy);
}

} // namespace

vhValue vhMath::erf_f(const vhValue& x)
{
    return special::realUnary(x, nt_erf, [this](const vhValue& e) { return erf_f(e); },
                              [](double v) { return boost::math::erf(v, ThrowingPolicy()); });
}

vhValue vhMath::erfc_f(const vhValue& x)
{
    return special::realUnary(x, nt_erfc, [this](const vhValue& e) { return erfc_f(e); },
                              [](double v) { return boost::math::erfc(v, ThrowingPolicy()); });
}

vhValue vhMath::gamma_f(const vhValue& x)
{
    return special::realUnary(x, nt_gamma, [this](const vhValue& e) { return gamma_f(e); }, gammaOf);
}

vhValue vhMath::bgamma_f(const vhValue& x)
{
    return special::realUnary(x, nt_bgamma, [this](const vhValue& e) { return bgamma_f(e); },
                              [](double v) { return boost::math::tgamma(v, ThrowingPolicy()); });
}

vhValue vhMath::lgamma_f(const vhValue& x)
{
    // The logarithm of |gamma| through the logarithm of the value, so the
    // result ends where the gamma kernel overflows; at the infinities +inf.
    auto kernel = [](double v) {
        if (std::isinf(v))
            return kInf;
        const double g = std::fabs(gammaOf(v));
        if (std::isnan(g) || g == 0.0)
            return kNaN;
        return std::log(g);
    };
    return special::realUnary(x, nt_lgamma, [this](const vhValue& e) { return lgamma_f(e); }, kernel);
}

vhValue vhMath::beta_f(const vhValue& x, const vhValue& y)
{
    return special::realBinary(x, y, nt_beta, [this](const vhValue& p, const vhValue& q) { return beta_f(p, q); },
                               betaOf);
}

vhValue vhMath::zeta_f(const vhValue& p)
{
    return special::realUnary(p, nt_zeta, [this](const vhValue& e) { return zeta_f(e); },
                              [](double v) {
                                  // Negative even whole numbers are the trivial zeros; the
                                  // kernel cannot negate the lowest 32-bit one itself.
                                  if (v == -2147483648.0)
                                      return 0.0;
                                  return boost::math::zeta(v, ThrowingPolicy());
                              });
}

vhValue vhMath::ExponentialIntegralEn_f(const vhValue& n, const vhValue& x)
{
    return special::realBinary(
        n, x, nt_ExponentialIntegralEn,
        [this](const vhValue& p, const vhValue& q) { return ExponentialIntegralEn_f(p, q); },
        [](double order, double v) {
            const int k = special::orderOf(order);
            if (k < 0 || !special::isOrderInRange(k))
                return kNaN;
            return boost::math::expint(static_cast<unsigned>(k), v, ThrowingPolicy());
        });
}

vhValue vhMath::ExponentialIntegralEi_f(const vhValue& x)
{
    return special::realUnary(x, nt_ExponentialIntegralEi,
                              [this](const vhValue& e) { return ExponentialIntegralEi_f(e); },
                              [](double v) { return boost::math::expint(v, ThrowingPolicy()); });
}

} // namespace ValueTypes
} // namespace VarnholtMath
