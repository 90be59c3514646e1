#pragma once

// The parsed form of one line. Runs of operators of one precedence level
// (a + b - c, a < b < c) are one Chain node with a list of operands, so that
// a long sum is a flat list and not a deep tree: evaluating and destroying a
// tree then recurses only as deep as the parser did, and the parser's
// nesting limit bounds that.

#include <cstddef>
#include <memory>
#include <string>
#include <vector>

#include "lexer.h"

namespace vhcalc {

struct Node {
    enum class Kind {
        Number,  // number, wholeNumber, imaginary
        String,  // text
        Name,    // text: a variable or a symbol
        Call,    // text: function name; children: arguments
        Negate,  // children[0]
        Power,   // children[0] ^ children[1]
        Chain,   // children[0] ops[0] children[1] ops[1] children[2] ...
        Array,   // rows of children, see rowLengths
        New,     // new text(children...): an object of a registered type
        Member,  // children[0].text: a member of an object
        Method   // children[0].text(children[1], ...): a method of an object
    };

    Kind kind;
    std::size_t offset = 0;
    std::string text;
    double number = 0.0;
    bool wholeNumber = false;
    bool imaginary = false;
    std::vector<std::unique_ptr<Node>> children;
    // Chain: the operator before each operand after the first, with its offset.
    std::vector<TokenKind> ops;
    std::vector<std::size_t> opOffsets;
    // Array: number of elements in each row, row after row in children. No
    // rows is the empty vector; one row a row vector; rows of one element a
    // column vector.
    std::vector<std::size_t> rowLengths;

    explicit Node(Kind k, std::size_t at) : kind(k), offset(at) {}
};

// A line is an expression, optionally stored under a name (name := expr).
struct Statement {
    std::string assignTo;
    std::unique_ptr<Node> expression;
};

} // namespace vhcalc
