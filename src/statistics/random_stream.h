#pragma once

// The uniform random stream shared by every generator of the worksheet: a
// Lehmer generator, state = state * 16807 mod 2147483647, computed in 64
// bits. The state is process-wide, so all calculation objects draw from one
// stream; it is seeded from the clock on the first draw. It is not guarded:
// two threads drawing at once race on it, and the stream is not thread-safe.
//
// A state of 0 stays 0 (every draw is 0); generators that reject draws give
// up after a bounded number of tries rather than wait for a stuck stream.

#include <cstdint>

namespace VarnholtMath {
namespace statistics {

// 1 until the first draw seeds the state from the clock.
extern std::int32_t randomSeedPending;
extern std::uint32_t randomState;

// The next raw value of the stream, in [0, 2147483647).
std::uint32_t nextRandom();

// The next raw value divided by 2147483647.0: u in [0, 1).
inline double nextUniform() { return nextRandom() / 2147483647.0; }

// The test seam: sets the state as if the clock had given it, so that the
// stream that follows is known.
void seedRandomStream(std::uint32_t state);

} // namespace statistics
} // namespace VarnholtMath
