#pragma once

// The type work shared by the filter members: reading vectors of real
// numbers into plain arrays and wrapping plain arrays as numeric vectors.

#include <cstddef>
#include <vector>

#include "frame/math.h"
#include "signal/running_filters.h"
#include "value/value.h"

namespace VarnholtMath {
namespace ValueTypes {
namespace signal {

// A vector (or a one-row or one-column matrix) of real numbers, read into
// out: numeric real storage by one block copy, element storage one by one,
// where anything that is not a real number refuses. Empty and complex
// storage refuse. NaN and infinities are read as they are.
bool readRealVector(const vhValue& v, std::vector<double>& out);

// The same without a copy where the storage is numeric: data points into
// the value's own block (valid while the value lives), or into storage.
struct RealView {
    const double* data = nullptr;
    std::size_t size = 0;
    std::vector<double> storage;
};
bool viewRealVector(const vhValue& v, RealView& view);

// A numeric real vector of n entries, its numbers left for the caller to
// write through out; undefined (and out null) when it cannot be made.
vhValue newNumericVector(std::size_t n, bool row, double*& out);

// A finite real number.
bool readFinite(const vhValue& v, double& out);

// A whole number of 32 bits, given as an integer, a boolean or a double with
// no fraction.
bool readWhole(const vhValue& v, int& out);

// A numeric real vector of n entries copied from data, a column unless row.
vhValue numericVector(const double* data, std::size_t n, bool row);

// The stop test of long loops: the host's events run, then its stop flag is
// read.
bool pollStop(void* math);

// The poll of a loop of the given work. Without an events callback nothing
// can set the stop flag while the loop runs, so the flag is read once,
// before it: stopNow tells that the loop is not to run, and the poll
// returned asks nothing.
StopPoll loopPoll(vhMath& math, std::size_t work, bool& stopNow);

} // namespace signal
} // namespace ValueTypes
} // namespace VarnholtMath
