#pragma once

// Window functions of the FIR designs and of makeWindow. Plain kernels on
// double arrays, free of values.

#include <cstddef>
#include <string>

namespace VarnholtMath {
namespace ValueTypes {
namespace signal {

enum WindowType : int {
    windowRectangular = 0,
    windowHanning = 1,
    windowWelch = 2,
    windowParzen = 3,
    windowBartlett = 4,
    windowHamming = 5,
    windowBlackman2 = 6,
    windowBlackman3 = 7,
    windowBlackman4 = 8,
    windowExponential = 9,
    windowRiemann = 10,
    windowBlackmanHarris = 11,
    windowNuttall = 12,
    windowTypeCount = 13
};

// The number of a window name, or -1. The FIR designs know ten names; the
// three Blackman sums are reached there only by number. makeWindow knows all
// thirteen.
int windowNumberForFir(const std::string& name);
int windowNumberForMakeWindow(const std::string& name);

// Fills w[0..n-1]. Symmetric windows compute the first half and mirror it, so
// that w[i] and w[n-1-i] are the same bits. False for an unknown type, n = 0,
// or n = 1 with the two four-term sums, which divide by n - 1.
bool fillWindow(int type, std::size_t n, double* w);

} // namespace signal
} // namespace ValueTypes
} // namespace VarnholtMath
