// The special functions: their frame (poles, refusals, symbols, arrays) and
// their values against mpmath references - the Boost-based ones from
// special_reference.csv, the engine's own kernels through their members from
// the kernels' reference tables.

#include <gtest/gtest.h>

#include <cmath>
#include <complex>
#include <cstdio>
#include <fstream>
#include <limits>
#include <map>
#include <sstream>
#include <string>
#include <vector>

#include "frame/math.h"
#include "function_tables.h"

using namespace VarnholtMath::ValueTypes;
using namespace elementwise_tests;

namespace {

const double kInf = std::numeric_limits<double>::infinity();

double num(const std::string& s) { return std::strtod(s.c_str(), nullptr); }

vhValue d(double v) { return vhDouble(v); }

struct Tally {
    double worst = 0.0;
    int points = 0;
    int failures = 0;
};

// Checks one value against its reference; a few reports per function.
void check(std::map<std::string, Tally>& tally, const std::string& name, const vhValue& r,
           std::complex<double> reference, double scale, double bound, bool complexValue, const std::string& where)
{
    Tally& t = tally[name];
    const std::complex<double> c(r.complexRe(), r.complexIm());
    // A zero value is compared absolutely.
    const double error = std::abs(c - reference) / (scale == 0.0 ? 1.0 : scale);
    const bool typeRight = complexValue ? r.isComplex() : r.isDouble();
    if (r.isNull() || !typeRight || !(error <= bound)) {
        if (t.failures++ < 3)
            ADD_FAILURE() << name << " at " << where << ": " << (r.isNull() ? std::string("undefined") : r.typeName())
                          << " " << c << " against " << reference << ", error " << error << " > " << bound;
        return;
    }
    t.worst = std::max(t.worst, error);
    ++t.points;
}

void report(const std::map<std::string, Tally>& tally, int minimum)
{
    for (const auto& e : tally) {
        EXPECT_EQ(0, e.second.failures) << e.first;
        EXPECT_GE(e.second.points, minimum) << e.first;
        std::printf("  %-28s %4d points, worst relative error %.2g\n", e.first.c_str(), e.second.points,
                    e.second.worst);
    }
}

} // namespace

TEST(SpecialFunctions, BoostKernelsAgainstMpmath)
{
    const auto rows = readCsv("special_reference.csv");
    ASSERT_GT(rows.size(), 9000u);
    vhMath m;
    std::map<std::string, Tally> tally;
    std::map<std::string, Caller> callers;
    for (const auto& row : rows) {
        ASSERT_EQ(9u, row.size());
        std::vector<vhValue> args;
        std::ostringstream where;
        where.precision(17);
        for (int i = 2; i < 6; ++i)
            if (!row[i].empty()) {
                args.push_back(d(num(row[i])));
                where << num(row[i]) << " ";
            }
        const std::string key = row[0] + "/" + std::to_string(args.size());
        if (!callers.count(key))
            callers[key] = callerByName(row[0], args.size());
        ASSERT_TRUE(callers[key]) << key;
        const std::complex<double> reference(num(row[6]), num(row[7]));
        // The spherical harmonics are complex for every order.
        check(tally, row[0], callers[key](m, args), reference, std::abs(reference), num(row[8]),
              row[0] == "SphericalHarmonic", where.str());
    }
    report(tally, 200);
}

