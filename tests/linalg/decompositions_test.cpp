// Matrix decompositions: every factorisation multiplies back to its
// argument, orthogonal factors are unitary and triangular ones triangular;
// eigenvalues and singular values agree with LAPACK's (data/
// make_decomposition_reference.py); and the guards that decide when a
// matrix qualifies.

#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

#include "frame/math.h"
#include "linalg/linalg_test_support.h"

using namespace VarnholtMath::ValueTypes;
using namespace linalg_tests;

namespace {

enum Kind { General, RankDeficient, HermitianPD, IllConditioned, DiagonallyDominant };

CM makeMatrix(std::mt19937& gen, Eigen::Index n, Kind kind, bool complex)
{
    CM a = randomMatrix(gen, n, n, complex);
    switch (kind) {
    case General:
        return a;
    case RankDeficient: {
        const Eigen::Index r = std::max<Eigen::Index>(1, n / 2);
        return randomMatrix(gen, n, r, complex) * randomMatrix(gen, r, n, complex);
    }
    case HermitianPD: {
        // Mirrored so that it is Hermitian to the last bit.
        const CM h = a * a.adjoint() + double(n) * CM::Identity(n, n);
        return (h + h.adjoint()) * 0.5;
    }
    case IllConditioned: {
        // Singular values spread over ten decades.
        Eigen::JacobiSVD<CM> svd(a, Eigen::ComputeFullU | Eigen::ComputeFullV);
        Eigen::VectorXd s(n);
        for (Eigen::Index i = 0; i < n; ++i)
            s(i) = std::pow(10.0, -10.0 * double(i) / double(std::max<Eigen::Index>(1, n - 1)));
        return svd.matrixU() * s.cast<std::complex<double>>().asDiagonal() * svd.matrixV().adjoint();
    }
    case DiagonallyDominant:
        return a + 3.0 * double(n) * CM::Identity(n, n);
    }
    return a;
}

CM factor(const vhValue& factors, unsigned i)
{
    if (factors.isNull() || !factors.isVector() || i >= factors.vectorSize())
        return CM();
    return toEigen(factors.value(i));
}

bool upperTriangular(const CM& r)
{
    for (Eigen::Index j = 0; j < r.cols(); ++j)
        for (Eigen::Index i = j + 1; i < r.rows(); ++i)
            if (r(i, j) != 0.0)
                return false;
    return r.size() > 0;
}
bool lowerTriangular(const CM& l) { return upperTriangular(l.transpose()); }
bool isPermutation(const CM& p)
{
    if (p.rows() != p.cols() || p.size() == 0)
        return false;
    for (Eigen::Index i = 0; i < p.rows(); ++i)
        for (Eigen::Index j = 0; j < p.cols(); ++j)
            if (p(i, j) != 0.0 && p(i, j) != 1.0)
                return false;
    return (p.rowwise().sum().array() == 1.0).all() && (p.colwise().sum().array() == 1.0).all();
}

struct Sample {
    Eigen::Index n;
    Kind kind;
    bool complex;
};

std::vector<Sample> samples()
{
    std::vector<Sample> list;
    for (Eigen::Index n : {1, 2, 5, 17})
        for (Kind k : {General, RankDeficient, HermitianPD, IllConditioned, DiagonallyDominant})
            for (bool c : {false, true})
                list.push_back({n, k, c});
    for (bool c : {false, true}) {
        list.push_back({64, General, c});
        list.push_back({64, HermitianPD, c});
    }
    return list;
}

std::string describe(const Sample& s)
{
    std::ostringstream o;
    o << "n=" << s.n << " kind=" << int(s.kind) << (s.complex ? " complex" : " real");
    return o.str();
}

} // namespace

