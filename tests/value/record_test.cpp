// The value record: ownership and deep copies, assignment between tags, the
// single-item rule, the dispatcher's rules for undefined values, predicates
// and type names.

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "frame/node_type.h"
#include "value/value.h"

using namespace VarnholtMath::ValueTypes;

namespace {

vhValue str(const std::string& s) { return vhSymbolicValue(s, true, {}); }
vhValue sym(const std::string& s) { return vhSymbolicValue(s, false, {}); }

// One value of every tag, with owned content where the tag has any.
std::vector<vhValue> oneOfEachTag()
{
    std::vector<vhValue> v;
    v.push_back(vhValue());
    v.push_back(vhBoolean(true));
    v.push_back(vhInteger(7));
    v.push_back(vhDouble(2.5));
    v.push_back(vhComplex(1, -2));
    v.push_back(sym("x"));
    v.push_back(str("text"));
    v.push_back(vhSymbolicFunction(nt_sin, {sym("x")}));
    double data[] = {1, 2, 3, 4, 5, 6};
    v.push_back(vhVector(data, 3, true));
    v.push_back(vhMatrix(data, 2, 3));
    unsigned int pixels[] = {1, 2, 3, 4};
    v.push_back(vhMatrix(pixels, 2, 2));
    v.push_back(vhVector(std::vector<vhValue>{str("a"), vhInteger(1)}, false));
    v.push_back(vhExpression(sym("y")));
    v.push_back(vhFraction(sym("x"), sym("x") + vhInteger(1)));
    v.push_back(vhInterval(0, true, 1, false));
    v.push_back(vhInfiniteSolution(0, 3.141592653589793));
    v.push_back(vhObject("Thing", nullptr));
    v.push_back(vhChannel("Serial", nullptr));
    v.push_back(vhWidget("Button", nullptr));
    v.push_back(vhFile("Text", nullptr));
    v.push_back(vhVector());
    return v;
}

} // namespace

TEST(ValueRecord, AssignmentBetweenEveryPairOfTagsIsDeepAndSafe)
{
    const std::vector<vhValue> all = oneOfEachTag();
    for (const vhValue& a : all) {
        for (const vhValue& b : all) {
            vhValue target(a);
            target = b;
            EXPECT_EQ(target.valueType(), b.valueType());
            EXPECT_EQ(target.isNull(), b.isNull());
            EXPECT_EQ(target.vectorSize(), b.vectorSize());
            // The copy owns its blocks: different addresses, same numbers.
            if (b.numericValues()) {
                ASSERT_NE(target.numericValues(), b.numericValues());
                EXPECT_EQ(target.numericValues()[1], b.numericValues()[1]);
            }
            if (b.imageValues()) {
                ASSERT_NE(target.imageValues(), b.imageValues());
                EXPECT_EQ(target.imageValues()[3], b.imageValues()[3]);
            }
            if (b.multiplier())
                EXPECT_NE(target.multiplier(), b.multiplier());
        }
        vhValue self(a);
        self = self;
        EXPECT_EQ(self.valueType(), a.valueType());
        EXPECT_EQ(self.vectorSize(), a.vectorSize());
    }
}

TEST(ValueRecord, ChangingACopyLeavesTheSource)
{
    double data[] = {1, 2, 3};
    vhVector numeric(data, 3, false);
    vhValue copy(numeric);
    copy.numericValues()[0] = 99;
    EXPECT_EQ(numeric.numericValues()[0], 1);

    // x/(x + 1) does not reduce.
    vhFraction f(sym("x"), sym("x") + vhInteger(1));
    ASSERT_EQ(f.valueType(), tagFraction);
    vhValue fcopy = f;
    *fcopy.numerator() = vhInteger(5);
    EXPECT_EQ(f.numerator()->toStringAll(), "x");

    vhValue s = sym("x");
    vhValue scopy = s;
    *scopy.exponent() = vhInteger(3);
    EXPECT_EQ(s.exponent()->toInt(), 1);
}

TEST(ValueRecord, AssigningFromInsideItselfKeepsTheSource)
{
    // A source that lives inside the target stays intact while it is read.
    vhValue list = vhVector(std::vector<vhValue>{vhVector(std::vector<vhValue>{str("in")}, false)}, false);
    list = *list.get_vector_index_address(0);
    EXPECT_EQ(list.valueType(), tagVector);
    EXPECT_EQ(list.vectorSize(), 1u);
    EXPECT_TRUE(list.value(0).isString());

    vhValue f = vhFraction(sym("x") * sym("y"), sym("x") + vhInteger(2));
    f = *f.numerator();
    EXPECT_EQ(f.toStringAll(), "y x");

    vhValue e = vhExpression(vhInteger(5));
    e = e.expressionValues()[0];
    EXPECT_EQ(e.toInt(), 5);
}

