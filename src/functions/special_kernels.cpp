#include "functions/special_kernels.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include <boost/math/special_functions/bessel.hpp>
#include <boost/math/special_functions/digamma.hpp>

namespace VarnholtMath {
namespace kernels {

namespace {

using cd = std::complex<double>;

constexpr double kPi = 3.141592653589793238462643383279502884;
constexpr double kE = 2.718281828459045235360287471352662498;
constexpr double kSqrtPi = 1.772453850905516027298167483341145182;
constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
constexpr double kInf = std::numeric_limits<double>::infinity();
constexpr double kEps = std::numeric_limits<double>::epsilon();

const cd kCNaN(kNaN, kNaN);

bool isWhole(double v) { return std::isfinite(v) && v == std::floor(v); }

bool isNonPositiveWhole(double v) { return isWhole(v) && v <= 0.0; }

// 1/Gamma(v), exactly 0 at the poles of Gamma.
double rgamma(double v) {
    if (isNonPositiveWhole(v)) return 0.0;
    return 1.0 / std::tgamma(v);
}

// sin(pi*y) and cos(pi*y) with the argument reduced exactly, so that whole
// and half-whole y give exact zeros and ones.
void sinCosPi(double y, double& s, double& c) {
    double r = std::fmod(y, 2.0);  // exact, in (-2, 2)
    double q = std::nearbyint(2.0 * r);  // quadrant, -4..4
    double f = r - 0.5 * q;  // exact, in [-1/4, 1/4]
    double sf = std::sin(kPi * f);
    double cf = std::cos(kPi * f);
    int quadrant = static_cast<int>(q) & 3;  // two's complement keeps the residue mod 4
    switch (quadrant) {
        case 0: s = sf; c = cf; break;
        case 1: s = cf; c = -sf; break;
        case 2: s = -sf; c = -cf; break;
        default: s = -cf; c = sf; break;
    }
    if (f == 0.0) {  // exact zeros instead of sin(0)-style signed noise
        if (quadrant == 0 || quadrant == 2) s = 0.0;
        else c = 0.0;
    }
}

// ------------------------------------------------------- double-double -----
// A number hi + lo with |lo| <= ulp(hi)/2, about 32 significant digits. Used
// where an alternating series loses many digits to cancellation.

struct DD {
    double hi;
    double lo;
};

DD twoSum(double a, double b) {
    double s = a + b;
    double bb = s - a;
    double err = (a - (s - bb)) + (b - bb);
    return {s, err};
}

DD quickTwoSum(double a, double b) {
    double s = a + b;
    return {s, b - (s - a)};
}

DD twoProd(double a, double b) {
    double p = a * b;
    return {p, std::fma(a, b, -p)};
}

DD ddAdd(DD a, DD b) {
    DD s = twoSum(a.hi, b.hi);
    DD t = twoSum(a.lo, b.lo);
    s.lo += t.hi;
    s = quickTwoSum(s.hi, s.lo);
    s.lo += t.lo;
    return quickTwoSum(s.hi, s.lo);
}

DD ddMul(DD a, DD b) {
    DD p = twoProd(a.hi, b.hi);
    p.lo += a.hi * b.lo + a.lo * b.hi;
    return quickTwoSum(p.hi, p.lo);
}

DD ddMulD(DD a, double b) {
    DD p = twoProd(a.hi, b);
    p.lo += a.lo * b;
    return quickTwoSum(p.hi, p.lo);
}

DD ddDiv(DD a, DD b) {
    double q1 = a.hi / b.hi;
    DD r = ddAdd(a, ddMulD(b, -q1));
    double q2 = r.hi / b.hi;
    r = ddAdd(r, ddMulD(b, -q2));
    double q3 = r.hi / b.hi;
    DD q = quickTwoSum(q1, q2);
    return ddAdd(q, {q3, 0.0});
}

// ================================================================ Struve ====

// Power series of H_nu(x) for x > 0:
//   H_nu(x) = sum_k (-1)^k (x/2)^(2k+nu+1) / (Gamma(k+3/2) Gamma(k+nu+3/2)).
// The terms grow like exp(x) before they fall, so the sum of the ratios to the
// leading term is formed in double-double; the leading term itself carries
// only a common rounding error. Good to full precision up to x of about 45.
double struveSeries(double nu, double x) {
    // When nu + 3/2 is a non-positive whole number the leading terms vanish
    // (1/Gamma at its poles); the series then starts at k0.
    double k0 = 0.0;
    if (isNonPositiveWhole(nu + 1.5)) k0 = 1.0 - (nu + 1.5);
    const double half = 0.5 * x;
    const double power = 2.0 * k0 + nu + 1.0;
    double lead;
    double logLead = power * std::log(half) - std::lgamma(k0 + 1.5) - std::lgamma(k0 + nu + 1.5);
    if (std::fabs(logLead) < 600.0 && std::fabs(k0 + nu + 1.5) < 170.0) {
        lead = std::pow(half, power) * rgamma(k0 + 1.5) * rgamma(k0 + nu + 1.5);
    } else {
        double sign = rgamma(k0 + nu + 1.5) < 0.0 ? -1.0 : 1.0;
        lead = sign * std::exp(logLead);
    }
    if (std::fmod(k0, 2.0) != 0.0) lead = -lead;
    if (lead == 0.0) return 0.0;

    const DD q = twoProd(half, half);
    DD term{1.0, 0.0};
    DD sum{1.0, 0.0};
    for (int i = 1; i < 100000; ++i) {
        double k = k0 + i;
        // (k + 1/2) (k + nu + 1/2), exactly as a double-double
        DD shifted = twoSum(k + 0.5, nu);
        DD den = ddMulD(shifted, k + 0.5);
        term = ddDiv(ddMul(term, q), den);
        term.hi = -term.hi;
        term.lo = -term.lo;
        sum = ddAdd(sum, term);
        bool falling = q.hi < std::fabs(den.hi);
        if (falling && std::fabs(term.hi) < 1e-20 * std::fabs(sum.hi)) break;
    }
    return lead * (sum.hi + sum.lo);
}

// Large-argument form H_nu(x) = Y_nu(x) + K_nu(x) with the asymptotic series
//   K_nu(x) ~ 1/pi sum_k Gamma(k+1/2) / Gamma(nu+1/2-k) (x/2)^(nu-2k-1).
// Returns false when the series does not reach full precision before its
// terms start to grow again.
bool struveAsymptotic(double nu, double x, double& result) {
    if (nu + 0.5 > 170.0) return false;
    double y;
    try {
        y = boost::math::cyl_neumann(nu, x);
    } catch (...) {
        return false;
    }
    if (!std::isfinite(y)) return false;
    double k = 0.0;
    double r0 = rgamma(nu + 0.5);
    if (r0 != 0.0) {
        const double q = 0.25 * x * x;
        double term = kSqrtPi * r0;  // Gamma(1/2) / Gamma(nu + 1/2)
        double sum = term;
        double scale = std::pow(0.5 * x, nu - 1.0) / kPi;
        bool converged = false;
        double previous = std::fabs(term);
        for (int i = 0; i < 1000; ++i) {
            double ratio = (i + 0.5) * (nu - 0.5 - i) / q;
            term *= ratio;
            if (term == 0.0) {  // the series ends (half-whole orders)
                converged = true;
                break;
            }
            double magnitude = std::fabs(term);
            if (magnitude > previous) break;  // diverging before convergence
            previous = magnitude;
            sum += term;
            if (std::fabs(term * scale) < 1e-17 * (std::fabs(sum * scale) + std::fabs(y))) {
                converged = true;
                break;
            }
        }
        if (!converged) return false;
        k = sum * scale;
    }
    result = y + k;
    return true;
}

// H_nu(x) for x > 0, finite.
double struvePositive(double nu, double x) {
    double value;
    if (x > 38.0 && struveAsymptotic(nu, x, value)) return value;
    return struveSeries(nu, x);
}

// Value of H_nu at x = 0 (the limit from the right).
double struveAtZero(double nu) {
    if (nu > -1.0) return 0.0;
    if (nu == -1.0) return 2.0 / kPi;
    if (isNonPositiveWhole(nu + 1.5)) return 0.0;  // leading power is -nu > 0
    return rgamma(nu + 1.5) < 0.0 ? -kInf : kInf;
}

// Limit of H_nu at +infinity.
double struveAtInfinity(double nu) {
    if (nu < 1.0) return 0.0;
    if (nu == 1.0) return 2.0 / kPi;
    return kInf;
}

// h * exp(i*pi*(nu+1)) = -h * exp(i*pi*nu), without inf*0 products.
cd struveReflect(double nu, double h) {
    double s, c;
    sinCosPi(nu, s, c);
    s = -s;
    c = -c;
    double re = c == 0.0 ? 0.0 : h * c;
    double im = s == 0.0 ? 0.0 : h * s;
    return {re, im};
}

// ============================================================== Lambert W ==

// 1/e split into a double and its remainder, for x + 1/e near the branch point.
constexpr double kInvEHi = 0.36787944117144233;
constexpr double kInvELo = -1.2428753672788363e-17;

// W0 around the branch point as a series in p = sqrt(2 (e z + 1)):
// W = -1 + p - p^2/3 + 11/72 p^3 - ...; radius of convergence sqrt(2).
constexpr double kBranchCoeff[] = {
    1.0, -0.3333333333333333, 0.1527777777777778, -0.07962962962962963,
    0.044502314814814814, -0.02598471487360376, 0.01563563253233392, -0.009616892024299432,
    0.006014543252956118, -0.0038112980348919993, 0.0024408779911439826, -0.0015769303446867841,
    0.0010262633205076071, -0.0006720616311561362, 0.0004424730618146209, -0.00029267722472962746,
    0.00019438727605453933, -0.00012957426685274883, 8.665035805208128e-05, -5.811360750441382e-05,
    3.907668486743905e-05, -2.63380647472311e-05, 1.7790345805079586e-05, -1.2040352739559977e-05,
    8.163531982496613e-06, -5.544203208567359e-06, 3.7710949611072535e-06, -2.5687050390550955e-06,
    1.7520067268263412e-06, -1.1964453089157258e-06, 8.179940565280035e-07, -5.598551881378796e-07,
    3.835663851491814e-07, -2.630378619271863e-07, 1.8054472775101644e-07, -1.240275440042247e-07,
    8.527035161685828e-08, -5.866863089772259e-08, 4.039473012801556e-08};
constexpr int kBranchTerms = sizeof(kBranchCoeff) / sizeof(kBranchCoeff[0]);

// Below this |p| the branch series is summed in full and taken as the value.
constexpr double kBranchSeriesLimit = 0.35;

template <class T>
T branchSeries(T p, int terms) {
    T sum = T(0.0);
    for (int k = terms - 1; k >= 0; --k) sum = (sum + kBranchCoeff[k]) * p;
    return sum - 1.0;
}

// W = z - z^2 + 3/2 z^3 - 8/3 z^4 + 125/24 z^5, for |z| below 1e-4.
template <class T>
T smallSeries(T z) {
    return z * (1.0 + z * (-1.0 + z * (1.5 + z * (-8.0 / 3.0 + z * (125.0 / 24.0)))));
}

// Halley's iteration on f(w) = w - z exp(-w), which cannot overflow on the
// principal branch (Re w >= -1 there).
template <class T>
T halley(T w, T z) {
    for (int i = 0; i < 100; ++i) {
        T zew = z * std::exp(-w);
        T f = w - zew;
        T f1 = 1.0 + zew;
        T f2 = -zew;
        T step = 2.0 * f * f1 / (2.0 * f1 * f1 - f * f2);
        w -= step;
        if (std::abs(step) <= 2.0 * kEps * std::abs(w) || std::abs(step) == 0.0) break;
    }
    return w;
}

// ======================================================== Gauss 2F1 ========
//
// Every way of evaluating the function returns its value with an estimate of
// the rounding error it carries (from the sizes of the terms that were
// added). The candidates that converge fast at z are tried in order of their
// convergence ratio; the first with a clean estimate is taken, otherwise the
// one with the smallest estimated relative error.

constexpr double kSeriesTol = 1e-18;
constexpr double kEulerGamma = 0.577215664901532860606512090082402431;

struct Estimate {
    cd value;
    double error;  // absolute

