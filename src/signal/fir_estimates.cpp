// Herrmann-Rabiner-Chan order estimate and frequency-sampling design.

#include "signal/fir_estimates.h"

#include <cmath>

namespace VarnholtMath {
namespace ValueTypes {
namespace signal {

namespace {

constexpr double kTwoPi = 6.283185307179586;

} // namespace

double equirippleOrder(double d1, double d2, double df)
{
    const double largest = std::fmax(d1, d2);
    if (largest >= 1e-5) {
        const double p = std::log10(d1);
        const double q = std::log10(d2);
        const double d = (0.005309 * p * p + 0.07114 * p - 0.4761) * q - (0.00266 * p * p + 0.5941 * p + 0.4278);
        const double f = (p - q) * 0.51244 + 11.012;
        return (d - f * df * df) / df + 1.0;
    }
    // Kaiser's estimate; its numerator is rounded to a whole number, half to
    // even.
    return std::nearbyint(-20.0 * std::log10(largest) - 7.95) / (14.26 * df);
}

void frequencySampledFir(const double* samples, std::size_t count, bool antisymmetric, std::size_t length,
                         double* h)
{
    // The linear phase of every even count is the one of 32 samples,
    // -31 pi / 32; odd counts turn by -pi per sample.
    const double phi = count % 2 == 0 ? -3.043417883165112 : -3.141592653589793;
    const double n = double(count);
    for (std::size_t t = 0; t < length; ++t) {
        double sum = 0.0;
        for (std::size_t k = 0; k < count; ++k) {
            const double angle = phi * double(k) + kTwoPi * double(k) * double(t) / n;
            // Re(A e^{i angle}) or Re(i A e^{i angle}).
            sum += antisymmetric ? -samples[k] * std::sin(angle) : samples[k] * std::cos(angle);
        }
        h[t] = sum / n;
    }
}

} // namespace signal
} // namespace ValueTypes
} // namespace VarnholtMath