TEST(SpecialFunctions, OwnKernelsThroughTheirMembers)
{
    vhMath m;
    std::map<std::string, Tally> tally;
    const double bound = 1e-12;
    // Struve H: a negative x gives a complex number, others a real one; the
    // scale is the size the kernel's table measures against.
    for (const auto& r : readCsv("struve.csv")) {
        const double x = num(r[1]);
        check(tally, "struve", m.struve_f(d(num(r[0])), d(x)), {num(r[2]), num(r[3])}, num(r[4]), bound, x < 0.0,
              r[0] + " " + r[1]);
    }
    // Lambert W: a value whose imaginary part is below 1e-6 is real.
    for (const auto& r : readCsv("lambertw.csv")) {
        const double zr = num(r[1]), zi = num(r[2]);
        const vhValue z = (r[0] == "0" || zi == 0.0) ? d(zr) : vhValue(vhComplex(zr, zi));
        std::complex<double> reference(num(r[3]), num(r[4]));
        const bool complexValue = std::fabs(reference.imag()) >= 1e-06;
        if (!complexValue)
            reference = reference.real();
        check(tally, "lambert", m.lambert_f(z), reference, std::abs(reference) == 0 ? 1.0 : std::abs(reference),
              bound, complexValue, r[1] + " " + r[2]);
    }
    for (const auto& r : readCsv("hyp2f1.csv")) {
        const double zr = num(r[3]), zi = num(r[4]);
        const vhValue z = zi == 0.0 ? d(zr) : vhValue(vhComplex(zr, zi));
        const std::complex<double> reference(num(r[5]), num(r[6]));
        check(tally, "gausshypergeometric", m.gausshypergeometric_f(d(num(r[0])), d(num(r[1])), d(num(r[2])), z),
              reference, std::abs(reference) == 0 ? 1.0 : std::abs(reference), bound,
              zi != 0.0 || reference.imag() != 0.0, r[0] + " " + r[1] + " " + r[2] + " " + r[3] + " " + r[4]);
    }
    for (const auto& r : readCsv("fermidirac.csv")) {
        const double reference = num(r[2]);
        check(tally, "FermiDirac", m.FermiDirac_f(d(num(r[0])), d(num(r[1]))), reference, std::fabs(reference), bound,
              false, r[0] + " " + r[1]);
    }
    for (const auto& r : readCsv("fresnel_dawson.csv")) {
        const double x = num(r[0]);
        const double s = num(r[1]), c = num(r[2]), f = num(r[3]);
        if (s != 0.0)
            check(tally, "FresnelsIntegralS", m.FresnelsIntegralS_f(d(x)), s, std::fabs(s), bound, false, r[0]);
        check(tally, "FresnelsIntegralC", m.FresnelsIntegralC_f(d(x)), c, std::fabs(c), bound, false, r[0]);
        check(tally, "DawsonsIntegral", m.DawsonsIntegral_f(d(x)), f, std::fabs(f), bound, false, r[0]);
    }
    report(tally, 200);
}

