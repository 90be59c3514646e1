#pragma once

// The calculation object. The host creates one per worksheet, sets its angle
// unit and switches, and asks it for results. Every function of the worksheet
// language that the engine computes is a member whose name ends in "_f"; it
// takes vhValue arguments and returns a vhValue, the undefined value on any
// failure. The members live in the source files of their subsystems.

#include <vector>

#include "frame/catalogue.h"
#include "frame/switches.h"
#include "value/export.h"
#include "value/value.h"

namespace VarnholtMath {
namespace ValueTypes {

// Unit of angles in the arguments and results of trigonometric functions.
// The conversions test for exactly 0 and exactly 2, so any other number
// behaves as radians.
enum AngleUnit { angleDegrees = 0, angleRadians = 1, angleGradians = 2 };

enum MathUnitSystem { unitSystemSI = 0, unitSystemUSCS = 1 };

class VH_EXPORT vhMath {
public:
    static const unsigned int filterSlots = 64;

    vhMath();
    vhMath(unsigned int decimals, AngleUnit unit);
    ~vhMath();
    // The filter slots are owned arrays: a calculation object is not copied.
    vhMath(const vhMath&) = delete;
    vhMath& operator=(const vhMath&) = delete;

    // --- settings ----------------------------------------------------------
    void setAngleUnit(AngleUnit unit);
    AngleUnit angleUnit() const;
    // Values above 14 are ignored.
    void setNumberOfDecimalPlaces(unsigned int decimals);
    unsigned int numberOfDecimalPlaces() const;
    void setConvertResultsToRadians(unsigned int n);
    unsigned int convertResultsToRadians() const;
    // The rule switches write this object's field and the process-wide
    // switch; the getters read the field.
    void setLimitsRulesOn(bool on);
    bool limitsRulesOn() const;
    void setTrigonometricRulesOn(bool on);
    bool trigonometricRulesOn() const;
    void setFractionsOn(bool on);
    bool fractionsOn() const;
    void setColectDividersOn(bool on);
    bool colectDividersOn() const;
    // Set by the host to abandon running work; the engine never clears it.
    void setStopCalculation(bool stop);
    bool stopCalculation() const;
    // Kept for the host; no computation reads it.
    void setPauseCalculation(bool pause);
    bool pauseCalculation() const;
    void setAppProcessEventsCallback(void (*callback)());
    void appProcessEvents();
    // True exactly when no events callback is installed.
    bool isInRuntime() const;
    int limitDepth() const;
    void setLimitDepth(int depth);

    // --- running filter state ------------------------------------------------
    void deinitializeFIRfilterBuffer();
    void deinitializeIIRfilterBuffer();

    // --- dividers --------------------------------------------------------------
    // Stores a symbolic divider once; anything else is ignored.
    void addDivider(const vhValue& v);
    std::vector<vhValue> dividersVector() const;
    void resetDividersVector();

    // --- members of the catalogue ------------------------------------------------
    vhValue InRuntime_f();
    vhValue SetDecPlaces_f(const vhValue& v);
    vhValue DecPlaces_f();
    vhValue staticValue_f(const vhValue& name, const vhValue& fallback);
    vhValue setStaticValue_f(const vhValue& name, const vhValue& value);
    vhValue joinMatrixRows_f(const vhValue& a, const vhValue& b);

private:
    void (*m_appProcessEventsCallback)();
    AngleUnit m_angleUnit;
    bool m_stopCalculation;
    bool m_pauseCalculation;
    unsigned int m_numberOfDecimalPlaces;
    unsigned int m_convertResultsToRadians;
    bool m_limitsRulesOn;
    bool m_trigonometricRulesOn;
    bool m_fractionsOn;
    int m_limitDepth;
    bool m_colectDividersOn;
    std::vector<vhValue> m_dividers;
    vhValue m_staticValues;
    double* m_firFilterBuffers[filterSlots];
    unsigned int m_firFilterBufferSizes[filterSlots];
    double* m_iirFilterBuffers[filterSlots];
    unsigned int m_iirFilterBufferSizes[filterSlots];
};

// Calls the member of the catalogue row id with the arguments. The count of
// arguments must be the catalogue's; the member checks their types. A null
// math object, a wrong count or a row that the engine does not compute give
// the undefined value.
VH_EXPORT vhValue callFunction(vhMath* math, NodeType id, const std::vector<vhValue>& arguments);

} // namespace ValueTypes
} // namespace VarnholtMath
