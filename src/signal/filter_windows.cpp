// The thirteen windows. Each symmetric one is evaluated for i up to the
// middle and mirrored; the two four-term sums (Blackman-Harris, Nuttall) are
// evaluated at every i, at half-sample offsets over n - 1.

#include "signal/filter_windows.h"

#include <cmath>

namespace VarnholtMath {
namespace ValueTypes {
namespace signal {

namespace {

constexpr double kTwoPi = 6.283185307179586;

const char* const kNames[windowTypeCount] = {"rectangular", "hanning",   "welch",     "parzen",
                                             "bartlett",    "hamming",   "blackman2", "blackman3",
                                             "blackman4",   "exponential", "riemann", "blackmanharris",
                                             "nuttall"};

} // namespace

int windowNumberForMakeWindow(const std::string& name)
{
    for (int i = 0; i < windowTypeCount; ++i)
        if (name == kNames[i])
            return i;
    return -1;
}

int windowNumberForFir(const std::string& name)
{
    const int n = windowNumberForMakeWindow(name);
    if (n == windowBlackman2 || n == windowBlackman3 || n == windowBlackman4)
        return -1;
    return n;
}

bool fillWindow(int type, std::size_t n, double* w)
{
    if (n == 0 || type < 0 || type >= windowTypeCount)
        return false;
    if (type == windowBlackmanHarris || type == windowNuttall) {
        if (n == 1)
            return false;
        // Single-precision coefficients widened to double, as the sums were
        // first published in this system.
        const double c0 = type == windowNuttall ? 0.36358189582824707 : 0.35874998569488525;
        const double c1 = type == windowNuttall ? 0.48917749524116516 : 0.488290011882782;
        const double c2 = type == windowNuttall ? 0.13659949600696564 : 0.14127999544143677;
        const double c3 = type == windowNuttall ? 0.010641099885106087 : 0.011680000461637974;
        const double step = kTwoPi / double(n - 1);
        for (std::size_t i = 0; i < n; ++i) {
            const double a = step * (double(i) + 0.5);
            w[i] = c0 - c1 * std::cos(a) + c2 * std::cos(2.0 * a) - c3 * std::cos(3.0 * a);
        }
        return true;
    }

    const double dn = double(n);
    // Whole-number halves: the integer quotients of the table.
    const std::size_t half = n / 2;
    const long long centreK = (static_cast<long long>(n) - 1) / 2;
    const long long halfWidth = (static_cast<long long>(n) + 1) / 2;
    const double bartlettStep = 1.0 / double(half);
    const double exponentialBase = 1.0 + 0.6931471805599453 / double(half);
    double bartlett = 0.0;

    const std::size_t last = (n - 1) / 2;
    for (std::size_t i = 0; i <= last; ++i) {
        double v = 0.0;
        const double c = std::cos(kTwoPi * double(i) / dn);
        switch (type) {
        case windowRectangular:
            v = 1.0;
            break;
        case windowHanning:
            v = 0.5 - 0.5 * c;
            break;
        case windowWelch: {
            const double r = double(static_cast<long long>(i) - centreK) / double(halfWidth);
            v = 1.0 - r * r;
            break;
        }
        case windowParzen:
            v = 1.0 - std::fabs(double(static_cast<long long>(i) - centreK) / double(halfWidth));
            break;
        case windowBartlett:
            // Built by repeated addition, so the rounding of the sum shows.
            v = bartlett;
            bartlett += bartlettStep;
            break;
        case windowHamming:
            v = 0.54 - 0.46 * c;
            break;
        case windowBlackman2:
            v = c * (c * 0.15844 - 0.49755) + 0.34401;
            break;
        case windowBlackman3:
            v = c * ((0.28256 - c * 0.04672) * c - 0.45325) + 0.21747;
            break;
        case windowBlackman4:
            v = c * (((c * 0.041194 - 0.20762) * c + 0.375696) * c - 0.29145) + 0.084037;
            break;
        case windowExponential:
            v = std::pow(exponentialBase, double(i)) - 1.0;
            break;
        case windowRiemann:
            if (i == half) {
                v = 1.0;
            } else {
                const double t = (double(half) - double(i)) * kTwoPi / dn;
                v = std::sin(t) / t;
            }
            break;
        default:
            return false;
        }
        w[i] = v;
        w[n - 1 - i] = v;
    }
    return true;
}

} // namespace signal
} // namespace ValueTypes
} // namespace VarnholtMath
