// Number bases, units, gradians and bits.

#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <limits>
#include <random>
#include <string>

#include "frame/math.h"

using namespace VarnholtMath::ValueTypes;

namespace {
vhValue str(const std::string& s) { return vhSymbolicValue(s, true, {}); }
vhValue d(double v) { return vhDouble(v); }
const double kNaN = std::numeric_limits<double>::quiet_NaN();
const double kInf = std::numeric_limits<double>::infinity();
} // namespace

TEST(Conversions, BasesOfSmallNumbers)
{
    vhMath m;
    EXPECT_EQ("0", m.Decimal2Binary_f(vhInteger(0)).toString());
    EXPECT_EQ("1101", m.Decimal2Binary_f(vhInteger(13)).toString());
    EXPECT_TRUE(m.Decimal2Binary_f(vhInteger(13)).isString());
    EXPECT_EQ("FF", m.Decimal2Hexadecimal_f(d(255.0)).toString());
    EXPECT_EQ(255, m.Hexadecimal2Decimal_f(str("ff")).toInt());
    EXPECT_EQ(tagInteger, m.Hexadecimal2Decimal_f(str("7FFFFFFF")).valueType());
    // Beyond the integers the number stays whole, in a double.
    EXPECT_EQ(4294967295.0, m.Hexadecimal2Decimal_f(str("FFFFFFFF")).toDouble());
    EXPECT_EQ(5, m.Binary2Decimal_f(str("000101")).toInt());
    EXPECT_EQ("1F", m.Binary2Hexadecimal_f(str("0011111")).toString());
    EXPECT_EQ("0", m.Binary2Hexadecimal_f(str("0000")).toString());
    EXPECT_EQ("101000001", m.Hexadecimal2Binary_f(str("0141")).toString());
    EXPECT_EQ("0", m.Hexadecimal2Binary_f(str("0")).toString());
    // Text to text has no size limit.
    const std::string ones(200, '1');
    EXPECT_EQ(std::string(50, 'F'), m.Binary2Hexadecimal_f(str(ones)).toString());
    EXPECT_EQ(ones, m.Hexadecimal2Binary_f(str(std::string(50, 'f'))).toString());
    // Arrays map element by element.
    const vhValue v = m.Decimal2Binary_f(vhVector(std::vector<vhValue>{vhInteger(2), vhInteger(-1)}, true));
    ASSERT_EQ(2u, v.vectorSize());
    EXPECT_EQ("10", v.value(0).toString());
    EXPECT_TRUE(v.value(1).isNull());
}

TEST(Conversions, BasesRoundTripUpToTwoToThe53)
{
    vhMath m;
    std::mt19937_64 gen(17);
    for (int k = 0; k < 300; ++k) {
        const std::uint64_t n = gen() >> (11 + k % 50);
        const double x = static_cast<double>(n);
        const vhValue bin = m.Decimal2Binary_f(d(x));
        const vhValue hex = m.Decimal2Hexadecimal_f(d(x));
        EXPECT_EQ(x, m.Binary2Decimal_f(bin).toDouble()) << n;
        EXPECT_EQ(x, m.Hexadecimal2Decimal_f(hex).toDouble()) << n;
        EXPECT_EQ(hex.toString(), m.Binary2Hexadecimal_f(bin).toString()) << n;
        EXPECT_EQ(bin.toString(), m.Hexadecimal2Binary_f(hex).toString()) << n;
    }
    const double top = 9007199254740992.0;
    EXPECT_EQ("20000000000000", m.Decimal2Hexadecimal_f(d(top)).toString());
    EXPECT_EQ(top, m.Hexadecimal2Decimal_f(str("20000000000000")).toDouble());
}

TEST(Conversions, MalformedNumbersAndTexts)
{
    vhMath m;
    for (double x : {-1.0, 2.5, kNaN, kInf, 9007199254740994.0})
        EXPECT_TRUE(m.Decimal2Binary_f(d(x)).isNull()) << x;
    EXPECT_TRUE(m.Decimal2Hexadecimal_f(vhComplex(1.0, 1.0)).isNull());
    EXPECT_TRUE(m.Decimal2Hexadecimal_f(str("12")).isNull());
    for (const char* s : {"", "102", " 1", "1 ", "0b1", "-1"})
        EXPECT_TRUE(m.Binary2Decimal_f(str(s)).isNull()) << s;
    for (const char* s : {"", "G", "0x1F", "1.5"})
        EXPECT_TRUE(m.Hexadecimal2Decimal_f(str(s)).isNull()) << s;
    EXPECT_TRUE(m.Hexadecimal2Decimal_f(str("20000000000001")).isNull());
    EXPECT_TRUE(m.Binary2Hexadecimal_f(str("12")).isNull());
    EXPECT_TRUE(m.Hexadecimal2Binary_f(d(10.0)).isNull());
    EXPECT_TRUE(m.Binary2Decimal_f(vhValue()).isNull());
}

