// Text forms of values: number formats and the trailing-zero rule, complex
// numbers, arrays with their summaries, symbolic terms, fractions, intervals,
// solution sets, handles and undefined values.

#include <gtest/gtest.h>

#include <cstdio>
#include <limits>
#include <sstream>

#include "frame/node_type.h"
#include "frame/switches.h"
#include "value/value.h"

using namespace VarnholtMath::ValueTypes;

namespace {

const double kInf = std::numeric_limits<double>::infinity();

vhValue str(const std::string& s) { return vhSymbolicValue(s, true, {}); }
vhValue sym(const std::string& s) { return vhSymbolicValue(s, false, {}); }

vhValue withPlaces(vhValue v, unsigned int places)
{
    v.setNumberOfDecimalPlaces(places);
    return v;
}

std::string text(double x, unsigned int places = 14) { return withPlaces(vhDouble(x), places).toString(); }

// "%e" is the C library's; the expected text comes from the same library.
std::string exponentForm(double x)
{
    char buffer[64];
    std::snprintf(buffer, sizeof buffer, "%e", x);
    return buffer;
}

// Records that other layers' arithmetic builds, made by hand so that their
// text is checked on its own.
struct Record : vhValue {
    explicit Record(const vhValue& v) : vhValue(v) {}
    static vhValue sum(const std::vector<vhValue>& terms)
    {
        Record r{vhExpression()};
        r.m_expressionValues = terms;
        return r;
    }
    static vhValue equation(const vhValue& left, const std::string& relation, const vhValue& right)
    {
        Record r{vhEquation()};
        r.m_undefined = false;
        r.m_numerator = new vhValue(left);
        r.m_denominator = new vhValue(right);
        r.m_equationType = relation;
        return r;
    }
    static vhValue retagged(const vhValue& v, int tag)
    {
        Record r(v);
        r.m_valueType = tag;
        return r;
    }
};

// The atom x with a coefficient and an exponent.
vhValue term(const vhValue& coefficient, const std::string& name, const vhValue& exponent)
{
    vhValue x = sym(name);
    *x.multiplier() = coefficient;
    *x.exponent() = exponent;
    return x;
}

std::vector<double> counting(unsigned int n)
{
    std::vector<double> v(n);
    for (unsigned int i = 0; i < n; ++i)
        v[i] = i;
    return v;
}

} // namespace

TEST(TextForms, NumberFormatsAndTrailingZeros)
{
    EXPECT_EQ(text(0.1), "0.1");
    EXPECT_EQ(text(5.0), "5");
    EXPECT_EQ(text(-5.0), "-5");
    EXPECT_EQ(text(-0.75), "-0.75");
    EXPECT_EQ(text(1.0 / 3.0), "0.33333333333333");
    EXPECT_EQ(text(1.0 / 3.0, 4), "0.3333");
    // Below 1e-14 and above 1e14 in magnitude the exponent form is used.
    EXPECT_EQ(text(1e-20), exponentForm(1e-20));
    EXPECT_EQ(text(9e-15), exponentForm(9e-15));
    EXPECT_EQ(text(1e-14), "0.00000000000001");
    EXPECT_EQ(text(1e15 + 0.5), exponentForm(1e15 + 0.5));
    EXPECT_EQ(text(99999999999999.5), "99999999999999.5");
    EXPECT_EQ(text(kInf), exponentForm(kInf));
    // A whole number beyond 32 bits is not an integer: its zeros go, the
    // point stays.
    EXPECT_EQ(text(3e10), "30000000000.");
    EXPECT_EQ(text(1e14), "100000000000000.");
    EXPECT_EQ(text(2.0000001, 3), "2.");
    EXPECT_EQ(text(120.4, 0), "12");
    EXPECT_EQ(text(0.4, 0), "0");
    EXPECT_EQ(text(0.0000001, 3), "0.");
    EXPECT_EQ(text(2.5, 0), "2");

    EXPECT_EQ(vhInteger(-42).toString(), "-42");
    EXPECT_EQ(vhInteger(2147483647).toStringAll(), "2147483647");
    EXPECT_EQ(vhBoolean(true).toString(), "true");
    EXPECT_EQ(vhBoolean(false).toStringAll(), "false");
    vhValue target = vhInteger(1);
    EXPECT_EQ(vhInteger(&target).toString().rfind("pointer ", 0), 0u);
}

