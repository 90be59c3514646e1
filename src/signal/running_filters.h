#pragma once

// Block filters over state kept between calls. The caller owns the state
// arrays; these loops only read and write them.

#include <cstddef>

namespace VarnholtMath {
namespace ValueTypes {
namespace signal {

// Asked after each output sample when the block's work is large; true stops
// the loop.
struct StopPoll {
    bool (*stop)(void* context);
    void* context;
    bool ask() const { return stop && stop(context); }
};

// FIR over a flat history: buffer holds taps - 1 past samples, then room for
// the block. x is copied behind the history, y[i] = sum over k of
// h[k] buffer[taps - 1 + i - k], and the last taps - 1 samples move to the
// head. False when stopped, with the buffer as it stands.
bool firFilterBlock(double* buffer, const double* x, std::size_t blockSize, const double* h, std::size_t taps,
                    double* y, const StopPoll& poll);

// Direct form II with state s[0..taps-1]: per sample the state shifts up one
// place, s[0] = v - sum of a[k] s[k] for k >= 1, y = sum of b[k] s[k]. a[0] is
// taken to be 1 and never divides. False when stopped.
bool iirFilterBlock(double* state, const double* x, std::size_t blockSize, const double* a, const double* b,
                    std::size_t taps, double* y, const StopPoll& poll);

} // namespace signal
} // namespace ValueTypes
} // namespace VarnholtMath
