// Loans, annuities and bonds against values computed from the cash flows at
// 50 digits (data/make_finance_reference.py), and textbook examples.

#include <gtest/gtest.h>

#include <cmath>
#include <fstream>
#include <limits>
#include <sstream>
#include <string>
#include <vector>

#include "frame/math.h"
#include "functions/finance.h"

using namespace VarnholtMath::ValueTypes;

namespace {
vhValue d(double v) { return vhDouble(v); }
const double kNaN = std::numeric_limits<double>::quiet_NaN();
const double kInf = std::numeric_limits<double>::infinity();

vhValue byName(vhMath& m, const std::string& name, const std::vector<vhValue>& a)
{
    if (name == "presentvalue") return m.presentvalue_f(a[0], a[1], a[2], a[3]);
    if (name == "futurevalue") return m.futurevalue_f(a[0], a[1], a[2], a[3]);
    if (name == "annualpayment") return m.annualpayment_f(a[0], a[1], a[2]);
    if (name == "interestpayment") return m.interestpayment_f(a[0], a[1], a[2], a[3]);
    if (name == "capitalpayment") return m.capitalpayment_f(a[0], a[1], a[2], a[3]);
    if (name == "rate") return m.rate_f(a[0], a[1], a[2]);
    if (name == "numberofperiods") return m.numberofperiods_f(a[0], a[1], a[2]);
    if (name == "bondprice") return m.bondprice_f(a[0], a[1], a[2]);
    if (name == "bondyieldtomaturity") return m.bondyieldtomaturity_f(a[0], a[1], a[2]);
    if (name == "bondduration") return m.bondduration_f(a[0], a[1], a[2]);
    if (name == "bonddurationmodified") return m.bonddurationmodified_f(a[0], a[1], a[2], a[3]);
    if (name == "bondconvexity") return m.bondconvexity_f(a[0], a[1], a[2]);
    return vhValue();
}
} // namespace

TEST(Finance, AgreesWithTheCashFlows)
{
    std::ifstream in(std::string(VH_TEST_DATA_DIR) + "/functions/data/finance_reference.tsv");
    ASSERT_TRUE(in.good());
    vhMath m;
    std::string line;
    int count = 0;
    while (std::getline(in, line)) {
        std::istringstream fields(line);
        std::string name, field;
        std::getline(fields, name, '\t');
        std::vector<double> numbers;
        while (std::getline(fields, field, '\t'))
            numbers.push_back(std::stod(field));
        const double expected = numbers.back();
        numbers.pop_back();
        std::vector<vhValue> args;
        for (double x : numbers)
            args.push_back(d(x));
        const vhValue got = byName(m, name, args);
        ASSERT_FALSE(got.isNull()) << line;
        EXPECT_NEAR(expected, got.toDouble(), 1e-11 * std::fmax(1.0, std::fabs(expected))) << line;
        ++count;
    }
    EXPECT_GT(count, 140);
}

TEST(Finance, TextbookLoansAndBonds)
{
    vhMath m;
    // A loan of 200000 over 30 years of monthly payments at 6.5 % a year.
    EXPECT_NEAR(-1264.1360469859, m.annualpayment_f(d(0.065 / 12), vhInteger(360), d(200000)).toDouble(), 1e-9);
    // The first month's interest is the rate on the whole loan.
    EXPECT_NEAR(-1083.3333333333, m.interestpayment_f(d(0.065 / 12), vhInteger(1), vhInteger(360), d(200000)).toDouble(),
                1e-6);
    // Payments of 100 at 0 %: the plain sum.
    EXPECT_EQ(-1200.0, m.futurevalue_f(d(0.0), vhInteger(12), d(100.0), d(0.0)).toDouble());
    EXPECT_EQ(-1200.0, m.presentvalue_f(d(0.0), vhInteger(12), d(100.0), d(0.0)).toDouble());
    // A bond at par yields its coupon; its price is 1.
    EXPECT_NEAR(1.0, m.bondprice_f(d(0.05), d(0.05), vhInteger(10)).toDouble(), 1e-15);
    EXPECT_NEAR(0.05, m.bondyieldtomaturity_f(d(1.0), d(0.05), vhInteger(10)).toDouble(), 1e-14);
    // A zero-coupon bond lasts exactly its maturity.
    EXPECT_NEAR(20.0, m.bondduration_f(d(0.0), d(0.03), vhInteger(20)).toDouble(), 1e-12);
    EXPECT_EQ(0.025, m.bondaccuredinterest_f(d(0.05), vhInteger(90), vhInteger(180)).toDouble());
    // Round trips: rate and periods recover the payment's inputs.
    const vhValue pmt = m.annualpayment_f(d(0.004), vhInteger(48), d(30000));
    EXPECT_NEAR(0.004, m.rate_f(vhInteger(48), pmt, d(30000)).toDouble(), 1e-15);
    EXPECT_NEAR(48.0, m.numberofperiods_f(d(0.004), pmt, d(30000)).toDouble(), 1e-10);
    // Interest and capital make up every payment; the capital pays the loan.
    double capital = 0.0;
    for (int per = 1; per <= 48; ++per) {
        const double i = m.interestpayment_f(d(0.004), vhInteger(per), vhInteger(48), d(30000)).toDouble();
        const double c = m.capitalpayment_f(d(0.004), vhInteger(per), vhInteger(48), d(30000)).toDouble();
        EXPECT_NEAR(pmt.toDouble(), i + c, 1e-9);
        capital += c;
    }
    EXPECT_NEAR(-30000.0, capital, 1e-8);
}

