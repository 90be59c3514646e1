// The distributions reached by the name of their family: dens_f, dist_f and
// inv_f take the family's name first and pass the rest to its own member, so
// a worksheet can choose the distribution by a text value.

#include <cstring>

#include "frame/math.h"

namespace VarnholtMath {
namespace ValueTypes {

namespace {

using One = vhValue (vhMath::*)(const vhValue&, const vhValue&);
using Two = vhValue (vhMath::*)(const vhValue&, const vhValue&, const vhValue&);

struct Family {
    const char* name;
    // Exactly one of each triple is set: families of one parameter use the
    // first three, of two parameters the last three.
    One dens1, dist1, inv1;
    Two dens2, dist2, inv2;
};

const Family families[] = {
    {"normal", nullptr, nullptr, nullptr, &vhMath::normaldens_f, &vhMath::normaldist_f, &vhMath::normalinv_f},
    {"t", &vhMath::tdens_f, &vhMath::tdist_f, &vhMath::tinv_f, nullptr, nullptr, nullptr},
    {"chi", &vhMath::chidens_f, &vhMath::chidist_f, &vhMath::chiinv_f, nullptr, nullptr, nullptr},
    {"gamma", nullptr, nullptr, nullptr, &vhMath::gammadens_f, &vhMath::gammadist_f, &vhMath::gammainv_f},
    {"beta", nullptr, nullptr, nullptr, &vhMath::betadens_f, &vhMath::betadist_f, &vhMath::betainv_f},
    {"f", nullptr, nullptr, nullptr, &vhMath::fdens_f, &vhMath::fdist_f, &vhMath::finv_f},
    {"poisson", &vhMath::poissondens_f, &vhMath::poissondist_f, &vhMath::poissoninv_f, nullptr, nullptr, nullptr},
    {"geometric", &vhMath::geometricdens_f, &vhMath::geometricdist_f, &vhMath::geometricinv_f, nullptr, nullptr,
     nullptr},
    {"logarithmic", &vhMath::logarithmicdens_f, &vhMath::logarithmicdist_f, &vhMath::logarithmicinv_f, nullptr,
     nullptr, nullptr},
    {"exponential", &vhMath::exponentialdens_f, &vhMath::exponentialdist_f, &vhMath::exponentialinv_f, nullptr,
     nullptr, nullptr},
    {"dblexponential", nullptr, nullptr, nullptr, &vhMath::dblexponentialdens_f, &vhMath::dblexponentialdist_f,
     &vhMath::dblexponentialinv_f},
    {"cauchy", nullptr, nullptr, nullptr, &vhMath::cauchydens_f, &vhMath::cauchydist_f, &vhMath::cauchyinv_f},
};

// The family of a name value: a string, compared without regard to case
// ("Normal" and "normal" are one family). Anything else finds none.
const Family* findFamily(const vhValue& name)
{
    if (!name.isString())
        return nullptr;
    const std::string text = expressionToValue(name).toString();
    for (const Family& f : families)
        if (text.size() == std::strlen(f.name) && strncasecmp(text.c_str(), f.name, text.size()) == 0)
            return &f;
    return nullptr;
}

enum class Kind { dens, dist, inv };

// A family of one parameter takes no second one: a value there is a mistake
// of the caller, not something to ignore.
vhValue byName(vhMath& m, Kind kind, const vhValue& name, const vhValue& x, const vhValue& a, const vhValue& b)
{
    const Family* f = findFamily(name);
    if (!f)
        return vhValue();
    if (f->dens1) {
        if (!b.isNull())
            return vhValue();
        One member = kind == Kind::dens ? f->dens1 : kind == Kind::dist ? f->dist1 : f->inv1;
        return (m.*member)(x, a);
    }
    Two member = kind == Kind::dens ? f->dens2 : kind == Kind::dist ? f->dist2 : f->inv2;
    return (m.*member)(x, a, b);
}

} // namespace

vhValue vhMath::dens_f(const vhValue& family, const vhValue& x, const vhValue& a, const vhValue& b)
{
    return byName(*this, Kind::dens, family, x, a, b);
}

vhValue vhMath::dist_f(const vhValue& family, const vhValue& x, const vhValue& a, const vhValue& b)
{
    return byName(*this, Kind::dist, family, x, a, b);
}

vhValue vhMath::inv_f(const vhValue& family, const vhValue& p, const vhValue& a, const vhValue& b)
{
    return byName(*this, Kind::inv, family, p, a, b);
}

} // namespace ValueTypes
} // namespace VarnholtMath
