// Three small functions of the calculator: the Heaviside step, the count of
// the decimal digits of a number, and the runtime's random number.

#include <cmath>
#include <cstdio>
#include <cstdlib>

#include "frame/math.h"
#include "functions/elementwise_skeleton.h"

namespace VarnholtMath {
namespace ValueTypes {

using namespace elementwise;

vhValue vhMath::heavyside_f(const vhValue& x)
{
    // The integer 0 below 0, the double 1.0 from 0 on.
    auto kernel = [](double v, double& out) {
        out = v < 0.0 ? 0.0 : 1.0;
        return true;
    };
    return unaryFast(
        x, nt_heavyside, [this](const vhValue& e) { return heavyside_f(e); },
        [](double, double) { return vhValue(); },
        [](double d) { return d < 0.0 ? vhValue(vhInteger(0)) : vhValue(vhDouble(1.0)); }, kernel);
}

namespace {

// The digits of a whole number written in decimal, 0 counting as one digit.
int wholeDigits(double v)
{
    char text[400];
    const int n = std::snprintf(text, sizeof text, "%.0f", std::floor(std::fabs(v)));
    return n > 0 ? n : 1;
}

// A fraction counts its digits to six decimal places, without trailing zeros.
int digitsOf(double v)
{
    double whole = std::floor(std::fabs(v));
    long long sixths = std::llround((std::fabs(v) - whole) * 1e6);
    if (sixths >= 1000000) {
        whole += 1.0;
        sixths -= 1000000;
    }
    int fraction = sixths == 0 ? 0 : 6;
    while (sixths != 0 && sixths % 10 == 0) {
        sixths /= 10;
        --fraction;
    }
    return wholeDigits(whole) + fraction;
}

} // namespace

vhValue vhMath::numofdigits_f(const vhValue& x)
{
    auto kernel = [](double v, double& out) {
        out = std::isinf(v) ? kNaN : digitsOf(v);
        return true;
    };
    return unaryFast(
        x, nt_numofdigits, [this](const vhValue& e) { return numofdigits_f(e); },
        [](double, double) { return vhValue(); },
        [&x](double d) {
            if (std::isinf(d))
                return vhValue();
            // Whole numbers in the 32-bit range are counted as integers.
            if (x.isInteger())
                return vhValue(vhInteger(wholeDigits(d)));
            return vhValue(vhInteger(digitsOf(d)));
        },
        kernel);
}

vhValue vhMath::rand_f() { return vhDouble(std::rand() / 32767.0); }

} // namespace ValueTypes
} // namespace VarnholtMath
