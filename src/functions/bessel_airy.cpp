// Bessel and Airy functions, their zeros, and the spherical harmonics, on the
// kernels of Boost.Math. Cylinder functions take real orders; spherical
// functions, zeros and harmonics take whole orders and indices, cut to 32
// bits. Orders and indices are limited to 100000 in magnitude. At an infinite
// argument the functions that decay answer their limit 0 at once, and those
// that grow have no value; the kernels would search a long time for either.

#include <cmath>

#include <boost/math/special_functions/airy.hpp>
#include <boost/math/special_functions/bessel.hpp>
#include <boost/math/special_functions/spherical_harmonic.hpp>

#include "frame/math.h"
#include "functions/special_frame.h"

namespace VarnholtMath {
namespace ValueTypes {

using namespace elementwise;
using special::orderOf;
using special::ThrowingPolicy;

namespace {

// A whole order that the spherical kernels take unsigned.
bool unsignedOrder(double v, unsigned& n)
{
    const int k = orderOf(v);
    if (k < 0 || !special::isOrderInRange(k))
        return false;
    n = static_cast<unsigned>(k);
    return true;
}

// Ai and Bi near 0 from their Maclaurin series, c1 f(x) -+ c2 g(x): the
// kernel answers Ai(0) and Bi(0) for small positive arguments, a relative
// error of up to 1e-7 there. Below 1e-3 three terms are exact to rounding.
double airySeries(double x, bool bi)
{
    const double c1 = 0.35502805388781723926, c2 = 0.25881940379280679840;
    const double x3 = x * x * x;
    const double f = 1.0 + x3 / 6.0 + x3 * x3 / 180.0;
    const double g = x * (1.0 + x3 / 12.0 + x3 * x3 / 504.0);
    return bi ? 1.7320508075688772935 * (c1 * f + c2 * g) : c1 * f - c2 * g;
}

} // namespace

vhValue vhMath::BesselFirstKind_f(const vhValue& order, const vhValue& x)
{
    return special::realBinary(order, x, nt_BesselFirstKind,
                               [this](const vhValue& p, const vhValue& q) { return BesselFirstKind_f(p, q); },
                               [](double v, double z) { return special::isOrderInRange(v) ? (std::isinf(z) ? 0.0 : boost::math::cyl_bessel_j(v, z, ThrowingPolicy())) : kNaN; });
}

vhValue vhMath::BesselSecondKind_f(const vhValue& order, const vhValue& x)
{
    return special::realBinary(order, x, nt_BesselSecondKind,
                               [this](const vhValue& p, const vhValue& q) { return BesselSecondKind_f(p, q); },
                               [](double v, double z) { return special::isOrderInRange(v) ? (z == kInf ? 0.0 : boost::math::cyl_neumann(v, z, ThrowingPolicy())) : kNaN; });
}

vhValue vhMath::BesselFirstKindZero_f(const vhValue& order, const vhValue& index)
{
    return special::realBinary(
        order, index, nt_BesselFirstKindZero,
        [this](const vhValue& p, const vhValue& q) { return BesselFirstKindZero_f(p, q); },
        [](double v, double m) {
            return special::isOrderInRange(v) && special::isOrderInRange(m) ? boost::math::cyl_bessel_j_zero(v, orderOf(m), ThrowingPolicy()) : kNaN;
        });
}

vhValue vhMath::BesselSecondKindZero_f(const vhValue& order, const vhValue& index)
{
    return special::realBinary(
        order, index, nt_BesselSecondKindZero,
        [this](const vhValue& p, const vhValue& q) { return BesselSecondKindZero_f(p, q); },
        [](double v, double m) {
            return special::isOrderInRange(v) && special::isOrderInRange(m) ? boost::math::cyl_neumann_zero(v, orderOf(m), ThrowingPolicy()) : kNaN;
        });
}

vhValue vhMath::ModifiedBesselFirstKind_f(const vhValue& order, const vhValue& x)
{
    return special::realBinary(
        order, x, nt_ModifiedBesselFirstKind,
        [this](const vhValue& p, const vhValue& q) { return ModifiedBesselFirstKind_f(p, q); },
        [](double v, double z) { return special::isOrderInRange(v) && !std::isinf(z) ? boost::math::cyl_bessel_i(v, z, ThrowingPolicy()) : kNaN; });
}

vhValue vhMath::ModifiedBesselSecondKind_f(const vhValue& order, const vhValue& x)
{
    return special::realBinary(
        order, x, nt_ModifiedBesselSecondKind,
        [this](const vhValue& p, const vhValue& q) { return ModifiedBesselSecondKind_f(p, q); },
        [](double v, double z) { return special::isOrderInRange(v) ? (z == kInf ? 0.0 : boost::math::cyl_bessel_k(v, z, ThrowingPolicy())) : kNaN; });
}

vhValue vhMath::SphericalBesselFirstKind_f(const vhValue& order, const vhValue& x)
{
    return special::realBinary(
        order, x, nt_SphericalBesselFirstKind,
        [this](const vhValue& p, const vhValue& q) { return SphericalBesselFirstKind_f(p, q); },
        [](double v, double z) {
            unsigned n;
            if (!unsignedOrder(v, n))
                return kNaN;
            return std::isinf(z) ? 0.0 : boost::math::sph_bessel(n, z, ThrowingPolicy());
        });
}

vhValue vhMath::SphericalBesselSecondKind_f(const vhValue& order, const vhValue& x)
{
    return special::realBinary(
        order, x, nt_SphericalBesselSecondKind,
        [this](const vhValue& p, const vhValue& q) { return SphericalBesselSecondKind_f(p, q); },
        [](double v, double z) {
            unsigned n;
            if (!unsignedOrder(v, n))
                return kNaN;
            return z == kInf ? 0.0 : boost::math::sph_neumann(n, z, ThrowingPolicy());
        });
}

vhValue vhMath::AiryAi_f(const vhValue& x)
{
    return special::realUnary(x, nt_AiryAi, [this](const vhValue& e) { return AiryAi_f(e); },
                              [](double v) {
                                  // Ai decays on both sides; the kernel does not end on an
                                  // infinite argument.
                                  if (std::isinf(v))
                                      return 0.0;
                                  if (std::fabs(v) < 1e-3)
                                      return airySeries(v, false);
                                  return boost::math::airy_ai(v, ThrowingPolicy());
                              });
}

vhValue vhMath::AiryBi_f(const vhValue& x)
{
    return special::realUnary(x, nt_AiryBi, [this](const vhValue& e) { return AiryBi_f(e); },
                              [](double v) {
                                  // Bi decays toward -inf and overflows toward +inf.
                                  if (std::isinf(v))
                                      return v < 0.0 ? 0.0 : kNaN;
                                  if (std::fabs(v) < 1e-3)
                                      return airySeries(v, true);
                                  return boost::math::airy_bi(v, ThrowingPolicy());
                              });
}

vhValue vhMath::AiryAiZero_f(const vhValue& index)
{
    return special::realUnary(index, nt_AiryAiZero, [this](const vhValue& e) { return AiryAiZero_f(e); },
                              [](double m) { return special::isOrderInRange(m) ? boost::math::airy_ai_zero<double>(orderOf(m), ThrowingPolicy()) : kNaN; });
}

vhValue vhMath::AiryBiZero_f(const vhValue& index)
{
    return special::realUnary(index, nt_AiryBiZero, [this](const vhValue& e) { return AiryBiZero_f(e); },
                              [](double m) { return special::isOrderInRange(m) ? boost::math::airy_bi_zero<double>(orderOf(m), ThrowingPolicy()) : kNaN; });
}

vhValue vhMath::SphericalHarmonic_f(const vhValue& n, const vhValue& m, const vhValue& theta, const vhValue& phi)
{
    // A complex value for every degree and order; angles in radians.
    const std::vector<vhValue> args{n, m, theta, phi};
    for (const vhValue& a : args)
        if (a.isNull())
            return vhValue();
    for (const vhValue& a : args)
        if (a.isSymbolic())
            return symbolicCall(nt_SphericalHarmonic, args);
    for (std::size_t i = 1; i < args.size(); ++i)
        if (!aligned(args[0], args[i]))
            return vhValue();
    double v[4];
    bool real = true;
    for (int i = 0; i < 4 && real; ++i)
        real = realOf(args[i], v[i]);
    if (real) {
        unsigned degree;
        if (!unsignedOrder(v[0], degree) || !special::isOrderInRange(v[1]))
            return vhValue();
        try {
            const std::complex<double> y =
                boost::math::spherical_harmonic(degree, orderOf(v[1]), v[2], v[3], ThrowingPolicy());
            return complexOrUndefined(y.real(), y.imag());
        } catch (...) {
            return vhValue();
        }
    }
    if (!isArray(n))
        return vhValue();
    vhValue h[4];
    const vhValue* a[4];
    for (int i = 0; i < 4; ++i)
        a[i] = &arrayOf(args[i], h[i]);
    vhValue result = sameShape(*a[0]);
    const unsigned int count = a[0]->vectorSize();
    for (unsigned int k = 0; k < count; ++k)
        result.setValue(SphericalHarmonic_f(a[0]->value(k), a[1]->value(k), a[2]->value(k), a[3]->value(k)), k);
    keepElementTypes(*a[0], result);
    return result;
}

} // namespace ValueTypes
} // namespace VarnholtMath
