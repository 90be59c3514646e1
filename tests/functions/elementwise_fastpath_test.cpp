// A numeric real array takes a fast path over its raw doubles. Its result must
// be the very one of the element path - every element mapped through a value
// and stored back with setValue - bit for bit, with the same storage.

#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <cstring>
#include <functional>
#include <limits>
#include <random>
#include <string>
#include <vector>

#include "frame/math.h"
#include "function_tables.h"

using namespace VarnholtMath::ValueTypes;
using namespace elementwise_tests;

namespace {

const double kPi = 3.141592653589793;
const double kInf = std::numeric_limits<double>::infinity();
const double kNaN = std::numeric_limits<double>::quiet_NaN();

// Random numbers of several scales, with the points where the functions
// change their branch: multiples of pi and pi/2 and of 90 and 100 (right
// angles in degrees and gradians), the domain edges -1, 0, 1, signed zeros,
// infinities, NaN, whole numbers and their halves.
std::vector<double> testPoints()
{
    std::vector<double> v;
    for (int k = -8; k <= 8; ++k) {
        v.push_back(k * kPi);
        v.push_back(k * kPi / 2);
        v.push_back(k * 90.0);
        v.push_back(k * 100.0);
        v.push_back(k * 0.5);
    }
    const double edges[] = {-1.0, 1.0, 0.0, -0.0, kInf, -kInf, kNaN, 1e-300, -1e-300, 1e300, -1e300,
                            -0.36787944117144233, 0.9999999999999999, -1.0000000000000002, 1e-16, 710.0, -710.0,
                            2147483647.0, -2147483648.0, 3e10, 4.9e-324, 170.5, 13.0, 35.0};
    v.insert(v.end(), std::begin(edges), std::end(edges));
    std::mt19937_64 random(20240611);
    std::uniform_real_distribution<double> wide(-1000.0, 1000.0), narrow(-3.0, 3.0), tiny(-1e-6, 1e-6);
    std::uniform_int_distribution<int> whole(-40, 40);
    for (int i = 0; i < 120; ++i) {
        v.push_back(wide(random));
        v.push_back(narrow(random));
        v.push_back(tiny(random));
        v.push_back(whole(random));
    }
    return v;
}

vhValue numericVector(const std::vector<double>& d, bool row)
{
    return vhVector(const_cast<double*>(d.data()), static_cast<unsigned>(d.size()), row);
}

// The element path, written out: a result of the argument's shape and
// storage, each element's result stored with setValue.
vhValue elementPath(const vhValue& x, const std::function<vhValue(const vhValue&)>& f)
{
    vhValue r;
    if (x.valueType() == tagMatrix)
        r = vhMatrix(x.matrixRows(), x.matrixColumns(), true, false, false);
    else
        r = vhVector(x.vectorSize(), x.isRowVector(), true, false);
    for (unsigned i = 0; i < x.vectorSize(); ++i)
        r.setValue(f(x.value(i)), i);
    // Results that left the reals are held one by one.
    if (r.numericImValues())
        r = r.toValueVectorOrMatrix();
    return r;
}

bool sameBits(double a, double b) { return std::memcmp(&a, &b, sizeof a) == 0; }

void expectSameArray(const vhValue& expected, const vhValue& actual, const std::string& what)
{
    ASSERT_EQ(expected.valueType(), actual.valueType()) << what;
    ASSERT_EQ(expected.matrixRows(), actual.matrixRows()) << what;
    ASSERT_EQ(expected.matrixColumns(), actual.matrixColumns()) << what;
    ASSERT_EQ(expected.vectorSize(), actual.vectorSize()) << what;
    ASSERT_EQ(expected.numericValues() != nullptr, actual.numericValues() != nullptr) << what << ": storage";
    ASSERT_EQ(expected.numericImValues() != nullptr, actual.numericImValues() != nullptr) << what << ": complex";
    const unsigned n = expected.vectorSize();
    if (expected.numericValues()) {
        for (unsigned i = 0; i < n; ++i) {
            EXPECT_TRUE(sameBits(expected.numericValues()[i], actual.numericValues()[i]))
                << what << " element " << i << ": " << expected.numericValues()[i] << " vs "
                << actual.numericValues()[i];
            if (expected.numericImValues())
                EXPECT_TRUE(sameBits(expected.numericImValues()[i], actual.numericImValues()[i]))
                    << what << " imaginary element " << i;
        }
        return;
    }
    for (unsigned i = 0; i < n; ++i) {
        const vhValue e = expected.value(i), a = actual.value(i);
        EXPECT_EQ(e.valueType(), a.valueType()) << what << " element " << i;
        EXPECT_EQ(e.isNull(), a.isNull()) << what << " element " << i;
        EXPECT_EQ(e.toString(), a.toString()) << what << " element " << i;
    }
}

} // namespace

