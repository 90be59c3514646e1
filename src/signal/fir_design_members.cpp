// The members of windows and windowed-sinc FIR designs: argument checks, the
// kernel, and the taps as a numeric column vector.

#include <cmath>
#include <vector>

#include "frame/math.h"
#include "signal/filter_windows.h"
#include "signal/fir_window_design.h"
#include "signal/signal_arguments.h"

namespace VarnholtMath {
namespace ValueTypes {

namespace {

using namespace signal;

std::string textOf(const vhValue& v) { return expressionToValue(v).toString(); }

// The FIR window argument: a number 0..12 or one of the ten names; -1 when
// refused.
int firWindow(const vhValue& v)
{
    if (v.isNull())
        return -1;
    if (v.isString())
        return windowNumberForFir(textOf(v));
    int n = 0;
    if (!readWhole(v, n) || n < 0 || n >= windowTypeCount)
        return -1;
    return n;
}

// An order of taps: a whole number above 0 within the array cap.
bool readOrder(const vhValue& v, int& order)
{
    return readWhole(v, order) && order > 0 && static_cast<unsigned int>(order) <= maximumNumerOfMatrixElements();
}

vhValue takeCoefficients(FilterCoefficients* f)
{
    if (!f)
        return vhValue();
    vhValue r = numericVector(f->coefficients, static_cast<std::size_t>(f->size), false);
    freeFilterCoefficients(f);
    return r;
}

// The checks of the single-edge forms; f is the cutoff over the rate.
bool singleEdge(const vhValue& cutoff, const vhValue& rate, const vhValue& order, const vhValue& window, double& f,
                int& n, int& w)
{
    double c = 0.0;
    double r = 0.0;
    if (!readFinite(cutoff, c) || !readFinite(rate, r) || !readOrder(order, n))
        return false;
    if (c < 0.0 || r <= 0.0 || 2.0 * c > r)
        return false;
    w = firWindow(window);
    if (w < 0)
        return false;
    f = c / r;
    return true;
}

// The checks of the band forms: 0 <= f1 < f2 <= rate / 2.
bool bandEdges(const vhValue& start, const vhValue& end, const vhValue& rate, const vhValue& order,
               const vhValue& window, double& f1, double& f2, int& n, int& w)
{
    double a = 0.0;
    double b = 0.0;
    double r = 0.0;
    if (!readFinite(start, a) || !readFinite(end, b) || !readFinite(rate, r) || !readOrder(order, n))
        return false;
    if (r <= 0.0 || a < 0.0 || 2.0 * b > r || !(a < b))
        return false;
    w = firWindow(window);
    if (w < 0)
        return false;
    f1 = a / r;
    f2 = b / r;
    return true;
}

// A design of one edge or of a band: the checked arguments, then the design.
template <class Design>
vhValue edgeDesign(const vhValue& cutoff, const vhValue& rate, const vhValue& order, const vhValue& window,
                   Design design)
{
    double f = 0.0;
    int n = 0;
    int w = 0;
    if (!singleEdge(cutoff, rate, order, window, f, n, w))
        return vhValue();
    return takeCoefficients(design(f, n, w));
}

template <class Design>
vhValue bandDesign(const vhValue& start, const vhValue& end, const vhValue& rate, const vhValue& order,
                   const vhValue& window, Design design)
{
    double f1 = 0.0;
    double f2 = 0.0;
    int n = 0;
    int w = 0;
    if (!bandEdges(start, end, rate, order, window, f1, f2, n, w))
        return vhValue();
    return takeCoefficients(design(f1, f2, n, w));
}

} // namespace

vhValue vhMath::makeWindow_f(const vhValue& name, const vhValue& size)
{
    if (name.isNull() || !name.isString())
        return vhValue();
    const int type = windowNumberForMakeWindow(textOf(name));
    int n = 0;
    if (type < 0 || !readOrder(size, n))
        return vhValue();
    double* w = nullptr;
    vhValue r = newNumericVector(static_cast<std::size_t>(n), false, w);
    if (!w || !fillWindow(type, static_cast<std::size_t>(n), w))
        return vhValue();
    return r;
}

vhValue vhMath::FIRlowpass_f(const vhValue& cutoff, const vhValue& rate, const vhValue& order, const vhValue& window)
{
    return edgeDesign(cutoff, rate, order, window, newFirLowpass);
}

vhValue vhMath::FIRhighpass_f(const vhValue& cutoff, const vhValue& rate, const vhValue& order,
                              const vhValue& window)
{
    return edgeDesign(cutoff, rate, order, window, newFirHighpass);
}

vhValue vhMath::FIRbandpass_f(const vhValue& start, const vhValue& end, const vhValue& rate, const vhValue& order,
                              const vhValue& window)
{
    return bandDesign(start, end, rate, order, window, newFirBandpass);
}

vhValue vhMath::FIRbandstop_f(const vhValue& start, const vhValue& end, const vhValue& rate, const vhValue& order,
                              const vhValue& window)
{
    return bandDesign(start, end, rate, order, window, newFirBandstop);
}

vhValue vhMath::FIRhilbert_f(const vhValue& start, const vhValue& end, const vhValue& rate, const vhValue& order,
                             const vhValue& window)
{
    return bandDesign(start, end, rate, order, window, newFirHilbert);
}

vhValue vhMath::FIRFILlowpass_f(const vhValue& signal, const vhValue& cutoff, const vhValue& rate,
                                const vhValue& order, const vhValue& window)
{
    std::vector<double> x;
    if (!readRealVector(signal, x))
        return vhValue();
    const vhValue taps = FIRlowpass_f(cutoff, rate, order, window);
    if (!taps.isVector() || !taps.numericValues())
        return vhValue();
    std::vector<double> y(x.size());
    convolveKeepLength(x.data(), x.size(), taps.numericValues(), taps.size(), y.data());
    return numericVector(y.data(), y.size(), signal.isRowVector());
}

} // namespace ValueTypes
} // namespace VarnholtMath
