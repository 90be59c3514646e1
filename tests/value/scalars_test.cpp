// Arithmetic of booleans, integers, doubles and complex numbers: the result
// tag of every pair, the hand-over to a richer right operand, zero and
// undefined operands, the flush of tiny complex parts, equality, orderings,
// the integer-only operators, sign predicates, conversions and setters.

#include <gtest/gtest.h>

#include <cfloat>
#include <climits>
#include <limits>

#include "frame/switches.h"
#include "value/value.h"

using namespace VarnholtMath::ValueTypes;

namespace {

const double kInf = std::numeric_limits<double>::infinity();
const double kNaN = std::numeric_limits<double>::quiet_NaN();

vhValue sym(const std::string& s) { return vhSymbolicValue(s, false, {}); }

vhValue apply(const vhValue& l, char op, const vhValue& r)
{
    switch (op) {
    case '+': return l + r;
    case '-': return l - r;
    case '*': return l * r;
    default: return l / r;
    }
}

// Expected result: its tag, whether it is undefined, and its number.
struct Outcome {
    int tag;
    bool null;
    double re;
    double im;
};
const Outcome kUndefined = {tagNull, true, 0, 0};
Outcome B_(double x) { return {tagBoolean, false, x, 0}; }
Outcome I_(double x) { return {tagInteger, false, x, 0}; }
Outcome D_(double x) { return {tagDouble, false, x, 0}; }
Outcome C_(double re, double im) { return {tagComplex, false, re, im}; }

void expectOutcome(const vhValue& r, const Outcome& o)
{
    EXPECT_EQ(r.valueType(), o.tag);
    EXPECT_EQ(r.isNull(), o.null);
    if (!o.null) {
        EXPECT_EQ(r.complexRe(), o.re);
        EXPECT_EQ(r.complexIm(), o.im);
    }
}

} // namespace

