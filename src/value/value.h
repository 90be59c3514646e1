#pragma once

// The universal value of the engine. Every argument and result of every
// function, every element of a vector, every term of an expression and every
// exponent of a symbol is a vhValue.
//
// One fat record: all kinds of value share the fields declared in vhValue, and
// the subclasses add no data. The tag (valueType) decides the behaviour, not
// the dynamic class: assignment copies the tag and the fields but never the
// class, so a plain vhValue can hold a matrix and a vhDouble can hold a string.
// Failures never throw: they give the undefined value, vhValue().

#include <complex>
#include <cstdint>
#include <iosfwd>
#include <string>
#include <vector>

#include "value/export.h"

namespace VarnholtMath {
namespace ValueTypes {

// Format of one character of a symbol or string (bold, italic, subscript...),
// kept as an opaque 32-bit word for the host.
typedef std::uint32_t CharFormat;

class vhMath;

// The tags, in promotion order: a binary operator that meets a right operand
// with a larger tag hands the operation over to it.
enum ValueTypeTag {
    tagNull = 0,
    tagBoolean = 1,
    tagInteger = 2,
    tagDouble = 3,
    tagComplex = 4,
    tagSymbolicValue = 5,
    tagSymbolicFunction = 6,
    tagUnit = 7,
    tagVector = 8,
    tagMatrix = 9,
    tagExpression = 10,
    tagFraction = 11,
    tagEquation = 12,
    tagInterval = 13,
    tagInfiniteSolution = 14,
    tagObject = 15,
    tagChannel = 16,
    tagWidget = 17,
    tagFile = 18
};

class VH_EXPORT vhValue {
public:
    vhValue();
    vhValue(const vhValue& other);
    // Moving gives the same value as copying, without copying the blocks;
    // the source is left holding some valid value.
    vhValue(vhValue&& other) noexcept;
    vhValue& operator=(vhValue&& other) noexcept;
    vhValue(std::string objectTypeName, void* objectPointer);

    // --- virtual operations, in their fixed slot order -------------------
    virtual ~vhValue();
    virtual vhValue copy() const;
    virtual vhValue set(const std::string& name, const vhValue& value, bool create);
    virtual vhValue get(const std::string& name) const;
    virtual vhValue get_address(const std::string& name) const;
    virtual vhValue* get_vector_index_address(unsigned int i) const;
    virtual std::vector<std::string> members() const;
    virtual vhValue call(unsigned int n, ...);
    virtual std::uint64_t call_ptr(unsigned int n, ...);
    virtual bool isNull() const;
    virtual void setValue(const vhValue& v, unsigned int i);
    virtual void setValue(const vhValue& v, unsigned int i, unsigned int j);
    virtual std::vector<vhValue> factorize() const;
    virtual std::vector<vhValue> simplify() const;
    virtual unsigned int matrixRows() const;
    virtual unsigned int matrixColumns() const;
    virtual unsigned int vectorSize() const;
    virtual unsigned int size() const;
    virtual void print(bool unused, std::ostream& stream);
    virtual vhValue& operator=(const vhValue& other);
    virtual bool operator==(std::complex<double> c) const;
    virtual vhValue operator+(const vhValue& other) const;
    virtual vhValue operator-(const vhValue& other) const;
    virtual vhValue operator*(const vhValue& other) const;
    virtual vhValue operator/(const vhValue& other) const;
    virtual vhValue operator%(const vhValue& other) const;
    virtual vhValue division(const vhValue& other, vhValue& remainder) const;
    virtual vhValue multiply(const vhValue& other) const;
    virtual vhValue divide(const vhValue& other) const;
    virtual vhValue operator<<(const vhValue& other) const;
    virtual vhValue operator>>(const vhValue& other) const;
    virtual vhValue operator&(const vhValue& other) const;
    virtual vhValue operator^(const vhValue& other) const;
    virtual vhValue operator|(const vhValue& other) const;
    virtual vhValue& operator+=(const vhValue& other);
    virtual vhValue& operator-=(const vhValue& other);
    virtual vhValue& operator*=(const vhValue& other);
    virtual vhValue& operator/=(const vhValue& other);
    virtual vhValue& operator%=(const vhValue& other);
    virtual vhValue& operator<<=(const vhValue& other);
    virtual vhValue& operator>>=(const vhValue& other);
    virtual vhValue& operator&=(const vhValue& other);
    virtual vhValue& operator^=(const vhValue& other);
    virtual vhValue& operator|=(const vhValue& other);
    virtual bool operator==(const vhValue& other) const;
    virtual bool operator!=(const vhValue& other) const;
    virtual bool operator<(const vhValue& other) const;
    virtual bool operator>(const vhValue& other) const;
    virtual bool operator<=(const vhValue& other) const;
    virtual bool operator>=(const vhValue& other) const;
    virtual bool operator&&(const vhValue& other) const;
    virtual bool operator||(const vhValue& other) const;
    virtual vhValue EqualTo(const vhValue& other) const;
    virtual vhValue NotEqualTo(const vhValue& other) const;
    virtual vhValue GreaterThen(const vhValue& other) const;
    virtual vhValue LessThen(const vhValue& other) const;
    virtual vhValue GreaterThenOrEqalTo(const vhValue& other) const;
    virtual vhValue LessThenOrEqalTo(const vhValue& other) const;

