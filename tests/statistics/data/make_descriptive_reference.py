#!/usr/bin/env python3
"""Reference values of the descriptive statistics, computed with NumPy and
SciPy on fixed pseudo-random data. Writes descriptive_reference.tsv:

    function <TAB> parameter <TAB> data a <TAB> data b <TAB> expected

Data are comma-separated doubles in repr form; an empty parameter or second
data set means the function takes none. Run with python3 from this directory.
"""
import numpy as np
from scipy import stats

rng = np.random.default_rng(20261124)

sets = {
    "one": np.array([3.25]),
    "two": np.array([-1.5, 4.0]),
    "seven": rng.normal(10.0, 3.0, 7),
    "fifty": rng.exponential(2.0, 50),
    "ties": np.array([3.0, 1.0, 2.0, 3.0, 2.0, 5.0, 1.0, 7.0]),
    "constant": np.full(9, 0.1),
    "wide": rng.uniform(-1e6, 1e6, 101),
}
partner = {k: v * 0.75 + rng.normal(0.0, 1.0, v.size) + 2.0 for k, v in sets.items()}

def fmt(a):
    return ",".join(repr(float(v)) for v in a)

rows = []

def add(name, parameter, a, b, expected):
    rows.append("\t".join([name, "" if parameter is None else repr(float(parameter)), fmt(a),
                           "" if b is None else fmt(b), repr(float(expected))]))

for key, x in sets.items():
    n = x.size
    m = x.mean()
    add("average", None, x, None, m)
    add("variance", None, x, None, np.var(x))
    add("deviation", None, x, None, np.std(x))
    add("avgdev", None, x, None, np.mean(np.abs(x - m)))
    add("median", None, x, None, np.median(x))
    add("modus", None, x, None, stats.mode(x, keepdims=False).mode)
    if n > 1:
        add("varianceSample", None, x, None, np.var(x, ddof=1))
        add("deviationSample", None, x, None, np.std(x, ddof=1))
    if key not in ("one", "constant"):
        add("asymmetry", None, x, None, stats.skew(x, bias=True))
        for lag in (0, 1, n // 2):
            if lag < n:
                d = x - m
                add("autocorrelation", lag, x, None, np.sum(d[lag:] * d[:n - lag]) / np.sum(d * d))
        y = partner[key]
        add("correlation", None, x, y, np.corrcoef(x, y)[0, 1])
    for p in (0.0, 10.0, 25.0, 49.0):
        k = int(n * p / 100.0)
        if 2 * k < n:
            add("trimmean", p, x, None, np.sort(x)[k:n - k].mean())
    for p in (0.0, 1.0, 33.3, 50.0, 99.0, 100.0):
        add("percentile", p, x, None, np.percentile(x, p, method="inverted_cdf"))
    y = partner[key]
    if n > 1:
        add("covariance", None, x, y, np.cov(x, y)[0, 1])
    add("MeanSquareError", None, x, y, np.mean((x - y) ** 2))
    add("MeanAbsoluteError", None, x, y, np.mean(np.abs(x - y)))
    add("MeanPercentageError", None, x, y, np.mean((x - y) / x))
    add("MeanAbsolutePercentageError", None, x, y, np.mean(np.abs((x - y) / x)))

with open("descriptive_reference.tsv", "w") as f:
    f.write("\n".join(rows) + "\n")
