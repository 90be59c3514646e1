// Random variates by transformation of the uniform stream.

#include "statistics/random_variates.h"

#include <cmath>
#include <limits>

#include "statistics/distribution_kernels.h"
#include "statistics/random_stream.h"

namespace VarnholtMath {
namespace statistics {

namespace {

const double kNaN = std::numeric_limits<double>::quiet_NaN();
const double kInf = std::numeric_limits<double>::infinity();
constexpr double kPi = 3.141592653589793;

// Rejection methods accept a try with a probability above one half for
// every parameter; a million rejections in a row only happen when the
// stream is stuck at 0.
constexpr int kMaxTries = 1000000;

// Inversion of a discrete cumulative stops at this many terms at most.
constexpr double kMaxTerms = 1e7;

// Best's rejection for shapes below 1, on the unit scale.
double gammaBelowOne(double a)
{
    const double e = 0.07 + 0.75 * std::sqrt(1.0 - a);
    const double b0 = 1.0 + std::exp(-e) * a / e;
    for (int i = 0; i < kMaxTries; ++i) {
        const double p = nextUniform() * b0;
        const double u2 = nextUniform();
        if (p <= 1.0) {
            const double x = e * std::pow(p, 1.0 / a);
            if (u2 <= (2.0 - x) / (2.0 + x) || u2 <= std::exp(-x))
                return x;
        } else {
            const double x = -std::log((b0 - p) * e / a);
            const double y = x / e;
            if (u2 * ((1.0 - a) * y + a) <= 1.0 || u2 <= std::pow(y, a - 1.0))
                return x;
        }
    }
    return kNaN;
}

// Cheng's ratio of uniforms for shapes above 1, on the unit scale.
double gammaAboveOne(double a)
{
    const double c = a - 1.0;
    for (int i = 0; i < kMaxTries; ++i) {
        const double u1 = nextUniform();
        const double u2 = nextUniform();
        const double p = u1 * (a - 1.0 / (6.0 * a)) / (c * u2);
        if (2.0 * (u2 - 1.0) / c + p + 1.0 / p <= 2.0 || 2.0 * std::log(u2) / c - std::log(p) + p <= 1.0)
            return c * p;
    }
    return kNaN;
}

// Hoermann's transformed rejection with squeeze for Poisson rates of 10 and
// more: two uniforms a try, accepted in about nine tries of ten.
double poissonTransformedRejection(double rate)
{
    const double slam = std::sqrt(rate);
    const double logRate = std::log(rate);
    const double b = 0.931 + 2.53 * slam;
    const double a = -0.059 + 0.02483 * b;
    const double invAlpha = 1.1239 + 1.1328 / (b - 3.4);
    const double vr = 0.9277 - 3.6224 / (b - 2.0);
    for (int i = 0; i < kMaxTries; ++i) {
        const double u = nextUniform() - 0.5;
        const double v = nextUniform();
        const double us = 0.5 - std::fabs(u);
        const double k = std::floor((2.0 * a / us + b) * u + rate + 0.43);
        if (us >= 0.07 && v <= vr)
            return k;
        if (k < 0.0 || (us < 0.013 && v > us))
            continue;
        if (std::log(v) + std::log(invAlpha) - std::log(a / (us * us) + b) <=
            -rate + k * logRate - std::lgamma(k + 1.0))
            return k;
    }
    return kNaN;
}

} // namespace

double uniformVariate(double a, double b)
{
    const double r = nextRandom();
    return a + r * (b - a) / 2147483647.0;
}

double normalVariate(double mean, double deviation)
{
    double s = 0.0;
    for (int i = 0; i < 12; ++i)
        s += nextUniform();
    return (s - 6.0) * deviation + mean;
}

double exponentialVariate(double rate) { return -std::log(nextUniform()) / rate; }

double laplaceVariate(double rate)
{
    const double x = exponentialVariate(rate);
    return nextRandom() < 1073741823u ? -x : x;
}

double gammaVariate(double a, double b)
{
    if (a == 1.0)
        return exponentialVariate(1.0 / b);
    return (a < 1.0 ? gammaBelowOne(a) : gammaAboveOne(a)) * b;
}

double betaVariate(double a, double b)
{
    const double sum = a + b;
    const double beta =
        std::fmin(a, b) <= 1.0 ? std::fmin(a, b) : std::sqrt((2.0 * a * b - sum) / (sum - 2.0));
    const double alpha = beta + a;
    for (int i = 0; i < kMaxTries; ++i) {
        const double u1 = nextUniform();
        const double u2 = nextUniform();
        const double v = std::log(u1 / (1.0 - u1)) / beta;
        const double w = a * std::exp(v);
        if (std::isinf(w))
            return 1.0;
        if (sum * std::log(sum / (b + w)) + alpha * v - 1.3862943611198906 >= std::log(u1 * u1 * u2))
            return w / (b + w);
    }
    return kNaN;
}

double chiSquareVariate(double df)
{
    if (df == 2.0)
        return exponentialVariate(0.5);
    return gammaVariate(df / 2.0, 2.0);
}

double cauchyVariate(double scale, double location)
{
    return std::tan((nextUniform() - 0.5) * kPi) * scale + location;
}

double fVariate(double d1, double d2)
{
    const double x = betaVariate(d1 / 2.0, d2 / 2.0);
    if (x >= 1.0)
        return kInf;
    return d2 * x / ((1.0 - x) * d1);
}

double tVariate(double df)
{
    for (int i = 0; i < kMaxTries; ++i) {
        const double g = 2.0 * nextUniform() - 1.0;
        const double h = 2.0 * nextUniform() - 1.0;
        const double s = g * g + h * h;
        if (s < 1.0 && s > 0.0)
            return std::sqrt(df * (std::pow(std::sqrt(s), -4.0 / df) - 1.0) / s) * g;
    }
    return kNaN;
}

double poissonVariate(double rate)
{
    // exp(-rate) underflows beyond about 745, and inversion takes about
    // rate steps: large rates use Hoermann's transformed rejection (PTRS).
    if (rate > 500.0)
        return poissonTransformedRejection(rate);
    const double u = nextUniform();
    double p = std::exp(-rate);
    double sum = p;
    double k = 0.0;
    while (sum < u && k < kMaxTerms) {
        k += 1.0;
        p = p * rate / k;
        const double next = sum + p;
        if (next == sum && k > rate)
            break;
        sum = next;
    }
    return k;
}

double geometricVariate(double p)
{
    const double u = nextUniform();
    // For small p the walk would take about 1 / p steps; the closed form of
    // the same inversion takes one.
    if (p < 1e-4) {
        const double k = std::ceil(std::log1p(-u) / std::log1p(-p));
        return k < 1.0 ? 1.0 : k;
    }
    double term = p;
    double sum = p;
    double k = 1.0;
    while (sum < u && k < kMaxTerms) {
        term *= 1.0 - p;
        k += 1.0;
        const double next = sum + term;
        if (next == sum)
            break;
        sum = next;
    }
    return k;
}

double logarithmicVariate(double p)
{
    // Inversion: the first k whose cumulative reaches a uniform number.
    return logarithmicInverse(nextUniform(), p);
}

} // namespace statistics
} // namespace VarnholtMath