    // --- operator families on plain C++ values ---------------------------
    // Each builds a temporary of the matching class and calls the virtual
    // form; a std::string becomes a symbol, not a text string.
    vhValue& operator=(int v);
    vhValue& operator=(double v);
    vhValue& operator=(std::complex<double> v);
    vhValue& operator=(bool v);
    vhValue& operator=(const std::string& v);
    vhValue operator+(int v) const;
    vhValue operator+(double v) const;
    vhValue operator+(std::complex<double> v) const;
    vhValue operator+(bool v) const;
    vhValue operator+(const std::string& v) const;
    vhValue operator-(int v) const;
    vhValue operator-(double v) const;
    vhValue operator-(std::complex<double> v) const;
    vhValue operator-(bool v) const;
    vhValue operator-(const std::string& v) const;
    vhValue operator*(int v) const;
    vhValue operator*(double v) const;
    vhValue operator*(std::complex<double> v) const;
    vhValue operator*(bool v) const;
    vhValue operator*(const std::string& v) const;
    vhValue operator/(int v) const;
    vhValue operator/(double v) const;
    vhValue operator/(std::complex<double> v) const;
    vhValue operator/(bool v) const;
    vhValue operator/(const std::string& v) const;
    vhValue& operator+=(int v);
    vhValue& operator+=(double v);
    vhValue& operator+=(std::complex<double> v);
    vhValue& operator+=(bool v);
    vhValue& operator+=(const std::string& v);
    vhValue& operator-=(int v);
    vhValue& operator-=(double v);
    vhValue& operator-=(std::complex<double> v);
    vhValue& operator-=(bool v);
    vhValue& operator-=(const std::string& v);
    vhValue& operator*=(int v);
    vhValue& operator*=(double v);
    vhValue& operator*=(std::complex<double> v);
    vhValue& operator*=(bool v);
    vhValue& operator*=(const std::string& v);
    vhValue& operator/=(int v);
    vhValue& operator/=(double v);
    vhValue& operator/=(std::complex<double> v);
    vhValue& operator/=(bool v);
    vhValue& operator/=(const std::string& v);
    bool operator==(int v) const;
    bool operator==(double v) const;
    bool operator==(bool v) const;
    bool operator==(const std::string& v) const;
    bool operator!=(int v) const;
    bool operator!=(double v) const;
    bool operator!=(std::complex<double> v) const;
    bool operator!=(bool v) const;
    bool operator!=(const std::string& v) const;

    // --- copying ---------------------------------------------------------
    // The one place where fields are copied; operator= and the copy
    // constructor run it.
    void setValue(const vhValue& other);
    // Index forms with index values: the indices must be whole and not
    // negative, else nothing happens.
    void setValue(const vhValue& v, const vhValue& i);
    void setValue(const vhValue& v, const vhValue& i, const vhValue& j);
    // Destroys all content and brings every field back to its initial value;
    // the dynamic class stays.
    void clear();
    vhValue value() const;
    vhValue dereference() const;
    vhValue* pointer() const;

