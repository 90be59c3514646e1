// The constructors of equations and intervals in the worksheet language.

#include "frame/math.h"

namespace VarnholtMath {
namespace ValueTypes {

vhValue vhMath::equation_f(const vhValue& left, const vhValue& type, const vhValue& right)
{
    if (left.isNull() || right.isNull() || !type.isString())
        return vhValue();
    const std::string relation = type.toString();
    if (relation.empty())
        return vhValue();
    return vhEquation(left, relation, right);
}

vhValue vhMath::interval_f(const vhValue& start, const vhValue& startIncluded, const vhValue& end,
                           const vhValue& endIncluded)
{
    if (!start.isDouble() || !end.isDouble())
        return vhValue();
    return vhInterval(start.toDouble(), startIncluded.toBool(), end.toDouble(), endIncluded.toBool());
}

} // namespace ValueTypes
} // namespace VarnholtMath
