#pragma once

// The algebraic rewrites that held functions apply in their arithmetic while
// the trigonometric rules are switched on; not part of the interface.

#include "value/value.h"

namespace VarnholtMath {
namespace ValueTypes {
namespace internal {

// sin^2 + cos^2 and log a + log b. True when a rule applies; the result is
// then in out.
bool trigonometricSum(const vhValue& self, const vhValue& other, vhValue& out);
// A difference that the sum rules decide, as self + (other * -1).
bool differenceTakesSumRules(const vhValue& self, const vhValue& other);
// sin x * cos x and tan x * cot x.
bool trigonometricProduct(const vhValue& self, const vhValue& other, vhValue& out);
// sin(2x) / sin(x) and sin(2x) / cos(x).
bool trigonometricQuotient(const vhValue& self, const vhValue& other, vhValue& out);

} // namespace internal
} // namespace ValueTypes
} // namespace VarnholtMath
