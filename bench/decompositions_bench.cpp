// Each decomposition member against the same Eigen class applied directly to
// the same complex matrix, in the same run, at 50, 200 and 500. The bare
// form computes the factorisation and forms the same factor matrices the
// member returns; the difference is the member's own cost: the checks, the
// copy in and out and the result records.
//
// Pairs: Member_X / Eigen_X for LUPQ, QR, QRP, Hessenberg, LDP (after the
// positive-definiteness test, which the member runs too), SVD, Eigenvalues
// and Rank. Member_LU (the own elimination without pivoting) has
// Eigen_PartialPivLU as context, and Member_Cholesky has both Eigen_LLT and
// Eigen_TestAndLLT.

#include <benchmark/benchmark.h>

#include <Eigen/Dense>

#include <random>

#include "frame/math.h"

using namespace VarnholtMath::ValueTypes;

namespace {

typedef Eigen::MatrixXcd CM;

CM randomComplex(Eigen::Index n, unsigned seed)
{
    std::mt19937_64 engine(seed);
    std::normal_distribution<double> normal;
    CM a(n, n);
    for (Eigen::Index i = 0; i < n; ++i)
        for (Eigen::Index j = 0; j < n; ++j)
            a(i, j) = std::complex<double>(normal(engine), normal(engine));
    return a;
}

CM hermitianPD(Eigen::Index n)
{
    const CM a = randomComplex(n, 5);
    const CM h = a * a.adjoint() + double(n) * CM::Identity(n, n);
    return (h + h.adjoint()) * 0.5;
}

CM diagonallyDominant(Eigen::Index n) { return randomComplex(n, 3) + 3.0 * double(n) * CM::Identity(n, n); }

vhValue toValue(const CM& a)
{
    vhMatrix m(unsigned(a.rows()), unsigned(a.cols()), true, false, true);
    double* re = m.numericValues();
    double* im = m.numericImValues();
    for (Eigen::Index i = 0; i < a.rows(); ++i)
        for (Eigen::Index j = 0; j < a.cols(); ++j) {
            re[i * a.cols() + j] = a(i, j).real();
            im[i * a.cols() + j] = a(i, j).imag();
        }
    return m;
}

template <class Member> void runMember(benchmark::State& state, const CM& a, Member member)
{
    vhMath math;
    const vhValue A = toValue(a);
    for (auto _ : state) {
        vhValue r = (math.*member)(A);
        if (r.isNull())
            state.SkipWithError("undefined result");
        benchmark::DoNotOptimize(r);
    }
}

#define MEMBER_BENCH(name, matrix, member)                                                                             \
    void Member_##name(benchmark::State& state) { runMember(state, matrix(state.range(0)), &vhMath::member); }

CM general(Eigen::Index n) { return randomComplex(n, 1); }

MEMBER_BENCH(LU, diagonallyDominant, decLU_f)
MEMBER_BENCH(LUPQ, general, decLUPQ_f)
MEMBER_BENCH(QR, general, decQR_f)
MEMBER_BENCH(QRP, general, decQRP_f)
MEMBER_BENCH(Hessenberg, general, decHessenberg_f)
MEMBER_BENCH(Cholesky, hermitianPD, decCholesky_f)
MEMBER_BENCH(LDP, hermitianPD, decCholeskyLDP_f)
MEMBER_BENCH(SVD, general, decSVD_f)
MEMBER_BENCH(Eigenvalues, general, characteristicPolynomialRoots_f)
MEMBER_BENCH(Rank, general, rank_f)

void Eigen_PartialPivLU(benchmark::State& state)
{
    const CM a = diagonallyDominant(state.range(0));
    for (auto _ : state) {
        Eigen::PartialPivLU<CM> lu(a);
        CM L = CM::Identity(a.rows(), a.cols());
        L.triangularView<Eigen::StrictlyLower>() = lu.matrixLU().triangularView<Eigen::StrictlyLower>();
        CM U = lu.matrixLU().triangularView<Eigen::Upper>();
        benchmark::DoNotOptimize(L.data());
        benchmark::DoNotOptimize(U.data());
    }
}

void Eigen_LUPQ(benchmark::State& state)
{
    const CM a = general(state.range(0));
    const Eigen::Index n = a.rows();
    for (auto _ : state) {
        Eigen::FullPivLU<CM> lu(a);
        CM L = CM::Identity(n, n);
        L.triangularView<Eigen::StrictlyLower>() = lu.matrixLU().triangularView<Eigen::StrictlyLower>();
        CM U = lu.matrixLU().triangularView<Eigen::Upper>();
        CM P = lu.permutationP() * CM::Identity(n, n);
        CM Q = CM::Identity(n, n) * lu.permutationQ();
        benchmark::DoNotOptimize(L.data());
        benchmark::DoNotOptimize(U.data());
        benchmark::DoNotOptimize(P.data());
        benchmark::DoNotOptimize(Q.data());
    }
}

void Eigen_QR(benchmark::State& state)
{
    const CM a = general(state.range(0));
    for (auto _ : state) {
        Eigen::HouseholderQR<CM> qr(a);
        CM Q = qr.householderQ();
        CM R = qr.matrixQR().triangularView<Eigen::Upper>();
        benchmark::DoNotOptimize(Q.data());
        benchmark::DoNotOptimize(R.data());
    }
}

void Eigen_QRP(benchmark::State& state)
{
    const CM a = general(state.range(0));
    for (auto _ : state) {
        Eigen::ColPivHouseholderQR<CM> qr(a);
        CM Q = qr.householderQ();
        CM R = qr.matrixQR().triangularView<Eigen::Upper>();
        CM P = CM::Identity(a.cols(), a.cols()) * qr.colsPermutation();
        benchmark::DoNotOptimize(Q.data());
        benchmark::DoNotOptimize(R.data());
        benchmark::DoNotOptimize(P.data());
    }
}

void Eigen_Hessenberg(benchmark::State& state)
{
    const CM a = general(state.range(0));
    for (auto _ : state) {
        Eigen::HessenbergDecomposition<CM> hd(a);
        CM H = hd.matrixH();
        CM Q = hd.matrixQ();
        benchmark::DoNotOptimize(H.data());
        benchmark::DoNotOptimize(Q.data());
    }
}

void Eigen_LLT(benchmark::State& state)
{
    const CM a = hermitianPD(state.range(0));
    for (auto _ : state) {
        Eigen::LLT<CM> llt(a);
        CM L = llt.matrixL();
        benchmark::DoNotOptimize(L.data());
    }
}

// The admission test of the Cholesky members, in bare Eigen: the
// eigenvalues of the Hermitian matrix, then the factorisation.
bool admitted(const CM& a)
{
    Eigen::SelfAdjointEigenSolver<CM> solver(a, Eigen::EigenvaluesOnly);
    return solver.eigenvalues().minCoeff() > 0.0;
}

void Eigen_TestAndLLT(benchmark::State& state)
{
    const CM a = hermitianPD(state.range(0));
    for (auto _ : state) {
        if (!admitted(a))
            state.SkipWithError("not definite");
        Eigen::LLT<CM> llt(a);
        CM L = llt.matrixL();
        benchmark::DoNotOptimize(L.data());
    }
}

void Eigen_LDP(benchmark::State& state)
{
    const CM a = hermitianPD(state.range(0));
    const Eigen::Index n = a.rows();
    for (auto _ : state) {
        if (!admitted(a))
            state.SkipWithError("not definite");
        Eigen::LDLT<CM> ldlt(a);
        CM L = ldlt.matrixL();
        CM D = ldlt.vectorD().asDiagonal();
        CM P = ldlt.transpositionsP() * CM::Identity(n, n);
        benchmark::DoNotOptimize(L.data());
        benchmark::DoNotOptimize(D.data());
        benchmark::DoNotOptimize(P.data());
    }
}

void Eigen_SVD(benchmark::State& state)
{
    const CM a = general(state.range(0));
    for (auto _ : state) {
        Eigen::JacobiSVD<CM, Eigen::ColPivHouseholderQRPreconditioner> svd(a, Eigen::ComputeFullU |
                                                                                   Eigen::ComputeFullV);
        CM S = CM::Zero(a.rows(), a.cols());
        S.diagonal() = svd.singularValues().cast<std::complex<double>>();
        CM U = svd.matrixU();
        CM V = svd.matrixV();
        benchmark::DoNotOptimize(S.data());
        benchmark::DoNotOptimize(U.data());
        benchmark::DoNotOptimize(V.data());
    }
}

void Eigen_Eigenvalues(benchmark::State& state)
{
    const CM a = general(state.range(0));
    for (auto _ : state) {
        Eigen::ComplexEigenSolver<CM> solver(a, false);
        benchmark::DoNotOptimize(solver.eigenvalues().data());
    }
}

void Eigen_Rank(benchmark::State& state)
{
    const CM a = general(state.range(0));
    for (auto _ : state) {
        Eigen::ColPivHouseholderQR<CM> qr(a);
        qr.setThreshold(1e-6);
        benchmark::DoNotOptimize(qr.rank());
    }
}

} // namespace

