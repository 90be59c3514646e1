// Windowed-sinc FIR kernels: the ideal response's impulse response, cut to
// order taps around (order - 1) / 2 and shaped by a window.

#include "signal/fir_window_design.h"

#include <cmath>
#include <cstdlib>

#include "signal/filter_windows.h"

namespace VarnholtMath {
namespace ValueTypes {
namespace signal {

namespace {

constexpr double kPi = 3.141592653589793;
constexpr double kTwoPi = 6.283185307179586;

// The record with order zeroed taps and the window in the taps, or null.
FilterCoefficients* newRecord(std::int32_t order, int window, std::int32_t type)
{
    if (order <= 0)
        return nullptr;
    FilterCoefficients* f = static_cast<FilterCoefficients*>(std::calloc(1, sizeof(FilterCoefficients)));
    if (!f)
        return nullptr;
    f->coefficients = static_cast<double*>(std::calloc(static_cast<std::size_t>(order), sizeof(double)));
    f->size = order;
    f->filterType = type;
    if (!f->coefficients || !fillWindow(window, static_cast<std::size_t>(order), f->coefficients)) {
        freeFilterCoefficients(f);
        return nullptr;
    }
    return f;
}

// Replaces each window value w[i] by tap(k) * w[i], k = i - M, and the
// middle one (k exactly 0, odd orders only) by the unwindowed centre value.
// The first half is computed and mirrored (negated for odd taps), so that
// the taps are symmetric to the bit, zeros' signs included.
template <class Tap>
void shapeTaps(FilterCoefficients* f, double centre, double mirrorSign, Tap tap)
{
    const double m = (double(f->size) - 1.0) / 2.0;
    double* c = f->coefficients;
    const std::int32_t n = f->size;
    for (std::int32_t i = 0; i <= (n - 1) / 2; ++i) {
        const double k = double(i) - m;
        const double v = k == 0.0 ? centre : tap(k) * c[i];
        c[i] = v;
        if (n - 1 - i != i)
            c[n - 1 - i] = mirrorSign * v;
    }
}

} // namespace

void freeFilterCoefficients(FilterCoefficients* f)
{
    if (!f)
        return;
    std::free(f->coefficients);
    std::free(f);
}

FilterCoefficients* newFirLowpass(double f, std::int32_t order, int window)
{
    FilterCoefficients* r = newRecord(order, window, firLowpass);
    if (r)
        shapeTaps(r, 2.0 * f, 1.0, [f](double k) { return std::sin(kTwoPi * f * k) / (kPi * k); });
    return r;
}

FilterCoefficients* newFirHighpass(double f, std::int32_t order, int window)
{
    FilterCoefficients* r = newRecord(order, window, firHighpass);
    if (r)
        shapeTaps(r, 1.0 - 2.0 * f, 1.0, [f](double k) { return -std::sin(kTwoPi * f * k) / (kPi * k); });
    return r;
}

FilterCoefficients* newFirBandpass(double f1, double f2, std::int32_t order, int window)
{
    FilterCoefficients* r = newRecord(order, window, firBandpass);
    if (r)
        shapeTaps(r, 2.0 * (f2 - f1), 1.0, [f1, f2](double k) {
            return (std::sin(kTwoPi * f2 * k) - std::sin(kTwoPi * f1 * k)) / (kPi * k);
        });
    return r;
}

FilterCoefficients* newFirBandstop(double f1, double f2, std::int32_t order, int window)
{
    // The band-pass turned upside down: an all-pass impulse minus it.
    FilterCoefficients* r = newRecord(order, window, firBandstop);
    if (r)
        shapeTaps(r, 1.0 - 2.0 * (f2 - f1), 1.0, [f1, f2](double k) {
            return -(std::sin(kTwoPi * f2 * k) - std::sin(kTwoPi * f1 * k)) / (kPi * k);
        });
    return r;
}

FilterCoefficients* newFirHilbert(double f1, double f2, std::int32_t order, int window)
{
    // A low-pass of half the band's width, windowed, then moved to the band's
    // centre by a sine: the taps are odd about the middle, which is 0.
    FilterCoefficients* r = newRecord(order, window, firHilbert);
    if (!r)
        return nullptr;
    const double b = (f2 - f1) / 2.0;
    const double centre = f1 + f2;
    const double m = (double(r->size) - 1.0) / 2.0;
    double* c = r->coefficients;
    const std::int32_t n = r->size;
    for (std::int32_t i = 0; i <= (n - 1) / 2; ++i) {
        const double k = double(i) - m;
        const double t = k == 0.0 ? 2.0 * b : std::sin(kTwoPi * b * k) / (kPi * k) * c[i];
        const double v = 2.0 * std::sin(kPi * centre * k) * t;
        c[i] = v;
        if (n - 1 - i != i)
            c[n - 1 - i] = -v;
    }
    return r;
}

void convolveKeepLength(const double* x, std::size_t n, const double* h, std::size_t taps, double* y)
{
    for (std::size_t i = 0; i < n; ++i) {
        const std::size_t kmax = i + 1 < taps ? i + 1 : taps;
        double s = 0.0;
        for (std::size_t k = 0; k < kmax; ++k)
            s += h[k] * x[i - k];
        y[i] = s;
    }
}

} // namespace signal
} // namespace ValueTypes
} // namespace VarnholtMath
