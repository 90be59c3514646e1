// The inner loops of the block filters: plain doubles, no values. Polling is
// only done when the block's work passes 1000 multiply-adds.

#include "signal/running_filters.h"

#include <cstring>

namespace VarnholtMath {
namespace ValueTypes {
namespace signal {

namespace {

constexpr std::size_t kPollWork = 1000;

bool needsPolling(std::size_t blockSize, std::size_t taps, const StopPoll& poll)
{
    return poll.stop && taps != 0 && blockSize > kPollWork / taps;
}

} // namespace

bool firFilterBlock(double* buffer, const double* x, std::size_t blockSize, const double* h, std::size_t taps,
                    double* y, const StopPoll& poll)
{
    const std::size_t history = taps - 1;
    std::memcpy(buffer + history, x, blockSize * sizeof(double));
    const bool polling = needsPolling(blockSize, taps, poll);
    for (std::size_t i = 0; i < blockSize; ++i) {
        // Newest sample first: h[k] meets buffer[history + i - k].
        const double* newest = buffer + history + i;
        double s = 0.0;
        for (std::size_t k = 0; k < taps; ++k)
            s += h[k] * newest[-static_cast<std::ptrdiff_t>(k)];
        y[i] = s;
        if (polling && poll.ask())
            return false;
    }
    if (history != 0)
        std::memmove(buffer, buffer + blockSize, history * sizeof(double));
    return true;
}

bool iirFilterBlock(double* state, const double* x, std::size_t blockSize, const double* a, const double* b,
                    std::size_t taps, double* y, const StopPoll& poll)
{
    const bool polling = needsPolling(blockSize, taps, poll);
    for (std::size_t i = 0; i < blockSize; ++i) {
        if (taps > 1)
            std::memmove(state + 1, state, (taps - 1) * sizeof(double));
        double s0 = x[i];
        for (std::size_t k = 1; k < taps; ++k)
            s0 -= a[k] * state[k];
        state[0] = s0;
        double out = s0 * b[0];
        for (std::size_t k = 1; k < taps; ++k)
            out += b[k] * state[k];
        y[i] = out;
        if (polling && poll.ask())
            return false;
    }
    return true;
}

} // namespace signal
} // namespace ValueTypes
} // namespace VarnholtMath
