// Symbol inspection and substitution: random sums evaluated by replacing
// every symbol against plain double arithmetic, the root and limit rules,
// held functions, strings, moving terms between sides, and the worksheet
// members.

#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <limits>
#include <random>

#include "frame/math.h"
#include "frame/node_type.h"
#include "frame/switches.h"
#include "symbolic/symbolic_test_support.h"
#include "value/value.h"

using namespace VarnholtMath::ValueTypes;
using symbolic_tests::sym;

namespace {

const vhValue x = sym("x");
const vhValue y = sym("y");
const vhValue z = sym("z");

vhValue str(const std::string& s) { return vhSymbolicValue(s, true, {}); }

vhValue column(const std::vector<vhValue>& v) { return vhVector(v, false); }

struct LimitRules {
    LimitRules(bool on) : before(limitsRulesOn()) { setLimitsRulesOnPublic(on); }
    ~LimitRules() { setLimitsRulesOnPublic(before); }
    bool before;
};

} // namespace

TEST(Substitution, RandomSumsEvaluateLikeDoubles)
{
    vhMath math;
    std::mt19937 random(7);
    std::uniform_int_distribution<int> exponent(-2, 3), coefficient(-9, 9), pick(0, 5), count(1, 6);
    std::uniform_real_distribution<double> point(0.3, 2.5);
    const vhValue symbols[] = {x, y, z};
    for (int trial = 0; trial < 60; ++trial) {
        const double at[] = {point(random), point(random), point(random)};
        vhValue sum = vhInteger(0);
        double expected = 0.0;
        const int terms = count(random);
        for (int k = 0; k < terms; ++k) {
            int c = coefficient(random);
            if (c == 0)
                c = 1;
            vhValue term = vhInteger(c);
            double value = c;
            // A function of one of the symbols first, then the powers.
            const int s = pick(random) % 3;
            switch (pick(random)) {
            case 0:
                term = term * math.sin_f(symbols[s]);
                value *= std::sin(at[s]);
                break;
            case 1:
                term = term * math.cos_f(symbols[s]);
                value *= std::cos(at[s]);
                break;
            case 2:
                term = term * math.exp_f(symbols[s]);
                value *= std::exp(at[s]);
                break;
            case 3:
                term = term * math.log_f(symbols[s]);
                value *= std::log(at[s]);
                break;
            case 4:
                term = term * math.sqrt_f(symbols[s]);
                value *= std::sqrt(at[s]);
                break;
            default:
                break;
            }
            for (int k = 0; k < 3; ++k) {
                const int e = exponent(random);
                term = term * math.pow_f(symbols[k], vhInteger(e));
                value *= std::pow(at[k], e);
            }
            sum = sum + term;
            expected += value;
        }
        SCOPED_TRACE(sum.toStringAll());
        const vhValue result = sum.replaceSymbolicValuesConst(
            &math, std::vector<std::string>{"x", "y", "z"},
            std::vector<vhValue>{vhDouble(at[0]), vhDouble(at[1]), vhDouble(at[2])}, false);
        ASSERT_TRUE(result.isDouble()) << result.toStringAll();
        EXPECT_NEAR(result.toDouble(), expected, 1e-12 * std::max(1.0, std::fabs(expected)));
    }
}

TEST(Substitution, RulesOfPowersRootsAndLimits)
{
    vhMath math;
    // 3x^2 + 1 at 2 is the number 13.
    const vhValue p = vhInteger(3) * x * x + vhInteger(1);
    EXPECT_EQ(p.replaceSymbolicValueConst(&math, "x", 2.0, false).toInt(), 13);
    EXPECT_EQ(p.replaceSymbolicValueConst(nullptr, x, vhInteger(2), false).toInt(), 13);

    // A cube root of a negative number stays real.
    const vhValue cubeRoot = math.pow_f(x, vhDouble(1.0 / 3.0));
    EXPECT_DOUBLE_EQ(cubeRoot.replaceSymbolicValueConst(&math, "x", -8.0, false).toDouble(), -2.0);

    // x^-1 at 0: infinity by the rules of limits, no value without them.
    const vhValue reciprocal = math.pow_f(x, vhInteger(-1));
    {
        LimitRules on(true);
        EXPECT_EQ(reciprocal.replaceSymbolicValueConst(nullptr, "x", 0.0, false).toDouble(),
                  std::numeric_limits<double>::infinity());
    }
    {
        LimitRules off(false);
        EXPECT_TRUE(reciprocal.replaceSymbolicValueConst(nullptr, "x", 0.0, false).isNull());
    }

    // Replacing by a sum is one pass: x -> x + 1 in x + 1 gives x + 2.
    const vhValue shifted = (x + vhInteger(1)).replaceSymbolicValueConst(&math, "x", x + vhInteger(1), false);
    EXPECT_TRUE(shifted == x + vhInteger(2));
    // Replacing by a vector maps over it.
    const vhValue mapped = (x + vhInteger(1)).replaceSymbolicValueConst(
        &math, "x", column({vhInteger(1), vhInteger(2)}), false);
    ASSERT_EQ(mapped.valueType(), tagVector);
    EXPECT_EQ(mapped.value(1).toInt(), 3);
}

