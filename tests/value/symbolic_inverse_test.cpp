// Inverses of matrices of symbols: cofactors over a symbolic determinant.
// The product with the matrix cancels to the identity exactly, and at random
// numbers the inverse agrees with Eigen's.

#include <gtest/gtest.h>

#include <Eigen/Dense>
#include <random>

#include "frame/math.h"
#include "frame/switches.h"
#include "symbolic/symbolic_test_support.h"
#include "value/value.h"

using namespace VarnholtMath::ValueTypes;
using symbolic_tests::sym;

namespace {

vhValue symbolMatrix(unsigned int n, std::vector<std::string>& names)
{
    vhMatrix m(n, n, false, false, false);
    for (unsigned int i = 0; i < n * n; ++i) {
        names.push_back(std::string(1, char('a' + i)));
        m.setValue(sym(names.back()), i);
    }
    return m;
}

void checkInverse(unsigned int n)
{
    SCOPED_TRACE(n);
    std::vector<std::string> names;
    const vhValue a = symbolMatrix(n, names);
    const vhValue inverse = a.inverseMatrix();
    ASSERT_EQ(inverse.valueType(), tagMatrix);
    ASSERT_EQ(inverse.matrixRows(), n);

    // A times its inverse is the identity, element by element.
    const vhValue identity = a * inverse;
    ASSERT_EQ(identity.matrixRows(), n);
    for (unsigned int i = 0; i < n; ++i)
        for (unsigned int j = 0; j < n; ++j) {
            const vhValue e = identity.value(i, j);
            EXPECT_TRUE(e.isInteger() && e.toInt() == (i == j ? 1 : 0)) << i << "," << j << ": " << e.toStringAll();
        }

    // At random numbers it is Eigen's inverse.
    vhMath math;
    std::mt19937 random(n);
    std::uniform_real_distribution<double> element(-3.0, 3.0);
    for (int trial = 0; trial < 4; ++trial) {
        Eigen::MatrixXd m(n, n);
        std::vector<vhValue> values;
        for (unsigned int i = 0; i < n * n; ++i) {
            m(i / n, i % n) = element(random);
            values.push_back(vhDouble(m(i / n, i % n)));
        }
        const Eigen::MatrixXd expected = m.inverse();
        const vhValue numeric = inverse.replaceSymbolicValuesConst(&math, names, values, false);
        for (unsigned int i = 0; i < n; ++i)
            for (unsigned int j = 0; j < n; ++j)
                EXPECT_NEAR(numeric.value(i, j).toDouble(), expected(i, j),
                            1e-12 * std::max(1.0, std::fabs(expected(i, j))));
    }
}

} // namespace

TEST(SymbolicInverse, TwoByTwoAndThreeByThree)
{
    ASSERT_TRUE(fractionsOn());
    checkInverse(2);
    checkInverse(3);
    // A singular matrix of symbols has no inverse: x, x over 1, 1.
    vhMatrix singular(2, 2, false, false, false);
    singular.setValue(sym("x"), 0u);
    singular.setValue(sym("x"), 1u);
    singular.setValue(vhInteger(1), 2u);
    singular.setValue(vhInteger(1), 3u);
    EXPECT_TRUE(singular.inverse().isNull());
    // Division by a matrix of symbols multiplies by its inverse.
    std::vector<std::string> names;
    const vhValue a = symbolMatrix(2, names);
    const vhValue quotient = a / a;
    EXPECT_EQ(quotient.value(0, 0).toInt(), 1);
    EXPECT_EQ(quotient.value(0, 1).toInt(), 0);
}