#define SIZES ->Arg(50)->Arg(200)->Arg(500)->Unit(benchmark::kMillisecond)
#define SMALL_SIZES ->Arg(50)->Arg(200)->Unit(benchmark::kMillisecond)

BENCHMARK(Member_LU) SIZES;
BENCHMARK(Eigen_PartialPivLU) SIZES;
BENCHMARK(Member_LUPQ) SIZES;
BENCHMARK(Eigen_LUPQ) SIZES;
BENCHMARK(Member_QR) SIZES;
BENCHMARK(Eigen_QR) SIZES;
BENCHMARK(Member_QRP) SIZES;
BENCHMARK(Eigen_QRP) SIZES;
BENCHMARK(Member_Hessenberg) SIZES;
BENCHMARK(Eigen_Hessenberg) SIZES;
BENCHMARK(Member_Cholesky) SIZES;
BENCHMARK(Eigen_LLT) SIZES;
BENCHMARK(Eigen_TestAndLLT) SIZES;
BENCHMARK(Member_LDP) SIZES;
BENCHMARK(Eigen_LDP) SIZES;
BENCHMARK(Member_Rank) SIZES;
BENCHMARK(Eigen_Rank) SIZES;
// The Jacobi SVD and the complex Schur form take seconds at 500.
BENCHMARK(Member_SVD) SMALL_SIZES;
BENCHMARK(Eigen_SVD) SMALL_SIZES;
BENCHMARK(Member_Eigenvalues) SMALL_SIZES;
BENCHMARK(Eigen_Eigenvalues) SMALL_SIZES;

BENCHMARK_MAIN();
