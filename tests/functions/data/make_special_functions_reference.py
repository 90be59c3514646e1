#!/usr/bin/python3
"""Reference values for the special functions of vhMath that rest on
Boost.Math kernels: erf, erfc, gamma, lgamma, beta, zeta, the Bessel, Airy
and spherical functions with their zeros, the exponential integrals, Carlson's
elliptic integrals and the Jacobi elliptic functions.

Computed with mpmath at 50 significant digits at the exact binary values of
the double arguments, and written beside this script:

  special_reference.csv  name, kind, a, b, c, d, re, im, bound

with the columns of elementary_reference.csv (see make_elementary_reference.py,
whose helpers this script shares): the arguments in the order of the member,
the value, and the relative error allowed at the point, max(1e-12,
16 eps (1 + cond + rule)). Whole orders and indices count as discrete and
add nothing to the condition number. The rules: lgamma is log|gamma|, so it
is absolute near its zeros at 1 and 2; beta of negative arguments is shifted
up by the recurrence B(x, y) = B(x + 1, y) (x + y) / x, one rounding per step.

The engine's own kernels (Struve, Lambert W, 2F1, Fermi-Dirac, Fresnel,
Dawson) have their references in make_special_reference.py.

Run:  /usr/bin/python3 make_special_functions_reference.py
The random points come from fixed seeds; a run reproduces the file exactly.
"""

import math
import random

import mpmath as mp

from make_elementary_reference import bound_of, fmt, loguniform, signed_log, write, HEADER

mp.mp.dps = 50


def sph_j(n, x):
    return mp.sqrt(mp.pi / (2 * x)) * mp.besselj(n + mp.mpf(1) / 2, x)


def sph_y(n, x):
    return mp.sqrt(mp.pi / (2 * x)) * mp.bessely(n + mp.mpf(1) / 2, x)


def jacobi(kind):
    return lambda k, u: mp.ellipfun(kind, u, k=k)


def not_pole(x):
    return abs(x) >= 1e-6 and not (x <= 0 and x == math.floor(x)) and abs(x - round(x)) > 1e-9 or x > 0.5