TEST(ElementwiseFastPath, EveryOneArgumentFunctionMatchesTheElementPath)
{
    const std::vector<double> points = testPoints();
    const vhValue column = numericVector(points, false), row = numericVector(points, true);
    // The same numbers as a matrix of 4 columns.
    std::vector<double> square(points.begin(), points.begin() + (points.size() / 4) * 4);
    const vhValue matrix = vhMatrix(square.data(), static_cast<unsigned>(square.size() / 4), 4);

    // The trigonometric functions read the angle unit and the result
    // conversion; the others are run once.
    const std::vector<Unary>& members = unaryMembers();
    for (AngleUnit unit : {angleRadians, angleDegrees, angleGradians}) {
        for (unsigned convert : {0u, 1u}) {
            for (std::size_t k = 0; k < members.size(); ++k) {
                if (k >= kTrigonometricMembers && (unit != angleRadians || convert != 0))
                    continue;
                const UnaryMember f = members[k].f;
                for (const vhValue* x : {&column, &row, &matrix}) {
                    const std::string what = functionName(members[k].id) + " unit " + std::to_string(unit) +
                                             " convert " + std::to_string(convert) + " tag " +
                                             std::to_string(x->valueType());
                    vhMath fast, slow;
                    fast.setAngleUnit(unit);
                    slow.setAngleUnit(unit);
                    fast.setConvertResultsToRadians(convert);
                    slow.setConvertResultsToRadians(convert);
                    const vhValue expected = elementPath(*x, [&](const vhValue& e) { return (slow.*f)(e); });
                    const vhValue actual = (fast.*f)(*x);
                    expectSameArray(expected, actual, what);
                    // tan and cot clear the setting on their first element.
                    EXPECT_EQ(slow.convertResultsToRadians(), fast.convertResultsToRadians()) << what;
                }
            }
        }
    }
}

TEST(ElementwiseFastPath, PowersAndRootsOfArraysMatchTheElementPath)
{
    const std::vector<double> points = testPoints();
    const vhValue x = numericVector(points, false);
    for (bool limits : {false, true}) {
        vhMath math;
        math.setLimitsRulesOn(limits);
        for (double e : {2.0, 3.0, -1.0, -2.0, 0.0, 0.5, 1.0 / 3.0, -0.25, 7.5, 40.0, -41.0}) {
            const vhValue y = vhDouble(e);
            expectSameArray(elementPath(x, [&](const vhValue& v) { return math.pow_f(v, y); }), math.pow_f(x, y),
                            "pow(x, " + std::to_string(e) + ")");
            // A real base and an array of exponents.
            expectSameArray(elementPath(x, [&](const vhValue& v) { return math.pow_f(y, v); }), math.pow_f(y, x),
                            "pow(" + std::to_string(e) + ", x)");
        }
        for (int n : {2, 3, -2, -3, 1, 4, 5}) {
            const vhValue k = vhInteger(n);
            expectSameArray(elementPath(x, [&](const vhValue& v) { return math.root_f(v, k); }), math.root_f(x, k),
                            "root(x, " + std::to_string(n) + ")");
        }
    }
    setLimitsRulesOnPublic(false);
}

TEST(ElementwiseFastPath, ElementStorageAndComplexArraysKeepEachElementsType)
{
    vhMath math;
    // Element storage: each result keeps its own type.
    const vhValue elements = vhVector(std::vector<vhValue>{vhInteger(4), vhDouble(-4.0), vhInteger(0)}, false);
    const vhValue r = math.sqrt_f(elements);
    ASSERT_EQ(tagVector, r.valueType());
    EXPECT_EQ(nullptr, r.numericValues());
    EXPECT_EQ(tagDouble, r.value(0).valueType());
    EXPECT_EQ(2.0, r.value(0).toDouble());
    EXPECT_EQ(tagComplex, r.value(1).valueType());
    EXPECT_EQ(0.0, r.value(1).complexRe());
    EXPECT_EQ(2.0, r.value(1).complexIm());

    // A numeric array whose results leave the reals holds them one by one:
    // one real and one complex element.
    double data[] = {4.0, -4.0, 16.0};
    const vhValue mixed = math.sqrt_f(vhVector(data, 3, true));
    EXPECT_EQ(nullptr, mixed.numericValues());
    EXPECT_TRUE(mixed.isRowVector());
    EXPECT_TRUE(mixed.value(0).isDouble());
    EXPECT_EQ(2.0, mixed.value(0).toDouble());
    EXPECT_EQ(tagComplex, mixed.value(1).valueType());
    EXPECT_EQ(2.0, mixed.value(1).complexIm());
    EXPECT_EQ(4.0, mixed.value(2).toDouble());

    // A complex array goes element by element; log of -1 and of 1.
    vhVector complexArray(2, false, true, true);
    complexArray.setValue(vhComplex(-1.0, 0.0), 0);
    complexArray.setValue(vhComplex(1.0, 0.0), 1);
    const vhValue logs = math.log_f(complexArray);
    ASSERT_NE(nullptr, logs.numericImValues());
    EXPECT_DOUBLE_EQ(kPi, logs.numericImValues()[0]);
    EXPECT_EQ(0.0, logs.numericValues()[1]);

    // An undefined element is stored as NaN and the others are computed.
    double logData[] = {0.0, 1.0};
    const vhValue withHole = math.log_f(vhVector(logData, 2, false));
    EXPECT_TRUE(std::isnan(withHole.numericValues()[0]));
    EXPECT_EQ(0.0, withHole.numericValues()[1]);

    // A matrix stays a matrix of its shape, a 1 x n matrix too.
    double m[] = {1.0, 2.0, 3.0, 4.0};
    const vhValue squares = math.pow_f(vhMatrix(m, 2, 2), vhInteger(2));
    ASSERT_EQ(tagMatrix, squares.valueType());
    EXPECT_EQ(16.0, squares.numericValues()[3]);
    EXPECT_EQ(9.0, squares.numericValues()[2]);
    EXPECT_EQ(tagMatrix, math.exp_f(vhMatrix(m, 1, 4)).valueType());
    // The pixel words of an image map to numbers in numeric storage.
    unsigned int pixels[] = {4u, 16u};
    const vhValue roots = math.sqrt_f(vhMatrix(pixels, 1, 2));
    ASSERT_NE(nullptr, roots.numericValues());
    EXPECT_EQ(4.0, roots.numericValues()[1]);
}
