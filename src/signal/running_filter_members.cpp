// The members of the running filters and the two smoothers. The slots are
// arrays of the calculation object, allocated by Init and freed by the next
// Init on the slot or by the deinitialisers.

#include <cmath>
#include <cstdint>
#include <new>
#include <utility>
#include <vector>

#include "frame/math.h"
#include "signal/running_filters.h"
#include "signal/signal_arguments.h"
#include "signal/smoothing_filters.h"

namespace VarnholtMath {
namespace ValueTypes {

namespace {

using namespace signal;

bool readSlot(const vhValue& v, int& slot)
{
    return readWhole(v, slot) && slot >= 0 && slot < static_cast<int>(vhMath::filterSlots);
}

// The largest slot array, 2^27 doubles (1 GiB): a larger request answers
// false like a failed allocation, instead of zeroing memory the machine may
// not have.
constexpr std::int64_t kMaximumSlotEntries = std::int64_t(1) << 27;

bool validSlot(int slot) { return slot >= 0 && slot < static_cast<int>(vhMath::filterSlots); }

} // namespace

vhValue vhMath::InitFIRFilter_f(const vhValue& slot, const vhValue& blockSize, const vhValue& taps)
{
    int s = 0;
    if (!readSlot(slot, s))
        return vhValue();
    // The slot is emptied first, so any refusal below leaves it free.
    delete[] m_firFilterBuffers[s];
    m_firFilterBuffers[s] = nullptr;
    m_firFilterBufferSizes[s] = 0;
    int block = 0;
    int t = 0;
    if (!readWhole(blockSize, block) || !readWhole(taps, t) || block <= 0 || t <= 0)
        return vhValue();
    // History and block share one array of block + taps - 1 entries, counted
    // in a signed 32-bit size.
    const std::int64_t entries = std::int64_t(block) + std::int64_t(t) - 1;
    if (entries > 2147483647 || entries > kMaximumSlotEntries)
        return vhBoolean(false);
    double* buffer = new (std::nothrow) double[static_cast<std::size_t>(entries)]();
    if (!buffer)
        return vhBoolean(false);
    m_firFilterBuffers[s] = buffer;
    m_firFilterBufferSizes[s] = static_cast<unsigned int>(entries);
    return vhBoolean(true);
}

vhValue vhMath::FIRFilter_f(const vhValue& slot, const vhValue& block, const vhValue& coefficients)
{
    int s = 0;
    if (!readSlot(slot, s) || !m_firFilterBuffers[s])
        return vhValue();
    RealView x;
    RealView h;
    if (!viewRealVector(block, x) || !viewRealVector(coefficients, h))
        return vhValue();
    if (std::uint64_t(x.size) + h.size - 1 > m_firFilterBufferSizes[s])
        return vhValue();
    double* y = nullptr;
    vhValue result = newNumericVector(x.size, block.isRowVector(), y);
    bool stopNow = false;
    const StopPoll poll = loopPoll(*this, x.size * h.size, stopNow);
    if (stopNow || !y || !firFilterBlock(m_firFilterBuffers[s], x.data, x.size, h.data, h.size, y, poll))
        return vhValue();
    return result;
}

vhValue vhMath::InitIIRFilter_f(const vhValue& slot, const vhValue& taps)
{
    int s = 0;
    if (!readSlot(slot, s))
        return vhValue();
    delete[] m_iirFilterBuffers[s];
    m_iirFilterBuffers[s] = nullptr;
    m_iirFilterBufferSizes[s] = 0;
    int t = 0;
    if (!readWhole(taps, t) || t <= 0)
        return vhValue();
    if (t > kMaximumSlotEntries)
        return vhBoolean(false);
    double* state = new (std::nothrow) double[static_cast<std::size_t>(t)]();
    if (!state)
        return vhBoolean(false);
    m_iirFilterBuffers[s] = state;
    m_iirFilterBufferSizes[s] = static_cast<unsigned int>(t);
    return vhBoolean(true);
}

vhValue vhMath::IIRFilter_f(const vhValue& slot, const vhValue& block, const vhValue& denominator,
                            const vhValue& numerator)
{
    int s = 0;
    if (!readSlot(slot, s) || !m_iirFilterBuffers[s])
        return vhValue();
    RealView x;
    RealView a;
    RealView b;
    if (!viewRealVector(block, x) || !viewRealVector(denominator, a) || !viewRealVector(numerator, b))
        return vhValue();
    if (a.size != b.size || a.size > m_iirFilterBufferSizes[s])
        return vhValue();
    double* y = nullptr;
    vhValue result = newNumericVector(x.size, block.isRowVector(), y);
    bool stopNow = false;
    const StopPoll poll = loopPoll(*this, x.size * a.size, stopNow);
    if (stopNow || !y || !iirFilterBlock(m_iirFilterBuffers[s], x.data, x.size, a.data, b.data, a.size, y, poll))
        return vhValue();
    return result;
}

const double* vhMath::firFilterBuffer(int slot) const { return validSlot(slot) ? m_firFilterBuffers[slot] : nullptr; }

unsigned int vhMath::firFilterBufferSize(int slot) const
{
    return validSlot(slot) ? m_firFilterBufferSizes[slot] : 0;
}

const double* vhMath::iirFilterBuffer(int slot) const { return validSlot(slot) ? m_iirFilterBuffers[slot] : nullptr; }

unsigned int vhMath::iirFilterBufferSize(int slot) const
{
    return validSlot(slot) ? m_iirFilterBufferSizes[slot] : 0;
}

vhValue vhMath::MovingAverage_f(const vhValue& x, const vhValue& window)
{
    if (x.isNull() || window.isNull())
        return vhValue();
    // A one-term expression is unwrapped (a copy); an array is read in place.
    const vhValue unwrapped = x.valueType() == tagExpression ? expressionToValue(x) : vhValue();
    const vhValue& v = x.valueType() == tagExpression ? unwrapped : x;
    const bool matrix = v.valueType() == tagMatrix;
    if (v.valueType() != tagVector && !matrix)
        return vhValue();
    const unsigned int rows = v.matrixRows();
    const unsigned int columns = v.matrixColumns();
    const std::size_t total = std::size_t(rows) * columns;
    int w = 0;
    if (total == 0 || !readWhole(window, w) || w <= 0 || w % 2 == 0 || std::size_t(w) > total)
        return vhValue();
    std::vector<double> storage;
    const double* data = nullptr;
    if (v.isNumericVectorOrMatrix()) {
        if (v.numericImValues() || v.size() != total)
            return vhValue();
        data = v.numericValues();
    } else {
        if (v.isImage() || v.size() != total)
            return vhValue();
        storage.resize(total);
        for (std::size_t i = 0; i < total; ++i) {
            const vhValue e = v.value(static_cast<unsigned int>(i));
            if (!e.isDouble())
                return vhValue();
            storage[i] = e.toDouble();
        }
        data = storage.data();
    }
    if (!matrix) {
        double* y = nullptr;
        vhValue result = newNumericVector(total, v.isRowVector(), y);
        if (!y)
            return vhValue();
        movingAverage(data, total, std::size_t(w), y);
        return result;
    }
    // A matrix is smoothed row by row.
    vhMatrix r(rows, columns, true, false, false);
    double* out = r.numericValues();
    if (!out)
        return vhValue();
    for (unsigned int i = 0; i < rows; ++i)
        movingAverage(data + std::size_t(i) * columns, columns, std::size_t(w), out + std::size_t(i) * columns);
    return vhValue(std::move(r));
}

vhValue vhMath::LMSAdaptive_f(const vhValue& desired, const vhValue& input, const vhValue& mu, const vhValue& length)
{
    if (desired.isNull() || input.isNull() || mu.isNull() || length.isNull())
        return vhValue();
    if (!desired.isVector() || !input.isVector() || !desired.isDataAlignedWidh(input))
        return vhValue();
    std::vector<double> d;
    std::vector<double> x;
    if (!readRealVector(desired, d) || !readRealVector(input, x) || d.size() != x.size())
        return vhValue();
    int L = 0;
    double step = 0.0;
    if (!readWhole(length, L) || L < 1 || std::size_t(L) > x.size() || !readFinite(mu, step))
        return vhValue();
    // Stable for steps up to 2 / (p L), p the mean power of the input.
    double power = 0.0;
    for (double v : x)
        power += v * v;
    power /= double(x.size());
    if (!std::isfinite(power))
        return vhValue();
    const double bound = 2.0 / (power * double(L));
    if (!(step > 0.0) || step > bound)
        return vhValue();
    const bool row = input.isRowVector();
    std::vector<double> y(x.size());
    std::vector<double> e(x.size());
    std::vector<double> w(static_cast<std::size_t>(L));
    lmsAdaptive(d.data(), x.data(), x.size(), step, std::size_t(L), y.data(), e.data(), w.data());
    std::vector<vhValue> parts;
    parts.push_back(numericVector(y.data(), y.size(), row));
    parts.push_back(numericVector(e.data(), e.size(), row));
    parts.push_back(numericVector(w.data(), w.size(), false));
    return vhVector(parts, false);
}

} // namespace ValueTypes
} // namespace VarnholtMath
