// The guards of the decompositions and the exact answers of the small
// cases: which matrices qualify, the order and kind of the results, and
// bad input of every kind through the catalogue's door.

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <vector>

#include "frame/math.h"
#include "frame/node_type.h"
#include "linalg/linalg_test_support.h"

using namespace VarnholtMath::ValueTypes;
using namespace linalg_tests;

namespace {

vhValue mat(unsigned rows, unsigned columns, std::vector<double> values)
{
    return vhMatrix(values.data(), rows, columns);
}

vhValue sym(const std::string& s) { return vhSymbolicValue(s, false, {}); }

} // namespace

TEST(DecompositionGuards, LuNeedsAnInvertibleMatrixWithoutRowExchanges)
{
    vhMath math;
    // Singular: no inverse, no factors, with or without pivoting.
    EXPECT_TRUE(math.decLU_f(mat(2, 2, {1, 2, 2, 4})).isNull());
    EXPECT_TRUE(math.decLUPQ_f(mat(2, 2, {1, 2, 2, 4})).isNull());
    // Singular with a zero that is reached only in the last pivot.
    EXPECT_TRUE(math.decLU_f(mat(3, 3, {1, 2, 3, 4, 5, 6, 7, 8, 9})).isNull());
    // Invertible, but the first pivot is zero: only the pivoting form works.
    const vhValue swap = mat(2, 2, {0, 1, 1, 0});
    EXPECT_TRUE(math.decLU_f(swap).isNull());
    const vhValue lupq = math.decLUPQ_f(swap);
    ASSERT_TRUE(lupq.isVector());
    EXPECT_EQ(lupq.vectorSize(), 4u);
    EXPECT_TRUE(lupq.isRowVector());
    for (unsigned i = 0; i < 4; ++i)
        EXPECT_TRUE(lupq.value(i).isMatrix());

    // Exact factors of a small real matrix come back real.
    const vhValue lu = math.decLU_f(mat(2, 2, {4, 3, 6, 3}));
    ASSERT_EQ(lu.vectorSize(), 2u);
    const vhValue L = math.decLUL_f(mat(2, 2, {4, 3, 6, 3}));
    const vhValue U = math.decLUU_f(mat(2, 2, {4, 3, 6, 3}));
    EXPECT_FALSE(L.isNumericComplexVectorOrMatrix());
    EXPECT_EQ(L.valueToDouble(1, 0), 1.5);
    EXPECT_EQ(L.valueToDouble(0, 1), 0.0);
    EXPECT_EQ(U.valueToDouble(0, 0), 4.0);
    EXPECT_EQ(U.valueToDouble(1, 1), -1.5);
    EXPECT_EQ(U.valueToDouble(1, 0), 0.0);

    // A large singular matrix takes the same answer without the cofactor
    // inverse: two equal rows.
    std::vector<double> big(100);
    for (unsigned i = 0; i < 100; ++i)
        big[i] = (i % 11) + (i / 10 == 3 ? 0.0 : 1.0 / (1 + i));
    for (unsigned j = 0; j < 10; ++j)
        big[90 + j] = big[80 + j];
    EXPECT_TRUE(math.decLUPQ_f(mat(10, 10, big)).isNull());
}

