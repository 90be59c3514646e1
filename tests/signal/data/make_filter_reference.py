#!/usr/bin/python3
"""Reference values of the filter designs and running filters.

Run offline with Debian's python3-scipy and python3-numpy:
    /usr/bin/python3 make_filter_reference.py > filter_reference.tsv

Each line is: kind, a comma-separated list of parameters, then one or more
comma-separated arrays, all separated by tabs. Numbers are written with 17
significant digits so that they read back as the same doubles.

- window: the window formulas evaluated in NumPy (Bartlett by repeated
  addition, as the engine builds it).
- firwin: rectangular windowed-sinc FIRs of odd order from scipy's firwin
  (boxcar window, no scaling). Kind 1 lowpass, 3 highpass, 2 bandpass,
  5 bandstop.
- hilbert: the band Hilbert transformer's taps from the NumPy formula.
- lfilter_fir / lfilter_iir: a signal through scipy's lfilter.
- iir: scipy's butter, cheby1, cheby2 and ellip. The engine rounds the
  pass-band tolerance of Chebyshev I (eps = sqrt(10^(rp/10) - 1)) to single
  precision and the elliptic pass and stop levels 10^(-r/20) to a
  single-precision exponent; scipy is given the ripples that these rounded
  values stand for.
- remez: scipy's remez with 40 iterations at the same grid density.
- freqz / iirfreqz: scipy's freqz at w_k = k pi omega / size, k < size.
- groupdelay / phasedelay: the delays at w_k = k pi / size from mpmath.
"""

import math
import sys

import mpmath
import numpy as np
from scipy import signal

out = sys.stdout


def fmt(values):
    return ",".join(repr(float(v)) for v in np.ravel(values))


def row(kind, params, *arrays):
    out.write(kind + "\t" + fmt(params) + "".join("\t" + fmt(a) for a in arrays) + "\n")


