#pragma once

// The names of the symbols a value holds, in order of first appearance;
// not part of the interface. The walk reads the element and term lists in
// place; the caller, a member of the value classes, hands in the access to
// them.

#include <algorithm>
#include <string>
#include <vector>

#include "symbolic/atom_internal.h"
#include "value/value.h"

namespace VarnholtMath {
namespace ValueTypes {
namespace internal {

// elements(v): the element list of an array kept as values, or the
// arguments of a held function; empty for numeric or image storage.
// terms(v): the terms of an expression.
template <class Elements, class Terms> struct RecordLists {
    Elements elements;
    Terms terms;
};

template <class Elements, class Terms> RecordLists<Elements, Terms> recordLists(Elements e, Terms t)
{
    return RecordLists<Elements, Terms>{e, t};
}

inline void addName(std::vector<std::string>& names, const std::string& name)
{
    if (std::find(names.begin(), names.end(), name) == names.end())
        names.push_back(name);
}

// Appends each new name: inner factors of a product before outer ones, the
// arguments of held functions, elements, terms and both sides of fractions
// and equations. A string counts by its text; units only when includeUnits
// is set.
template <class Lists>
void collectSymbolNames(const vhValue& v, std::vector<std::string>& names, bool includeUnits, const Lists& lists)
{
    const int t = v.valueType();
    if (isAtomTag(t)) {
        if (v.isNull())
            return;
        // The chain lists inner factors first; an inner atom's own chain
        // comes before it, so each factor is looked at alone.
        FactorList factors;
        chainFactors(v, factors);
        for (const vhValue* f : factors) {
            const int ft = f->valueType();
            if (!f->isSymbolicValue())
                collectSymbolNames(*f, names, includeUnits, lists);
            else if (ft == tagSymbolicFunction)
                for (const vhValue& a : lists.elements(*f))
                    collectSymbolNames(a, names, includeUnits, lists);
            else if (ft == tagSymbolicValue || includeUnits)
                addName(names, f->toString());
        }
        return;
    }
    if (isArrayTag(t)) {
        for (const vhValue& e : lists.elements(v))
            collectSymbolNames(e, names, includeUnits, lists);
        return;
    }
    if (t == tagExpression) {
        for (const vhValue& term : lists.terms(v))
            collectSymbolNames(term, names, includeUnits, lists);
        return;
    }
    if (t == tagFraction || t == tagEquation) {
        if (v.numerator())
            collectSymbolNames(*v.numerator(), names, includeUnits, lists);
        if (v.denominator())
            collectSymbolNames(*v.denominator(), names, includeUnits, lists);
    }
}

} // namespace internal
} // namespace ValueTypes
} // namespace VarnholtMath
