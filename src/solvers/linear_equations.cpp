// Systems of linear equations given as equations in symbols. Each equation
// is brought to the form coefficients times unknowns == right side; the
// system is solved by the cofactor inverse of the coefficient matrix, so
// that coefficients and right sides may hold symbols themselves.

#include <string>
#include <vector>

#include "frame/math.h"

namespace VarnholtMath {
namespace ValueTypes {

namespace {

// The names of the symbols in v, in order of first appearance.
std::vector<std::string> symbolNames(const vhValue& v)
{
    std::vector<std::string> names;
    v.symbols(names, false);
    return names;
}

bool holdsSymbol(const vhValue& term, const std::string& name)
{
    if (term.isNull() || term.valueType() < tagSymbolicValue)
        return false;
    for (const std::string& n : symbolNames(term))
        if (n == name)
            return true;
    return false;
}

// The terms of a side: an expression's terms, or the value as one term.
std::vector<vhValue> termsOf(const vhValue& v)
{
    if (v.valueType() == tagExpression)
        return v.expressionValues();
    std::vector<vhValue> terms;
    if (!v.isNull())
        terms.push_back(v);
    return terms;
}

// An expression side as a value: no term the integer 0, one term the term.
vhValue sideValue(const vhValue& e)
{
    if (e.valueType() != tagExpression)
        return e;
    const unsigned int n = e.expressionValuesSize();
    if (n == 0)
        return vhInteger(0);
    if (n == 1)
        return e.expressionValues()[0];
    return e;
}

// Moves terms from side to other for each unknown in turn: with
// movingHolders, the terms that hold the unknown, otherwise those that don't.
// A moved term t is added as -t to both sides, which cancels it on side and
// keeps the equation balanced.
void moveTerms(vhValue& side, vhValue& other, const std::vector<vhValue>& unknowns, bool movingHolders)
{
    vhValue a = vhExpression(side), b = vhExpression(other);
    for (const vhValue& s : unknowns) {
        const std::string name = s.toString();
        for (const vhValue& t : termsOf(a))
            if (holdsSymbol(t, name) == movingHolders) {
                const vhValue negated = t * vhInteger(-1);
                a += negated;
                b += negated;
            }
    }
    side = sideValue(a);
    other = sideValue(b);
}

// The sum of t / s over the terms t that hold s: the coefficient of s in a
// side that is linear in it.
vhValue coefficientOf(const vhValue& side, const vhValue& s)
{
    const std::string name = s.toString();
    std::vector<vhValue> parts;
    for (const vhValue& t : termsOf(side))
        if (holdsSymbol(t, name))
            parts.push_back(t / s);
    if (parts.empty())
        return vhInteger(0);
    if (parts.size() == 1)
        return parts[0];
    vhValue sum = vhExpression(parts[0]);
    for (std::size_t i = 1; i < parts.size(); ++i)
        sum += parts[i];
    return sideValue(sum);
}

// The coefficient matrix and the column of right sides of the system, or
// false when the arguments do not make a square system of "==" equations in
// distinct unknowns.
bool splitSystem(const vhValue& equations, const vhValue& symbols, vhValue& matrix, vhValue& terms)
{
    if (equations.isNull() || symbols.isNull() || !equations.isVector() || !symbols.isVector())
        return false;
    const unsigned int n = equations.vectorSize();
    if (n == 0 || n != symbols.vectorSize())
        return false;

    std::vector<vhValue> unknowns;
    for (unsigned int j = 0; j < n; ++j) {
        const vhValue s = symbols.value(j);
        if (s.isNull() || !s.isSymbol())
            return false;
        for (const vhValue& earlier : unknowns)
            if (earlier == s)
                return false;
        unknowns.push_back(s);
    }

    std::vector<vhValue> lefts, rights;
    for (unsigned int i = 0; i < n; ++i) {
        const vhValue e = equations.value(i);
        if (e.isNull() || e.valueType() != tagEquation || e.equationType() != "==")
            return false;
        vhValue left = vhExpression(e.leftExpression());
        vhValue right = vhExpression(e.rightExpression());
        if (left.isNull() || right.isNull())
            return false;
        // Constants to the right, unknowns to the left.
        moveTerms(left, right, unknowns, false);
        moveTerms(right, left, unknowns, true);
        if (right.isNull())
            right = vhExpression(vhInteger(0));
        lefts.push_back(left);
        rights.push_back(sideValue(right));
    }

    vhMatrix A(n, n, false, false, false);
    for (unsigned int i = 0; i < n; ++i)
        for (unsigned int j = 0; j < n; ++j) {
            const vhValue c = coefficientOf(lefts[i], unknowns[j]);
            if (c.isNull())
                return false;
            A.setValue(c, i, j);
        }
    if (A.isNull() || A.matrixRows() != n)
        return false;
    matrix = A;
    terms = vhVector(rights, false);
    return terms.vectorSize() == n;
}

} // namespace

vhValue vhMath::linsolve_f(const vhValue& equation, const vhValue& symbol)
{
    if (equation.isNull() || symbol.isNull() || equation.valueType() != tagEquation || !symbol.isSymbol())
        return vhValue();
    return linsolvesys_f(vhVector(std::vector<vhValue>{equation}, false), vhVector(std::vector<vhValue>{symbol}, false));
}

vhValue vhMath::linsolvesys_f(const vhValue& equations, const vhValue& symbols)
{
    vhValue A, b;
    if (!splitSystem(equations, symbols, A, b))
        return vhValue();
    // A singular matrix has no inverse, and the product of the undefined
    // value is undefined: no unique solution, no answer.
    const vhValue inverse = A.inverseMatrix();
    if (inverse.isNull())
        return vhValue();
    const vhValue x = inverse * b;
    if (x.isNull())
        return vhValue();
    if (x.vectorSize() == 1)
        return x.value(0);
    return x;
}

vhValue vhMath::linSysMatrix_f(const vhValue& equations, const vhValue& symbols)
{
    vhValue A, b;
    if (!splitSystem(equations, symbols, A, b))
        return vhValue();
    return A;
}

vhValue vhMath::linSysTerms_f(const vhValue& equations, const vhValue& symbols)
{
    vhValue A, b;
    if (!splitSystem(equations, symbols, A, b))
        return vhValue();
    return b;
}

vhValue vhMath::linSysSplit_f(const vhValue& equations, const vhValue& symbols)
{
    vhValue A, b;
    if (!splitSystem(equations, symbols, A, b))
        return vhValue();
    vhVector split(2, true, true, false);
    split.setValue(A, 0);
    split.setValue(b, 1);
    return split;
}

} // namespace ValueTypes
} // namespace VarnholtMath
