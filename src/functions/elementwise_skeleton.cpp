// The shared pieces of the elementwise frame: reading values through
// one-term expressions, the side-by-side test, the result storage of mapped
// arrays and the held symbolic call.

#include "functions/elementwise_skeleton.h"

namespace VarnholtMath {
namespace ValueTypes {
namespace elementwise {

namespace {
bool isOneTermExpression(const vhValue& v)
{
    return v.valueType() == tagExpression && v.expressionValuesSize() == 1;
}
} // namespace

int innerTag(const vhValue& v)
{
    if (!isOneTermExpression(v))
        return v.valueType();
    vhValue holder = expressionToValue(v);
    while (isOneTermExpression(holder)) {
        vhValue inner = expressionToValue(holder);
        holder = inner;
    }
    return holder.valueType();
}

bool isArray(const vhValue& v)
{
    const int t = innerTag(v);
    return t == tagVector || t == tagMatrix;
}

const vhValue& arrayOf(const vhValue& v, vhValue& holder)
{
    if (!isOneTermExpression(v))
        return v;
    holder = expressionToValue(v);
    while (isOneTermExpression(holder)) {
        vhValue inner = expressionToValue(holder);
        holder = inner;
    }
    return holder;
}

bool isScalarInfinity(const vhValue& v)
{
    if (v.isDouble()) {
        const double d = v.toDouble();
        return std::isinf(d);
    }
    if (v.isComplex())
        return std::isinf(v.complexRe()) || std::isinf(v.complexIm());
    return false;
}

vhValue symbolicCall(int id, const std::vector<vhValue>& arguments) { return vhSymbolicFunction(id, arguments); }

bool aligned(const vhValue& x, const vhValue& y) { return x.isDataAlignedWidh(y); }

vhValue sameShape(const vhValue& array)
{
    // The numbers of an image's pixels are stored as numbers too, not as a
    // record per pixel.
    const bool numeric = array.numericValues() != nullptr || array.isImage();
    const unsigned int rows = array.matrixRows(), columns = array.matrixColumns();
    if (array.valueType() == tagMatrix)
        return vhMatrix(rows, columns, numeric, false, false);
    const unsigned int n = array.vectorSize();
    return vhVector(n, rows == 1 && n != 0, numeric, false);
}

void keepElementTypes(const vhValue& argument, vhValue& result)
{
    const bool realArgument =
        (argument.numericValues() && !argument.numericImValues()) || argument.isImage();
    if (!realArgument || !result.numericImValues())
        return;
    // A complex element with an exact zero imaginary part reads as a real.
    vhValue elements = result.toValueVectorOrMatrix();
    if (!elements.isNull())
        result = std::move(elements);
}

} // namespace elementwise
} // namespace ValueTypes
} // namespace VarnholtMath