def rows():
    rng = random.Random(7071)
    out = []

    def add(name, args, f, continuous, rule=0, value=None):
        margs = [mp.mpf(a) for a in args]
        v = f(*margs) if value is None else value
        v = mp.mpc(v)
        b = bound_of(f, margs, continuous, rule)
        cells = [name, "r"] + [fmt(a) for a in args] + [""] * (4 - len(args))
        cells += [fmt(mp.re(v)), fmt(mp.im(v)), "%.3g" % b]
        out.append(cells)

    def many(count, draw):
        seen = set()
        while len(seen) < count:
            args = draw()
            if args is None or args in seen:
                continue
            seen.add(args)
            yield args

    for x, in many(240, lambda: (rng.uniform(-6, 6) if rng.random() < 0.8 else signed_log(rng, 1e-10, 6),)):
        add("erf", [x], mp.erf, [0])
    for x, in many(240, lambda: (rng.uniform(-6, 27) if rng.random() < 0.8 else signed_log(rng, 1e-10, 1),)):
        add("erfc", [x], mp.erfc, [0])

    def gamma_draw():
        r = rng.random()
        x = rng.uniform(-20, 171) if r < 0.7 else (rng.uniform(0.5, 3) if r < 0.9 else float(rng.randint(1, 170)))
        return (x,) if not_pole(x) else None

    for x, in many(240, gamma_draw):
        add("gamma", [x], mp.gamma, [0])
    for x, in many(240, gamma_draw):
        add("bgamma", [x], mp.gamma, [0])
    for x, in many(240, gamma_draw):
        f = lambda v: mp.log(abs(mp.gamma(v)))
        add("lgamma", [x], f, [0], rule=1 / max(abs(f(mp.mpf(x))), mp.mpf("1e-300")))

    def beta_draw():
        if rng.random() < 0.7:
            return (loguniform(rng, 0.01, 50), loguniform(rng, 0.01, 50))
        x, y = rng.uniform(-10, 10), rng.uniform(-10, 10)
        if not (not_pole(x) and not_pole(y) and not_pole(x + y)):
            return None
        return (x, y)

    for x, y in many(240, beta_draw):
        shifts = max(0.0, -x) + max(0.0, -y)
        add("beta", [x, y], mp.beta, [0, 1], rule=2 * (shifts + 1) if shifts else 0)

    def zeta_draw():
        r = rng.random()
        x = rng.uniform(-50, 60) if r < 0.8 else 1 + signed_log(rng, 1e-8, 1e-1)
        return (x,) if x != 1 else None

    for p, in many(240, zeta_draw):
        add("zeta", [p], mp.zeta, [0])

    # Bessel functions: whole and real orders.
    def order(allow_negative):
        r = rng.random()
        if r < 0.4:
            return float(rng.randint(0, 10))
        if r < 0.8 or not allow_negative:
            return round(rng.uniform(0, 10), 3)
        v = round(rng.uniform(-5, 0), 3)
        return v if v != math.floor(v) else None

    def bessel(name, f, allow_negative, x_draw):
        def draw():
            v = order(allow_negative)
            if v is None:
                return None
            return (v, x_draw(v))
        for v, x in many(240, draw):
            add(name, [v, x], f, [1] if v == math.floor(v) else [0, 1])

    positive_x = lambda v: loguniform(rng, 1e-3, 100)
    bessel("BesselFirstKind", mp.besselj, True,
           lambda v: positive_x(v) * (rng.choice((-1.0, 1.0)) if v == math.floor(v) else 1.0))
    bessel("BesselSecondKind", mp.bessely, False, positive_x)
    bessel("ModifiedBesselFirstKind", mp.besseli, True, lambda v: loguniform(rng, 1e-3, 500))
    bessel("ModifiedBesselSecondKind", mp.besselk, False, lambda v: loguniform(rng, 1e-3, 500))

    def zero_draw():
        v = float(rng.randint(0, 8)) if rng.random() < 0.5 else round(rng.uniform(0, 8), 2)
        return (v, float(rng.randint(1, 30)))

    for v, m in many(240, zero_draw):
        add("BesselFirstKindZero", [v, m], lambda a, b: mp.besseljzero(a, int(b)), [] if v == int(v) else [0])
    for v, m in many(240, zero_draw):
        add("BesselSecondKindZero", [v, m], lambda a, b: mp.besselyzero(a, int(b)), [] if v == int(v) else [0])

    def sph_draw():
        return (float(rng.randint(0, 10)), loguniform(rng, 1e-2, 100))

    for n, x in many(240, sph_draw):
        add("SphericalBesselFirstKind", [n, x], sph_j, [1])
    for n, x in many(240, sph_draw):
        add("SphericalBesselSecondKind", [n, x], sph_y, [1])

    for x, in many(240, lambda: (rng.uniform(-30, 30) if rng.random() < 0.8 else signed_log(rng, 1e-8, 1),)):
        add("AiryAi", [x], mp.airyai, [0])
    for x, in many(240, lambda: (rng.uniform(-30, 30) if rng.random() < 0.8 else signed_log(rng, 1e-8, 1),)):
        add("AiryBi", [x], mp.airybi, [0])
    for k in range(1, 241):
        add("AiryAiZero", [float(k)], lambda a: mp.airyaizero(int(a)), [])
        add("AiryBiZero", [float(k)], lambda a: mp.airybizero(int(a)), [])

    def harmonic_draw():
        n = rng.randint(0, 8)
        m = rng.randint(-n, n)
        return (float(n), float(m), rng.uniform(0.01, 3.13), rng.uniform(0.01, 6.27))

    for n, m, theta, phi in many(240, harmonic_draw):
        add("SphericalHarmonic", [n, m, theta, phi], lambda a, b, t, p: mp.spherharm(int(a), int(b), t, p), [2, 3])

    def en_draw():
        return (float(rng.randint(0, 6)), loguniform(rng, 1e-3, 50))

    for n, x in many(240, en_draw):
        add("ExponentialIntegralEn", [n, x], lambda a, b: mp.expint(int(a), b), [1])
    for x, in many(240, lambda: (rng.uniform(-50, 50) if rng.random() < 0.8 else signed_log(rng, 1e-8, 1),)):
        if x != 0:
            add("ExponentialIntegralEi", [x], mp.ei, [0])

    def carlson_args(count):
        return tuple(loguniform(rng, 1e-3, 1e3) if rng.random() < 0.9 else 0.0 for _ in range(count))

    for x, y, z in many(240, lambda: carlson_args(3) if rng.random() < 0.95 else None):
        if (x == 0) + (y == 0) + (z == 0) > 1:
            continue
        add("EllipticIntegralCarlsonRf", [x, y, z], mp.elliprf, [0, 1, 2])
    for x, y, z in many(240, lambda: carlson_args(3)):
        if z == 0 or (x == 0 and y == 0):
            continue
        add("EllipticIntegralCarlsonRd", [x, y, z], mp.elliprd, [0, 1, 2])
    for x, y, z, p in many(240, lambda: carlson_args(4)):
        if p == 0 or (x == 0) + (y == 0) + (z == 0) > 1:
            continue
        add("EllipticIntegralCarlsonRj", [x, y, z, p], mp.elliprj, [0, 1, 2, 3])
    # For y < 0 the value is the Cauchy principal value, which is real for
    # x > 0; at x = 0 mpmath continues it to a complex number instead.
    for x, y in many(240, lambda: (loguniform(rng, 1e-3, 1e3) if rng.random() < 0.9 else 0.0,
                                   loguniform(rng, 1e-3, 1e3) * (1 if rng.random() < 0.8 else -1))):
        if x == 0 and y < 0:
            continue
        add("EllipticIntegralCarlsonRc", [x, y], mp.elliprc, [0, 1])

    kinds = {"JacobiEllipticSn": "sn", "JacobiEllipticCn": "cn", "JacobiEllipticDn": "dn",
             "JacobiCd": "cd", "JacobiCn": "cn", "JacobiCs": "cs", "JacobiDc": "dc", "JacobiDn": "dn",
             "JacobiDs": "ds", "JacobiNc": "nc", "JacobiNd": "nd", "JacobiNs": "ns", "JacobiSc": "sc",
             "JacobiSd": "sd", "JacobiSn": "sn"}
    for name in sorted(kinds):
        f = jacobi(kinds[name])
        for k, u in many(240, lambda: (rng.uniform(0, 0.99) if rng.random() < 0.9 else rng.uniform(0.99, 0.9999),
                                       rng.uniform(-10, 10))):
            add(name, [k, u], f, [0, 1])
    return out


if __name__ == "__main__":
    write("special_reference.csv", HEADER, rows())
