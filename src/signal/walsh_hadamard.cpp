// The fast Walsh-Hadamard transform and its inverse. The length is a power
// of two; the signal is padded with zeros or cut to it. The coefficients
// come in sequency order (the number of sign changes of their Walsh
// function grows with the index) or in the natural Hadamard order. The
// forward transform divides by the length, the inverse does not.

#include <cstdint>

#include "frame/math.h"
#include "functions/elementwise_skeleton.h"
#include "signal/signal_arrays.h"

namespace VarnholtMath {
namespace ValueTypes {

namespace {

// 0 for sequency order, 1 for Hadamard order, -1 for anything else.
int readOrder(const vhValue& order)
{
    if (order.isString()) {
        const std::string text = order.toString();
        if (text == "seq")
            return 0;
        if (text == "had")
            return 1;
        return -1;
    }
    if (order.isInteger()) {
        const int k = order.toInt();
        return (k == 0 || k == 1) ? k : -1;
    }
    return -1;
}

std::uint32_t reverseLowBits(std::uint32_t v, unsigned int bits)
{
    std::uint32_t r = 0;
    for (unsigned int b = 0; b < bits; ++b, v >>= 1)
        r = (r << 1) | (v & 1u);
    return r;
}

vhValue walshHadamard(const vhValue& X, const vhValue& n, const vhValue& order, int id, bool forward)
{
    if (X.isNull() || n.isNull() || order.isNull())
        return vhValue();
    if (X.isSymbolic() || n.isSymbolic())
        return elementwise::symbolicCall(id, {X, n, order});
    const int sequence = readOrder(order);
    unsigned int length;
    if (sequence < 0 || !signal::readCount(n, signal::kLengthLimit, length) || (length & (length - 1)) != 0)
        return vhValue();
    vhValue holder;
    const vhValue* array = signal::arrayBehind(X, holder);
    if (!array || !array->isVector())
        return vhValue();
    signal::Samples s;
    const signal::Read r = signal::readSamples(*array, s);
    if (r == signal::Read::held)
        return elementwise::symbolicCall(id, {X, n, order});
    if (r != signal::Read::ok || s.complex)
        return vhValue();
    std::vector<double> x(s.re);
    x.resize(length, 0.0);
    for (unsigned int half = 1; half < length; half *= 2)
        for (unsigned int i = 0; i < length; i += 2 * half)
            for (unsigned int j = i; j < i + half; ++j) {
                const double a = x[j], b = x[j + half];
                x[j] = a + b;
                x[j + half] = a - b;
            }
    const double divisor = forward ? double(length) : 1.0;
    std::vector<double> out(length);
    unsigned int bits = 0;
    while ((1u << bits) < length)
        ++bits;
    for (unsigned int k = 0; k < length; ++k) {
        // Sequency k is the Hadamard row at the bit reversal of k's Gray code.
        const unsigned int from = sequence == 0 ? reverseLowBits(k ^ (k >> 1), bits) : k;
        out[k] = x[from] / divisor;
    }
    return signal::realVector(out.data(), length, s.rowVector);
}

} // namespace

vhValue vhMath::fwht_f(const vhValue& X, const vhValue& n, const vhValue& order)
{
    return walshHadamard(X, n, order, nt_fwht, true);
}

vhValue vhMath::ifwht_f(const vhValue& Y, const vhValue& n, const vhValue& order)
{
    return walshHadamard(Y, n, order, nt_ifwht, false);
}

} // namespace ValueTypes
} // namespace VarnholtMath
