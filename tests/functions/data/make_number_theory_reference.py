#!/usr/bin/env python3
"""Reference values of the whole-number functions, made with SymPy and
mpmath. The worksheet functions compute in 32-bit signed integers that wrap,
so every exact count is stored reduced modulo 2^32 and read as signed.

Writes number_theory_reference.csv: name,a,b,value (b is 0 where unused).
Run: python3 make_number_theory_reference.py (from this directory)."""
import mpmath
from sympy import binomial, bell, fibonacci, npartitions, prime, nextprime, prevprime, factorint
from sympy.functions.combinatorial.numbers import stirling

mpmath.mp.dps = 40


def wrap32(v):
    v = int(v) % 2**32
    return v - 2**32 if v >= 2**31 else v


def wrap64(v):
    v = int(v) % 2**64
    return v - 2**64 if v >= 2**63 else v


def k_partitions(n, k):
    # Partitions of n into parts no larger than k, by the generating product.
    p = [1] + [0] * n
    for part in range(1, min(n, k) + 1):
        for j in range(part, n + 1):
            p[j] += p[j - part]
    return p[n] if k >= 1 or n == 0 else (1 if n == 0 else 0)


rows = []
for n in range(0, 41):
    for k in range(0, n + 1):
        rows.append(("binomial", n, k, wrap32(binomial(n, k))))
for n, k in [(100, 50), (1000, 500), (2**31 - 1, 2), (2**31 - 1, 1000), (65536, 32768), (123456, 777)]:
    rows.append(("binomial", n, k, wrap32(binomial(n, k))))
for n in range(0, 61):
    rows.append(("bell", n, 0, wrap32(bell(n))))
rows.append(("bell", 500, 0, wrap32(bell(500))))
for n in range(0, 26):
    for k in range(0, n + 1):
        rows.append(("stirling1s", n, k, wrap32(stirling(n, k, kind=1, signed=True))))
        rows.append(("stirling1u", n, k, wrap32(stirling(n, k, kind=1))))
        rows.append(("stirling2", n, k, wrap32(stirling(n, k, kind=2))))
for n in range(0, 201):
    rows.append(("partitions", n, 0, wrap32(npartitions(n))))
rows.append(("partitions", 5000, 0, wrap32(npartitions(5000))))
rows.append(("partitions", 10000, 0, wrap32(npartitions(10000))))
for n in range(0, 31):
    for k in range(0, 32):
        rows.append(("kpartitions", n, k, wrap32(k_partitions(n, k))))
rows.append(("kpartitions", 3000, 17, wrap32(k_partitions(3000, 17))))
for n in range(0, 101):
    rows.append(("fibonacci", n, 0, wrap64(fibonacci(n))))
rows.append(("fibonacci", 1000000, 0, wrap64(fibonacci(1000000))))
for n in [1, 2, 3, 4, 5, 6, 10, 25, 100, 168, 169, 1000, 1229, 1230, 9592, 10000, 78498, 100000, 1000000]:
    rows.append(("nthprime", n, 0, int(prime(n))))
for n in [-5, 0, 1, 2, 3, 24, 89, 113, 9973, 10000, 1000000, 2147483628]:
    rows.append(("nextprime", n, 0, int(nextprime(n))))
for n in [3, 4, 5, 90, 114, 10000, 1000000, 2147483647]:
    rows.append(("prevprime", n, 0, int(prevprime(n))))
for n in [2, 12, 360, 1001, 9973, 65536, 123456789, 2147483647, 2147483646, 1073676289, 999999937 * 2]:
    f = factorint(n)
    flat = [p for p in sorted(f) for _ in range(f[p])]
    rows.append(("factor", n, len(flat), " ".join(map(str, flat))))
for l, k in [(0.5, 0), (1.0, 1), (2.5, 3), (10.0, 7), (3.7, 12), (0.001, 2), (20.0, 20), (7.25, 15)]:
    v = mpmath.exp(-l) * mpmath.mpf(l) ** k / mpmath.factorial(k)
    rows.append(("poisson", l, k, mpmath.nstr(v, 20)))

with open("number_theory_reference.csv", "w") as out:
    out.write("# name,a,b,value: made by make_number_theory_reference.py (SymPy, mpmath)\n")
    for r in rows:
        out.write(",".join(str(x) for x in r) + "\n")
