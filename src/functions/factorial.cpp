// The factorial of a whole number: a 32-bit product that wraps silently when
// it overflows, so that 13! and above are not correct; the loop lets the host
// run its events and stop the calculation after every step.

#include <cstdint>

#include "frame/math.h"
#include "functions/elementwise_skeleton.h"

namespace VarnholtMath {
namespace ValueTypes {

using namespace elementwise;

vhValue vhMath::fact_f(const vhValue& n)
{
    if (n.isNull())
        return vhValue();
    if (n.isSymbolic())
        return symbolicCall(nt_fact, {n});
    if (isArray(n)) {
        vhValue holder;
        return mapElements(arrayOf(n, holder), [this](const vhValue& e) { return fact_f(e); });
    }
    if (!n.isInteger())
        return vhValue();
    const std::int32_t k = n.toInt();
    if (k < 0)
        return vhValue();
    std::uint32_t product = 1;
    for (std::int32_t i = 1; i <= k; ++i) {
        product *= static_cast<std::uint32_t>(i);
        appProcessEvents();
        if (stopCalculation())
            return vhValue();
        // From 34! on the wrapped product is 0 and stays so; without a host
        // loop to serve, the remaining steps change nothing.
        if (product == 0 && isInRuntime())
            break;
    }
    return vhInteger(static_cast<std::int32_t>(product));
}

vhValue vhMath::factorial_f(const vhValue& n)
{
    if (n.isNull())
        return vhValue();
    if (n.isSymbolic())
        return symbolicCall(nt_factorial, {n});
    return fact_f(n);
}

} // namespace ValueTypes
} // namespace VarnholtMath
