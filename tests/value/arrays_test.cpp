// Vectors and matrices: storage transitions, deep copies, names, operator
// results and bad input of every kind.

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <vector>

#include "value/value.h"

using namespace VarnholtMath::ValueTypes;

namespace {

vhValue column(std::vector<double> d) { return vhVector(d.data(), unsigned(d.size()), false); }
vhValue row(std::vector<double> d) { return vhVector(d.data(), unsigned(d.size()), true); }
vhValue matrix(std::vector<double> d, unsigned rows, unsigned columns) { return vhMatrix(d.data(), rows, columns); }
vhValue text(const char* s) { return vhSymbolicValue(s, true, {}); }

std::vector<double> realsOf(const vhValue& v)
{
    const double* d = v.numericValues();
    return d ? std::vector<double>(d, d + v.vectorSize()) : std::vector<double>();
}

// The elementwise setting is process-wide; every test leaves it off.
struct ElementwiseOn {
    ElementwiseOn() { vhValue::seMatrixScalarMultiplicationAndDivisionOn(); }
    ~ElementwiseOn() { vhValue::seMatrixScalarMultiplicationAndDivisionOff(); }
};

} // namespace

TEST(ArrayStorage, NumericElementsReadAsIntegersAndVectorsGrowAlongTheirDimension)
{
    vhVector zeros(3, false, true, false);
    EXPECT_TRUE(zeros.isNumericVectorOrMatrix());
    EXPECT_EQ(zeros.value(1).valueType(), tagInteger);
    EXPECT_EQ(zeros.value(1).toInt(), 0);
    EXPECT_EQ(column({0.5}).value(0).valueType(), tagDouble);
    EXPECT_TRUE(zeros.value(3).isNull());

    vhValue c = column({1, 2, 3});
    c.setValue(vhInteger(9), 5u);
    EXPECT_EQ(c.matrixRows(), 6u);
    EXPECT_EQ(c.matrixColumns(), 1u);
    EXPECT_EQ(realsOf(c), (std::vector<double>{1, 2, 3, 0, 0, 9}));

    vhValue r = row({1, 2});
    r.setValue(vhDouble(7), 0u, 3u);
    EXPECT_EQ(r.matrixColumns(), 4u);
    EXPECT_EQ(realsOf(r), (std::vector<double>{1, 2, 0, 7}));
    r.setValue(vhDouble(7), 1u, 0u); // not along the row: dropped
    EXPECT_EQ(r.matrixRows(), 1u);

    vhValue m = matrix({1, 2, 3, 4}, 2, 2);
    m.setValue(vhInteger(5), 4u); // a matrix never grows
    m.setValue(vhInteger(5), 2u, 0u);
    EXPECT_EQ(m.vectorSize(), 4u);
    EXPECT_EQ(m.matrixRows(), 2u);

    // The empty vector becomes a numeric column on its first write.
    vhVector empty;
    empty.setValue(vhInteger(4), 2u);
    EXPECT_TRUE(empty.isNumericVectorOrMatrix());
    EXPECT_EQ(realsOf(empty), (std::vector<double>{0, 0, 4}));

    // Index values must be whole and not negative.
    vhValue v = column({1, 2});
    v.setValue(vhInteger(8), vhInteger(-1));
    v.setValue(vhInteger(8), vhDouble(0.5));
    v.setValue(vhInteger(8), vhDouble(1.0));
    EXPECT_EQ(realsOf(v), (std::vector<double>{1, 8}));
}

