// Symbols and strings as atoms: construction, the multiplier chain,
// products and quotients, sums and the way into an expression, the merge
// test, equality, exponents, units as atoms, and undefined or foreign
// operands.

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "symbolic/symbolic_test_support.h"
#include "value/value.h"

using namespace VarnholtMath::ValueTypes;

using symbolic_tests::sym;

namespace {

const double kInf = std::numeric_limits<double>::infinity();

vhValue str(const std::string& s) { return vhSymbolicValue(s, true, {}); }

// Names of the factors, coefficient as its number, e.g. "3 y x".
std::string factorNames(const vhValue& v)
{
    std::vector<vhValue> list;
    v.multipliers(list);
    std::string s;
    for (const vhValue& f : list) {
        if (!s.empty())
            s += " ";
        if (f.isSymbolicValue()) {
            s += f.toString();
            if (f.exp() != 1.0)
                s += "^" + vhDouble(f.exp()).toString();
        } else {
            s += vhDouble(f.toDouble()).toString();
        }
    }
    return s;
}

double coefficient(const vhValue& v) { return v.firstMultiplier() ? v.firstMultiplier()->toDouble() : NAN; }

// A unit record made by hand, so that unit arithmetic is tested without the
// unit tables.
struct UnitRecord : vhValue {
    explicit UnitRecord(const std::string& symbol)
    {
        m_valueType = tagUnit;
        m_undefined = false;
        m_text = symbol;
        m_exponent = new vhInteger(1);
        m_multiplier = new vhDouble(1.0);
    }
};

} // namespace

TEST(SymbolicAtoms, ChainListsCoefficientFirstOutermostLast)
{
    const vhValue x = sym("x"), y = sym("y");
    EXPECT_EQ(factorNames(x), "1 x");
    EXPECT_EQ(factorNames(vhInteger(3) * x * y), "3 y x");
    std::vector<vhValue> list{vhInteger(9)};
    EXPECT_EQ((x * y).multipliers(list), 4u);

    const vhValue xy = x * y * 3;
    EXPECT_FALSE(xy.isSymbol());
    EXPECT_FALSE((x * x).isSymbol());
    xy.symbolicMultipliers(list);
    ASSERT_EQ(list.size(), 2u);
    EXPECT_EQ(factorNames(list[0]), "1 y");
    EXPECT_EQ(factorNames(list[1]), "1 x");

    vhValue reset = xy;
    reset.resetMultiplier();
    EXPECT_TRUE(reset.isSymbol());
}

TEST(SymbolicAtoms, ProductsMergeByName)
{
    const vhValue x = sym("x"), y = sym("y");
    EXPECT_EQ(factorNames(x * x), "1 x^2");
    EXPECT_EQ(factorNames(x * y * x), "1 y x^2");
    EXPECT_EQ(factorNames((x * y) * (y * x)), "1 y^2 x^2");
    // The shorter chain is searched for in the longer one.
    EXPECT_EQ(factorNames(x * (y * x * 2)), "2 x^2 y");
    EXPECT_EQ(factorNames(x * 2 * (x * 3)), "6 x^2");
    // The coefficient sinks to the end of the chain.
    EXPECT_EQ(factorNames(x * y * 5), "5 y x");

    // A zero factor ends the symbol, a complex zero does not.
    const vhValue zero = x * vhInteger(0);
    EXPECT_EQ(zero.valueType(), tagInteger);
    EXPECT_EQ(zero.toInt(), 0);
    EXPECT_EQ((vhDouble(0.0) * x).valueType(), tagInteger);
    const vhValue complexZero = x * vhComplex(0, 0);
    EXPECT_EQ(complexZero.valueType(), tagSymbolicValue);
    EXPECT_EQ(complexZero.firstMultiplier()->valueType(), tagComplex);
    EXPECT_TRUE(complexZero.isZero());

    // An infinite factor swallows the symbol.
    const vhValue infinite = x * 2 * vhDouble(-kInf);
    EXPECT_EQ(infinite.valueType(), tagDouble);
    EXPECT_EQ(infinite.toDouble(), -kInf);

    // Formats make different symbols.
    const vhSymbolicValue bold("x", false, {1});
    EXPECT_EQ(factorNames(x * bold), "1 x x");
}

TEST(SymbolicAtoms, QuotientsAndReciprocals)
{
    const vhValue x = sym("x"), y = sym("y");
    const vhValue one = x / x;
    EXPECT_EQ(one.valueType(), tagDouble);
    EXPECT_EQ(one.toDouble(), 1.0);

    vhValue keep = x;
    keep.sweepNullExponents(false);
    const vhValue power0 = keep / x;
    EXPECT_EQ(power0.valueType(), tagSymbolicValue);
    EXPECT_EQ(power0.exp(), 0.0);

    EXPECT_TRUE((x / 0).isNull());
    EXPECT_TRUE((x / vhComplex(0, 0)).isNull());
    EXPECT_EQ(factorNames(x / 4), "0.25 x");
    EXPECT_EQ(factorNames(x * y * y / y), "1 y x");
    EXPECT_EQ(factorNames(vhInteger(2) / x), "2 x^-1");

    vhValue inverted = x * 2;
    inverted.invertExponent();
    EXPECT_EQ(factorNames(inverted), "0.5 x^-1");
    vhValue chain = x * y * 4;
    chain.invertExponent();
    EXPECT_EQ(factorNames(chain), "0.25 y^-1 x^-1");

    // Arrays are divided element by element.
    const vhValue q = x / vhVector(std::vector<vhValue>{vhInteger(2), vhInteger(4)}, false);
    ASSERT_EQ(q.valueType(), tagVector);
    ASSERT_EQ(q.vectorSize(), 2u);
    EXPECT_EQ(factorNames(q.value(0)), "0.5 x");
    EXPECT_EQ(factorNames(q.value(1)), "0.25 x");
}