TEST(ScalarArithmetic, ResultTagAndValueOfEveryPair)
{
    // Left operands true, 7, 2.5, 1+2i; right operands true, 2, 0.5, 3-1i.
    const vhValue B = vhBoolean(true), I = vhInteger(7), D = vhDouble(2.5), C = vhComplex(1, 2);
    const vhValue rB = vhBoolean(true), rI = vhInteger(2), rD = vhDouble(0.5), rC = vhComplex(3, -1);
    struct Pair {
        const char* name;
        vhValue left, right;
        Outcome plus, minus, times, over;
    };
    const std::vector<Pair> pairs = {
        // booleans: or, xor, and, and the integer quotient as a truth value
        {"B,B", B, rB, B_(1), B_(0), B_(1), B_(1)},
        {"B,I", B, rI, I_(3), I_(-1), I_(2), D_(0.5)},
        {"B,D", B, rD, D_(1.5), D_(0.5), D_(0.5), D_(2)},
        {"B,C", B, rC, C_(4, -1), C_(-2, 1), C_(3, -1), C_(0.3, 0.1)},
        // integers: 32-bit results, but a quotient is always a double
        {"I,B", I, rB, I_(8), I_(6), I_(7), D_(7)},
        {"I,I", I, rI, I_(9), I_(5), I_(14), D_(3.5)},
        {"I,D", I, rD, D_(7.5), D_(6.5), D_(3.5), D_(14)},
        {"I,C", I, rC, C_(10, -1), C_(4, 1), C_(21, -7), C_(2.1, 0.7)},
        {"D,B", D, rB, D_(3.5), D_(1.5), D_(2.5), D_(2.5)},
        {"D,I", D, rI, D_(4.5), D_(0.5), D_(5), D_(1.25)},
        {"D,D", D, rD, D_(3), D_(2), D_(1.25), D_(5)},
        {"D,C", D, rC, C_(5.5, -1), C_(-0.5, 1), C_(7.5, -2.5), C_(0.75, 0.25)},
        // complex with a real operand: + and - change the real part only
        {"C,B", C, rB, C_(2, 2), C_(0, 2), C_(1, 2), C_(1, 2)},
        {"C,I", C, rI, C_(3, 2), C_(-1, 2), C_(2, 4), C_(0.5, 1)},
        {"C,D", C, rD, C_(1.5, 2), C_(0.5, 2), C_(0.5, 1), C_(2, 4)},
        {"C,C", C, rC, C_(4, 1), C_(-2, 3), C_(5, 5), C_(0.1, 0.7)},
    };
    for (const Pair& p : pairs) {
        SCOPED_TRACE(p.name);
        expectOutcome(p.left + p.right, p.plus);
        expectOutcome(p.left - p.right, p.minus);
        expectOutcome(p.left * p.right, p.times);
        expectOutcome(p.left / p.right, p.over);
    }

    const vhValue F = vhBoolean(false), I0 = vhInteger(0), D0 = vhDouble(0), C0 = vhComplex(0, 0);
    const vhValue nanD = vhDouble(kNaN), nanC = vhComplex(kNaN, 0), undefinedI = vhInteger(), none;
    struct Single {
        const char* name;
        vhValue left;
        char op;
        vhValue right;
        Outcome result;
    };
    const std::vector<Single> edges = {
        // zero on the right: + and - give the left operand untouched, even
        // against a richer zero; division by any zero has no result
        {"B+0", B, '+', F, B_(1)},
        {"B*0", B, '*', F, B_(0)},
        {"B/0", B, '/', F, kUndefined},
        {"I+0.0", I, '+', D0, I_(7)},
        {"I-0i", I, '-', C0, I_(7)},
        {"I*0", I, '*', I0, I_(0)},
        {"I/0", I, '/', I0, kUndefined},
        {"I/0.0", I, '/', D0, kUndefined},
        {"D/false", D, '/', F, kUndefined},
        {"D*0i", D, '*', C0, C_(0, 0)},
        {"C+false", C, '+', F, C_(1, 2)},
        {"C/0i", C, '/', C0, kUndefined},
        {"C/0.0", C, '/', D0, kUndefined},
        {"0+D", I0, '+', rD, D_(0.5)},
        {"0.0/C", D0, '/', rC, C_(0, 0)},
        // undefined operands
        {"B+none", B, '+', none, kUndefined},
        {"I*nan", I, '*', nanD, kUndefined},
        {"nan+I", nanD, '+', rI, kUndefined},
        {"nan-C", nanD, '-', rC, kUndefined},
        // the zero shortcut comes before the null test, except in complex
        {"nan+0", nanD, '+', I0, {tagDouble, true, 0, 0}},
        {"nanC+0", nanC, '+', I0, kUndefined},
        // an undefined left operand divided by a richer one stays itself
        {"undef/D", undefinedI, '/', rD, {tagInteger, true, 0, 0}},
        {"undef/I", undefinedI, '/', rI, kUndefined},
        {"nan/C", nanD, '/', rC, {tagDouble, true, 0, 0}},
        {"nan/D", nanD, '/', rD, kUndefined},
    };
    for (const Single& e : edges) {
        SCOPED_TRACE(e.name);
        expectOutcome(apply(e.left, e.op, e.right), e.result);
    }
}

TEST(ScalarArithmetic, IntegersWrapAndQuotientsAreDoubles)
{
    EXPECT_EQ((vhInteger(2147483647) + vhInteger(1)).toInt(), INT_MIN);
    EXPECT_EQ((vhInteger(INT_MIN) - vhInteger(1)).toInt(), 2147483647);
    EXPECT_EQ((vhInteger(65536) * vhInteger(65536)).toInt(), 0);
    const vhValue six = vhInteger(6) / vhInteger(3);
    EXPECT_EQ(six.valueType(), tagDouble);
    EXPECT_EQ(six.typeName(), "integer");
    EXPECT_TRUE((vhDouble(1) / vhDouble(0)).isNull());
    // A double overflows to a defined infinity.
    const vhValue big = vhDouble(DBL_MAX) * vhDouble(2);
    EXPECT_FALSE(big.isNull());
    EXPECT_TRUE(big.isInfinity());
}