TEST(ArrayStorage, WritesThatNumericStorageCannotHoldConvertTheWholeArray)
{
    vhValue v = column({1, 2.5, 3});
    v.setValue(text("ab"), 1u);
    EXPECT_FALSE(v.isNumericVectorOrMatrix());
    EXPECT_EQ(v.value(0).valueType(), tagInteger);
    EXPECT_EQ(v.value(2).toInt(), 3);
    EXPECT_TRUE(v.value(1).isString());
    EXPECT_EQ(v.vectorSize(), 3u);
    // It never turns back by itself.
    v.setValue(vhInteger(2), 1u);
    EXPECT_FALSE(v.isNumericVectorOrMatrix());

    // A complex write makes the array complex; other parts read 0.
    vhValue c = column({1, 2});
    c.setValue(vhComplex(3, 4), 1u);
    ASSERT_NE(c.numericImValues(), nullptr);
    EXPECT_EQ(c.numericImValues()[0], 0.0);
    EXPECT_EQ(c.value(1).complexIm(), 4.0);
    // A real write into a complex array keeps the old imaginary part.
    c.setValue(vhDouble(5), 1u);
    EXPECT_EQ(c.value(1).complexIm(), 4.0);
    // An undefined write stores a NaN.
    c.setValue(vhValue(), 0u);
    EXPECT_TRUE(std::isnan(c.numericValues()[0]));

    // Above 500000 elements the conversion is refused and so is the write.
    vhVector big(500001, false, true, false);
    EXPECT_TRUE(big.toValueVectorOrMatrix().isNull());
    big.setValue(text("s"), 0u);
    EXPECT_TRUE(big.isNumericVectorOrMatrix());
    EXPECT_EQ(big.value(0).toInt(), 0);

    // Back to numbers only on request, and only when every element is real.
    vhValue items = vhVector(std::vector<vhValue>{vhInteger(1), vhDouble(2.5)}, true);
    EXPECT_FALSE(items.isNumericVectorOrMatrix());
    EXPECT_TRUE(items.setColumnNames({text("a"), text("b")}));
    vhValue numeric = items.toNumericVectorOrMatrix();
    EXPECT_TRUE(numeric.isNumericVectorOrMatrix());
    EXPECT_EQ(numeric.columnNamesSize(), 2u);
    EXPECT_EQ(realsOf(numeric), (std::vector<double>{1, 2.5}));
    items.setValue(vhComplex(1, 1), 0u);
    EXPECT_TRUE(items.toNumericVectorOrMatrix().isNull());
    // Whole complex parts become plain numbers in element storage.
    vhValue back = c.toValueVectorOrMatrix();
    EXPECT_EQ(back.value(1).valueType(), tagComplex);
    vhValue realComplex = column({2});
    realComplex.setValue(vhComplex(2.5, 0), 0u);
    EXPECT_EQ(realComplex.toValueVectorOrMatrix().value(0).valueType(), tagDouble);
}

TEST(ArrayStorage, AllocateKeepsGrownContentAndWipesOtherwise)
{
    vhValue m = matrix({1, 2, 3, 4}, 2, 2);
    m.setValue(vhComplex(4, -1), 3u);
    EXPECT_TRUE(m.setColumnNames({text("a"), text("b")}));
    EXPECT_TRUE(m.setRowNames({text("r"), text("s")}));

    m.allocateMatrix(3, 2);
    EXPECT_EQ(realsOf(m), (std::vector<double>{1, 2, 3, 4, 0, 0}));
    EXPECT_EQ(m.numericImValues()[3], -1.0);
    EXPECT_EQ(m.numericImValues()[4], 0.0);
    EXPECT_EQ(m.columnNamesSize(), 2u); // same number of columns: kept
    EXPECT_EQ(m.rowNamesSize(), 0u);    // other number of rows: dropped

    m.allocateMatrix(3, 2); // the same size zeroes
    EXPECT_EQ(realsOf(m), std::vector<double>(6, 0.0));
    m.setValue(vhInteger(1), 0u);
    m.allocateMatrix(1, 2); // shrinking zeroes
    EXPECT_EQ(realsOf(m), std::vector<double>(2, 0.0));
    EXPECT_FALSE(m.allocateMatrix(0, 2));

    vhVector v(2, false, true, false);
    v.resize(4, true);
    EXPECT_TRUE(v.isRowVector());
    EXPECT_EQ(v.vectorSize(), 4u);
    v.resize(4, false); // same size: nothing happens, not even a reshape
    EXPECT_TRUE(v.isRowVector());

    double values[] = {7, 8, 9};
    v.setNumericValues(values, 3);
    EXPECT_EQ(realsOf(v), (std::vector<double>{7, 8, 9, 0}));
    v.setNumericImValues(values, 1);
    EXPECT_TRUE(v.isNumericComplexVectorOrMatrix());
    EXPECT_EQ(v.value(0).complexIm(), 7.0);
    EXPECT_EQ(v.value(1).complexIm(), 0.0);

    vhMatrix strict(2, 2, true, false, false);
    strict.setNumericValues(values, 3); // only the exact size is taken
    EXPECT_EQ(realsOf(strict), std::vector<double>(4, 0.0));

    // An image takes whole numbers that fit a pixel, in range only.
    vhMatrix image(2, 2, false, true, false);
    EXPECT_TRUE(image.isImage());
    EXPECT_EQ(image.dpi(), 96u);
    image.setValue(vhDouble(3.5), 0u);
    image.setValue(vhInteger(-1), 1u);
    image.setValue(vhInteger(7), 2u);
    image.setValue(vhInteger(7), 0u, 5u);
    EXPECT_EQ(image.imageValues()[0], 0xFFFFFFFFu);
    EXPECT_EQ(image.imageValues()[1], 0xFFFFFFFFu);
    EXPECT_EQ(image.imageValues()[2], 7u);
    EXPECT_EQ(image.vectorSize(), 4u);
}