TEST(SymbolicAtoms, SumsMergeOrBecomeExpressions)
{
    const vhValue x = sym("x"), y = sym("y");
    EXPECT_EQ(x + 0, x);

    const vhValue five = x * 2 + x * 3;
    EXPECT_EQ(factorNames(five), "5 x");
    EXPECT_EQ(coefficient(x * y * 2 - y * x * 5), -3.0);

    // x - x stays an atom, of coefficient 0.
    const vhValue none = x - x;
    EXPECT_EQ(none.valueType(), tagSymbolicValue);
    EXPECT_TRUE(none.isZero());

    const vhValue sum = x + 1;
    ASSERT_EQ(sum.valueType(), tagExpression);
    ASSERT_EQ(sum.expressionValuesSize(), 2u);
    EXPECT_EQ(sum.expressionValues()[0], x);
    EXPECT_EQ(sum.expressionValues()[1].toInt(), 1);
    EXPECT_FALSE(sum.expressionValues()[0].temp());

    const vhValue difference = x - y;
    ASSERT_EQ(difference.expressionValuesSize(), 2u);
    EXPECT_EQ(coefficient(difference.expressionValues()[1]), -1.0);
    EXPECT_EQ((x + vhComplex(0, 1)).expressionValuesSize(), 2u);

    // Differently formatted symbols neither merge nor compare equal.
    const vhSymbolicValue bold("x", false, {1});
    EXPECT_EQ((x + bold).expressionValuesSize(), 2u);
    EXPECT_FALSE(x == bold);

    // The mark on an atom that is on its way into an expression makes the
    // pair answer null instead of wrapping again.
    vhValue marked = x;
    marked.setTemp(true);
    EXPECT_TRUE((marked + y).isNull());
    EXPECT_FALSE((marked + x).isNull());
}

TEST(SymbolicAtoms, Strings)
{
    const vhSymbolicValue a("ab", true, {5, 6});
    const vhValue joined = a + str("cd");
    EXPECT_TRUE(joined.isString());
    EXPECT_EQ(joined.toString(), "abcd");
    EXPECT_EQ(joined.charFormat(), (std::vector<CharFormat>(4, 0)));

    EXPECT_TRUE((str("a") * 2).isNull());
    EXPECT_TRUE((str("a") * sym("x")).isNull());
    EXPECT_TRUE((sym("x") * str("a")).isNull());
    EXPECT_TRUE((vhInteger(2) * str("a")).isNull());
    EXPECT_TRUE((str("a") / sym("x")).isNull());
    EXPECT_TRUE((sym("x") / str("a")).isNull());

    const vhValue mixed = str("a") + sym("x");
    ASSERT_EQ(mixed.valueType(), tagExpression);
    EXPECT_EQ(mixed.expressionValuesSize(), 2u);
    // Text against a number or text cannot be added at all, and text is
    // never subtracted.
    EXPECT_TRUE((str("a") + 1).isNull());
    EXPECT_TRUE((str("a") - str("b")).isNull());

    EXPECT_TRUE(str("ab") == str("ab"));
    EXPECT_FALSE(str("ab") == a);
    EXPECT_FALSE(str("x") == sym("x"));
    EXPECT_FALSE(str("x").stringEqual(sym("x")));
}

TEST(SymbolicAtoms, MergeTestAndEquality)
{
    const vhValue x = sym("x"), y = sym("y");
    EXPECT_TRUE((x * 2).stringEqual(x * 3));
    EXPECT_FALSE(x.stringEqual(x * x));
    EXPECT_TRUE((x * y).stringEqual(y * x * 7));
    EXPECT_FALSE((x * y).stringEqual(x));
    EXPECT_FALSE(x.stringEqual(vhSymbolicValue("x", false, {2})));
    EXPECT_FALSE(x.stringEqual(vhInteger(1)));

    EXPECT_TRUE(x * y == y * x);
    EXPECT_FALSE(x * 2 == x * 3);
    EXPECT_FALSE(x == x * x);
    EXPECT_FALSE(x == vhInteger(1));
    EXPECT_TRUE(x == vhExpression(x));

    EXPECT_TRUE((x * 2).symbolicEqual(x * x));
    EXPECT_FALSE(x.symbolicEqual(y));
}

