#pragma once

// The order estimate of equiripple filters and FIR design by frequency
// sampling.

#include <cstddef>

namespace VarnholtMath {
namespace ValueTypes {
namespace signal {

// The order for pass and stop ripples d1, d2 (linear) and a transition of df
// (fraction of the rate): Herrmann, Rabiner and Chan's formula, or Kaiser's
// when both ripples are below 1e-5. The real value, not rounded.
double equirippleOrder(double d1, double d2, double df);

// h[n] = Re (1/N) sum over k < N of H_k e^{2 pi i k n / N}, n < length, with
// H_k = A_k e^{i phi k} (i A_k e^{i phi k} when antisymmetric).
void frequencySampledFir(const double* samples, std::size_t count, bool antisymmetric, std::size_t length,
                         double* h);

} // namespace signal
} // namespace ValueTypes
} // namespace VarnholtMath