TEST(ArrayStorage, CopiesNeverShareContentWithTheirSource)
{
    vhValue complexMatrix = matrix({1, 2, 3, 4}, 2, 2);
    complexMatrix.setValue(vhComplex(1, 2), 0u);
    unsigned pixels[] = {1, 2, 3, 4};
    const std::vector<vhValue> sources = {
        column({1, 2, 3}),
        complexMatrix,
        vhMatrix(pixels, 2, 2),
        vhVector(std::vector<vhValue>{text("ab"), column({1, 2}), vhInteger(3)}, true),
    };
    for (const vhValue& source : sources) {
        vhValue copy = source;
        const vhValue before = source;
        copy.setValue(vhInteger(42), 0u);
        if (copy.numericValues())
            copy.numericValues()[1] = 99;
        if (copy.numericImValues())
            copy.numericImValues()[1] = 99;
        if (copy.imageValues())
            copy.imageValues()[1] = 99;
        vhValue* inner = copy.get_vector_index_address(1);
        if (inner)
            inner->setValue(vhInteger(77), 0u);
        copy.setColumnNames(std::vector<vhValue>(copy.matrixColumns(), text("c")));
        EXPECT_TRUE(source == before) << source.typeName();
        EXPECT_EQ(source.columnNamesSize(), 0u);
        EXPECT_FALSE(copy == source) << source.typeName();
    }

    // operator[] gives numeric and image elements as new objects.
    vhValue v = column({1, 2});
    vhValue* element = v[1];
    *element = vhInteger(5);
    EXPECT_EQ(v.value(1).toInt(), 2);
    delete element;
    vhValue items = vhVector(std::vector<vhValue>{vhInteger(1)}, false);
    *items[0] = vhInteger(6);
    EXPECT_EQ(items.value(0).toInt(), 6);
    vhValue* outside = items[-1];
    EXPECT_TRUE(outside->isNull());
    delete outside;

    // Results of the operators own their data.
    vhValue a = column({1, 2});
    vhValue sum = a + column({1, 1});
    vhValue scaled = a * vhInteger(2);
    vhValue flipped = vhVector(a).transpose();
    sum.numericValues()[0] = scaled.numericValues()[0] = flipped.numericValues()[0] = -1;
    EXPECT_EQ(realsOf(a), (std::vector<double>{1, 2}));
}

TEST(ArrayNames, NamesAreCheckedAndFollowTheirRules)
{
    vhValue m = matrix({1, 2, 3, 4, 5, 6}, 2, 3);
    EXPECT_FALSE(m.setColumnNames({text("a"), text("b")}));
    EXPECT_FALSE(m.setColumnNames({text("a"), vhInteger(1), text("c")}));
    EXPECT_FALSE(vhDouble(1).setColumnNames({}));
    ASSERT_TRUE(m.setColumnNames({text("a"), text("b"), text("c")}));
    ASSERT_TRUE(m.setRowNames({text("x"), text("y")}));
    EXPECT_TRUE(m.isTable());

    vhValue other = matrix({1, 2, 3, 4, 5, 6}, 2, 3);
    EXPECT_FALSE(m.columnNamesEqual(other));
    EXPECT_FALSE(m == other); // equal numbers, other names
    other.setColumnNames({text("a"), text("b"), text("c")});
    EXPECT_TRUE(m.columnNamesEqual(other));
    EXPECT_TRUE(m == other);
    EXPECT_FALSE(m.rowNamesEqual(other));

    // The left operand's column names survive + - and the scalar product.
    EXPECT_EQ((m + other).columnNamesSize(), 3u);
    EXPECT_EQ((other - m).columnNamesSize(), 3u);
    EXPECT_EQ((m * vhDouble(2)).columnNamesSize(), 3u);
    EXPECT_EQ((matrix({1, 2, 3, 4, 5, 6}, 2, 3) + m).columnNamesSize(), 0u);
    EXPECT_EQ(vhMatrix(m).transpose().columnNamesSize(), 0u);
    EXPECT_EQ(vhMatrix(m).multiply(m).columnNamesSize(), 0u);

    vhValue firstRow = m.getMatrixRowAsVector(0);
    EXPECT_EQ(firstRow.valueType(), tagVector);
    EXPECT_TRUE(firstRow.isRowVector());
    EXPECT_EQ(realsOf(firstRow), (std::vector<double>{1, 2, 3}));
    EXPECT_EQ(firstRow.columnNamesSize(), 3u);
    vhValue lastColumn = m.getMatrixColumnAsVector(2);
    EXPECT_EQ(realsOf(lastColumn), (std::vector<double>{3, 6}));
    ASSERT_EQ(lastColumn.columnNamesSize(), 1u);
    EXPECT_TRUE(lastColumn.columnNames()[0] == text("c"));
    EXPECT_TRUE(m.getMatrixRowAsVector(2).isNull());
    EXPECT_TRUE(m.getMatrixColumnAsVector(3).isNull());

    unsigned pixels[] = {10, 20, 30, 40};
    vhValue imageColumn = vhMatrix(pixels, 2, 2).getMatrixColumnAsVector(1);
    EXPECT_TRUE(imageColumn.isNumericVectorOrMatrix());
    EXPECT_EQ(realsOf(imageColumn), (std::vector<double>{20, 40}));

    // Reshaping drops the names.
    vhValue v = column({1, 2, 3});
    v.setRowNames({text("a"), text("b"), text("c")});
    v.toRowVector();
    EXPECT_TRUE(v.isRowVector());
    EXPECT_EQ(v.matrixColumns(), 3u);
    EXPECT_EQ(v.rowNamesSize(), 0u);
    v.toColumnVector();
    EXPECT_EQ(v.matrixRows(), 3u);
}

