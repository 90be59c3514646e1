#pragma once

// Reads tests/signal/data/filter_reference.tsv (made by
// make_filter_reference.py) and small helpers of the filter tests.

#include <gtest/gtest.h>

#include <cmath>
#include <cstdlib>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

#include "frame/math.h"
#include "value/value.h"

namespace filtertest {

using Array = std::vector<double>;

// One line: its kind, its parameters and its arrays.
struct Reference {
    std::string kind;
    Array params;
    std::vector<Array> arrays;
};

inline Array parseArray(const std::string& text)
{
    Array a;
    std::stringstream in(text);
    std::string field;
    while (std::getline(in, field, ','))
        a.push_back(std::strtod(field.c_str(), nullptr));
    return a;
}

inline std::vector<Reference> references(const std::string& kind)
{
    std::vector<Reference> rows;
    std::ifstream in(std::string(VH_TEST_DATA_DIR) + "/signal/data/filter_reference.tsv");
    std::string line;
    while (std::getline(in, line)) {
        std::stringstream fields(line);
        std::string field;
        Reference r;
        std::getline(fields, r.kind, '\t');
        if (r.kind != kind)
            continue;
        std::getline(fields, field, '\t');
        r.params = parseArray(field);
        while (std::getline(fields, field, '\t'))
            r.arrays.push_back(parseArray(field));
        rows.push_back(r);
    }
    EXPECT_FALSE(rows.empty()) << "no reference rows of kind " << kind;
    return rows;
}

using VarnholtMath::ValueTypes::vhValue;

inline vhValue column(const Array& a, bool row = false)
{
    return VarnholtMath::ValueTypes::vhVector(const_cast<double*>(a.data()), static_cast<unsigned int>(a.size()),
                                             row);
}

// The numbers of a numeric vector or matrix; empty for anything else.
inline Array numbers(const vhValue& v)
{
    if (!v.isNumericVectorOrMatrix() || v.numericImValues())
        return Array();
    return Array(v.numericValues(), v.numericValues() + v.size());
}

// Largest absolute difference; infinity on a size mismatch.
inline double maxDifference(const Array& a, const Array& b)
{
    if (a.size() != b.size() || a.empty())
        return INFINITY;
    double m = 0.0;
    for (std::size_t i = 0; i < a.size(); ++i) {
        const double d = std::fabs(a[i] - b[i]);
        if (!(d <= m))
            m = std::isnan(d) ? INFINITY : d;
    }
    return m;
}

inline double maxAbs(const Array& a)
{
    double m = 0.0;
    for (double v : a)
        m = std::fmax(m, std::fabs(v));
    return m;
}

} // namespace filtertest
