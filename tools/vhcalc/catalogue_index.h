#pragma once

// The calculator's view of the catalogue: which rows carry a name, how a name
// and a number of arguments choose a row, and how the engine reaches a row.

#include <map>
#include <string>
#include <vector>

#include <VhMathLib.h>

namespace vhcalc {

using VarnholtMath::ValueTypes::NodeType;

// How the engine reaches a catalogue row.
enum class RowClass {
    Dispatched,  // through callFunction
    MemberOnly,  // only by a direct call of the member of vhMath
    HostOnly,    // the host implements it; the engine keeps only the catalogue
    None         // a row that the engine doesn't compute at all
};

RowClass rowClass(NodeType id);

// Argument count of a row; rows without a count (the unused numbers) give -1.
int argumentCount(NodeType id);

class CatalogueIndex {
public:
    CatalogueIndex();

    // Rows of a name, in ascending order; empty when the name is unknown.
    const std::vector<NodeType>& rows(const std::string& name) const;

    // The row that a call of name with argumentCount arguments means: the
    // lowest-numbered row of that count whose function the engine computes,
    // else the lowest of that count. So pow is 21 and abs 23, and derivative
    // with two arguments is 331 (rows 32 and 33 take six). Throws CalcError
    // at offset with the reason when there is none.
    NodeType resolve(const std::string& name, int argumentCount, std::size_t offset) const;

    // Every named row in ascending order.
    const std::vector<NodeType>& namedRows() const { return m_named; }

private:
    std::map<std::string, std::vector<NodeType>> m_byName;
    std::vector<NodeType> m_named;
};

} // namespace vhcalc
