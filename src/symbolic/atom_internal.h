#pragma once

// Helpers shared by the three kinds of symbolic atom (symbols, held
// functions, units) and the expression walk; not part of the interface.

#include <vector>

#include "value/value.h"

namespace VarnholtMath {
namespace ValueTypes {
namespace internal {

inline bool isAtomTag(int t) { return t >= tagSymbolicValue && t <= tagUnit; }
inline bool isNumberTag(int t) { return t >= tagBoolean && t <= tagComplex; }
inline bool isRealNumberTag(int t) { return t >= tagBoolean && t <= tagDouble; }
inline bool isArrayTag(int t) { return t == tagVector || t == tagMatrix; }
inline bool isPowerId(int id) { return id == 21 || id == 22; }

// A defined boolean, integer or double equal to 0 (a complex zero is not).
bool isRealZero(const vhValue& v);
// A defined double equal to +infinity or -infinity.
bool isInfiniteDouble(const vhValue& v);
// The exponent and the multiplier of an atom are present and defined.
bool hasExponentAndMultiplier(const vhValue& v);
// A held power: a symbolic function of one of the two pow numbers.
bool isPowerFunction(const vhValue& v);

// A short list of pointers to factors. Chains rarely hold more than a few
// atoms, so the first entries live in place and the list allocates nothing.
class FactorList {
public:
    void push_back(const vhValue* p)
    {
        if (m_size < kInPlace) {
            m_inPlace[m_size] = p;
        } else {
            if (m_size == kInPlace)
                m_spill.assign(m_inPlace, m_inPlace + kInPlace);
            m_spill.push_back(p);
        }
        ++m_size;
    }
    std::size_t size() const { return m_size; }
    bool empty() const { return m_size == 0; }
    const vhValue* const* begin() const { return m_size <= kInPlace ? m_inPlace : m_spill.data(); }
    const vhValue* const* end() const { return begin() + m_size; }
    const vhValue* operator[](std::size_t i) const { return begin()[i]; }

private:
    static constexpr std::size_t kInPlace = 8;
    const vhValue* m_inPlace[kInPlace];
    std::vector<const vhValue*> m_spill;
    std::size_t m_size = 0;
};

// The factors of a term in the order of multipliers(): the coefficient first,
// the outermost atom last. The entries point into the term itself, and an
// atom entry still carries its chain; readers look at its name, exponent and
// arguments only.
void chainFactors(const vhValue& term, FactorList& out);
// Only the symbolic atoms among them.
void symbolicChainFactors(const vhValue& term, FactorList& out);
// The number of entries multipliers() would list.
std::size_t chainLength(const vhValue& term);

// Whether two factors are the same but for their coefficients: symbols and
// units by name and exponent (symbols also by character formats when asked),
// functions by exponent and by function and arguments. Other pairs match
// through operator== when equalityForOthers is set, else never.
bool factorsMatch(const vhValue& a, const vhValue& b, bool compareFormats, bool equalityForOthers);
// Every factor of the first list finds a match somewhere in the second.
bool factorListsMatch(const FactorList& first, const FactorList& second, bool compareFormats,
                      bool equalityForOthers);

// An atom that meets a term it cannot merge with becomes a one-term
// expression and lets the expression add. The atom is marked on its way in, so
// that the pair inside the expression answers null instead of wrapping again;
// a marked side on entry means that this is that inner pair.
vhValue expressionRoute(const vhValue& self, const vhValue& other, bool subtract);

// True when a + b and a - b are sure to give null because b carries the
// expression mark: two unlike atoms of one kind, atoms of two kinds, or a
// number other than zero against an atom. The term walk of sums uses it to
// skip pairs that don't merge without computing them.
bool markedPairCannotMerge(const vhValue& a, const vhValue& b);

// The coefficient of a term whose factors are exactly a real 1 or -1 and the
// atom itself.
bool unitCoefficient(const vhValue& term, double& coefficient);

// Multiplies the multiplier of an atom in place; false when the product has
// no value, so that the caller can give up instead of holding a broken atom.
bool multiplyIntoMultiplier(vhValue& atom, const vhValue& factor);

// The product of two atoms of one tag, both checked for exponent and
// multiplier: the longer chain goes to the left, a product of several factors
// is taken factor by factor, and two atoms of one name merge coefficients and
// exponents. A zero exponent collapses the atom to its coefficient when sweep
// is set.
vhValue sameTagAtomProduct(const vhValue& self, const vhValue& other, bool sweep);

// The sum or difference of two atoms of one tag: coefficients add when the
// atoms are equal but for them, anything else goes the expression route.
vhValue sameTagAtomSum(const vhValue& self, const vhValue& other, bool subtract);

// The sum of an atom of tag ownTag (a symbol or a unit) with any value other
// than a string: unlike atoms and complex numbers take the expression route,
// a richer right operand takes the operation over, a real zero changes
// nothing, and atoms of the same tag merge by sameTagAtomSum.
vhValue atomSum(const vhValue& self, const vhValue& other, bool subtract, int ownTag);

// A copy of an atom whose coefficient is divided by a number; undefined when
// the quotient is.
vhValue coefficientOver(const vhValue& atom, const vhValue& number);

// Equality of an atom of tag ownTag with any value: a richer right operand
// decides, a poorer one is unequal, and two atoms match factor by factor,
// coefficient included (with or without the character formats).
bool atomEqual(const vhValue& self, const vhValue& other, int ownTag, bool compareFormats);

// self / element for each element of an array, in a copy of the array.
vhValue divideOverArray(const vhValue& self, const vhValue& array);

// An atom divided by a value of a richer tag: a richer atom is inverted and
// multiplied, an array is divided element by element, a fraction turns
// over, and anything else lifts the atom to its tag first.
vhValue atomOverRicher(const vhValue& self, const vhValue& other);

// A held function of the given number and arguments, or null when the count
// of arguments is not the catalogue's: the operators never throw.
vhValue makeFunction(int functionID, const std::vector<vhValue>& arguments);

} // namespace internal
} // namespace ValueTypes
} // namespace VarnholtMath