TEST(TextForms, ComplexNumbers)
{
    EXPECT_EQ(vhComplex(1, -2).toString(), "1-2i");
    EXPECT_EQ(vhComplex(1, 2).toString(), "1+2i");
    EXPECT_EQ(vhComplex(0.5, 0).toStringAll(), "0.5+0i");
    EXPECT_EQ(vhComplex(0, -0.0).toString(), "0+0i");
    EXPECT_EQ(vhComplex(-1.5, 1e-20).toString(), "-1.5+" + exponentForm(1e-20) + "i");
    // The parts print with full precision whatever the value's own places.
    EXPECT_EQ(withPlaces(vhComplex(1.0 / 3.0, 0.25), 2).toString(), "0.33333333333333+0.25i");
}

TEST(TextForms, UndefinedAndNonScalarShortForms)
{
    EXPECT_EQ(vhValue().toString(), "undefined");
    EXPECT_EQ(vhValue().toStringAll(), "");
    EXPECT_EQ(vhDouble(std::numeric_limits<double>::quiet_NaN()).toString(), "undefined");
    EXPECT_EQ(vhExpression().toString(), "undefined");
    EXPECT_EQ(vhExpression().toStringAll(), "0");
    EXPECT_EQ(vhMatrix().toStringAll(), "");
    EXPECT_EQ(vhFraction().toStringAll(), "");
    EXPECT_EQ(vhObject().toStringAll(), "");
    EXPECT_EQ(vhVector(3, true, true, false).toString(), "");
    EXPECT_EQ(vhSymbolicFunction(nt_sin, {sym("x")}).toString(), "");
    EXPECT_EQ(str("ab").toString(), "ab");
    EXPECT_EQ(sym("x").toString(), "x");
    EXPECT_EQ(vhInfiniteSolution(0, 1).toString(), "");

    std::ostringstream stream;
    vhValue().print(false, stream);
    EXPECT_EQ(stream.str(), "undefined ");
    std::ostringstream untouched;
    testing::internal::CaptureStdout();
    vhValue(vhDouble(2.5)).print(true, untouched);
    EXPECT_EQ(testing::internal::GetCapturedStdout(), "2.5");
    EXPECT_EQ(untouched.str(), "");
}

TEST(TextForms, Vectors)
{
    double data[] = {1, 2.5, 3};
    EXPECT_EQ(vhVector(data, 2, false).toStringAll(), "[1]\n[2.5]");
    EXPECT_EQ(vhVector(data, 3, true).toStringAll(), "[1, 2.5, 3]");
    EXPECT_EQ(vhVector(data, 1, false).toStringAll(), "[1]");
    EXPECT_EQ(vhVector().toStringAll(), "[]");
    EXPECT_EQ(withPlaces(vhVector(std::vector<vhValue>{vhDouble(1.0 / 3.0)}, true), 2).toStringAll(), "[0.33]");

    vhValue complexRow = vhVector(data, 2, true);
    complexRow.setValue(vhComplex(3, -1), 1);
    // Complex storage reads every element as a complex number.
    EXPECT_EQ(complexRow.toStringAll(), "[1+0i, 3-1i]");
    const vhValue mixed = vhVector(std::vector<vhValue>{str("a"), sym("x"), vhVector(data, 2, true)}, false);
    EXPECT_EQ(mixed.toStringAll(), "[\"a\"]\n[x]\n[[1, 2.5]]");

    // Up to 200 elements are written out, from 201 on a summary.
    std::vector<double> many = counting(201);
    const std::string expanded = vhVector(many.data(), 200, true).toStringAll();
    EXPECT_EQ(expanded.substr(0, 7), "[0, 1, ");
    EXPECT_EQ(expanded.substr(expanded.size() - 6), ", 199]");
    EXPECT_EQ(vhVector(many.data(), 201, true).toStringAll(), "201 elements vector");
    EXPECT_EQ(vhVector(many.data(), 201, false).toStringAll(), "201 elements vector");

    std::vector<unsigned int> pixels(201, 7u);
    const vhValue imageRow = Record::retagged(vhMatrix(pixels.data(), 1, 201), tagVector);
    EXPECT_EQ(imageRow.toStringAll(), "201 pixels image");
    EXPECT_EQ(Record::retagged(vhMatrix(pixels.data(), 1, 3), tagVector).toStringAll(), "[7, 7, 7]");
}

