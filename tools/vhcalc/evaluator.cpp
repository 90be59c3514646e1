#include "evaluator.h"

#include <cmath>
#include <limits>
#include <vector>

#include "calc_error.h"
#include "member_calls.h"

namespace vhcalc {

using namespace VarnholtMath::ValueTypes;

namespace {

// An element that numeric storage can hold without losing anything: a
// defined integer or real number.
bool isRealNumber(const vhValue& v)
{
    return !v.isNull() && (v.valueType() == tagInteger || v.valueType() == tagDouble) && v.pointer() == nullptr;
}

// The engine takes objects' arguments as a C variable list of const
// vhValue*: a name and at most ten arguments.
constexpr std::size_t maximumObjectArguments = 10;

// f(n, p[0], ..., p[n - 1]) for the n pointers of the list.
template <class F>
vhValue withPointers(F f, const std::vector<const vhValue*>& p)
{
    switch (p.size()) {
    case 1: return f(1u, p[0]);
    case 2: return f(2u, p[0], p[1]);
    case 3: return f(3u, p[0], p[1], p[2]);
    case 4: return f(4u, p[0], p[1], p[2], p[3]);
    case 5: return f(5u, p[0], p[1], p[2], p[3], p[4]);
    case 6: return f(6u, p[0], p[1], p[2], p[3], p[4], p[5]);
    case 7: return f(7u, p[0], p[1], p[2], p[3], p[4], p[5], p[6]);
    case 8: return f(8u, p[0], p[1], p[2], p[3], p[4], p[5], p[6], p[7]);
    case 9: return f(9u, p[0], p[1], p[2], p[3], p[4], p[5], p[6], p[7], p[8]);
    case 10: return f(10u, p[0], p[1], p[2], p[3], p[4], p[5], p[6], p[7], p[8], p[9]);
    case 11: return f(11u, p[0], p[1], p[2], p[3], p[4], p[5], p[6], p[7], p[8], p[9], p[10]);
    default: return vhValue();
    }
}

bool typeDefined(const std::string& name)
{
    const vhValue names = MathDefinedTypes();
    for (unsigned int i = 0; i < names.vectorSize(); ++i)
        if (names.value(i).toString() == name)
            return true;
    return false;
}

} // namespace

Evaluator::Evaluator(vhMath& math, const CatalogueIndex& catalogue) : m_math(math), m_catalogue(catalogue) {}

vhValue Evaluator::run(const Statement& statement)
{
    vhValue result = evaluate(*statement.expression);
    if (!statement.assignTo.empty())
        m_variables[statement.assignTo] = result;
    return result;
}

vhValue Evaluator::evaluate(const Node& node)
{
    switch (node.kind) {
    case Node::Kind::Number:
        return number(node);
    case Node::Kind::String:
        return vhSymbolicValue(node.text, true, {});
    case Node::Kind::Name: {
        const auto it = m_variables.find(node.text);
        if (it != m_variables.end())
            return it->second;
        return vhSymbolicValue(node.text, false, {});
    }
    case Node::Kind::Call:
        return call(node);
    case Node::Kind::Negate:
        return evaluate(*node.children[0]) * vhInteger(-1);
    case Node::Kind::Power: {
        // The power row of the catalogue, so that the calculation object's
        // settings apply as they do to a written pow(a, b).
        std::vector<vhValue> arguments{evaluate(*node.children[0]), evaluate(*node.children[1])};
        return callFunction(&m_math, nt_pow, arguments);
    }
    case Node::Kind::Chain:
        return chain(node);
    case Node::Kind::Array:
        return array(node);
    case Node::Kind::New:
        return creation(node);
    case Node::Kind::Member:
        return evaluate(*node.children[0]).get(node.text);
    case Node::Kind::Method:
        return method(node);
    }
    return vhValue();
}

vhValue Evaluator::number(const Node& node) const
{
    if (node.imaginary)
        return vhComplex(0.0, node.number);
    if (node.wholeNumber && node.number >= std::numeric_limits<int>::min() &&
        node.number <= std::numeric_limits<int>::max())
        return vhInteger(static_cast<int>(node.number));
    return vhDouble(node.number);
}

vhValue Evaluator::call(const Node& node)
{
    // The row is chosen before the arguments run, so that a wrong name is
    // reported before anything inside it.
    const NodeType id = m_catalogue.resolve(node.text, static_cast<int>(node.children.size()), node.offset);
    std::vector<vhValue> arguments;
    arguments.reserve(node.children.size());
    for (const auto& child : node.children)
        arguments.push_back(evaluate(*child));
    if (rowClass(id) == RowClass::Dispatched)
        return callFunction(&m_math, id, arguments);
    vhValue result;
    callMember(m_math, id, arguments, result);
    return result;
}

vhValue Evaluator::chain(const Node& node)
{
    vhValue left = evaluate(*node.children[0]);
    for (std::size_t i = 0; i < node.ops.size(); ++i) {
        const vhValue right = evaluate(*node.children[i + 1]);
        vhValue next;
        switch (node.ops[i]) {
        case TokenKind::Plus: next = left + right; break;
        case TokenKind::Minus: next = left - right; break;
        case TokenKind::Star: next = left * right; break;
        case TokenKind::Slash: next = left / right; break;
        case TokenKind::Equal: next = left.EqualTo(right); break;
        case TokenKind::NotEqual: next = left.NotEqualTo(right); break;
        case TokenKind::Less: next = left.LessThen(right); break;
        case TokenKind::Greater: next = left.GreaterThen(right); break;
        case TokenKind::LessEqual: next = left.LessThenOrEqalTo(right); break;
        case TokenKind::GreaterEqual: next = left.GreaterThenOrEqalTo(right); break;
        default: break;
        }
        left = next;
    }
    return left;
}

vhValue Evaluator::array(const Node& node)
{
    if (node.rowLengths.empty())
        return vhVector();
    std::vector<vhValue> elements;
    elements.reserve(node.children.size());
    bool numeric = true;
    for (const auto& child : node.children) {
        elements.push_back(evaluate(*child));
        numeric = numeric && isRealNumber(elements.back());
    }
    const unsigned int rows = static_cast<unsigned int>(node.rowLengths.size());
    const unsigned int columns = static_cast<unsigned int>(node.rowLengths.front());
    const unsigned int n = rows * columns;
    const bool isVector = rows == 1 || columns == 1;
    const bool row = rows == 1;

    if (numeric) {
        vhValue result = isVector ? vhValue(vhVector(n, row, true, false))
                                  : vhValue(vhMatrix(rows, columns, true, false, false));
        double* data = result.numericValues();
        if (!data)
            return vhValue();
        for (unsigned int i = 0; i < n; ++i)
            data[i] = elements[i].toDouble();
        return result;
    }
    if (isVector)
        return vhVector(elements, row);
    vhMatrix result(rows, columns, false, false, false);
    for (unsigned int i = 0; i < rows; ++i)
        for (unsigned int j = 0; j < columns; ++j)
            result.setValue(elements[i * columns + j], i, j);
    return result;
}

vhValue Evaluator::creation(const Node& node)
{
    if (!typeDefined(node.text)) {
        const bool none = MathDefinedTypes().vectorSize() == 0;
        throw CalcError(node.offset, "unknown type " + node.text +
                                         (none ? " (vhcalc --demo-type registers the type point)" : ""));
    }
    if (node.children.size() > maximumObjectArguments)
        throw CalcError(node.offset,
                        "an object takes at most " + std::to_string(maximumObjectArguments) + " arguments");
    const vhValue name = vhSymbolicValue(node.text, true, {});
    std::vector<vhValue> arguments;
    arguments.reserve(node.children.size());
    for (const auto& child : node.children)
        arguments.push_back(evaluate(*child));
    std::vector<const vhValue*> pointers{&name};
    for (const vhValue& a : arguments)
        pointers.push_back(&a);
    return withPointers([this](unsigned int n, auto... p) { return m_math.ObjectCreate_f(n, p...); }, pointers);
}

vhValue Evaluator::method(const Node& node)
{
    if (node.children.size() - 1 > maximumObjectArguments)
        throw CalcError(node.offset, "a method takes at most " + std::to_string(maximumObjectArguments) + " arguments");
    vhValue object = evaluate(*node.children[0]);
    const vhValue name = vhSymbolicValue(node.text, true, {});
    std::vector<vhValue> arguments;
    arguments.reserve(node.children.size() - 1);
    for (std::size_t i = 1; i < node.children.size(); ++i)
        arguments.push_back(evaluate(*node.children[i]));
    std::vector<const vhValue*> pointers{&name};
    for (const vhValue& a : arguments)
        pointers.push_back(&a);
    // The object's value answers, or gives the undefined value when it has
    // no such method.
    return withPointers([&object](unsigned int n, auto... p) { return object.call(n, p...); }, pointers);
}

} // namespace vhcalc
