#pragma once

// Helpers of polynomial division, fractions and substitution; not part of
// the interface.

#include <string>

#include "value/value.h"

namespace VarnholtMath {
namespace ValueTypes {
namespace internal {

// Fractions reduce by dividing, and a division that fails builds a fraction;
// a fraction inside a fraction starts the same work one level down. Each
// level counts here, and so does each entry since the outermost call, so
// that a pathological value ends the work instead of the stack or the
// user's patience. Reductions that normal values start stay far below both.
class RecursionGuard {
public:
    RecursionGuard()
    {
        if (level()++ == 0)
            entries() = 0;
        ++entries();
    }
    ~RecursionGuard() { --level(); }
    RecursionGuard(const RecursionGuard&) = delete;
    RecursionGuard& operator=(const RecursionGuard&) = delete;
    bool exceeded() const { return level() > kLimit || spent(); }
    // The work of the outermost call is used up: running loops end too.
    static bool spent() { return entries() > kEntryBudget; }
    static constexpr int kLimit = 200;
    static constexpr long kEntryBudget = 256;

private:
    static int& level()
    {
        static thread_local int depth = 0;
        return depth;
    }
    static long& entries()
    {
        static thread_local long count = 0;
        return count;
    }
};

// The name of the first symbol of a value, empty when it has none.
std::string firstSymbolName(const vhValue& v);

// The highest power of the symbol among n terms, and how many terms have
// that power. Terms without the symbol have the power 0; without a symbol
// (an undefined one) every term counts.
void topDegree(const vhValue* terms, std::size_t n, const vhValue& symbol, double& degree, std::size_t& count);

} // namespace internal
} // namespace ValueTypes
} // namespace VarnholtMath