TEST(ArraySearch, ContainsAlignmentAndMerge)
{
    vhValue v = column({1, 2.5, -3});
    EXPECT_TRUE(v.contains(vhDouble(2.5)));
    EXPECT_TRUE(v.contains(vhBoolean(true)));
    EXPECT_FALSE(v.contains(vhComplex(2.5, 0))); // complex against a real array
    EXPECT_FALSE(v.contains(vhDouble(2.4)));
    v.setValue(vhComplex(0, 1), 0u);
    EXPECT_TRUE(v.contains(vhComplex(0, 1)));
    EXPECT_FALSE(v.contains(vhComplex(0, -1)));
    unsigned pixels[] = {5, 6};
    EXPECT_TRUE(vhMatrix(pixels, 1, 2).contains(vhDouble(6.7)));
    vhValue items = vhVector(std::vector<vhValue>{text("ab"), vhInteger(3)}, false);
    EXPECT_TRUE(items.contains(text("ab")));
    EXPECT_TRUE(items.contains(vhDouble(3)));
    EXPECT_FALSE(vhDouble(3).contains(vhDouble(3)));

    EXPECT_TRUE(vhValue(vhInteger(1)).isDataAlignedWidh(vhDouble(2)));
    EXPECT_TRUE(vhComplex(1, 1).isDataAlignedWidh(vhComplex(0, 0)));
    EXPECT_FALSE(vhDouble(1).isDataAlignedWidh(vhComplex(0, 0)));
    EXPECT_FALSE(vhDouble(NAN).isDataAlignedWidh(vhDouble(1)));
    EXPECT_TRUE(column({1, 2}).isDataAlignedWidh(column({3, 4})));
    EXPECT_FALSE(column({1, 2}).isDataAlignedWidh(row({3, 4})));
    EXPECT_TRUE(matrix({1, 2}, 1, 2).isDataAlignedWidh(matrix({3, 4}, 1, 2)));
    EXPECT_FALSE(matrix({1, 2}, 1, 2).isDataAlignedWidh(row({3, 4})));
    EXPECT_TRUE(text("a").isDataAlignedWidh(text("b")));
    EXPECT_FALSE(text("a").isDataAlignedWidh(vhUnit()));

    EXPECT_TRUE(column({1}).merge(column({1})).isNull());
}

