// Held, unevaluated calls of catalogue functions: sin(x), pow(2, x).

#include "value/class_macros.h"
#include "value/value.h"
#include <cstdio>
#include <exception>

#include "frame/catalogue.h"

namespace VarnholtMath {
namespace ValueTypes {

vhSymbolicFunction::vhSymbolicFunction() { m_valueType = tagSymbolicFunction; }

vhSymbolicFunction::vhSymbolicFunction(int functionID, const std::vector<vhValue>& arguments)
{
    // A count that differs from the catalogue is a programming error of the
    // caller, the one case in which building a value throws.
    if (arguments.size() != numberOfFunctionArguments(static_cast<NodeType>(functionID))) {
        std::printf("Error: number of arguments in function %d is not aqual with numer in numberOffunctionArguments()\n",
                    functionID);
        std::fflush(stdout);
        throw std::exception();
    }
    m_valueType = tagSymbolicFunction;
    m_undefined = false;
    m_functionID = functionID;
    m_elements = arguments;
    m_exponent = new vhInteger(1);
    m_multiplier = new vhDouble(1.0);
}

vhSymbolicFunction::vhSymbolicFunction(const vhValue& v) : vhValue(v) {}

// PENDING(symbolic functions): arithmetic of this class.
vhValue vhSymbolicFunction::operator+(const vhValue& other) const
{
    if (m_valueType != tagSymbolicFunction)
        return vhValue::operator+(other);
    return vhValue();
}

vhValue vhSymbolicFunction::operator-(const vhValue& other) const
{
    if (m_valueType != tagSymbolicFunction)
        return vhValue::operator-(other);
    return vhValue();
}

vhValue vhSymbolicFunction::operator*(const vhValue& other) const
{
    if (m_valueType != tagSymbolicFunction)
        return vhValue::operator*(other);
    return vhValue();
}

vhValue vhSymbolicFunction::operator/(const vhValue& other) const
{
    if (m_valueType != tagSymbolicFunction)
        return vhValue::operator/(other);
    return vhValue();
}

bool vhSymbolicFunction::operator==(const vhValue& other) const
{
    if (m_valueType != tagSymbolicFunction)
        return vhValue::operator==(other);
    return false;
}

VH_DEFINE_COMPOUND_OPERATORS(vhSymbolicFunction, tagSymbolicFunction)
VH_DEFINE_NOT_EQUAL(vhSymbolicFunction, tagSymbolicFunction)

} // namespace ValueTypes
} // namespace VarnholtMath
