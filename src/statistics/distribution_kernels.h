#pragma once

// Kernels of the probability distributions on plain doubles: density,
// cumulative function and inverse for each family. NaN means undefined: a
// parameter outside its range, a probability outside [0, 1], a computation
// that failed. The callers have already refused NaN arguments.
//
// The t, chi-square and gamma cumulatives are integrals of their densities
// by the 64-point Gauss-Legendre rule of the numeric integrals, so their
// precision is that rule's (about ten digits on moderate ranges). Their
// inverses bisect to a width of 1e-6. The normal cumulative is a power
// series with an asymptotic tail, its inverse a bisection to full machine
// precision. The incomplete beta function is a power series whose complete
// value is the sum of two half-range series.

namespace VarnholtMath {
namespace statistics {

// --- normal ---------------------------------------------------------------
double normalCdf(double z);     // the standard kernel
double normalQuantile(double p); // its inverse
double normalDensity(double x, double mean, double sigma);
double normalDistribution(double x, double mean, double sigma);
double normalInverse(double p, double mean, double sigma);

// --- Student's t ---------------------------------------------------------------
// gamma((df + 1) / 2) / gamma(df / 2).
double tConstant(double df);
double tdens(double t, double df);
double tdist(double t, double df);
// Bisection of [0, 128] to 1e-6: quantiles beyond 128 come back as 128.
double tinv(double p, double df);

// --- chi-square ------------------------------------------------------------------
double chidensn(double x, double df);
double chidistn(double x, double df);
double chiinvn(double p, double df);
// The second inverse: below 2 degrees of freedom it integrates from 0.001
// and adds the fixed part below for one degree of freedom.
double chiinvnn(double p, double df);

// --- gamma (shape a, scale b) -------------------------------------------------------
double gammadensn(double x, double a, double b);
// Quadrature from 0 for every shape.
double gammadistn(double x, double a, double b);
// Series from 0 to 0.1 and quadrature beyond for shapes below 1.
double gammadistnn(double x, double a, double b);
// Inverse of gammadistn, bracket doubled.
double gammainvn(double p, double a, double b);
// Inverse of gammadistnn, bracket widened by one a step.
double gammainvnn(double p, double a, double b);

// --- beta and F ------------------------------------------------------------------------
// The regularised incomplete beta function I(x; a, b).
double incompleteBeta(double x, double a, double b);
double betaDensity(double x, double a, double b);
double betaDistribution(double x, double a, double b);
// Searched until I matches p within 1e-10 or for 200 steps.
double betaInverse(double p, double a, double b);
double fDensity(double x, double d1, double d2);
double fDistribution(double x, double d1, double d2);
double fInverse(double p, double d1, double d2);

// --- discrete families; k is already a whole number ---------------------------------------
double poissonDensity(double k, double rate);
double poissonDistribution(double k, double rate);
double poissonInverse(double p, double rate);
double geometricDensity(double k, double p);
double geometricDistribution(double k, double p);
double geometricInverse(double q, double p);
double logarithmicDensity(double k, double p);
double logarithmicDistribution(double k, double p);
double logarithmicInverse(double q, double p);

// --- closed forms ---------------------------------------------------------------------------
double exponentialDensity(double x, double rate);
double exponentialDistribution(double x, double rate);
double exponentialInverse(double p, double rate);
double laplaceDensity(double x, double location, double scale);
double laplaceDistribution(double x, double location, double scale);
double laplaceInverse(double p, double location, double scale);
double cauchyDensity(double x, double location, double scale);
double cauchyDistribution(double x, double location, double scale);
double cauchyInverse(double p, double location, double scale);

} // namespace statistics
} // namespace VarnholtMath
