// The calculation object: settings and switches, dividers, static values,
// and the dispatcher's count check and undefined answers.

#include <gtest/gtest.h>

#include "frame/math.h"

using namespace VarnholtMath::ValueTypes;

namespace {
vhValue str(const std::string& s) { return vhSymbolicValue(s, true, {}); }
int g_events = 0;
void countEvent() { ++g_events; }
} // namespace

TEST(CalculationObject, DefaultsAndSettings)
{
    vhMath math;
    EXPECT_TRUE(math.trigonometricRulesOn());
    EXPECT_TRUE(math.fractionsOn());
    EXPECT_FALSE(math.limitsRulesOn());
    EXPECT_EQ(math.angleUnit(), angleRadians);
    EXPECT_EQ(math.numberOfDecimalPlaces(), 14u);
    EXPECT_EQ(math.limitDepth(), 10);
    EXPECT_FALSE(math.stopCalculation());

    math.setNumberOfDecimalPlaces(14);
    EXPECT_EQ(math.numberOfDecimalPlaces(), 14u);
    math.setNumberOfDecimalPlaces(3);
    math.setNumberOfDecimalPlaces(15);
    EXPECT_EQ(math.numberOfDecimalPlaces(), 3u);

    vhMath clamped(99, angleDegrees);
    EXPECT_EQ(clamped.numberOfDecimalPlaces(), 14u);
    EXPECT_EQ(clamped.angleUnit(), angleDegrees);
    // Any unit number is stored as it is; only 0 and 2 convert.
    vhMath other(14, static_cast<AngleUnit>(4));
    EXPECT_EQ(static_cast<int>(other.angleUnit()), 4);
}

TEST(CalculationObject, RuleSwitchesWriteFieldAndProcess)
{
    vhMath a;
    a.setFractionsOn(false);
    EXPECT_FALSE(fractionsOn());
    // A new object does not reset the process-wide switch an earlier one set.
    vhMath b;
    EXPECT_TRUE(b.fractionsOn());
    EXPECT_FALSE(fractionsOn());
    b.setFractionsOn(true);
    EXPECT_TRUE(fractionsOn());

    a.setLimitsRulesOn(true);
    EXPECT_TRUE(limitsRulesOn());
    a.setLimitsRulesOn(false);
    a.setTrigonometricRulesOn(false);
    EXPECT_FALSE(trigonometricRulesOn());
    a.setTrigonometricRulesOn(true);
}

TEST(CalculationObject, EventsCallback)
{
    vhMath math;
    EXPECT_TRUE(math.isInRuntime());
    EXPECT_TRUE(math.InRuntime_f().toBool());
    math.setAppProcessEventsCallback(&countEvent);
    EXPECT_FALSE(math.isInRuntime());
    g_events = 0;
    math.appProcessEvents();
    EXPECT_EQ(g_events, 1);
    EXPECT_FALSE(callFunction(&math, nt_InRuntime, {}).toBool());
    math.setAppProcessEventsCallback(nullptr);
    EXPECT_TRUE(math.isInRuntime());
    math.appProcessEvents();
    EXPECT_EQ(g_events, 1);

    EXPECT_TRUE(isInRuntimeGlobal());
    setAppProcessEventsCallbackGlobal(&countEvent);
    appProcessEventsGlobal();
    EXPECT_EQ(g_events, 2);
    EXPECT_FALSE(isInRuntimeGlobal());
    setAppProcessEventsCallbackGlobal(nullptr);
}

TEST(CalculationObject, DecimalPlacesMembers)
{
    vhMath math;
    EXPECT_EQ(math.SetDecPlaces_f(vhInteger(5)).toInt(), 5);
    EXPECT_EQ(math.DecPlaces_f().toInt(), 5);
    EXPECT_EQ(math.DecPlaces_f().valueType(), tagInteger);
    EXPECT_TRUE(math.SetDecPlaces_f(vhInteger(15)).isNull());
    EXPECT_TRUE(math.SetDecPlaces_f(vhInteger(-1)).isNull());
    EXPECT_TRUE(math.SetDecPlaces_f(vhDouble(2.5)).isNull());
    EXPECT_TRUE(math.SetDecPlaces_f(str("3")).isNull());
    EXPECT_EQ(math.numberOfDecimalPlaces(), 5u);
    EXPECT_EQ(math.SetDecPlaces_f(vhDouble(0.0)).toInt(), 0);
}

