// The vectorised kernels of sin, cos, exp and log, for every instruction set
// this processor runs: a number inside an array and the same number alone
// give the same bits, and each set stays within about an ulp of the true
// value.

#include <gtest/gtest.h>

#include <cmath>
#include <cstring>
#include <limits>
#include <string>
#include <vector>

#include "frame/math.h"
#include "functions/vector_math.h"

using namespace VarnholtMath::ValueTypes;
namespace vm = VarnholtMath::ValueTypes::vectormath;

namespace {

const double kPi = 3.141592653589793;
const double kInf = std::numeric_limits<double>::infinity();
const double kNaN = std::numeric_limits<double>::quiet_NaN();

// Puts every test back on the widest set, whatever it chose.
struct InstructionSets {
    std::vector<vm::InstructionSet> available;
    InstructionSets()
    {
        for (vm::InstructionSet s : {vm::instructionSse2, vm::instructionAvx2, vm::instructionAvx512})
            if (s <= vm::widestInstructionSet())
                available.push_back(s);
    }
    ~InstructionSets() { vm::useInstructionSet(vm::widestInstructionSet()); }
};

// Numbers that make kernels stumble: the neighbours of multiples of pi and
// pi/2 and of right angles in degrees and gradians, tiny and huge arguments,
// subnormals, signed zeros, infinities, NaN, and negative numbers whose
// logarithm leaves the reals, and the sizes where the sine changes its
// argument reduction. 97 numbers, so that every block has a tail.
std::vector<double> awkwardNumbers()
{
    std::vector<double> v;
    for (int k = -3; k <= 3; ++k) {
        for (double c : {k * kPi, k * kPi / 2, k * 90.0, k * 100.0}) {
            v.push_back(c);
            v.push_back(std::nextafter(c, kInf));
        }
    }
    const double more[] = {0.0, -0.0, 4.9e-324, -4.9e-324, 2.2250738585072009e-308, 1e-310, 1e-300, -1e-20,
                           1e15, 1e22, -1e22, 6.0e8, 1e300, -1e300, kInf, -kInf, kNaN, 709.7, 709.8, -745.2,
                           -746.0, 0.5, -0.5, 1.0, -1.0, 2.5, 1e-8, 355.0, 103993.0, 2.0, 7.0, -3.5, 0.7,
                           14.999999999999998, 15.0, -15.000000000000002, 99999999999999.98, 1e14,
                           1.0000000000000002e14, 3.0e15, 1e-5};
    v.insert(v.end(), std::begin(more), std::end(more));
    return v;
}

bool sameBits(double a, double b) { return std::memcmp(&a, &b, sizeof a) == 0; }

typedef vhValue (vhMath::*Member)(const vhValue&);

struct Named {
    const char* name;
    Member f;
};

} // namespace

TEST(VectorMath, ArrayAndSingleNumberGiveTheSameBitsOnEveryInstructionSet)
{
    InstructionSets sets;
    const std::vector<double> x = awkwardNumbers();
    const vhVector column(const_cast<double*>(x.data()), static_cast<unsigned>(x.size()), false);
    const Named members[] = {{"sin", &vhMath::sin_f}, {"cos", &vhMath::cos_f}, {"tan", &vhMath::tan_f},
                             {"cot", &vhMath::cot_f}, {"sec", &vhMath::sec_f}, {"csc", &vhMath::csc_f},
                             {"exp", &vhMath::exp_f}, {"log", &vhMath::log_f}};
    for (vm::InstructionSet set : sets.available) {
        ASSERT_TRUE(vm::useInstructionSet(set));
        ASSERT_EQ(set, vm::instructionSet());
        for (AngleUnit unit : {angleRadians, angleDegrees, angleGradians}) {
            for (const Named& m : members) {
                vhMath math;
                math.setAngleUnit(unit);
                const vhValue r = (math.*m.f)(column);
                ASSERT_EQ(x.size(), r.vectorSize());
                for (unsigned i = 0; i < x.size(); ++i) {
                    const vhValue alone = (math.*m.f)(vhDouble(x[i]));
                    const std::string what = std::string(m.name) + " set " + std::to_string(set) + " unit " +
                                             std::to_string(unit) + " x " + std::to_string(x[i]);
                    if (r.numericValues() && !r.numericImValues()) {
                        // Real storage: an undefined element is NaN, every
                        // other is the very number, signed zeros included.
                        const double stored = r.numericValues()[i];
                        if (alone.isNull())
                            EXPECT_TRUE(std::isnan(stored)) << what;
                        else
                            EXPECT_TRUE(sameBits(alone.toDouble(), stored))
                                << what << ": " << alone.toStringAll() << " vs " << stored;
                        continue;
                    }
                    // Results that left the reals: elements one by one.
                    const vhValue inside = r.value(i);
                    ASSERT_EQ(alone.isComplex(), inside.isComplex()) << what;
                    ASSERT_EQ(alone.isNull(), inside.isNull()) << what;
                    if (alone.isNull())
                        continue;
                    EXPECT_TRUE(sameBits(alone.complexRe(), inside.complexRe())) << what;
                    EXPECT_TRUE(sameBits(alone.complexIm(), inside.complexIm())) << what;
                    EXPECT_EQ(alone.toStringAll(), inside.toStringAll()) << what;
                }
            }
        }
    }
}