TEST(ValueRecord, TheClassOfTheObjectDoesNotDecide)
{
    // A vhDouble object that holds a string works as a string.
    vhDouble d(1.5);
    d = str("ab");
    EXPECT_EQ(d.valueType(), tagSymbolicValue);
    EXPECT_TRUE(d.isString());
    vhDouble copy(str("q"));
    EXPECT_EQ(copy.valueType(), tagSymbolicValue);

    // And a plain value that holds a double computes as a double.
    vhValue plain = vhDouble(1.5);
    vhValue sum = plain + vhDouble(2.0);
    EXPECT_EQ(sum.valueType(), tagDouble);
    EXPECT_EQ(sum.toDouble(), 3.5);
}

TEST(ValueRecord, EmptyArraysAndNullMarkers)
{
    vhValue held = vhMatrix(2, 2, true, false, false);
    held = vhVector();
    EXPECT_EQ(held.valueType(), tagVector);
    EXPECT_EQ(held.vectorSize(), 0u);
    EXPECT_FALSE(held.isNull());

    EXPECT_TRUE(vhMatrix().isNull());
    EXPECT_FALSE(vhVector().isNull());
    EXPECT_TRUE(vhExpression().isNull());
    EXPECT_TRUE(vhObject().isNull());
    EXPECT_TRUE(vhInterval().isNull());
    EXPECT_FALSE(vhInterval(0, false, 1, true).isNull());

    // A NaN scalar is undefined; toDouble still gives the NaN, and isNan,
    // which asks isNull first, says no.
    vhDouble nan(std::numeric_limits<double>::quiet_NaN());
    EXPECT_TRUE(nan.isNull());
    EXPECT_TRUE(std::isnan(nan.toDouble()));
    EXPECT_FALSE(nan.isNan());

    // A fresh subclass object is null until it gets content.
    EXPECT_TRUE(vhDouble().isNull());
    EXPECT_EQ(vhDouble().valueType(), tagDouble);
    EXPECT_TRUE(vhInteger(static_cast<vhValue*>(nullptr)).isNull());
    EXPECT_EQ(vhInteger(static_cast<vhValue*>(nullptr)).valueType(), tagNull);
}

TEST(ValueRecord, ClearKeepsOnlyTheSweepFlag)
{
    vhValue v = vhVector(3, true, true, true);
    v.setBracket(true);
    v.clear();
    EXPECT_EQ(v.valueType(), tagNull);
    EXPECT_EQ(v.vectorSize(), 0u);
    EXPECT_EQ(v.numericValues(), nullptr);
    EXPECT_FALSE(v.bracket());
    EXPECT_EQ(v.numberOfDecimalPlaces(), 14u);
}

TEST(ValueRecord, SingleItemRuleHasTwoGrades)
{
    vhExpression five(vhInteger(5));
    EXPECT_TRUE(five.isInteger());
    EXPECT_EQ(five.toInt(), 5);
    EXPECT_EQ(five.toDouble(), 5.0);
    EXPECT_TRUE(vhExpression(vhExpression(vhDouble(0.0))).isZero());

    // isSymbolicValue does not look through the expression.
    vhExpression x(sym("x"));
    EXPECT_FALSE(x.isSymbolicValue());
    EXPECT_TRUE(sym("x").isSymbolicValue());

    // Array accessors step only into arrays.
    double data[] = {1, 2, 3, 4};
    vhExpression m(vhMatrix(data, 2, 2));
    EXPECT_EQ(m.matrixRows(), 2u);
    EXPECT_EQ(m.vectorSize(), 4u);
    EXPECT_EQ(m.value(3).toInt(), 4);
    EXPECT_EQ(five.vectorSize(), 0u);
    EXPECT_TRUE(m.isNumericComplexVectorOrMatrix()); // answers "numeric" through the term
    EXPECT_FALSE(vhMatrix(data, 2, 2).isNumericComplexVectorOrMatrix());

    EXPECT_EQ(five.expressionValuesSize(), 1u);
    EXPECT_EQ(vhDouble(3).expressionValuesSize(), 1u);
    EXPECT_EQ(vhExpression().expressionValuesSize(), 0u);
}

