// Responses by a running complex power of e^{-i w} over the coefficients:
// one complex multiply-add per coefficient and point.

#include "signal/filter_responses.h"

#include <cmath>
#include <complex>

namespace VarnholtMath {
namespace ValueTypes {
namespace signal {

namespace {

constexpr double kPi = 3.141592653589793;
constexpr double kFloor = 1e-12;
using cplx = std::complex<double>;

// B and sum of n b_n z^n, in long double: where B is small (near its
// zeros) the delays divide by it, and the extra digits keep them accurate.
struct Sums {
    std::complex<long double> value;
    std::complex<long double> weighted;
};

Sums evaluate(const double* c, std::size_t n, cplx zd)
{
    const std::complex<long double> z(zd.real(), zd.imag());
    std::complex<long double> power(1.0L, 0.0L);
    Sums s{std::complex<long double>(0.0L, 0.0L), std::complex<long double>(0.0L, 0.0L)};
    for (std::size_t k = 0; k < n; ++k) {
        s.value += (long double)c[k] * power;
        s.weighted += (long double)k * (long double)c[k] * power;
        power *= z;
    }
    return s;
}

cplx sumOnly(const double* c, std::size_t n, cplx z)
{
    double re = 1.0;
    double im = 0.0;
    double vr = 0.0;
    double vi = 0.0;
    for (std::size_t k = 0; k < n; ++k) {
        vr += c[k] * re;
        vi += c[k] * im;
        const double t = re * z.real() - im * z.imag();
        im = re * z.imag() + im * z.real();
        re = t;
    }
    return cplx(vr, vi);
}

bool polling(std::size_t size, std::size_t taps, const StopPoll& poll)
{
    return poll.stop && taps != 0 && size > 1000 / taps;
}

cplx pointAt(std::size_t k, std::size_t size, double omega)
{
    const double w = double(k) * kPi * omega / double(size);
    return cplx(std::cos(w), -std::sin(w));
}

double delayAt(const double* a, std::size_t na, const double* b, std::size_t nb, cplx z)
{
    const Sums B = evaluate(b, nb, z);
    const Sums A = evaluate(a, na, z);
    if (std::abs(B.value) < kFloor || std::abs(A.value) < kFloor)
        return 0.0;
    return double((B.weighted / B.value).real() - (A.weighted / A.value).real());
}

} // namespace

bool firMagnitude(const double* b, std::size_t nb, std::size_t size, double omega, double* out,
                  const StopPoll& poll)
{
    const bool ask = polling(size, nb, poll);
    for (std::size_t k = 0; k < size; ++k) {
        out[k] = std::fmax(std::abs(sumOnly(b, nb, pointAt(k, size, omega))), kFloor);
        if (ask && poll.ask())
            return false;
    }
    return true;
}

bool iirMagnitude(const double* a, std::size_t na, const double* b, std::size_t nb, std::size_t size,
                  double omega, double* out, const StopPoll& poll)
{
    const bool ask = polling(size, na + nb, poll);
    for (std::size_t k = 0; k < size; ++k) {
        const cplx z = pointAt(k, size, omega);
        out[k] = std::fmax(std::abs(sumOnly(b, nb, z)), kFloor) / std::fmax(std::abs(sumOnly(a, na, z)), kFloor);
        if (ask && poll.ask())
            return false;
    }
    return true;
}

bool groupDelay(const double* a, std::size_t na, const double* b, std::size_t nb, std::size_t size, double* out,
                const StopPoll& poll)
{
    const bool ask = polling(size, na + nb, poll);
    for (std::size_t k = 0; k < size; ++k) {
        out[k] = delayAt(a, na, b, nb, pointAt(k, size, 1.0));
        if (ask && poll.ask())
            return false;
    }
    return true;
}

bool phaseDelay(const double* a, std::size_t na, const double* b, std::size_t nb, std::size_t size, double* out,
                const StopPoll& poll)
{
    const bool ask = polling(size, na + nb, poll);
    double previous = 0.0;
    double unwrapped = 0.0;
    for (std::size_t k = 0; k < size; ++k) {
        const cplx z = pointAt(k, size, 1.0);
        const std::complex<long double> B = evaluate(b, nb, z).value;
        const std::complex<long double> A = evaluate(a, na, z).value;
        const double phase = double(std::arg(B) - std::arg(A));
        // Unwrapping follows the phase along the points: a jump of more than
        // pi between neighbours is taken as a wrap.
        if (k == 0) {
            unwrapped = phase;
        } else {
            double step = phase - previous;
            step -= 2.0 * kPi * std::floor((step + kPi) / (2.0 * kPi));
            unwrapped += step;
        }
        previous = phase;
        if (std::abs(B) < kFloor || std::abs(A) < kFloor)
            out[k] = 0.0;
        else if (k == 0)
            out[k] = delayAt(a, na, b, nb, z);
        else
            out[k] = -unwrapped / (double(k) * kPi / double(size));
        if (ask && poll.ask())
            return false;
    }
    return true;
}

} // namespace signal
} // namespace ValueTypes
} // namespace VarnholtMath
