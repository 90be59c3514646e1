// Kernels of the descriptive statistics. Sums run in index order over the
// raw data, so that a result is the same on every call and platform.

#include "statistics/descriptive_kernels.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace VarnholtMath {
namespace statistics {

namespace {

const double kNaN = std::numeric_limits<double>::quiet_NaN();

struct Sums {
    double s = 0.0;
    double s2 = 0.0;
};

Sums sums(const double* x, std::size_t n)
{
    Sums r;
    for (std::size_t i = 0; i < n; ++i) {
        r.s += x[i];
        r.s2 += x[i] * x[i];
    }
    return r;
}

bool hasNaN(const double* x, std::size_t n)
{
    for (std::size_t i = 0; i < n; ++i)
        if (std::isnan(x[i]))
            return true;
    return false;
}

} // namespace

void sortAscending(double* x, std::size_t n) { std::sort(x, x + n); }

double mean(const double* x, std::size_t n)
{
    if (n == 0)
        return kNaN;
    double s = 0.0;
    for (std::size_t i = 0; i < n; ++i)
        s += x[i];
    return s / static_cast<double>(n);
}

double variance(const double* x, std::size_t n)
{
    if (n == 0)
        return kNaN;
    const Sums t = sums(x, n);
    const double dn = static_cast<double>(n);
    const double v = t.s2 / dn - t.s * t.s / (dn * dn);
    // Equal numbers can leave a rounding residue below zero.
    return v < 0.0 ? 0.0 : v;
}

double deviation(const double* x, std::size_t n) { return std::sqrt(variance(x, n)); }

double varianceSample(const double* x, std::size_t n)
{
    if (n == 0)
        return kNaN;
    const Sums t = sums(x, n);
    const double dn = static_cast<double>(n);
    const double v = (t.s2 - t.s * t.s / dn) / (dn - 1.0);
    if (std::isnan(v) || std::isinf(v))
        return kNaN;
    return v < 0.0 ? 0.0 : v;
}

double deviationSample(const double* x, std::size_t n) { return std::sqrt(varianceSample(x, n)); }

double averageDeviation(const double* x, std::size_t n)
{
    const double m = mean(x, n);
    double s = 0.0;
    for (std::size_t i = 0; i < n; ++i)
        s += std::fabs(x[i] - m);
    return s / static_cast<double>(n);
}

double asymmetry(const double* x, std::size_t n)
{
    const double m = mean(x, n);
    const double sd = deviation(x, n);
    double s = 0.0;
    for (std::size_t i = 0; i < n; ++i) {
        const double d = x[i] - m;
        s += d * d * d;
    }
    return s / (static_cast<double>(n) * sd * sd * sd);
}

double autocorrelation(const double* x, std::size_t n, double lag)
{
    if (n == 0 || !(lag >= 0.0) || lag >= static_cast<double>(n) || std::floor(lag) != lag)
        return kNaN;
    const std::size_t k = static_cast<std::size_t>(lag);
    const Sums t = sums(x, n);
    const double m = t.s / static_cast<double>(n);
    double s = 0.0;
    for (std::size_t i = 0; i + k < n; ++i)
        s += (x[i + k] - m) * (x[i] - m);
    return s / (t.s2 - t.s * m);
}

double median(double* x, std::size_t n)
{
    if (n == 0 || hasNaN(x, n))
        return kNaN;
    // Selection gives the same entries as a full sort at linear cost.
    const std::size_t h = n / 2;
    std::nth_element(x, x + h, x + n);
    const double upper = x[h];
    if (n % 2 == 1)
        return upper;
    const double lower = *std::max_element(x, x + h);
    return (lower + upper) / 2.0;
}

double percentile(double* x, std::size_t n, double p)
{
    if (n == 0 || !(p >= 0.0 && p <= 100.0) || hasNaN(x, n))
        return kNaN;
    double index = std::ceil(static_cast<double>(n) * p / 100.0);
    if (index < 1.0)
        index = 1.0;
    if (index > static_cast<double>(n))
        index = static_cast<double>(n);
    const std::size_t i = static_cast<std::size_t>(index) - 1;
    std::nth_element(x, x + i, x + n);
    return x[i];
}

double trimmedMean(double* x, std::size_t n, double p)
{
    if (n == 0 || !(p >= 0.0 && p < 50.0) || hasNaN(x, n))
        return kNaN;
    const std::size_t k = static_cast<std::size_t>(std::floor(static_cast<double>(n) * p / 100.0));
    if (2 * k >= n)
        return kNaN;
    sortAscending(x, n);
    return mean(x + k, n - 2 * k);
}

double modus(double* x, std::size_t n)
{
    if (n == 0 || hasNaN(x, n))
        return kNaN;
    sortAscending(x, n);
    double best = x[0];
    std::size_t bestRun = 0;
    std::size_t i = 0;
    while (i < n) {
        std::size_t j = i + 1;
        while (j < n && x[j] == x[i])
            ++j;
        if (j - i > bestRun) {
            bestRun = j - i;
            best = x[i];
        }
        i = j;
    }
    return best;
}

double correlation(const double* x, const double* y, std::size_t n)
{
    if (n == 0)
        return kNaN;
    double sx = 0.0, sy = 0.0, sxx = 0.0, syy = 0.0, sxy = 0.0;
    for (std::size_t i = 0; i < n; ++i) {
        sx += x[i];
        sy += y[i];
        sxx += x[i] * x[i];
        syy += y[i] * y[i];
        sxy += x[i] * y[i];
    }
    const double dn = static_cast<double>(n);
    return (dn * sxy - sx * sy) / std::sqrt((dn * sxx - sx * sx) * (dn * syy - sy * sy));
}

double covariance(const double* x, const double* y, std::size_t n)
{
    if (n == 0)
        return kNaN;
    double sx = 0.0, sy = 0.0, sxy = 0.0;
    for (std::size_t i = 0; i < n; ++i) {
        sx += x[i];
        sy += y[i];
        sxy += x[i] * y[i];
    }
    const double dn = static_cast<double>(n);
    return (dn * sxy - sx * sy) / (dn * (dn - 1.0));
}

namespace {
template <class Term> double meanOfTerms(const double* a, const double* b, std::size_t n, Term term)
{
    if (n == 0)
        return kNaN;
    double s = 0.0;
    for (std::size_t i = 0; i < n; ++i)
        s += term(a[i], b[i]);
    return s / static_cast<double>(n);
}
} // namespace

double meanSquareError(const double* a, const double* b, std::size_t n)
{
    return meanOfTerms(a, b, n, [](double u, double v) { return (u - v) * (u - v); });
}

double meanAbsoluteError(const double* a, const double* b, std::size_t n)
{
    return meanOfTerms(a, b, n, [](double u, double v) { return std::fabs(u - v); });
}

double meanPercentageError(const double* a, const double* b, std::size_t n)
{
    return meanOfTerms(a, b, n, [](double u, double v) { return (u - v) / u; });
}

double meanAbsolutePercentageError(const double* a, const double* b, std::size_t n)
{
    return meanOfTerms(a, b, n, [](double u, double v) { return std::fabs((u - v) / u); });
}

} // namespace statistics
} // namespace VarnholtMath
