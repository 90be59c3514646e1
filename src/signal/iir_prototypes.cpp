// Chebyshev I, Chebyshev II and elliptic filters: the analog low-pass
// prototype's zeros, poles and gain with its edge at 1 rad/s, moved to the
// wanted band on pre-warped edges, then through the bilinear transform
// s = (z - 1) / (z + 1) and expanded to polynomials in 1/z.

#include <cmath>
#include <complex>
#include <vector>

#include "signal/elliptic_landen.h"
#include "signal/iir_design.h"

namespace VarnholtMath {
namespace ValueTypes {
namespace signal {

namespace {

constexpr double kPi = 3.141592653589793;
using cplx = std::complex<double>;

struct Zpk {
    std::vector<cplx> zeros;
    std::vector<cplx> poles;
    double gain = 1.0;
};

cplx productOfNegated(const std::vector<cplx>& v)
{
    cplx p(1.0, 0.0);
    for (const cplx& x : v)
        p *= -x;
    return p;
}

// The pass-band tolerance of Chebyshev I, sqrt(10^(rp/10) - 1), is worked
// out in single precision: both the exponent and the power are rounded.
double chebyshev1Epsilon(double ripple)
{
    const float exponent = static_cast<float>(ripple / 10.0);
    const float power = static_cast<float>(std::pow(10.0, static_cast<double>(exponent)));
    return static_cast<double>(std::sqrt(power - 1.0f));
}

// The level 10^(-r/20) of the elliptic design, its exponent rounded to single
// precision.
double ellipticLevel(double decibels)
{
    return std::pow(10.0, static_cast<double>(static_cast<float>(-decibels / 20.0)));
}

Zpk chebyshev1Prototype(int n, double eps)
{
    Zpk f;
    const double mu = std::asinh(1.0 / eps) / double(n);
    for (int m = -n + 1; m < n; m += 2) {
        const double theta = kPi * double(m) / double(2 * n);
        f.poles.push_back(-std::sinh(cplx(mu, theta)));
    }
    f.gain = productOfNegated(f.poles).real();
    if (n % 2 == 0)
        f.gain /= std::sqrt(1.0 + eps * eps);
    return f;
}

Zpk chebyshev2Prototype(int n, double attenuation)
{
    Zpk f;
    // The stop-band level d and its tolerance d / sqrt(1 - d^2).
    const double d = std::pow(10.0, -attenuation / 20.0);
    const double de = d / std::sqrt(1.0 - d * d);
    const double mu = std::asinh(1.0 / de) / double(n);
    for (int m = -n + 1; m < n; m += 2) {
        if (m != 0)
            f.zeros.push_back(-std::conj(cplx(0.0, 1.0) / std::sin(double(m) * kPi / double(2 * n))));
        const cplx q = -std::exp(cplx(0.0, kPi * double(m) / double(2 * n)));
        f.poles.push_back(1.0 / cplx(std::sinh(mu) * q.real(), std::cosh(mu) * q.imag()));
    }
    f.gain = (productOfNegated(f.poles) / productOfNegated(f.zeros)).real();
    return f;
}

bool ellipticPrototype(int n, double ripple, double attenuation, Zpk& f)
{
    const double d1 = ellipticLevel(ripple);
    const double d2 = ellipticLevel(attenuation);
    const double ep = std::sqrt(1.0 / (d1 * d1) - 1.0);
    const double es = std::sqrt(1.0 / (d2 * d2) - 1.0);
    const double k1 = ep / es;
    if (!(k1 > 0.0 && k1 < 1.0))
        return false;
    const EllipticModulus m1 = EllipticModulus::fromModulus(k1);
    // The selectivity k that order n reaches for this k1.
    const EllipticModulus m = ellipticDegree(n, m1);
    const int half = n / 2;
    const cplx j(0.0, 1.0);
    // v0 places the poles so that the pass-band ripple is exactly ep.
    const double v0 = (-j * inverseSnOfImaginary(1.0 / ep, m1)).real() / double(n);
    for (int i = 1; i <= half; ++i) {
        const double u = double(2 * i - 1) / double(n);
        const cplx zeta = cdLanden(cplx(u, 0.0), m);
        const cplx z = j / (m.k * zeta);
        f.zeros.push_back(z);
        f.zeros.push_back(std::conj(z));
        const cplx p = j * cdLanden(cplx(u, -v0), m);
        f.poles.push_back(p);
        f.poles.push_back(std::conj(p));
    }
    if (n % 2) {
        const cplx p0 = j * snLanden(j * v0, m);
        f.poles.push_back(cplx(p0.real(), 0.0));
    }
    f.gain = (productOfNegated(f.poles) / productOfNegated(f.zeros)).real();
    if (n % 2 == 0)
        f.gain *= d1;
    return true;
}

// The prototype (edge 1) to the band, on edges already pre-warped.
void transform(Zpk& f, IirBand band, double w1, double w2)
{
    const std::size_t degree = f.poles.size() - f.zeros.size();
    const cplx j(0.0, 1.0);
    if (band == iirLowpass) {
        for (cplx& z : f.zeros)
            z *= w1;
        for (cplx& p : f.poles)
            p *= w1;
        f.gain *= std::pow(w1, double(degree));
        return;
    }
    if (band == iirHighpass) {
        f.gain *= (productOfNegated(f.zeros) / productOfNegated(f.poles)).real();
        for (cplx& z : f.zeros)
            z = w1 / z;
        for (cplx& p : f.poles)
            p = w1 / p;
        f.zeros.insert(f.zeros.end(), degree, cplx(0.0, 0.0));
        return;
    }
    const double bw = w2 - w1;
    const double w0 = std::sqrt(w1 * w2);
    auto split = [w0](const std::vector<cplx>& v) {
        std::vector<cplx> r;
        for (const cplx& x : v)
            r.push_back(x + std::sqrt(x * x - w0 * w0));
        for (const cplx& x : v)
            r.push_back(x - std::sqrt(x * x - w0 * w0));
        return r;
    };
    if (band == iirBandpass) {
        std::vector<cplx> z = f.zeros;
        std::vector<cplx> p = f.poles;
        for (cplx& x : z)
            x *= bw / 2.0;
        for (cplx& x : p)
            x *= bw / 2.0;
        f.zeros = split(z);
        f.poles = split(p);
        f.zeros.insert(f.zeros.end(), degree, cplx(0.0, 0.0));
        f.gain *= std::pow(bw, double(degree));
        return;
    }
    f.gain *= (productOfNegated(f.zeros) / productOfNegated(f.poles)).real();
    std::vector<cplx> z = f.zeros;
    std::vector<cplx> p = f.poles;
    for (cplx& x : z)
        x = (bw / 2.0) / x;
    for (cplx& x : p)
        x = (bw / 2.0) / x;
    f.zeros = split(z);
    f.poles = split(p);
    f.zeros.insert(f.zeros.end(), degree, j * w0);
    f.zeros.insert(f.zeros.end(), degree, -j * w0);
}

// The real coefficients of the product of (1 - r x) over the roots.
std::vector<double> expand(const std::vector<cplx>& roots)
{
    std::vector<cplx> c(roots.size() + 1, cplx(0.0, 0.0));
    c[0] = 1.0;
    for (std::size_t i = 0; i < roots.size(); ++i)
        for (std::size_t k = i + 1; k > 0; --k)
            c[k] -= roots[i] * c[k - 1];
    std::vector<double> r(c.size());
    for (std::size_t i = 0; i < c.size(); ++i)
        r[i] = c[i].real();
    return r;
}

bool digital(Zpk f, IirBand band, double f1, double f2, std::vector<double>& b, std::vector<double>& a)
{
    // Edges pre-warped for the bilinear transform with 2 / T = 1.
    const double w1 = std::tan(kPi * f1);
    const double w2 = band == iirBandpass || band == iirBandstop ? std::tan(kPi * f2) : 0.0;
    transform(f, band, w1, w2);
    const std::size_t degree = f.poles.size() - f.zeros.size();
    cplx num(1.0, 0.0);
    cplx den(1.0, 0.0);
    for (cplx& z : f.zeros) {
        num *= 1.0 - z;
        z = (1.0 + z) / (1.0 - z);
    }
    for (cplx& p : f.poles) {
        den *= 1.0 - p;
        p = (1.0 + p) / (1.0 - p);
    }
    // Zeros at infinity land on z = -1.
    f.zeros.insert(f.zeros.end(), degree, cplx(-1.0, 0.0));
    const double gain = f.gain * (num / den).real();
    b = expand(f.zeros);
    a = expand(f.poles);
    for (double& v : b)
        v *= gain;
    for (double v : b)
        if (!std::isfinite(v))
            return false;
    for (double v : a)
        if (!std::isfinite(v))
            return false;
    return true;
}

} // namespace

bool chebyshev1(int order, IirBand band, double f1, double f2, double ripple, std::vector<double>& b,
                std::vector<double>& a)
{
    if (order < 1)
        return false;
    const double eps = chebyshev1Epsilon(ripple);
    if (!(eps > 0.0) || !std::isfinite(eps))
        return false;
    return digital(chebyshev1Prototype(order, eps), band, f1, f2, b, a);
}

bool chebyshev2(int order, IirBand band, double f1, double f2, double attenuation, std::vector<double>& b,
                std::vector<double>& a)
{
    if (order < 1 || !(attenuation > 0.0))
        return false;
    return digital(chebyshev2Prototype(order, attenuation), band, f1, f2, b, a);
}

bool elliptic(int order, IirBand band, double f1, double f2, double ripple, double attenuation,
              std::vector<double>& b, std::vector<double>& a)
{
    Zpk f;
    if (order < 1 || !ellipticPrototype(order, ripple, attenuation, f))
        return false;
    return digital(f, band, f1, f2, b, a);
}

} // namespace signal
} // namespace ValueTypes
} // namespace VarnholtMath