TEST(DecompositionGuards, CholeskyNeedsHermitianPositiveDefinite)
{
    vhMath math;
    const vhValue spd = mat(2, 2, {4, 2, 2, 3});
    EXPECT_TRUE(math.isHermitian_f(spd).toBool());
    EXPECT_TRUE(math.positiveDefinite_f(spd).toBool());
    const vhValue L = math.decCholesky_f(spd);
    ASSERT_TRUE(L.isMatrix());
    EXPECT_EQ(L.valueToDouble(0, 0), 2.0);
    EXPECT_EQ(L.valueToDouble(1, 0), 1.0);
    EXPECT_DOUBLE_EQ(L.valueToDouble(1, 1), std::sqrt(2.0));

    // Not symmetric, though its eigenvalues are positive.
    const vhValue skew = mat(2, 2, {2, 1, 0, 2});
    EXPECT_FALSE(math.isHermitian_f(skew).toBool());
    EXPECT_TRUE(math.decCholesky_f(skew).isNull());
    EXPECT_TRUE(math.decCholeskyLDP_f(skew).isNull());
    // Symmetric but indefinite, and symmetric but singular.
    EXPECT_FALSE(math.positiveDefinite_f(mat(2, 2, {1, 2, 2, 1})).toBool());
    EXPECT_FALSE(math.positiveDefinite_f(mat(2, 2, {1, 1, 1, 1})).toBool());
    EXPECT_TRUE(math.decCholesky_f(mat(2, 2, {1, 1, 1, 1})).isNull());
    EXPECT_TRUE(math.decCholeskyLDPD_f(mat(2, 2, {1, 2, 2, 1})).isNull());

    // Hermitian means equal to the conjugate transpose, not the transpose.
    CM h(2, 2);
    h << 2.0, std::complex<double>(0, 1), std::complex<double>(0, -1), 2.0;
    EXPECT_TRUE(math.isHermitian_f(toValue(h, true)).toBool());
    EXPECT_TRUE(math.positiveDefinite_f(toValue(h, true)).toBool());
    CM s = h;
    s(1, 0) = std::complex<double>(0, 1);
    EXPECT_FALSE(math.isHermitian_f(toValue(s, true)).toBool());
    EXPECT_FALSE(math.isHermitian_f(mat(2, 3, {1, 2, 3, 4, 5, 6})).toBool());
    EXPECT_TRUE(math.isHermitian_f(vhValue()).isNull());
    EXPECT_TRUE(math.isHermitian_f(mat(2, 2, {1, std::nan(""), std::nan(""), 1})).isNull());
    // A symbolic symmetric matrix is taken as Hermitian.
    vhMatrix symbolic(vhDouble(0.0), 2, 2);
    symbolic.setValue(sym("a"), 0, 1);
    symbolic.setValue(sym("a"), 1, 0);
    EXPECT_TRUE(math.isHermitian_f(symbolic).toBool());
    symbolic.setValue(sym("b"), 1, 0);
    EXPECT_FALSE(math.isHermitian_f(symbolic).toBool());
}

TEST(DecompositionGuards, RankCountsPivotsAboveOneInAMillion)
{
    vhMath math;
    const vhValue r = math.rank_f(mat(2, 2, {1, 0, 0, 1e-7}));
    EXPECT_EQ(r.valueType(), tagInteger);
    EXPECT_EQ(r.toInt(), 1);
    EXPECT_EQ(math.rank_f(mat(2, 2, {1, 0, 0, 1e-5})).toInt(), 2);
    EXPECT_EQ(math.rank_f(mat(2, 3, {1, 2, 3, 2, 4, 6})).toInt(), 1);
    EXPECT_EQ(math.rank_f(mat(2, 2, {0, 0, 0, 0})).toInt(), 0);
    EXPECT_EQ(math.rank_f(mat(3, 2, {1, 0, 0, 1, 1, 1})).toInt(), 2);
}

TEST(DecompositionGuards, EigenvaluesComeBackCleaned)
{
    vhMath math;
    const vhValue ones = math.characteristicPolynomialRoots_f(mat(3, 3, {1, 0, 0, 0, 1, 0, 0, 0, 1}));
    ASSERT_EQ(ones.vectorSize(), 3u);
    EXPECT_FALSE(ones.isNumericComplexVectorOrMatrix());
    for (unsigned i = 0; i < 3; ++i)
        EXPECT_EQ(ones.value(i).toDouble(), 1.0);

    // A rotation: the pair +i, -i, with no rounding left in the real parts.
    const vhValue rotation = math.characteristicPolynomialRoots_f(mat(2, 2, {0, -1, 1, 0}));
    ASSERT_EQ(rotation.vectorSize(), 2u);
    for (unsigned i = 0; i < 2; ++i) {
        EXPECT_EQ(rotation.value(i).complexRe(), 0.0);
        EXPECT_NEAR(std::abs(rotation.value(i).complexIm()), 1.0, 1e-15);
    }
    EXPECT_NEAR(rotation.value(0).complexIm() + rotation.value(1).complexIm(), 0.0, 1e-15);

    // A nilpotent matrix: both eigenvalues zero, exactly.
    const vhValue zero = math.characteristicPolynomialRoots_f(mat(2, 2, {1, -1, 1, -1}));
    ASSERT_EQ(zero.vectorSize(), 2u);
    EXPECT_EQ(zero.value(0).toDouble(), 0.0);
    EXPECT_EQ(zero.value(1).toDouble(), 0.0);
}

