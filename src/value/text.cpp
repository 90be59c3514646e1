// Text forms of values: the short scalar text, the full text of any value,
// the text of the symbolic factors of a symbol or unit, and the stream form.
// The host shows results with the full text, so its exact characters are part
// of what the engine promises.

#include <complex>
#include <cstdio>
#include <iostream>
#include <ostream>
#include <string>
#include <vector>

#include "frame/catalogue.h"
#include "value/value.h"

namespace VarnholtMath {
namespace ValueTypes {

namespace {

// Arrays above this many elements print as a one-line summary, so that the
// text of a large result stays cheap to build and to show.
const unsigned int kLargestExpandedArray = 200;

// The step of an infinite solution set that prints as "Pi".
const double kPi = 3.141592653589793;

std::string printed(const char* format, double x)
{
    char buffer[512];
    const int n = std::snprintf(buffer, sizeof buffer, format, x);
    if (n < 0)
        return std::string();
    return std::string(buffer, static_cast<std::size_t>(n) < sizeof buffer ? static_cast<std::size_t>(n)
                                                                            : sizeof buffer - 1);
}

std::string printedInt(int i)
{
    char buffer[32];
    std::snprintf(buffer, sizeof buffer, "%d", i);
    return buffer;
}

std::string printedUnsigned(unsigned int u)
{
    char buffer[32];
    std::snprintf(buffer, sizeof buffer, "%u", u);
    return buffer;
}

// A defined real or complex number equal to the given real one.
bool numberEquals(const vhValue& v, double x)
{
    if (!v.isDouble() && !v.isComplex())
        return false;
    return v.toComplex() == std::complex<double>(x, 0.0);
}

} // namespace

// --- scalar text -----------------------------------------------------------------

std::string vhValue::toString() const
{
    if (isNull())
        return "undefined";
    switch (m_valueType) {
    case tagBoolean:
        return toBool() ? "true" : "false";
    case tagInteger:
        if (m_pointer) {
            char buffer[64];
            std::snprintf(buffer, sizeof buffer, "%p", static_cast<void*>(m_pointer));
            return std::string("pointer ") + buffer;
        }
        return printedInt(toInt());
    case tagDouble: {
        if (isInteger())
            return printedInt(toInt());
        const double magnitude = m_re < 0.0 ? -m_re : m_re;
        if (magnitude < 1e-14 || magnitude > 1e14)
            return printed("%e", m_re);
        const unsigned int decimals = m_numberOfDecimalPlaces > 14 ? 14 : m_numberOfDecimalPlaces;
        const std::string format = "%." + printedUnsigned(decimals) + "f";
        std::string text = printed(format.c_str(), m_re);
        // Only zeros are taken off, the decimal point stays: 2.0000001 at
        // three places reads "2.", and 120.4 at none reads "12".
        if (text != "0")
            while (!text.empty() && text.back() == '0')
                text.pop_back();
        return text;
    }
    case tagComplex: {
        // The parts are new numbers, with the full default precision.
        std::string text = vhDouble(m_re).toString();
        if (!(m_im < 0.0))
            text += "+";
        return text + vhDouble(m_im).toString() + "i";
    }
    case tagSymbolicValue:
    case tagUnit:
        return m_text;
    default:
        return std::string();
    }
}

// --- full text -------------------------------------------------------------------

namespace {

std::string factorText(const vhValue& factor)
{
    std::string text;
    if (factor.valueType() == tagSymbolicFunction) {
        text = functionName(static_cast<NodeType>(factor.functionID())) + "(";
        const std::vector<vhValue> arguments = factor.functionArguments();
        for (std::size_t k = 0; k < arguments.size(); ++k) {
            if (k)
                text += ", ";
            text += arguments[k].toStringAll();
        }
        text += ")";
    } else if (factor.valueType() == tagComplex) {
        text = "(" + factor.toString() + ")";
    } else if (factor.isString()) {
        text = "\"" + factor.toString() + "\"";
    } else {
        text = factor.toString();
    }
    const vhValue* e = factor.exponent();
    if (e && !e->isNull() && !numberEquals(*e, 1.0))
        text += "^" + e->toStringAll();
    return text;
}

// A symbolic term: its factors, coefficient first, one blank between two
// printed factors. A coefficient of 1 is not written and one of -1 is only
// its sign, so that x, -x and 3 x read naturally.
std::string termText(const vhValue& term)
{
    std::vector<vhValue> factors;
    term.multipliers(factors);
    std::string text;
    bool blankBefore = false;
    for (std::size_t k = 0; k < factors.size(); ++k) {
        vhValue factor(factors[k]);
        factor.setNumberOfDecimalPlaces(term.numberOfDecimalPlaces());
        if (k == 0 && (factor.isDouble() || factor.isComplex())) {
            if (numberEquals(factor, 1.0))
                continue;
            if (numberEquals(factor, -1.0)) {
                text += "-";
                continue;
            }
            if (numberEquals(factor, 0.0))
                return "0";
        }
        if (blankBefore)
            text += " ";
        text += factorText(factor);
        blankBefore = true;
    }
    return text;
}

std::string rowText(const vhValue& array, unsigned int first, unsigned int count)
{
    std::string text = "[";
    for (unsigned int k = 0; k < count; ++k) {
        if (k)
            text += ", ";
        text += array.value(first + k).toStringAll();
    }
    return text + "]";
}

} // namespace

std::string vhValue::toStringAll() const
{
    std::string text;
    if (isNull()) {
        if (m_valueType == tagExpression)
            text = "0";
    } else {
        switch (m_valueType) {
        case tagBoolean:
        case tagInteger:
        case tagDouble:
        case tagComplex:
            text = toString();
            break;
        case tagSymbolicValue:
        case tagSymbolicFunction:
        case tagUnit:
            text = termText(*this);
            break;
        case tagVector: {
            const unsigned int n = vectorSize();
            if (n > kLargestExpandedArray) {
                text = printedUnsigned(n) + (m_image ? " pixels image" : " elements vector");
            } else if (m_rows == 1) {
                text = rowText(*this, 0, n);
            } else if (m_rows == 0) {
                text = "[]";
            } else {
                for (unsigned int k = 0; k < n; ++k) {
                    if (k)
                        text += "\n";
                    text += "[" + value(k).toStringAll() + "]";
                }
            }
            break;
        }
        case tagMatrix: {
            if (vectorSize() > kLargestExpandedArray) {
                text = printedUnsigned(m_rows) + " x " + printedUnsigned(m_columns) +
                       (m_image ? " pixels image" : " elements matrix");
                break;
            }
            for (unsigned int i = 0; i < m_rows; ++i) {
                if (i)
                    text += "\n";
                text += rowText(*this, i * m_columns, m_columns);
            }
            break;
        }
        case tagExpression:
            for (std::size_t k = 0; k < m_expressionValues.size(); ++k) {
                const vhValue& term = m_expressionValues[k];
                // A negative term brings its own minus sign.
                if (k && !term.isNegative())
                    text += "+";
                text += term.toStringAll();
            }
            break;
        case tagFraction:
            text = "(" + m_numerator->toStringAll() + ")/(" + m_denominator->toStringAll() + ")";
            break;
        case tagEquation:
            text = m_numerator->toStringAll() + m_equationType + m_denominator->toStringAll();
            break;
        case tagInterval:
            text = (m_intervalStartIncuded ? "[" : "(") + vhDouble(m_intervalStart).toStringAll() + "," +
                   vhDouble(m_intervalEnd).toStringAll() + (m_intervalEndIncluded ? "]" : ")");
            break;
        case tagInfiniteSolution: {
            vhDouble first(m_intervalStart);
            first.setNumberOfDecimalPlaces(6);
            text = "{ " + first.toString() + " +- k * ";
            if (m_intervalEnd == kPi) {
                text += "Pi";
            } else {
                vhDouble step(m_intervalEnd);
                step.setNumberOfDecimalPlaces(3);
                text += step.toString();
            }
            text += " }";
            break;
        }
        case tagObject:
            text = "object of type " + m_objectTypeName;
            break;
        case tagChannel:
            text = m_objectTypeName + " channel";
            break;
        case tagWidget:
            text = m_objectTypeName;
            break;
        case tagFile:
            text = m_objectTypeName + " file";
            break;
        default:
            break;
        }
    }
    if (!text.empty() && text.front() == '+')
        text.erase(0, 1);
    if (!text.empty() && text.back() == ' ')
        text.pop_back();
    return text;
}

// --- factors of a symbol or unit -------------------------------------------------

std::string vhValue::toStringEx() const
{
    const bool atom = m_valueType == tagSymbolicValue || m_valueType == tagUnit;
    if (!atom || isNull() || (m_multiplier && m_multiplier->m_valueType <= tagComplex))
        return toString();
    std::vector<vhValue> factors;
    symbolicMultipliers(factors);
    std::string text;
    for (std::size_t k = 0; k < factors.size(); ++k) {
        if (k)
            text += " ";
        text += factors[k].m_text;
    }
    return text;
}

// --- stream form -----------------------------------------------------------------

void vhValue::print(bool, std::ostream& stream)
{
    // A defined value goes to standard output whatever stream is given; only
    // the undefined mark goes to the stream.
    if (isNull()) {
        stream << "undefined ";
        return;
    }
    std::cout << toStringAll();
}

} // namespace ValueTypes
} // namespace VarnholtMath
