// Real intervals and infinite solution sets first + k * step.

#include <cmath>

#include "value/class_macros.h"
#include "value/value.h"

namespace VarnholtMath {
namespace ValueTypes {

vhInterval::vhInterval() { m_valueType = tagInterval; }

namespace {
// A bound that is all but a whole number is taken as that number, away from
// zero, so that rounding noise of a solver does not move an interval's end.
double snapBound(double x)
{
    if (x == 0.0 || !(std::fabs(x) < 4503599627370496.0))
        return x;
    if (x > 0.0) {
        const double c = std::ceil(x);
        return c - x < 1e-14 ? c : x;
    }
    const double f = std::floor(x);
    return x - f < 1e-14 ? f : x;
}
} // namespace

vhInterval::vhInterval(double start, bool startIncluded, double end, bool endIncluded)
{
    m_valueType = tagInterval;
    m_undefined = false;
    m_intervalStart = snapBound(start);
    m_intervalStartIncuded = startIncluded;
    m_intervalEnd = snapBound(end);
    m_intervalEndIncluded = endIncluded;
}

vhInterval::vhInterval(const vhValue& v) : vhValue(v) {}

bool vhInterval::operator==(const vhValue& other) const
{
    if (m_valueType != tagInterval)
        return vhValue::operator==(other);
    if (isNull() || other.isNull() || other.valueType() != tagInterval)
        return false;
    if (m_intervalStartIncuded != other.intervalStartIncuded() ||
        m_intervalEndIncluded != other.intervalEndIncluded())
        return false;
    if (m_intervalStart == other.intervalStart() && m_intervalEnd == other.intervalEnd())
        return true;
    // Bounds that differ by rounding noise only are the same bounds.
    return std::fabs(m_intervalStart - other.intervalStart()) < 1e-14 &&
           std::fabs(m_intervalEnd - other.intervalEnd()) < 1e-14;
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