TEST(SpecialFunctions, PolesAndRefusals)
{
    vhMath m;
    // Gamma: 0 (and anything within 1e-6 of it) and the negative whole
    // numbers are poles; complex arguments are refused.
    EXPECT_TRUE(m.gamma_f(vhInteger(0)).isNull());
    EXPECT_TRUE(m.gamma_f(vhInteger(-1)).isNull());
    EXPECT_TRUE(m.gamma_f(d(5e-7)).isNull());
    EXPECT_TRUE(m.gamma_f(d(-3.0)).isNull());
    EXPECT_EQ(24.0, m.gamma_f(vhInteger(5)).toDouble());
    EXPECT_TRUE(m.gamma_f(vhComplex(1.0, 1.0)).isNull());
    EXPECT_TRUE(m.gamma_f(d(200.0)).isNull()) << "the kernel's overflow ends as undefined";
    // lgamma: log|gamma| as a double, the same poles, +inf at the infinities.
    EXPECT_TRUE(m.lgamma_f(vhInteger(0)).isNull());
    EXPECT_EQ(tagDouble, m.lgamma_f(vhInteger(3)).valueType());
    EXPECT_NEAR(std::log(2.0), m.lgamma_f(vhInteger(3)).toDouble(), 1e-15);
    EXPECT_EQ(kInf, m.lgamma_f(d(kInf)).toDouble());
    EXPECT_NEAR(std::log(4.0 * std::sqrt(M_PI) / 3.0), m.lgamma_f(d(-1.5)).toDouble(), 1e-14);
    // beta: poles of either argument, and the reflection for negatives.
    EXPECT_TRUE(m.beta_f(vhInteger(0), vhInteger(2)).isNull());
    EXPECT_TRUE(m.beta_f(vhInteger(-2), d(0.5)).isNull());
    // B(-1/2, 2) = gamma(-1/2) gamma(2) / gamma(3/2) = -4.
    EXPECT_NEAR(-4.0, m.beta_f(d(-0.5), vhInteger(2)).toDouble(), 1e-14);
    EXPECT_EQ(0.0, m.beta_f(d(-1.5), d(0.5)).toDouble()) << "gamma(x + y) has a pole at -1";
    EXPECT_TRUE(m.beta_f(vhComplex(1, 1), vhComplex(1, 1)).isNull());
    // zeta: the pole at 1; the trivial zeros.
    EXPECT_TRUE(m.zeta_f(vhInteger(1)).isNull());
    EXPECT_EQ(0.0, m.zeta_f(vhInteger(-2)).toDouble());
    EXPECT_EQ(0.0, m.zeta_f(d(-2147483648.0)).toDouble());
    // Lambert W: 0 at 0, -1 at the branch point, complex below it, the
    // imaginary part below 1e-6 dropped.
    EXPECT_EQ(0.0, m.lambert_f(vhInteger(0)).toDouble());
    EXPECT_EQ(tagDouble, m.lambert_f(vhInteger(0)).valueType());
    EXPECT_EQ(-1.0, m.lambert_f(d(-0.36787944117144233)).toDouble());
    EXPECT_TRUE(m.lambert_f(d(-0.5)).isComplex());
    EXPECT_EQ(kInf, m.lambert_f(d(kInf)).toDouble());
    EXPECT_TRUE(m.lambert_f(vhComplex(1.0, 0.0)).isDouble());
    // Struve H of a negative x is complex even for a whole order; infinite x
    // has its limit.
    EXPECT_TRUE(m.struve_f(vhInteger(1), d(-2.0)).isComplex());
    EXPECT_NEAR(2.0 / M_PI, m.struve_f(vhInteger(1), d(kInf)).toDouble(), 1e-15);
    EXPECT_TRUE(m.struve_f(d(-2147483648.0), d(1e300)).isNull());
    // Fresnel integrals answer the infinities with +-0.5; Dawson with 0.
    EXPECT_EQ(0.5, m.FresnelsIntegralS_f(d(kInf)).toDouble());
    EXPECT_EQ(-0.5, m.FresnelsIntegralC_f(d(-kInf)).toDouble());
    EXPECT_EQ(0.0, m.DawsonsIntegral_f(d(kInf)).toDouble());
    // Kernel domain errors stay undefined; nothing moves to the complex plane.
    EXPECT_TRUE(m.BesselSecondKind_f(vhInteger(0), d(-1.0)).isNull());
    EXPECT_TRUE(m.BesselFirstKind_f(d(0.5), d(-1.0)).isNull());
    EXPECT_NEAR(-std::cyl_bessel_j(1.0, 2.0), m.BesselFirstKind_f(vhInteger(1), d(-2.0)).toDouble(), 1e-15);
    EXPECT_TRUE(m.ModifiedBesselSecondKind_f(vhInteger(0), vhInteger(0)).isNull());
    EXPECT_TRUE(m.SphericalBesselFirstKind_f(vhInteger(-1), d(1.0)).isNull());
    EXPECT_TRUE(m.ExponentialIntegralEi_f(vhInteger(0)).isNull());
    EXPECT_TRUE(m.AiryAiZero_f(vhInteger(0)).isNull());
    EXPECT_TRUE(m.EllipticIntegralCarlsonRf_f(d(-1.0), d(1.0), d(1.0)).isNull());
    // Orders far out are refused at once instead of recurring for minutes.
    EXPECT_TRUE(m.ModifiedBesselFirstKind_f(d(2147483647.0), d(1e300)).isNull());
    EXPECT_TRUE(m.BesselSecondKind_f(d(-2147483648.0), d(1.0)).isNull());
    EXPECT_TRUE(m.SphericalHarmonic_f(vhInteger(2), d(-kInf), d(1.0), d(1.0)).isNull());
    EXPECT_TRUE(m.ExponentialIntegralEn_f(d(1e9), d(1.0)).isNull());
    // Infinite arguments: the limits of the decaying functions, none for the
    // growing ones, without a long search of the kernel.
    EXPECT_EQ(0.0, m.AiryAi_f(d(kInf)).toDouble());
    EXPECT_TRUE(m.AiryBi_f(d(kInf)).isNull());
    EXPECT_EQ(0.0, m.BesselFirstKind_f(d(3.0), d(kInf)).toDouble());
    EXPECT_TRUE(m.ModifiedBesselFirstKind_f(d(3.0), d(kInf)).isNull());
    EXPECT_EQ(0.0, m.ModifiedBesselSecondKind_f(d(3.0), d(kInf)).toDouble());
    EXPECT_EQ(0.0, m.EllipticIntegralCarlsonRj_f(d(1.0), d(kInf), d(2.0), d(1.0)).toDouble());
    EXPECT_TRUE(m.EllipticIntegralCarlsonRf_f(d(-1.0), d(kInf), d(2.0)).isNull());
    // The spherical harmonics are complex; Y00 is 1 / (2 sqrt(pi)).
    const vhValue y00 = m.SphericalHarmonic_f(vhInteger(0), vhInteger(0), d(1.0), d(2.0));
    ASSERT_TRUE(y00.isComplex());
    EXPECT_NEAR(0.5 / std::sqrt(M_PI), y00.complexRe(), 1e-16);
    EXPECT_EQ(0.0, y00.complexIm());
}

