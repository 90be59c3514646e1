// Every row of the conversions, coordinates, finance, geometry and reaction
// functions is reached by number with the catalogue's argument count and
// answers a fitting call with a defined value of the expected type.

#include <gtest/gtest.h>

#include <vector>

#include "frame/math.h"

using namespace VarnholtMath::ValueTypes;

namespace {
vhValue d(double v) { return vhDouble(v); }
vhValue str(const char* s) { return vhSymbolicValue(s, true, {}); }
vhValue vec(std::vector<double> v) { return vhVector(v.data(), static_cast<unsigned int>(v.size()), true); }
std::vector<vhValue> ds(std::vector<double> xs)
{
    std::vector<vhValue> v;
    for (double x : xs)
        v.push_back(d(x));
    return v;
}

struct Row {
    NodeType id;
    std::vector<vhValue> args;
    int tag;
};
} // namespace

TEST(FamilyDispatch, EveryRowAnswersByNumber)
{
    const std::vector<double> triangleA = {0, 0, 0, 4, 0, 0, 0, 4, 0}, triangleB = {1, 0.5, -1, 3, 0.5, -1, 1, 0.5, 1};
    std::vector<double> triangles = triangleA;
    triangles.insert(triangles.end(), triangleB.begin(), triangleB.end());
    std::vector<double> planes = {0, 0, 0, 1, 0, 0, 0, 1, 0, 1, 0, 0, 1, 1, 0, 1, 0, 5};
    std::vector<Row> rows = {
        {nt_Decimal2Binary, {d(5)}, tagSymbolicValue},
        {nt_Binary2Decimal, {str("101")}, tagInteger},
        {nt_Decimal2Hexadecimal, {d(255)}, tagSymbolicValue},
        {nt_Hexadecimal2Decimal, {str("FF")}, tagInteger},
        {nt_Binary2Hexadecimal, {str("1111")}, tagSymbolicValue},
        {nt_Hexadecimal2Binary, {str("F")}, tagSymbolicValue},
        {nt_isBitActive, {d(4), d(2)}, tagBoolean},
        {nt_setBit, {d(4), d(0), vhBoolean(true)}, tagInteger},
        {nt_complex, {d(1), d(2)}, tagComplex},
        {nt_complexImg, {vhComplex(1, 2)}, tagDouble},
        {nt_phangle, {vhComplex(1, 2)}, tagDouble},
        {nt_timeNow, {}, tagSymbolicValue},
        {nt_presentvalue, ds({0.05, 10, -100, 0}), tagDouble},
        {nt_futurevalue, ds({0.05, 10, -100, 0}), tagDouble},
        {nt_annualpayment, ds({0.05, 10, 1000}), tagDouble},
        {nt_interestpayment, ds({0.05, 2, 10, 1000}), tagDouble},
        {nt_capitalpayment, ds({0.05, 2, 10, 1000}), tagDouble},
        {nt_rate, ds({10, -130, 1000}), tagDouble},
        {nt_numberofperiods, ds({0.05, -130, 1000}), tagDouble},
        {nt_bondprice, ds({0.04, 0.05, 10}), tagDouble},
        {nt_bondyieldtomaturity, ds({0.95, 0.04, 10}), tagDouble},
        {nt_bondduration, ds({0.04, 0.05, 10}), tagDouble},
        {nt_bonddurationmodified, ds({0.04, 0.05, 10, 2}), tagDouble},
        {nt_bondconvexity, ds({0.04, 0.05, 10}), tagDouble},
        {nt_bondaccuredinterest, ds({0.04, 30, 180}), tagDouble},
        {nt_areColinear, ds({0, 0, 1, 1, 2, 2}), tagBoolean},
        {nt_areComplanar, ds({0, 0, 0, 1, 0, 0, 0, 1, 0, 1, 1, 0}), tagBoolean},
        {nt_areCocyclic, ds({1, 0, 0, 1, -1, 0, 0, -1}), tagBoolean},
        {nt_areConcurent, ds({1, 0, -1, 0, 2, 0}), tagBoolean},
        {nt_anglebtwlines, ds({0, 1}), tagDouble},
        {nt_areaofTriangle, ds({0, 0, 2, 0, 0, 2}), tagDouble},
        {nt_angle, ds({0, 0, 1, 0, 0, 1}), tagDouble},
        {nt_PlotArc, {vec({0, 0, 1}), vec({0, 1})}, tagMatrix},
        {nt_PlotCircle, {vec({0, 0}), d(1)}, tagMatrix},
        {nt_volumeOfTetrahedron, ds({0, 0, 0, 1, 0, 0, 0, 1, 0, 0, 0, 1}), tagDouble},
        {nt_norm, {vec({3, 4})}, tagDouble},
        {nt_vecangle, {vec({1, 0}), vec({0, 1})}, tagDouble},
        {nt_areOrthogonal, {vec({1, 0}), vec({0, 1})}, tagBoolean},
        {nt_scalproj, {vec({1, 2}), vec({0, 1})}, tagDouble},
        {nt_vecproj, {vec({1, 2}), vec({0, 1})}, tagVector},
        {nt_crossprod, {vec({1, 0, 0}), vec({0, 1, 0})}, tagVector},
        {nt_dotprod, {vec({1, 2}), vec({3, 4})}, tagDouble},
        {nt_areaofParal3D, ds({0, 0, 0, 1, 0, 0, 0, 1, 0}), tagDouble},
        {nt_vecareaofParal3D, {vec({1, 0, 0}), vec({0, 1, 0})}, tagDouble},
        {nt_areaofTriangle3D, ds({0, 0, 0, 1, 0, 0, 0, 1, 0}), tagDouble},
        {nt_vecareaofTriangle3D, {vec({1, 0, 0}), vec({0, 1, 0})}, tagDouble},
        {nt_distPointLine, ds({0, 1, 0, 0, 0, 0, 1, 0, 0}), tagDouble},
        {nt_planeVector, ds({1, 0, 0, 0, 1, 0, 0, 0, 1}), tagVector},
        {nt_intersecLinePlane, ds({0, 0, 0, 0, 0, 1, 0, 0, 2, 1, 0, 2, 0, 1, 2}), tagVector},
        {nt_intersecPlanes, ds(planes), tagMatrix},
        {nt_intersecTriangles, ds(triangles), tagMatrix},
        {nt_intersecsurface, {vec({0, 0, 1, 0}), vec({1, 0, 0, -1})}, tagMatrix},
        {nt_chemSolver, {vhMatrix(std::vector<double>{2, 0, -2, 0, 2, -1}.data(), 2, 3)}, tagVector},
    };
    for (NodeType id : {nt_Newton2Pound, nt_Pound2Newton, nt_Meter2Foot, nt_Foot2Meter, nt_Kilo2Pound, nt_Pound2Kilo,
                        nt_Celsius2Fahrenheit, nt_Fahrenheit2Celsius, nt_grad2deg, nt_deg2grad})
        rows.push_back({id, {d(10)}, tagDouble});
    for (int id = 238; id <= 267; ++id) {
        const unsigned int n = numberOfFunctionArguments(static_cast<NodeType>(id));
        std::vector<vhValue> args = ds({1, 2, 3});
        args.resize(n);
        const bool whole = functionName(static_cast<NodeType>(id)).find_first_of("RFTXYZ", 12) == std::string::npos;
        rows.push_back({static_cast<NodeType>(id), args, whole ? tagVector : tagDouble});
    }
    EXPECT_EQ(93u, rows.size());
    vhMath m;
    for (const Row& row : rows) {
        ASSERT_EQ(numberOfFunctionArguments(row.id), row.args.size()) << functionName(row.id);
        const vhValue r = callFunction(&m, row.id, row.args);
        EXPECT_FALSE(r.isNull()) << functionName(row.id);
        EXPECT_EQ(row.tag, r.valueType()) << functionName(row.id);
        EXPECT_EQ(functionName(row.id) + "_f", functionName_f(row.id));
    }
}