TEST(VectorMath, RulesOverTheBlockHoldOnEveryInstructionSet)
{
    InstructionSets sets;
    for (vm::InstructionSet set : sets.available) {
        ASSERT_TRUE(vm::useInstructionSet(set));
        vhMath math;
        math.setAngleUnit(angleRadians);
        // Exact zeros at whole multiples of pi and odd multiples of pi/2, in
        // the middle of a block as well as alone.
        std::vector<double> d = {1.0, 2.0, 3 * kPi, 4.0, 5.0, 6.0, 7.0, 8.0, -kPi, 0.5, 3 * kPi / 2};
        const vhVector v(d.data(), static_cast<unsigned>(d.size()), false);
        const vhValue s = math.sin_f(v), c = math.cos_f(v);
        EXPECT_EQ(0.0, s.numericValues()[2]);
        EXPECT_EQ(0.0, s.numericValues()[8]);
        EXPECT_EQ(0.0, c.numericValues()[10]);
        EXPECT_FALSE(std::signbit(math.sin_f(vhDouble(-0.0)).toDouble()));
        // A negative number's logarithm is complex, a zero has none, and the
        // rest of the block stays real.
        std::vector<double> l = {std::exp(1.0), -1.0, 0.0, 1.0, 10.0};
        const vhValue logs = math.log_f(vhVector(l.data(), 5, true));
        ASSERT_EQ(5u, logs.vectorSize());
        EXPECT_EQ(tagComplex, logs.value(1).valueType());
        EXPECT_EQ(kPi, logs.value(1).complexIm());
        EXPECT_TRUE(logs.value(2).isNull());
        EXPECT_EQ(0.0, logs.value(3).toDouble());
        EXPECT_NEAR(2.302585092994046, logs.value(4).toDouble(), 4e-16);
        // Overflow and underflow of exp are infinity and zero, NaN undefined.
        EXPECT_EQ(kInf, math.exp_f(vhDouble(1000.0)).toDouble());
        EXPECT_EQ(0.0, math.exp_f(vhDouble(-1000.0)).toDouble());
        EXPECT_TRUE(math.exp_f(vhDouble(kNaN)).isNull());
        // Degrees: sin 30 degrees is 0.5 to the last bit or one below.
        math.setAngleUnit(angleDegrees);
        EXPECT_NEAR(0.5, math.sin_f(vhDouble(30.0)).toDouble(), 1.2e-16);
        EXPECT_EQ(0.0, math.sin_f(vhDouble(180.0)).toDouble());
    }
}

// Every set against a long double reference, whose own error is far below an
// ulp of a double; all of them are accurate to one ulp.
TEST(VectorMath, EveryInstructionSetIsAccurateToAnUlp)
{
    InstructionSets sets;
    std::vector<double> x;
    for (int i = 0; i < 4000; ++i)
        x.push_back(-700.0 + 1400.0 * (i * 0.6180339887498949 - std::floor(i * 0.6180339887498949)));
    std::vector<double> positive;
    for (double v : x)
        positive.push_back(std::fabs(v) * 1e-3 + 1e-300 * (v > 0) + std::ldexp(std::fabs(v), -40));
    auto ulps = [](double got, long double exact) {
        const double e = static_cast<double>(exact);
        const double ulp = std::nextafter(std::fabs(e), kInf) - std::fabs(e);
        return static_cast<double>(std::fabs(static_cast<long double>(got) - exact) / ulp);
    };
    for (vm::InstructionSet set : sets.available) {
        ASSERT_TRUE(vm::useInstructionSet(set));
        std::vector<double> r(x.size());
        double worst[4] = {0, 0, 0, 0};
        vm::sin(x.data(), r.data(), x.size());
        for (std::size_t i = 0; i < x.size(); ++i)
            worst[0] = std::max(worst[0], ulps(r[i], std::sin(static_cast<long double>(x[i]))));
        vm::cos(x.data(), r.data(), x.size());
        for (std::size_t i = 0; i < x.size(); ++i)
            worst[1] = std::max(worst[1], ulps(r[i], std::cos(static_cast<long double>(x[i]))));
        vm::exp(x.data(), r.data(), x.size());
        for (std::size_t i = 0; i < x.size(); ++i)
            if (r[i] > 1e-300 && r[i] < 1e300)
                worst[2] = std::max(worst[2], ulps(r[i], std::exp(static_cast<long double>(x[i]))));
        vm::log(positive.data(), r.data(), positive.size());
        for (std::size_t i = 0; i < positive.size(); ++i)
            worst[3] = std::max(worst[3], ulps(r[i], std::log(static_cast<long double>(positive[i]))));
        const char* names[] = {"sin", "cos", "exp", "log"};
        for (int k = 0; k < 4; ++k) {
            EXPECT_LE(worst[k], 1.0) << names[k] << " set " << set;
            RecordProperty(std::string(names[k]) + "_set" + std::to_string(set) + "_max_ulp",
                           std::to_string(worst[k]));
        }
    }
}
