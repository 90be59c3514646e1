#pragma once

// Rows that the engine computes without a case in callFunction: the host
// calls the member of vhMath named after the row (functionName with "_f").

#include <vector>

#include <VhMathLib.h>

namespace vhcalc {

// True when vhMath has the member of this member-only row.
bool memberAvailable(VarnholtMath::ValueTypes::NodeType id);

// Calls the member of a member-only row with the arguments; false, and
// result untouched, when there is no member or the count is wrong.
bool callMember(VarnholtMath::ValueTypes::vhMath& math, VarnholtMath::ValueTypes::NodeType id,
                const std::vector<VarnholtMath::ValueTypes::vhValue>& arguments,
                VarnholtMath::ValueTypes::vhValue& result);

} // namespace vhcalc
