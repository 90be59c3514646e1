// Helpers shared by the symbolic atoms: walking a multiplier chain, comparing
// factors, the way into an expression, and the same-tag products and sums.

#include "symbolic/atom_internal.h"

#include <cmath>

#include "frame/catalogue.h"
#include "frame/node_type.h"
#include "frame/switches.h"

namespace VarnholtMath {
namespace ValueTypes {
namespace internal {

bool isRealZero(const vhValue& v)
{
    return !v.isNull() && isRealNumberTag(v.valueType()) && v.toDouble() == 0.0;
}

bool isInfiniteDouble(const vhValue& v)
{
    return !v.isNull() && v.valueType() == tagDouble && std::isinf(v.toDouble());
}

bool hasExponentAndMultiplier(const vhValue& v)
{
    const vhValue* e = v.exponent();
    const vhValue* m = v.multiplier();
    return e && m && !e->isNull() && !m->isNull();
}

bool isPowerFunction(const vhValue& v)
{
    return v.valueType() == tagSymbolicFunction && isPowerId(v.functionID());
}

void chainFactors(const vhValue& term, FactorList& out)
{
    // The chain is walked from the outside in and listed from the inside out.
    // An atom without a multiplier ends the chain and is not listed itself.
    FactorList atoms;
    const vhValue* p = &term;
    bool complete = true;
    while (p->isSymbolicValue()) {
        if (!p->multiplier()) {
            complete = false;
            break;
        }
        atoms.push_back(p);
        p = p->multiplier();
    }
    if (complete)
        out.push_back(p);
    for (std::size_t i = atoms.size(); i > 0; --i)
        out.push_back(atoms[i - 1]);
}

void symbolicChainFactors(const vhValue& term, FactorList& out)
{
    FactorList all;
    chainFactors(term, all);
    for (const vhValue* f : all)
        if (f->isSymbolicValue())
            out.push_back(f);
}

std::size_t chainLength(const vhValue& term)
{
    std::size_t n = 0;
    const vhValue* p = &term;
    while (p->isSymbolicValue()) {
        if (!p->multiplier())
            return n;
        ++n;
        p = p->multiplier();
    }
    return n + 1;
}

namespace {
bool plainReal(const vhValue& v) { return isRealNumberTag(v.valueType()) && !v.isNull() && !v.isPointer(); }

bool exponentsEqual(const vhValue& a, const vhValue& b)
{
    const vhValue* ea = a.exponent();
    const vhValue* eb = b.exponent();
    if (!ea || !eb)
        return !ea && !eb;
    // Real numbers compare as operator== does, by their value.
    if (plainReal(*ea) && plainReal(*eb))
        return ea->toDouble() == eb->toDouble();
    return *ea == *eb;
}

bool hasRules(int id) { return id == nt_sin || id == nt_cos || id == nt_log || id == nt_log10 || id == nt_log2; }
} // namespace

bool markedPairCannotMerge(const vhValue& a, const vhValue& b)
{
    if (a.isNull() || b.isNull())
        return false;
    const int ta = a.valueType();
    const int tb = b.valueType();
    const bool atomA = isAtomTag(ta);
    const bool atomB = isAtomTag(tb);
    if (atomA && atomB) {
        if (ta != tb)
            return true;
        // Text joins text.
        if (a.isString() || b.isString())
            return false;
        if (ta == tagSymbolicFunction && trigonometricRulesOn() && hasRules(a.functionID()) &&
            hasRules(b.functionID()))
            return false;
        return !a.stringEqual(b);
    }
    // A number meets an atom; only a zero takes the atom over.
    if (atomA && isNumberTag(tb))
        return !b.isZero();
    if (atomB && isNumberTag(ta))
        return !a.isZero();
    return false;
}

bool factorsMatch(const vhValue& a, const vhValue& b, bool compareFormats, bool equalityForOthers)
{
    const int ta = a.valueType();
    const int tb = b.valueType();
    if (ta == tb && !a.isNull() && !b.isNull()) {
        if (ta == tagSymbolicValue)
            return a.toString() == b.toString() && exponentsEqual(a, b) && (!compareFormats || a.charFormatEqual(b));
        if (ta == tagUnit)
            return a.toString() == b.toString() && exponentsEqual(a, b);
        if (ta == tagSymbolicFunction)
            return exponentsEqual(a, b) && a.functionEqual(b);
    }
    if (equalityForOthers && !(isAtomTag(ta) && isAtomTag(tb)))
        return a == b;
    return false;
}

bool factorListsMatch(const FactorList& first, const FactorList& second, bool compareFormats,
                      bool equalityForOthers)
{
    for (const vhValue* a : first) {
        bool found = false;
        for (const vhValue* b : second) {
            if (factorsMatch(*a, *b, compareFormats, equalityForOthers)) {
                found = true;
                break;
            }
        }
        if (!found)
            return false;
    }
    return true;
}

vhValue atomOverRicher(const vhValue& self, const vhValue& other)
{
    const int t = other.valueType();
    if (isAtomTag(t)) {
        vhValue inverted(other);
        inverted.invertExponent();
        return inverted * self;
    }
    if (isArrayTag(t))
        return divideOverArray(self, other);
    if (t == tagFraction)
        return vhFraction(self * *other.denominator(), *other.numerator());
    return self.increaseToType(other) / other;
}

vhValue coefficientOver(const vhValue& atom, const vhValue& number)
{
    vhValue copy(atom);
    *copy.multiplier() = *copy.multiplier() / number;
    if (copy.multiplier()->isNull())
        return vhValue();
    return copy;
}

bool atomEqual(const vhValue& self, const vhValue& other, int ownTag, bool compareFormats)
{
    const int t = other.valueType();
    if (t > ownTag)
        return other == self;
    if (t < ownTag || self.isNull() || other.isNull())
        return false;
    if (!self.exponent() || !other.exponent())
        return false;
    FactorList mine, theirs;
    chainFactors(self, mine);
    chainFactors(other, theirs);
    if (mine.size() != theirs.size())
        return false;
    return factorListsMatch(mine, theirs, compareFormats, true);
}

vhValue atomSum(const vhValue& self, const vhValue& other, bool subtract, int ownTag)
{
    const int t = other.valueType();
    if (isAtomTag(t) && t != ownTag)
        return expressionRoute(self, other, subtract);
    if (t > ownTag) {
        if (!subtract)
            return other + self;
        if (isArrayTag(t))
            return (other * vhInteger(-1)) + self;
        return self.increaseToType(other) - other;
    }
    if (isNumberTag(t)) {
        if (t != tagComplex && other.isZero())
            return self;
        return expressionRoute(self, other, subtract);
    }
    return sameTagAtomSum(self, other, subtract);
}

vhValue expressionRoute(const vhValue& self, const vhValue& other, bool subtract)
{
    if (self.temp() || other.temp())
        return vhValue();
    vhValue marked(self);
    marked.setTemp(true);
    vhExpression wrapped(marked);
    return subtract ? wrapped - other : wrapped + other;
}

bool unitCoefficient(const vhValue& term, double& coefficient)
{
    FactorList factors;
    chainFactors(term, factors);
    if (factors.size() != 2)
        return false;
    const vhValue& c = *factors[0];
    if (c.isNull() || !isRealNumberTag(c.valueType()))
        return false;
    const double d = c.toDouble();
    if (d != 1.0 && d != -1.0)
        return false;
    coefficient = d;
    return true;
}

bool multiplyIntoMultiplier(vhValue& atom, const vhValue& factor)
{
    vhValue* m = atom.multiplier();
    if (!m)
        return false;
    *m *= factor;
    return !m->isNull();
}

vhValue sameTagAtomProduct(const vhValue& self, const vhValue& other, bool sweep)
{
    const std::size_t l1 = chainLength(self);
    const std::size_t l2 = chainLength(other);
    // The longer chain goes to the left, so that the shorter one is searched
    // for in it.
    if (l1 < l2)
        return other * self;
    vhValue copy(self);
    if (l2 > 2) {
        std::vector<vhValue> factors;
        factors.reserve(l2);
        other.multipliers(factors);
        for (const vhValue& f : factors) {
            copy *= f;
            if (copy.isNull())
                return vhValue();
        }
        return copy;
    }
    // Only the outer names are compared; a factor deeper in the chain is
    // reached by the same rule on the inner atom.
    const bool sameAtom = self.toString() == other.toString() &&
                          (self.valueType() != tagSymbolicValue || self.charFormatEqual(other));
    if (!sameAtom) {
        if (!multiplyIntoMultiplier(copy, other))
            return vhValue();
        return copy;
    }
    if (!multiplyIntoMultiplier(copy, *other.multiplier()))
        return vhValue();
    vhValue* e = copy.exponent();
    *e += *other.exponent();
    if (e->isNull())
        return vhValue();
    if (e->isZero() && sweep) {
        vhValue coefficient(*copy.multiplier());
        return coefficient;
    }
    return copy;
}

vhValue sameTagAtomSum(const vhValue& self, const vhValue& other, bool subtract)
{
    vhValue copy(self);
    vhValue* c1 = copy.firstMultiplier();
    const vhValue* c2 = other.firstMultiplier();
    if (!c1 || !c2)
        return vhValue();
    if (!self.stringEqual(other))
        return expressionRoute(self, other, subtract);
    vhValue sum = subtract ? *c1 - *c2 : *c1 + *c2;
    if (sum.isNull())
        return expressionRoute(self, other, subtract);
    // A sum of zero stays an atom with coefficient 0; the expression layer
    // drops such terms.
    *c1 = sum;
    return copy;
}

vhValue divideOverArray(const vhValue& self, const vhValue& array)
{
    vhValue result(array);
    const unsigned int n = array.vectorSize();
    for (unsigned int i = 0; i < n; ++i)
        result.setValue(self / array.value(i), i);
    return result;
}

vhValue makeFunction(int functionID, const std::vector<vhValue>& arguments)
{
    // 56 and 425 are no functions; asking the catalogue about them throws.
    if (functionID == 56 || functionID == 425)
        return vhValue();
    if (numberOfFunctionArguments(static_cast<NodeType>(functionID)) != arguments.size())
        return vhValue();
    return vhSymbolicFunction(functionID, arguments);
}

} // namespace internal
} // namespace ValueTypes
} // namespace VarnholtMath