TEST(TextForms, MatricesAndImages)
{
    double data[] = {1, 2, 3, 4.5, 5, 6};
    EXPECT_EQ(vhMatrix(data, 2, 3).toStringAll(), "[1, 2, 3]\n[4.5, 5, 6]");
    EXPECT_EQ(vhMatrix(data, 3, 1).toStringAll(), "[1]\n[2]\n[3]");
    EXPECT_EQ(withPlaces(vhMatrix(vhDouble(2.0 / 3.0), 1, 2), 3).toStringAll(), "[0.667, 0.667]");
    vhValue symbolic = vhMatrix(data, 2, 1);
    symbolic.setValue(sym("y"), 1);
    EXPECT_EQ(symbolic.toStringAll(), "[1]\n[y]");

    std::vector<double> many = counting(225);
    EXPECT_EQ(vhMatrix(many.data(), 15, 15).toStringAll(), "15 x 15 elements matrix");
    EXPECT_EQ(vhMatrix(many.data(), 10, 20).toStringAll().substr(0, 4), "[0, ");
    unsigned int pixels[] = {1, 2, 3, 4};
    EXPECT_EQ(vhMatrix(pixels, 2, 2).toStringAll(), "[1, 2]\n[3, 4]");
    std::vector<unsigned int> picture(400, 0u);
    EXPECT_EQ(vhMatrix(picture.data(), 20, 20).toStringAll(), "20 x 20 pixels image");
}

TEST(TextForms, StructuredValues)
{
    // Fractions that don't reduce print their parts in brackets.
    setFractionsOnPublic(false);
    EXPECT_EQ(vhFraction(vhInteger(1), sym("x")).toStringAll(), "(1)/(x)");
    EXPECT_EQ(vhSymbolicFunction(nt_sin, {vhFraction(vhInteger(1), sym("x"))}).toStringAll(), "sin((1)/(x))");
    setFractionsOnPublic(true);
    EXPECT_EQ(Record::equation(sym("x"), "=", vhInteger(2)).toStringAll(), "x=2");
    EXPECT_EQ(Record::sum({vhInteger(1), vhInteger(-2), vhDouble(0.5)}).toStringAll(), "1-2+0.5");
    EXPECT_EQ(Record::sum({vhInteger(-1), sym("y")}).toStringAll(), "-1+y");

    EXPECT_EQ(vhInterval(0, true, 1, false).toStringAll(), "[0,1)");
    EXPECT_EQ(vhInterval(0.5, false, kInf, true).toStringAll(), "(0.5," + exponentForm(kInf) + "]");
    EXPECT_EQ(vhInterval().toStringAll(), "");

    EXPECT_EQ(vhInfiniteSolution(0, 3.141592653589793).toStringAll(), "{ 0 +- k * Pi }");
    EXPECT_EQ(vhInfiniteSolution(1.5, 2.25).toStringAll(), "{ 1.5 +- k * 2.25 }");
    // Six places for the first solution, three for the step.
    EXPECT_EQ(vhInfiniteSolution(1.0 / 3.0, 6.283185307179586).toStringAll(), "{ 0.333333 +- k * 6.283 }");
    EXPECT_EQ(vhInfiniteSolution(-0.5, 3.14159).toStringAll(), "{ -0.5 +- k * 3.142 }");

    EXPECT_EQ(vhObject("Thing", nullptr).toStringAll(), "object of type Thing");
    EXPECT_EQ(vhValue("Thing", nullptr).toStringAll(), "object of type Thing");
    EXPECT_EQ(vhChannel("Serial", nullptr).toStringAll(), "Serial channel");
    EXPECT_EQ(vhWidget("Button", nullptr).toStringAll(), "Button");
    EXPECT_EQ(vhFile("Text", nullptr).toStringAll(), "Text file");
    EXPECT_EQ(vhFile().toStringAll(), "");
}