    double relative() const {
        double m = std::abs(value);
        if (!std::isfinite(m) || !std::isfinite(error)) return kInf;
        return m == 0.0 ? (error == 0.0 ? 0.0 : kInf) : error / m;
    }
};

const Estimate kFailed{kCNaN, kInf};

bool isFinite(cd v) { return std::isfinite(v.real()) && std::isfinite(v.imag()); }

// Partial sums of sum_k (a)_k (b)_k / ((c)_k k!) w^k, of the absolute values
// of its terms and, on request, of its derivative. False when the series does
// not settle.
bool gaussSeries(double a, double b, double c, cd w, cd& sum, double& absSum, cd* derivative) {
    cd term(1.0, 0.0);
    sum = term;
    absSum = 1.0;
    cd dterm = (a * b / c);  // (k+1) coef_(k+1) w^k at k = 0
    cd dsum = dterm;
    // past k = big the factors a+k, b+k, c+k keep their signs
    const double big = std::max({std::fabs(a), std::fabs(b), c < 0.0 ? -c : 0.0});
    const double absW = std::abs(w);
    int quiet = 0;
    for (int k = 0; k < 20000; ++k) {
        double num = (a + k) * (b + k);
        if (num == 0.0) {  // the series ends: a polynomial
            if (derivative) *derivative = (k == 0) ? cd(0.0) : dsum;
            return isFinite(sum);
        }
        double ratio = num / ((c + k) * (k + 1.0));
        term *= ratio * w;
        sum += term;
        absSum += std::abs(term);
        if (derivative && k > 0) {
            dterm *= (num / ((c + k) * k)) * w;
            dsum += dterm;
        }
        bool small = std::abs(term) <= kSeriesTol * std::abs(sum) &&
                     (!derivative || std::abs(dterm) <= kSeriesTol * std::abs(dsum));
        if (small && k > 2.0 * big + 2.0 && std::fabs(ratio) * absW < 1.0) {
            if (++quiet >= 2) {
                if (derivative) *derivative = dsum;
                return isFinite(sum);
            }
        } else {
            quiet = 0;
        }
    }
    return false;
}

// The series with its error estimate.
Estimate gaussSeriesEstimate(double a, double b, double c, cd w) {
    cd sum;
    double absSum;
    if (!gaussSeries(a, b, c, w, sum, absSum, nullptr)) return kFailed;
    return {sum, 8.0 * kEps * absSum};
}

// Sign of Gamma(v) away from its poles.
double gammaSign(double v) {
    if (v > 0.0) return 1.0;
    return std::fmod(std::floor(v), 2.0) == 0.0 ? 1.0 : -1.0;
}

// Gamma(n1) Gamma(n2) / (Gamma(d1) Gamma(d2)); 0 when a denominator sits on a
// pole.
double gammaRatio(double n1, double n2, double d1, double d2) {
    if (isNonPositiveWhole(d1) || isNonPositiveWhole(d2)) return 0.0;
    double biggest = std::max({std::fabs(n1), std::fabs(n2), std::fabs(d1), std::fabs(d2)});
    if (biggest < 60.0) {
        return (std::tgamma(n1) / std::tgamma(d1)) * (std::tgamma(n2) / std::tgamma(d2));
    }
    double l = std::lgamma(n1) + std::lgamma(n2) - std::lgamma(d1) - std::lgamma(d2);
    return gammaSign(n1) * gammaSign(n2) * gammaSign(d1) * gammaSign(d2) * std::exp(l);
}

// Natural logarithm on the principal branch; a negative real argument
// (imaginary part +-0) takes the imaginary part side*pi.
cd logSide(cd v, int side) {
    double theta = (v.imag() == 0.0 && v.real() < 0.0) ? side * kPi : std::arg(v);
    return {std::log(std::abs(v)), theta};
}

// base^e for real e on the principal branch, negative real bases as in logSide.
cd powSide(cd base, double e, int side) {
    double r = std::abs(base);
    if (r == 0.0) return e > 0.0 ? cd(0.0) : (e == 0.0 ? cd(1.0) : cd(kInf));
    double theta = (base.imag() == 0.0 && base.real() < 0.0) ? side * kPi : std::arg(base);
    return std::polar(std::pow(r, e), e * theta);
}

// Distance of v from the nearest whole number.
double wholeDistance(double v) { return std::fabs(v - std::nearbyint(v)); }

// Sum of a terminating series, a = -n with n a whole number, at any w; fails
// when a denominator (c)_k vanishes before the end.
Estimate polynomialSum(double a, double b, double c, cd w) {
    cd term(1.0, 0.0);
    cd sum = term;
    double absSum = 1.0;
    for (int k = 0; k < 10000000; ++k) {
        double num = (a + k) * (b + k);
        if (num == 0.0) break;
        double den = (c + k) * (k + 1.0);
        if (den == 0.0) return kFailed;
        term *= (num / den) * w;
        sum += term;
        absSum += std::abs(term);
    }
    if (!isFinite(sum)) return kFailed;
    return {sum, 8.0 * kEps * absSum};
}

// (x)_n / (y)_n for a whole n >= 0, as a product of ratios so that it does
// not overflow on the way; NaN if (y)_n vanishes.
double pochhammerRatio(double x, double y, double n) {
    double p = 1.0;
    for (int i = 0; i < static_cast<int>(n); ++i) {
        if (y + i == 0.0) return kNaN;
        p *= (x + i) / (y + i);
    }
    return p;
}

// Two-term transformation
//   F = g1 p1 F(a1, b1; c1; w) + g2 p2 F(a2, b2; c2; w).
// Its estimate includes the loss in the gamma factors when a parameter
// difference lies at distance `gap` from one of their poles and was rounded
// by `rounding` when it was formed: the two terms then no longer cancel
// exactly.
Estimate twoTerm(double g1, cd p1, double a1, double b1, double c1, double g2, cd p2, double a2, double b2, double c2,
                 cd w, double gap, double rounding) {
    Estimate s1 = g1 == 0.0 ? Estimate{cd(0.0), 0.0} : gaussSeriesEstimate(a1, b1, c1, w);
    Estimate s2 = g2 == 0.0 ? Estimate{cd(0.0), 0.0} : gaussSeriesEstimate(a2, b2, c2, w);
    if (!isFinite(s1.value) || !isFinite(s2.value)) return kFailed;
    cd t1 = g1 * p1 * s1.value;
    cd t2 = g2 * p2 * s2.value;
    double err = std::fabs(g1) * std::abs(p1) * s1.error + std::fabs(g2) * std::abs(p2) * s2.error;
    err += (std::abs(t1) + std::abs(t2)) * (8.0 * kEps + rounding / std::max(gap, kEps));
    cd value = t1 + t2;
    if (!isFinite(value)) return kFailed;
    return {value, err};
}

// Limit form of the z -> 1-z transformation when c - a - b is a whole number
// m: the two gamma-weighted terms then share a pole and merge into a series
// with logarithm and digamma terms. For m >= 0 (regularised function, divided
// by Gamma(c)):
//   F/Gamma(c) = 1/(Gamma(a+m) Gamma(b+m)) sum_(k<m) (a)_k (b)_k (m-k-1)!/k! (z-1)^k
//     - (z-1)^m/(Gamma(a) Gamma(b)) sum_k (a+m)_k (b+m)_k / (k! (k+m)!) (1-z)^k
//         * (ln(1-z) - psi(k+1) - psi(k+m+1) + psi(a+k+m) + psi(b+k+m)).
// m < 0 is brought to m > 0 by Euler's transformation. Requires |1-z| < 1.
Estimate hyp2f1WholeNearOne(double a, double b, double c, cd z, int side) {
    const cd w = 1.0 - z;
    int m = static_cast<int>(std::nearbyint(c - a - b));
    cd factor(1.0, 0.0);
    if (m < 0) {
        // F(a,b;c;z) = (1-z)^(c-a-b) F(c-a, c-b; c; z)
        double ap = c - a, bp = c - b;
        a = ap;
        b = bp;
        m = -m;
        for (int i = 0; i < m; ++i) factor /= w;
    }
    // finite sum
    cd s1(0.0);
    double abs1 = 0.0;
    if (m > 0) {
        cd t = std::tgamma(static_cast<double>(m));  // (m-1)!
        for (int k = 0; k < m; ++k) {
            s1 += t;
            abs1 += std::abs(t);
            if (k + 1 < m) t *= (a + k) * (b + k) / ((k + 1.0) * (m - k - 1.0)) * (-w);
        }
        double g = rgamma(a + m) * rgamma(b + m);
        s1 *= g;
        abs1 *= std::fabs(g);
    }
    // logarithmic series
    const cd logW = logSide(w, -side);
    double psiK1 = -kEulerGamma;  // psi(k+1)
    double psiKm1 = -kEulerGamma;  // psi(k+m+1)
    for (int i = 1; i <= m; ++i) psiKm1 += 1.0 / i;
    double psiA = boost::math::digamma(a + m);
    double psiB = boost::math::digamma(b + m);
    cd u = 1.0 / std::tgamma(m + 1.0);
    cd s2(0.0);
    double abs2 = 0.0;
    const double big = std::max({std::fabs(a), std::fabs(b), static_cast<double>(m)});
    int quiet = 0;
    for (int k = 0;; ++k) {
        if (k == 20000) return kFailed;
        cd term = u * (logW - psiK1 - psiKm1 + psiA + psiB);
        s2 += term;
        abs2 += std::abs(term);
        double ratio = (a + m + k) * (b + m + k) / ((k + 1.0) * (k + m + 1.0));
        if (std::abs(term) <= kSeriesTol * std::abs(s2) && k > 2.0 * big + 2.0 && std::fabs(ratio) * std::abs(w) < 1.0) {
            if (++quiet >= 2) break;
        } else {
            quiet = 0;
        }
        u *= ratio * w;
        psiK1 += 1.0 / (k + 1.0);
        psiKm1 += 1.0 / (k + m + 1.0);
        psiA += 1.0 / (a + m + k);
        psiB += 1.0 / (b + m + k);
    }
    cd zm1pow(1.0, 0.0);
    for (int i = 0; i < m; ++i) zm1pow *= -w;
    cd g2 = -zm1pow * (rgamma(a) * rgamma(b));
    cd outer = factor * std::tgamma(a + b + m);
    cd value = outer * (s1 + g2 * s2);
    double err = 8.0 * kEps * std::abs(outer) * (abs1 + std::abs(g2) * abs2);
    if (!isFinite(value)) return kFailed;
    return {value, err};
}

// psi(x)/Gamma(x), with its finite limit (-1)^(n+1) n! at x = -n.
double psiOverGamma(double x) {
    if (isNonPositiveWhole(x)) {
        double n = -x;
        double f = std::tgamma(n + 1.0);
        return std::fmod(n, 2.0) == 0.0 ? -f : f;
    }
    return boost::math::digamma(x) / std::tgamma(x);
}

// Limit form of the z -> 1/z transformation when b - a is a whole number m
// (a and b swapped when needed):
//   F/Gamma(c) = (-z)^(-a)/Gamma(a+m) sum_(k<m) (a)_k (m-k-1)!/(k! Gamma(c-a-k)) z^-k
//     + (-z)^(-a)/Gamma(a) sum_k (a+m)_k/(k! (k+m)!) (-1)^k z^(-k-m)
//         * (ln(-z) + psi(k+1) + psi(k+m+1) - psi(a+k+m) - psi(c-a-k-m)) / Gamma(c-a-k-m),
// where psi/Gamma is read as its limit at the poles. Requires |z| > 1.
Estimate hyp2f1WholeAtInfinity(double a, double b, double c, cd z, int side) {
    if (a > b) std::swap(a, b);
    const int m = static_cast<int>(std::nearbyint(b - a));
    const cd v = 1.0 / z;
    cd s1(0.0);
    double abs1 = 0.0;
    if (m > 0) {
        cd t = std::tgamma(static_cast<double>(m)) * rgamma(c - a);
        for (int k = 0; k < m; ++k) {
            s1 += t;
            abs1 += std::abs(t);
            if (k + 1 < m) t *= (a + k) * (c - a - k - 1.0) / ((m - k - 1.0) * (k + 1.0)) * v;
        }
        double g = rgamma(a + m);
        s1 *= g;
        abs1 *= std::fabs(g);
    }
    const cd mz = -z;
    const cd logMz = logSide(mz, -side);
    double psiK1 = -kEulerGamma;
    double psiKm1 = -kEulerGamma;
    for (int i = 1; i <= m; ++i) psiKm1 += 1.0 / i;
    double psiB = boost::math::digamma(a + m);  // psi(a+k+m)
    double x = c - a - m;  // argument of the gamma and digamma terms, falls by one per k
    double rg = rgamma(x);
    double pg = psiOverGamma(x);
    cd u(1.0 / std::tgamma(m + 1.0), 0.0);
    for (int i = 0; i < m; ++i) u *= v;
    cd s2(0.0);
    double abs2 = 0.0;
    const double big = std::max({std::fabs(a), std::fabs(b), std::fabs(c), static_cast<double>(m)});
    int quiet = 0;
    for (int k = 0;; ++k) {
        if (k == 20000) return kFailed;
        cd term = u * ((logMz + psiK1 + psiKm1 - psiB) * rg - pg);
        s2 += term;
        abs2 += std::abs(term);
        if (std::abs(term) <= kSeriesTol * std::abs(s2) && k > 2.0 * big + 2.0) {
            if (++quiet >= 2) break;
        } else {
            quiet = 0;
        }
        u *= (a + m + k) / ((k + 1.0) * (k + m + 1.0)) * (-v);
        psiK1 += 1.0 / (k + 1.0);
        psiKm1 += 1.0 / (k + m + 1.0);
        psiB += 1.0 / (a + m + k);
        double pgNext = (x - 1.0) * pg - rg;
        rg *= (x - 1.0);
        pg = pgNext;
        x -= 1.0;
    }
    double g2 = rgamma(a);
    cd outer = std::tgamma(c) * powSide(mz, -a, -side);
    cd value = outer * (s1 + g2 * s2);
    double err = 8.0 * kEps * std::abs(outer) * (abs1 + std::fabs(g2) * abs2);
    if (!isFinite(value)) return kFailed;
    return {value, err};
}

// Continues the solution of the hypergeometric equation
//   z(1-z) w'' + (c - (a+b+1) z) w' - a b w = 0
// from (zc, w, dw) along the straight line to `target` by Taylor series about
// successive points, each step `fraction` of the distance to the nearest
// singular point 0 or 1. `error` collects the absolute size of the rounding.
bool odeContinue(double a, double b, double c, cd& zc, cd& w, cd& dw, cd target, double& error, double fraction) {
    const double q1 = -(a + b + 1.0);
    const double r0 = -a * b;
    for (int step = 0; step < 20000; ++step) {
        cd delta = target - zc;
        double dist = std::abs(delta);
        if (dist == 0.0) return true;
        double radius = std::min(std::abs(zc), std::abs(1.0 - zc));
        bool last = dist <= fraction * radius;
        cd h = last ? delta : delta * (fraction * radius / dist);
        // coefficients of the equation about zc
        cd p0 = zc * (1.0 - zc);
        cd p1 = 1.0 - 2.0 * zc;
        cd qq0 = c - (a + b + 1.0) * zc;
        // u_n = t_n h^n, the scaled Taylor coefficients
        cd u0 = w, u1 = dw * h;
        cd sum = u0 + u1;
        cd dsum = u1;  // sum of n u_n
        double absSum = std::abs(u0) + std::abs(u1);
        cd h2 = h * h;
        int quiet = 0;
        for (int n = 0;; ++n) {
            if (n == 5000) return false;
            double nn = n;
            cd u2 = -((p1 * nn + qq0) * (nn + 1.0) * u1 * h + (-nn * (nn - 1.0) + q1 * nn + r0) * u0 * h2) /
                    (p0 * ((nn + 2.0) * (nn + 1.0)));
            sum += u2;
            dsum += (nn + 2.0) * u2;
            absSum += std::abs(u2);
            u0 = u1;
            u1 = u2;
            if (std::abs(u2) * (nn + 2.0) <= 1e-18 * (std::abs(sum) + std::abs(dsum))) {
                if (++quiet >= 3) break;
            } else {
                quiet = 0;
            }
        }
        w = sum;
        dw = dsum / h;
        zc = last ? target : zc + h;
        error += 8.0 * kEps * absSum;
        if (!isFinite(w) || !isFinite(dw)) return false;
    }
    return false;
}

// Follows the differential equation from inside the disc of convergence. A
// real z below 1 is reached along the real axis. Otherwise the path runs
// radially out to |z| and then along the circle |z| to z; when z lies near
// the positive real axis the ray leaves at +-pi/3 on z's side, so the path
// keeps clear of the singular point 1, where the function may be large.
Estimate hyp2f1OdePath(double a, double b, double c, cd z, int side, double fraction) {
    cd zc, w, dw;
    double absSum = 0.0;
    double error = 0.0;
    auto start = [&](cd z0) {
        zc = z0;
        if (!gaussSeries(a, b, c, z0, w, absSum, &dw)) return false;
        error = 8.0 * kEps * absSum;
        return true;
    };
    if (z.imag() == 0.0 && z.real() < 1.0) {
        if (!start(cd(z.real() < 0.0 ? -0.5 : 0.5, 0.0))) return kFailed;
        if (!odeContinue(a, b, c, zc, w, dw, z, error, fraction)) return kFailed;
        return {w, error};
    }
    const double absZ = std::abs(z);
    const double phi = std::arg(z);
    double psi = phi;
    if (std::fabs(phi) < kPi / 4.0) {
        int s = z.imag() > 0.0 ? 1 : (z.imag() < 0.0 ? -1 : side);
        psi = s * kPi / 3.0;
    }
    if (!start(std::polar(0.5, psi))) return kFailed;
    if (!odeContinue(a, b, c, zc, w, dw, std::polar(absZ, psi), error, fraction)) return kFailed;
    const int arcSteps = static_cast<int>(std::ceil(std::fabs(phi - psi) / 0.25));
    for (int i = 1; i <= arcSteps; ++i) {
        cd next = (i == arcSteps) ? z : std::polar(absZ, psi + (phi - psi) * i / arcSteps);
        if (!odeContinue(a, b, c, zc, w, dw, next, error, fraction)) return kFailed;
    }
    return {w, error};
}

// The path is followed twice with different steps: rounding errors that the
// equation amplifies on the way show up as a difference between the two.
Estimate hyp2f1Ode(double a, double b, double c, cd z, int side) {
    Estimate first = hyp2f1OdePath(a, b, c, z, side, 0.5);
    if (!std::isfinite(first.relative())) return kFailed;
    Estimate second = hyp2f1OdePath(a, b, c, z, side, 0.4);
    if (!std::isfinite(second.relative())) return kFailed;
    first.error = std::max({first.error, second.error, std::abs(first.value - second.value)});
    return first;
}

// F(-n, b; c; z) for a whole n >= 0, summed about 0, about 1
//   F = (c-b)_n/(c)_n F(-n, b; b-c-n+1; 1-z)
// or about infinity
//   F = (b)_n/(c)_n (-z)^n F(-n, 1-c-n; 1-b-n; 1/z),
// whichever carries the smallest rounding error; when all three cancel badly
// (near 1 with b - c a whole number the form about 1 does not exist) the
// differential equation is followed as for the general function.
Estimate gaussPolynomial(double n, double b, double c, cd z, int side) {
    const double a = -n;
    Estimate best = polynomialSum(a, b, c, z);
    if (best.relative() > 16.0 * kEps) {
        double f = pochhammerRatio(c - b, c, n);
        if (std::isfinite(f)) {
            Estimate e = polynomialSum(a, b, b - c - n + 1.0, 1.0 - z);
            Estimate near{e.value * f, e.error * std::fabs(f)};
            if (near.relative() < best.relative()) best = near;
        }
        double g = pochhammerRatio(b, c, n);
        if (std::abs(z) > 1.0 && std::isfinite(g) && !isNonPositiveWhole(1.0 - b - n)) {
            Estimate far = polynomialSum(a, 1.0 - c - n, 1.0 - b - n, 1.0 / z);
            cd pw(g, 0.0);
            for (int i = 0; i < static_cast<int>(n); ++i) pw *= -z;
            Estimate at{far.value * pw, far.error * std::abs(pw)};
            if (at.relative() < best.relative()) best = at;
        }
    }
    if (best.relative() > 1e-12 && !isNonPositiveWhole(c)) {
        Estimate e = hyp2f1Ode(a, b, c, z, side);
        if (10.0 * e.relative() < best.relative()) best = e;
    }
    return best;
}

// The general case: c, a, b, c-a, c-b away from the non-positive whole
// numbers, z away from 0 and 1.
Estimate hyp2f1General(double a, double b, double c, cd z, int side) {
    const cd one(1.0, 0.0);
    const double absZ = std::abs(z);
    const double absOneMinusZ = std::abs(one - z);
    // A difference within rounding of a whole number is taken as whole: the
    // inputs cannot tell them apart.
    const double scale = std::fabs(a) + std::fabs(b) + std::fabs(c) + 1.0;
    const double gapCab = wholeDistance(c - a - b);
    const double gapAb = wholeDistance(a - b);
    // rounding of the differences as they are formed below
    DD cMinusA = twoSum(c, -a);
    DD cab = twoSum(cMinusA.hi, -b);
    const double roundCab = std::fabs(cMinusA.lo + cab.lo) + std::fabs(twoSum(c - a - b, 1.0).lo) +
                            std::fabs(cab.hi + (a + b - c)) + std::fabs(twoSum(a + b - c, 1.0).lo);
    const double roundAb = std::fabs(twoSum(a, -b).lo) + std::fabs(twoSum(a - b, 1.0).lo) +
                           std::fabs(twoSum(b - a, 1.0).lo);
    const bool wholeCab = gapCab <= 32.0 * kEps * scale && std::fabs(c - a - b) < 1e4;
    const bool wholeAb = gapAb <= 32.0 * kEps * scale && std::fabs(a - b) < 1e4;

    enum Method { Direct, Pfaff, OneMinusZ, OneMinusInvZ, InvZ, InvOneMinusZ };
    struct Candidate {
        Method method;
        double rho;
    };
    Candidate candidates[] = {{Direct, absZ},
                              {Pfaff, absZ / absOneMinusZ},
                              {OneMinusZ, absOneMinusZ},
                              {OneMinusInvZ, absOneMinusZ / absZ},
                              {InvZ, 1.0 / absZ},
                              {InvOneMinusZ, 1.0 / absOneMinusZ}};
    std::sort(std::begin(candidates), std::end(candidates),
              [](const Candidate& x, const Candidate& y) { return x.rho < y.rho; });

    auto evaluate = [&](Method method) -> Estimate {
        switch (method) {
            case Direct:
                return gaussSeriesEstimate(a, b, c, z);
            case Pfaff: {
                Estimate e = gaussSeriesEstimate(a, c - b, c, z / (z - one));
                cd p = powSide(one - z, -a, -side);
                return {p * e.value, std::abs(p) * (e.error + 4.0 * kEps * std::abs(e.value))};
            }
            case OneMinusZ: {
                if (wholeCab) return hyp2f1WholeNearOne(a, b, c, z, side);
                cd w = one - z;
                return twoTerm(gammaRatio(c, c - a - b, c - a, c - b), one, a, b, a + b - c + 1.0,
                               gammaRatio(c, a + b - c, a, b), powSide(w, c - a - b, -side), c - a, c - b,
                               c - a - b + 1.0, w, gapCab, roundCab);
            }
            case OneMinusInvZ: {
                if (wholeCab) return kFailed;
                cd w = one - one / z;
                return twoTerm(gammaRatio(c, c - a - b, c - a, c - b), powSide(z, -a, side), a, a - c + 1.0,
                               a + b - c + 1.0, gammaRatio(c, a + b - c, a, b),
                               powSide(one - z, c - a - b, -side) * powSide(z, a - c, side), c - a, 1.0 - a,
                               c - a - b + 1.0, w, gapCab, roundCab);
            }
            case InvZ: {
                if (wholeAb) return hyp2f1WholeAtInfinity(a, b, c, z, side);
                cd w = one / z;
                return twoTerm(gammaRatio(c, b - a, b, c - a), powSide(-z, -a, -side), a, a - c + 1.0, a - b + 1.0,
                               gammaRatio(c, a - b, a, c - b), powSide(-z, -b, -side), b, b - c + 1.0, b - a + 1.0, w,
                               gapAb, roundAb);
            }
            case InvOneMinusZ: {
                if (wholeAb) return kFailed;
                cd w = one / (one - z);
                return twoTerm(gammaRatio(c, b - a, b, c - a), powSide(one - z, -a, -side), a, c - b, a - b + 1.0,
                               gammaRatio(c, a - b, a, c - b), powSide(one - z, -b, -side), b, c - a, b - a + 1.0, w,
                               gapAb, roundAb);
            }
        }
        return kFailed;
    };

    Estimate best = kFailed;
    for (const Candidate& cand : candidates) {
        if (cand.rho > 0.85) break;
        Estimate e = evaluate(cand.method);
        if (e.relative() < best.relative()) best = e;
        if (best.relative() <= 64.0 * kEps) return best;
    }
    // The path is the fallback; its estimate is less sure than those of the
    // series, so it has to win by a margin.
    if (best.relative() > 1e-12) {
        Estimate e = hyp2f1Ode(a, b, c, z, side);
        if (10.0 * e.relative() < best.relative()) best = e;
    }
    return best;
}

// ====================================================== Fermi-Dirac =========

// Dirichlet eta at 2, 4, ..., 24; beyond that 1 - 2^-2k + 3^-2k - ... is
// summed directly.
constexpr double kEtaEven[] = {
    8.2246703342411321824e-1, 9.4703282949724591758e-1, 9.855510912974351041e-1,
    9.9623300185264789923e-1, 9.9903950759827156564e-1, 9.9975768514385819085e-1,
    9.9993917034597971817e-1, 9.9998476421490610644e-1, 9.9999618786961011348e-1,
    9.9999904661158152212e-1, 9.9999976161323082255e-1, 9.9999994039889239463e-1};

double etaEven(int k) {  // eta(2k), k >= 0
    if (k == 0) return 0.5;
    if (k <= 12) return kEtaEven[k - 1];
    double e = -2.0 * k;
    return 1.0 - std::pow(2.0, e) + std::pow(3.0, e) - std::pow(4.0, e) + std::pow(5.0, e);
}

// -Li_s(-exp(x)) = sum_k (-1)^(k+1) exp(k x) / k^s, for x <= -1, or for large
// s as long as exp(x) / 2^s is negligible (the series then diverges only far
// beyond the terms that matter).
double fermiPolylog(double s, double x) {
    double sum = 0.0;
    for (int k = 1; k < 100000; ++k) {
        double term = std::exp(k * x - s * std::log(static_cast<double>(k)));
        sum += (k & 1) ? term : -term;
        if (term <= 1e-18 * sum) break;
    }
    return sum;
}

// Double-exponential trapezoidal rule for integral over (-inf, inf) of g(u),
// where g decays double-exponentially. Halves the step until two successive
// sums agree to `tol`.
template <class G>
double deTrapezoid(G&& g, double tol) {
    // extent of the non-negligible part, found on the unit grid
    double center = g(0.0);
    double peak = std::fabs(center);
    double sum = center;
    double lo = 0.0, hi = 0.0;
    for (int dir = -1; dir <= 1; dir += 2) {
        int small = 0;
        for (int k = 1; k <= 40; ++k) {
            double u = dir * 0.125 * k;
            double v = g(u);
            if (!std::isfinite(v)) v = 0.0;
            peak = std::max(peak, std::fabs(v));
            if (std::fabs(v) <= 1e-40 * peak) {
                if (++small >= 2) break;
            } else {
                small = 0;
            }
            if (dir < 0) lo = u;
            else hi = u;
            sum += v;
        }
    }
    lo -= 0.125;
    hi += 0.125;
    double h = 0.125;
    double estimate = sum * h;
    for (int level = 0; level < 12; ++level) {
        h *= 0.5;
        double added = 0.0;
        for (double u = lo + h; u < hi; u += 2.0 * h) {
            double v = g(u);
            if (std::isfinite(v)) added += v;
        }
        sum += added;
        double next = sum * h;
        bool done = std::fabs(next - estimate) <= tol * std::fabs(next);
        estimate = next;
        if (done && level >= 1) break;
    }
    return estimate;
}

// Logistic 1/(1 + exp(-y)), accurate for both signs of y.
double logistic(double y) {
    if (y >= 0.0) return 1.0 / (1.0 + std::exp(-y));
    double e = std::exp(y);
    return e / (1.0 + e);
}

// Integral_0^inf t^j / (exp(t - x) + 1) dt by double-exponential quadrature,
// times 1/Gamma(j+1).
double fermiQuadrature(double j, double x) {
    const double halfPi = 0.5 * kPi;
    const double s = j + 1.0;
    // t^j / Gamma(j+1) * 1/(exp(t - x) + 1); in logarithms for large j, where
    // t^j and Gamma(j+1) overflow
    const bool large = j > 100.0;
    const double norm = large ? std::lgamma(s) : 1.0 / std::tgamma(s);
    auto density = [&](double t, double occupation, double logOccupation) {
        if (large) return std::exp(j * std::log(t) - norm + logOccupation);
        return std::pow(t, j) * norm * occupation;
    };
    // log of the occupation logistic(x - t)
    auto logOcc = [&](double y) { return y >= 0.0 ? -std::log1p(std::exp(-y)) : y - std::log1p(std::exp(y)); };

    if (j >= 0.0 && j <= 30.0 && x < 2.0) {
        // exp-sinh over (0, inf) in one piece
        auto g = [&](double u) {
            double t = std::exp(halfPi * std::sinh(u));
            return density(t, logistic(x - t), 0.0) * t * halfPi * std::cosh(u);
        };
        return deTrapezoid(g, 1e-13);
    }
    // split at t0, near where the integrand peaks: [0, t0] by tanh-sinh,
    // [t0, inf) by exp-sinh
    const double t0 = std::max({x, 1.0, j});
    double total = 0.0;
    if (j < 0.0) {
        // v = t^(j+1) removes the singularity at 0:
        //   integral_0^t0 t^j f(t) dt = 1/(j+1) integral_0^(t0^(j+1)) f(v^(1/(j+1))) dv
        const double inv = 1.0 / s;
        const double top = std::pow(t0, s);
        auto low = [&](double u) {
            double y = kPi * std::sinh(u);
            double sl = logistic(y), sr = logistic(-y);
            double t = std::pow(top * sl, inv);
            return logistic(x - t) * top * sl * sr * kPi * std::cosh(u);
        };
        total = deTrapezoid(low, 1e-13) * norm / s;
    } else {
        auto low = [&](double u) {
            double y = kPi * std::sinh(u);
            double sl = logistic(y), sr = logistic(-y);
            double t = t0 * sl;
            double gap = t0 * sr;  // t0 - t, accurate near the upper end
            double arg = x - t0 + gap;
            return density(t, logistic(arg), large ? logOcc(arg) : 0.0) * t0 * sl * sr * kPi * std::cosh(u);
        };
        total = deTrapezoid(low, 1e-13);
    }
    auto high = [&](double u) {  // t = t0 + e
        double e = std::exp(halfPi * std::sinh(u));
        double arg = x - t0 - e;
        return density(t0 + e, logistic(arg), large ? logOcc(arg) : 0.0) * e * halfPi * std::cosh(u);
    };
    total += deTrapezoid(high, 1e-13);
    return total;
}

// For x > 0:
//   F_j(x) = sum_k 2 eta(2k) x^(j+1-2k) / Gamma(j+2-2k) + cos(pi j) F_j(-x).
// The sum ends for whole j (exact for every x > 0); for other j it is
// asymptotic and used for large x only.
double fermiSommerfeld(double j, double x) {
    const double s = j + 1.0;
    const double q = 1.0 / (x * x);
    const bool whole = isWhole(j);
    // k = 0 term: x^s / Gamma(s+1)
    double base;
    double logBase = s * std::log(x) - std::lgamma(s + 1.0);
    if (s + 1.0 < 170.0 && s * std::log(x) < 700.0) base = std::pow(x, s) / std::tgamma(s + 1.0);
    else base = std::exp(logBase);
    double sum = 1.0;
    double factor = 1.0;  // Gamma(s+1) / Gamma(s+1-2k) x^-2k
    double previous = kInf;
    for (int k = 1; k < 200; ++k) {
        factor *= (s + 2.0 - 2.0 * k) * (s + 1.0 - 2.0 * k) * q;
        if (factor == 0.0) break;
        double term = 2.0 * etaEven(k) * factor;
        if (!whole && std::fabs(term) > previous) break;  // asymptotic: stop at the smallest term
        previous = std::fabs(term);
        sum += term;
        if (std::fabs(term) < 1e-18 * sum) break;
    }
    double cs, sn;
    sinCosPi(j, sn, cs);
    double reflected = cs == 0.0 ? 0.0 : cs * fermiPolylog(s, -x);
    return base * sum + reflected;
}

// ============================================ Fresnel and Dawson ===========

// sin and cos of pi/2 x^2 with x^2 split exactly into hi + lo and reduced
// modulo 4 before the multiplication by pi/2, so that the phase stays exact
// for large x.
void sinCosHalfPiSquare(double x, double& s, double& c) {
    double hi = x * x;
    double lo = std::fma(x, x, -hi);
    double r = std::fmod(hi, 4.0) + std::fmod(lo, 4.0);
    sinCosPi(0.5 * r, s, c);
}

// C(x) + i S(x) for x >= 0.
cd fresnelPair(double x) {
    if (x > 1e17) return cd(0.5, 0.5);
    if (x < 1.5) {
        // C = x sum (-1)^n t^(2n) / ((2n)! (4n+1)),  S = x sum (-1)^n t^(2n+1) / ((2n+1)! (4n+3)),
        // t = pi/2 x^2
        double t = 0.5 * kPi * x * x;
        double u = 1.0;  // t^m / m!, alternating in sign every two steps
        double cSum = 0.0, sSum = 0.0;
        for (int m = 0; m < 200; ++m) {
            double sign = ((m / 2) & 1) ? -1.0 : 1.0;
            double contribution = sign * u / (2.0 * m + 1.0);
            if (m & 1) sSum += contribution;
            else cSum += contribution;
            u *= t / (m + 1.0);
            if (u < 1e-18 * (cSum + sSum) && m > 2) break;
        }
        return {x * cSum, x * sSum};
    }
    // Continued fraction of the complementary error function at
    // z = sqrt(pi)/2 (1 - i) x, evaluated by Lentz's method.
    const double pix2 = kPi * x * x;
    const double tiny = 1e-300;
    cd b(1.0, -pix2);
    cd cc(1.0 / tiny, 0.0);
    cd d = 1.0 / b;
    cd h = d;
    double n = -1.0;
    for (int k = 2; k < 1000; ++k) {
        n += 2.0;
        double a = -n * (n + 1.0);
        b += 4.0;
        d = 1.0 / (a * d + b);
        cc = b + a / cc;
        cd del = cc * d;
        h *= del;
        if (std::fabs(del.real() - 1.0) + std::fabs(del.imag()) < 1e-16) break;
    }
    h *= cd(x, -x);
    double s, c;
    sinCosHalfPiSquare(x, s, c);
    return cd(0.5, 0.5) * (1.0 - cd(c, s) * h);
}

// Dawson's integral for x >= 0.
double dawsonPositive(double x) {
    if (x < 0.5) {
        // F = x sum (-2x^2)^n / (2n+1)!!
        double q = -2.0 * x * x;
        double term = 1.0, sum = 1.0;
        for (int n = 1; n < 100; ++n) {
            term *= q / (2.0 * n + 1.0);
            sum += term;
            if (std::fabs(term) < 1e-18 * sum) break;
        }
        return x * sum;
    }
    if (x > 50.0) {
        // F ~ 1/(2x) sum (2k-1)!! / (2x^2)^k
        double q = 1.0 / (2.0 * x * x);
        double term = 1.0, sum = 1.0;
        for (int k = 1; k < 30; ++k) {
            term *= (2.0 * k - 1.0) * q;
            sum += term;
            if (term < 1e-18 * sum) break;
        }
        return sum * (0.5 / x);
    }
    // Rybicki's sampling formula
    //   F(x) = 1/sqrt(pi) sum_(n odd) exp(-(x' - n h)^2) / (n + n0),
    // x = x' + n0 h with n0 even; its error is of order exp(-(pi/(2h))^2).
    // With h = 1/8 the split x = x' + n0 h is exact in binary.
    const double h = 0.125;
    const double n0 = 2.0 * std::nearbyint(x / (2.0 * h));
    const double xp = x - n0 * h;
    double sum = 0.0;
    for (int n = -53; n <= 53; n += 2) {
        double d = xp - n * h;
        sum += std::exp(-d * d) / (n + n0);
    }
    return sum / kSqrtPi;
}

}  // namespace

// ================================================================ public ===

std::complex<double> struve(double nu, double x) {
    if (std::isnan(nu) || std::isnan(x) || std::isinf(nu)) return kCNaN;
    // Orders this far out are beyond the double range of every term, and
    // the Bessel functions of the asymptotic form cannot take them.
    if (std::fabs(nu) > 1e5) return kCNaN;
    double h;
    if (x == 0.0) return {struveAtZero(nu), 0.0};
    if (std::isinf(x)) h = struveAtInfinity(nu);
    else h = struvePositive(nu, std::fabs(x));
    if (std::isnan(h)) return kCNaN;
    if (x > 0.0) return {h, 0.0};
    return struveReflect(nu, h);
}

double struveReal(double nu, double x) {
    if (x < 0.0 && !isWhole(nu)) return kNaN;
    return struve(nu, x).real();
}

double lambertWReal(double x) {
    if (std::isnan(x)) return kNaN;
    if (x == kInf) return kInf;
    if (x == lambertBranchPoint) return -1.0;
    if (x < lambertBranchPoint) return kNaN;
    if (std::fabs(x) < 1e-4) return smallSeries(x);
    // distance from -1/e, exact near the branch point
    double d = (x + kInvEHi) + kInvELo;
    double p = std::sqrt(2.0 * kE * d);
    if (p < kBranchSeriesLimit) return branchSeries(p, kBranchTerms);
    double w;
    if (x < 0.0) {
        w = branchSeries(p, 12);
    } else if (x < 3.0) {
        double l = std::log1p(x);
        w = l * (1.0 - std::log1p(l) / (2.0 + l));
    } else {
        double l1 = std::log(x), l2 = std::log(l1);
        w = l1 - l2 + l2 / l1;
    }
    return halley(w, x);
}

std::complex<double> lambertW(double x) {
    if (x >= lambertBranchPoint || std::isnan(x)) return {lambertWReal(x), 0.0};
    return lambertW(std::complex<double>(x, 0.0));
}

std::complex<double> lambertW(std::complex<double> z) {
    double re = z.real(), im = z.imag();
    if (std::isnan(re) || std::isnan(im)) return kCNaN;
    if (std::isinf(re) || std::isinf(im)) return {kInf, std::arg(z)};
    if (im == 0.0) {
        if (re == 0.0) return {0.0, 0.0};
        if ((re + kInvEHi) + kInvELo >= 0.0) return {lambertWReal(re), 0.0};
        z = cd(re, 0.0);  // a point on the cut takes the upper side
    }
    cd d((re + kInvEHi) + kInvELo, z.imag());
    cd p = std::sqrt(2.0 * kE * d);
    if (std::abs(p) < kBranchSeriesLimit) return branchSeries(p, kBranchTerms);
    if (std::abs(z) < 1e-4) return smallSeries(z);
    cd w;
    if (std::abs(p) < 1.4) {
        w = branchSeries(p, 12);
    } else if (std::abs(z) < 1.5 && z.real() > -0.5) {
        w = z * (1.0 + 0.5 * z) / (1.0 + 1.5 * z);  // Pade form of z - z^2 + 3/2 z^3
    } else {
        cd l1 = std::log(z), l2 = std::log(l1);
        w = l1 - l2 + l2 / l1;
    }
    return halley(w, z);
}

std::complex<double> hypergeometric2F1(double a, double b, double c, std::complex<double> z) {
    if (!std::isfinite(a) || !std::isfinite(b) || !std::isfinite(c) || !isFinite(z)) return kCNaN;
    // the series terminates when a or b is a non-positive whole number; let a
    // be the one that ends it first
    if (isNonPositiveWhole(b) && (!isNonPositiveWhole(a) || b > a)) std::swap(a, b);
    const bool polynomial = isNonPositiveWhole(a);
    if (polynomial && a < -1e7) return kCNaN;  // beyond any sensible degree
    if (isNonPositiveWhole(c) && !(polynomial && -a <= -c)) {
        // (c)_k vanishes from k = 1 - c on; defined only if the series ended before
        return kCNaN;
    }
    if (a == 0.0 || b == 0.0 || (z.real() == 0.0 && z.imag() == 0.0)) return {1.0, 0.0};

    // Points on the cut [1, inf) take the limit from below.
    const int side = z.imag() > 0.0 ? 1 : -1;
    const bool realBelowOne = z.imag() == 0.0 && z.real() < 1.0;

    Estimate result;
    if (polynomial) {
        result = gaussPolynomial(-a, b, c, z, side);
    } else if (z.real() == 1.0 && z.imag() == 0.0) {
        if (c - a - b <= 0.0) return kCNaN;
        return {gammaRatio(c, c - a - b, c - a, c - b), 0.0};
    } else if (isNonPositiveWhole(c - a) || isNonPositiveWhole(c - b)) {
        // Euler's transformation turns the function into (1-z)^(c-a-b) times
        // a polynomial.
        double ap = c - a, bp = c - b;
        if (isNonPositiveWhole(bp) && (!isNonPositiveWhole(ap) || bp > ap)) std::swap(ap, bp);
        if (ap < -1e7) return kCNaN;
        cd factor = powSide(1.0 - z, c - a - b, -side);
        Estimate p = gaussPolynomial(-ap, bp, c, z, side);
        result = {factor * p.value, std::abs(factor) * p.error};
    } else {
        result = hyp2f1General(a, b, c, z, side);
    }
    if (!isFinite(result.value) && !std::isinf(std::abs(result.value))) return kCNaN;
    if (realBelowOne) result.value.imag(0.0);
    return result.value;
}

double fermiDirac(double j, double x) {
    if (std::isnan(j) || std::isnan(x) || j < -1.0 || std::isinf(j)) return kNaN;
    if (j == -1.0) return logistic(x);
    if (x == -kInf) return 0.0;
    if (x == kInf) return kInf;
    const double s = j + 1.0;
    // the polylogarithm series, when its terms fall fast from the start
    if (x < -1.0 || x < s * 0.6931471805599453 - 42.0) return fermiPolylog(s, x);
    if (isWhole(j) && j <= 100.0 && x >= 1.0) return fermiSommerfeld(j, x);
    // the asymptotic series reaches full precision once x is well beyond j
    if (x >= 50.0 + 2.0 * j) return fermiSommerfeld(j, x);
    return fermiQuadrature(j, x);
}

double fresnelS(double x) {
    if (std::isnan(x)) return kNaN;
    if (std::isinf(x)) return x > 0.0 ? 0.5 : -0.5;
    double v = fresnelPair(std::fabs(x)).imag();
    return x < 0.0 ? -v : v;
}

double fresnelC(double x) {
    if (std::isnan(x)) return kNaN;
    if (std::isinf(x)) return x > 0.0 ? 0.5 : -0.5;
    double v = fresnelPair(std::fabs(x)).real();
    return x < 0.0 ? -v : v;
}

double dawson(double x) {
    if (std::isnan(x)) return kNaN;
    if (std::isinf(x)) return x > 0.0 ? 0.0 : -0.0;
    double v = dawsonPositive(std::fabs(x));
    return x < 0.0 ? -v : v;
}

}  // namespace kernels
}  // namespace VarnholtMath
