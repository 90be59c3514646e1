#include "session.h"

#include <exception>
#include <new>
#include <ostream>
#include <vector>

#include "calc_error.h"
#include "json_output.h"
#include "lexer.h"
#include "member_calls.h"
#include "parser.h"

namespace vhcalc {

using namespace VarnholtMath::ValueTypes;

Session::Session(const Options& options, std::ostream& out, std::ostream& err)
    : m_options(options), m_out(out), m_err(err), m_evaluator(m_math, m_catalogue)
{
    m_math.setAngleUnit(options.angle);
    m_math.setNumberOfDecimalPlaces(options.decimals);
    if (options.demoType)
        registerDemoType(m_objects);
}

Session::~Session()
{
    if (m_options.demoType)
        unregisterDemoType();
}

void Session::runLine(const std::string& line, std::size_t lineNumber, bool showLine)
{
    const std::string where = "vhcalc: line " + std::to_string(lineNumber);
    try {
        if (runHelp(line))
            return;
        const Statement statement = parse(tokenize(line));
        print(m_evaluator.run(statement));
    } catch (const CalcError& e) {
        m_failed = true;
        const std::size_t column = columnOf(line, e.offset());
        m_err << where << ", column " << column << ": " << e.what() << "\n";
        if (showLine)
            m_err << "  " << line << "\n  " << std::string(column - 1, ' ') << "^\n";
    } catch (const std::bad_alloc&) {
        m_failed = true;
        m_err << where << ": out of memory\n";
    } catch (const std::exception& e) {
        // The engine lets a few exceptions pass (a catalogue count error,
        // a checked index); the line fails, the run goes on.
        m_failed = true;
        m_err << where << ": the engine stopped with an exception: " << e.what() << "\n";
    }
}

void Session::fail(const std::string& message)
{
    m_failed = true;
    m_err << "vhcalc: " << message << "\n";
}

int Session::exitStatus() const
{
    if (m_failed)
        return 2;
    return m_options.strict && m_undefinedResult ? 1 : 0;
}

void Session::print(const vhValue& result)
{
    if (result.isNull())
        m_undefinedResult = true;
    vhValue shown = result;
    // The decimals chosen on the command line apply to the printed results
    // too; a value prints with its own decimal places.
    if (m_options.decimalsGiven)
        shown.setNumberOfDecimalPlaces(m_options.decimals);
    const std::string text = shown.isNull() ? "undefined" : shown.toStringAll();
    m_out << (m_options.json ? jsonResult(shown, text) : text) << "\n";
}

// "help", "help NAME" and "help NUMBER" are commands, not expressions.
bool Session::runHelp(const std::string& line)
{
    const std::vector<Token> tokens = tokenize(line);
    if (tokens.empty() || tokens[0].kind != TokenKind::Identifier || tokens[0].text != "help")
        return false;
    if (tokens[1].kind == TokenKind::End) {
        m_out << "Type an expression, such as sqrt(2) or [1, 2; 3, 4] * [1; 1], and press Enter.\n"
                 "name := expr keeps a value for the following lines; other names are symbols.\n"
                 "help NAME shows what a function does; vhcalc --list lists them all.\n";
        return true;
    }
    if (tokens.size() != 3 || (tokens[1].kind != TokenKind::Identifier && tokens[1].kind != TokenKind::Number))
        return false;
    if (tokens[1].kind == TokenKind::Number) {
        const double n = tokens[1].number;
        if (!tokens[1].wholeNumber || tokens[1].imaginary || n > 1128 ||
            VarnholtMath::ValueTypes::functionName(static_cast<NodeType>(static_cast<int>(n))).empty())
            throw CalcError(tokens[1].offset, "no function has the number " + tokens[1].text);
        printHelp(static_cast<NodeType>(static_cast<int>(n)));
        return true;
    }
    const std::vector<NodeType>& rows = m_catalogue.rows(tokens[1].text);
    if (rows.empty())
        throw CalcError(tokens[1].offset, "unknown function " + tokens[1].text);
    for (NodeType id : rows)
        printHelp(id);
    return true;
}

void Session::printHelp(NodeType id)
{
    const int count = argumentCount(id);
    m_out << functionName(id) << " (" << static_cast<int>(id) << "), " << count
          << (count == 1 ? " argument" : " arguments") << "\n";
    const std::vector<std::string> keyword = functionKeyword(id);
    if (!keyword[0].empty())
        m_out << "  " << keyword[1] << " (" << keyword[2] << "; search: " << keyword[0] << ")\n";
    const std::vector<std::string> description = functionDescription(id);
    if (description.empty())
        m_out << "  No description.\n";
    for (std::size_t i = 0; i < description.size(); ++i) {
        const std::string label = i == 0 ? "" : i == 1 ? "Result: " : "Argument " + std::to_string(i - 1) + ": ";
        std::string text = description[i];
        for (std::size_t p = text.find('\n'); p != std::string::npos; p = text.find('\n', p + 3))
            text.replace(p, 1, "\n  ");
        m_out << "  " << label << text << "\n";
    }
    switch (rowClass(id)) {
    case RowClass::HostOnly:
        m_out << "  The host implements this function; vhcalc can't call it.\n";
        break;
    case RowClass::MemberOnly:
        if (!memberAvailable(id))
            m_out << "  Not available in this build of the engine.\n";
        break;
    case RowClass::None:
        m_out << "  The engine doesn't compute this function.\n";
        break;
    case RowClass::Dispatched:
        break;
    }
}

void listCatalogue(const CatalogueIndex& catalogue, std::ostream& out)
{
    for (NodeType id : catalogue.namedRows()) {
        const std::vector<std::string> keyword = functionKeyword(id);
        out << static_cast<int>(id) << '\t' << functionName(id) << '\t' << argumentCount(id) << '\t' << keyword[0]
            << '\t' << keyword[2] << '\n';
    }
}

} // namespace vhcalc
