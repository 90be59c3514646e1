#!/usr/bin/python3
"""Reference values for the elementary functions and the Boost-based special
functions of vhMath.

Computed with mpmath at 50 significant digits at the exact binary values of
the double arguments, and written beside this script:

  elementary_reference.csv  name, kind, a, b, c, d, re, im, bound
  special_reference.csv     name, kind, a, b, c, d, re, im, bound

kind is "r" for real arguments (a, b, c, d; unused ones empty) and "c" for a
complex first argument a + b i (with c as the real second argument where the
function has one). re and im are the reference value; a real argument whose
value is complex has a non-zero im. bound is the relative error allowed at
the point (see below). Every number is printed with 17 significant digits,
so that the double read back is the double nearest to the value.

The reference is the function as the engine defines it, evaluated exactly:
where a formula has branch cuts of its own (the complex arc tangent and arc
cotangent through logarithms), the same formula is evaluated in mpmath; a
real argument moved to the complex plane is x + 0i, whose value on a cut is
the limit from the upper side, as the signed zero gives it.

The bound. At a well-conditioned point it is 1e-12. It grows only where no
double computation can do better, or where the engine's own formula loses
digits by design: the bound is max(1e-12, 16 eps (1 + cond + rule)), where
cond is the condition number of the function at the point (the relative
change of the value per relative change of each continuous argument) and
rule the cancellation of the defining formula - for example exp(x) - 1 near
0, sinh as (exp(x) - exp(-x)) / 2 near 0, lgamma as log|gamma|, a logarithm
near 1, and the parts below 1e-15 that the complex value operators drop.

Run:  /usr/bin/python3 make_elementary_reference.py
The random points come from fixed seeds; a run reproduces the files exactly.
"""

import math
import os
import random

import mpmath as mp

mp.mp.dps = 50
HERE = os.path.dirname(os.path.abspath(__file__))
EPS = 2.0 ** -52
TINY = mp.mpf("1e-40")  # the upper side of a cut
PI = mp.pi


def fmt(v):
    if v is None:
        return ""
    v = float(v)
    if math.isnan(v):
        return "nan"
    if math.isinf(v):
        return "inf" if v > 0 else "-inf"
    return "%.17g" % v


# ---------------------------------------------------------------- helpers --

def cut(x):
    """A real x as the complex x + 0i: on a cut, the upper side."""
    x = mp.mpf(x)
    return mp.mpc(x, abs(x) * TINY if x != 0 else TINY)


def relchange(f, args, i):
    """|x_i d f / d x_i| / |f|, by a symmetric difference at high precision."""
    x = args[i]
    h = mp.mpf("1e-22")
    if x == 0:
        return mp.mpf(0)
    a1 = list(args)
    a2 = list(args)
    a1[i] = x * (1 + h)
    a2[i] = x * (1 - h)
    f0 = f(*args)
    if f0 == 0:
        return mp.inf
    return abs(f(*a1) - f(*a2)) / (2 * h * abs(f0))


def bound_of(f, args, continuous, rule):
    cond = mp.mpf(0)
    for i in continuous:
        cond += relchange(f, args, i)
    b = 16 * EPS * (1 + cond + rule)
    return max(1e-12, float(b))


def loguniform(rng, lo, hi):
    return math.exp(rng.uniform(math.log(lo), math.log(hi)))


def signed_log(rng, lo, hi):
    return loguniform(rng, lo, hi) * rng.choice((-1.0, 1.0))


def flush_rule(value):
    """Parts below 1e-15 that complex products and quotients drop."""
    return 1e-15 / EPS / max(abs(value), mp.mpf("1e-300"))


def sinh_rule(z):
    """(exp(z) - exp(-z)) / 2 loses what exp(z) and exp(-z) share."""
    s = mp.sinh(z)
    return (abs(mp.exp(z)) + abs(mp.exp(-z))) / max(abs(2 * s), mp.mpf("1e-300"))


def complex_log_rule(w):
    """log(m) + log1p(t t)/2 with m the larger part: an absolute error of
    eps (1 + |log m|) against |log w|."""
    m = max(abs(mp.re(w)), abs(mp.im(w)))
    lw = mp.log(w)
    return (1 + abs(mp.log(m))) / max(abs(lw), mp.mpf("1e-300"))


