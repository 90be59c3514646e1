// Balancing reactions from their element-count matrices: a dozen textbook
// reactions with known coefficients, and reactions that cannot be balanced.

#include <gtest/gtest.h>

#include <vector>

#include "frame/math.h"

using namespace VarnholtMath::ValueTypes;

namespace {
// Rows are elements, columns species; products count negative.
vhValue reaction(const std::vector<std::vector<double>>& rows)
{
    const unsigned int r = static_cast<unsigned int>(rows.size()), c = static_cast<unsigned int>(rows[0].size());
    std::vector<double> data;
    for (const auto& row : rows)
        data.insert(data.end(), row.begin(), row.end());
    return vhMatrix(data.data(), r, c);
}

std::vector<double> coefficients(const vhValue& v)
{
    std::vector<double> out;
    for (unsigned int i = 0; i < v.vectorSize(); ++i)
        out.push_back(v.valueToDouble(i));
    return out;
}

struct Case {
    const char* name;
    std::vector<std::vector<double>> matrix;
    std::vector<double> expected;
};
} // namespace

TEST(ReactionBalancing, TextbookReactions)
{
    const std::vector<Case> cases = {
        // C3H8 + O2 -> CO2 + H2O
        {"propane", {{3, 0, -1, 0}, {8, 0, 0, -2}, {0, 2, -2, -1}}, {1, 5, 3, 4}},
        // CH4 + O2 -> CO2 + H2O
        {"methane", {{1, 0, -1, 0}, {4, 0, 0, -2}, {0, 2, -2, -1}}, {1, 2, 1, 2}},
        // C8H18 + O2 -> CO2 + H2O
        {"octane", {{8, 0, -1, 0}, {18, 0, 0, -2}, {0, 2, -2, -1}}, {2, 25, 16, 18}},
        // H2 + O2 -> H2O
        {"water", {{2, 0, -2}, {0, 2, -1}}, {2, 1, 2}},
        // N2 + H2 -> NH3
        {"ammonia", {{2, 0, -1}, {0, 2, -3}}, {1, 3, 2}},
        // Fe + O2 -> Fe2O3
        {"rust", {{1, 0, -2}, {0, 2, -3}}, {4, 3, 2}},
        // Al + O2 -> Al2O3
        {"alumina", {{1, 0, -2}, {0, 2, -3}}, {4, 3, 2}},
        // C6H12O6 + O2 -> CO2 + H2O
        {"glucose", {{6, 0, -1, 0}, {12, 0, 0, -2}, {6, 2, -2, -1}}, {1, 6, 6, 6}},
        // KMnO4 + HCl -> KCl + MnCl2 + H2O + Cl2 (K, Mn, O, H, Cl)
        {"permanganate",
         {{1, 0, -1, 0, 0, 0}, {1, 0, 0, -1, 0, 0}, {4, 0, 0, 0, -1, 0}, {0, 1, 0, 0, -2, 0}, {0, 1, -1, -2, 0, -2}},
         {2, 16, 2, 2, 8, 5}},
        // Cu + HNO3 -> Cu(NO3)2 + NO + H2O (Cu, H, N, O)
        {"copper and nitric acid",
         {{1, 0, -1, 0, 0}, {0, 1, 0, 0, -2}, {0, 1, -2, -1, 0}, {0, 3, -6, -1, -1}},
         {3, 8, 3, 2, 4}},
        // Fe2O3 + CO -> Fe + CO2 (Fe, O, C)
        {"blast furnace", {{2, 0, -1, 0}, {3, 1, 0, -2}, {0, 1, 0, -1}}, {1, 3, 2, 3}},
        // K4Fe(CN)6 + KMnO4 + H2SO4 -> KHSO4 + Fe2(SO4)3 + MnSO4 + HNO3 + CO2 + H2O
        // (K, Fe, C, N, Mn, O, H, S)
        {"ferrocyanide",
         {{4, 1, 0, -1, 0, 0, 0, 0, 0},
          {1, 0, 0, 0, -2, 0, 0, 0, 0},
          {6, 0, 0, 0, 0, 0, 0, -1, 0},
          {6, 0, 0, 0, 0, 0, -1, 0, 0},
          {0, 1, 0, 0, 0, -1, 0, 0, 0},
          {0, 4, 4, -4, -12, -4, -3, -2, -1},
          {0, 0, 2, -1, 0, 0, -1, 0, -2},
          {0, 0, 1, -1, -3, -1, 0, 0, 0}},
         {10, 122, 299, 162, 5, 122, 60, 60, 188}},
    };
    vhMath m;
    for (const Case& c : cases) {
        const vhValue r = m.chemSolver_f(reaction(c.matrix));
        ASSERT_FALSE(r.isNull()) << c.name;
        EXPECT_EQ(c.expected, coefficients(r)) << c.name;
    }
    EXPECT_EQ((std::vector<double>{1, 5, 3, 4}),
              coefficients(callFunction(&m, nt_chemSolver, {reaction({{3, 0, -1, 0}, {8, 0, 0, -2}, {0, 2, -2, -1}})})));
}

TEST(ReactionBalancing, UnbalanceableAndMalformed)
{
    vhMath m;
    // H2 -> O2: no balance.
    EXPECT_TRUE(m.chemSolver_f(reaction({{2, 0}, {0, -2}})).isNull());
    // H2 + O2 -> H2O + H2O2: two independent balances.
    EXPECT_TRUE(m.chemSolver_f(reaction({{2, 0, -2, -2}, {0, 2, -1, -2}})).isNull());
    // A species that takes no part (He).
    EXPECT_TRUE(m.chemSolver_f(reaction({{2, 0, -2, 0}, {0, 2, -1, 0}, {0, 0, 0, 1}})).isNull());
    EXPECT_TRUE(m.chemSolver_f(reaction({{2.5, 0, -2}, {0, 2, -1}})).isNull());
    EXPECT_TRUE(m.chemSolver_f(vhVector(std::vector<vhValue>{vhInteger(1), vhInteger(-1)}, true)).isNull());
    EXPECT_TRUE(m.chemSolver_f(vhDouble(1.0)).isNull());
    EXPECT_TRUE(m.chemSolver_f(vhMatrix(vhSymbolicValue("H", true, {}), 2, 3)).isNull());
    EXPECT_TRUE(m.chemSolver_f(vhMatrix()).isNull());
    EXPECT_TRUE(m.chemSolver_f(vhMatrix(vhDouble(1e300), 2, 3)).isNull());
}