TEST(Conversions, UnitsUseExactFactorsAndRoundTrip)
{
    vhMath m;
    EXPECT_EQ(0.3048, m.Foot2Meter_f(d(1.0)).toDouble());
    EXPECT_EQ(0.45359237, m.Pound2Kilo_f(d(1.0)).toDouble());
    EXPECT_EQ(4.4482216152605, m.Pound2Newton_f(d(1.0)).toDouble());
    EXPECT_DOUBLE_EQ(1.0 / 0.3048, m.Meter2Foot_f(d(1.0)).toDouble());
    EXPECT_EQ(212.0, m.Celsius2Fahrenheit_f(d(100.0)).toDouble());
    EXPECT_EQ(-40.0, m.Celsius2Fahrenheit_f(d(-40.0)).toDouble());
    EXPECT_EQ(0.0, m.Fahrenheit2Celsius_f(d(32.0)).toDouble());
    EXPECT_EQ(360.0, m.grad2deg_f(d(400.0)).toDouble());
    EXPECT_EQ(400.0, m.deg2grad_f(d(360.0)).toDouble());
    EXPECT_EQ(100.0, m.deg2grad_f(d(90.0)).toDouble());
    std::mt19937 gen(3);
    std::uniform_real_distribution<double> u(-1e4, 1e4);
    for (int k = 0; k < 100; ++k) {
        const double x = u(gen);
        EXPECT_NEAR(x, m.Newton2Pound_f(m.Pound2Newton_f(d(x))).toDouble(), 1e-12 * std::fabs(x));
        EXPECT_NEAR(x, m.Meter2Foot_f(m.Foot2Meter_f(d(x))).toDouble(), 1e-12 * std::fabs(x));
        EXPECT_NEAR(x, m.Kilo2Pound_f(m.Pound2Kilo_f(d(x))).toDouble(), 1e-12 * std::fabs(x));
        EXPECT_NEAR(x, m.Fahrenheit2Celsius_f(m.Celsius2Fahrenheit_f(d(x))).toDouble(), 1e-14 * (std::fabs(x) + 32.0));
        EXPECT_NEAR(x, m.grad2deg_f(m.deg2grad_f(d(x))).toDouble(), 1e-12 * std::fabs(x));
    }
    // Arrays keep their shape; strings, complex numbers and NaN are undefined.
    const vhValue t = m.Celsius2Fahrenheit_f(vhMatrix(vhDouble(0.0), 2, 3));
    EXPECT_EQ(tagMatrix, t.valueType());
    EXPECT_EQ(32.0, t.valueToDouble(1, 2));
    EXPECT_TRUE(m.Foot2Meter_f(str("1")).isNull());
    EXPECT_TRUE(m.Foot2Meter_f(vhComplex(1.0, 2.0)).isNull());
    EXPECT_TRUE(m.Foot2Meter_f(d(kNaN)).isNull());
    EXPECT_TRUE(m.Foot2Meter_f(vhSymbolicValue("x", false, {})).isNull());
    EXPECT_TRUE(m.deg2grad_f(vhSymbolicValue("x", false, {})).isNull());
}

TEST(Conversions, Bits)
{
    vhMath m;
    EXPECT_TRUE(m.isBitActive_f(vhInteger(5), vhInteger(2)).toBool());
    EXPECT_FALSE(m.isBitActive_f(vhInteger(5), vhInteger(1)).toBool());
    EXPECT_EQ(tagBoolean, m.isBitActive_f(vhInteger(5), vhInteger(0)).valueType());
    // Negative numbers in two's complement.
    EXPECT_TRUE(m.isBitActive_f(vhInteger(-1), vhInteger(63)).toBool());
    EXPECT_EQ(7, m.setBit_f(vhInteger(5), vhInteger(1), vhBoolean(true)).toInt());
    EXPECT_EQ(1, m.setBit_f(vhInteger(5), vhInteger(2), vhBoolean(false)).toInt());
    EXPECT_EQ(-2, m.setBit_f(vhInteger(-1), vhInteger(0), vhInteger(0)).toInt());
    EXPECT_EQ(4294967296.0, m.setBit_f(vhInteger(0), vhInteger(32), vhBoolean(true)).toDouble());
    EXPECT_TRUE(m.setBit_f(vhInteger(0), vhInteger(60), vhBoolean(true)).isNull());
    EXPECT_TRUE(m.isBitActive_f(vhInteger(1), vhInteger(64)).isNull());
    EXPECT_TRUE(m.isBitActive_f(d(1.5), vhInteger(0)).isNull());
    EXPECT_TRUE(m.setBit_f(vhInteger(1), vhInteger(0), d(2.0)).isNull());
    EXPECT_TRUE(m.setBit_f(str("1"), vhInteger(0), vhBoolean(true)).isNull());
}

TEST(Conversions, ReachedByNumber)
{
    vhMath m;
    EXPECT_EQ("1010", callFunction(&m, nt_Decimal2Binary, {vhInteger(10)}).toString());
    EXPECT_EQ(10, callFunction(&m, nt_Hexadecimal2Decimal, {str("A")}).toInt());
    EXPECT_EQ(32.0, callFunction(&m, nt_Celsius2Fahrenheit, {d(0.0)}).toDouble());
    EXPECT_EQ(180.0, callFunction(&m, nt_grad2deg, {d(200.0)}).toDouble());
    EXPECT_EQ(3, callFunction(&m, nt_setBit, {vhInteger(1), vhInteger(1), vhBoolean(true)}).toInt());
}
