// Reading and writing the plain arrays of the filter members.

#include "signal/signal_arguments.h"

#include <cmath>
#include <cstring>
#include <utility>

namespace VarnholtMath {
namespace ValueTypes {
namespace signal {

bool readRealVector(const vhValue& v, std::vector<double>& out)
{
    if (v.isNull() || !v.isVector())
        return false;
    const unsigned int n = v.size();
    if (n == 0)
        return false;
    if (v.isNumericVectorOrMatrix()) {
        if (v.numericImValues())
            return false;
        out.assign(v.numericValues(), v.numericValues() + n);
        return true;
    }
    if (v.isImage())
        return false;
    out.resize(n);
    for (unsigned int i = 0; i < n; ++i) {
        const vhValue e = v.value(i);
        if (!e.isDouble())
            return false;
        out[i] = e.toDouble();
    }
    return true;
}

bool viewRealVector(const vhValue& v, RealView& view)
{
    if (!v.isNull() && v.isVector() && v.isNumericVectorOrMatrix() && !v.numericImValues()) {
        view.data = v.numericValues();
        view.size = v.size();
        return view.size != 0;
    }
    if (!readRealVector(v, view.storage))
        return false;
    view.data = view.storage.data();
    view.size = view.storage.size();
    return true;
}

vhValue newNumericVector(std::size_t n, bool row, double*& out)
{
    out = nullptr;
    if (n == 0 || n > 0xffffffffu)
        return vhValue();
    vhVector r(static_cast<unsigned int>(n), row, true, false);
    out = r.numericValues();
    if (!out)
        return vhValue();
    // Moved out: a vector returned as a value would otherwise be copied.
    return vhValue(std::move(r));
}

bool readFinite(const vhValue& v, double& out)
{
    if (v.isNull() || !v.isDouble())
        return false;
    out = v.toDouble();
    return std::isfinite(out);
}

bool readWhole(const vhValue& v, int& out)
{
    if (v.isNull() || !v.isInteger())
        return false;
    out = v.toInt();
    return true;
}

vhValue numericVector(const double* data, std::size_t n, bool row)
{
    if (n == 0 || n > 0xffffffffu)
        return vhValue();
    vhVector r(static_cast<unsigned int>(n), row, true, false);
    double* out = r.numericValues();
    if (!out)
        return vhValue();
    std::memcpy(out, data, n * sizeof(double));
    return vhValue(std::move(r));
}

bool pollStop(void* math)
{
    vhMath* m = static_cast<vhMath*>(math);
    m->appProcessEvents();
    return m->stopCalculation();
}

StopPoll loopPoll(vhMath& math, std::size_t work, bool& stopNow)
{
    stopNow = false;
    if (!math.isInRuntime())
        return StopPoll{pollStop, &math};
    stopNow = work > 1000 && math.stopCalculation();
    return StopPoll{nullptr, nullptr};
}

} // namespace signal
} // namespace ValueTypes
} // namespace VarnholtMath
