// Every row the dispatcher reaches, given arguments of every awkward kind:
// the answer is a value (often the undefined one), never a crash, a hang, an
// exception or a sanitizer report.

#include <gtest/gtest.h>

#include <limits>

#include "frame/math.h"

using namespace VarnholtMath::ValueTypes;

namespace {

std::vector<std::pair<std::string, vhValue>> awkwardValues()
{
    const double inf = std::numeric_limits<double>::infinity();
    double numbers[] = {1.5, -2.0, 0.0, 4.0};
    unsigned int pixels[] = {0xFF102030u, 0u};
    vhValue unit = vhUnit();
    vhValue mixed = vhVector(std::vector<vhValue>{vhInteger(1), vhSymbolicValue("x", false, {})}, true);
    return {
        {"undefined", vhValue()},
        {"nan", vhDouble(std::numeric_limits<double>::quiet_NaN())},
        {"infinity", vhDouble(inf)},
        {"minus infinity", vhDouble(-inf)},
        {"huge", vhDouble(1e300)},
        {"large integer", vhInteger(2147483647)},
        {"negative", vhInteger(-7)},
        {"zero", vhInteger(0)},
        {"boolean", vhBoolean(true)},
        {"complex", vhComplex(1.0, -3.0)},
        {"string", vhSymbolicValue("text", true, {})},
        {"empty string", vhSymbolicValue("", true, {})},
        {"symbol", vhSymbolicValue("x", false, {})},
        {"unit", unit},
        {"empty vector", vhVector()},
        {"numeric vector", vhVector(numbers, 4, false)},
        {"mixed vector", mixed},
        {"matrix", vhMatrix(numbers, 2, 2)},
        {"image", vhMatrix(pixels, 1, 2)},
        {"empty expression", vhExpression()},
        {"interval", vhInterval(0, true, 1, false)},
        {"handle", vhObject("Thing", nullptr)},
        {"pointer", vhInteger(static_cast<vhValue*>(nullptr))},
    };
}

} // namespace

TEST(BadInput, EveryRowWithEveryKindOfArgument)
{
    vhMath math;
    const auto values = awkwardValues();
    for (int id = 20; id <= 1125; ++id) {
        if (id == 56 || id == 425)
            continue;
        const NodeType node = static_cast<NodeType>(id);
        const unsigned int count = numberOfFunctionArguments(node);
        if (count == 0)
            continue;
        for (const auto& kind : values) {
            // The awkward value everywhere, first among plain numbers, and last.
            std::vector<std::vector<vhValue>> argumentLists(3, std::vector<vhValue>(count, vhDouble(2.0)));
            argumentLists[0].assign(count, kind.second);
            argumentLists[1].front() = kind.second;
            argumentLists[2].back() = kind.second;
            for (const std::vector<vhValue>& arguments : argumentLists) {
                vhValue result;
                EXPECT_NO_THROW(result = callFunction(&math, node, arguments))
                    << "row " << id << " with " << kind.first;
                // Touch the result, so that a broken one shows.
                (void)result.toStringAll();
            }
        }
    }
}

TEST(BadInput, OperatorsBetweenEveryPairOfKinds)
{
    const auto values = awkwardValues();
    for (const auto& a : values) {
        for (const auto& b : values) {
            vhValue l = a.second;
            const vhValue& r = b.second;
            EXPECT_NO_THROW({
                (void)(l + r).toStringAll();
                (void)(l - r).toStringAll();
                (void)(l * r).toStringAll();
                (void)(l / r).toStringAll();
                (void)(l % r);
                (void)(l << r);
                (void)(l == r);
                (void)(l < r);
                (void)l.GreaterThenOrEqalTo(r);
                (void)l.multiply(r);
                (void)l.divide(r);
                vhValue c = l;
                c += r;
                c *= r;
            }) << a.first << " with " << b.first;
        }
    }
}