TEST(Decompositions, FactorsMultiplyBackToTheMatrix)
{
    vhMath math;
    std::mt19937 gen(7);
    for (const Sample& s : samples()) {
        SCOPED_TRACE(describe(s));
        const CM a = makeMatrix(gen, s.n, s.kind, s.complex);
        const vhValue A = toValue(a, s.complex);
        const double tol = 1e-10 * a.norm();
        const Eigen::Index n = s.n;

        const vhValue qr = math.decQR_f(A);
        const CM q = factor(qr, 0), r = factor(qr, 1);
        ASSERT_EQ(q.rows(), n);
        EXPECT_LE((q * r - a).norm(), tol);
        EXPECT_TRUE(isUnitary(q, 1e-12 * double(n)));
        EXPECT_TRUE(upperTriangular(r));

        const vhValue qrp = math.decQRP_f(A);
        const CM q2 = factor(qrp, 0), r2 = factor(qrp, 1), p2 = factor(qrp, 2);
        ASSERT_EQ(p2.rows(), n);
        EXPECT_TRUE(isPermutation(p2));
        EXPECT_LE((a * p2 - q2 * r2).norm(), tol);
        EXPECT_TRUE(isUnitary(q2, 1e-12 * double(n)));
        EXPECT_TRUE(upperTriangular(r2));

        const vhValue hess = math.decHessenberg_f(A);
        const CM h = factor(hess, 0), qh = factor(hess, 1);
        ASSERT_EQ(h.rows(), n);
        EXPECT_LE((qh * h * qh.adjoint() - a).norm(), tol);
        EXPECT_TRUE(isUnitary(qh, 1e-12 * double(n)));
        for (Eigen::Index j = 0; j < n; ++j)
            for (Eigen::Index i = j + 2; i < n; ++i)
                EXPECT_EQ(h(i, j), 0.0);

        const vhValue svd = math.decSVD_f(A);
        const CM u = factor(svd, 0), sv = factor(svd, 1), v = factor(svd, 2);
        ASSERT_EQ(sv.rows(), n);
        EXPECT_LE((u * sv * v.adjoint() - a).norm(), tol);
        EXPECT_TRUE(isUnitary(u, 1e-12 * double(n)));
        EXPECT_TRUE(isUnitary(v, 1e-12 * double(n)));
        for (Eigen::Index i = 0; i < n; ++i)
            for (Eigen::Index j = 0; j < n; ++j)
                if (i == j) {
                    EXPECT_GE(sv(i, i).real(), 0.0);
                    if (i > 0)
                        EXPECT_LE(sv(i, i).real(), sv(i - 1, i - 1).real());
                } else {
                    EXPECT_EQ(sv(i, j), 0.0);
                }

        // An ill-conditioned complex matrix may have a determinant below the
        // resolution of complex products, and then no cofactor inverse.
        const vhValue lupq = math.decLUPQ_f(A);
        if (s.kind != RankDeficient && !(s.kind == IllConditioned && lupq.isNull())) {
            const CM l = factor(lupq, 0), uu = factor(lupq, 1), p = factor(lupq, 2), qq = factor(lupq, 3);
            ASSERT_EQ(l.rows(), n);
            EXPECT_TRUE(isPermutation(p));
            EXPECT_TRUE(isPermutation(qq));
            EXPECT_LE((p * a * qq - l * uu).norm(), tol);
            EXPECT_TRUE(lowerTriangular(l));
            EXPECT_TRUE(upperTriangular(uu));
            EXPECT_TRUE((l.diagonal().array() == std::complex<double>(1.0, 0.0)).all());
        }

        if (s.kind == DiagonallyDominant || s.kind == HermitianPD) {
            const vhValue lu = math.decLU_f(A);
            const CM l = factor(lu, 0), uu = factor(lu, 1);
            ASSERT_EQ(l.rows(), n);
            EXPECT_LE((l * uu - a).norm(), tol);
            EXPECT_TRUE(lowerTriangular(l));
            EXPECT_TRUE(upperTriangular(uu));
            EXPECT_TRUE((l.diagonal().array() == std::complex<double>(1.0, 0.0)).all());
        }

        if (s.kind == HermitianPD) {
            const CM lc = toEigen(math.decCholesky_f(A));
            ASSERT_EQ(lc.rows(), n);
            EXPECT_LE((lc * lc.adjoint() - a).norm(), tol);
            EXPECT_TRUE(lowerTriangular(lc));

            const vhValue ldp = math.decCholeskyLDP_f(A);
            const CM l = factor(ldp, 0), d = factor(ldp, 1), p = factor(ldp, 2);
            ASSERT_EQ(d.rows(), n);
            EXPECT_TRUE(isPermutation(p));
            EXPECT_TRUE(lowerTriangular(l));
            EXPECT_TRUE(upperTriangular(d) && lowerTriangular(d));
            EXPECT_LE((p * a * p.transpose() - l * d * l.adjoint()).norm(), tol);
        }

        if (s.kind == General && n <= 17) {
            // Distinct eigenvalues: A P = P D, with unit eigenvectors.
            const vhValue diag = math.diagonalization_f(A);
            const CM d = factor(diag, 0), p = factor(diag, 1);
            ASSERT_EQ(d.rows(), n);
            EXPECT_LE((a * p - p * d).norm(), tol);
            EXPECT_TRUE(upperTriangular(d) && lowerTriangular(d));
            for (Eigen::Index j = 0; j < n; ++j)
                EXPECT_NEAR(p.col(j).norm(), 1.0, 1e-12);
        }
    }
}