TEST(ValueRecord, DispatcherRulesForUndefined)
{
    EXPECT_TRUE(vhValue() == vhValue());
    EXPECT_FALSE(vhValue() == vhInteger(0));
    EXPECT_FALSE(vhInteger(0) == vhValue());
    // A null value of another tag is unequal to everything, itself included.
    vhDouble nan(std::numeric_limits<double>::quiet_NaN());
    EXPECT_FALSE(nan == nan);
    EXPECT_TRUE((vhValue() + vhInteger(1)).isNull());
    EXPECT_TRUE((vhInterval(0, true, 1, true) + vhInteger(1)).isNull());
    EXPECT_TRUE((vhObject("T", nullptr) * vhInteger(2)).isNull());
}

TEST(ValueRecord, TypeNames)
{
    EXPECT_EQ(vhDouble(2.0).typeName(), "integer");
    EXPECT_EQ(vhDouble(2.5).typeName(), "double");
    EXPECT_EQ(vhDouble(3e10).typeName(), "double");
    EXPECT_EQ(vhBoolean(false).typeName(), "boolean");
    EXPECT_EQ(vhComplex(1, 1).typeName(), "complex");
    EXPECT_EQ(str("a").typeName(), "string");
    EXPECT_EQ(sym("a").typeName(), "symbolic value");
    EXPECT_EQ(vhSymbolicFunction(nt_sin, {sym("x")}).typeName(), "symbolic function");
    double data[] = {1, 2, 3, 4};
    EXPECT_EQ(vhMatrix(data, 1, 3).typeName(), "vector");
    EXPECT_EQ(vhMatrix(data, 2, 2).typeName(), "matrix");
    EXPECT_EQ(vhVector(data, 4, false).typeName(), "vector");
    unsigned int pixels[] = {0, 0};
    EXPECT_EQ(vhMatrix(pixels, 1, 2).typeName(), "image");
    EXPECT_EQ(vhExpression().typeName(), "expression");
    EXPECT_EQ(vhInfiniteSolution(0, 1).typeName(), "undefined");
    EXPECT_FALSE(vhInfiniteSolution(0, 1).isNull());
    EXPECT_EQ(vhChannel("Serial", nullptr).typeName(), "Serial channel");
    EXPECT_EQ(vhFile("Text", nullptr).typeName(), "Text file");
    EXPECT_EQ(vhWidget("", nullptr).typeName(), "undefined");
    EXPECT_EQ(vhValue("Thing", nullptr).typeName(), "Thing");
    vhValue target = vhInteger(4);
    EXPECT_EQ(vhInteger(&target).typeName(), "pointer");
}

TEST(ValueRecord, Predicates)
{
    EXPECT_TRUE(vhDouble(3.0).isInteger());
    EXPECT_FALSE(vhDouble(3e10).isInteger());
    EXPECT_TRUE(vhDouble(-2147483648.0).isInteger());
    EXPECT_TRUE(vhDouble(4294967295.0).isUnsignedInteger());
    EXPECT_FALSE(vhDouble(4294967296.0).isUnsignedInteger());
    EXPECT_FALSE(vhDouble(-1).isUnsignedInteger());
    EXPECT_TRUE(vhDouble(1.0).isBoolean());
    EXPECT_FALSE(vhDouble(2.0).isBoolean());
    EXPECT_TRUE(vhBoolean(true).isDouble());
    EXPECT_FALSE(vhComplex(1, 0).isDouble());
    EXPECT_TRUE(sym("x").isSymbol());
    EXPECT_FALSE(str("x").isSymbol());
    EXPECT_FALSE(str("x").isSymbolic());
    EXPECT_TRUE(sym("x").isSymbolic());
    EXPECT_TRUE(vhVector(std::vector<vhValue>{vhInteger(1), sym("x")}, true).isSymbolic());
    EXPECT_FALSE(vhVector(3, true, true, false).isSymbolic());
    EXPECT_TRUE(vhFraction(vhInteger(1), sym("x")).isSymbolic());
    EXPECT_FALSE(vhFraction(vhDouble(std::nan("")), sym("x")).isSymbolic());
    EXPECT_TRUE(vhVector().isVector());
    double data[] = {1, 2};
    vhMatrix row(data, 1, 2);
    EXPECT_TRUE(row.isVector());
    EXPECT_TRUE(row.isMatrix());
    EXPECT_TRUE(row.isRowVector());
    EXPECT_FALSE(vhVector(data, 2, false).isRowVector());
    EXPECT_TRUE(vhInterval(0, true, 1, true).isInterval());
}

