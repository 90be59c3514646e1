#pragma once

// The free twins of the elementary members of vhMath, for code that has no
// calculation object at hand: the symbolic operators and the value classes.
// They behave as the members with the default settings (radians, 14 decimal
// places); the free pow_f reads the process-wide fractions switch and no
// limit rules.

#include "value/export.h"
#include "value/value.h"

namespace VarnholtMath {
namespace ValueTypes {

VH_EXPORT vhValue exp_f(const vhValue& x);
VH_EXPORT vhValue log_f(const vhValue& x);
VH_EXPORT vhValue pow_f(const vhValue& x, const vhValue& y);
VH_EXPORT vhValue sqrt_f(const vhValue& x);
VH_EXPORT vhValue root_f(const vhValue& x, const vhValue& n);
VH_EXPORT vhValue abs_f(const vhValue& x);
VH_EXPORT vhValue fabs_f(const vhValue& x);
VH_EXPORT vhValue sgn_f(const vhValue& x);

} // namespace ValueTypes
} // namespace VarnholtMath
