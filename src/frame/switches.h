#pragma once

// Process-wide switches. The value classes have no calculation object at
// hand, so the rule switches exist once per process beside the fields of
// each vhMath; the setters of vhMath write both.

#include "value/export.h"

namespace VarnholtMath {
namespace ValueTypes {

VH_EXPORT void setLimitsRulesOnPublic(bool on);
VH_EXPORT bool limitsRulesOn();
VH_EXPORT void setTrigonometricRulesOnPublic(bool on);
VH_EXPORT bool trigonometricRulesOn();
VH_EXPORT void setFractionsOnPublic(bool on);
VH_EXPORT bool fractionsOn();

// The host's events callback for code that has no vhMath at hand.
VH_EXPORT void setAppProcessEventsCallbackGlobal(void (*callback)());
VH_EXPORT void appProcessEventsGlobal();
VH_EXPORT bool isInRuntimeGlobal();

} // namespace ValueTypes
} // namespace VarnholtMath
