#!/usr/bin/python3
"""Reference values for the engine's own special-function kernels.

Computed with mpmath at 50 significant digits (more where a formula would
otherwise lose digits) at the exact binary values of the double arguments,
and written as CSV files beside this script:

  struve.csv          nu, x, Re H, Im H, scale
  lambertw.csv        kind, Re z, Im z, Re W, Im W
  hyp2f1.csv          a, b, c, Re z, Im z, Re F, Im F
  fermidirac.csv      j, x, F
  fresnel_dawson.csv  x, S, C, Dawson

Every number is printed with 17 significant digits, so that the double read
back is the double nearest to the reference.

Run:  /usr/bin/python3 make_special_reference.py
The random points come from fixed seeds; a run reproduces the files exactly.
"""

import math
import os
import random

import mpmath as mp

mp.mp.dps = 50
HERE = os.path.dirname(os.path.abspath(__file__))


def fmt(v):
    """A double as text that reads back to the same double."""
    v = float(v)
    if math.isnan(v):
        return "nan"
    if math.isinf(v):
        return "inf" if v > 0 else "-inf"
    return "%.17g" % v


def write(name, header, rows):
    path = os.path.join(HERE, name)
    with open(path, "w") as out:
        out.write("# " + header + "\n")
        for row in rows:
            out.write(",".join(fmt(v) for v in row) + "\n")
    print("%-20s %5d rows" % (name, len(rows)))


def mpc(re, im):
    return mp.mpc(mp.mpf(re), mp.mpf(im))


# ------------------------------------------------------------------ Struve --
# The last column is the scale the error is measured against: |H| itself,
# except where H passes close to one of its zeros on the oscillating range,
# where it is a thousandth of the Bessel modulus sqrt(J^2 + Y^2) (the size of
# the oscillation), so that such points are checked absolutely.

def struve_rows():
    orders = [0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 0.5, 1.5, 2.5, 0.25, 0.75, 1.3, 2.7,
              7.3, 11.5, 12, 20, -0.3, -0.5, -0.7, -0.9, -1, -1.5, -2.3, -2.5]
    xs = [1e-5, 0.01, 0.3, 1, 2.5, 5, 8, 12, 17, 25, 33, 37.9, 38.1, 44.5, 60, 120,
          1000, 12345.6, -0.5, -3, -20, -50, -1000]
    rows = []
    for nu in orders:
        for x in xs:
            h = mp.struveh(mp.mpf(nu), mp.mpf(x))
            h = mp.mpc(h)
            scale = abs(h)
            ax = abs(x)
            if ax > max(2.0, abs(nu) + 1.0):
                modulus = mp.sqrt(mp.besselj(nu, ax) ** 2 + mp.bessely(nu, ax) ** 2)
                scale = max(scale, modulus / 1000)
            rows.append((nu, x, h.real, h.imag, scale))
    return rows


# ---------------------------------------------------------------- Lambert W --
# kind 0: the real kernel (real z at or above -1/e; the double nearest to -1/e
#         is the branch point with W = -1 there by definition);
# kind 1: the complex kernel.

BRANCH = -0.36787944117144233


