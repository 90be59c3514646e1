// Type names, text forms, strings, complex numbers, rows and the clock.

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <string>

#include "frame/math.h"

using namespace VarnholtMath::ValueTypes;

namespace {
vhValue str(const std::string& s) { return vhSymbolicValue(s, true, {}); }
vhValue d(double v) { return vhDouble(v); }
const double kPi = 3.141592653589793;
} // namespace

TEST(ValueFunctions, TypeNamesAndTexts)
{
    vhMath m;
    EXPECT_EQ("integer", m.typeName_f(d(2.0)).toString());
    EXPECT_EQ("double", m.typeName_f(d(2.5)).toString());
    EXPECT_EQ("undefined", m.typeName_f(vhValue()).toString());
    EXPECT_TRUE(m.typeName_f(d(1.0)).isString());
    const vhValue t = m.toString_f(vhVector(std::vector<vhValue>{vhInteger(1), vhInteger(2)}, true));
    EXPECT_TRUE(t.isString());
    EXPECT_EQ("[1, 2]", t.toString());
    EXPECT_EQ("abc", m.toString_f(str("abc")).toString());
    EXPECT_TRUE(m.toString_f(vhValue()).isNull());
}

TEST(ValueFunctions, TextToNumber)
{
    vhMath m;
    EXPECT_EQ(tagInteger, m.toNumber_f(str("-42")).valueType());
    EXPECT_EQ(-42, m.toNumber_f(str(" -42 ")).toInt());
    EXPECT_EQ(42, m.toNumber_f(str("+42")).toInt());
    EXPECT_EQ(0.5, m.toNumber_f(str("+.5")).toDouble());
    EXPECT_EQ(tagDouble, m.toNumber_f(str("2.5e3")).valueType());
    EXPECT_EQ(2500.0, m.toNumber_f(str("2.5e3")).toDouble());
    // Too large for an integer: a double.
    EXPECT_EQ(3000000000.0, m.toNumber_f(str("3000000000")).toDouble());
    vhValue z = m.toNumber_f(str("3-4i"));
    ASSERT_TRUE(z.isComplex());
    EXPECT_EQ(3.0, z.complexRe());
    EXPECT_EQ(-4.0, z.complexIm());
    z = m.toNumber_f(str("1e-3+2.5e2j"));
    EXPECT_EQ(0.001, z.complexRe());
    EXPECT_EQ(250.0, z.complexIm());
    z = m.toNumber_f(str("-i"));
    EXPECT_EQ(0.0, z.complexRe());
    EXPECT_EQ(-1.0, z.complexIm());
    EXPECT_EQ(7, m.toNumber_f(vhInteger(7)).toInt());
    for (const char* s : {"", "  ", "abc", "1,5", "3+", "i4", "1+2", "--1", "+-1", "nan", "1e400", "0x10"})
        EXPECT_TRUE(m.toNumber_f(str(s)).isNull()) << s;
    EXPECT_TRUE(m.toNumber_f(vhSymbolicValue("x", false, {})).isNull());
}

TEST(ValueFunctions, StringLengthAndCharacters)
{
    vhMath m;
    EXPECT_EQ(0, m.strlen_f(str("")).toInt());
    EXPECT_EQ(5, m.strlen_f(str("hello")).toInt());
    // Characters, not bytes: "Grüße" has five.
    const std::string gruesse = "Gr\xC3\xBC\xC3\x9F" "e";
    EXPECT_EQ(5, m.strlen_f(str(gruesse)).toInt());
    EXPECT_EQ("\xC3\x9F", m.strat_f(str(gruesse), vhInteger(3)).toString());
    EXPECT_EQ("e", m.strat_f(str(gruesse), vhInteger(4)).toString());
    EXPECT_EQ("h", m.strat_f(str("hello"), d(0.0)).toString());
    EXPECT_TRUE(m.strat_f(str("hello"), vhInteger(5)).isNull());
    EXPECT_TRUE(m.strat_f(str("hello"), vhInteger(-1)).isNull());
    EXPECT_TRUE(m.strat_f(str("hello"), d(1.5)).isNull());
    EXPECT_TRUE(m.strlen_f(d(12.0)).isNull());
    EXPECT_TRUE(m.strlen_f(vhSymbolicValue("x", false, {})).isNull());
}