TEST(TextForms, SymbolicAtomsFunctionsAndStrings)
{
    EXPECT_EQ(sym("x").toStringAll(), "x");
    EXPECT_EQ(str("ab").toStringAll(), "\"ab\"");
    EXPECT_EQ(str("").toStringAll(), "\"\"");
    EXPECT_EQ(Record::retagged(sym("m"), tagUnit).toStringAll(), "m");
    EXPECT_EQ(term(vhDouble(1), "x", vhInteger(2)).toStringAll(), "x^2");
    EXPECT_EQ(term(vhDouble(1), "x", vhDouble(0.5)).toStringAll(), "x^0.5");
    EXPECT_EQ(vhSymbolicFunction(nt_sin, {sym("x")}).toStringAll(), "sin(x)");
    EXPECT_EQ(vhSymbolicFunction(nt_pow, {sym("x"), vhInteger(3)}).toStringAll(), "pow(x, 3)^3");
    // A leading plus and a trailing blank never reach the text.
    EXPECT_EQ(sym("+a ").toStringAll(), "a");
}

TEST(TextForms, CoefficientsAndFactorsOfTerms)
{
    // These read the factor list of the term, coefficient first.
    EXPECT_EQ(term(vhDouble(-1), "x", vhInteger(1)).toStringAll(), "-x");
    EXPECT_EQ(term(vhInteger(0), "x", vhInteger(1)).toStringAll(), "0");
    EXPECT_EQ(term(vhDouble(3), "x", vhInteger(2)).toStringAll(), "3 x^2");
    EXPECT_EQ(term(vhDouble(-2.5), "x", vhInteger(1)).toStringAll(), "-2.5 x");
    EXPECT_EQ(term(vhComplex(1, 2), "x", vhInteger(1)).toStringAll(), "(1+2i) x");
    EXPECT_EQ(withPlaces(term(vhDouble(1.0 / 3.0), "x", vhInteger(1)), 3).toStringAll(), "0.333 x");
    // 3*x*y is the atom x whose multiplier is the atom y with coefficient 3.
    vhValue xy = sym("x");
    *xy.multiplier() = term(vhDouble(3), "y", vhInteger(1));
    EXPECT_EQ(xy.toStringAll(), "3 y x");
    EXPECT_EQ(Record::sum({vhInteger(1), term(vhDouble(-1), "x", vhInteger(1))}).toStringAll(), "1-x");
    vhValue minusSin = vhSymbolicFunction(nt_sin, {sym("x")});
    *minusSin.multiplier() = vhInteger(-1);
    EXPECT_EQ(minusSin.toStringAll(), "-sin(x)");

    // The factor form names the symbolic factors only.
    EXPECT_EQ(term(vhDouble(3), "x", vhInteger(2)).toStringEx(), "x");
    vhValue units = Record::retagged(sym("m"), tagUnit);
    *units.multiplier() = Record::retagged(sym("s"), tagUnit);
    EXPECT_EQ(units.toStringEx(), "s m");
    EXPECT_EQ(vhValue().toStringEx(), "undefined");
    EXPECT_EQ(vhDouble(2.5).toStringEx(), "2.5");
}