TEST(ScalarArithmetic, ResultsKeepTheFieldsOfTheComputingOperand)
{
    vhDouble half(0.5);
    half.setNumberOfDecimalPlaces(3);
    vhInteger two(2);
    two.setNumberOfDecimalPlaces(5);
    two.setBracket(true);
    // 2 + 0.5 is computed by the double, so the double's places win.
    EXPECT_EQ((two + half).numberOfDecimalPlaces(), 3u);
    // 2 - 0.5 is (0.5 * -1) + 2, also in the double's class.
    const vhValue diff = two - half;
    EXPECT_EQ(diff.toDouble(), 1.5);
    EXPECT_EQ(diff.numberOfDecimalPlaces(), 3u);
    const vhValue same = two * vhInteger(3);
    EXPECT_EQ(same.numberOfDecimalPlaces(), 5u);
    EXPECT_TRUE(same.bracket());
}

TEST(ScalarArithmetic, TinyComplexPartsFlushOnlyInComplexProductsAndQuotients)
{
    EXPECT_EQ((vhComplex(1e-16, 1) * vhComplex(1, 0)).complexRe(), 0.0);
    EXPECT_EQ((vhComplex(-1e-16, 1) * vhComplex(1, 0)).complexRe(), 0.0);
    EXPECT_EQ((vhComplex(1e-15, 1) * vhComplex(1, 0)).complexRe(), 1e-15);
    EXPECT_EQ((vhComplex(1, 1e-16) / vhComplex(1, 0)).complexIm(), 0.0);
    EXPECT_EQ((vhComplex(1e-16, 1) * vhDouble(1)).complexRe(), 1e-16);
    EXPECT_EQ((vhComplex(1e-16, 1) + vhComplex(0, 1)).complexRe(), 1e-16);
    const vhValue minusOne = vhComplex(0, 1) * vhComplex(0, 1);
    EXPECT_EQ(minusOne.valueType(), tagComplex);
    EXPECT_EQ(minusOne.complexRe(), -1.0);
    EXPECT_EQ(minusOne.complexIm(), 0.0);
}

TEST(ScalarArithmetic, DivisionByARicherOperand)
{
    double data[] = {2, 4, 0};
    for (bool setting : {false, true}) {
        if (setting)
            vhValue::seMatrixScalarMultiplicationAndDivisionOn();
        else
            vhValue::seMatrixScalarMultiplicationAndDivisionOff();
        const vhValue q = vhInteger(1) / vhVector(data, 3, true);
        ASSERT_EQ(q.valueType(), tagVector);
        ASSERT_TRUE(q.isNumericVectorOrMatrix());
        EXPECT_EQ(q.numericValues()[0], 0.5);
        EXPECT_EQ(q.numericValues()[1], 0.25);
        EXPECT_TRUE(std::isnan(q.numericValues()[2]));
        EXPECT_TRUE(q.isRowVector());
    }
    vhValue::seMatrixScalarMultiplicationAndDivisionOff();
    // Element storage goes element by element too, complex elements included.
    const vhValue mixed = vhDouble(3) / vhVector(std::vector<vhValue>{vhInteger(2), vhComplex(0, 1)}, false);
    EXPECT_EQ(mixed.value(0).toDouble(), 1.5);
    EXPECT_EQ(mixed.value(1).complexIm(), -3.0);
    // A fraction: 2 / (3/4) is the fraction 8 over 3 while fractions don't
    // reduce.
    setFractionsOnPublic(false);
    const vhValue f = vhInteger(2) / vhFraction(vhInteger(3), vhInteger(4));
    setFractionsOnPublic(true);
    ASSERT_EQ(f.valueType(), tagFraction);
    EXPECT_EQ(f.numerator()->toInt(), 8);
    EXPECT_EQ(f.denominator()->toInt(), 3);
    // Tags without a division give nothing.
    EXPECT_TRUE((vhDouble(1) / vhInterval(0, true, 1, true)).isNull());
    EXPECT_TRUE((vhDouble(1) / vhObject("Thing", nullptr)).isNull());
}