    // --- plain accessors -------------------------------------------------
    int valueType() const;
    unsigned int numberOfDecimalPlaces() const;
    void setNumberOfDecimalPlaces(unsigned int n);
    vhValue* exponent() const;
    vhValue* multiplier() const;
    vhValue* firstMultiplier() const;
    double exp() const;
    std::vector<CharFormat> charFormat() const;
    bool bracket() const;
    void setBracket(bool b);
    double bracketExponent() const;
    void setBracketExponent(double e);
    vhValue* numerator() const;
    vhValue* denominator() const;
    vhValue leftExpression() const;
    vhValue rightExpression() const;
    double intervalStart() const;
    bool intervalStartIncuded() const;
    double intervalEnd() const;
    bool intervalEndIncluded() const;
    double firstSolution() const;
    double solutionStep() const;
    void* objectPointer() const;
    void setObjectPointer(void* p);
    std::string objectTypeName() const;
    void setObjectTypeName(const std::string& name);
    void* widgetDocument() const;
    void setWidgetDocument(void* document);
    std::string equationType() const;
    int functionID() const;
    std::vector<vhValue> functionArguments() const;
    std::vector<vhValue> expressionValues() const;
    unsigned int expressionValuesSize() const;
    bool temp() const;
    void setTemp(bool t);
    vhValue* mthis() const;
    void set_mthis(vhValue* v);
    vhValue* wrapper_type() const;
    void set_wrapper_type(vhValue* v);
    unsigned int dpi() const;
    void setDpi(unsigned int dpi);

    // --- predicates ------------------------------------------------------
    bool isBoolean() const;
    bool isUnsignedInteger() const;
    bool isInteger() const;
    bool isDouble() const;
    bool isComplex() const;
    bool isString() const;
    bool isSymbolicValue() const;
    bool isSymbol() const;
    bool isVector() const;
    bool isMatrix() const;
    bool isTable() const;
    bool isInterval() const;
    bool isNumericVectorOrMatrix() const;
    bool isNumericComplexVectorOrMatrix() const;
    bool isImage() const;
    bool isRowVector() const;
    bool isSymbolic() const;
    bool isPointer() const;
    bool isZero() const;
    bool isNegative() const;
    bool isPositive() const;
    bool isInfinity() const;
    bool isNan() const;

    // --- conversions and setters of scalars ------------------------------
    int toInt() const;
    unsigned int toUnsignedInt() const;
    double toDouble() const;
    bool toBool() const;
    std::complex<double> toComplex() const;
    double complexRe() const;
    double complexIm() const;
    void setBool(bool v);
    void setInt(int v);
    void setDouble(double v);
    void setComplexRe(double v);
    void setComplexIm(double v);
    void setComplex(double re, double im);
    void setComplex(std::complex<double> c);
    void setString(const std::string& s);
    // Raises this value to the tag of other when other's tag is larger.
    vhValue increaseToType(const vhValue& other) const;

    // --- arrays ----------------------------------------------------------
    static void seMatrixScalarMultiplicationAndDivisionOn();
    static void seMatrixScalarMultiplicationAndDivisionOff();
    static bool isMatrixScalarMultiplicationAndDivisionOn();

    bool allocateMatrix(unsigned int rows, unsigned int columns);
    double* numericValues() const;
    double* numericImValues() const;
    unsigned int* imageValues() const;
    vhValue value(unsigned int i) const;
    vhValue value(unsigned int i, unsigned int j) const;
    vhValue* operator[](int i);
    double valueToDouble(unsigned int i) const;
    double valueToDouble(unsigned int i, unsigned int j) const;
    vhValue getMatrixRowAsVector(unsigned int i) const;
    vhValue getMatrixColumnAsVector(unsigned int j) const;
    vhValue toValueVectorOrMatrix() const;
    vhValue toNumericVectorOrMatrix() const;
    void toRowVector();
    void toColumnVector();
    bool setRowNames(const std::vector<vhValue>& names);
    bool setColumnNames(const std::vector<vhValue>& names);
    void clearRowNames();
    void clearColumnNames();
    std::vector<vhValue> rowNames() const;
    std::vector<vhValue> columnNames() const;
    unsigned int rowNamesSize() const;
    unsigned int columnNamesSize() const;
    bool rowNamesEqual(const vhValue& other) const;
    bool columnNamesEqual(const vhValue& other) const;
    bool contains(const vhValue& v) const;
    vhValue merge(const vhValue& other) const;
    bool isDataAlignedWidh(const vhValue& other) const;
    vhValue inverseMatrix() const;

    // --- text forms ------------------------------------------------------
    std::string toString() const;
    std::string toStringAll() const;
    std::string toStringEx() const;
    std::string typeName() const;

    // --- host objects ----------------------------------------------------
    // The function's address is the first variable argument.
    void add_method(const std::string& name, unsigned int argumentCount, ...);
    void add_method_ptr(const std::string& name, unsigned int argumentCount, ...);