TEST(ArrayOperators, ShapesDecideWhetherArraysAdd)
{
    EXPECT_TRUE((row({1, 2}) + column({1, 2})).isNull());
    EXPECT_TRUE((row({1, 2}) + matrix({1, 2}, 1, 2)).isNull());
    vhValue sum = matrix({1, 2}, 1, 2) + row({10, 20});
    EXPECT_EQ(sum.valueType(), tagMatrix);
    EXPECT_EQ(realsOf(sum), (std::vector<double>{11, 22}));
    EXPECT_TRUE((matrix({1, 2}, 1, 2) + column({1, 2})).isNull());
    EXPECT_TRUE((column({1}) + vhValue()).isNull());
    EXPECT_TRUE((vhValue() + column({1})).isNull());

    // A missing imaginary half counts as zeros.
    vhValue c = column({1, 2});
    c.setValue(vhComplex(2, 3), 1u);
    vhValue difference = column({5, 5}) - c;
    EXPECT_TRUE(difference.isNumericComplexVectorOrMatrix());
    EXPECT_EQ(difference.value(1).complexRe(), 3.0);
    EXPECT_EQ(difference.value(1).complexIm(), -3.0);
    EXPECT_EQ((c - column({1, 1})).value(1).complexIm(), 3.0);

    // Scalars on either side.
    EXPECT_EQ(realsOf(column({1, 2}) + vhInteger(1)), (std::vector<double>{2, 3}));
    EXPECT_EQ(realsOf(vhDouble(0.5) + column({1, 2})), (std::vector<double>{1.5, 2.5}));
    EXPECT_EQ(realsOf(vhInteger(10) - column({1, 2})), (std::vector<double>{9, 8}));
    vhValue shifted = matrix({1, 2}, 2, 1) - vhComplex(0, 1);
    EXPECT_EQ(shifted.value(1).complexIm(), -1.0);

    // Element storage adds element by element.
    vhValue items = vhVector(std::vector<vhValue>{vhInteger(2147483647), vhDouble(0.5)}, false);
    vhValue itemSum = items + column({1, 1});
    EXPECT_FALSE(itemSum.isNumericVectorOrMatrix());
    EXPECT_EQ(itemSum.value(0).toInt(), -2147483647 - 1); // integers wrap
    EXPECT_EQ(itemSum.value(1).toDouble(), 1.5);
    EXPECT_TRUE((items + vhVector(std::vector<vhValue>{vhValue(), vhInteger(1)}, false)).value(0).isNull());

    // NaN and infinities stay where numeric storage puts them.
    vhValue infinite = column({INFINITY, 1}) - column({INFINITY, 1});
    EXPECT_TRUE(infinite.isNan());
}

TEST(ArrayOperators, LargeArraysGiveTheSameNumbersAsSmallOnes)
{
    // Long arrays take other loops than short ones; an odd length leaves a
    // tail after the pairs.
    const unsigned n = 200001;
    std::vector<double> x(n), y(n);
    for (unsigned i = 0; i < n; ++i) {
        x[i] = 0.25 * i - 7.0;
        y[i] = (i % 7 == 0) ? -0.0 : 3.0 - 0.5 * i;
    }
    const vhValue a = column(x), b = column(y);
    const vhValue sum = a + b, difference = a - b, scaled = a * vhDouble(1.5), quotient = a / vhInteger(4),
                  shifted = a - vhDouble(2);
    vhValue c = a;
    c.setValue(vhComplex(1, 2), 3u);
    const vhValue conjugated = vhVector(c).conjugateTranspose();
    // 0 - c is c * -1 + 0, and a real factor leaves the imaginary half alone.
    const vhValue negated = vhInteger(0) - c;
    bool same = true;
    for (unsigned i = 0; i < n && same; ++i) {
        same = sum.numericValues()[i] == x[i] + y[i] && difference.numericValues()[i] == x[i] - y[i] &&
               scaled.numericValues()[i] == x[i] * 1.5 && quotient.numericValues()[i] == x[i] / 4 &&
               shifted.numericValues()[i] == x[i] - 2 && sum.numericValues()[n + i] == 0.0 &&
               scaled.numericValues()[n + i] == 0.0 &&
               conjugated.numericImValues()[i] == (i == 3 ? -2.0 : 0.0) &&
               std::signbit(conjugated.numericImValues()[i]) &&
               negated.numericImValues()[i] == (i == 3 ? 2.0 : 0.0);
        EXPECT_TRUE(same) << i;
    }
}