TEST(ScalarArithmetic, IncreaseToType)
{
    const vhValue t = vhBoolean(true);
    EXPECT_EQ(t.increaseToType(vhInteger(5)).valueType(), tagInteger);
    const vhValue d = vhInteger(3).increaseToType(vhDouble(0.5));
    EXPECT_EQ(d.valueType(), tagDouble);
    EXPECT_EQ(d.toDouble(), 3.0);
    const vhValue c = vhDouble(2.5).increaseToType(vhComplex(0, 1));
    EXPECT_EQ(c.valueType(), tagComplex);
    EXPECT_EQ(c.complexRe(), 2.5);
    // A lower or equal target is a plain copy.
    EXPECT_EQ(vhComplex(1, 2).increaseToType(vhInteger(1)).complexIm(), 2.0);
    // Arrays are filled, in numeric storage, with the shape of the target.
    const vhValue column = vhDouble(1.5).increaseToType(vhVector(3, true, true, false));
    EXPECT_EQ(column.valueType(), tagVector);
    EXPECT_EQ(column.vectorSize(), 3u);
    EXPECT_FALSE(column.isRowVector());
    EXPECT_TRUE(column.isNumericVectorOrMatrix());
    EXPECT_EQ(column.numericValues()[2], 1.5);
    const vhValue m = vhInteger(4).increaseToType(vhMatrix(2, 3, true, false, false));
    EXPECT_EQ(m.matrixRows(), 2u);
    EXPECT_EQ(m.matrixColumns(), 3u);
    EXPECT_EQ(m.numericValues()[5], 4.0);
    const vhValue e = vhInteger(4).increaseToType(vhExpression(sym("x")));
    EXPECT_EQ(e.valueType(), tagExpression);
    EXPECT_EQ(e.toInt(), 4);
    EXPECT_TRUE(vhInteger(4).increaseToType(vhInterval(0, true, 1, true)).isNull());
}

TEST(ScalarComparison, ExactEqualityAcrossClasses)
{
    EXPECT_TRUE(vhComplex(1, 0) == vhDouble(1));
    EXPECT_TRUE(vhDouble(1) == vhComplex(1, 0));
    EXPECT_FALSE(vhDouble(1) == vhComplex(1, 1e-300));
    EXPECT_TRUE(vhBoolean(true) == vhInteger(1));
    EXPECT_TRUE(vhInteger(3) == vhDouble(3.0));
    EXPECT_FALSE(vhInteger(3) == vhDouble(3.0000000000000004));
    EXPECT_TRUE(vhValue() == vhValue());
    EXPECT_FALSE(vhValue() == vhDouble(0));
    EXPECT_FALSE(vhDouble(kNaN) == vhDouble(kNaN));
    EXPECT_TRUE(vhDouble(kNaN) != vhDouble(kNaN));
    EXPECT_TRUE(vhValue() != vhInteger(0));

    vhValue a = vhInteger(0), b = vhInteger(0);
    const vhInteger pa(&a), pa2(&a), pb(&b);
    EXPECT_TRUE(pa == pa2);
    EXPECT_FALSE(pa == pb);
    EXPECT_FALSE(pa == vhInteger(0));
    EXPECT_FALSE(vhInteger(0) == pa);
    EXPECT_TRUE((pa + vhInteger(1)).isNull());
    EXPECT_TRUE((vhInteger(1) * pa).isNull());
    EXPECT_TRUE(vhInteger(nullptr).isNull());

    // EqualTo and its kin give a boolean value, or undefined for undefined.
    EXPECT_TRUE(vhDouble(2).EqualTo(vhInteger(2)).toBool());
    EXPECT_EQ(vhDouble(2).EqualTo(vhInteger(2)).valueType(), tagBoolean);
    EXPECT_TRUE(vhDouble(2).NotEqualTo(vhValue()).isNull());
    EXPECT_TRUE(vhValue().EqualTo(vhValue()).isNull());
}

