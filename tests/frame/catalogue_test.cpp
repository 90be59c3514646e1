// The catalogue tables: every row's name and argument count, the keyword
// rows, the help texts and the value types offered for arguments.

#include <gtest/gtest.h>

#include <fstream>
#include <map>
#include <sstream>

#include "frame/catalogue.h"

using namespace VarnholtMath::ValueTypes;

namespace {

struct Row {
    int id;
    std::string name;
    unsigned int arguments;
    std::string kind;
};

std::vector<Row> catalogueRows()
{
    std::ifstream in(VH_TEST_DATA_DIR "/frame/data/catalogue_rows.tsv");
    std::vector<Row> rows;
    std::string line;
    while (std::getline(in, line)) {
        if (line.empty() || line[0] == '#')
            continue;
        std::istringstream fields(line);
        Row r;
        std::string id, count;
        std::getline(fields, id, '\t');
        std::getline(fields, r.name, '\t');
        std::getline(fields, count, '\t');
        std::getline(fields, r.kind, '\t');
        r.id = std::stoi(id);
        r.arguments = static_cast<unsigned int>(std::stoul(count));
        rows.push_back(r);
    }
    return rows;
}

NodeType node(int id) { return static_cast<NodeType>(id); }

} // namespace

TEST(Catalogue, EveryRowHasItsNameAndCount)
{
    const std::vector<Row> rows = catalogueRows();
    ASSERT_EQ(rows.size(), 987u);
    std::map<int, const Row*> byId;
    for (const Row& r : rows)
        byId[r.id] = &r;
    std::map<std::string, int> kinds;
    for (int id = -5; id <= 1200; ++id) {
        if (id == 56 || id == 425)
            continue;
        auto it = byId.find(id);
        if (it == byId.end()) {
            EXPECT_EQ(functionName(node(id)), "") << id;
            EXPECT_EQ(numberOfFunctionArguments(node(id)), 0u) << id;
            continue;
        }
        const Row& r = *it->second;
        ++kinds[r.kind];
        EXPECT_EQ(functionName(node(id)), r.name) << id;
        EXPECT_EQ(functionName_f(node(id)), r.name + "_f") << id;
        EXPECT_EQ(numberOfFunctionArguments(node(id)), r.arguments) << id;
        // Rows that the engine reaches by number lie in the dispatcher's range.
        if (r.kind == "case")
            EXPECT_TRUE(id >= 20 && id <= 1125) << id;
    }
    EXPECT_EQ(kinds["case"], 664);
    EXPECT_EQ(kinds["member"], 85);
    EXPECT_EQ(kinds["host"], 198);
}

TEST(Catalogue, NamedExamples)
{
    EXPECT_EQ(functionName(node(4)), "");
    EXPECT_EQ(functionName(node(1129)), "");
    EXPECT_EQ(functionName(node(5)), "vector");
    EXPECT_EQ(functionName(node(6)), "vectorr");
    EXPECT_EQ(functionName(node(421)), "");
    EXPECT_EQ(functionName_f(node(70)), "sin_f");
    EXPECT_EQ(functionName_f(node(0)), "_f");
    EXPECT_EQ(numberOfFunctionArguments(node(1125)), 11u);
    EXPECT_EQ(numberOfFunctionArguments(node(652)), 18u);
    EXPECT_EQ(numberOfFunctionArguments(node(441)), 0u);
    EXPECT_EQ(numberOfFunctionArguments(node(380)), 3u);
    EXPECT_THROW(numberOfFunctionArguments(node(56)), std::exception);
    EXPECT_THROW(numberOfFunctionArguments(node(425)), std::exception);
}

TEST(Catalogue, Keywords)
{
    EXPECT_EQ(functionKeyword(node(70)), (std::vector<std::string>{"", "", ""}));
    EXPECT_EQ(functionKeyword(node(528)),
              (std::vector<std::string>{"dblexponentialinv", "Double Exponential Inverse", "Distributions"}));
    EXPECT_EQ(functionKeyword(node(568)),
              (std::vector<std::string>{"movavg", "Moving Avegare Filter", "Digital Signal Processing"}));
    EXPECT_EQ(functionKeyword(node(780)), (std::vector<std::string>{"chem coeff", "Chem Coefficients", "Chemistry"}));
    int keywordRows = 0;
    for (int id = 0; id <= 1200; ++id)
        if (id != 56 && id != 425 && !functionKeyword(node(id))[0].empty())
            ++keywordRows;
    EXPECT_EQ(keywordRows, 361);
}

TEST(Catalogue, InputOptions)
{
    EXPECT_EQ(getInputOptionsForFunction(node(70)), (std::vector<int>{1, 2, 3, 4, 8, 9}));
    EXPECT_EQ(getInputOptionsForFunction(node(500)), (std::vector<int>{3}));
    EXPECT_EQ(getInputOptionsForFunction(node(56)), (std::vector<int>{3}));
    // Square root is offered no complex value.
    EXPECT_EQ(getInputOptionsForFunction(node(87)), (std::vector<int>{1, 2, 3, 8, 9}));
    EXPECT_EQ(getInputOptionsForFunction(node(92)), (std::vector<int>{1, 2, 3, 4, 8, 9}));
    EXPECT_EQ(getInputOptionsForFunction(node(93)), (std::vector<int>{1, 2, 3, 8, 9}));
    EXPECT_EQ(getInputOptionsForFunction(node(105)), (std::vector<int>{1, 2, 3, 8, 9}));
}

TEST(Catalogue, HelpTextsQuotedInFull)
{
    const std::string withComplex = "\nDepending on input, function can return scalar, vector, matrix or complex number.";
    EXPECT_EQ(functionDescription(node(0)), std::vector<std::string>());
    EXPECT_EQ(functionDescription(node(70)),
              (std::vector<std::string>{"Calculates the sine value of an argument." + withComplex,
                                        "Value in [-1, 1] or complex number", "Real or complex value x"}));
    EXPECT_EQ(functionDescription(node(20)),
              (std::vector<std::string>{"Calculates the n-th root of a inputted value x." + withComplex,
                                        "Value of n-th root", "Real or complex value x", "Real value n"}));
    EXPECT_EQ(functionDescription(node(91))[0], "Calculates the arc tangent of y/x using the signs\nof arguments to "
                                                "determine the correct quadrant." +
                                                    withComplex);
    EXPECT_EQ(functionDescription(node(304))[0],
              "Calculates the cumulative distribution function (CDF) for the normal(Gaussian) distribution.\n"
              "Depending on input, function can return scalar, vector or matrix");
    EXPECT_EQ(functionDescription(node(678)),
              (std::vector<std::string>{"Initiate the FIR Filter buffer", "True of false", "Integer buffer ID (0-63)",
                                        "Integer maximum lenght of data chunk",
                                        "Integer maximum lenght of coeffitients"}));
    EXPECT_EQ(functionDescription(node(1126))[1], "Vector  [Addres, Status, Return Value]");
    EXPECT_EQ(functionDescription(node(435)),
              (std::vector<std::string>{"Includes the given file", "Void", "String nld file"}));
    EXPECT_EQ(functionDescription(node(313)).size(), 11u);
    EXPECT_EQ(functionDescription(node(313))[6], "Integer number of samples for x (1 - 1000)");
}
