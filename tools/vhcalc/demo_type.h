#pragma once

// An example of a type that a host application registers with the engine:
// point, a point of the plane. It shows how a host's objects reach the
// worksheet language (new point(3, 4), p.x, p.norm()); vhcalc registers it
// with --demo-type, through the library's public interface only.

#include <deque>

#include <VhMathLib.h>

namespace vhcalc {

// The objects' own values, owned by the session. A handle that the worksheet
// holds points at its object here, so the objects stay where they are (a
// deque never moves its elements on growth) until the session ends.
class ObjectStore {
public:
    VarnholtMath::ValueTypes::vhValue& add(const VarnholtMath::ValueTypes::vhValue& own);
    std::size_t size() const { return m_objects.size(); }

private:
    std::deque<VarnholtMath::ValueTypes::vhValue> m_objects;
};

// Registers point; its objects go to store until unregisterDemoType. The
// engine's registry is process-wide, so one store serves at a time.
void registerDemoType(ObjectStore& store);
void unregisterDemoType();

} // namespace vhcalc
