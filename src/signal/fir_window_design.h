#pragma once

// FIR filters by the windowed-sinc method. Each kernel allocates its taps
// with calloc and hands them over in a FilterCoefficients record, or gives
// null for a refused parameter or a failed allocation. Frequencies are
// fractions of the sampling rate.

#include <cstddef>
#include <cstdint>

namespace VarnholtMath {
namespace ValueTypes {
namespace signal {

enum FirFilterType : std::int32_t {
    firLowpass = 1,
    firBandpass = 2,
    firHighpass = 3,
    firHilbert = 4,
    firBandstop = 5
};

struct FilterCoefficients {
    double* coefficients;
    std::int32_t size;
    std::int32_t filterType;
};

// Frees the record and its taps; null is fine.
void freeFilterCoefficients(FilterCoefficients* f);

// order taps; window is a number of the window table (0..12). The middle tap
// (at (order - 1) / 2, only for an odd order) is not windowed.
FilterCoefficients* newFirLowpass(double f, std::int32_t order, int window);
FilterCoefficients* newFirHighpass(double f, std::int32_t order, int window);
FilterCoefficients* newFirBandpass(double f1, double f2, std::int32_t order, int window);
FilterCoefficients* newFirBandstop(double f1, double f2, std::int32_t order, int window);
FilterCoefficients* newFirHilbert(double f1, double f2, std::int32_t order, int window);

// y[n] = sum over k of h[k] x[n - k], with zeros before the signal; y has the
// signal's length n.
void convolveKeepLength(const double* x, std::size_t n, const double* h, std::size_t taps, double* y);

} // namespace signal
} // namespace ValueTypes
} // namespace VarnholtMath
