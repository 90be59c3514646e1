// Butterworth filters by the closed formulas of their bilinear-transformed
// poles: the denominator as a product of first-order (low/high) or
// second-order (band) complex factors, the numerator from binomial
// coefficients, and a scale factor that makes the pass-band gain 1.

#include <cmath>
#include <complex>
#include <vector>

#include "signal/iir_design.h"

namespace VarnholtMath {
namespace ValueTypes {
namespace signal {

namespace {

constexpr double kPi = 3.141592653589793;
using cplx = std::complex<double>;

// The real parts of the coefficients of the product of (1 + p[k] x), constant
// first.
std::vector<double> binomialProduct(const std::vector<cplx>& p)
{
    std::vector<cplx> c(p.size() + 1, cplx(0.0, 0.0));
    c[0] = 1.0;
    for (std::size_t i = 0; i < p.size(); ++i)
        for (std::size_t j = i + 1; j > 0; --j)
            c[j] += p[i] * c[j - 1];
    std::vector<double> r(c.size());
    for (std::size_t i = 0; i < c.size(); ++i)
        r[i] = c[i].real();
    return r;
}

// The same for the product of (1 + t[k] x + r[k] x^2).
std::vector<double> trinomialProduct(const std::vector<cplx>& t, const std::vector<cplx>& q)
{
    std::vector<cplx> c(2 * t.size() + 1, cplx(0.0, 0.0));
    c[0] = 1.0;
    for (std::size_t i = 0; i < t.size(); ++i)
        for (std::size_t j = 2 * i + 2; j > 0; --j)
            c[j] += t[i] * c[j - 1] + (j >= 2 ? q[i] * c[j - 2] : cplx(0.0, 0.0));
    std::vector<double> r(c.size());
    for (std::size_t i = 0; i < c.size(); ++i)
        r[i] = c[i].real();
    return r;
}

// C(n, k) for k = 0..n, by the recursion in doubles.
std::vector<double> binomials(int n)
{
    std::vector<double> c(std::size_t(n) + 1);
    c[0] = 1.0;
    for (int k = 1; k <= n; ++k)
        c[k] = c[k - 1] * double(n - k + 1) / double(k);
    return c;
}

double poleAngle(int k, int n) { return kPi * double(2 * k + 1) / double(2 * n); }

bool allFinite(const std::vector<double>& v)
{
    for (double x : v)
        if (!std::isfinite(x))
            return false;
    return true;
}

} // namespace

bool butterworth(int n, IirBand band, double f1, double f2, std::vector<double>& b, std::vector<double>& a)
{
    if (n < 1)
        return false;
    // Normalised to the Nyquist frequency.
    const double w1 = 2.0 * f1;
    const double w2 = 2.0 * f2;
    double scale = 1.0;
    if (band == iirLowpass || band == iirHighpass) {
        const double st = std::sin(kPi * w1);
        const double ct = std::cos(kPi * w1);
        std::vector<cplx> p(n);
        for (int k = 0; k < n; ++k) {
            const double d = 1.0 + st * std::sin(poleAngle(k, n));
            p[k] = cplx(-ct / d, -st * std::cos(poleAngle(k, n)) / d);
        }
        a = binomialProduct(p);
        b = binomials(n);
        if (band == iirHighpass)
            for (int k = 1; k <= n; k += 2)
                b[k] = -b[k];
        // Gain 1 at DC (low-pass) or at the Nyquist frequency (high-pass).
        const double omega = kPi * w1;
        double s = 1.0;
        for (int k = 0; k < n / 2; ++k)
            s *= 1.0 + std::sin(omega) * std::sin(poleAngle(k, n));
        const double half = band == iirLowpass ? std::sin(omega / 2.0) : std::cos(omega / 2.0);
        const double other = band == iirLowpass ? std::cos(omega / 2.0) : std::sin(omega / 2.0);
        if (n % 2)
            s *= half + other;
        scale = std::pow(half, double(n)) / s;
    } else {
        const double cp = std::cos(kPi * (w2 + w1) / 2.0);
        const double theta = kPi * (w2 - w1) / 2.0;
        const double st = std::sin(theta);
        const double ct = std::cos(theta);
        const double s2t = 2.0 * st * ct;
        const double c2t = 2.0 * ct * ct - 1.0;
        const double sign = band == iirBandpass ? 1.0 : -1.0;
        std::vector<cplx> t(n);
        std::vector<cplx> q(n);
        for (int k = 0; k < n; ++k) {
            const double sp = std::sin(poleAngle(k, n));
            const double cpg = std::cos(poleAngle(k, n));
            const double d = 1.0 + s2t * sp;
            q[k] = cplx(c2t / d, sign * s2t * cpg / d);
            t[k] = cplx(-2.0 * cp * (ct + st * sp) / d, -sign * 2.0 * cp * st * cpg / d);
        }
        a = trinomialProduct(t, q);
        b.assign(2 * std::size_t(n) + 1, 0.0);
        if (band == iirBandpass) {
            // The high-pass binomials at even powers.
            const std::vector<double> c = binomials(n);
            for (int k = 0; k <= n; ++k)
                b[2 * k] = k % 2 ? -c[k] : c[k];
        } else {
            // (1 + alpha x + x^2)^n, expanded in place.
            const double alpha = -2.0 * cp / ct;
            b[0] = 1.0;
            for (int i = 0; i < n; ++i)
                for (int j = 2 * i + 2; j > 0; --j)
                    b[j] += alpha * b[j - 1] + (j >= 2 ? b[j - 2] : 0.0);
        }
        // The gain at the band's centre: the real part of a product of
        // complex factors.
        const double c = band == iirBandpass ? 1.0 / std::tan(theta) : std::tan(theta);
        cplx s(1.0, 0.0);
        for (int k = 0; k < n; ++k)
            s *= cplx(c + std::sin(poleAngle(k, n)), -std::cos(poleAngle(k, n)));
        scale = 1.0 / s.real();
    }
    for (double& v : b)
        v *= scale;
    return allFinite(a) && allFinite(b);
}

} // namespace signal
} // namespace ValueTypes
} // namespace VarnholtMath
