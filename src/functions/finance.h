#pragma once

// Time value of money and bonds on plain doubles. Rates and yields are per
// period and above -1; payments fall at the end of each period. Cash paid
// out is negative, cash received positive, so that a loan taken (positive
// present value) is paid off by negative payments. Bonds are priced per unit
// of face value. Every kernel returns NaN where its result does not exist.

namespace VarnholtMath {
namespace ValueTypes {
namespace finance {

// The present value of an annuity of one per period: (1 - (1+r)^-n) / r,
// n at r = 0, computed without cancellation for small rates.
double annuityFactor(double rate, double periods);

double presentValue(double rate, double periods, double payment, double futureValue);
double futureValue(double rate, double periods, double payment, double presentValue);
double payment(double rate, double periods, double presentValue);
double interestPayment(double rate, double period, double periods, double presentValue);
double capitalPayment(double rate, double period, double periods, double presentValue);
double rate(double periods, double payment, double presentValue);
double numberOfPeriods(double rate, double payment, double presentValue);

double bondPrice(double coupon, double yield, double periods);
double bondYield(double price, double coupon, double periods);
double bondDuration(double coupon, double yield, double periods);
double bondModifiedDuration(double annualCoupon, double annualYield, double years, double paymentsPerYear);
double bondConvexity(double coupon, double yield, double periods);
double bondAccruedInterest(double coupon, double daysSinceCoupon, double daysInPeriod);

} // namespace finance
} // namespace ValueTypes
} // namespace VarnholtMath
