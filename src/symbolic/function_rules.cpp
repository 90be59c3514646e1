// The identities that held functions know: the squares of sine and cosine,
// sums and differences of logarithms of one base, the products sin*cos and
// tan*cot, and the double angle in a quotient of sines and cosines. Each
// applies only to terms of coefficient 1 or -1, so that 2 sin^2 x + 2 cos^2 x
// stays as it is.

#include "symbolic/function_rules.h"

#include "frame/node_type.h"
#include "symbolic/atom_internal.h"

namespace VarnholtMath {
namespace ValueTypes {
namespace internal {

namespace {

bool isSineCosinePair(int a, int b) { return (a == nt_sin && b == nt_cos) || (a == nt_cos && b == nt_sin); }
bool isLogarithmId(int id) { return id == nt_log || id == nt_log10 || id == nt_log2; }

// Both terms are functions with the given power and coefficients of 1 or -1.
bool plainPair(const vhValue& a, const vhValue& b, double power, double& c1, double& c2)
{
    return a.exp() == power && b.exp() == power && unitCoefficient(a, c1) && unitCoefficient(b, c2);
}

} // namespace

bool trigonometricSum(const vhValue& self, const vhValue& other, vhValue& out)
{
    const int id1 = self.functionID();
    const int id2 = other.functionID();
    double c1 = 0.0, c2 = 0.0;
    if (isSineCosinePair(id1, id2)) {
        if (!plainPair(self, other, 2.0, c1, c2))
            return false;
        std::vector<vhValue> a = self.functionArguments();
        const std::vector<vhValue> b = other.functionArguments();
        if ((a.size() != 1 && b.size() != 1) || a.empty() || b.empty() || a[0] != b[0])
            return false;
        if (c1 == c2) {
            // sin^2 x + cos^2 x = 1
            out = vhInteger(1) * *self.firstMultiplier();
            return !out.isNull();
        }
        // sin^2 x - cos^2 x = -cos(2x), cos^2 x - sin^2 x = cos(2x)
        a[0] = a[0] * vhInteger(2);
        vhValue doubled = makeFunction(nt_cos, a);
        if (doubled.isNull())
            return false;
        out = doubled * (id2 == nt_cos ? *other.firstMultiplier() : *self.firstMultiplier());
        return !out.isNull();
    }
    if (isLogarithmId(id1) && id1 == id2) {
        if (!plainPair(self, other, 1.0, c1, c2))
            return false;
        std::vector<vhValue> a = self.functionArguments();
        std::vector<vhValue> b = other.functionArguments();
        if ((a.size() != 1 && b.size() != 1) || a.empty() || b.empty() || self.functionArgumentsEqual(other))
            return false;
        if (c1 == c2) {
            // log a + log b = log(a b)
            a[0] = a[0] * b[0];
            out = makeFunction(id1, a) * *self.firstMultiplier();
        } else if (c1 == 1.0) {
            // log a - log b = log(a / b)
            a[0] = a[0] / b[0];
            out = makeFunction(id1, a) * *self.firstMultiplier();
        } else {
            // -log a + log b = log(b / a)
            b[0] = b[0] / a[0];
            out = makeFunction(id1, b);
        }
        return !out.isNull();
    }
    return false;
}

bool differenceTakesSumRules(const vhValue& self, const vhValue& other)
{
    const int id1 = self.functionID();
    const int id2 = other.functionID();
    if (isSineCosinePair(id1, id2))
        return self.exp() == 2.0 && other.exp() == 2.0;
    return isLogarithmId(id1) && id1 == id2 && self.exp() == 1.0 && other.exp() == 1.0;
}

bool trigonometricProduct(const vhValue& self, const vhValue& other, vhValue& out)
{
    const int id1 = self.functionID();
    const int id2 = other.functionID();
    const bool sineCosine = isSineCosinePair(id1, id2);
    const bool tangentCotangent = (id1 == nt_tan && id2 == nt_cot) || (id1 == nt_cot && id2 == nt_tan);
    if (!sineCosine && !tangentCotangent)
        return false;
    double c1 = 0.0, c2 = 0.0;
    if (!plainPair(self, other, 1.0, c1, c2) || !self.functionArgumentsEqual(other))
        return false;
    const vhValue& k1 = *self.firstMultiplier();
    const vhValue& k2 = *other.firstMultiplier();
    if (tangentCotangent) {
        out = vhInteger(1) * k1 * k2;
        return !out.isNull();
    }
    // sin x cos x = sin(2x) / 2
    std::vector<vhValue> a = self.functionArguments();
    if (a.empty())
        return false;
    a[0] = a[0] * vhInteger(2);
    vhValue doubled = makeFunction(nt_sin, a);
    if (doubled.isNull())
        return false;
    out = doubled / vhInteger(2) * k1 * k2;
    return !out.isNull();
}

bool trigonometricQuotient(const vhValue& self, const vhValue& other, vhValue& out)
{
    const int id2 = other.functionID();
    if (self.functionID() != nt_sin || (id2 != nt_sin && id2 != nt_cos))
        return false;
    double c1 = 0.0, c2 = 0.0;
    if (!plainPair(self, other, 1.0, c1, c2))
        return false;
    const std::vector<vhValue> a = self.functionArguments();
    const std::vector<vhValue> b = other.functionArguments();
    if (a.size() != 1 || b.size() != 1 || !a[0].isSymbolicValue() || !b[0].isSymbolicValue())
        return false;
    // The double angle: sin(2x)/sin(x) = 2 cos x, sin(2x)/cos(x) = 2 sin x.
    if (!(a[0] / b[0] == vhInteger(2)))
        return false;
    vhValue half = makeFunction(id2 == nt_sin ? nt_cos : nt_sin, b);
    if (half.isNull())
        return false;
    out = vhInteger(2) * half * *self.firstMultiplier() * *other.firstMultiplier();
    return !out.isNull();
}

} // namespace internal
} // namespace ValueTypes
} // namespace VarnholtMath