TEST(DecompositionGuards, DiagonalisationNeedsEqualMultiplicities)
{
    vhMath math;
    // A Jordan block: eigenvalue 1 twice, one eigenvector.
    EXPECT_TRUE(math.diagonalization_f(mat(2, 2, {1, 1, 0, 1})).isNull());
    EXPECT_TRUE(math.eigenVectors_f(mat(2, 2, {1, 1, 0, 1})).isNull());
    // The identity: eigenvalue 1 twice, two eigenvectors.
    const vhValue d = math.diagonalizationD_f(mat(2, 2, {1, 0, 0, 1}));
    ASSERT_TRUE(d.isMatrix());
    EXPECT_EQ(d.valueToDouble(0, 0), 1.0);
    EXPECT_EQ(d.valueToDouble(1, 1), 1.0);

    // Eigenvectors as a row vector of unit column vectors, one per column of P.
    const vhValue A = mat(2, 2, {2, 1, 1, 2});
    const vhValue vectors = math.eigenVectors_f(A);
    const vhValue P = math.diagonalizationP_f(A);
    const vhValue D = math.diagonalizationD_f(A);
    ASSERT_TRUE(vectors.isVector());
    ASSERT_EQ(vectors.vectorSize(), 2u);
    EXPECT_TRUE(vectors.isRowVector());
    for (unsigned j = 0; j < 2; ++j) {
        const vhValue v = vectors.value(j);
        ASSERT_TRUE(v.isVector());
        EXPECT_FALSE(v.isRowVector());
        ASSERT_EQ(v.vectorSize(), 2u);
        const std::complex<double> x = v.value(0).toComplex(), y = v.value(1).toComplex();
        EXPECT_NEAR(std::norm(x) + std::norm(y), 1.0, 1e-14);
        EXPECT_EQ(x, P.value(0, j).toComplex());
        EXPECT_EQ(y, P.value(1, j).toComplex());
        // A v = lambda v.
        const std::complex<double> lambda = D.value(j, j).toComplex();
        EXPECT_NEAR(std::abs(2.0 * x + y - lambda * x), 0.0, 1e-14);
        EXPECT_NEAR(std::abs(x + 2.0 * y - lambda * y), 0.0, 1e-14);
    }
}

TEST(DecompositionGuards, CharacteristicPolynomialIsTheDeterminantOfXIMinusA)
{
    vhMath math;
    const vhValue A = mat(2, 2, {2, 1, 1, 3});
    EXPECT_TRUE(math.charpoly_f(A, vhDouble(1.0)).isNull());
    EXPECT_TRUE(math.charpoly_f(A, vhValue()).isNull());
    EXPECT_TRUE(math.charpoly_f(mat(2, 3, {1, 2, 3, 4, 5, 6}), sym("x")).isNull());
    EXPECT_TRUE(math.charpoly_f(vhVector(3, true, true, false), sym("x")).isNull());

    // x^2 - 5 x + 5, checked at a few points against det(x I - A).
    const vhValue p = math.charpoly_f(A, sym("x"));
    ASSERT_EQ(p.valueType(), tagExpression);
    for (double x : {0.0, 1.0, -2.5, 4.0})
        EXPECT_LE(std::abs(evaluate(p, {{"x", x}}) - ((x - 2) * (x - 3) - 1)), 1e-12) << x;
    // 3 x 3 with a symbolic element: det(x I - A) keeps both symbols.
    vhMatrix B(vhDouble(0.0), 3, 3);
    B.setValue(vhDouble(1.0), 0, 1);
    B.setValue(vhDouble(2.0), 1, 2);
    B.setValue(sym("a"), 2, 0);
    const vhValue q = math.charpoly_f(B, sym("x"));
    for (double x : {0.0, 1.5, -2.0})
        EXPECT_LE(std::abs(evaluate(q, {{"x", x}, {"a", 3.0}}) - (x * x * x - 6.0)), 1e-12) << x;
}

