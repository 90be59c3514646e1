#pragma once

// Jacobi elliptic functions of complex argument by the descending Landen
// transformation, for the elliptic filter design. Arguments are in units of
// the quarter period K: cd(u K, k), sn(u K, k).

#include <complex>
#include <vector>

namespace VarnholtMath {
namespace ValueTypes {
namespace signal {

struct EllipticModulus {
    double k = 0.0;
    // The complementary modulus sqrt(1 - k^2), kept on its own so that a k
    // near 1 loses nothing.
    double kp = 1.0;
    // The descending Landen moduli k1, k2, ... down to below 1e-17.
    std::vector<double> landen;

    static EllipticModulus fromModulus(double k);
    static EllipticModulus fromBoth(double k, double kp);
    EllipticModulus complement() const { return fromBoth(kp, k); }
};

std::complex<double> cdLanden(std::complex<double> u, const EllipticModulus& m);
std::complex<double> snLanden(std::complex<double> u, const EllipticModulus& m);
// u with sn(u K, k) = w.
std::complex<double> inverseSnLanden(std::complex<double> w, const EllipticModulus& m);
// The same for w = i x, the case of the pole placement.
std::complex<double> inverseSnOfImaginary(double x, const EllipticModulus& m);

// The modulus k that an elliptic filter of order n reaches with the
// discrimination k1 = ep / es: k' = k1'^n times the product of
// sn((2i - 1) K' / n, k1')^4 over i = 1..n/2.
EllipticModulus ellipticDegree(int n, const EllipticModulus& m1);

} // namespace signal
} // namespace ValueTypes
} // namespace VarnholtMath