# Definitions as the engine evaluates them (principal branches of mpmath's
# log, sqrt, acos, asin, atanh).

def atan_formula(z):
    i = mp.mpc(0, 1)
    return (mp.log(i - z) - mp.log(i + z)) / (2 * i)


def acot_formula(z):
    i = mp.mpc(0, 1)
    return (mp.log(z + i) - mp.log(z - i)) / (2 * i)


def atan_rule(z):
    i = mp.mpc(0, 1)
    l1, l2 = mp.log(i - z), mp.log(i + z)
    return (1 + abs(l1) + abs(l2)) / abs(l1 - l2) + flush_rule(atan_formula(z))


def acot_rule(z):
    i = mp.mpc(0, 1)
    l1, l2 = mp.log(z + i), mp.log(z - i)
    return (1 + abs(l1) + abs(l2)) / abs(l1 - l2) + flush_rule(acot_formula(z))


def atanh_formula(z):
    return mp.log((1 + z) / (1 - z)) / 2


def atanh_rule(z):
    q = mp.log((1 + z) / (1 - z))
    return (1 + abs(q)) / abs(q) + flush_rule(q / 2)


def asinh_rule(z):
    v = mp.asinh(z)
    return (1 + abs(z) ** 2 / abs(z * z + 1) + abs(v)) / abs(v) + flush_rule(v)


# ------------------------------------------------------- elementary table --
# name: (reference, kind, sampler, continuous argument indices, rule)
# A sampler returns (args, reference arguments): the doubles given to the
# engine and the arguments of the reference function.

def real_points(rng, count, draw):
    pts = []
    while len(pts) < count:
        x = draw(rng)
        if x not in pts:
            pts.append(x)
    return pts


def trig_draw(rng):
    r = rng.random()
    if r < 0.8:
        return rng.uniform(-50.0, 50.0)
    return signed_log(rng, 1e-8, 1e6)