TEST(DecompositionGuards, ReducedRowEchelonForm)
{
    vhMath math;
    const vhValue r = math.matRREForm_f(mat(2, 3, {1, 2, 3, 4, 5, 6}));
    ASSERT_TRUE(r.isMatrix());
    const double expected[6] = {1, 0, -1, 0, 1, 2};
    for (unsigned k = 0; k < 6; ++k)
        EXPECT_NEAR(r.valueToDouble(k / 3, k % 3), expected[k], 1e-15) << k;

    // A zero column is passed over; the next column takes the pivot.
    const vhValue z = math.matRREForm_f(mat(2, 3, {0, 2, 4, 0, 1, 3}));
    const double ez[6] = {0, 1, 0, 0, 0, 1};
    for (unsigned k = 0; k < 6; ++k)
        EXPECT_EQ(z.valueToDouble(k / 3, k % 3), ez[k]) << k;

    // A dependent row becomes zeros at the bottom.
    const vhValue d = math.matRREForm_f(mat(3, 2, {1, 2, 2, 4, 0, 1}));
    EXPECT_EQ(d.valueToDouble(0, 0), 1.0);
    EXPECT_EQ(d.valueToDouble(0, 1), 0.0);
    EXPECT_EQ(d.valueToDouble(1, 1), 1.0);
    EXPECT_EQ(d.valueToDouble(2, 0), 0.0);
    EXPECT_EQ(d.valueToDouble(2, 1), 0.0);

    // A symbol postpones the computation; complex, NaN and infinite
    // elements have no result.
    vhMatrix s(vhDouble(1.0), 2, 2);
    s.setValue(sym("a"), 0, 1);
    const vhValue held = math.matRREForm_f(s);
    EXPECT_EQ(held.valueType(), tagSymbolicFunction);
    EXPECT_EQ(held.functionID(), int(nt_matRREForm));
    CM c(1, 2);
    c << 1.0, std::complex<double>(0, 1);
    EXPECT_TRUE(math.matRREForm_f(toValue(c, true)).isNull());
    EXPECT_TRUE(math.matRREForm_f(mat(1, 2, {1, std::nan("")})).isNull());
    EXPECT_TRUE(math.matRREForm_f(mat(1, 2, {1, HUGE_VAL})).isNull());
}

TEST(DecompositionGuards, DeterminantsSmallExactLargeByFactorisation)
{
    vhMath math;
    EXPECT_EQ(math.matrixDeterminant_f(mat(2, 2, {4, 3, 6, 3})).toDouble(), -6.0);
    // Triangular 9 x 9: the product of the diagonal, with a row exchange.
    std::vector<double> t(81, 0.0);
    double product = 1.0;
    for (unsigned i = 0; i < 9; ++i) {
        for (unsigned j = i; j < 9; ++j)
            t[i * 9 + j] = 1.0 + i + 0.5 * j;
        product *= t[i * 9 + i];
    }
    for (unsigned j = 0; j < 9; ++j)
        std::swap(t[j], t[9 + j]);
    EXPECT_NEAR(math.matrixDeterminant_f(mat(9, 9, t)).toDouble(), -product, 1e-9 * product);
    EXPECT_TRUE(math.matrixDeterminant_f(mat(2, 3, {1, 2, 3, 4, 5, 6})).isNull());
    vhMatrix s(vhDouble(2.0), 2, 2);
    s.setValue(sym("a"), 0, 0);
    // 2 a - 4
    EXPECT_EQ(math.matrixDeterminant_f(s).valueType(), tagExpression);
}

TEST(DecompositionGuards, SingleFactorMembersPickTheirElement)
{
    vhMath math;
    CM a(3, 3);
    a << 4, 1, 2, 1, 5, 1, 2, 1, 6;
    const vhValue A = toValue(a, false);
    struct Row {
        vhValue (vhMath::*parent)(const vhValue&);
        std::vector<vhValue (vhMath::*)(const vhValue&)> children;
    };
    const std::vector<Row> rows = {
        {&vhMath::decLU_f, {&vhMath::decLUL_f, &vhMath::decLUU_f}},
        {&vhMath::decLUPQ_f, {&vhMath::decLUPQL_f, &vhMath::decLUPQU_f, &vhMath::decLUPQP_f, &vhMath::decLUPQQ_f}},
        {&vhMath::decQR_f, {&vhMath::decQRQ_f, &vhMath::decQRR_f}},
        {&vhMath::decQRP_f, {&vhMath::decQRPQ_f, &vhMath::decQRPR_f, &vhMath::decQRPP_f}},
        {&vhMath::decHessenberg_f, {&vhMath::decHessenbergH_f, &vhMath::decHessenbergQ_f}},
        {&vhMath::decCholeskyLDP_f, {&vhMath::decCholeskyLDPL_f, &vhMath::decCholeskyLDPD_f, &vhMath::decCholeskyLDPP_f}},
        {&vhMath::decSVD_f, {&vhMath::decSVDU_f, &vhMath::decSVDS_f, &vhMath::decSVDV_f}},
        {&vhMath::diagonalization_f, {&vhMath::diagonalizationD_f, &vhMath::diagonalizationP_f}},
    };
    for (const Row& row : rows) {
        const vhValue all = (math.*row.parent)(A);
        ASSERT_TRUE(all.isVector());
        ASSERT_EQ(all.vectorSize(), row.children.size());
        for (std::size_t i = 0; i < row.children.size(); ++i) {
            const vhValue one = (math.*row.children[i])(A);
            ASSERT_TRUE(one.isMatrix());
            EXPECT_EQ(toEigen(one), toEigen(all.value(unsigned(i))));
            // A vector is no matrix: the parent refuses it.
            EXPECT_TRUE((math.*row.children[i])(vhVector(3, true, true, false)).isNull());
        }
    }
}

