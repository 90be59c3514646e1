// Loans, annuities and bonds. The kernels work on doubles; the members map
// them over arrays and hold symbolic calls.

#include "functions/finance.h"

#include <cmath>
#include <limits>

#include "frame/math.h"
#include "functions/real_rows.h"

namespace VarnholtMath {
namespace ValueTypes {
namespace finance {

namespace {

const double kNaN = std::numeric_limits<double>::quiet_NaN();
// The sums of bonds run over every period; a bond longer than this is no
// bond but a runaway argument.
const double kMaxBondPeriods = 1e7;

bool wholeAtLeastOne(double n) { return std::isfinite(n) && n >= 1.0 && std::floor(n) == n; }
bool validRate(double r) { return std::isfinite(r) && r > -1.0; }

// (1 + r)^n accurately for small r.
double growth(double r, double n) { return std::exp(n * std::log1p(r)); }

double finiteOrNaN(double x) { return std::isfinite(x) ? x : kNaN; }

// The root of a decreasing function on (-1, inf) that is positive near -1
// and negative for large arguments, by bisection down to adjacent doubles.
template <class F> double decreasingRoot(F f)
{
    double lo = -1.0 + 1e-12, hi = 1.0;
    if (!(f(lo) > 0.0))
        return kNaN;
    for (int k = 0; k < 2000 && !(f(hi) < 0.0); ++k) {
        lo = hi;
        hi *= 2.0;
        if (!std::isfinite(hi))
            return kNaN;
    }
    for (int k = 0; k < 4000; ++k) {
        const double mid = lo + (hi - lo) / 2.0;
        if (mid <= lo || mid >= hi)
            break;
        const double v = f(mid);
        if (v == 0.0)
            return mid;
        (v > 0.0 ? lo : hi) = mid;
    }
    return lo + (hi - lo) / 2.0;
}

} // namespace

double annuityFactor(double rate, double periods)
{
    if (rate == 0.0)
        return periods;
    return -std::expm1(-periods * std::log1p(rate)) / rate;
}

double presentValue(double r, double n, double pmt, double fv)
{
    if (!validRate(r) || !wholeAtLeastOne(n) || !std::isfinite(pmt) || !std::isfinite(fv))
        return kNaN;
    return finiteOrNaN(-(pmt * annuityFactor(r, n) + fv / growth(r, n)));
}

double futureValue(double r, double n, double pmt, double pv)
{
    if (!validRate(r) || !wholeAtLeastOne(n) || !std::isfinite(pmt) || !std::isfinite(pv))
        return kNaN;
    const double g = growth(r, n);
    // The future value of the annuity: ((1+r)^n - 1) / r, n at r = 0.
    const double s = r == 0.0 ? n : std::expm1(n * std::log1p(r)) / r;
    return finiteOrNaN(-(pv * g + pmt * s));
}

double payment(double r, double n, double pv)
{
    if (!validRate(r) || !wholeAtLeastOne(n) || !std::isfinite(pv))
        return kNaN;
    return finiteOrNaN(-pv / annuityFactor(r, n));
}

// The interest of a period is the rate times the balance owed at its start,
// with the sign of a payment.
double interestPayment(double r, double per, double n, double pv)
{
    if (!wholeAtLeastOne(per) || per > n)
        return kNaN;
    const double pmt = payment(r, n, pv);
    if (std::isnan(pmt))
        return kNaN;
    if (per == 1.0)
        return finiteOrNaN(-pv * r);
    return finiteOrNaN(futureValue(r, per - 1.0, pmt, pv) * r);
}

double capitalPayment(double r, double per, double n, double pv)
{
    return finiteOrNaN(payment(r, n, pv) - interestPayment(r, per, n, pv));
}

// The rate solves pv + pmt * a(r) = 0. The annuity factor falls from
// infinity to 0 over the rates above -1, so a solution exists exactly when
// payment and present value have opposite signs, and it is unique.
double rate(double n, double pmt, double pv)
{
    if (!wholeAtLeastOne(n) || !std::isfinite(pmt) || !std::isfinite(pv) || pmt == 0.0 || pv == 0.0)
        return kNaN;
    const double target = -pv / pmt;
    if (!(target > 0.0))
        return kNaN;
    return decreasingRoot([n, target](double r) { return annuityFactor(r, n) - target; });
}

double numberOfPeriods(double r, double pmt, double pv)
{
    if (!validRate(r) || !std::isfinite(pmt) || !std::isfinite(pv) || pmt == 0.0)
        return kNaN;
    if (r == 0.0)
        return finiteOrNaN(-pv / pmt);
    // (1+r)^n = pmt / (pmt + pv r)
    const double q = pmt / (pmt + pv * r);
    if (!(q > 0.0) || !std::isfinite(q))
        return kNaN;
    return finiteOrNaN(std::log(q) / std::log1p(r));
}

double bondPrice(double c, double y, double n)
{
    if (!validRate(y) || !wholeAtLeastOne(n) || !std::isfinite(c))
        return kNaN;
    // A zero coupon adds nothing, also where the annuity factor overflows.
    const double coupons = c == 0.0 ? 0.0 : c * annuityFactor(y, n);
    return finiteOrNaN(coupons + 1.0 / growth(y, n));
}

// The price falls with the yield from infinity to 0 when the coupon is not
// negative, so every positive price has one yield.
double bondYield(double price, double c, double n)
{
    if (!std::isfinite(price) || price <= 0.0 || !std::isfinite(c) || c < 0.0 || !wholeAtLeastOne(n))
        return kNaN;
    return decreasingRoot([price, c, n](double y) { return bondPrice(c, y, n) - price; });
}

namespace {

// The price and the sums of t v^t and t (t+1) v^(t+2) weighted by the cash
// flows, in one pass.
bool bondSums(double c, double y, double n, double& price, double& timeWeighted, double& secondOrder)
{
    if (!validRate(y) || !wholeAtLeastOne(n) || n > kMaxBondPeriods || !std::isfinite(c))
        return false;
    const double v = 1.0 / (1.0 + y);
    price = timeWeighted = secondOrder = 0.0;
    double discount = 1.0;
    const long periods = static_cast<long>(n);
    for (long t = 1; t <= periods; ++t) {
        discount *= v;
        const double flow = t == periods ? c + 1.0 : c;
        const double pv = flow * discount;
        price += pv;
        timeWeighted += t * pv;
        secondOrder += t * (t + 1.0) * pv * v * v;
    }
    return std::isfinite(price) && price != 0.0 && std::isfinite(timeWeighted) && std::isfinite(secondOrder);
}

} // namespace

double bondDuration(double c, double y, double n)
{
    double p, tw, so;
    return bondSums(c, y, n, p, tw, so) ? finiteOrNaN(tw / p) : kNaN;
}

// In years: the duration in periods of the coupon and yield per period,
// divided by the payments per year, and by one plus the yield per period.
double bondModifiedDuration(double annualCoupon, double annualYield, double years, double perYear)
{
    if (!wholeAtLeastOne(years) || !wholeAtLeastOne(perYear))
        return kNaN;
    const double y = annualYield / perYear;
    const double periodsDuration = bondDuration(annualCoupon / perYear, y, years * perYear);
    return finiteOrNaN(periodsDuration / perYear / (1.0 + y));
}

double bondConvexity(double c, double y, double n)
{
    double p, tw, so;
    return bondSums(c, y, n, p, tw, so) ? finiteOrNaN(so / p) : kNaN;
}

double bondAccruedInterest(double c, double days, double periodDays)
{
    if (!std::isfinite(c) || !std::isfinite(days) || std::floor(days) != days || days < 0.0 ||
        !wholeAtLeastOne(periodDays) || days > periodDays)
        return kNaN;
    return c * days / periodDays;
}

} // namespace finance

using realrows::map;

vhValue vhMath::presentvalue_f(const vhValue& r, const vhValue& n, const vhValue& pmt, const vhValue& fv)
{
    return map({&r, &n, &pmt, &fv}, nt_presentvalue, [](const double* a) { return finance::presentValue(a[0], a[1], a[2], a[3]); });
}

vhValue vhMath::futurevalue_f(const vhValue& r, const vhValue& n, const vhValue& pmt, const vhValue& pv)
{
    return map({&r, &n, &pmt, &pv}, nt_futurevalue, [](const double* a) { return finance::futureValue(a[0], a[1], a[2], a[3]); });
}

vhValue vhMath::annualpayment_f(const vhValue& r, const vhValue& n, const vhValue& pv)
{
    return map({&r, &n, &pv}, nt_annualpayment, [](const double* a) { return finance::payment(a[0], a[1], a[2]); });
}

vhValue vhMath::interestpayment_f(const vhValue& r, const vhValue& per, const vhValue& n, const vhValue& pv)
{
    return map({&r, &per, &n, &pv}, nt_interestpayment,
               [](const double* a) { return finance::interestPayment(a[0], a[1], a[2], a[3]); });
}

vhValue vhMath::capitalpayment_f(const vhValue& r, const vhValue& per, const vhValue& n, const vhValue& pv)
{
    return map({&r, &per, &n, &pv}, nt_capitalpayment,
               [](const double* a) { return finance::capitalPayment(a[0], a[1], a[2], a[3]); });
}

vhValue vhMath::rate_f(const vhValue& n, const vhValue& pmt, const vhValue& pv)
{
    return map({&n, &pmt, &pv}, nt_rate, [](const double* a) { return finance::rate(a[0], a[1], a[2]); });
}

vhValue vhMath::numberofperiods_f(const vhValue& r, const vhValue& pmt, const vhValue& pv)
{
    return map({&r, &pmt, &pv}, nt_numberofperiods, [](const double* a) { return finance::numberOfPeriods(a[0], a[1], a[2]); });
}

vhValue vhMath::bondprice_f(const vhValue& c, const vhValue& y, const vhValue& n)
{
    return map({&c, &y, &n}, nt_bondprice, [](const double* a) { return finance::bondPrice(a[0], a[1], a[2]); });
}

vhValue vhMath::bondyieldtomaturity_f(const vhValue& price, const vhValue& c, const vhValue& n)
{
    return map({&price, &c, &n}, nt_bondyieldtomaturity, [](const double* a) { return finance::bondYield(a[0], a[1], a[2]); });
}

vhValue vhMath::bondduration_f(const vhValue& c, const vhValue& y, const vhValue& n)
{
    return map({&c, &y, &n}, nt_bondduration, [](const double* a) { return finance::bondDuration(a[0], a[1], a[2]); });
}

vhValue vhMath::bonddurationmodified_f(const vhValue& c, const vhValue& y, const vhValue& years, const vhValue& perYear)
{
    return map({&c, &y, &years, &perYear}, nt_bonddurationmodified,
               [](const double* a) { return finance::bondModifiedDuration(a[0], a[1], a[2], a[3]); });
}

vhValue vhMath::bondconvexity_f(const vhValue& c, const vhValue& y, const vhValue& n)
{
    return map({&c, &y, &n}, nt_bondconvexity, [](const double* a) { return finance::bondConvexity(a[0], a[1], a[2]); });
}

vhValue vhMath::bondaccuredinterest_f(const vhValue& c, const vhValue& days, const vhValue& periodDays)
{
    return map({&c, &days, &periodDays}, nt_bondaccuredinterest,
               [](const double* a) { return finance::bondAccruedInterest(a[0], a[1], a[2]); });
}

} // namespace ValueTypes
} // namespace VarnholtMath
