// Rewriting of values into factors, and polynomial division.

#include "value/value.h"

namespace VarnholtMath {
namespace ValueTypes {

std::vector<vhValue> vhValue::factorize() const
{
    if (m_valueType != tagExpression)
        return std::vector<vhValue>();
    return vhExpression(*this).factorize();
}

std::vector<vhValue> vhValue::simplify() const
{
    if (m_valueType != tagExpression)
        return std::vector<vhValue>();
    return vhExpression(*this).simplify();
}

// PENDING(polynomial division)
vhValue vhValue::division(const vhValue&, vhValue&) const { return vhValue(); }

} // namespace ValueTypes
} // namespace VarnholtMath