def elementary_rows():
    rng = random.Random(5150)
    rows = []

    # Real functions with real values, and the real points moved to the
    # complex plane.
    real_specs = {
        "sin": (lambda x: mp.sin(x), trig_draw),
        "cos": (lambda x: mp.cos(x), trig_draw),
        "tan": (lambda x: mp.tan(x), trig_draw),
        "cot": (lambda x: mp.cot(x), trig_draw),
        "sec": (lambda x: mp.sec(x), trig_draw),
        "csc": (lambda x: mp.csc(x), trig_draw),
        "atan": (lambda x: mp.atan(x), lambda r: signed_log(r, 1e-10, 1e10)),
        "acot": (lambda x: PI / 2 - mp.atan(x), lambda r: signed_log(r, 1e-10, 1e10)),
        "sinh": (lambda x: mp.sinh(x), lambda r: r.uniform(-20, 20) if r.random() < 0.7 else signed_log(r, 1e-8, 700)),
        "cosh": (lambda x: mp.cosh(x), lambda r: r.uniform(-20, 20) if r.random() < 0.7 else signed_log(r, 1e-8, 700)),
        "tanh": (lambda x: mp.tanh(x), lambda r: r.uniform(-20, 20) if r.random() < 0.7 else signed_log(r, 1e-8, 700)),
        "coth": (lambda x: mp.coth(x), lambda r: r.uniform(-20, 20) if r.random() < 0.7 else signed_log(r, 1e-8, 700)),
        "sech": (lambda x: mp.sech(x), lambda r: r.uniform(-20, 20) if r.random() < 0.7 else signed_log(r, 1e-8, 700)),
        "csch": (lambda x: mp.csch(x), lambda r: r.uniform(-20, 20) if r.random() < 0.7 else signed_log(r, 1e-8, 700)),
        "asinh": (lambda x: mp.asinh(x), lambda r: signed_log(r, 1e-10, 1e10)),
        "exp": (lambda x: mp.exp(x), lambda r: r.uniform(-700, 700) if r.random() < 0.7 else signed_log(r, 1e-12, 10)),
        "exp2": (lambda x: mp.power(2, x), lambda r: r.uniform(-1000, 1000) if r.random() < 0.7 else signed_log(r, 1e-12, 10)),
        "expm1": (lambda x: mp.expm1(x), lambda r: r.uniform(-50, 50) if r.random() < 0.7 else signed_log(r, 1e-12, 1)),
        "cbrt": (lambda x: mp.sign(x) * mp.cbrt(abs(x)), lambda r: signed_log(r, 1e-100, 1e100)),
    }
    for name, (ref, draw) in sorted(real_specs.items()):
        for x in real_points(rng, 240, draw):
            rows.append((name, "r", [x], ref(mp.mpf(x)), [0], real_rule(name, mp.mpf(x))))

    # Functions whose real domain ends: points inside (real values) and
    # outside (complex values of x + 0i).
    def inside_outside(name, ref_in, ref_out, draw_in, draw_out, n_in=160, n_out=80):
        for x in real_points(rng, n_in, draw_in):
            rows.append((name, "r", [x], ref_in(mp.mpf(x)), [0], real_rule(name, mp.mpf(x))))
        for x in real_points(rng, n_out, draw_out):
            rows.append((name, "r", [x], ref_out(mp.mpf(x)), [0], real_rule(name, mp.mpf(x))))

    near_one = lambda r: (1 - loguniform(r, 1e-15, 1e-1)) * r.choice((-1.0, 1.0))
    inside_outside("acos", mp.acos, lambda x: mp.acos(cut(x)),
                   lambda r: r.uniform(-1, 1) if r.random() < 0.8 else near_one(r),
                   lambda r: signed_log(r, 1 + 1e-12, 1e10))
    inside_outside("asin", mp.asin, lambda x: mp.asin(cut(x)),
                   lambda r: r.uniform(-1, 1) if r.random() < 0.8 else near_one(r),
                   lambda r: signed_log(r, 1 + 1e-12, 1e10))
    inside_outside("acosh", mp.acosh, lambda x: mp.acosh(cut(x)),
                   lambda r: 1 + loguniform(r, 1e-12, 1e10),
                   lambda r: r.uniform(-1e3, 0.999) if r.random() < 0.8 else r.uniform(-1, 1))
    inside_outside("atanh", mp.atanh, lambda x: atanh_formula(cut(x)),
                   lambda r: r.uniform(-1, 1) if r.random() < 0.7 else near_one(r),
                   lambda r: signed_log(r, 1 + 1e-12, 1e10))
    # Next to -1 the quotient (1 + z) / (1 - z) of the formula falls below the
    # 1e-15 that complex quotients drop, and the formula has no value there.
    inside_outside("acoth", lambda x: mp.atanh(1 / x), lambda x: atanh_formula(cut(1 / x)),
                   lambda r: signed_log(r, 1 + 1e-12, 1e10),
                   lambda r: r.uniform(-1, 1) if r.random() < 0.7 else (1 - loguniform(r, 1e-12, 1e-1)) * r.choice((-1.0, 1.0)))
    inside_outside("asec", lambda x: mp.acos(1 / x), lambda x: mp.acos(cut(1 / x)),
                   lambda r: signed_log(r, 1, 1e10),
                   lambda r: r.uniform(-1, 1))
    inside_outside("acsc", lambda x: mp.asin(1 / x), lambda x: mp.asin(cut(1 / x)),
                   lambda r: signed_log(r, 1, 1e10),
                   lambda r: r.uniform(-1, 1))
    inside_outside("asech", lambda x: mp.acosh(1 / x), lambda x: mp.acosh(cut(1 / x)),
                   lambda r: r.uniform(1e-10, 1) if r.random() < 0.8 else loguniform(r, 1e-300, 1e-10),
                   lambda r: -loguniform(r, 1e-10, 1e10) if r.random() < 0.7 else loguniform(r, 1 + 1e-12, 1e10))
    inside_outside("acsch", lambda x: mp.asinh(1 / x), None,
                   lambda r: signed_log(r, 1e-10, 1e10), None, n_in=240, n_out=0)
    for name, f in (("log", mp.log), ("log10", mp.log10), ("log2", lambda x: mp.log(x, 2))):
        inside_outside(name, f, lambda x, f=f: f(cut(x)),
                       lambda r: loguniform(r, 1e-300, 1e300) if r.random() < 0.8 else 1 + r.uniform(-1e-3, 1e-3),
                       lambda r: -loguniform(r, 1e-300, 1e300))
    inside_outside("log1p", mp.log1p, lambda x: mp.log(cut(x) + 1),
                   lambda r: loguniform(r, 1e-15, 1e10) * r.choice((-1e-1, 1.0)) if r.random() < 0.8 else r.uniform(-1, 1),
                   lambda r: -1 - loguniform(r, 1e-10, 1e10))
    inside_outside("sqrt", mp.sqrt, lambda x: mp.sqrt(cut(x)),
                   lambda r: loguniform(r, 1e-300, 1e300),
                   lambda r: -loguniform(r, 1e-300, 1e300))

    # Functions of two real arguments.
    for _ in range(240):
        y, x = rng.uniform(-10, 10), rng.uniform(-10, 10)
        if rng.random() < 0.2:
            y, x = signed_log(rng, 1e-10, 1e10), signed_log(rng, 1e-10, 1e10)
        rows.append(("atan2", "r", [y, x], mp.atan2(y, x), [0, 1], 0))
    for _ in range(240):
        r = rng.random()
        if r < 0.5:
            x, y = loguniform(rng, 1e-5, 1e5), rng.uniform(-20, 20)
        elif r < 0.7:
            x, y = signed_log(rng, 1e-3, 1e3), float(rng.randint(-30, 30))
        elif r < 0.85:
            x, y = -loguniform(rng, 1e-3, 1e3), rng.uniform(-5, 5)
        else:
            x, y = loguniform(rng, 1e-300, 1e300), rng.uniform(-1, 1)
        if y == 0 or x == 0:
            continue
        xv = mp.mpf(x)
        if x < 0 and y != int(y):
            ref = mp.exp(y * mp.log(cut(x)))
        else:
            ref = mp.power(xv, y)
        rows.append(("pow", "r", [x, y], ref, [0, 1], 0))
    # Even roots of negative numbers clear a real part below 1e-15; the roots
    # are taken of numbers whose roots are larger than that.
    for _ in range(240):
        n = rng.choice((2, 3, 4, 5, 7, -2, -3, -4))
        x = signed_log(rng, 1e-100, 1e100)
        if x < 0 and n % 2 == 0 and abs(x) ** (1.0 / abs(n)) < 1e-13:
            continue
        xv = mp.mpf(x)
        if x > 0:
            ref = mp.power(xv, mp.mpf(1) / n)
        elif n % 2:
            ref = -mp.power(-xv, mp.mpf(1) / n)
        else:
            ref = mp.power(-xv, mp.mpf(1) / abs(n)) * mp.expjpi(mp.mpf(1) / abs(n))
            if n < 0:
                ref = 1 / ref
        rows.append(("root", "r", [x, float(n)], ref, [0], root_rule(xv, n)))
    for _ in range(240):
        a = rng.choice((loguniform(rng, 1e-3, 1e3), -loguniform(rng, 1e-3, 1e3)))
        x = rng.choice((loguniform(rng, 1e-10, 1e10), -loguniform(rng, 1e-10, 1e10)))
        if a == 1.0:
            continue
        av, xv = mp.mpf(a), mp.mpf(x)
        lx = mp.log(cut(x)) if x < 0 else mp.log(xv)
        la = mp.log(cut(a)) if a < 0 else mp.log(av)
        rows.append(("logax", "r", [a, x], lx / la, [0, 1], complex_log_rule(xv) + complex_log_rule(av)))
    for _ in range(240):
        x, y = signed_log(rng, 1e-100, 1e100), signed_log(rng, 1e-100, 1e100)
        if rng.random() < 0.5:
            y = x * rng.uniform(0.1, 10)
        rows.append(("hypot", "r", [x, y], mp.hypot(x, y), [0, 1], 0))

    # Complex arguments.
    def box(r):
        k = r.random()
        if k < 0.75:
            return r.uniform(-5, 5), r.uniform(-5, 5)
        if k < 0.9:
            m, t = loguniform(r, 1e-6, 1e-1), r.uniform(-math.pi, math.pi)
            return m * math.cos(t), m * math.sin(t)
        m, t = loguniform(r, 10, 300), r.uniform(-math.pi, math.pi)
        return m * math.cos(t), m * math.sin(t)

    complex_specs = [
        ("sin", mp.sin, lambda z: 0), ("cos", mp.cos, lambda z: 0),
        ("tan", mp.tan, lambda z: flush_rule(mp.tan(z))), ("cot", mp.cot, lambda z: flush_rule(mp.cot(z))),
        ("sec", mp.sec, lambda z: flush_rule(mp.sec(z))), ("csc", mp.csc, lambda z: flush_rule(mp.csc(z))),
        ("acos", mp.acos, lambda z: 0), ("asin", mp.asin, lambda z: 0),
        ("atan", atan_formula, atan_rule), ("acot", acot_formula, acot_rule),
        ("asec", lambda z: mp.acos(1 / z), lambda z: flush_rule(mp.acos(1 / z))),
        ("acsc", lambda z: mp.asin(1 / z), lambda z: flush_rule(mp.asin(1 / z))),
        ("sinh", mp.sinh, sinh_rule), ("cosh", mp.cosh, lambda z: 0),
        ("tanh", mp.tanh, lambda z: sinh_rule(z) + flush_rule(mp.tanh(z))),
        ("coth", mp.coth, lambda z: sinh_rule(z) + flush_rule(mp.coth(z))),
        ("sech", mp.sech, lambda z: flush_rule(mp.sech(z))), ("csch", mp.csch, lambda z: flush_rule(mp.csch(z))),
        ("acosh", mp.acosh, lambda z: 0), ("asinh", mp.asinh, asinh_rule),
        ("atanh", atanh_formula, atanh_rule),
        ("acoth", lambda z: atanh_formula(1 / z), lambda z: atanh_rule(1 / z) + flush_rule(atanh_formula(1 / z))),
        ("asech", lambda z: mp.acosh(1 / z), lambda z: flush_rule(mp.acosh(1 / z))),
        ("acsch", lambda z: mp.asinh(1 / z), lambda z: asinh_rule(1 / z) + flush_rule(mp.asinh(1 / z))),
        ("exp", mp.exp, lambda z: 0), ("exp2", lambda z: mp.power(2, z), lambda z: 0),
        ("expm1", mp.expm1, lambda z: abs(mp.exp(z)) / abs(mp.expm1(z))),
        ("log", mp.log, complex_log_rule), ("log10", mp.log10, complex_log_rule),
        ("log2", lambda z: mp.log(z, 2), complex_log_rule),
        ("log1p", lambda z: mp.log(z + 1), lambda z: complex_log_rule(z + 1) + abs(z) / abs(mp.log(z + 1))),
        ("sqrt", mp.sqrt, lambda z: 0), ("cbrt", lambda z: mp.cbrt(z), lambda z: 0),
    ]
    for name, f, rule in complex_specs:
        count = 0
        while count < 240:
            a, b = box(rng)
            if a == 0 or b == 0:
                continue
            z = mp.mpc(a, b)
            if name in ("atan", "acot") and a == 0 and abs(b) == 1:
                continue
            rows.append((name, "c", [a, b], f(z), [0, 1], rule(z), f))
            count += 1
    # Complex bases with real exponents.
    for _ in range(240):
        a, b = box(rng)
        y = rng.choice((rng.uniform(-6, 6), rng.uniform(-0.9, 0.9)))
        if y == int(y):
            continue
        z = mp.mpc(a, b)
        ref = mp.exp(y * mp.log(z))
        rows.append(("pow", "c", [a, b, y], ref, [0, 1, 2], abs(y) * (1 + complex_log_rule(z) * abs(mp.log(z)))))
    return rows


