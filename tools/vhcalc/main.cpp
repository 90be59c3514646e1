// vhcalc: a command-line calculator over the engine. It reads worksheet-like
// lines from its arguments or from standard input, computes each on one
// calculation object and prints the results as text or as JSON.

#include <cstdlib>
#include <iostream>
#include <string>
#include <vector>

#include <unistd.h>

#include "line_editor.h"
#include "session.h"

namespace {

using vhcalc::Options;
using vhcalc::Session;

// Longer lines are refused unread: no worksheet line needs a megabyte.
constexpr std::size_t maximumLineLength = 1 << 20;

const char* const usage =
    "Usage: vhcalc [options] [EXPR ...]\n"
    "Computes each EXPR in order, or the lines of standard input, and prints\n"
    "one result a line.\n"
    "\n"
    "  --angle deg|rad|grad  unit of angles of the trigonometric functions (rad)\n"
    "  --decimals N          decimal places of printed numbers, 0 to 14 (14)\n"
    "  --json                print each result as one JSON object\n"
    "  --strict              exit with 1 when a result is undefined\n"
    "  --demo-type           register the example type point: new point(3, 4),\n"
    "                        p.x, p.norm()\n"
    "  --list                print the function catalogue and exit\n"
    "  --help                print this text and exit\n"
    "  --                    the following arguments are expressions\n"
    "\n"
    "Exit status: 0 when every line ran, 2 after an error in a line or in\n"
    "the options, 1 with --strict after an undefined result.\n";

int usageError(const std::string& message)
{
    std::cerr << "vhcalc: " << message << "\n" << "Try vhcalc --help.\n";
    return 2;
}

bool blank(const std::string& line) { return line.find_first_not_of(" \t") == std::string::npos; }

// Lines of standard input; blank lines are skipped, and input with no line
// at all is an error.
void runStream(Session& session, std::istream& in)
{
    std::string line;
    std::size_t number = 0;
    bool any = false;
    while (std::getline(in, line)) {
        ++number;
        if (!line.empty() && line.back() == '\r')
            line.pop_back();
        if (line.size() > maximumLineLength) {
            session.fail("line " + std::to_string(number) + " is longer than " +
                         std::to_string(maximumLineLength) + " bytes");
            any = true;
            continue;
        }
        if (blank(line))
            continue;
        any = true;
        session.runLine(line, number, false);
    }
    if (!any)
        session.fail("empty input: no expression to compute");
}

void runTerminal(Session& session)
{
    std::cout << "vhcalc: type an expression and press Enter; help NAME explains a function; "
                 "Ctrl-D ends.\n";
    std::cout.flush();
    vhcalc::LineEditor editor("> ");
    std::string line;
    std::size_t number = 0;
    while (editor.readLine(line)) {
        ++number;
        if (blank(line))
            continue;
        editor.remember(line);
        if (line == "quit" || line == "exit")
            break;
        session.runLine(line, number, true);
        std::cout.flush();
    }
}

} // namespace

int main(int argc, char** argv)
{
    Options options;
    bool list = false;
    std::vector<std::string> expressions;
    bool optionsEnded = false;
    for (int i = 1; i < argc; ++i) {
        const std::string arg = argv[i];
        if (optionsEnded || arg.size() < 2 || arg.compare(0, 2, "--") != 0) {
            expressions.push_back(arg);
            continue;
        }
        const auto valueOf = [&](const std::string& name, std::string& value) {
            if (arg.size() > name.size() && arg.compare(0, name.size() + 1, name + "=") == 0) {
                value = arg.substr(name.size() + 1);
                return true;
            }
            if (arg != name)
                return false;
            if (i + 1 >= argc)
                throw std::string(name + " needs a value");
            value = argv[++i];
            return true;
        };
        try {
            std::string value;
            if (arg == "--") {
                optionsEnded = true;
            } else if (arg == "--json") {
                options.json = true;
            } else if (arg == "--strict") {
                options.strict = true;
            } else if (arg == "--demo-type") {
                options.demoType = true;
            } else if (arg == "--list") {
                list = true;
            } else if (arg == "--help") {
                std::cout << usage;
                return 0;
            } else if (valueOf("--angle", value)) {
                if (value == "deg")
                    options.angle = VarnholtMath::ValueTypes::angleDegrees;
                else if (value == "rad")
                    options.angle = VarnholtMath::ValueTypes::angleRadians;
                else if (value == "grad")
                    options.angle = VarnholtMath::ValueTypes::angleGradians;
                else
                    return usageError("--angle takes deg, rad or grad, not \"" + value + "\"");
            } else if (valueOf("--decimals", value)) {
                if (value.empty() || value.size() > 2 || value.find_first_not_of("0123456789") != std::string::npos ||
                    std::atoi(value.c_str()) > 14)
                    return usageError("--decimals takes a whole number from 0 to 14, not \"" + value + "\"");
                options.decimals = static_cast<unsigned int>(std::atoi(value.c_str()));
                options.decimalsGiven = true;
            } else {
                return usageError("unknown option " + arg);
            }
        } catch (const std::string& message) {
            return usageError(message);
        }
    }

    Session session(options, std::cout, std::cerr);
    if (list) {
        vhcalc::listCatalogue(session.catalogue(), std::cout);
        return 0;
    }
    if (!expressions.empty()) {
        // Each argument is one line; an empty one is an error like any other.
        for (std::size_t i = 0; i < expressions.size(); ++i) {
            if (expressions[i].size() > maximumLineLength)
                session.fail("expression " + std::to_string(i + 1) + " is too long");
            else
                session.runLine(expressions[i], i + 1, false);
        }
    } else if (isatty(STDIN_FILENO) && isatty(STDOUT_FILENO)) {
        runTerminal(session);
    } else {
        runStream(session, std::cin);
    }
    std::cout.flush();
    return session.exitStatus();
}
