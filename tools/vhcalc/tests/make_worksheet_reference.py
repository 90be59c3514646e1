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
    # (end of host types)

    # --- fractions, division and substitution ---
    # (end of fractions, division and substitution)

    # --- number theory and transforms ---
    # (end of number theory and transforms)

    # --- images ---
    # (end of images)

    # --- filter design and running filters ---
    # (end of filter design and running filters)

    # --- distributions, random numbers, statistics and numeric calculus ---
    # (end of distributions, random numbers, statistics and numeric calculus)

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
    # (end of decompositions and linear equations)

    # --- finance, coordinates, geometry, conversions and chemistry ---
    # (end of finance, coordinates, geometry, conversions and chemistry)

]

with open("worksheet_reference.tsv", "w") as f:
    for row in rows:
        options, expression, check, expected = row[:4]
        tolerance = row[4] if len(row) > 4 else ""
        f.write("\t".join([options, expression, check, expected, tolerance]) + "\n")