def real_rule(name, x):
    if name == "acot":
        # pi/2 - atan(x) cancels for large x.
        return (PI / 2 + abs(mp.atan(x))) / abs(PI / 2 - mp.atan(x))
    if name == "expm1":
        return abs(mp.exp(x)) / abs(mp.expm1(x))
    if name in ("sinh", "tanh", "coth", "csch"):
        return sinh_rule(x)
    if name == "sqrt" and x > 0:
        return abs(mp.log(x)) / 2
    if name == "cbrt" and x != 0:
        return abs(mp.log(abs(x))) / 3
    return 0


def root_rule(x, n):
    return abs(mp.log(abs(x))) / abs(n)


# The functions behind the names, for the condition numbers.
REAL_F = {
    "sin": mp.sin, "cos": mp.cos, "tan": mp.tan, "cot": mp.cot, "sec": mp.sec, "csc": mp.csc,
    "atan": mp.atan, "acot": lambda x: PI / 2 - mp.atan(x), "sinh": mp.sinh, "cosh": mp.cosh,
    "tanh": mp.tanh, "coth": mp.coth, "sech": mp.sech, "csch": mp.csch, "asinh": mp.asinh,
    "exp": mp.exp, "exp2": lambda x: mp.power(2, x), "expm1": mp.expm1,
    "cbrt": lambda x: mp.sign(x) * mp.cbrt(abs(x)),
    "acos": lambda x: mp.acos(x) if abs(x) <= 1 else mp.acos(cut(x)),
    "asin": lambda x: mp.asin(x) if abs(x) <= 1 else mp.asin(cut(x)),
    "acosh": lambda x: mp.acosh(x) if x >= 1 else mp.acosh(cut(x)),
    "atanh": lambda x: mp.atanh(x) if abs(x) < 1 else atanh_formula(cut(x)),
    "acoth": lambda x: mp.atanh(1 / x) if abs(x) > 1 else atanh_formula(cut(1 / x)),
    "asec": lambda x: mp.acos(1 / x) if abs(x) >= 1 else mp.acos(cut(1 / x)),
    "acsc": lambda x: mp.asin(1 / x) if abs(x) >= 1 else mp.asin(cut(1 / x)),
    "asech": lambda x: mp.acosh(1 / x) if 0 < x <= 1 else mp.acosh(cut(1 / x)),
    "acsch": lambda x: mp.asinh(1 / x),
    "log": lambda x: mp.log(x) if x > 0 else mp.log(cut(x)),
    "log10": lambda x: mp.log10(x) if x > 0 else mp.log10(cut(x)),
    "log2": lambda x: mp.log(x, 2) if x > 0 else mp.log(cut(x), 2),
    "log1p": lambda x: mp.log1p(x) if x > -1 else mp.log(cut(x) + 1),
    "sqrt": lambda x: mp.sqrt(x) if x > 0 else mp.sqrt(cut(x)),
    "atan2": mp.atan2, "hypot": mp.hypot,
    "pow": lambda x, y: mp.power(x, y) if x > 0 or y == int(y) else mp.exp(y * mp.log(cut(x))),
    "root": lambda x, n: (mp.power(x, 1 / mp.mpf(n)) if x > 0 else
                          (-mp.power(-x, 1 / mp.mpf(n)) if int(n) % 2 else
                           mp.power(-x, 1 / mp.mpf(abs(n))) ** (1 if n > 0 else -1) *
                           mp.expjpi((1 if n > 0 else -1) * mp.mpf(1) / abs(n)))),
    "logax": lambda a, x: ((mp.log(x) if x > 0 else mp.log(cut(x))) /
                           (mp.log(a) if a > 0 else mp.log(cut(a)))),
}


