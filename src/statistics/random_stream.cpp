// The process-wide Lehmer stream.

#include "statistics/random_stream.h"

#include <ctime>

namespace VarnholtMath {
namespace statistics {

std::int32_t randomSeedPending = 1;
std::uint32_t randomState = 0;

std::uint32_t nextRandom()
{
    if (randomSeedPending == 1) {
        // The low 32 bits of a 64-bit clock: the same on every platform and
        // after 2038.
        const std::int64_t now = static_cast<std::int64_t>(std::time(nullptr));
        randomState = static_cast<std::uint32_t>(now & 0xFFFFFFFF);
        randomSeedPending = 0;
    }
    randomState = static_cast<std::uint32_t>(static_cast<std::uint64_t>(randomState) * 16807u % 2147483647u);
    return randomState;
}

void seedRandomStream(std::uint32_t state)
{
    randomState = state;
    randomSeedPending = 0;
}

} // namespace statistics
} // namespace VarnholtMath
