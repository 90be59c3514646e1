// The members of the filter responses and delays: vectors of real
// coefficients, a size above 0 within the array cap, omega >= 0.

#include <vector>

#include "frame/math.h"
#include "signal/filter_responses.h"
#include "signal/signal_arguments.h"

namespace VarnholtMath {
namespace ValueTypes {

namespace {

using namespace signal;

bool readSize(const vhValue& v, int& size)
{
    return readWhole(v, size) && size > 0 && static_cast<unsigned int>(size) <= maximumNumerOfMatrixElements();
}

bool readOmega(const vhValue& v, double& omega) { return readFinite(v, omega) && omega >= 0.0; }

} // namespace

vhValue vhMath::FIRFreqResponse_f(const vhValue& coefficients, const vhValue& size, const vhValue& omega)
{
    RealView b;
    int n = 0;
    double w = 0.0;
    if (!viewRealVector(coefficients, b) || !readSize(size, n) || !readOmega(omega, w))
        return vhValue();
    double* out = nullptr;
    vhValue result = newNumericVector(std::size_t(n), false, out);
    if (!out || !firMagnitude(b.data, b.size, std::size_t(n), w, out, StopPoll{pollStop, this}))
        return vhValue();
    return result;
}

vhValue vhMath::IIRFreqResponse_f(const vhValue& denominator, const vhValue& numerator, const vhValue& size,
                                  const vhValue& omega)
{
    std::vector<double> a;
    std::vector<double> b;
    int n = 0;
    double w = 0.0;
    if (!readRealVector(denominator, a) || !readRealVector(numerator, b) || !readSize(size, n) ||
        !readOmega(omega, w))
        return vhValue();
    std::vector<double> out(static_cast<std::size_t>(n));
    if (!iirMagnitude(a.data(), a.size(), b.data(), b.size(), out.size(), w, out.data(), StopPoll{pollStop, this}))
        return vhValue();
    return numericVector(out.data(), out.size(), false);
}

vhValue vhMath::iirgroupdelay_f(const vhValue& denominator, const vhValue& numerator, const vhValue& size)
{
    std::vector<double> a;
    std::vector<double> b;
    int n = 0;
    if (!readRealVector(denominator, a) || !readRealVector(numerator, b) || !readSize(size, n))
        return vhValue();
    std::vector<double> out(static_cast<std::size_t>(n));
    if (!groupDelay(a.data(), a.size(), b.data(), b.size(), out.size(), out.data(), StopPoll{pollStop, this}))
        return vhValue();
    return numericVector(out.data(), out.size(), false);
}

vhValue vhMath::iirphasedelay_f(const vhValue& denominator, const vhValue& numerator, const vhValue& size)
{
    std::vector<double> a;
    std::vector<double> b;
    int n = 0;
    if (!readRealVector(denominator, a) || !readRealVector(numerator, b) || !readSize(size, n))
        return vhValue();
    std::vector<double> out(static_cast<std::size_t>(n));
    if (!phaseDelay(a.data(), a.size(), b.data(), b.size(), out.size(), out.data(), StopPoll{pollStop, this}))
        return vhValue();
    return numericVector(out.data(), out.size(), false);
}

} // namespace ValueTypes
} // namespace VarnholtMath
