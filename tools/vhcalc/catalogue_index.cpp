#include "catalogue_index.h"

#include <algorithm>
#include <exception>
#include <utility>

#include "calc_error.h"
#include "member_calls.h"

namespace vhcalc {

namespace {

using Range = std::pair<int, int>;

// The engine's three classes of rows, by number. The engine has no query for
// them, so the host keeps the lists.
const std::vector<Range> dispatchedRows = {
    {20, 34}, {36, 36}, {57, 341}, {394, 397}, {411, 415}, {417, 424}, {426, 429}, {441, 441},
    {477, 479}, {485, 486}, {488, 526}, {528, 542}, {544, 544}, {555, 577}, {613, 614}, {617, 624},
    {630, 633}, {638, 653}, {669, 673}, {675, 687}, {689, 696}, {698, 701}, {705, 732}, {740, 744},
    {751, 752}, {768, 768}, {779, 783}, {785, 808}, {813, 813}, {815, 862}, {864, 864}, {871, 887},
    {892, 906}, {908, 910}, {912, 920}, {1000, 1013}, {1016, 1017}, {1019, 1021}, {1023, 1027},
    {1029, 1030}, {1032, 1040}, {1122, 1125}};

const std::vector<Range> memberOnlyRows = {
    {5, 7}, {18, 19}, {38, 54}, {345, 363}, {385, 386}, {398, 410}, {416, 416}, {436, 438},
    {445, 448}, {450, 456}, {469, 476}, {480, 484}, {487, 487}};

const std::vector<Range> hostOnlyRows = {
    {35, 35}, {387, 387}, {391, 391}, {457, 468}, {545, 553}, {580, 609}, {611, 611}, {655, 667},
    {735, 737}, {745, 749}, {754, 760}, {769, 769}, {772, 774}, {777, 778}, {784, 784}, {810, 811},
    {866, 869}, {888, 891}, {921, 924}, {926, 926}, {985, 996}, {998, 998}, {1042, 1052}, {1054, 1077},
    {1079, 1121}, {1126, 1126}, {1128, 1128}};

bool inRanges(const std::vector<Range>& ranges, int id)
{
    return std::any_of(ranges.begin(), ranges.end(), [id](const Range& r) { return id >= r.first && id <= r.second; });
}

// The engine computes the row now: a dispatched row, or a member-only row
// whose member exists.
bool computable(NodeType id)
{
    const RowClass c = rowClass(id);
    return c == RowClass::Dispatched || (c == RowClass::MemberOnly && memberAvailable(id));
}

std::string countText(const std::vector<int>& counts)
{
    std::string s;
    for (std::size_t i = 0; i < counts.size(); ++i) {
        if (i > 0)
            s += i + 1 == counts.size() ? " or " : ", ";
        s += std::to_string(counts[i]);
    }
    return s + (counts.size() == 1 && counts[0] == 1 ? " argument" : " arguments");
}

} // namespace

RowClass rowClass(NodeType id)
{
    if (inRanges(dispatchedRows, id))
        return RowClass::Dispatched;
    if (inRanges(memberOnlyRows, id))
        return RowClass::MemberOnly;
    if (inRanges(hostOnlyRows, id))
        return RowClass::HostOnly;
    return RowClass::None;
}

int argumentCount(NodeType id)
{
    try {
        return static_cast<int>(VarnholtMath::ValueTypes::numberOfFunctionArguments(id));
    } catch (const std::exception&) {
        // The two unused numbers have no count.
        return -1;
    }
}

CatalogueIndex::CatalogueIndex()
{
    for (int i = 0; i <= 1128; ++i) {
        const NodeType id = static_cast<NodeType>(i);
        const std::string name = VarnholtMath::ValueTypes::functionName(id);
        if (name.empty())
            continue;
        m_byName[name].push_back(id);
        m_named.push_back(id);
    }
}

const std::vector<NodeType>& CatalogueIndex::rows(const std::string& name) const
{
    static const std::vector<NodeType> none;
    const auto it = m_byName.find(name);
    return it == m_byName.end() ? none : it->second;
}

NodeType CatalogueIndex::resolve(const std::string& name, int count, std::size_t offset) const
{
    const std::vector<NodeType>& candidates = rows(name);
    if (candidates.empty())
        throw CalcError(offset, "unknown function " + name);
    // A name that only the host implements says so, whatever the arguments.
    if (std::all_of(candidates.begin(), candidates.end(), [](NodeType id) { return rowClass(id) == RowClass::HostOnly; }))
        throw CalcError(offset, "function " + name + " belongs to the host");

    std::vector<NodeType> fitting;
    std::vector<int> counts;
    for (NodeType id : candidates) {
        const int n = argumentCount(id);
        if (n == count)
            fitting.push_back(id);
        if (n >= 0 && std::find(counts.begin(), counts.end(), n) == counts.end())
            counts.push_back(n);
    }
    if (fitting.empty()) {
        std::sort(counts.begin(), counts.end());
        throw CalcError(offset, "function " + name + " takes " + countText(counts) + ", not " + std::to_string(count));
    }
    const auto best = std::find_if(fitting.begin(), fitting.end(), computable);
    const NodeType id = best != fitting.end() ? *best : fitting.front();
    switch (rowClass(id)) {
    case RowClass::Dispatched:
        return id;
    case RowClass::MemberOnly:
        if (memberAvailable(id))
            return id;
        break;
    case RowClass::HostOnly:
        throw CalcError(offset, "function " + name + " belongs to the host");
    case RowClass::None:
        break;
    }
    throw CalcError(offset, "function " + name + " is not available");
}

} // namespace vhcalc
