#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "lexer.h"
#include "syntax_tree.h"

namespace vhcalc {

// Deepest nesting of brackets, calls, signs and powers that a line may have.
// Ten thousand parentheses are bad input, not a reason to run out of stack.
constexpr std::size_t maximumNesting = 200;

// Parses the tokens of one line; throws CalcError at the first token that
// doesn't fit. Precedence, from loose to tight: comparisons; + and -; * and /;
// unary minus; ^ (right-associative, so 2^3^2 is 2^9 and -2^2 is -4).
Statement parse(const std::vector<Token>& tokens);

} // namespace vhcalc
