// Landen's descending transformation: each step maps the modulus to a much
// smaller one, where sn and cd are the sine and cosine; the steps are then
// undone on the value.

#include "signal/elliptic_landen.h"

#include <cmath>

namespace VarnholtMath {
namespace ValueTypes {
namespace signal {

namespace {

constexpr double kPi = 3.141592653589793;
using cplx = std::complex<double>;

std::complex<double> ascend(cplx w, const EllipticModulus& m)
{
    for (std::size_t i = m.landen.size(); i > 0; --i) {
        const double v = m.landen[i - 1];
        w = (1.0 + v) * w / (1.0 + v * w * w);
    }
    return w;
}

} // namespace

EllipticModulus EllipticModulus::fromModulus(double k)
{
    return fromBoth(k, std::sqrt((1.0 - k) * (1.0 + k)));
}

EllipticModulus EllipticModulus::fromBoth(double k, double kp)
{
    EllipticModulus m;
    m.k = k;
    m.kp = kp;
    double v = k;
    double vp = kp;
    // The complement is carried along so that a modulus near 1 descends
    // without cancellation; the count is bounded for any input.
    for (int i = 0; i < 64 && v > 1e-17; ++i) {
        const double next = (v / (1.0 + vp)) * (v / (1.0 + vp));
        vp = 2.0 * std::sqrt(vp) / (1.0 + vp);
        v = next;
        m.landen.push_back(v);
    }
    return m;
}

cplx cdLanden(cplx u, const EllipticModulus& m) { return ascend(std::cos(u * (kPi / 2.0)), m); }

cplx snLanden(cplx u, const EllipticModulus& m) { return ascend(std::sin(u * (kPi / 2.0)), m); }

cplx inverseSnLanden(cplx w, const EllipticModulus& m)
{
    // The inverse of cd, descending, then sn(u) = cd(1 - u).
    double previous = m.k;
    for (double v : m.landen) {
        w = w / (1.0 + std::sqrt(1.0 - w * w * previous * previous)) * (2.0 / (1.0 + v));
        previous = v;
    }
    const cplx u = (2.0 / kPi) * std::acos(w);
    return 1.0 - u;
}

cplx inverseSnOfImaginary(double x, const EllipticModulus& m) { return inverseSnLanden(cplx(0.0, x), m); }

EllipticModulus ellipticDegree(int n, const EllipticModulus& m1)
{
    const EllipticModulus c = m1.complement();
    double kp = std::pow(c.k, double(n));
    for (int i = 1; i <= n / 2; ++i) {
        const double s = snLanden(cplx(double(2 * i - 1) / double(n), 0.0), c).real();
        kp *= s * s * s * s;
    }
    return EllipticModulus::fromBoth(std::sqrt((1.0 - kp) * (1.0 + kp)), kp);
}

} // namespace signal
} // namespace ValueTypes
} // namespace VarnholtMath
