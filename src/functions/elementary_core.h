#pragma once

// The elementary functions that exist twice, as members of vhMath and as
// free functions for the value classes. Both call these cores; the only
// setting that reaches them is the pair of power rules, which a member takes
// from its calculation object and a free function from the process.

#include <complex>

#include "value/value.h"

namespace VarnholtMath {
namespace ValueTypes {
namespace elementary {

struct PowerRules {
    // A negative power of a real 0 is +inf instead of undefined.
    bool limitsRulesOn;
    // A negative whole power of an expression is divided out instead of held.
    bool fractionsOn;
};

vhValue expValue(const vhValue& x);
vhValue logValue(const vhValue& x);
vhValue powValue(const vhValue& x, const vhValue& y, const PowerRules& rules);
vhValue rootValue(const vhValue& x, const vhValue& n, const PowerRules& rules);
// wholeId is the id of the held call of a whole symbolic argument: 23 for
// abs, 63 for fabs. Factors of a unit are always wrapped in abs.
vhValue absValue(const vhValue& x, int wholeId);
vhValue sgnValue(const vhValue& x);
vhValue ceilValue(const vhValue& x);

// The logarithm of a + bi: the larger part m and the ratio t of the smaller
// to the larger give log(m) + log1p(t*t)/2, which neither overflows nor
// underflows; the angle is atan2(b, a). Zero has none: NaN.
std::complex<double> complexLog(double a, double b);

// A real power x^y of real numbers as the scalar path computes it; false when
// the result is not real (a fractional power of a negative number). out is
// NaN for an undefined result.
bool powReal(double x, double y, bool limitsRulesOn, double& out);

// The n-th root of a real number for a whole n other than 0; false when the
// result is complex (an even root of a negative number).
bool rootReal(double x, int n, bool limitsRulesOn, double& out);

} // namespace elementary
} // namespace ValueTypes
} // namespace VarnholtMath