TEST(SymbolicAtoms, Exponents)
{
    const vhValue x = sym("x"), y = sym("y");
    double e = 9;
    EXPECT_TRUE((x * x * y * 3).exponentForSymbol(x, e, false));
    EXPECT_EQ(e, 2.0);
    EXPECT_FALSE(y.exponentForSymbol(x, e, false));
    EXPECT_EQ(e, 0.0);
    EXPECT_FALSE((x * y).exponentForSymbol(x * 2, e, false));
    EXPECT_FALSE(vhInteger(3).exponentForSymbol(x, e, false));

    vhValue cube = x * x * x;
    cube.resetExponent();
    EXPECT_EQ(cube, x);

    vhValue raised = x * 5;
    raised.setExponent(vhInteger(4));
    EXPECT_EQ(factorNames(raised), "5 x^4");

    // A symbolic power makes a held pow of the atom.
    vhValue symbolic = x * x;
    symbolic.setExponent(y);
    ASSERT_EQ(symbolic.valueType(), tagSymbolicFunction);
    EXPECT_EQ(symbolic.functionID(), 21);
    ASSERT_EQ(symbolic.functionArguments().size(), 2u);
    EXPECT_EQ(symbolic.functionArguments()[0], x);
    EXPECT_EQ(symbolic.functionArguments()[1], y);

    // pow(x, y) set to the power 1 is x again.
    symbolic.setExponent(vhInteger(1));
    EXPECT_EQ(symbolic, x);

    vhValue one = vhDouble(1.0);
    one.setExponent(y);
    EXPECT_EQ(one.valueType(), tagDouble);
    vhValue untouched = x;
    untouched.setExponent(vhValue());
    EXPECT_EQ(untouched, x);
}

TEST(SymbolicAtoms, SweepFlagReachesEverythingBelow)
{
    const vhValue x = sym("x"), y = sym("y");
    vhValue sum = x + y;
    sum.sweepNullExponents(false);
    const vhValue product = sum.expressionValues()[0] * (vhInteger(1) / x);
    EXPECT_EQ(product.valueType(), tagSymbolicValue);
    EXPECT_EQ(product.exp(), 0.0);

    // Inside a chain too: y x / x keeps x^0 behind y.
    vhValue chain = y * x;
    chain.sweepNullExponents(false);
    EXPECT_EQ(factorNames(chain / x), "1 x^0 y");
    EXPECT_EQ(factorNames(y * x / x), "1 y");
}

TEST(SymbolicAtoms, UnitsAreAtoms)
{
    const UnitRecord m("m"), s("s"), kelvin("K");
    const vhValue length = m * 3;
    EXPECT_EQ(length.valueType(), tagUnit);
    EXPECT_EQ(coefficient(length), 3.0);
    EXPECT_EQ(coefficient(vhInteger(2) * m), 2.0);
    // A zero quantity stays a unit.
    EXPECT_EQ((m * 0).valueType(), tagUnit);

    EXPECT_EQ(coefficient(m * 3 + m * 4), 7.0);
    EXPECT_EQ((m + s).expressionValuesSize(), 2u);
    EXPECT_EQ((m + sym("x")).expressionValuesSize(), 2u);
    const vhValue area = m * m;
    EXPECT_EQ(area.exp(), 2.0);
    EXPECT_EQ((m * 6 / (m * 2)).toDouble(), 3.0);
    EXPECT_EQ(factorNames(m * s), "1 s m");
    // The unit stays outermost in a product with a symbol.
    EXPECT_EQ((sym("x") * m).valueType(), tagUnit);
    EXPECT_FALSE(m * 2 == m * 3);

    // No temperature below absolute zero.
    EXPECT_EQ(coefficient(kelvin * -5), 0.0);
    EXPECT_EQ(coefficient(UnitRecord("\xCB\x9A" "C") * -500), -273.15);
    EXPECT_EQ(coefficient(UnitRecord("\xCB\x9A" "F") * -500), -459.67);
}

TEST(SymbolicAtoms, UndefinedAndForeignOperands)
{
    const vhValue x = sym("x");
    const vhValue nan = vhDouble(std::nan(""));
    const vhObject handle("Thing", nullptr);
    for (const vhValue& bad : std::vector<vhValue>{vhValue(), nan, handle, vhFile("File", nullptr)}) {
        EXPECT_TRUE((x + bad).isNull());
        EXPECT_TRUE((x - bad).isNull());
        EXPECT_TRUE((x * bad).isNull());
        EXPECT_TRUE((x / bad).isNull());
        EXPECT_TRUE((bad * x).isNull());
        EXPECT_FALSE(x == bad);
    }
    EXPECT_TRUE((x * vhExpression()).isNull());

    // A value with no coefficient or exponent is no usable atom.
    const vhSymbolicValue nothing;
    EXPECT_TRUE((nothing * 2).isNull());
    EXPECT_TRUE((x * nothing).isNull());
    EXPECT_FALSE(nothing == nothing);

    vhValue inverted = vhInteger(0);
    inverted.invertExponent();
    EXPECT_TRUE(inverted.isNull());
    vhValue n;
    n.invertExponent();
    n.resetExponent();
    n.sweepNullExponents(false);
    EXPECT_TRUE(n.isNull());
}