    // --- symbolic atoms --------------------------------------------------
    // Factors of a term, coefficient first and outermost atom last; returns
    // the new length of the list.
    unsigned int multipliers(std::vector<vhValue>& list) const;
    unsigned int symbolicMultipliers(std::vector<vhValue>& list) const;
    // Multiplies the exponent of an atom by -1 along its chain; a number
    // becomes its reciprocal, arrays and expressions invert element by
    // element, a fraction inverts both parts.
    void invertExponent();
    // As multipliers, but a power of a product spreads over its factors:
    // (x*y)^n lists x^n and y^n.
    unsigned int powmultipliers(std::vector<vhValue>& list) const;
    // Sets the value the multiplier points to to 1.0, cutting the chain.
    void resetMultiplier();
    // Both symbols or strings with equal character formats.
    bool charFormatEqual(const vhValue& other) const;
    // Equal but for the coefficient: the test of whether two terms merge.
    bool stringEqual(const vhValue& other) const;
    // The exponent back to 1; a power becomes its base.
    void resetExponent();
    // Raises to e; a symbolic e makes a held pow.
    void setExponent(const vhValue& e);
    // Same symbol, unit or function call, whatever coefficient and exponent.
    bool symbolicEqual(const vhValue& other) const;
    // Writes the exponent of the symbol in this term's factors; false (and 0)
    // when the term does not hold it.
    bool exponentForSymbol(const vhValue& symbol, double& exponent, bool includeUnits) const;
    // Whether products collapse an atom whose exponent comes out as zero.
    void sweepNullExponents(bool on);
    // Held functions: same function and arguments, or same arguments only.
    bool functionEqual(const vhValue& other) const;
    bool functionArgumentsEqual(const vhValue& other) const;
    bool isDerivativeFunction() const;
    bool isIntegrativeFunction() const;
    // Some argument holds more than 10 elements.
    bool functionOversized() const;
    // Orders the terms of a sum by falling powers of the symbol, terms
    // without it last.
    void arrangeExponents(const vhValue& symbol);
    void arrangeExponentsForFirstSymbol(bool onlyOneSymbol);
    vhValue arrangeExponentsConst(const vhValue& symbol) const;
    vhValue arrangeExponentsForFirstSymbolConst(bool onlyOneSymbol) const;

    // --- fractions and coefficients ----------------------------------------
    // A sum joined into one fraction over the product of the denominators.
    // Nothing reduces meanwhile, and the fractions switch is left on.
    void expressionToFraction();
    vhValue expressionToFractionConst() const;
    // Fractions, also inside products, sums and arrays, become numerator
    // times the denominator to the power -1.
    void fractionToExpression();
    vhValue fractionToExpressionConst() const;
    // The sum of term / symbol over the terms that hold the plain symbol: the
    // coefficient of a polynomial in it. Undefined for anything but a plain
    // symbol.
    vhValue coefficientForSymbol(const vhValue& symbol) const;
    // The same for a first-degree dependence only: undefined when a term
    // still holds the symbol after the division, the empty expression for an
    // argument that is no plain symbol.
    vhValue coefficientFirstDegreeForSymbol(const vhValue& symbol) const;

