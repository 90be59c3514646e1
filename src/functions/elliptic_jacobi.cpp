// Carlson's symmetric elliptic integrals and the Jacobi elliptic functions of
// modulus k, on the kernels of Boost.Math.

#include <cmath>
#include <vector>

#include <boost/math/special_functions/ellint_rc.hpp>
#include <boost/math/special_functions/ellint_rd.hpp>
#include <boost/math/special_functions/ellint_rf.hpp>
#include <boost/math/special_functions/ellint_rj.hpp>
#include <boost/math/special_functions/jacobi_elliptic.hpp>

#include "frame/math.h"
#include "functions/special_frame.h"

namespace VarnholtMath {
namespace ValueTypes {

using special::ThrowingPolicy;

namespace {

// The Carlson integrals vanish as any argument grows without bound; the
// kernels would iterate on an infinite argument without end. true when the
// value is settled here: 0 for infinite arguments that are all positive,
// NaN for an infinite one beside a negative one.
bool carlsonAtInfinity(const std::vector<double>& v, double& out)
{
    bool infinite = false, negative = false;
    for (double a : v) {
        infinite = infinite || std::isinf(a);
        negative = negative || a < 0.0;
    }
    if (!infinite)
        return false;
    out = negative ? elementwise::kNaN : 0.0;
    return true;
}

template <class Kernel> double carlson(const std::vector<double>& v, Kernel kernel)
{
    double out;
    return carlsonAtInfinity(v, out) ? out : kernel();
}

} // namespace

vhValue vhMath::EllipticIntegralCarlsonRf_f(const vhValue& x, const vhValue& y, const vhValue& z)
{
    return special::realNary(
        {x, y, z}, nt_EllipticIntegralCarlsonRf,
        [this](const std::vector<vhValue>& v) { return EllipticIntegralCarlsonRf_f(v[0], v[1], v[2]); },
        [](const std::vector<double>& v) {
            return carlson(v, [&] { return boost::math::ellint_rf(v[0], v[1], v[2], ThrowingPolicy()); });
        });
}

vhValue vhMath::EllipticIntegralCarlsonRd_f(const vhValue& x, const vhValue& y, const vhValue& z)
{
    return special::realNary(
        {x, y, z}, nt_EllipticIntegralCarlsonRd,
        [this](const std::vector<vhValue>& v) { return EllipticIntegralCarlsonRd_f(v[0], v[1], v[2]); },
        [](const std::vector<double>& v) {
            return carlson(v, [&] { return boost::math::ellint_rd(v[0], v[1], v[2], ThrowingPolicy()); });
        });
}

vhValue vhMath::EllipticIntegralCarlsonRj_f(const vhValue& x, const vhValue& y, const vhValue& z, const vhValue& p)
{
    return special::realNary(
        {x, y, z, p}, nt_EllipticIntegralCarlsonRj,
        [this](const std::vector<vhValue>& v) { return EllipticIntegralCarlsonRj_f(v[0], v[1], v[2], v[3]); },
        [](const std::vector<double>& v) {
            return carlson(v, [&] { return boost::math::ellint_rj(v[0], v[1], v[2], v[3], ThrowingPolicy()); });
        });
}

vhValue vhMath::EllipticIntegralCarlsonRc_f(const vhValue& x, const vhValue& y)
{
    return special::realBinary(
        x, y, nt_EllipticIntegralCarlsonRc,
        [this](const vhValue& p, const vhValue& q) { return EllipticIntegralCarlsonRc_f(p, q); },
        [](double a, double b) {
            return carlson({a, b}, [&] { return boost::math::ellint_rc(a, b, ThrowingPolicy()); });
        });
}

// One member per Jacobi function: the frame of two real arguments around the
// kernel of that name.
#define VH_JACOBI_MEMBER(MEMBER, ID, KERNEL)                                                                       \
    vhValue vhMath::MEMBER(const vhValue& k, const vhValue& u)                                                    \
    {                                                                                                              \
        return special::realBinary(                                                                                \
            k, u, ID, [this](const vhValue& p, const vhValue& q) { return MEMBER(p, q); },                        \
            [](double modulus, double v) { return boost::math::KERNEL(modulus, v, ThrowingPolicy()); });           \
    }

VH_JACOBI_MEMBER(JacobiEllipticSn_f, nt_JacobiEllipticSn, jacobi_sn)
VH_JACOBI_MEMBER(JacobiEllipticCn_f, nt_JacobiEllipticCn, jacobi_cn)
VH_JACOBI_MEMBER(JacobiEllipticDn_f, nt_JacobiEllipticDn, jacobi_dn)
VH_JACOBI_MEMBER(JacobiCd_f, nt_JacobiCd, jacobi_cd)
VH_JACOBI_MEMBER(JacobiCn_f, nt_JacobiCn, jacobi_cn)
VH_JACOBI_MEMBER(JacobiCs_f, nt_JacobiCs, jacobi_cs)
VH_JACOBI_MEMBER(JacobiDc_f, nt_JacobiDc, jacobi_dc)
VH_JACOBI_MEMBER(JacobiDn_f, nt_JacobiDn, jacobi_dn)
VH_JACOBI_MEMBER(JacobiDs_f, nt_JacobiDs, jacobi_ds)
VH_JACOBI_MEMBER(JacobiNc_f, nt_JacobiNc, jacobi_nc)
VH_JACOBI_MEMBER(JacobiNd_f, nt_JacobiNd, jacobi_nd)
VH_JACOBI_MEMBER(JacobiNs_f, nt_JacobiNs, jacobi_ns)
VH_JACOBI_MEMBER(JacobiSc_f, nt_JacobiSc, jacobi_sc)
VH_JACOBI_MEMBER(JacobiSd_f, nt_JacobiSd, jacobi_sd)
VH_JACOBI_MEMBER(JacobiSn_f, nt_JacobiSn, jacobi_sn)

#undef VH_JACOBI_MEMBER

} // namespace ValueTypes
} // namespace VarnholtMath