TEST(Finance, RefusedArguments)
{
    vhMath m;
    // Rates at or below -1, periods that are no positive whole numbers.
    EXPECT_TRUE(m.presentvalue_f(d(-1.0), vhInteger(10), d(1), d(1)).isNull());
    EXPECT_TRUE(m.futurevalue_f(d(0.1), vhInteger(0), d(1), d(1)).isNull());
    EXPECT_TRUE(m.annualpayment_f(d(0.1), d(2.5), d(1000)).isNull());
    EXPECT_TRUE(m.interestpayment_f(d(0.1), vhInteger(11), vhInteger(10), d(1000)).isNull());
    EXPECT_TRUE(m.capitalpayment_f(d(0.1), vhInteger(0), vhInteger(10), d(1000)).isNull());
    // No rate pays off a loan with payments of the loan's own sign.
    EXPECT_TRUE(m.rate_f(vhInteger(10), d(100), d(1000)).isNull());
    EXPECT_TRUE(m.rate_f(vhInteger(10), d(0), d(1000)).isNull());
    // Payments smaller than the interest never pay off the loan.
    EXPECT_TRUE(m.numberofperiods_f(d(0.1), d(-50), d(1000)).isNull());
    EXPECT_TRUE(m.bondyieldtomaturity_f(d(-0.5), d(0.05), vhInteger(10)).isNull());
    EXPECT_TRUE(m.bondduration_f(d(0.05), d(0.05), d(1e9)).isNull());
    EXPECT_TRUE(m.bondaccuredinterest_f(d(0.05), vhInteger(200), vhInteger(180)).isNull());
    EXPECT_TRUE(m.bonddurationmodified_f(d(0.05), d(0.05), vhInteger(10), vhInteger(0)).isNull());
    for (double bad : {kNaN, kInf})
        EXPECT_TRUE(m.bondprice_f(d(0.05), d(bad), vhInteger(10)).isNull());
    EXPECT_TRUE(m.bondprice_f(vhComplex(0.05, 1.0), d(0.05), vhInteger(10)).isNull());
    EXPECT_TRUE(m.bondprice_f(vhSymbolicValue("c", true, {}), d(0.05), vhInteger(10)).isNull());
    EXPECT_EQ(nt_bondprice, m.bondprice_f(vhSymbolicValue("c", false, {}), d(0.05), vhInteger(10)).functionID());
}

TEST(Finance, ArraysAndDispatch)
{
    vhMath m;
    double rates[3] = {0.0, 0.05, -1.5};
    const vhValue p = m.annualpayment_f(vhVector(rates, 3, true), vhInteger(10), d(1000));
    ASSERT_EQ(3u, p.vectorSize());
    EXPECT_EQ(-100.0, p.valueToDouble(0));
    EXPECT_DOUBLE_EQ(finance::payment(0.05, 10, 1000), p.valueToDouble(1));
    EXPECT_TRUE(std::isnan(p.valueToDouble(2)));
    EXPECT_DOUBLE_EQ(finance::bondPrice(0.04, 0.05, 10),
                     callFunction(&m, nt_bondprice, {d(0.04), d(0.05), vhInteger(10)}).toDouble());
    EXPECT_EQ(-1200.0, callFunction(&m, nt_presentvalue, {d(0.0), vhInteger(12), d(100.0), d(0.0)}).toDouble());
    EXPECT_EQ(0.5, callFunction(&m, nt_bondaccuredinterest, {d(1.0), vhInteger(1), vhInteger(2)}).toDouble());
}