    // --- symbols and substitution ---------------------------------------------
    // The names of the symbols, once each in order of first appearance: inner
    // factors of a product first, the arguments of held functions, elements,
    // terms and both sides of fractions and equations. A string counts by its
    // text; units only with includeUnits. The first form appends names not
    // yet listed and returns the list's size; the second clears the list and
    // fills it with plain symbols; the third gives a column vector of them,
    // undefined when there are none.
    unsigned int symbols(std::vector<std::string>& names, bool includeUnits) const;
    unsigned int symbols(std::vector<vhValue>& list, bool includeUnits) const;
    vhValue symbols(bool includeUnits) const;
    bool containSymbol(const std::string& name) const;
    // The argument must be a plain symbol.
    bool containSymbol(const vhValue& symbol) const;
    // A circular function or its inverse occurs anywhere inside; hyperbolic
    // functions don't count.
    bool containTrigonometry() const;
    // Replaces the named symbols by the values, in place; held functions whose
    // arguments become numbers are evaluated through math. Without a math
    // object the process-wide switches hold and held functions stay held with
    // their new arguments. Strings are never replaced. Lists of unequal
    // length change nothing.
    void replaceSymbolicValues(vhMath* math, const std::vector<std::string>& names,
                               const std::vector<vhValue>& values, bool includeUnits);
    vhValue replaceSymbolicValuesConst(vhMath* math, const std::vector<std::string>& names,
                                       const std::vector<vhValue>& values, bool includeUnits) const;
    // Two vectors of equal size: the names are the texts of the first's
    // elements.
    void replaceSymbolicValues(vhMath* math, const vhValue& symbols, const vhValue& values, bool includeUnits);
    vhValue replaceSymbolicValuesConst(vhMath* math, const vhValue& symbols, const vhValue& values,
                                       bool includeUnits) const;
    // An empty name or an undefined value does nothing.
    void replaceSymbolicValue(vhMath* math, const std::string& name, const vhValue& value, bool includeUnits);
    vhValue replaceSymbolicValueConst(vhMath* math, const std::string& name, const vhValue& value,
                                      bool includeUnits) const;
    // By the name of a plain symbol.
    void replaceSymbolicValue(vhMath* math, const vhValue& symbol, const vhValue& value, bool includeUnits);
    vhValue replaceSymbolicValueConst(vhMath* math, const vhValue& symbol, const vhValue& value,
                                      bool includeUnits) const;
    void replaceSymbolicValue(vhMath* math, const std::string& name, double value, bool includeUnits);
    vhValue replaceSymbolicValueConst(vhMath* math, const std::string& name, double value, bool includeUnits) const;
    // Replaces held functions equal to the patterns (plain calls, exponent
    // and coefficient 1) by the values; a power of a pattern becomes the
    // same power of its value.
    void replaceSymbolicFunctions(vhMath* math, const vhValue& functions, const vhValue& values);
    vhValue replaceSymbolicFunctionsConst(vhMath* math, const vhValue& functions, const vhValue& values) const;
    void replaceSymbolicFunction(vhMath* math, const vhValue& function, const vhValue& value);
    vhValue replaceSymbolicFunctionConst(vhMath* math, const vhValue& function, const vhValue& value) const;
    // Moves the terms that hold each symbol (a plain symbol or a vector of
    // them) out of this value: each is added negated to both sides, so the
    // difference of the sides stays. The second form moves the terms that
    // don't hold it.
    bool moveThisSymbolsTo(const vhValue& symbols, vhValue& other);
    bool moveOtherThenThisSymbolsTo(const vhValue& symbols, vhValue& other);

protected:
    // Frees every owned block and resets all fields; keeps the sweep flag.
    void freeContent();
    void initFields();
    void swapRecord(vhValue& other);
    // Takes over every field of other into this fresh record and leaves
    // other fresh.
    void moveRecordFrom(vhValue& other);
    void copyContentFrom(const vhValue& other);
    // Takes over the content of other into this fresh record, keeping only
    // what a copy would keep.
    void takeContentFrom(vhValue& other);
    // Storage for the current flags, as allocateMatrix, but fresh: old content
    // is dropped, and with clearContent false the numbers are left unset for
    // a caller that overwrites them all.
    bool reserveStorage(unsigned int rows, unsigned int columns, bool clearContent);
    // The growth of a vector on a write past its end.
    bool growForIndex(unsigned int i);
    // Replaces an owned pointer field by a deep copy of source (or null).
    static void replaceOwned(vhValue*& field, const vhValue* source);
    // The walk behind symbols() and containTrigonometry(): visit sees every
    // atom factor (inner factors of a chain first), the atoms inside held
    // functions' arguments, array elements, terms and both sides of fractions
    // and equations. True from visit ends the walk, which then returns true.
    static bool walkAtoms(const vhValue& v, bool (*visit)(const vhValue& atom, void* context), void* context,
                          int depth);
    // The structure walk of substitution: array elements, the terms of a sum
    // (added anew), both parts of a fraction (reduced anew) and the factors
    // of a product. The outermost atom of each product goes to atomEntry,
    // after the arguments of a held function have been walked; it answers
    // whether it changed the atom. A product in which nothing changed stays
    // exactly as it was. True when anything changed.
    static bool substituteIn(vhValue& v, bool (*atomEntry)(vhValue& atom, void* context), void* context, int depth);
    // The single-item rule: the term of a one-term expression, repeatedly.
    const vhValue& fullGrade() const;
    // The same, but only when the term is a vector or a matrix.
    const vhValue& arrayGrade() const;
    vhValue& arrayGradeMutable();