TEST(ValueRecord, AccessorsAndPointers)
{
    vhValue target = vhInteger(42);
    vhInteger p(&target);
    EXPECT_EQ(p.pointer(), &target);
    EXPECT_EQ(p.dereference().toInt(), 42);
    EXPECT_EQ(vhInteger(3).pointer(), nullptr);
    EXPECT_TRUE(vhInteger(3).dereference().isNull());

    vhValue e = vhEquation();
    EXPECT_TRUE(e.leftExpression().isNull());
    EXPECT_TRUE(vhDouble(1).rightExpression().isNull());

    // dpi is an image's alone; a new image has 96.
    unsigned int pixels[] = {1};
    vhMatrix image(pixels, 1, 1);
    EXPECT_EQ(image.dpi(), 96u);
    image.setDpi(300);
    EXPECT_EQ(image.dpi(), 300u);
    image.setDpi(0);
    EXPECT_EQ(image.dpi(), 300u);
    vhDouble d(1);
    d.setDpi(300);
    EXPECT_EQ(d.dpi(), 0u);

    vhValue v = vhVector(std::vector<vhValue>{vhDouble(1.5), vhExpression(vhDouble(2.5))}, true);
    v.setNumberOfDecimalPlaces(3);
    EXPECT_EQ(v.value(0).numberOfDecimalPlaces(), 3u);
    v.setNumberOfDecimalPlaces(15);
    EXPECT_EQ(v.numberOfDecimalPlaces(), 3u);

    // The exponent of a power function is its second argument.
    vhSymbolicFunction power(nt_pow, {sym("x"), vhInteger(3)});
    ASSERT_NE(power.exponent(), nullptr);
    EXPECT_EQ(power.exponent()->toInt(), 3);
    EXPECT_EQ(vhSymbolicFunction(nt_sin, {sym("x")}).exponent()->toInt(), 1);

    // copy() forwards to the host's own value.
    vhValue own = vhInteger(9);
    vhValue handle = vhObject("T", nullptr);
    handle.set_mthis(&own);
    EXPECT_EQ(handle.copy().toInt(), 9);
    EXPECT_TRUE(vhDouble(std::nan("")).copy().isNull());
}

TEST(ValueRecord, SymbolicFunctionChecksItsArgumentCount)
{
    testing::internal::CaptureStdout();
    EXPECT_THROW(vhSymbolicFunction(nt_sin, {}), std::exception);
    EXPECT_EQ(testing::internal::GetCapturedStdout(),
              "Error: number of arguments in function 70 is not aqual with numer in numberOffunctionArguments()\n");
    EXPECT_THROW(vhSymbolicFunction(56, {}), std::exception);
}

TEST(ValueRecord, HostObjectMembersAndMethods)
{
    vhValue object = vhObject("Thing", nullptr);
    EXPECT_TRUE(object.set("a", vhInteger(1), false).isNull());
    EXPECT_TRUE(object.get("a").isNull());
    EXPECT_FALSE(object.set("a", vhInteger(1), true).isNull());
    EXPECT_EQ(object.get("a").toInt(), 1);
    object.set("a", vhInteger(2), false);
    EXPECT_EQ(object.get("a").toInt(), 2);
    EXPECT_EQ(object.members(), std::vector<std::string>{"a"});
    vhValue address = object.get_address("a");
    ASSERT_TRUE(address.isPointer());
    *address.pointer() = vhInteger(5);
    EXPECT_EQ(object.get("a").toInt(), 5);

    // The host object's own value answers first.
    vhValue own = vhObject("Own", nullptr);
    own.set("a", vhInteger(100), true);
    object.set_mthis(&own);
    EXPECT_EQ(object.get("a").toInt(), 100);

    struct Methods {
        static vhValue twice(vhValue* self, vhValue x) { return x * vhInteger(2) + vhInteger(self ? 0 : 1); }
    };
    object.add_method("twice", 1, reinterpret_cast<void*>(&Methods::twice));
    vhValue name = str("twice");
    vhValue arg = vhInteger(21);
    EXPECT_EQ(object.call(2, &name, &arg).toInt(), 42);
    // The right name with the wrong number of arguments finds nothing.
    EXPECT_TRUE(object.call(1, &name).isNull());
    vhValue unknown = str("thrice");
    EXPECT_TRUE(object.call(2, &unknown, &arg).isNull());
    // A name that stands with a count is not registered again, whatever count.
    object.add_method("twice", 2, reinterpret_cast<void*>(&Methods::twice));
    EXPECT_TRUE(object.call(3, &name, &arg, &arg).isNull());
}
