// Determinant, cofactors, adjoint, inverse and the matrix product against
// reference values computed independently (data/matrix_algebra_reference.py).

#include <gtest/gtest.h>

#include <cfloat>
#include <cmath>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

#include "frame/switches.h"
#include "value/value.h"

using namespace VarnholtMath::ValueTypes;

namespace {

struct Case {
    std::string kind;
    std::vector<unsigned> sizes;
    std::vector<double> a, b, expected;
};

std::vector<Case> loadCases()
{
    std::ifstream in(VH_TEST_DATA_DIR "/value/data/matrix_algebra_reference.txt");
    std::vector<Case> cases;
    std::string line;
    while (std::getline(in, line)) {
        std::istringstream words(line);
        Case c;
        words >> c.kind;
        const unsigned shapes = c.kind == "prod" ? 3 : 1;
        c.sizes.resize(shapes);
        for (unsigned& s : c.sizes)
            words >> s;
        const unsigned n = c.sizes[0];
        const std::size_t countA = c.kind == "prod" ? std::size_t(n) * c.sizes[1] : std::size_t(n) * n;
        const std::size_t countB = c.kind == "prod" ? std::size_t(c.sizes[1]) * c.sizes[2] : 0;
        std::string word;
        std::vector<double> all;
        while (words >> word)
            all.push_back(std::strtod(word.c_str(), nullptr));
        c.a.assign(all.begin(), all.begin() + countA);
        c.b.assign(all.begin() + countA, all.begin() + countA + countB);
        c.expected.assign(all.begin() + countA + countB, all.end());
        cases.push_back(c);
    }
    return cases;
}

std::vector<double> minorOf(const std::vector<double>& a, unsigned n, unsigned i, unsigned j)
{
    std::vector<double> m;
    for (unsigned r = 0; r < n; ++r)
        for (unsigned c = 0; c < n; ++c)
            if (r != i && c != j)
                m.push_back(a[r * n + c]);
    return m;
}

// The permanent of |a|: the sum of the magnitudes of all terms of the
// determinant, which bounds the rounding error of any evaluation order.
double permanentOfMagnitudes(const std::vector<double>& a, unsigned n)
{
    if (n == 1)
        return std::fabs(a[0]);
    double sum = 0;
    for (unsigned j = 0; j < n; ++j)
        sum += std::fabs(a[j]) * permanentOfMagnitudes(minorOf(a, n, 0, j), n - 1);
    return sum;
}

// Each term passes fewer than n * n roundings.
double determinantErrorBound(const std::vector<double>& a, unsigned n)
{
    return n * n * DBL_EPSILON * permanentOfMagnitudes(a, n);
}

int g_events = 0;
void countEvent() { ++g_events; }

} // namespace

TEST(MatrixAlgebra, DeterminantsMatchTheReference)
{
    const std::vector<Case> cases = loadCases();
    ASSERT_FALSE(cases.empty());
    int checked = 0;
    for (const Case& c : cases) {
        const unsigned n = c.sizes[0];
        std::vector<double> a = c.a;
        if (c.kind == "det") {
            const vhValue d = vhMatrix(a.data(), n, n).determinant();
            ASSERT_TRUE(d.isDouble()) << n;
            EXPECT_NEAR(d.toDouble(), c.expected[0], determinantErrorBound(a, n)) << n;
            ++checked;
        } else if (c.kind == "idet") {
            // Whole elements multiply and add as integers: the result is exact.
            const vhValue d = vhMatrix(a.data(), n, n).determinant();
            EXPECT_EQ(d.valueType(), tagInteger) << n;
            EXPECT_EQ(d.toDouble(), c.expected[0]) << n;
            ++checked;
        } else if (c.kind == "icof") {
            const vhValue cofactors = vhMatrix(a.data(), n, n).coFactor();
            ASSERT_TRUE(cofactors.isNumericVectorOrMatrix()) << n;
            const double* got = cofactors.numericValues();
            EXPECT_EQ(std::vector<double>(got, got + n * n), c.expected) << n;
            const vhValue adjoint = vhMatrix(a.data(), n, n).adjoint();
            for (unsigned i = 0; i < n; ++i)
                for (unsigned j = 0; j < n; ++j)
                    EXPECT_EQ(adjoint.valueToDouble(j, i), c.expected[i * n + j]);
            ++checked;
        }
    }
    EXPECT_EQ(checked, 19);
}

