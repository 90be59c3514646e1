#pragma once

// Turns a parsed line into engine values: literals become values, operators
// become the operators of vhValue, calls go through callFunction or the
// member of vhMath, new TYPE(...) goes to the type registry, p.x and p.f()
// to the object's members and methods, and assignments are kept for the
// following lines.

#include <map>
#include <string>

#include <VhMathLib.h>

#include "catalogue_index.h"
#include "syntax_tree.h"

namespace vhcalc {

class Evaluator {
public:
    Evaluator(VarnholtMath::ValueTypes::vhMath& math, const CatalogueIndex& catalogue);

    // Evaluates the line and, for name := expr, stores the value under the
    // name. Throws CalcError for a call that the engine can't take (unknown
    // name, wrong count, host row); a failure inside the engine is no error
    // but the undefined value.
    VarnholtMath::ValueTypes::vhValue run(const Statement& statement);

private:
    VarnholtMath::ValueTypes::vhValue evaluate(const Node& node);
    VarnholtMath::ValueTypes::vhValue number(const Node& node) const;
    VarnholtMath::ValueTypes::vhValue call(const Node& node);
    VarnholtMath::ValueTypes::vhValue chain(const Node& node);
    VarnholtMath::ValueTypes::vhValue array(const Node& node);
    VarnholtMath::ValueTypes::vhValue creation(const Node& node);
    VarnholtMath::ValueTypes::vhValue method(const Node& node);

    VarnholtMath::ValueTypes::vhMath& m_math;
    const CatalogueIndex& m_catalogue;
    std::map<std::string, VarnholtMath::ValueTypes::vhValue> m_variables;
};

} // namespace vhcalc
