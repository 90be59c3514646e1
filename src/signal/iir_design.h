#pragma once

// Classical IIR designs: Butterworth by its closed recursive formulas,
// Chebyshev I and II and elliptic from analog prototypes through the
// bilinear transform. Frequencies are fractions of the sampling rate. Each
// design fills b (numerator) and a (denominator, a[0] = 1) with order + 1
// coefficients, 2 order + 1 for the band forms, and answers false when the
// coefficients do not come out finite.

#include <vector>

namespace VarnholtMath {
namespace ValueTypes {
namespace signal {

enum IirBand : int { iirLowpass = 0, iirHighpass = 1, iirBandpass = 2, iirBandstop = 3 };

// f1 is the edge of the low- and high-pass; f1 < f2 the band's edges.
bool butterworth(int order, IirBand band, double f1, double f2, std::vector<double>& b, std::vector<double>& a);

// Edges are pass-band edges, ripple in dB.
bool chebyshev1(int order, IirBand band, double f1, double f2, double ripple, std::vector<double>& b,
                std::vector<double>& a);
// Edges are stop-band edges, attenuation in dB.
bool chebyshev2(int order, IirBand band, double f1, double f2, double attenuation, std::vector<double>& b,
                std::vector<double>& a);
// Edges are pass-band edges; ripple < attenuation, both in dB.
bool elliptic(int order, IirBand band, double f1, double f2, double ripple, double attenuation,
              std::vector<double>& b, std::vector<double>& a);

} // namespace signal
} // namespace ValueTypes
} // namespace VarnholtMath
