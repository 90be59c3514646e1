#!/usr/bin/env python3
"""Reference values of the probability distributions from scipy.stats.
Writes distribution_reference.tsv:

    function <TAB> x or p <TAB> parameter 1 <TAB> parameter 2 <TAB> expected

with an empty third column for families of one parameter. Run with python3
from this directory.
"""
from scipy import stats

rows = []

def add(name, x, params, value):
    cells = [name, repr(float(x))] + [repr(float(v)) for v in params]
    if len(params) == 1:
        cells.append("")
    cells.append(repr(float(value)))
    rows.append("\t".join(cells))

def family(prefix, dist, xs, ps, grid, inverse_ps=None):
    for params in grid:
        d = dist(*params)
        for x in xs:
            add(prefix + "dens", x, params, d.pmf(x) if hasattr(d, "pmf") else d.pdf(x))
            add(prefix + "dist", x, params, d.cdf(x))
        for p in (inverse_ps if inverse_ps is not None else ps):
            add(prefix + "inv", p, params, d.ppf(p))

tails = [1e-300, 1e-100, 1e-20, 1e-5, 1e-3, 0.02, 0.3, 0.5, 0.77, 0.999, 1 - 1e-10]
family("normal", lambda m, s: stats.norm(m, s),
       [-30.0, -8.0, -6.5, -5.0, -3.0, -1.5, 0.0, 0.7, 2.0, 4.0, 7.0], tails,
       [(0.0, 1.0), (3.5, 0.5), (-2.0, 20.0)])
family("t", lambda df: stats.t(df), [-40.0, -5.0, -1.3, 0.2, 1.0, 3.0, 10.0],
       [0.001, 0.05, 0.3, 0.7, 0.975, 0.999], [(0.5,), (1.0,), (2.5,), (7.0,), (30.0,), (150.0,)])
family("chi", lambda df: stats.chi2(df), [0.01, 0.05, 0.5, 1.0, 3.0, 8.0, 20.0],
       [0.001, 0.05, 0.5, 0.9, 0.999], [(0.5,), (1.0,), (1.7,), (2.0,), (5.0,), (12.0,), (40.0,)])
# The gamma cumulative integrates in one panel: x is given in units of the
# scale, up to ten of them, where the rule keeps its precision.
for b in (0.5, 1.0, 3.0):
    family("gamma", lambda a, b: stats.gamma(a, scale=b), [u * b for u in (0.02, 0.3, 1.0, 2.5, 6.0, 10.0)],
           [0.001, 0.1, 0.5, 0.9, 0.999], [(a, b) for a in (0.4, 1.0, 2.5, 7.0)])
family("beta", lambda a, b: stats.beta(a, b), [1e-3, 0.05, 0.3, 0.5, 0.72, 0.99],
       [1e-3, 0.1, 0.5, 0.9, 0.999],
       [(a, b) for a in (0.5, 1.0, 2.5, 6.0) for b in (0.5, 1.0, 2.5, 6.0)])
family("f", lambda d1, d2: stats.f(d1, d2), [0.05, 0.5, 1.0, 2.0, 6.0, 30.0],
       [1e-3, 0.1, 0.5, 0.9, 0.99],
       [(d1, d2) for d1 in (1.0, 3.0, 10.0) for d2 in (2.0, 7.0, 25.0)])
family("poisson", lambda r: stats.poisson(r), [0, 1, 3, 7, 15, 40],
       [1e-3, 0.3, 0.5, 0.9, 0.999], [(0.1,), (1.0,), (4.5,), (12.0,), (30.0,)])
family("geometric", lambda p: stats.geom(p), [1, 2, 5, 20, 100],
       [1e-3, 0.3, 0.5, 0.9, 0.999], [(0.01,), (0.2,), (0.5,), (0.9,)])
family("logarithmic", lambda p: stats.logser(p), [1, 2, 5, 20],
       [1e-3, 0.3, 0.5, 0.9, 0.999], [(0.01,), (0.3,), (0.7,), (0.95,)])
family("exponential", lambda r: stats.expon(scale=1.0 / r), [0.0, 1e-8, 0.3, 2.0, 40.0],
       [1e-10, 0.1, 0.5, 0.9, 1 - 1e-9], [(0.05,), (1.0,), (7.0,)])
family("dblexponential", lambda m, s: stats.laplace(m, s), [-50.0, -1.0, 0.0, 0.4, 3.0, 200.0],
       [1e-200, 0.1, 0.5, 0.9, 1 - 1e-9], [(0.0, 1.0), (2.0, 0.25), (-1.0, 9.0)])
family("cauchy", lambda m, s: stats.cauchy(m, s), [-1e6, -3.0, 0.0, 0.4, 3.0, 1e3],
       [1e-12, 0.1, 0.5, 0.9, 1 - 1e-9], [(0.0, 1.0), (2.0, 0.25), (-1.0, 9.0)])

with open("distribution_reference.tsv", "w") as f:
    f.write("\n".join(rows) + "\n")
