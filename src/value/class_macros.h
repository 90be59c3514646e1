#pragma once

// The parts of the arithmetic classes that have one shape in all of them:
// the compound operators compute the class's binary operator and assign the
// result, and != is the negation of ==. A value whose tag is not the class's
// own goes back to vhValue's dispatcher.

#define VH_DEFINE_COMPOUND_OPERATORS(CLASS, TAG)                                                     \
    vhValue& CLASS::operator+=(const vhValue& other)                                                 \
    {                                                                                                \
        if (m_valueType != (TAG))                                                                    \
            return vhValue::operator+=(other);                                                       \
        *this = CLASS::operator+(other);                                                            \
        return *this;                                                                                \
    }                                                                                                \
    vhValue& CLASS::operator-=(const vhValue& other)                                                 \
    {                                                                                                \
        if (m_valueType != (TAG))                                                                    \
            return vhValue::operator-=(other);                                                       \
        *this = CLASS::operator-(other);                                                            \
        return *this;                                                                                \
    }                                                                                                \
    vhValue& CLASS::operator*=(const vhValue& other)                                                 \
    {                                                                                                \
        if (m_valueType != (TAG))                                                                    \
            return vhValue::operator*=(other);                                                       \
        *this = CLASS::operator*(other);                                                            \
        return *this;                                                                                \
    }                                                                                                \
    vhValue& CLASS::operator/=(const vhValue& other)                                                 \
    {                                                                                                \
        if (m_valueType != (TAG))                                                                    \
            return vhValue::operator/=(other);                                                       \
        *this = CLASS::operator/(other);                                                            \
        return *this;                                                                                \
    }

#define VH_DEFINE_NOT_EQUAL(CLASS, TAG)                                                              \
    bool CLASS::operator!=(const vhValue& other) const                                               \
    {                                                                                                \
        if (m_valueType != (TAG))                                                                    \
            return vhValue::operator!=(other);                                                       \
        return !CLASS::operator==(other);                                                            \
    }
