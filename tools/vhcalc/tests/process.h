#pragma once

// Runs the calculator as a child process, the way a user or a script runs it.

#include <string>
#include <vector>

namespace vhcalc_test {

struct Outcome {
    int status = -1;       // exit status; -1 when killed by a signal or the time limit
    std::string out;
    std::string err;
};

// Runs the calculator with the arguments and the given standard input (a
// pipe, so not a terminal). A child that runs longer than the limit is
// killed and the run fails.
Outcome runCalculator(const std::vector<std::string>& arguments, const std::string& input = "", int timeLimitSeconds = 60);

// Runs the calculator on a pseudo-terminal. Each entry of keys is typed after
// the output shows one more prompt than before; everything the terminal
// shows is returned in out.
Outcome runOnTerminal(const std::vector<std::string>& arguments, const std::vector<std::string>& keys,
                  int timeLimitSeconds = 60);

} // namespace vhcalc_test