TEST(Substitution, HeldFunctionsStringsAndStructures)
{
    vhMath math;
    // sin(x) with x -> y is a held sin(y), with or without a calculation
    // object; with a number it is evaluated only with one.
    const vhValue s = math.sin_f(x);
    const vhValue held = s.replaceSymbolicValueConst(&math, "x", y, false);
    ASSERT_EQ(held.valueType(), tagSymbolicFunction);
    EXPECT_EQ(held.toStringAll(), "sin(y)");
    EXPECT_EQ(s.replaceSymbolicValueConst(nullptr, "x", y, false).toStringAll(), "sin(y)");
    EXPECT_DOUBLE_EQ(s.replaceSymbolicValueConst(&math, "x", 0.5, false).toDouble(), std::sin(0.5));
    EXPECT_EQ(s.replaceSymbolicValueConst(nullptr, "x", 0.5, false).valueType(), tagSymbolicFunction);

    // A string is never replaced, even when its text is the name; its text
    // still counts among the names.
    const vhValue list = column({str("x"), x});
    const vhValue replaced = list.replaceSymbolicValueConst(&math, "x", 2.0, false);
    EXPECT_TRUE(replaced.value(0).isString());
    EXPECT_EQ(replaced.value(1).toInt(), 2);
    std::vector<std::string> names;
    EXPECT_EQ(str("x").symbols(names, false), 1u);

    // Fractions reduce anew; nothing happens on unequal or empty lists, or
    // names that are not there.
    const vhValue f = vhFraction(x, x + vhInteger(1));
    EXPECT_DOUBLE_EQ(f.replaceSymbolicValueConst(&math, "x", 3.0, false).toDouble(), 0.75);
    EXPECT_TRUE(f.replaceSymbolicValuesConst(&math, std::vector<std::string>{"x", "y"},
                                             std::vector<vhValue>{vhInteger(1)}, false) == f);
    EXPECT_TRUE(f.replaceSymbolicValueConst(&math, "w", 3.0, false) == f);
    EXPECT_TRUE(f.replaceSymbolicValueConst(&math, "", 3.0, false) == f);
    EXPECT_TRUE(f.replaceSymbolicValuesConst(&math, column({x}), vhInteger(3), false) == f);

    // Held functions by pattern: sin(x)^2 + 1 with sin(x) -> 0.5.
    const vhValue sq = s * s + vhInteger(1);
    const vhValue byPattern = sq.replaceSymbolicFunctionConst(&math, s, vhDouble(0.5));
    EXPECT_DOUBLE_EQ(byPattern.toDouble(), 1.25);
    EXPECT_TRUE(sq.replaceSymbolicFunctionConst(&math, vhInteger(2) * s, vhDouble(0.5)) == sq);
    EXPECT_TRUE(sq.replaceSymbolicFunctionConst(&math, x, vhDouble(0.5)) == sq);
}

TEST(SymbolInspection, NamesAndTrigonometry)
{
    vhMath math;
    std::vector<std::string> names;
    EXPECT_EQ((x + y + x).symbols(names, false), 2u);
    EXPECT_EQ(names, (std::vector<std::string>{"x", "y"}));
    // Inner factors of a product first; the list is only appended to.
    EXPECT_EQ((x * y).symbols(names, false), 2u);
    std::vector<std::string> inner;
    (x * y).symbols(inner, false);
    EXPECT_EQ(inner, (std::vector<std::string>{"y", "x"}));
    // Arguments of held functions, fractions and equations count.
    std::vector<vhValue> values;
    EXPECT_EQ(vhEquation(math.sin_f(z), "=", y).symbols(values, false), 2u);
    EXPECT_TRUE(values[0] == z);
    EXPECT_TRUE(vhInteger(3).symbols(false).isNull());
    const vhValue asVector = (x + y).symbols(false);
    EXPECT_EQ(asVector.valueType(), tagVector);
    EXPECT_FALSE(asVector.isRowVector());

    EXPECT_TRUE((x + vhInteger(1)).containSymbol("x"));
    EXPECT_FALSE((x + vhInteger(1)).containSymbol(""));
    EXPECT_FALSE(vhInteger(1).containSymbol("x"));
    EXPECT_TRUE((y * x).containSymbol(x));
    EXPECT_FALSE((y * x).containSymbol(vhInteger(2) * x));

    EXPECT_TRUE((x + math.cos_f(y)).containTrigonometry());
    EXPECT_TRUE((x * math.atan_f(y)).containTrigonometry());
    EXPECT_TRUE(column({vhInteger(1), vhFraction(vhInteger(1), x + math.tan_f(x))}).containTrigonometry());
    EXPECT_TRUE(math.exp_f(math.sin_f(x)).containTrigonometry());
    EXPECT_FALSE(math.cosh_f(x).containTrigonometry());
    EXPECT_FALSE((x + y).containTrigonometry());
}

