#pragma once

// One run of the calculator: one calculation object, the variables, and the
// exit status that the lines so far have earned.

#include <cstddef>
#include <iosfwd>
#include <string>

#include <VhMathLib.h>

#include "catalogue_index.h"
#include "demo_type.h"
#include "evaluator.h"

namespace vhcalc {

struct Options {
    bool json = false;
    bool strict = false;
    bool decimalsGiven = false;
    // Registers the example type point (demo_type.h).
    bool demoType = false;
    unsigned int decimals = 14;
    VarnholtMath::ValueTypes::AngleUnit angle = VarnholtMath::ValueTypes::angleRadians;
};

class Session {
public:
    Session(const Options& options, std::ostream& out, std::ostream& err);
    ~Session();
    Session(const Session&) = delete;
    Session& operator=(const Session&) = delete;

    // Runs one line: "help NAME", or an expression whose result is printed.
    // Errors go to the error stream, naming the line and the column; with
    // showLine the line is repeated there with a mark under the column.
    void runLine(const std::string& line, std::size_t lineNumber, bool showLine);

    // Reports an error that belongs to no column, such as an empty input.
    void fail(const std::string& message);

    // 0 when every line ran, 2 after any error, 1 in strict mode after an
    // undefined result and no error.
    int exitStatus() const;

    const CatalogueIndex& catalogue() const { return m_catalogue; }

private:
    bool runHelp(const std::string& line);
    void printHelp(VarnholtMath::ValueTypes::NodeType id);
    void print(const VarnholtMath::ValueTypes::vhValue& result);

    Options m_options;
    std::ostream& m_out;
    std::ostream& m_err;
    // Declared before the variables, which may hold handles into it.
    ObjectStore m_objects;
    VarnholtMath::ValueTypes::vhMath m_math;
    CatalogueIndex m_catalogue;
    Evaluator m_evaluator;
    bool m_failed = false;
    bool m_undefinedResult = false;
};

// Prints the catalogue: number, name, argument count, keyword and category,
// tab-separated, one named row a line.
void listCatalogue(const CatalogueIndex& catalogue, std::ostream& out);

} // namespace vhcalc
