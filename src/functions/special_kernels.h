#pragma once

// Numeric kernels of the special functions that the engine computes itself
// rather than through Boost.Math: Struve H, Lambert W, Gauss' hypergeometric
// function, the complete Fermi-Dirac integral, the Fresnel integrals and
// Dawson's integral.
//
// The kernels work on plain doubles and std::complex<double> and know nothing
// of the value classes; the members of vhMath wrap them and do the type work.
// None of them throws: a point outside a kernel's domain gives NaN (or a NaN
// complex number), exactly as an exception would end as the undefined value
// in the wrapper.

#include <complex>

namespace VarnholtMath {
namespace kernels {

// ---------------------------------------------------------------- Struve H --

// H_nu(x) for real order nu and real x.
// For x < 0 the value is the analytic continuation through (x/2)^(nu+1) on the
// principal branch: H_nu(-x) = exp(i*pi*(nu+1)) * H_nu(x), which is the real
// factor (-1)^(nu+1) for whole orders. At x = 0 the value is 0 for nu > -1,
// 2/pi for nu = -1, and infinite below that (unless the leading terms vanish,
// as for the negative half-integers). At x = +-infinity the limit is given:
// 0 for nu < 1, 2/pi for nu = 1, infinite for nu > 1.
std::complex<double> struve(double nu, double x);

// Real-valued H_nu(x): x >= 0, or any x when nu is a whole number.
// NaN where the value is complex (x < 0 with a fractional order).
double struveReal(double nu, double x);

// ---------------------------------------------------------------- Lambert W --

// The value -0.36787944117144233 that the real branch takes as the branch
// point -1/e (it is the double nearest to -1/e).
constexpr double lambertBranchPoint = -0.36787944117144233;

// Principal real branch W0(x) for x >= -1/e; lambertWReal(lambertBranchPoint)
// is exactly -1 and lambertWReal(+inf) is +inf. NaN below -1/e.
double lambertWReal(double x);

// Principal branch W0 of a real argument: the real branch as above for
// x >= -1/e (imaginary part 0), the complex principal value (imaginary part
// in (0, pi)) below.
std::complex<double> lambertW(double x);

// Principal branch W0(z) of a complex argument. The cut is (-inf, -1/e]; a
// point on it (imaginary part +0 or -0) takes the value of the upper side,
// and W0(-1/e) is -1 for the exact -1/e only: the double nearest to -1/e lies
// just below it and gets its small imaginary part here.
std::complex<double> lambertW(std::complex<double> z);

// ---------------------------------------------------------- Gauss 2F1 --------

// 2F1(a, b; c; z) for real a, b, c and complex z, on the principal branch
// (cut [1, inf)). A point on the cut takes the limit from below (Im z -> 0-).
// The value comes from the power series about 0 or one of the linear
// transformations (z/(z-1), 1-z, 1-1/z, 1/z, 1/(1-z)), with their logarithmic
// limit forms when c-a-b or a-b is a whole number, or, where none of them
// converges fast or all of them cancel badly, from the differential equation
// followed from a point inside the unit disc. Polynomials (a or b a
// non-positive whole number, degree up to 1e7) are finite for every z.
// NaN where undefined: c a non-positive whole number without earlier
// termination of the series, z = 1 with c - a - b <= 0 (unless a polynomial),
// or a non-finite argument. Accuracy is relative to the size of the terms that
// cancel; near a zero of the function, for large parameters and for c-a-b or
// a-b within 1e-3 of (but not at) a whole number it is lower; see
// docs/ACCURACY.md.
std::complex<double> hypergeometric2F1(double a, double b, double c, std::complex<double> z);

// ------------------------------------------------------- Fermi-Dirac ---------

// Complete Fermi-Dirac integral
//   F_j(x) = 1/Gamma(j+1) * integral_0^inf t^j / (exp(t - x) + 1) dt
//          = -Li_{j+1}(-exp(x))
// for real j > -1 and real x. j = -1 gives the limiting logistic function
// 1/(1 + exp(-x)); j < -1 gives NaN. F_j(-inf) = 0, F_j(+inf) = +inf.
double fermiDirac(double j, double x);

// ------------------------------------------------ Fresnel and Dawson ---------

// Fresnel integrals in the normalised convention:
//   S(x) = integral_0^x sin(pi t^2 / 2) dt,  C(x) = integral_0^x cos(pi t^2 / 2) dt,
// odd in x, with the limits +-0.5 at +-infinity.
double fresnelS(double x);
double fresnelC(double x);

// Dawson's integral F(x) = exp(-x^2) * integral_0^x exp(t^2) dt, odd in x,
// with F(+-inf) = +-0.
double dawson(double x);

}  // namespace kernels
}  // namespace VarnholtMath
