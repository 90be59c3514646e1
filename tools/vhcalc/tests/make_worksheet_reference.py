#!/usr/bin/python3
"""Writes worksheet_reference.tsv: worksheet lines for vhcalc with the
results they must give.

Columns: options, expression, check, expected, tolerance.
  value    the JSON "value" of the result, character for character
  data     the "data" list of an array result, character for character
  type     the engine's type name
  text     the printed text ("\\n" stands for a line break)
  number   a real result, within the relative tolerance
  complex  "re im" of a complex result, within the tolerance relative to |z|

The numbers come from mpmath at 50 digits; exact results are stated as they
are. Elementary functions of the C library are good to about one unit in the
last place, so their tolerance is 4e-16; the special functions of Boost.Math
get 1e-15.
"""

import mpmath

mpmath.mp.dps = 50

ELEMENTARY = "4e-16"
SPECIAL = "1e-15"


def num(x):
    return mpmath.nstr(mpmath.mpf(x), 25, min_fixed=-5, max_fixed=5)


def cplx(z):
    z = mpmath.mpc(z)
    return num(z.real) + " " + num(z.imag)


rows = [
    # Scalars and their promotion.
    ("", "7/2", "value", "3.5"),
    ("", "6/3", "type", "integer"),
    ("", "1/0", "value", "null"),
    ("", "1.0/0", "value", "null"),
    ("", "2147483647 + 1", "value", "-2147483648"),
    ("", "2147483647.0 + 1", "value", "2147483648"),
    ("", "2 - 0.5", "value", "1.5"),
    # A complex value stays complex with a zero imaginary part; adding a
    # zero returns the other operand unchanged.
    ("", "(1 + 1i) - 1i == 1", "value", "true"),
    ("", "1 == (1 + 1i) - 1i", "value", "true"),
    ("", "0.5 + 0i", "type", "double"),
    ("", "(1e-16 + 1i) * ((1 + 1i) - 1i)", "value", '{"re": 0, "im": 1}'),
    ("", "(1e-16 + 1i) * 1", "value", '{"re": 9.9999999999999998e-17, "im": 1}'),
    ("", "1 < 2i", "value", "null"),
    # Text forms.
    ("", "0.1", "text", "0.1"),
    ("", "5.0", "text", "5"),
    ("", "3e10", "text", "30000000000."),
    ("", "1e-20", "text", "1.000000e-20"),
    ("", "1 - 2i", "text", "1-2i"),
    ("", "(0.5 + 1i) - 1i", "text", "0.5+0i"),
    ("", "[1; 2]", "text", "[1]\\n[2]"),
    ("", "[1, 2]", "text", "[1, 2]"),
    ("", "[1, 2; 3, 4]", "text", "[1, 2]\\n[3, 4]"),
    ("", "\"abc\"", "text", "\"abc\""),
    ("", "1 < 2", "text", "true"),
    ("--decimals 3", "2.0000001", "text", "2."),
    ("--decimals 0", "120.4", "text", "12"),
    # Elementwise functions.
    ("", "sin(3.141592653589793)", "value", "0"),
    ("", "cos(1.5707963267948966)", "value", "0"),
    ("", "tan(1.5707963267948966)", "value", '"inf"'),
    ("--angle deg", "sin(180)", "value", "0"),
    ("--angle deg", "acos(0)", "value", "90"),
    ("--angle deg", "sin(30)", "number", num(mpmath.sin(mpmath.pi / 6)), ELEMENTARY),
    ("--angle grad", "sin(100)", "value", "1"),
    ("", "sqrt(-4)", "value", '{"re": 0, "im": 2}'),
    ("", "sqrt(4)", "value", "2"),
    ("", "root(-8, 3)", "value", "-2"),
    ("", "root(-8, 2)", "type", "complex"),
    ("", "root(0, -2)", "value", "null"),
    ("", "log(0)", "value", "null"),
    ("", "log(-1)", "complex", cplx(mpmath.log(-1)), ELEMENTARY),
    ("", "pow(0, 0)", "value", "null"),
    ("", "0^-1", "value", "null"),
    ("", "pow(2, 3)", "value", "8"),
    ("", "2^-1", "value", "0.5"),
    ("", "2^3^2", "value", "512"),
    ("", "-2^2", "value", "-4"),
    ("", "(-8)^0.5", "type", "complex"),
    ("", "[1, 2; 3, 4]^2", "data", "[1, 4, 9, 16]"),
    ("", "2^[1, 2]", "data", "[2, 4]"),
    ("", "[1, 2]^[1, 2]", "value", "null"),
    ("", "acos(2)", "type", "complex"),
    ("", "fmod(1, 0)", "value", "null"),
    ("", "mod(5, 0)", "value", "5"),
    ("", "mod(-1, 3)", "value", "2"),
    ("", "fact(0)", "value", "1"),
    ("", "fact(-1)", "value", "null"),
    ("", "fact(2.5)", "value", "null"),
    ("", "sqrt([4, -4])", "data", '[2, {"re": 0, "im": 2}]'),
    ("", "abs(1 == 1)", "value", "1"),
    ("", "abs(-3)", "value", "3"),
    ("", "sqrt(2)", "number", num(mpmath.sqrt(2)), ELEMENTARY),
    ("", "exp(1)", "number", num(mpmath.e), ELEMENTARY),
    ("", "log(10)", "number", num(mpmath.log(10)), ELEMENTARY),
    ("", "log10(2)", "number", num(mpmath.log10(2)), ELEMENTARY),
    ("", "sin(1)", "number", num(mpmath.sin(1)), ELEMENTARY),
    ("", "atan2(1, 2)", "number", num(mpmath.atan2(1, 2)), ELEMENTARY),
    ("", "2^0.5", "number", num(mpmath.sqrt(2)), ELEMENTARY),
    ("", "exp(1i)", "complex", cplx(mpmath.exp(1j)), ELEMENTARY),
    ("", "sqrt(2i)", "complex", cplx(mpmath.sqrt(2j)), ELEMENTARY),
    # Special functions.
    ("", "gamma(5)", "value", "24"),
    ("", "gamma(0)", "value", "null"),
    ("", "gamma(-1)", "value", "null"),
    ("", "gamma(0.5)", "number", num(mpmath.gamma(0.5)), SPECIAL),
    ("", "erf(0.5)", "number", num(mpmath.erf(0.5)), SPECIAL),
    ("", "BesselFirstKind(0, 1)", "number", num(mpmath.besselj(0, 1)), SPECIAL),
    ("", "lambert(0)", "value", "0"),
    ("", "lambert(-0.5)", "type", "complex"),
    # Symbolic algebra.
    ("", "x + 1 - x", "value", "1"),
    # Two atoms that cancel leave an atom with coefficient 0.
    ("", "x - x", "text", "0"),
    ("", "(x + 1) * (x - 1)", "text", "x^2-1"),
    # --- host types ---
    # Objects of the example type that --demo-type registers, and the rows
    # that list the registered types.
    ("--demo-type", "new point(3, 4).norm()", "value", "5"),
    ("--demo-type", "new point(3, 4).y", "value", "4"),
    ("--demo-type", "new point()", "text", "object of type point"),
    ("--demo-type", 'TypeMembers("point")', "data", '["x", "y"]'),
    ("--demo-type", 'TypeMethodArguments("point", "x")', "value", "null"),
    ("", "DefinedTypes()", "data", "[]"),

    # --- fractions, division and substitution ---
    # Exact division of sums, and quotients that stay fractions.
    ("", "(x^2 - 1) / (x - 1)", "text", "x+1"),
    ("", "(x - 1) / (x^2 - 1)", "text", "(1)/(x+1)"),
    ("", "x / (x + 1)", "type", "fraction"),
    # Substitution gives numbers; symbols and their test.
    ("", "replaceSymbols(3*x^2 + 1, x, 2)", "value", "13"),
    ("", "replaceSymbols(x*y + 1, [x, y], [2, 3])", "value", "7"),
    ("", "replaceSymbols(x, [x, y], [2])", "value", "null"),
    ("", "containSymbol(x + y, y)", "value", "true"),

    # --- number theory and transforms ---
    ("", "FFT1([1, 2, 3, 4])", "data", '[{"re": 10, "im": 0}, {"re": -2, "im": 2}, {"re": -2, "im": 0}, {"re": -2, "im": -2}]'),
    ("", "FFT1([1, 2, 3])", "value", "null"),
    ("", "nthPrime(1000)", "value", "7919"),
    ("", "Factor(360, 10)", "data", "[2, 2, 2, 3, 3, 5]"),
    ("", "Factor(12, 2)", "value", "null"),
    ("", "FactorUnique(12, 2)", "data", "[2, 3]"),
    ("", "gcde(240, 46)", "data", "[2, -9, 47]"),
    ("", "chineserem([3, 5], [2, 3])", "value", "8"),
    ("", "BinomialCoefficient(40, 20)", "value", str((137846528820 % 2**32))),
    ("", "isPrime(97)", "value", "true"),
    ("", "fwht([19, -1, 11, -9, -7, 13, -15, 5], 8, \"seq\")", "data", "[2, 3, 0, 4, 0, 0, 10, 0]"),
    ("", "PoissonCoefficient(2.5, 3)", "number", num(mpmath.exp(-2.5) * mpmath.mpf(2.5) ** 3 / 6), SPECIAL),
    ("", "StirlingNumber2ndKind(10, 4)", "value", "34105"),
    ("", "BellNumber(10)", "value", "115975"),

    # --- images ---
    # Pixels are words: blue in the low byte, then green, red and alpha.
    ("", "ToRed(2151686160)", "value", "64"),
    ("", "ToAlpha(4294967295)", "value", "255"),
    ("", "ToBGRA(16, 32, 64, 128)", "value", "2151686160"),
    ("", "ToBGRA(256, 0, 0, 0)", "value", "null"),
    ("", "IsImage(ImageCreate(2, 3))", "value", "true"),
    ("", "ImageHeight(ImageCreate(2, 3))", "value", "3"),
    ("", "ImageDPI(ImageSetDPI(ImageCreate(2, 3), 300))", "value", "300"),
    ("", "Image2Matrix(ImageFill(ImageCreate(2, 1), 2151686160))", "data", "[2151686160, 2151686160]"),
    ("", "Image2Matrix(ImageRedMul(ImageFill(ImageCreate(1, 1), 2151686160), 0.5))", "data", "[2149589008]"),
    ("", "Image2Matrix(ImageBGRA(ImageCreate(1, 1), Matrix2Image([7]), Matrix2Image([8]), Matrix2Image([0])))",
     "data", "[526335]"),
    ("", "Matrix2Image([0.5])", "value", "null"),
    ("", "Image2Matrix(Matrix2Image([-1, 3]))", "data", "[0, 3]"),
    ("", "Image2Matrix(ImageSmooth(Matrix2Image([1, 2, 3; 4, 5, 6; 7, 8, 9])))", "data", "[1, 2, 3, 4, 5, 6, 7, 8, 9]"),
    ("", "Image2Matrix(ImageMedian(Matrix2Image([1, 9, 2; 8, 3, 7; 4, 6, 5]), [3, 3]))", "data", "[5]"),
    ("", "ImageMsePsnr(Matrix2Image([0]), Matrix2Image([255]))", "data", "[21675, 4.7712125471966242]"),
    ("", "ImageMsePsnr(Matrix2Image([5]), Matrix2Image([5]))", "data", "[0, null]"),

    # --- filter design and running filters ---
    ("", 'makeWindow("bartlett", 5)', "data", "[0, 0.5, 1, 0.5, 0]"),
    ("", 'makeWindow("barlett", 5)', "value", "null"),
    ("", 'FIRlowpass(100, 1000, 0, 0)', "value", "null"),
    ("", 'buttlowhigh(2, "high", 100, 1000)', "type", "matrix"),
    ("", 'InitIIRFilter(0, 3)', "value", "true"),
    ("", 'InitFIRFilter(64, 4, 2)', "value", "null"),
    ("", 'MovingAverage([3, 6, 9], 3)', "data", "[3, 6, 5]"),
    ("", 'LMSAdaptive([1, 2], [1, 1], 0.5, 1)', "text", "[[0, 0.5]]\\n[[1, 1.5]]\\n[[1.25]]"),
    ("", "iirgroupdelay([1], [0, 0, 1], 3)", "data", "[2, 2, 2]"),
    # Herrmann, Rabiner and Chan's order for ripples 0.01 and 0.001 over a
    # transition of 0.05.
    ("", "firoptord(100, 150, 0.01, 0.001, 1000)", "number",
     num(((mpmath.mpf("0.005309") * 4 - mpmath.mpf("0.07114") * 2 - mpmath.mpf("0.4761")) * -3
          - (mpmath.mpf("0.00266") * 4 - mpmath.mpf("0.5941") * 2 + mpmath.mpf("0.4278"))
          - (mpmath.mpf("0.51244") + mpmath.mpf("11.012")) * mpmath.mpf("0.05") ** 2) / mpmath.mpf("0.05") + 1),
     "1e-14"),

    # --- distributions, random numbers and statistics ---
    # Descriptive statistics.
    ("", "average([1, 2, 3, 4])", "value", "2.5"),
    ("", "median([7, 1, 4, 2])", "value", "3"),
    ("", "variance([1, 2, 3, 4])", "value", "1.25"),
    ("", "percentile([1, 2, 3, 4], 100)", "value", "4"),
    ("", "deviationSample([5])", "value", "null"),
    ("", "columnMedian([1, 2; 3, 5])", "data", "[2, 3.5]"),
    ("", "modus([5, 2, 5, 2, 9])", "value", "2"),
    # Distributions.
    ("", "normaldist(0, 0, 1)", "value", "0.5"),
    ("", "normaldist(1.5, 0, 1)", "number", num(mpmath.ncdf(1.5)), "1e-15"),
    ("", "normaldist(1, 0, 0)", "value", "null"),
    ("", "tdist(0, 3)", "value", "0.5"),
    ("", "tinv(0.5, 3)", "value", "0"),
    ("", "chidist(0, 3)", "value", "0"),
    ("", "betadist(1, 2, 3)", "value", "1"),
    ("", "geometricdens(0, 0.5)", "value", "null"),
    ("", "exponentialdist(1, 2)", "number", num(1 - mpmath.exp(-2)), ELEMENTARY),
    ("", "poissondens(2, 3)", "number", num(mpmath.mpf(9) / 2 * mpmath.exp(-3)), ELEMENTARY),
    # Random numbers: shapes, and a deviation of 0 gives the mean.
    ("", "uRandVec(0, 1, 3)", "type", "vector"),
    ("", "normRandNum(0, 0)", "value", "0"),
    ("", "expRandVec(1, 0)", "value", "null"),

    # --- decompositions and linear equations ---
    ("", "decLUL([4, 3; 6, 3])", "data", "[1, 0, 1.5, 1]"),
    ("", "decLUU([4, 3; 6, 3])", "text", "[4, 3]\\n[0, -1.5]"),
    # A zero first pivot: the plain elimination has no factors, the pivoting one has four.
    ("", "decLU([0, 1; 1, 0])", "value", "null"),
    ("", "decLUPQ([0, 1; 1, 0])", "type", "vector"),
    ("", "decCholesky([4, 2; 2, 3])", "data", "[2, 0, 1, 1.4142135623730951]"),
    ("", "decSVDS([3, 0; 0, 4])", "data", "[4, 0, 0, 3]"),
    ("", "rank([1, 0; 0, 1e-7])", "value", "1"),
    ("", "characteristicPolynomialRoots([1, 0; 0, 1])", "data", "[1, 1]"),
    ("", "diagonalization([1, 1; 0, 1])", "value", "null"),
    ("", "charpoly([2, 1; 1, 3], x)", "text", "x^2-5 x+5"),
    ("", "matrixDeterminant([4, 3; 6, 3])", "value", "-6"),
    ("", "matRREForm([1, 2, 3; 4, 5, 6])", "text", "[1, 0, -1]\\n[0, 1, 2]"),
    ("", "isHermitian([1, 2; 2, 1])", "value", "true"),
    ("", 'linsolve(equation(x + 1, "==", 3), x)', "value", "2"),
    ("", 'linsolve(equation(x, "<", 3), x)', "value", "null"),
    ("", 'linsolvesys([equation(2*x + 3, "==", y + 7); equation(x - y, "==", 1)], [x; y])', "data", "[3, 2]"),
    ("", 'linSysMatrix([equation(2*x + 3, "==", y + 7); equation(x - y, "==", 1)], [x; y])', "data", "[2, -1, 1, -1]"),

    # --- finance, coordinates, geometry, conversions and chemistry ---
    ("", 'Decimal2Binary(10)', "value", '"1010"'),
    ("", 'Hexadecimal2Decimal("ff")', "value", "255"),
    ("", "Celsius2Fahrenheit(100)", "value", "212"),
    ("--angle deg", "cartesian2polarF(0, 2)", "value", "90"),
    ("--angle deg", "phangle(-1)", "value", "180"),
    ("", "bondprice(0.08, 0.1, 10)", "number", num(sum(mpmath.mpf('0.08') / mpmath.mpf('1.1') ** t for t in range(1, 11)) + 1 / mpmath.mpf('1.1') ** 10), "1e-14"),
    ("", "presentvalue(0, 12, 100, 0)", "value", "-1200"),
    ("", "areColinear(0, 0, 1, 1, 2, 2)", "value", "true"),
    ("", "dotprod([1, 2, 3], [4, 5, 6])", "value", "32"),
    ("", "chemSolver([3, 0, -1, 0; 8, 0, 0, -2; 0, 2, -2, -1])", "data", "[1, 5, 3, 4]"),

]

with open("worksheet_reference.tsv", "w") as f:
    for row in rows:
        options, expression, check, expected = row[:4]
        tolerance = row[4] if len(row) > 4 else ""
        f.write("\t".join([options, expression, check, expected, tolerance]) + "\n")
