// Replacing symbols and held functions by values. Substitution is the way
// from a symbolic result to a number: held functions whose arguments become
// numbers are evaluated on the way, and the products and sums are formed
// anew, so that 3*x^2 + 1 with x = 2 gives the number 13.

#include <limits>

#include "value/value.h"

#include "frame/math.h"
#include "frame/switches.h"
#include "functions/elementary.h"
#include "symbolic/atom_internal.h"
#include "symbolic/division_internal.h"

namespace VarnholtMath {
namespace ValueTypes {

bool vhValue::substituteIn(vhValue& v, bool (*atomEntry)(vhValue&, void*), void* context, int depth)
{
    // Deeper nesting is left as it is.
    if (depth > internal::RecursionGuard::kLimit || v.isNull())
        return false;
    const int t = v.m_valueType;
    if (internal::isArrayTag(t)) {
        bool changed = false;
        for (vhValue& e : v.m_elements)
            changed = substituteIn(e, atomEntry, context, depth + 1) || changed;
        return changed;
    }
    if (t == tagExpression) {
        bool changed = false;
        for (vhValue& term : v.m_expressionValues)
            changed = substituteIn(term, atomEntry, context, depth + 1) || changed;
        if (!changed)
            return false;
        if (v.m_expressionValues.size() == 1) {
            vhValue only(std::move(v.m_expressionValues[0]));
            v = only;
            return true;
        }
        vhValue sum = vhInteger(0);
        for (const vhValue& term : v.m_expressionValues) {
            if (term.isNull()) {
                v.clear();
                return true;
            }
            sum += term;
        }
        v = sum;
        return true;
    }
    if (t == tagFraction) {
        if (!v.m_numerator || !v.m_denominator)
            return false;
        bool changed = substituteIn(*v.m_numerator, atomEntry, context, depth + 1);
        changed = substituteIn(*v.m_denominator, atomEntry, context, depth + 1) || changed;
        if (!changed)
            return false;
        const vhFraction reduced(*v.m_numerator, *v.m_denominator);
        v = reduced;
        return true;
    }
    if (!internal::isAtomTag(t))
        return false;

    std::vector<vhValue> factors;
    v.multipliers(factors);
    if (factors.empty())
        return false;
    bool changed = false;
    for (std::size_t i = 0; i + 1 < factors.size(); ++i)
        changed = substituteIn(factors[i], atomEntry, context, depth + 1) || changed;
    vhValue& last = factors.back();
    if (last.m_valueType == tagSymbolicFunction)
        for (vhValue& a : last.m_elements)
            changed = substituteIn(a, atomEntry, context, depth + 1) || changed;
    changed = atomEntry(last, context) || changed;
    if (!changed)
        return false;
    vhValue product(factors[0]);
    for (std::size_t i = 1; i < factors.size(); ++i)
        product *= factors[i];
    v = product;
    return true;
}

namespace {

bool isOne(const vhValue& e)
{
    if (internal::isRealNumberTag(e.valueType()) && !e.isNull())
        return e.toDouble() == 1.0;
    return e == vhInteger(1);
}

vhValue powerOf(vhMath* math, const vhValue& x, const vhValue& y)
{
    return math ? math->pow_f(x, y) : pow_f(x, y);
}

// A held function, its arguments already replaced, evaluated through the
// calculation object. Without one the function stays held with its new
// arguments; so it does when the call has no value while an argument is
// still symbolic (a function the engine holds but does not compute).
vhValue evaluated(vhMath* math, const vhValue& function)
{
    if (!math)
        return function;
    vhValue call(function);
    call.resetMultiplier();
    const vhValue result = vhSymbolicFunction(call).calculateFromSymbolic(math);
    if (result.isNull() && function.isSymbolic()) {
        for (const vhValue& a : function.functionArguments())
            if (a.isSymbolic())
                return function;
    }
    return result;
}

struct SymbolReplacement {
    vhMath* math;
    const std::vector<std::string>* names;
    const std::vector<vhValue>* values;
    bool includeUnits;
};

bool replaceSymbolEntry(vhValue& g, void* context)
{
    const SymbolReplacement& c = *static_cast<const SymbolReplacement*>(context);
    const int t = g.valueType();
    if (t == tagSymbolicFunction) {
        g = evaluated(c.math, g);
        return c.math != nullptr;
    }
    // A string is never replaced, even when its text is a name.
    if (g.isString() || !(t == tagSymbolicValue || (t == tagUnit && c.includeUnits)))
        return false;
    const std::string name = g.toString();
    std::size_t i = 0;
    while (i < c.names->size() && (*c.names)[i] != name)
        ++i;
    if (i == c.names->size())
        return false;
    const vhValue& w = (*c.values)[i];
    const vhValue* ep = g.exponent();
    if (!ep) {
        g = w;
        return true;
    }
    const vhValue e(*ep);
    const bool limits = c.math ? c.math->limitsRulesOn() : limitsRulesOn();
    // By the rules of limits a negative power of zero is infinite.
    if (limits && w.isDouble() && w.toDouble() == 0.0 && e.isNegative()) {
        g = vhDouble(std::numeric_limits<double>::infinity());
        return true;
    }
    if (isOne(e)) {
        g = w;
        return true;
    }
    // A root keeps a negative base real: x^(1/3) at -8 is -2.
    if (w.isDouble() && w.toDouble() < 0.0) {
        const vhValue order = vhInteger(1) / e;
        g = c.math ? c.math->root_f(w, order) : root_f(w, order);
        return true;
    }
    g = powerOf(c.math, w, e);
    return true;
}

struct FunctionReplacement {
    vhMath* math;
    const vhValue* functions;
    const vhValue* values;
};

bool replaceFunctionEntry(vhValue& g, void* context)
{
    const FunctionReplacement& c = *static_cast<const FunctionReplacement*>(context);
    if (g.valueType() != tagSymbolicFunction)
        return false;
    g = evaluated(c.math, g);
    // A power of a pattern becomes the same power of its value.
    const double power = g.exp();
    vhValue plain(g);
    plain.resetExponent();
    const unsigned int n = c.functions->vectorSize();
    for (unsigned int k = 0; k < n; ++k)
        if (c.functions->value(k) == plain) {
            g = powerOf(c.math, c.values->value(k), vhDouble(power));
            return true;
        }
    return c.math != nullptr;
}

// A pattern for function replacement: a plain held call, exponent and
// coefficient exactly 1.
bool plainCall(const vhValue& f)
{
    if (f.isNull() || f.valueType() != tagSymbolicFunction)
        return false;
    const vhValue* e = f.exponent();
    const vhValue* m = f.multiplier();
    return e && isOne(*e) && m && internal::isRealNumberTag(m->valueType()) && m->toDouble() == 1.0;
}

bool isValueVector(const vhValue& v) { return v.valueType() == tagVector && !v.isNumericVectorOrMatrix(); }

} // namespace

void vhValue::replaceSymbolicValues(vhMath* math, const std::vector<std::string>& names,
                                    const std::vector<vhValue>& values, bool includeUnits)
{
    if (isNull() || names.empty() || names.size() != values.size())
        return;
    SymbolReplacement c{math, &names, &values, includeUnits};
    substituteIn(*this, replaceSymbolEntry, &c, 0);
}

vhValue vhValue::replaceSymbolicValuesConst(vhMath* math, const std::vector<std::string>& names,
                                            const std::vector<vhValue>& values, bool includeUnits) const
{
    vhValue copy(*this);
    copy.replaceSymbolicValues(math, names, values, includeUnits);
    return copy;
}

void vhValue::replaceSymbolicValues(vhMath* math, const vhValue& symbols, const vhValue& values, bool includeUnits)
{
    if (symbols.valueType() != tagVector || values.valueType() != tagVector)
        return;
    const unsigned int n = symbols.vectorSize();
    if (n != values.vectorSize())
        return;
    std::vector<std::string> names;
    std::vector<vhValue> list;
    names.reserve(n);
    list.reserve(n);
    for (unsigned int i = 0; i < n; ++i) {
        names.push_back(symbols.value(i).toString());
        list.push_back(values.value(i));
    }
    replaceSymbolicValues(math, names, list, includeUnits);
}

vhValue vhValue::replaceSymbolicValuesConst(vhMath* math, const vhValue& symbols, const vhValue& values,
                                            bool includeUnits) const
{
    vhValue copy(*this);
    copy.replaceSymbolicValues(math, symbols, values, includeUnits);
    return copy;
}

void vhValue::replaceSymbolicValue(vhMath* math, const std::string& name, const vhValue& value, bool includeUnits)
{
    if (name.empty() || value.isNull())
        return;
    replaceSymbolicValues(math, std::vector<std::string>{name}, std::vector<vhValue>{value}, includeUnits);
}

vhValue vhValue::replaceSymbolicValueConst(vhMath* math, const std::string& name, const vhValue& value,
                                           bool includeUnits) const
{
    vhValue copy(*this);
    copy.replaceSymbolicValue(math, name, value, includeUnits);
    return copy;
}

void vhValue::replaceSymbolicValue(vhMath* math, const vhValue& symbol, const vhValue& value, bool includeUnits)
{
    if (!symbol.isSymbol())
        return;
    replaceSymbolicValue(math, symbol.toString(), value, includeUnits);
}

vhValue vhValue::replaceSymbolicValueConst(vhMath* math, const vhValue& symbol, const vhValue& value,
                                           bool includeUnits) const
{
    vhValue copy(*this);
    copy.replaceSymbolicValue(math, symbol, value, includeUnits);
    return copy;
}

void vhValue::replaceSymbolicValue(vhMath* math, const std::string& name, double value, bool includeUnits)
{
    replaceSymbolicValue(math, name, vhDouble(value), includeUnits);
}

vhValue vhValue::replaceSymbolicValueConst(vhMath* math, const std::string& name, double value,
                                           bool includeUnits) const
{
    vhValue copy(*this);
    copy.replaceSymbolicValue(math, name, value, includeUnits);
    return copy;
}

void vhValue::replaceSymbolicFunctions(vhMath* math, const vhValue& functions, const vhValue& values)
{
    if (isNull() || !isValueVector(functions) || !isValueVector(values))
        return;
    const unsigned int n = functions.vectorSize();
    if (n == 0 || n != values.vectorSize())
        return;
    for (unsigned int k = 0; k < n; ++k)
        if (!plainCall(functions.value(k)))
            return;
    FunctionReplacement c{math, &functions, &values};
    substituteIn(*this, replaceFunctionEntry, &c, 0);
}

vhValue vhValue::replaceSymbolicFunctionsConst(vhMath* math, const vhValue& functions, const vhValue& values) const
{
    vhValue copy(*this);
    copy.replaceSymbolicFunctions(math, functions, values);
    return copy;
}

void vhValue::replaceSymbolicFunction(vhMath* math, const vhValue& function, const vhValue& value)
{
    if (function.valueType() != tagSymbolicFunction || value.isNull())
        return;
    replaceSymbolicFunctions(math, vhVector(std::vector<vhValue>{function}, false),
                             vhVector(std::vector<vhValue>{value}, false));
}

vhValue vhValue::replaceSymbolicFunctionConst(vhMath* math, const vhValue& function, const vhValue& value) const
{
    vhValue copy(*this);
    copy.replaceSymbolicFunction(math, function, value);
    return copy;
}

// --- moving terms between the sides of an equation ---------------------------

namespace {

// Moves terms out of this into other, each added negated to both: this loses
// the term and other gains its negative, so the difference of the two stays.
bool moveTerms(vhValue& self, const vhValue& symbols, vhValue& other, bool holding)
{
    if (&self == &other || symbols.isNull() || !(symbols.isSymbolicValue() || symbols.isVector()))
        return false;
    vhValue a = vhExpression(self);
    vhValue b = vhExpression(other);
    std::vector<vhValue> list;
    if (symbols.isSymbolicValue())
        list.push_back(symbols);
    else
        for (unsigned int i = 0; i < symbols.vectorSize(); ++i)
            list.push_back(symbols.value(i));
    bool lastWasSymbol = false;
    for (const vhValue& s : list) {
        lastWasSymbol = s.isSymbol();
        if (!lastWasSymbol)
            break;
        for (const vhValue& t : a.expressionValues()) {
            if (t.containSymbol(s) != holding)
                continue;
            const vhValue negated = t * vhInteger(-1);
            a += negated;
            b += negated;
        }
    }
    self = expressionToValue(a);
    other = expressionToValue(b);
    return lastWasSymbol;
}

} // namespace

bool vhValue::moveThisSymbolsTo(const vhValue& symbols, vhValue& other)
{
    return moveTerms(*this, symbols, other, true);
}

bool vhValue::moveOtherThenThisSymbolsTo(const vhValue& symbols, vhValue& other)
{
    return moveTerms(*this, symbols, other, false);
}

} // namespace ValueTypes
} // namespace VarnholtMath
