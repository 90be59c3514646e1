#pragma once

// Frequency responses and delays of FIR and IIR filters at the points
// w_k = k pi omega / size, k = 0..size-1. Polynomials are in z = e^{-i w}:
// B(z) = sum of b[n] z^n, A likewise.

#include <cstddef>

#include "signal/running_filters.h"

namespace VarnholtMath {
namespace ValueTypes {
namespace signal {

// max(|B|, 1e-12).
bool firMagnitude(const double* b, std::size_t nb, std::size_t size, double omega, double* out,
                  const StopPoll& poll);
// max(|B|, 1e-12) / max(|A|, 1e-12).
bool iirMagnitude(const double* a, std::size_t na, const double* b, std::size_t nb, std::size_t size,
                  double omega, double* out, const StopPoll& poll);
// Group delay in samples, Re(sum n b_n z^n / B) - Re(sum n a_n z^n / A); 0
// where |A| or |B| is below 1e-12.
bool groupDelay(const double* a, std::size_t na, const double* b, std::size_t nb, std::size_t size, double* out,
                const StopPoll& poll);
// Phase delay -phi / w with phi = arg B - arg A unwrapped along the points;
// the group delay at w = 0, and 0 where |A| or |B| is below 1e-12.
bool phaseDelay(const double* a, std::size_t na, const double* b, std::size_t nb, std::size_t size, double* out,
                const StopPoll& poll);

} // namespace signal
} // namespace ValueTypes
} // namespace VarnholtMath
