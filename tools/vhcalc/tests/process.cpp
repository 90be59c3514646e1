#include "process.h"

#include <cerrno>
#include <chrono>
#include <csignal>
#include <cstring>

#include <poll.h>
#include <pty.h>
#include <sys/wait.h>
#include <unistd.h>

namespace vhcalc_test {

namespace {

using Clock = std::chrono::steady_clock;

std::vector<char*> argv(const std::vector<std::string>& arguments)
{
    std::vector<char*> v;
    v.push_back(const_cast<char*>(VHCALC_BINARY));
    for (const std::string& a : arguments)
        v.push_back(const_cast<char*>(a.c_str()));
    v.push_back(nullptr);
    return v;
}

int finish(pid_t pid, bool killed)
{
    int status = 0;
    while (waitpid(pid, &status, 0) < 0 && errno == EINTR) {
    }
    if (killed || !WIFEXITED(status))
        return -1;
    return WEXITSTATUS(status);
}

} // namespace

Outcome runCalculator(const std::vector<std::string>& arguments, const std::string& input, int timeLimitSeconds)
{
    // Standard input, output and error are files, so that no pipe can fill
    // up while the other end waits.
    char names[3][32] = {"/tmp/vhcalc_inXXXXXX", "/tmp/vhcalc_outXXXXXX", "/tmp/vhcalc_errXXXXXX"};
    int fds[3];
    for (int k = 0; k < 3; ++k)
        fds[k] = mkstemp(names[k]);
    if (write(fds[0], input.data(), input.size()) != static_cast<ssize_t>(input.size()))
        return {};
    lseek(fds[0], 0, SEEK_SET);
    std::vector<char*> args = argv(arguments);
    const pid_t pid = fork();
    if (pid == 0) {
        for (int k = 0; k < 3; ++k)
            dup2(fds[k], k);
        execv(args[0], args.data());
        _exit(127);
    }
    const auto deadline = Clock::now() + std::chrono::seconds(timeLimitSeconds);
    int status = 0;
    bool killed = false;
    while (waitpid(pid, &status, WNOHANG) == 0) {
        if (Clock::now() > deadline) {
            kill(pid, SIGKILL);
            killed = true;
            break;
        }
        usleep(2000);
    }
    Outcome run;
    run.status = killed ? finish(pid, true) : WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    for (int k = 1; k < 3; ++k) {
        std::string& text = k == 1 ? run.out : run.err;
        lseek(fds[k], 0, SEEK_SET);
        char buffer[65536];
        for (ssize_t n; (n = read(fds[k], buffer, sizeof buffer)) > 0;)
            text.append(buffer, static_cast<std::size_t>(n));
    }
    for (int k = 0; k < 3; ++k) {
        close(fds[k]);
        unlink(names[k]);
    }
    return run;
}

Outcome runOnTerminal(const std::vector<std::string>& arguments, const std::vector<std::string>& keys, int timeLimitSeconds)
{
    std::vector<char*> args = argv(arguments);
    int master = -1;
    const pid_t pid = forkpty(&master, nullptr, nullptr, nullptr);
    if (pid < 0)
        return {};
    if (pid == 0) {
        execv(args[0], args.data());
        _exit(127);
    }
    Outcome run;
    const auto deadline = Clock::now() + std::chrono::seconds(timeLimitSeconds);
    std::size_t typed = 0;
    bool killed = false;
    while (true) {
        // The next keys go in once the output shows as many fresh prompts
        // (a prompt at the start of a new line, not a redrawn one) as
        // entries typed so far plus one.
        std::size_t prompts = 0;
        for (std::size_t p = run.out.find("\n\r> "); p != std::string::npos; p = run.out.find("\n\r> ", p + 4))
            ++prompts;
        if (typed < keys.size() && prompts > typed) {
            const std::string& k = keys[typed++];
            if (write(master, k.data(), k.size()) != static_cast<ssize_t>(k.size()))
                break;
        }
        const auto left = std::chrono::duration_cast<std::chrono::milliseconds>(deadline - Clock::now()).count();
        if (left <= 0) {
            kill(pid, SIGKILL);
            killed = true;
            break;
        }
        pollfd fd = {master, POLLIN, 0};
        if (poll(&fd, 1, static_cast<int>(left)) <= 0)
            continue;
        char buffer[4096];
        const ssize_t n = read(master, buffer, sizeof buffer);
        if (n <= 0)
            break;  // the child closed the terminal
        run.out.append(buffer, static_cast<std::size_t>(n));
    }
    close(master);
    run.status = finish(pid, killed);
    return run;
}

} // namespace vhcalc_test