TEST(ArrayOperators, ProductsOfVectorsFollowTheirOrientation)
{
    vhValue dot = row({1, 2}) * column({3, 4});
    EXPECT_EQ(dot.valueType(), tagInteger);
    EXPECT_EQ(dot.toInt(), 11);
    vhValue realDot = row({0.5, 2}) * column({3, 4});
    EXPECT_EQ(realDot.valueType(), tagDouble);
    EXPECT_EQ(realDot.toDouble(), 9.5);
    // Whole elements multiply as 32-bit integers, as their values do.
    EXPECT_EQ((row({65536}) * column({65536})).toInt(), 0);
    EXPECT_TRUE((row({1, 2}) * column({1, 2, 3})).isNull());
    EXPECT_TRUE((row({NAN}) * column({1})).isNull());

    vhValue complexRow = row({0, 1});
    complexRow.setValue(vhComplex(0, 1), 0u);
    vhValue complexDot = complexRow * column({2, 3});
    EXPECT_EQ(complexDot.complexRe(), 3.0);
    EXPECT_EQ(complexDot.complexIm(), 2.0); // no conjugation

    vhValue outer = column({1, 2}) * row({3, 4});
    EXPECT_EQ(outer.valueType(), tagMatrix);
    EXPECT_EQ(outer.matrixRows(), 2u);
    EXPECT_EQ(realsOf(outer), (std::vector<double>{3, 4, 6, 8}));

    EXPECT_TRUE((row({1, 2}) * row({3, 4})).isNull());
    EXPECT_TRUE((column({1, 2}) * column({3, 4})).isNull());
    EXPECT_TRUE((row({1, 2}) / row({3, 4})).isNull());
    {
        ElementwiseOn on;
        EXPECT_EQ(realsOf(row({1, 2}) * row({3, 4})), (std::vector<double>{3, 8}));
        vhValue quotient = row({1, 2}) / row({0, 4});
        EXPECT_TRUE(std::isnan(quotient.numericValues()[0]));
        EXPECT_EQ(quotient.numericValues()[1], 0.5);
        EXPECT_TRUE((row({1, 2}) * row({3, 4, 5})).isNull());
    }

    // A vector times a matrix runs as the matrix of its shape.
    vhValue product = row({1, 2}) * matrix({1, 0, 0, 1}, 2, 2);
    EXPECT_EQ(product.valueType(), tagVector);
    EXPECT_TRUE(product.isRowVector());
    EXPECT_EQ(realsOf(product), (std::vector<double>{1, 2}));
    EXPECT_TRUE((column({1, 2}) * matrix({1, 0, 0, 1}, 2, 2)).isNull());
}

TEST(ArrayOperators, ScalarsScaleTheRealHalfOnly)
{
    vhValue c = column({1, 2});
    c.setValue(vhComplex(2, 3), 1u);
    vhValue doubled = c * vhInteger(2);
    EXPECT_EQ(doubled.value(1).complexRe(), 4.0);
    EXPECT_EQ(doubled.value(1).complexIm(), 3.0);
    vhValue halved = c / vhDouble(2);
    EXPECT_EQ(halved.value(1).complexIm(), 3.0);
    // A complex factor multiplies each element as a complex number.
    vhValue turned = c * vhComplex(0, 1);
    EXPECT_EQ(turned.value(1).complexRe(), -3.0);
    EXPECT_EQ(turned.value(1).complexIm(), 2.0);
    EXPECT_EQ((vhInteger(3) * column({1, 2})).value(1).toInt(), 6);

    vhValue byZero = column({1, -1, 0}) / vhInteger(0);
    EXPECT_TRUE(byZero.isInfinity());
    EXPECT_EQ(byZero.numericValues()[1], -INFINITY);
    EXPECT_TRUE(std::isnan(byZero.numericValues()[2]));
    EXPECT_TRUE((vhInteger(1) / vhInteger(0)).isNull());
    vhValue complexByZero = column({1, 2}) / vhComplex(0, 0);
    EXPECT_TRUE(std::isnan(complexByZero.numericValues()[0]));
    vhValue items = vhVector(std::vector<vhValue>{vhInteger(4)}, false);
    EXPECT_TRUE((items / vhInteger(0)).value(0).isNull());
    EXPECT_EQ((items / vhInteger(8)).value(0).toDouble(), 0.5);

    // Image pixels take whole results only.
    unsigned pixels[] = {3, 4};
    vhValue image = vhMatrix(pixels, 1, 2) * vhDouble(1.5);
    EXPECT_TRUE(image.isImage());
    EXPECT_EQ(image.imageValues()[0], 3u);
    EXPECT_EQ(image.imageValues()[1], 6u);
}