TEST(ScalarComparison, OrderingsAndLogic)
{
    EXPECT_TRUE(vhInteger(1) < vhDouble(1.5));
    EXPECT_TRUE(vhDouble(1.5) > vhBoolean(true));
    EXPECT_TRUE(vhInteger(2) <= vhDouble(2));
    EXPECT_TRUE(vhInteger(2) >= vhDouble(2));
    EXPECT_FALSE(vhInteger(3) <= vhDouble(2));
    // Orderings use a difference: equal infinities are not ordered.
    EXPECT_FALSE(vhDouble(kInf) < vhDouble(kInf));
    EXPECT_FALSE(vhDouble(kInf) > vhDouble(kInf));
    EXPECT_TRUE(vhDouble(-kInf) < vhDouble(kInf));
    // Complex numbers are never ordered.
    EXPECT_FALSE(vhComplex(1, 1) < vhDouble(5));
    EXPECT_FALSE(vhDouble(0) < vhComplex(1, 0));
    EXPECT_TRUE(vhComplex(1, 1).GreaterThen(vhDouble(0)).isNull());
    // One-term expressions are looked through, on both sides.
    EXPECT_TRUE(vhExpression(vhInteger(1)) < vhInteger(2));
    EXPECT_TRUE(vhInteger(1) < vhExpression(vhDouble(2)));
    EXPECT_TRUE(vhExpression(vhInteger(3)).GreaterThen(vhExpression(vhInteger(2))).toBool());
    EXPECT_FALSE(vhDouble(1) < sym("x"));
    EXPECT_FALSE(vhValue() < vhDouble(1));
    EXPECT_TRUE(vhValue().LessThen(vhDouble(1)).isNull());

    const vhValue ge = vhInteger(2).GreaterThenOrEqalTo(vhDouble(2));
    EXPECT_EQ(ge.valueType(), tagBoolean);
    EXPECT_TRUE(ge.toBool());
    EXPECT_FALSE(vhInteger(1).GreaterThenOrEqalTo(vhDouble(2)).toBool());
    EXPECT_TRUE(vhInteger(1).LessThenOrEqalTo(vhDouble(2)).toBool());
    EXPECT_TRUE(vhInteger(1).LessThenOrEqalTo(vhDouble(kNaN)).isNull());

    EXPECT_FALSE(vhBoolean(true) || vhValue());
    EXPECT_FALSE(vhValue() && vhBoolean(true));
    EXPECT_TRUE(vhBoolean(false) || vhComplex(0, 0));
    EXPECT_FALSE(vhBoolean(true) && vhInteger(0));
}

TEST(ScalarArithmetic, IntegerOnlyOperators)
{
    const vhValue rem = vhDouble(7.0) % vhInteger(2);
    EXPECT_EQ(rem.valueType(), tagInteger);
    EXPECT_EQ(rem.toInt(), 1);
    EXPECT_EQ((vhInteger(-7) % vhInteger(2)).toInt(), -1);
    EXPECT_EQ((vhInteger(7) % vhInteger(-2)).toInt(), 1);
    EXPECT_TRUE((vhInteger(7) % vhInteger(0)).isNull());
    EXPECT_TRUE((vhDouble(7.5) % vhInteger(2)).isNull());
    EXPECT_TRUE((vhComplex(7, 0) % vhInteger(2)).isNull());
    EXPECT_EQ((vhInteger(INT_MIN) % vhInteger(-1)).toInt(), 0);

    EXPECT_EQ((vhInteger(1) << vhInteger(33)).toInt(), 2);
    EXPECT_EQ((vhInteger(1) << vhInteger(31)).toInt(), INT_MIN);
    EXPECT_TRUE((vhInteger(1) << vhInteger(-1)).isNull());
    EXPECT_EQ((vhInteger(-8) >> vhInteger(1)).toInt(), -4);
    EXPECT_EQ((vhInteger(-8) >> vhInteger(34)).toInt(), -2);
    EXPECT_TRUE((vhInteger(8) >> vhDouble(0.5)).isNull());
    EXPECT_EQ((vhInteger(12) & vhInteger(10)).toInt(), 8);
    EXPECT_EQ((vhInteger(12) ^ vhInteger(10)).toInt(), 6);
    EXPECT_EQ((vhBoolean(true) | vhInteger(10)).toInt(), 11);
    EXPECT_TRUE((vhInteger(1) | vhValue()).isNull());

    vhValue v = vhInteger(13);
    v %= vhInteger(5);
    v <<= vhInteger(2);
    v |= vhInteger(1);
    v ^= vhInteger(8);
    v &= vhInteger(7);
    v >>= vhInteger(1);
    EXPECT_EQ(v.toInt(), 2);
}

