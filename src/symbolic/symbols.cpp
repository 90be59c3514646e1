// Which symbols a value holds, and whether it holds circular functions. The
// walk goes everywhere a symbol can hide: the factors of a product (inner
// ones first), the arguments of held functions, array elements, the terms of
// a sum and both sides of fractions and equations.

#include <algorithm>

#include "value/value.h"

#include "frame/node_type.h"
#include "symbolic/atom_internal.h"
#include "symbolic/division_internal.h"

namespace VarnholtMath {
namespace ValueTypes {

bool vhValue::walkAtoms(const vhValue& v, bool (*visit)(const vhValue&, void*), void* context, int depth)
{
    // Values nested deeper than this are not looked into.
    if (depth > internal::RecursionGuard::kLimit || v.isNull())
        return false;
    const int t = v.m_valueType;
    if (internal::isAtomTag(t)) {
        internal::FactorList factors;
        internal::chainFactors(v, factors);
        for (const vhValue* f : factors) {
            if (!f->isSymbolicValue()) {
                if (walkAtoms(*f, visit, context, depth + 1))
                    return true;
                continue;
            }
            if (visit(*f, context))
                return true;
            if (f->m_valueType == tagSymbolicFunction)
                for (const vhValue& a : f->m_elements)
                    if (walkAtoms(a, visit, context, depth + 1))
                        return true;
        }
        return false;
    }
    if (internal::isArrayTag(t)) {
        for (const vhValue& e : v.m_elements)
            if (walkAtoms(e, visit, context, depth + 1))
                return true;
        return false;
    }
    if (t == tagExpression) {
        for (const vhValue& term : v.m_expressionValues)
            if (walkAtoms(term, visit, context, depth + 1))
                return true;
        return false;
    }
    if (t == tagFraction || t == tagEquation) {
        if (v.m_numerator && walkAtoms(*v.m_numerator, visit, context, depth + 1))
            return true;
        if (v.m_denominator && walkAtoms(*v.m_denominator, visit, context, depth + 1))
            return true;
    }
    return false;
}

namespace {

struct NameCollection {
    std::vector<std::string>* names;
    bool includeUnits;
};

bool collectName(const vhValue& atom, void* context)
{
    NameCollection& c = *static_cast<NameCollection*>(context);
    const int t = atom.valueType();
    // A string is a symbolic value too, and its text counts as a name.
    if (t == tagSymbolicValue || (t == tagUnit && c.includeUnits)) {
        const std::string name = atom.toString();
        if (std::find(c.names->begin(), c.names->end(), name) == c.names->end())
            c.names->push_back(name);
    }
    return false;
}

bool isCircular(const vhValue& atom, void*)
{
    if (atom.valueType() != tagSymbolicFunction)
        return false;
    switch (atom.functionID()) {
    case nt_acos:
    case nt_asin:
    case nt_atan:
    case nt_cos:
    case nt_sin:
    case nt_tan:
    case nt_cot:
    case nt_acot:
    case nt_atan2:
        return true;
    default:
        return false;
    }
}

} // namespace

unsigned int vhValue::symbols(std::vector<std::string>& names, bool includeUnits) const
{
    NameCollection c{&names, includeUnits};
    walkAtoms(*this, collectName, &c, 0);
    return static_cast<unsigned int>(names.size());
}

unsigned int vhValue::symbols(std::vector<vhValue>& list, bool includeUnits) const
{
    list.clear();
    std::vector<std::string> names;
    symbols(names, includeUnits);
    list.reserve(names.size());
    for (const std::string& n : names)
        list.push_back(vhSymbolicValue(n, false, {}));
    return static_cast<unsigned int>(list.size());
}

vhValue vhValue::symbols(bool includeUnits) const
{
    std::vector<vhValue> list;
    if (symbols(list, includeUnits) == 0)
        return vhValue();
    return vhVector(list, false);
}

bool vhValue::containSymbol(const std::string& name) const
{
    if (name.empty() || isNull() || m_valueType < tagSymbolicValue)
        return false;
    std::vector<std::string> names;
    symbols(names, false);
    return std::find(names.begin(), names.end(), name) != names.end();
}

bool vhValue::containSymbol(const vhValue& symbol) const
{
    if (!symbol.isSymbol())
        return false;
    return containSymbol(symbol.toString());
}

bool vhValue::containTrigonometry() const { return walkAtoms(*this, isCircular, nullptr, 0); }

} // namespace ValueTypes
} // namespace VarnholtMath
