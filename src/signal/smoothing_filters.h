#pragma once

// The two stateless smoothers: the centred moving average and the LMS
// adaptive filter. Plain kernels on double arrays.

#include <cstddef>

namespace VarnholtMath {
namespace ValueTypes {
namespace signal {

// y[i] = (x[i - half] + ... + x[i + half]) / w, half = (w - 1) / 2, with zeros
// outside x: the ends are averaged against zeros with the full w as divisor.
// w is odd and at least 1. The cost is O(n) for any w: a compensated running
// sum, restarted from a fresh sum every w outputs so that its error cannot
// build up.
void movingAverage(const double* x, std::size_t n, std::size_t w, double* y);

// The LMS adaptive filter of length L: per sample the input history u (newest
// first) gives y[n] = w . u, e[n] = d[n] - y[n], and w += mu e[n] u. w holds
// the final L weights.
void lmsAdaptive(const double* d, const double* x, std::size_t n, double mu, std::size_t L, double* y, double* e,
                 double* w);

} // namespace signal
} // namespace ValueTypes
} // namespace VarnholtMath
