// The elementary functions against reference values that mpmath computed at
// 50 digits (tests/functions/data/make_elementary_reference.py). Each point
// carries the relative error it allows: 1e-12, or more where the function is
// ill-conditioned or its defining formula cancels (see the script).

#include <gtest/gtest.h>

#include <cmath>
#include <complex>
#include <cstdio>
#include <fstream>
#include <map>
#include <sstream>
#include <string>
#include <vector>

#include "frame/math.h"
#include "function_tables.h"

using namespace VarnholtMath::ValueTypes;
using namespace elementwise_tests;

namespace {

struct Point {
    std::string name;
    bool complexArgument;
    std::vector<double> args;
    std::complex<double> reference;
    double bound;
};

double parse(const std::string& cell) { return std::strtod(cell.c_str(), nullptr); }

std::vector<Point> readReference(const std::string& file)
{
    std::vector<Point> points;
    for (const std::vector<std::string>& cells : readCsv(file)) {
        if (cells.size() != 9)
            continue;
        Point p;
        p.name = cells[0];
        p.complexArgument = cells[1] == "c";
        for (int i = 2; i < 6; ++i)
            if (!cells[i].empty())
                p.args.push_back(parse(cells[i]));
        p.reference = std::complex<double>(parse(cells[6]), parse(cells[7]));
        p.bound = parse(cells[8]);
        points.push_back(p);
    }
    return points;
}

vhValue evaluate(vhMath& m, const Point& p)
{
    static std::map<std::string, Caller> callers;
    std::vector<vhValue> args;
    std::size_t k = 0;
    if (p.complexArgument) {
        args.push_back(vhComplex(p.args[0], p.args[1]));
        k = 2;
    }
    for (; k < p.args.size(); ++k)
        args.push_back(vhDouble(p.args[k]));
    const std::string key = p.name + "/" + std::to_string(args.size());
    if (!callers.count(key))
        callers[key] = callerByName(p.name, args.size());
    if (!callers[key]) {
        ADD_FAILURE() << "no function " << key;
        return vhValue();
    }
    return callers[key](m, args);
}

struct Worst {
    double error = 0.0;  // at the points held to 1e-12
    double ratio = 0.0;  // error / bound, at all points
    int points = 0;
    int wider = 0;       // points whose bound is wider than 1e-12
};

} // namespace

TEST(ElementwiseAccuracy, ElementaryFunctionsAgainstMpmath)
{
    const std::vector<Point> points = readReference("elementary_reference.csv");
    ASSERT_GT(points.size(), 15000u);
    vhMath m;
    std::map<std::string, Worst> worst;
    std::map<std::string, int> failures;
    for (const Point& p : points) {
        const vhValue r = evaluate(m, p);
        std::ostringstream where;
        where.precision(17);
        where << p.name << (p.complexArgument ? " complex" : "") << " at";
        for (double a : p.args)
            where << " " << a;
        const std::string key = p.name + (p.complexArgument ? " (complex)" : "");
        // A real argument with a real value gives a real number; a complex
        // value is a complex number.
        const bool complexValue = p.complexArgument || p.reference.imag() != 0.0;
        const bool typeRight = complexValue ? r.isComplex() : r.isDouble();
        const std::complex<double> c(r.complexRe(), r.complexIm());
        const double scale = std::abs(p.reference);
        const double error = scale == 0.0 ? std::abs(c) : std::abs(c - p.reference) / scale;
        if (r.isNull() || !typeRight || !(error <= p.bound)) {
            // A few reports per function are enough to see the pattern.
            if (failures[key]++ < 3)
                ADD_FAILURE() << where.str() << ": " << (r.isNull() ? std::string("undefined") : r.typeName())
                              << " " << c << " against " << p.reference << ", error " << error << " > "
                              << p.bound;
            continue;
        }
        Worst& w = worst[key];
        if (p.bound <= 1e-12)
            w.error = std::max(w.error, error);
        else
            ++w.wider;
        w.ratio = std::max(w.ratio, error / p.bound);
        ++w.points;
    }
    for (const auto& f : failures)
        ADD_FAILURE() << f.first << ": " << f.second << " points fail";
    for (const auto& entry : worst) {
        EXPECT_GE(entry.second.points, 200) << entry.first;
        std::printf("  %-18s %4d points (%3d with a wider bound), worst relative error %.2g at 1e-12, worst "
                    "error / bound %.2g\n",
                    entry.first.c_str(), entry.second.points, entry.second.wider, entry.second.error,
                    entry.second.ratio);
    }
}
