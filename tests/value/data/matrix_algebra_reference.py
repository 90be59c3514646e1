#!/usr/bin/env python3
"""Reference values for the matrix algebra tests of the value classes.

Determinants, inverses and products of fixed real matrices, computed by
mpmath at 50 significant digits from the exact double values of the entries.
Run from this directory:  python3 matrix_algebra_reference.py > matrix_algebra_reference.txt

Format, one case per line, numbers separated by blanks:
  det  n  a(0,0) ... a(n-1,n-1)  determinant
  inv  n  a(0,0) ... a(n-1,n-1)  inverse(0,0) ... inverse(n-1,n-1)
  prod m p q  a (m x p)  b (p x q)  c (m x q)
  idet n  a(0,0) ... a(n-1,n-1)  determinant       (whole entries, exact result)
  icof n  a(0,0) ... a(n-1,n-1)  cofactor(0,0) ...  (whole entries, exact results)
Entries are written with 17 significant digits (exact doubles), results with 25.
"""
import random

import mpmath

mpmath.mp.dps = 50
rng = random.Random(20240611)


def entry():
    # Values of mixed sign and magnitude, away from any special structure.
    return round(rng.uniform(-9.0, 9.0), rng.choice([1, 2, 3, 6]))


def exact(x):
    return repr(float(x))


def result(x):
    return mpmath.nstr(x, 25, min_fixed=-1, max_fixed=-1)


def matrix(rows, columns):
    return [[entry() for _ in range(columns)] for _ in range(rows)]


def flat(a):
    return [v for row in a for v in row]


lines = []
for n in range(1, 8):
    a = matrix(n, n)
    d = mpmath.det(mpmath.matrix(a))
    lines.append(" ".join(["det", str(n)] + [exact(v) for v in flat(a)] + [result(d)]))

for n in range(1, 6):
    a = matrix(n, n)
    inv = mpmath.inverse(mpmath.matrix(a))
    values = [inv[i, j] for i in range(n) for j in range(n)]
    lines.append(" ".join(["inv", str(n)] + [exact(v) for v in flat(a)] + [result(v) for v in values]))

for (m, p, q) in [(2, 3, 4), (4, 4, 4), (3, 5, 2), (6, 7, 5)]:
    a = matrix(m, p)
    b = matrix(p, q)
    c = mpmath.matrix(a) * mpmath.matrix(b)
    values = [c[i, j] for i in range(m) for j in range(q)]
    lines.append(" ".join(["prod", str(m), str(p), str(q)] + [exact(v) for v in flat(a)] +
                          [exact(v) for v in flat(b)] + [result(v) for v in values]))


def integer_matrix(n):
    return [[rng.randint(-9, 9) for _ in range(n)] for _ in range(n)]


def cofactors(a):
    n = len(a)
    if n == 1:
        return [[1]]
    result = []
    for i in range(n):
        row = []
        for j in range(n):
            minor = [[a[r][c] for c in range(n) if c != j] for r in range(n) if r != i]
            row.append((-1) ** (i + j) * mpmath.det(mpmath.matrix(minor)))
        result.append(row)
    return result


def whole(x):
    return str(int(mpmath.nint(x)))


for n in range(1, 8):
    a = integer_matrix(n)
    lines.append(" ".join(["idet", str(n)] + [str(v) for v in flat(a)] + [whole(mpmath.det(mpmath.matrix(a)))]))

for n in range(1, 6):
    a = integer_matrix(n)
    lines.append(" ".join(["icof", str(n)] + [str(v) for v in flat(a)] + [whole(v) for v in flat(cofactors(a))]))

print("\n".join(lines))
