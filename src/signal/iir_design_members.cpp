// The members of the IIR designs: argument checks and the coefficients as a
// matrix of order + 1 (band forms 2 order + 1) rows, the numerator in column
// 0 and the denominator in column 1.

#include <cmath>
#include <utility>
#include <vector>

#include "frame/math.h"
#include "signal/iir_design.h"
#include "signal/signal_arguments.h"

namespace VarnholtMath {
namespace ValueTypes {

namespace {

using namespace signal;

constexpr int kMaximumIirOrder = 1000;

// The filter kind: the exact words, or 0 and 1 as whole numbers or booleans.
int kindOf(const vhValue& v, const char* zero, const char* one)
{
    if (v.isNull())
        return -1;
    if (v.isString()) {
        const std::string s = expressionToValue(v).toString();
        return s == zero ? 0 : s == one ? 1 : -1;
    }
    int n = -1;
    if (!readWhole(v, n) || (n != 0 && n != 1))
        return -1;
    return n;
}

struct Design {
    int order = 0;
    IirBand band = iirLowpass;
    double f1 = 0.0;
    double f2 = 0.0;
};

// Order, kind and edges; the edges lie strictly inside (0, rate / 2).
bool readDesign(const vhValue& order, const vhValue& kind, const vhValue& edge1, const vhValue* edge2,
                const vhValue& rate, Design& d)
{
    if (!readWhole(order, d.order) || d.order < 1 || d.order > kMaximumIirOrder)
        return false;
    const int k = edge2 ? kindOf(kind, "pass", "stop") : kindOf(kind, "low", "high");
    if (k < 0)
        return false;
    d.band = static_cast<IirBand>(edge2 ? iirBandpass + k : k);
    double r = 0.0;
    double e1 = 0.0;
    double e2 = 0.0;
    if (!readFinite(rate, r) || !readFinite(edge1, e1) || r <= 0.0)
        return false;
    if (edge2 && !readFinite(*edge2, e2))
        return false;
    if (!(e1 > 0.0) || !(2.0 * e1 < r))
        return false;
    if (edge2 && (!(e2 > e1) || !(2.0 * e2 < r)))
        return false;
    d.f1 = e1 / r;
    d.f2 = e2 / r;
    const std::size_t rows = edge2 ? 2 * std::size_t(d.order) + 1 : std::size_t(d.order) + 1;
    return 2 * rows <= maximumNumerOfMatrixElements();
}

bool readLevel(const vhValue& v, double& level) { return readFinite(v, level) && level > 0.0; }

vhValue coefficientMatrix(const std::vector<double>& b, const std::vector<double>& a)
{
    if (b.empty() || b.size() != a.size())
        return vhValue();
    const unsigned int rows = static_cast<unsigned int>(b.size());
    vhMatrix m(rows, 2, true, false, false);
    double* out = m.numericValues();
    if (!out)
        return vhValue();
    for (unsigned int i = 0; i < rows; ++i) {
        out[2 * i] = b[i];
        out[2 * i + 1] = a[i];
    }
    return vhValue(std::move(m));
}

} // namespace

vhValue vhMath::buttlowhigh_f(const vhValue& order, const vhValue& kind, const vhValue& cutoff, const vhValue& rate)
{
    Design d;
    std::vector<double> b;
    std::vector<double> a;
    if (!readDesign(order, kind, cutoff, nullptr, rate, d) || !butterworth(d.order, d.band, d.f1, d.f2, b, a))
        return vhValue();
    return coefficientMatrix(b, a);
}

vhValue vhMath::buttband_f(const vhValue& order, const vhValue& kind, const vhValue& start, const vhValue& end,
                           const vhValue& rate)
{
    Design d;
    std::vector<double> b;
    std::vector<double> a;
    if (!readDesign(order, kind, start, &end, rate, d) || !butterworth(d.order, d.band, d.f1, d.f2, b, a))
        return vhValue();
    return coefficientMatrix(b, a);
}

vhValue vhMath::cheby1lohi_f(const vhValue& order, const vhValue& kind, const vhValue& edge, const vhValue& ripple,
                             const vhValue& rate)
{
    Design d;
    double rp = 0.0;
    std::vector<double> b;
    std::vector<double> a;
    if (!readDesign(order, kind, edge, nullptr, rate, d) || !readLevel(ripple, rp) ||
        !chebyshev1(d.order, d.band, d.f1, d.f2, rp, b, a))
        return vhValue();
    return coefficientMatrix(b, a);
}

vhValue vhMath::cheby1band_f(const vhValue& order, const vhValue& kind, const vhValue& lower, const vhValue& upper,
                             const vhValue& ripple, const vhValue& rate)
{
    Design d;
    double rp = 0.0;
    std::vector<double> b;
    std::vector<double> a;
    if (!readDesign(order, kind, lower, &upper, rate, d) || !readLevel(ripple, rp) ||
        !chebyshev1(d.order, d.band, d.f1, d.f2, rp, b, a))
        return vhValue();
    return coefficientMatrix(b, a);
}

vhValue vhMath::cheby2lohi_f(const vhValue& order, const vhValue& kind, const vhValue& edge,
                             const vhValue& attenuation, const vhValue& rate)
{
    Design d;
    double rs = 0.0;
    std::vector<double> b;
    std::vector<double> a;
    if (!readDesign(order, kind, edge, nullptr, rate, d) || !readLevel(attenuation, rs) ||
        !chebyshev2(d.order, d.band, d.f1, d.f2, rs, b, a))
        return vhValue();
    return coefficientMatrix(b, a);
}

vhValue vhMath::cheby2band_f(const vhValue& order, const vhValue& kind, const vhValue& lower, const vhValue& upper,
                             const vhValue& attenuation, const vhValue& rate)
{
    Design d;
    double rs = 0.0;
    std::vector<double> b;
    std::vector<double> a;
    if (!readDesign(order, kind, lower, &upper, rate, d) || !readLevel(attenuation, rs) ||
        !chebyshev2(d.order, d.band, d.f1, d.f2, rs, b, a))
        return vhValue();
    return coefficientMatrix(b, a);
}

vhValue vhMath::elliplohi_f(const vhValue& order, const vhValue& kind, const vhValue& edge, const vhValue& ripple,
                            const vhValue& attenuation, const vhValue& rate)
{
    Design d;
    double rp = 0.0;
    double rs = 0.0;
    std::vector<double> b;
    std::vector<double> a;
    if (!readDesign(order, kind, edge, nullptr, rate, d) || !readLevel(ripple, rp) ||
        !readLevel(attenuation, rs) || !(rs > rp) || !elliptic(d.order, d.band, d.f1, d.f2, rp, rs, b, a))
        return vhValue();
    return coefficientMatrix(b, a);
}

vhValue vhMath::ellipband_f(const vhValue& order, const vhValue& kind, const vhValue& lower, const vhValue& upper,
                            const vhValue& ripple, const vhValue& attenuation, const vhValue& rate)
{
    Design d;
    double rp = 0.0;
    double rs = 0.0;
    std::vector<double> b;
    std::vector<double> a;
    if (!readDesign(order, kind, lower, &upper, rate, d) || !readLevel(ripple, rp) ||
        !readLevel(attenuation, rs) || !(rs > rp) || !elliptic(d.order, d.band, d.f1, d.f2, rp, rs, b, a))
        return vhValue();
    return coefficientMatrix(b, a);
}

} // namespace ValueTypes
} // namespace VarnholtMath
