// The calculation object: settings, the events callback, dividers, static
// values and the ownership of the running filters' slots.

#include "frame/math.h"

namespace VarnholtMath {
namespace ValueTypes {

vhMath::vhMath()
    : m_appProcessEventsCallback(nullptr), m_angleUnit(angleRadians), m_stopCalculation(false),
      m_pauseCalculation(false), m_numberOfDecimalPlaces(14), m_convertResultsToRadians(0), m_limitsRulesOn(false),
      m_trigonometricRulesOn(true), m_fractionsOn(true), m_limitDepth(10), m_colectDividersOn(false),
      m_staticValues(vhDouble(0.0))
{
    for (unsigned int i = 0; i < filterSlots; ++i) {
        m_firFilterBuffers[i] = nullptr;
        m_firFilterBufferSizes[i] = 0;
        m_iirFilterBuffers[i] = nullptr;
        m_iirFilterBufferSizes[i] = 0;
    }
}

vhMath::vhMath(unsigned int decimals, AngleUnit unit) : vhMath()
{
    m_numberOfDecimalPlaces = decimals > 14 ? 14 : decimals;
    m_angleUnit = unit;
}

vhMath::~vhMath()
{
    finishFourierJob();
    deinitializeFIRfilterBuffer();
    deinitializeIIRfilterBuffer();
}

void vhMath::setAngleUnit(AngleUnit unit) { m_angleUnit = unit; }
AngleUnit vhMath::angleUnit() const { return m_angleUnit; }

void vhMath::setNumberOfDecimalPlaces(unsigned int decimals)
{
    if (decimals < 15)
        m_numberOfDecimalPlaces = decimals;
}

unsigned int vhMath::numberOfDecimalPlaces() const { return m_numberOfDecimalPlaces; }
void vhMath::setConvertResultsToRadians(unsigned int n) { m_convertResultsToRadians = n; }
unsigned int vhMath::convertResultsToRadians() const { return m_convertResultsToRadians; }

void vhMath::setLimitsRulesOn(bool on)
{
    m_limitsRulesOn = on;
    setLimitsRulesOnPublic(on);
}

bool vhMath::limitsRulesOn() const { return m_limitsRulesOn; }

void vhMath::setTrigonometricRulesOn(bool on)
{
    m_trigonometricRulesOn = on;
    setTrigonometricRulesOnPublic(on);
}

bool vhMath::trigonometricRulesOn() const { return m_trigonometricRulesOn; }

void vhMath::setFractionsOn(bool on)
{
    m_fractionsOn = on;
    setFractionsOnPublic(on);
}

bool vhMath::fractionsOn() const { return m_fractionsOn; }
void vhMath::setColectDividersOn(bool on) { m_colectDividersOn = on; }
bool vhMath::colectDividersOn() const { return m_colectDividersOn; }
void vhMath::setStopCalculation(bool stop) { m_stopCalculation = stop; }
bool vhMath::stopCalculation() const { return m_stopCalculation; }
void vhMath::setPauseCalculation(bool pause) { m_pauseCalculation = pause; }
bool vhMath::pauseCalculation() const { return m_pauseCalculation; }
void vhMath::setAppProcessEventsCallback(void (*callback)()) { m_appProcessEventsCallback = callback; }

void vhMath::appProcessEvents()
{
    if (m_appProcessEventsCallback)
        m_appProcessEventsCallback();
}

bool vhMath::isInRuntime() const { return m_appProcessEventsCallback == nullptr; }
int vhMath::limitDepth() const { return m_limitDepth; }
void vhMath::setLimitDepth(int depth) { m_limitDepth = depth; }

void vhMath::deinitializeFIRfilterBuffer()
{
    for (unsigned int i = 0; i < filterSlots; ++i) {
        delete[] m_firFilterBuffers[i];
        m_firFilterBuffers[i] = nullptr;
        m_firFilterBufferSizes[i] = 0;
    }
}

void vhMath::deinitializeIIRfilterBuffer()
{
    for (unsigned int i = 0; i < filterSlots; ++i) {
        delete[] m_iirFilterBuffers[i];
        m_iirFilterBuffers[i] = nullptr;
        m_iirFilterBufferSizes[i] = 0;
    }
}

void vhMath::addDivider(const vhValue& v)
{
    if (v.isNull())
        return;
    // Symbols, symbolic functions, expressions and fractions only.
    const int t = v.valueType();
    if (t < tagSymbolicValue || t > tagFraction || t == tagUnit || t == tagVector || t == tagMatrix)
        return;
    if (!v.isSymbolic())
        return;
    for (const vhValue& d : m_dividers)
        if (d == v)
            return;
    m_dividers.push_back(v);
}

std::vector<vhValue> vhMath::dividersVector() const { return m_dividers; }
void vhMath::resetDividersVector() { m_dividers.clear(); }

vhValue vhMath::InRuntime_f() { return vhBoolean(isInRuntime()); }

vhValue vhMath::SetDecPlaces_f(const vhValue& v)
{
    // Compared as unsigned, so a negative count fails too.
    if (!v.isInteger() || static_cast<unsigned int>(v.toInt()) >= 15)
        return vhValue();
    m_numberOfDecimalPlaces = static_cast<unsigned int>(v.toInt());
    return v;
}

vhValue vhMath::DecPlaces_f() { return vhInteger(static_cast<int>(m_numberOfDecimalPlaces)); }

// Static values are a matrix with one row per name: the name in column 0,
// the value in column 1. They outlast single calculations.
vhValue vhMath::staticValue_f(const vhValue& name, const vhValue& fallback)
{
    if (!name.isString() || fallback.isNull())
        return vhValue();
    if (!m_staticValues.isMatrix())
        return fallback;
    const unsigned int rows = m_staticValues.matrixRows();
    for (unsigned int i = 0; i < rows; ++i)
        if (m_staticValues.value(i, 0) == name)
            return m_staticValues.value(i, 1);
    return fallback;
}

vhValue vhMath::setStaticValue_f(const vhValue& name, const vhValue& value)
{
    if (!name.isString() || value.isNull())
        return vhValue();
    if (m_staticValues.isMatrix()) {
        const unsigned int rows = m_staticValues.matrixRows();
        for (unsigned int i = 0; i < rows; ++i) {
            if (m_staticValues.value(i, 0) == name) {
                m_staticValues.setValue(value, i, 1);
                return value;
            }
        }
    }
    vhMatrix row(1, 2, false, false, false);
    row.setValue(name, 0, 0);
    row.setValue(value, 0, 1);
    if (m_staticValues.isMatrix())
        m_staticValues = joinMatrixRows_f(m_staticValues, row);
    else
        m_staticValues = row;
    return value;
}

} // namespace ValueTypes
} // namespace VarnholtMath