TEST(DecompositionGuards, BadInputGivesTheUndefinedValue)
{
    vhMath math;
    vhMatrix withSymbol(vhDouble(1.0), 2, 2);
    withSymbol.setValue(sym("a"), 1, 1);
    vhMatrix withText(vhDouble(1.0), 2, 2);
    withText.setValue(vhSymbolicValue("t", true, {}), 1, 1);
    const double inf = std::numeric_limits<double>::infinity();
    CM nanComplex = CM::Identity(2, 2);
    nanComplex(0, 1) = std::complex<double>(0, std::nan(""));
    const std::vector<vhValue> bad = {
        vhValue(),
        vhDouble(2.0),
        vhInteger(3),
        vhComplex(1, 1),
        sym("x"),
        vhSymbolicValue("text", true, {}),
        vhVector(3, true, true, false),
        vhVector(),
        vhMatrix(),
        vhMatrix(0, 0, true, false, false),
        withText,
        mat(2, 2, {1, std::nan(""), 0, 1}),
        mat(2, 2, {1, inf, 0, 1}),
        mat(2, 2, {1, 0, -inf, 1}),
        toValue(nanComplex, true),
        vhEquation(sym("x"), "==", vhInteger(1)),
        vhInterval(0, true, 1, false),
    };
    std::vector<NodeType> ids;
    for (int id = nt_decLU; id <= nt_diagonalizationP; ++id)
        ids.push_back(NodeType(id));
    for (NodeType id : {nt_eigenVectors, nt_rank, nt_positiveDefinite})
        ids.push_back(id);
    for (const vhValue& v : bad)
        for (NodeType id : ids)
            EXPECT_TRUE(callFunction(&math, id, {v}).isNull()) << id << " " << v.toString();
    // Element storage with a symbol: no numeric decomposition.
    for (NodeType id : ids)
        EXPECT_TRUE(callFunction(&math, id, {withSymbol}).isNull()) << id;
    // The remaining members of the family on the same values.
    for (const vhValue& v : bad) {
        if (!v.isMatrix()) {
            EXPECT_TRUE(math.matrixDeterminant_f(v).isNull()) << v.toString();
            EXPECT_TRUE(math.charpoly_f(v, sym("x")).isNull()) << v.toString();
            EXPECT_TRUE(math.isHermitian_f(v).isNull()) << v.toString();
        }
        EXPECT_TRUE(math.matRREForm_f(v).isNull()) << v.toString();
    }
    EXPECT_TRUE(callFunction(&math, nt_decLU, {}).isNull());
}

TEST(DecompositionGuards, FactorsBeyondTheElementLimitAreRefused)
{
    vhMath math;
    // The square factors of a wide matrix grow with the square of its
    // width: V of the SVD of a 1 x 5000 matrix holds 25 million numbers.
    std::vector<double> wide(5000, 1.0);
    const vhValue A = mat(1, 5000, wide);
    setMaximumNumerOfMatrixElements(1000000);
    EXPECT_TRUE(math.decSVD_f(A).isNull());
    EXPECT_TRUE(math.decQRP_f(A).isNull());
    // Q of the QR is 1 x 1 and R has the shape of A: within the limit.
    EXPECT_TRUE(math.decQR_f(A).isVector());
    EXPECT_EQ(math.rank_f(A).toInt(), 1);
    setMaximumNumerOfMatrixElements(2147483647u);
}
