#pragma once

#include <string>
#include <vector>

#include "frame/node_type.h"
#include "value/export.h"

namespace VarnholtMath {
namespace ValueTypes {

// Count of arguments of a row; 0 for operators, statements and unknown
// numbers. Throws std::exception for the unused numbers 56 and 425. It sits on
// the path of every callFunction, so it allocates nothing.
VH_EXPORT unsigned int numberOfFunctionArguments(NodeType id);

// Name of the row in the worksheet language; empty for rows without a name.
VH_EXPORT std::string functionName(NodeType id);

// Name of the member of vhMath that computes the row: the name with "_f".
VH_EXPORT std::string functionName_f(NodeType id);

// Keyword, title and category of the function search; three empty strings
// outside the keyword rows.
VH_EXPORT std::vector<std::string> functionKeyword(NodeType id);

// Help text: description, result line, then one line per argument.
VH_EXPORT std::vector<std::string> functionDescription(NodeType id);

} // namespace ValueTypes
} // namespace VarnholtMath

// Value type tags that the host may offer for the arguments of a function.
VH_EXPORT std::vector<int> getInputOptionsForFunction(VarnholtMath::ValueTypes::NodeType id);
