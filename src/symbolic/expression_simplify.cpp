// Recognising a sum as a perfect square or cube of a binomial:
// x^2 + 2xy + y^2 is (x + y)^2, x^3 - 3x^2y + 3xy^2 - y^3 is (x - y)^3. The
// answer is the binomial, marked as bracketed with its power for the text
// form; the algebra still sees a plain sum.

#include "value/value.h"

#include "functions/elementary.h"

namespace VarnholtMath {
namespace ValueTypes {

namespace {

std::vector<vhValue> bracketed(const vhValue& binomial, double power)
{
    vhExpression e(binomial);
    e.setBracket(true);
    e.setBracketExponent(power);
    return std::vector<vhValue>(1, e);
}

} // namespace

std::vector<vhValue> vhExpression::simplify() const
{
    if (isNull() || m_valueType != tagExpression)
        return std::vector<vhValue>();
    std::vector<std::string> names;
    symbols(names, false);
    const std::vector<vhValue>& t = m_expressionValues;

    if (t.size() == 3 && names.size() == 2) {
        // Only the symbols themselves are tried: 4x^2 + 4xy + y^2 is not
        // recognised.
        const vhSymbolicValue a(names[0], false, std::vector<CharFormat>());
        const vhSymbolicValue b(names[1], false, std::vector<CharFormat>());
        const vhValue square = a * a;
        const vhValue middle = (vhInteger(2) * a) * b;
        const vhValue last = b * b;
        if (*this == square + middle + last)
            return bracketed(a + b, 2.0);
        if (*this == square - middle + last)
            return bracketed(a - b, 2.0);
        return std::vector<vhValue>();
    }

    if (t.size() == 4) {
        vhValue t0 = t[0], t1 = t[1], t2 = t[2], t3 = t[3];
        bool difference = false;
        if (t3.isNegative()) {
            t3 = t3 * vhInteger(-1);
            difference = true;
        }
        t0 = root_f(t0, vhInteger(3));
        t3 = root_f(t3, vhInteger(3));
        // With t0 = a and t3 = b, t1 / (a^2 b) and t2 / (a b^2) are the
        // binomial coefficients 3, with the sign of the middle terms.
        t1 = t1 / t0 / t0 / t3;
        t2 = t2 / t0 / t3 / t3;
        const double c1 = t1.toDouble();
        const double c2 = t2.toDouble();
        if (c1 == 3.0 && c2 == 3.0 && !difference)
            return bracketed(t0 + t3, 3.0);
        if (c1 == -3.0 && c2 == 3.0 && difference)
            return bracketed(t0 - t3, 3.0);
    }
    return std::vector<vhValue>();
}

} // namespace ValueTypes
} // namespace VarnholtMath