TEST(MatrixAlgebra, InversesAndProductsMatchTheReference)
{
    int checked = 0;
    for (const Case& c : loadCases()) {
        std::vector<double> a = c.a, b = c.b;
        if (c.kind == "inv") {
            const unsigned n = c.sizes[0];
            const vhValue inverse = vhMatrix(a.data(), n, n).inverse();
            ASSERT_TRUE(inverse.isNumericVectorOrMatrix()) << n;
            // The quotient of a cofactor by the determinant, each with its
            // own rounding bound.
            const double d = vhMatrix(a.data(), n, n).determinant().toDouble();
            const double dError = determinantErrorBound(a, n);
            for (unsigned i = 0; i < n; ++i)
                for (unsigned j = 0; j < n; ++j) {
                    const double expected = c.expected[i * n + j];
                    const double cError = n == 1 ? 0 : determinantErrorBound(minorOf(a, n, j, i), n - 1);
                    const double bound = (cError + std::fabs(expected) * dError) / std::fabs(d) * 1.01 +
                                         2 * DBL_EPSILON * std::fabs(expected);
                    EXPECT_NEAR(inverse.valueToDouble(i, j), expected, bound) << n << " " << i << " " << j;
                }
            ++checked;
        } else if (c.kind == "prod") {
            const unsigned m = c.sizes[0], p = c.sizes[1], q = c.sizes[2];
            const vhValue product = vhMatrix(a.data(), m, p) * vhMatrix(b.data(), p, q);
            ASSERT_EQ(product.vectorSize(), m * q);
            for (unsigned i = 0; i < m; ++i)
                for (unsigned j = 0; j < q; ++j) {
                    double magnitude = 0;
                    for (unsigned k = 0; k < p; ++k)
                        magnitude += std::fabs(a[i * p + k] * b[k * q + j]);
                    EXPECT_NEAR(product.valueToDouble(i, j), c.expected[i * q + j], (p + 1) * DBL_EPSILON * magnitude);
                }
            ++checked;
        }
    }
    EXPECT_EQ(checked, 9);
}