TEST(ValueFunctions, ComplexPartsAndPhase)
{
    vhMath m(14, angleRadians);
    const vhValue z = m.complex_f(d(1.5), vhInteger(-2));
    ASSERT_TRUE(z.isComplex());
    EXPECT_EQ(1.5, z.complexRe());
    EXPECT_EQ(-2.0, z.complexIm());
    EXPECT_TRUE(m.complex_f(vhComplex(1.0, 1.0), d(1.0)).isNull());
    EXPECT_TRUE(m.complex_f(str("1"), d(1.0)).isNull());
    EXPECT_EQ(-2.0, m.complexImg_f(z).toDouble());
    EXPECT_EQ(0.0, m.complexImg_f(d(5.0)).toDouble());
    EXPECT_EQ(kPi, m.phangle_f(d(-1.0)).toDouble());
    EXPECT_EQ(0.0, m.phangle_f(d(2.0)).toDouble());
    EXPECT_DOUBLE_EQ(-kPi / 2, m.phangle_f(vhComplex(0.0, -3.0)).toDouble());
    m.setAngleUnit(angleDegrees);
    EXPECT_DOUBLE_EQ(135.0, m.phangle_f(vhComplex(-1.0, 1.0)).toDouble());
    m.setAngleUnit(angleGradians);
    EXPECT_DOUBLE_EQ(100.0, m.phangle_f(vhComplex(0.0, 1.0)).toDouble());
    const vhValue phases = m.phangle_f(vhVector(std::vector<vhValue>{vhComplex(1.0, 1.0), d(-1.0)}, false));
    ASSERT_EQ(2u, phases.vectorSize());
    EXPECT_DOUBLE_EQ(50.0, phases.valueToDouble(0));
    EXPECT_DOUBLE_EQ(200.0, phases.valueToDouble(1));
    EXPECT_EQ(nt_phangle, m.phangle_f(vhSymbolicValue("z", false, {})).functionID());
    EXPECT_TRUE(m.phangle_f(str("1")).isNull());
}

TEST(ValueFunctions, RowsAndElementDivision)
{
    vhMath m;
    double data[6] = {1, 2, 3, 4, 5, 6};
    const vhValue a = vhMatrix(data, 2, 3);
    const vhValue row = m.row2Vector_f(a, vhInteger(1));
    ASSERT_TRUE(row.isRowVector());
    ASSERT_EQ(3u, row.vectorSize());
    EXPECT_EQ(5.0, row.valueToDouble(1));
    EXPECT_TRUE(m.row2Vector_f(a, vhInteger(2)).isNull());
    EXPECT_TRUE(m.row2Vector_f(a, d(0.5)).isNull());
    EXPECT_TRUE(m.row2Vector_f(d(1.0), vhInteger(0)).isNull());
    double div[6] = {1, 4, 0, 2, 5, 3};
    const vhValue q = m.matrixSDiv_f(a, vhMatrix(div, 2, 3));
    ASSERT_EQ(tagMatrix, q.valueType());
    EXPECT_EQ(1.0, q.valueToDouble(0, 0));
    EXPECT_EQ(0.5, q.valueToDouble(0, 1));
    EXPECT_TRUE(std::isnan(q.valueToDouble(0, 2)));
    EXPECT_EQ(2.0, q.valueToDouble(1, 2));
    // Element arrays divide each pair with the value operators.
    const vhValue p = m.matrixSDiv_f(vhVector(std::vector<vhValue>{vhComplex(0.0, 2.0), d(3.0)}, true),
                                     vhVector(std::vector<vhValue>{d(2.0), d(0.0)}, true));
    ASSERT_EQ(2u, p.vectorSize());
    EXPECT_EQ(1.0, p.value(0).complexIm());
    EXPECT_TRUE(p.value(1).isNull());
    EXPECT_TRUE(m.matrixSDiv_f(a, vhMatrix(vhDouble(1.0), 3, 2)).isNull());
    EXPECT_TRUE(m.matrixSDiv_f(a, d(2.0)).isNull());
}

TEST(ValueFunctions, ClockAndDispatch)
{
    vhMath m(14, angleDegrees);
    const std::string now = m.timeNow_f().toString();
    ASSERT_EQ(19u, now.size());
    EXPECT_EQ('-', now[4]);
    EXPECT_EQ(':', now[13]);
    EXPECT_EQ(19u, callFunction(&m, nt_timeNow, {}).toString().size());
    EXPECT_EQ(4.0, callFunction(&m, nt_complexImg, {vhComplex(3.0, 4.0)}).toDouble());
    EXPECT_TRUE(callFunction(&m, nt_complex, {d(1.0), d(2.0)}).isComplex());
    EXPECT_EQ(180.0, callFunction(&m, nt_phangle, {d(-3.0)}).toDouble());
    // Rows without a case of their own are reached by member only.
    EXPECT_TRUE(callFunction(&m, nt_strlen, {str("abc")}).isNull());
}
