// Kernels of the probability distributions. See distribution_kernels.h for
// the methods; the comments here say why each limit is where it is.

#include "statistics/distribution_kernels.h"

#include <cmath>
#include <limits>

#include <boost/math/special_functions/beta.hpp>
#include <boost/math/special_functions/gamma.hpp>

#include "solvers/gauss_legendre.h"

namespace VarnholtMath {
namespace statistics {

namespace {

const double kNaN = std::numeric_limits<double>::quiet_NaN();
const double kInf = std::numeric_limits<double>::infinity();
constexpr double kPi = 3.141592653589793;
constexpr double kInvSqrt2Pi = 0.3989422804014327;

bool isProbability(double p) { return p >= 0.0 && p <= 1.0; }

// --- searches ---------------------------------------------------------------

// Bisection of [lo, hi] on an increasing cumulative until the interval is
// 1e-6 wide, or until the midpoint cannot split it any more (at magnitudes
// where 1e-6 is below the spacing of doubles). The result is the midpoint.
template <class Cdf> double bisect(Cdf cdf, double p, double lo, double hi)
{
    while (hi - lo > 1e-06) {
        const double mid = (lo + hi) * 0.5;
        if (mid <= lo || mid >= hi)
            break;
        if (cdf(mid) < p)
            lo = mid;
        else
            hi = mid;
    }
    return (lo + hi) / 2.0;
}

// The upper end of the search starts at 1 and grows until the cumulative
// reaches p: by doubling, or by steps of one. Steps of one go over to
// doubling after a thousand steps, so that a far quantile is still bracketed
// in bounded time; an upper end beyond the range of doubles means the
// cumulative never reaches p there, and the search gives up.
template <class Cdf> double bracketUpper(Cdf cdf, double p, bool doubling)
{
    double hi = 1.0;
    for (int step = 0;; ++step) {
        const double c = cdf(hi);
        if (std::isnan(c))
            return kNaN;
        if (c >= p)
            return hi;
        hi = (doubling || step >= 1000) ? hi * 2.0 : hi + 1.0;
        if (hi > 1e300)
            return kNaN;
    }
}

template <class Cdf> double invertPositive(Cdf cdf, double p, bool doubling)
{
    if (!isProbability(p))
        return kNaN;
    if (p == 0.0)
        return 0.0;
    if (p == 1.0)
        return kInf;
    const double hi = bracketUpper(cdf, p, doubling);
    if (std::isnan(hi))
        return kNaN;
    return bisect(cdf, p, 0.0, hi);
}

// --- the gamma integrand ---------------------------------------------------------

// u^(a-1) exp(-u/b) and its normalising constant b^a gamma(a). Where the
// constant leaves the range of doubles the integrand carries it in its
// exponent instead.
struct GammaIntegrand {
    double a, b;
    double norm;
    double logNorm;
    bool logForm;

    GammaIntegrand(double shape, double scale) : a(shape), b(scale)
    {
        norm = std::pow(b, a) * std::tgamma(a);
        logForm = !(std::isfinite(norm) && norm > 0.0);
        logNorm = a * std::log(b) + std::lgamma(a);
    }

    double operator()(double u) const
    {
        if (logForm)
            return std::exp((a - 1.0) * std::log(u) - u / b - logNorm);
        return std::pow(u, a - 1.0) * std::exp(-u / b);
    }

    // The integral from 0 to u of the integrand by its alternating series,
    // eleven terms: the integrand is singular at 0 for shapes below 1.
    double series(double u) const
    {
        double sum = 0.0, factorial = 1.0, bk = 1.0;
        for (int k = 0; k <= 10; ++k) {
            if (k > 0) {
                factorial *= k;
                bk *= b;
            }
            const double term = std::pow(u, a + k) / ((a + k) * bk * factorial);
            sum += (k % 2 == 0) ? term : -term;
        }
        return logForm ? sum * std::exp(-logNorm) : sum;
    }

