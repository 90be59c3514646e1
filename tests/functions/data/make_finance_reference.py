#!/usr/bin/env python3
"""Reference values of the finance functions, at 50 digits with mpmath.

Each value comes from the cash flows themselves (sums over the periods, an
amortisation schedule, roots of the price equations, a numeric second
derivative), not from the closed forms the library uses.
Writes finance_reference.tsv: function name, arguments, expected value.
"""
import mpmath as mp

mp.mp.dps = 50


def pv(r, n, pmt, fv):
    return -(sum(pmt / (1 + r) ** t for t in range(1, n + 1)) + fv / (1 + r) ** n)


def fv(r, n, pmt, pv_):
    return -(pv_ * (1 + r) ** n + sum(pmt * (1 + r) ** (n - t) for t in range(1, n + 1)))


def pmt(r, n, pv_):
    return -pv_ / sum(1 / (1 + r) ** t for t in range(1, n + 1))


def schedule(r, per, n, pv_):
    p = pmt(r, n, pv_)
    balance = pv_
    for _ in range(per - 1):
        balance = balance * (1 + r) + p
    interest = -balance * r
    return interest, p - interest


def rate(n, p, pv_):
    return bisect(lambda r: pv_ + p * sum(1 / (1 + r) ** t for t in range(1, n + 1)), '-0.5', 1)


def nper(r, p, pv_):
    f = lambda n: pv_ * (1 + r) ** n + p * ((1 + r) ** n - 1) / r if r != 0 else pv_ + p * n
    return bisect(f, 0, 1000)


def flows(c, n):
    return [(t, c + (1 if t == n else 0)) for t in range(1, n + 1)]


def price(c, y, n):
    return sum(f / (1 + y) ** t for t, f in flows(c, n))


def duration(c, y, n):
    return sum(t * f / (1 + y) ** t for t, f in flows(c, n)) / price(c, y, n)


def convexity(c, y, n):
    return mp.diff(lambda x: price(c, x, n), y, 2) / price(c, y, n)


M = mp.mpf


def bisect(f, lo, hi):
    """Root of a monotone function by bisection: slow and sure."""
    lo, hi = mp.mpf(lo), mp.mpf(hi)
    flo = f(lo)
    for _ in range(250):
        mid = (lo + hi) / 2
        fm = f(mid)
        if (fm > 0) == (flo > 0):
            lo, flo = mid, fm
        else:
            hi = mid
    return (lo + hi) / 2

rows = []
for r in ['0.05', '0.0075', '0', '-0.02', '0.3']:
    for n in [1, 12, 30]:
        rows.append(('presentvalue', [r, n, '-100', '1000'], pv(M(r), n, M(-100), M(1000))))
        rows.append(('futurevalue', [r, n, '-100', '-1000'], fv(M(r), n, M(-100), M(-1000))))
        rows.append(('annualpayment', [r, n, '25000'], pmt(M(r), n, M(25000))))
        for per in sorted({1, (n + 1) // 2, n}):
            i, c = schedule(M(r), per, n, M(25000))
            rows.append(('interestpayment', [r, per, n, '25000'], i))
            rows.append(('capitalpayment', [r, per, n, '25000'], c))
for n, p, v in [(12, '-900', '10000'), (360, '-1073.64', '200000'), (5, '-180', '1000'), (10, '-95', '1000'),
                (24, '50', '-1000')]:
    rows.append(('rate', [n, p, v], rate(n, M(p), M(v))))
for r, p, v in [('0.01', '-500', '20000'), ('0.005', '-1073.64', '200000'), ('0', '-250', '1000'),
                ('-0.01', '-100', '900')]:
    rows.append(('numberofperiods', [r, p, v], nper(M(r), M(p), M(v))))
for c, y, n in [('0.04', '0.05', 10), ('0.08', '0.1', 10), ('0', '0.03', 20), ('0.05', '0.05', 7),
                ('0.06', '-0.01', 5), ('0.1', '0.1', 3)]:
    rows.append(('bondprice', [c, y, n], price(M(c), M(y), n)))
    rows.append(('bondduration', [c, y, n], duration(M(c), M(y), n)))
    rows.append(('bondconvexity', [c, y, n], convexity(M(c), M(y), n)))
for p, c, n in [('0.95', '0.04', 10), ('1.1', '0.06', 8), ('0.5', '0', 20), ('1', '0.05', 4)]:
    y = bisect(lambda x: price(M(c), x, n) - M(p), '-0.5', 1)
    rows.append(('bondyieldtomaturity', [p, c, n], y))
for c, y, years, k in [('0.06', '0.08', 5, 2), ('0.05', '0.05', 10, 1), ('0.07', '0.04', 3, 4)]:
    d = duration(M(c) / k, M(y) / k, years * k) / k
    rows.append(('bonddurationmodified', [c, y, years, k], d / (1 + M(y) / k)))

with open('finance_reference.tsv', 'w') as out:
    for name, args, value in rows:
        out.write('\t'.join([name] + [str(a) for a in args] + [mp.nstr(value, 20)]) + '\n')
