// Reading and writing single elements of vectors and matrices, the growth
// of a vector on a write past its end, and the conversions between numeric
// and element storage.

#include <cmath>
#include <cstring>
#include <limits>

#include "value/value.h"
#include "value/value_internal.h"

namespace VarnholtMath {
namespace ValueTypes {

namespace {
const double kNaN = std::numeric_limits<double>::quiet_NaN();

bool isArrayTag(int t) { return t == tagVector || t == tagMatrix; }

// The largest numeric array that is turned into element storage; above it a
// symbolic write into a numeric array fails instead of building a huge list.
const std::uint32_t kMaximumElementConversion = 500000;
} // namespace

// --- reading -------------------------------------------------------------------

vhValue vhValue::value(unsigned int i) const
{
    if (isNull())
        return vhValue();
    if (m_pointer)
        return m_pointer->value(i);
    const vhValue& v = arrayGrade();
    if (&v != this)
        return v.value(i);
    if (m_valueType == tagSymbolicValue) {
        // A string is indexable: one character, with the same string flag.
        if (i >= m_text.size())
            return vhValue();
        vhSymbolicValue c(m_text.substr(i, 1), m_stringValue, std::vector<CharFormat>());
        return c;
    }
    if (!isArrayTag(m_valueType))
        return vhValue();
    if (m_numeric) {
        if (!m_numericData || i >= m_numericSize)
            return vhValue();
        if (m_numericComplex) {
            vhComplex c(m_numericData[i], m_numericData[m_numericSize + i]);
            c.m_numberOfDecimalPlaces = m_numberOfDecimalPlaces;
            return c;
        }
        const double d = m_numericData[i];
        if (double(internal::cutToInt32(d)) == d)
            return vhInteger(internal::cutToInt32(d));
        vhDouble r(d);
        r.m_numberOfDecimalPlaces = m_numberOfDecimalPlaces;
        return r;
    }
    if (m_image) {
        if (!m_imageData || i >= m_imageSize)
            return vhValue();
        vhDouble r(double(m_imageData[i]));
        r.m_numberOfDecimalPlaces = m_numberOfDecimalPlaces;
        return r;
    }
    if (i >= m_elements.size())
        return vhValue();
    return m_elements[i];
}

vhValue vhValue::value(unsigned int i, unsigned int j) const
{
    if (isNull())
        return vhValue();
    if (m_pointer)
        return m_pointer->value(i, j);
    const vhValue& v = arrayGrade();
    if (&v != this)
        return v.value(i, j);
    if (!isArrayTag(m_valueType) || i >= m_rows || j >= m_columns)
        return vhValue();
    return value(i * m_columns + j);
}

vhValue* vhValue::operator[](int i)
{
    vhValue& v = arrayGradeMutable();
    // Element storage gives the element itself; numeric and image storage
    // give a new object that the caller owns, so writing through it does not
    // reach the array.
    if (i >= 0 && isArrayTag(v.m_valueType) && !v.m_numeric && !v.m_image &&
        static_cast<std::size_t>(i) < v.m_elements.size())
        return &v.m_elements[i];
    if (i < 0)
        return new vhValue();
    return new vhValue(v.value(static_cast<unsigned int>(i)));
}

double vhValue::valueToDouble(unsigned int i) const
{
    const vhValue& v = arrayGrade();
    if (!isArrayTag(v.m_valueType))
        return kNaN;
    if (v.m_numeric) {
        if (v.m_numericComplex || !v.m_numericData || i >= v.m_numericSize)
            return kNaN;
        return v.m_numericData[i];
    }
    if (v.m_image) {
        if (!v.m_imageData || i >= v.m_imageSize)
            return kNaN;
        return v.m_imageData[i];
    }
    if (i >= v.m_elements.size() || !v.m_elements[i].isDouble())
        return kNaN;
    return v.m_elements[i].toDouble();
}

double vhValue::valueToDouble(unsigned int i, unsigned int j) const
{
    const vhValue& v = arrayGrade();
    if (!isArrayTag(v.m_valueType) || i >= v.m_rows || j >= v.m_columns)
        return kNaN;
    return v.valueToDouble(i * v.m_columns + j);
}

vhValue* vhValue::get_vector_index_address(unsigned int i) const
{
    const vhValue& v = arrayGrade();
    if (!isArrayTag(v.m_valueType) || v.m_numeric || v.m_image || i >= v.m_elements.size())
        return nullptr;
    return const_cast<vhValue*>(&v.m_elements[i]);
}

// --- writing -------------------------------------------------------------------

bool vhValue::growForIndex(unsigned int i)
{
    // Only a vector grows, along its one dimension; an index of the largest
    // unsigned number is never grown to.
    if (i == 0xFFFFFFFFu)
        return false;
    if (m_rows == 1 && m_columns >= 2)
        return allocateMatrix(1, i + 1);
    if (m_columns == 1 && m_rows != 0)
        return allocateMatrix(i + 1, 1);
    return false;
}

void vhValue::setValue(const vhValue& v, unsigned int i)
{
    // An empty vector becomes a numeric 1 x 1 vector on its first write.
    if (m_valueType == tagVector && vectorSize() == 0 && !m_pointer) {
        m_numeric = true;
        m_numericComplex = false;
        m_image = false;
        m_elements.clear();
        allocateMatrix(1, 1);
    } else if (isNull()) {
        return;
    }
    if (m_pointer) {
        m_pointer->setValue(v, i);
        return;
    }
    vhValue& target = arrayGradeMutable();
    if (&target != this) {
        target.setValue(v, i);
        return;
    }
    if (m_valueType == tagSymbolicValue) {
        if (v.m_valueType == tagSymbolicValue && v.m_text.size() == 1 && i < m_text.size())
            m_text[i] = v.m_text[0];
        return;
    }
    if (!isArrayTag(m_valueType))
        return;
    const vhValue& item = v.fullGrade();

    if (!m_numeric && !m_image) {
        if (i >= m_elements.size()) {
            // The item may live inside this array, which growing moves.
            vhValue keep(item);
            if (!growForIndex(i) || i >= m_elements.size())
                return;
            m_elements[i] = keep;
            return;
        }
        m_elements[i] = item;
        return;
    }

    if (m_image) {
        // An image takes whole numbers that fit a pixel word only.
        if (item.isNull() || item.m_valueType >= tagComplex || item.isPointer() || i >= m_imageSize)
            return;
        const double d = item.toDouble();
        const std::uint32_t word = internal::cutToUInt32(d);
        if (double(word) != d)
            return;
        m_imageData[i] = word;
        return;
    }

    // Numeric storage holds numbers only; anything richer turns the whole
    // array into element storage first.
    if ((!item.isNull() && item.m_valueType > tagComplex) || item.isPointer()) {
        vhValue converted = toValueVectorOrMatrix();
        if (converted.isNull() && converted.m_valueType != tagVector)
            return;
        vhValue keep(item);
        *this = converted;
        setValue(keep, i);
        return;
    }
    if (i >= m_numericSize && !growForIndex(i))
        return;
    if (i >= m_numericSize || !m_numericData)
        return;
    if (!item.isNull() && item.m_valueType == tagComplex) {
        if (!m_numericComplex) {
            std::memset(m_numericData + m_numericSize, 0, sizeof(double) * m_numericSize);
            m_numericComplex = true;
        }
        m_numericData[i] = item.m_re;
        m_numericData[m_numericSize + i] = item.m_im;
        return;
    }
    // An undefined item stores a NaN; the imaginary half keeps its value.
    m_numericData[i] = item.toDouble();
}

void vhValue::setValue(const vhValue& v, unsigned int i, unsigned int j)
{
    if (isNull())
        return;
    if (m_pointer) {
        m_pointer->setValue(v, i, j);
        return;
    }
    vhValue& target = arrayGradeMutable();
    if (&target != this) {
        target.setValue(v, i, j);
        return;
    }
    if (!isArrayTag(m_valueType))
        return;
    if (i < m_rows && j < m_columns) {
        setValue(v, i * m_columns + j);
        return;
    }
    // Past the end of a vector's one dimension the vector grows; an image
    // never grows, as its writes out of range are dropped.
    if (m_image)
        return;
    if (i == 0 && m_rows == 1 && j >= m_columns && j != 0xFFFFFFFFu) {
        vhValue keep(v);
        if (allocateMatrix(1, j + 1))
            setValue(keep, j);
    } else if (j == 0 && m_columns == 1 && i >= m_rows && i != 0xFFFFFFFFu) {
        vhValue keep(v);
        if (allocateMatrix(i + 1, 1))
            setValue(keep, i);
    }
}

namespace {
bool asIndex(const vhValue& v, unsigned int& out)
{
    if (!v.isInteger() || v.toInt() < 0)
        return false;
    out = static_cast<unsigned int>(v.toInt());
    return true;
}
} // namespace

void vhValue::setValue(const vhValue& v, const vhValue& i)
{
    if (m_pointer) {
        m_pointer->setValue(v, i);
        return;
    }
    vhValue& target = arrayGradeMutable();
    if (&target != this) {
        target.setValue(v, i);
        return;
    }
    unsigned int index;
    if (asIndex(i, index))
        setValue(v, index);
}

void vhValue::setValue(const vhValue& v, const vhValue& i, const vhValue& j)
{
    if (m_pointer) {
        m_pointer->setValue(v, i, j);
        return;
    }
    vhValue& target = arrayGradeMutable();
    if (&target != this) {
        target.setValue(v, i, j);
        return;
    }
    unsigned int row, column;
    if (asIndex(i, row) && asIndex(j, column))
        setValue(v, row, column);
}

// --- storage conversions ---------------------------------------------------------

// Both conversions build one named result, so that a large array is not
// copied again on return.
vhValue vhValue::toValueVectorOrMatrix() const
{
    vhValue result;
    const vhValue& v = arrayGrade();
    if (&v != this) {
        vhValue converted = v.toValueVectorOrMatrix();
        result.swapRecord(converted);
        return result;
    }
    if (isNull() || !isArrayTag(m_valueType))
        return result;
    if (!m_numeric) {
        vhValue copy(*this);
        result.swapRecord(copy);
        return result;
    }
    if (m_rows * m_columns > kMaximumElementConversion)
        return result;
    result.m_valueType = m_valueType;
    result.m_undefined = false;
    result.m_numberOfDecimalPlaces = m_numberOfDecimalPlaces;
    if (!result.allocateMatrix(m_rows, m_columns))
        return result;
    for (std::uint32_t k = 0; k < m_numericSize && k < result.m_elements.size(); ++k) {
        vhValue e = value(k);
        // A complex element with an exact zero imaginary part is a double.
        if (e.m_valueType == tagComplex && e.m_im == 0.0) {
            vhDouble real(e.m_re);
            real.m_numberOfDecimalPlaces = e.m_numberOfDecimalPlaces;
            e.swapRecord(real);
        }
        result.m_elements[k].swapRecord(e);
    }
    result.m_columnNames = m_columnNames;
    return result;
}

vhValue vhValue::toNumericVectorOrMatrix() const
{
    vhValue result;
    const vhValue& v = arrayGrade();
    if (&v != this) {
        vhValue converted = v.toNumericVectorOrMatrix();
        result.swapRecord(converted);
        return result;
    }
    if (isNull() || !isArrayTag(m_valueType))
        return result;
    // An array already numeric, and the empty vector, which has no shape to
    // fill, are copied as they are.
    if (m_numeric || vectorSize() == 0) {
        vhValue copy(*this);
        result.swapRecord(copy);
        return result;
    }
    // Every element must be a defined real number; a complex element makes
    // the whole conversion fail.
    for (const vhValue& e : m_elements)
        if (!e.isDouble())
            return result;
    result.m_valueType = m_valueType;
    result.m_undefined = false;
    result.m_numeric = true;
    result.m_numberOfDecimalPlaces = m_numberOfDecimalPlaces;
    if (!result.allocateMatrix(m_rows, m_columns)) {
        result.clear();
        return result;
    }
    if (m_image) {
        // Pixels read as the numbers of their words, as value() gives them.
        for (std::uint32_t k = 0; k < result.m_numericSize && k < m_imageSize && m_imageData; ++k)
            result.m_numericData[k] = m_imageData[k];
    } else {
        for (std::uint32_t k = 0; k < result.m_numericSize && k < m_elements.size(); ++k)
            result.m_numericData[k] = m_elements[k].toDouble();
    }
    result.m_columnNames = m_columnNames;
    return result;
}

} // namespace ValueTypes
} // namespace VarnholtMath