    // Arithmetic shared by vhVector and vhMatrix (array_arithmetic.cpp); the
    // operators of the two classes check the operands and call these.
    // The rules of + - * / ('+', '-', '*', '/') for a vector and a matrix on
    // the left (vector.cpp, matrix.cpp).
    vhValue vectorArithmetic(const vhValue& right, char op) const;
    vhValue matrixArithmetic(const vhValue& right, char op) const;
    static vhValue numericArray(int tag, unsigned int rows, unsigned int columns, bool complex, bool clearContent);
    vhValue arrayOfOwnShape(const vhValue& scalar) const;
    vhValue addSameShape(const vhValue& right, bool subtract) const;
    vhValue scaleByScalar(const vhValue& right, bool divide) const;
    vhValue matrixProduct(const vhValue& right) const;
    vhValue dotProduct(const vhValue& right) const;
    vhValue outerProduct(const vhValue& right) const;
    bool sameShapeEqual(const vhValue& right) const;
    vhValue copyAsMatrix() const;

    static bool m_matrixScalarMultiplicationAndDivisionOn;

    // --- the record ------------------------------------------------------
    std::int32_t m_valueType;
    bool m_undefined;
    double m_re;
    double m_im;
    std::string m_text;
    std::uint32_t m_numberOfDecimalPlaces;
    bool m_stringValue;
    std::vector<CharFormat> m_charFormats;
    std::vector<vhValue> m_elements;
    double* m_numericData;
    std::uint32_t m_numericSize;
    bool m_numeric;
    bool m_numericComplex;
    vhValue* m_exponent;
    vhValue* m_multiplier;
    bool m_sweepNullExponent;
    std::uint32_t* m_imageData;
    std::uint32_t m_imageSize;
    std::uint32_t m_dpi;
    bool m_image;
    std::uint32_t m_columns;
    std::uint32_t m_rows;
    std::vector<vhValue> m_rowNames;
    std::vector<vhValue> m_columnNames;
    std::vector<vhValue> m_expressionValues;
    bool m_bracket;
    double m_bracketExponent;
    vhValue* m_numerator;
    vhValue* m_denominator;
    std::string m_equationType;
    double m_intervalStart;
    bool m_intervalStartIncuded;
    double m_intervalEnd;
    bool m_intervalEndIncluded;
    std::string m_objectTypeName;
    void* m_objectPointer;
    void* m_widgetDocument;
    std::int32_t m_functionID;
    vhValue* m_pointer;
    bool m_temp;
    vhValue* m_mthis;
    vhValue* m_wrapper_type;
    std::vector<std::string> m_memberNames;
    std::vector<vhValue> m_memberValues;
    std::vector<std::string> m_methodNames;
    std::vector<std::uint32_t> m_methodArgumentCounts;
    std::vector<void*> m_methodFunctions;
    std::vector<std::string> m_pointerMethodNames;
    std::vector<std::uint32_t> m_pointerMethodArgumentCounts;
    std::vector<void*> m_pointerMethodFunctions;

