#!/usr/bin/env python3
"""Writes division_reference.tsv: quotients and remainders of random
polynomial pairs by SymPy's div, for the long division tests.

Each line: name, A, B, Q, R, exactExpected. A polynomial is written as terms
"c,a,b" (coefficient, power of x, power of y) joined by ";", in falling
powers of x, then of y; "0" is the zero polynomial. exactExpected is 1 when
the division leaves no remainder and the divisor has a single term of top
degree in its first symbol, with coefficient 1 or -1: the engine must then
find the quotient itself.

Run: python3 make_division_reference.py  (needs python3-sympy)
"""

import random

from sympy import Poly, div, symbols

x, y = symbols("x y")
random.seed(20261124)


def random_poly(gens, degree, terms, lead_unit=False):
    """A random polynomial with integer coefficients up to the degree."""
    p = 0
    for _ in range(terms):
        c = random.randint(-5, 5)
        if c == 0:
            c = 1
        if len(gens) == 1:
            p += c * x ** random.randint(0, degree)
        else:
            a = random.randint(0, degree)
            b = random.randint(0, degree - a)
            p += c * x**a * y**b
    if lead_unit:
        top = Poly(p, *gens).degree(gens[0]) if p != 0 else 0
        p += random.choice([1, -1]) * gens[0] ** (top + 1)
    return p


def encode(p):
    if p == 0:
        return "0"
    poly = Poly(p, x, y)
    terms = sorted(poly.terms(), key=lambda t: (-t[0][0], -t[0][1]))
    return ";".join("%.17g,%d,%d" % (float(c), m[0], m[1]) for m, c in terms)


def single_top_term(b):
    """The divisor's first symbol (in its written order), and whether its top
    degree in that symbol is held by one term with coefficient +-1."""
    poly = Poly(b, x, y)
    terms = sorted(poly.terms(), key=lambda t: (-t[0][0], -t[0][1]))
    first = None
    for m, _ in terms:
        if m[0] > 0:
            first = 0
            break
        if m[1] > 0:
            first = 1
            break
    if first is None:
        return False
    top = max(m[first] for m, _ in terms)
    tops = [(m, c) for m, c in terms if m[first] == top]
    return len(tops) == 1 and abs(int(tops[0][1])) == 1


def main():
    lines = []
    for i in range(150):
        gens = (x,) if i < 75 else (x, y)
        kind = i % 3
        if kind == 0:
            # Exact by construction, unit leading coefficient.
            b = random_poly(gens, 2, random.randint(1, 3), lead_unit=True)
            q = random_poly(gens, 3, random.randint(1, 4))
            if q == 0:
                q = 1
            a = (b * q).expand()
        elif kind == 1:
            # A product plus a small remainder.
            b = random_poly(gens, 2, random.randint(1, 3), lead_unit=True)
            q = random_poly(gens, 3, random.randint(1, 4))
            r = random_poly(gens, 1, 2)
            a = (b * q + r).expand()
        else:
            # Unrelated pairs.
            a = random_poly(gens, 6, random.randint(2, 6))
            b = random_poly(gens, 3, random.randint(2, 3))
        if b == 0 or Poly(b, x, y).is_ground or a == 0:
            a, b = (x + 1) * (x - 1), x - 1
            a = a.expand()
        q, r = div(a, b, x, y)
        exact = r == 0 and single_top_term(b)
        lines.append("\t".join(["pair%d" % i, encode(a), encode(b), encode(q.expand()), encode(r.expand()),
                                "1" if exact else "0"]))
    with open("division_reference.tsv", "w") as f:
        f.write("# name\tA\tB\tQ\tR\texactExpected (made by make_division_reference.py)\n")
        f.write("\n".join(lines) + "\n")


if __name__ == "__main__":
    main()
