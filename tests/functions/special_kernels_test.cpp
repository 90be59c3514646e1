// The engine's own special-function kernels against reference tables made by
// tests/functions/data/make_special_reference.py (mpmath, 50 digits).

#include "functions/special_kernels.h"

#include <gtest/gtest.h>

#include <cmath>
#include <complex>
#include <fstream>
#include <limits>
#include <sstream>
#include <string>
#include <vector>

namespace {

using namespace VarnholtMath::kernels;
using cd = std::complex<double>;

constexpr double kTolerance = 1e-12;
const double kNaN = std::numeric_limits<double>::quiet_NaN();
const double kInf = std::numeric_limits<double>::infinity();

using Row = std::vector<double>;

std::vector<Row> readTable(const std::string& name, std::size_t columns) {
    std::vector<Row> rows;
    std::ifstream in(std::string(VH_TEST_DATA_DIR) + "/functions/data/" + name);
    std::string line;
    while (std::getline(in, line)) {
        if (line.empty() || line[0] == '#') continue;
        Row row;
        std::stringstream fields(line);
        std::string field;
        while (std::getline(fields, field, ',')) row.push_back(std::strtod(field.c_str(), nullptr));
        if (row.size() == columns) rows.push_back(row);
        else ADD_FAILURE() << name << ": malformed line " << line;
    }
    return rows;
}

// Error of `got` against `ref`, relative to `scale` (|ref| unless the table
// says otherwise); below 1e-300 the comparison is absolute.
double errorOf(cd got, cd ref, double scale) {
    if (std::isnan(got.real()) || std::isnan(got.imag())) return kInf;
    double diff = std::abs(got - ref);
    if (diff == 0.0) return 0.0;
    return diff / std::max(scale, 1e-300);
}

// Keeps the worst error of a table and reports it with the test.
struct Worst {
    double error = 0.0;
    std::string where;