    friend class vhBoolean;
    friend class vhInteger;
    friend class vhDouble;
    friend class vhComplex;
    friend class vhSymbolicValue;
    friend class vhSymbolicFunction;
    friend class vhUnit;
    friend class vhVector;
    friend class vhMatrix;
    friend class vhExpression;
    friend class vhFraction;
    friend class vhEquation;
    friend class vhInterval;
    friend class vhInfiniteSolution;
    friend class vhObject;
    friend class vhChannel;
    friend class vhWidget;
    friend class vhFile;
};

// The arithmetic classes override the four operators, their compound forms
// and the equality pair. Each begins by checking that the object's own tag
// is its class's tag, and otherwise hands the call to vhValue's dispatcher.
#define VH_VALUE_ARITHMETIC_OVERRIDES                                          \
    using vhValue::operator=;                                                  \
    using vhValue::operator+;                                                  \
    using vhValue::operator-;                                                  \
    using vhValue::operator*;                                                  \
    using vhValue::operator/;                                                  \
    using vhValue::operator+=;                                                 \
    using vhValue::operator-=;                                                 \
    using vhValue::operator*=;                                                 \
    using vhValue::operator/=;                                                 \
    using vhValue::operator==;                                                 \
    using vhValue::operator!=;                                                 \
    vhValue operator+(const vhValue& other) const override;                    \
    vhValue operator-(const vhValue& other) const override;                    \
    vhValue operator*(const vhValue& other) const override;                    \
    vhValue operator/(const vhValue& other) const override;                    \
    vhValue& operator+=(const vhValue& other) override;                        \
    vhValue& operator-=(const vhValue& other) override;                        \
    vhValue& operator*=(const vhValue& other) override;                        \
    vhValue& operator/=(const vhValue& other) override;                        \
    bool operator==(const vhValue& other) const override;                      \
    bool operator!=(const vhValue& other) const override;

#define VH_VALUE_EQUALITY_OVERRIDES                                            \
    using vhValue::operator=;                                                  \
    using vhValue::operator==;                                                 \
    using vhValue::operator!=;                                                 \
    bool operator==(const vhValue& other) const override;                      \
    bool operator!=(const vhValue& other) const override;

class VH_EXPORT vhBoolean : public vhValue {
public:
    vhBoolean();
    explicit vhBoolean(bool v);
    vhBoolean(const vhValue& v);
    VH_VALUE_ARITHMETIC_OVERRIDES
};

class VH_EXPORT vhInteger : public vhValue {
public:
    vhInteger();
    explicit vhInteger(int v);
    // A non-null pointer makes a pointer value; a null one the undefined value.
    explicit vhInteger(vhValue* pointer);
    vhInteger(const vhValue& v);
    VH_VALUE_ARITHMETIC_OVERRIDES
};

class VH_EXPORT vhDouble : public vhValue {
public:
    vhDouble();
    explicit vhDouble(double v);
    vhDouble(const vhValue& v);
    VH_VALUE_ARITHMETIC_OVERRIDES
};

class VH_EXPORT vhComplex : public vhValue {
public:
    vhComplex();
    vhComplex(double re, double im);
    explicit vhComplex(std::complex<double> c);
    vhComplex(const vhValue& v);
    VH_VALUE_ARITHMETIC_OVERRIDES
    vhComplex conjugate() const;
    // The modulus as a complex value with zero imaginary part.
    vhComplex modulo() const;
};

class VH_EXPORT vhSymbolicValue : public vhValue {
public:
    vhSymbolicValue();
    vhSymbolicValue(const std::string& text, bool isString, const std::vector<CharFormat>& formats);
    vhSymbolicValue(const vhValue& v);
    VH_VALUE_ARITHMETIC_OVERRIDES
};

class VH_EXPORT vhSymbolicFunction : public vhValue {
public:
    vhSymbolicFunction();
    // Throws std::exception, after a message on standard output, when the
    // number of arguments differs from the catalogue's count for the id.
    vhSymbolicFunction(int functionID, const std::vector<vhValue>& arguments);
    vhSymbolicFunction(const vhValue& v);
    VH_VALUE_ARITHMETIC_OVERRIDES
    // Evaluates the call through callFunction with the stored arguments.
    vhValue calculateFromSymbolic(vhMath* math) const;
};

class VH_EXPORT vhUnit : public vhValue {
public:
    vhUnit();
    vhUnit(const vhValue& v);
    VH_VALUE_ARITHMETIC_OVERRIDES
};

class VH_EXPORT vhVector : public vhValue {
public:
    vhVector();
    vhVector(unsigned int n, bool row, bool numeric, bool complex);
    vhVector(const vhValue& fill, unsigned int n, bool row);
    vhVector(const std::vector<vhValue>& elements, bool row);
    vhVector(double* data, unsigned int n, bool row);
    vhVector(const vhValue& v);
    VH_VALUE_ARITHMETIC_OVERRIDES
    vhValue multiply(const vhValue& other) const override;
    vhValue divide(const vhValue& other) const override;
    void resize(unsigned int n, bool row);
    void setNumericValues(double* data, unsigned int n);
    void setNumericImValues(double* data, unsigned int n);
    vhValue transpose() const;
    vhValue conjugateTranspose() const;
};

class VH_EXPORT vhMatrix : public vhValue {
public:
    vhMatrix();
    vhMatrix(unsigned int rows, unsigned int columns, bool numeric, bool image, bool complex);
    vhMatrix(const vhValue& fill, unsigned int rows, unsigned int columns);
    vhMatrix(double* data, unsigned int rows, unsigned int columns);
    vhMatrix(unsigned int* pixels, unsigned int rows, unsigned int columns);
    vhMatrix(const vhValue& v);
    VH_VALUE_ARITHMETIC_OVERRIDES
    vhValue multiply(const vhValue& other) const override;
    vhValue divide(const vhValue& other) const override;
    void resize(unsigned int rows, unsigned int columns);
    void setNumericValues(double* data, unsigned int n);
    void setNumericImValues(double* data, unsigned int n);
    vhValue transpose() const;
    vhValue conjugateTranspose() const;
    vhValue determinant() const;
    vhValue coFactor() const;
    vhValue adjoint() const;
    vhValue inverse() const;
};

class VH_EXPORT vhExpression : public vhValue {
public:
    vhExpression();
    // An expression is copied; any other value becomes the only term of a
    // new expression (none when it is null).
    vhExpression(const vhValue& v);
    vhExpression(const vhExpression& v);
    // An empty text gives the empty expression, any other a symbol term.
    explicit vhExpression(const std::string& symbol);
    VH_VALUE_ARITHMETIC_OVERRIDES
    std::vector<vhValue> factorize() const override;
    std::vector<vhValue> simplify() const override;
    using vhValue::division;
    // Long division by the first symbol of the divisor. The result is the
    // quotient; remainder is left undefined when the division is exact.
    // Undefined (or an empty expression) when no quotient is found; depth
    // above 1 refuses.
    vhValue division(const vhValue& divisor, vhValue& remainder, int depth) const;

private:
    // The walk of + and -: each term of other joins the sum.
    vhValue sumWith(const vhValue& other, bool subtract) const;
    // The loop of long division of this arranged sum by an arranged divisor,
    // shared by division and operator/. Returns how it ended (see the source).
    int longDivision(const vhExpression& divisor, bool shrinkTest, vhValue& quotient, vhValue& rest) const;
    // A quotient as an expression without zero terms; undefined when a term is.
    static vhValue withoutZeroTerms(const vhValue& quotient);
};

class VH_EXPORT vhFraction : public vhValue {
public:
    vhFraction();
    vhFraction(const vhValue& v);
    // Both parts become expressions, then the fraction reduces at once, and
    // may turn into a value of another kind.
    vhFraction(const vhValue& numerator, const vhValue& denominator);
    VH_VALUE_ARITHMETIC_OVERRIDES
    using vhValue::divide;
    // Reduces in place while the fractions switch is on.
    void divide();
};

class VH_EXPORT vhEquation : public vhValue {
public:
    vhEquation();
    vhEquation(const vhValue& v);
    // Each side becomes an expression; an empty relation leaves the value
    // null. The relation is kept as it comes ("=", "<", "<=", "=<", ...).
    vhEquation(const vhValue& left, const std::string& equationType, const vhValue& right);
    VH_VALUE_ARITHMETIC_OVERRIDES

private:
    // Both sides take opposite operations: left op v, right inverse-op v.
    vhValue sidesWith(const vhValue& v, char op) const;
};

class VH_EXPORT vhInterval : public vhValue {
public:
    vhInterval();
    vhInterval(double start, bool startIncluded, double end, bool endIncluded);
    vhInterval(const vhValue& v);
    VH_VALUE_EQUALITY_OVERRIDES
};

class VH_EXPORT vhInfiniteSolution : public vhValue {
public:
    vhInfiniteSolution();
    vhInfiniteSolution(double firstSolution, double solutionStep);
    vhInfiniteSolution(const vhValue& v);
    VH_VALUE_EQUALITY_OVERRIDES
};

class VH_EXPORT vhObject : public vhValue {
public:
    vhObject();
    vhObject(std::string objectTypeName, void* objectPointer);
    vhObject(const vhValue& v);
    VH_VALUE_EQUALITY_OVERRIDES
};

class VH_EXPORT vhChannel : public vhValue {
public:
    vhChannel();
    vhChannel(std::string objectTypeName, void* objectPointer);
    vhChannel(const vhValue& v);
    VH_VALUE_EQUALITY_OVERRIDES
};

class VH_EXPORT vhWidget : public vhValue {
public:
    vhWidget();
    vhWidget(std::string objectTypeName, void* objectPointer);
    vhWidget(const vhValue& v);
    VH_VALUE_EQUALITY_OVERRIDES
};

class VH_EXPORT vhFile : public vhValue {
public:
    vhFile();
    vhFile(std::string objectTypeName, void* objectPointer);
    vhFile(const vhValue& v);
    VH_VALUE_EQUALITY_OVERRIDES
};

// Process-wide limit of the number of elements of an array that a function
// creates from sizes given by the user.
VH_EXPORT void setMaximumNumerOfMatrixElements(unsigned int n);
// A one-term expression gives its term, an empty one the integer 0, anything
// else a copy of itself.
VH_EXPORT vhValue expressionToValue(const vhValue& value);
VH_EXPORT unsigned int maximumNumerOfMatrixElements();

} // namespace ValueTypes
} // namespace VarnholtMath
