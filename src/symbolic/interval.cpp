// Real intervals and infinite solution sets first + k * step.

#include "value/class_macros.h"
#include "value/value.h"

namespace VarnholtMath {
namespace ValueTypes {

vhInterval::vhInterval() { m_valueType = tagInterval; }

vhInterval::vhInterval(double start, bool startIncluded, double end, bool endIncluded)
{
    m_valueType = tagInterval;
    m_undefined = false;
    m_intervalStart = start;
    m_intervalStartIncuded = startIncluded;
    m_intervalEnd = end;
    m_intervalEndIncluded = endIncluded;
}

vhInterval::vhInterval(const vhValue& v) : vhValue(v) {}

bool vhInterval::operator==(const vhValue& other) const
{
    if (m_valueType != tagInterval)
        return vhValue::operator==(other);
    if (isNull() || other.isNull() || other.valueType() != tagInterval)
        return false;
    return m_intervalStart == other.intervalStart() && m_intervalEnd == other.intervalEnd() &&
           m_intervalStartIncuded == other.intervalStartIncuded() &&
           m_intervalEndIncluded == other.intervalEndIncluded();
}

VH_DEFINE_NOT_EQUAL(vhInterval, tagInterval)

vhInfiniteSolution::vhInfiniteSolution() { m_valueType = tagInfiniteSolution; }

vhInfiniteSolution::vhInfiniteSolution(double firstSolution, double solutionStep)
{
    m_valueType = tagInfiniteSolution;
    m_undefined = false;
    m_intervalStart = firstSolution;
    m_intervalEnd = solutionStep;
}

vhInfiniteSolution::vhInfiniteSolution(const vhValue& v) : vhValue(v) {}

bool vhInfiniteSolution::operator==(const vhValue& other) const
{
    if (m_valueType != tagInfiniteSolution)
        return vhValue::operator==(other);
    if (isNull() || other.isNull() || other.valueType() != tagInfiniteSolution)
        return false;
    return m_intervalStart == other.firstSolution() && m_intervalEnd == other.solutionStep();
}

VH_DEFINE_NOT_EQUAL(vhInfiniteSolution, tagInfiniteSolution)

} // namespace ValueTypes
} // namespace VarnholtMath
