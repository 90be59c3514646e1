// The free twins of the elementary members, for the value classes, which
// have no calculation object. They are the members with the default settings:
// no rules of limits, and the process-wide fractions switch.

#include "functions/elementary.h"

#include "frame/node_type.h"
#include "frame/switches.h"
#include "functions/elementary_core.h"

namespace VarnholtMath {
namespace ValueTypes {

namespace {
elementary::PowerRules processRules() { return elementary::PowerRules{false, fractionsOn()}; }
} // namespace

vhValue exp_f(const vhValue& x) { return elementary::expValue(x); }

vhValue log_f(const vhValue& x) { return elementary::logValue(x); }

vhValue pow_f(const vhValue& x, const vhValue& y) { return elementary::powValue(x, y, processRules()); }

vhValue sqrt_f(const vhValue& x) { return elementary::rootValue(x, vhInteger(2), processRules()); }

vhValue root_f(const vhValue& x, const vhValue& n) { return elementary::rootValue(x, n, processRules()); }

vhValue abs_f(const vhValue& x) { return elementary::absValue(x, nt_abs); }

vhValue fabs_f(const vhValue& x) { return elementary::absValue(x, nt_fabs); }

vhValue sgn_f(const vhValue& x) { return elementary::sgnValue(x); }

} // namespace ValueTypes
} // namespace VarnholtMath
