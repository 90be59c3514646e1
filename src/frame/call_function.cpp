// The door by number: a catalogue row and its arguments become one member
// call of vhMath. This is the one table of cases; every member that the
// engine reaches by number has its case here.

#include "frame/math.h"

namespace VarnholtMath {
namespace ValueTypes {

vhValue callFunction(vhMath* math, NodeType id, const std::vector<vhValue>& arguments)
{
    if (!math)
        return vhValue();
    // The count must be the catalogue's; there is no variable argument count
    // in this door. The unknown numbers 56 and 425 throw from here.
    if (numberOfFunctionArguments(id) != arguments.size())
        return vhValue();

    // Eighteen is the largest argument count of any row.
    vhValue result;
    vhValue a[18];
    for (std::size_t i = 0; i < arguments.size() && i < 18; ++i)
        a[i] = arguments[i];

    // Operators, constructors, constants, statements and the newest rows
    // have no case here.
    if (id < 20 || id > 1125)
        return result;

    switch (id) {
    case nt_staticValue:
        result = math->staticValue_f(a[0], a[1]);
        break;
    case nt_setStaticValue:
        result = math->setStaticValue_f(a[0], a[1]);
        break;
    case nt_InRuntime:
        result = math->InRuntime_f();
        break;
    case nt_SetDecPlaces:
        result = math->SetDecPlaces_f(a[0]);
        break;
    case nt_DecPlaces:
        result = math->DecPlaces_f();
        break;
    default:
        break;
    }
    return result;
}

vhValue vhSymbolicFunction::calculateFromSymbolic(vhMath* math) const
{
    if (isNull() || m_valueType != tagSymbolicFunction)
        return vhValue();
    vhValue result = callFunction(math, static_cast<NodeType>(m_functionID), m_elements);
    // A power carries its exponent as an argument.
    if (m_functionID == nt_pow || m_functionID == nt_pow22)
        return result;
    // PENDING(elementwise functions): raise by the exponent through pow_f.
    return result;
}

} // namespace ValueTypes
} // namespace VarnholtMath
