// The value record: construction, deep copying, ownership, plain accessors
// and the predicates that read the tag.

#include "value/value.h"

#include <cmath>
#include <cstdlib>
#include <cstring>
#include <utility>

#include "value/value_internal.h"

namespace VarnholtMath {
namespace ValueTypes {

bool vhValue::m_matrixScalarMultiplicationAndDivisionOn = false;

void vhValue::seMatrixScalarMultiplicationAndDivisionOn() { m_matrixScalarMultiplicationAndDivisionOn = true; }
void vhValue::seMatrixScalarMultiplicationAndDivisionOff() { m_matrixScalarMultiplicationAndDivisionOn = false; }
bool vhValue::isMatrixScalarMultiplicationAndDivisionOn() { return m_matrixScalarMultiplicationAndDivisionOn; }

void vhValue::initFields()
{
    m_valueType = tagNull;
    m_undefined = true;
    m_re = 0.0;
    m_im = 0.0;
    m_numberOfDecimalPlaces = 14;
    m_stringValue = false;
    m_numericData = nullptr;
    m_numericSize = 0;
    m_numeric = false;
    m_numericComplex = false;
    m_exponent = nullptr;
    m_multiplier = nullptr;
    m_sweepNullExponent = true;
    m_imageData = nullptr;
    m_imageSize = 0;
    m_dpi = 96;
    m_image = false;
    m_columns = 0;
    m_rows = 0;
    m_bracket = false;
    m_bracketExponent = 1.0;
    m_numerator = nullptr;
    m_denominator = nullptr;
    m_intervalStart = 0.0;
    m_intervalStartIncuded = false;
    m_intervalEnd = 0.0;
    m_intervalEndIncluded = false;
    m_objectPointer = nullptr;
    m_widgetDocument = nullptr;
    m_functionID = 0;
    m_pointer = nullptr;
    m_temp = false;
    m_mthis = nullptr;
    m_wrapper_type = nullptr;
}

vhValue::vhValue() { initFields(); }

// A fresh record cannot hold its own source, so the copy is written in place,
// without the detour through a second record that assignment needs.
vhValue::vhValue(const vhValue& other)
{
    initFields();
    if (other.m_valueType == tagNull)
        return;
    if (other.m_valueType == tagVector && other.vectorSize() == 0) {
        m_valueType = tagVector;
        return;
    }
    copyContentFrom(other);
}

vhValue::vhValue(vhValue&& other) noexcept
{
    initFields();
    takeContentFrom(other);
}

vhValue& vhValue::operator=(vhValue&& other) noexcept
{
    if (this == &other)
        return *this;
    if (other.m_valueType == tagNull) {
        clear();
        return *this;
    }
    if (other.m_valueType == tagVector && other.vectorSize() == 0) {
        clear();
        m_valueType = tagVector;
        return *this;
    }
    // A value that holds no values cannot hold the source either: its old
    // content can go first, and the source moves straight in.
    if (m_elements.empty() && m_expressionValues.empty() && !m_exponent && !m_multiplier && !m_numerator &&
        !m_denominator && m_rowNames.empty() && m_columnNames.empty() && m_memberValues.empty()) {
        freeContent();
        takeContentFrom(other);
        return *this;
    }
    // Otherwise through a fresh record, so that a source inside this value is
    // emptied before the old content goes.
    vhValue fresh(std::move(other));
    swapRecord(fresh);
    return *this;
}

void vhValue::takeContentFrom(vhValue& o)
{
    if (o.m_valueType == tagNull)
        return;
    if (o.m_valueType == tagVector && o.vectorSize() == 0) {
        m_valueType = tagVector;
        return;
    }
    moveRecordFrom(o);
    // What a copy leaves behind: elements belong to arrays and symbolic
    // functions, storage and shape to arrays.
    const bool array = m_valueType == tagVector || m_valueType == tagMatrix;
    if (!array && m_valueType != tagSymbolicFunction)
        m_elements.clear();
    if (!array) {
        std::free(m_numericData);
        m_numericData = nullptr;
        m_numericSize = 0;
        std::free(m_imageData);
        m_imageData = nullptr;
        m_imageSize = 0;
        m_rows = m_columns = 0;
        m_rowNames.clear();
        m_columnNames.clear();
    } else {
        if (m_rowNames.size() != m_rows)
            m_rowNames.clear();
        if (m_columnNames.size() != m_columns)
            m_columnNames.clear();
    }
}

vhValue::vhValue(std::string objectTypeName, void* objectPointer)
{
    initFields();
    m_valueType = tagObject;
    m_undefined = false;
    m_objectTypeName = std::move(objectTypeName);
    m_objectPointer = objectPointer;
}

// The containers and strings free themselves; only the owned pointers and
// blocks need a hand.
vhValue::~vhValue()
{
    delete m_exponent;
    delete m_multiplier;
    delete m_numerator;
    delete m_denominator;
    // Most records own no block; this spares them two calls into the C library.
    if (m_numericData)
        std::free(m_numericData);
    if (m_imageData)
        std::free(m_imageData);
}

void vhValue::freeContent()
{
    delete m_exponent;
    delete m_multiplier;
    delete m_numerator;
    delete m_denominator;
    m_exponent = m_multiplier = m_numerator = m_denominator = nullptr;
    if (m_numericData)
        std::free(m_numericData);
    m_numericData = nullptr;
    if (m_imageData)
        std::free(m_imageData);
    m_imageData = nullptr;
    m_text.clear();
    m_charFormats.clear();
    m_elements.clear();
    m_rowNames.clear();
    m_columnNames.clear();
    m_expressionValues.clear();
    m_equationType.clear();
    m_objectTypeName.clear();
    m_memberNames.clear();
    m_memberValues.clear();
    m_methodNames.clear();
    m_methodArgumentCounts.clear();
    m_methodFunctions.clear();
    m_pointerMethodNames.clear();
    m_pointerMethodArgumentCounts.clear();
    m_pointerMethodFunctions.clear();
}

void vhValue::clear()
{
    bool sweep = m_sweepNullExponent;
    freeContent();
    initFields();
    m_sweepNullExponent = sweep;
}

void vhValue::replaceOwned(vhValue*& field, const vhValue* source)
{
    vhValue* fresh = source ? new vhValue(*source) : nullptr;
    delete field;
    field = fresh;
}

namespace {
// Containers and strings change hands only when they hold something, so that
// an empty one costs nothing.
template <class T> void takeIfAny(T& to, T& from)
{
    if (!from.empty())
        to.swap(from);
}
template <class T> void copyIfAny(T& to, const T& from)
{
    if (!from.empty())
        to = from;
}
template <class T> void swapIfAny(T& a, T& b)
{
    if (!a.empty() || !b.empty())
        a.swap(b);
}
} // namespace

void vhValue::swapRecord(vhValue& o)
{
    using std::swap;
    swap(m_valueType, o.m_valueType);
    swap(m_undefined, o.m_undefined);
    swap(m_re, o.m_re);
    swap(m_im, o.m_im);
    swapIfAny(m_text, o.m_text);
    swap(m_numberOfDecimalPlaces, o.m_numberOfDecimalPlaces);
    swap(m_stringValue, o.m_stringValue);
    swapIfAny(m_charFormats, o.m_charFormats);
    swapIfAny(m_elements, o.m_elements);
    swap(m_numericData, o.m_numericData);
    swap(m_numericSize, o.m_numericSize);
    swap(m_numeric, o.m_numeric);
    swap(m_numericComplex, o.m_numericComplex);
    swap(m_exponent, o.m_exponent);
    swap(m_multiplier, o.m_multiplier);
    swap(m_sweepNullExponent, o.m_sweepNullExponent);
    swap(m_imageData, o.m_imageData);
    swap(m_imageSize, o.m_imageSize);
    swap(m_dpi, o.m_dpi);
    swap(m_image, o.m_image);
    swap(m_columns, o.m_columns);
    swap(m_rows, o.m_rows);
    swapIfAny(m_rowNames, o.m_rowNames);
    swapIfAny(m_columnNames, o.m_columnNames);
    swapIfAny(m_expressionValues, o.m_expressionValues);
    swap(m_bracket, o.m_bracket);
    swap(m_bracketExponent, o.m_bracketExponent);
    swap(m_numerator, o.m_numerator);
    swap(m_denominator, o.m_denominator);
    swapIfAny(m_equationType, o.m_equationType);
    swap(m_intervalStart, o.m_intervalStart);
    swap(m_intervalStartIncuded, o.m_intervalStartIncuded);
    swap(m_intervalEnd, o.m_intervalEnd);
    swap(m_intervalEndIncluded, o.m_intervalEndIncluded);
    swapIfAny(m_objectTypeName, o.m_objectTypeName);
    swap(m_objectPointer, o.m_objectPointer);
    swap(m_widgetDocument, o.m_widgetDocument);
    swap(m_functionID, o.m_functionID);
    swap(m_pointer, o.m_pointer);
    swap(m_temp, o.m_temp);
    swap(m_mthis, o.m_mthis);
    swap(m_wrapper_type, o.m_wrapper_type);
    swapIfAny(m_memberNames, o.m_memberNames);
    swapIfAny(m_memberValues, o.m_memberValues);
    swapIfAny(m_methodNames, o.m_methodNames);
    swapIfAny(m_methodArgumentCounts, o.m_methodArgumentCounts);
    swapIfAny(m_methodFunctions, o.m_methodFunctions);
    swapIfAny(m_pointerMethodNames, o.m_pointerMethodNames);
    swapIfAny(m_pointerMethodArgumentCounts, o.m_pointerMethodArgumentCounts);
    swapIfAny(m_pointerMethodFunctions, o.m_pointerMethodFunctions);
}


void vhValue::moveRecordFrom(vhValue& o)
{
    m_valueType = o.m_valueType;
    m_undefined = o.m_undefined;
    m_re = o.m_re;
    m_im = o.m_im;
    takeIfAny(m_text, o.m_text);
    m_numberOfDecimalPlaces = o.m_numberOfDecimalPlaces;
    m_stringValue = o.m_stringValue;
    takeIfAny(m_charFormats, o.m_charFormats);
    takeIfAny(m_elements, o.m_elements);
    m_numericData = o.m_numericData;
    m_numericSize = o.m_numericSize;
    m_numeric = o.m_numeric;
    m_numericComplex = o.m_numericComplex;
    m_exponent = o.m_exponent;
    m_multiplier = o.m_multiplier;
    m_sweepNullExponent = o.m_sweepNullExponent;
    m_imageData = o.m_imageData;
    m_imageSize = o.m_imageSize;
    m_dpi = o.m_dpi;
    m_image = o.m_image;
    m_columns = o.m_columns;
    m_rows = o.m_rows;
    takeIfAny(m_rowNames, o.m_rowNames);
    takeIfAny(m_columnNames, o.m_columnNames);
    takeIfAny(m_expressionValues, o.m_expressionValues);
    m_bracket = o.m_bracket;
    m_bracketExponent = o.m_bracketExponent;
    m_numerator = o.m_numerator;
    m_denominator = o.m_denominator;
    takeIfAny(m_equationType, o.m_equationType);
    m_intervalStart = o.m_intervalStart;
    m_intervalStartIncuded = o.m_intervalStartIncuded;
    m_intervalEnd = o.m_intervalEnd;
    m_intervalEndIncluded = o.m_intervalEndIncluded;
    takeIfAny(m_objectTypeName, o.m_objectTypeName);
    m_objectPointer = o.m_objectPointer;
    m_widgetDocument = o.m_widgetDocument;
    m_functionID = o.m_functionID;
    m_pointer = o.m_pointer;
    m_temp = o.m_temp;
    m_mthis = o.m_mthis;
    m_wrapper_type = o.m_wrapper_type;
    takeIfAny(m_memberNames, o.m_memberNames);
    takeIfAny(m_memberValues, o.m_memberValues);
    takeIfAny(m_methodNames, o.m_methodNames);
    takeIfAny(m_methodArgumentCounts, o.m_methodArgumentCounts);
    takeIfAny(m_methodFunctions, o.m_methodFunctions);
    takeIfAny(m_pointerMethodNames, o.m_pointerMethodNames);
    takeIfAny(m_pointerMethodArgumentCounts, o.m_pointerMethodArgumentCounts);
    takeIfAny(m_pointerMethodFunctions, o.m_pointerMethodFunctions);
    // The source is left as a fresh record: its containers are the empty
    // ones of this record, its blocks now belong here.
    o.initFields();
}

// Copies a source of a tag other than 0 (and other than an empty vector) into
// this value, which holds no content yet.
void vhValue::copyContentFrom(const vhValue& o)
{
    m_valueType = o.m_valueType;
    m_re = o.m_re;
    m_im = o.m_im;
    m_undefined = o.m_undefined;
    copyIfAny(m_text, o.m_text);
    m_stringValue = o.m_stringValue;
    copyIfAny(m_charFormats, o.m_charFormats);
    m_sweepNullExponent = o.m_sweepNullExponent;
    m_bracket = o.m_bracket;
    m_bracketExponent = o.m_bracketExponent;
    m_numberOfDecimalPlaces = o.m_numberOfDecimalPlaces;
    m_numeric = o.m_numeric;
    m_numericComplex = o.m_numericComplex;
    m_image = o.m_image;
    m_dpi = o.m_dpi;

    if (m_valueType == tagVector || m_valueType == tagMatrix) {
        // The storage is made fresh; every byte of it is overwritten below,
        // so it needs no clearing first.
        if (reserveStorage(o.m_rows, o.m_columns, false)) {
            if (o.m_rowNames.size() == m_rows)
                m_rowNames = o.m_rowNames;
            if (o.m_columnNames.size() == m_columns)
                m_columnNames = o.m_columnNames;
            if (m_numeric) {
                if (o.m_numericData && o.m_numericSize == m_numericSize)
                    std::memcpy(m_numericData, o.m_numericData, sizeof(double) * 2 * std::size_t(m_numericSize));
                else
                    std::memset(m_numericData, 0, sizeof(double) * 2 * std::size_t(m_numericSize));
            } else if (m_image) {
                if (o.m_imageData && o.m_imageSize == m_imageSize)
                    std::memcpy(m_imageData, o.m_imageData, sizeof(std::uint32_t) * std::size_t(m_imageSize));
                else
                    std::memset(m_imageData, 0xFF, sizeof(std::uint32_t) * std::size_t(m_imageSize));
            } else if (o.m_elements.size() == m_elements.size()) {
                m_elements = o.m_elements;
            }
        }
    } else if (m_valueType == tagSymbolicFunction) {
        copyIfAny(m_elements, o.m_elements);
    }

    if (o.m_exponent)
        replaceOwned(m_exponent, o.m_exponent);
    if (o.m_multiplier)
        replaceOwned(m_multiplier, o.m_multiplier);
    copyIfAny(m_expressionValues, o.m_expressionValues);
    if (o.m_numerator)
        replaceOwned(m_numerator, o.m_numerator);
    if (o.m_denominator)
        replaceOwned(m_denominator, o.m_denominator);
    m_functionID = o.m_functionID;
    copyIfAny(m_equationType, o.m_equationType);
    m_intervalStart = o.m_intervalStart;
    m_intervalStartIncuded = o.m_intervalStartIncuded;
    m_intervalEnd = o.m_intervalEnd;
    m_intervalEndIncluded = o.m_intervalEndIncluded;
    copyIfAny(m_objectTypeName, o.m_objectTypeName);
    m_objectPointer = o.m_objectPointer;
    m_widgetDocument = o.m_widgetDocument;
    m_pointer = o.m_pointer;
    m_temp = o.m_temp;
    m_mthis = o.m_mthis;
    m_wrapper_type = o.m_wrapper_type;
    copyIfAny(m_memberNames, o.m_memberNames);
    copyIfAny(m_memberValues, o.m_memberValues);
    copyIfAny(m_methodNames, o.m_methodNames);
    copyIfAny(m_methodArgumentCounts, o.m_methodArgumentCounts);
    copyIfAny(m_methodFunctions, o.m_methodFunctions);
    copyIfAny(m_pointerMethodNames, o.m_pointerMethodNames);
    copyIfAny(m_pointerMethodArgumentCounts, o.m_pointerMethodArgumentCounts);
    copyIfAny(m_pointerMethodFunctions, o.m_pointerMethodFunctions);
}

void vhValue::setValue(const vhValue& other)
{
    if (this == &other)
        return;
    if (other.m_valueType == tagNull) {
        clear();
        return;
    }
    if (other.m_valueType == tagVector && other.vectorSize() == 0) {
        clear();
        m_valueType = tagVector;
        return;
    }
    // The new content is built beside the old one and swapped in, so that a
    // source that lives inside this value (an element, a term, a factor)
    // stays intact while it is read.
    vhValue fresh;
    fresh.copyContentFrom(other);
    swapRecord(fresh);
}

vhValue& vhValue::operator=(const vhValue& other)
{
    if (this != &other)
        setValue(other);
    return *this;
}

vhValue vhValue::copy() const
{
    if (isNull())
        return vhValue();
    if (m_mthis)
        return m_mthis->copy();
    return *this;
}

vhValue vhValue::value() const { return *this; }

vhValue vhValue::dereference() const
{
    if (!m_pointer)
        return vhValue();
    return *m_pointer;
}

vhValue* vhValue::pointer() const
{
    if (m_valueType == tagInteger && !m_undefined)
        return m_pointer;
    return nullptr;
}

// --- single-item rule ------------------------------------------------------

const vhValue& vhValue::fullGrade() const
{
    const vhValue* v = this;
    while (v->m_valueType == tagExpression && v->m_expressionValues.size() == 1)
        v = &v->m_expressionValues[0];
    return *v;
}

const vhValue& vhValue::arrayGrade() const
{
    const vhValue* v = this;
    while (v->m_valueType == tagExpression && v->m_expressionValues.size() == 1) {
        const vhValue& term = v->m_expressionValues[0];
        if (term.m_valueType != tagVector && term.m_valueType != tagMatrix && term.m_valueType != tagExpression)
            break;
        if (term.m_valueType == tagExpression) {
            // Step only if the innermost term is an array.
            const vhValue& inner = term.arrayGrade();
            if (inner.m_valueType != tagVector && inner.m_valueType != tagMatrix)
                break;
        }
        v = &term;
    }
    return *v;
}

vhValue& vhValue::arrayGradeMutable() { return const_cast<vhValue&>(arrayGrade()); }

// --- plain accessors ---------------------------------------------------------

int vhValue::valueType() const { return m_valueType; }
unsigned int vhValue::numberOfDecimalPlaces() const { return m_numberOfDecimalPlaces; }

void vhValue::setNumberOfDecimalPlaces(unsigned int n)
{
    if (n > 14)
        return;
    m_numberOfDecimalPlaces = n;
    if (m_valueType == tagVector || m_valueType == tagMatrix) {
        for (vhValue& e : m_elements)
            e.setNumberOfDecimalPlaces(n);
    } else if (m_valueType == tagExpression) {
        for (vhValue& t : m_expressionValues)
            t.setNumberOfDecimalPlaces(n);
    } else if (m_valueType == tagFraction) {
        if (m_numerator)
            m_numerator->setNumberOfDecimalPlaces(n);
        if (m_denominator)
            m_denominator->setNumberOfDecimalPlaces(n);
    }
}

vhValue* vhValue::exponent() const
{
    if (m_valueType == tagSymbolicFunction && (m_functionID == 21 || m_functionID == 22)) {
        if (m_elements.size() == 2)
            return const_cast<vhValue*>(&m_elements[1]);
        return nullptr;
    }
    return m_exponent;
}

vhValue* vhValue::multiplier() const { return m_multiplier; }

vhValue* vhValue::firstMultiplier() const
{
    vhValue* m = m_multiplier;
    if (!m)
        return nullptr;
    while (m->m_multiplier && (m->m_valueType == tagSymbolicValue || m->m_valueType == tagSymbolicFunction ||
                               m->m_valueType == tagUnit))
        m = m->m_multiplier;
    return m;
}

double vhValue::exp() const
{
    const vhValue& v = fullGrade();
    if (v.m_valueType >= tagSymbolicValue && v.m_valueType <= tagUnit) {
        const vhValue* e = v.exponent();
        if (e)
            return e->toDouble();
    }
    return 1.0;
}

std::vector<CharFormat> vhValue::charFormat() const { return m_charFormats; }
bool vhValue::bracket() const { return m_bracket; }
void vhValue::setBracket(bool b) { m_bracket = b; }
double vhValue::bracketExponent() const { return m_bracketExponent; }
void vhValue::setBracketExponent(double e) { m_bracketExponent = e; }
vhValue* vhValue::numerator() const { return m_numerator; }
vhValue* vhValue::denominator() const { return m_denominator; }

vhValue vhValue::leftExpression() const
{
    if (m_valueType == tagEquation && m_numerator)
        return *m_numerator;
    return vhValue();
}

vhValue vhValue::rightExpression() const
{
    if (m_valueType == tagEquation && m_denominator)
        return *m_denominator;
    return vhValue();
}

double vhValue::intervalStart() const { return m_intervalStart; }
bool vhValue::intervalStartIncuded() const { return m_intervalStartIncuded; }
double vhValue::intervalEnd() const { return m_intervalEnd; }
bool vhValue::intervalEndIncluded() const { return m_intervalEndIncluded; }
double vhValue::firstSolution() const { return m_intervalStart; }
double vhValue::solutionStep() const { return m_intervalEnd; }
void* vhValue::objectPointer() const { return m_objectPointer; }
void vhValue::setObjectPointer(void* p) { m_objectPointer = p; }
std::string vhValue::objectTypeName() const { return m_objectTypeName; }
void vhValue::setObjectTypeName(const std::string& name) { m_objectTypeName = name; }
void* vhValue::widgetDocument() const { return m_widgetDocument; }
void vhValue::setWidgetDocument(void* document) { m_widgetDocument = document; }
std::string vhValue::equationType() const { return m_equationType; }
int vhValue::functionID() const { return m_functionID; }
std::vector<vhValue> vhValue::functionArguments() const { return m_elements; }

std::vector<vhValue> vhValue::expressionValues() const
{
    if (m_valueType == tagExpression)
        return m_expressionValues;
    return std::vector<vhValue>(1, *this);
}

unsigned int vhValue::expressionValuesSize() const
{
    // Anything that is not an expression counts as one term.
    if (m_valueType != tagExpression)
        return 1;
    return static_cast<unsigned int>(m_expressionValues.size());
}

bool vhValue::temp() const { return m_temp; }
void vhValue::setTemp(bool t) { m_temp = t; }
vhValue* vhValue::mthis() const { return m_mthis; }
void vhValue::set_mthis(vhValue* v) { m_mthis = v; }
vhValue* vhValue::wrapper_type() const { return m_wrapper_type; }
void vhValue::set_wrapper_type(vhValue* v) { m_wrapper_type = v; }

unsigned int vhValue::dpi() const { return m_image ? m_dpi : 0; }

void vhValue::setDpi(unsigned int dpi)
{
    if (m_image && dpi != 0)
        m_dpi = dpi;
}

// --- predicates --------------------------------------------------------------

bool vhValue::isNull() const
{
    switch (m_valueType) {
    case tagNull:
        return true;
    case tagBoolean:
    case tagInteger:
    case tagDouble:
    case tagComplex:
        return m_undefined || std::isnan(m_re) || std::isnan(m_im);
    case tagSymbolicValue:
    case tagSymbolicFunction:
    case tagUnit:
        return m_undefined;
    case tagVector:
        return false;
    case tagMatrix:
        if (m_numeric)
            return m_numericData == nullptr;
        if (m_image)
            return m_imageData == nullptr;
        return m_elements.empty();
    case tagExpression:
        return m_expressionValues.empty();
    case tagFraction:
        return !m_numerator || !m_denominator || m_numerator->isNull() || m_denominator->isNull();
    case tagEquation:
        return !m_numerator || !m_denominator || m_numerator->isNull() || m_denominator->isNull() ||
               m_equationType.empty();
    case tagInterval:
    case tagInfiniteSolution:
        return m_undefined;
    case tagObject:
    case tagChannel:
    case tagWidget:
    case tagFile:
        return m_objectTypeName.empty();
    default:
        return false;
    }
}

bool vhValue::isBoolean() const
{
    const vhValue& v = fullGrade();
    if (v.isNull())
        return false;
    if (v.m_valueType == tagBoolean)
        return true;
    if (v.m_valueType == tagInteger || v.m_valueType == tagDouble)
        return (v.m_re == 0.0 || v.m_re == 1.0) && v.m_im == 0.0;
    return false;
}

bool vhValue::isInteger() const
{
    const vhValue& v = fullGrade();
    if (v.isNull())
        return false;
    if (v.m_valueType == tagBoolean || v.m_valueType == tagInteger)
        return true;
    if (v.m_valueType == tagDouble)
        return double(internal::cutToInt32(v.m_re)) == v.m_re;
    return false;
}

bool vhValue::isUnsignedInteger() const
{
    const vhValue& v = fullGrade();
    if (v.isNull() || v.m_valueType < tagBoolean || v.m_valueType > tagDouble)
        return false;
    return v.m_re >= 0.0 && v.m_re <= 4294967295.0 && std::floor(v.m_re) == v.m_re;
}

bool vhValue::isDouble() const
{
    const vhValue& v = fullGrade();
    return !v.isNull() && v.m_valueType >= tagBoolean && v.m_valueType <= tagDouble;
}

bool vhValue::isComplex() const
{
    const vhValue& v = fullGrade();
    return !v.isNull() && v.m_valueType == tagComplex;
}

bool vhValue::isString() const
{
    const vhValue& v = fullGrade();
    return !v.isNull() && v.m_valueType == tagSymbolicValue && v.m_stringValue;
}

bool vhValue::isSymbolicValue() const
{
    return !isNull() && m_valueType >= tagSymbolicValue && m_valueType <= tagUnit;
}

bool vhValue::isSymbol() const
{
    if (isNull() || m_valueType != tagSymbolicValue || m_stringValue)
        return false;
    if (!m_multiplier || !internal::isNumberOne(*m_multiplier))
        return false;
    return m_exponent && m_exponent->isInteger() && m_exponent->toInt() == 1;
}

bool vhValue::isVector() const
{
    const vhValue& v = fullGrade();
    if (v.m_valueType == tagVector)
        return true;
    return v.m_valueType == tagMatrix && !v.isNull() && (v.m_rows == 1 || v.m_columns == 1);
}

bool vhValue::isMatrix() const
{
    const vhValue& v = fullGrade();
    return v.m_valueType == tagMatrix && !v.isNull();
}

bool vhValue::isTable() const
{
    const vhValue& v = fullGrade();
    return !v.isNull() && !v.m_columnNames.empty();
}

bool vhValue::isInterval() const
{
    const vhValue& v = fullGrade();
    return !v.isNull() && v.m_valueType == tagInterval;
}

bool vhValue::isNumericVectorOrMatrix() const
{
    const vhValue& v = fullGrade();
    return (v.m_valueType == tagVector || v.m_valueType == tagMatrix) && v.m_numeric && v.m_numericData &&
           v.m_numericSize != 0;
}

bool vhValue::isNumericComplexVectorOrMatrix() const
{
    // Through a one-term expression this answers whether the term is numeric
    // at all, complex or not; callers rely on that.
    if (m_valueType == tagExpression && m_expressionValues.size() == 1)
        return m_expressionValues[0].isNumericVectorOrMatrix();
    return (m_valueType == tagVector || m_valueType == tagMatrix) && m_numericComplex && m_numericData &&
           m_numericSize != 0;
}

bool vhValue::isImage() const
{
    const vhValue& v = fullGrade();
    return (v.m_valueType == tagVector || v.m_valueType == tagMatrix) && v.m_image && v.m_imageData &&
           v.m_imageSize != 0;
}

bool vhValue::isRowVector() const
{
    const vhValue& v = arrayGrade();
    return (v.m_valueType == tagVector || v.m_valueType == tagMatrix) && v.m_rows == 1;
}

bool vhValue::isSymbolic() const
{
    if (isNull())
        return false;
    switch (m_valueType) {
    case tagSymbolicValue:
        // A text string is not symbolic.
        return !isNull() && !m_stringValue;
    case tagSymbolicFunction:
    case tagUnit:
        return !isNull();
    case tagVector:
    case tagMatrix:
        if (m_numeric || m_image)
            return false;
        for (const vhValue& e : m_elements)
            if (e.isSymbolic())
                return true;
        return false;
    case tagExpression:
        for (const vhValue& t : m_expressionValues)
            if (t.isSymbolic())
                return true;
        return false;
    case tagFraction:
        return (m_numerator && m_numerator->isSymbolic()) || (m_denominator && m_denominator->isSymbolic());
    default:
        return false;
    }
}

bool vhValue::isPointer() const { return m_valueType == tagInteger && !m_undefined && m_pointer != nullptr; }

std::string vhValue::typeName() const
{
    if (isNull())
        return m_valueType == tagExpression ? "expression" : "undefined";
    switch (m_valueType) {
    case tagBoolean:
        return "boolean";
    case tagInteger:
        return m_pointer ? "pointer" : "integer";
    case tagDouble:
        return isInteger() ? "integer" : "double";
    case tagComplex:
        return "complex";
    case tagSymbolicValue:
        return m_stringValue ? "string" : "symbolic value";
    case tagSymbolicFunction:
        return "symbolic function";
    case tagUnit:
        return "unit";
    case tagVector:
        return isImage() ? "image" : "vector";
    case tagMatrix:
        if (isImage())
            return "image";
        if (m_rows == 1 || m_columns == 1)
            return "vector";
        return "matrix";
    case tagExpression:
        return "expression";
    case tagFraction:
        return "fraction";
    case tagEquation:
        return "equation";
    case tagInterval:
        return "interval";
    case tagObject:
        return m_objectTypeName;
    case tagChannel:
        return m_objectTypeName + " channel";
    case tagWidget:
        return m_objectTypeName.empty() ? "undefined widget" : m_objectTypeName;
    case tagFile:
        return m_objectTypeName + " file";
    default:
        return "undefined";
    }
}

} // namespace ValueTypes
} // namespace VarnholtMath