TEST(SpecialFunctions, SymbolsAndArrays)
{
    vhMath m;
    const vhSymbolicValue x("x", false, {});
    const vhValue held = m.erf_f(x);
    EXPECT_EQ(tagSymbolicFunction, held.valueType());
    EXPECT_EQ(nt_erf, held.functionID());
    const vhValue heldBessel = m.BesselFirstKind_f(vhInteger(2), x);
    EXPECT_EQ(nt_BesselFirstKind, heldBessel.functionID());
    ASSERT_EQ(2u, heldBessel.functionArguments().size());
    EXPECT_EQ(nt_gausshypergeometric, m.gausshypergeometric_f(d(1), d(1), d(2), x).functionID());

    // A pair of vectors maps element by element; a scalar order beside a
    // vector of arguments is not aligned.
    double orders[] = {0.0, 1.0, 2.0}, xs[] = {1.0, 2.0, 3.0};
    const vhValue j = m.BesselFirstKind_f(vhVector(orders, 3, false), vhVector(xs, 3, false));
    ASSERT_EQ(3u, j.vectorSize());
    for (int i = 0; i < 3; ++i)
        EXPECT_NEAR(std::cyl_bessel_j(orders[i], xs[i]), j.numericValues()[i], 1e-15);
    EXPECT_TRUE(m.BesselFirstKind_f(vhInteger(0), vhVector(xs, 3, false)).isNull());
    // gausshypergeometric maps its arrays and lets a scalar serve every place.
    const vhValue f = m.gausshypergeometric_f(d(1.0), d(1.0), d(2.0), vhVector(xs, 3, true));
    ASSERT_EQ(3u, f.vectorSize());
    EXPECT_TRUE(f.isRowVector());
    EXPECT_TRUE(f.value(0).isNull()) << "2F1(1, 1; 2; 1) diverges";
    EXPECT_TRUE(f.value(1).isComplex()) << "beyond 1 the value is complex";
    double halves[] = {-0.5, 0.5};
    const vhValue f2 = m.gausshypergeometric_f(d(1.0), d(1.0), d(2.0), vhVector(halves, 2, false));
    EXPECT_NEAR(-std::log1p(-0.5) / 0.5, f2.numericValues()[1], 1e-15);
    // Arrays of one argument take the fast path with the same kernel.
    const vhValue e = m.erf_f(vhVector(xs, 3, false));
    EXPECT_EQ(std::erf(2.0), e.numericValues()[1]);
}
