// The help texts of the catalogue: which rows have one, their shape, the
// common endings, and the texts that stand word for word.

#include <gtest/gtest.h>

#include <fstream>
#include <set>

#include "frame/catalogue.h"

using namespace VarnholtMath::ValueTypes;

namespace {
NodeType node(int id) { return static_cast<NodeType>(id); }

bool endsWith(const std::string& s, const std::string& tail)
{
    return s.size() >= tail.size() && s.compare(s.size() - tail.size(), tail.size(), tail) == 0;
}
} // namespace

TEST(CatalogueDescriptions, ShapeOfEveryRow)
{
    // Rows whose number of lines is not their argument count plus two.
    const std::map<int, std::size_t> irregular = {{35, 5}, {384, 1}, {442, 2}, {443, 2}, {444, 2}, {864, 3}};
    const std::set<int> namedWithoutText = {5, 6, 7, 18, 19, 653};
    int described = 0, withComplex = 0, withoutComplex = 0;
    const std::string complexEnding =
        "\nDepending on input, function can return scalar, vector, matrix or complex number.";
    const std::string realEnding = "\nDepending on input, function can return scalar, vector or matrix";
    for (int id = -2; id <= 1200; ++id) {
        if (id == 56 || id == 425)
            continue;
        const std::vector<std::string> text = functionDescription(node(id));
        if (text.empty()) {
            EXPECT_TRUE(functionName(node(id)).empty() || namedWithoutText.count(id)) << id;
            continue;
        }
        ++described;
        EXPECT_FALSE(namedWithoutText.count(id)) << id;
        auto it = irregular.find(id);
        const std::size_t expected = it != irregular.end() ? it->second : numberOfFunctionArguments(node(id)) + 2;
        EXPECT_EQ(text.size(), expected) << id;
        for (const std::string& line : text)
            EXPECT_FALSE(line.empty()) << id;
        if (endsWith(text[0], complexEnding))
            ++withComplex;
        if (endsWith(text[0], realEnding))
            ++withoutComplex;
    }
    EXPECT_EQ(described, 979);
    EXPECT_EQ(withComplex, 82);
    EXPECT_EQ(withoutComplex, 248);
    EXPECT_FALSE(functionDescription(node(421)).empty());
}

TEST(CatalogueDescriptions, QuotedTextsStandWordForWord)
{
    std::ifstream in(VH_TEST_DATA_DIR "/frame/data/quoted_descriptions.tsv");
    std::string line;
    int checked = 0;
    while (std::getline(in, line)) {
        if (line.empty() || line[0] == '#')
            continue;
        const std::size_t tab = line.find('\t');
        const int id = std::stoi(line.substr(0, tab));
        std::string quoted = line.substr(tab + 1);
        for (std::size_t p = quoted.find("\\n"); p != std::string::npos; p = quoted.find("\\n", p + 1))
            quoted.replace(p, 2, "\n");
        const std::vector<std::string> text = functionDescription(node(id));
        // Description, result or argument line: one of them begins with it.
        bool found = false;
        for (const std::string& t : text)
            found = found || t.compare(0, quoted.size(), quoted) == 0;
        EXPECT_TRUE(found) << id << ": " << quoted;
        ++checked;
    }
    EXPECT_GT(checked, 100);
}
