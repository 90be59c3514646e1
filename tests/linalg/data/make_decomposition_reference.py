#!/usr/bin/python3
"""Reference eigenvalues and singular values for the decomposition tests.

Each line of decomposition_reference.txt is one case:
    kind rows columns  re(0..rows*columns-1)  im(...)  count  values...
kind "eig": the values are the eigenvalues as re im pairs (LAPACK zgeev
through scipy.linalg.eigvals). kind "svd": the singular values, largest
first (scipy.linalg.svdvals). The matrix is written row by row, real parts
first. Run: /usr/bin/python3 make_decomposition_reference.py
"""
import numpy as np
import scipy.linalg as sl

rng = np.random.default_rng(20261124)


def real(m, n):
    return rng.standard_normal((m, n))


def cplx(m, n):
    return rng.standard_normal((m, n)) + 1j * rng.standard_normal((m, n))


def hilbert(n):
    return sl.hilbert(n)


def low_rank(n, r):
    return real(n, r) @ real(r, n)


def spd(n):
    b = cplx(n, n)
    return b @ b.conj().T + n * np.eye(n)


cases = []
for n in (1, 2, 5, 17):
    cases.append(("eig", real(n, n)))
for n in (2, 5, 17):
    cases.append(("eig", cplx(n, n)))
cases.append(("eig", spd(6)))
cases.append(("eig", np.diag([3.0, 1.0, 2.0]) + np.triu(np.ones((3, 3)), 1)))
for m, n in ((1, 1), (2, 2), (5, 5), (17, 17), (7, 4), (3, 6)):
    cases.append(("svd", real(m, n)))
for m, n in ((5, 5), (4, 9), (17, 17)):
    cases.append(("svd", cplx(m, n)))
cases.append(("svd", hilbert(8)))
cases.append(("svd", low_rank(6, 3)))


def fmt(x):
    return repr(float(x))


with open("decomposition_reference.txt", "w") as out:
    for kind, a in cases:
        a = np.asarray(a, dtype=complex)
        m, n = a.shape
        words = [kind, str(m), str(n)]
        words += [fmt(v) for v in a.real.ravel()]
        words += [fmt(v) for v in a.imag.ravel()]
        if kind == "eig":
            ev = sl.eigvals(a)
            words.append(str(len(ev)))
            for v in ev:
                words += [fmt(v.real), fmt(v.imag)]
        else:
            sv = sl.svdvals(a)
            words.append(str(len(sv)))
            words += [fmt(v) for v in sv]
        out.write(" ".join(words) + "\n")