def lambert_rows():
    rows = [(0, BRANCH, 0.0, -1.0, 0.0)]
    real_x = [BRANCH + k * 5.551115123125783e-17 for k in range(1, 6)]
    real_x += [BRANCH + 10.0 ** -e for e in range(16, 0, -1)]
    real_x += [-0.35, -0.3, -0.2, -0.1, -1e-3, -1e-5, -1e-9, -1e-300, 1e-300, 1e-10,
               9.9e-5, 1.01e-4, 0.5, 1, 2.5, 3, math.e, 10, 100, 1e5, 1e20, 1e100,
               1e300, 1.7e308]
    for x in real_x:
        w = mp.lambertw(mp.mpf(x))
        rows.append((0, x, 0.0, mp.re(w), mp.im(w)))
    rng = random.Random(1)
    points = [(x, 0.0) for x in [-0.5, -0.37, -0.368, BRANCH, BRANCH - 1e-16, BRANCH - 1e-12,
                                 -1, -2.5, -100, -1e10, -1e300, 0.25, 7]]
    for _ in range(120):
        r = 10 ** rng.uniform(-6, 5)
        t = rng.uniform(-math.pi, math.pi)
        points.append((r * math.cos(t), r * math.sin(t)))
    for _ in range(60):
        r = 10 ** rng.uniform(-17, 0)
        t = rng.uniform(-math.pi, math.pi)
        points.append((BRANCH + r * math.cos(t), r * math.sin(t)))
    for _ in range(40):
        points.append((rng.uniform(-4, 2), rng.choice([1, -1]) * 10 ** rng.uniform(-12, 0.5)))
    for x, y in points:
        w = mp.lambertw(mpc(x, y))
        rows.append((1, x, y, mp.re(w), mp.im(w)))
    return rows


# ------------------------------------------------------------ Gauss 2F1 -----
# A point on the cut z > 1 takes the limit from below, as mpmath does. The
# random parameters stay within [-5, 5]; differences a - b and c - a - b are
# either whole or at least 1e-3 away from a whole number (closer than that,
# but not at it, the kernel's accuracy is lower; see docs/ACCURACY.md).

def random_parameter(rng):
    k = rng.random()
    if k < 0.25:
        return float(rng.randint(-5, 5))
    if k < 0.4:
        return rng.randint(-5, 5) + 0.5
    return round(rng.uniform(-5, 5), 3)


def random_z(rng):
    k = rng.random()
    if k < 0.2:
        return complex(rng.uniform(-1, 1), rng.uniform(-1, 1))
    if k < 0.35:
        r = 10 ** rng.uniform(-6, -0.3)
        t = rng.uniform(-math.pi, math.pi)
        return 1 + r * complex(math.cos(t), math.sin(t))
    if k < 0.5:
        t = rng.choice([1, -1]) * math.pi / 3 + rng.uniform(-0.2, 0.2)
        return rng.uniform(0.8, 1.2) * complex(math.cos(t), math.sin(t))
    if k < 0.65:
        r = 10 ** rng.uniform(0, 4)
        t = rng.uniform(-math.pi, math.pi)
        return r * complex(math.cos(t), math.sin(t))
    if k < 0.8:
        return complex(rng.uniform(-20, 1), 0.0)
    return complex(rng.uniform(1, 20), 0.0)


def near_whole(v):
    d = abs(v - round(v))
    return 1e-12 < d < 1e-3


def hyp2f1_rows():
    rng = random.Random(2)
    cases = []
    while len(cases) < 330:
        a, b, c = random_parameter(rng), random_parameter(rng), random_parameter(rng)
        if c <= 0 and c == int(c):
            continue
        if near_whole(a - b) or near_whole(c - a - b):
            continue
        z = random_z(rng)
        cases.append((a, b, c, z.real, z.imag))
    # whole parameter differences: logarithmic cases near 1 and at infinity
    for z in [0.999, 0.9, 1 - 1e-9, 1.5, 1.01 + 0.02j, 0.95 - 0.2j, 1 + 1e-6j, 1.3]:
        for a, b, c in [(1, 1, 2), (0.5, 0.5, 1), (0.3, 0.7, 1.0), (1.5, 2.25, 2.75),
                        (0.25, 1.25, 3.5), (2.5, 1.5, 1)]:
            cases.append((a, b, c, z.real, z.imag))
    for z in [-10, -1e3, 30, 5 + 7j, -4 - 0.5j, 2e4j]:
        for a, b, c in [(1, 1, 2), (0.5, 1.5, 2.5), (1.25, 3.25, 0.5), (-1.5, -1.5, 2.2),
                        (2, 2, 3)]:
            z = complex(z)
            cases.append((a, b, c, z.real, z.imag))
    # polynomials, Euler's case and parameters at the edges
    for a, b, c, z in [(-3, 2.5, 1.5, 0.7), (-3, 2.5, 1.5, 50), (-7, 1.2, -7.5, 0.99 + 0.01j),
                       (-2, 1, -3, 0.5), (-4, -6, -5, 3 - 2j), (-10, 0.5, 1.5, -1e3),
                       (1.5, 2.5, -0.5, 0.3), (0.7, 3, 1, 0.6), (2, 3.5, 0.5, -0.4 + 0.3j),
                       (1, 1, 2, 1e-10), (0.5, 0.25, 3, 1.0), (2, 1, 4.5, 1.0)]:
        z = complex(z)
        cases.append((a, b, c, z.real, z.imag))
    rows = []
    for a, b, c, x, y in cases:
        f = mp.hyp2f1(a, b, c, mpc(x, y))
        rows.append((a, b, c, x, y, mp.re(f), mp.im(f)))
    return rows