TEST(ArrayOperators, MatrixProductsSumByTheInnerIndexAndReduceTheirShape)
{
    vhValue a = matrix({1, 2, 3, 4, 5, 6}, 2, 3);
    vhValue b = matrix({7, 8, 9, 10, 11, 12}, 3, 2);
    vhValue c = a * b;
    EXPECT_EQ(c.valueType(), tagMatrix);
    EXPECT_EQ(realsOf(c), (std::vector<double>{58, 64, 139, 154}));
    EXPECT_TRUE((a * a).isNull());

    // (0 + 1e16) + 1 is 1e16 in doubles; another order would give 1.
    vhValue ordered = matrix({1e16, 1, -1e16}, 1, 3) * matrix({1, 1, 1}, 3, 1);
    EXPECT_EQ(ordered.valueType(), tagVector);
    EXPECT_EQ(ordered.numericValues()[0], 0.0);

    vhValue rowResult = matrix({1, 2}, 1, 2) * matrix({1, 2, 3, 4}, 2, 2);
    EXPECT_EQ(rowResult.valueType(), tagVector);
    EXPECT_TRUE(rowResult.isRowVector());
    EXPECT_EQ(realsOf(rowResult), (std::vector<double>{7, 10}));
    vhValue columnResult = matrix({1, 2, 3, 4}, 2, 2) * column({1, 1});
    EXPECT_EQ(columnResult.valueType(), tagVector);
    EXPECT_FALSE(columnResult.isRowVector());
    EXPECT_EQ(realsOf(columnResult), (std::vector<double>{3, 7}));

    // Complex products flush parts below 1e-15 before they are summed; real
    // products keep them.
    vhValue z = matrix({0}, 1, 1);
    z.setValue(vhComplex(1e-16, 1), 0u);
    vhValue flushed = z * matrix({1}, 1, 1);
    EXPECT_EQ(flushed.value(0).complexRe(), 0.0);
    EXPECT_EQ(flushed.value(0).complexIm(), 1.0);
    EXPECT_EQ((matrix({1e-16}, 1, 1) * matrix({1}, 1, 1)).numericValues()[0], 1e-16);

    // Element storage: sums at the level of the values, no shape reduction.
    vhValue items = vhMatrix(vhValue(vhInteger(2)), 1, 2);
    items.setValue(text("s"), 0u);
    items.setValue(vhInteger(2), 0u);
    vhValue itemProduct = items * matrix({3, 4}, 2, 1);
    EXPECT_EQ(itemProduct.valueType(), tagMatrix);
    EXPECT_EQ(itemProduct.value(0).toInt(), 14);
    vhValue withHole = items;
    withHole.setValue(vhValue(), 1u);
    EXPECT_TRUE((withHole * matrix({3, 4}, 2, 1)).value(0).isNull());

    // Matrix division multiplies by the inverse; a singular divisor has none.
    vhValue m = matrix({1, 2, 3, 4}, 2, 2);
    EXPECT_EQ(realsOf(m / m), (std::vector<double>{1, 0, 0, 1}));
    EXPECT_TRUE((m / matrix({1, 2, 2, 4}, 2, 2)).isNull());
    EXPECT_EQ(realsOf(row({1, 2}) / m), (std::vector<double>{1, 0}));
    {
        ElementwiseOn on;
        EXPECT_EQ(realsOf(m * m), (std::vector<double>{1, 4, 9, 16}));
        EXPECT_EQ(realsOf(m / m), (std::vector<double>{1, 1, 1, 1}));
    }
}

TEST(ArrayOperators, EqualityComparesShapeNamesAndElementValues)
{
    vhValue numeric = column({1, 2.5});
    vhValue items = vhVector(std::vector<vhValue>{vhInteger(1), vhDouble(2.5)}, false);
    EXPECT_TRUE(numeric == items);
    EXPECT_TRUE(items == numeric);
    EXPECT_FALSE(numeric == row({1, 2.5}));
    EXPECT_FALSE(numeric == matrix({1, 2.5}, 2, 1));
    EXPECT_FALSE(matrix({1, 2.5}, 2, 1) == numeric);
    EXPECT_FALSE(numeric == vhInteger(1));
    EXPECT_FALSE(vhInteger(1) == column({1}));
    EXPECT_TRUE(column({1}) != column({2}));
    EXPECT_FALSE(column({NAN}) == column({NAN}));
    vhValue complexOne = column({1});
    complexOne.setValue(vhComplex(1, 0), 0u);
    EXPECT_TRUE(complexOne == column({1}));
    EXPECT_TRUE(vhVector() == vhVector());
}

TEST(ArrayTranspose, TransposesKeepTheirStorage)
{
    vhValue m = matrix({1, 2, 3, 4, 5, 6}, 2, 3);
    m.setValue(vhComplex(6, -2), 5u);
    m.setColumnNames({text("a"), text("b"), text("c")});
    vhValue t = vhMatrix(m).transpose();
    EXPECT_EQ(t.matrixRows(), 3u);
    EXPECT_EQ(t.columnNamesSize(), 0u);
    EXPECT_EQ(realsOf(t), (std::vector<double>{1, 4, 2, 5, 3, 6}));
    EXPECT_EQ(t.value(2, 1).complexIm(), -2.0);
    EXPECT_EQ(vhMatrix(m).conjugateTranspose().value(2, 1).complexIm(), 2.0);

    vhValue items = vhMatrix(vhValue(vhComplex(1, 1)), 1, 2);
    items.setValue(text("x"), 1u);
    vhValue it = vhMatrix(items).conjugateTranspose();
    EXPECT_EQ(it.matrixRows(), 2u);
    EXPECT_EQ(it.value(0).complexIm(), -1.0);
    EXPECT_TRUE(it.value(1).isString());

    unsigned pixels[] = {1, 2, 3, 4, 5, 6};
    vhValue image = vhMatrix(pixels, 2, 3).transpose();
    EXPECT_TRUE(image.isImage());
    EXPECT_EQ(image.imageValues()[1], 4u);

    vhValue v = column({1, 2});
    v.setValue(vhComplex(2, 5), 1u);
    vhValue vt = vhVector(v).conjugateTranspose();
    EXPECT_TRUE(vt.isRowVector());
    EXPECT_EQ(vt.value(1).complexIm(), -5.0);
    EXPECT_EQ(vhVector(matrix({1}, 1, 1)).transpose().valueType(), tagVector);
    EXPECT_EQ(vhVector(matrix({1}, 1, 1)).transpose().vectorSize(), 0u);
    EXPECT_TRUE(vhMatrix(column({1})).transpose().isNull());
}