TEST(CalculationObject, StaticValues)
{
    vhMath math;
    // A lookup never stores its fallback.
    EXPECT_EQ(math.staticValue_f(str("a"), vhInteger(3)).toInt(), 3);
    EXPECT_EQ(math.staticValue_f(str("a"), vhInteger(7)).toInt(), 7);
    EXPECT_EQ(math.setStaticValue_f(str("a"), vhInteger(4)).toInt(), 4);
    EXPECT_EQ(math.staticValue_f(str("a"), vhInteger(3)).toInt(), 4);
    math.setStaticValue_f(str("a"), vhInteger(5));
    math.setStaticValue_f(str("b"), str("text"));
    math.setStaticValue_f(str("a"), vhDouble(6.5));
    EXPECT_EQ(math.staticValue_f(str("a"), vhInteger(0)).toDouble(), 6.5);
    EXPECT_TRUE(math.staticValue_f(str("b"), vhInteger(0)).isString());
    EXPECT_EQ(math.staticValue_f(str("c"), vhInteger(1)).toInt(), 1);

    // The name must be a string and the value defined.
    EXPECT_TRUE(math.staticValue_f(vhInteger(1), vhInteger(1)).isNull());
    EXPECT_TRUE(math.staticValue_f(str("a"), vhValue()).isNull());
    EXPECT_TRUE(math.setStaticValue_f(vhValue(), vhInteger(1)).isNull());
    EXPECT_TRUE(math.setStaticValue_f(str("d"), vhValue()).isNull());

    // Through the dispatcher too; each object has its own store.
    EXPECT_EQ(callFunction(&math, nt_staticValue, {str("a"), vhInteger(0)}).toDouble(), 6.5);
    vhMath other;
    EXPECT_EQ(callFunction(&other, nt_staticValue, {str("a"), vhInteger(0)}).toInt(), 0);
}

TEST(CalculationObject, Dividers)
{
    vhMath math;
    math.addDivider(vhInteger(5));
    math.addDivider(vhValue());
    math.addDivider(vhSymbolicValue("s", true, {}));
    EXPECT_TRUE(math.dividersVector().empty());
    vhValue x = vhSymbolicValue("x", false, {});
    math.addDivider(x);
    math.addDivider(x);
    EXPECT_EQ(math.dividersVector().size(), 1u);
    math.resetDividersVector();
    EXPECT_TRUE(math.dividersVector().empty());
}

TEST(Dispatcher, CountCheckAndUndefinedAnswers)
{
    vhMath math;
    const vhValue x = vhDouble(0.5);
    EXPECT_TRUE(callFunction(nullptr, nt_DecPlaces, {}).isNull());
    EXPECT_TRUE(callFunction(&math, nt_sin, {}).isNull());
    EXPECT_TRUE(callFunction(&math, nt_sin, {x, x}).isNull());
    // Constants go through their members, not through the dispatcher.
    EXPECT_TRUE(callFunction(&math, nt_cPi, {}).isNull());
    EXPECT_TRUE(callFunction(&math, static_cast<NodeType>(1126), std::vector<vhValue>(7, x)).isNull());
    EXPECT_THROW(callFunction(&math, static_cast<NodeType>(56), {}), std::exception);
    EXPECT_THROW(callFunction(&math, static_cast<NodeType>(425), {}), std::exception);
}

TEST(Dispatcher, EveryNumberWithUndefinedArgumentsGivesUndefined)
{
    vhMath math;
    // Rows without arguments that answer with a value of their own.
    auto answersWithoutArguments = [](int id) {
        return id == nt_InRuntime || id == nt_DecPlaces || id == nt_rand || id == nt_timeNow ||
               // The list of the host's types is a vector, empty or not.
               id == nt_DefinedTypes;
    };
    for (int id = -10; id <= 2000; ++id) {
        const NodeType node = static_cast<NodeType>(id);
        if (id == 56 || id == 425) {
            EXPECT_THROW(numberOfFunctionArguments(node), std::exception);
            continue;
        }
        const unsigned int count = numberOfFunctionArguments(node);
        const std::vector<vhValue> right(count), wrong(count + 1);
        if (!answersWithoutArguments(id))
            EXPECT_TRUE(callFunction(&math, node, right).isNull()) << "row " << id;
        EXPECT_TRUE(callFunction(&math, node, wrong).isNull()) << "row " << id;
        if (count > 0)
            EXPECT_TRUE(callFunction(&math, node, std::vector<vhValue>(count - 1)).isNull()) << "row " << id;
    }
}
