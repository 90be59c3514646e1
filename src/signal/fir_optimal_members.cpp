// The members of the equiripple design, its order estimate and the
// frequency-sampling design.

#include <cmath>
#include <vector>

#include "frame/math.h"
#include "signal/fir_estimates.h"
#include "signal/remez.h"
#include "signal/signal_arguments.h"

namespace VarnholtMath {
namespace ValueTypes {

namespace {

using namespace signal;

bool readWholeIn(const vhValue& v, int lo, int hi, int& out) { return readWhole(v, out) && out >= lo && out <= hi; }

bool allFinite(const std::vector<double>& v)
{
    for (double x : v)
        if (!std::isfinite(x))
            return false;
    return true;
}

} // namespace

vhValue vhMath::firopt_f(const vhValue& length, const vhValue& bands, const vhValue& edges,
                         const vhValue& responses, const vhValue& weights, const vhValue& type,
                         const vhValue& density)
{
    int n = 0;
    int nb = 0;
    int t = 0;
    int g = 0;
    if (!readWholeIn(length, 3, 4096, n) || !readWholeIn(bands, 1, 4096, nb) || !readWholeIn(type, 0, 2, t) ||
        !readWholeIn(density, 1, 64, g) || static_cast<unsigned int>(n) > maximumNumerOfMatrixElements())
        return vhValue();
    std::vector<double> e;
    std::vector<double> r;
    std::vector<double> w;
    if (!readRealVector(edges, e) || !readRealVector(responses, r) || !readRealVector(weights, w))
        return vhValue();
    if (e.size() != 2 * std::size_t(nb) || r.size() != 2 * std::size_t(nb) || w.size() != std::size_t(nb))
        return vhValue();
    if (!allFinite(e) || !allFinite(r) || !allFinite(w))
        return vhValue();
    // Edges ascend within [0, 0.5]; weights are positive.
    for (std::size_t i = 0; i < e.size(); ++i)
        if (e[i] < 0.0 || e[i] > 0.5 || (i > 0 && e[i] < e[i - 1]))
            return vhValue();
    for (double v : w)
        if (!(v > 0.0))
            return vhValue();
    std::vector<double> taps;
    if (!remezDesign(n, e, r, w, static_cast<RemezType>(t), g, taps, StopPoll{pollStop, this}) ||
        !allFinite(taps))
        return vhValue();
    return numericVector(taps.data(), taps.size(), false);
}

vhValue vhMath::firoptord_f(const vhValue& passEdge, const vhValue& stopEdge, const vhValue& passRipple,
                            const vhValue& stopRipple, const vhValue& rate)
{
    double fp = 0.0;
    double fs = 0.0;
    double d1 = 0.0;
    double d2 = 0.0;
    double r = 0.0;
    if (!readFinite(passEdge, fp) || !readFinite(stopEdge, fs) || !readFinite(passRipple, d1) ||
        !readFinite(stopRipple, d2) || !readFinite(rate, r))
        return vhValue();
    if (!(r > 0.0) || !(d1 > 0.0 && d1 < 1.0) || !(d2 > 0.0 && d2 < 1.0))
        return vhValue();
    if (fp < 0.0 || fs < 0.0 || 2.0 * fp > r || 2.0 * fs > r || fp == fs)
        return vhValue();
    const double order = equirippleOrder(d1, d2, std::fabs(fs - fp) / r);
    if (!std::isfinite(order))
        return vhValue();
    return vhDouble(order);
}

vhValue vhMath::firfreqsampl_f(const vhValue& samples, const vhValue& count, const vhValue& type,
                               const vhValue& length)
{
    std::vector<double> a;
    int c = 0;
    int t = 0;
    int l = 0;
    if (!readRealVector(samples, a) || !readWhole(count, c) || c < 1 || !readWholeIn(type, 0, 2, t) ||
        !readWhole(length, l))
        return vhValue();
    // At most 32 samples are used.
    const std::size_t n = c > 32 ? 32 : std::size_t(c);
    if (n > a.size() || l < 1 || std::size_t(l) > n)
        return vhValue();
    std::vector<double> h(static_cast<std::size_t>(l));
    frequencySampledFir(a.data(), n, t == 1, h.size(), h.data());
    return numericVector(h.data(), h.size(), false);
}

} // namespace ValueTypes
} // namespace VarnholtMath