# ----------------------------------------------------------- Fermi-Dirac ----
# -Li_(j+1)(-exp x); for very negative x the working precision grows so that
# 1 + exp(x) keeps its digits.

def fermi_rows():
    js = [-0.99, -0.9, -0.5, -0.2, 0, 0.5, 1, 1.5, 2, 2.5, 3, 3.7, 5, 7.5, 10, 12.3, 20]
    xs = [-700, -100, -30, -5, -2, -1.0000001, -1, -0.999, -0.5, -0.1, 0, 1e-8, 0.1, 0.5,
          0.999, 1, 1.5, 1.999, 2, 3, 5, 10, 20, 30, 45, 49.9, 50, 50.1, 60, 100, 1e3, 1e5, 1e8]
    points = [(j, x) for j in js for x in xs]
    # large indices, where t^j and Gamma(j+1) no longer fit in a double
    points += [(j, x) for j in [50.5, 150.5] for x in [-5, 0, 1.9, 10, 60, 150, 250, 500]]
    rows = []
    for j, x in points:
        with mp.workdps(50 + int(max(0.0, -x) / 2.3)):
            v = -mp.polylog(mp.mpf(j) + 1, -mp.exp(mp.mpf(x)))
        rows.append((j, x, mp.re(v)))
    return rows


# ------------------------------------------------------ Fresnel, Dawson ------

def fresnel_dawson_rows():
    rng = random.Random(3)
    xs = [1e-300, 1e-150, 1e-100, 1e-20, 1e-8, 1e-3, 0.1, 0.3, 0.49, 0.5, 0.51, 0.7, 1,
          1.2, 1.49, 1.5, 1.51, 1.7, 2, 2.5, 3, 4, 5, 7, 10, 15, 30, 49.9, 50, 50.1, 100,
          1e3, 1e4, 12345.678, 1e6, 1e8, 1e10, 1e15, 1e16, 1e17, 1e18, 1e30, 1e100, 1e300]
    xs += [rng.uniform(0, 10) for _ in range(100)]
    xs += [10 ** rng.uniform(0, 8) for _ in range(60)]
    xs += [-x for x in xs[:30]]
    rows = []
    for x in xs:
        # large x: pi/2 x^2 needs the digits of x^2 and then some
        extra = int(2 * math.log10(abs(x))) + 10 if abs(x) > 1 else 0
        with mp.workdps(50 + extra):
            t = mp.mpf(x)
            s = mp.fresnels(t)
            c = mp.fresnelc(t)
            d = mp.sqrt(mp.pi) / 2 * mp.exp(-t * t) * mp.erfi(t)
        rows.append((x, s, c, d))
    return rows


if __name__ == "__main__":
    write("struve.csv", "nu,x,re,im,scale", struve_rows())
    write("lambertw.csv", "kind,re_z,im_z,re,im", lambert_rows())
    write("hyp2f1.csv", "a,b,c,re_z,im_z,re,im", hyp2f1_rows())
    write("fermidirac.csv", "j,x,value", fermi_rows())
    write("fresnel_dawson.csv", "x,S,C,dawson", fresnel_dawson_rows())