TEST(Decompositions, RectangularFactorsKeepTheShapeOfTheMatrix)
{
    vhMath math;
    std::mt19937 gen(11);
    for (auto shape : {std::make_pair(3, 2), std::make_pair(2, 5), std::make_pair(17, 4)})
        for (bool complex : {false, true}) {
            const CM a = randomMatrix(gen, shape.first, shape.second, complex);
            const vhValue A = toValue(a, complex);
            const double tol = 1e-10 * a.norm();
            const vhValue qr = math.decQR_f(A);
            const CM q = factor(qr, 0), r = factor(qr, 1);
            ASSERT_EQ(q.rows(), shape.first);
            ASSERT_EQ(q.cols(), shape.first);
            ASSERT_EQ(r.cols(), shape.second);
            EXPECT_LE((q * r - a).norm(), tol);
            EXPECT_TRUE(upperTriangular(r));

            const vhValue qrp = math.decQRP_f(A);
            EXPECT_LE((a * factor(qrp, 2) - factor(qrp, 0) * factor(qrp, 1)).norm(), tol);

            const vhValue svd = math.decSVD_f(A);
            const CM s = factor(svd, 1);
            ASSERT_EQ(s.rows(), shape.first);
            ASSERT_EQ(s.cols(), shape.second);
            EXPECT_LE((factor(svd, 0) * s * factor(svd, 2).adjoint() - a).norm(), tol);

            // Square only.
            EXPECT_TRUE(math.decHessenberg_f(A).isNull());
            EXPECT_TRUE(math.decLU_f(A).isNull());
            EXPECT_TRUE(math.decLUPQ_f(A).isNull());
            EXPECT_TRUE(math.characteristicPolynomialRoots_f(A).isNull());
            EXPECT_TRUE(math.diagonalization_f(A).isNull());
        }
}

TEST(Decompositions, SpectraAgreeWithLapack)
{
    vhMath math;
    std::ifstream in(VH_TEST_DATA_DIR "/linalg/data/decomposition_reference.txt");
    ASSERT_TRUE(in.good());
    std::string line;
    int cases = 0;
    while (std::getline(in, line)) {
        std::istringstream words(line);
        std::string kind;
        Eigen::Index m = 0, n = 0, count = 0;
        words >> kind >> m >> n;
        CM a(m, n);
        for (Eigen::Index i = 0; i < m * n; ++i) {
            double re;
            words >> re;
            a(i / n, i % n) = re;
        }
        bool complex = false;
        for (Eigen::Index i = 0; i < m * n; ++i) {
            double im;
            words >> im;
            a(i / n, i % n) += std::complex<double>(0.0, im);
            complex = complex || im != 0.0;
        }
        words >> count;
        SCOPED_TRACE(line.substr(0, 40));
        ++cases;
        const vhValue A = toValue(a, complex);
        if (kind == "eig") {
            std::vector<std::complex<double>> expected(count);
            double scale = 0.0;
            for (auto& e : expected) {
                double re, im;
                words >> re >> im;
                e = {re, im};
                scale = std::max(scale, std::abs(e));
            }
            const vhValue roots = math.characteristicPolynomialRoots_f(A);
            ASSERT_EQ(roots.vectorSize(), unsigned(count));
            std::vector<std::complex<double>> got;
            for (unsigned i = 0; i < roots.vectorSize(); ++i)
                got.push_back(roots.value(i).toComplex());
            // Match each reference eigenvalue with the nearest one left.
            for (const auto& e : expected) {
                auto best = std::min_element(got.begin(), got.end(), [&](const auto& x, const auto& y) {
                    return std::abs(x - e) < std::abs(y - e);
                });
                ASSERT_NE(best, got.end());
                EXPECT_LE(std::abs(*best - e), 1e-10 * scale) << e;
                got.erase(best);
            }
        } else {
            std::vector<double> expected(count);
            for (double& e : expected)
                words >> e;
            const CM s = toEigen(math.decSVDS_f(A));
            ASSERT_EQ(s.rows(), m);
            ASSERT_EQ(s.cols(), n);
            for (Eigen::Index i = 0; i < count; ++i)
                EXPECT_LE(std::abs(s(i, i).real() - expected[i]), 1e-10 * expected[0]);
        }
    }
    EXPECT_GE(cases, 20);
}
