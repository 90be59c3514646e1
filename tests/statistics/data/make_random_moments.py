#!/usr/bin/env python3
"""Theoretical moments of the random generators' distributions from
scipy.stats: mean, variance, skewness and excess kurtosis. Writes
random_moments.tsv:

    family <TAB> parameter 1 <TAB> parameter 2 <TAB> mean <TAB> variance <TAB> skewness <TAB> excess kurtosis

The parameters are those of the worksheet functions (rates, not scales,
where the worksheet takes a rate). The normal generator is the sum of twelve
uniforms, whose excess kurtosis is -0.1, not 0. Run with python3 here.
"""
from scipy import stats

cases = [
    ("u", (2.0, 5.0), stats.uniform(2.0, 3.0)),
    ("norm", (1.0, 2.0), None),
    ("exp", (0.5,), stats.expon(scale=2.0)),
    ("dblexp", (2.0,), stats.laplace(0.0, 0.5)),
    ("gamma", (0.4, 2.0), stats.gamma(0.4, scale=2.0)),
    ("gamma", (1.0, 3.0), stats.gamma(1.0, scale=3.0)),
    ("gamma", (3.5, 0.5), stats.gamma(3.5, scale=0.5)),
    ("beta", (0.7, 2.5), stats.beta(0.7, 2.5)),
    ("beta", (3.0, 4.0), stats.beta(3.0, 4.0)),
    ("chi2", (1.0,), stats.chi2(1.0)),
    ("chi2", (2.0,), stats.chi2(2.0)),
    ("chi2", (7.0,), stats.chi2(7.0)),
    ("f", (5.0, 20.0), stats.f(5.0, 20.0)),
    ("t", (12.0,), stats.t(12.0)),
    ("poisson", (3.2,), stats.poisson(3.2)),
    ("poisson", (800.0,), stats.poisson(800.0)),
    ("geometric", (0.3,), stats.geom(0.3)),
    ("logarithmic", (0.6,), stats.logser(0.6)),
]

with open("random_moments.tsv", "w") as f:
    for name, params, dist in cases:
        if dist is None:
            m, s = params
            moments = (m, s * s, 0.0, -0.1)
        else:
            moments = tuple(float(v) for v in dist.stats(moments="mvsk"))
        cells = [name] + [repr(p) for p in params] + ([""] if len(params) == 1 else []) + [repr(v) for v in moments]
        f.write("\t".join(cells) + "\n")
