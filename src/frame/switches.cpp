// The process-wide switches and the global events callback. None of them is
// locked: a calculation is single-threaded.

#include "frame/switches.h"

namespace VarnholtMath {
namespace ValueTypes {

namespace {
bool g_limitsRulesOn = false;
bool g_trigonometricRulesOn = true;
bool g_fractionsOn = true;
void (*g_appProcessEventsCallback)() = nullptr;
} // namespace

void setLimitsRulesOnPublic(bool on) { g_limitsRulesOn = on; }
bool limitsRulesOn() { return g_limitsRulesOn; }
void setTrigonometricRulesOnPublic(bool on) { g_trigonometricRulesOn = on; }
bool trigonometricRulesOn() { return g_trigonometricRulesOn; }
void setFractionsOnPublic(bool on) { g_fractionsOn = on; }
bool fractionsOn() { return g_fractionsOn; }

void setAppProcessEventsCallbackGlobal(void (*callback)()) { g_appProcessEventsCallback = callback; }

void appProcessEventsGlobal()
{
    if (g_appProcessEventsCallback)
        g_appProcessEventsCallback();
}

bool isInRuntimeGlobal() { return g_appProcessEventsCallback == nullptr; }

} // namespace ValueTypes
} // namespace VarnholtMath