def finish_elementary(rows):
    out = []
    for row in rows:
        name, kind, args, value, continuous, rule = row[:6]
        if kind == "r":
            f = REAL_F[name]
            margs = [mp.mpf(a) for a in args]
        elif name == "pow":
            f = lambda re, im, y: mp.exp(y * mp.log(mp.mpc(re, im)))
            margs = [mp.mpf(a) for a in args]
        else:
            g = row[6]
            f = lambda re, im, g=g: g(mp.mpc(re, im))
            margs = [mp.mpf(a) for a in args]
        b = bound_of(f, margs, continuous, rule)
        v = mp.mpc(value)
        cells = [name, kind] + [fmt(a) for a in args] + [""] * (4 - len(args))
        cells += [fmt(mp.re(v)), fmt(mp.im(v)), "%.3g" % b]
        out.append(cells)
    return out


def write(name, header, rows):
    path = os.path.join(HERE, name)
    with open(path, "w") as out:
        out.write("# " + header + "\n")
        for cells in rows:
            out.write(",".join(cells) + "\n")
    print("%-26s %6d rows" % (name, len(rows)))


HEADER = "name,kind,a,b,c,d,re,im,bound"

if __name__ == "__main__":
    write("elementary_reference.csv", HEADER, finish_elementary(elementary_rows()))