    void add(double e, const std::string& point) {
        if (e > error) {
            error = e;
            where = point;
        }
    }
    void record(const char* key) const {
        std::ostringstream text;
        text << error << " at " << where;
        ::testing::Test::RecordProperty(key, text.str());
    }
};

std::string point(std::initializer_list<double> values) {
    std::ostringstream text;
    text.precision(17);
    text << '(';
    const char* sep = "";
    for (double v : values) {
        text << sep << v;
        sep = ", ";
    }
    text << ')';
    return text.str();
}

// ------------------------------------------------------------------ Struve --

TEST(SpecialKernels, StruveMatchesReference) {
    auto rows = readTable("struve.csv", 5);
    ASSERT_GE(rows.size(), 200u);
    Worst worst;
    for (const Row& r : rows) {
        double nu = r[0], x = r[1];
        cd ref(r[2], r[3]);
        double e = errorOf(struve(nu, x), ref, r[4]);
        worst.add(e, point({nu, x}));
        EXPECT_LE(e, kTolerance) << "H_nu(x) at " << point({nu, x});
        if (x >= 0.0 || nu == std::floor(nu)) {
            EXPECT_LE(errorOf(struveReal(nu, x), ref, r[4]), kTolerance) << "real H at " << point({nu, x});
        }
    }
    worst.record("struve_worst");
}

TEST(SpecialKernels, StruveEdgeValues) {
    // at zero
    EXPECT_EQ(struve(0.0, 0.0), cd(0.0, 0.0));
    EXPECT_EQ(struve(2.5, 0.0), cd(0.0, 0.0));
    EXPECT_DOUBLE_EQ(struve(-1.0, 0.0).real(), 2.0 / M_PI);
    EXPECT_TRUE(std::isinf(struve(-1.3, 0.0).real()));
    // Orders beyond the reach of double precision have no value.
    EXPECT_TRUE(std::isnan(struve(-2147483648.0, 3.0).real()));
    EXPECT_TRUE(std::isnan(struve(1e6, 3.0).real()));
    // limits at infinity: 0 below order 1, 2/pi at 1, infinite above
    EXPECT_EQ(struve(0.5, kInf).real(), 0.0);
    EXPECT_DOUBLE_EQ(struve(1.0, kInf).real(), 2.0 / M_PI);
    EXPECT_EQ(struve(3.0, kInf).real(), kInf);
    EXPECT_EQ(struve(3.0, -kInf).real(), kInf);  // (-1)^4 = 1
    EXPECT_EQ(struve(2.0, -kInf).real(), -kInf);
    // whole orders: H_n(-x) = (-1)^(n+1) H_n(x), real and exact
    for (int n = 0; n <= 6; ++n) {
        for (double x : {0.7, 9.0, 55.0}) {
            cd neg = struve(n, -x);
            double pos = struveReal(n, x);
            EXPECT_EQ(neg.imag(), 0.0);
            EXPECT_EQ(neg.real(), (n % 2 == 0) ? -pos : pos) << n << ' ' << x;
            EXPECT_EQ(struveReal(n, -x), neg.real());
        }
    }
    // a fractional order gives a complex value for x < 0, which the real
    // helper refuses
    EXPECT_NE(struve(0.5, -2.0).imag(), 0.0);
    EXPECT_TRUE(std::isnan(struveReal(0.5, -2.0)));
    EXPECT_TRUE(std::isnan(struve(kNaN, 1.0).real()));
    EXPECT_TRUE(std::isnan(struve(1.0, kNaN).real()));
}

// ---------------------------------------------------------------- Lambert W --

TEST(SpecialKernels, LambertWMatchesReference) {
    auto rows = readTable("lambertw.csv", 5);
    ASSERT_GE(rows.size(), 200u);
    Worst worst;
    for (const Row& r : rows) {
        cd z(r[1], r[2]);
        cd ref(r[3], r[4]);
        if (r[0] == 0.0) {
            double e = errorOf(lambertWReal(z.real()), ref, std::abs(ref));
            worst.add(e, point({z.real()}));
            EXPECT_LE(e, kTolerance) << "real W at " << point({z.real()});
            EXPECT_EQ(lambertW(z.real()), cd(lambertWReal(z.real()), 0.0));
        } else {
            double e = errorOf(lambertW(z), ref, std::abs(ref));
            worst.add(e, point({z.real(), z.imag()}));
            EXPECT_LE(e, kTolerance) << "complex W at " << point({z.real(), z.imag()});
        }
    }
    worst.record("lambertw_worst");
}

TEST(SpecialKernels, LambertWEdgeValues) {
    EXPECT_EQ(lambertWReal(lambertBranchPoint), -1.0);
    EXPECT_EQ(lambertWReal(0.0), 0.0);
    EXPECT_EQ(lambertWReal(kInf), kInf);
    EXPECT_TRUE(std::isnan(lambertWReal(std::nextafter(lambertBranchPoint, -1.0))));
    EXPECT_TRUE(std::isnan(lambertWReal(kNaN)));
    // below -1/e the real-argument entry gives the principal complex value,
    // on the upper side of the cut whatever the sign of the zero
    cd w = lambertW(-0.5);
    EXPECT_GT(w.imag(), 0.0);
    EXPECT_EQ(lambertW(cd(-0.5, -0.0)), w);
    EXPECT_NEAR(std::abs(w * std::exp(w) - cd(-0.5, 0.0)), 0.0, 1e-15);
    // conjugate symmetry off the cut
    cd up = lambertW(cd(-2.0, 3.0)), down = lambertW(cd(-2.0, -3.0));
    EXPECT_EQ(up, std::conj(down));
    // infinities: W(z) ~ log z
    EXPECT_EQ(lambertW(cd(kInf, 0.0)), cd(kInf, 0.0));
    EXPECT_EQ(lambertW(cd(-kInf, 0.0)), cd(kInf, M_PI));
    EXPECT_TRUE(std::isnan(lambertW(cd(kNaN, 0.0)).real()));
}

// ------------------------------------------------------------ Gauss 2F1 -----

TEST(SpecialKernels, Hypergeometric2F1MatchesReference) {
    auto rows = readTable("hyp2f1.csv", 7);
    ASSERT_GE(rows.size(), 200u);
    Worst worst;
    for (const Row& r : rows) {
        cd z(r[3], r[4]);
        cd ref(r[5], r[6]);
        double e = errorOf(hypergeometric2F1(r[0], r[1], r[2], z), ref, std::abs(ref));
        worst.add(e, point({r[0], r[1], r[2], z.real(), z.imag()}));
        EXPECT_LE(e, kTolerance) << "2F1 at " << point({r[0], r[1], r[2], z.real(), z.imag()});
    }
    worst.record("hyp2f1_worst");
}

TEST(SpecialKernels, Hypergeometric2F1UndefinedPointsAndBranch) {
    // c a non-positive whole number: undefined unless the series ends first
    EXPECT_TRUE(std::isnan(hypergeometric2F1(1.0, 1.0, -2.0, 0.5).real()));
    EXPECT_TRUE(std::isnan(hypergeometric2F1(-5.0, 1.0, -3.0, 0.5).real()));
    cd ended = hypergeometric2F1(-2.0, 1.0, -3.0, 0.5);  // 1 + 1/3 + 1/12
    EXPECT_NEAR(ended.real(), 17.0 / 12.0, 1e-15);
    EXPECT_EQ(ended.imag(), 0.0);
    // z = 1: Gauss' sum when c - a - b > 0, undefined otherwise
    EXPECT_TRUE(std::isnan(hypergeometric2F1(1.0, 1.0, 2.0, 1.0).real()));
    EXPECT_TRUE(std::isnan(hypergeometric2F1(1.5, 1.0, 2.0, 1.0).real()));
    EXPECT_NEAR(hypergeometric2F1(1.0, 0.5, 3.0, 1.0).real(), 4.0 / 3.0, 1e-15);  // G(3)G(1.5)/(G(2)G(2.5))
    // a polynomial is finite at 1 whatever c - a - b (Chu-Vandermonde: (c-b)_n/(c)_n)
    EXPECT_NEAR(hypergeometric2F1(-3.0, 2.0, 4.0, 1.0).real(), 0.2, 1e-15);
    EXPECT_NEAR(hypergeometric2F1(-2.0, 3.0, 1.0, 1.0).real(), 1.0, 1e-15);
    // the trivial values
    EXPECT_EQ(hypergeometric2F1(0.0, 3.0, 2.5, cd(7.0, 1.0)), cd(1.0, 0.0));
    EXPECT_EQ(hypergeometric2F1(2.0, 3.0, 2.5, 0.0), cd(1.0, 0.0));
    // on the cut z > 1 the value is the limit from below; just above it is
    // the conjugate for real parameters
    cd below = hypergeometric2F1(0.3, 0.7, 1.4, 2.0);
    cd above = hypergeometric2F1(0.3, 0.7, 1.4, cd(2.0, 1e-200));
    EXPECT_LT(below.imag(), 0.0);
    EXPECT_NEAR(std::abs(above - std::conj(below)), 0.0, 1e-14);
    EXPECT_EQ(hypergeometric2F1(0.3, 0.7, 1.4, cd(2.0, -0.0)), below);
    // real z below 1 gives a real value
    EXPECT_EQ(hypergeometric2F1(0.3, 0.7, 1.4, -30.0).imag(), 0.0);
    EXPECT_EQ(hypergeometric2F1(0.5, 0.5, 1.0, 0.999).imag(), 0.0);
    // 2F1(1, 1; 2; z) = -log(1 - z)/z, a logarithmic case at infinity
    cd z(-1e6, 3.0);
    EXPECT_LE(std::abs(hypergeometric2F1(1.0, 1.0, 2.0, z) - (-std::log(1.0 - z) / z)) /
                  std::abs(std::log(1.0 - z) / z),
              1e-14);
    EXPECT_TRUE(std::isnan(hypergeometric2F1(kNaN, 1.0, 2.0, 0.5).real()));
    EXPECT_TRUE(std::isnan(hypergeometric2F1(1.0, 1.0, 2.0, cd(kInf, 0.0)).real()));
}

// ----------------------------------------------------------- Fermi-Dirac ----

TEST(SpecialKernels, FermiDiracMatchesReference) {
    auto rows = readTable("fermidirac.csv", 3);
    ASSERT_GE(rows.size(), 200u);
    Worst worst;
    for (const Row& r : rows) {
        double e = errorOf(fermiDirac(r[0], r[1]), r[2], std::fabs(r[2]));
        worst.add(e, point({r[0], r[1]}));
        EXPECT_LE(e, kTolerance) << "F_j(x) at " << point({r[0], r[1]});
    }
    worst.record("fermidirac_worst");
}

TEST(SpecialKernels, FermiDiracEdgeValues) {
    // j = -1 is the limiting logistic function
    EXPECT_DOUBLE_EQ(fermiDirac(-1.0, 0.0), 0.5);
    EXPECT_DOUBLE_EQ(fermiDirac(-1.0, 2.0), 1.0 / (1.0 + std::exp(-2.0)));
    EXPECT_TRUE(std::isnan(fermiDirac(-1.5, 1.0)));
    EXPECT_TRUE(std::isnan(fermiDirac(0.5, kNaN)));
    EXPECT_EQ(fermiDirac(0.5, -kInf), 0.0);
    EXPECT_EQ(fermiDirac(0.5, kInf), kInf);
    // F_0(x) = log(1 + e^x) on both sides of the switch between methods
    for (double x : {-3.0, -1.0, -0.2, 0.7, 1.0, 4.0, 60.0}) {
        double exact = x > 0 ? x + std::log1p(std::exp(-x)) : std::log1p(std::exp(x));
        EXPECT_NEAR(fermiDirac(0.0, x) / exact, 1.0, 1e-14) << x;
    }
}

// ------------------------------------------------------ Fresnel, Dawson ------

TEST(SpecialKernels, FresnelAndDawsonMatchReference) {
    auto rows = readTable("fresnel_dawson.csv", 4);
    ASSERT_GE(rows.size(), 200u);
    Worst worstS, worstC, worstD;
    for (const Row& r : rows) {
        double x = r[0];
        double es = errorOf(fresnelS(x), r[1], std::fabs(r[1]));
        double ec = errorOf(fresnelC(x), r[2], std::fabs(r[2]));
        double ed = errorOf(dawson(x), r[3], std::fabs(r[3]));
        worstS.add(es, point({x}));
        worstC.add(ec, point({x}));
        worstD.add(ed, point({x}));
        EXPECT_LE(es, kTolerance) << "S at " << point({x});
        EXPECT_LE(ec, kTolerance) << "C at " << point({x});
        EXPECT_LE(ed, kTolerance) << "Dawson at " << point({x});
    }
    worstS.record("fresnel_s_worst");
    worstC.record("fresnel_c_worst");
    worstD.record("dawson_worst");
}

TEST(SpecialKernels, FresnelAndDawsonEdgeValues) {
    EXPECT_EQ(fresnelS(kInf), 0.5);
    EXPECT_EQ(fresnelC(kInf), 0.5);
    EXPECT_EQ(fresnelS(-kInf), -0.5);
    EXPECT_EQ(fresnelC(-kInf), -0.5);
    EXPECT_EQ(dawson(kInf), 0.0);
    EXPECT_EQ(fresnelS(0.0), 0.0);
    EXPECT_EQ(dawson(0.0), 0.0);
    for (double x : {0.3, 1.5, 3.7, 60.0, 1e9}) {
        EXPECT_EQ(fresnelS(-x), -fresnelS(x));
        EXPECT_EQ(fresnelC(-x), -fresnelC(x));
        EXPECT_EQ(dawson(-x), -dawson(x));
    }
    EXPECT_TRUE(std::isnan(fresnelS(kNaN)));
    EXPECT_TRUE(std::isnan(fresnelC(kNaN)));
    EXPECT_TRUE(std::isnan(dawson(kNaN)));
}

}  // namespace
