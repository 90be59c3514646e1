// The special functions on the engine's own kernels: Struve H, Lambert W,
// Gauss' hypergeometric function, the Fermi-Dirac integral, the Fresnel
// integrals and Dawson's integral. Where these have complex values (Struve H
// of a negative x, Lambert W below -1/e, 2F1 beyond 1), the result is complex.

#include <cmath>
#include <complex>

#include "frame/math.h"
#include "functions/special_frame.h"
#include "functions/special_kernels.h"

namespace VarnholtMath {
namespace ValueTypes {

using namespace elementwise;

namespace {

// A Lambert W value whose imaginary part is below 1e-06 in magnitude is real.
vhValue lambertValue(std::complex<double> w)
{
    if (std::isnan(w.real()) || std::isnan(w.imag()))
        return vhValue();
    if (std::fabs(w.imag()) < 1e-06)
        return doubleOrUndefined(w.real());
    return vhComplex(w.real(), w.imag());
}

// 2F1 of scalars: real a, b, c; a real or complex z. On the real axis a value
// without imaginary part is real.
vhValue hypergeometricOfScalars(const vhValue& a, const vhValue& b, const vhValue& c, const vhValue& z)
{
    double ra, rb, rc, za, zb;
    if (!realOf(a, ra) || !realOf(b, rb) || !realOf(c, rc))
        return vhValue();
    if (realOf(z, za)) {
        const std::complex<double> r = kernels::hypergeometric2F1(ra, rb, rc, std::complex<double>(za, 0.0));
        if (r.imag() == 0.0)
            return doubleOrUndefined(r.real());
        return complexOrUndefined(r.real(), r.imag());
    }
    if (complexOf(z, za, zb)) {
        const std::complex<double> r = kernels::hypergeometric2F1(ra, rb, rc, std::complex<double>(za, zb));
        return complexOrUndefined(r.real(), r.imag());
    }
    return vhValue();
}

} // namespace

vhValue vhMath::struve_f(const vhValue& n, const vhValue& x)
{
    return binaryReal(n, x, nt_struve, [this](const vhValue& p, const vhValue& q) { return struve_f(p, q); },
                      [](double order, double v) {
                          if (!special::isOrderInRange(order))
                              return vhValue();
                          if (v < 0.0) {
                              const std::complex<double> h = kernels::struve(order, v);
                              return complexOrUndefined(h.real(), h.imag());
                          }
                          return doubleOrUndefined(kernels::struveReal(order, v));
                      });
}

vhValue vhMath::lambert_f(const vhValue& x)
{
    auto kernel = [](double v, double& out) {
        if (v < kernels::lambertBranchPoint)
            return false;
        out = kernels::lambertWReal(v);
        return true;
    };
    return unaryFast(
        x, nt_lambert, [this](const vhValue& e) { return lambert_f(e); },
        [](double a, double b) { return lambertValue(kernels::lambertW(std::complex<double>(a, b))); },
        [&](double d) { return realByKernel(d, kernel, [](double v) { return lambertValue(kernels::lambertW(v)); }); },
        kernel);
}

vhValue vhMath::gausshypergeometric_f(const vhValue& a, const vhValue& b, const vhValue& c, const vhValue& z)
{
    const vhValue* args[4] = {&a, &b, &c, &z};
    for (const vhValue* v : args)
        if (v->isNull())
            return vhValue();
    for (const vhValue* v : args)
        if (v->isSymbolic())
            return symbolicCall(nt_gausshypergeometric, {a, b, c, z});
    // Arrays are mapped position by position; all arrays must have one shape,
    // and a scalar argument serves every position.
    int shape = -1;
    for (int i = 0; i < 4; ++i) {
        if (!isArray(*args[i]))
            continue;
        if (shape < 0)
            shape = i;
        else if (!aligned(*args[shape], *args[i]))
            return vhValue();
    }
    if (shape < 0)
        return hypergeometricOfScalars(a, b, c, z);
    vhValue holders[4];
    const vhValue* values[4];
    for (int i = 0; i < 4; ++i)
        values[i] = isArray(*args[i]) ? &arrayOf(*args[i], holders[i]) : args[i];
    vhValue result = sameShape(*values[shape]);
    const unsigned int n = values[shape]->vectorSize();
    vhValue at[4];
    for (unsigned int k = 0; k < n; ++k) {
        for (int i = 0; i < 4; ++i)
            at[i] = isArray(*args[i]) ? values[i]->value(k) : *values[i];
        result.setValue(gausshypergeometric_f(at[0], at[1], at[2], at[3]), k);
    }
    keepElementTypes(*values[shape], result);
    return result;
}

vhValue vhMath::FermiDirac_f(const vhValue& j, const vhValue& x)
{
    return special::realBinary(j, x, nt_FermiDirac,
                               [this](const vhValue& p, const vhValue& q) { return FermiDirac_f(p, q); },
                               kernels::fermiDirac);
}

vhValue vhMath::FresnelsIntegralS_f(const vhValue& x)
{
    // The infinities have the limits 0.5 and -0.5.
    return special::realUnary(x, nt_FresnelsIntegralS, [this](const vhValue& e) { return FresnelsIntegralS_f(e); },
                              kernels::fresnelS);
}

vhValue vhMath::FresnelsIntegralC_f(const vhValue& x)
{
    return special::realUnary(x, nt_FresnelsIntegralC, [this](const vhValue& e) { return FresnelsIntegralC_f(e); },
                              kernels::fresnelC);
}

vhValue vhMath::DawsonsIntegral_f(const vhValue& x)
{
    return special::realUnary(x, nt_DawsonsIntegral, [this](const vhValue& e) { return DawsonsIntegral_f(e); },
                              kernels::dawson);
}

} // namespace ValueTypes
} // namespace VarnholtMath