TEST(ScalarPredicates, SignZeroInfinityAndNan)
{
    EXPECT_TRUE(vhExpression().isZero());
    EXPECT_FALSE(vhValue().isZero());
    EXPECT_TRUE(vhBoolean(false).isZero());
    EXPECT_TRUE(vhComplex(0, 0).isZero());
    EXPECT_FALSE(vhComplex(0, 1e-300).isZero());
    EXPECT_TRUE(vhExpression(vhDouble(0)).isZero());

    EXPECT_TRUE(vhInteger(-1).isNegative());
    EXPECT_TRUE(vhExpression(vhDouble(-0.5)).isNegative());
    EXPECT_FALSE(vhComplex(-1, 0).isNegative());
    EXPECT_TRUE(vhComplex(-1, 0).isPositive());
    EXPECT_FALSE(vhDouble(0).isPositive());
    EXPECT_FALSE(vhValue().isPositive());

    // A symbol answers through its coefficient.
    vhValue x = sym("x");
    *x.multiplier() = vhDouble(-2);
    EXPECT_TRUE(x.isNegative());
    EXPECT_FALSE(x.isPositive());
    *x.multiplier() = vhInteger(0);
    EXPECT_TRUE(x.isZero());
    *x.multiplier() = vhDouble(kInf);
    EXPECT_TRUE(x.isInfinity());

    EXPECT_FALSE(vhDouble(DBL_MAX).isInfinity());
    EXPECT_TRUE(vhDouble(-kInf).isInfinity());
    EXPECT_TRUE(vhComplex(0, kInf).isInfinity());
    double data[] = {1, 2};
    vhValue v = vhVector(data, 2, true);
    EXPECT_FALSE(v.isInfinity());
    EXPECT_FALSE(v.isNan());
    v.setValue(vhComplex(0, -kInf), 1);
    EXPECT_TRUE(v.isInfinity());
    v.setValue(vhComplex(0, kNaN), 0);
    EXPECT_TRUE(v.isNan());
    // A scalar NaN is undefined, not a NaN; an array inside elements counts.
    EXPECT_FALSE(vhDouble(kNaN).isNan());
    const vhValue nested = vhVector(std::vector<vhValue>{sym("x"), v}, true);
    EXPECT_TRUE(nested.isNan());
    unsigned int pixels[] = {0xFFFFFFFFu};
    EXPECT_FALSE(vhMatrix(pixels, 1, 1).isInfinity());
}

TEST(ScalarConversions, ReadingValuesAsNumbers)
{
    // Outside 32 bits the processor's cut gives -2147483648.
    EXPECT_EQ(vhDouble(3e10).toInt(), INT_MIN);
    EXPECT_EQ(vhDouble(-3e10).toInt(), INT_MIN);
    EXPECT_EQ(vhDouble(2147483647.9).toInt(), 2147483647);
    EXPECT_EQ(vhDouble(-2.9).toInt(), -2);
    EXPECT_EQ(vhComplex(2, 0).toInt(), 0);
    EXPECT_EQ(vhExpression(vhDouble(5)).toInt(), 5);
    EXPECT_EQ(vhDouble(4294967295.0).toUnsignedInt(), 4294967295u);
    EXPECT_EQ(vhDouble(-1).toUnsignedInt(), 0u);
    EXPECT_EQ(vhDouble(2.5).toUnsignedInt(), 0u);

    EXPECT_EQ(vhComplex(2, 0).toDouble(), 2.0);
    EXPECT_TRUE(std::isnan(vhComplex(2, 1).toDouble()));
    EXPECT_TRUE(std::isnan(vhValue().toDouble()));
    EXPECT_TRUE(std::isnan(sym("x").toDouble()));
    EXPECT_TRUE(std::isnan(vhDouble(kNaN).toDouble()));

    EXPECT_TRUE(vhComplex(0, 0).toBool());
    EXPECT_TRUE(sym("x").toBool());
    EXPECT_FALSE(vhDouble(0).toBool());
    EXPECT_FALSE(vhValue().toBool());
    EXPECT_FALSE(vhExpression().toBool());

    EXPECT_EQ(vhInteger(3).toComplex(), std::complex<double>(3, 0));
    EXPECT_TRUE(std::isnan(vhVector().toComplex().imag()));
    EXPECT_EQ(vhDouble(3).complexIm(), 0.0);
    EXPECT_TRUE(std::isnan(sym("x").complexRe()));

    // A pointer value carries 0 as its own number.
    vhValue target = vhInteger(42);
    const vhInteger p(&target);
    EXPECT_EQ(p.toInt(), 0);
    EXPECT_EQ(p.toDouble(), 0.0);
    EXPECT_FALSE(p.toBool());
    EXPECT_EQ(p.dereference().toInt(), 42);
}

