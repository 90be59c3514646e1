#include "member_calls.h"

#include <cstddef>
#include <type_traits>
#include <utility>

namespace vhcalc {

namespace {

using namespace VarnholtMath::ValueTypes;
using Arguments = std::vector<vhValue>;

// Every member-only row with its argument count. The members arrive with the
// parts of the engine that compute them; a row whose member vhMath doesn't
// have yet is found missing at compile time, below, and reported as not
// available, so the calculator picks up each member as soon as it exists.
#define VHCALC_MEMBER_ROWS(X)                                                                      \
    X(vector, 1) X(vectorr, 1) X(matrix, 2) X(equation, 3) X(interval, 4)                          \
    X(cPi, 0) X(cE, 0) X(cInf, 0) X(cC, 0) X(cEc, 0) X(cH, 0) X(cK, 0) X(cMu, 0) X(cNa, 0)         \
    X(cR, 0) X(cRc, 0) X(cFsc, 0) X(cEMc, 0) X(cPs, 0) X(cMps, 0) X(cSbc, 0) X(cMfq, 0)            \
    X(createMatrix, 2) X(createVector, 2) X(rows, 1) X(columns, 1) X(size, 1) X(valueAt, 3)        \
    X(setValueAt, 4) X(vectorsToMatrixRows, 2) X(vectorsToMatrixColumns, 2)                        \
    X(vectorToRowVector, 1) X(vectorToColumnVector, 1) X(matrixInverse, 1) X(matrixCoFactor, 1)   \
    X(matrixAdjoint, 1) X(matrixTranspose, 1) X(matrixDeterminant, 1) X(symbols, 1)               \
    X(containSymbol, 2) X(replaceSymbols, 3) X(typeName, 1) X(toString, 1) X(joinMatrixRows, 2)   \
    X(joinMatrixColumns, 2) X(row2Vector, 2) X(column2Vector, 2) X(isHermitian, 1)                 \
    X(positiveDefinite, 1) X(negativeDefinite, 1) X(positiveSemiDefinite, 1)                       \
    X(negativeSemiDefinite, 1) X(matrixConjugateTranspose, 1) X(isSymbolic, 1) X(matrixSMul, 2)   \
    X(matrixSDiv, 2) X(constantOfIntegration, 4) X(toNumber, 1) X(strlen, 1) X(strat, 2)           \
    X(setRowNames, 2) X(rowNames, 1) X(setColumnNames, 2) X(columnNames, 1) X(LinFit, 1)           \
    X(ExpFit, 1) X(LogFit, 1) X(PolyFit, 2) X(PowFit, 1) X(PolyRegressionValue, 3)                 \
    X(PolyRegressionCoef, 2) X(diag, 1) X(trace, 1) X(matMax, 1) X(rowsMax, 1) X(columnsMax, 1)   \
    X(matMin, 1) X(rowsMin, 1) X(columnsMin, 1) X(matrixCreate, 3) X(vectorCreate, 3)              \
    X(identityMatrix, 2) X(columnDelete, 2) X(rowDelete, 2) X(complexIdentity, 2)

struct Missing {};

// For each row a pair of overloads: the first exists only when
// math.NAME_f(a[0], ..., a[N-1]) is a valid call that gives a value; the
// literal 0 prefers it (int) over the fallback (long).
#define VHCALC_DECLARE_CALL(NAME, COUNT)                                                           \
    struct Call_##NAME {                                                                           \
        template <class M, std::size_t... I>                                                       \
        static auto call(M& m, const Arguments& a, std::index_sequence<I...>, int)                 \
            -> decltype(vhValue(m.NAME##_f(a[I]...)))                                             \
        {                                                                                          \
            (void)a;                                                                               \
            return vhValue(m.NAME##_f(a[I]...));                                                   \
        }                                                                                          \
        template <class M, std::size_t... I>                                                       \
        static Missing call(M&, const Arguments&, std::index_sequence<I...>, long)                 \
        {                                                                                          \
            return {};                                                                             \
        }                                                                                          \
    };
VHCALC_MEMBER_ROWS(VHCALC_DECLARE_CALL)
#undef VHCALC_DECLARE_CALL

template <class Call, std::size_t N>
constexpr bool exists()
{
    using R = decltype(Call::template call<vhMath>(std::declval<vhMath&>(), std::declval<const Arguments&>(),
                                                   std::make_index_sequence<N>{}, 0));
    return !std::is_same<R, Missing>::value;
}

template <class Call, std::size_t N>
bool invoke(vhMath& math, const Arguments& arguments, vhValue& result)
{
    if constexpr (exists<Call, N>()) {
        if (arguments.size() != N)
            return false;
        result = Call::template call<vhMath>(math, arguments, std::make_index_sequence<N>{}, 0);
        return true;
    } else {
        (void)math;
        (void)arguments;
        (void)result;
        return false;
    }
}

struct MemberRow {
    NodeType id;
    bool available;
    bool (*invoke)(vhMath&, const Arguments&, vhValue&);
};

#define VHCALC_ROW_ENTRY(NAME, COUNT) {nt_##NAME, exists<Call_##NAME, COUNT>(), &invoke<Call_##NAME, COUNT>},
const MemberRow memberRows[] = {VHCALC_MEMBER_ROWS(VHCALC_ROW_ENTRY)};
#undef VHCALC_ROW_ENTRY

const MemberRow* find(NodeType id)
{
    for (const MemberRow& row : memberRows)
        if (row.id == id)
            return &row;
    return nullptr;
}

} // namespace

bool memberAvailable(NodeType id)
{
    const MemberRow* row = find(id);
    return row && row->available;
}

bool callMember(vhMath& math, NodeType id, const Arguments& arguments, vhValue& result)
{
    const MemberRow* row = find(id);
    return row && row->available && row->invoke(math, arguments, result);
}

} // namespace vhcalc
