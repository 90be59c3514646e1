#!/usr/bin/env python3
"""Reference transforms made with NumPy and SciPy.

Each file holds blocks of lines "case,index,in_re,in_im,out_re,out_im"; a
case is named kind_size. The inputs are pseudo-random numbers stored with
the outputs, so that the tests read both.
  fft_reference.csv      numpy.fft.fft of real (r) and complex (c) inputs
  fft2_reference.csv     numpy.fft.fft2; case fft2_RxC, index row-major
  dct_reference.csv      scipy.fft.dct(norm='ortho') of real inputs (im 0)
  fwht_reference.csv     Walsh-Hadamard coefficients / n, from
                         scipy.linalg.hadamard, in Hadamard (had) and
                         sequency (seq) order
Run: python3 make_transform_reference.py (from this directory)."""
import numpy as np
from scipy.fft import dct
from scipy.linalg import hadamard

rng = np.random.default_rng(20261124)


def write(name, cases):
    with open(name, "w") as out:
        out.write("# case,index,in_re,in_im,out_re,out_im: made by make_transform_reference.py\n")
        for case, x, y in cases:
            for i, (a, b) in enumerate(zip(x, y)):
                out.write("%s,%d,%r,%r,%r,%r\n" % (case, i, float(a.real), float(a.imag), float(b.real), float(b.imag)))


cases = []
for n in [4, 5, 8, 12, 17, 64, 97, 1000, 1024]:
    x = rng.uniform(-1, 1, n)
    cases.append(("r_%d" % n, x.astype(complex), np.fft.fft(x)))
    z = rng.uniform(-1, 1, n) + 1j * rng.uniform(-1, 1, n)
    cases.append(("c_%d" % n, z, np.fft.fft(z)))
write("fft_reference.csv", cases)

cases = []
for r, c in [(4, 4), (8, 16), (5, 6), (4, 17)]:
    m = rng.uniform(-1, 1, (r, c)) + 1j * rng.uniform(-1, 1, (r, c))
    cases.append(("fft2_%dx%d" % (r, c), m.reshape(-1), np.fft.fft2(m).reshape(-1)))
write("fft2_reference.csv", cases)

cases = []
for n in [1, 2, 3, 4, 5, 7, 8, 12, 17, 64, 100]:
    x = rng.uniform(-1, 1, n)
    cases.append(("dct_%d" % n, x.astype(complex), dct(x, norm="ortho").astype(complex)))
write("dct_reference.csv", cases)


cases = []
for n in [2, 8, 16, 64]:
    x = rng.uniform(-1, 1, n)
    h = hadamard(n) @ x / n
    # Sequency order: rows sorted by their number of sign changes.
    changes = [int(np.sum(np.diff(np.sign(row)) != 0)) for row in hadamard(n)]
    seq = h[np.argsort(changes)]
    cases.append(("had_%d" % n, x.astype(complex), h.astype(complex)))
    cases.append(("seq_%d" % n, x.astype(complex), seq.astype(complex)))
write("fwht_reference.csv", cases)
