#!/usr/bin/python3
"""Reference results of the image filters and comparisons.

Writes image_reference.txt beside this script: random images (seeded), their
3 x 3 filters (scipy.ndimage.correlate per colour plane), median filters
(NumPy sorts of sliding windows), absolute differences and mean square error
with peak signal-to-noise ratio. Run once; the output is committed and read
by tests/image/image_reference_test.cpp.

Records, one per line, fields separated by single spaces, pixels as decimal
words:
  image NAME ROWS COLUMNS PIXELS...
  filter NAME KERNEL K1..K9 ROWS COLUMNS PIXELS...
  median NAME WIDTH HEIGHT ROWS COLUMNS PIXELS...   (or "undefined")
  absdiff NAME1 NAME2 ROWS COLUMNS PIXELS...
  msepsnr NAME1 NAME2 MSE PSNR                      (PSNR may be "undefined")
"""

import math
import os

import numpy as np
from scipy import ndimage

rng = np.random.default_rng(20261124)

FIXED = {
    "smooth": [1, 1, 1, 1, 2, 1, 1, 1, 1],
    "edge": [-1, -1, -1, -1, 8, -1, -1, -1, -1],
    "mblur": [0, 0, 1, 0, 0, 0, 1, 0, 0],
    "sharpen": [-1, -1, -1, -1, 9, -1, -1, -1, -1],
    "raised": [0, 0, -2, 0, 2, 0, 1, 0, 0],
}


def eighths(sign):
    # Multiples of 1/8: every product with a byte and every sum is exact, so
    # the order of summation can't change a result.
    while True:
        k = rng.integers(-16, 17, 9) / 8.0
        if sign * k.sum() > 0:
            return [float(x) for x in k]


KERNELS = dict(FIXED)
KERNELS["random1"] = eighths(+1)
KERNELS["random2"] = eighths(-1)  # a negative divisor stands

MEDIAN_SIZES = [(3, 3), (5, 3), (4, 4), (2, 1), (7, 5), (6, 6), (1, 1), (13, 13), (12, 14)]


def random_image(rows, columns, levels=None):
    if levels is None:
        return rng.integers(0, 2**32, size=(rows, columns), dtype=np.uint64)
    # Channels from a few levels only: many ties in the medians.
    ch = [rng.choice(levels, size=(rows, columns)).astype(np.uint64) for _ in range(4)]
    return ch[0] | ch[1] << 8 | ch[2] << 16 | ch[3] << 24


def planes(img):
    return [((img >> s) & 255).astype(np.int64) for s in (16, 8, 0)]  # red, green, blue


def pack(r, g, b, a):
    return (a.astype(np.uint64) << 24) | (r.astype(np.uint64) << 16) | (g.astype(np.uint64) << 8) | b.astype(np.uint64)


def filter3x3(img, k):
    rows, cols = img.shape
    out = img.copy()
    if rows < 3 or cols < 3:
        return out
    kernel = np.array(k, dtype=np.float64).reshape(3, 3)
    divisor = kernel.sum()
    if divisor == 0.0:
        divisor = 1.0
    res = []
    for p in planes(img):
        s = ndimage.correlate(p.astype(np.float64), kernel, mode="nearest")
        v = np.minimum(s / divisor, 255.0)
        res.append(np.where(v >= 0.0, np.floor(v + 0.5), 0.0).astype(np.int64))
    alpha = (img >> 24) & 255
    inner = pack(res[0], res[1], res[2], alpha)
    out[1:-1, 1:-1] = inner[1:-1, 1:-1]
    return out


def median(img, w, h):
    rows, cols = img.shape
    hw, hh = w // 2, h // 2
    orows, ocols = rows - 2 * hh, cols - 2 * hw
    if w > cols or h > rows or orows <= 0 or ocols <= 0:
        return None
    n = w * h
    res = []
    for p in planes(img):
        win = np.lib.stride_tricks.sliding_window_view(p, (h, w))[:orows, :ocols]
        s = np.sort(win.reshape(orows, ocols, n), axis=2)
        lo, hi = s[:, :, (n - 1) // 2], s[:, :, n // 2]
        res.append((lo + hi + 1) // 2)
    alpha = ((img >> 24) & 255)[hh:hh + orows, hw:hw + ocols]
    return pack(res[0], res[1], res[2], alpha)


def absdiff(a, b):
    pa, pb = planes(a), planes(b)
    d = [np.abs(x - y) for x, y in zip(pa, pb)]
    return pack(d[0], d[1], d[2], (a >> 24) & 255)


def msepsnr(a, b):
    total = sum(int(((x - y) ** 2).sum()) for x, y in zip(planes(a), planes(b)))
    mse = total / (3 * a.size)
    psnr = None if total == 0 else 10.0 * math.log10(65025.0 / mse)
    return mse, psnr


def words(img):
    return " ".join(str(int(x)) for x in img.reshape(-1))


def main():
    shapes = [(1, 1), (1, 7), (7, 1), (3, 3), (37, 53)]
    images = {}
    for rows, cols in shapes:
        images["a%dx%d" % (rows, cols)] = random_image(rows, cols)
        images["b%dx%d" % (rows, cols)] = random_image(rows, cols)
    images["ties29x31"] = random_image(29, 31, levels=[0, 1, 2, 128, 254, 255])

    lines = []
    for name, img in images.items():
        lines.append("image %s %d %d %s" % (name, img.shape[0], img.shape[1], words(img)))
    for name, img in images.items():
        if not name.startswith("a") and not name.startswith("ties"):
            continue
        for kname, k in KERNELS.items():
            out = filter3x3(img, k)
            lines.append("filter %s %s %s %d %d %s" % (name, kname, " ".join(repr(float(x)) for x in k),
                                                       out.shape[0], out.shape[1], words(out)))
        for w, h in MEDIAN_SIZES:
            out = median(img, w, h)
            if out is None:
                lines.append("median %s %d %d undefined" % (name, w, h))
            else:
                lines.append("median %s %d %d %d %d %s" % (name, w, h, out.shape[0], out.shape[1], words(out)))
    for rows, cols in shapes:
        a, b = "a%dx%d" % (rows, cols), "b%dx%d" % (rows, cols)
        for x, y in ((a, b), (b, a), (a, a)):
            out = absdiff(images[x], images[y])
            lines.append("absdiff %s %s %d %d %s" % (x, y, out.shape[0], out.shape[1], words(out)))
            mse, psnr = msepsnr(images[x], images[y])
            lines.append("msepsnr %s %s %r %s" % (x, y, mse, "undefined" if psnr is None else repr(psnr)))
    here = os.path.dirname(os.path.abspath(__file__))
    with open(os.path.join(here, "image_reference.txt"), "w") as f:
        f.write("# Made by make_image_reference.py; do not edit.\n")
        f.write("\n".join(lines) + "\n")


if __name__ == "__main__":
    main()