TEST(ScalarConversions, SettersAndOperatorFamilies)
{
    vhValue v = vhComplex(1, 2);
    v.setDouble(5);
    EXPECT_EQ(v.valueType(), tagDouble);
    v.setComplexRe(7);
    // The imaginary field was kept all along.
    EXPECT_EQ(v.toComplex(), std::complex<double>(7, 2));
    v.setBool(true);
    EXPECT_EQ(v.valueType(), tagBoolean);

    vhValue s = vhSymbolicValue("ab", true, {});
    s.setString("cd");
    EXPECT_TRUE(s.isString());
    EXPECT_EQ(s.toString(), "cd");
    ASSERT_NE(s.multiplier(), nullptr);

    // From the array tags on, a fresh scalar replaces everything.
    vhValue m = vhMatrix(2, 2, true, false, false);
    m.setComplexIm(3);
    EXPECT_EQ(m.valueType(), tagComplex);
    EXPECT_EQ(m.toComplex(), std::complex<double>(0, 3));
    EXPECT_EQ(m.matrixRows(), 0u);
    vhValue vec = vhVector(2, true, true, false);
    vec.setString("y");
    EXPECT_FALSE(vec.isString());
    EXPECT_TRUE(vec.isSymbol());
    vhValue undefinedValue;
    undefinedValue.setInt(4);
    EXPECT_EQ(undefinedValue.valueType(), tagInteger);
    EXPECT_EQ(undefinedValue.toInt(), 4);

    // Plain C++ operands become integer, double, complex, boolean or symbol.
    vhValue f = vhInteger(7);
    EXPECT_EQ((f / 2).toDouble(), 3.5);
    EXPECT_EQ((f - std::complex<double>(0, 1)).toComplex(), std::complex<double>(7, -1));
    EXPECT_TRUE(f == 7.0 && f != 7.5 && f == std::complex<double>(7, 0));
    f += 3;
    f *= 2.0;
    f -= true;
    EXPECT_EQ(f.valueType(), tagDouble);
    EXPECT_EQ(f.toDouble(), 19.0);
    f = std::string("z");
    EXPECT_TRUE(f.isSymbol());

    // The tag of the value, not the class of the object, picks the operator.
    vhDouble d(1.0);
    d = vhBoolean(true);
    const vhValue orSum = d + vhBoolean(true);
    EXPECT_EQ(orSum.valueType(), tagBoolean);
    vhInteger i(7);
    i /= vhInteger(2);
    EXPECT_EQ(i.valueType(), tagDouble);
    EXPECT_EQ((i + vhInteger(1)).toDouble(), 4.5);

    EXPECT_EQ(vhComplex(1, 2).conjugate().complexIm(), -2.0);
    const vhComplex mod = vhComplex(3, 4).modulo();
    EXPECT_EQ(mod.valueType(), tagComplex);
    EXPECT_EQ(mod.complexRe(), 5.0);
    EXPECT_EQ(mod.complexIm(), 0.0);
}