TEST(MatrixAlgebra, SmallCasesNamesAndSingularMatrices)
{
    double one[] = {2.5};
    vhMatrix single(one, 1, 1);
    EXPECT_EQ(single.determinant().toDouble(), 2.5);
    EXPECT_EQ(single.coFactor().value(0).valueType(), tagInteger);
    EXPECT_EQ(single.coFactor().value(0).toInt(), 1);
    EXPECT_EQ(single.inverse().value(0).toDouble(), 0.4);

    // a d - b c with plain integers, and its cofactors [[d, -c], [-b, a]].
    double values[] = {1, 2, 3, 4};
    vhMatrix m(values, 2, 2);
    const vhValue names[] = {vhSymbolicValue("p", true, {}), vhSymbolicValue("q", true, {})};
    ASSERT_TRUE(m.setColumnNames({names[0], names[1]}));
    EXPECT_EQ(m.determinant().valueType(), tagInteger);
    EXPECT_EQ(m.determinant().toInt(), -2);
    const vhValue cofactors = m.coFactor();
    EXPECT_EQ(cofactors.valueToDouble(0, 1), -3.0);
    EXPECT_EQ(cofactors.valueToDouble(1, 0), -2.0);
    EXPECT_EQ(cofactors.columnNamesSize(), 2u);
    EXPECT_EQ(m.adjoint().valueToDouble(0, 1), -2.0);
    EXPECT_EQ(m.adjoint().columnNamesSize(), 2u);
    const vhValue inverse = m.inverse();
    EXPECT_EQ(inverse.valueToDouble(0, 0), -2.0);
    EXPECT_EQ(inverse.valueToDouble(0, 1), 1.0);
    EXPECT_EQ(inverse.valueToDouble(1, 0), 1.5);
    EXPECT_EQ(inverse.valueToDouble(1, 1), -0.5);
    EXPECT_EQ(inverse.columnNamesSize(), 2u);
    EXPECT_EQ(vhExpression(vhValue(m)).inverseMatrix().valueToDouble(1, 0), 1.5);
    EXPECT_TRUE(vhDouble(2).inverseMatrix().isNull());

    // Singular, non-square, undefined and foreign operands have none.
    double singular[] = {1, 2, 2, 4};
    EXPECT_EQ(vhMatrix(singular, 2, 2).determinant().toInt(), 0);
    EXPECT_TRUE(vhMatrix(singular, 2, 2).inverse().isNull());
    double zero[] = {0};
    EXPECT_TRUE(vhMatrix(zero, 1, 1).inverse().isNull());
    EXPECT_TRUE(vhMatrix(values, 1, 2).determinant().isNull());
    EXPECT_TRUE(vhMatrix(values, 1, 2).coFactor().isNull());
    EXPECT_TRUE(vhMatrix(values, 1, 2).adjoint().isNull());
    EXPECT_TRUE(vhMatrix().determinant().isNull());
    EXPECT_TRUE(vhMatrix(vhVector(values, 4, false)).determinant().isNull());
    double withNaN[] = {1, NAN, 3, 4};
    EXPECT_TRUE(vhMatrix(withNaN, 2, 2).determinant().isNull());
    EXPECT_TRUE(vhMatrix(withNaN, 2, 2).inverse().isNull());

    // Complex elements take the complex operators.
    vhMatrix z(values, 2, 2);
    z.setValue(vhComplex(0, 1), 0u);
    const vhValue dz = z.determinant();
    EXPECT_EQ(dz.complexRe(), -6.0);
    EXPECT_EQ(dz.complexIm(), 4.0);
}

TEST(MatrixAlgebra, LargeExpansionsLetTheHostProcessEvents)
{
    std::vector<double> identity(49, 0.0);
    for (int i = 0; i < 7; ++i)
        identity[i * 8] = 1;
    setAppProcessEventsCallbackGlobal(countEvent);
    g_events = 0;
    std::vector<double> five(25, 0.0);
    for (int i = 0; i < 5; ++i)
        five[i * 6] = 2;
    EXPECT_EQ(vhMatrix(five.data(), 5, 5).determinant().toInt(), 32);
    EXPECT_EQ(g_events, 0);
    EXPECT_EQ(vhMatrix(identity.data(), 7, 7).determinant().toInt(), 1);
    // Once after the expansion of the 7 x 7 matrix and once after each of its
    // seven 6 x 6 minors.
    EXPECT_EQ(g_events, 8);
    setAppProcessEventsCallbackGlobal(nullptr);
}

// Needs the sums of the expression algebra.
TEST(MatrixAlgebra, SymbolicDeterminantStaysSymbolic)
{
    const vhValue x = vhSymbolicValue("x", false, {});
    vhMatrix m(2, 2, false, false, false);
    m.setValue(x, 0u);
    m.setValue(vhInteger(1), 1u);
    m.setValue(vhInteger(2), 2u);
    m.setValue(vhInteger(3), 3u);
    const vhValue d = m.determinant();
    EXPECT_FALSE(d.isNull());
    EXPECT_TRUE(d.isSymbolic());
    const vhValue dot = vhVector(std::vector<vhValue>{x, vhInteger(1)}, true) * vhVector(std::vector<vhValue>{x, vhInteger(2)}, false);
    EXPECT_FALSE(dot.isNull());
    EXPECT_TRUE(dot.isSymbolic());
}
