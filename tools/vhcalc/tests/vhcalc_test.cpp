// Tests of the calculator program: each runs the binary and reads what it
// prints and its exit status.

#include <cmath>
#include <cstdlib>
#include <fstream>
#include <sstream>

#include <gtest/gtest.h>

#include "process.h"

namespace {

using vhcalc_test::Outcome;
using vhcalc_test::runCalculator;

std::vector<std::string> lines(const std::string& text)
{
    std::vector<std::string> result;
    std::istringstream in(text);
    for (std::string line; std::getline(in, line);)
        result.push_back(line);
    return result;
}

// The raw JSON text of a field of a one-line object: a string with its
// quotes, a nested object or list, or a bare word or number.
std::string field(const std::string& json, const std::string& name)
{
    const std::string key = "\"" + name + "\": ";
    const std::size_t start = json.find(key);
    if (start == std::string::npos)
        return "<no " + name + ">";
    std::size_t i = start + key.size();
    int depth = 0;
    bool inString = false;
    for (std::size_t j = i; j < json.size(); ++j) {
        const char c = json[j];
        if (inString) {
            if (c == '\\')
                ++j;
            else if (c == '"' && (inString = false, depth == 0))
                return json.substr(i, j + 1 - i);
        } else if (c == '"') {
            inString = true;
        } else if (c == '{' || c == '[') {
            ++depth;
        } else if (c == '}' || c == ']') {
            if (depth == 0)
                return json.substr(i, j - i);
            if (--depth == 0)
                return json.substr(i, j + 1 - i);
        } else if (c == ',' && depth == 0) {
            return json.substr(i, j - i);
        }
    }
    return json.substr(i);
}

// The characters of a JSON string (the escapes that the calculator writes).
std::string decoded(const std::string& quoted)
{
    std::string s;
    for (std::size_t i = 1; i + 1 < quoted.size(); ++i) {
        if (quoted[i] != '\\') {
            s += quoted[i];
            continue;
        }
        const char c = quoted[++i];
        s += c == 'n' ? '\n' : c == 't' ? '\t' : c == 'r' ? '\r' : c;
    }
    return s;
}

// Runs expressions with --json; one JSON line per expression is expected.
std::vector<std::string> jsonResults(std::vector<std::string> expressions, std::vector<std::string> options = {})
{
    options.push_back("--json");
    options.push_back("--");
    options.insert(options.end(), expressions.begin(), expressions.end());
    const Outcome run = runCalculator(options);
    EXPECT_EQ(run.status, 0) << run.err;
    std::vector<std::string> result = lines(run.out);
    EXPECT_EQ(result.size(), expressions.size()) << run.out << run.err;
    result.resize(expressions.size());
    return result;
}

std::string valueOf(const std::string& expression) { return field(jsonResults({expression})[0], "value"); }

TEST(VhcalcLiterals, NumbersBecomeIntegersDoublesOrComplexNumbers)
{
    const auto r = jsonResults({"12", "1.5", "1e-3", ".5", "2i", "1.5e3i", "3000000000", "-2147483648", "1e2", "007"});
    EXPECT_EQ(field(r[0], "value"), "12");
    EXPECT_EQ(field(r[1], "value"), "1.5");
    EXPECT_EQ(field(r[1], "type"), "\"double\"");
    EXPECT_EQ(field(r[2], "value"), "0.001");
    EXPECT_EQ(field(r[3], "value"), "0.5");
    EXPECT_EQ(field(r[4], "value"), "{\"re\": 0, \"im\": 2}");
    EXPECT_EQ(field(r[4], "type"), "\"complex\"");
    EXPECT_EQ(field(r[5], "value"), "{\"re\": 0, \"im\": 1500}");
    EXPECT_EQ(field(r[6], "value"), "3000000000");
    EXPECT_EQ(field(r[7], "value"), "-2147483648");
    EXPECT_EQ(field(r[8], "value"), "100");
    EXPECT_EQ(field(r[9], "value"), "7");

    // Integer arithmetic wraps at 32 bits and real arithmetic doesn't, which
    // tells which literals became integers.
    const auto sums = jsonResults({"2147483647 + 1", "2147483647.0 + 1", "1e9 * 3", "-2147483648 - 1"});
    EXPECT_EQ(field(sums[0], "value"), "-2147483648");
    EXPECT_EQ(field(sums[1], "value"), "2147483648");
    EXPECT_EQ(field(sums[2], "value"), "3000000000");
    EXPECT_EQ(field(sums[3], "value"), "2147483647");
}

TEST(VhcalcLiterals, StringsSymbolsAndArrays)
{
    const auto r = jsonResults({"\"a\\\"b\\\\c\"", "\"\xCF\x80 \"", "x", "[1, 2, 3]", "[1; 2; 3]", "[1, 2; 3, 4]", "[]",
                                "[1, 2i]", "[0.5, \"s\"]", "[[1, 2], [3, 4]]", "[-1, -x]"});
    EXPECT_EQ(field(r[0], "type"), "\"string\"");
    EXPECT_EQ(decoded(field(r[0], "value")), "a\"b\\c");
    EXPECT_EQ(decoded(field(r[1], "value")), "\xCF\x80 ");
    EXPECT_EQ(field(r[2], "type"), "\"symbolic value\"");
    EXPECT_EQ(field(r[3], "type"), "\"vector\"");
    EXPECT_EQ(field(r[3], "value"), "{\"rows\": 1, \"cols\": 3, \"data\": [1, 2, 3]}");
    EXPECT_EQ(field(r[4], "value"), "{\"rows\": 3, \"cols\": 1, \"data\": [1, 2, 3]}");
    EXPECT_EQ(field(r[5], "type"), "\"matrix\"");
    EXPECT_EQ(field(r[5], "value"), "{\"rows\": 2, \"cols\": 2, \"data\": [1, 2, 3, 4]}");
    EXPECT_EQ(field(r[6], "value"), "{\"rows\": 0, \"cols\": 0, \"data\": []}");
    EXPECT_EQ(field(r[7], "value"), "{\"rows\": 1, \"cols\": 2, \"data\": [1, {\"re\": 0, \"im\": 2}]}");
    EXPECT_EQ(field(r[8], "value"), "{\"rows\": 1, \"cols\": 2, \"data\": [0.5, \"s\"]}");
    EXPECT_EQ(field(r[9], "value"), "{\"rows\": 1, \"cols\": 2, \"data\": [{\"rows\": 1, \"cols\": 2, \"data\": [1, 2]}, "
                                    "{\"rows\": 1, \"cols\": 2, \"data\": [3, 4]}]}");
    EXPECT_EQ(field(field(r[10], "value"), "rows"), "1");
}

TEST(VhcalcOperators, PrecedenceAndAssociativity)
{
    const auto r = jsonResults({"1+2*3", "(1+2)*3", "2*3-4/8", "10-4-3", "8/4/2", "-3+5", "2--3", "-(2*3)",
                                "1+1 == 2", "2*3 < 7", "+4"});
    const char* expected[] = {"7", "9", "5.5", "3", "1", "2", "5", "-6", "true", "true", "4"};
    for (std::size_t i = 0; i < r.size(); ++i)
        EXPECT_EQ(field(r[i], "value"), expected[i]) << r[i];
}

TEST(VhcalcOperators, ComparisonsGiveBooleansOrUndefined)
{
    const auto r = jsonResults({"1 < 2", "2 < 1", "2 <= 2", "3 >= 4", "3 > 2", "3 == 3.0", "1 != 1", "1 == 1/0", "1 < 2i",
                                "\"a\" == \"a\""});
    const char* expected[] = {"true", "false", "true", "false", "true", "true", "false", "null", "null", "true"};
    for (std::size_t i = 0; i < r.size(); ++i)
        EXPECT_EQ(field(r[i], "value"), expected[i]) << r[i];
    EXPECT_EQ(field(r[0], "type"), "\"boolean\"");
}

TEST(VhcalcOperators, VariablesHoldForTheFollowingLines)
{
    const Outcome run = runCalculator({"--json"}, "a := 5\na * 2\nb\na := a + 1\n\n  \na\nb := a\na := 0\nb\n");
    ASSERT_EQ(run.status, 0) << run.err;
    const auto r = lines(run.out);
    ASSERT_EQ(r.size(), 8u);
    const char* expected[] = {"5", "10", nullptr, "6", "6", "6", "0", "6"};
    for (std::size_t i = 0; i < r.size(); ++i)
        if (expected[i])
            EXPECT_EQ(field(r[i], "value"), expected[i]) << r[i];
    // An unassigned name is a symbol.
    EXPECT_EQ(field(r[2], "type"), "\"symbolic value\"");
}

TEST(VhcalcCalls, DispatchedRowsGoThroughTheDispatcher)
{
    const auto r = jsonResults({"setStaticValue(\"k\", 41)", "staticValue(\"k\", 0)", "staticValue(\"other\", 7)",
                                "DecPlaces()", "SetDecPlaces(3)", "DecPlaces()", "InRuntime()", "SetDecPlaces(-1)"});
    const char* expected[] = {"41", "41", "7", "14", "3", "3", "true", "null"};
    for (std::size_t i = 0; i < r.size(); ++i)
        EXPECT_EQ(field(r[i], "value"), expected[i]) << r[i];
    EXPECT_EQ(valueOf("DecPlaces()"), "14");
    EXPECT_EQ(field(jsonResults({"DecPlaces()"}, {"--decimals", "5"})[0], "value"), "5");
}

TEST(VhcalcCalls, MemberOnlyRowsCallTheMember)
{
    EXPECT_EQ(valueOf("joinMatrixRows([1, 2], [3, 4])"), "{\"rows\": 2, \"cols\": 2, \"data\": [1, 2, 3, 4]}");
    // A member that the engine doesn't have yet is reported; once it exists
    // the constant is computed.
    const Outcome pi = runCalculator({"--json", "cPi()"});
    if (pi.status == 0)
        EXPECT_EQ(field(pi.out, "value"), "3.1415926535897931");
    else
        EXPECT_EQ(pi.err, "vhcalc: line 1, column 1: function cPi is not available\n");
}

TEST(VhcalcCalls, NamesResolveToRowsOrFail)
{
    const auto fails = [](const std::string& expression, const std::string& message) {
        const Outcome run = runCalculator({expression});
        EXPECT_EQ(run.status, 2) << expression;
        EXPECT_EQ(run.out, "") << expression;
        EXPECT_EQ(run.err, "vhcalc: line 1, " + message + "\n") << expression;
    };
    fails("nosuch(1)", "column 1: unknown function nosuch");
    fails("1 + Sleep(1)", "column 5: function Sleep belongs to the host");
    fails("Sleep()", "column 1: function Sleep belongs to the host");
    fails("PyEvaluate(\"x\")", "column 1: function PyEvaluate belongs to the host");
    fails("sin(1, 2)", "column 1: function sin takes 1 argument, not 2");
    fails("derivative(y)", "column 1: function derivative takes 2 or 6 arguments, not 1");
    fails("[1, cos()]", "column 5: function cos takes 1 argument, not 0");
    // derivative with two arguments is the row of differential equations,
    // which the engine dispatches: no error, whatever it computes.
    EXPECT_EQ(runCalculator({"derivative(y, 1)"}).status, 0);
}

TEST(VhcalcHostTypes, DemoTypeMakesObjectsWithMembersAndAMethod)
{
    const auto r = jsonResults({"p := new point(3, 4)", "p.x", "p.y", "p.norm()", "new point(-5, 12).norm()",
                                "new point().norm()", "p.x^2 + p.y^2 == p.norm()^2", "-p.y", "q := p", "q == p",
                                "new point(1)", "new point(\"a\", 2)", "new point(1, 2i)", "p.z", "p.norm(1)",
                                "p.x.norm()", "(2).x"},
                               {"--demo-type"});
    EXPECT_EQ(field(r[0], "type"), "\"point\"");
    EXPECT_EQ(decoded(field(r[0], "text")), "object of type point");
    const char* expected[] = {nullptr, "3", "4", "5", "13", "0", "true", "-4", nullptr, "true",
                              "null", "null", "null", "null", "null", "null", "null"};
    for (std::size_t i = 0; i < r.size(); ++i)
        if (expected[i])
            EXPECT_EQ(field(r[i], "value"), expected[i]) << i << ": " << r[i];
    // Each object is one of its own: a second point with the same
    // coordinates is another object.
    EXPECT_EQ(field(jsonResults({"new point(1, 2) == new point(1, 2)"}, {"--demo-type"})[0], "value"), "false");
}

TEST(VhcalcHostTypes, RowsListTheRegisteredTypes)
{
    const auto r = jsonResults({"DefinedTypes()", "TypeConstructors(\"point\")", "TypeMembers(\"point\")",
                                "TypeMethods(\"point\")", "TypeMethodArguments(\"point\", \"norm\")",
                                "TypeMethodArguments(\"point\", \"x\")", "TypeMembers(\"Point\")",
                                "TypeMembers(point)"},
                               {"--demo-type"});
    const char* expected[] = {"[\"point\"]", "[\"point()\", \"point(x, y)\"]", "[\"x\", \"y\"]", "[\"norm\"]", "[]"};
    for (std::size_t i = 0; i < 5; ++i)
        EXPECT_EQ(field(field(r[i], "value"), "data"), expected[i]) << r[i];
    for (std::size_t i = 5; i < r.size(); ++i)
        EXPECT_EQ(field(r[i], "value"), "null") << r[i];
    // Without the option no type is registered.
    EXPECT_EQ(field(valueOf("DefinedTypes()"), "data"), "[]");
    EXPECT_EQ(valueOf("TypeMembers(\"point\")"), "null");
}

TEST(VhcalcHostTypes, WrongUseOfObjectsNamesTheColumn)
{
    const std::vector<std::pair<std::string, std::string>> cases = {
        {"new point(1, 2)", "column 1: unknown type point (vhcalc --demo-type registers the type point)"},
        {"p.", "column 3: a member name must follow \".\", not end of line"},
        {"p.3", "column 2: unexpected number .3"},
        {"p.(1)", "column 3: a member name must follow \".\", not \"(\""},
        {"new point", "column 10: new point needs its arguments in brackets, such as new point()"},
        {"x.f(1", "column 4: \"(\" is never closed by \")\""},
    };
    std::string input;
    for (const auto& c : cases)
        input += c.first + "\n";
    Outcome run = runCalculator({}, input);
    EXPECT_EQ(run.status, 2);
    EXPECT_EQ(run.out, "");
    const auto messages = lines(run.err);
    ASSERT_EQ(messages.size(), cases.size()) << run.err;
    for (std::size_t i = 0; i < cases.size(); ++i)
        EXPECT_EQ(messages[i], "vhcalc: line " + std::to_string(i + 1) + ", " + cases[i].second) << cases[i].first;

    run = runCalculator({"--demo-type", "new circle()", "new point(1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11)",
                         "p.f(1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11)"});
    EXPECT_EQ(run.err, "vhcalc: line 1, column 1: unknown type circle\n"
                       "vhcalc: line 2, column 1: an object takes at most 10 arguments\n"
                       "vhcalc: line 3, column 1: a method takes at most 10 arguments\n");
    // "new" alone is still a symbol, and a long chain of members is refused
    // like any deep nesting.
    EXPECT_EQ(field(jsonResults({"new + 1"})[0], "text"), "\"new+1\"");
    std::string chain = "p";
    for (int i = 0; i < 100000; ++i)
        chain += ".x";
    run = runCalculator({"--demo-type"}, chain + "\n");
    EXPECT_EQ(run.status, 2);
    EXPECT_NE(run.err.find(": expression nested more than 200 levels deep\n"), std::string::npos) << run.err;
    EXPECT_EQ(valueOf(chain.substr(0, 2 * 150 + 1)), "null");
}

TEST(VhcalcOutput, JsonShapesOfEachKind)
{
    const auto r = jsonResults({"1 < 2", "0.1", "1e308 * 10", "-1e308 * 10", "1/0", "1 - 2.5i", "\"q\""});
    EXPECT_EQ(field(r[0], "value"), "true");
    EXPECT_EQ(field(r[1], "value"), "0.10000000000000001");
    EXPECT_EQ(field(r[2], "value"), "\"inf\"");
    EXPECT_EQ(field(r[3], "value"), "\"-inf\"");
    EXPECT_EQ(r[4], "{\"type\": \"undefined\", \"text\": \"undefined\", \"value\": null}");
    EXPECT_EQ(field(r[5], "value"), "{\"re\": 1, \"im\": -2.5}");
    EXPECT_EQ(field(r[6], "value"), "\"q\"");
    // The text is the engine's text form of the value.
    EXPECT_EQ(jsonResults({"12"})[0], "{\"type\": \"integer\", \"text\": \"12\", \"value\": 12}");
}

TEST(VhcalcOutput, PlainTextAndStrictMode)
{
    const Outcome text = runCalculator({"0.1", "5.0", "[1; 2]", "1-2i", "1/0"});
    EXPECT_EQ(text.status, 0);
    EXPECT_EQ(text.out, "0.1\n5\n[1]\n[2]\n1-2i\nundefined\n");

    const Outcome strict = runCalculator({"--strict", "1", "1/0"});
    EXPECT_EQ(strict.status, 1);
    EXPECT_EQ(runCalculator({"--strict", "1", "2"}).status, 0);
    // An error outranks an undefined result.
    EXPECT_EQ(runCalculator({"--strict", "1/0", "1 +"}).status, 2);
}

TEST(VhcalcCommandLine, ListPrintsTheCatalogue)
{
    const Outcome run = runCalculator({"--list"});
    ASSERT_EQ(run.status, 0);
    const auto rows = lines(run.out);
    // Every row with a name: the 947 rows of the three classes but 421,
    // which has none.
    EXPECT_EQ(rows.size(), 946u);
    for (const std::string& row : rows)
        ASSERT_EQ(std::count(row.begin(), row.end(), '\t'), 4) << row;
    const auto has = [&](const std::string& row) { return std::find(rows.begin(), rows.end(), row) != rows.end(); };
    EXPECT_TRUE(has("5\tvector\t1\t\t"));
    EXPECT_TRUE(has("70\tsin\t1\t\t"));
    EXPECT_TRUE(has("331\tderivative\t2\t\t"));
    EXPECT_TRUE(has("568\tMovingAverage\t2\tmovavg\tDigital Signal Processing"));
    EXPECT_TRUE(has("780\tchemSolver\t1\tchem coeff\tChemistry"));
}

TEST(VhcalcCommandLine, HelpShowsTheDescription)
{
    const Outcome sin = runCalculator({"help sin"});
    EXPECT_EQ(sin.status, 0);
    EXPECT_EQ(sin.out, "sin (70), 1 argument\n"
                       "  Calculates the sine value of an argument.\n"
                       "  Depending on input, function can return scalar, vector, matrix or complex number.\n"
                       "  Result: Value in [-1, 1] or complex number\n"
                       "  Argument 1: Real or complex value x\n");
    const Outcome pow = runCalculator({"help pow", "help 568", "help Sleep", "help vector"});
    EXPECT_EQ(pow.status, 0);
    EXPECT_NE(pow.out.find("pow (21), 2 arguments"), std::string::npos);
    EXPECT_NE(pow.out.find("pow (22), 2 arguments"), std::string::npos);
    EXPECT_NE(pow.out.find("  Moving Avegare Filter (Digital Signal Processing; search: movavg)\n"), std::string::npos);
    EXPECT_NE(pow.out.find("The host implements this function"), std::string::npos);
    EXPECT_NE(pow.out.find("vector (5), 1 argument\n  No description.\n"), std::string::npos);

    const Outcome unknown = runCalculator({"help nosuch", "help 56"});
    EXPECT_EQ(unknown.status, 2);
    EXPECT_EQ(unknown.err, "vhcalc: line 1, column 6: unknown function nosuch\n"
                           "vhcalc: line 2, column 6: no function has the number 56\n");
}

TEST(VhcalcCommandLine, OptionsAreChecked)
{
    for (const std::vector<std::string>& bad :
         {std::vector<std::string>{"--angle", "turns", "1"}, {"--decimals", "15", "1"}, {"--decimals=-1", "1"},
          {"--decimals", "x", "1"}, {"--bogus", "1"}, {"--angle"}}) {
        const Outcome run = runCalculator(bad);
        EXPECT_EQ(run.status, 2) << bad[0];
        EXPECT_EQ(run.out, "");
        EXPECT_NE(run.err.find("vhcalc: "), std::string::npos);
    }
    EXPECT_EQ(runCalculator({"--help"}).out.rfind("Usage: vhcalc", 0), 0u);
    // A leading minus is an expression, not an option; so is anything after --.
    const auto r = jsonResults({"-3+4"});
    EXPECT_EQ(field(r[0], "value"), "1");
    EXPECT_EQ(field(lines(runCalculator({"--json", "--", "--1"}).out).at(0), "value"), "1");
    EXPECT_EQ(field(jsonResults({"DecPlaces()"}, {"--decimals=0", "--angle=grad"})[0], "value"), "0");
}

TEST(VhcalcCommandLine, AnErrorDoesNotStopTheFollowingLines)
{
    const Outcome run = runCalculator({"--json"}, "1 +\n2\n(\n3\n");
    EXPECT_EQ(run.status, 2);
    EXPECT_EQ(lines(run.out).size(), 2u);
    EXPECT_EQ(run.err, "vhcalc: line 1, column 4: the expression ends too early\n"
                       "vhcalc: line 3, column 2: the expression ends too early\n");
}

TEST(VhcalcCommandLine, TerminalSessionKeepsHistory)
{
    // Up arrow recalls the first line; left arrow, backspace and a key
    // change its operator.
    const Outcome run = vhcalc_test::runOnTerminal(
        {"--json"}, {"a := 6*7\r", "\x1b[A\x1b[D\x7f+\r", "help sin\r", "1 +\r", "\x04"});
    EXPECT_EQ(run.status, 2);
    EXPECT_NE(run.out.find("\"value\": 42}"), std::string::npos) << run.out;
    EXPECT_NE(run.out.find("\"value\": 13}"), std::string::npos) << run.out;
    EXPECT_NE(run.out.find("Calculates the sine value of an argument."), std::string::npos);
    // An error shows the line again with a mark under the column.
    EXPECT_NE(run.out.find("column 4: the expression ends too early\r\n  1 +\r\n     ^"), std::string::npos) << run.out;
}

// Bad input of every kind ends with a message and status 2, never a crash
// (the sanitizers turn one into another status) or a hang.
TEST(VhcalcBadInput, MalformedLinesNameTheColumn)
{
    const std::vector<std::pair<std::string, std::string>> cases = {
        {"(1+2", "column 1: \"(\" is never closed by \")\""},
        {"1+2)", "column 4: \")\" without a matching \"(\""},
        {"[1, 2", "column 1: \"[\" is never closed by \"]\""},
        {"[1, 2)", "column 6: expected \"]\" but found \")\""},
        {"[1, 2; 3]", "column 8: row 2 has 1 elements, the first row 2"},
        {"* 2", "column 1: unexpected \"*\""},
        {"f(1,)", "column 5: unexpected \")\""},
        {"\"abc", "column 1: the string has no closing quote"},
        {"\"a\\n\"", "column 3: only \\\" and \\\\ may follow a backslash in a string"},
        {"1..2", "column 3: unexpected \".\" after the number 1."},
        {"2x", "column 2: unexpected \"x\" after the number 2"},
        {"1e+", "column 2: the exponent of a number needs digits"},
        {".", "column 1: unexpected \".\""},
        {"x :=", "column 5: an expression must follow :="},
        {":= 3", "column 1: a name must stand before :="},
        {"1 = 2", "column 3: unexpected character \"=\""},
        {"\"\xC3\xA9\" + \xC3\xA9", "column 7: unexpected character \"\xC3\xA9\""},
        {"1e999", "column 1: the number 1e999 is too large"},
        {std::string(400, '9'), "column 1: the number 99999999999999999999... is too large"},
        {"1 2", "column 3: unexpected number 2"},
    };
    std::string input;
    for (const auto& c : cases)
        input += c.first + "\n";
    const Outcome run = runCalculator({}, input);
    EXPECT_EQ(run.status, 2);
    EXPECT_EQ(run.out, "");
    const auto messages = lines(run.err);
    ASSERT_EQ(messages.size(), cases.size()) << run.err;
    for (std::size_t i = 0; i < cases.size(); ++i)
        EXPECT_EQ(messages[i], "vhcalc: line " + std::to_string(i + 1) + ", " + cases[i].second) << cases[i].first;
}

TEST(VhcalcBadInput, GarbageAndEmptyInput)
{
    std::string garbage;
    for (int b = 255; b >= 0; --b)
        if (b != '\n')
            garbage += static_cast<char>(b);
    Outcome run = runCalculator({}, garbage);
    EXPECT_EQ(run.status, 2);
    EXPECT_EQ(run.err, "vhcalc: line 1, column 1: byte 0xFF is not valid UTF-8 text\n");
    run = runCalculator({}, "1 + \x01\n\"\xE2\x82\"\n");
    EXPECT_EQ(run.err, "vhcalc: line 1, column 5: control character 0x01 in the input\n"
                       "vhcalc: line 2, column 2: byte 0xE2 is not valid UTF-8 text\n");

    for (const std::string& empty : {"", "\n\n", "  \t \r\n"}) {
        run = runCalculator({}, empty);
        EXPECT_EQ(run.status, 2);
        EXPECT_EQ(run.err, "vhcalc: empty input: no expression to compute\n");
    }
    run = runCalculator({""});
    EXPECT_EQ(run.status, 2);
    EXPECT_EQ(run.err, "vhcalc: line 1, column 1: empty expression\n");

    run = runCalculator({"--json"}, std::string((1 << 20) + 1, '1') + "\n2\n");
    EXPECT_EQ(run.status, 2);
    EXPECT_EQ(run.err, "vhcalc: line 1 is longer than 1048576 bytes\n");
    EXPECT_EQ(field(run.out, "value"), "2");
}

TEST(VhcalcBadInput, NestingIsLimitedAndLongLinesAreFlat)
{
    const std::string parentheses = std::string(10000, '(') + "1" + std::string(10000, ')');
    EXPECT_EQ(runCalculator({}, parentheses).err,
              "vhcalc: line 1, column 201: expression nested more than 200 levels deep\n");
    std::string power = "1";
    for (int i = 0; i < 10000; ++i)
        power += "^1";
    for (const std::string& deep : {power, "sin(" + std::string(10000, '('), std::string(10000, '[') + std::string(10000, ']'),
                                    std::string(10000, '-') + "1"}) {
        const Outcome run = runCalculator({}, deep + "\n");
        EXPECT_EQ(run.status, 2);
        EXPECT_NE(run.err.find(": expression nested more than 200 levels deep\n"), std::string::npos) << run.err;
    }

    // Nesting just inside the limit still computes.
    EXPECT_EQ(valueOf(std::string(199, '(') + "1" + std::string(199, ')')), "1");
    // A long sum or vector is a flat list, however long.
    std::string sum = "1", vector = "[1";
    for (int i = 0; i < 20000; ++i) {
        sum += "+1";
        vector += ",1";
    }
    EXPECT_EQ(valueOf(sum), "20001");
    EXPECT_EQ(field(valueOf(vector + "]"), "cols"), "20001");
}

// Worksheet lines with known results, from tests/worksheet_reference.tsv.
struct WorksheetLine {
    std::string options, expression, check, expected;
    double tolerance = 0.0;
};

std::vector<WorksheetLine> worksheetLines()
{
    std::vector<WorksheetLine> result;
    std::ifstream in(VHCALC_TEST_DATA "/worksheet_reference.tsv");
    for (std::string line; std::getline(in, line);) {
        std::vector<std::string> cells;
        std::istringstream row(line);
        for (std::string cell; std::getline(row, cell, '\t');)
            cells.push_back(cell);
        cells.resize(5);
        std::string expected;
        for (std::size_t i = 0; i < cells[3].size(); ++i)
            expected += cells[3].compare(i, 2, "\\n") == 0 ? (++i, '\n') : cells[3][i];
        result.push_back({cells[0], cells[1], cells[2], expected, cells[4].empty() ? 0.0 : std::atof(cells[4].c_str())});
    }
    return result;
}

void PrintTo(const WorksheetLine& w, std::ostream* os) { *os << (w.options.empty() ? "" : w.options + " ") << w.expression; }

class VhcalcWorksheet : public ::testing::TestWithParam<WorksheetLine> {};

TEST_P(VhcalcWorksheet, GivesTheKnownResult)
{
    const WorksheetLine& w = GetParam();
    std::vector<std::string> options;
    std::istringstream words(w.options);
    for (std::string word; words >> word;)
        options.push_back(word);
    const std::string json = jsonResults({w.expression}, options)[0];
    const std::string value = field(json, "value");
    if (w.check == "value") {
        EXPECT_EQ(value, w.expected) << json;
    } else if (w.check == "data") {
        EXPECT_EQ(field(value, "data"), w.expected) << json;
    } else if (w.check == "type") {
        EXPECT_EQ(decoded(field(json, "type")), w.expected) << json;
    } else if (w.check == "text") {
        EXPECT_EQ(decoded(field(json, "text")), w.expected) << json;
    } else if (w.check == "number") {
        const double expected = std::atof(w.expected.c_str());
        EXPECT_LE(std::fabs(std::atof(value.c_str()) - expected), w.tolerance * std::fabs(expected)) << json;
    } else {
        ASSERT_EQ(w.check, "complex");
        double re = 0, im = 0;
        std::istringstream(w.expected) >> re >> im;
        const double scale = std::hypot(re, im) * w.tolerance;
        EXPECT_LE(std::fabs(std::atof(field(value, "re").c_str()) - re), scale) << json;
        EXPECT_LE(std::fabs(std::atof(field(value, "im").c_str()) - im), scale) << json;
    }
}

INSTANTIATE_TEST_SUITE_P(Lines, VhcalcWorksheet, ::testing::ValuesIn(worksheetLines()),
                         [](const ::testing::TestParamInfo<WorksheetLine>& info) {
                             std::string name = std::to_string(info.index) + "_";
                             for (char c : info.param.expression)
                                 name += std::isalnum(static_cast<unsigned char>(c)) ? c : '_';
                             return name;
                         });

} // namespace