TEST(Substitution, MovingTermsKeepsTheDifferenceOfTheSides)
{
    vhMath math;
    std::mt19937 random(11);
    std::uniform_real_distribution<double> point(-2.0, 2.0);
    const vhValue left = vhInteger(3) * x + vhInteger(2) * y * x + y + vhInteger(1);
    const vhValue right = x - vhInteger(4) * y + vhInteger(5);
    auto at = [&](const vhValue& v, double a, double b) {
        return v.replaceSymbolicValuesConst(&math, std::vector<std::string>{"x", "y"},
                                            std::vector<vhValue>{vhDouble(a), vhDouble(b)}, false)
            .toDouble();
    };
    for (int variant = 0; variant < 3; ++variant) {
        vhValue a = left, b = right;
        bool moved;
        if (variant == 0)
            moved = a.moveThisSymbolsTo(x, b);
        else if (variant == 1)
            moved = a.moveOtherThenThisSymbolsTo(x, b);
        else
            moved = a.moveThisSymbolsTo(column({y, x}), b);
        EXPECT_TRUE(moved);
        if (variant == 0)
            EXPECT_FALSE(a.containSymbol("x"));
        if (variant == 1)
            EXPECT_TRUE(a == vhInteger(3) * x + vhInteger(2) * y * x);
        if (variant == 2)
            EXPECT_EQ(a.toInt(), 1);
        for (int k = 0; k < 5; ++k) {
            const double p = point(random), q = point(random);
            EXPECT_NEAR(at(a, p, q) - at(b, p, q), at(left, p, q) - at(right, p, q), 1e-12);
        }
    }
    vhValue a = left;
    EXPECT_FALSE(a.moveThisSymbolsTo(x, a));
    vhValue b = right;
    EXPECT_FALSE(a.moveThisSymbolsTo(vhInteger(2), b));
    EXPECT_FALSE(a.moveThisSymbolsTo(column({vhInteger(2) * x}), b));
}

TEST(SymbolInspection, WorksheetMembers)
{
    vhMath math;
    const vhValue s = math.symbols_f(y * x + x);
    ASSERT_EQ(s.vectorSize(), 2u);
    EXPECT_TRUE(s.value(0) == x);
    EXPECT_TRUE(math.symbols_f(vhInteger(1)).isNull());
    EXPECT_TRUE(math.containSymbol_f(x + y, y).toBool());
    EXPECT_FALSE(math.containSymbol_f(x, y).toBool());
    EXPECT_EQ(math.containSymbol_f(x, y).valueType(), tagBoolean);
    EXPECT_TRUE(math.containSymbol_f(x, str("x")).isNull());

    EXPECT_EQ(math.replaceSymbols_f(x * y, x, vhInteger(2)).toStringAll(), "2 y");
    EXPECT_EQ(math.replaceSymbols_f(x * y + vhInteger(1), column({x, y}), column({vhInteger(2), vhInteger(3)})).toInt(),
              7);
    EXPECT_TRUE(math.replaceSymbols_f(x, column({x, y}), column({vhInteger(2)})).isNull());
    EXPECT_TRUE(math.replaceSymbols_f(x, vhInteger(2), vhInteger(2)).isNull());
    EXPECT_TRUE(math.replaceSymbols_f(vhValue(), x, vhInteger(2)).isNull());

    // Deep nesting ends quietly: the walks stop looking further down.
    vhValue deep = math.sin_f(x);
    for (int i = 0; i < 205; ++i)
        deep = column({deep, y});
    deep.containTrigonometry();
    EXPECT_FALSE(deep.symbols(false).isNull());
    EXPECT_EQ(deep.replaceSymbolicValueConst(&math, "y", 1.0, false).value(1).toInt(), 1);
}