    double normalise(double integral) const { return logForm ? integral : integral / norm; }
};

// The cumulative of the gamma integrand. With the series, shapes below 1
// take the series up to 0.1 (or x) and the rule beyond; `from` and `below`
// give the second chi-square form, which starts the rule at 0.001 and adds a
// fixed part below.
double gammaCumulative(double x, double a, double b, bool seriesBelowOne)
{
    if (!(a > 0.0) || !(b > 0.0))
        return kNaN;
    if (x <= 0.0)
        return 0.0;
    if (std::isinf(x))
        return 1.0;
    const GammaIntegrand f(a, b);
    double integral;
    if (seriesBelowOne && a < 1.0)
        integral = x <= 0.1 ? f.series(x) : solvers::gaussLegendre64(f, 0.1, x) + f.series(0.1);
    else
        integral = solvers::gaussLegendre64(f, 0.0, x);
    return f.normalise(integral);
}

double gammaDensityOf(double x, double a, double b)
{
    if (!(a > 0.0) || !(b > 0.0))
        return kNaN;
    if (x <= 0.0 || std::isinf(x))
        return 0.0;
    const double direct = std::pow(x, a - 1.0) * std::exp(-x / b) / (std::pow(b, a) * std::tgamma(a));
    if (std::isfinite(direct) && direct > 0.0)
        return direct;
    return std::exp((a - 1.0) * std::log(x) - x / b - a * std::log(b) - std::lgamma(a));
}

// --- the incomplete beta series ------------------------------------------------

// S(x, a, b) = x^a sum_k t_k / (a + k), t_0 = 1, t_(k+1) = t_k (k + 1 - b) x / (k + 1),
// summed until the sum stops changing.
double betaSeries(double x, double a, double b)
{
    double t = 1.0;
    double sum = 1.0 / a;
    for (int k = 0; k < 1000000; ++k) {
        t = t * (k + 1.0 - b) * x / (k + 1.0);
        const double next = sum + t / (a + k + 1.0);
        if (next == sum || !std::isfinite(next))
            break;
        sum = next;
    }
    return std::pow(x, a) * sum;
}

// The complete beta function as two half-range series.
double completeBeta(double a, double b) { return betaSeries(0.5, a, b) + betaSeries(0.5, b, a); }

double incompleteBetaWith(double x, double a, double b, double complete)
{
    if (x <= 0.0)
        return 0.0;
    if (x >= 1.0)
        return 1.0;
    if (x > 0.5)
        return 1.0 - betaSeries(1.0 - x, b, a) / complete;
    return betaSeries(x, a, b) / complete;
}

// The beta function for densities: Boost's, to full precision.
double betaFunction(double a, double b)
{
    try {
        return boost::math::beta(a, b);
    } catch (...) {
        return kNaN;
    }
}

double logBetaFunction(double a, double b) { return std::lgamma(a) + std::lgamma(b) - std::lgamma(a + b); }

} // namespace

// --- normal -------------------------------------------------------------------------

double normalCdf(double z)
{
    if (std::isnan(z))
        return kNaN;
    if (z > 0.0)
        return 1.0 - normalCdf(-z);
    if (std::isinf(z))
        return 0.0;
    // The leading term of the asymptotic series of the lower tail.
    auto asymptote = [z] { return -std::exp(-z * z / 2.0) * kInvSqrt2Pi / z; };
    if (z < -6.0)
        return asymptote();
    double t = z * kInvSqrt2Pi;
    double s = 0.5 + t;
    for (int k = 1; k < 100000; ++k) {
        t = t * (-z * z / 2.0) / k;
        if (std::isinf(t))
            return asymptote();
        const double next = s + t / (2.0 * k + 1.0);
        if (next == s)
            break;
        s = next;
    }
    if (s < 0.0 || s > 1.0)
        return asymptote();
    return s;
}

double normalQuantile(double p)
{
    if (std::isnan(p))
        return kNaN;
    if (p <= 0.0)
        return -kInf;
    if (p >= 1.0)
        return kInf;
    if (p == 0.5)
        return 0.0;
    if (p > 0.5)
        return -normalQuantile(1.0 - p);
    double lo = -1.0, hi = 0.0;
    // The kernel is 0 from about -38.5 on, so the widening ends there.
    while (normalCdf(lo) >= p)
        lo *= 2.0;
    // To full precision: until the midpoint equals an end.
    for (;;) {
        const double mid = (lo + hi) * 0.5;
        if (mid == lo || mid == hi)
            return mid;
        if (normalCdf(mid) < p)
            lo = mid;
        else
            hi = mid;
    }
}

double normalDensity(double x, double mean, double sigma)
{
    if (!(sigma > 0.0))
        return kNaN;
    const double z = (x - mean) / sigma;
    return std::exp(-z * z / 2.0) / (sigma * std::sqrt(6.283185307179586));
}

double normalDistribution(double x, double mean, double sigma)
{
    if (!(sigma > 0.0))
        return kNaN;
    if (std::isinf(x))
        return x > 0.0 ? 1.0 : 0.0;
    return normalCdf((x - mean) / sigma);
}

double normalInverse(double p, double mean, double sigma)
{
    if (!(sigma > 0.0) || !isProbability(p))
        return kNaN;
    const double z = normalQuantile(p);
    if (std::isinf(z))
        return z;
    return mean + sigma * z;
}

// --- Student's t -------------------------------------------------------------------

double tConstant(double df)
{
    // The quotient of two gamma values overflows from about 340 degrees of
    // freedom on; there the logarithms take over.
    if (df < 300.0)
        return std::tgamma((df + 1.0) / 2.0) / std::tgamma(df / 2.0);
    return std::exp(std::lgamma((df + 1.0) / 2.0) - std::lgamma(df / 2.0));
}

namespace {
struct TIntegrand {
    double df;
    double operator()(double x) const { return std::pow(1.0 + x * x / df, -(df + 1.0) / 2.0); }
};
} // namespace

double tdens(double t, double df)
{
    if (!(df > 0.0))
        return kNaN;
    return tConstant(df) * TIntegrand{df}(t) / std::sqrt(df * kPi);
}

double tdist(double t, double df)
{
    if (!(df > 0.0))
        return kNaN;
    if (t == 0.0)
        return 0.5;
    if (std::isinf(t))
        return t > 0.0 ? 1.0 : 0.0;
    const double integral = solvers::gaussLegendre64(TIntegrand{df}, 0.0, std::fabs(t));
    const double part = integral * tConstant(df) / std::sqrt(df * kPi);
    return t > 0.0 ? 0.5 + part : 0.5 - part;
}

double tinv(double p, double df)
{
    if (!(df > 0.0) || !isProbability(p))
        return kNaN;
    if (p == 0.0)
        return -kInf;
    if (p == 1.0)
        return kInf;
    if (p == 0.5)
        return 0.0;
    const TIntegrand f{df};
    const double target = std::fabs(p - 0.5) * std::sqrt(df * kPi) / tConstant(df);
    // No widening: the bracket is [0, 128] by design.
    const double q = bisect([&](double upper) { return solvers::gaussLegendre64(f, 0.0, upper); }, target, 0.0, 128.0);
    return p < 0.5 ? -q : q;
}

// --- chi-square ---------------------------------------------------------------------

double chidensn(double x, double df)
{
    if (!(df > 0.0))
        return kNaN;
    return gammaDensityOf(x, df / 2.0, 2.0);
}

double chidistn(double x, double df)
{
    if (!(df > 0.0))
        return kNaN;
    return gammaCumulative(x, df / 2.0, 2.0, true);
}

double chiinvn(double p, double df)
{
    if (!(df > 0.0))
        return kNaN;
    return invertPositive([df](double x) { return chidistn(x, df); }, p, true);
}

double chiinvnn(double p, double df)
{
    if (!(df > 0.0))
        return kNaN;
    if (df >= 2.0)
        return chiinvn(p, df);
    const GammaIntegrand f(df / 2.0, 2.0);
    // The part below 0.001 is taken as its value for one degree of freedom,
    // whatever the degrees of freedom below 2.
    auto cdf = [&](double x) {
        if (x <= 0.0)
            return 0.0;
        return f.normalise(solvers::gaussLegendre64(f, 0.001, x) + 0.0632139383311426);
    };
    return invertPositive(cdf, p, true);
}

// --- gamma ----------------------------------------------------------------------------

double gammadensn(double x, double a, double b) { return gammaDensityOf(x, a, b); }
double gammadistn(double x, double a, double b) { return gammaCumulative(x, a, b, false); }
double gammadistnn(double x, double a, double b) { return gammaCumulative(x, a, b, true); }

double gammainvn(double p, double a, double b)
{
    if (!(a > 0.0) || !(b > 0.0))
        return kNaN;
    return invertPositive([a, b](double x) { return gammadistn(x, a, b); }, p, true);
}

double gammainvnn(double p, double a, double b)
{
    if (!(a > 0.0) || !(b > 0.0))
        return kNaN;
    return invertPositive([a, b](double x) { return gammadistnn(x, a, b); }, p, false);
}

// --- beta and F ---------------------------------------------------------------------------

double incompleteBeta(double x, double a, double b)
{
    if (!(a > 0.0) || !(b > 0.0))
        return kNaN;
    return incompleteBetaWith(x, a, b, completeBeta(a, b));
}

double betaDensity(double x, double a, double b)
{
    if (!(a > 0.0) || !(b > 0.0) || !(x >= 0.0 && x <= 1.0))
        return kNaN;
    // The ends take the limit of the density.
    if (x == 0.0)
        return a < 1.0 ? kInf : (a == 1.0 ? 1.0 / betaFunction(1.0, b) : 0.0);
    if (x == 1.0)
        return b < 1.0 ? kInf : (b == 1.0 ? 1.0 / betaFunction(a, 1.0) : 0.0);
    const double direct = std::pow(x, a - 1.0) * std::pow(1.0 - x, b - 1.0) / betaFunction(a, b);
    if (std::isfinite(direct) && direct > 0.0)
        return direct;
    return std::exp((a - 1.0) * std::log(x) + (b - 1.0) * std::log1p(-x) - logBetaFunction(a, b));
}

double betaDistribution(double x, double a, double b)
{
    if (!(a > 0.0) || !(b > 0.0) || !(x >= 0.0 && x <= 1.0))
        return kNaN;
    if (x == 0.0)
        return 0.0;
    if (x == 1.0)
        return 1.0;
    return incompleteBeta(x, a, b);
}

double betaInverse(double p, double a, double b)
{
    if (!(a > 0.0) || !(b > 0.0) || !isProbability(p))
        return kNaN;
    if (p == 0.0)
        return 0.0;
    if (p == 1.0)
        return 1.0;
    const double complete = completeBeta(a, b);
    if (!std::isfinite(complete) || !(complete > 0.0))
        return kNaN;
    double lo = 0.0, hi = 1.0, mid = 0.5;
    for (int step = 0; step < 200; ++step) {
        mid = (lo + hi) * 0.5;
        const double v = incompleteBetaWith(mid, a, b, complete);
        if (std::isnan(v))
            return kNaN;
        if (std::fabs(v - p) <= 1e-10)
            break;
        if (v < p)
            lo = mid;
        else
            hi = mid;
    }
    return mid;
}

double fDensity(double x, double d1, double d2)
{
    if (!(d1 > 0.0) || !(d2 > 0.0))
        return kNaN;
    if (x < 0.0 || std::isinf(x))
        return 0.0;
    if (x == 0.0)
        return d1 < 2.0 ? kInf : (d1 == 2.0 ? 1.0 : 0.0);
    const double h1 = d1 / 2.0, h2 = d2 / 2.0;
    const double direct = std::pow(d1 / d2, h1) * std::pow(x, h1 - 1.0) * std::pow(1.0 + d1 * x / d2, -(h1 + h2)) /
                          betaFunction(h1, h2);
    if (std::isfinite(direct) && direct > 0.0)
        return direct;
    return std::exp(h1 * std::log(d1 / d2) + (h1 - 1.0) * std::log(x) - (h1 + h2) * std::log1p(d1 * x / d2) -
                    logBetaFunction(h1, h2));
}

double fDistribution(double x, double d1, double d2)
{
    if (!(d1 > 0.0) || !(d2 > 0.0))
        return kNaN;
    if (x <= 0.0)
        return 0.0;
    if (std::isinf(x))
        return 1.0;
    return incompleteBeta(d1 * x / (d1 * x + d2), d1 / 2.0, d2 / 2.0);
}

double fInverse(double p, double d1, double d2)
{
    if (!(d1 > 0.0) || !(d2 > 0.0) || !isProbability(p))
        return kNaN;
    if (p == 0.0)
        return 0.0;
    if (p == 1.0)
        return kInf;
    const double y = betaInverse(p, d1 / 2.0, d2 / 2.0);
    if (std::isnan(y))
        return kNaN;
    if (y >= 1.0)
        return kInf;
    return d2 * y / (d1 * (1.0 - y));
}

// --- Poisson ---------------------------------------------------------------------------------

namespace {
// Beyond this rate exp(-rate) underflows and the products of rate / i
// overflow: the logarithms and the regularised gamma function take over.
constexpr double kLargeRate = 700.0;

double poissonUpperGamma(double k, double rate)
{
    try {
        return boost::math::gamma_q(k + 1.0, rate);
    } catch (...) {
        return kNaN;
    }
}
} // namespace

double poissonDensity(double k, double rate)
{
    if (k < 0.0)
        return 0.0;
    if (rate <= 0.0)
        return k == 0.0 ? 1.0 : 0.0;
    if (rate > kLargeRate)
        return std::exp(k * std::log(rate) - rate - std::lgamma(k + 1.0));
    double product = 1.0;
    for (double i = 1.0; i <= k; i += 1.0) {
        product *= rate / i;
        if (product == 0.0)
            break;
    }
    return product * std::exp(-rate);
}

double poissonDistribution(double k, double rate)
{
    if (k < 0.0)
        return 0.0;
    if (rate <= 0.0)
        return 1.0;
    if (rate > kLargeRate)
        return poissonUpperGamma(k, rate);
    double term = std::exp(-rate);
    double sum = term;
    for (double i = 1.0; i <= k; i += 1.0) {
        term *= rate / i;
        const double next = sum + term;
        // Past the mode the terms only shrink: once they no longer change
        // the sum, nothing further will.
        if (next == sum && i > rate)
            break;
        sum = next;
    }
    return sum;
}

double poissonInverse(double p, double rate)
{
    if (!isProbability(p))
        return kNaN;
    if (p == 0.0 || rate <= 0.0)
        return 0.0;
    if (p == 1.0)
        return kInf;
    if (rate > kLargeRate) {
        // The smallest k with a cumulative at or above p, by bisection over
        // whole numbers.
        double lo = -1.0, hi = std::ceil(rate + 40.0 * std::sqrt(rate) + 100.0);
        while (poissonUpperGamma(hi, rate) < p)
            hi *= 2.0;
        while (hi - lo > 1.0) {
            const double mid = std::floor((lo + hi) / 2.0);
            if (poissonUpperGamma(mid, rate) >= p)
                hi = mid;
            else
                lo = mid;
        }
        return hi;
    }
    double term = std::exp(-rate);
    double sum = term;
    double k = 0.0;
    while (sum < p) {
        k += 1.0;
        term *= rate / k;
        const double next = sum + term;
        if (next == sum && k > rate)
            break;
        sum = next;
    }
    return k;
}

// --- geometric -------------------------------------------------------------------------------

double geometricDensity(double k, double p)
{
    if (!(p > 0.0 && p <= 1.0) || k < 1.0)
        return kNaN;
    return p * std::pow(1.0 - p, k - 1.0);
}

double geometricDistribution(double k, double p)
{
    if (!(p > 0.0 && p <= 1.0) || k < 1.0)
        return kNaN;
    return -std::expm1(k * std::log1p(-p));
}

double geometricInverse(double q, double p)
{
    if (!(p > 0.0 && p <= 1.0) || !isProbability(q))
        return kNaN;
    if (q == 0.0 || p == 1.0)
        return 1.0;
    if (q == 1.0)
        return kInf;
    double k = std::ceil(std::log1p(-q) / std::log1p(-p));
    if (!std::isfinite(k))
        return kInf;
    if (k < 1.0)
        k = 1.0;
    // The logarithms can miss the whole number by one either way.
    for (int i = 0; i < 3 && k > 1.0 && geometricDistribution(k - 1.0, p) >= q; ++i)
        k -= 1.0;
    for (int i = 0; i < 3 && geometricDistribution(k, p) < q; ++i)
        k += 1.0;
    return k;
}

// --- logarithmic ---------------------------------------------------------------------------

namespace {
// The most terms a logarithmic cumulative or inverse adds up.
constexpr double kLogarithmicSteps = 1e7;
} // namespace

double logarithmicDensity(double k, double p)
{
    if (!(p > 0.0 && p < 1.0))
        return kNaN;
    if (k < 1.0)
        return 0.0;
    return -std::pow(p, k) / (k * std::log1p(-p));
}

double logarithmicDistribution(double k, double p)
{
    if (!(p > 0.0 && p < 1.0))
        return kNaN;
    if (k < 1.0)
        return 0.0;
    double term = -p / std::log1p(-p);
    double sum = term;
    // For p near 1 the terms shrink like 1 / j; the walk is bounded there.
    for (double j = 1.0; j < k && j < kLogarithmicSteps; j += 1.0) {
        term *= p * j / (j + 1.0);
        const double next = sum + term;
        if (next == sum)
            break;
        sum = next;
    }
    return sum;
}

double logarithmicInverse(double q, double p)
{
    if (!(p > 0.0 && p < 1.0) || !isProbability(q))
        return kNaN;
    if (q == 0.0)
        return 1.0;
    if (q == 1.0)
        return kInf;
    double term = -p / std::log1p(-p);
    double sum = term;
    double k = 1.0;
    while (sum < q && k < kLogarithmicSteps) {
        term *= p * k / (k + 1.0);
        k += 1.0;
        const double next = sum + term;
        if (next == sum)
            break;
        sum = next;
    }
    return k;
}

// --- closed forms ------------------------------------------------------------------------------

double exponentialDensity(double x, double rate)
{
    if (!(rate > 0.0))
        return kNaN;
    return x < 0.0 ? 0.0 : rate * std::exp(-rate * x);
}

double exponentialDistribution(double x, double rate)
{
    if (!(rate > 0.0))
        return kNaN;
    return x < 0.0 ? 0.0 : -std::expm1(-rate * x);
}

double exponentialInverse(double p, double rate)
{
    if (!(rate > 0.0) || !isProbability(p))
        return kNaN;
    return p == 1.0 ? kInf : -std::log1p(-p) / rate;
}

double laplaceDensity(double x, double location, double scale)
{
    if (!(scale > 0.0))
        return kNaN;
    return std::exp(-std::fabs(x - location) / scale) / (2.0 * scale);
}

double laplaceDistribution(double x, double location, double scale)
{
    if (!(scale > 0.0))
        return kNaN;
    const double z = (x - location) / scale;
    return z < 0.0 ? 0.5 * std::exp(z) : 1.0 - 0.5 * std::exp(-z);
}

double laplaceInverse(double p, double location, double scale)
{
    if (!(scale > 0.0) || !isProbability(p))
        return kNaN;
    if (p == 0.0)
        return -kInf;
    if (p == 1.0)
        return kInf;
    return p < 0.5 ? location + scale * std::log(2.0 * p) : location - scale * std::log(2.0 - 2.0 * p);
}

double cauchyDensity(double x, double location, double scale)
{
    if (!(scale > 0.0))
        return kNaN;
    const double z = (x - location) / scale;
    return 1.0 / (kPi * scale * (1.0 + z * z));
}

double cauchyDistribution(double x, double location, double scale)
{
    if (!(scale > 0.0))
        return kNaN;
    return 0.5 + std::atan((x - location) / scale) * 0.3183098861837907;
}

double cauchyInverse(double p, double location, double scale)
{
    if (!(scale > 0.0) || !isProbability(p))
        return kNaN;
    if (p == 0.0)
        return -kInf;
    if (p == 1.0)
        return kInf;
    return location + scale * std::tan(kPi * (p - 0.5));
}

} // namespace statistics
} // namespace VarnholtMath
