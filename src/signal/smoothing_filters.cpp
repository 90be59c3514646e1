// Moving average by a compensated running sum, and the LMS filter over a flat
// history.

#include "signal/smoothing_filters.h"

#include <cmath>
#include <vector>

namespace VarnholtMath {
namespace ValueTypes {
namespace signal {

namespace {

// Neumaier's compensated addition: sum + compensation carries the exact sum
// to within a rounding of the largest term.
inline void addCompensated(double& sum, double& compensation, double v)
{
    const double t = sum + v;
    if (std::fabs(sum) >= std::fabs(v))
        compensation += (sum - t) + v;
    else
        compensation += (v - t) + sum;
    sum = t;
}

} // namespace

void movingAverage(const double* x, std::size_t n, std::size_t w, double* y)
{
    if (n == 0 || w == 0)
        return;
    const std::ptrdiff_t half = static_cast<std::ptrdiff_t>((w - 1) / 2);
    const std::ptrdiff_t size = static_cast<std::ptrdiff_t>(n);
    auto at = [x, size](std::ptrdiff_t j) { return j >= 0 && j < size ? x[j] : 0.0; };
    const double dw = double(w);
    double sum = 0.0;
    double compensation = 0.0;
    for (std::ptrdiff_t i = 0; i < size; ++i) {
        if (i % static_cast<std::ptrdiff_t>(w) == 0) {
            // A fresh sum of the window keeps the running error bounded.
            sum = 0.0;
            compensation = 0.0;
            const std::ptrdiff_t lo = i - half < 0 ? 0 : i - half;
            const std::ptrdiff_t hi = i + half >= size ? size - 1 : i + half;
            for (std::ptrdiff_t j = lo; j <= hi; ++j)
                addCompensated(sum, compensation, x[j]);
        } else {
            addCompensated(sum, compensation, at(i + half));
            addCompensated(sum, compensation, -at(i - half - 1));
        }
        y[i] = (sum + compensation) / dw;
    }
}

void lmsAdaptive(const double* d, const double* x, std::size_t n, double mu, std::size_t L, double* y, double* e,
                 double* w)
{
    for (std::size_t k = 0; k < L; ++k)
        w[k] = 0.0;
    // The history u of the filter is x read backwards from the current
    // sample, with L - 1 zeros before the signal.
    std::vector<double> history(n + L - 1, 0.0);
    for (std::size_t i = 0; i < n; ++i)
        history[L - 1 + i] = x[i];
    for (std::size_t i = 0; i < n; ++i) {
        const double* u = history.data() + L - 1 + i;
        double out = 0.0;
        for (std::size_t k = 0; k < L; ++k)
            out += w[k] * u[-static_cast<std::ptrdiff_t>(k)];
        y[i] = out;
        const double err = d[i] - out;
        e[i] = err;
        const double step = mu * err;
        for (std::size_t k = 0; k < L; ++k)
            w[k] += step * u[-static_cast<std::ptrdiff_t>(k)];
    }
}

} // namespace signal
} // namespace ValueTypes
} // namespace VarnholtMath
