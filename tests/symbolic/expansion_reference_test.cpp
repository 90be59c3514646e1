// Expansion by repeated products of random sums, compared term by term (order,
// coefficients, text form) with a recorded file. The file guards the order of
// terms and the merging of like terms while the walk of sums is reworked: it
// was written by this same test, with VH_WRITE_EXPANSION_REFERENCE set to the
// output path, from the engine as it stood before the rework.

#include <gtest/gtest.h>

#include <cstdint>
#include <cstdlib>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

#include "symbolic/symbolic_test_support.h"

using namespace VarnholtMath::ValueTypes;
using symbolic_tests::sym;

namespace {

// A small generator of its own, so that the cases do not depend on the
// standard library's distributions.
struct Lcg {
    std::uint64_t state;
    unsigned next(unsigned n)
    {
        state = state * 6364136223846793005ULL + 1442695040888963407ULL;
        return unsigned((state >> 33) % n);
    }
};

struct Case {
    std::string base;   // text of the sum
    int power;
    vhValue result;
};

// A sum of `symbols` distinct symbols with small coefficients, some of them
// negative or fractional, and now and then a constant term; raised by
// repeated `*` to `power`.
Case makeCase(Lcg& g, unsigned symbols, int power)
{
    static const char* names[] = {"x", "y", "z", "a", "b"};
    static const double coefficients[] = {1, 1, 2, -1, 3, 0.5, -2};
    vhValue sum;
    for (unsigned k = 0; k < symbols; ++k) {
        const double c = coefficients[g.next(7)];
        vhValue term = c == 1 ? sym(names[k]) : sym(names[k]) * c;
        sum = sum.isNull() ? term : sum + term;
    }
    if (g.next(2) == 1)
        sum = sum + double(1 + g.next(3));
    Case result{sum.toStringAll(), power, sum};
    for (int i = 1; i < power; ++i)
        result.result = result.result * sum;
    return result;
}

std::vector<Case> cases()
{
    Lcg g{20261124};
    std::vector<Case> all;
    for (unsigned symbols = 2; symbols <= 5; ++symbols) {
        // Higher powers for fewer symbols, so that no result is larger than a
        // few hundred terms.
        const int top = symbols == 2 ? 8 : symbols == 3 ? 6 : symbols == 4 ? 5 : 4;
        for (int power = 2; power <= top; ++power)
            for (int repeat = 0; repeat < 2; ++repeat)
                all.push_back(makeCase(g, symbols, power));
    }
    return all;
}

// One line per case: base, power, text of the result, then every term.
std::string line(const Case& c)
{
    std::ostringstream os;
    os << c.base << '\t' << c.power << '\t' << c.result.typeName() << '\t' << c.result.toStringAll();
    for (const vhValue& term : c.result.expressionValues())
        os << '\t' << term.toStringAll();
    return os.str();
}

const char* kFile = "/symbolic/data/expansion_reference.tsv";

} // namespace

TEST(ExpansionReference, RepeatedProductsKeepOrderCoefficientsAndText)
{
    const std::vector<Case> all = cases();
    if (const char* out = std::getenv("VH_WRITE_EXPANSION_REFERENCE")) {
        std::ofstream file(out);
        for (const Case& c : all)
            file << line(c) << '\n';
        GTEST_SKIP() << "reference written to " << out;
    }
    std::ifstream in(std::string(VH_TEST_DATA_DIR) + kFile);
    ASSERT_TRUE(in.good());
    std::vector<std::string> expected;
    for (std::string l; std::getline(in, l);)
        expected.push_back(l);
    ASSERT_EQ(expected.size(), all.size());
    for (std::size_t i = 0; i < all.size(); ++i)
        EXPECT_EQ(line(all[i]), expected[i]) << "case " << i;
}

// Like terms that cancel leave the sum, and the terms after them still find
// their partners; a constant and numbers merge as before.
TEST(ExpansionReference, CancellingTermsLeaveTheProduct)
{
    const vhValue x = sym("x"), y = sym("y"), z = sym("z");
    EXPECT_EQ("x^2-y^2", ((x + y) * (x - y)).toStringAll());
    EXPECT_EQ("x^3-x y^2+y x^2-y^3", ((x + y) * (x - y) * (x + y)).toStringAll());
    EXPECT_EQ("x^4-y^4", ((x + y) * (x - y) * (x * x + y * y)).toStringAll());
    EXPECT_EQ("x^2-2 x z+z^2-1", ((x - z + 1) * (x - z - 1)).toStringAll());
    // Terms that cancel completely give the number 0.
    const vhValue zero = (x - y) * (x + y) - (x * x - y * y);
    EXPECT_TRUE(zero.isZero()) << zero.toStringAll();
}