TEST(ArrayBadInput, EveryKindOfOperandGivesAResultOrUndefined)
{
    int host = 0;
    vhValue pointee = vhInteger(3);
    unsigned pixels[] = {1, 2};
    vhValue nanInside = column({NAN, 1});
    const std::vector<vhValue> operands = {
        vhValue(), vhBoolean(true), vhInteger(2), vhInteger(&pointee), vhDouble(0.5), vhDouble(NAN),
        vhDouble(INFINITY), vhComplex(1, -1), text("ab"), vhSymbolicValue("x", false, {}), vhUnit(),
        vhVector(), column({1, 2}), row({1, 2}), nanInside, vhVector(std::vector<vhValue>{text("s"), vhInteger(1)}, false),
        vhMatrix(pixels, 2, 1), vhMatrix(), matrix({1, 2, 3, 4}, 2, 2), matrix({1, 2}, 1, 2), vhExpression(),
        vhExpression(vhValue(column({1, 2}))), vhFraction(), vhEquation(), vhInterval(0, true, 1, false),
        vhInfiniteSolution(0, 1), vhObject("host", &host), vhChannel("c", &host), vhWidget("w", &host),
        vhFile("f", &host),
    };
    const std::vector<vhValue> arrays = {vhVector(),         column({1, 2}), row({1, 2}), nanInside,
                                         vhMatrix(pixels, 2, 1), vhMatrix(),  matrix({1, 2, 3, 4}, 2, 2),
                                         vhVector(std::vector<vhValue>{text("s"), vhInteger(1)}, false)};
    for (int setting = 0; setting < 2; ++setting) {
        ElementwiseOn on;
        if (setting == 0)
            vhValue::seMatrixScalarMultiplicationAndDivisionOff();
        for (const vhValue& a : arrays) {
            for (const vhValue& b : operands) {
                const vhValue results[] = {a + b, a - b, a * b, a / b, a.multiply(b), a.divide(b)};
                const vhValue mirrored[] = {b + a, b - a, b * a, b / a};
                (void)mirrored;
                if (a.isNull() || (b.isNull() && b.valueType() != tagVector))
                    for (const vhValue& r : results)
                        EXPECT_TRUE(r.isNull()) << a.typeName() << " with " << b.typeName();
                // Arrays of different tags, and an array and a scalar, are
                // never equal.
                if (b.valueType() <= tagMatrix && b.valueType() != a.valueType())
                    EXPECT_FALSE(a == b || b == a) << a.typeName() << " == " << b.typeName();
                (void)a.contains(b);
                (void)a.isDataAlignedWidh(b);
            }
        }
    }
    for (const vhValue& v : operands) {
        vhMatrix m(v);
        vhVector w(v);
        const vhValue results[] = {m.determinant(), m.coFactor(), m.adjoint(), m.inverse(), m.transpose(),
                                   m.conjugateTranspose(), w.transpose(), w.conjugateTranspose(),
                                   v.inverseMatrix(), v.getMatrixRowAsVector(0), v.getMatrixColumnAsVector(0),
                                   v.toValueVectorOrMatrix(), v.toNumericVectorOrMatrix(), v.merge(v)};
        if (v.valueType() != tagMatrix)
            for (int k = 0; k < 4; ++k)
                EXPECT_TRUE(results[k].isNull()) << v.typeName();
        vhValue changed = v;
        changed.setValue(vhInteger(1), 7u);
        changed.setValue(text("t"), 0u, 3u);
        changed.toRowVector();
        changed.setColumnNames({text("only")});
        m.resize(3, 3);
        w.resize(3, false);
    }
}