# --- windows -----------------------------------------------------------------
def window(t, n):
    w = np.zeros(n)
    half = n // 2
    centre_k = (n - 1) // 2
    half_width = (n + 1) // 2
    bartlett = 0.0
    if t in (11, 12):
        c = ([0.35874998569488525, 0.488290011882782, 0.14127999544143677, 0.011680000461637974]
             if t == 11 else
             [0.36358189582824707, 0.48917749524116516, 0.13659949600696564, 0.010641099885106087])
        for i in range(n):
            a = 2 * math.pi / (n - 1) * (i + 0.5)
            w[i] = c[0] - c[1] * math.cos(a) + c[2] * math.cos(2 * a) - c[3] * math.cos(3 * a)
        return w
    for i in range((n - 1) // 2 + 1):
        c = math.cos(2 * math.pi * i / n)
        k = (i - centre_k) / half_width
        if t == 0:
            v = 1.0
        elif t == 1:
            v = 0.5 - 0.5 * c
        elif t == 2:
            v = 1 - k * k
        elif t == 3:
            v = 1 - abs(k)
        elif t == 4:
            v = bartlett
            bartlett += 1.0 / half if half else math.inf
        elif t == 5:
            v = 0.54 - 0.46 * c
        elif t == 6:
            v = 0.34401 - 0.49755 * c + 0.15844 * c * c
        elif t == 7:
            v = 0.21747 - 0.45325 * c + 0.28256 * c * c - 0.04672 * c ** 3
        elif t == 8:
            v = 0.084037 - 0.29145 * c + 0.375696 * c * c - 0.20762 * c ** 3 + 0.041194 * c ** 4
        elif t == 9:
            v = (1 + math.log(2) / half) ** i - 1 if half else 0.0
        else:
            if i == half:
                v = 1.0
            else:
                x = (half - i) * 2 * math.pi / n
                v = math.sin(x) / x
        w[i] = v
        w[n - 1 - i] = v
    return w


for t in range(13):
    for n in (1, 2, 7, 8, 33):
        if t in (11, 12) and n == 1:
            continue
        row("window", [t, n], window(t, n))

# --- windowed-sinc FIRs --------------------------------------------------------
for order in (1, 5, 31, 101):
    for f in (0.05, 0.25, 0.45):
        row("firwin", [1, f, 0, order], signal.firwin(order, 2 * f, window="boxcar", scale=False))
        row("firwin", [3, f, 0, order],
            signal.firwin(order, 2 * f, window="boxcar", scale=False, pass_zero=False))
    for f1, f2 in ((0.1, 0.2), (0.05, 0.45)):
        row("firwin", [2, f1, f2, order],
            signal.firwin(order, [2 * f1, 2 * f2], window="boxcar", scale=False, pass_zero=False))
        row("firwin", [5, f1, f2, order],
            signal.firwin(order, [2 * f1, 2 * f2], window="boxcar", scale=False, pass_zero=True))

for order, wnum in ((31, 0), (32, 1), (15, 5)):
    for f1, f2 in ((0.1, 0.4), (0.05, 0.2)):
        w = window(wnum, order)
        m = (order - 1) / 2
        b = (f2 - f1) / 2
        h = np.zeros(order)
        for i in range(order):
            k = i - m
            t = 2 * b if k == 0 else math.sin(2 * math.pi * b * k) / (math.pi * k) * w[i]
            h[i] = 2 * math.sin(math.pi * (f1 + f2) * k) * t
        row("hilbert", [f1, f2, order, wnum], h)

# --- running filters -------------------------------------------------------------
rng = np.random.default_rng(20261124)
x = rng.standard_normal(2000)
h = signal.firwin(16, 0.3)
row("lfilter_fir", [len(h)], x, h, signal.lfilter(h, [1.0], x))
b, a = signal.butter(4, 0.2)
row("lfilter_iir", [len(a)], x, b, a, signal.lfilter(b, a, x))


# --- IIR designs ---------------------------------------------------------------------
def cheby1_ripple(rp):
    ex = np.float32(rp / 10.0)
    pw = np.float32(10.0 ** float(ex))
    eps = float(np.sqrt(pw - np.float32(1.0)))
    return 10 * math.log10(1 + eps * eps)


def elliptic_level(r):
    # The level 10^(-r/20) with a single-precision exponent, as decibels.
    return -20.0 * float(np.float32(-r / 20.0))


rate = 1000.0
kinds = {"low": "lowpass", "high": "highpass", "pass": "bandpass", "stop": "bandstop"}
tcode = {"low": 0, "high": 1, "pass": 0, "stop": 1}
fam = {"butter": 0, "cheby1": 1, "cheby2": 2, "ellip": 3}
for order in range(1, 11):
    for t in ("low", "high", "pass", "stop"):
        e1, e2 = (120.0, 0.0) if t in ("low", "high") else (100.0, 230.0)
        wn = 2 * e1 / rate if t in ("low", "high") else [2 * e1 / rate, 2 * e2 / rate]
        b, a = signal.butter(order, wn, kinds[t])
        row("iir", [fam["butter"], tcode[t], order, e1, e2, 0, 0, rate], b, a)
        rp, rs = 1.5, 40.0
        b, a = signal.cheby1(order, cheby1_ripple(rp), wn, kinds[t])
        row("iir", [fam["cheby1"], tcode[t], order, e1, e2, rp, 0, rate], b, a)
        b, a = signal.cheby2(order, rs, wn, kinds[t])
        row("iir", [fam["cheby2"], tcode[t], order, e1, e2, rs, 0, rate], b, a)
        b, a = signal.ellip(order, elliptic_level(rp), elliptic_level(rs), wn, kinds[t])
        row("iir", [fam["ellip"], tcode[t], order, e1, e2, rp, rs, rate], b, a)

# --- Parks-McClellan ---------------------------------------------------------------------
remez_cases = [
    (31, 16, 0, [0, 0.2, 0.3, 0.5], [1, 0], [1, 1]),
    (32, 16, 0, [0, 0.1, 0.15, 0.35, 0.4, 0.5], [0, 1, 0], [10, 1, 10]),
    (33, 16, 0, [0, 0.25, 0.3, 0.5], [0, 1], [1, 3]),
    (25, 8, 0, [0, 0.15, 0.25, 0.5], [1, 0], [1, 1]),
    (31, 16, 2, [0.05, 0.45], [1], [1]),
    (30, 16, 2, [0.05, 0.5], [1], [1]),
    (30, 16, 1, [0, 0.45], [1], [1]),
    # A long filter whose ripple (1.6e-8) starts out below the rounding of
    # the first references.
    (201, 16, 0, [0, 0.2, 0.25, 0.5], [1, 0], [1, 1]),
]
tnames = {0: "bandpass", 1: "differentiator", 2: "hilbert"}
for numtaps, density, t, bands, desired, weight in remez_cases:
    taps = signal.remez(numtaps, bands, desired, weight=weight, type=tnames[t], maxiter=40,
                        grid_density=density, fs=1.0)
    responses = np.repeat(desired, 2)
    row("remez", [numtaps, density, t], bands, responses, weight, taps)

# --- responses -----------------------------------------------------------------------------
h = signal.firwin(21, 0.3)
for size, omega in ((16, 1.0), (50, 0.5)):
    w = np.arange(size) * math.pi * omega / size
    _, H = signal.freqz(h, 1, worN=w)
    row("freqz", [size, omega], h, np.maximum(np.abs(H), 1e-12))
b, a = signal.ellip(4, 1.0, 40.0, 0.3)
for size, omega in ((16, 1.0), (64, 0.5)):
    w = np.arange(size) * math.pi * omega / size
    _, B = signal.freqz(b, 1, worN=w)
    _, A = signal.freqz(a, 1, worN=w)
    row("iirfreqz", [size, omega], b, a, np.maximum(np.abs(B), 1e-12) / np.maximum(np.abs(A), 1e-12))


def exact_delays(b, a, w):
    """Group and phase delay of B/A at the points, evaluated with mpmath at 40
    digits from the double coefficients (scipy's group_delay loses digits
    where B is small); 0 where |A| or |B| is below 1e-12."""
    mpmath.mp.dps = 40
    group = []
    phase = []
    for wk in w:
        z = mpmath.exp(-1j * mpmath.mpf(float(wk)))
        B = sum(mpmath.mpf(float(c)) * z ** n for n, c in enumerate(b))
        A = sum(mpmath.mpf(float(c)) * z ** n for n, c in enumerate(a))
        Bw = sum(n * mpmath.mpf(float(c)) * z ** n for n, c in enumerate(b))
        Aw = sum(n * mpmath.mpf(float(c)) * z ** n for n, c in enumerate(a))
        small = abs(B) < 1e-12 or abs(A) < 1e-12
        group.append(0.0 if small else float(mpmath.re(Bw / B) - mpmath.re(Aw / A)))
        phase.append(float(mpmath.arg(B) - mpmath.arg(A)))
    group = np.array(group)
    phi = np.unwrap(np.array(phase))
    pd = np.empty(len(w))
    pd[0] = group[0]
    pd[1:] = -phi[1:] / w[1:]
    for k, wk in enumerate(w):
        if group[k] == 0.0:
            pd[k] = 0.0
    return group, pd


for b, a in (signal.butter(5, 0.25), signal.cheby1(3, 1.0, [0.2, 0.5], "bandpass")):
    size = 40
    w = np.arange(size) * math.pi / size
    gd, pd = exact_delays(b, a, w)
    row("groupdelay", [size], b, a, gd)
    row("phasedelay", [size], b, a, pd)
